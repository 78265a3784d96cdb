// CPictureEx: the frames of an animation in the window, one after the other, and what is left of each.
#include "AnimationHost.h"

namespace
{
using recipe::Place;

const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
const COLORREF menu = ::GetSysColor(COLOR_MENU);

constexpr int shortest = 5;    // a twentieth of a second
constexpr int longest = 65535; // eleven minutes
const Place corner = {6, 4, 2, 2};
const Place middle = {2, 1, 4, 3};

TEST(PictureExPlay, draw_answers_false_and_plays)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Red, 1, longest).image(Movie::Blue).trailer()));
    EXPECT_FALSE(stand.picture.Draw());
    EXPECT_TRUE(stand.picture.IsPlaying());
    EXPECT_TRUE(stand.shows(0, 0, red));
    EXPECT_EQ(shownAt(stand.picture, 7, 5), red);
    stand.picture.Stop();
    EXPECT_FALSE(stand.picture.IsPlaying());
    EXPECT_EQ(stand.at(3, 3), red); // the last frame stays
}

TEST(PictureExPlay, frames_follow_each_other_and_begin_anew)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie()
                                       .timed(Movie::Red, 1, shortest)
                                       .timed(Movie::Green, 1, shortest)
                                       .timed(Movie::Blue, 1, shortest)
                                       .trailer()));
    stand.picture.Draw();
    for (int round = 0; round < 3; ++round)
    {
        EXPECT_TRUE(stand.shows(4, 3, red));
        EXPECT_TRUE(stand.shows(4, 3, green));
        EXPECT_TRUE(stand.shows(4, 3, blue));
    }
}

TEST(PictureExPlay, a_loop_count_in_the_stream_is_ignored)
{
    PictureStand<> stand;
    Movie movie;
    movie.application("NETSCAPE2.0", {1, 1, 0});
    movie.timed(Movie::Red, 1, 0).timed(Movie::Blue, 1, 4).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    for (int round = 0; round < 4; ++round)
    {
        EXPECT_TRUE(stand.shows(0, 0, red));
        EXPECT_TRUE(stand.shows(0, 0, blue));
    }
    EXPECT_TRUE(stand.picture.IsPlaying());
}

TEST(PictureExPlay, a_frame_is_drawn_at_its_place_and_size)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Red, 1, shortest).image(Movie::Blue, middle).trailer()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(2, 1, blue));
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(shownAt(stand.picture, x, y), x >= 2 && x < 6 && y >= 1 && y < 4 ? blue : red) << x << ", " << y;
}

TEST(PictureExPlay, a_frame_without_a_control_block_stands_until_stop)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie().image(Movie::Red).image(Movie::Blue).trailer()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, red));
    pumpFor(400); // four times what a frame with a short delay would stand
    EXPECT_EQ(stand.at(0, 0), red);
    EXPECT_TRUE(stand.picture.IsPlaying());
    stand.picture.Stop();
    EXPECT_EQ(stand.picture.worker(), nullptr);
}

struct DisposalCase
{
    int disposal;
    COLORREF left; // where the frame was, when the next one stands
};

TEST(PictureExPlay, a_frame_is_disposed_of_before_the_next_one)
{
    for (const DisposalCase& each : {DisposalCase{0, green}, DisposalCase{1, green}, DisposalCase{2, face},
                                     DisposalCase{3, red}, DisposalCase{4, green}, DisposalCase{7, green}})
    {
        PictureStand<> stand;
        ASSERT_TRUE(stand.picture.Load(Movie()
                                           .timed(Movie::Red, 1, shortest)
                                           .timed(Movie::Green, each.disposal, shortest, middle)
                                           .image(Movie::Blue, corner)
                                           .trailer()));
        stand.picture.Draw();
        ASSERT_TRUE(stand.shows(7, 5, blue));
        EXPECT_EQ(shownAt(stand.picture, 2, 1), each.left) << each.disposal;
        EXPECT_EQ(shownAt(stand.picture, 5, 3), each.left) << each.disposal;
        EXPECT_EQ(shownAt(stand.picture, 1, 1), red) << each.disposal;
        EXPECT_EQ(shownAt(stand.picture, 6, 3), red) << each.disposal;
        EXPECT_EQ(shownAt(stand.picture, 5, 4), red) << each.disposal;
    }
}

TEST(PictureExPlay, disposal_fills_with_the_colour_that_was_set)
{
    PictureStand<> stand;
    ASSERT_TRUE(
        stand.picture.Load(Movie().timed(Movie::Green, 2, shortest, middle).image(Movie::Blue, corner).trailer()));
    stand.picture.SetBkColor(grey);
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(7, 5, blue));
    EXPECT_EQ(shownAt(stand.picture, 3, 2), grey);
    EXPECT_EQ(shownAt(stand.picture, 0, 0), grey);
}

TEST(PictureExPlay, a_restored_frame_at_the_edge_leaves_the_rest_alone)
{
    PictureStand<> stand;
    ASSERT_TRUE(stand.picture.Load(Movie()
                                       .timed(Movie::Red, 1, shortest)
                                       .timed(Movie::Green, 3, shortest, {5, 4, 9, 9})
                                       .image(Movie::Blue, {0, 0, 1, 1})
                                       .trailer()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, blue));
    EXPECT_EQ(shownAt(stand.picture, 5, 4), red);
    EXPECT_EQ(shownAt(stand.picture, 7, 5), red);
    EXPECT_EQ(shownAt(stand.picture, 4, 4), red);
}

// The first round stands on the blank canvas, the following ones on the background colour.
TEST(PictureExPlay, each_round_but_the_first_begins_on_the_background_colour)
{
    PictureStand<> stand;
    ASSERT_TRUE(
        stand.picture.Load(Movie().timed(Movie::Red, 1, 30, middle).timed(Movie::Blue, 1, shortest, corner).trailer()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(2, 1, red));
    EXPECT_EQ(shownAt(stand.picture, 0, 0), menu);
    EXPECT_EQ(shownAt(stand.picture, 7, 5), menu);
    ASSERT_TRUE(stand.shows(7, 5, blue));
    EXPECT_EQ(shownAt(stand.picture, 0, 0), menu);
    ASSERT_TRUE(stand.shows(7, 5, face));
    EXPECT_EQ(shownAt(stand.picture, 0, 0), face);
    EXPECT_EQ(shownAt(stand.picture, 2, 1), red);
}

TEST(PictureExPlay, transparent_pixels_let_the_canvas_through)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, shortest).half(Movie::Blue, 1, longest, middle).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(4, 1, blue));
    EXPECT_EQ(shownAt(stand.picture, 3, 1), red);
    EXPECT_EQ(shownAt(stand.picture, 5, 3), blue);
    EXPECT_EQ(shownAt(stand.picture, 6, 3), red);
}

TEST(PictureExPlay, goes_on_at_the_frame_where_it_stopped_after_disposing_of_it)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, shortest).half(Movie::Blue, 2, longest, middle).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(4, 1, blue));
    EXPECT_EQ(shownAt(stand.picture, 2, 1), red);
    stand.picture.Stop();
    EXPECT_EQ(stand.at(4, 1), blue);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(2, 1, face)); // red lay below the first time
    EXPECT_TRUE(stand.shows(4, 1, blue));
    EXPECT_EQ(stand.at(1, 1), red);
}

TEST(PictureExPlay, what_lay_below_is_kept_from_stop_to_draw)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, shortest).half(Movie::Blue, 3, longest, middle).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(4, 1, blue));
    stand.picture.Stop();
    stand.picture.SetBkColor(green);
    EXPECT_EQ(stand.at(2, 1), green);
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(4, 1, blue));
    EXPECT_EQ(shownAt(stand.picture, 2, 1), red);
    EXPECT_EQ(shownAt(stand.picture, 1, 1), green);
}

TEST(PictureExPlay, unload_forgets_the_place)
{
    PictureStand<> stand;
    Movie movie;
    movie.timed(Movie::Red, 1, shortest).timed(Movie::Blue, 1, longest).trailer();
    ASSERT_TRUE(stand.picture.Load(movie));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(0, 0, blue));
    stand.picture.UnLoad();
    ASSERT_TRUE(stand.picture.Load(Movie().timed(Movie::Green, 1, longest).timed(Movie::Blue, 1, longest).trailer()));
    stand.picture.Draw();
    EXPECT_TRUE(stand.shows(0, 0, green));
}

TEST(PictureExPlay, the_paint_rectangle_moves_over_a_playing_picture)
{
    PictureStand<> stand;
    ASSERT_TRUE(
        stand.picture.Load(Movie().timed(Movie::Red, 1, shortest).timed(Movie::Blue, 1, longest, middle).trailer()));
    stand.picture.Draw();
    ASSERT_TRUE(stand.shows(2, 1, blue));
    const RECT part = {5, 3, 8, 6};
    stand.picture.SetPaintRect(&part);
    EXPECT_EQ(stand.at(0, 0), blue);
    EXPECT_EQ(shownAt(stand.picture, 1, 0), red);
    EXPECT_EQ(shownAt(stand.picture, 0, 1), red);
    EXPECT_EQ(shownAt(stand.picture, 3, 0), yellow);
}
} // namespace
