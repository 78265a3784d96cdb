// Places of the children, the picker's grid and the lines of the frames, against values worked out by hand.
#include "formats/SmartComboLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{
// A font of 11 pixels, so fields of 15; a control of 200 by 30.
SmartComboLayout layout(bool showsButtons = true)
{
    return SmartComboLayout{CSize(200, 30), -11, showsButtons};
}

std::string said(const CRect& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}
std::string said(const SmartComboLine& line)
{
    return std::to_string(line.pen) + ": " + std::to_string(line.from.x) + " " + std::to_string(line.from.y) + " to " +
           std::to_string(line.to.x) + " " + std::to_string(line.to.y);
}
} // namespace

TEST(SmartComboLayout, children_stand_by_the_height_of_the_font)
{
    EXPECT_EQ(layout().FieldHeight(), 15);
    EXPECT_EQ((SmartComboLayout{CSize(200, 30), 11, true}.FieldHeight()), 15);
    EXPECT_EQ(said(layout().Combo()), "0 0 200 200");
    EXPECT_EQ(said(layout().AddButton()), "186 2 198 10") << "(15 + 6) / 2";
    EXPECT_EQ(said(layout().DeleteButton()), "186 10 198 19");
    EXPECT_EQ(said(layout().Picker()), "0 0 45 21");
    EXPECT_EQ(said(layout().LeftBitmap()), "0 0 21 21");
    EXPECT_EQ(said(layout().RightBitmap()), "21 0 41 21");
}

TEST(SmartComboLayout, the_combo_box_makes_room_for_the_pictures)
{
    EXPECT_EQ(said(layout(true).ComboBesidePicker()), "44 0 230 200") << "44 are not taken off the width";
    EXPECT_EQ(said(layout(false).ComboBesidePicker()), "44 0 244 200");
    EXPECT_EQ(said(layout(true).ComboBesideBitmap()), "20 0 200 200");
    EXPECT_EQ(said(layout(false).ComboBesideBitmap()), "20 0 220 200");
    EXPECT_EQ(said(layout(true).ComboBesideBitmaps()), "40 0 200 200");
    EXPECT_EQ(said(layout(false).ComboBesideBitmaps()), "40 0 240 200");
    EXPECT_EQ(said(layout(true).ComboAlone()), "0 0 200 200");
    EXPECT_EQ(said(layout(false).ComboAlone()), "0 0 200 200");
}

TEST(SmartComboLayout, hidden_buttons_leave_their_room_to_the_combo_box_except_beside_two_bitmaps)
{
    EXPECT_EQ(said(layout().ComboWithoutButtons(BITMAPMODE_NONE).value()), "0 0 200 200");
    EXPECT_EQ(said(layout().ComboWithoutButtons(BITMAPMODE_PICKER).value()), "44 0 200 200");
    EXPECT_EQ(said(layout().ComboWithoutButtons(BITMAPMODE_SINGLE).value()), "20 0 200 200");
    EXPECT_FALSE(layout().ComboWithoutButtons(BITMAPMODE_DOUBLE).has_value());
}

TEST(SmartComboLayout, a_new_width_moves_the_right_end_of_the_combo_box_only)
{
    EXPECT_EQ(said(SmartComboLayout::Widened(CRect(44, 1, 230, 23), 300)), "44 1 300 23");
}

TEST(SmartComboLayout, the_grid_of_the_picker_is_nearly_square)
{
    const struct
    {
        int count;
        int columns;
        int rows;
    } rows[] = {{1, 1, 1},
                {2, 2, 1},
                {3, 2, 2},
                {4, 2, 2},
                {5, 3, 2},
                {6, 3, 2},
                {7, 3, 3},
                {8, 3, 3},
                {9, 3, 3},
                {10, 4, 3},
                {12, 4, 3},
                {13, 4, 4},
                {16, 4, 4},
                {0, 0, 0},
                {-1, 0, 0},
                {INT_MIN, 0, 0},
                {INT_MAX, 46341, 46341}};
    for (const auto& row : rows)
    {
        const CSize grid = SmartComboLayout::Grid(row.count);
        EXPECT_EQ(grid.cx, row.columns) << row.count;
        EXPECT_EQ(grid.cy, row.rows) << row.count;
    }
}

TEST(SmartComboLayout, buttons_are_enabled_as_asked_and_stay_when_nothing_is_asked)
{
    EXPECT_FALSE(SmartComboButtonsState::Of(false, false).has_value());
    for (const auto& [add, remove] : {std::pair(true, false), std::pair(false, true), std::pair(true, true)})
    {
        const auto state = SmartComboButtonsState::Of(add, remove);
        ASSERT_TRUE(state.has_value());
        EXPECT_EQ(state->add, add);
        EXPECT_EQ(state->remove, remove);
    }
}

// A control at 100, 50 to 300, 80: m is 11 + 9 = 20.
TEST(SmartComboFrames, the_frame_of_the_buttons_is_as_wide_as_the_mode_says)
{
    const struct
    {
        int mode;
        const char* lines[5];
    } rows[] = {
        {BITMAPMODE_NONE,
         {"-1: 298 51 to 298 51", "5: 300 70 to 299 70", "16: 299 50 to 299 50", "16: 298 50 to 298 70",
          "15: 298 69 to 298 69"}},
        {BITMAPMODE_PICKER,
         {"-1: 284 51 to 298 51", "5: 286 70 to 299 70", "16: 285 50 to 299 50", "16: 298 50 to 298 70",
          "15: 284 69 to 298 69"}},
        {BITMAPMODE_SINGLE,
         {"-1: 278 51 to 298 51", "5: 280 70 to 299 70", "16: 279 50 to 299 50", "16: 298 50 to 298 70",
          "15: 278 69 to 298 69"}},
        {BITMAPMODE_DOUBLE,
         {"-1: 298 51 to 298 51", "5: 300 70 to 299 70", "16: 299 50 to 299 50", "16: 298 50 to 298 70",
          "15: 298 69 to 298 69"}},
    };
    for (const auto& row : rows)
    {
        const auto lines = SmartComboFrames::AroundButtons(CRect(100, 50, 300, 80), row.mode, -11);
        for (std::size_t i = 0; i < lines.size(); ++i)
            EXPECT_EQ(said(lines[i]), row.lines[i]) << row.mode;
    }
}

TEST(SmartComboFrames, the_frame_of_the_picker_goes_round_45_pixels)
{
    const auto lines = SmartComboFrames::AroundPicker(CRect(100, 50, 300, 80), 11);
    const char* const expected[] = {"20: 100 70 to 145 70", "16: 100 50 to 144 50", "16: 100 51 to 100 71",
                                    "15: 101 69 to 145 69"};
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(said(lines[i]), expected[i]);
}

TEST(SmartComboFrames, extreme_places_wrap_round_and_do_no_harm)
{
    const CRect extreme(INT_MIN, INT_MAX, INT_MIN, INT_MAX);
    EXPECT_EQ(SmartComboFrames::AroundButtons(extreme, BITMAPMODE_SINGLE, INT_MIN).size(), 5U);
    EXPECT_EQ(SmartComboFrames::AroundPicker(extreme, INT_MAX)[1].to.x, INT_MIN + 44);
    EXPECT_EQ((SmartComboLayout{CSize(INT_MIN, INT_MIN), INT_MIN, true}.Picker().right), 45);
}
