// What an item of the combo box with images draws, against values worked out by hand.
#include "dropdowns/ImageComboItem.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{
/// An enabled item at 0, 20 to 100, 38 with an image 16 wide and a text 30 wide; the images are 1, 2 and 3.
ImageComboItem item(unsigned int state = 0, int id = 4)
{
    return {CRect(0, 20, 100, 38), id, state, true, true, {1, 2, 3}, 0, true, 16, 30};
}
std::string said(const std::optional<int>& color)
{
    return color.has_value() ? std::to_string(*color) : "kept";
}
std::string said(const std::optional<ComboItemPicture::Image>& image)
{
    if (!image.has_value())
        return "none";
    const char* const looks[] = {"selected", "transparent", "grey"};
    return std::to_string(image->index) + " " + looks[static_cast<int>(image->look)] + " at " +
           std::to_string(image->place.x) + " " + std::to_string(image->place.y);
}
std::string said(const std::optional<CRect>& rect)
{
    return rect.has_value() ? std::to_string(rect->left) + " " + std::to_string(rect->top) + " " +
                                  std::to_string(rect->right) + " " + std::to_string(rect->bottom)
                            : "none";
}
} // namespace

TEST(ImageComboItem, draws_by_state_and_item)
{
    const unsigned int field = ODS_COMBOBOXEDIT;
    const struct
    {
        unsigned int state;
        int id;
        bool enabled;
        const char* textColor;
        const char* background;
        int focusMarks;
        const char* image;
        bool hasText;
    } rows[] = {
        {0, 4, true, "kept", "kept", 0, "1 transparent at 1 21", true},
        {ODS_SELECTED, 4, true, "14", "13", 0, "1 transparent at 1 21", true},
        {ODS_SELECTED | ODS_FOCUS, 4, true, "14", "13", 0, "2 selected at 1 21", true},
        {ODS_FOCUS, 4, true, "kept", "kept", 0, "2 selected at 1 21", true},
        {field, 4, true, "kept", "kept", 0, "1 transparent at 1 21", true},
        {field, -1, true, "kept", "kept", 1, "none", false},
        {0, -1, true, "kept", "kept", 0, "none", false},
        {ODS_FOCUS, -1, true, "kept", "kept", 1, "none", false},
        {field | ODS_FOCUS, -1, true, "kept", "kept", 2, "none", false}, // the two marks take each other off
        {0, 4, false, "17", "15", 0, "3 grey at 1 21", true},
        {ODS_SELECTED | ODS_FOCUS, 4, false, "17", "15", 0, "3 grey at 1 21", true},
        {field | ODS_FOCUS, -1, false, "17", "15", 1, "3 grey at 1 21", false},
    };
    for (const auto& row : rows)
    {
        ImageComboItem drawn = item(row.state, row.id);
        drawn.enabled = row.enabled;
        const auto picture = drawn.Picture();
        ASSERT_TRUE(picture.has_value());
        EXPECT_EQ(said(picture->textColor), row.textColor) << row.state;
        EXPECT_EQ(said(picture->background), row.background) << row.state;
        EXPECT_EQ(picture->focusMarks, row.focusMarks) << row.state;
        EXPECT_EQ(said(picture->image), row.image) << row.state;
        EXPECT_EQ(picture->hasText, row.hasText) << row.state;
        EXPECT_EQ(said(picture->text), row.hasText ? "21 21 51 37" : said(picture->text));
    }
}

TEST(ImageComboItem, steps_in_by_ten_pixels_per_indent)
{
    ImageComboItem indented = item();
    indented.indent = 2;
    const auto picture = indented.Picture();
    EXPECT_EQ(said(picture->image), "1 transparent at 21 21");
    EXPECT_EQ(said(picture->text), "41 21 71 37") << "21 + 16 + 4, and 30 wide";
}

TEST(ImageComboItem, draws_nothing_in_the_field_when_it_is_not_visible_and_the_list_as_ever)
{
    ImageComboItem hidden = item(ODS_COMBOBOXEDIT);
    hidden.visibility = false;
    EXPECT_FALSE(hidden.Picture().has_value());
    hidden.id = -1;
    EXPECT_FALSE(hidden.Picture().has_value());
    hidden.state = 0;
    hidden.id = 4;
    ASSERT_TRUE(hidden.Picture().has_value());
    EXPECT_EQ(said(hidden.Picture()->image), "1 transparent at 1 21");
}

TEST(ImageComboItem, draws_only_the_focus_mark_of_an_empty_field_without_image_list)
{
    ImageComboItem bare = item(ODS_COMBOBOXEDIT | ODS_FOCUS, -1);
    bare.hasImageList = false;
    const auto picture = bare.Picture();
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->focusMarks, 1);
    EXPECT_EQ(said(picture->image), "none");
    EXPECT_EQ(said(picture->text), "none");
}

TEST(ImageComboItem, extreme_numbers_do_no_harm)
{
    ImageComboItem extreme = item();
    extreme.rect = CRect(INT_MAX, INT_MIN, INT_MIN, INT_MAX);
    extreme.indent = INT_MIN;
    extreme.imageWidth = INT_MAX;
    extreme.textWidth = INT_MAX;
    EXPECT_TRUE(extreme.Picture().has_value());
}

TEST(ImageComboItem, shows_an_image_by_focus_and_use_of_an_empty_field_too)
{
    for (const int id : {4, -1})
    {
        ImageComboItem one = item(ODS_SELECTED, id);
        EXPECT_EQ(one.ImageIndex(), 1);
        one.state = ODS_FOCUS;
        EXPECT_EQ(one.ImageIndex(), 2);
        one.enabled = false;
        EXPECT_EQ(one.ImageIndex(), 3);
    }
}
