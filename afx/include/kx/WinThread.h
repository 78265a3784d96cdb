// CWinThread: a thread with a message pump, and the functions around threads.
#pragma once
#include "kx/Wnd.h"

typedef UINT (*AFX_THREADPROC)(LPVOID param);

/// A user-interface thread (derive, override InitInstance) or a worker (with a thread function).
/// Made by AfxBeginThread; the object deletes itself at the thread's end unless m_bAutoDelete is FALSE.
class KXAFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    CWinThread(AFX_THREADPROC function, LPVOID param);
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr; ///< when it is destroyed the pump ends
    CWnd* m_pActiveWnd = nullptr;
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    operator HANDLE() const { return m_hThread; }

    BOOL CreateThread(DWORD createFlags = 0, UINT stackSize = 0, LPSECURITY_ATTRIBUTES security = nullptr);
    int GetThreadPriority();
    BOOL SetThreadPriority(int priority);
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    virtual BOOL InitInstance();
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Takes one message and dispatches it; FALSE for WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called while there is nothing to do, with a growing count; TRUE asks to be called again.
    virtual BOOL OnIdle(LONG count);
    /// FALSE for the messages after which the idle work need not be done again.
    virtual BOOL IsIdleMessage(MSG* message);
    virtual int ExitInstance();
    /// A framework exception reached the window procedure; the result is the answer to the message.
    virtual LRESULT ProcessWndProcException(CException* exception, const MSG* message);
    virtual BOOL ProcessMessageFilter(int code, LPMSG message);
    virtual CWnd* GetMainWnd();
    virtual void Delete();

protected:
    BOOL DispatchThreadMessage(MSG* message);

private:
    friend KXAFX_API MSG* AfxGetCurrentMessage();
    static unsigned __stdcall ThreadEntry(void* self);
    int RunThread();

    AFX_THREADPROC m_pfnThreadProc = nullptr;
    LPVOID m_pThreadParams = nullptr;
    MSG m_msgCur{};
    POINT m_ptCursorLast{};
    UINT m_nMsgLast = 0;
};

/// Starts a worker; null on failure.
KXAFX_API CWinThread* AfxBeginThread(AFX_THREADPROC function, LPVOID param, int priority = THREAD_PRIORITY_NORMAL,
                                     UINT stackSize = 0, DWORD createFlags = 0,
                                     LPSECURITY_ATTRIBUTES security = nullptr);
/// Starts a user-interface thread of a class with DYNCREATE; null on failure.
KXAFX_API CWinThread* AfxBeginThread(CRuntimeClass* threadClass, int priority = THREAD_PRIORITY_NORMAL,
                                     UINT stackSize = 0, DWORD createFlags = 0,
                                     LPSECURITY_ATTRIBUTES security = nullptr);
/// Ends the calling thread at once.
KXAFX_API void AfxEndThread(UINT exitCode, BOOL deleteObject = TRUE);
KXAFX_API CWinThread* AfxGetThread();
KXAFX_API CWnd* AfxGetMainWnd();
KXAFX_API MSG* AfxGetCurrentMessage();
KXAFX_API BOOL AfxPumpMessage();
KXAFX_API BOOL AfxPreTranslateMessage(MSG* message);
KXAFX_API BOOL AfxIsIdleMessage(MSG* message);
KXAFX_API void AfxPostQuitMessage(int exitCode);
