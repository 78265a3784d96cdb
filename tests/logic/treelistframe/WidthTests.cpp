// Widths of the header, against values worked out by hand.
#include "treelist/WidthRules.h"

#include <gtest/gtest.h>

#include <climits>

using treelist::HeaderWidth;
using treelist::StretchWidth;

namespace
{
struct Stretch
{
    int a, b, expected;
};
} // namespace

TEST(StretchWidth, gives_the_next_multiple_above)
{
    constexpr Stretch rows[] = {
        {100, 100, 200}, // a multiple already: one step more
        {99, 100, 100},  {0, 6, 6},         {5, 6, 6},       {6, 6, 12},
        {7, 6, 12},      {150, 200, 200},   {200, 200, 400}, {-1, 100, 100}, // -1 / 100 is 0
        {-100, 100, 0},  {-250, 100, -100},                                  // -2 + 1
        {10, -4, 4},                                                         // 10 / -4 is -2
    };
    for (const Stretch& row : rows)
        EXPECT_EQ(row.expected, StretchWidth(row.a, row.b)) << row.a << " by " << row.b;
}

TEST(StretchWidth, by_zero_gives_the_width)
{
    for (const int a : {0, 1, -7, INT_MAX, INT_MIN})
        EXPECT_EQ(a, StretchWidth(a, 0));
}

TEST(StretchWidth, is_held_at_the_ends_of_int)
{
    EXPECT_EQ(INT_MAX, StretchWidth(INT_MAX, 1)); // 2147483648
    EXPECT_EQ(INT_MAX, StretchWidth(INT_MAX, INT_MAX));
    EXPECT_EQ(INT_MAX, StretchWidth(INT_MAX, 6));  // 2147483652, the multiple above the largest int
    EXPECT_EQ(INT_MIN, StretchWidth(INT_MIN, -1)); // -2147483649
    EXPECT_EQ(-INT_MAX, StretchWidth(INT_MIN, 1)); // -2147483648 + 1 step
}

TEST(HeaderWidth, is_the_frames_where_the_stretched_total_is_not_wider)
{
    EXPECT_EQ(200, HeaderWidth(150, 200, 200)); // stretched to 200, which does not exceed 200
    EXPECT_EQ(200, HeaderWidth(0, 200, 200));
    EXPECT_EQ(300, HeaderWidth(150, 183, 300)); // stretched to 183
}

TEST(HeaderWidth, of_a_total_that_fills_the_frame_exactly_is_two_frames)
{
    EXPECT_EQ(400, HeaderWidth(200, 200, 200));
}

TEST(HeaderWidth, is_the_next_whole_step_above_a_wide_total)
{
    EXPECT_EQ(600, HeaderWidth(450, 200, 200));
    EXPECT_EQ(549, HeaderWidth(450, 183, 200)); // 183 * 3
}

TEST(HeaderWidth, of_a_frame_without_width_is_the_total)
{
    EXPECT_EQ(0, HeaderWidth(0, 0, 0));
    EXPECT_EQ(70, HeaderWidth(70, 0, 0));
}
