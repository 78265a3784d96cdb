// The horizontal bar, the tree and the header, against values worked out by hand.
// A frame of 300 by 200, a header of 17, a bar of 18, a system whose vertical bar is 17 wide, unless a test says otherwise.
#include "treelist/ScrollRules.h"

#include <gtest/gtest.h>

#include <climits>

using namespace treelist;

namespace
{
Measures usual(int total, int treeWidth = 300)
{
    Measures now;
    now.frame = CSize(300, 200);
    now.headerHeight = 17;
    now.barHeight = 18;
    now.treeWidth = treeWidth;
    now.total = total;
    now.verticalBarWidth = 17;
    return now;
}

struct Scroll
{
    const char* what;
    ScrollCode code;
    unsigned thumb;
    int current;
    int expected;
};

constexpr int limit = 100;
constexpr int page = 40;
} // namespace

TEST(FirstLayout, puts_the_tree_below_the_header_and_the_bar_below_the_tree)
{
    // Text 13 high: the header is 17 high and the tree begins there. The tree ends 4 and the system's bar above the lower end.
    const FirstLayout first = LayOutFirst(CSize(300, 200), 13, 17, 17, 500);
    EXPECT_TRUE(first.header == CRect(-1, -1, 300, 16)); // 301 by 17
    EXPECT_TRUE(first.tree == CRect(0, 17, 296, 179));
    EXPECT_TRUE(first.bar == CRect(0, 179, 279, 500)) << "the lower end is a place on the screen";
}

TEST(FirstLayout, of_a_frame_without_size_stays_in_range)
{
    const FirstLayout first = LayOutFirst(CSize(0, 0), 13, 17, 17, 0);
    EXPECT_TRUE(first.header == CRect(-1, -1, 0, 16));
    EXPECT_TRUE(first.tree == CRect(0, 17, -4, -21));
    EXPECT_TRUE(first.bar == CRect(0, -21, -21, 0));
}

TEST(Recalculation, columns_as_wide_as_the_tree_need_no_bar)
{
    EXPECT_TRUE(FitsWithoutBar(usual(300)));
    EXPECT_FALSE(FitsWithoutBar(usual(301)));
    EXPECT_EQ(0, UpperEnd(usual(300)));
    EXPECT_EQ(1, UpperEnd(usual(301)));
    EXPECT_EQ(317, UpperEnd(usual(600, 283)));
}

TEST(Recalculation, the_tree_fills_the_frame_below_the_header_and_above_the_bar)
{
    EXPECT_TRUE(TreeSize(usual(150), false) == CSize(300, 183));
    EXPECT_TRUE(TreeSize(usual(600), true) == CSize(300, 165));
}

TEST(Recalculation, the_bar_leaves_room_beside_it_for_the_end_of_the_vertical_bar)
{
    EXPECT_EQ(300, BarWidth(usual(600), false));
    EXPECT_EQ(283, BarWidth(usual(600), true));
}

TEST(Recalculation, the_header_at_rest_is_stretched_in_steps_of_the_frame)
{
    EXPECT_EQ(300, HeaderWidthAtRest(usual(150)));
    EXPECT_EQ(300, HeaderWidthAtRest(usual(299)));
    EXPECT_EQ(600, HeaderWidthAtRest(usual(300)));
}

TEST(VerticalReset, with_no_bar_at_all_nothing_is_set)
{
    EXPECT_EQ(VerticalReset{}, ResetVertical(usual(150), {0, 0}, false, false));
    EXPECT_EQ(VerticalReset{}, ResetVertical(usual(600), {0, 0}, false, false));
}

TEST(VerticalReset, the_horizontal_bar_alone_takes_the_full_width)
{
    VerticalReset expected;
    expected.barWidth = 300;
    EXPECT_EQ(expected, ResetVertical(usual(600), {0, 300}, true, false));
}

TEST(VerticalReset, a_vertical_bar_that_went_shortens_the_range)
{
    // The range was 600 - 283 = 317 beside the vertical bar; the tree is 300 wide now, and 600 - 300 + 17 is 317.
    VerticalReset expected;
    expected.barWidth = 300;
    expected.range = Range{0, 300};
    EXPECT_EQ(expected, ResetVertical(usual(600), {0, 317}, true, false));
}

TEST(VerticalReset, a_vertical_bar_that_went_takes_the_horizontal_one_along_when_all_fits)
{
    // Columns of 300 beside a vertical bar: range 17. 300 - 300 + 17 is 17, and 17 - 17 is below 1.
    VerticalReset expected;
    expected.barWidth = 300;
    expected.barShown = false;
    expected.treeHeight = 183;
    expected.range = Range{0, 0};
    expected.toTheLeftEnd = true;
    EXPECT_EQ(expected, ResetVertical(usual(300), {0, 17}, true, false));
    EXPECT_EQ(expected, ResetVertical(usual(290), {0, 7}, true, false));
}

TEST(VerticalReset, one_pixel_too_many_keeps_the_horizontal_bar)
{
    VerticalReset expected;
    expected.barWidth = 300;
    expected.range = Range{0, 1};
    EXPECT_EQ(expected, ResetVertical(usual(301), {0, 18}, true, false));
}

TEST(VerticalReset, a_range_that_is_up_to_date_stays)
{
    VerticalReset expected;
    expected.barWidth = 283;
    EXPECT_EQ(expected, ResetVertical(usual(600, 283), {0, 317}, true, true));
}

TEST(VerticalReset, a_vertical_bar_that_came_lengthens_the_range)
{
    // The range was 600 - 300 = 300; the tree is 283 wide now, and 600 - 283 - 17 is 300.
    VerticalReset expected;
    expected.barWidth = 283;
    expected.range = Range{0, 317};
    EXPECT_EQ(expected, ResetVertical(usual(600, 283), {0, 300}, true, true));
}

TEST(VerticalReset, the_lower_end_of_a_range_is_kept)
{
    EXPECT_EQ((Range{5, 322}), *ResetVertical(usual(600, 283), {5, 305}, true, true).range);
    EXPECT_EQ((Range{5, 305}), *ResetVertical(usual(600), {5, 322}, true, false).range);
}

TEST(VerticalReset, the_vertical_bar_alone_leaves_columns_that_fit)
{
    EXPECT_EQ(VerticalReset{}, ResetVertical(usual(283, 283), {0, 0}, false, true));
}

TEST(VerticalReset, a_vertical_bar_over_the_last_column_brings_the_horizontal_one)
{
    VerticalReset expected;
    expected.barShown = true;
    expected.treeHeight = 165;
    expected.barWidth = 283;
    expected.range = Range{0, 1};
    EXPECT_EQ(expected, ResetVertical(usual(284, 283), {0, 0}, false, true));
}

TEST(Placement, ends_the_tree_above_the_bar_whether_or_not_that_is_shown)
{
    const Placement place = Place(CSize(300, 200), 17, 18);
    EXPECT_TRUE(place.header == CSize(300, 17));
    EXPECT_TRUE(place.tree == CSize(300, 182));
    EXPECT_TRUE(place.bar == CRect(0, 182, 300, 200));
}

TEST(Placement, of_a_frame_smaller_than_its_bar_has_a_negative_height)
{
    const Placement place = Place(CSize(0, 0), 17, 18);
    EXPECT_TRUE(place.tree == CSize(0, -18));
    EXPECT_TRUE(place.bar == CRect(0, -18, 0, 0));
}

TEST(Resize, columns_that_fit_hide_the_bar)
{
    EXPECT_EQ((Resized{false, 183, std::nullopt, 0}), Resize(usual(300)));
}

TEST(Resize, wider_columns_show_the_bar_with_room_for_a_vertical_one)
{
    EXPECT_EQ((Resized{true, 165, 283, 1}), Resize(usual(301)));
    EXPECT_EQ((Resized{true, 165, 283, 317}), Resize(usual(600, 283)));
}

TEST(Resize, a_frame_without_size_stays_in_range)
{
    Measures now = usual(600, 0);
    now.frame = CSize(0, 0);
    EXPECT_EQ((Resized{true, -35, -17, 600}), Resize(now));
}

TEST(Resize, a_thousand_wide_columns_stay_in_range)
{
    EXPECT_EQ((Resized{true, 165, 283, 32767000 - 300}), Resize(usual(32767000)));
    Measures widest = usual(INT_MAX, 0);
    EXPECT_EQ(INT_MAX, Resize(widest).upperEnd);
    widest.frame = CSize(INT_MIN, INT_MIN);
    EXPECT_EQ((Resized{true, INT_MIN, INT_MIN, INT_MAX}), Resize(widest));
}

TEST(Scrolling, each_code_has_its_position)
{
    const Scroll rows[] = {
        {"a line to the left", ScrollCode::lineLeft, 0, 50, 44},
        {"a line to the left, just left of the end", ScrollCode::lineLeft, 0, 7, 1},
        {"a line to the left, no more than a line", ScrollCode::lineLeft, 0, 6, 0},
        {"a line to the left, less than a line", ScrollCode::lineLeft, 0, 3, 0},
        {"a line to the right", ScrollCode::lineRight, 0, 50, 56},
        {"a line to the right, over the end", ScrollCode::lineRight, 0, 97, 100},
        {"a line to the right, at the end", ScrollCode::lineRight, 0, 100, 100},
        {"a page to the left", ScrollCode::pageLeft, 0, 50, 10},
        {"a page to the left, over the end", ScrollCode::pageLeft, 0, 40, 0},
        {"a page to the right", ScrollCode::pageRight, 0, 50, 90},
        {"a page to the right, over the end", ScrollCode::pageRight, 0, 61, 100},
        {"the left end", ScrollCode::left, 0, 50, 0},
        {"the right end", ScrollCode::right, 0, 50, 100},
        {"the thumb at the left end", ScrollCode::thumbTrack, 0, 50, 0},
        {"the thumb at 1", ScrollCode::thumbTrack, 1, 50, 6},
        {"the thumb at a multiple", ScrollCode::thumbPosition, 6, 50, 12},
        {"the thumb at an odd place", ScrollCode::thumbPosition, 33, 50, 36},
        {"the thumb just below the end", ScrollCode::thumbPosition, 95, 50, 96},
        {"the thumb in the last line", ScrollCode::thumbTrack, 96, 50, 100}, // 102 is not below 100
        {"the thumb beyond the end", ScrollCode::thumbTrack, 65535, 50, 100},
        {"a code that is none of these", static_cast<ScrollCode>(8), 3, 50, 50},
        {"a code of any size", static_cast<ScrollCode>(0xFFFF), 3, 50, 50},
    };
    for (const Scroll& row : rows)
        EXPECT_EQ(row.expected, ScrollPosition(row.code, row.thumb, row.current, limit, page)) << row.what;
}

TEST(Scrolling, stays_in_range_at_the_ends_of_int)
{
    EXPECT_EQ(INT_MAX, ScrollPosition(ScrollCode::lineRight, 0, INT_MAX, INT_MAX, page));
    EXPECT_EQ(INT_MAX, ScrollPosition(ScrollCode::pageRight, 0, 50, INT_MAX, INT_MAX));
    EXPECT_EQ(0, ScrollPosition(ScrollCode::lineLeft, 0, INT_MIN, limit, page));
    EXPECT_EQ(limit, ScrollPosition(ScrollCode::thumbTrack, UINT_MAX, 0, limit, page));
    EXPECT_EQ(0, ScrollPosition(ScrollCode::lineRight, 0, 0, 0, page)) << "nothing to scroll";
}

TEST(NarrowerColumn, at_the_right_end_the_last_column_ends_at_the_trees_edge)
{
    EXPECT_EQ(-280, *OffsetAfterChange(600, usual(580), 280, 280)); // 300 - 580
}

TEST(NarrowerColumn, leaves_the_offset_in_every_other_case)
{
    EXPECT_FALSE(OffsetAfterChange(580, usual(580), 280, 280)) << "as wide as before";
    EXPECT_FALSE(OffsetAfterChange(570, usual(580), 280, 280)) << "wider";
    EXPECT_FALSE(OffsetAfterChange(600, usual(580), 279, 280)) << "not at the end";
    EXPECT_FALSE(OffsetAfterChange(310, usual(300), 0, 0)) << "all of it fits";
}
