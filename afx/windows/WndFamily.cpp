// Parents, owners, children and neighbours of a window.
#include <afxwin.h>

#include "ThreadState.h"

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd* owner)
{
    m_hWndOwner = owner->GetSafeHwnd();
}

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* newParent)
{
    return FromHandle(::SetParent(m_hWnd, newParent->GetSafeHwnd()));
}

CFrameWnd* CWnd::GetParentFrame() const
{
    for (CWnd* wnd = GetSafeHwnd() != nullptr ? GetParent() : nullptr; wnd != nullptr; wnd = wnd->GetParent())
        if (wnd->IsFrameWnd())
            return dynamic_cast<CFrameWnd*>(wnd);
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    auto* self = const_cast<CWnd*>(this);
    auto* frame = IsFrameWnd() ? dynamic_cast<CFrameWnd*>(self) : GetParentFrame();
    while (frame != nullptr)
    {
        CFrameWnd* above = frame->GetParentFrame();
        if (above == nullptr)
            break;
        frame = above;
    }
    return frame;
}

CWnd* CWnd::GetTopLevelParent() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND wnd = m_hWnd;
    while (HWND above = ::GetParent(wnd))
        wnd = above;
    return FromHandle(wnd);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND wnd = m_hWnd;
    while (HWND above = ::GetWindow(wnd, GW_OWNER))
        wnd = above;
    return FromHandle(wnd);
}

CWnd* CWnd::GetParentOwner() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND wnd = ::GetParent(m_hWnd);
    while (wnd != nullptr && (::GetWindowLongPtr(wnd, GWL_STYLE) & WS_CHILD) != 0)
        wnd = ::GetParent(wnd);
    return FromHandle(wnd);
}

HWND CWnd::GetSafeOwner_(HWND parent, HWND* top)
{
    HWND wnd = parent != nullptr ? parent : AfxGetMainWnd()->GetSafeHwnd();
    while (wnd != nullptr && (::GetWindowLongPtr(wnd, GWL_STYLE) & WS_CHILD) != 0)
        wnd = ::GetParent(wnd);
    HWND highest = wnd;
    for (HWND above = wnd; above != nullptr; above = ::GetParent(above))
        highest = above;
    if (parent == nullptr && wnd != nullptr)
        wnd = ::GetLastActivePopup(wnd);
    if (top != nullptr)
    {
        const bool disable = highest != nullptr && ::IsWindowEnabled(highest) && highest != wnd;
        *top = disable ? highest : nullptr;
        if (disable)
            ::EnableWindow(highest, FALSE);
    }
    return wnd;
}

CWnd* CWnd::GetSafeOwner(CWnd* parent, HWND* top)
{
    return FromHandle(GetSafeOwner_(parent->GetSafeHwnd(), top));
}

CWnd* CWnd::GetDescendantWindow(int id, BOOL onlyPermanent) const
{
    return GetDescendantWindow(m_hWnd, id, onlyPermanent);
}

CWnd* CWnd::GetDescendantWindow(HWND wnd, int id, BOOL onlyPermanent)
{
    if (HWND child = ::GetDlgItem(wnd, id))
    {
        if (::GetTopWindow(child) != nullptr) // a child with children of its own: the deepest one counts
            if (CWnd* deeper = GetDescendantWindow(child, id, onlyPermanent))
                return deeper;
        CWnd* found = onlyPermanent ? FromHandlePermanent(child) : FromHandle(child);
        if (found != nullptr)
            return found;
    }
    for (HWND child = ::GetTopWindow(wnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        if (CWnd* found = GetDescendantWindow(child, id, onlyPermanent))
            return found;
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, deep, onlyPermanent);
}

void CWnd::SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep, BOOL onlyPermanent)
{
    for (HWND child = ::GetTopWindow(wnd); child != nullptr;)
    {
        const HWND next = ::GetWindow(child, GW_HWNDNEXT);
        if (!onlyPermanent)
            ::SendMessage(child, message, wParam, lParam);
        else if (CWnd* object = FromHandlePermanent(child))
            AfxCallWndProc(object, child, message, wParam, lParam);
        if (deep && ::GetTopWindow(child) != nullptr)
            SendMessageToDescendants(child, message, wParam, lParam, deep, onlyPermanent);
        child = next;
    }
}

BOOL AfxIsDescendant(HWND parent, HWND child)
{
    for (; child != nullptr; child = ::GetParent(child))
        if (child == parent)
            return TRUE;
    return FALSE;
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT flags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, flags));
}

CWnd* CWnd::FindWindow(LPCTSTR className, LPCTSTR windowName)
{
    return FromHandle(::FindWindow(className, windowName));
}

CWnd* CWnd::FindWindowEx(HWND parent, HWND childAfter, LPCTSTR className, LPCTSTR windowName)
{
    return FromHandle(::FindWindowEx(parent, childAfter, className, windowName));
}

CWnd* CWnd::GetNextWindow(UINT flag) const
{
    return FromHandle(::GetWindow(m_hWnd, flag));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT cmd) const
{
    return FromHandle(::GetWindow(m_hWnd, cmd));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* wnd) const
{
    return ::IsChild(m_hWnd, wnd->GetSafeHwnd());
}

CWnd* CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

CWnd* CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd* CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}
