// The page of pictures: what its controls show, and which of them can be used.
#include "PagePictures.h"
#include "PictureClaims.h"
#include "resource.h"

namespace
{
enum Column
{
    numberColumn,
    delayColumn,
    disposalColumn,
    sizeColumn,
};

CString disposalName(long disposal)
{
    switch (disposal)
    {
    case 0:
        return L"not told";
    case 1:
        return L"keep";
    case 2:
        return L"background";
    case 3:
        return L"previous";
    default:
        return L"reserved";
    }
}

CString cellOf(const GifFrame& frame, int row, int column)
{
    CString text;
    if (column == numberColumn)
        text.Format(L"%d", row + 1);
    else if (column == delayColumn)
        text.Format(L"%lu.%02lu s", frame.delay / 100, frame.delay % 100);
    else if (column == disposalColumn)
        text = disposalName(frame.disposal);
    else
        text.Format(L"%d x %d", frame.width, frame.height);
    return text;
}
} // namespace

/// The list keeps nothing: a stream may have tens of thousands of frames.
void CPagePictures::OnFrameText(NMHDR* header, LRESULT* result)
{
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    *result = 0;
    const auto row = static_cast<size_t>(item.iItem);
    if ((item.mask & LVIF_TEXT) != 0 && row < m_frames.size())
        lstrcpynW(item.pszText, cellOf(m_frames[row], item.iItem, item.iSubItem), item.cchTextMax);
}

void CPagePictures::prepareFrames()
{
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    m_list.InsertColumn(numberColumn, L"No.", LVCFMT_LEFT, 36);
    m_list.InsertColumn(delayColumn, L"Delay", LVCFMT_RIGHT, 50);
    m_list.InsertColumn(disposalColumn, L"Disposal", LVCFMT_LEFT, 72);
    m_list.InsertColumn(sizeColumn, L"Size", LVCFMT_LEFT, 60);
}

void CPagePictures::say(const CString& sentence)
{
    SetDlgItemText(IDC_PICTURE_STATUS, sentence);
}

CRect CPagePictures::placeOf(int id) const
{
    CRect r;
    GetDlgItem(id)->GetWindowRect(&r);
    ScreenToClient(&r);
    return r;
}

/// Loads the file into the picture control, which is given the picture's proportions first.
void CPagePictures::showOriginal(CSize size)
{
    CRect room = placeOf(IDC_ORIGINAL_PANE);
    room.DeflateRect(2, 2);
    m_original.MoveWindow(fitInto(room, size));
    const bool loaded = size.cx > 0 && m_original.SetPicture(m_source.bytes.data(), m_source.bytes.size()) == 1;
    m_original.ShowWindow(loaded ? SW_SHOWNA : SW_HIDE);
    m_original.Invalidate();
    CString facts;
    if (loaded)
        facts = pixelsText(size);
    else if (size.cx > 0)
        facts = L"The platform cannot show this file.";
    SetDlgItemText(IDC_ORIGINAL_FACTS, facts);
}

/// Shows the frame or what it was reduced to, and what is to be said of it.
void CPagePictures::showImage()
{
    CKxGifImage* const image = shown();
    const CSize size =
        image ? CSize(static_cast<int>(image->GetWidth()), static_cast<int>(image->GetHeight())) : CSize();
    CRect room = placeOf(IDC_RESULT_PANE);
    room.DeflateRect(2, 2);
    m_view.MoveWindow(fitInto(room, size));
    m_view.show(image);
    m_view.ShowWindow(image ? SW_SHOWNA : SW_HIDE);
    m_palette.show(image);
    CString caption = m_frame ? L"The same pixels, by the image class" : L"By the image class", facts,
            palette = L"Palette";
    if (image)
    {
        if (m_reduced)
            caption = m_reduction;
        else if (!m_frames.empty())
            caption.Format(L"Frame %d of %d, by the image class", m_frameNumber + 1, static_cast<int>(m_frames.size()));
        facts.Format(L"%d by %d pixels, %d bit%s each", size.cx, size.cy, image->GetBpp(),
                     image->GetBpp() == 1 ? L"" : L"s");
        palette.Format(image->IsIndexed() ? L"Palette of %lu colours" : L"True colour: no palette",
                       image->GetNumColors());
        if (image->IsTransparent())
            palette.AppendFormat(L", %ld is transparent", image->GetTransIndex());
    }
    SetDlgItemText(IDC_RESULT_CAPTION, caption);
    SetDlgItemText(IDC_RESULT_FACTS, facts);
    SetDlgItemText(IDC_PALETTE_CAPTION, palette);
    showComment();
    offerDepths();
}

void CPagePictures::showFrames()
{
    m_list.DeleteAllItems();
    m_list.SetItemCountEx(static_cast<int>(m_frames.size()), 0);
    if (!m_frames.empty())
        m_list.SetItemState(m_frameNumber, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    m_list.SetColumnWidth(sizeColumn, LVSCW_AUTOSIZE_USEHEADER); // the last one takes what is left
    CString loops;
    if (m_frame && m_frames.size() > 1)
        loops.Format(m_frame->GetLoops() == 0 ? L"Loop count: 0, without end" : L"Loop count: %ld",
                     m_frame->GetLoops());
    SetDlgItemText(IDC_LOOPS, loops);
}

void CPagePictures::showComment()
{
    char bytes[256] = {}; // the last one stays the terminator
    if (shown())
        shown()->GetComment(bytes);
    CString text(bytes);
    for (int i = 0; i < text.GetLength(); ++i)
        if (text[i] < L' ')
            text.SetAt(i, L' ');
    SetDlgItemText(IDC_COMMENT, text);
}

/// Fills the list with the depths below that of the frame.
void CPagePictures::offerDepths()
{
    struct Depth
    {
        int bits;
        const wchar_t* text;
    };
    constexpr Depth depths[] = {
        {8, L"8 bits, 256 colours"}, {4, L"4 bits, 16 colours"}, {1, L"1 bit, black and white"}};
    const int before = m_bits.GetCurSel() < 0 ? 0 : static_cast<int>(m_bits.GetItemData(m_bits.GetCurSel()));
    m_bits.ResetContent();
    for (const Depth& depth : depths)
        if (m_frame && depth.bits < m_frame->GetBpp())
        {
            const int item = m_bits.AddString(depth.text);
            m_bits.SetItemData(item, static_cast<DWORD_PTR>(depth.bits));
            if (item == 0 || depth.bits == before)
                m_bits.SetCurSel(item);
        }
}

void CPagePictures::enableControls()
{
    const bool working = m_work.running(), idle = !working, open = m_frame != nullptr;
    const bool reducible = idle && open && m_bits.GetCount() > 0;
    struct Row
    {
        int id;
        bool enabled;
    };
    const Row rows[] = {
        {IDC_OPEN_PICTURE, idle},
        {IDC_SAMPLE, idle},
        {IDC_FRAMES, !m_frames.empty() && (idle || m_task == Task::Frame)},
        {IDC_BITS, reducible},
        {IDC_DIFFUSE, reducible},
        {IDC_REDUCE, reducible},
        {IDC_UNDO_REDUCTION, idle && m_reduced},
        {IDC_SAVE_GIF, idle && open},
        {IDC_COMMENT, open},
        {IDC_CANCEL_WORK, working},
    };
    const HWND focus = ::GetFocus();
    for (const Row& row : rows)
        GetDlgItem(row.id)->EnableWindow(row.enabled);
    if (!focus || !::IsChild(m_hWnd, focus) || ::IsWindowEnabled(focus))
        return;
    // A disabled window would keep the keys to itself.
    if (working)
        m_focusBefore = focus;
    const bool back = !working && m_focusBefore && ::IsWindowEnabled(m_focusBefore);
    ::SetFocus(working ? ::GetDlgItem(m_hWnd, IDC_CANCEL_WORK)
               : back  ? m_focusBefore
                       : ::GetDlgItem(m_hWnd, IDC_OPEN_PICTURE));
}
