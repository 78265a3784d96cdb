// The button combo: its face, what the mouse does, what the parent is told.
#include "oxa/buttons/KxButtonCombo.h"

#include <array>
#include <climits>

#include "../frame/SavedContext.h"
#include "../frame/Surviving.h"
#include "OffScreen.h"

namespace
{
constexpr DWORD faceStyle = WS_CHILD | WS_VISIBLE | WS_BORDER;
constexpr DWORD brushWhereBlack = 0xE20746; // the brush where the source is white, as it is put there for black pixels
constexpr std::size_t paletteEntries = 255;

CRect clientOf(const CWnd& window)
{
    CRect client;
    window.GetClientRect(&client);
    return client;
}

/// What can be seen of a device context, and some pixels around.
CRect seenOf(const CDC& dc, int around)
{
    CRect seen;
    dc.GetClipBox(&seen);
    seen.InflateRect(around, around);
    return seen;
}

void drawFrame(CDC& dc, const ButtonComboFrame& frame)
{
    dc.Draw3dRect(&frame.rect, ::GetSysColor(frame.topLeft), ::GetSysColor(frame.bottomRight));
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CKxButtonCombo, CWnd)
    // void OnLButtonDown(UINT, CPoint)
    ON_WM_LBUTTONDOWN()
    // void OnLButtonUp(UINT, CPoint)
    ON_WM_LBUTTONUP()
    // void OnLButtonDblClk(UINT, CPoint)
    ON_WM_LBUTTONDBLCLK()
    // void OnRButtonDown(UINT, CPoint)
    ON_WM_RBUTTONDOWN()
    // void OnMouseMove(UINT, CPoint)
    ON_WM_MOUSEMOVE()
    // void OnPaint()
    ON_WM_PAINT()
    // void OnEnable(BOOL)
    ON_WM_ENABLE()
END_MESSAGE_MAP()
// clang-format on

CKxButtonCombo::CKxButtonCombo()
    : m_parent(nullptr), m_id(0), m_selectedItem(0), m_lastIndex(0), m_elementNumber(INT_MAX)
{
}

CKxButtonCombo::~CKxButtonCombo()
{
    m_palette.DestroyWindow();
    DestroyWindow();
}

// ---- Creation

BOOL CKxButtonCombo::Create(CRect rect, CSize grid, CSize cell, CWnd* parent, UINT id, CString captions)
{
    return CreateFace(rect, parent, id, false) &&
           Keep(m_palette.CreateColors(this, CPoint(rect.left, rect.bottom), grid, cell, captions));
}

BOOL CKxButtonCombo::Create(CRect rect, CSize grid, UINT bitmapId, int count, CWnd* parent, UINT id, CString captions)
{
    if (count < 1 || !CreateFace(rect, parent, id, false) ||
        !Keep(m_palette.CreateTiles(this, CPoint(rect.left, rect.bottom), grid, bitmapId, count, captions)))
        return FALSE;
    m_elementNumber = count - 1;
    return TRUE;
}

BOOL CKxButtonCombo::CreateStatic(CRect rect, UINT bitmapId, CWnd* parent, UINT id)
{
    return CreateFace(rect, parent, id, true) &&
           Keep(m_palette.CreateTiles(this, CPoint(rect.left, rect.bottom), CSize(0, 0), bitmapId, 1, CString()));
}

BOOL CKxButtonCombo::CreateFace(const CRect& rect, CWnd* parent, UINT id, bool isStatic)
{
    if (m_hWnd != nullptr || parent == nullptr)
        return FALSE;
    m_face = ButtonComboFace();
    m_face.isStatic = isStatic;
    m_parent = parent->m_hWnd;
    m_id = id;
    m_elementNumber = INT_MAX;
    return CreateEx(0, nullptr, nullptr, faceStyle, rect, parent, id);
}

/// A face without a palette is of no use.
BOOL CKxButtonCombo::Keep(BOOL paletteMade)
{
    if (!paletteMade)
        DestroyWindow();
    return paletteMade;
}

void CKxButtonCombo::PostNcDestroy()
{
    m_palette.DestroyWindow(); // a pop-up that would stay
    CWnd::PostNcDestroy();
}

// ---- The choice

long CKxButtonCombo::GetSelectedItem() const
{
    return m_selectedItem;
}

void CKxButtonCombo::SetSelectedItem(long item)
{
    m_selectedItem = item;
}

int CKxButtonCombo::GetElementNumber() const
{
    return m_elementNumber;
}

COLORREF CKxButtonCombo::ColorOfIndex(int index) const
{
    std::array<PALETTEENTRY, paletteEntries> entries = {};
    if (index < 0 || index >= static_cast<int>(entries.size()))
        return RGB(0, 0, 0);
    const CClientDC screen(nullptr);
    ::GetSystemPaletteEntries(screen.m_hDC, 0, static_cast<UINT>(entries.size()), entries.data());
    const PALETTEENTRY& entry = entries[static_cast<std::size_t>(index)];
    return RGB(entry.peRed, entry.peGreen, entry.peBlue);
}

void CKxButtonCombo::OnItemSelected(long item, int index)
{
    SelectItem(item, index);
}

// This and the other steps that run a host's code answer false when the control has gone meanwhile.
bool CKxButtonCombo::SelectItem(long item, int index)
{
    m_selectedItem = item;
    m_lastIndex = index;
    m_face.Select();
    m_palette.SetCurrent(index);
    const Surviving here(*this);
    m_palette.Hide();
    if (!here)
        return false;
    Repaint();
    if (ButtonComboFace::Tells(item, m_elementNumber) && ::IsWindow(m_parent))
        ::SendMessage(m_parent, WM_KX_BUTTONCOMBO_SELECT, m_id, item);
    return static_cast<bool>(here);
}

void CKxButtonCombo::UnpressRightButton()
{
    ClosePalette();
}

bool CKxButtonCombo::ClosePalette()
{
    m_face.arrowPressed = false;
    if (m_hWnd == nullptr)
        return false;
    const Surviving here(*this);
    Invalidate(FALSE);
    m_palette.Hide();
    if (!here)
        return false;
    UpdateWindow();
    return FocusParent();
}

bool CKxButtonCombo::FocusParent()
{
    const Surviving here(*this);
    if (::IsWindow(m_parent))
        ::SetFocus(m_parent);
    return static_cast<bool>(here);
}

void CKxButtonCombo::Repaint()
{
    Invalidate(FALSE);
    UpdateWindow();
}

// ---- Mouse

void CKxButtonCombo::OnLButtonDown(UINT flags, CPoint point)
{
    if (!FocusParent())
        return;
    m_face.Press(clientOf(*this), point);
    const Surviving here(*this);
    if (!m_face.isStatic)
    {
        CRect place;
        GetWindowRect(&place);
        m_palette.SetCurrent(m_lastIndex);
        m_palette.Place(CPoint(place.left, place.bottom), m_face.arrowPressed);
        if (!here)
            return;
    }
    Repaint();
    if (!m_face.arrowPressed)
        FocusParent();
    else if (!m_face.isStatic && m_palette.m_hWnd != nullptr)
        m_palette.SetCapture();
    if (here)
        CWnd::OnLButtonDown(flags, point);
}

void CKxButtonCombo::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_face.bodyPressed && !SelectItem(m_selectedItem, m_lastIndex))
        return;
    if (!ClosePalette())
        return;
    m_face.bodyPressed = false;
    Repaint();
    CWnd::OnLButtonUp(flags, point);
}

void CKxButtonCombo::OnMouseMove(UINT flags, CPoint point)
{
    if (m_face.Move(clientOf(*this), point))
        Repaint();
    CWnd::OnMouseMove(flags, point);
}

void CKxButtonCombo::OnRButtonDown(UINT flags, CPoint point)
{
    if (ClosePalette())
        CWnd::OnRButtonDown(flags, point);
}

void CKxButtonCombo::OnLButtonDblClk(UINT /*flags*/, CPoint /*point*/)
{
    ClosePalette();
}

void CKxButtonCombo::OnEnable(BOOL enable)
{
    CWnd::OnEnable(enable);
    Repaint();
}

// ---- Painting

void CKxButtonCombo::OnPaint()
{
    CPaintDC dc(this);
    const CRect client = clientOf(*this);
    OffScreen picture(dc, client.Size());
    if (!picture)
        return;
    DrawFace(picture.dc, client);
    picture.CopyTo(dc);
}

void CKxButtonCombo::DrawFace(CDC& dc, const CRect& client)
{
    ButtonComboPicture picture = m_face.Picture(client, IsWindowEnabled() != FALSE);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    drawFrame(dc, picture.outer);
    if (picture.bodyFrame.has_value())
        drawFrame(dc, *picture.bodyFrame);
    m_palette.DrawItem(dc, picture.item, m_selectedItem);
    if (picture.stripFrame.has_value())
        drawFrame(dc, *picture.stripFrame);
    if (picture.arrow.has_value())
        DrawArrow(&dc, &*picture.arrow);
    if (picture.disabled)
        DrawDisabled(&dc, client);
}

void CKxButtonCombo::DrawArrow(CDC* dc, CRect* rect)
{
    if (dc == nullptr || rect == nullptr)
        return;
    const std::array<CPoint, 3> corners = ButtonComboFace::Arrow(*rect);
    if (!seenOf(*dc, 2).PtInRect(corners.back()))
        return; // far away: the platform may take for ever over it
    const SavedContext saved(*dc);
    dc->SelectStockObject(BLACK_PEN);
    dc->SelectStockObject(BLACK_BRUSH);
    dc->Polygon(corners.data(), static_cast<int>(corners.size()));
}

void CKxButtonCombo::DrawDisabled(CDC* dc, const CRect& rect)
{
    CRect seen;
    if (dc == nullptr || !seen.IntersectRect(seenOf(*dc, 1), &rect)) // a pixel beside casts its highlight into it
        return;
    const CSize size = seen.Size();
    OffScreen copy(*dc, size, OffScreen::oneBit);
    if (!copy)
        return;
    CBrush highlight(::GetSysColor(COLOR_BTNHIGHLIGHT));
    CBrush shadow(::GetSysColor(COLOR_BTNSHADOW));
    const SavedContext saved(*dc);
    copy.dc.PatBlt(0, 0, size.cx, size.cy, WHITENESS);
    dc->SetBkColor(::GetSysColor(COLOR_BTNFACE));
    copy.dc.BitBlt(0, 0, size.cx, size.cy, dc, seen.left, seen.top, SRCCOPY);
    dc->SetBkColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
    copy.dc.BitBlt(0, 0, size.cx, size.cy, dc, seen.left, seen.top, SRCPAINT);
    dc->SetBkColor(RGB(0, 0, 0));
    dc->SetTextColor(RGB(255, 255, 255));
    dc->SelectObject(&highlight);
    dc->BitBlt(seen.left + 1, seen.top + 1, size.cx, size.cy, &copy.dc, 0, 0, brushWhereBlack);
    dc->SelectObject(&shadow);
    dc->BitBlt(seen.left, seen.top, size.cx, size.cy, &copy.dc, 0, 0, brushWhereBlack);
}
