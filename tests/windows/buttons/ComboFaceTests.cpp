// The button combo's creation and its face.
#include <gtest/gtest.h>

#include "ComboHost.h"

namespace
{
struct ComboFace : testing::Test, TileCombo
{
    void SetUp() override { ASSERT_TRUE(create()); }

    std::string comparedWith(const std::function<void(const Brush&)>& draw)
    {
        return Pixels(combo).difference(expectedPicture(comboClient, draw));
    }
    void show(long item)
    {
        combo.SetSelectedItem(item);
        combo.Invalidate(FALSE);
    }
};

struct ComboForms : testing::Test
{
    ButtonHost host;
    CKxButtonCombo combo;
};
} // namespace

// ---- Creation

TEST_F(ComboFace, is_a_visible_child_with_a_border_and_a_hidden_popup)
{
    EXPECT_EQ(combo.GetStyle() & (WS_CHILD | WS_VISIBLE | WS_BORDER | WS_POPUP), WS_CHILD | WS_VISIBLE | WS_BORDER);
    EXPECT_EQ(combo.GetDlgCtrlID(), static_cast<int>(comboId));
    EXPECT_EQ(combo.GetParent(), &host);
    EXPECT_EQ(palette().GetStyle() & (WS_CHILD | WS_VISIBLE | WS_BORDER | WS_POPUP), WS_CHILD | WS_POPUP);
    EXPECT_EQ(::GetWindow(palette(), GW_OWNER), host.m_hWnd) << "above the top-level window of the combo";
}

TEST_F(ComboFace, starts_with_the_first_item)
{
    EXPECT_EQ(combo.GetSelectedItem(), 0);
    EXPECT_EQ(combo.GetElementNumber(), 3);
    EXPECT_EQ(palette().GetCurrent(), 0);
    CRect place;
    palette().GetWindowRect(&place);
    EXPECT_TRUE(place == CRect(CPoint(20, 56), CSize(45, 41))) << "at the left bottom corner of the rectangle";
}

TEST_F(ComboForms, the_palette_has_room_for_its_grid)
{
    const struct
    {
        CSize grid;
        CSize colors; ///< for cells of 10 by 8: columns * 10 + columns + 3, rows * 8 + rows - 1 + 4
        CSize tiles;  ///< for tiles of 12 by 10: columns * 21 + 3, rows * 18 + rows - 1 + 4
    } rows[] = {
        {CSize(3, 2), CSize(36, 21), CSize(66, 41)},
        {CSize(1, 1), CSize(14, 12), CSize(24, 22)},
        {CSize(0, 0), CSize(3, 3), CSize(3, 3)},
        {CSize(5, 0), CSize(58, 3), CSize(108, 3)},
    };
    const auto size = [&]
    {
        CRect place;
        paletteOf(combo)->GetWindowRect(&place);
        return place.Size();
    };
    for (const auto& row : rows)
    {
        ASSERT_TRUE(combo.Create(comboPlace, row.grid, CSize(10, 8), &host, comboId, L""));
        EXPECT_TRUE(size() == row.colors) << row.grid.cx;
        combo.DestroyWindow();
        ASSERT_TRUE(combo.Create(comboPlace, row.grid, IDB_TILES, 4, &host, comboId, L""));
        EXPECT_TRUE(size() == row.tiles) << row.grid.cx;
        combo.DestroyWindow();
    }
}

TEST_F(ComboForms, captions_make_the_palette_higher_by_their_height_and_one_pixel)
{
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L"red;green;blue;grey"));
    const HDC dc = ::GetDC(paletteOf(combo)->m_hWnd);
    CSize test;
    ::GetTextExtentPoint32(dc, L"Test", 4, &test);
    ::ReleaseDC(paletteOf(combo)->m_hWnd, dc);
    CRect place;
    paletteOf(combo)->GetWindowRect(&place);
    EXPECT_TRUE(place.Size() == CSize(45, 42 + test.cy)) << "2 * 18 + 2 + height + 4";
}

TEST_F(ComboForms, is_not_made_without_tiles)
{
    EXPECT_FALSE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 0, &host, comboId, L""));
    EXPECT_FALSE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, -4, &host, comboId, L""));
    EXPECT_FALSE(combo.Create(comboPlace, CSize(2, 2), IDX_MISSING, 4, &host, comboId, L""));
    EXPECT_FALSE(combo.CreateStatic(comboPlace, IDX_MISSING, &host, comboId));
    EXPECT_EQ(combo.m_hWnd, nullptr);
    EXPECT_EQ(::GetWindow(host, GW_CHILD), nullptr) << "no face stays without its palette";
    EXPECT_EQ(combo.GetElementNumber(), INT_MAX);
    EXPECT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L"")) << "and later it is";
}

TEST_F(ComboForms, is_not_made_without_a_parent)
{
    CWnd nobody;
    EXPECT_FALSE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, nullptr, comboId, L""));
    EXPECT_FALSE(combo.Create(comboPlace, CSize(2, 2), CSize(10, 8), nullptr, comboId, L""));
    EXPECT_FALSE(combo.CreateStatic(comboPlace, IDB_TILES, &nobody, comboId));
    EXPECT_EQ(combo.m_hWnd, nullptr);
}

TEST_F(ComboForms, is_made_only_once)
{
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
    const HWND before = combo.m_hWnd;
    const HWND palette = paletteOf(combo)->m_hWnd;
    EXPECT_FALSE(combo.Create(comboPlace, CSize(1, 1), IDB_TILES, 2, &host, 7, L""));
    EXPECT_FALSE(combo.Create(comboPlace, CSize(1, 1), CSize(9, 9), &host, 7, L""));
    EXPECT_FALSE(combo.CreateStatic(comboPlace, IDB_TILES, &host, 7));
    EXPECT_EQ(combo.m_hWnd, before);
    EXPECT_EQ(paletteOf(combo)->m_hWnd, palette);
    EXPECT_EQ(combo.GetElementNumber(), 3);
}

TEST_F(ComboForms, may_be_made_again_in_another_form)
{
    ASSERT_TRUE(combo.CreateStatic(comboPlace, IDB_TILES, &host, comboId));
    const HWND palette = paletteOf(combo)->m_hWnd;
    combo.DestroyWindow();
    EXPECT_FALSE(::IsWindow(palette)) << "the palette goes with the face";
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
    press(combo, onStrip);
    EXPECT_TRUE(paletteOf(combo)->IsWindowVisible());
    release();
}

TEST_F(ComboForms, only_the_bitmap_form_limits_what_the_parent_hears_of)
{
    EXPECT_EQ(combo.GetElementNumber(), INT_MAX);
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), CSize(10, 8), &host, comboId, L""));
    EXPECT_EQ(combo.GetElementNumber(), INT_MAX);
    CKxButtonCombo fixed;
    ASSERT_TRUE(fixed.CreateStatic(comboPlace, IDB_TILES, &host, 7));
    EXPECT_EQ(fixed.GetElementNumber(), INT_MAX);
}

TEST_F(ComboForms, made_again_in_a_form_without_limit_it_has_none)
{
    MessageRecorder parent(host, [](UINT message) { return message == WM_KX_BUTTONCOMBO_SELECT; });
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
    combo.DestroyWindow();
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), CSize(10, 8), &host, comboId, L""));
    EXPECT_EQ(combo.GetElementNumber(), INT_MAX);
    combo.OnItemSelected(0xFFFFFF, 3);
    EXPECT_EQ(parent.all(), (std::vector<RecordedMessage>{{WM_KX_BUTTONCOMBO_SELECT, comboId, 0xFFFFFF}}));
}

// ---- The face

TEST_F(ComboFace, shows_the_chosen_tile_beside_the_arrow)
{
    for (int item = 0; item < 4; ++item)
    {
        show(item);
        EXPECT_EQ(comparedWith(
                      [item](const Brush& brush)
                      {
                          brush.face();
                          brush.fill(CRect(30, 6, 42, 16), tileColor(item)); // around 36, 11
                      }),
                  "")
            << item;
    }
}

TEST_F(ComboFace, shows_nothing_for_an_item_that_has_no_tile)
{
    // The last three, times the width of a tile, would come around to a place within the strip.
    for (const long item : {4L, 5L, -1L, -2L, 1000000000L, LONG_MAX, LONG_MIN, LONG_MIN / 2, LONG_MIN + 1})
    {
        show(item);
        EXPECT_EQ(comparedWith([](const Brush& brush) { brush.face(); }), "") << item;
    }
}

TEST_F(ComboFace, the_body_sinks_while_it_is_pressed)
{
    press(combo, onBody);
    EXPECT_EQ(comparedWith(
                  [](const Brush& brush)
                  {
                      brush.face();
                      brush.fill(CRect(15, 0, 58, 23), ::GetSysColor(COLOR_BTNFACE));
                      brush.raised(CRect(0, 0, 58, 24));
                      brush.frame(CRect(15, 0, 59, 24), COLOR_BTNSHADOW, COLOR_BTNFACE);
                      brush.fill(CRect(31, 7, 43, 17), tileColor(0));
                      brush.raised(CRect(0, 0, 15, 23));
                  }),
              "");
    release();
    EXPECT_EQ(comparedWith(
                  [](const Brush& brush)
                  {
                      brush.face();
                      brush.fill(CRect(30, 6, 42, 16), tileColor(0));
                  }),
              "");
}

// The strip's width is taken off at the wrong side of the rectangle that moves are tested against: kept on purpose.
TEST_F(ComboFace, a_press_at_the_right_end_of_the_body_does_not_sink_it)
{
    const auto raised = [](const Brush& brush)
    {
        brush.face();
        brush.fill(CRect(30, 6, 42, 16), tileColor(0));
    };
    press(combo, CPoint(43, 10));
    EXPECT_EQ(comparedWith(raised), "");
    hover(combo, CPoint(42, 10));
    EXPECT_NE(comparedWith(raised), "");
    hover(combo, CPoint(43, 10));
    EXPECT_EQ(comparedWith(raised), "");
    release();
}

TEST_F(ComboFace, the_strip_sinks_while_the_palette_is_open)
{
    press(combo, onStrip);
    EXPECT_EQ(comparedWith(
                  [](const Brush& brush)
                  {
                      brush.fill(CRect(CPoint(0, 0), comboClient), ::GetSysColor(COLOR_BTNFACE));
                      brush.raised(CRect(0, 0, 58, 24));
                      brush.raised(CRect(15, 0, 58, 23));
                      brush.fill(CRect(30, 6, 42, 16), tileColor(0));
                      brush.frame(CRect(0, 0, 16, 24), COLOR_BTNSHADOW, COLOR_BTNFACE);
                      brush.arrow(8, 12);
                  }),
              "");
    release();
}

TEST_F(ComboForms, the_static_form_shows_the_whole_bitmap_and_no_strip)
{
    ASSERT_TRUE(combo.CreateStatic(comboPlace, IDB_TILES, &host, comboId));
    EXPECT_EQ(Pixels(combo).difference(
                  expectedPicture(comboClient,
                                  [](const Brush& brush)
                                  {
                                      brush.fill(CRect(0, 0, 58, 24), ::GetSysColor(COLOR_BTNFACE));
                                      brush.raised(CRect(0, 0, 58, 24));
                                      for (int i = 0; i < 4; ++i) // 48 by 10 around 36, 11
                                          brush.fill(CRect(12 + 12 * i, 6, 24 + 12 * i, 16), tileColor(i));
                                  })),
              "");
}

TEST_F(ComboForms, the_colour_form_shows_colours_of_a_value_up_to_the_count)
{
    ASSERT_TRUE(combo.Create(comboPlace, CSize(3, 2), CSize(10, 8), &host, comboId, L""));
    const struct
    {
        long item;
        bool shown;
    } rows[] = {{0, true}, {5, true}, {6, true}, {7, false}, {RGB(255, 255, 255), false}, {-1, false}};
    for (const auto& row : rows)
    {
        combo.SetSelectedItem(row.item);
        combo.Invalidate(FALSE);
        const auto drawn = [&row](const Brush& brush)
        {
            brush.face();
            if (row.shown)
                brush.fill(CRect(18, 3, 54, 20), static_cast<COLORREF>(row.item)); // 16, 1, 57, 22 without 2, 2, 3, 2
        };
        EXPECT_EQ(Pixels(combo).difference(expectedPicture(comboClient, drawn)), "") << row.item;
    }
}

/// What is neither of the face colour nor of the highlight becomes shadow, with a highlight one pixel right and down.
TEST_F(ComboFace, a_disabled_face_is_embossed)
{
    const Pixels normal(combo);
    const auto embossed = [&normal](const Brush& brush)
    {
        const auto drawn = [&normal](int x, int y)
        {
            const COLORREF color = normal.at(x, y);
            return color != ::GetSysColor(COLOR_BTNFACE) && color != ::GetSysColor(COLOR_BTNHIGHLIGHT);
        };
        const auto each = [&](const std::function<void(int, int)>& act)
        {
            for (int y = 0; y < comboClient.cy; ++y)
                for (int x = 0; x < comboClient.cx; ++x)
                    act(x, y);
        };
        each([&](int x, int y) { ::SetPixel(brush.dc, x, y, normal.at(x, y)); });
        each(
            [&](int x, int y)
            {
                if (drawn(x, y))
                    ::SetPixel(brush.dc, x + 1, y + 1, ::GetSysColor(COLOR_BTNHIGHLIGHT));
            });
        each(
            [&](int x, int y)
            {
                if (drawn(x, y))
                    ::SetPixel(brush.dc, x, y, ::GetSysColor(COLOR_BTNSHADOW));
            });
    };
    combo.EnableWindow(FALSE);
    EXPECT_EQ(comparedWith(embossed), "");
    EXPECT_EQ(Pixels(combo).at(36, 11), ::GetSysColor(COLOR_BTNSHADOW)) << "the red tile";
    combo.EnableWindow(TRUE);
    EXPECT_EQ(Pixels(combo).difference(normal), "");
}

TEST_F(ComboFace, draws_an_arrow_into_any_rectangle)
{
    const Pixels drawn(CSize(30, 20),
                       [&](HDC dc)
                       {
                           Brush{dc}.fill(CRect(0, 0, 30, 20), RGB(255, 255, 255));
                           CRect room(4, 3, 19, 14);
                           combo.DrawArrow(CDC::FromHandle(dc), &room);
                       });
    EXPECT_EQ(drawn.difference(expectedPicture(CSize(30, 20),
                                               [](const Brush& brush)
                                               {
                                                   brush.fill(CRect(0, 0, 30, 20), RGB(255, 255, 255));
                                                   brush.arrow(11, 8); // 4 + 15 / 2, 3 + 11 / 2
                                               })),
              "");
}

TEST_F(ComboFace, drawing_gives_the_device_context_back_as_it_was)
{
    Pixels(CSize(30, 20),
           [&](HDC dc)
           {
               ::SetBkColor(dc, RGB(1, 2, 3));
               ::SetTextColor(dc, RGB(4, 5, 6));
               const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
               CRect room(0, 0, 30, 20);
               combo.DrawArrow(CDC::FromHandle(dc), &room);
               combo.DrawDisabled(CDC::FromHandle(dc), room);
               EXPECT_EQ(::GetCurrentObject(dc, OBJ_BRUSH), brush);
               EXPECT_EQ(::GetBkColor(dc), RGB(1, 2, 3));
               EXPECT_EQ(::GetTextColor(dc), RGB(4, 5, 6));
           });
}
