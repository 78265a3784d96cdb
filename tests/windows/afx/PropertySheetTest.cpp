// Property sheets and pages: construction, the modal loop, pages that refuse, sheets beside their parent.
#include <memory>

#include "SheetFixture.h"
#include "support/LeakCounters.h"

TEST(PropertySheets, five_constructors_take_caption_parent_and_page)
{
    Owner owner;
    const auto picture = reinterpret_cast<HBITMAP>(UINT_PTR{4});
    const auto palette = reinterpret_cast<HPALETTE>(UINT_PTR{8});
    const auto header = reinterpret_cast<HBITMAP>(UINT_PTR{12});
    const CPropertySheet plain, byId(IDS_PAGE_TITLE, &owner.wnd, 1), byText(L"Text", &owner.wnd, 2);
    const CPropertySheet pictureById(IDS_PAGE_TITLE, nullptr, 3, picture, palette, header);
    const CPropertySheet pictureByText(L"Text", nullptr, 4, picture);
    EXPECT_EQ(plain.GetActiveIndex(), 0);
    EXPECT_EQ(byId.GetActiveIndex(), 1);
    EXPECT_EQ(byText.GetActiveIndex(), 2);
    EXPECT_EQ(pictureById.GetActiveIndex(), 3);
    EXPECT_EQ(pictureByText.GetActiveIndex(), 4);
    EXPECT_EQ(byId.m_psh.dwFlags, static_cast<DWORD>(PSH_PROPSHEETPAGE));
    EXPECT_EQ(pictureById.m_psh.dwFlags, static_cast<DWORD>(PSH_PROPSHEETPAGE | PSH_USEHBMWATERMARK | PSH_WATERMARK |
                                                            PSH_USEHPLWATERMARK | PSH_USEHBMHEADER | PSH_HEADER));
    EXPECT_EQ(pictureById.m_psh.hplWatermark, palette);
    EXPECT_EQ(pictureById.m_psh.hbmHeader, header);
    EXPECT_EQ(pictureByText.m_psh.dwFlags, static_cast<DWORD>(PSH_PROPSHEETPAGE | PSH_USEHBMWATERMARK | PSH_WATERMARK));
}

TEST(PropertySheets, pages_are_counted_found_and_removed_without_a_window)
{
    CPropertySheet sheet(L"Sheet");
    CPage one, two(IDD_PAGE_TWO);
    sheet.AddPage(&one);
    sheet.AddPage(&two);
    sheet.AddPage(&one); // it is there already
    sheet.AddPage(nullptr);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    EXPECT_EQ(sheet.GetPage(1), &two);
    EXPECT_EQ(sheet.GetPage(2), nullptr);
    EXPECT_EQ(sheet.GetPage(-1), nullptr);
    EXPECT_EQ(sheet.GetPageIndex(&two), 1);
    EXPECT_EQ(sheet.GetPageIndex(nullptr), -1);
    EXPECT_TRUE(sheet.SetActivePage(&two));
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_FALSE(sheet.SetActivePage(7));
    EXPECT_EQ(sheet.GetActivePage(), nullptr) << "it is not shown";
    sheet.RemovePage(&one);
    sheet.RemovePage(5);
    sheet.RemovePage(nullptr);
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetPage(0), &two);
    {
        CPage third;
        sheet.AddPage(&third);
        EXPECT_EQ(sheet.GetPageCount(), 2);
    }
    EXPECT_EQ(sheet.GetPageCount(), 1) << "a page that is deleted leaves";
}

TEST(PropertySheets, ok_applies_the_page_and_is_the_answer)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one(IDD_PAGE_ONE, IDS_PAGE_TITLE), two(IDD_PAGE_TWO);
    one.value = L"before";
    sheet.AddPage(&one);
    sheet.AddPage(&two);
    CString title, shown, caption;
    BOOL ownerEnabled = TRUE;
    sheet.steps = {[&]
                   {
                       TCITEM item = {};
                       wchar_t text[32] = {};
                       item.mask = TCIF_TEXT;
                       item.pszText = text;
                       item.cchTextMax = 32;
                       sheet.GetTabControl()->SendMessage(TCM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
                       title = text;
                       one.GetDlgItemText(IDC_TEXT, shown);
                       sheet.GetWindowText(caption);
                       ownerEnabled = owner.wnd.IsWindowEnabled();
                       one.SetDlgItemText(IDC_TEXT, L"after");
                   },
                   [&] { clickUnpumped(button(sheet, IDOK)); }};
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_EQ(title, L"A title");
    EXPECT_EQ(caption, L"Sheet");
    EXPECT_EQ(shown, L"before");
    EXPECT_EQ(one.value, L"after");
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(owner.wnd.IsWindowEnabled());
    EXPECT_EQ(one.log, (Log{L"active", L"left", L"apply", L"ok"}));
    EXPECT_EQ(two.log, Log{}) << "never shown";
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(one.m_hWnd, nullptr);
    EXPECT_EQ(sheet.initialised, 1);
}

TEST(PropertySheets, escape_cancels)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one;
    sheet.AddPage(&one);
    sheet.steps = {[&] { pressUnpumped(VK_ESCAPE); }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(one.log, (Log{L"active", L"query", L"reset", L"cancel"}));
}

TEST(PropertySheets, pages_that_refuse_keep_the_sheet_and_themselves)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one, two(IDD_PAGE_TWO);
    sheet.AddPage(&one);
    sheet.AddPage(&two);
    one.applies = one.cancels = one.leaves = FALSE;
    std::vector<int> shown;
    sheet.steps = {[&] { sheet.SetActivePage(1); },
                   [&]
                   {
                       shown.push_back(sheet.GetActiveIndex());
                       one.leaves = TRUE;
                       sheet.PressButton(PSBTN_OK);
                   },
                   [&]
                   {
                       shown.push_back(sheet.GetActiveIndex());
                       sheet.PressButton(PSBTN_CANCEL);
                   },
                   [&]
                   {
                       shown.push_back(sheet.GetActiveIndex());
                       one.cancels = TRUE;
                       sheet.PressButton(PSBTN_CANCEL);
                   }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(two.log, Log{});
}

TEST(PropertySheets, keys_walk_through_the_pages_and_tab_reaches_the_buttons)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one, two(IDD_PAGE_TWO);
    sheet.AddPage(&one);
    sheet.AddPage(&two);
    int behindCtrlTab = -1;
    bool reached = false;
    CPropertyPage* active = nullptr;
    sheet.steps = {[&]
                   {
                       one.GetDlgItem(IDC_CHECK)->SetFocus(); // the last of the page
                       pressUnpumped(VK_TAB);
                   },
                   [&]
                   {
                       reached = ::GetFocus() == button(sheet, IDOK);
                       pressUnpumped(VK_TAB, VK_CONTROL);
                   },
                   [&]
                   {
                       behindCtrlTab = sheet.GetActiveIndex();
                       active = sheet.GetActivePage();
                       sheet.EndDialog(7);
                   }};
    EXPECT_EQ(sheet.DoModal(), 7);
    EXPECT_TRUE(reached);
    EXPECT_EQ(behindCtrlTab, 1);
    EXPECT_EQ(active, &two);
    EXPECT_EQ(one.log, (Log{L"active", L"left"}));
    EXPECT_EQ(two.log, (Log{L"active"}));
}

TEST(PropertySheets, the_apply_button_follows_the_pages_changes)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one;
    sheet.AddPage(&one);
    std::vector<bool> enabled;
    sheet.steps = {[&]
                   {
                       enabled.push_back(one.hasApplyButton());
                       one.SetModified();
                       enabled.push_back(one.hasApplyButton());
                       one.SetModified(FALSE);
                       enabled.push_back(one.hasApplyButton());
                       one.SetModified();
                       sheet.PressButton(PSBTN_APPLYNOW);
                       enabled.push_back(one.hasApplyButton());
                       one.CancelToClose();
                       enabled.push_back(::IsWindowEnabled(button(sheet, IDCANCEL)) != FALSE);
                       one.EndDialog(5);
                   }};
    EXPECT_EQ(sheet.DoModal(), 5);
    EXPECT_EQ(enabled, (std::vector<bool>{false, true, false, false, false}));
    EXPECT_EQ(one.log, (Log{L"active", L"left", L"apply", L"ok", L"active"}));
}

TEST(PropertySheets, a_modeless_sheet_has_no_buttons_and_takes_and_loses_pages)
{
    Owner owner;
    CPropertySheet sheet(L"Beside");
    CPage one, two(IDD_PAGE_TWO), spoilt(9999);
    sheet.AddPage(&one);
    ASSERT_TRUE(sheet.Create(&owner.wnd));
    EXPECT_TRUE(sheet.IsModeless());
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_TRUE(owner.wnd.IsWindowEnabled());
    CRect rect;
    sheet.GetWindowRect(&rect);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
        EXPECT_TRUE(button(sheet, id) == nullptr || !::IsWindowVisible(button(sheet, id))) << id;
    sheet.AddPage(&two);
    sheet.AddPage(&spoilt);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
    EXPECT_TRUE(sheet.SetActivePage(&two));
    EXPECT_EQ(sheet.GetActivePage(), &two);
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    sheet.RemovePage(&two);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &one);
    EXPECT_EQ(two.m_hWnd, nullptr);
    sheet.SetTitle(L"Other");
    CString caption;
    sheet.GetWindowText(caption);
    EXPECT_EQ(caption, L"Other");
    EXPECT_FALSE(sheet.Create(&owner.wnd)) << "it has a window";
    EXPECT_EQ(sheet.DoModal(), -1);
    sheet.SendMessage(WM_CLOSE);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(one.m_hWnd, nullptr);
    ASSERT_TRUE(sheet.Create(&owner.wnd)) << "it may be shown again";
}

TEST(PropertySheets, what_cannot_be_shown_answers_plainly)
{
    Owner owner;
    CPropertySheet empty(L"Empty", &owner.wnd);
    EXPECT_EQ(empty.DoModal(), -1);
    EXPECT_FALSE(empty.Create(&owner.wnd));
    EXPECT_FALSE(empty.PressButton(PSBTN_OK));
    CPropertySheet spoilt(L"Spoilt", &owner.wnd);
    CPage missing(9999);
    CPropertyPage nameless;
    spoilt.AddPage(&missing);
    EXPECT_EQ(spoilt.DoModal(), -1);
    spoilt.RemovePage(&missing);
    spoilt.AddPage(&nameless);
    EXPECT_EQ(spoilt.DoModal(), -1);
    EXPECT_TRUE(owner.wnd.IsWindowEnabled());
    nameless.SetModified();
    nameless.CancelToClose();
    EXPECT_EQ(nameless.QuerySiblings(1, 2), 0);
    CPropertyPage{}.EndDialog(1);
}

TEST(PropertySheets, a_parent_that_was_deleted_is_no_owner)
{
    auto parent = std::make_unique<Owner>();
    Sheet sheet(L"Orphan", &parent->wnd);
    CPage one;
    sheet.AddPage(&one);
    parent.reset();
    sheet.steps = {[&] { sheet.PressButton(PSBTN_OK); }};
    EXPECT_EQ(sheet.DoModal(), IDOK);
}

TEST(PropertySheets, a_sheet_that_is_destroyed_while_it_runs_ends_its_loop)
{
    Owner owner;
    Sheet sheet(L"Sheet", &owner.wnd);
    CPage one;
    sheet.AddPage(&one);
    sheet.steps = {[&] { sheet.DestroyWindow(); }};
    sheet.DoModal();
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_TRUE(owner.wnd.IsWindowEnabled());
}

TEST(PropertySheets, a_page_deleted_while_the_sheet_is_shown_leaves_it)
{
    Owner owner;
    CPropertySheet sheet(L"Beside");
    CPage one;
    auto two = std::make_unique<CPage>(IDD_PAGE_TWO);
    sheet.AddPage(&one);
    sheet.AddPage(two.get());
    ASSERT_TRUE(sheet.Create(&owner.wnd));
    sheet.SetActivePage(1);
    two.reset();
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 1);
    pumpFor(0);
    EXPECT_EQ(sheet.GetActivePage(), &one);
}

TEST(PropertySheets, sixty_of_them_leave_nothing_behind)
{
    Owner owner;
    const auto use = [&](int times)
    {
        for (int i = 0; i < times; ++i)
        {
            CPropertySheet sheet(L"Beside");
            CPage one, two(IDD_PAGE_TWO);
            sheet.AddPage(&one);
            sheet.AddPage(&two);
            ASSERT_TRUE(sheet.Create(&owner.wnd));
            sheet.SetActivePage(1);
            if (i % 2 == 0)
                sheet.DestroyWindow();
        }
        AfxGetThread()->OnIdle(1);
        pumpFor(0);
    };
    use(5);
    const int objects = gdiObjectCount(), windows = windowCount(), others = menuAndIconCount();
    use(60);
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(menuAndIconCount(), others);
}
