// In which order a property sheet tells its pages what happens, and what its loop answers.
#include <functional>

#include "SheetFixture.h"

TEST(PropertySheets, ok_leaves_the_shown_page_and_applies_those_that_were_shown)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    Pages pages(sheet);
    sheet.steps = {[&]
                   {
                       sheet.SetActivePage(1);
                       sheet.PressButton(PSBTN_OK);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_EQ(pages.diary,
              (Log{L"A active", L"A left", L"B active", L"B left", L"A apply", L"A ok", L"B apply", L"B ok"}));
}

TEST(PropertySheets, a_page_that_does_not_apply_keeps_the_sheet_open)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    Pages pages(sheet);
    pages.b.applies = FALSE;
    bool stood = false;
    sheet.steps = {[&]
                   {
                       sheet.SetActivePage(1);
                       sheet.PressButton(PSBTN_OK);
                   },
                   [&]
                   {
                       stood = sheet.m_hWnd != nullptr;
                       clickUnpumped(button(sheet, IDCANCEL));
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_TRUE(stood);
}

TEST(PropertySheets, cancel_asks_the_shown_page_and_resets_those_that_were_shown)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    Pages pages(sheet);
    sheet.steps = {[&]
                   {
                       sheet.SetActivePage(1);
                       clickUnpumped(button(sheet, IDCANCEL));
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(pages.diary,
              (Log{L"A active", L"A left", L"B active", L"B query", L"A reset", L"A cancel", L"B reset", L"B cancel"}));
}

TEST(PropertySheets, the_answer_is_the_button_that_ends_the_sheet)
{
    using Step = std::function<void(Sheet&, CPage&)>;
    const struct
    {
        const char* what;
        std::vector<Step> steps;
        INT_PTR answer;
    } rows[] = {
        {"ok", {[](Sheet& sheet, CPage&) { sheet.PressButton(PSBTN_OK); }}, IDOK},
        {"apply, then cancel",
         {[](Sheet& sheet, CPage& page)
          {
              page.SetModified();
              clickUnpumped(button(sheet, ID_APPLY_NOW));
          },
          [](Sheet& sheet, CPage&) { clickUnpumped(button(sheet, IDCANCEL)); }},
         IDCANCEL},
        {"apply, then the close box",
         {[](Sheet& sheet, CPage& page)
          {
              page.SetModified();
              clickUnpumped(button(sheet, ID_APPLY_NOW));
          },
          [](Sheet& sheet, CPage&) { sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }},
         IDCANCEL},
        {"ok refused, then cancel",
         {[](Sheet& sheet, CPage& page)
          {
              page.applies = FALSE;
              clickUnpumped(button(sheet, IDOK));
          },
          [](Sheet&, CPage&) { pressUnpumped(VK_ESCAPE); }},
         IDCANCEL},
        {"nothing to cancel any more",
         {[](Sheet& sheet, CPage& page)
          {
              page.CancelToClose();
              clickUnpumped(button(sheet, IDOK));
          }},
         IDOK},
        {"a number of the host's own", {[](Sheet& sheet, CPage&) { sheet.EndDialog(4321); }}, 4321},
    };
    Owner owner;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.what);
        Sheet sheet(L"Sheet", &owner.wnd);
        CPage page;
        sheet.AddPage(&page);
        for (const Step& step : row.steps)
            sheet.steps.push_back([&] { step(sheet, page); });
        EXPECT_EQ(sheet.DoModal(), row.answer);
        EXPECT_TRUE(owner.wnd.IsWindowEnabled());
    }
}

TEST(PropertySheets, the_apply_button_works_by_a_click_and_keeps_the_sheet)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    Pages pages(sheet);
    CString shown;
    sheet.steps = {[&]
                   {
                       pages.a.SetDlgItemText(IDC_TEXT, L"new");
                       pages.a.SetModified();
                       clickUnpumped(button(sheet, ID_APPLY_NOW));
                   },
                   [&]
                   {
                       shown = pages.a.value;
                       sheet.PressButton(PSBTN_CANCEL);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, L"new");
    EXPECT_EQ(pages.diary,
              (Log{L"A active", L"A left", L"A apply", L"A ok", L"A active", L"A query", L"A reset", L"A cancel"}));
}

TEST(PropertySheets, siblings_are_asked_until_one_answers)
{
    class CSibling : public CPage
    {
    public:
        LRESULT answer = 0;
        int asked = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != PSM_QUERYSIBLINGS)
                return CPage::WindowProc(message, wParam, lParam);
            asked += wParam == 3 && lParam == 4 ? 1 : 1000;
            return answer;
        }
    };
    Owner owner;
    CPropertySheet sheet(L"Beside");
    CSibling one, two, three, unshown;
    for (CSibling* page : {&one, &two, &three, &unshown})
        sheet.AddPage(page);
    ASSERT_TRUE(sheet.Create(&owner.wnd));
    sheet.SetActivePage(1);
    sheet.SetActivePage(2);
    EXPECT_EQ(three.QuerySiblings(3, 4), 0);
    two.answer = 77;
    EXPECT_EQ(three.QuerySiblings(3, 4), 77);
    EXPECT_EQ(one.asked, 2);
    EXPECT_EQ(two.asked, 2);
    EXPECT_EQ(unshown.asked, 0) << "it was never made";
}
