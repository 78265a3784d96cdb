// Commands and notifications: first to the control that caused them, then to this window's routes.
#include <afxwin.h>

#include "kx/CmdUI.h"
#include "StillThere.h"
#include "ThreadState.h"

namespace
{
/// Finds out whether a command may be carried out, without a menu or a button to grey.
class CCommandState : public CCmdUI
{
public:
    explicit CCommandState(UINT id) { m_nID = id; }
    void Enable(BOOL on) override
    {
        enabled = on;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    BOOL enabled = TRUE;
};

bool isSystemCtlColor(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

AFX_CTLCOLOR ctlColorOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    return {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
}
} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    int code = HIWORD(wParam);
    if (control == nullptr)
    {
        if (id == 0)
            return FALSE;
        CCommandState state(id); // a menu or an accelerator: the command may be disabled by now
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
        if (!state.enabled)
            return TRUE;
        code = CN_COMMAND;
    }
    else
    {
        if (m_hWnd == kxThread().lockout)
            return TRUE;
        const kx::StillThere here(*this);
        if (ReflectLastMsg(control) || !here)
            return TRUE; // taken, or the control's handler ended this window
        if (id == 0)
            return FALSE;
    }
    return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* result)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (header == nullptr)
        return FALSE;
    const HWND control = header->hwndFrom;
    const auto id = static_cast<UINT>(static_cast<WORD>(::GetDlgCtrlID(control)));
    if (m_hWnd == kxThread().lockout)
        return TRUE;
    const kx::StillThere here(*this);
    if (ReflectLastMsg(control, result) || !here)
        return TRUE;
    AFX_NOTIFY notify = {result, header};
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    return CCmdTarget::OnCmdMsg(id, code, extra, info);
}

BOOL CWnd::ReflectLastMsg(HWND child, LRESULT* result)
{
    CWnd* wnd = FromHandlePermanent(child);
    return wnd != nullptr && wnd->SendChildNotifyLastMsg(result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result)
{
    const MSG last = kxThread().lastSent;
    return OnChildNotify(last.message, last.wParam, last.lParam, result);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return ReflectChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_COMMAND)
    {
        if (!CWnd::OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr))
            return FALSE;
        if (result != nullptr)
            *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
    {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify = {result, header};
        return header != nullptr &&
               CWnd::OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    if (isSystemCtlColor(message))
    {
        AFX_CTLCOLOR color = ctlColorOf(message, wParam, lParam);
        LRESULT brush = 0;
        CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), &brush);
        if (brush != 0 && result != nullptr)
            *result = brush;
        return brush != 0;
    }
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
    default:
        return FALSE;
    }
}

// Each of the system's colour messages goes on as the one that OnCtlColor handles.
LRESULT CWnd::OnSystemCtlColor(WPARAM wParam, LPARAM lParam)
{
    const UINT message = kxThread().lastSent.message;
    AFX_CTLCOLOR color = ctlColorOf(message, wParam, lParam);
    LRESULT brush = 0;
    const kx::StillThere here(*this);
    OnWndMsg(WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), &brush);
    return brush != 0 || !here ? brush : DefWindowProc(message, wParam, lParam);
}
