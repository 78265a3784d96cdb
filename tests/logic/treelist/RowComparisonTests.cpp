// How two cells compare, and how a list of them is sorted.
#include <gtest/gtest.h>
#include <climits>
#include <random>
#include "support/PlainRowComparison.h"
#include "treelist/RowComparison.h"
#include "treelist/StableSort.h"

namespace
{
using treelist::RowComparison;
using treelist::SortKey;

int Compare(const wchar_t* a, const wchar_t* b, bool ascending = true)
{
    return RowComparison::Compare(RowComparison::KeyOf(a), RowComparison::KeyOf(b), ascending);
}

struct Case
{
    const wchar_t* a;
    const wchar_t* b;
    int ascending;
    int descending;
};

void Check(const Case& c)
{
    EXPECT_EQ(Compare(c.a, c.b, true), c.ascending) << CStringA(c.a) << " and " << CStringA(c.b);
    EXPECT_EQ(Compare(c.a, c.b, false), c.descending) << CStringA(c.a) << " and " << CStringA(c.b) << ", descending";
}

TEST(RowComparisonLengths, are_compared_as_inches)
{
    const Case cases[] = {{L"2", L"10", -1, 1},        {L"10", L"2", 1, -1},        {L"7", L"7.0", 0, 0},
                          {L"1'-6\"", L"17\"", 1, -1}, // 18 inches
                          {L"1'-6\"", L"18", 0, 0},    {L"6 1/2\"", L"7\"", -1, 1}, {L"-2'", L"1", -1, 1}};
    for (const Case& c : cases)
        Check(c);
}

TEST(RowComparisonLengths, have_a_tolerance_that_depends_on_the_second_alone)
{
    const Case cases[] = {
        {L"1.0000000001", L"1", 0, 0}, // 1e-10 apart, 2e-10 allowed
        {L"1.0000000003", L"1", 1, -1}, {L"1", L"1.0000000003", -1, 1},
        {L"0.00000000005", L"0", 0, 0},                                      // 5e-11 apart, 1e-10 allowed
        {L"0.0000000002", L"0", 1, -1}, {L"1000000.00005", L"1000000", 0, 0} // 5e-5 apart, 1e-4 allowed
    };
    for (const Case& c : cases)
        Check(c);
}

TEST(RowComparisonTexts, go_by_prefix_and_number)
{
    const Case cases[] = {
        {L"Item2", L"Item10", -1, 1}, {L"Item10", L"Item2", 1, -1},
        {L"abc", L"abc1", -1, 1},                                  // number 0 against 1, prefixes equal
        {L"item3", L"Item3", 0, 0},                                // prefixes differ by case: blind to case
        {L"item10", L"Item2", -1, 1},                              // so: '1' before '2', exactly one apart
        {L"item9", L"Item2", 7, 7},                                // '9' - '2'
        {L"A01", L"A1", -1, 1},                                    // equal numbers: '0' - '1'
        {L"A1", L"A01", 1, -1},       {L"A1b", L"A1d", -2, -2},    // equal numbers: 'b' - 'd'
        {L"A1x2", L"A1x10", 1, -1},                                // only the first run counts: '2' - '1'
        {L"A1", L"B2", -1, 1},                                     // prefixes differ
        {L"A2", L"C1", -2, -2},       {L"abc", L"abc0", -48, -48}, // equal numbers (0): the end against '0'
        {L"abc0", L"abc", 48, 48}};
    for (const Case& c : cases)
        Check(c);
}

TEST(RowComparisonTexts, without_digits_give_the_difference_of_the_folded_characters)
{
    const Case cases[] = {{L"", L"", 0, 0},          {L"a", L"", 97, 97},
                          {L"", L"a", -97, -97},     {L"abc", L"ABC", 0, 0},
                          {L"a", L"b", -1, 1},       {L"b", L"A", 1, -1},
                          {L"a", L"c", -2, -2},      {L"C", L"a", 2, 2},
                          {L"Z", L"a", 25, 25},      {L"_", L"A", -2, -2},
                          {L"[", L"a", -6, -6},      {L"\u00c9", L"\u00e9", -32, -32},
                          {L"ab", L"abc", -99, -99}, {L"beam", L"BEAMS", -115, -115}};
    for (const Case& c : cases)
        Check(c);
}

TEST(RowComparisonTexts, one_without_and_one_with_digits_compare_their_whole_text_and_prefix)
{
    Check({L"abd", L"abc1", 1, -1}); // prefixes differ: 'd' - 'c'
    Check({L"ab", L"abc1", -99, -99});
}

TEST(RowComparisonTexts, numbers_above_the_largest_int_are_held_there)
{
    Check({L"x2147483647", L"x2147483648", -1, 1}); // both the largest int: '7' - '8'
    Check({L"x2147483646", L"x99999999999999999999", -1, 1});
    Check({L"x00000000000000000000000000002", L"x10", -1, 1});
    EXPECT_EQ(RowComparison::KeyOf(L"x2147483648").number, INT_MAX);
    EXPECT_EQ(RowComparison::KeyOf(L"x2147483640").number, 2147483640);
}

TEST(RowComparisonTexts, digits_of_other_scripts_are_no_digits)
{
    EXPECT_FALSE(RowComparison::KeyOf(L"x\u0663").hasDigits);
    EXPECT_EQ(Compare(L"x\u0663", L"x\u0661"), 2);
}

TEST(RowComparisonMixed, a_length_and_a_text_compare_as_texts)
{
    Check({L"12", L"abc", '1' - 'a', '1' - 'a'}); // -48
    Check({L"2 beams", L"10", -1, 1});            // prefixes empty: 2 and 10
}

std::vector<std::wstring> NastyTexts()
{
    return {L"",
            L"a",
            L"A",
            L"a1",
            L"A1",
            L"a01",
            L"A10",
            L"a10",
            L"a2",
            L"A2",
            L"b",
            L"B3",
            L"1",
            L"2",
            L"10",
            L"1'",
            L"1'-6\"",
            L"18",
            L"18\"",
            L"1 x",
            L"1-",
            L"1.5",
            L"1.50",
            L"-3",
            L"x-3",
            L"3-x",
            L"abc",
            L"ABC1",
            L"abc0",
            L"a b 1",
            L"a-1",
            L"_",
            L"[1",
            L"\u00e9",
            L"\u00c91",
            L"9999999999999",
            L"x9999999999999",
            L"0.00000000001",
            L"0.0000000001"};
}

TEST(RowComparisonKeys, answer_as_the_comparison_of_the_texts_for_all_pairs)
{
    for (const std::wstring& a : NastyTexts())
    {
        for (const std::wstring& b : NastyTexts())
        {
            for (const bool ascending : {true, false})
                ASSERT_EQ(Compare(a.c_str(), b.c_str(), ascending), plainrows::Compare(a, b, ascending))
                    << CStringA(a.c_str()) << " and " << CStringA(b.c_str());
        }
    }
}

std::vector<SortKey> KeysOf(const std::vector<std::wstring>& texts)
{
    std::vector<SortKey> keys;
    for (const std::wstring& text : texts)
        keys.push_back(RowComparison::KeyOf(text));
    return keys;
}

std::vector<std::size_t> Sorted(const std::vector<std::wstring>& texts, bool ascending)
{
    const std::vector<std::uint32_t> order = RowComparison::Order(KeysOf(texts), ascending);
    return {order.begin(), order.end()};
}

TEST(RowOrder, of_a_short_list_is_that_of_insertion_though_the_comparison_is_no_order)
{
    std::mt19937 random(20240612); // a fixed seed
    const std::vector<std::wstring> nasty = NastyTexts();
    for (int round = 0; round < 60; ++round)
    {
        std::vector<std::wstring> texts;
        for (auto count = random() % 120; count > 0; --count)
            texts.push_back(nasty[random() % nasty.size()]);
        for (const bool ascending : {true, false})
            ASSERT_EQ(Sorted(texts, ascending), plainrows::Inserted(texts, ascending)) << round;
    }
}

TEST(RowOrder, goes_by_what_stands_about_the_sixteenth_character)
{
    const std::vector<std::wstring> ends = {L"",        L"o",        L"op",  L"oP",  L"opq", L"OPR",  L"opqr",
                                            L"o\u00E9", L"op\u0416", L"op1", L"op2", L"oq",  L"opqrs"};
    std::mt19937 random(20240616); // a fixed seed
    for (int round = 0; round < 60; ++round)
    {
        std::vector<std::wstring> texts;
        for (int count = 0; count < 40; ++count)
            texts.push_back(L"abcdefghijklmn" + ends[random() % ends.size()]);
        for (const bool ascending : {true, false})
            ASSERT_EQ(Sorted(texts, ascending), plainrows::Inserted(texts, ascending)) << round;
    }
}

TEST(RowOrder, goes_by_what_stands_behind_the_eighth_character_and_beyond_latin_1)
{
    const std::vector<std::wstring> starts = {
        L"",          L"abcdefg",   L"abcdefgh", L"abcdefghi", L"ABCDEFGHJ", L"abcdefg\u00E9",
        L"ab\u0416c", L"ab\u0416d", L"ab\u00FF", L"ab\u0100",  L"1'-6\"",    L"18",
        L"17 in",     L"-x",        L"a",        L"A1",        L"a1b",       L"a01B"};
    std::mt19937 random(20240615); // a fixed seed
    for (int round = 0; round < 60; ++round)
    {
        std::vector<std::wstring> texts;
        for (int count = 0; count < 40; ++count)
            texts.push_back(starts[random() % starts.size()] + starts[random() % starts.size()]);
        for (const bool ascending : {true, false})
            ASSERT_EQ(Sorted(texts, ascending), plainrows::Inserted(texts, ascending)) << round;
    }
}

TEST(RowOrder, a_terminator_inside_a_text_compares_as_its_end)
{
    const std::wstring closed(L"a\0b", 3), open(L"a");
    for (const bool ascending : {true, false})
    {
        EXPECT_EQ(RowComparison::Compare(RowComparison::KeyOf(closed), RowComparison::KeyOf(open), ascending), 0);
        EXPECT_EQ(Sorted({closed, open}, ascending), (std::vector<std::size_t>{0, 1}));
    }
}

TEST(RowOrder, of_a_long_list_is_that_of_insertion_where_the_comparison_is_an_order)
{
    std::mt19937 random(20240613); // a fixed seed
    std::vector<std::wstring> texts;
    for (int i = 0; i < 1100; ++i)
        texts.push_back(L"Beam " + std::to_wstring(random() % 700));
    for (const bool ascending : {true, false})
        EXPECT_EQ(Sorted(texts, ascending), plainrows::Inserted(texts, ascending));
}

TEST(RowOrder, of_a_long_list_without_order_has_every_row_once)
{
    std::mt19937 random(20240614); // a fixed seed
    std::vector<std::wstring> texts;
    for (int i = 0; i < 5000; ++i)
        texts.push_back(std::wstring(1, static_cast<wchar_t>(L'a' + random() % 26)));
    std::vector<std::size_t> order = Sorted(texts, false);
    std::sort(order.begin(), order.end());
    for (std::size_t i = 0; i < order.size(); ++i)
        ASSERT_EQ(order[i], i);
    EXPECT_EQ(order.size(), texts.size());
}

TEST(StableSort, stays_inside_its_range_whatever_the_comparison_answers)
{
    std::mt19937 random(20240615); // a fixed seed
    for (const std::size_t count : {0U, 1U, 2U, 15U, 16U, 17U, 100U, 1000U})
    {
        for (int liar = 0; liar < 4; ++liar)
        {
            std::vector<std::size_t> items(count);
            for (std::size_t i = 0; i < count; ++i)
                items[i] = i;
            treelist::StableSort(items, liar % 2 == 0 ? 0 : 1024,
                                 [&](std::size_t a, std::size_t b)
                                 {
                                     EXPECT_LT(a, count);
                                     EXPECT_LT(b, count);
                                     return liar < 2 ? 1 : static_cast<int>(random() % 3) - 1;
                                 });
            std::sort(items.begin(), items.end());
            for (std::size_t i = 0; i < count; ++i)
                ASSERT_EQ(items[i], i);
        }
    }
}

TEST(StableSort, keeps_equal_items_in_place_by_merging_and_by_insertion)
{
    std::mt19937 random(20240616); // a fixed seed
    for (const std::size_t longestInsertion : {std::size_t{0}, std::size_t{100000}})
    {
        std::vector<std::pair<unsigned, int>> items;
        for (int i = 0; i < 2000; ++i)
            items.emplace_back(random() % 20, i);
        std::vector<std::pair<unsigned, int>> expected = items;
        std::sort(expected.begin(), expected.end()); // the second half of each pair is its place
        treelist::StableSort(items, longestInsertion,
                             [](const auto& a, const auto& b)
                             { return static_cast<int>(a.first) - static_cast<int>(b.first); });
        EXPECT_EQ(items, expected);
    }
}
} // namespace
