// Shapes that go far beside the picture, and lines and letters that are thicker than it, are refused.
#include <gtest/gtest.h>

#include "MetafileVerdict.h"

namespace
{
using recipe::EmfBuilder;
using recipe::MetafileBytes;
using recipe::WmfBuilder;
using Body = std::vector<unsigned char>;

// The recipe's pictures are of 100 by 100 pixels: straight shapes may go 64 times as far, round ones 16 times; lines and
// letters may be 200 pixels thick.
constexpr std::uint32_t minus = 0xFFFFFFFF; // times a number: its negative

Body numbers(std::initializer_list<std::uint32_t> values)
{
    return MetafileBytes().longs(values).bytes();
}

Body words(std::initializer_list<std::uint32_t> values)
{
    return MetafileBytes().words(values).bytes();
}

Body lineOf(std::uint32_t x, std::uint32_t y)
{
    return MetafileBytes().longs({0, 0, 9, 9, 1, x, y}).bytes();
}

TEST(EmfReach, straight_shapes_end_within_64_pictures)
{
    for (const std::uint32_t kind : {2U, 3U, 4U, 5U, 6U})
    {
        EXPECT_TRUE(isSound(EmfBuilder().record(kind, lineOf(6400, minus * 6400)).bytes())) << kind;
        EXPECT_FALSE(isSound(EmfBuilder().record(kind, lineOf(6401, 0)).bytes())) << kind;
        EXPECT_FALSE(isSound(EmfBuilder().record(kind, lineOf(0, minus * 6401)).bytes())) << kind;
        EXPECT_FALSE(isSound(EmfBuilder().record(kind, lineOf(0x80000000, 0)).bytes())) << kind;
    }
    EXPECT_TRUE(isSound(EmfBuilder().record(54, numbers({6400, 0})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(54, numbers({0, 6401})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(27, numbers({6401, 0})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(8, numbers({0, 0, 9, 9, 1, 1, 1, 6401, 0})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(91, numbers({0, 0, 9, 9, 1, 1, 1, 0x7FFF})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(86, numbers({0, 0, 9, 9, 1, 0x80000000})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(43, numbers({0, 0, 6401, 0})).bytes()));
}

TEST(EmfReach, bitmaps_are_stretched_over_no_more_than_64_pictures)
{
    const auto block = [](std::uint32_t width, std::uint32_t height) {
        return EmfBuilder().record(76, MetafileBytes().zeros(24).longs({width, height}).zeros(60).bytes()).bytes();
    };
    EXPECT_TRUE(isSound(block(6400, minus * 6400)));
    EXPECT_FALSE(isSound(block(6401, 0)));
    EXPECT_FALSE(isSound(block(0, 0x80000000)));
}

TEST(EmfReach, round_shapes_end_within_16_pictures)
{
    for (const std::uint32_t kind : {42U, 44U, 45U, 46U, 47U, 55U})
    {
        const auto box = [&](std::uint32_t left, std::uint32_t bottom) {
            return EmfBuilder().record(kind, MetafileBytes().longs({left, 0, 9, bottom, 0, 0, 0, 0}).bytes()).bytes();
        };
        EXPECT_TRUE(isSound(box(minus * 1600, 1600))) << kind;
        EXPECT_FALSE(isSound(box(minus * 1601, 0))) << kind;
        EXPECT_FALSE(isSound(box(0, 1601))) << kind;
    }
    EXPECT_TRUE(isSound(EmfBuilder().record(41, numbers({0, 0, 1600, 0, 0})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(41, numbers({0, 0, 1601, 0, 0})).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(41, numbers({0, 0, 10, 0, 0x7F000000})).bytes())); // so many turns
}

TEST(EmfReach, lines_and_letters_are_no_thicker_than_two_pictures)
{
    const auto pen = [](std::uint32_t width) {
        return EmfBuilder().record(38, numbers({1, 0, width, 0, 0})).record(37, numbers({1}));
    };
    const auto extended = [](std::uint32_t width) {
        return EmfBuilder().record(95, numbers({1, 0, 0, 0, 0, 0, width, 0, 0, 0, 0})).record(37, numbers({1}));
    };
    EXPECT_TRUE(isSound(pen(200).record(54, numbers({1, 1})).bytes()));
    EXPECT_FALSE(isSound(pen(201).record(54, numbers({1, 1})).bytes()));
    EXPECT_TRUE(isSound(extended(200).record(64, numbers({0, 0, 9, 9})).bytes()));
    EXPECT_FALSE(isSound(extended(201).record(64, numbers({0, 0, 9, 9})).bytes()));
    EXPECT_FALSE(isSound(extended(0x80000000).record(54, numbers({1, 1})).bytes()));
    EXPECT_TRUE(isSound(pen(201).bytes())); // nobody draws with it
    EXPECT_TRUE(isSound(pen(201).record(37, numbers({0x80000007})).record(39, numbers({1, 0, 0, 0})).bytes()));

    const Body text = numbers({0, 0, 9, 9, 1, 0, 0, 5, 5, 0, 76, 0, 0, 0, 0, 0, 0});
    const auto font = [](std::uint32_t height, std::uint32_t width)
    {
        const Body body = MetafileBytes().longs({2, height, width}).zeros(84).bytes();
        return EmfBuilder().record(82, body).record(37, numbers({2}));
    };
    EXPECT_TRUE(isSound(font(minus * 200, 0).record(84, text).bytes()));
    EXPECT_FALSE(isSound(font(minus * 201, 0).record(84, text).bytes()));
    EXPECT_FALSE(isSound(font(0x80000000, 0).record(84, text).bytes()));
    EXPECT_FALSE(isSound(font(12, 201).record(83, text).bytes()));
}

TEST(EmfReach, extents_and_transformations_count)
{
    const Body line = numbers({640, 0});
    const Body ownExtents = numbers({8});
    constexpr std::uint32_t one = 0x3F800000;
    constexpr std::uint32_t ten = 0x41200000;
    constexpr std::uint32_t eleven = 0x41300000;
    const auto stretched = [&](std::uint32_t window, std::uint32_t viewport) {
        return EmfBuilder()
            .record(17, ownExtents)
            .record(9, numbers({window, window}))
            .record(11, numbers({viewport, 1}));
    };
    EXPECT_TRUE(isSound(stretched(1, 10).record(54, line).bytes()));
    EXPECT_FALSE(isSound(stretched(1, 11).record(54, line).bytes()));
    EXPECT_FALSE(isSound(stretched(0, 1).record(54, line).bytes())); // no extent
    EXPECT_TRUE(isSound(stretched(10, 100).record(54, line).bytes()));
    // a window of a tenth, then a viewport of eleven tenths
    EXPECT_TRUE(isSound(stretched(1, 1).record(31, numbers({10, 1, 1, 1})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(stretched(1, 1).record(31, numbers({11, 1, 1, 1})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(stretched(1, 1).record(32, numbers({1, 11, 1, 1})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(stretched(1, 1).record(31, numbers({1, 0, 1, 1})).record(54, line).bytes()));
    // origins: 640 - (-5760) = 6400
    EXPECT_TRUE(isSound(EmfBuilder().record(10, numbers({minus * 5760, 0})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(10, numbers({minus * 5761, 0})).record(54, line).bytes()));
    EXPECT_TRUE(isSound(EmfBuilder().record(12, numbers({5760, 0})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(12, numbers({5761, 0})).record(54, line).bytes()));
    // world transformations
    EXPECT_TRUE(isSound(EmfBuilder().record(35, numbers({ten, 0, 0, one, 0, 0})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(35, numbers({eleven, 0, 0, one, 0, 0})).record(54, line).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(35, numbers({0, eleven, one, 0, 0, 0})).record(54, line).bytes()));
    for (const std::uint32_t mode : {2U, 3U, 4U})
        EXPECT_FALSE(
            isSound(EmfBuilder().record(36, numbers({eleven, 0, 0, one, 0, 0, mode})).record(54, line).bytes()));
    EXPECT_TRUE(
        isSound(EmfBuilder().record(36, numbers({eleven, 0, 0, one, 0, 0, 1})).record(54, line).bytes())); // identity
}

TEST(EmfReach, extents_of_another_mode_count_whether_the_player_keeps_or_forgets_them)
{
    const Body line = numbers({640, 0});
    const Body eleven = numbers({11, 11});
    const Body ownExtents = numbers({8});
    // kept, this window makes up for the viewport; forgotten, it does not
    EXPECT_FALSE(
        isSound(EmfBuilder().record(9, eleven).record(17, ownExtents).record(11, eleven).record(54, line).bytes()));
    EXPECT_FALSE(isSound(EmfBuilder().record(11, eleven).record(17, ownExtents).record(54, line).bytes()));
}

TEST(EmfReach, saved_states_bring_back_extents_and_pens)
{
    const Body line = numbers({640, 0});
    const EmfBuilder wide = EmfBuilder()
                                .record(33)
                                .record(35, numbers({0x41300000, 0, 0, 0x3F800000, 0, 0}))
                                .record(34, numbers({minus}))
                                .record(54, line);
    EXPECT_TRUE(isSound(wide.bytes()));
}

TEST(EmfReach, a_picture_is_no_larger_than_four_metres)
{
    Body file = EmfBuilder().bytes();
    recipe::putNumber(file, 32, 400000, 4);
    EXPECT_TRUE(isSound(file));
    recipe::putNumber(file, 32, 400001, 4);
    EXPECT_FALSE(isSound(file));
    recipe::putNumber(file, 24, 0x80000000, 4);
    EXPECT_FALSE(isSound(file));
}

// 100 of 96 in an inch are 2645.8 hundredths of a millimetre.
TEST(WmfReach, shapes_stay_near_a_picture_of_the_place_s_size)
{
    const Body farAway = words({0, 32000});
    EXPECT_TRUE(isSound(WmfBuilder().record(0x0213, farAway).bytes()));
    const Body window = words({100, 100});
    EXPECT_TRUE(isSound(WmfBuilder().record(0x020C, window).record(0x0213, words({0, 6400})).bytes()));
    EXPECT_FALSE(isSound(WmfBuilder().record(0x020C, window).record(0x0213, words({0, 6401})).bytes()));
    EXPECT_FALSE(isSound(WmfBuilder().record(0x020C, words({0, 0})).record(0x0213, words({0, 1})).bytes()));
    for (const std::uint32_t kind : {0x0324U, 0x0325U})
        EXPECT_FALSE(isSound(WmfBuilder().record(0x020C, window).record(kind, words({1, 0, 6401})).bytes()));
    EXPECT_FALSE(isSound(WmfBuilder().record(0x020C, window).record(0x0538, words({1, 1, 0, 6401})).bytes()));
    const auto round = [&](std::uint32_t right) {
        return WmfBuilder().record(0x020C, window).record(0x0418, words({0, right, 0, 0})).bytes();
    };
    EXPECT_TRUE(isSound(round(1600)));
    EXPECT_FALSE(isSound(round(1601)));
    EXPECT_FALSE(isSound(WmfBuilder().record(0x020C, window).record(0x061C, words({0, 0, 0, 1601, 0, 0})).bytes()));
    EXPECT_FALSE(
        isSound(WmfBuilder().record(0x020C, window).record(0x0817, words({0, 0, 0, 0, 0, 1601, 0, 0})).bytes()));
}

TEST(WmfReach, lines_and_letters_are_no_thicker_than_two_pictures)
{
    const Body first = words({0});
    const auto pen = [&](std::uint32_t width)
    {
        return WmfBuilder()
            .record(0x020C, words({100, 100}))
            .record(0x02FA, words({0, width, 0, 0, 0}))
            .record(0x012D, first)
            .record(0x0213, words({1, 1}))
            .bytes();
    };
    EXPECT_TRUE(isSound(pen(200)));
    EXPECT_FALSE(isSound(pen(201)));
    const auto font = [&](std::uint32_t height)
    {
        return WmfBuilder()
            .record(0x020C, words({100, 100}))
            .record(0x02FB, MetafileBytes().word(height).zeros(24).bytes())
            .record(0x012D, first)
            .record(0x0521, words({0, 1, 1}))
            .bytes();
    };
    EXPECT_TRUE(isSound(font(0xFF38))); // -200
    EXPECT_FALSE(isSound(font(0xFF37)));
    EXPECT_FALSE(isSound(font(0x8000)));
}

TEST(WmfReach, a_viewport_of_pixels_counts)
{
    const auto line = [](std::uint32_t viewport)
    {
        return WmfBuilder()
            .record(0x020C, words({100, 100}))
            .record(0x020E, words({viewport, viewport}))
            .record(0x0213, words({0, 6400}))
            .bytes();
    };
    EXPECT_TRUE(isSound(line(4096)));
    EXPECT_FALSE(isSound(line(4097)));
    // in a mode without extents of its own a window of 100 counts for nothing, also afterwards
    EXPECT_FALSE(isSound(WmfBuilder()
                             .record(0x0103, words({1}))
                             .record(0x020C, words({100, 100}))
                             .record(0x0103, words({8}))
                             .record(0x020E, words({30000, 30000}))
                             .record(0x0213, words({0, 30000}))
                             .bytes()));
}

TEST(WmfReach, a_place_has_a_size_and_no_more_than_four_metres)
{
    struct Row
    {
        const char* what;
        std::uint32_t right;
        std::uint32_t unitsPerInch;
        bool sound;
    };
    const Row rows[] = {{"an inch", 96, 96, true},
                        {"turned round", 0xFF9C, 96, true},
                        {"no width", 0, 96, false},
                        {"157 inches", 157, 1, true},
                        {"158 inches", 158, 1, false}};
    for (const Row& row : rows)
    {
        Body file = WmfBuilder().bytes();
        recipe::putNumber(file, 10, row.right, 2);
        recipe::putNumber(file, 14, row.unitsPerInch, 2);
        EXPECT_EQ(isSound(file), row.sound) << row.what;
    }
}
} // namespace
