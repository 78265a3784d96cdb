// The face of the button combo, against values worked out by hand.
#include "oxa/buttons/ButtonComboFace.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{
// The face of the smart combo box's picker: 45 by 21.
const CRect client(0, 0, 45, 21);

std::string said(const CRect& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}
std::string said(const std::optional<CRect>& rect)
{
    return rect.has_value() ? said(*rect) : "none";
}
std::string said(const std::optional<ButtonComboFrame>& frame)
{
    return frame.has_value()
               ? said(frame->rect) + ": " + std::to_string(frame->topLeft) + " " + std::to_string(frame->bottomRight)
               : "none";
}
} // namespace

TEST(ButtonComboFace, the_strip_is_15_pixels_at_the_left_and_the_body_is_the_rest)
{
    EXPECT_EQ(said(ButtonComboFace::Strip(client)), "0 0 15 20");
    EXPECT_EQ(said(ButtonComboFace::Body(client)), "15 0 45 20");
    EXPECT_EQ(said(ButtonComboFace::MoveTest(client)), "0 0 30 21") << "taken off at the other side";
    EXPECT_EQ(said(ButtonComboFace::Strip(CRect(10, 20, 60, 40))), "10 20 25 39");
    EXPECT_EQ(said(ButtonComboFace::Body(CRect(10, 20, 60, 40))), "25 20 60 39");
}

TEST(ButtonComboFace, a_press_goes_to_the_part_under_the_mouse)
{
    const struct
    {
        CPoint point;
        bool bodyBefore;
        bool body;
        bool arrow;
    } rows[] = {
        {CPoint(15, 0), false, true, false}, {CPoint(44, 19), false, true, false}, {CPoint(14, 19), false, false, true},
        {CPoint(0, 0), true, true, true}, // the body stays as it is
        {CPoint(0, 20), true, false, false}, {CPoint(45, 5), true, false, false},  {CPoint(-1, 5), true, false, false},
    };
    for (const auto& row : rows)
        for (const bool arrowBefore : {false, true})
        {
            ButtonComboFace face;
            face.bodyPressed = row.bodyBefore;
            face.arrowPressed = arrowBefore;
            face.Press(client, row.point);
            EXPECT_EQ(face.bodyPressed, row.body) << row.point.x << ' ' << row.point.y;
            EXPECT_EQ(face.arrowPressed, row.arrow) << row.point.x << ' ' << row.point.y;
        }
}

TEST(ButtonComboFace, a_move_tells_when_it_crosses_the_edge_of_the_test_rectangle)
{
    ButtonComboFace face;
    EXPECT_FALSE(face.Move(client, CPoint(29, 20)));
    EXPECT_FALSE(face.offBody);
    EXPECT_TRUE(face.Move(client, CPoint(30, 20))) << "on the body, and yet outside";
    EXPECT_TRUE(face.offBody);
    EXPECT_FALSE(face.Move(client, CPoint(-5, 0)));
    EXPECT_TRUE(face.Move(client, CPoint(0, 0))) << "on the strip, and yet inside";
    EXPECT_FALSE(face.offBody);
}

TEST(ButtonComboFace, choosing_releases_both_parts)
{
    ButtonComboFace face;
    face.bodyPressed = true;
    face.arrowPressed = true;
    face.Select();
    EXPECT_FALSE(face.bodyPressed);
    EXPECT_FALSE(face.arrowPressed);
}

TEST(ButtonComboFace, is_drawn_by_its_state)
{
    const char* const raisedBody = "15 0 45 20: 20 16";
    const char* const sunkenBody = "15 0 46 21: 16 15";
    const char* const raisedStrip = "0 0 15 20: 20 16";
    const char* const sunkenStrip = "0 0 16 21: 16 15";
    const struct
    {
        bool isStatic;
        bool bodyPressed;
        bool arrowPressed;
        bool offBody;
        const char* body;
        const char* item;
        const char* strip;
        const char* arrow;
    } rows[] = {
        {false, false, false, false, raisedBody, "16 1 44 19", raisedStrip, "0 0 15 20"},
        {false, true, false, false, sunkenBody, "17 2 45 20", raisedStrip, "0 0 15 20"},
        {false, true, false, true, raisedBody, "16 1 44 19", raisedStrip, "0 0 15 20"},
        {false, false, true, false, raisedBody, "16 1 44 19", sunkenStrip, "1 1 16 21"},
        {false, true, true, false, sunkenBody, "17 2 45 20", sunkenStrip, "1 1 16 21"},
        {true, false, false, false, "none", "16 1 44 19", "none", "none"},
        {true, true, true, false, "none", "16 1 44 19", "none", "none"},
    };
    for (const auto& row : rows)
        for (const bool enabled : {true, false})
        {
            ButtonComboFace face;
            face.isStatic = row.isStatic;
            face.bodyPressed = row.bodyPressed;
            face.arrowPressed = row.arrowPressed;
            face.offBody = row.offBody;
            const ButtonComboPicture picture = face.Picture(client, enabled);
            EXPECT_EQ(said(std::optional(picture.outer)), "0 0 45 21: 20 16");
            EXPECT_EQ(said(picture.bodyFrame), row.body);
            EXPECT_EQ(said(picture.item), row.item);
            EXPECT_EQ(said(picture.stripFrame), row.strip);
            EXPECT_EQ(said(picture.arrow), row.arrow);
            EXPECT_EQ(picture.disabled, !enabled);
        }
}

TEST(ButtonComboFace, the_arrow_points_down_from_the_middle)
{
    const auto arrow = ButtonComboFace::Arrow(CRect(0, 0, 15, 20)); // the middle is 7, 10
    EXPECT_TRUE(arrow[0] == CPoint(5, 9));
    EXPECT_TRUE(arrow[1] == CPoint(9, 9));
    EXPECT_TRUE(arrow[2] == CPoint(7, 11));
    EXPECT_TRUE(ButtonComboFace::Arrow(CRect(1, 1, 16, 21))[2] == CPoint(8, 12));
}

TEST(ButtonComboFace, the_parent_hears_of_items_up_to_the_element_number)
{
    EXPECT_TRUE(ButtonComboFace::Tells(0, 3));
    EXPECT_TRUE(ButtonComboFace::Tells(3, 3));
    EXPECT_FALSE(ButtonComboFace::Tells(4, 3));
    EXPECT_TRUE(ButtonComboFace::Tells(-1, 0)) << "signed";
    EXPECT_FALSE(ButtonComboFace::Tells(0, -1));
}

TEST(ButtonComboFace, extreme_rectangles_do_no_harm)
{
    ButtonComboFace face;
    face.arrowPressed = true;
    face.bodyPressed = true;
    const CRect extreme(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
    face.Press(extreme, CPoint(INT_MIN, INT_MAX));
    EXPECT_FALSE(face.bodyPressed);
    EXPECT_TRUE(face.Picture(extreme, true).arrow.has_value());
    EXPECT_EQ(ButtonComboFace::Arrow(extreme).size(), 3U);
}
