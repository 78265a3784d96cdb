// Which cell is edited, where its editor opens, and which keys open it.
#include <gtest/gtest.h>
#include <climits>
#include <set>
#include "treelist/EditRules.h"

namespace
{
using treelist::CellSearch;
using treelist::FindCell;
using treelist::FoundCell;

const CRect text(37, 16, 40, 32);
const std::vector<int> widths = {100, 60, 30, 40};

FoundCell ByMouse(int x, int offset = 0, int barPosition = 0)
{
    CellSearch search;
    search.mouseX = x;
    search.offset = offset;
    search.barPosition = barPosition;
    return FindCell(search, text, widths);
}

FoundCell ByKey(int editColumn)
{
    CellSearch search;
    search.byKey = true;
    search.editColumn = editColumn;
    search.mouseX = 110;
    return FindCell(search, text, widths);
}

TEST(FindCell, takes_the_column_under_the_mouse)
{
    const struct
    {
        int x, column, left, right;
    } cases[] = {{INT_MIN, 0, 37, 100}, {0, 0, 37, 100},      {100, 0, 37, 100}, {101, 1, 100, 160},
                 {160, 1, 100, 160},    {161, 2, 60, 190},    {191, 3, 30, 230}, {230, 3, 30, 230},
                 {5000, 3, 30, 230},    {INT_MAX, 3, 30, 230}};
    for (const auto& c : cases)
    {
        const FoundCell found = ByMouse(c.x);
        EXPECT_EQ(found.column, c.column) << c.x;
        EXPECT_EQ(found.rect, CRect(c.left, 16, c.right, 33)) << c.x;
    }
}

TEST(FindCell, in_a_later_column_opens_at_the_width_of_the_column_before)
{
    EXPECT_EQ(ByMouse(195).rect.left, 30) << "not at 190, where the column is drawn: kept on purpose";
}

TEST(FindCell, follows_the_drawing_when_it_is_scrolled)
{
    EXPECT_EQ(ByMouse(40, -50, 50).column, 0);
    EXPECT_EQ(ByMouse(40, -50, 50).rect, CRect(-63, 16, 50, 33)) << "the bar's position counts twice in column 0";
    EXPECT_EQ(ByMouse(60, -50, 50).column, 1);
    EXPECT_EQ(ByMouse(60, -50, 50).rect, CRect(50, 16, 110, 33));
}

TEST(FindCell, by_key_goes_as_far_as_the_edit_column)
{
    const struct
    {
        int editColumn, column, left, right;
    } cases[] = {{-1, 0, 37, 100}, {0, 0, 37, 100}, {1, 1, 100, 160},
                 {2, 2, 60, 190},  {3, 3, 30, 230}, {99, 3, 30, 230}};
    for (const auto& c : cases)
    {
        const FoundCell found = ByKey(c.editColumn);
        EXPECT_EQ(found.column, c.column) << c.editColumn;
        EXPECT_EQ(found.rect, CRect(c.left, 16, c.right, 33)) << c.editColumn;
    }
}

TEST(FindCell, without_columns_is_the_text_cut_at_the_left_edge)
{
    CellSearch search;
    search.mouseX = 50;
    const FoundCell found = FindCell(search, text, {});
    EXPECT_EQ(found.column, 0);
    EXPECT_EQ(found.rect, CRect(37, 16, 0, 33));
}

TEST(FindCell, stays_inside_the_coordinates)
{
    CellSearch search;
    search.mouseX = INT_MAX;
    search.offset = INT_MIN;
    search.barPosition = INT_MAX;
    const FoundCell found = FindCell(search, CRect(INT_MIN, 0, 0, INT_MAX), {INT_MAX, INT_MAX, INT_MAX});
    EXPECT_EQ(found.column, 2);
    EXPECT_EQ(found.rect.bottom, INT_MAX);
}

TEST(KeyOpensEditor, for_exactly_these_keys)
{
    const std::set<unsigned> keys = {
        43, 44,  45, 46,                             // + , - . (45 and 46 are Insert and Delete)
        48, 49,  50, 51, 52,  53,  54,  55,  56, 57, // the digits
        69, 101,                                     // E, e (also 5 of the pad)
        96, 97,  98, 99, 100, 102, 103, 104, 108     // the rest of the pad, without 9 (105) and decimal (110)
    };
    for (unsigned key = 0; key < 300; ++key)
        EXPECT_EQ(treelist::KeyOpensEditor(key), keys.count(key) == 1) << key;
    EXPECT_FALSE(treelist::KeyOpensEditor(UINT_MAX));
}

TEST(KeyBits, are_the_repeat_count_and_the_flags)
{
    EXPECT_EQ(treelist::KeyBits(1, 6), 0x00060001);
    EXPECT_EQ(treelist::KeyBits(0x12345, 0xC006), LPARAM{0xC0062345});
}
} // namespace
