// A typed length travels from the keystroke to the SI value: real keys in a real dialog on the real library.
#include <gtest/gtest.h>
#include "UnitHost.h"

namespace
{
class TypedValue : public testing::Test
{
protected:
    TypedValue()
    {
        host.metre->AddValueSI(1.0);
        host.metre->AddValueSI(2.0);
    }
    /// Goes into the metre field, types, and leaves it for the next field, all by keys.
    void typeInMetres(const wchar_t* text)
    {
        host.focusOn(IDC_BEFORE);
        host.press(VK_TAB);
        host.press(VK_HOME);
        host.press(VK_END, {VK_SHIFT});
        host.heard.clear();
        host.type(text);
        EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0) << "nothing is committed while typing";
        host.press(VK_TAB);
    }

    UnitHost host;
};

TEST_F(TypedValue, becomes_canonical_text_and_the_one_typed_item)
{
    int itemsAtMessage = -1;
    std::wstring textAtMessage;
    host.onHear = [&](const Heard& one)
    {
        if (one.message == WM_KX_UNIT_VALIDATED)
        {
            itemsAtMessage = host.metre->GetCount();
            textAtMessage = host.metre->editText();
        }
    };
    typeInMetres(L"1.5");

    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    const auto told = std::find(host.heard.begin(), host.heard.end(), Heard{0xA5C, 0, 0});
    EXPECT_NE(told, host.heard.end());
    EXPECT_EQ(itemsAtMessage, 2) << "sent before the list changes";
    EXPECT_EQ(textAtMessage, L"1.5");
    EXPECT_EQ(host.metre->editText(), L"1.500 m");
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m | [1.500 m*]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.5);
    EXPECT_FALSE(host.metre->isChanged());
}

TEST_F(TypedValue, is_replaced_by_the_next_one)
{
    typeInMetres(L"1.5");
    typeInMetres(L"1,75");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m | [1.750 m*]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.75);
    EXPECT_EQ(host.metre->values().size(), 3U);
}

TEST_F(TypedValue, that_is_the_text_of_a_permanent_item_selects_it)
{
    typeInMetres(L"1.5");
    typeInMetres(L"2.000 m");
    EXPECT_EQ(host.metre->shown(), L"1.000 m | [2.000 m]");
    EXPECT_EQ(host.metre->editText(), L"2.000 m");
    EXPECT_EQ(host.metre->GetValueSI(), 2.0);
    EXPECT_EQ(host.metre->values().size(), 2U);
}

TEST_F(TypedValue, that_is_no_number_becomes_silently_the_value_of_the_empty_text)
{
    typeInMetres(L"1.5");
    typeInMetres(L"abc");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m | [0.000 m*]");
    EXPECT_EQ(host.metre->editText(), L"0.000 m");
    EXPECT_EQ(host.metre->GetValueSI(), 0.0);
}

TEST_F(TypedValue, in_feet_and_inches_is_held_in_metres)
{
    host.focusOn(IDC_METRE);
    host.press(VK_TAB);
    host.heard.clear();
    host.type(L"1'-6\"");
    host.press(VK_TAB);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    EXPECT_EQ(host.feet->shown(), L"[1'-6\"*]");
    EXPECT_DOUBLE_EQ(host.feet->GetValueSI(), 0.4572);
}

TEST_F(TypedValue, of_the_same_value_is_told_again)
{
    typeInMetres(L"1.5");
    typeInMetres(L"1.5");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m | [1.500 m*]");
}

TEST_F(TypedValue, ends_the_variant_state_only_when_it_may_be_a_number)
{
    host.metre->SetVariant(true);
    typeInMetres(L"abc");
    EXPECT_TRUE(host.metre->GetVariant());
    typeInMetres(L"3");
    EXPECT_FALSE(host.metre->GetVariant());
}

TEST_F(TypedValue, is_not_committed_by_enter_and_not_by_escape)
{
    host.focusOn(IDC_METRE);
    host.type(L"1.5");
    host.press(VK_RETURN);
    host.press(VK_ESCAPE);
    EXPECT_EQ(host.closed, 2);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m");
    host.press(VK_TAB);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
}

TEST_F(TypedValue, leaves_nothing_when_the_field_was_only_visited)
{
    host.focusOn(IDC_BEFORE);
    host.press(VK_TAB);
    host.press(VK_TAB);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m");
    EXPECT_EQ(host.metre->editText(), L"");
}

TEST_F(TypedValue, is_committed_when_a_click_takes_the_focus_away)
{
    host.focusOn(IDC_METRE);
    host.type(L"1.5");
    click(centreOf(host.GetDlgItem(IDC_AFTER)->m_hWnd));
    EXPECT_TRUE(waitFor([&] { return host.count(WM_KX_UNIT_VALIDATED) == 1; }));
    EXPECT_EQ(host.metre->editText(), L"1.500 m");
}

TEST_F(TypedValue, is_dropped_when_an_item_is_picked_from_the_open_list)
{
    host.focusOn(IDC_METRE);
    host.type(L"1.5");
    EXPECT_TRUE(host.metre->isChanged());
    host.press(VK_F4);
    EXPECT_TRUE(host.metre->GetDroppedState());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(host.metre->m_hWnd, &info));
    RECT second = {};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&second), 2);
    click({(second.left + second.right) / 2, (second.top + second.bottom) / 2});
    EXPECT_TRUE(waitFor([&] { return host.metre->GetDroppedState() == FALSE; }));
    EXPECT_EQ(host.metre->shown(), L"1.000 m | [2.000 m]");
    EXPECT_FALSE(host.metre->isChanged());
    host.press(VK_TAB);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    EXPECT_EQ(host.metre->GetCount(), 2);
}

TEST_F(TypedValue, picked_by_keys_is_rounded_to_what_its_text_says)
{
    host.feet->ResetContent();
    host.metre->ResetContent();
    host.metre->AddValueSI(1.23456789);
    host.focusOn(IDC_METRE);
    host.press(VK_DOWN);
    EXPECT_EQ(host.metre->shown(), L"[1.235 m]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.235);
}
} // namespace
