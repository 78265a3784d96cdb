// The application object: idle work, resources, message boxes, exceptions.
#include <afxwin.h>

#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR appName) : m_pszAppName(appName)
{
    m_bAutoDelete = FALSE; // a global of the program
    m_nThreadID = ::GetCurrentThreadId();
    AFX_MODULE_STATE* state = AfxGetAppModuleState();
    if (state->m_pCurrentWinApp == nullptr)
    {
        state->m_pCurrentWinApp = this;
        kxThread().thread = this;
    }
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* state = AfxGetAppModuleState();
    if (state->m_pCurrentWinApp == this)
    {
        state->m_pCurrentWinApp = nullptr;
        state->m_lpszCurrentAppName = nullptr;
    }
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AfxGetAppName()
{
    LPCTSTR name = AfxGetModuleState()->m_lpszCurrentAppName;
    if (name == nullptr && AfxGetApp() != nullptr)
        name = AfxGetApp()->m_pszAppName;
    return name != nullptr ? name : _T("");
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    if (m_pMainWnd == nullptr) // nothing could ever end the pump
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG count)
{
    return CWinThread::OnIdle(count);
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

LRESULT CWinApp::ProcessWndProcException(CException* exception, const MSG* message)
{
    if (message->message == WM_CREATE || message->message == WM_PAINT)
        return CWinThread::ProcessWndProcException(exception, message); // no place for a message box
    UINT textId = AFX_IDP_INTERNAL_FAILURE;
    LRESULT result = 0;
    if (message->message == WM_COMMAND)
    {
        if (message->lParam == 0)
            textId = AFX_IDP_COMMAND_FAILURE;
        result = TRUE; // it was handled, if badly
    }
    if (exception->IsKindOf(RUNTIME_CLASS(CMemoryException)))
        exception->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL, textId);
    else if (!exception->IsKindOf(RUNTIME_CLASS(CUserException))) // the user was told already
        exception->ReportError(MB_ICONSTOP, textId);
    return result;
}

HCURSOR CWinApp::LoadCursor(LPCTSTR name) const
{
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

HCURSOR CWinApp::LoadCursor(UINT id) const
{
    return LoadCursor(MAKEINTRESOURCE(id));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR name) const
{
    return ::LoadCursor(nullptr, name);
}

HCURSOR CWinApp::LoadOEMCursor(UINT id) const
{
    return ::LoadCursor(nullptr, MAKEINTRESOURCE(id));
}

HICON CWinApp::LoadIcon(LPCTSTR name) const
{
    return ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HICON CWinApp::LoadIcon(UINT id) const
{
    return LoadIcon(MAKEINTRESOURCE(id));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR name) const
{
    return ::LoadIcon(nullptr, name);
}

HICON CWinApp::LoadOEMIcon(UINT id) const
{
    return ::LoadIcon(nullptr, MAKEINTRESOURCE(id));
}

void CWinApp::DoWaitCursor(int code)
{
    if (code > 0)
    {
        const HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (m_nWaitCursorCount++ == 0)
            m_hcurWaitCursorRestore = before;
    }
    else if (code < 0)
    {
        if (m_nWaitCursorCount > 0 && --m_nWaitCursorCount == 0)
            ::SetCursor(m_hcurWaitCursorRestore);
    }
    else if (m_nWaitCursorCount > 0)
    {
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    }
}

void CWinApp::EnableModeless(BOOL enable)
{
    if (m_pMainWnd != nullptr && m_pMainWnd->m_hWnd != nullptr)
        ::EnableWindow(m_pMainWnd->m_hWnd, enable);
}

void CWinApp::WinHelp(DWORD_PTR data, UINT command)
{
    CWnd* mainWnd = AfxGetMainWnd();
    BeginWaitCursor();
    const bool shown = mainWnd != nullptr && m_pszHelpFilePath != nullptr &&
                       ::WinHelp(mainWnd->m_hWnd, m_pszHelpFilePath, command, data);
    EndWaitCursor();
    if (!shown)
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

int CWinApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId)
{
    return ShowAppMessageBox(this, prompt, type, helpId);
}

namespace
{
UINT withIcon(UINT type)
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
    case MB_OKCANCEL:
        return type | MB_ICONEXCLAMATION;
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONQUESTION;
    default:
        return type;
    }
}

int reportError(CException* exception, UINT type, UINT textId)
{
    wchar_t text[512] = {};
    UINT helpId = 0;
    if (exception->GetErrorMessage(text, 512, &helpId) && text[0] != 0)
        return AfxMessageBox(text, type, helpId);
    return AfxMessageBox(textId != 0 ? textId : AFX_IDP_NO_ERROR_AVAILABLE, type, helpId);
}

// ReportError of the portable half shows its message by us.
[[maybe_unused]] const KxReportErrorHandler handlerBefore = KxSetReportErrorHandler(&reportError);
} // namespace

int CWinApp::ShowAppMessageBox(CWinApp* app, LPCTSTR prompt, UINT type, UINT)
{
    HWND disabled = nullptr;
    const HWND owner = CWnd::GetSafeOwner_(nullptr, &disabled);
    LPCTSTR title = app != nullptr ? app->m_pszAppName : nullptr;
    CString fileName;
    if (title == nullptr)
    {
        ::GetModuleFileName(nullptr, fileName.GetBufferSetLength(MAX_PATH), MAX_PATH);
        fileName.ReleaseBuffer();
        title = fileName;
    }
    const int answer = ::MessageBox(owner, prompt != nullptr ? prompt : _T(""), title, withIcon(type));
    if (disabled != nullptr)
        ::EnableWindow(disabled, TRUE);
    return answer;
}

int AfxMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    if (CWinApp* app = AfxGetApp())
        return app->DoMessageBox(text, type, helpId);
    return CWinApp::ShowAppMessageBox(nullptr, text, type, helpId);
}

int AfxMessageBox(UINT textId, UINT type, UINT helpId)
{
    CString text;
    text.LoadString(textId);
    return AfxMessageBox(text, type, helpId == static_cast<UINT>(-1) ? textId : helpId);
}
