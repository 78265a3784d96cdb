// The main window: the page list at the left, the page in the middle, the message log at the bottom.
#pragma once
#include "MessageLog.h"
#include "Page.h"

class CMainDialog : public CDialog
{
public:
    CMainDialog();
    /// Creates and shows the window. `page`: the title of the page to begin with, or empty.
    bool open(const CString& page);
    /// Saves pictures of every page in its interesting states, and the message log, into an existing folder.
    bool saveShots(const CString& folder);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override;
    void PostNcDestroy() override;

    DECLARE_MESSAGE_MAP()
    void OnSize(UINT type, int cx, int cy);
    void OnSelectPage();

private:
    void arrange();
    void showPage(int index);
    std::vector<std::unique_ptr<CPage>> m_pages;
    int m_current = -1;
    CListBox m_list;
    CMessageLog m_log;
};
