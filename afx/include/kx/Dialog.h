// CDialog: modal and modeless dialogs from templates.
#pragma once
#include "kx/Wnd.h"

/// A dialog. Modal: construct with a template, call DoModal. Modeless: construct empty, call Create.
class KXAFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    explicit CDialog(LPCTSTR templateName, CWnd* parent = nullptr);
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    // Modeless
    virtual BOOL Create(LPCTSTR templateName, CWnd* parent = nullptr);
    virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* dialogInit = nullptr,
                                HINSTANCE instance = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr, HINSTANCE instance = nullptr);

    // Modal
    BOOL InitModalIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent = nullptr, void* dialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL dialogTemplate, CWnd* parent = nullptr);
    /// Runs the dialog; the result is EndDialog's number, -1 when it could not be made.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    void MapDialogRect(LPRECT rect) const;
    void SetHelpID(UINT id) { m_nIDHelp = id; }
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* control);
    void SetDefID(UINT id);
    DWORD GetDefID() const;

    /// FALSE when the focus was set here.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* font);
    BOOL PreTranslateMessage(MSG* message) override;
    /// FALSE for a template that says where the dialog is to stand.
    BOOL CheckAutoCenter() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    void PreInitDialog() override;
    HWND PreModal();
    void PostModal();
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, HINSTANCE instance);

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr; ///< disabled while the dialog is modal

private:
    LPCDLGTEMPLATE m_pMadeFrom = nullptr; ///< only while the window is being made
    friend INT_PTR CALLBACK AfxDlgProc(HWND, UINT, WPARAM, LPARAM);

    DECLARE_MESSAGE_MAP()
};

KXAFX_API INT_PTR CALLBACK AfxDlgProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
