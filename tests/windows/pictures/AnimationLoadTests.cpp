// CPictureEx: what it loads, what it says about it, and how a still picture is shown.
#include "AnimationHost.h"

namespace
{
using recipe::Bytes;

CSize windowSize(const CWnd& window)
{
    CRect area;
    window.GetWindowRect(&area);
    return area.Size();
}

TEST(PictureExLoad, begins_empty)
{
    PictureStand<> stand;
    RECT paint = {1, 1, 1, 1};
    EXPECT_FALSE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.IsAnimatedGIF());
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_EQ(stand.picture.GetFrameCount(), 0);
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(0, 0));
    EXPECT_TRUE(stand.picture.GetPaintRect(&paint));
    EXPECT_EQ(CRect(paint), CRect(0, 0, 0, 0));
    EXPECT_FALSE(stand.picture.Draw());
    EXPECT_EQ(stand.at(1, 1), yellow); // nothing is painted
}

TEST(PictureExLoad, a_one_frame_gif_is_still_at_the_size_of_its_screen)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().image(Movie::Blue).trailer()));
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.IsAnimatedGIF());
    EXPECT_EQ(stand.picture.GetFrameCount(), 0);
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(8, 6));
    EXPECT_EQ(windowSize(stand.picture), CSize(8, 6));
    EXPECT_EQ(stand.at(0, 0), ::GetSysColor(COLOR_MENU)); // the canvas, before Draw
    EXPECT_TRUE(stand.picture.Draw());
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_TRUE(stand.shows(0, 0, blue));
    EXPECT_EQ(stand.at(7, 5), blue);
}

TEST(PictureExLoad, a_gif_of_two_frames_is_animated)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).trailer()));
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_TRUE(stand.picture.IsAnimatedGIF());
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(8, 6));
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_EQ(stand.at(3, 3), ::GetSysColor(COLOR_MENU));
}

TEST(PictureExLoad, any_version_behind_the_first_three_bytes_goes_the_gif_way)
{
    PictureStand<> stand;
    Bytes bytes = Movie().trailer().bytes();
    bytes[3] = '7';
    EXPECT_FALSE(stand.picture.Load(bytes)); // no image block
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(8, 6));
    bytes[2] = 'f';
    EXPECT_FALSE(stand.picture.Load(bytes));
    EXPECT_FALSE(stand.picture.IsGIF());
}

TEST(PictureExLoad, a_gif_without_an_image_fails)
{
    PictureStand<> stand;
    EXPECT_FALSE(stand.picture.Load(Movie().trailer()));
    EXPECT_FALSE(stand.picture.Load(Movie().control(0, 5).trailer()));
    EXPECT_FALSE(stand.picture.Load(Movie().comment("nothing to see").trailer()));
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.Draw());
    EXPECT_EQ(stand.at(0, 0), yellow);
}

TEST(PictureExLoad, another_picture_has_its_own_size_and_stands_upright)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(resourceBytes(IDP_QUARTERS)));
    EXPECT_FALSE(stand.picture.IsGIF());
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(2, 2));
    EXPECT_EQ(windowSize(stand.picture), CSize(2, 2));
    ASSERT_TRUE(stand.picture.Draw());
    EXPECT_EQ(stand.at(0, 0), red);
    EXPECT_EQ(shownAt(stand.picture, 1, 0), blue);
    EXPECT_EQ(shownAt(stand.picture, 0, 1), white);
    EXPECT_EQ(shownAt(stand.picture, 1, 1), yellow);
}

TEST(PictureExLoad, a_still_gif_is_stretched_to_its_screen)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie(40, 30).image(Movie::Green, {0, 0, 4, 3}).trailer()));
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(40, 30));
    ASSERT_TRUE(stand.picture.Draw());
    EXPECT_EQ(stand.at(0, 0), green);
    EXPECT_EQ(shownAt(stand.picture, 39, 29), green);
}

TEST(PictureExLoad, a_resource_is_found_by_name_and_type)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(MAKEINTRESOURCE(IDP_QUARTERS), L"PICTURE"));
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(2, 2));
    ASSERT_TRUE(stand.picture.Load(MAKEINTRESOURCE(IDP_HALF), L"BINARY"));
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.Load(MAKEINTRESOURCE(IDP_MISSING), L"BINARY"));
    EXPECT_FALSE(stand.picture.Load(MAKEINTRESOURCE(IDP_QUARTERS), L"NOTHING"));
    EXPECT_TRUE(stand.picture.IsGIF()); // the old picture stays
    EXPECT_TRUE(stand.picture.Draw());
    EXPECT_FALSE(stand.picture.Load(MAKEINTRESOURCE(IDP_BROKEN), L"BINARY"));
    EXPECT_FALSE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.Draw());
}

TEST(PictureExLoad, a_file_is_read_and_kept_from_writers_meanwhile)
{
    PictureStand<> stand;
    const Bytes bytes = Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).trailer().bytes();
    const TemporaryFile file(L"movie.gif", &bytes);
    ASSERT_TRUE(stand.picture.Load(static_cast<LPCTSTR>(file.path)));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);
    {
        const HANDLE writer = ::CreateFileW(file.path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                            OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(writer, INVALID_HANDLE_VALUE);
        EXPECT_FALSE(stand.picture.Load(static_cast<LPCTSTR>(file.path)));
        ::CloseHandle(writer);
    }
    EXPECT_FALSE(stand.picture.Load(L"Z:\\no such folder\\movie.gif"));
    EXPECT_FALSE(stand.picture.Load(L""));
    EXPECT_FALSE(stand.picture.Load(static_cast<LPCTSTR>(nullptr)));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2); // a file that cannot be read leaves the old picture
    EXPECT_TRUE(file.exists());
}

TEST(PictureExLoad, an_empty_file_and_an_empty_block_fail)
{
    PictureStand<> stand;
    const Bytes nothing;
    const TemporaryFile file(L"empty.gif", &nothing);
    EXPECT_FALSE(stand.picture.Load(static_cast<LPCTSTR>(file.path)));
    EXPECT_FALSE(stand.picture.Load(nothing));
    EXPECT_FALSE(stand.picture.Load(static_cast<HGLOBAL>(nullptr), 100));
    const Block block(Movie().image(Movie::Red).trailer().bytes());
    EXPECT_FALSE(stand.picture.Load(block.handle, 0));
    EXPECT_FALSE(stand.picture.IsGIF());
}

TEST(PictureExLoad, no_more_is_read_than_the_block_has)
{
    PictureStand<> stand;
    const Block block(Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).bytes());
    ASSERT_TRUE(stand.picture.Load(block.handle, 0xFFFFFFFF));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);
    ASSERT_TRUE(stand.picture.Load(block.handle, block.size - 1));
    EXPECT_EQ(stand.picture.GetFrameCount(), 0); // the second frame is cut, the first one alone is still
    EXPECT_EQ(::GlobalFlags(block.handle) & GMEM_LOCKCOUNT, 0U);
}

TEST(PictureExLoad, the_block_stays_the_callers)
{
    PictureStand<> stand;
    const Bytes bytes = Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).trailer().bytes();
    const Block block(bytes);
    ASSERT_TRUE(stand.picture.Load(block.handle, block.size));
    const auto* data = static_cast<const unsigned char*>(::GlobalLock(block.handle));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(Bytes(data, data + block.size), bytes);
    ::GlobalUnlock(block.handle);
}

TEST(PictureExLoad, a_frame_that_the_loader_refuses_is_left_out)
{
    PictureStand<> stand;
    const Bytes text = {'!', 1, 12, 0, 0, 0, 0, 8, 0, 6, 0, 8, 8, 1, 0, 2, 'h', 'i', 0};
    Movie movie;
    movie.timed(Movie::Red, 0, 9).raw(text);
    movie.image(Movie::Blue).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);

    Movie one; // of two frames, one is left: no animation, and no still picture either
    one.raw(text);
    one.image(Movie::Blue).trailer();
    EXPECT_TRUE(stand.picture.Load(one));
    EXPECT_TRUE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.IsAnimatedGIF());
    EXPECT_EQ(stand.picture.GetFrameCount(), 0);
    EXPECT_FALSE(stand.picture.Draw());
    EXPECT_FALSE(stand.picture.IsPlaying());

    Movie none;
    none.raw(text);
    none.raw(text).trailer();
    EXPECT_FALSE(stand.picture.Load(none));
    EXPECT_FALSE(stand.picture.Draw());
}

TEST(PictureExLoad, unload_returns_to_the_first_state_but_for_the_size)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).trailer()));
    const RECT part = {1, 2, 3, 4};
    EXPECT_TRUE(stand.picture.SetPaintRect(&part));
    stand.picture.Draw();
    stand.picture.UnLoad();
    RECT paint = {};
    EXPECT_TRUE(stand.picture.GetPaintRect(&paint));
    EXPECT_EQ(CRect(paint), CRect(0, 0, 0, 0));
    EXPECT_FALSE(stand.picture.IsGIF());
    EXPECT_FALSE(stand.picture.IsAnimatedGIF());
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_EQ(stand.picture.GetFrameCount(), 0);
    EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(8, 6));
    EXPECT_FALSE(stand.picture.Draw());
    EXPECT_EQ(stand.at(1, 1), yellow);
    stand.picture.UnLoad();
    EXPECT_TRUE(stand.picture.Load(Movie().image(Movie::Red).trailer()));
}

TEST(PictureExLoad, the_background_colour_waits_for_a_picture)
{
    PictureStand<> stand;
    stand.picture.SetBkColor(green);
    ASSERT_TRUE(stand.picture.Load(Movie().image(Movie::Red).trailer()));
    EXPECT_EQ(stand.at(4, 4), ::GetSysColor(COLOR_MENU));
    stand.picture.SetBkColor(green);
    EXPECT_EQ(shownAt(stand.picture, 4, 4), ::GetSysColor(COLOR_MENU)); // no repaint of its own
    EXPECT_EQ(stand.at(0, 0), green);
    EXPECT_EQ(stand.at(7, 5), green);
    EXPECT_TRUE(stand.picture.Draw());
    EXPECT_TRUE(stand.shows(4, 4, red));
}

TEST(PictureExLoad, a_paint_rectangle_is_shown_in_the_left_top_corner)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(resourceBytes(IDP_QUARTERS)));
    ASSERT_TRUE(stand.picture.Draw());
    stand.picture.SetWindowPos(nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
    const RECT rightTop = {1, 0, 2, 1};
    EXPECT_TRUE(stand.picture.SetPaintRect(&rightTop));
    RECT read = {};
    EXPECT_TRUE(stand.picture.GetPaintRect(&read));
    EXPECT_EQ(CRect(read), CRect(rightTop));
    EXPECT_EQ(stand.at(0, 0), blue);
    EXPECT_EQ(stand.at(1, 0), yellow); // the host
    const RECT below = {0, 1, 9, 9};
    stand.picture.SetPaintRect(&below);
    EXPECT_EQ(stand.at(0, 0), white);
    EXPECT_EQ(stand.at(1, 0), yellow);
    EXPECT_EQ(stand.at(2, 0), yellow);
    const RECT around = {-3, -2, 99, 99};
    stand.picture.SetPaintRect(&around);
    EXPECT_EQ(stand.at(0, 0), yellow);
    EXPECT_EQ(stand.at(3, 2), red);
    EXPECT_EQ(stand.at(4, 2), blue);
    const RECT none = {0, 0, 0, 5};
    stand.picture.SetPaintRect(&none);
    EXPECT_EQ(stand.at(0, 0), red);
    EXPECT_EQ(stand.at(0, 1), white);
    EXPECT_FALSE(stand.picture.SetPaintRect(nullptr));
    EXPECT_FALSE(stand.picture.GetPaintRect(nullptr));
}

TEST(PictureExLoad, a_picture_can_be_loaded_before_there_is_a_window)
{
    PictureHost host;
    OpenPicture picture;
    ASSERT_TRUE(picture.Load(Movie().image(Movie::Red).trailer()));
    EXPECT_TRUE(picture.Draw());
    picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 40, 50), &host);
    host.repaint();
    EXPECT_EQ(shownAt(picture, 7, 5), red);
    EXPECT_EQ(shownAt(picture, 8, 5), yellow);
}

TEST(PictureExLoad, the_walk_finds_nothing_outside_a_load)
{
    PictureStand<> stand;
    for (int round = 0; round < 2; ++round)
    {
        UINT length = 0;
        UINT delay = 0;
        UINT disposal = 9;
        SIZE size = {};
        SIZE offset = {};
        stand.picture.ResetDataPointer();
        EXPECT_EQ(stand.picture.GetNextBlock(), BLOCK_UNKNOWN);
        EXPECT_EQ(stand.picture.GetNextBlockLen(), -1);
        EXPECT_EQ(stand.picture.GetSubBlocksLen(13), 1);
        EXPECT_FALSE(stand.picture.SkipNextBlock());
        EXPECT_FALSE(stand.picture.SkipNextGraphicBlock());
        EXPECT_EQ(stand.picture.GetNextGraphicBlock(&length, &delay, &size, &offset, &disposal), nullptr);
        EXPECT_EQ(disposal, 0U);
        stand.picture.Load(Movie().timed(Movie::Red, 0, 9).image(Movie::Blue).trailer());
    }
}

TEST(PictureExLoad, a_frame_comes_as_a_fixed_block)
{
    PictureStand<> stand;
    const Movie start;
    const Bytes bytes = Movie(start).timed(Movie::Red, 3, 300, {1, 2, 3, 4}).trailer().bytes();
    stand.picture.m_walker = GifBlockWalker(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    UINT length = 0;
    UINT delay = 0;
    UINT disposal = 9;
    SIZE size = {};
    SIZE offset = {};
    const HGLOBAL block = stand.picture.GetNextGraphicBlock(&length, &delay, &size, &offset, &disposal);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(length, bytes.size());
    EXPECT_EQ(::GlobalSize(block), bytes.size());
    EXPECT_EQ(Bytes(static_cast<unsigned char*>(block), static_cast<unsigned char*>(block) + length), bytes);
    EXPECT_EQ(delay, 300U);
    EXPECT_EQ(disposal, 3U);
    EXPECT_EQ(CSize(size), CSize(3, 4));
    EXPECT_EQ(CSize(offset), CSize(1, 2));
    ::GlobalFree(block);
    stand.picture.m_walker = GifBlockWalker();
}
} // namespace
