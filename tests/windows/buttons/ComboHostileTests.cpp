// Button combos whose hosts end them in the middle of their work, absurd numbers, and many lives.
#include <gtest/gtest.h>

#include <climits>

#include "ComboHost.h"
#include "support/Guarded.h"
#include "support/HandleBalance.h"
#include "support/Refusal.h"

namespace
{
/// What the user does.
struct Deed
{
    const char* name;
    std::function<void(CKxButtonCombo&)> run;
};

/// A combo that a host deletes, or whose window it destroys, at the first message of a kind.
struct DoomedCombo
{
    ButtonHost host;
    Guarded<CKxButtonCombo>* combo = new Guarded<CKxButtonCombo>;
    HWND face = nullptr;
    HWND palette = nullptr;

    DoomedCombo()
    {
        EXPECT_TRUE(combo->Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L"a;b;c;d"));
        face = combo->m_hWnd;
        palette = paletteOf(*combo)->m_hWnd;
        host.SetActiveWindow();
        host.SetFocus();
        pumpFor(0);
    }
    DoomedCombo(const DoomedCombo&) = delete;
    DoomedCombo& operator=(const DoomedCombo&) = delete;
    ~DoomedCombo()
    {
        delete combo;
        mouseButton(MOUSEEVENTF_LEFTUP);
        if (::GetCapture() != nullptr)
            ::ReleaseCapture();
        moveTo(CPoint(5, 5));
        pumpFor(10);
    }
};

void chooseByMouse(CKxButtonCombo& combo)
{
    press(combo, onStrip);
    if (CWndCombo* const palette = paletteOf(combo))
        hover(*palette, CPoint(30, 30));
    release();
}
void clickBody(CKxButtonCombo& combo)
{
    press(combo, onBody);
    release();
}

const Deed tellingDeeds[] = {
    {"choose", chooseByMouse},
    {"click the body", clickBody},
    {"choose by the host", [](CKxButtonCombo& combo) { combo.OnItemSelected(1, 1); }},
};
} // namespace

TEST(DoomedButtonCombo, may_lose_its_parent_in_the_notification)
{
    for (const Deed& deed : tellingDeeds)
    {
        SCOPED_TRACE(deed.name);
        DoomedCombo doomed;
        doomed.host.waitsFor = WM_KX_BUTTONCOMBO_SELECT;
        doomed.host.onTold = [&] { doomed.host.DestroyWindow(); };
        deed.run(*doomed.combo);
        EXPECT_FALSE(::IsWindow(doomed.face));
        EXPECT_FALSE(::IsWindow(doomed.palette));
        EXPECT_EQ(doomed.combo->m_hWnd, nullptr);
    }
}

TEST(DoomedButtonCombo, may_be_deleted_in_the_notification)
{
    for (const Deed& deed : tellingDeeds)
    {
        SCOPED_TRACE(deed.name);
        DoomedCombo doomed;
        doomed.host.waitsFor = WM_KX_BUTTONCOMBO_SELECT;
        doomed.host.onTold = [&] { delete std::exchange(doomed.combo, nullptr); };
        deed.run(*doomed.combo);
        EXPECT_EQ(doomed.combo, nullptr);
        EXPECT_FALSE(::IsWindow(doomed.face));
        EXPECT_FALSE(::IsWindow(doomed.palette));
    }
}

TEST(DoomedButtonCombo, may_be_deleted_as_the_focus_comes_and_goes)
{
    const auto pressStrip = [](CKxButtonCombo& combo) { press(combo, onStrip); };
    const auto pressBody = [](CKxButtonCombo& combo) { press(combo, onBody); };
    const auto cancel = [](CKxButtonCombo& combo)
    {
        press(combo, onStrip);
        key(VK_ESCAPE);
    };
    const auto deactivate = [](CKxButtonCombo& combo)
    {
        press(combo, onStrip);
        ::SendMessage(paletteOf(combo)->m_hWnd, WM_ACTIVATEAPP, FALSE, 0);
    };
    const auto rightClick = [](CKxButtonCombo& combo) { combo.SendMessage(WM_RBUTTONDOWN, 0, 0); };
    const auto unpress = [](CKxButtonCombo& combo) { combo.UnpressRightButton(); };
    const struct
    {
        Deed deed;
        UINT at;
        bool focusElsewhere;
    } rows[] = {
        {{"open, as the parent gets the focus", pressStrip}, WM_SETFOCUS, true},
        {{"open, as the parent loses the focus", pressStrip}, WM_KILLFOCUS, false},
        {{"press the body", pressBody}, WM_SETFOCUS, true},
        {{"choose", chooseByMouse}, WM_SETFOCUS, false},
        {{"cancel", cancel}, WM_SETFOCUS, false},
        {{"deactivate", deactivate}, WM_SETFOCUS, false},
        {{"right click", rightClick}, WM_SETFOCUS, true},
        {{"unpress", unpress}, WM_SETFOCUS, true},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.deed.name);
        DoomedCombo doomed;
        CWnd field;
        ASSERT_TRUE(field.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(200, 200, 250, 220), &doomed.host, 5));
        if (row.focusElsewhere)
            field.SetFocus();
        doomed.host.waitsFor = row.at;
        doomed.host.onTold = [&] { delete std::exchange(doomed.combo, nullptr); };
        row.deed.run(*doomed.combo);
        EXPECT_EQ(doomed.combo, nullptr);
        EXPECT_FALSE(::IsWindow(doomed.face));
        EXPECT_FALSE(::IsWindow(doomed.palette));
    }
}

TEST(DoomedButtonCombo, may_be_destroyed_or_deleted_while_it_is_open)
{
    const std::function<void(DoomedCombo&)> ends[] = {
        [](DoomedCombo& doomed) { doomed.combo->DestroyWindow(); },
        [](DoomedCombo& doomed) { delete std::exchange(doomed.combo, nullptr); },
        [](DoomedCombo& doomed) { doomed.host.DestroyWindow(); },
    };
    for (const auto& end : ends)
    {
        DoomedCombo doomed;
        press(*doomed.combo, onStrip);
        ASSERT_TRUE(::IsWindowVisible(doomed.palette));
        end(doomed);
        EXPECT_FALSE(::IsWindow(doomed.face));
        EXPECT_FALSE(::IsWindow(doomed.palette));
    }
}

TEST(DoomedButtonCombo, may_outlive_its_parent)
{
    CKxButtonCombo combo;
    {
        ButtonHost host;
        ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
    }
    EXPECT_EQ(combo.m_hWnd, nullptr);
    combo.OnItemSelected(2, 2);
    combo.UnpressRightButton();
    EXPECT_EQ(combo.GetSelectedItem(), 2);
}

TEST(HostileButtonCombo, takes_every_call_without_a_window)
{
    CKxButtonCombo combo;
    combo.OnItemSelected(5, 7);
    combo.UnpressRightButton();
    combo.DrawArrow(nullptr, nullptr);
    CRect room(0, 0, 10, 10);
    combo.DrawArrow(nullptr, &room);
    combo.DrawDisabled(nullptr, room);
    CDC none;
    combo.DrawArrow(&none, &room);
    combo.DrawDisabled(&none, room);
    EXPECT_EQ(combo.GetSelectedItem(), 5);
    CWndCombo palette;
    palette.Place(CPoint(0, 0), true);
    palette.Hide();
    palette.DrawItem(none, room, 0);
    EXPECT_FALSE(palette.CreateColors(nullptr, CPoint(0, 0), CSize(1, 1), CSize(1, 1), L""));
    EXPECT_FALSE(palette.CreateTiles(&combo, CPoint(0, 0), CSize(1, 1), IDB_TILES, 4, L""))
        << "the owner has no window";
    EXPECT_EQ(palette.GetCurrent(), 0);
}

TEST(HostileButtonCombo, a_palette_may_outlive_its_owner)
{
    ButtonHost host;
    CWndCombo palette;
    {
        Guarded<CKxButtonCombo>* const owner = new Guarded<CKxButtonCombo>;
        ASSERT_TRUE(owner->Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
        ASSERT_TRUE(palette.CreateColors(owner, CPoint(300, 300), CSize(2, 2), CSize(10, 8), L"a;b;c;d"));
        delete owner;
    }
    palette.Place(CPoint(300, 300), true);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_KILLFOCUS, WM_LBUTTONUP, WM_KEYDOWN, WM_ACTIVATEAPP})
        palette.SendMessage(message, 0, MAKELPARAM(5, 5));
    palette.Place(CPoint(300, 300), true);
    EXPECT_EQ(Pixels(palette).at(6, 6), ::GetSysColor(COLOR_BTNFACE)) << "nobody knows its colours";
    palette.SendMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_FALSE(palette.IsWindowVisible()) << "a key closes it all the same";
}

TEST(HostileButtonCombo, a_palette_that_was_made_as_a_plain_window_is_empty)
{
    ButtonHost host;
    CWndCombo palette;
    ASSERT_TRUE(palette.CWnd::Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 60), &host, 3));
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_KEYDOWN, WM_KILLFOCUS, WM_ACTIVATEAPP})
        palette.SendMessage(message, 0, MAKELPARAM(10, 10));
    EXPECT_EQ(Pixels(palette).at(25, 25), ::GetSysColor(COLOR_BTNFACE));
}

TEST(HostileButtonCombo, draws_its_looks_into_absurd_rectangles)
{
    ButtonHost host;
    CKxButtonCombo combo;
    ASSERT_TRUE(combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""));
    Pixels(CSize(20, 20),
           [&](HDC dc)
           {
               for (CRect room : {CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN), CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX),
                                  CRect(10, 10, 0, 0), CRect(0, 0, 0, 0), CRect(-50, -50, 70, 70)})
               {
                   combo.DrawArrow(CDC::FromHandle(dc), &room);
                   combo.DrawDisabled(CDC::FromHandle(dc), room);
                   EXPECT_TRUE(::GetCurrentObject(dc, OBJ_BITMAP) != nullptr);
               }
           });
}

TEST(HostileButtonCombo, takes_grids_of_huge_numbers)
{
    const CSize sizes[] = {CSize(INT_MAX, INT_MAX), CSize(INT_MIN, INT_MIN), CSize(-3, 5), CSize(65536, 65536),
                           CSize(0, 0)};
    ButtonHost host;
    const auto use = [](CKxButtonCombo& combo)
    {
        CWndCombo* const palette = paletteOf(combo);
        palette->Place(CPoint(300, 300), true);
        for (const CPoint point : {CPoint(1, 1), CPoint(20, 20), CPoint(30000, 30000)})
            palette->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
        palette->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(20, 20));
        combo.UpdateWindow();
    };
    for (const CSize grid : sizes)
    {
        for (const CSize cell : {CSize(10, 8), CSize(INT_MAX, INT_MIN), CSize(INT_MIN, -1)})
        {
            CKxButtonCombo combo;
            if (combo.Create(comboPlace, grid, cell, &host, comboId, L"a;b"))
                use(combo);
        }
        for (const int count : {1, 49, INT_MAX})
        {
            CKxButtonCombo combo;
            ASSERT_TRUE(combo.Create(comboPlace, grid, IDB_TILES, count, &host, comboId, L"a;b"));
            EXPECT_EQ(combo.GetElementNumber(), count - 1);
            use(combo);
            combo.OnItemSelected(LONG_MIN, INT_MIN);
            combo.UpdateWindow();
            combo.OnItemSelected(LONG_MAX, INT_MAX);
            use(combo);
        }
    }
}

TEST(HostileButtonCombo, takes_any_rectangle)
{
    ButtonHost host;
    for (const CRect& place : {CRect(0, 0, 0, 0), CRect(50, 50, 10, 10), CRect(0, 0, 1, 1), CRect(0, 0, 16, 3),
                               CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), CRect(INT_MAX, INT_MAX, INT_MIN, INT_MIN)})
    {
        CKxButtonCombo combo;
        if (!combo.Create(place, CSize(2, 2), IDB_TILES, 4, &host, comboId, L""))
            continue;
        combo.UpdateWindow();
        combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 0));
        combo.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(3, 0));
        combo.EnableWindow(FALSE);
        combo.UpdateWindow();
        if (::GetCapture() != nullptr)
            ::ReleaseCapture();
    }
    EXPECT_TRUE(::IsWindow(host));
}

TEST(HostileButtonCombo, a_strip_narrower_than_its_tiles_has_tiles_of_no_width)
{
    ButtonHost host;
    CKxButtonCombo combo;
    ASSERT_TRUE(combo.Create(comboPlace, CSize(3, 1), IDB_TILES, 49, &host, comboId, L"")); // 48 pixels
    EXPECT_EQ(Pixels(combo).difference(expectedPicture(comboClient, [](const Brush& brush) { brush.face(); })), "");
    press(combo, onStrip);
    CRect client;
    paletteOf(combo)->GetClientRect(&client);
    EXPECT_EQ(client.Width(), 30) << "3 * (0 + 9) + 3";
    hover(*paletteOf(combo), CPoint(14, 10)); // 2 and 10 for the first, up to 20 for the second
    release();
    EXPECT_EQ(combo.GetSelectedItem(), 1);
}

TEST(HostileButtonCombo, takes_captions_of_a_million_characters)
{
    const std::wstring million(1 << 20, L'w');
    const std::wstring dividers(1 << 20, L';');
    for (const std::wstring& captions : {million, dividers, million + L";" + million})
    {
        TileCombo made;
        ASSERT_TRUE(made.create(CSize(2, 1), captions.c_str()));
        press(made.combo, onStrip);
        hover(made.palette(), CPoint(10, 10));
        EXPECT_EQ(Pixels(made.palette()).at(12, 11), tileColor(0)) << "it is painted";
        release();
        EXPECT_EQ(made.combo.GetSelectedItem(), 0);
    }
}

TEST(HostileButtonCombo, has_room_for_a_hundred_thousand_cells)
{
    ButtonHost host;
    CKxButtonCombo combo;
    ASSERT_TRUE(combo.Create(comboPlace, CSize(1000, 100), CSize(10, 8), &host, comboId, L""));
    CWndCombo* const palette = paletteOf(combo);
    palette->Place(CPoint(0, 0), true);
    palette->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 895)); // row 89: cells of 8, 10 apart for the test
    EXPECT_EQ(palette->GetCurrent(), 89000);
    EXPECT_FALSE(palette->GetUpdateRect(nullptr)) << "it is painted";
    palette->SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(combo.GetSelectedItem(), 0) << "black: the palette of the system has 255";
}

TEST(HostileButtonCombo, outlives_a_platform_that_has_run_out_of_something)
{
    const auto use = [](CKxButtonCombo& combo)
    {
        combo.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(onStrip.x, onStrip.y));
        if (CWndCombo* const palette = paletteOf(combo))
        {
            palette->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(10, 5));
            palette->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            palette->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 5));
        }
        combo.EnableWindow(FALSE);
        combo.UpdateWindow();
        combo.EnableWindow(TRUE);
    };
    const auto live = [&use](CWnd& host)
    {
        CKxButtonCombo tiles, colors, fixed;
        tiles.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, 5, L"a;b;c;d");
        colors.Create(comboPlace, CSize(3, 2), CSize(10, 8), &host, 6, L"a;b;c;d;e;f");
        fixed.CreateStatic(comboPlace, IDB_TILES, &host, 7);
        for (CKxButtonCombo* const one : {&tiles, &colors, &fixed})
            if (one->m_hWnd != nullptr)
                use(*one);
    };
    for (const char* function : {"CreateCompatibleDC", "CreateCompatibleBitmap", "CreatePen", "CreateSolidBrush",
                                 "CreateFontW", "CreateMappedBitmap", "CreateWindowExW", "GetSystemPaletteEntries"})
    {
        SCOPED_TRACE(function);
        TileCombo made;
        ASSERT_TRUE(made.create(CSize(2, 2), L"a;b;c;d"));
        use(made.combo);
        live(made.host); // what the platform keeps from then on is none of ours
        const Pixels before(made.combo);
        const int objects = gdiObjectCount();
        {
            const Refusal refusal(function);
            ASSERT_TRUE(refusal.works());
            use(made.combo);
            live(made.host);
        }
        EXPECT_EQ(gdiObjectCount(), objects);
        made.combo.Invalidate();
        EXPECT_EQ(Pixels(made.combo).difference(before), "");
    }
}

TEST(HostileButtonCombo, leaves_no_handle_after_two_thousand_lives)
{
    ButtonHost host;
    expectNoHandleLeft(2000,
                       [&](int round)
                       {
                           CKxButtonCombo combo;
                           if (round % 3 == 0)
                               combo.Create(comboPlace, CSize(2, 2), IDB_TILES, 4, &host, comboId, L"a;b;c;d");
                           else if (round % 3 == 1)
                               combo.Create(comboPlace, CSize(3, 2), CSize(10, 8), &host, comboId, L"a;b");
                           else
                               combo.CreateStatic(comboPlace, IDB_TILES, &host, comboId);
                           combo.UpdateWindow();
                           combo.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 10));
                           if (CWndCombo* const palette = paletteOf(combo))
                           {
                               palette->UpdateWindow();
                               palette->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(10, 5));
                               palette->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(10, 5));
                           }
                           combo.EnableWindow(FALSE);
                           combo.UpdateWindow();
                       });
}
