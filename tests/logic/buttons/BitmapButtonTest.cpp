// The bitmap button, against values worked out by hand.
#include "oxa/buttons/BitmapButtonLayout.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{
std::string said(CPoint point)
{
    return std::to_string(point.x) + " " + std::to_string(point.y);
}
std::string said(const std::optional<CPoint>& point)
{
    return point.has_value() ? said(*point) : "none";
}
std::string said(const std::optional<CRect>& rect)
{
    return rect.has_value() ? said(CPoint(rect->left, rect->top)) + " " + said(CPoint(rect->right, rect->bottom))
                            : "none";
}

BitmapButtonLayout withImage()
{
    BitmapButtonLayout layout;
    layout.hasImage = true;
    layout.imageSize = CSize(16, 16);
    return layout;
}

/// A button of 100 by 30, with a caption of 40 by 13.
BitmapButtonLayout::Request request(unsigned int action, unsigned int state, unsigned int lastState,
                                    bool caption = true)
{
    return {CRect(0, 0, 100, 30), CSize(100, 30), action, state, lastState, caption, CSize(40, 13)};
}
} // namespace

TEST(BitmapButton, an_image_without_caption_stands_in_the_middle)
{
    const BitmapButtonPicture picture = withImage().Picture(request(ODA_DRAWENTIRE, 0, 0, false));
    EXPECT_EQ(said(picture.image), "42 7");
    EXPECT_EQ(said(picture.caption), "none");
}

TEST(BitmapButton, a_caption_without_image_stands_in_the_middle_one_pixel_up)
{
    const BitmapButtonPicture picture = BitmapButtonLayout().Picture(request(ODA_DRAWENTIRE, 0, 0));
    EXPECT_EQ(said(picture.image), "none");
    EXPECT_EQ(said(picture.caption), "30 7") << "(100 - 40) / 2, (30 - 13) / 2 - 1";
}

TEST(BitmapButton, an_image_stands_at_its_offset_and_the_caption_in_the_middle_of_the_rest)
{
    const BitmapButtonPicture picture = withImage().Picture(request(ODA_DRAWENTIRE, 0, 0));
    EXPECT_EQ(said(picture.image), "4 7");
    EXPECT_EQ(said(picture.caption), "44 7") << "28 + (100 - 28 - 40) / 2";
}

TEST(BitmapButton, a_caption_that_is_too_wide_begins_behind_the_image)
{
    EXPECT_EQ(said(withImage().CaptionAt(CSize(50, 30), CSize(40, 13))), "28 7");
}

TEST(BitmapButton, positions_are_kept_and_their_centred_coordinates_computed)
{
    const struct
    {
        CPoint position;
        const char* image;   ///< of 16 by 16
        const char* caption; ///< of 40 by 13
    } rows[] = {
        {CPoint(-1, 10), "42 10", "30 10"}, {CPoint(10, -1), "10 7", "10 7"}, // the caption one pixel above 8
        {CPoint(-1, -1), "42 7", "30 7"},   {CPoint(0, 0), "0 0", "0 0"},     {CPoint(-2, 500), "-2 500", "-2 500"},
    };
    for (const auto& row : rows)
    {
        BitmapButtonLayout layout = withImage();
        layout.automatic = false;
        layout.imagePosition = row.position;
        layout.textPosition = row.position;
        EXPECT_EQ(said(layout.ImageAt(CRect(0, 0, 100, 30), CSize(100, 30), true)), row.image);
        EXPECT_EQ(said(layout.CaptionAt(CSize(100, 30), CSize(40, 13))), row.caption);
    }
}

// An offset of -1 puts the image at -1, which means centred.
TEST(BitmapButton, a_computed_position_of_minus_one_is_centred_too)
{
    BitmapButtonLayout layout = withImage();
    layout.imageOffset = -1;
    EXPECT_EQ(said(layout.ImageAt(CRect(0, 0, 100, 30), CSize(100, 30), true)), "42 7");
}

TEST(BitmapButton, a_thing_larger_than_the_button_stands_out_on_both_sides)
{
    EXPECT_EQ(said(BitmapButtonLayout::Centre(CPoint(-1, -1), CSize(105, 31), CSize(100, 30))), "-3 -1")
        << "halves go down";
}

TEST(BitmapButton, pressing_moves_image_caption_and_tab)
{
    BitmapButtonLayout layout = withImage();
    layout.hasTab = true;
    const BitmapButtonPicture picture = layout.Picture(request(ODA_SELECT, ODS_SELECTED, 0));
    EXPECT_TRUE(picture.pushed);
    EXPECT_EQ(said(picture.image), "5 8");
    EXPECT_EQ(said(picture.caption), "45 8");
    ASSERT_TRUE(picture.tab.has_value());
    EXPECT_EQ(said(picture.tab->front().from), "2 2");
    EXPECT_EQ(said(std::optional(picture.face)), "0 0 100 30");
}

TEST(BitmapButton, the_tab_is_a_triangle_of_eight_lines)
{
    BitmapButtonLayout layout;
    layout.hasTab = true;
    const BitmapButtonPicture picture = layout.Picture(request(ODA_DRAWENTIRE, 0, 0));
    ASSERT_TRUE(picture.tab.has_value());
    for (int i = 0; i < 8; ++i)
    {
        const BitmapButtonPicture::Line line = (*picture.tab)[static_cast<std::size_t>(i)];
        EXPECT_EQ(said(line.from), "1 " + std::to_string(1 + i));
        EXPECT_EQ(line.end, 8 - i);
    }
    EXPECT_FALSE(BitmapButtonLayout().Picture(request(ODA_DRAWENTIRE, 0, 0)).tab.has_value());
}

TEST(BitmapButton, a_default_button_has_a_black_frame_and_a_smaller_face)
{
    BitmapButtonLayout layout = withImage();
    layout.isDefault = true;
    layout.hasTab = true;
    const BitmapButtonPicture picture = layout.Picture(request(ODA_DRAWENTIRE, 0, 0));
    EXPECT_EQ(said(picture.blackFrame), "0 0 100 30");
    EXPECT_EQ(said(std::optional(picture.face)), "1 1 99 29");
    EXPECT_EQ(said(picture.image), "5 7") << "from the left of the face";
    EXPECT_EQ(said(picture.tab->front().from), "2 2");
    EXPECT_EQ(said(withImage().Picture(request(ODA_DRAWENTIRE, 0, 0)).blackFrame), "none");
}

TEST(BitmapButton, a_focus_action_draws_nothing_but_the_mark)
{
    const BitmapButtonPicture picture = withImage().Picture(request(ODA_FOCUS, ODS_FOCUS, 0));
    EXPECT_FALSE(picture.drawn);
    EXPECT_EQ(said(picture.image), "none");
    EXPECT_EQ(said(picture.caption), "none");
    EXPECT_EQ(said(picture.focus), "3 3 97 27");
    EXPECT_TRUE(withImage().Picture(request(ODA_FOCUS | ODA_SELECT, ODS_FOCUS, 0)).drawn) << "more than the focus";
}

TEST(BitmapButton, the_focus_mark_is_toggled_by_the_states)
{
    const struct
    {
        unsigned int action;
        unsigned int state;
        unsigned int lastState;
        bool toggles;
    } rows[] = {
        {ODA_FOCUS, ODS_FOCUS, 0, true},
        {ODA_FOCUS, 0, ODS_FOCUS, true},
        {ODA_FOCUS, ODS_FOCUS, ODS_FOCUS, false},
        {ODA_FOCUS, 0, 0, false},
        {ODA_DRAWENTIRE, ODS_FOCUS, ODS_FOCUS, true},
        {ODA_DRAWENTIRE, ODS_FOCUS, 0, true},
        {ODA_DRAWENTIRE, 0, ODS_FOCUS, true}, // on a fresh face: kept on purpose
        {ODA_DRAWENTIRE, 0, 0, false},
        {ODA_SELECT, ODS_FOCUS | ODS_SELECTED, ODS_FOCUS, true},
        {ODA_SELECT, ODS_SELECTED, 0, false},
        {ODA_FOCUS, ODS_FOCUS | ODS_DISABLED, 0, false},
        {ODA_DRAWENTIRE, ODS_FOCUS | ODS_DISABLED, ODS_FOCUS, false},
        {ODA_DRAWENTIRE, ODS_DISABLED, ODS_FOCUS, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(BitmapButtonLayout::TogglesFocus(row.action, row.state, row.lastState), row.toggles)
            << row.action << ' ' << row.state << ' ' << row.lastState;
}

TEST(BitmapButton, a_disabled_button_has_the_disabled_look_and_no_mark)
{
    const BitmapButtonPicture picture = withImage().Picture(request(ODA_DRAWENTIRE, ODS_DISABLED | ODS_FOCUS, 0));
    EXPECT_TRUE(picture.disabled);
    EXPECT_EQ(said(picture.focus), "none");
    EXPECT_FALSE(withImage().Picture(request(ODA_DRAWENTIRE, 0, 0)).disabled);
}

TEST(BitmapButton, the_focus_mark_keeps_a_quarter_of_the_smaller_side_and_at_most_three)
{
    const struct
    {
        CRect item;
        const char* focus;
    } rows[] = {
        {CRect(0, 0, 100, 16), "3 3 97 13"}, {CRect(0, 0, 100, 15), "3 3 97 12"}, {CRect(0, 0, 100, 11), "2 2 98 9"},
        {CRect(0, 0, 7, 100), "1 1 6 99"},   {CRect(5, 5, 8, 100), "5 5 8 100"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(said(std::optional(BitmapButtonLayout::Focus(row.item))), row.focus);
}

TEST(BitmapButton, extreme_numbers_do_no_harm)
{
    BitmapButtonLayout layout = withImage();
    layout.imageSize = CSize(INT_MIN, INT_MAX);
    layout.imageOffset = INT_MAX;
    layout.textOffset = INT_MAX;
    layout.hasTab = true;
    layout.isDefault = true;
    const CRect extreme(INT_MAX, INT_MIN, INT_MIN, INT_MAX);
    const BitmapButtonPicture picture = layout.Picture(
        {extreme, CSize(INT_MIN, INT_MAX), ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS, 0, true, CSize(INT_MAX, INT_MIN)});
    EXPECT_TRUE(picture.drawn && picture.image && picture.caption && picture.tab && picture.focus);
}
