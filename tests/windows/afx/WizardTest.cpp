// Property sheets as wizards: the way through the pages by buttons and keys, pages that refuse, what the buttons say.
#include "SheetFixture.h"

namespace
{
class CWizard : public Sheet
{
public:
    explicit CWizard(CWnd* parent) : Sheet(L"Wizard", parent) { SetWizardMode(); }

    HWND at(int id) const { return button(*this, id); }
    /// "B", "N" and "F" for the buttons that are shown, small where they are disabled.
    std::wstring buttons() const
    {
        const struct
        {
            int id;
            wchar_t enabled, disabled;
        } all[] = {{ID_WIZBACK, L'B', L'b'}, {ID_WIZNEXT, L'N', L'n'}, {ID_WIZFINISH, L'F', L'f'}};
        std::wstring shown;
        for (const auto& one : all)
            if (::IsWindowVisible(at(one.id)))
                shown += ::IsWindowEnabled(at(one.id)) ? one.enabled : one.disabled;
        return shown;
    }
};

/// A page that tells its wizard which buttons it wants when it is shown.
class CAsking : public CPage
{
public:
    DWORD wanted = 0;
    BOOL OnSetActive() override
    {
        static_cast<CPropertySheet*>(GetParent())->SetWizardButtons(wanted);
        return CPage::OnSetActive();
    }
};
} // namespace

TEST(Wizard, next_back_and_finish_lead_through_the_pages)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    std::vector<int> shown;
    const auto clickAt = [&](int id)
    {
        shown.push_back(sheet.GetActiveIndex());
        clickUnpumped(sheet.at(id));
    };
    sheet.steps = {[&]
                   {
                       sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
                       pages.a.SetDlgItemText(IDC_TEXT, L"typed");
                       clickAt(ID_WIZNEXT);
                   },
                   [&] { clickAt(ID_WIZBACK); },
                   [&] { clickAt(ID_WIZNEXT); },
                   [&] { clickAt(ID_WIZNEXT); },
                   [&] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH); },
                   [&] { clickAt(ID_WIZFINISH); }};
    EXPECT_EQ(sheet.DoModal(), ID_WIZFINISH);
    EXPECT_EQ(shown, (std::vector<int>{0, 1, 0, 1, 2}));
    EXPECT_EQ(pages.a.value, L"typed") << "read when the page was left";
    EXPECT_EQ(pages.diary, (Log{L"A active", L"A next", L"A left", L"B active", L"B back", L"B left", L"A active",
                                L"A next", L"A left", L"B active", L"B next", L"B left", L"C active", L"C finish"}));
    EXPECT_TRUE(sheet.IsWizard());
    EXPECT_TRUE(owner.wnd.IsWindowEnabled());
}

TEST(Wizard, enter_goes_on_and_escape_cancels)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    sheet.steps = {[&] { sheet.SetWizardButtons(PSWIZB_NEXT); }, [&] { pressUnpumped(VK_RETURN); },
                   [&] { pressUnpumped(VK_ESCAPE); }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(pages.diary, (Log{L"A active", L"A next", L"A left", L"B active", L"B query", L"A reset", L"A cancel",
                                L"B reset", L"B cancel"}));
}

TEST(Wizard, enter_on_the_last_page_finishes)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    CPage only;
    sheet.AddPage(&only);
    sheet.steps = {[&] { sheet.SetWizardButtons(PSWIZB_FINISH); }, [&] { pressUnpumped(VK_RETURN); }};
    EXPECT_EQ(sheet.DoModal(), ID_WIZFINISH);
    EXPECT_EQ(only.log, (Log{L"active", L"finish"}));
}

TEST(Wizard, pages_that_refuse_stay)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    std::vector<int> shown;
    const auto pressAt = [&](int id)
    {
        sheet.PressButton(id);
        shown.push_back(sheet.GetActiveIndex());
    };
    sheet.steps = {[&]
                   {
                       sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
                       pages.a.next = -1;
                       pressAt(PSBTN_NEXT);
                       pages.a.next = 0;
                       pages.a.leaves = FALSE;
                       pressAt(PSBTN_NEXT);
                       pages.a.leaves = TRUE;
                       pressAt(PSBTN_NEXT);
                       pages.b.back = -1;
                       pressAt(PSBTN_BACK);
                       pressAt(PSBTN_NEXT);
                       sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
                       pages.c.finishes = FALSE;
                       pressAt(PSBTN_FINISH);
                   },
                   [&]
                   {
                       shown.push_back(sheet.GetActiveIndex());
                       pages.c.cancels = FALSE;
                       pressAt(PSBTN_CANCEL);
                       pages.c.finishes = TRUE;
                       sheet.PressButton(PSBTN_FINISH);
                   }};
    EXPECT_EQ(sheet.DoModal(), ID_WIZFINISH);
    EXPECT_EQ(shown, (std::vector<int>{0, 0, 1, 1, 2, 2, 2, 2}));
}

TEST(Wizard, a_page_may_name_the_page_that_follows)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    std::vector<int> shown;
    sheet.steps = {[&]
                   {
                       sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
                       pages.a.next = IDD_PAGE_TWO;
                       sheet.PressButton(PSBTN_NEXT);
                       shown.push_back(sheet.GetActiveIndex());
                       pages.c.back = IDD_PAGE_ONE;
                       sheet.PressButton(PSBTN_BACK);
                       shown.push_back(sheet.GetActiveIndex());
                       pages.a.next = 9999;
                       sheet.PressButton(PSBTN_NEXT);
                       shown.push_back(sheet.GetActiveIndex());
                       sheet.PressButton(PSBTN_CANCEL);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, (std::vector<int>{2, 0, 0})) << "no page has the last number";
    EXPECT_EQ(pages.b.log, Log{});
}

TEST(Wizard, a_page_that_refuses_to_be_shown_is_passed_over)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    pages.b.activates = FALSE;
    int shown = -1;
    sheet.steps = {[&]
                   {
                       sheet.SetWizardButtons(PSWIZB_NEXT);
                       sheet.PressButton(PSBTN_NEXT);
                       shown = sheet.GetActiveIndex();
                       sheet.PressButton(PSBTN_CANCEL);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, 2);
}

TEST(Wizard, its_buttons_are_what_it_is_told)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    Pages pages(sheet);
    CString finish;
    std::vector<std::wstring> shown;
    const DWORD flags[] = {PSWIZB_NEXT, PSWIZB_BACK | PSWIZB_NEXT, PSWIZB_BACK, PSWIZB_BACK | PSWIZB_FINISH,
                           PSWIZB_BACK | PSWIZB_DISABLEDFINISH};
    for (const DWORD flag : flags)
    {
        sheet.steps.push_back([&, flag] { sheet.SetWizardButtons(flag); });
        sheet.steps.push_back([&] { shown.push_back(sheet.buttons()); });
    }
    sheet.steps.push_back([&] { sheet.SetFinishText(L"Weld"); });
    sheet.steps.push_back(
        [&]
        {
            CWnd::FromHandle(sheet.at(ID_WIZFINISH))->GetWindowText(finish);
            shown.push_back(sheet.buttons());
            clickUnpumped(sheet.at(ID_WIZFINISH));
        });
    EXPECT_EQ(sheet.DoModal(), ID_WIZFINISH);
    EXPECT_EQ(shown, (std::vector<std::wstring>{L"bN", L"BN", L"Bn", L"BF", L"Bf", L"F"}));
    EXPECT_EQ(finish, L"Weld");
}

TEST(Wizard, a_page_asks_for_its_buttons_when_it_is_shown)
{
    Owner owner;
    CWizard sheet(&owner.wnd);
    CAsking first, second;
    first.wanted = PSWIZB_NEXT;
    second.wanted = PSWIZB_BACK | PSWIZB_FINISH;
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    std::vector<std::wstring> shown;
    sheet.steps = {[&]
                   {
                       shown.push_back(sheet.buttons());
                       clickUnpumped(sheet.at(ID_WIZNEXT));
                   },
                   [&]
                   {
                       shown.push_back(sheet.buttons());
                       clickUnpumped(sheet.at(ID_WIZBACK));
                   },
                   [&]
                   {
                       shown.push_back(sheet.buttons());
                       sheet.PressButton(PSBTN_CANCEL);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, (std::vector<std::wstring>{L"bN", L"BF", L"bN"}));
}

TEST(Wizard, beside_its_parent_it_keeps_its_buttons)
{
    Owner owner;
    CPropertySheet sheet(L"Wizard");
    sheet.SetWizardMode();
    Pages pages(sheet);
    ASSERT_TRUE(sheet.Create(&owner.wnd));
    sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
    pumpFor(20);
    EXPECT_TRUE(::IsWindowVisible(button(sheet, ID_WIZNEXT)));
    click(centreOf(button(sheet, ID_WIZNEXT)));
    EXPECT_TRUE(waitFor([&] { return sheet.GetActivePage() == &pages.b; }));
}
