// The combo box that hands its characters and clicks on, alone and with its edit field watched.
#include <gtest/gtest.h>
#include <memory>
#include "DropHost.h"
#include "oxa/dropdowns/KxComboBox.h"

namespace
{
constexpr DWORD withEdit = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL;
constexpr DWORD listOnly = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST;

class WatchedCombo : public testing::Test
{
protected:
    WatchedCombo() : combo(std::make_unique<CKxComboBox>()) { create(withEdit); }
    void create(DWORD style)
    {
        combo->DestroyWindow();
        combo->Create(style, CRect(20, 20, 220, 200), &host, 7);
        for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
            combo->AddString(text);
        combo->SetFocus();
        pumpFor(10);
        host.heard.clear();
        host.commands.clear();
    }
    HWND innerField() const { return ::GetWindow(combo->m_hWnd, GW_CHILD); }
    void watchField() { combo->m_edit.SubclassWindow(innerField()); }

    DropHost host;
    std::unique_ptr<CKxComboBox> combo;
};

TEST_F(WatchedCombo, gives_its_characters_to_the_owner_and_takes_none)
{
    create(listOnly);
    combo->SetCurSel(0);
    typeText(L"g");
    EXPECT_EQ(combo->GetCurSel(), 0) << "the list is not searched";
    EXPECT_EQ(host.characters(), L"g");
}

TEST_F(WatchedCombo, takes_its_keys_and_tells_nobody)
{
    create(listOnly);
    combo->SetCurSel(0);
    key(VK_DOWN);
    EXPECT_EQ(combo->GetCurSel(), 1);
    EXPECT_TRUE(host.heardOf(WM_KEYDOWN).empty());
}

TEST_F(WatchedCombo, tells_of_a_click_at_the_origin_and_of_no_other)
{
    combo->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 0));
    combo->SendMessage(WM_LBUTTONUP, 0, 0);
    combo->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0, 1));
    combo->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_TRUE(host.heard.empty());
    combo->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, 0);
    combo->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, 0}}));
}

TEST_F(WatchedCombo, counts_a_real_click_at_the_origin_as_one_of_its_field)
{
    create(listOnly);
    host.SetFocus();
    CRect area;
    combo->GetClientRect(&area);
    combo->ClientToScreen(&area);
    click(area.TopLeft());
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_LBUTTONDOWN, MK_LBUTTON, 0}}));
    EXPECT_EQ(::GetFocus(), combo->m_hWnd) << "the box's own part follows";
    combo->ShowDropDown(FALSE);
    host.heard.clear();
    click({area.left + 4, area.top + 4});
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(WatchedCombo, clears_its_selection_and_keeps_its_items)
{
    combo->SetCurSel(1);
    EXPECT_EQ(textOf(*combo), L"beta");
    combo->ClearControl();
    EXPECT_EQ(combo->GetCurSel(), -1);
    EXPECT_EQ(textOf(*combo), L"");
    EXPECT_EQ(combo->GetCount(), 3);
}

TEST_F(WatchedCombo, keeps_the_flags_of_its_host)
{
    EXPECT_FALSE(combo->GetVariant());
    EXPECT_EQ(combo->GetVisibility(), 1);
    combo->SetVariant(true);
    combo->SetVisibility(0);
    EXPECT_TRUE(combo->GetVariant());
    EXPECT_EQ(combo->GetVisibility(), 0);
}

// ---- With its edit field watched

TEST_F(WatchedCombo, tells_its_owner_each_character_of_the_field_once)
{
    watchField();
    typeText(L"de");
    EXPECT_EQ(textOf(*combo), L"de");
    EXPECT_EQ(host.characters(), L"de") << "by way of the combo box";
}

TEST_F(WatchedCombo, refuses_the_characters_that_are_forbidden_to_its_field)
{
    watchField();
    combo->m_edit.SetNotAllowedChars(L"*");
    typeText(L"2*3");
    EXPECT_EQ(textOf(*combo), L"23");
    EXPECT_EQ(host.characters(), L"2*3");
}

TEST_F(WatchedCombo, moves_once_for_each_key_of_the_field)
{
    watchField();
    typeText(L"abcd");
    key(VK_LEFT);
    EXPECT_EQ(LOWORD(combo->GetEditSel()), 3);
    key(VK_BACK);
    EXPECT_EQ(textOf(*combo), L"abd");
    key(VK_DELETE);
    EXPECT_EQ(textOf(*combo), L"ab");
    combo->SetCurSel(0);
    key(VK_DOWN);
    EXPECT_EQ(combo->GetCurSel(), 1);
}

TEST_F(WatchedCombo, opens_and_closes_by_keys_of_the_field)
{
    watchField();
    key(VK_F4);
    EXPECT_TRUE(combo->GetDroppedState());
    key(VK_F4);
    EXPECT_FALSE(combo->GetDroppedState());
    key(VK_DOWN, {VK_MENU});
    EXPECT_TRUE(combo->GetDroppedState());
    key(VK_ESCAPE);
    EXPECT_FALSE(combo->GetDroppedState());
}

TEST_F(WatchedCombo, tells_its_owner_of_a_click_into_the_field)
{
    watchField();
    host.SetFocus();
    click(centreOf(innerField()));
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_LBUTTONDOWN, MK_LBUTTON, 0}}));
    EXPECT_EQ(::GetFocus(), innerField());
    EXPECT_FALSE(combo->GetDroppedState());
}

TEST_F(WatchedCombo, opens_its_list_by_a_click_on_its_button_and_picks_by_another)
{
    watchField();
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(combo->GetComboBoxInfo(&info));
    CRect button(info.rcButton);
    combo->ClientToScreen(&button);
    click(button.CenterPoint());
    ASSERT_TRUE(combo->GetDroppedState());
    CRect second;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&second), 2);
    click(second.CenterPoint());
    EXPECT_EQ(combo->GetCurSel(), 1);
    EXPECT_EQ(textOf(*combo), L"beta");
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(WatchedCombo, gives_its_field_back_when_it_is_destroyed)
{
    const auto before = ::GetWindowLongPtrW(innerField(), GWLP_WNDPROC);
    watchField();
    const HWND field = combo->m_edit.m_hWnd;
    ASSERT_NE(::GetWindowLongPtrW(field, GWLP_WNDPROC), before);
    LONG_PTR atEnd = 0;
    struct Probe
    {
        HWND field;
        LONG_PTR* procedure;
    };
    const Probe probe = {field, &atEnd};
    ::SetWindowSubclass(
        combo->m_hWnd,
        [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data) -> LRESULT
        {
            const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
            if (message == WM_DESTROY)
                *reinterpret_cast<const Probe*>(data)->procedure =
                    ::GetWindowLongPtrW(reinterpret_cast<const Probe*>(data)->field, GWLP_WNDPROC);
            if (message == WM_NCDESTROY)
                ::RemoveWindowSubclass(window, nullptr, id);
            return result;
        },
        1, reinterpret_cast<DWORD_PTR>(&probe));
    combo->DestroyWindow();
    EXPECT_EQ(atEnd, before);
    EXPECT_EQ(combo->m_edit.m_hWnd, nullptr);
    EXPECT_EQ(combo->m_hWnd, nullptr);
}

TEST_F(WatchedCombo, may_be_deleted_with_its_field_watched)
{
    watchField();
    const HWND window = combo->m_hWnd;
    combo.reset();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(WatchedCombo, may_lose_its_parent_with_its_field_watched)
{
    watchField();
    host.DestroyWindow();
    EXPECT_EQ(combo->m_hWnd, nullptr);
    EXPECT_EQ(combo->m_edit.m_hWnd, nullptr);
}

// ---- Hosts with surprises

struct Notification
{
    const char* name;
    int code;
    void (*cause)(CKxComboBox& combo);
};

const Notification notifications[] = {
    {"focus_taken", CBN_SETFOCUS, [](CKxComboBox&) { key(VK_F4); }}, // by the test itself
    {"edit_update", CBN_EDITUPDATE, [](CKxComboBox&) { typeText(L"a"); }},
    {"edit_change", CBN_EDITCHANGE, [](CKxComboBox&) { typeText(L"a"); }},
    {"list_opened", CBN_DROPDOWN, [](CKxComboBox&) { key(VK_F4); }},
    {"list_closed", CBN_CLOSEUP, [](CKxComboBox&) { key(VK_F4), key(VK_F4); }},
    {"selection_changed", CBN_SELCHANGE, [](CKxComboBox&) { key(VK_DOWN); }},
    {"selection_confirmed", CBN_SELENDOK, [](CKxComboBox&) { key(VK_F4), key(VK_DOWN), key(VK_RETURN); }},
    {"selection_dropped", CBN_SELENDCANCEL, [](CKxComboBox&) { key(VK_F4), key(VK_ESCAPE); }},
    {"focus_lost", CBN_KILLFOCUS, [](CKxComboBox& combo) { combo.GetParent()->SetFocus(); }},
};

class ComboNotification : public testing::TestWithParam<std::tuple<Notification, int>>
{
};

TEST_P(ComboNotification, may_end_the_box_or_its_parent)
{
    const auto& [row, how] = GetParam();
    DropHost host;
    auto combo = std::make_unique<CKxComboBox>();
    combo->Create(withEdit, CRect(20, 20, 220, 200), &host, 7);
    for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
        combo->AddString(text);
    combo->m_edit.SubclassWindow(::GetWindow(combo->m_hWnd, GW_CHILD));
    const HWND window = combo->m_hWnd;
    host.onCommand = [&, code = row.code, way = how](int heard)
    {
        if (heard != code || !::IsWindow(window))
            return;
        endControl(way, combo, host);
    };
    combo->SetFocus();
    if (::IsWindow(window))
        row.cause(*combo);
    pumpFor(20);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(::GetCapture(), nullptr);
}

std::string nameOf(const testing::TestParamInfo<ComboNotification::ParamType>& info)
{
    const char* const ways[] = {"_destroyed", "_deleted", "_with_its_parent"};
    return std::string(std::get<0>(info.param).name) + ways[std::get<1>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(WatchedCombo, ComboNotification,
                         testing::Combine(testing::ValuesIn(notifications), testing::Values(0, 1, 2)), nameOf);

TEST_F(WatchedCombo, may_end_in_each_message_to_its_owner)
{
    for (const UINT message : {WM_CHAR, WM_LBUTTONDOWN})
    {
        for (int how = 0; how < 3; ++how)
        {
            DropHost other;
            auto mortal = std::make_unique<CKxComboBox>();
            mortal->Create(withEdit, CRect(20, 20, 220, 200), &other, 7);
            mortal->m_edit.SubclassWindow(::GetWindow(mortal->m_hWnd, GW_CHILD));
            const HWND window = mortal->m_hWnd;
            other.onHear = [&](const Heard&) { endControl(how, mortal, other); };
            ::SendMessageW(::GetWindow(window, GW_CHILD), message, message == WM_CHAR ? L'a' : MK_LBUTTON, 0);
            EXPECT_FALSE(::IsWindow(window)) << message << " " << how;
            EXPECT_EQ(::GetCapture(), nullptr) << message << " " << how;
        }
    }
}

TEST_F(WatchedCombo, ends_a_circle_of_owners)
{
    CKxComboBox other;
    other.Create(withEdit, CRect(20, 60, 220, 200), &host, 8);
    combo->SetOwner(&other);
    other.SetOwner(combo.get());
    combo->SendMessage(WM_CHAR, L'a', 1);
    combo->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    combo->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_TRUE(host.heard.empty());
    EXPECT_EQ(textOf(*combo), L"");
}

TEST_F(WatchedCombo, refuses_indexes_out_of_range)
{
    for (const int index : {-2, 3, 1000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(combo->SetCurSel(index), CB_ERR) << index;
        EXPECT_EQ(combo->GetItemData(index), static_cast<DWORD_PTR>(CB_ERR)) << index;
        EXPECT_EQ(combo->DeleteString(static_cast<UINT>(index)), CB_ERR) << index;
        CString text(L"before");
        combo->GetLBText(index, text);
        EXPECT_TRUE(text.IsEmpty()) << index;
    }
    EXPECT_EQ(combo->GetCount(), 3);
}

TEST_F(WatchedCombo, holds_texts_of_a_million_characters)
{
    watchField();
    const std::wstring million(1 << 20, L'w');
    ASSERT_EQ(combo->AddString(million.c_str()), 3);
    combo->SetCurSel(3);
    EXPECT_EQ(textOf(*combo), million);
    combo->m_edit.ClearControl();
    EXPECT_EQ(textOf(*combo), L"");
    combo->ClearControl();
    EXPECT_EQ(combo->GetLBTextLen(3), 1 << 20);
}

TEST_F(WatchedCombo, has_no_window_and_does_nothing)
{
    CKxComboBox none;
    none.ClearControl();
    EXPECT_EQ(none.GetCount(), 0);
}

void useOnce(CKxComboBox& combo, DropHost& host, int round)
{
    combo.Create(round % 3 == 0 ? listOnly : withEdit, CRect(20, 20, 220, 200), &host, 7);
    combo.AddString(L"alpha");
    if (round % 3 != 0)
        combo.m_edit.SubclassWindow(::GetWindow(combo.m_hWnd, GW_CHILD));
    combo.SetFocus();
    combo.UpdateWindow();
    combo.SendMessage(WM_CHAR, L'a', 1);
    combo.SetCurSel(0);
    combo.ClearControl();
}

TEST(WatchedComboLifetime, two_thousand_boxes_leave_no_handle)
{
    expectTwoThousandLivesLeaveNoHandle<CKxComboBox>(useOnce);
}
} // namespace
