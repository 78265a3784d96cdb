// What's-this tips and help topics, with real keys and clicks.
#include <afxwin.h>
#include <gtest/gtest.h>
#include "TestProject.h"
#include "kitrel/KxHelpTools.h"
#include "resource.h"
#include "support/LeakCounters.h"
#include "support/RealInput.h"

namespace
{
HELPINFO helpFor(HWND control)
{
    HELPINFO info = {};
    info.cbSize = sizeof info;
    info.iContextType = HELPINFO_WINDOW;
    info.iCtrlId = ::GetDlgCtrlID(control);
    info.hItemHandle = control;
    info.dwContextId = ::GetWindowContextHelpId(control);
    return info;
}

BOOL whatsThis(CTestDialog& dialog, int id, const wchar_t* project = nullptr)
{
    HELPINFO info = helpFor(dialog.item(id));
    return CKxHelpTools::DisplayWhatsThis(&dialog, &info, 0, 0, project);
}

bool tipIsGone()
{
    return CKxHelpTools::GetTipWindow() == nullptr;
}
} // namespace

TEST(HelpTools, texts_are_found_by_help_id_and_control)
{
    EXPECT_STREQ(CKxHelpTools::GetHelpText(HELP_UNFILED, IDC_HELPED, L"TESTS"), L"Texte du champ.");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(IDD_UNFILED, IDC_HELPED, nullptr), L"Texte du champ.");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(HELP_UNFILED, IDC_UNHELPED, nullptr), L"Texte du dialogue.");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(HELP_UNFILED, 0, nullptr), L"Texte du dialogue.");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(HELP_UNFILED, IDC_HELPED, L"KITREL"), L"");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(0x10000 + IDD_UNFILED, IDC_HELPED, nullptr), L"");
    EXPECT_STREQ(CKxHelpTools::GetHelpText(0, IDC_HELPED, nullptr), L"");
}

TEST(HelpTools, whats_this_shows_a_tip_under_the_control_and_leaves_the_focus)
{
    CTestDialog dialog(IDD_UNFILED);
    ::SetFocus(dialog.item(IDC_HELPED));
    ASSERT_TRUE(whatsThis(dialog, IDC_HELPED));
    const HWND tip = CKxHelpTools::GetTipWindow();
    ASSERT_NE(tip, nullptr);
    EXPECT_TRUE(::IsWindowVisible(tip));
    EXPECT_EQ(::GetFocus(), dialog.item(IDC_HELPED));
    RECT control = {}, shown = {};
    ::GetWindowRect(dialog.item(IDC_HELPED), &control);
    ::GetWindowRect(tip, &shown);
    EXPECT_EQ(shown.left, control.left);
    EXPECT_GT(shown.top, control.bottom);
    CKxHelpTools::Help(HELP_QUIT, 0);
    EXPECT_TRUE(tipIsGone());
    EXPECT_FALSE(::IsWindow(tip));
}

TEST(HelpTools, a_control_without_help_shows_the_text_of_its_dialog)
{
    CTestDialog dialog(IDD_UNFILED);
    EXPECT_TRUE(whatsThis(dialog, IDC_UNHELPED));
    CKxHelpTools::Help(HELP_QUIT, 0);
}

TEST(HelpTools, nothing_filed_shows_nothing)
{
    CTestDialog dialog(IDD_FILED);
    EXPECT_FALSE(whatsThis(dialog, IDC_FILED_BUTTON));
    CTestDialog other(IDD_UNFILED);
    EXPECT_FALSE(whatsThis(other, IDC_HELPED, L"KITREL"));
    EXPECT_TRUE(tipIsGone());
}

TEST(HelpTools, a_control_with_a_help_id_of_its_own_shows_that_text)
{
    CTestDialog dialog(IDD_FILED);
    ::SetWindowContextHelpId(dialog.item(IDC_PLAIN_LABEL), HELP_ALONE);
    EXPECT_TRUE(whatsThis(dialog, IDC_PLAIN_LABEL));
    CKxHelpTools::Help(HELP_QUIT, 0);
}

TEST(HelpTools, a_help_id_given_by_the_caller_comes_first)
{
    CTestDialog dialog(IDD_FILED);
    HELPINFO info = helpFor(dialog.item(IDC_FILED_BUTTON));
    EXPECT_STREQ(CKxHelpTools::GetHelpText(HELP_ALONE, IDC_FILED_BUTTON, nullptr), L"Texte isolé.");
    EXPECT_TRUE(CKxHelpTools::DisplayWhatsThis(&dialog, &info, HELP_ALONE, 0, nullptr));
    CKxHelpTools::Help(HELP_QUIT, 0);
}

TEST(HelpTools, missing_arguments_do_no_harm)
{
    CTestDialog dialog(IDD_UNFILED);
    HELPINFO info = helpFor(dialog.item(IDC_HELPED));
    EXPECT_FALSE(CKxHelpTools::DisplayWhatsThis(nullptr, &info, 0, 0, nullptr));
    EXPECT_FALSE(CKxHelpTools::DisplayWhatsThis(&dialog, nullptr, 0, 0, nullptr));
    CWnd none;
    EXPECT_FALSE(CKxHelpTools::DisplayWhatsThis(&none, &info, 0, 0, nullptr));
    info.cbSize = 8;
    EXPECT_FALSE(CKxHelpTools::DisplayWhatsThis(&dialog, &info, 0, 0, nullptr));
    EXPECT_TRUE(tipIsGone());
}

TEST(HelpTools, a_key_takes_the_tip_away_and_reaches_the_control)
{
    CTestDialog dialog(IDD_UNFILED);
    ::SetForegroundWindow(dialog.m_hWnd);
    ::SetFocus(dialog.item(IDC_HELPED));
    ASSERT_TRUE(whatsThis(dialog, IDC_HELPED));
    key('K');
    EXPECT_TRUE(waitFor(tipIsGone));
    EXPECT_TRUE(waitFor([&] { return dialog.text(IDC_HELPED) == L"k"; }));
}

TEST(HelpTools, a_click_takes_the_tip_away)
{
    CTestDialog dialog(IDD_UNFILED);
    ::SetForegroundWindow(dialog.m_hWnd);
    ASSERT_TRUE(whatsThis(dialog, IDC_HELPED));
    click(centreOf(dialog.item(IDC_UNHELPED)));
    EXPECT_TRUE(waitFor(tipIsGone));
    EXPECT_NE(::GetCapture(), dialog.m_hWnd);
}

TEST(HelpTools, the_tip_goes_with_the_dialog)
{
    HWND tip = nullptr;
    {
        CTestDialog dialog(IDD_UNFILED);
        ASSERT_TRUE(whatsThis(dialog, IDC_HELPED));
        tip = CKxHelpTools::GetTipWindow();
    }
    EXPECT_TRUE(tipIsGone());
    EXPECT_FALSE(::IsWindow(tip));
}

TEST(HelpTools, a_second_tip_replaces_the_first)
{
    CTestDialog dialog(IDD_UNFILED);
    ASSERT_TRUE(whatsThis(dialog, IDC_HELPED));
    const HWND first = CKxHelpTools::GetTipWindow();
    ASSERT_TRUE(whatsThis(dialog, IDC_UNHELPED));
    EXPECT_NE(CKxHelpTools::GetTipWindow(), nullptr);
    EXPECT_FALSE(::IsWindow(first));
    CKxHelpTools::Help(HELP_QUIT, 0);
}

TEST(HelpTools, help_topic_of_a_dialog_is_shown_and_an_unknown_one_is_not)
{
    CTestDialog dialog(IDD_UNFILED);
    ::SetForegroundWindow(dialog.m_hWnd);
    EXPECT_TRUE(CKxHelpTools::Help(HELP_CONTEXT, HELP_UNFILED));
    EXPECT_FALSE(tipIsGone());
    CKxHelpTools::Help(HELP_QUIT, 0);
    EXPECT_TRUE(tipIsGone());
    EXPECT_FALSE(CKxHelpTools::Help(HELP_CONTEXT, 153078));
    EXPECT_FALSE(CKxHelpTools::Help(HELP_CONTENTS, 0));
    EXPECT_TRUE(tipIsGone());
}

TEST(HelpTools, many_tips_leave_no_handle_behind)
{
    CTestDialog dialog(IDD_UNFILED);
    const auto once = [&]
    {
        whatsThis(dialog, IDC_HELPED);
        pumpFor();
        CKxHelpTools::Help(HELP_QUIT, 0);
    };
    once();
    const int objects = gdiObjectCount(), windows = windowCount();
    for (int i = 0; i < 200; ++i)
        once();
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
}
