// The controls that show a bitmap resource or a picture of their own.
#include "oxa/images/KxStaticPicture.h"
#include "oxa/images/KxStaticPictureEx.h"

#include <gtest/gtest.h>

#include <functional>

#include "PictureHost.h"
#include "support/LeakCounters.h"

namespace
{
class ShownPicture : public CKxStaticPictureEx
{
public:
    using CKxStaticPictureEx::CKxStaticPictureEx;
    CBitmap& bitmap() { return m_Bitmap; }
};

/// The control at 10, 20 with a client area of 100 by 50.
struct Stage
{
    Stage() { picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 70), &host); }

    Colors corners()
    {
        host.repaint();
        return {shownAt(picture, 0, 0), shownAt(picture, 99, 0), shownAt(picture, 0, 49), shownAt(picture, 99, 49)};
    }

    PictureHost host;
    ShownPicture picture;
};

const Colors quarterColors = {red, blue, white, yellow};
const Colors hostColors = {yellow, yellow, yellow, yellow};
} // namespace

TEST(StaticPicture, paints_its_resource_at_the_left_top_corner_and_nothing_else)
{
    PictureHost host;
    CKxStaticPicture picture(IDB_KEYED);
    picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 70), &host);
    host.repaint();
    EXPECT_EQ(shownAt(picture, 0, 0), red);
    EXPECT_EQ(shownAt(picture, 1, 0), green);
    EXPECT_EQ(shownAt(picture, 2, 0), nearlyGreen);
    EXPECT_EQ(shownAt(picture, 2, 1), white);
    EXPECT_EQ(shownAt(picture, 3, 0), yellow);
    EXPECT_EQ(shownAt(picture, 0, 2), yellow);
}

TEST(StaticPicture, without_an_id_or_with_a_missing_one_paints_nothing)
{
    PictureHost host;
    CKxStaticPicture picture;
    picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 70), &host);
    host.repaint();
    EXPECT_EQ(shownAt(picture, 0, 0), yellow);
    picture.m_nBitmapID = IDP_MISSING;
    host.repaint();
    EXPECT_EQ(shownAt(picture, 0, 0), yellow);
    picture.m_nBitmapID = IDB_KEYED;
    host.repaint();
    EXPECT_EQ(shownAt(picture, 0, 0), red);
}

TEST(StaticPictureEx, a_resource_is_stretched_to_the_client_area_and_painted_there)
{
    Stage stage;
    ASSERT_EQ(stage.picture.SetBitmapID(IDP_QUARTERS, L"BINARY"), 1);
    EXPECT_EQ(sizeOf(stage.picture.bitmap()), CSize(100, 50));
    EXPECT_EQ(stage.corners(), quarterColors);
    EXPECT_EQ(shownAt(stage.picture, 49, 24), red);
    EXPECT_EQ(shownAt(stage.picture, 50, 25), yellow);
    EXPECT_EQ(shownAt(stage.host, 9, 20), yellow);
}

TEST(StaticPictureEx, a_path_is_loaded_with_and_without_the_window_colour_behind)
{
    Stage stage;
    const PictureBytes bytes = resourceBytes(IDP_HALF);
    const TemporaryFile file(L"half.gif", &bytes);
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    ASSERT_EQ(stage.picture.SetBitmapPath(file.path), 1);
    EXPECT_EQ(sizeOf(stage.picture.bitmap()), CSize(100, 50));
    const COLORREF black = 0;
    EXPECT_EQ(stage.corners(), (Colors{red, black, red, black}));
    ASSERT_EQ(stage.picture.SetBitmapPathEx(file.path), 1);
    EXPECT_EQ(stage.corners(), (Colors{red, window, red, window}));
}

TEST(StaticPictureEx, memory_is_loaded_on_the_window_colour)
{
    Stage stage;
    PictureBytes bytes = resourceBytes(IDP_HALF);
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    ASSERT_EQ(stage.picture.SetPicture(bytes.data(), bytes.size()), 1);
    EXPECT_EQ(sizeOf(stage.picture.bitmap()), CSize(100, 50));
    EXPECT_EQ(stage.corners(), (Colors{red, window, red, window}));
}

TEST(StaticPictureEx, a_failed_load_leaves_no_bitmap_and_paints_nothing)
{
    Stage stage;
    PictureBytes broken = resourceBytes(IDP_BROKEN);
    const std::vector<std::function<int()>> failures = {
        [&] { return stage.picture.SetBitmapPath(L"C:\\nothing\\here.bmp"); },
        [&] { return stage.picture.SetBitmapPathEx(L"C:\\nothing\\here.bmp"); },
        [&] { return stage.picture.SetBitmapID(IDP_MISSING, L"BINARY"); },
        [&] { return stage.picture.SetPicture(broken.data(), broken.size()); },
        [&] { return stage.picture.SetPicture(nullptr, 0); },
    };
    for (const auto& fail : failures)
    {
        ASSERT_EQ(stage.picture.SetBitmapID(IDP_QUARTERS, L"BINARY"), 1);
        EXPECT_EQ(stage.corners(), quarterColors);
        EXPECT_EQ(fail(), 0);
        EXPECT_EQ(stage.picture.bitmap().GetSafeHandle(), nullptr);
        EXPECT_EQ(stage.corners(), hostColors);
    }
}

TEST(StaticPictureEx, without_a_window_nothing_can_be_loaded)
{
    PictureBytes bytes = resourceBytes(IDP_QUARTERS);
    const TemporaryFile file(L"quarters.bmp", &bytes);
    ShownPicture byId(IDP_QUARTERS, CString(L"BINARY"));
    EXPECT_EQ(byId.bitmap().GetSafeHandle(), nullptr);
    ShownPicture byPath{file.path};
    EXPECT_EQ(byPath.bitmap().GetSafeHandle(), nullptr);
    ShownPicture picture;
    EXPECT_EQ(picture.SetBitmapPathEx(file.path), 0);
    EXPECT_EQ(picture.SetPicture(bytes.data(), bytes.size()), 0);
}

TEST(StaticPictureEx, a_new_client_size_counts_from_the_next_load)
{
    Stage stage;
    ASSERT_EQ(stage.picture.SetBitmapID(IDP_QUARTERS, L"BINARY"), 1);
    stage.picture.SetWindowPos(nullptr, 0, 0, 40, 30, SWP_NOZORDER);
    EXPECT_EQ(sizeOf(stage.picture.bitmap()), CSize(100, 50));
    ASSERT_EQ(stage.picture.SetBitmapID(IDP_QUARTERS, L"BINARY"), 1);
    EXPECT_EQ(sizeOf(stage.picture.bitmap()), CSize(40, 30));
    stage.picture.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOZORDER);
    EXPECT_EQ(stage.picture.SetBitmapID(IDP_QUARTERS, L"BINARY"), 0);
}

TEST(StaticPictureEx, a_thousand_loads_and_paints_leave_no_handle)
{
    PictureBytes bytes = resourceBytes(IDP_HALF);
    const int before = gdiObjectCount();
    {
        Stage stage;
        for (int i = 0; i < 1000; ++i)
        {
            stage.picture.SetPicture(bytes.data(), i % 10 == 9 ? 20 : bytes.size());
            stage.picture.RedrawWindow();
        }
        EXPECT_EQ(stage.picture.SetPicture(bytes.data(), bytes.size()), 1);
    }
    EXPECT_EQ(gdiObjectCount(), before);
}
