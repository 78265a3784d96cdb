// A message's way from the system into an object, and back to the system.
#include <afxwin.h>

#include <exception>

#include "ThreadState.h"

namespace
{
/// What a standard exception says, for the same report as a framework exception.
class CStandardException : public CException
{
public:
    explicit CStandardException(const std::exception& what) : CException(FALSE), m_text(what.what()) {}
    BOOL GetErrorMessage(LPTSTR buffer, UINT count, PUINT help) const override
    {
        if (help != nullptr)
            *help = 0;
        if (buffer == nullptr || count == 0)
            return FALSE;
        lstrcpyn(buffer, m_text, static_cast<int>(count));
        return TRUE;
    }

private:
    CString m_text;
};

/// Stands for an exception of any other type, of which nothing can be said.
class CUnknownException : public CException
{
public:
    CUnknownException() : CException(FALSE) {}
};

/// Keeps the message that a procedure was handling over the message that it handles meanwhile.
class CurrentMessage
{
public:
    explicit CurrentMessage(const MSG& message) : m_before(kxThread().lastSent)
    {
        MSG& now = kxThread().lastSent;
        const DWORD time = message.time != 0 ? message.time : static_cast<DWORD>(::GetMessageTime());
        now = message;
        now.time = time;
        const DWORD pos = ::GetMessagePos();
        now.pt = {static_cast<short>(LOWORD(pos)), static_cast<short>(HIWORD(pos))};
    }
    ~CurrentMessage() { kxThread().lastSent = m_before; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    MSG m_before;
};

LRESULT answerException(CException* exception, const MSG& message)
{
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr)
        return thread->ProcessWndProcException(exception, &message);
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr);
    return message.message == WM_CREATE ? -1 : 0;
}
} // namespace

LRESULT AfxCallWndProc(CWnd* wnd, HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    MSG msg = {};
    msg.hwnd = handle;
    msg.message = message;
    msg.wParam = wParam;
    msg.lParam = lParam;
    const CurrentMessage current(msg);
    try
    {
        if (message != WM_INITDIALOG)
            return wnd->WindowProc(message, wParam, lParam);
        // A dialog that stands where it was made is centred, unless it was moved or asked to stay.
        CRect before;
        wnd->GetWindowRect(&before);
        const DWORD style = wnd->GetStyle();
        const LRESULT result = wnd->WindowProc(message, wParam, lParam);
        CWnd* still = CWnd::FromHandlePermanent(handle);
        if (still == wnd && (style & (WS_VISIBLE | WS_CHILD)) == 0 && (wnd->GetStyle() & (WS_VISIBLE | WS_CHILD)) == 0)
        {
            CRect after;
            wnd->GetWindowRect(&after);
            if (before.TopLeft() == after.TopLeft() && wnd->CheckAutoCenter())
                wnd->CenterWindow();
        }
        return result;
    }
    catch (CException* exception)
    {
        const LRESULT result = answerException(exception, msg);
        exception->Delete();
        return result;
    }
    catch (const std::exception& standard)
    {
        CStandardException exception(standard);
        return answerException(&exception, msg);
    }
    catch (...)
    {
        CUnknownException exception;
        return answerException(&exception, msg);
    }
}

LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* object = CWnd::FromHandlePermanent(wnd);
    if (object == nullptr || object->m_hWnd != wnd)
        return ::DefWindowProc(wnd, message, wParam, lParam);
    return AfxCallWndProc(object, wnd, message, wParam, lParam);
}

WNDPROC AfxGetAfxWndProc()
{
    return &AfxWndProc;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    WNDPROC super = m_pfnSuper;
    if (super == nullptr)
        if (WNDPROC* address = GetSuperWndProcAddr())
            super = *address;
    if (super == nullptr)
        return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG last = kxThread().lastSent;
    return DefWindowProc(last.message, last.wParam, last.lParam);
}

const MSG* CWnd::GetCurrentMessage()
{
    return &kxThread().lastSent;
}
