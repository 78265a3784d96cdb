// Tool tips that a window shows for its children, by itself.
#include <afxwin.h>

#include "ThreadState.h"

namespace
{
constexpr UINT tipStyle = TTS_ALWAYSTIP | TTS_NOPREFIX;

HWND tipWindow(HWND owner)
{
    KxThreadState& thread = kxThread();
    const HWND top = ::GetAncestor(owner, GA_ROOT); // a window that a child owns is its top-level window's
    if (thread.toolTip != nullptr && (!::IsWindow(thread.toolTip) || ::GetWindow(thread.toolTip, GW_OWNER) != top))
    {
        ::DestroyWindow(thread.toolTip);
        thread.toolTip = nullptr;
    }
    if (thread.toolTip == nullptr)
    {
        thread.toolTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | tipStyle, 0, 0, 0, 0, top,
                                          nullptr, nullptr, nullptr);
        thread.lastHitWnd = nullptr; // it has no tool yet
    }
    return thread.toolTip;
}

void freeText(const TOOLINFO& tool)
{
    if (tool.lpszText != nullptr && tool.lpszText != LPSTR_TEXTCALLBACK)
        free(tool.lpszText); // filled in by OnToolHitTest, from malloc
}

void deleteTools(HWND tip)
{
    for (;;)
    {
        TOOLINFO tool = {}; // no buffer for the text, which may be of any length
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        if (!::SendMessage(tip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)))
            return;
        ::SendMessage(tip, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void relay(HWND tip, const MSG& message)
{
    MSG copy = message;
    ::SendMessage(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

bool endsTip(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return true;
    default:
        return false;
    }
}
} // namespace

BOOL CWnd::EnableToolTips(BOOL enable)
{
    if (enable)
    {
        m_nFlags |= WF_TOOLTIPS;
        return TRUE;
    }
    m_nFlags &= ~WF_TOOLTIPS;
    if (kxThread().toolTipOwner == this)
        CancelToolTips(TRUE);
    return TRUE;
}

BOOL CWnd::EnableTrackingToolTips(BOOL enable)
{
    if (enable)
        m_nFlags |= WF_TRACKINGTOOLTIPS;
    else
        m_nFlags &= ~WF_TRACKINGTOOLTIPS;
    return TRUE;
}

void CWnd::CancelToolTips(BOOL keys)
{
    KxThreadState& thread = kxThread();
    if (thread.toolTip != nullptr && ::IsWindow(thread.toolTip))
    {
        ::SendMessage(thread.toolTip, TTM_POP, 0, 0);
        if (keys)
            ::DestroyWindow(thread.toolTip);
    }
    if (keys)
    {
        thread.toolTip = nullptr;
        thread.toolTipOwner = nullptr;
        thread.lastHit = -1;
        thread.lastHitWnd = nullptr;
    }
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* info) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd)
        return -1;
    INT_PTR hit = ::GetDlgCtrlID(child);
    if (hit == 0 || hit == -1 || hit == 0xFFFF)
        hit = reinterpret_cast<INT_PTR>(child);
    if (info != nullptr && info->cbSize >= TTTOOLINFOW_V1_SIZE)
    {
        info->hwnd = m_hWnd;
        info->uId = reinterpret_cast<UINT_PTR>(child);
        info->uFlags |= TTF_IDISHWND;
        info->lpszText = LPSTR_TEXTCALLBACK;
    }
    return hit;
}

void CWnd::FilterToolTipMessage(MSG* message)
{
    KxThreadState& thread = kxThread();
    const bool mouse = message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE;
    if (!mouse)
    {
        if (endsTip(message->message) && thread.toolTipOwner == this)
        {
            CancelToolTips(FALSE);
            if (thread.toolTip != nullptr)
                relay(thread.toolTip, *message);
        }
        return;
    }
    if (message->hwnd != m_hWnd && !::IsChild(m_hWnd, message->hwnd))
        return;
    CPoint point(message->pt);
    ScreenToClient(&point);
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    const INT_PTR hit = OnToolHitTest(point, &tool);
    const HWND tip = tipWindow(m_hWnd);
    if (tip == nullptr)
    {
        freeText(tool);
        return;
    }
    if (thread.toolTipOwner != this || thread.lastHit != hit || thread.lastHitWnd != message->hwnd)
    {
        deleteTools(tip);
        thread.toolTipOwner = this;
        thread.lastHit = hit;
        thread.lastHitWnd = message->hwnd;
        if (hit != -1)
        {
            TOOLINFO added = tool;
            added.uFlags &= ~static_cast<UINT>(TTF_SUBCLASS); // it is relayed to
            ::SendMessage(tip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&added));
            ::SendMessage(tip, TTM_ACTIVATE, TRUE, 0);
        }
    }
    if (hit != -1)
        relay(tip, *message);
    freeText(tool);
}
