// What the unit combo box tells its parent and its owner, and what it makes of its own notifications.
#include <gtest/gtest.h>
#include "UnitHost.h"
#include "support/MessageRecorder.h"

namespace
{
class UnitComboMessages : public testing::Test
{
protected:
    UnitHost host;
};

TEST_F(UnitComboMessages, numbers_are_those_that_hosts_handle)
{
    EXPECT_EQ(WM_KX_UNIT_FOCUS, 2651U);
    EXPECT_EQ(WM_KX_UNIT_VALIDATED, 2652U);
}

TEST_F(UnitComboMessages, the_class_has_its_run_time_record_and_its_first_state)
{
    EXPECT_EQ(CString(CKxComboBoxUnit::classCKxComboBoxUnit.m_lpszClassName), L"CKxComboBoxUnit");
    EXPECT_TRUE(host.metre->IsKindOf(RUNTIME_CLASS(CKxComboBoxUnit)));
    EXPECT_TRUE(host.metre->IsKindOf(RUNTIME_CLASS(CComboBox)));
    CKxComboBoxUnit fresh;
    EXPECT_EQ(fresh.GetUnit(), nullptr);
    EXPECT_FALSE(fresh.GetVariant());
    EXPECT_EQ(fresh.GetVisibility(), 1);
}

TEST_F(UnitComboMessages, focus_by_key_is_told_once_with_the_dialog_id_in_lParam)
{
    host.press(VK_TAB);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{0xA5B, 0, IDC_METRE}}));
    EXPECT_EQ(::GetFocus(), host.metre->editField()) << "the default handling gives the focus to the edit field";
    host.heard.clear();
    host.press(VK_TAB);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{0xA5B, 0, IDC_FEET}}));
}

TEST_F(UnitComboMessages, a_click_into_the_edit_field_is_told_with_the_dialog_id_in_lParam)
{
    click(centreOf(host.metre->editField()));
    EXPECT_TRUE(waitFor([&] { return host.count(WM_KX_UNIT_FOCUS) != 0; }));
    EXPECT_EQ(host.count(WM_KX_UNIT_FOCUS), 1);
    EXPECT_NE(std::find(host.heard.begin(), host.heard.end(), Heard{0xA5B, 0, IDC_METRE}), host.heard.end());
    EXPECT_EQ(::GetFocus(), host.metre->editField());
    // and again at each further click, also when the field has the focus
    click(centreOf(host.metre->editField()));
    EXPECT_TRUE(waitFor([&] { return host.count(WM_KX_UNIT_FOCUS) == 2; }));
}

TEST_F(UnitComboMessages, other_events_of_children_are_not_told)
{
    for (const UINT event : {WM_RBUTTONDOWN, WM_MBUTTONDOWN, WM_CREATE, WM_DESTROY})
        host.metre->SendMessage(WM_PARENTNOTIFY, event, MAKELPARAM(3, 3));
    EXPECT_TRUE(host.heard.empty());
    host.metre->SendMessage(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 1001), MAKELPARAM(3, 3));
    EXPECT_EQ(host.heard, (std::vector<Heard>{{0xA5B, 0, IDC_METRE}})) << "the high word is the child's";
}

TEST_F(UnitComboMessages, a_character_that_reaches_the_combo_goes_to_the_owner_with_its_whole_lParam)
{
    host.metre->SetVisibility(0);
    host.metre->SendMessage(WM_CHAR, L'7', 0x41520003);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_CHAR, L'7', 0x41520003}}));
    EXPECT_EQ(host.metre->GetVisibility(), 1);
    EXPECT_EQ(host.metre->editText(), L"") << "the default handling does not run";
    EXPECT_FALSE(host.metre->isChanged());
}

TEST_F(UnitComboMessages, a_key_that_reaches_the_combo_goes_to_the_owner_with_its_whole_lParam)
{
    host.metre->AddValueSI(1.0);
    host.metre->SetVisibility(0);
    host.metre->SendMessage(WM_KEYDOWN, VK_DOWN, 0x41500002);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_KEYDOWN, VK_DOWN, 0x41500002}}));
    EXPECT_EQ(host.metre->GetVisibility(), 1);
    EXPECT_EQ(host.metre->GetCurSel(), -1) << "the default handling does not run";
}

TEST_F(UnitComboMessages, real_keys_in_a_drop_down_list_go_to_the_owner_and_do_not_search_the_list)
{
    host.droplist->AddValueSI(1.0);
    host.droplist->AddValueSI(2.0);
    host.focusOn(IDC_DROPLIST);
    host.heard.clear();
    host.droplist->SetVisibility(0);
    host.type(L"2");
    host.press(VK_DOWN);
    EXPECT_EQ(host.droplist->GetCurSel(), -1);
    EXPECT_EQ(host.droplist->GetVisibility(), 1);
    EXPECT_EQ(host.count(WM_CHAR), 1);
    const auto arrow =
        std::find_if(host.heard.begin(), host.heard.end(),
                     [](const Heard& one) { return one.message == WM_KEYDOWN && one.wParam == VK_DOWN; });
    EXPECT_NE(arrow, host.heard.end());
}

TEST_F(UnitComboMessages, keys_in_the_edit_field_do_not_reach_the_owner)
{
    host.focusOn(IDC_METRE);
    host.heard.clear();
    host.metre->SetVisibility(0);
    host.type(L"12");
    EXPECT_EQ(host.count(WM_CHAR), 0);
    EXPECT_EQ(host.count(WM_KEYDOWN), 0);
    EXPECT_EQ(host.metre->GetVisibility(), 0);
    EXPECT_EQ(host.metre->editText(), L"12");
}

TEST_F(UnitComboMessages, an_owner_that_was_set_hears_instead_of_the_parent)
{
    CWnd* const after = host.GetDlgItem(IDC_AFTER);
    host.metre->SetOwner(after);
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    CString text;
    after->GetWindowText(text);
    EXPECT_EQ(text, L"7");
    EXPECT_TRUE(host.heard.empty());
    host.metre->SendMessage(WM_SETFOCUS, 0, 0);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{0xA5B, 0, IDC_METRE}})) << "the parent hears of the focus all the same";
}

TEST_F(UnitComboMessages, a_control_that_owns_itself_does_not_run_in_circles)
{
    host.metre->SetOwner(host.metre.get());
    host.metre->SendMessage(WM_CHAR, L'7', 1);
    host.metre->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    host.metre->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    host.metre->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(host.count(WM_CHAR), 0);
}

TEST_F(UnitComboMessages, only_a_click_at_the_origin_is_passed_to_the_owner)
{
    for (const POINT point : {POINT{1, 0}, POINT{0, 1}, POINT{5, 5}, POINT{-1, 0}})
    {
        host.metre->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
        host.metre->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    }
    EXPECT_EQ(host.count(WM_LBUTTONDOWN), 0);
    host.metre->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 0);
    host.metre->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(host.count(WM_LBUTTONDOWN), 1);
    EXPECT_NE(std::find(host.heard.begin(), host.heard.end(), Heard{WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, 0}),
              host.heard.end());
}

TEST_F(UnitComboMessages, a_real_click_on_the_arrow_still_opens_the_list)
{
    host.metre->AddValueSI(1.0);
    CRect place;
    host.metre->GetWindowRect(&place);
    click({place.right - 8, (place.top + place.bottom) / 2});
    EXPECT_TRUE(waitFor([&] { return host.metre->GetDroppedState() != FALSE; }));
    EXPECT_EQ(host.count(WM_LBUTTONDOWN), 0);
    host.metre->ShowDropDown(FALSE);
}

TEST_F(UnitComboMessages, a_lost_focus_without_an_edit_change_commits_nothing)
{
    host.metre->AddValueSI(1.0);
    host.metre->CComboBox::SetCurSel(0);
    host.metre->SetWindowText(L"5");
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.metre->editText(), L"5") << "although the text differs from the selection";
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    host.notify(*host.metre, CBN_EDITCHANGE);
    EXPECT_TRUE(host.metre->isChanged());
    host.notify(*host.metre, CBN_KILLFOCUS);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | [5.000 m*]");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
}

TEST_F(UnitComboMessages, other_notifications_change_nothing)
{
    host.metre->AddValueSI(1.23456);
    host.metre->CComboBox::SetCurSel(0);
    host.notify(*host.metre, CBN_EDITCHANGE);
    for (const int code :
         {CBN_SELCHANGE, CBN_DBLCLK, CBN_SETFOCUS, CBN_EDITUPDATE, CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELENDCANCEL})
        host.notify(*host.metre, static_cast<WORD>(code));
    EXPECT_TRUE(host.metre->isChanged());
    EXPECT_EQ(host.metre->GetValueSI(), 1.23456);
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(UnitComboMessages, a_confirmed_selection_drops_the_pending_change_and_rounds_the_value)
{
    host.metre->AddValueSI(1.23456);
    host.notify(*host.metre, CBN_EDITCHANGE);
    host.metre->CComboBox::SetCurSel(0);
    host.notify(*host.metre, CBN_SELENDOK);
    EXPECT_FALSE(host.metre->isChanged());
    EXPECT_EQ(host.metre->GetValueSI(), 1.235);
}

TEST_F(UnitComboMessages, the_parent_gets_the_notifications_too)
{
    MessageRecorder recorder(host.m_hWnd, [](UINT message) { return message == WM_COMMAND; });
    host.focusOn(IDC_METRE);
    recorder.clear();
    host.type(L"1");
    ASSERT_EQ(recorder.count(WM_COMMAND), 2);
    EXPECT_EQ(HIWORD(recorder.all()[0].wParam), CBN_EDITUPDATE);
    EXPECT_EQ(HIWORD(recorder.all()[1].wParam), CBN_EDITCHANGE);
}

TEST_F(UnitComboMessages, the_tip_of_the_control_has_the_text_that_was_given)
{
    EXPECT_NE(host.metre->tip().m_hWnd, nullptr) << "made with the control";
    EXPECT_NE(host.metre->tip().GetStyle() & 1U, 0U) << "shown also while the window is not active";
    EXPECT_EQ(host.metre->tip().GetToolCount(), 0);
    host.metre->AddFormatToolTip(L"Length in metres");
    ASSERT_EQ(host.metre->tip().GetToolCount(), 1);
    CString text;
    host.metre->tip().GetText(text, host.metre.get());
    EXPECT_EQ(text, L"Length in metres");
}

TEST_F(UnitComboMessages, the_tip_appears_under_the_cursor)
{
    host.metre->AddFormatToolTip(L"Length in metres");
    CRect place;
    host.metre->GetWindowRect(&place);
    moveTo({5, 5});
    pumpFor(50);
    moveTo({place.right - 8, (place.top + place.bottom) / 2});
    EXPECT_TRUE(waitFor([&] { return host.metre->tip().IsWindowVisible() != FALSE; }));
    moveTo({5, 5});
    EXPECT_TRUE(waitFor([&] { return host.metre->tip().IsWindowVisible() == FALSE; }, 10000));
}
} // namespace
