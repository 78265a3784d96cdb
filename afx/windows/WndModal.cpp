// Modal loops, what comes before dispatch, and the state of a window's items.
#include <afxwin.h>

#include <utility>

#include "kx/CmdUI.h"
#include "ThreadState.h"

namespace
{
/// Keeps the notifications that filling causes from their handlers: they are not the user's.
class Lockout
{
public:
    explicit Lockout(HWND wnd) : m_before(std::exchange(kxThread().lockout, wnd)) {}
    ~Lockout() { kxThread().lockout = m_before; }
    Lockout(const Lockout&) = delete;
    Lockout& operator=(const Lockout&) = delete;

private:
    HWND m_before;
};
} // namespace

int CWnd::RunModalLoop(DWORD flags)
{
    constexpr UINT systemTimer = 0x0118;
    const HWND self = m_hWnd;
    const HWND parent = ::GetParent(self);
    bool showPending = (flags & MLF_SHOWONIDLE) != 0 && (GetStyle() & WS_VISIBLE) == 0;
    bool idle = true;
    LONG idleCount = 0;
    MSG* message = AfxGetCurrentMessage();
    const auto show = [&]
    {
        showPending = false;
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    };
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    for (;;)
    {
        while (idle && !::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (showPending)
                show();
            if ((flags & MLF_NOIDLEMSG) == 0 && parent != nullptr && idleCount == 0)
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(self));
            if ((flags & MLF_NOKICKIDLE) != 0 ||
                ::SendMessage(self, WM_KICKIDLE, MSGF_DIALOGBOX, static_cast<LPARAM>(idleCount++)) == 0)
                idle = false;
        }
        do
        {
            if (!AfxPumpMessage())
            {
                AfxPostQuitMessage(static_cast<int>(message->wParam)); // for the loops outside
                m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
                return -1;
            }
            if (showPending && (message->message == systemTimer || message->message == WM_SYSKEYDOWN))
                show();
            // A window that somebody destroyed has nothing to go on with.
            if (!ContinueModal() || !::IsWindow(self))
            {
                m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
                return m_nModalResult;
            }
            if (AfxIsIdleMessage(message))
            {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int result)
{
    m_nModalResult = result;
    if ((m_nFlags & WF_CONTINUEMODAL) != 0)
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        PostMessage(WM_NULL); // wakes the loop
    }
}

void CWnd::BeginModalState()
{
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState()
{
    ::EnableWindow(m_hWnd, TRUE);
}

void CWnd::PreInitDialog() {}

BOOL CWnd::PreTranslateMessage(MSG* message)
{
    if ((m_nFlags & (WF_TOOLTIPS | WF_TRACKINGTOOLTIPS)) != 0)
        FilterToolTipMessage(message);
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG message)
{
    const UINT code = message->message;
    const bool input = (code >= WM_KEYFIRST && code <= WM_KEYLAST) || (code >= WM_MOUSEFIRST && code <= WM_MOUSELAST);
    return input && IsDialogMessage(message);
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND wnd = message->hwnd; wnd != nullptr; wnd = ::GetParent(wnd))
    {
        CWnd* object = FromHandlePermanent(wnd);
        if (object != nullptr && object->PreTranslateMessage(message))
            return TRUE;
        if (wnd == stop)
            break;
    }
    return FALSE;
}

void CWnd::UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CCmdUI state;
        state.m_pOther = FromHandle(child);
        state.m_nID = LOWORD(::GetDlgCtrlID(child));
        if (CWnd* object = FromHandlePermanent(child)) // a control may know about itself
            if (object->OnCmdMsg(0, MAKELONG(0xFFFF, WM_COMMAND + WM_REFLECT_BASE), &state, nullptr))
                continue;
        if (CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr))
            continue;
        // Only push buttons are greyed for want of a handler.
        const LRESULT kind = ::SendMessage(child, WM_GETDLGCODE, 0, 0);
        const bool pushButton = (kind & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
        state.DoUpdate(target, disableIfNoHandler && pushButton);
    }
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    if (m_hWnd == nullptr)
        return FALSE;
    CDataExchange exchange(this, saveAndValidate);
    const Lockout lockout(m_hWnd);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (CUserException* exception)
    {
        exception->Delete(); // told already
    }
    catch (CException* exception)
    {
        exception->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        exception->Delete();
    }
    return FALSE;
}

void AfxCancelModes(HWND receiver)
{
    const HWND cancel = ::GetFocus();
    if (cancel == nullptr || receiver == cancel)
        return;
    const auto isCombo = [](HWND wnd)
    {
        wchar_t name[16] = {};
        return wnd != nullptr && ::GetClassNameW(wnd, name, 16) != 0 && lstrcmpiW(name, L"combobox") == 0;
    };
    const HWND parent = ::GetParent(cancel);
    if (receiver != nullptr && ::GetParent(receiver) == cancel)
        return; // a part of the focus window itself
    if (isCombo(cancel))
        ::SendMessage(cancel, CB_SHOWDROPDOWN, FALSE, 0);
    else if (isCombo(parent) && parent != receiver)
        ::SendMessage(parent, CB_SHOWDROPDOWN, FALSE, 0);
}
