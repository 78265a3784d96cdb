// Where control bars stand: each takes its strip off its parent's rectangle, and the pane gets the rest.
#include <afxext.h>

#include <algorithm>
#include <vector>

#include "StillThere.h"

namespace
{
constexpr UINT quietly = SWP_NOACTIVATE | SWP_NOZORDER;

CRect placeOf(HWND wnd)
{
    CRect place;
    ::GetWindowRect(wnd, &place);
    ::MapWindowPoints(nullptr, ::GetParent(wnd), reinterpret_cast<POINT*>(static_cast<RECT*>(&place)), 2);
    return place;
}

/// The strip of `size` along the side of `rect` that the style names; `rect` keeps what is left.
CRect cutStrip(CRect& rect, CSize size, DWORD style)
{
    CRect strip = rect;
    if ((style & CBRS_ALIGN_TOP) != 0)
        rect.top = strip.bottom = strip.top + size.cy;
    else if ((style & CBRS_ALIGN_BOTTOM) != 0)
        rect.bottom = strip.top = strip.bottom - size.cy;
    else if ((style & CBRS_ALIGN_LEFT) != 0)
        rect.left = strip.right = strip.left + size.cx;
    else
        rect.right = strip.left = strip.right - size.cx;
    if ((style & CBRS_ORIENT_HORZ) != 0)
        strip.right = strip.left + size.cx;
    else
        strip.bottom = strip.top + size.cy;
    return strip;
}
} // namespace

void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND wnd, LPCRECT rect)
{
    if (rect == nullptr || placeOf(wnd) == *rect)
        return;
    const int width = rect->right - rect->left;
    const int height = rect->bottom - rect->top;
    // Its picture is not taken along: another window of the layout may stand in it by now.
    constexpr UINT flags = quietly | SWP_NOCOPYBITS;
    HDWP& together = layout->hDWP;
    if (together != nullptr)
        together = ::DeferWindowPos(together, wnd, nullptr, rect->left, rect->top, width, height, flags);
    if (together == nullptr)
        ::SetWindowPos(wnd, nullptr, rect->left, rect->top, width, height, flags);
}

void CWnd::RepositionBars(UINT first, UINT last, UINT leftOver, UINT flag, LPRECT param, LPCRECT client, BOOL stretch)
{
    if (m_hWnd == nullptr)
        return;
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = stretch;
    if (client != nullptr)
        layout.rect = *client;
    else
        GetClientRect(&layout.rect);
    std::vector<HWND> children; // a handler may end some of them
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    const bool query = flag == reposQuery;
    if (!query)
        layout.hDWP = ::BeginDeferWindowPos(static_cast<int>(children.size()));
    HWND pane = nullptr;
    for (const HWND child : children)
    {
        const auto id = static_cast<UINT>(::GetDlgCtrlID(child));
        if (leftOver != 0 && id == leftOver)
            pane = child;
        else if (id >= first && id <= last && FromHandlePermanent(child) != nullptr)
            ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    if (query)
    {
        if (param != nullptr)
            *param = stretch ? layout.rect : RECT{0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
        return;
    }
    if (pane != nullptr && ::IsWindow(pane))
    {
        CRect rest = layout.rect;
        if (flag == reposExtra && param != nullptr)
            rest.DeflateRect(param);
        AfxRepositionWindow(&layout, pane, &rest);
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const kx::StillThere here(*this);
    if (layout != nullptr && layout->hDWP != nullptr)
        showPending();
    if (layout == nullptr || !here || !IsVisible() || (m_dwStyle & CBRS_ALIGN_ANY) == 0)
        return 0;
    const DWORD side = m_dwStyle & CBRS_ALIGN_ANY;
    const bool horizontal = (side & CBRS_ORIENT_HORZ) != 0;
    CRect rect = layout->rect;
    const DWORD mode = (layout->bStretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK);
    CSize size = CalcDynamicLayout(-1, mode);
    if (!here)
        return 0;
    size.cx = std::clamp<LONG>(size.cx, 0, std::max(rect.Width(), 0));
    size.cy = std::clamp<LONG>(size.cy, 0, std::max(rect.Height(), 0));
    SIZE& total = layout->sizeTotal;
    total.cx = horizontal ? std::max(total.cx, size.cx) : total.cx + size.cx;
    total.cy = horizontal ? total.cy + size.cy : std::max(total.cy, size.cy);
    const CRect strip = cutStrip(rect, size, side);
    layout->rect = rect;
    if (layout->hDWP != nullptr)
        AfxRepositionWindow(layout, m_hWnd, &strip);
    return 0;
}

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    constexpr LONG whole = 32767;
    return {stretch && horizontal ? whole : 0, stretch && !horizontal ? whole : 0};
}

CSize CControlBar::CalcDynamicLayout(int, DWORD mode)
{
    return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL horizontal) const
{
    const int line = 2 * ::GetSystemMetrics(SM_CXBORDER);
    const auto ifShown = [&](DWORD border) { return (m_dwStyle & border) != 0 ? line : 0; };
    rect.DeflateRect(ifShown(CBRS_BORDER_LEFT), ifShown(CBRS_BORDER_TOP), ifShown(CBRS_BORDER_RIGHT),
                     ifShown(CBRS_BORDER_BOTTOM));
    if (horizontal)
        rect.DeflateRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
    else // a bar that stands: its borders turn with it
        rect.DeflateRect(m_cyTopBorder, m_cxLeftBorder, m_cyBottomBorder, m_cxRightBorder);
}

void CControlBar::DelayShow(BOOL show)
{
    const bool shown = (GetStyle() & WS_VISIBLE) != 0;
    if (shown == (show != FALSE))
        m_pending = Pending::None;
    else
        m_pending = show ? Pending::Show : Pending::Hide;
}

BOOL CControlBar::IsVisible() const
{
    if (m_hWnd == nullptr || m_pending != Pending::None)
        return m_hWnd != nullptr && m_pending == Pending::Show;
    return (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::showPending()
{
    const Pending pending = m_pending;
    m_pending = Pending::None;
    if (pending != Pending::None)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     quietly | SWP_NOMOVE | SWP_NOSIZE | (pending == Pending::Show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

// A bar of another size looks different everywhere: its lines move, and so does what is painted behind its controls.
void CControlBar::OnWindowPosChanged(WINDOWPOS* pos)
{
    const kx::StillThere here(*this);
    const bool sized = pos != nullptr && (pos->flags & SWP_NOSIZE) == 0;
    CWnd::OnWindowPosChanged(pos);
    if (sized && here)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
