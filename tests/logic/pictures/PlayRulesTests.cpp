// The times that frames stand, and the part of the canvas that a window shows.
#include "images/PlayRules.h"

#include <gtest/gtest.h>

namespace
{
constexpr int farthest = 2147483647;
constexpr int leastPlace = -2147483647 - 1;

TEST(PlayRules, a_delay_of_less_than_five_hundredths_is_a_tenth_of_a_second)
{
    for (const std::uint32_t delay : {0U, 1U, 4U})
        EXPECT_EQ(PlayRules::WaitOf(delay), 100U);
}

TEST(PlayRules, other_delays_are_taken_as_they_are)
{
    EXPECT_EQ(PlayRules::WaitOf(5), 50U);
    EXPECT_EQ(PlayRules::WaitOf(6), 60U);
    EXPECT_EQ(PlayRules::WaitOf(65535), 655350U);
}

// Not the endless wait, 0xFFFFFFFF, but ten milliseconds less than its wrap.
TEST(PlayRules, a_frame_without_a_control_block_stands_for_49_days)
{
    EXPECT_EQ(PlayRules::WaitOf(0xFFFFFFFF), 0xFFFFFFF6U);
}

TEST(PlayRules, pixels_are_counted_without_overflow)
{
    EXPECT_EQ(PlayRules::PixelsOf(16384, 16384), PlayRules::MostPixels);
    EXPECT_EQ(PlayRules::PixelsOf(65535, 65535), 4294836225);
    EXPECT_EQ(PlayRules::PixelsOf(leastPlace, leastPlace), std::int64_t{1} << 62);
    EXPECT_EQ(PlayRules::PixelsOf(0, farthest), 0);
}

TEST(PlayRules, a_canvas_has_a_size_and_not_too_many_pixels)
{
    EXPECT_TRUE(PlayRules::IsCanvas(0, 0));
    EXPECT_TRUE(PlayRules::IsCanvas(16384, 16384));
    EXPECT_TRUE(PlayRules::IsCanvas(65535, 1));
    EXPECT_FALSE(PlayRules::IsCanvas(16384, 16385));
    EXPECT_FALSE(PlayRules::IsCanvas(-1, 1));
    EXPECT_FALSE(PlayRules::IsCanvas(1, -1));
    EXPECT_FALSE(PlayRules::IsCanvas(-1, -1));
    EXPECT_FALSE(PlayRules::IsCanvas(farthest, farthest));
}

struct PartCase
{
    const char* what;
    RECT paint;
    PlayRules::Part part; // to x, y; width, height; from x, y
};

TEST(PlayRules, the_part_is_cut_to_the_canvas)
{
    const SIZE canvas = {80, 60};
    const PartCase cases[] = {
        {"none", {0, 0, 0, 0}, {0, 0, 80, 60, 0, 0}},
        {"no width", {5, 5, 5, 50}, {0, 0, 80, 60, 0, 0}},
        {"negative width", {9, 5, 8, 50}, {0, 0, 80, 60, 0, 0}},
        {"widest below zero", {farthest, 0, leastPlace, 9}, {0, 0, 80, 60, 0, 0}},
        {"inside", {10, 20, 30, 50}, {0, 0, 20, 30, 10, 20}},
        {"all", {0, 0, 80, 60}, {0, 0, 80, 60, 0, 0}},
        {"one pixel", {79, 59, 80, 60}, {0, 0, 1, 1, 79, 59}},
        {"beyond right and bottom", {70, 50, 100, 100}, {0, 0, 10, 10, 70, 50}},
        {"before left and top", {-10, -20, 30, 40}, {10, 20, 30, 40, 0, 0}},
        {"no height", {10, 20, 30, 20}, {0, 0, 20, 0, 10, 0}},
        {"negative height", {10, 20, 30, 10}, {0, 0, 20, 0, 10, 0}},
        {"beside the canvas", {80, 0, 90, 60}, {0, 0, 0, 60, 0, 0}},
        {"above the canvas", {0, -9, 80, 0}, {0, 0, 80, 0, 0, 0}},
        {"everything there is", {-farthest, -farthest, farthest, farthest}, {farthest, farthest, 80, 60, 0, 0}},
        {"farther than a window reaches", {leastPlace, leastPlace, farthest, farthest}, {0, 0, 0, 0, 0, 0}},
    };
    for (const PartCase& each : cases)
    {
        const PlayRules::Part part = PlayRules::PartOf(each.paint, canvas);
        EXPECT_EQ(part.width, each.part.width) << each.what;
        EXPECT_EQ(part.height, each.part.height) << each.what;
        EXPECT_EQ(part.fromX, each.part.fromX) << each.what;
        EXPECT_EQ(part.fromY, each.part.fromY) << each.what;
        EXPECT_EQ(part.toX, each.part.toX) << each.what;
        EXPECT_EQ(part.toY, each.part.toY) << each.what;
    }
}
} // namespace
