// The palette of the button combo: its window, what the mouse and the keys do, its picture.
#include "oxa/buttons/WndCombo.h"

#include <algorithm>

#include "../frame/SavedContext.h"
#include "../frame/Surviving.h"
#include "OffScreen.h"
#include "oxa/buttons/KxButtonCombo.h"

namespace
{
constexpr DWORD paletteStyle = WS_POPUP | WS_CHILD; // a pop-up that floats above its owner
constexpr COLORREF replacedColor = RGB(0xC0, 0xC0, 0xC0);
constexpr int captionWeight = FW_NORMAL;
constexpr BYTE captionPitch = 0x22; // VARIABLE_PITCH | FF_SWISS
constexpr wchar_t captionFace[] = L"MS Sans Serif";
constexpr COLORREF white = RGB(255, 255, 255);
constexpr int none = ButtonComboPalette::none;
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CWndCombo, CWnd)
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
    // void OnKillFocus(CWnd*)
    ON_WM_KILLFOCUS()
    // void OnKeyDown(UINT, UINT, UINT)
    ON_WM_KEYDOWN()
    // void OnActivate(UINT, CWnd*, BOOL)
    ON_WM_ACTIVATE()
    // void OnActivateApp(BOOL, DWORD)
    ON_WM_ACTIVATEAPP()
END_MESSAGE_MAP()
// clang-format on

CWndCombo::CWndCombo()
    : m_owner(nullptr), m_ownerWindow(nullptr), m_background(::GetSysColor(COLOR_BTNFACE)), m_current(0)
{
}

CWndCombo::~CWndCombo()
{
    DestroyWindow();
}

// ---- Creation

BOOL CWndCombo::CreateColors(CKxButtonCombo* owner, CPoint corner, CSize grid, CSize cell, const CString& captions)
{
    if (!CreateHidden(owner, corner))
        return FALSE;
    SetLayout(ButtonComboPalette::OfColors(grid, cell, PrepareCaptions(captions)));
    return TRUE;
}

BOOL CWndCombo::CreateTiles(CKxButtonCombo* owner, CPoint corner, CSize grid, UINT bitmapId, int count,
                            const CString& captions)
{
    if (m_hWnd != nullptr)
        return FALSE;
    COLORMAP map = {replacedColor, ::GetSysColor(COLOR_BTNFACE)};
    CBitmap tiles;
    BITMAP strip = {};
    if (!tiles.LoadMappedBitmap(bitmapId, 0, &map, 1) || tiles.GetBitmap(&strip) == 0)
        return FALSE;
    auto layout = ButtonComboPalette::OfTiles(grid, CSize(strip.bmWidth, strip.bmHeight), count, 0);
    if (!layout.has_value() || !CreateHidden(owner, corner))
        return FALSE;
    m_tiles.Attach(tiles.Detach());
    layout->captionHeight = PrepareCaptions(captions);
    SetLayout(*layout);
    return TRUE;
}

BOOL CWndCombo::CreateHidden(CKxButtonCombo* owner, CPoint corner)
{
    if (m_hWnd != nullptr || owner == nullptr || owner->m_hWnd == nullptr)
        return FALSE;
    // What an earlier window had.
    m_tiles.DeleteObject();
    m_font.DeleteObject();
    m_captions.RemoveAll();
    m_owner = owner;
    m_ownerWindow = owner->m_hWnd;
    m_current = 0;
    return CreateEx(0, nullptr, nullptr, paletteStyle, corner.x, corner.y, 0, 0, owner->m_hWnd, nullptr);
}

int CWndCombo::PrepareCaptions(const CString& captions)
{
    for (const CString& caption : ButtonComboPalette::Captions(captions))
        m_captions.Add(caption);
    if (m_captions.IsEmpty())
        return 0;
    const CClientDC dc(this);
    m_font.CreateFont(ButtonComboPalette::FontHeight(dc.GetDeviceCaps(LOGPIXELSY)), 0, 0, 0, captionWeight, FALSE,
                      FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                      captionPitch, captionFace);
    return dc.GetTextExtent(L"Test").cy; // kept on purpose: in the font that the window's context comes with
}

void CWndCombo::SetLayout(const ButtonComboPalette& layout)
{
    m_layout = layout;
    const CSize size = layout.WindowSize();
    SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- Opening and closing

void CWndCombo::Place(CPoint corner, bool show)
{
    // Shown this way it is activated and so gets the keys, which ShowWindow does not do everywhere for this style.
    SetWindowPos(&wndTop, corner.x, corner.y, 0, 0,
                 SWP_NOSIZE | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW | SWP_NOACTIVATE));
}

void CWndCombo::Hide()
{
    if (m_hWnd != nullptr)
        ShowWindow(SW_HIDE);
}

int CWndCombo::GetCurrent() const
{
    return m_current;
}

void CWndCombo::SetCurrent(int index)
{
    m_current = index;
}

// Hides it and gives the mouse back; false when it has gone over that.
bool CWndCombo::Close()
{
    const Surviving here(*this);
    Hide();
    if (here && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    return static_cast<bool>(here);
}

void CWndCombo::Cancel()
{
    if (!Close())
        return;
    m_current = none;
    if (CKxButtonCombo* const owner = Owner())
        owner->UnpressRightButton();
}

CKxButtonCombo* CWndCombo::Owner() const
{
    return CWnd::FromHandlePermanent(m_ownerWindow) == m_owner ? m_owner : nullptr;
}

// ---- Mouse, keys, activation

void CWndCombo::OnLButtonUp(UINT flags, CPoint point)
{
    const Surviving here(*this);
    CKxButtonCombo* const owner = m_current == none ? nullptr : Owner();
    if (owner != nullptr)
    {
        const long item = m_layout.hasTiles ? m_current : static_cast<long>(owner->ColorOfIndex(m_current));
        owner->OnItemSelected(item, m_current);
        if (!here)
            return;
        m_current = none;
        if (!Close())
            return;
    }
    CWnd::OnLButtonUp(flags, point);
}

void CWndCombo::OnMouseMove(UINT flags, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    const int index = m_layout.HitTest(client, point);
    if (index != none)
        m_current = index;
    Invalidate(TRUE);
    const Surviving here(*this);
    UpdateWindow();
    if (here)
        CWnd::OnMouseMove(flags, point);
}

void CWndCombo::OnLButtonDown(UINT flags, CPoint point)
{
    CWnd::OnLButtonDown(flags, point);
}

void CWndCombo::OnRButtonDown(UINT flags, CPoint point)
{
    CWnd::OnRButtonDown(flags, point);
}

void CWndCombo::OnLButtonDblClk(UINT flags, CPoint point)
{
    CWnd::OnLButtonDblClk(flags, point);
}

void CWndCombo::OnKillFocus(CWnd* newWindow)
{
    CWnd::OnKillFocus(newWindow);
    CKxButtonCombo* const owner = Owner();
    if (owner == nullptr)
        return;
    CRect face;
    CPoint cursor;
    owner->GetWindowRect(&face);
    if (::GetCursorPos(&cursor) && !face.PtInRect(cursor))
        owner->UnpressRightButton();
}

void CWndCombo::OnKeyDown(UINT /*key*/, UINT /*repeat*/, UINT /*flags*/)
{
    Cancel();
}

void CWndCombo::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
}

void CWndCombo::OnActivateApp(BOOL active, DWORD thread)
{
    CWnd::OnActivateApp(active, thread);
    if (!active)
        Cancel(); // kept on purpose: a palette that is not open gives the focus to the parent too
}

// ---- Painting

void CWndCombo::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    CRect clip;
    GetClientRect(&client);
    dc.GetClipBox(&clip);
    // The picture ends where nothing is seen of it: a palette may be much larger than the screen.
    const CSize seen(std::min(client.right, clip.right), std::min(client.bottom, clip.bottom));
    OffScreen picture(dc, seen);
    if (!picture)
        return;
    DrawPalette(picture.dc, client, seen);
    picture.CopyTo(dc);
}

void CWndCombo::DrawPalette(CDC& dc, const CRect& client, CSize seen)
{
    dc.FillSolidRect(&client, m_background);
    dc.Draw3dRect(&client, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_WINDOWFRAME));
    const CSize cells = m_layout.Visible(CRect(client.TopLeft(), seen));
    for (int row = 0; row < cells.cy; ++row)
        for (int column = 0; column < cells.cx; ++column)
            DrawCell(dc, m_layout.CellAt(client, column, row, m_current));
    if (!m_captions.IsEmpty())
        DrawCaption(dc, client);
}

void CWndCombo::DrawCell(CDC& dc, const ButtonComboPalette::Cell& cell)
{
    if (cell.shown)
    {
        if (m_layout.hasTiles)
            DrawItem(dc, cell.rect, cell.index);
        dc.Draw3dRect(&cell.rect, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNHIGHLIGHT));
        const CKxButtonCombo* const owner = m_layout.hasTiles ? nullptr : Owner();
        if (owner != nullptr)
            dc.FillSolidRect(ButtonComboPalette::ColorRect(cell.rect), owner->ColorOfIndex(cell.index));
    }
    if (cell.current)
    {
        CBrush black(RGB(0, 0, 0));
        dc.FrameRect(ButtonComboPalette::CurrentFrame(cell.rect), &black);
    }
}

void CWndCombo::DrawCaption(CDC& dc, const CRect& client)
{
    CRect room = m_layout.CaptionRect(client);
    dc.FillSolidRect(&room, white);
    dc.Draw3dRect(&room, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    if (m_current == none)
        return;
    const CString& caption = m_captions.GetAt(m_current); // kept on purpose: raises when there are too few
    const SavedContext saved(dc);
    dc.SelectObject(&m_font);
    dc.DrawText(caption, &room, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void CWndCombo::DrawItem(CDC& dc, const CRect& rect, long item)
{
    const ButtonComboItem drawn = m_layout.Item(rect, item);
    if (drawn.fill.has_value())
        dc.FillSolidRect(&*drawn.fill, static_cast<COLORREF>(item));
    CDC strip;
    if (!drawn.tile.has_value() || !strip.CreateCompatibleDC(&dc))
        return;
    const SavedContext saved(strip);
    strip.SelectObject(&m_tiles);
    dc.BitBlt(drawn.tile->x, drawn.tile->y, m_layout.cell.cx, m_layout.cell.cy, &strip, drawn.tileX, 0, SRCCOPY);
}
