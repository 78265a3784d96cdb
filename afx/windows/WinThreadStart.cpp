// Starting and ending threads.
#include <afxwin.h>

#include <process.h>

#include "ThreadState.h"

BOOL CWinThread::CreateThread(DWORD createFlags, UINT stackSize, LPSECURITY_ATTRIBUTES security)
{
    if (m_hThread != nullptr)
        return FALSE;
    unsigned id = 0;
    // Held back until the handle is known to the object; the thread may delete it at once.
    const uintptr_t handle =
        ::_beginthreadex(security, stackSize, &CWinThread::ThreadEntry, this, createFlags | CREATE_SUSPENDED, &id);
    if (handle == 0)
        return FALSE;
    m_hThread = reinterpret_cast<HANDLE>(handle);
    m_nThreadID = id;
    if ((createFlags & CREATE_SUSPENDED) == 0)
        ::ResumeThread(m_hThread);
    return TRUE;
}

unsigned __stdcall CWinThread::ThreadEntry(void* self)
{
    auto* thread = static_cast<CWinThread*>(self);
    kxThread().thread = thread;
    const auto result = static_cast<unsigned>(thread->RunThread());
    kxThread().thread = nullptr;
    thread->Delete();
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
    kxEndThread();
    return result;
}

int CWinThread::RunThread()
{
    if (m_pfnThreadProc != nullptr)
        return static_cast<int>(m_pfnThreadProc(m_pThreadParams));
    return InitInstance() ? Run() : ExitInstance();
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int priority)
{
    return ::SetThreadPriority(m_hThread, priority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

namespace
{
CWinThread* start(CWinThread* thread, int priority, UINT stackSize, DWORD createFlags, LPSECURITY_ATTRIBUTES security)
{
    if (!thread->CreateThread(createFlags | CREATE_SUSPENDED, stackSize, security))
    {
        thread->Delete();
        return nullptr;
    }
    thread->SetThreadPriority(priority);
    if ((createFlags & CREATE_SUSPENDED) == 0)
        thread->ResumeThread();
    return thread;
}
} // namespace

CWinThread* AfxBeginThread(AFX_THREADPROC function, LPVOID param, int priority, UINT stackSize, DWORD createFlags,
                           LPSECURITY_ATTRIBUTES security)
{
    if (function == nullptr)
        return nullptr;
    return start(new CWinThread(function, param), priority, stackSize, createFlags, security);
}

CWinThread* AfxBeginThread(CRuntimeClass* threadClass, int priority, UINT stackSize, DWORD createFlags,
                           LPSECURITY_ATTRIBUTES security)
{
    if (threadClass == nullptr || !threadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)))
        return nullptr;
    CObject* object = threadClass->CreateObject();
    if (object == nullptr)
        return nullptr;
    return start(static_cast<CWinThread*>(object), priority, stackSize, createFlags, security);
}

void AfxEndThread(UINT exitCode, BOOL deleteObject)
{
    CWinThread* thread = kxThread().thread;
    kxThread().thread = nullptr;
    if (thread != nullptr && deleteObject)
        thread->Delete();
    kxEndThread();
    ::_endthreadex(exitCode);
}
