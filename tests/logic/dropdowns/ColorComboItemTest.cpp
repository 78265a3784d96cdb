// The rows of the colour picker.
#include "dropdowns/ColorComboItem.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace
{
/// A list of colours that answers as the combo box does.
struct MemoryColors
{
    int GetCount() const { return static_cast<int>(colors.size()); }
    COLORREF GetColorRef(int index) const { return colors.at(static_cast<std::size_t>(index)); }
    void InsertColor(COLORREF color, int index)
    {
        if (index >= 0 && index <= GetCount()) // silently refused elsewhere
            colors.insert(colors.begin() + index, color);
    }

    std::vector<COLORREF> colors;
};

/// A new picker: the nine colours, and the row that asks for another.
MemoryColors started()
{
    MemoryColors rows;
    for (const COLORREF color : ColorComboItem::StartColors())
        rows.colors.push_back(color);
    rows.colors.push_back(0);
    return rows;
}
} // namespace

TEST(ColorComboItem, begins_with_nine_colours)
{
    const std::vector<COLORREF> expected{RGB(0, 0, 255),     RGB(0, 255, 0),     RGB(0, 255, 255),
                                         RGB(255, 0, 0),     RGB(255, 0, 255),   RGB(255, 255, 0),
                                         RGB(255, 255, 255), RGB(128, 128, 128), RGB(192, 192, 192)};
    const auto colors = ColorComboItem::StartColors();
    EXPECT_EQ(std::vector<COLORREF>(colors.begin(), colors.end()), expected);
}

TEST(ColorComboItem, a_known_colour_is_found_and_a_new_one_goes_before_the_last_row)
{
    const struct
    {
        COLORREF color;
        int index;
        int lastIndex;
        int count;
    } rows[] = {
        {0xFF0000, 0, 9, 10},    {0xC0C0C0, 8, 9, 10},
        {0x123456, 9, 10, 11},   {0, 9, 9, 10}, // the last row counts as black
        {0xFF123456, 9, 10, 11},
    };
    for (const auto& row : rows)
    {
        MemoryColors picker = started();
        int lastIndex = 9;
        EXPECT_EQ(colorrows::GetColorIndex(picker, row.color, lastIndex), row.index) << row.color;
        EXPECT_EQ(lastIndex, row.lastIndex) << row.color;
        EXPECT_EQ(picker.GetCount(), row.count) << row.color;
        EXPECT_EQ(picker.GetColorRef(row.index), row.color);
    }
}

TEST(ColorComboItem, an_added_colour_is_found_the_next_time)
{
    MemoryColors picker = started();
    int lastIndex = 9;
    colorrows::GetColorIndex(picker, 0x123456, lastIndex);
    EXPECT_EQ(colorrows::GetColorIndex(picker, 0x123456, lastIndex), 9);
    EXPECT_EQ(colorrows::GetColorIndex(picker, 0x654321, lastIndex), 10);
    EXPECT_EQ(lastIndex, 11);
    EXPECT_EQ(picker.colors.back(), 0U) << "the row that asks stays the last";
}

TEST(ColorComboItem, an_emptied_picker_keeps_its_last_index)
{
    MemoryColors picker;
    int lastIndex = 9;
    EXPECT_EQ(colorrows::GetColorIndex(picker, 0x123456, lastIndex), 9);
    EXPECT_EQ(lastIndex, 10);
    EXPECT_EQ(picker.GetCount(), 0);
}

TEST(ColorComboItem, rows_draw_by_their_place)
{
    const struct
    {
        unsigned int row;
        int lastIndex;
        unsigned int state;
        ColorRow drawn;
    } rows[] = {
        {0, 9, 0, ColorRow::Color},
        {8, 9, ODS_FOCUS, ColorRow::Color},
        {8, 9, ODS_SELECTED, ColorRow::FramedColor},
        {9, 9, 0, ColorRow::Other},
        {9, 9, ODS_SELECTED, ColorRow::Other},
        {10, 9, ODS_SELECTED, ColorRow::Nothing},
        {0xFFFFFFFF, 9, 0, ColorRow::Nothing},
        {0, 0, 0, ColorRow::Other},
        {0, -1, 0, ColorRow::Nothing},
        {0x80000000, INT_MAX, 0, ColorRow::Nothing},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ColorComboItem::Of(row.row, row.lastIndex, row.state), row.drawn) << row.row;
}

TEST(ColorComboItem, the_parent_is_asked_when_the_last_row_is_chosen)
{
    const struct
    {
        unsigned int notification;
        int selected;
        bool asks;
    } rows[] = {{1, 9, true}, {5, 9, true}, {1, 8, false}, {1, -1, false}, {9, 9, false}, {0, 9, false}, {6, 9, false}};
    for (const auto& row : rows)
        EXPECT_EQ(ColorComboItem::AsksParent(row.notification, row.selected, 9), row.asks) << row.notification;
}
