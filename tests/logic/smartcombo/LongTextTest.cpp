// Texts of any length for a field: what it shows of them.
#include <gtest/gtest.h>
#include "formats/LongText.h"

TEST(LongText, is_one_above_ten_thousand_characters_and_shows_its_beginning)
{
    const struct
    {
        std::size_t length;
        std::size_t shown;
        bool isLong;
    } rows[] = {{0, 0, false}, {1, 0, false}, {10000, 0, false}, {10001, 10000, true}, {1000000, 10000, true}};
    LongText text;
    for (const auto& row : rows)
    {
        const std::wstring whole(row.length, L'x');
        EXPECT_EQ(text.Set(whole), row.isLong) << row.length;
        EXPECT_EQ(text.IsLong(), row.isLong) << row.length;
        EXPECT_TRUE(text.Whole() == (row.isLong ? whole : L"")) << row.length;
        EXPECT_EQ(text.Beginning().size(), row.shown) << row.length;
    }
}

TEST(LongText, is_not_cut_inside_a_pair_of_surrogates)
{
    const struct
    {
        std::size_t before;
        std::size_t shown;
    } rows[] = {{9998, 10000}, {9999, 9999}, {10000, 10000}};
    LongText text;
    for (const auto& row : rows)
    {
        std::wstring whole(row.before, L'x');
        whole += static_cast<wchar_t>(0xD83D);
        whole += static_cast<wchar_t>(0xDE00);
        whole.append(3, L'y');
        ASSERT_TRUE(text.Set(whole));
        EXPECT_EQ(text.Beginning().size(), row.shown) << row.before;
        EXPECT_TRUE(whole.compare(0, row.shown, text.Beginning()) == 0);
    }
}

TEST(LongText, is_forgotten_with_the_next_one_that_fits)
{
    LongText text;
    ASSERT_TRUE(text.Set(std::wstring(10001, L'x')));
    EXPECT_FALSE(text.Set(L"short"));
    EXPECT_FALSE(text.IsLong());
    ASSERT_TRUE(text.Set(std::wstring(10001, L'x')));
    text.Clear();
    EXPECT_TRUE(text.Beginning().empty());
}
