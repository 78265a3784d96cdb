// Texts of any length in the field: it shows their beginning, and they count whole.
#include <gtest/gtest.h>
#include "SmartHost.h"

namespace
{
constexpr int shownMost = 10000;

HWND fieldOf(CComboBox& combo)
{
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    return combo.GetComboBoxInfo(&parts) ? parts.hwndItem : nullptr;
}
/// How many characters the field itself has.
int shownIn(SmartHost& host)
{
    const HWND field = fieldOf(host.combo());
    ::SendMessageW(field, EM_SETSEL, 0, -1);
    DWORD end = 0;
    ::SendMessageW(field, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    return static_cast<int>(end);
}
CString textOf(SmartHost& host)
{
    CString text;
    host.combo().GetWindowText(text);
    return text;
}
} // namespace

TEST(LongText, shows_its_beginning_and_counts_whole)
{
    const struct
    {
        int length;
        int shown;
    } rows[] = {{0, 0}, {1, 1}, {9999, 9999}, {10000, 10000}, {10001, 10000}, {25000, 10000}};
    SmartHost host;
    for (const auto& row : rows)
    {
        const CString text(L'x', row.length);
        host.smart->SetSelectText(text);
        CString read;
        host.smart->GetSelectText(read);
        EXPECT_TRUE(read == text) << row.length;
        EXPECT_EQ(::GetWindowTextLengthW(host.combo().m_hWnd), row.length);
        EXPECT_EQ(shownIn(host), row.shown) << row.length;
    }
}

TEST(LongText, is_not_cut_inside_a_pair_of_surrogates)
{
    SmartHost host;
    CString text(L'x', shownMost - 1);
    text += L"\xD83D\xDE00\xD83D\xDE00";
    host.smart->SetSelectText(text);
    EXPECT_EQ(shownIn(host), shownMost - 1);
    EXPECT_TRUE(textOf(host) == text);
}

TEST(LongText, is_read_into_less_room_up_to_its_end)
{
    SmartHost host;
    host.smart->SetSelectText(CString(L'x', 20000));
    wchar_t some[6] = L"?????";
    EXPECT_EQ(::GetWindowTextW(fieldOf(host.combo()), some, 6), 5);
    EXPECT_STREQ(some, L"xxxxx");
    std::vector<wchar_t> all(30000);
    EXPECT_EQ(::GetWindowTextW(fieldOf(host.combo()), all.data(), 30000), 20000);
    EXPECT_EQ(all[20000], L'\0');
}

TEST(LongText, becomes_what_shows_when_the_user_edits_it)
{
    SmartHost host;
    host.smart->SetSelectText(CString(L'x', 12000));
    ::SetFocus(fieldOf(host.combo()));
    SmartHost::press(VK_END);
    SmartHost::press(VK_BACK);
    EXPECT_TRUE(textOf(host) == CString(L'x', shownMost - 1));
    host.smart->SetSelectText(L"short");
    EXPECT_EQ(textOf(host), L"short");
}

TEST(LongText, of_an_item_counts_whole_when_it_is_picked)
{
    SmartHost host;
    const CString item(L'x', 12000);
    host.smart->AddStringCombo(item);
    EXPECT_EQ(host.smart->SetCurSel(0), 0);
    EXPECT_TRUE(textOf(host) == item);
    host.smart->SetSelectText(L"");
    EXPECT_EQ(host.smart->SetCurSel(item), 0);
    EXPECT_TRUE(textOf(host) == item);
    host.smart->SortCombo();
    EXPECT_EQ(host.smart->GetCurSel(), 0) << "found again by its whole text";
    host.smart->SetSelectText(L"");
    host.combo().SetFocus();
    host.pick(0);
    EXPECT_TRUE(textOf(host) == item);
}

// The platform's own field takes about an hour for so many digits.
TEST(LongText, of_a_million_digits_goes_through_every_operation)
{
    SmartHost host;
    CStringList formats;
    fillList(formats, L"[(C)2] [(N)x]");
    host.smart->SetListFilterString(formats);
    const CString digits(L'7', 1000000);
    host.combo().SetFocus();
    host.smart->SetSelectText(digits);
    bool valid = false;
    CString read;
    host.smart->GetSelectText(read, valid);
    EXPECT_TRUE(valid);
    EXPECT_TRUE(read == digits);
    ASSERT_EQ(host.data().list.GetCount(), 1) << "it has joined the values";
    EXPECT_TRUE(host.data().list.GetHead() == digits);
    EXPECT_EQ(host.smart->SetCurSel(0), 0);
    CStringList values;
    int index = -1;
    host.smart->GetStringCombo(values, index, 1, 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(values.GetCount(), 1);
    int toggled = 0, number = 0;
    host.smart->GetText(read, 1, number, toggled);
    EXPECT_EQ(number, 1);
    EXPECT_TRUE(textOf(host) == digits) << "and stands in the field, free of format";
    host.smart->SetFormat(L"[(N)x]");
    host.smart->SetAutoAddOnSelChange(1);
    host.smart->SetSelectText(digits);
    host.smart->SendMessage(WM_COMMAND, MAKEWPARAM(1008, CBN_SELCHANGE), reinterpret_cast<LPARAM>(host.combo().m_hWnd));
    EXPECT_EQ(host.data().list.GetCount(), 1);
    host.smart->UpdateWindow();
    host.smart->DeleteStringCombo(digits);
    EXPECT_EQ(host.combo().GetCount(), 0);
}

TEST(LongText, counts_whole_beside_a_hosts_own_object_for_the_field)
{
    SmartHost host;
    auto& combo = static_cast<CKxComboBox&>(host.combo());
    ASSERT_TRUE(combo.m_edit.SubclassWindow(fieldOf(combo)));
    const CString text(L'x', 12000);
    host.smart->SetSelectText(text);
    EXPECT_TRUE(textOf(host) == text);
    EXPECT_EQ(shownIn(host), shownMost);
    const HWND window = host.smart->m_hWnd;
    host.smart->DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
}
