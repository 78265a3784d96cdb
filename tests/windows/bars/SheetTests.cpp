// The property sheet without OK: which flags take it away, and what Enter does.
#include <gtest/gtest.h>

#include "oxa/dialogs/KxPropertySheet.h"
#include "resource.h"
#include "support/LeakCounters.h"
#include "support/RealInput.h"
#include "support/StepSheet.h"

namespace
{
class Judged : public CKxPropertySheet
{
public:
    using CKxPropertySheet::CKxPropertySheet;
    bool disabled = false;
    int asked = 0;

    /// The three ways to restrict a sheet; `byVirtual`: what IsPropertySheetDisabled answers.
    void restrict(bool protectionDisabled, bool byCall, bool byVirtual)
    {
        SetProtectionDisabled(protectionDisabled);
        if (byCall)
            DisablePropertySheet();
        disabled = byVirtual;
    }
    bool IsPropertySheetDisabled() override
    {
        ++asked;
        return disabled;
    }
};
using Sheet = StepSheet<Judged>;

class Page : public CPropertyPage
{
public:
    int applied = 0;
    Page() : CPropertyPage(IDD_SHEET_PAGE) {}
    BOOL OnApply() override
    {
        ++applied;
        return CPropertyPage::OnApply();
    }
};

/// A window in front, so that keys reach the sheet over it.
class Owner : public CWnd
{
public:
    Owner()
    {
        CreateEx(0, nullptr, L"owner", WS_POPUP | WS_VISIBLE, CRect(50, 50, 350, 250), nullptr, 0);
        SetForegroundWindow();
    }
    ~Owner() override { DestroyWindow(); }
};
} // namespace

TEST(KxPropertySheet, ok_is_taken_away_by_the_flags)
{
    const struct
    {
        bool protectionDisabled, disabled, sheetDisabled, okEnabled;
    } rows[] = {
        {false, false, false, true}, {false, true, false, false}, {false, false, true, false},
        {false, true, true, false},  {true, false, false, true},  {true, true, false, true},
        {true, false, true, true},   {true, true, true, true},
    };
    Owner owner;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.protectionDisabled << row.disabled << row.sheetDisabled);
        Sheet sheet(L"Sheet", &owner);
        Page page;
        sheet.AddPage(&page);
        sheet.restrict(row.protectionDisabled, row.disabled, row.sheetDisabled);
        BOOL okEnabled = 2, cancelEnabled = 2;
        sheet.steps = {[&]
                       {
                           okEnabled = sheet.GetDlgItem(IDOK)->IsWindowEnabled();
                           cancelEnabled = sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled();
                           sheet.PressButton(PSBTN_CANCEL);
                       }};
        EXPECT_EQ(sheet.DoModal(), IDCANCEL);
        EXPECT_EQ(okEnabled, row.okEnabled ? TRUE : FALSE);
        EXPECT_EQ(cancelEnabled, TRUE);
    }
}

TEST(KxPropertySheet, enter_presses_ok_unless_the_virtual_says_that_the_sheet_is_disabled)
{
    const struct
    {
        bool protectionDisabled, disabled, sheetDisabled;
        INT_PTR answer; ///< leftOver: the sheet still stood
    } rows[] = {
        {false, false, false, IDOK},
        {false, false, true, Sheet::leftOver},
        {true, false, true, Sheet::leftOver}, // OK is enabled, but Enter does nothing
        {true, true, false, IDOK},
    };
    Owner owner;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.protectionDisabled << row.disabled << row.sheetDisabled);
        Sheet sheet(L"Sheet", &owner);
        Page page;
        sheet.AddPage(&page);
        sheet.restrict(row.protectionDisabled, row.disabled, row.sheetDisabled);
        sheet.steps = {[&]
                       {
                           page.GetDlgItem(IDC_EDIT)->SetFocus();
                           pressUnpumped(VK_RETURN);
                       }};
        EXPECT_EQ(sheet.DoModal(), row.answer);
        EXPECT_EQ(page.applied, row.answer == IDOK ? 1 : 0);
    }
}

TEST(KxPropertySheet, enter_becomes_clear_and_other_keys_stay)
{
    Owner owner;
    Judged sheet(L"Beside");
    Page page;
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&owner));
    const auto pass = [&](UINT message, WPARAM key)
    {
        MSG msg = {};
        msg.hwnd = owner.m_hWnd; // of another window, so that nothing is dispatched
        msg.message = message;
        msg.wParam = key;
        sheet.PreTranslateMessage(&msg);
        return msg.wParam;
    };
    EXPECT_EQ(pass(WM_KEYDOWN, VK_RETURN), static_cast<WPARAM>(VK_RETURN));
    sheet.disabled = true;
    EXPECT_EQ(pass(WM_KEYDOWN, VK_RETURN), static_cast<WPARAM>(VK_CLEAR));
    EXPECT_EQ(pass(WM_KEYDOWN, VK_SPACE), static_cast<WPARAM>(VK_SPACE));
    EXPECT_EQ(pass(WM_KEYUP, VK_RETURN), static_cast<WPARAM>(VK_RETURN));
    EXPECT_EQ(pass(WM_CHAR, VK_RETURN), static_cast<WPARAM>(VK_RETURN));
    sheet.SetProtectionDisabled(true); // does not count here
    EXPECT_EQ(pass(WM_KEYDOWN, VK_RETURN), static_cast<WPARAM>(VK_CLEAR));
}

TEST(KxPropertySheet, the_virtual_is_not_asked_behind_a_disabled_protection)
{
    Owner owner;
    Judged sheet(L"Beside");
    Page page;
    sheet.AddPage(&page);
    sheet.SetProtectionDisabled(true);
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_EQ(sheet.asked, 0);
}

TEST(KxPropertySheet, five_constructors_start_with_both_flags_off)
{
    class Open : public CKxPropertySheet
    {
    public:
        using CKxPropertySheet::CKxPropertySheet;
        bool off() const { return !m_bProtectionDisabled && !m_bDisabled; }
    };
    EXPECT_TRUE(Open().off());
    EXPECT_TRUE(Open(0U, nullptr, 1U).off());
    EXPECT_TRUE(Open(L"Text", nullptr, 1U).off());
    EXPECT_TRUE(Open(0U, nullptr, 1U, nullptr, nullptr, nullptr).off());
    const Open pictured(L"Text", nullptr, 2U, reinterpret_cast<HBITMAP>(UINT_PTR{4}), nullptr, nullptr);
    EXPECT_TRUE(pictured.off());
    EXPECT_EQ(pictured.GetActiveIndex(), 2);
    EXPECT_NE(pictured.m_psh.dwFlags & PSH_WATERMARK, 0U);
    EXPECT_FALSE(Open().IsPropertySheetDisabled());
}

TEST(KxPropertySheet, two_thousand_sheets_leave_nothing_behind)
{
    Owner owner;
    const auto use = [&](int times)
    {
        for (int i = 0; i < times; ++i)
        {
            Judged sheet(L"Beside", &owner);
            Page page;
            sheet.AddPage(&page);
            sheet.DisablePropertySheet();
            ASSERT_TRUE(sheet.Create(&owner));
        }
        AfxGetThread()->OnIdle(1);
        pumpFor(0);
    };
    use(10);
    const int objects = gdiObjectCount(), windows = windowCount(), others = menuAndIconCount();
    use(2000);
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(menuAndIconCount(), others);
}
