// How a program starts and ends.
#include <afxwin.h>

#include "ThreadState.h"

namespace
{
CString programName()
{
    CString path;
    ::GetModuleFileName(nullptr, path.GetBufferSetLength(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    path = path.Mid(path.ReverseFind(_T('\\')) + 1);
    const int dot = path.ReverseFind(_T('.'));
    return dot > 0 ? path.Left(dot) : path;
}
} // namespace

// What the program did not say is taken from its title string and its file name.
void CWinApp::SetCurrentHandles()
{
    AFX_MODULE_STATE* state = AfxGetAppModuleState();
    state->m_hCurrentInstanceHandle = m_hInstance;
    if (state->m_hCurrentResourceHandle == nullptr)
        state->m_hCurrentResourceHandle = m_hInstance;
    m_hThread = nullptr;
    m_nThreadID = ::GetCurrentThreadId();
    if (m_pszExeName == nullptr)
    {
        m_ownExeName = programName();
        m_pszExeName = m_ownExeName;
    }
    if (m_pszAppName == nullptr)
    {
        if (!m_ownAppName.LoadString(AFX_IDS_APP_TITLE))
            m_ownAppName = m_pszExeName;
        m_pszAppName = m_ownAppName;
    }
    if (m_pszProfileName == nullptr)
    {
        m_ownProfileName = CString(m_pszExeName) + _T(".INI");
        m_pszProfileName = m_ownProfileName;
    }
    state->m_lpszCurrentAppName = m_pszAppName;
}

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR cmdLine, int cmdShow)
{
    AFX_MODULE_STATE* state = AfxGetAppModuleState();
    state->m_hCurrentInstanceHandle = instance;
    state->m_hCurrentResourceHandle = instance;
    if (CWinApp* app = state->m_pCurrentWinApp)
    {
        app->m_hInstance = instance;
        app->m_hPrevInstance = previous;
        app->m_lpCmdLine = cmdLine;
        app->m_nCmdShow = cmdShow;
        app->SetCurrentHandles();
        kxThread().thread = app;
    }
    return TRUE;
}

void AfxWinTerm()
{
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
    CWnd::CancelToolTips(TRUE);
}

int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR cmdLine, int cmdShow)
{
    CWinApp* app = AfxGetApp();
    int exitCode = -1;
    if (app != nullptr && AfxWinInit(instance, previous, cmdLine, cmdShow) && app->InitApplication())
    {
        if (app->InitInstance())
        {
            exitCode = app->Run();
        }
        else
        {
            if (app->m_pMainWnd != nullptr)
                app->m_pMainWnd->DestroyWindow();
            exitCode = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return exitCode;
}
