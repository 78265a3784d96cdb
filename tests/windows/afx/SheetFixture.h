// Sheets that work through steps, pages that write down what they are told, and an owner in front.
#pragma once
#include <afxcmn.h>
#include <afxdlgs.h>

#include "Fixture.h"
#include "ids.h"
#include "support/RealInput.h"
#include "support/StepSheet.h"

using Sheet = StepSheet<CPropertySheet>;

class CPage : public CPropertyPage
{
public:
    Log log;
    Log* diary = nullptr; ///< of several pages, each word with the page's name before it
    std::wstring name;
    CString value;
    BOOL activates = TRUE, leaves = TRUE, applies = TRUE, cancels = TRUE, finishes = TRUE;
    LRESULT back = 0, next = 0; ///< what a wizard's buttons are answered

    explicit CPage(UINT id = IDD_PAGE_ONE, UINT captionId = 0) : CPropertyPage(id, captionId) {}
    BOOL OnSetActive() override
    {
        note(L"active");
        return CPropertyPage::OnSetActive() && activates;
    }
    BOOL OnKillActive() override
    {
        note(L"left");
        return CPropertyPage::OnKillActive() && leaves;
    }
    BOOL OnApply() override
    {
        note(L"apply");
        return CPropertyPage::OnApply() && applies;
    }
    void OnReset() override
    {
        note(L"reset");
        CPropertyPage::OnReset();
    }
    BOOL OnQueryCancel() override
    {
        note(L"query");
        return CPropertyPage::OnQueryCancel() && cancels;
    }
    LRESULT OnWizardBack() override
    {
        note(L"back");
        return back;
    }
    LRESULT OnWizardNext() override
    {
        note(L"next");
        return next;
    }
    BOOL OnWizardFinish() override
    {
        note(L"finish");
        return CPropertyPage::OnWizardFinish() && finishes;
    }
    void OnOK() override { note(L"ok"); }
    void OnCancel() override { note(L"cancel"); }
    bool hasApplyButton() const { return ::IsWindowEnabled(::GetDlgItem(::GetParent(m_hWnd), ID_APPLY_NOW)) != FALSE; }

protected:
    void note(const wchar_t* what)
    {
        log.push_back(what);
        if (diary != nullptr)
            diary->push_back(name + what);
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        CPropertyPage::DoDataExchange(exchange);
        DDX_Text(exchange, IDC_TEXT, value);
    }
};

/// A shown frame of the tests that owns sheets.
struct Owner
{
    CTop wnd;
    Owner()
    {
        wnd.make(WS_POPUP | WS_VISIBLE, CRect(50, 50, 350, 250));
        wnd.SetForegroundWindow();
    }
};

/// Pages that share one diary, each with a name: "A ", "B ", "C ".
struct Pages
{
    Log diary;
    CPage a{IDD_PAGE_ONE}, b{IDD_PAGE_ONE}, c{IDD_PAGE_TWO};

    explicit Pages(CPropertySheet& sheet)
    {
        const wchar_t* const names[] = {L"A ", L"B ", L"C "};
        int next = 0;
        for (CPage* page : {&a, &b, &c})
        {
            page->diary = &diary;
            page->name = names[next++];
            sheet.AddPage(page);
        }
    }
};

inline HWND button(const CPropertySheet& sheet, int id)
{
    return ::GetDlgItem(sheet.m_hWnd, id);
}
