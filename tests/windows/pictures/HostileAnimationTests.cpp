// Streams from strangers for CPictureEx: damaged, cut short, with sizes that lie; and calls that nobody should make.
#include "AnimationHost.h"

#include <climits>

#include "support/GifBlockSeeds.h"

namespace
{
using recipe::Bytes;

/// A movie with everything that a walk meets: each disposal, transparency, blocks between, a text, a frame at the edge.
Bytes fullMovie()
{
    Movie movie;
    movie.application("NETSCAPE2.0", {1, 0, 0}).comment("full");
    movie.timed(Movie::Red, 1, 5).half(Movie::Blue, 2, 5, {2, 1, 4, 3});
    movie.control(3, 5).comment("between");
    movie.image(Movie::Green, {6, 4, 4, 4});
    movie.raw({'!', 1, 12, 0, 0, 0, 0, 8, 0, 6, 0, 8, 8, 1, 0, 2, 'h', 'i', 0});
    movie.image(Movie::White, {0, 0, 1, 1}).trailer();
    return movie.bytes();
}

/// Loads, plays for a moment, paints and stops.
template <class Stand> void tryOut(Stand& stand, const Bytes& bytes)
{
    const BOOL loaded = stand.picture.Load(bytes);
    if (!loaded)
    {
        EXPECT_FALSE(stand.picture.IsPlaying());
    }
    const BOOL drawn = stand.picture.Draw();
    EXPECT_EQ(stand.picture.IsPlaying(), stand.picture.worker() != nullptr);
    if (drawn)
    {
        EXPECT_FALSE(stand.picture.IsPlaying());
    }
    stand.picture.UpdateWindow();
    pumpFor(0);
}

TEST(HostileAnimation, every_prefix_is_refused_or_played)
{
    PictureStand<> stand;
    const Bytes movie = fullMovie();
    for (size_t length = 0; length <= movie.size(); ++length)
    {
        tryOut(stand, Bytes(movie.begin(), movie.begin() + static_cast<ptrdiff_t>(length)));
        EXPECT_LE(stand.picture.GetFrameCount(), 4) << length;
    }
    EXPECT_GE(stand.picture.GetFrameCount(), 3);
}

TEST(HostileAnimation, every_flipped_bit_is_refused_or_played)
{
    PictureStand<> stand;
    Bytes bytes = fullMovie();
    int played = 0;
    for (size_t bit = 0; bit < bytes.size() * 8; ++bit)
    {
        bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ 1U << bit % 8);
        tryOut(stand, bytes);
        played += stand.picture.IsPlaying() ? 1 : 0;
        bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ 1U << bit % 8);
    }
    EXPECT_GT(played, 0);
}

TEST(HostileAnimation, every_seed_of_the_walk_and_of_the_decoder)
{
    PictureStand<> stand;
    for (const recipe::Seed& seed : recipe::blockSeeds())
        tryOut(stand, seed.bytes);
    for (const recipe::Seed& seed : recipe::allSeeds())
        tryOut(stand, seed.bytes);
}

TEST(HostileAnimation, bytes_put_together_at_random)
{
    PictureStand<> stand;
    const Bytes movie = fullMovie();
    std::uint32_t state = 12345;
    const auto random = [&state](size_t below)
    {
        state = state * 1664525U + 1013904223U;
        return static_cast<size_t>(state >> 8) % below;
    };
    for (int i = 0; i < 600; ++i)
    {
        Bytes bytes = movie;
        for (size_t changes = 1 + random(6); changes > 0; --changes)
        {
            const size_t at = 13 + random(bytes.size() - 13);
            switch (random(3))
            {
            case 0:
                bytes[at] = static_cast<unsigned char>(random(256));
                break;
            case 1:
                bytes.erase(bytes.begin() + static_cast<ptrdiff_t>(at));
                break;
            default:
                bytes.insert(bytes.begin() + static_cast<ptrdiff_t>(at), static_cast<unsigned char>(random(256)));
                break;
            }
        }
        tryOut(stand, bytes);
    }
}

// The platform's decoder has ended the program over such an image.
TEST(HostileAnimation, without_any_colour_table_the_first_colours_are_black_and_white)
{
    PictureStand<> stand;
    recipe::GifBuilder still(8, 6);
    still.frame({0, 0, 8, 6}, 2, Bytes(48, 1)).trailer();
    ASSERT_TRUE(stand.picture.Load(still));
    ASSERT_TRUE(stand.picture.Draw());
    EXPECT_EQ(stand.at(4, 4), white);

    recipe::GifBuilder movie(8, 6);
    movie.frame({0, 0, 8, 6}, 2, Bytes(48, 1)).control(1, 5).frame({0, 0, 8, 6}, 2, Bytes(48, 3)).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(4, 4, white));
}

struct SizeCase
{
    const char* what;
    int width;
    int height;
    BOOL loads;
};

TEST(HostileAnimation, screens_of_any_size)
{
    for (const SizeCase& each :
         {SizeCase{"none", 0, 0, TRUE}, SizeCase{"a line", 65535, 1, TRUE}, SizeCase{"no height", 100, 0, TRUE},
          SizeCase{"one row too many", 16384, 16385, FALSE}, SizeCase{"the greatest", 65535, 65535, FALSE}})
    {
        PictureStand<> stand;
        Movie movie(each.width, each.height);
        movie.timed(Movie::Red, 2, 5).timed(Movie::Blue, 3, 5).image(Movie::Green).trailer();
        EXPECT_EQ(stand.picture.Load(movie), each.loads) << each.what;
        EXPECT_EQ(CSize(stand.picture.GetSize()), CSize(each.width, each.height)) << each.what;
        stand.picture.Draw();
        EXPECT_EQ(stand.picture.IsPlaying(), each.loads) << each.what;
        stand.host.repaint();
        stand.picture.SetBkColor(grey);
    }
}

TEST(HostileAnimation, frames_that_claim_more_than_a_platform_can_hold_are_left_out)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, 5);
    for (const CSize& size : {CSize(65535, 65535), CSize(16384, 16385)})
        movie.control(3, 5).descriptor({0, 0, size.cx, size.cy}).byte(2).blocks({0x4C, 0x01});
    movie.image(Movie::Blue).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    EXPECT_EQ(stand.picture.GetFrameCount(), 2);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(3, 3, blue));
}

TEST(HostileAnimation, frames_without_pixels)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, 5);
    for (int disposal = 0; disposal < 4; ++disposal)
        for (const CSize& size : {CSize(0, 0), CSize(65535, 0), CSize(0, 65535)})
            movie.control(disposal, 5).descriptor({2, 2, size.cx, size.cy}).byte(2).blocks({0x2C});
    movie.image(Movie::Blue, {0, 0, 1, 1}).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(0, 0, blue));
    EXPECT_EQ(shownAt(stand.picture, 7, 5), red);
}

TEST(HostileAnimation, frames_far_outside_the_screen_draw_nothing)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, 5);
    for (int disposal = 0; disposal < 4; ++disposal)
        movie.timed(Movie::Blue, disposal, 5, {65535, 65535, 3, 2}).timed(Movie::Blue, disposal, 5, {0, 6, 8, 1});
    movie.image(Movie::Green, {7, 5, 3, 3}).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    EXPECT_EQ(stand.picture.GetFrameCount(), 10);
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(7, 5, green));
    EXPECT_EQ(shownAt(stand.picture, 7, 4), red);
    EXPECT_EQ(shownAt(stand.picture, 0, 5), red);
    EXPECT_EQ(shownAt(stand.picture, 3, 3), red);
}

TEST(HostileAnimation, thousands_of_frames)
{
    PictureStand<> stand;
    Movie movie;
    for (int i = 0; i < 3000; ++i)
        movie.timed(i % 2 == 0 ? Movie::Red : Movie::Blue, i % 4, 5, {i % 8, i % 6, 1, 1});
    ASSERT_TRUE(stand.picture.Load(movie));
    EXPECT_EQ(stand.picture.GetFrameCount(), 3000);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(0, 0, red));
}

TEST(HostileAnimation, paint_rectangles_of_any_numbers)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().image(Movie::Red).trailer()));
    ASSERT_TRUE(stand.picture.Draw());
    for (const LONG left : {LONG_MIN, -1L, 0L, 7L, LONG_MAX})
        for (const LONG top : {LONG_MIN, -1L, 0L, 5L, LONG_MAX})
            for (const LONG right : {LONG_MIN, -1L, 1L, 8L, LONG_MAX})
                for (const LONG bottom : {LONG_MIN, -1L, 1L, 6L, LONG_MAX})
                {
                    const RECT part = {left, top, right, bottom};
                    stand.picture.SetPaintRect(&part);
                    const COLORREF shown = stand.at(0, 0);
                    EXPECT_TRUE(shown == red || shown == yellow);
                }
}

TEST(HostileAnimation, a_canvas_of_any_size_can_be_asked_for)
{
    PictureStand<> stand;
    for (const CSize& size : {CSize(-1, -1), CSize(INT_MAX, INT_MAX), CSize(INT_MIN, INT_MIN), CSize(INT_MIN, 1)})
        EXPECT_FALSE(stand.picture.PrepareDC(size.cx, size.cy)) << size.cx;
    EXPECT_FALSE(stand.picture.Draw());
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Red, 3, 5).timed(Movie::Blue, 2, 5).trailer()));
    stand.picture.Draw();
    for (int i = 1; i < 30; ++i)
    {
        EXPECT_TRUE(stand.picture.PrepareDC(i, i)); // while it plays
        pumpFor(5);
    }
    EXPECT_TRUE(stand.picture.IsPlaying());
}

TEST(HostileAnimation, moved_hidden_sized_and_disabled_while_it_plays)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(fullMovie()));
    stand.picture.Draw();
    for (int i = 0; i < 60; ++i)
    {
        stand.picture.SetWindowPos(nullptr, i, i, i % 20, i % 15, SWP_NOZORDER);
        stand.picture.ShowWindow(i % 2 == 0 ? SW_HIDE : SW_SHOW);
        stand.picture.EnableWindow(i % 3 == 0);
        stand.picture.SetWindowText(L"text");
        stand.picture.SendMessage(WM_PRINTCLIENT, 0, 0);
        stand.picture.SendMessage(WM_DISPLAYCHANGE, 32, 0);
        stand.host.ShowWindow(i % 5 == 0 ? SW_HIDE : SW_SHOW);
        pumpFor(5);
    }
    EXPECT_TRUE(stand.picture.IsPlaying());
}

TEST(HostileAnimation, an_existing_static_control_is_subclassed_and_let_go)
{
    PictureHost host;
    const HWND window = ::CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_BITMAP, 10, 20, 4, 3,
                                        host.GetSafeHwnd(), nullptr, nullptr, nullptr);
    {
        OpenPicture picture;
        ASSERT_TRUE(picture.SubclassWindow(window));
        ASSERT_TRUE(picture.Load(fullMovie()));
        picture.Draw();
        EXPECT_TRUE(waitFor([&] { return shownAt(picture, 0, 5) == red; }));
        picture.UnsubclassWindow();
    }
    EXPECT_TRUE(::IsWindow(window));
    host.repaint();
}
} // namespace
