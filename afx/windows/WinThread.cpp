// A thread's message pump.
#include <afxwin.h>

#include <vector>

#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread() = default;

CWinThread::CWinThread(AFX_THREADPROC function, LPVOID param) : m_pfnThreadProc(function), m_pThreadParams(param) {}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    if (kxThread().thread == this)
        kxThread().thread = nullptr;
}

BOOL CWinThread::InitInstance()
{
    return FALSE; // a user-interface thread says when it is ready
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_msgCur.wParam);
}

int CWinThread::Run()
{
    bool idle = true;
    LONG idleCount = 0;
    for (;;)
    {
        while (idle && !::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE))
            if (!OnIdle(idleCount++))
                idle = false;
        do
        {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur))
            {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&m_msgCur, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0)
        return FALSE;
    if (m_msgCur.message != WM_KICKIDLE && !PreTranslateMessage(&m_msgCur))
    {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessage(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    if (message->hwnd == nullptr && DispatchThreadMessage(message))
        return TRUE;
    CWnd* mainWnd = GetMainWnd();
    if (CWnd::WalkPreTranslateTree(mainWnd->GetSafeHwnd(), message))
        return TRUE;
    // A window outside the main window's tree: the main window may have an accelerator for it.
    if (mainWnd != nullptr && message->hwnd != nullptr && CWnd::FromHandlePermanent(mainWnd->m_hWnd) == mainWnd)
        if (CWnd::FromHandle(message->hwnd)->GetTopLevelParent() != mainWnd)
            return mainWnd->PreTranslateMessage(message);
    return FALSE;
}

BOOL CWinThread::DispatchThreadMessage(MSG* message)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry)
        {
            const bool registered = entry->nMessage == 0xC000;
            const UINT number = registered ? *reinterpret_cast<const UINT*>(entry->nSig) : entry->nMessage;
            if (number != message->message || (!registered && entry->nSig != AfxSig_v_w_l))
                continue;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
            const auto handler = reinterpret_cast<void (CWinThread::*)(WPARAM, LPARAM)>(entry->pfn);
#pragma GCC diagnostic pop
            (this->*handler)(message->wParam, message->lParam);
            return TRUE;
        }
    }
    return FALSE;
}

namespace
{
// A window and all in it that has an object asks for the state of its commands.
void updateCommands(HWND wnd)
{
    CWnd* object = CWnd::FromHandlePermanent(wnd);
    if (object == nullptr || !::IsWindowVisible(wnd))
        return;
    AfxCallWndProc(object, wnd, WM_IDLEUPDATECMDUI, TRUE, 0);
    if (CWnd::FromHandlePermanent(wnd) == object)
        CWnd::SendMessageToDescendants(wnd, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
}

std::vector<HWND> topFrames()
{
    std::vector<HWND> frames;
    const auto add = [](HWND wnd, LPARAM list) -> BOOL
    {
        const CWnd* object = CWnd::FromHandlePermanent(wnd);
        if (object != nullptr && object->IsFrameWnd())
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(wnd);
        return TRUE;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&frames));
    return frames;
}
} // namespace

// The main window first, then the other frames.
BOOL CWinThread::OnIdle(LONG count)
{
    if (count <= 0)
    {
        const HWND mainWnd = m_pMainWnd->GetSafeHwnd();
        updateCommands(mainWnd);
        for (const HWND frame : topFrames())
            if (frame != mainWnd)
                updateCommands(frame);
    }
    else
    {
        AfxLockTempMaps();
        AfxUnlockTempMaps(TRUE);
    }
    return count < 1;
}

BOOL CWinThread::IsIdleMessage(MSG* message)
{
    constexpr UINT systemTimer = 0x0118;
    if (message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE)
    {
        // The system repeats moves without a move, for instance when windows come and go.
        if (m_ptCursorLast.x == message->pt.x && m_ptCursorLast.y == message->pt.y && m_nMsgLast == message->message)
            return FALSE;
        m_ptCursorLast = message->pt;
        m_nMsgLast = message->message;
        return TRUE;
    }
    return message->message != WM_PAINT && message->message != systemTimer;
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* message)
{
    if (message->message == WM_CREATE)
        return -1; // the window must not live half made
    if (message->message == WM_PAINT)
        ::ValidateRect(message->hwnd, nullptr); // else it would come again at once
    return 0;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

MSG* AfxGetCurrentMessage()
{
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? &thread->m_msgCur : &kxThread().pumped;
}

BOOL AfxPumpMessage()
{
    if (CWinThread* thread = AfxGetThread())
        return thread->PumpMessage();
    MSG* message = AfxGetCurrentMessage();
    if (::GetMessage(message, nullptr, 0, 0) <= 0)
        return FALSE;
    if (message->message != WM_KICKIDLE && !AfxPreTranslateMessage(message))
    {
        ::TranslateMessage(message);
        ::DispatchMessage(message);
    }
    return TRUE;
}

BOOL AfxPreTranslateMessage(MSG* message)
{
    if (CWinThread* thread = AfxGetThread())
        return thread->PreTranslateMessage(message);
    return CWnd::WalkPreTranslateTree(nullptr, message);
}

BOOL AfxIsIdleMessage(MSG* message)
{
    if (CWinThread* thread = AfxGetThread())
        return thread->IsIdleMessage(message);
    return message->message != WM_PAINT;
}

void AfxPostQuitMessage(int exitCode)
{
    ::PostQuitMessage(exitCode);
}

CWinThread* AfxGetThread()
{
    return kxThread().thread;
}

CWnd* AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}
