// Text, style, place and state of a window.
#include <afxwin.h>

#include <algorithm>

namespace
{
BOOL changeStyle(HWND wnd, int which, DWORD remove, DWORD add, UINT swpFlags)
{
    const auto before = static_cast<DWORD>(::GetWindowLongPtr(wnd, which));
    const DWORD after = (before & ~remove) | add;
    if (before == after)
        return FALSE;
    ::SetWindowLongPtr(wnd, which, static_cast<LONG_PTR>(after));
    if (swpFlags != 0)
        ::SetWindowPos(wnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | swpFlags);
    return TRUE;
}

CRect workArea(HWND wnd)
{
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromWindow(wnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}
} // namespace

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT swpFlags)
{
    return changeStyle(m_hWnd, GWL_STYLE, remove, add, swpFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags)
{
    return changeStyle(m_hWnd, GWL_EXSTYLE, remove, add, swpFlags);
}

BOOL CWnd::ModifyStyle(HWND wnd, DWORD remove, DWORD add, UINT swpFlags)
{
    return changeStyle(wnd, GWL_STYLE, remove, add, swpFlags);
}

BOOL CWnd::ModifyStyleEx(HWND wnd, DWORD remove, DWORD add, UINT swpFlags)
{
    return changeStyle(wnd, GWL_EXSTYLE, remove, add, swpFlags);
}

void AfxSetWindowText(HWND wnd, LPCTSTR text)
{
    if (text == nullptr)
        text = _T("");
    const int length = lstrlen(text);
    if (::GetWindowTextLength(wnd) == length)
    {
        CString now;
        ::GetWindowText(wnd, now.GetBufferSetLength(length), length + 1);
        now.ReleaseBuffer();
        if (now == text)
            return;
    }
    ::SetWindowText(wnd, text);
}

void CWnd::SetWindowText(LPCTSTR text)
{
    ::SetWindowText(m_hWnd, text);
}

int CWnd::GetWindowText(LPTSTR buffer, int maxCount) const
{
    return buffer == nullptr || maxCount <= 0 ? 0 : ::GetWindowText(m_hWnd, buffer, maxCount);
}

void CWnd::GetWindowText(CString& text) const
{
    const int length = GetWindowTextLength();
    const int copied = ::GetWindowText(m_hWnd, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer(std::clamp(copied, 0, length));
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint)
{
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint)
{
    if (rect != nullptr)
        MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

int CWnd::SetWindowRgn(HRGN region, BOOL redraw)
{
    return ::SetWindowRgn(m_hWnd, region, redraw);
}

int CWnd::GetWindowRgn(HRGN region) const
{
    return ::GetWindowRgn(m_hWnd, region);
}

BOOL CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags)
{
    return ::SetWindowPos(m_hWnd, insertAfter->GetSafeHwnd(), x, y, cx, cy, flags);
}

UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT rect) const
{
    ::GetWindowRect(m_hWnd, rect);
}

void CWnd::GetClientRect(LPRECT rect) const
{
    ::GetClientRect(m_hWnd, rect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* placement) const
{
    placement->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, placement);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* placement)
{
    WINDOWPLACEMENT copy = *placement;
    copy.length = sizeof copy;
    return ::SetWindowPlacement(m_hWnd, &copy);
}

void CWnd::ClientToScreen(LPPOINT point) const
{
    ::ClientToScreen(m_hWnd, point);
}

void CWnd::ClientToScreen(LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::ScreenToClient(LPPOINT point) const
{
    ::ScreenToClient(m_hWnd, point);
}

void CWnd::ScreenToClient(LPRECT rect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const
{
    ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), points, count);
}

void CWnd::MapWindowPoints(CWnd* to, LPRECT rect) const
{
    ::MapWindowPoints(m_hWnd, to->GetSafeHwnd(), reinterpret_cast<POINT*>(rect), 2);
}

void CWnd::CenterWindow(CWnd* alternate)
{
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND centre = alternate->GetSafeHwnd();
    if (centre == nullptr)
        centre = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    CRect area;
    CRect over;
    if (child)
    {
        ::GetClientRect(::GetParent(m_hWnd), area);
        ::GetClientRect(centre, over);
        ::MapWindowPoints(centre, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&over), 2);
    }
    else
    {
        const bool usable = centre != nullptr && ::IsWindowVisible(centre) && !::IsIconic(centre);
        area = workArea(usable ? centre : m_hWnd);
        if (!usable || !::GetWindowRect(centre, over))
            over = area;
    }
    CRect self;
    GetWindowRect(self);
    int x = (over.left + over.right) / 2 - self.Width() / 2;
    int y = (over.top + over.bottom) / 2 - self.Height() / 2;
    x = std::max<int>(std::min<int>(x, area.right - self.Width()), area.left);
    y = std::max<int>(std::min<int>(y, area.bottom - self.Height()), area.top);
    ::SetWindowPos(m_hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HICON CWnd::SetIcon(HICON icon, BOOL bigIcon)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, bigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(icon)));
}

HICON CWnd::GetIcon(BOOL bigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bigIcon ? ICON_BIG : ICON_SMALL, 0));
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(m_hWnd, enable);
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc)
{
    return ::SetTimer(m_hWnd, id, elapse, proc);
}

BOOL CWnd::KillTimer(UINT_PTR id)
{
    return ::KillTimer(m_hWnd, id);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type)
{
    return ::MessageBox(GetSafeHwnd(), text, caption != nullptr ? caption : AfxGetAppName(), type);
}

BOOL CWnd::FlashWindow(BOOL invert)
{
    return ::FlashWindow(m_hWnd, invert);
}

void CWnd::WinHelp(DWORD_PTR data, UINT command)
{
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(data, command);
}

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

BOOL CWnd::ChangeClipboardChain(HWND next)
{
    return ::ChangeClipboardChain(m_hWnd, next);
}

HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}

CWnd* CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}

CWnd* CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}

CWnd* CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}
