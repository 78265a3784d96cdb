// The page of the animated picture control.
#include "PageAnimation.h"
#include "PictureClaims.h"
#include "PlatformPicture.h"
#include "SamplePictures.h"
#include "resource.h"
#include "support/ModalUser.h"
#include <afxdlgs.h>
#include <algorithm>
#include <cstring>
#include <memory>

namespace
{
constexpr UINT_PTR stateTimer = 1;
constexpr UINT stateMilliseconds = 100; // the worker tells nobody: its state is read live

struct Color
{
    const wchar_t* name;
    COLORREF value;
};

/// The first one is the face colour of the system, asked for when it is chosen.
const std::array colors = {
    Color{L"Face colour of the system", 0},
    Color{L"Paper", RGB(0xFD, 0xFC, 0xF7)},
    Color{L"Light blue", RGB(0xCF, 0xE2, 0xF5)},
    Color{L"Amber", RGB(0xFF, 0xD5, 0x80)},
};

constexpr int partFields[] = {IDC_PART_LEFT, IDC_PART_TOP, IDC_PART_WIDTH, IDC_PART_HEIGHT};
constexpr int greatestPart = 9999; // pixels; four digits fit the fields

struct FreeBlock
{
    void operator()(HGLOBAL block) const { GlobalFree(block); }
};
using Block = std::unique_ptr<std::remove_pointer_t<HGLOBAL>, FreeBlock>;

Block blockOf(const std::vector<unsigned char>& bytes)
{
    Block block(GlobalAlloc(GMEM_MOVEABLE, bytes.size()));
    void* const target = block ? GlobalLock(block.get()) : nullptr;
    if (!target)
        return nullptr;
    std::memcpy(target, bytes.data(), bytes.size());
    GlobalUnlock(block.get());
    return block;
}
} // namespace

BEGIN_MESSAGE_MAP(CPageAnimation, CPage)
    // void OnOpen()
    ON_BN_CLICKED(IDC_OPEN_ANIMATION, &CPageAnimation::OnOpen)
    // void OnSample()
    ON_CBN_SELCHANGE(IDC_ANIMATION_SAMPLE, &CPageAnimation::OnSample)
    // void OnPlay()
    ON_BN_CLICKED(IDC_PLAY, &CPageAnimation::OnPlay)
    // void OnStop()
    ON_BN_CLICKED(IDC_STOP, &CPageAnimation::OnStop)
    // void OnApplyPart()
    ON_BN_CLICKED(IDC_APPLY_PART, &CPageAnimation::OnApplyPart)
    // void OnShowAll()
    ON_BN_CLICKED(IDC_SHOW_ALL, &CPageAnimation::OnShowAll)
    // void OnBackground()
    ON_CBN_SELCHANGE(IDC_BACKGROUND, &CPageAnimation::OnBackground)
    // void OnTimer(UINT_PTR id)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CPageAnimation::CPageAnimation() : CPage(IDD_PAGE_ANIMATION, L"Animation") {}

BOOL CPageAnimation::OnInitDialog()
{
    CPage::OnInitDialog();
    m_samples.SubclassDlgItem(IDC_ANIMATION_SAMPLE, this);
    m_colors.SubclassDlgItem(IDC_BACKGROUND, this);
    m_pane.SubclassDlgItem(IDC_ANIMATION_PANE, this);
    m_picture.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &m_pane);
    for (const SamplePicture& sample : samplePictures)
        if (sample.file)
            m_samples.AddString(sample.title);
    for (const Color& color : colors)
        m_colors.AddString(color.name);
    for (const int field : partFields)
        SendDlgItemMessage(field, EM_LIMITTEXT, 4, 0);
    say(L"Open an animated GIF, or pick one of the samples.");
    showPart();
    SetTimer(stateTimer, stateMilliseconds, nullptr);
    showState();
    return TRUE;
}

void CPageAnimation::OnOpen()
{
    const CString folder = samplesFolder();
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, pictureFilter, this);
    if (!m_loaded)
        dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK)
        return;
    m_samples.SetCurSel(-1);
    openFile(dialog.GetPathName());
}

void CPageAnimation::OnSample()
{
    const int chosen = m_samples.GetCurSel();
    if (chosen >= 0)
        open(openSample(samplePictures[static_cast<size_t>(chosen)]));
}

void CPageAnimation::openFile(const CString& path)
{
    open(PictureSource::read(path));
}

void CPageAnimation::open(const PictureSource& source)
{
    const CWaitCursor wait;
    m_picture.UnLoad();
    m_picture.ShowWindow(SW_HIDE);
    m_started = false;
    CString trouble = refusalOf(source);
    m_loaded = trouble.IsEmpty() && load(source);
    if (trouble.IsEmpty() && !m_loaded)
        trouble = L"\"" + source.name + L"\" is not a picture that can be read.";
    m_colors.SetCurSel(m_loaded ? 0 : -1);
    showPart();
    if (m_loaded)
    {
        CString frames;
        frames.Format(m_picture.IsAnimatedGIF() ? L"an animation of %d frames" : L"a still picture",
                      m_picture.GetFrameCount());
        say(L"Opened \"" + source.name + L"\": " + frames + L", " + pixelsText(CSize(m_picture.GetSize())) + L".");
        place();
        OnPlay();
    }
    else
        say(trouble);
    showState();
}

CString CPageAnimation::refusalOf(const PictureSource& source) const
{
    if (!source.trouble.IsEmpty())
        return source.trouble;
    if (source.isGif())
        return refusalOfGif(source, listGifFrames(source.bytes));
    return refusalOfOther(source, platformSize(source.bytes));
}

bool CPageAnimation::load(const PictureSource& source)
{
    const Block block = blockOf(source.bytes);
    return block && m_picture.Load(block.get(), static_cast<DWORD>(source.bytes.size())) != FALSE;
}

/// Gives the control the size of what it shows, in the middle of the pane, or at its corner when it is larger.
void CPageAnimation::place()
{
    CRect room;
    m_pane.GetClientRect(&room);
    const CSize size = shownPart().Size();
    m_picture.SetWindowPos(nullptr, std::max<int>(0, (room.Width() - size.cx) / 2),
                           std::max<int>(0, (room.Height() - size.cy) / 2), size.cx, size.cy,
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    m_picture.ShowWindow(SW_SHOWNA);
    m_picture.Invalidate();
    m_pane.Invalidate();
}

/// The paint rectangle, or the whole picture when there is none.
CRect CPageAnimation::shownPart() const
{
    const CRect whole(CPoint(0, 0), m_loaded ? CSize(m_picture.GetSize()) : CSize(0, 0));
    CRect part;
    m_picture.GetPaintRect(&part);
    return part.Width() < 1 ? whole : part;
}

// ---- playing

void CPageAnimation::OnPlay()
{
    m_picture.Draw(); // its result says nothing of an animation
    m_started = true;
    m_picture.Invalidate();
    showState();
}

void CPageAnimation::OnStop()
{
    m_picture.Stop();
    showState();
}

void CPageAnimation::OnTimer(UINT_PTR id)
{
    if (id == stateTimer)
        showState();
    CPage::OnTimer(id);
}

void CPageAnimation::showState()
{
    const bool animated = m_loaded && m_picture.IsAnimatedGIF(), playing = m_picture.IsPlaying() != FALSE;
    CString state = L"Nothing is open";
    if (m_loaded)
        state = playing ? L"Playing" : animated ? L"Stopped" : L"A still picture";
    CString old;
    GetDlgItemText(IDC_PLAY_STATE, old);
    if (old != state) // else it would flicker
        SetDlgItemText(IDC_PLAY_STATE, state);
    const CString caption = m_started && animated && !playing ? L"&Resume" : L"&Play";
    GetDlgItemText(IDC_PLAY, old);
    if (old != caption)
        SetDlgItemText(IDC_PLAY, caption);
    struct Row
    {
        int id;
        bool enabled;
    };
    const HWND focus = ::GetFocus();
    for (const Row& row :
         {Row{IDC_PLAY, animated && !playing}, Row{IDC_STOP, playing}, Row{IDC_APPLY_PART, m_loaded},
          Row{IDC_SHOW_ALL, m_loaded}, Row{IDC_PART_LEFT, m_loaded}, Row{IDC_PART_TOP, m_loaded},
          Row{IDC_PART_WIDTH, m_loaded}, Row{IDC_PART_HEIGHT, m_loaded}, Row{IDC_BACKGROUND, m_loaded}})
        if ((::IsWindowEnabled(::GetDlgItem(m_hWnd, row.id)) != FALSE) != row.enabled)
            GetDlgItem(row.id)->EnableWindow(row.enabled);
    // Play and Stop take turns with the focus too.
    if (focus && focus == ::GetDlgItem(m_hWnd, IDC_PLAY) && playing)
        GetDlgItem(IDC_STOP)->SetFocus();
    else if (focus && focus == ::GetDlgItem(m_hWnd, IDC_STOP) && !playing)
        GetDlgItem(animated ? IDC_PLAY : IDC_OPEN_ANIMATION)->SetFocus();
}

// ---- the part that is shown, and the background

void CPageAnimation::OnApplyPart()
{
    int values[4] = {};
    for (size_t i = 0; i < 4; ++i)
        values[i] = std::min(static_cast<int>(GetDlgItemInt(partFields[i], nullptr, FALSE)), greatestPart);
    CRect part(CPoint(values[0], values[1]), CSize(values[2], values[3]));
    part.IntersectRect(&part, CRect(CPoint(0, 0), CSize(m_picture.GetSize())));
    m_picture.SetPaintRect(&part);
    place();
    showPart();
}

void CPageAnimation::OnShowAll()
{
    const CRect everything(0, 0, 0, 0);
    m_picture.SetPaintRect(&everything);
    place();
    showPart();
}

void CPageAnimation::showPart()
{
    const CRect part = shownPart();
    const int values[] = {part.left, part.top, part.Width(), part.Height()};
    for (size_t i = 0; i < 4; ++i)
        SetDlgItemInt(partFields[i], static_cast<UINT>(values[i]), FALSE);
}

void CPageAnimation::OnBackground()
{
    const int chosen = m_colors.GetCurSel();
    if (chosen < 0)
        return;
    m_picture.SetBkColor(chosen == 0 ? GetSysColor(COLOR_BTNFACE) : colors[static_cast<size_t>(chosen)].value);
    m_picture.Invalidate(); // the control does not by itself
}

void CPageAnimation::say(const CString& sentence)
{
    SetDlgItemText(IDC_ANIMATION_STATUS, sentence);
}

// ---- pictures of the page

COLORREF CPageAnimation::colorAt(CPoint point)
{
    return CClientDC(&m_picture).GetPixel(point);
}

void CPageAnimation::walk(const TakePicture& take)
{
    take(L"1-nothing-open");
    const auto sample = [this](int number)
    {
        m_samples.SetFocus();
        m_samples.SetCurSel(number - 1);
        key(VK_DOWN);
        pumpFor(300);
    };
    sample(2);
    pumpFor(700);
    take(L"2-playing");
    click(middleOf(IDC_STOP));
    take(L"3-stopped");
    const wchar_t* part[] = {L"20", L"0", L"110", L"110"};
    for (size_t i = 0; i < 4; ++i)
    {
        GetDlgItem(partFields[i])->SetFocus();
        SendDlgItemMessage(partFields[i], EM_SETSEL, 0, -1);
        typeText(part[i]);
    }
    click(middleOf(IDC_APPLY_PART));
    take(L"4-a-part");
    click(middleOf(IDC_PLAY));
    click(middleOf(IDC_SHOW_ALL));
    m_colors.SetFocus();
    m_colors.SetCurSel(1);
    key(VK_DOWN);
    click(middleOf(IDC_STOP));
    OnBackground(); // fills the canvas; the frame that stands is gone until the next one
    pumpFor(50);
    take(L"5-background");
    click(middleOf(IDC_PLAY));
    waitFor([this] { return colorAt(CPoint(30, 20)) == colors[2].value && colorAt(CPoint(5, 5)) != colors[2].value; });
    take(L"6-left-to-the-background");
    sample(1);
    take(L"7-still");
    {
        const ModalUser user({[] { typeForModal(L"C:\\windows\\system.ini"); }});
        click(middleOf(IDC_OPEN_ANIMATION));
    }
    pumpFor(100);
    take(L"8-not-a-picture");
}
