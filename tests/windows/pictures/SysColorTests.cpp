// The bitmap that follows the system colours.
#include "oxa/images/KxSysColorBitmapStatic.h"

#include <gtest/gtest.h>

#include "PictureHost.h"
#include "support/LeakCounters.h"

namespace
{
// Sets two system colours for its lifetime.
class OtherColors
{
public:
    OtherColors() { set(RGB(10, 20, 30), RGB(200, 100, 50)); }
    OtherColors(const OtherColors&) = delete;
    OtherColors& operator=(const OtherColors&) = delete;
    ~OtherColors() { set(face, shadow); }

private:
    static void set(COLORREF newFace, COLORREF newShadow)
    {
        const int elements[] = {COLOR_3DFACE, COLOR_3DSHADOW};
        const COLORREF colors[] = {newFace, newShadow};
        ::SetSysColors(2, elements, colors);
    }

    COLORREF face = ::GetSysColor(COLOR_3DFACE);
    COLORREF shadow = ::GetSysColor(COLOR_3DSHADOW);
};

class Shown
{
public:
    explicit Shown(DWORD style = SS_BITMAP)
    {
        control.Create(L"", WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 20, 20), &host);
    }

    Colors colors() const
    {
        HBITMAP bitmap = control.GetBitmap();
        return {pixelOf(bitmap, 0, 0), pixelOf(bitmap, 1, 0), pixelOf(bitmap, 2, 0), pixelOf(bitmap, 3, 0)};
    }

    PictureHost host;
    CKxSysColorBitmapStatic control;
};

// Left top pixel's colour and light grey become the face, dark grey the shadow, red stays.
Colors expectedColors()
{
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    return {face, ::GetSysColor(COLOR_3DSHADOW), face, red};
}
} // namespace

TEST(SysColorBitmap, reloading_before_any_id_was_set_does_nothing)
{
    Shown shown;
    shown.control.ReloadBitmap(-1);
    EXPECT_EQ(shown.control.GetBitmap(), nullptr);
}

TEST(SysColorBitmap, shows_the_bitmap_in_the_system_colours)
{
    Shown shown;
    shown.control.ReloadBitmap(IDB_GREYS);
    ASSERT_NE(shown.control.GetBitmap(), nullptr);
    EXPECT_EQ(shown.colors(), expectedColors());
}

TEST(SysColorBitmap, a_colour_change_reloads_the_last_id)
{
    Shown shown;
    shown.control.ReloadBitmap(IDB_KEYED);
    shown.control.ReloadBitmap(IDB_GREYS);
    const OtherColors other;
    shown.control.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(shown.colors(), (Colors{RGB(10, 20, 30), RGB(200, 100, 50), RGB(10, 20, 30), red}));
}

TEST(SysColorBitmap, minus_one_loads_the_last_id_again)
{
    Shown shown;
    shown.control.ReloadBitmap(IDB_GREYS);
    const OtherColors other;
    shown.control.ReloadBitmap(-1);
    EXPECT_EQ(shown.colors(), expectedColors());
}

TEST(SysColorBitmap, an_id_that_does_not_load_keeps_the_image_and_is_remembered)
{
    Shown shown;
    shown.control.ReloadBitmap(IDB_GREYS);
    HBITMAP before = shown.control.GetBitmap();
    shown.control.ReloadBitmap(IDP_MISSING);
    EXPECT_EQ(shown.control.GetBitmap(), before);
    shown.control.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(shown.control.GetBitmap(), before);
}

TEST(SysColorBitmap, without_a_window_the_id_is_remembered)
{
    PictureHost host;
    CKxSysColorBitmapStatic control;
    control.ReloadBitmap(IDB_GREYS);
    control.Create(L"", WS_CHILD | SS_BITMAP, CRect(0, 0, 20, 20), &host);
    EXPECT_EQ(control.GetBitmap(), nullptr);
    control.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_NE(control.GetBitmap(), nullptr);
}

TEST(SysColorBitmap, deletes_every_bitmap_that_it_loaded)
{
    PictureHost host;
    const int before = gdiObjectCount();
    for (const bool destroyedByParent : {false, true})
    {
        for (const DWORD style : {SS_BITMAP, SS_LEFT})
        {
            CKxSysColorBitmapStatic control;
            control.Create(L"", WS_CHILD | style, CRect(0, 0, 20, 20), &host);
            for (int i = 0; i < 1000; ++i)
                control.ReloadBitmap(i % 3 == 2 ? -1 : IDB_GREYS);
            if (destroyedByParent)
                ::DestroyWindow(control.m_hWnd);
        }
    }
    EXPECT_EQ(gdiObjectCount(), before);
}

TEST(SysColorBitmap, leaves_alone_what_the_host_put_in_its_place)
{
    CBitmap own;
    own.LoadBitmap(IDB_KEYED);
    {
        Shown shown;
        shown.control.ReloadBitmap(IDB_GREYS);
        ::DeleteObject(shown.control.SetBitmap(own));
    }
    EXPECT_EQ(sizeOf(own), CSize(3, 2));
}
