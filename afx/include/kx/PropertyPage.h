// CPropertyPage: one page of a property sheet.
#pragma once
#include <prsht.h>

#include "kx/Dialog.h"

// The sheet's own buttons, beside IDOK, IDCANCEL and IDHELP.
constexpr int ID_APPLY_NOW = 0x3021;
constexpr int ID_WIZBACK = 0x3023;
constexpr int ID_WIZNEXT = 0x3024;
constexpr int ID_WIZFINISH = 0x3025;

class CPropertySheet;

/// A page, made from a dialog template when it is shown first. It must live as long as it is in a sheet; a page that is
/// deleted leaves its sheet.
class KXAFX_API CPropertyPage : public CDialog
{
    DECLARE_DYNAMIC(CPropertyPage)
public:
    CPropertyPage();
    /// `captionId`: a string for the tab; 0: the caption of the template.
    explicit CPropertyPage(UINT templateId, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR templateName, UINT captionId = 0, DWORD size = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;
    void Construct(UINT templateId, UINT captionId = 0);
    void Construct(LPCTSTR templateName, UINT captionId = 0);

    PROPSHEETPAGE m_psp{}; ///< may be changed before the page is added
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    /// The page has changes to apply, or has none: the Apply button follows.
    void SetModified(BOOL changed = TRUE);
    /// For a change that cannot be undone: OK becomes Close, Cancel is disabled.
    void CancelToClose();
    /// Sends PSM_QUERYSIBLINGS to the other pages that exist, until one answers other than 0; its answer.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    /// The page is about to be shown. Here: from the second time on the data is shown anew. FALSE refuses.
    virtual BOOL OnSetActive();
    /// The page is about to be left. Here: the data is read. FALSE keeps it.
    virtual BOOL OnKillActive();
    /// OK or Apply. Here: calls OnOK, TRUE. FALSE keeps the sheet open.
    virtual BOOL OnApply();
    /// The sheet was cancelled. Here: calls OnCancel.
    virtual void OnReset();
    /// FALSE keeps the sheet open. Here: TRUE.
    virtual BOOL OnQueryCancel();
    /// 0 goes on, -1 stays, any other number is the template of the page to show.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// FALSE keeps the wizard open. Here: TRUE.
    virtual BOOL OnWizardFinish();
    void OnOK() override;     ///< nothing
    void OnCancel() override; ///< nothing

    BOOL PreTranslateMessage(MSG* message) override;
    /// Ends the sheet.
    void EndDialog(int result);

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    CString m_strCaption;
    BOOL m_bFirstSetActive = TRUE;

private:
    friend class CPropertySheet;
    static UINT CALLBACK onPage(HWND wnd, UINT message, LPPROPSHEETPAGE page);
    BOOL isReady() const;
    PROPSHEETPAGE record();

    CPropertySheet* m_pSheet = nullptr;
};
