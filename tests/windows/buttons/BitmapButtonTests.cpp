// The bitmap button: its settings, its loads, what it draws, its life in a window.
#include "oxa/buttons/KxBitmapButton.h"

#include <gtest/gtest.h>

#include <functional>

#include "ButtonHost.h"
#include "support/Guarded.h"
#include "support/ImportPatch.h"
#include "support/Refusal.h"
#include "support/HandleBalance.h"

namespace
{
constexpr UINT id = 7;
const CSize buttonSize(100, 30);
const CRect whole(0, 0, 100, 30);

struct OpenButton : CKxBitmapButton
{
    using CKxBitmapButton::CheckPointForCentering;
    using CKxBitmapButton::SetBitmapCommon;
};

/// Draws the platform's parts of an expected picture.
struct Pen
{
    HDC dc;

    void face(CRect rect, bool pushed = false) const
    {
        ::DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH | (pushed ? DFCS_PUSHED : 0U));
    }
    void image(HANDLE handle, UINT kind, int x, int y, UINT look = DSS_NORMAL) const
    {
        ::DrawState(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(handle), 0, x, y, 16, 16, kind | look);
    }
    void caption(const wchar_t* text, int x, int y, UINT look = DSS_NORMAL) const
    {
        ::DrawState(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(text), 0, x, y, 0, 0, DST_PREFIXTEXT | look);
    }
    CSize measure(const wchar_t* text) const
    {
        CSize size;
        ::GetTextExtentPoint32(dc, text, lstrlen(text), &size);
        return size;
    }
    void line(int x, int y, int end, COLORREF color) const
    {
        for (; x < end; ++x)
            ::SetPixel(dc, x, y, color);
    }
    void focus(CRect rect) const { ::DrawFocusRect(dc, &rect); }
};

Pixels expected(const std::function<void(const Pen&)>& draw)
{
    return Pixels(buttonSize, [&](HDC dc) { draw(Pen{dc}); });
}

struct Image
{
    HANDLE handle;
    UINT kind;

    static Image icon()
    {
        return {::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCE(IDI_BLUE), IMAGE_ICON, 16, 16, 0), DST_ICON};
    }
    static Image square(UINT flags = LR_LOADMAP3DCOLORS | LR_LOADTRANSPARENT)
    {
        return {::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCE(IDB_SQUARE), IMAGE_BITMAP, 16, 16, flags),
                DST_BITMAP};
    }
    void destroy() const
    {
        if (kind == DST_ICON)
            ::DestroyIcon(static_cast<HICON>(handle));
        else
            ::DeleteObject(handle);
    }
};

struct BitmapButton : testing::Test
{
    ButtonHost host;
    OpenButton button;

    void SetUp() override { create(L""); }

    void create(const wchar_t* caption)
    {
        button.DestroyWindow();
        ASSERT_TRUE(button.Create(caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW,
                                  CRect(CPoint(20, 30), buttonSize), &host, id));
        pumpFor(0);
    }

    void paintInto(HDC dc, UINT action, UINT state)
    {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.CtlID = id;
        item.itemAction = action;
        item.itemState = state;
        item.hwndItem = button.m_hWnd;
        item.hDC = dc;
        item.rcItem = whole;
        button.DrawItem(&item);
    }
    Pixels painted(UINT state = 0)
    {
        return Pixels(buttonSize, [&](HDC dc) { paintInto(dc, ODA_DRAWENTIRE, state); });
    }
    std::string comparedWith(const std::function<void(const Pen&)>& draw, UINT state = 0)
    {
        return painted(state).difference(expected(draw));
    }
};
} // namespace

// ---- Settings

TEST_F(BitmapButton, offsets_and_positions_answer_with_what_was_there_before)
{
    EXPECT_EQ(button.SetImageOffset(5), 4);
    EXPECT_EQ(button.SetImageOffset(-3), 5);
    EXPECT_EQ(button.SetTextOffset(9), 8);
    EXPECT_EQ(button.SetTextOffset(0), 9);
    EXPECT_TRUE(button.SetImagePos(CPoint(3, 4)) == CPoint(0, 0));
    EXPECT_TRUE(button.SetImagePos(CPoint(-1, 10)) == CPoint(3, 4));
    EXPECT_TRUE(button.SetTextPos(CPoint(5, 6)) == CPoint(0, 0));
    EXPECT_TRUE(button.SetTextPos(CPoint(0, 0)) == CPoint(5, 6));
}

TEST_F(BitmapButton, each_setter_has_the_button_painted_anew)
{
    const std::function<void()> setters[] = {
        [&] { button.SetImageOffset(1); },
        [&] { button.SetTextOffset(1); },
        [&] {
            button.SetImagePos({1, 1});
        },
        [&] {
            button.SetTextPos({1, 1});
        },
        [&] { button.SetColorTab(0); },
        [&] { button.SetDefaultButton(TRUE); },
        [&] { button.SetIcon(IDI_BLUE, 16, 16); },
        [&] { button.SetBitmap(IDB_SQUARE, 16, 16); },
        [&] { button.SetMaskedBitmap(IDB_SQUARE, 16, 16, 0); },
    };
    for (const auto& set : setters)
    {
        button.ValidateRect(nullptr);
        set();
        CRect update;
        EXPECT_TRUE(button.GetUpdateRect(&update));
        EXPECT_TRUE(update == whole);
    }
}

TEST_F(BitmapButton, centres_only_a_coordinate_of_minus_one)
{
    CPoint point(-1, 10);
    button.CheckPointForCentering(point, 16, 16);
    EXPECT_TRUE(point == CPoint(42, 10)) << "(100 - 16) / 2";
    point = CPoint(3, -1);
    button.CheckPointForCentering(point, 16, 15);
    EXPECT_TRUE(point == CPoint(3, 7)) << "(30 - 15) / 2, down";
}

TEST_F(BitmapButton, names_itself_as_the_default_button_to_its_owner)
{
    MessageRecorder parent(host, [](UINT message) { return message == DM_SETDEFID; });
    EXPECT_EQ(button.SetDefaultButton(TRUE), FALSE);
    EXPECT_EQ(button.SetDefaultButton(5), TRUE);
    EXPECT_EQ(button.SetDefaultButton(FALSE), 5) << "the flag is kept as it is";
    const RecordedMessage told = {DM_SETDEFID, id, 0};
    EXPECT_EQ(parent.all(), (std::vector<RecordedMessage>{told, told, told})) << "also when the flag is taken away";

    ButtonHost other;
    MessageRecorder owner(other, [](UINT message) { return message == DM_SETDEFID; });
    button.SetOwner(&other);
    button.SetDefaultButton(TRUE);
    EXPECT_EQ(owner.all(), std::vector<RecordedMessage>{told});
    EXPECT_EQ(parent.count(DM_SETDEFID), 3) << "the parent is asked only without an owner";
}

TEST(BitmapButtonAlone, takes_every_setting_without_a_window)
{
    OpenButton button;
    EXPECT_FALSE(button.HasImage());
    EXPECT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    EXPECT_EQ(button.SetImageOffset(6), 4);
    EXPECT_EQ(button.SetDefaultButton(TRUE), FALSE);
    EXPECT_EQ(button.SetDefaultButton(FALSE), TRUE);
    button.SetColorTab(RGB(1, 2, 3));
    EXPECT_TRUE(button.HasImage());
}

// ---- Loading

TEST_F(BitmapButton, has_an_image_once_one_was_loaded)
{
    EXPECT_FALSE(button.HasImage());
    EXPECT_EQ(button.SetIcon(IDX_MISSING, 16, 16), 0);
    EXPECT_EQ(button.SetBitmap(IDX_MISSING, 16, 16), 0);
    EXPECT_EQ(button.SetMaskedBitmap(IDX_MISSING, 16, 16, 0), 0);
    EXPECT_EQ(button.SetIcon(IDB_SQUARE, 16, 16), 0) << "a bitmap is no icon";
    EXPECT_EQ(button.SetBitmap(IDI_BLUE, 16, 16), 0) << "an icon is no bitmap";
    EXPECT_FALSE(button.HasImage());
    EXPECT_EQ(button.SetBitmap(IDB_SQUARE, 16, 16), 1);
    EXPECT_TRUE(button.HasImage());
    EXPECT_EQ(button.SetIcon(IDI_BLUE, 16, 16), 1);
    EXPECT_TRUE(button.HasImage());
}

TEST_F(BitmapButton, keeps_its_image_when_another_does_not_load)
{
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    const Pixels before = painted();
    EXPECT_FALSE(button.SetIcon(IDX_MISSING, 8, 8));
    EXPECT_FALSE(button.SetBitmap(IDX_MISSING, 8, 8));
    EXPECT_EQ(painted().difference(before), "");
}

namespace
{
int bitmapLoads;
HANDLE WINAPI loadsOnlyOnce(HINSTANCE module, LPCWSTR name, UINT type, int width, int height, UINT flags)
{
    return ++bitmapLoads == 2 ? nullptr : ::LoadImageW(module, name, type, width, height, flags);
}
} // namespace

TEST_F(BitmapButton, stores_nothing_and_leaks_nothing_when_the_second_load_fails)
{
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    const Pixels before = painted();
    const int objects = gdiObjectCount();
    {
        const ImportPatch patch(::GetModuleHandleW(L"Oxa10.dll"), "LoadImageW",
                                reinterpret_cast<const void*>(&loadsOnlyOnce));
        ASSERT_TRUE(patch.found());
        bitmapLoads = 0;
        EXPECT_FALSE(button.SetBitmap(IDB_SQUARE, 8, 8));
    }
    EXPECT_EQ(bitmapLoads, 2);
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(painted().difference(before), "");
}

TEST_F(BitmapButton, a_second_load_of_the_same_kind_takes_the_place_of_the_first)
{
    ASSERT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
    const int objects = gdiObjectCount();
    for (int i = 0; i < 10; ++i)
    {
        EXPECT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
        EXPECT_TRUE(button.SetMaskedBitmap(IDB_SQUARE, 16, 16, RGB(255, 0, 255)));
    }
    EXPECT_EQ(gdiObjectCount(), objects);

    OpenButton other;
    ASSERT_TRUE(other.SetIcon(IDI_BLUE, 16, 16));
    const int icons = menuAndIconCount();
    for (int i = 0; i < 10; ++i)
        EXPECT_TRUE(other.SetIcon(IDI_BLUE, 16, 16));
    EXPECT_EQ(menuAndIconCount(), icons);
}

TEST(BitmapButtonAlone, forgets_the_bitmap_of_an_icon_but_deletes_its_disabled_form)
{
    const int objects = gdiObjectCount();
    {
        OpenButton warm;
        ASSERT_TRUE(warm.SetBitmap(IDB_SQUARE, 16, 16));
        EXPECT_EQ(gdiObjectCount(), objects + 2);
    }
    EXPECT_EQ(gdiObjectCount(), objects);
    const int icons = menuAndIconCount();
    {
        OpenButton button;
        ASSERT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
        ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    }
    EXPECT_EQ(gdiObjectCount(), objects + 1) << "the bitmap itself stays for good";
    EXPECT_EQ(menuAndIconCount(), icons);
}

TEST(BitmapButtonAlone, forgets_the_icon_of_a_bitmap)
{
    const int icons = menuAndIconCount();
    {
        OpenButton button;
        ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
        ASSERT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
    }
    EXPECT_EQ(menuAndIconCount(), icons + 1) << "the icon stays for good";
}

// ---- Painting

TEST_F(BitmapButton, looks_like_a_push_button)
{
    EXPECT_EQ(comparedWith([](const Pen& pen) { pen.face(whole); }), "");
    EXPECT_EQ(comparedWith([](const Pen& pen) { pen.face(whole, true); }, ODS_SELECTED), "");
}

TEST_F(BitmapButton, shows_an_image_without_caption_in_the_middle_and_moves_it_when_pressed)
{
    const Image blue = Image::icon();
    const Image square = Image::square();
    const struct
    {
        Image image;
        std::function<BOOL()> load;
    } rows[] = {
        {blue, [&] { return button.SetIcon(IDI_BLUE, 16, 16); }},
        {square, [&] { return button.SetBitmap(IDB_SQUARE, 16, 16); }},
        {square, [&] { return button.SetMaskedBitmap(IDB_SQUARE, 16, 16, RGB(255, 0, 0)); }},
    };
    for (const auto& row : rows)
    {
        ASSERT_TRUE(row.load());
        const auto drawnAt = [&](int x, int y, bool pushed)
        {
            return [&row, x, y, pushed](const Pen& pen)
            {
                pen.face(whole, pushed);
                pen.image(row.image.handle, row.image.kind, x, y);
            };
        };
        EXPECT_EQ(comparedWith(drawnAt(42, 7, false)), "");
        EXPECT_EQ(comparedWith(drawnAt(43, 8, true), ODS_SELECTED), "");
    }
    blue.destroy();
    square.destroy();
}

TEST_F(BitmapButton, shows_the_colours_of_its_image)
{
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    EXPECT_EQ(painted().at(50, 15), RGB(0, 0, 255)) << "42 + 8, 7 + 8";
    EXPECT_EQ(painted().ink(CRect(5, 5, 95, 25), painted().at(10, 15)).CenterPoint(), CPoint(50, 15));
    ASSERT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
    EXPECT_EQ(painted().at(50, 12), RGB(255, 0, 0));
    EXPECT_EQ(painted().at(50, 18), ::GetSysColor(COLOR_3DFACE)) << "light grey is a system colour";
    EXPECT_EQ(painted().at(43, 8), ::GetSysColor(COLOR_3DFACE)) << "what was magenta";
}

TEST_F(BitmapButton, writes_a_caption_without_image_one_pixel_above_the_middle)
{
    create(L"&Add");
    const auto drawn = [](bool pushed)
    {
        return [pushed](const Pen& pen)
        {
            const CSize size = pen.measure(L"&Add"); // with the ampersand: kept on purpose
            const int shift = pushed ? 1 : 0;
            pen.face(whole, pushed);
            pen.caption(L"&Add", (100 - size.cx) / 2 + shift, (30 - size.cy) / 2 - 1 + shift);
        };
    };
    EXPECT_EQ(comparedWith(drawn(false)), "");
    EXPECT_EQ(comparedWith(drawn(true), ODS_SELECTED), "");
}

TEST_F(BitmapButton, writes_the_caption_in_the_middle_of_what_the_image_leaves)
{
    create(L"Add");
    const Image blue = Image::icon();
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    const auto drawn = [&](int imageX, int used)
    {
        return [&blue, imageX, used](const Pen& pen)
        {
            const CSize size = pen.measure(L"Add");
            pen.face(whole);
            pen.image(blue.handle, blue.kind, imageX, 7);
            pen.caption(L"Add", used + (100 - used - size.cx) / 2, (30 - size.cy) / 2 - 1);
        };
    };
    EXPECT_EQ(comparedWith(drawn(4, 28)), "") << "16 + 8 + 4";
    button.SetImageOffset(10);
    EXPECT_EQ(comparedWith(drawn(10, 34)), "");
    button.SetTextOffset(2);
    EXPECT_EQ(comparedWith(drawn(10, 28)), "");
    button.SetImagePos(CPoint(0, 0));
    button.SetImageOffset(4); // the offsets count again
    EXPECT_EQ(comparedWith(drawn(4, 22)), "");
    blue.destroy();
}

TEST_F(BitmapButton, puts_image_and_caption_at_their_positions)
{
    create(L"Add");
    const Image blue = Image::icon();
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    button.SetImagePos(CPoint(-1, 10));
    button.SetTextPos(CPoint(5, -1));
    const auto drawn = [&](const Pen& pen)
    {
        pen.face(whole);
        pen.image(blue.handle, blue.kind, 42, 10);
        pen.caption(L"Add", 5, (30 - pen.measure(L"Add").cy) / 2 - 1);
    };
    EXPECT_EQ(comparedWith(drawn), "");
    button.SetTextPos(CPoint(60, 3));
    const auto atPositions = [&](const Pen& pen)
    {
        pen.face(whole, true);
        pen.image(blue.handle, blue.kind, 43, 11);
        pen.caption(L"Add", 61, 4);
    };
    EXPECT_EQ(comparedWith(atPositions, ODS_SELECTED), "");
    blue.destroy();
}

TEST_F(BitmapButton, shows_a_triangle_of_eight_lines_in_its_corner)
{
    button.SetColorTab(RGB(200, 30, 60));
    const auto drawn = [](int corner, bool pushed)
    {
        return [corner, pushed](const Pen& pen)
        {
            pen.face(whole, pushed);
            for (int i = 0; i < 7; ++i)
                pen.line(corner, corner + i, corner + 7 - i, RGB(200, 30, 60));
        };
    };
    EXPECT_EQ(comparedWith(drawn(1, false)), "");
    EXPECT_EQ(comparedWith(drawn(2, true), ODS_SELECTED), "");
}

TEST_F(BitmapButton, has_a_black_frame_as_the_default_button)
{
    button.SetDefaultButton(TRUE);
    const auto drawn = [](const Pen& pen)
    {
        const HGDIOBJ before = ::SelectObject(pen.dc, ::GetStockObject(BLACK_PEN));
        ::Rectangle(pen.dc, 0, 0, 100, 30);
        ::SelectObject(pen.dc, before);
        pen.face(CRect(1, 1, 99, 29));
    };
    EXPECT_EQ(comparedWith(drawn), "");
    EXPECT_EQ(painted().at(0, 0), RGB(0, 0, 0));
    EXPECT_EQ(painted().at(99, 29), RGB(0, 0, 0));
    button.SetDefaultButton(FALSE);
    EXPECT_EQ(comparedWith([](const Pen& pen) { pen.face(whole); }), "");
}

TEST_F(BitmapButton, has_a_disabled_look_of_image_and_caption)
{
    create(L"Add");
    const Image blue = Image::icon();
    const Image grey = Image::square(LR_MONOCHROME | LR_LOADTRANSPARENT);
    const auto drawn = [](const Image& image)
    {
        return [&image](const Pen& pen)
        {
            const CSize size = pen.measure(L"Add");
            pen.face(whole);
            pen.image(image.handle, image.kind, 4, 7, DSS_DISABLED);
            pen.caption(L"Add", 28 + (72 - size.cx) / 2, (30 - size.cy) / 2 - 1, DSS_DISABLED);
        };
    };
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    EXPECT_EQ(comparedWith(drawn(blue), ODS_DISABLED), "");
    ASSERT_TRUE(button.SetBitmap(IDB_SQUARE, 16, 16));
    EXPECT_EQ(comparedWith(drawn(grey), ODS_DISABLED), "");
    EXPECT_EQ(painted(ODS_DISABLED).count(whole, [](COLORREF c) { return c == RGB(255, 0, 0); }), 0);
    blue.destroy();
    grey.destroy();
}

TEST_F(BitmapButton, toggles_its_focus_mark_by_the_states)
{
    const struct
    {
        UINT lastState, action, state;
        bool face, mark;
    } rows[] = {
        {0, ODA_DRAWENTIRE, ODS_FOCUS, true, true},
        {ODS_FOCUS, ODA_DRAWENTIRE, ODS_FOCUS, true, true},
        {ODS_FOCUS, ODA_DRAWENTIRE, 0, true, true}, // a mark on a fresh face: kept on purpose
        {0, ODA_DRAWENTIRE, 0, true, false},
        {0, ODA_FOCUS, ODS_FOCUS, false, true},
        {ODS_FOCUS, ODA_FOCUS, 0, false, true},
        {ODS_FOCUS, ODA_FOCUS, ODS_FOCUS, false, false},
        {0, ODA_FOCUS, 0, false, false},
        {0, ODA_FOCUS, ODS_FOCUS | ODS_DISABLED, false, false},
        {ODS_FOCUS | ODS_DISABLED, ODA_FOCUS, ODS_FOCUS, false, false}, // the last state is stored when disabled too
        {ODS_DISABLED, ODA_DRAWENTIRE, ODS_FOCUS | ODS_DISABLED, true, false},
    };
    for (const auto& row : rows)
    {
        const Pixels before(buttonSize, [&](HDC dc) { paintInto(dc, ODA_DRAWENTIRE, row.lastState); });
        const Pixels now(buttonSize, [&](HDC dc) { paintInto(dc, row.action, row.state); });
        const auto drawn = [&](const Pen& pen)
        {
            if (row.face)
                pen.face(whole);
            if (row.mark)
                pen.focus(CRect(3, 3, 97, 27));
        };
        EXPECT_EQ(now.difference(expected(drawn)), "") << row.lastState << ' ' << row.action << ' ' << row.state;
    }
}

TEST_F(BitmapButton, leaves_the_device_context_as_it_was)
{
    create(L"Add");
    button.SetIcon(IDI_BLUE, 16, 16);
    button.SetColorTab(RGB(200, 30, 60));
    button.SetDefaultButton(TRUE);
    Pixels(buttonSize,
           [&](HDC dc)
           {
               const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
               const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT);
               const COLORREF color = ::GetTextColor(dc);
               paintInto(dc, ODA_DRAWENTIRE, ODS_DISABLED);
               EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
               EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), font);
               EXPECT_EQ(::GetTextColor(dc), color);
           });
}

// ---- In a window

TEST_F(BitmapButton, is_pressed_by_the_mouse_and_tells_its_parent)
{
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 16, 16));
    MessageRecorder parent(host, [](UINT message) { return message == WM_COMMAND; });
    const COLORREF blue = RGB(0, 0, 255);
    const auto icon = [&] { return Pixels(button).ink(CRect(30, 5, 70, 26), Pixels(button).at(35, 15)); };
    EXPECT_TRUE(icon() == CRect(44, 9, 56, 21)) << "12 by 12 pixels of colour, 2 within the icon";
    press(button, CPoint(50, 15));
    EXPECT_EQ(Pixels(button).at(56, 21), blue) << "moved by one";
    EXPECT_NE(Pixels(button).at(44, 9), blue);
    EXPECT_EQ(parent.count(WM_COMMAND), 0);
    release();
    EXPECT_TRUE(icon() == CRect(44, 9, 56, 21));
    EXPECT_EQ(parent.all(), (std::vector<RecordedMessage>{
                                {WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button.m_hWnd)}}));
}

TEST_F(BitmapButton, marks_the_focus_while_it_has_it)
{
    const auto marked = [&]
    {
        const Pixels now(button);
        return now.count(CRect(3, 3, 97, 4), [&](COLORREF c) { return c != now.at(50, 15); }) > 0;
    };
    EXPECT_FALSE(marked());
    button.SetFocus();
    pumpFor(10);
    EXPECT_TRUE(marked());
    host.SetFocus();
    pumpFor(10);
    // Where the platform paints the whole button as the focus goes, the mark is toggled on a fresh face: kept on purpose.
    button.Invalidate();
    pumpFor(10);
    EXPECT_FALSE(marked());
    button.SetFocus();
    button.Invalidate();
    pumpFor(10);
    EXPECT_TRUE(marked()) << "on a fresh face as well";
    button.EnableWindow(FALSE);
    pumpFor(10);
    EXPECT_FALSE(marked()) << "a disabled button has none";
}

TEST_F(BitmapButton, is_pressed_by_the_space_bar)
{
    MessageRecorder parent(host, [](UINT message) { return message == WM_COMMAND; });
    button.SetFocus();
    key(VK_SPACE);
    EXPECT_EQ(parent.count(WM_COMMAND), 1);
}

// ---- Hostile hosts

// The size given at the load is the size reckoned with, also when the platform takes another: kept on purpose.
TEST_F(BitmapButton, reckons_with_the_size_that_it_was_given)
{
    const HICON natural =
        static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCE(IDI_BLUE), IMAGE_ICON, 0, 0, 0));
    ASSERT_TRUE(button.SetIcon(IDI_BLUE, 0, 0));
    EXPECT_EQ(comparedWith(
                  [&](const Pen& pen)
                  {
                      pen.face(whole);
                      ::DrawState(pen.dc, nullptr, nullptr, reinterpret_cast<LPARAM>(natural), 0, 50, 15, 0, 0,
                                  DST_ICON);
                  }),
              "");
    ::DestroyIcon(natural);
}

TEST_F(BitmapButton, shows_the_icon_beside_a_caption_that_is_much_too_long)
{
    create(std::wstring(30000, L'w').c_str()); // the platform keeps no more than 32,767
    ASSERT_EQ(button.GetWindowTextLength(), 30000);
    button.SetIcon(IDI_BLUE, 16, 16);
    EXPECT_EQ(painted().at(12, 15), RGB(0, 0, 255)) << "the icon, 4 + 8";
    EXPECT_NE(painted().difference(expected([](const Pen& pen) { pen.face(whole); })), "");
}

TEST_F(BitmapButton, draws_nothing_without_an_item_or_a_device_context)
{
    button.DrawItem(nullptr);
    paintInto(nullptr, ODA_DRAWENTIRE, 0);
    EXPECT_EQ(comparedWith([](const Pen& pen) { pen.face(whole); }), "");
}

TEST_F(BitmapButton, takes_extreme_numbers)
{
    create(L"Add");
    for (const int number : {INT_MIN, -1, INT_MAX})
    {
        button.SetImageOffset(number);
        button.SetTextOffset(number);
        painted(ODS_SELECTED | ODS_FOCUS);
        button.SetImagePos(CPoint(number, number));
        button.SetTextPos(CPoint(number, number));
        painted(ODS_SELECTED | ODS_DISABLED);
        OpenButton other;
        other.SetIcon(IDI_BLUE, number, number);
        other.SetBitmap(IDB_SQUARE, number, number);
        other.SetMaskedBitmap(IDB_SQUARE, number, number, CLR_INVALID);
    }
    button.SetImageOffset(4);
    button.SetTextOffset(8);
    EXPECT_EQ(comparedWith(
                  [](const Pen& pen)
                  {
                      const CSize size = pen.measure(L"Add");
                      pen.face(whole);
                      pen.caption(L"Add", (100 - size.cx) / 2, (30 - size.cy) / 2 - 1);
                  }),
              "");
}

TEST_F(BitmapButton, outlives_a_platform_that_has_run_out_of_something)
{
    create(L"Add");
    button.SetBitmap(IDB_SQUARE, 16, 16);
    button.SetColorTab(RGB(200, 30, 60));
    button.SetDefaultButton(TRUE);
    const Pixels before = painted();
    for (const char* function : {"CreatePen", "LoadImageW", "CreateSolidBrush", "DrawStateW", "CreateCompatibleDC"})
    {
        SCOPED_TRACE(function);
        const int objects = gdiObjectCount();
        {
            const Refusal refusal(function);
            ASSERT_TRUE(refusal.works());
            painted();
            painted(ODS_DISABLED);
            OpenButton icon, bitmap;
            icon.SetIcon(IDI_BLUE, 16, 16);
            bitmap.SetBitmap(IDB_SQUARE, 16, 16);
        }
        EXPECT_EQ(gdiObjectCount(), objects);
        EXPECT_EQ(painted().difference(before), "");
    }
}

TEST_F(BitmapButton, may_lose_its_parent_when_it_is_clicked)
{
    host.onTold = [&] { host.DestroyWindow(); };
    const HWND window = button.m_hWnd;
    press(button, CPoint(50, 15));
    release();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(button.m_hWnd, nullptr);
}

TEST(BitmapButtonAlone, may_be_deleted_by_the_host_that_it_names_itself_to)
{
    ButtonHost host;
    auto* button = new Guarded<CKxBitmapButton>;
    ASSERT_TRUE(button->Create(L"Add", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, whole, &host, id));
    host.waitsFor = DM_SETDEFID;
    host.onTold = [&] { delete std::exchange(button, nullptr); };
    EXPECT_EQ(button->SetDefaultButton(TRUE), FALSE);
    EXPECT_EQ(button, nullptr);
}

TEST(BitmapButtonAlone, leaves_no_handle_after_two_thousand_lives)
{
    ButtonHost host;
    expectNoHandleLeft(2000,
                       [&](int)
                       {
                           CKxBitmapButton icon;
                           CKxBitmapButton bitmap;
                           icon.Create(L"Add", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, whole, &host, id);
                           bitmap.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, whole + CPoint(0, 40), &host,
                                         id + 1);
                           icon.SetIcon(IDI_BLUE, 16, 16);
                           icon.SetColorTab(RGB(1, 2, 3));
                           bitmap.SetBitmap(IDB_SQUARE, 16, 16);
                           bitmap.EnableWindow(FALSE);
                           icon.UpdateWindow();
                           bitmap.UpdateWindow();
                       });
}
