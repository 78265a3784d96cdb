// Sort images and the drawing of a header item, against values worked out by hand.
// An item 20 to 120 wide and 0 to 17 high; a blank of 3 makes a margin of 6; the first character is 7, an image 16 wide.
#include "treelist/HeaderRules.h"

#include <gtest/gtest.h>

#include <climits>

using namespace treelist;

namespace
{
constexpr unsigned leftFlags = 0x8924;   // end ellipsis, no prefix, no clip, single line, middle
constexpr unsigned centerFlags = 0x8925; // and centre
constexpr unsigned rightFlags = 0x8926;  // and right
constexpr unsigned left = 0;

HeaderItemMeasures item(unsigned format, unsigned state = 0, bool withImage = false)
{
    HeaderItemMeasures measures;
    measures.rect = CRect(20, 0, 120, 17);
    measures.state = state;
    measures.format = format;
    measures.blankWidth = 3;
    measures.firstCharacterWidth = 7;
    measures.hasImage = withImage;
    if (withImage)
        measures.imageWidth = 16;
    return measures;
}
} // namespace

TEST(SortImage, the_first_click_ascends_the_second_descends_the_third_ascends)
{
    int image = noSortImage;
    EXPECT_TRUE(ClickSortsAscending(image));
    image = ImageAfterClick(true);
    EXPECT_EQ(0, image);
    EXPECT_FALSE(ClickSortsAscending(image));
    image = ImageAfterClick(false);
    EXPECT_EQ(1, image);
    EXPECT_TRUE(ClickSortsAscending(image));
}

TEST(SortImage, the_first_column_begins_as_if_it_were_sorted)
{
    EXPECT_FALSE(ClickSortsAscending(0));
}

TEST(HeaderItem, text_flags_follow_the_alignment)
{
    EXPECT_EQ(leftFlags, DrawHeaderItem(item(left)).textFlags);
    EXPECT_EQ(centerFlags, DrawHeaderItem(item(headerCenter)).textFlags);
    EXPECT_EQ(rightFlags, DrawHeaderItem(item(headerRight)).textFlags);
    EXPECT_EQ(centerFlags, DrawHeaderItem(item(headerCenter | headerRight)).textFlags) << "centred wins";
    EXPECT_EQ(leftFlags, DrawHeaderItem(item(0x4000 | 0x8000)).textFlags) << "other flags play no part";
}

TEST(HeaderItem, the_text_keeps_a_margin_at_both_sides)
{
    for (const unsigned format : {left, unsigned{headerCenter}, unsigned{headerRight}})
        EXPECT_TRUE(*DrawHeaderItem(item(format)).text == CRect(26, 0, 114, 17)) << format;
}

TEST(HeaderItem, a_pressed_item_shifts_its_text)
{
    for (const unsigned format : {left, unsigned{headerCenter}, unsigned{headerRight}})
        EXPECT_TRUE(*DrawHeaderItem(item(format, itemSelected)).text == CRect(27, 2, 115, 17)) << format;
}

TEST(HeaderItem, a_pressed_item_in_another_state_as_well_is_not_shifted)
{
    constexpr unsigned focus = 0x10;
    EXPECT_TRUE(*DrawHeaderItem(item(left, itemSelected | focus)).text == CRect(26, 0, 114, 17));
}

TEST(HeaderItem, an_item_as_wide_as_its_margins_shows_no_text)
{
    HeaderItemMeasures narrow = item(left);
    narrow.rect.right = 32; // 26 to 26
    EXPECT_FALSE(DrawHeaderItem(narrow).text);
    narrow.rect.right = 33;
    EXPECT_TRUE(*DrawHeaderItem(narrow).text == CRect(26, 0, 27, 17));
}

TEST(HeaderItem, without_an_image_none_is_drawn)
{
    EXPECT_FALSE(DrawHeaderItem(item(left)).image);
    EXPECT_FALSE(DrawHeaderItem(item(headerRight)).image);
}

TEST(HeaderItem, the_image_stands_behind_the_text_of_a_left_aligned_or_centred_item)
{
    for (const unsigned format : {left, unsigned{headerCenter}})
    {
        const HeaderItemDrawing drawing = DrawHeaderItem(item(format, 0, true));
        EXPECT_FALSE(drawing.imageFirst);
        EXPECT_TRUE(*drawing.image == CPoint(114 - 14, 2)) << "two characters left of the text's right end";
        EXPECT_TRUE(*drawing.text == CRect(26, 0, 114, 17));
    }
}

TEST(HeaderItem, the_image_of_a_pressed_item_is_shifted_with_the_text_behind_which_it_stands)
{
    EXPECT_TRUE(*DrawHeaderItem(item(left, itemSelected, true)).image == CPoint(115 - 14, 2));
}

TEST(HeaderItem, the_image_stands_in_front_of_the_text_of_a_right_aligned_item)
{
    const HeaderItemDrawing drawing = DrawHeaderItem(item(headerRight, 0, true));
    EXPECT_TRUE(drawing.imageFirst);
    EXPECT_TRUE(*drawing.image == CPoint(26, 2));
    EXPECT_TRUE(*drawing.text == CRect(20 + 3 + 16 + 6, 0, 114, 17)) << "half a margin and the image farther";
}

TEST(HeaderItem, the_image_of_a_right_aligned_item_stays_when_it_is_pressed)
{
    const HeaderItemDrawing drawing = DrawHeaderItem(item(headerRight, itemSelected, true));
    EXPECT_TRUE(*drawing.image == CPoint(26, 2));
    EXPECT_TRUE(*drawing.text == CRect(46, 2, 115, 17));
}

TEST(HeaderItem, an_image_that_the_list_does_not_have_takes_no_room)
{
    HeaderItemMeasures missing = item(headerRight, 0, true);
    missing.imageWidth.reset();
    EXPECT_TRUE(*DrawHeaderItem(missing).text == CRect(26, 0, 114, 17));
    EXPECT_TRUE(*DrawHeaderItem(missing).image == CPoint(26, 2));
}

TEST(HeaderItem, wide_blanks_lower_the_image)
{
    HeaderItemMeasures wide = item(left, 0, true);
    wide.blankWidth = 10;
    EXPECT_TRUE(*DrawHeaderItem(wide).image == CPoint(100 - 14, 6)); // 20 / 3
}

TEST(HeaderItem, any_rectangle_stays_in_range)
{
    HeaderItemMeasures wild = item(headerRight, itemSelected, true);
    wild.rect = CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
    wild.blankWidth = INT_MAX;
    wild.imageWidth = INT_MAX;
    EXPECT_FALSE(DrawHeaderItem(wild).text);
    wild.format = left;
    wild.firstCharacterWidth = INT_MAX;
    EXPECT_FALSE(DrawHeaderItem(wild).text);
    EXPECT_EQ(INT_MIN, DrawHeaderItem(wild).image->x);
}
