// CWinApp: the application object of a host program, and the global functions around it.
#pragma once
#include "kx/Module.h"
#include "kx/WinThread.h"

/// One object per program, a global. InitInstance makes the main window and sets m_pMainWnd; Run pumps messages.
class KXAFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR appName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    HINSTANCE m_hPrevInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr; ///< title of message boxes
    LPCTSTR m_pszExeName = nullptr; ///< program file without folder and extension
    LPCTSTR m_pszHelpFilePath = nullptr;
    LPCTSTR m_pszProfileName = nullptr; ///< ini file, or the name under the registry key
    LPCTSTR m_pszRegistryKey = nullptr; ///< null: profile data goes to the ini file
    DWORD m_dwPromptContext = 0;

    HCURSOR LoadCursor(LPCTSTR name) const;
    HCURSOR LoadCursor(UINT id) const;
    HCURSOR LoadStandardCursor(LPCTSTR name) const;
    HCURSOR LoadOEMCursor(UINT id) const;
    HICON LoadIcon(LPCTSTR name) const;
    HICON LoadIcon(UINT id) const;
    HICON LoadStandardIcon(LPCTSTR name) const;
    HICON LoadOEMIcon(UINT id) const;

    /// Puts profile data under HKEY_CURRENT_USER\Software\<company>\<profile name>.
    void SetRegistryKey(LPCTSTR company);
    void SetRegistryKey(UINT companyId);
    HKEY GetAppRegistryKey();
    /// The key of a section, to be closed by the caller; null on failure.
    HKEY GetSectionKey(LPCTSTR section);
    UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue);
    BOOL WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value);
    CString GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultText = nullptr);
    /// A null value deletes the entry, a null entry the section.
    BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value);
    /// TRUE with a block that the caller frees by delete[].
    BOOL GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes);
    BOOL WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes);

    virtual BOOL InitApplication();
    /// Shows a message box over the window that is in front.
    virtual int DoMessageBox(LPCTSTR prompt, UINT type, UINT helpId);
    static int ShowAppMessageBox(CWinApp* app, LPCTSTR prompt, UINT type, UINT helpId);
    virtual void DoWaitCursor(int code);
    void EnableModeless(BOOL enable);
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT);

    BOOL InitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG count) override;
    int ExitInstance() override;
    LRESULT ProcessWndProcException(CException* exception, const MSG* message) override;

    /// Ends the program: destroys the main window.
    afx_msg void OnAppExit();

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    void SetCurrentHandles();

private:
    // What the LPCTSTR members point to where the framework found them out itself.
    CString m_ownAppName, m_ownExeName, m_ownProfileName, m_ownRegistryKey;

    DECLARE_MESSAGE_MAP()
};

KXAFX_API CWinApp* AfxGetApp();
KXAFX_API LPCTSTR AfxGetAppName();

/// Starts the framework for a program that has its own entry; FALSE when it cannot.
KXAFX_API BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPTSTR cmdLine, int cmdShow);
KXAFX_API void AfxWinTerm();
/// What a program's entry calls: start, InitInstance, Run, ExitInstance. The result is the exit code.
KXAFX_API int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPTSTR cmdLine, int cmdShow);

/// Shows a message with the application's name as title; without an icon in `type` a fitting one is taken.
KXAFX_API int AfxMessageBox(LPCTSTR text, UINT type = MB_OK, UINT helpId = 0);
KXAFX_API int AfxMessageBox(UINT textId, UINT type = MB_OK, UINT helpId = static_cast<UINT>(-1));
