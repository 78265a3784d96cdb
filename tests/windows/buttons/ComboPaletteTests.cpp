// The palette of the button combo: its pixels, its captions, its colours.
#include <gtest/gtest.h>

#include "ComboHost.h"
#include "support/LeakCounters.h"

namespace
{
struct ComboPalette : testing::Test, TileCombo
{
    void TearDown() override
    {
        mouseButton(MOUSEEVENTF_LEFTUP);
        moveTo(CPoint(5, 5));
    }
    /// Opens the palette by the mouse and moves over a point of it.
    void openAt(CPoint point)
    {
        press(combo, onStrip);
        hover(palette(), point);
    }
};

constexpr COLORREF white = RGB(255, 255, 255);

/// The four tiles in two rows, with the black frame around one of them; a palette of 45 by `height`.
void drawTiles(const Brush& brush, int height, int current)
{
    brush.fill(CRect(0, 0, 45, height), ::GetSysColor(COLOR_BTNFACE));
    brush.frame(CRect(0, 0, 45, height), COLOR_BTNHIGHLIGHT, COLOR_WINDOWFRAME);
    for (int i = 0; i < 4; ++i)
    {
        const CRect cell(CPoint(2 + 21 * (i % 2), 2 + 19 * (i / 2)), CSize(20, 18));
        brush.fill(CRect(cell.CenterPoint() - CSize(6, 5), CSize(12, 10)), tileColor(i));
        brush.sunken(cell);
        if (i == current)
            brush.blackFrame(CRect(cell.left - 1, cell.top - 1, cell.right + 1, cell.bottom + 1));
    }
}

/// Colours that the test can tell apart.
struct RainbowCombo : CKxButtonCombo
{
    COLORREF ColorOfIndex(int index) const override { return RGB(200 - 20 * index, 10 * index, 100); }
};

/// A palette that counts the exceptions that its painting raises.
struct WatchedPalette : CWndCombo
{
    int raised = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        try
        {
            return CWndCombo::WindowProc(message, wParam, lParam);
        }
        catch (CInvalidArgException*)
        {
            ++raised;
            throw;
        }
    }
};
} // namespace

TEST_F(ComboPalette, shows_the_tiles_and_a_black_frame_around_the_current_one)
{
    ASSERT_TRUE(create());
    const CPoint within[] = {{10, 10}, {30, 10}, {10, 30}, {30, 30}};
    for (int current = 0; current < 4; ++current)
    {
        openAt(within[current]);
        EXPECT_EQ(Pixels(palette()).difference(
                      expectedPicture(CSize(45, 41), [=](const Brush& brush) { drawTiles(brush, 41, current); })),
                  "")
            << current;
        release();
    }
}

TEST_F(ComboPalette, leaves_the_cells_behind_the_last_tile_empty)
{
    ASSERT_TRUE(combo.Create(comboPlace, CSize(3, 2), IDB_TILES, 4, &host, comboId, L""));
    openAt(CPoint(10, 10));
    const Pixels shown(palette());
    EXPECT_TRUE(CSize(shown.width, shown.height) == CSize(66, 41));
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(shown.count(CRect(23, 21, 64, 39), [&](COLORREF c) { return c != face; }), 0) << "cells 4 and 5";
    EXPECT_NE(shown.count(CRect(2, 21, 22, 39), [&](COLORREF c) { return c != face; }), 0) << "cell 3";
}

TEST_F(ComboPalette, shows_as_many_tiles_as_the_grid_has_cells)
{
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 1), IDB_TILES, 4, &host, comboId, L""));
    openAt(CPoint(30, 10));
    EXPECT_EQ(palette().GetCurrent(), 1);
    const Pixels shown(palette());
    EXPECT_TRUE(CSize(shown.width, shown.height) == CSize(45, 22));
    EXPECT_EQ(shown.count(CRect(0, 0, 45, 22), [](COLORREF c) { return c == RGB(0, 255, 0); }), 120);
    EXPECT_EQ(shown.count(CRect(0, 0, 45, 22), [](COLORREF c) { return c == RGB(0, 0, 255); }), 0);
}

TEST_F(ComboPalette, shows_the_caption_of_the_current_cell_below)
{
    ASSERT_TRUE(create(CSize(2, 2), L"Red;&Go;Blue;"));
    openAt(CPoint(30, 10)); // cell 1
    CRect client;
    palette().GetClientRect(&client);
    const int height = client.Height();
    const auto drawn = [height](const Brush& brush)
    {
        drawTiles(brush, height, 1);
        CRect room(2, 40, 43, height - 2);
        brush.fill(room, white);
        brush.sunken(room);
        LOGFONT font = {};
        font.lfHeight = -::MulDiv(8, ::GetDeviceCaps(brush.dc, LOGPIXELSY), 72);
        font.lfWeight = 400;
        font.lfPitchAndFamily = 0x22;
        lstrcpy(font.lfFaceName, L"MS Sans Serif");
        font.lfCharSet = DEFAULT_CHARSET;
        const HFONT made = ::CreateFontIndirect(&font);
        const HGDIOBJ before = ::SelectObject(brush.dc, made);
        ::SetBkColor(brush.dc, ::GetSysColor(COLOR_BTNHIGHLIGHT));
        ::DrawText(brush.dc, L"&Go", -1, &room, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        ::SelectObject(brush.dc, before);
        ::DeleteObject(made);
    };
    EXPECT_EQ(Pixels(palette()).difference(expectedPicture(client.Size(), drawn)), "");
}

TEST_F(ComboPalette, the_colour_form_fills_its_cells_with_colours)
{
    RainbowCombo rainbow;
    ASSERT_TRUE(rainbow.Create(comboPlace, CSize(3, 2), CSize(10, 8), &host, comboId, L""));
    press(rainbow, onStrip);
    hover(*paletteOf(rainbow), CPoint(18, 5));
    const auto drawn = [&](const Brush& brush)
    {
        brush.fill(CRect(0, 0, 36, 21), ::GetSysColor(COLOR_BTNFACE));
        brush.frame(CRect(0, 0, 36, 21), COLOR_BTNHIGHLIGHT, COLOR_WINDOWFRAME);
        for (int i = 0; i < 6; ++i)
        {
            CRect cell(CPoint(2 + 11 * (i % 3), 2 + 9 * (i / 3)), CSize(10, 8));
            brush.sunken(cell);
            cell.DeflateRect(1, 1);
            brush.fill(cell, rainbow.ColorOfIndex(i));
            cell.InflateRect(2, 2);
            if (i == 1)
                brush.blackFrame(cell);
        }
    };
    EXPECT_EQ(Pixels(*paletteOf(rainbow)).difference(expectedPicture(CSize(36, 21), drawn)), "");
    release();
    EXPECT_EQ(rainbow.GetSelectedItem(), static_cast<long>(RGB(180, 10, 100)));
}

TEST(ComboColors, are_those_of_the_system_palette_and_black_beyond)
{
    PALETTEENTRY entries[255] = {};
    const HDC screen = ::GetDC(nullptr);
    ::GetSystemPaletteEntries(screen, 0, 255, entries);
    ::ReleaseDC(nullptr, screen);
    const CKxButtonCombo combo;
    for (const int index : {0, 1, 9, 100, 254})
    {
        const PALETTEENTRY& entry = entries[index];
        EXPECT_EQ(combo.ColorOfIndex(index), RGB(entry.peRed, entry.peGreen, entry.peBlue)) << index;
    }
    for (const int index : {-1, 255, 256, INT_MAX, INT_MIN})
        EXPECT_EQ(combo.ColorOfIndex(index), RGB(0, 0, 0)) << index;
}

// ---- Captions fewer than cells

TEST_F(ComboPalette, a_cell_without_a_caption_raises_an_invalid_argument)
{
    ASSERT_TRUE(create());
    WatchedPalette watched;
    ASSERT_TRUE(watched.CreateTiles(&combo, CPoint(300, 300), CSize(2, 2), IDB_TILES, 4, L"Red;Green"));
    watched.Place(CPoint(300, 300), true);
    hover(watched, CPoint(30, 10)); // the last one that has a caption
    EXPECT_EQ(watched.raised, 0);
    const Pixels before(watched);
    const int objects = gdiObjectCount();
    hover(watched, CPoint(10, 30));
    EXPECT_EQ(watched.GetCurrent(), 2);
    EXPECT_GE(watched.raised, 1);
    EXPECT_EQ(Pixels(watched).difference(before), "") << "it stays as it was painted before";
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_FALSE(watched.GetUpdateRect(nullptr)) << "and does not ask for paint for ever";
    hover(watched, CPoint(10, 10));
    EXPECT_NE(Pixels(watched).difference(before), "") << "all is well on a cell with a caption";
}

TEST_F(ComboPalette, a_cell_without_a_caption_can_be_chosen_all_the_same)
{
    ASSERT_TRUE(create(CSize(2, 2), L"Red"));
    MessageRecorder parent(host, [](UINT message) { return message == WM_KX_BUTTONCOMBO_SELECT; });
    openAt(CPoint(30, 30));
    EXPECT_TRUE(open());
    release();
    EXPECT_EQ(parent.all(), (std::vector<RecordedMessage>{{0x405, comboId, 3}}));
    EXPECT_FALSE(open());
    EXPECT_EQ(Pixels(combo).at(36, 11), tileColor(3));
}

TEST_F(ComboPalette, a_single_divider_makes_one_empty_caption)
{
    ASSERT_TRUE(create(CSize(2, 2), L";"));
    openAt(CPoint(10, 10));
    CRect client;
    palette().GetClientRect(&client);
    EXPECT_GT(client.Height(), 42) << "there is a row for captions";
    EXPECT_EQ(Pixels(palette()).count(CRect(3, 41, 42, client.Height() - 3), [](COLORREF c) { return c != white; }), 0);
}
