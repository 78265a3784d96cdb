// The parts and the layout of the one-line tip, against values worked out by hand.
#include "tooltips/LineTip.h"

#include <gtest/gtest.h>

#include <climits>

TEST(LineTipText, the_angle_bracket_part_goes_right_without_its_brackets)
{
    const LineTipText parts = LineTipText::split(L"Length <1.5 m>");
    EXPECT_TRUE(parts.left == L"Length ");
    EXPECT_TRUE(parts.right == L"1.5 m");
}

TEST(LineTipText, a_text_without_an_opening_bracket_is_all_left)
{
    const LineTipText parts = LineTipText::split(L"Length 1.5 m>");
    EXPECT_TRUE(parts.left == L"Length 1.5 m>");
    EXPECT_TRUE(parts.right.IsEmpty());
}

TEST(LineTipText, a_text_that_begins_with_the_bracket_is_all_right)
{
    const LineTipText parts = LineTipText::split(L"<1.5 m>");
    EXPECT_TRUE(parts.left.IsEmpty());
    EXPECT_TRUE(parts.right == L"1.5 m");
}

TEST(LineTipText, every_bracket_behind_the_first_is_removed)
{
    const LineTipText parts = LineTipText::split(L"a>b<c><d>>e");
    EXPECT_TRUE(parts.left == L"a>b");
    EXPECT_TRUE(parts.right == L"cde");
}

TEST(LineTipText, a_lone_bracket_leaves_nothing_on_the_right)
{
    const LineTipText parts = LineTipText::split(L"a<");
    EXPECT_TRUE(parts.left == L"a");
    EXPECT_TRUE(parts.right.IsEmpty());
}

TEST(LineTipText, an_empty_text_has_two_empty_parts)
{
    const LineTipText parts = LineTipText::split(CString());
    EXPECT_TRUE(parts.left.IsEmpty());
    EXPECT_TRUE(parts.right.IsEmpty());
}

TEST(LineTipText, a_hundred_thousand_brackets_are_removed_at_once)
{
    const LineTipText parts = LineTipText::split(L"a" + CString(L'<', 100000) + L"b" + CString(L'>', 100000));
    EXPECT_TRUE(parts.left == L"a");
    EXPECT_TRUE(parts.right == L"b");
}

TEST(LineTipLayout, the_sizes_are_summed_in_both_dimensions)
{
    EXPECT_TRUE(LineTipLayout::sum(CSize(60, 16), CSize(40, 17)) == CSize(100, 33));
    EXPECT_TRUE(LineTipLayout::sum(CSize(INT_MAX, 1), CSize(1, INT_MAX)) == CSize(INT_MAX, INT_MAX));
}

TEST(LineTipLayout, the_tip_is_centred_on_its_point_with_seven_pixels_more_on_the_right)
{
    const LineTipLayout layout = LineTipLayout::of(CPoint(100, 50), CSize(60, 16), CSize(100, 32));
    EXPECT_TRUE(layout.bounds == CRect(50, 50, 157, 68));
    EXPECT_TRUE(layout.frame == CSize(107, 18));
}

TEST(LineTipLayout, half_of_an_odd_width_is_rounded_down_on_both_sides)
{
    const LineTipLayout layout = LineTipLayout::of(CPoint(100, 50), CSize(61, 16), CSize(101, 32));
    EXPECT_TRUE(layout.bounds == CRect(50, 50, 157, 68));
}

TEST(LineTipLayout, the_height_is_that_of_the_left_text_alone)
{
    const LineTipLayout layout = LineTipLayout::of(CPoint(0, 0), CSize(0, 25), CSize(40, 50));
    EXPECT_TRUE(layout.bounds == CRect(-20, 0, 27, 27));
}

TEST(LineTipLayout, the_bold_text_follows_the_normal_one)
{
    const LineTipLayout layout = LineTipLayout::of(CPoint(100, 50), CSize(60, 16), CSize(100, 32));
    EXPECT_TRUE(layout.left == CPoint(3, 1));
    EXPECT_TRUE(layout.right == CPoint(63, 1));
}

TEST(LineTipLayout, a_point_left_of_and_above_the_parent_is_kept)
{
    const LineTipLayout layout = LineTipLayout::of(CPoint(-10, -20), CSize(5, 16), CSize(5, 32));
    EXPECT_TRUE(layout.bounds == CRect(-12, -20, -1, -2));
}

TEST(LineTipLayout, values_at_the_ends_of_the_number_range_do_not_overflow)
{
    const LineTipLayout high =
        LineTipLayout::of(CPoint(INT_MAX, INT_MAX), CSize(INT_MAX, INT_MAX), CSize(INT_MAX, INT_MAX));
    EXPECT_TRUE(high.bounds == CRect(1073741824, INT_MAX, INT_MAX, INT_MAX));
    EXPECT_TRUE(high.right == CPoint(INT_MAX, 1));
    const LineTipLayout low = LineTipLayout::of(CPoint(INT_MIN, INT_MIN), CSize(2, 2), CSize(INT_MAX, 2));
    EXPECT_EQ(INT_MIN, low.bounds.left);
    EXPECT_EQ(-1073741818, low.bounds.right);
}
