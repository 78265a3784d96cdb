// The palette of the button combo, against values worked out by hand.
#include "oxa/buttons/ButtonComboPalette.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace
{
std::string said(const CRect& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}
std::string said(CSize size)
{
    return std::to_string(size.cx) + " by " + std::to_string(size.cy);
}

/// Three columns and two rows of tiles of 16 by 16.
ButtonComboPalette tiles(int count, int captionHeight = 0)
{
    return ButtonComboPalette::OfTiles(CSize(3, 2), CSize(16 * count, 16), count, captionHeight).value();
}
/// The same of colours of 10 by 8.
ButtonComboPalette colors(int captionHeight = 0)
{
    return ButtonComboPalette::OfColors(CSize(3, 2), CSize(10, 8), captionHeight);
}
CRect clientOf(const ButtonComboPalette& palette)
{
    return {CPoint(0, 0), palette.WindowSize()};
}
} // namespace

TEST(ButtonComboPalette, the_window_fits_its_cells_and_captions)
{
    EXPECT_EQ(said(colors().WindowSize()), "36 by 21") << "3 * 10 + 3 + 3, 2 * 8 + 2 - 1 + 4";
    EXPECT_EQ(said(colors(13).WindowSize()), "36 by 35") << "2 * 8 + 2 + 13 + 4";
    EXPECT_EQ(said(tiles(6).WindowSize()), "78 by 53") << "3 * 25 + 3, 2 * 24 + 2 - 1 + 4";
    EXPECT_EQ(said(tiles(6, 13).WindowSize()), "78 by 67");
    EXPECT_EQ(said(colors(-1).WindowSize()), "36 by 20") << "a height below 1 is none, and is added all the same";
}

TEST(ButtonComboPalette, a_tile_is_the_strips_share)
{
    EXPECT_EQ(said(ButtonComboPalette::OfTiles(CSize(3, 2), CSize(100, 16), 6, 0).value().cell), "16 by 16");
    EXPECT_EQ(ButtonComboPalette::OfTiles(CSize(3, 2), CSize(100, 16), 6, 0).value().count, 6);
    EXPECT_EQ(said(ButtonComboPalette::OfTiles(CSize(0, 0), CSize(40, 20), 1, 0).value().cell), "40 by 20")
        << "the static form: one tile, no grid";
    for (const int count : {0, -1, INT_MIN})
        EXPECT_FALSE(ButtonComboPalette::OfTiles(CSize(3, 2), CSize(100, 16), count, 0).has_value()) << count;
    EXPECT_EQ(colors().count, 6);
}

TEST(ButtonComboPalette, cells_are_painted_one_pixel_apart)
{
    const struct
    {
        int column;
        int row;
        const char* color;
        const char* tile;
        int index;
    } rows[] = {
        {0, 0, "2 2 12 10", "2 2 26 26", 0},
        {1, 0, "13 2 23 10", "27 2 51 26", 1},
        {2, 1, "24 11 34 19", "52 27 76 51", 5},
    };
    for (const auto& row : rows)
    {
        const ButtonComboPalette::Cell color = colors().CellAt(clientOf(colors()), row.column, row.row, row.index);
        EXPECT_EQ(said(color.rect), row.color);
        EXPECT_EQ(color.index, row.index);
        EXPECT_TRUE(color.shown && color.current);
        const ButtonComboPalette::Cell tile = tiles(5).CellAt(clientOf(tiles(5)), row.column, row.row, 1);
        EXPECT_EQ(said(tile.rect), row.tile);
        EXPECT_EQ(tile.shown, row.index < 5);
        EXPECT_EQ(tile.current, row.index == 1);
    }
}

TEST(ButtonComboPalette, frames_and_colours_stand_around_and_in_the_cell)
{
    EXPECT_EQ(said(ButtonComboPalette::CurrentFrame(CRect(13, 2, 23, 10))), "12 1 24 11");
    EXPECT_EQ(said(ButtonComboPalette::ColorRect(CRect(13, 2, 23, 10))), "14 3 22 9");
}

TEST(ButtonComboPalette, captions_stand_below_the_cells)
{
    EXPECT_EQ(said(colors(13).CaptionRect(clientOf(colors(13)))), "2 20 34 33") << "13 high";
    EXPECT_EQ(said(tiles(6, 13).CaptionRect(clientOf(tiles(6, 13)))), "2 52 76 65");
}

TEST(ButtonComboPalette, only_cells_that_begin_in_the_client_area_are_painted)
{
    EXPECT_EQ(said(colors().Visible(clientOf(colors()))), "3 by 2");
    EXPECT_EQ(said(colors().Visible(CRect(0, 0, 14, 11))), "2 by 1") << "the second column begins at 13";
    EXPECT_EQ(said(colors().Visible(CRect(0, 0, 13, 12))), "1 by 2");
    EXPECT_EQ(said(colors().Visible(CRect(0, 0, 2, 2))), "0 by 0");
    const ButtonComboPalette huge = ButtonComboPalette::OfColors(CSize(INT_MAX, INT_MAX), CSize(10, 8), 0);
    EXPECT_EQ(said(huge.Visible(CRect(0, 0, 24, 20))), "2 by 2");
}

// Cells of 10 by 8: the test takes columns up to 12, 24, 36 and rows up to 10, 20, while those painted end at 12, 23, 34
// and 10, 19.
TEST(ButtonComboPalette, the_hit_test_takes_gaps_for_the_next_cell)
{
    const struct
    {
        int x;
        int y;
        int index;
    } rows[] = {
        {0, 0, 0},   {11, 9, 0},  {12, 9, 1},   {23, 9, 1},  {24, 9, 2},  {35, 9, 2},  {11, 10, 3},
        {12, 10, 4}, {24, 19, 5}, {24, 20, -1}, {-1, 5, -1}, {5, -1, -1}, {36, 5, -1}, {5, 21, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(colors().HitTest(clientOf(colors()), CPoint(row.x, row.y)), row.index) << row.x << ' ' << row.y;
}

TEST(ButtonComboPalette, right_of_the_last_column_is_nothing)
{
    EXPECT_EQ(colors().HitTest(CRect(0, 0, 100, 100), CPoint(35, 5)), 2);
    EXPECT_EQ(colors().HitTest(CRect(0, 0, 100, 100), CPoint(36, 5)), -1);
    EXPECT_EQ(colors().HitTest(CRect(0, 0, 100, 100), CPoint(5, 20)), -1);
}

TEST(ButtonComboPalette, the_hit_test_starts_at_the_client_area)
{
    EXPECT_EQ(colors().HitTest(CRect(100, 50, 136, 71), CPoint(112, 60)), 4);
    EXPECT_EQ(colors().HitTest(CRect(100, 50, 136, 71), CPoint(12, 10)), -1);
}

TEST(ButtonComboPalette, cells_beyond_the_count_are_not_hit_and_tiles_beyond_the_grid_cannot_be_reached)
{
    const ButtonComboPalette four = tiles(4);
    EXPECT_EQ(four.HitTest(clientOf(four), CPoint(5, 40)), 3);
    EXPECT_EQ(four.HitTest(clientOf(four), CPoint(40, 40)), -1);
    const ButtonComboPalette eight = tiles(8);
    int most = -1;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            most = std::max(most, eight.HitTest(CRect(0, 0, 100, 100), CPoint(x, y)));
    EXPECT_EQ(most, 5);
}

TEST(ButtonComboPalette, an_item_is_drawn_in_the_middle_of_its_rectangle)
{
    const CRect rect(15, 0, 45, 21); // the middle is 30, 10
    const ButtonComboItem tile = tiles(6).Item(rect, 2);
    ASSERT_TRUE(tile.tile.has_value());
    EXPECT_TRUE(*tile.tile == CPoint(22, 2));
    EXPECT_EQ(tile.tileX, 32);
    EXPECT_FALSE(tile.fill.has_value());
    const ButtonComboItem color = colors().Item(rect, 5);
    ASSERT_TRUE(color.fill.has_value());
    EXPECT_EQ(said(*color.fill), "17 2 42 19");
    EXPECT_FALSE(color.tile.has_value());
}

TEST(ButtonComboPalette, items_beyond_the_count_are_not_drawn)
{
    const struct
    {
        long item;
        bool tile;  ///< below 0 there is none in the strip
        bool color; ///< any number but -1 up to the count
    } rows[] = {{-1, false, false},
                {0, true, true},
                {6, true, true},
                {7, false, false},
                {-2, false, true},
                {LONG_MIN, false, true},
                {-1073741824, false, true},
                {0x00FFFFFF, false, false},
                {LONG_MAX, false, false}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(tiles(6).Item(CRect(0, 0, 20, 20), row.item).tile.has_value(), row.tile) << row.item;
        EXPECT_EQ(colors().Item(CRect(0, 0, 20, 20), row.item).fill.has_value(), row.color) << row.item;
    }
}

TEST(ButtonComboPalette, captions_are_divided_by_semicolons)
{
    const struct
    {
        const wchar_t* text;
        std::vector<CString> captions;
    } rows[] = {
        {L"", {}},
        {L"a", {L"a"}},
        {L"a;b", {L"a", L"b"}},
        {L"a;b;", {L"a", L"b"}},
        {L"a;;b", {L"a", L"", L"b"}},
        {L";", {L""}},
        {L";;", {L"", L""}},
        {L" a ; b ", {L" a ", L" b "}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ButtonComboPalette::Captions(row.text), row.captions) << row.text;
}

TEST(ButtonComboPalette, the_caption_font_has_eight_points)
{
    EXPECT_EQ(ButtonComboPalette::FontHeight(96), -11) << "8 * 96 / 72 = 10.7";
    EXPECT_EQ(ButtonComboPalette::FontHeight(120), -13);
    EXPECT_EQ(ButtonComboPalette::FontHeight(72), -8);
}

TEST(ButtonComboPalette, extreme_grids_and_cells_do_no_harm)
{
    for (const int grid : {INT_MIN, -1, 0, 1, INT_MAX})
        for (const int cell : {INT_MIN, -2, -1, 0, INT_MAX})
        {
            ButtonComboPalette palette = ButtonComboPalette::OfColors(CSize(grid, grid), CSize(cell, cell), INT_MAX);
            palette.count = INT_MAX;
            for (const bool hasTiles : {false, true})
            {
                palette.hasTiles = hasTiles;
                const CRect client(0, 0, 100, 100);
                const int hit = palette.HitTest(client, CPoint(50, 50));
                EXPECT_GE(hit, -1);
                const CSize visible = palette.Visible(client);
                EXPECT_GE(visible.cx, 0);
                EXPECT_LE(visible.cx, 98);
                palette.CellAt(client, INT_MAX, INT_MAX, 0);
                palette.CaptionRect(client);
                palette.WindowSize();
                palette.Item(client, LONG_MIN);
            }
        }
}
