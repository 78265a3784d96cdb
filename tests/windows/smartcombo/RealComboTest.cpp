// What the logic asks of a real combo box: keys that agree with its exact search, texts and marks of any length.
#include <gtest/gtest.h>
#include <map>
#include <random>
#include "RealComboBox.h"

namespace
{
/// Texts out of letters that the platform takes for each other, or nearly: cases, accents, hyphens, signs.
std::wstring someText(std::mt19937& random)
{
    const wchar_t letters[] = L"aAbBzZ\u00e9\u00c9e\u00df\u00e6\u00c6\u0153-' _.[]#0129\u00b2";
    std::wstring text;
    for (auto left = 1 + random() % 4; left > 0; --left)
        text += letters[random() % (std::size(letters) - 1)];
    return text;
}
} // namespace

TEST(RealCombo, search_keys_are_equal_for_texts_that_the_exact_search_takes_for_each_other)
{
    const struct
    {
        const wchar_t* item;
        const wchar_t* text;
        bool found;
    } rows[] = {
        {L"IPE 200", L"ipe 200", true},    {L"\u00c9t\u00e9", L"\u00e9T\u00c9", true},
        {L"\u00c9t\u00e9", L"Ete", false}, {L"IPE 200", L"IPE 20", false},
        {L"co-op", L"coop", false},        {L"2", L"\u00b2", false},
    };
    for (const auto& row : rows)
    {
        RealComboBox box;
        box.AddString(row.item);
        EXPECT_EQ(box.FindStringExact(-1, row.text) == 0, row.found) << row.item;
        EXPECT_EQ(box.SearchKey(row.item) == box.SearchKey(row.text), row.found) << row.item;
    }
}

TEST(RealCombo, search_keys_agree_with_the_exact_search_over_random_texts)
{
    std::mt19937 random(20260118); // a fixed seed
    RealComboBox box;
    int equal = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const std::wstring item = someText(random), text = someText(random);
        box.ResetContent();
        box.AddString(item.c_str());
        const bool found = box.FindStringExact(-1, text.c_str()) == 0;
        ASSERT_EQ(box.SearchKey(item.c_str()) == box.SearchKey(text.c_str()), found) << item << " and " << text;
        equal += found ? 1 : 0;
    }
    EXPECT_GT(equal, 0);
}

TEST(RealCombo, search_keys_have_the_order_of_a_sorted_combo_box)
{
    std::mt19937 random(20261122); // a fixed seed
    for (int round = 0; round < 40; ++round)
    {
        RealComboBox sorted, appended;
        sorted.keepSorted = true;
        appended.keepSorted = true;
        std::map<std::wstring, std::wstring> byKey;
        for (int i = 0; i < 60; ++i)
        {
            const std::wstring text = someText(random);
            if (byKey.emplace(sorted.SearchKey(text.c_str()), text).second)
            {
                sorted.AddString(text.c_str());
            }
        }
        for (const auto& [key, text] : byKey)
            appended.AppendString(text.c_str());
        ASSERT_EQ(sorted.GetCount(), appended.GetCount());
        for (int i = 0; i < sorted.GetCount(); ++i)
            ASSERT_EQ(sorted.GetItemText(i), appended.GetItemText(i)) << round << ", " << i;
    }
}

TEST(RealCombo, an_appended_text_stands_at_the_end_whatever_the_order)
{
    RealComboBox box;
    EXPECT_FALSE(box.KeepsSorted());
    box.keepSorted = true;
    EXPECT_TRUE(box.KeepsSorted());
    EXPECT_EQ(box.AppendString(L"b"), 0);
    EXPECT_EQ(box.AppendString(L"a"), 1);
    EXPECT_EQ(box.AddString(L"A0"), 0);
}

TEST(RealCombo, the_empty_text_has_an_empty_key_and_is_never_found)
{
    RealComboBox box;
    box.AddString(L"");
    EXPECT_EQ(box.FindStringExact(-1, L""), -1);
    EXPECT_EQ(box.SearchKey(L""), L"");
    EXPECT_NE(box.SearchKey(L" "), L"");
}

TEST(RealCombo, long_texts_have_keys_too)
{
    RealComboBox box;
    const CString longText(L'x', 1000000);
    EXPECT_EQ(box.SearchKey(longText), box.SearchKey(CString(L'X', 1000000)));
    EXPECT_NE(box.SearchKey(longText), box.SearchKey(CString(L'x', 999999)));
}

TEST(RealCombo, a_mark_goes_to_the_end_of_a_text_that_the_message_has_no_place_for)
{
    const struct
    {
        int length;
        int first;
        int end;
    } rows[] = {{5, 1, 3}, {5, 0, 5}, {40000, 2, 40000}};
    for (const auto& row : rows)
    {
        RealComboBox box;
        box.SetEditText(CString(L'x', row.length));
        box.SetEditSel(row.first, row.end);
        EXPECT_EQ(LOWORD(box.control().GetEditSel()), row.first) << row.length;
        EXPECT_EQ(HIWORD(box.control().GetEditSel()), row.end) << row.length;
    }
}

TEST(RealCombo, without_a_window_everything_fails_quietly)
{
    CComboBox none;
    SmartComboAccess access(none);
    EXPECT_EQ(access.AddString(L"a"), -1);
    EXPECT_EQ(access.AppendString(L"a"), -1);
    EXPECT_FALSE(access.KeepsSorted());
    access.SetRedraw(false);
    EXPECT_EQ(access.DeleteString(0), -1);
    EXPECT_EQ(access.FindString(-1, L"a"), -1);
    EXPECT_EQ(access.FindStringExact(-1, L"a"), -1);
    EXPECT_EQ(access.SetCurSel(0), -1);
    EXPECT_EQ(access.GetCurSel(), -1);
    EXPECT_EQ(access.GetItemText(0), L"");
    EXPECT_EQ(access.GetEditText(), L"");
    EXPECT_EQ(access.SearchKey(L"a"), access.SearchKey(L"A"));
    access.ResetContent();
    access.SetEditText(L"a");
    access.SetEditSel(0, 1);
}
