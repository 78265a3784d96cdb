// CFileDialog: the system's dialogs for opening and saving files.
#pragma once
#include "kx/Dialog.h"
#include "kx/List.h"

#include <commdlg.h>

#include <vector>

/// The base of the classes around the system's common dialogs.
class KXAFX_API CCommonDialog : public CDialog
{
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* pParentWnd);

protected:
    void OnOK() override;
    void OnCancel() override;
};

/// Asks for the name of a file. The object is the child window that the system's dialog keeps for its host: the dialog
/// itself is `GetParent()`. Always the dialog with a hook, in Explorer style; what the later versions of the system have
/// instead is not offered.
class KXAFX_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// @param bOpenFileDialog TRUE to open, FALSE to save
    /// @param lpszDefExt is appended to a name without extension, or null
    /// @param lpszFileName stands in the name field at first, or null
    /// @param dwFlags `OFN_` flags
    /// @param lpszFilter pairs of a text and a pattern, each with a bar behind it: L"Pictures|*.gif;*.bmp|All|*.*||"
    /// @param dwSize, bVistaStyle accepted and not needed
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0, BOOL bVistaStyle = TRUE);
    ~CFileDialog() override;

    /// IDOK, or IDCANCEL also for an error (`CommDlgExtendedError`).
    INT_PTR DoModal() override;

    /// The record that the system gets: to be changed before `DoModal`.
    OPENFILENAME& GetOFN() { return m_ofn; }
    const OPENFILENAME& GetOFN() const { return m_ofn; }
    OPENFILENAME m_ofn;

    // What was chosen; while the dialog is open, what stands in it.

    CString GetPathName() const;
    /// The name with its extension, without its folder.
    CString GetFileName() const;
    /// The name without extension.
    CString GetFileTitle() const;
    /// Without the dot.
    CString GetFileExt() const;
    /// The folder that is shown; empty when the dialog is not open.
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const;
    /// The paths that were chosen with `OFN_ALLOWMULTISELECT`: null where there is none, and behind the last one.
    POSITION GetStartPosition() const;
    /// Empty for a position that is none.
    CString GetNextPathName(POSITION& pos) const;

    // While the dialog is open; without a window nothing happens.

    void SetControlText(int nID, LPCTSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCTSTR lpsz);

    /// A dialog template, looked for in the chain of modules, that stands below the controls of the system.
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);
    void SetTemplate(UINT nWin3ID, UINT nWin4ID);

protected:
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();
    /// 0 closes the dialog; another value keeps it open.
    virtual BOOL OnFileNameOK();
    /// `OFN_SHAREFALLTHROUGH`, `OFN_SHARENOWARN` or `OFN_SHAREWARN`.
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    BOOL m_bOpenFileDialog;
    CString m_strFilter; ///< as the system wants it: terminators instead of bars

private:
    static UINT_PTR CALLBACK hook(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    HWND dialog() const;
    CString askDialog(UINT message) const;
    std::vector<CString> chosenPaths() const;

    CString m_defaultExtension;
    CString m_templateName;
    wchar_t m_fileName[1024];
    wchar_t m_fileTitle[MAX_PATH];

    DECLARE_MESSAGE_MAP()
};
