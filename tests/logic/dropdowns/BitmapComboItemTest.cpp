// What an item of the bitmap combo box draws.
#include "dropdowns/BitmapComboItem.h"

#include <gtest/gtest.h>

#include <climits>

TEST(BitmapComboItem, draws_by_item_action_and_state)
{
    const struct
    {
        int id;
        unsigned int action;
        unsigned int state;
        bool focusWithoutItem;
        bool focusTakenOff;
        bool highlighted;
        bool focusPutOn;
    } rows[] = {
        {0, ODA_DRAWENTIRE, 0, false, false, false, false},
        {0, ODA_DRAWENTIRE, ODS_SELECTED, false, false, true, false},
        {0, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS, false, false, true, false},
        {0, ODA_FOCUS, ODS_FOCUS, false, false, false, true},
        {0, ODA_FOCUS, 0, false, true, false, false},
        {0, ODA_FOCUS, ODS_FOCUS | ODS_SELECTED, false, true, true, false}, // focus and more counts as no focus
        {0, ODA_FOCUS | ODA_SELECT, ODS_FOCUS, false, false, false, false},
        {-1, ODA_DRAWENTIRE, 0, true, false, false, false},
        {-1, ODA_FOCUS, 0, true, true, false, false},
        {-1, ODA_FOCUS, ODS_FOCUS, true, false, false, true},
    };
    for (const auto& row : rows)
    {
        const BitmapComboItem drawn = BitmapComboItem::Of(row.id, row.action, row.state);
        EXPECT_EQ(drawn.focusWithoutItem, row.focusWithoutItem) << row.action << ' ' << row.state;
        EXPECT_EQ(drawn.focusTakenOff, row.focusTakenOff) << row.action << ' ' << row.state;
        EXPECT_EQ(drawn.highlighted, row.highlighted) << row.action << ' ' << row.state;
        EXPECT_EQ(drawn.focusPutOn, row.focusPutOn) << row.action << ' ' << row.state;
    }
}

TEST(BitmapComboItem, a_bitmap_stands_in_the_middle_but_for_the_items_left)
{
    EXPECT_TRUE(BitmapComboItem::Place(CRect(0, 20, 100, 40), CSize(16, 16)) == CPoint(42, 22));
    EXPECT_TRUE(BitmapComboItem::Place(CRect(30, 20, 130, 40), CSize(16, 16)) == CPoint(42, 22));
    EXPECT_TRUE(BitmapComboItem::Place(CRect(0, 20, 10, 30), CSize(16, 17)) == CPoint(-3, 17)) << "halves go to 0";
    EXPECT_TRUE(BitmapComboItem::Place(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), CSize(0, 0)) == CPoint(0, INT_MIN));
}

TEST(BitmapComboItem, an_item_is_four_pixels_higher_than_its_bitmap)
{
    EXPECT_EQ(BitmapComboItem::Height(16), 20);
    EXPECT_EQ(BitmapComboItem::Height(INT_MAX), INT_MIN + 3);
}
