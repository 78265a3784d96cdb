// CPropertySheet: pages behind tabs, or a wizard.
#pragma once
#include <prsht.h>

#include <vector>

#include "kx/PropertyPage.h"
#include "kx/Wnd.h"

class CTabCtrl;

/// A sheet of pages. Modal: AddPage each, then DoModal. Modeless: AddPage each, then Create; it has no OK, Cancel and
/// Apply buttons then, and its caption's close button ends it.
///
/// A sheet that is ended while its pages are told something (by DestroyWindow, EndDialog or delete in OnKillActive, say) is
/// hidden at once and ends when the message loop comes round.
class KXAFX_API CPropertySheet : public CWnd
{
    DECLARE_DYNAMIC(CPropertySheet)
public:
    CPropertySheet();
    explicit CPropertySheet(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    explicit CPropertySheet(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);
    /// For a wizard with pictures; the caller owns them.
    CPropertySheet(UINT captionId, CWnd* parent, UINT selectPage, HBITMAP watermark, HPALETTE palette = nullptr,
                   HBITMAP header = nullptr);
    CPropertySheet(LPCTSTR caption, CWnd* parent, UINT selectPage, HBITMAP watermark, HPALETTE palette = nullptr,
                   HBITMAP header = nullptr);
    ~CPropertySheet() override;
    void Construct(UINT captionId, CWnd* parent = nullptr, UINT selectPage = 0);
    void Construct(LPCTSTR caption, CWnd* parent = nullptr, UINT selectPage = 0);

    PROPSHEETHEADER m_psh{}; ///< flags and pictures may be changed before the sheet is made

    /// Runs the sheet; the id of the button that ended it, -1 when it could not be made.
    virtual INT_PTR DoModal();
    /// Shows the sheet beside its parent. Style -1: a caption with a close box, visible.
    virtual BOOL Create(CWnd* parent = nullptr, DWORD style = static_cast<DWORD>(-1), DWORD exStyle = 0);

    /// Adds a page at the end, also to a sheet that is shown. A page that is in a sheet already, or has no template, is
    /// not added to one that is shown.
    void AddPage(CPropertyPage* page);
    void RemovePage(CPropertyPage* page);
    void RemovePage(int index);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    /// Null for an index without a page.
    CPropertyPage* GetPage(int index) const;
    /// -1 for a page that is not in the sheet.
    int GetPageIndex(const CPropertyPage* page) const;
    /// Before the sheet is shown: the page that will be shown first.
    int GetActiveIndex() const;
    /// Null while the sheet is not shown.
    CPropertyPage* GetActivePage() const;
    /// FALSE where there is no such page, or the page that is shown keeps itself.
    BOOL SetActivePage(int index);
    BOOL SetActivePage(CPropertyPage* page);

    /// `style`: PSH_PROPTITLE puts the system's words for properties around the text.
    void SetTitle(LPCTSTR text, UINT style = 0);
    CTabCtrl* GetTabControl() const;
    /// Tabs in several rows, as is usual, or in one with arrows. Before the sheet is made.
    void EnableStackedTabs(BOOL stacked) { m_bStacked = stacked; }
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    BOOL IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97)) != 0; }
    BOOL IsModeless() const { return m_bModeless; }
    /// PSWIZB_BACK, PSWIZB_NEXT, PSWIZB_FINISH, PSWIZB_DISABLEDFINISH.
    void SetWizardButtons(DWORD flags);
    void SetFinishText(LPCTSTR text);
    /// Presses PSBTN_OK, PSBTN_CANCEL, PSBTN_APPLYNOW, ....
    BOOL PressButton(int button);
    void EndDialog(int result);

    /// The sheet is made, with its first page. The answer is the system's.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* message) override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL ContinueModal() override;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();

    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;
    BOOL m_bStacked = TRUE;
    BOOL m_bModeless = FALSE;

private:
    HWND makeWindow(HWND owner, const DWORD* styles);
    void showModal();
    void setPictures(HBITMAP watermark, HPALETTE palette, HBITMAP header);
    HWND parentWindow() const;
    void hideButtons();

    std::vector<CPropertyPage*> m_pages;
    HWND m_hParent = nullptr; ///< the parent's window, where it had one already: its object may go

    DECLARE_MESSAGE_MAP()
};
