// The balloon's shape and place, against values worked out by hand.
#include "tooltips/BalloonShape.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{
const CSize usual(180, 80);
const CSize screen(1024, 768);

BalloonShape usualShape(bool leftOriented)
{
    return BalloonShape::of(CRect(0, 0, 180, 80), leftOriented);
}

CPoint placed(int x, int y, bool leftOriented = true)
{
    return BalloonShape::place(CPoint(x, y), usual, screen, leftOriented);
}
} // namespace

TEST(BalloonShape, a_balloon_of_180_by_80_has_its_body_right_of_and_above_the_tail)
{
    const BalloonShape shape = usualShape(true);
    EXPECT_TRUE(shape.body == CRect(10, 0, 180, 70));
    EXPECT_EQ(10, BalloonShape::cornerSize);
    EXPECT_TRUE(shape.start == CRect(10, 0, 180, 80));
}

TEST(BalloonShape, the_text_keeps_20_5_10_and_5_pixels_from_the_edges)
{
    EXPECT_TRUE(usualShape(true).text == CRect(20, 5, 170, 75));
}

TEST(BalloonShape, the_left_tail_ends_in_the_left_bottom_corner)
{
    const BalloonShape shape = usualShape(true);
    EXPECT_TRUE(shape.tail[0] == CPoint(0, 80));
    EXPECT_TRUE(shape.tail[1] == CPoint(20, 68));
    EXPECT_TRUE(shape.tail[2] == CPoint(12, 60));
}

TEST(BalloonShape, the_right_tail_ends_in_the_right_bottom_corner)
{
    const BalloonShape shape = usualShape(false);
    EXPECT_TRUE(shape.tail[0] == CPoint(180, 80));
    EXPECT_TRUE(shape.tail[1] == CPoint(160, 68));
    EXPECT_TRUE(shape.tail[2] == CPoint(168, 60));
}

TEST(BalloonShape, body_and_text_are_not_mirrored_with_the_tail)
{
    const BalloonShape shape = usualShape(false);
    EXPECT_TRUE(shape.body == CRect(10, 0, 180, 70));
    EXPECT_TRUE(shape.text == CRect(20, 5, 170, 75));
    EXPECT_TRUE(shape.start == CRect(10, 0, 180, 80));
}

TEST(BalloonShape, an_empty_client_area_turns_the_rectangles_inside_out)
{
    const BalloonShape shape = BalloonShape::of(CRect(0, 0, 0, 0), true);
    EXPECT_TRUE(shape.text == CRect(20, 5, -10, -5));
    EXPECT_TRUE(shape.body == CRect(10, 0, 0, -10));
    EXPECT_TRUE(shape.tail[1] == CPoint(20, -12));
}

TEST(BalloonShape, margins_stop_at_the_end_of_the_number_range)
{
    const BalloonShape shape = BalloonShape::of(CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN), false);
    EXPECT_TRUE(shape.text == CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN));
    EXPECT_TRUE(shape.tail[1] == CPoint(INT_MIN, INT_MIN));
}

TEST(BalloonShape, a_left_balloon_stands_up_and_right_from_its_point)
{
    EXPECT_TRUE(placed(300, 400) == CPoint(300, 320));
}

TEST(BalloonShape, a_right_balloon_stands_up_and_left_from_its_point)
{
    EXPECT_TRUE(placed(300, 400, false) == CPoint(120, 320));
}

TEST(BalloonShape, a_negative_coordinate_counts_as_0)
{
    EXPECT_TRUE(placed(-5, 400) == CPoint(0, 320));
    EXPECT_TRUE(placed(300, -7) == CPoint(300, -80));
    EXPECT_TRUE(placed(INT_MIN, INT_MIN) == CPoint(0, -80));
}

TEST(BalloonShape, nothing_holds_a_balloon_at_the_left_and_the_upper_edge)
{
    EXPECT_TRUE(placed(30, 20, false) == CPoint(-150, -60));
}

TEST(BalloonShape, the_window_is_pushed_left_at_the_right_edge)
{
    EXPECT_TRUE(placed(844, 400) == CPoint(844, 320)); // just fits: 844 + 180 = 1024
    EXPECT_TRUE(placed(845, 400) == CPoint(844, 320));
    EXPECT_TRUE(placed(INT_MAX, 400) == CPoint(844, 320));
}

TEST(BalloonShape, a_right_balloon_beyond_the_right_edge_is_pushed_left_too)
{
    EXPECT_TRUE(placed(1024, 400, false) == CPoint(844, 320));
    EXPECT_TRUE(placed(1100, 400, false) == CPoint(844, 320));
}

TEST(BalloonShape, a_point_below_the_screen_sets_the_window_on_its_lower_edge)
{
    EXPECT_TRUE(placed(300, 768) == CPoint(300, 688)); // the last height that is not beyond
    EXPECT_TRUE(placed(300, 769) == CPoint(300, 688));
    EXPECT_TRUE(placed(300, INT_MAX) == CPoint(300, 688));
}

TEST(BalloonShape, a_window_wider_than_the_screen_ends_at_its_right_edge)
{
    EXPECT_TRUE(BalloonShape::place(CPoint(0, 400), CSize(2000, 80), screen, true) == CPoint(-976, 320));
}

TEST(BalloonShape, sizes_at_the_ends_of_the_number_range_do_not_overflow)
{
    const CSize least(INT_MIN, INT_MIN);
    const CSize most(INT_MAX, INT_MAX);
    EXPECT_TRUE(BalloonShape::place(CPoint(0, 0), least, screen, false) == CPoint(INT_MAX, INT_MAX));
    EXPECT_TRUE(BalloonShape::place(CPoint(9, 9), most, screen, true) == CPoint(1024 - INT_MAX, 9 - INT_MAX));
}

TEST(BalloonShape, a_text_narrower_than_its_room_is_one_line_in_the_middle)
{
    EXPECT_EQ(37u, BalloonShape::textFlags(149, 150));
    EXPECT_EQ(37u, BalloonShape::textFlags(0, 150));
}

TEST(BalloonShape, a_text_that_fills_its_room_or_more_is_wrapped)
{
    EXPECT_EQ(17u, BalloonShape::textFlags(150, 150));
    EXPECT_EQ(17u, BalloonShape::textFlags(151, 150));
    EXPECT_EQ(17u, BalloonShape::textFlags(0, -30));
}
