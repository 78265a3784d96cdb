// The pictures beside the smart combo box, its tips, and the frames that it paints on the window around it.
#include <array>
#include "SmartComboLayout.h"
#include "SmartComboWindow.h"
#include "../frame/Surviving.h"

namespace
{
constexpr DWORD bitmapButtonStyle = WS_CHILD | WS_VISIBLE | BS_OWNERDRAW;
static_assert(bitmapButtonStyle == 0x5000000B);
constexpr DWORD maskColor = 0xC0C0C0;

template <std::size_t count> void draw(CDC& dc, const std::array<SmartComboLine, count>& lines)
{
    for (const SmartComboLine& line : lines)
    {
        CPen pen;
        CPen* before = nullptr;
        if (line.pen != SmartComboLine::presentPen)
        {
            pen.CreatePen(PS_SOLID, 1, ::GetSysColor(line.pen));
            before = dc.SelectObject(&pen);
        }
        dc.MoveTo(line.from);
        dc.LineTo(line.to);
        if (before != nullptr)
            dc.SelectObject(before);
    }
}
} // namespace

// ---- The modes

void CKxSmartComboBox::SetBitmapFormatList(CStringList& formats, unsigned int bitmap, int count, CString captions,
                                           int selected)
{
    if (!SmartComboCall(*this)->TakePickerFormats(formats, selected))
        return;
    m_bitmapSet = 1;
    const SmartComboLayout layout = Layout();
    MoveCombo(layout.ComboBesidePicker());
    if (m_hWnd != nullptr && m_buttonCombo.m_hWnd == nullptr)
        m_buttonCombo.Create(layout.Picker(), SmartComboLayout::Grid(count), bitmap, count, this, ID_PICKER, captions);
    m_buttonCombo.SetSelectedItem(selected);
}

void CKxSmartComboBox::SetBitmapOnly(unsigned int icon)
{
    m_bitmapSet = 1;
    m_data.bitmapMode = BITMAPMODE_SINGLE;
    ShowLeftBitmap(Layout().ComboBesideBitmap());
    m_leftBitmap.SetIcon(icon, SmartComboLayout::bitmapSize, SmartComboLayout::bitmapSize);
}

void CKxSmartComboBox::SetBitmapOnly(CStringList& formats, unsigned int bitmap)
{
    m_bitmapSet = 1;
    SmartComboCall(*this)->TakeButtonFormats(formats, BITMAPMODE_SINGLE);
    ShowLeftBitmap(Layout().ComboBesideBitmap());
    m_leftBitmap.SetMaskedBitmap(bitmap, SmartComboLayout::bitmapSize, SmartComboLayout::bitmapSize, maskColor);
}

void CKxSmartComboBox::SetDoubleBitmap(CStringList& formats, unsigned int icon, unsigned int bitmap)
{
    m_bitmapSet = 1;
    SmartComboCall(*this)->TakeButtonFormats(formats, BITMAPMODE_DOUBLE);
    const SmartComboLayout layout = Layout();
    ShowLeftBitmap(layout.ComboBesideBitmaps());
    m_leftBitmap.SetIcon(icon, SmartComboLayout::bitmapSize, SmartComboLayout::bitmapSize);
    CreateBitmapButton(m_rightBitmap, layout.RightBitmap(), ID_RIGHT_BITMAP);
    m_rightBitmap.SetMaskedBitmap(bitmap, SmartComboLayout::bitmapSize, SmartComboLayout::bitmapSize, maskColor);
}

void CKxSmartComboBox::SetNoBitmap()
{
    m_bitmapSet = 1;
    m_data.bitmapMode = BITMAPMODE_SINGLE;
    MoveCombo(Layout().ComboAlone());
}

void CKxSmartComboBox::ShowLeftBitmap(const RECT& combo)
{
    MoveCombo(combo);
    CreateBitmapButton(m_leftBitmap, Layout().LeftBitmap(), ID_LEFT_BITMAP);
}

void CKxSmartComboBox::CreateBitmapButton(CKxBitmapButton& button, const RECT& place, int id)
{
    if (m_hWnd != nullptr && button.m_hWnd == nullptr)
        button.Create(L"", bitmapButtonStyle, place, this, static_cast<UINT>(id));
}

int CKxSmartComboBox::GetNumberOfButtons() const
{
    return m_buttonCombo.GetElementNumber();
}

// ---- Tips

void CKxSmartComboBox::SetFormatToolTip(CString text)
{
    if (m_hWnd != nullptr)
        m_toolTip.AddWindowTool(GetDlgItem(ID_COMBO), text);
}

void CKxSmartComboBox::AddFormatToolTip(CString text)
{
    ForEachPicture([&](CWnd& picture) { m_toolTip.AddWindowTool(&picture, text); });
    if (m_combo.m_hWnd != nullptr)
        m_toolTip.AddWindowTool(&m_combo, text);
}

void CKxSmartComboBox::ForEachPicture(const std::function<void(CWnd&)>& use)
{
    CWnd* const first = m_hWnd == nullptr ? nullptr : GetWindow(GW_CHILD);
    for (CWnd* child = first; child != nullptr; child = child->GetWindow(GW_HWNDNEXT))
        if (dynamic_cast<CKxButtonCombo*>(child) != nullptr || dynamic_cast<CKxBitmapButton*>(child) != nullptr)
            use(*child);
}

// ---- Painting

// The frames go on the window that owns the parent, where they are drawn anew each time.
void CKxSmartComboBox::OnPaint()
{
    const Surviving here(*this);
    {
        const CPaintDC paintedElsewhere(this);
    }
    if (m_data.showButtons != 0)
        DrawComboBox();
    if (here && m_data.bitmapMode == BITMAPMODE_PICKER)
        DrawSelectionBox();
}

void CKxSmartComboBox::DrawComboBox()
{
    const int mode = m_data.bitmapMode;
    DrawFrame([mode](CDC& dc, const CRect& place)
              { draw(dc, SmartComboFrames::AroundButtons(place, mode, FontHeight())); });
}

void CKxSmartComboBox::DrawSelectionBox()
{
    DrawFrame([](CDC& dc, const CRect& place) { draw(dc, SmartComboFrames::AroundPicker(place, FontHeight())); });
}

void CKxSmartComboBox::DrawFrame(const std::function<void(CDC&, const CRect&)>& drawLines)
{
    const Surviving here(*this);
    if (CWnd* const owner = GetParentOwner())
        owner->UpdateWindow();
    CWnd* const owner = here ? GetParentOwner() : nullptr;
    if (owner == nullptr)
        return;
    CRect place;
    GetWindowRect(&place);
    owner->ScreenToClient(&place);
    CClientDC dc(owner);
    drawLines(dc, place);
}
