// True-colour pictures out of tiles: a stream without global table whose first frame is smaller than the screen both ways.
#include <gtest/gtest.h>

#include "DecoderFixture.h"

namespace
{
using namespace giftest;
using recipe::GifBuilder;
using recipe::Rgb;

recipe::Place tile(int left, int top, int width, int height, const std::vector<Rgb>& table)
{
    return {left, top, width, height, false, table};
}

const std::vector<Rgb> warm{{0, 0, 0}, {200, 10, 1}, {201, 20, 2}, {202, 30, 3}};
const std::vector<Rgb> cold{{1, 1, 1}, {3, 10, 200}, {4, 20, 201}, {5, 30, 202}};

/// Four tiles of one pixel on a screen of two by two.
GifBuilder fourTiles(int transparent = -1)
{
    GifBuilder builder(2, 2);
    builder.frame(tile(0, 0, 1, 1, warm), 2, {1}).frame(tile(1, 0, 1, 1, warm), 2, {2});
    builder.frame(tile(0, 1, 1, 1, cold), 2, {3}).control(0, 25, transparent);
    return builder.frame(tile(1, 1, 1, 1, cold), 2, {1}).trailer();
}

TEST(GifMosaic, tiles_make_one_picture_of_24_bits)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, fourTiles()));
    EXPECT_EQ(image.GetBpp(), 24U);
    EXPECT_EQ(image.GetNumColors(), 0U);
    EXPECT_EQ(colourAt(image, 0, 0), 0xC80A01U);
    EXPECT_EQ(colourAt(image, 1, 0), 0xC91402U);
    EXPECT_EQ(colourAt(image, 0, 1), 0x051ECAU);
    EXPECT_EQ(colourAt(image, 1, 1), 0x030AC8U);
}

TEST(GifMosaic, all_frames_are_read_whatever_was_asked_for)
{
    for (const long frame : {0L, 2L})
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, fourTiles(), frame));
        EXPECT_EQ(image.GetNumFrames(), 4);
        EXPECT_EQ(image.GetFrame(), 3);
        EXPECT_EQ(image.GetFrameDelay(), 25U);
        EXPECT_EQ(colourAt(image, 1, 1), 0x030AC8U);
    }
    CKxGifImage image;
    EXPECT_FALSE(decode(image, fourTiles(), 4));
}

TEST(GifMosaic, the_last_control_block_makes_the_picture_transparent)
{
    OpenGifImage opaque;
    ASSERT_TRUE(decode(opaque, fourTiles()));
    EXPECT_FALSE(opaque.IsTransparent());
    EXPECT_EQ(opaque.GetTransIndex(), -1);
    CKxGifImage image;
    ASSERT_TRUE(decode(image, fourTiles(2)));
    EXPECT_EQ(image.GetTransIndex(), 0);
    const RGBQUAD colour = image.GetTransColor();
    EXPECT_EQ(colour.rgbRed, 4);
    EXPECT_EQ(colour.rgbGreen, 20);
    EXPECT_EQ(colour.rgbBlue, 201);
}

TEST(GifMosaic, transparency_plays_no_part_in_drawing_the_tiles)
{
    GifBuilder builder(3, 2);
    builder.control(0, 0, 1).frame(tile(0, 0, 1, 1, warm), 2, {1}).frame(tile(1, 0, 1, 1, warm), 2, {1}).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(colourAt(image, 0, 0), 0xC80A01U);
    EXPECT_EQ(colourAt(image, 1, 0), 0xC80A01U);
    EXPECT_EQ(colourAt(image, 2, 1), 0U) << "where no tile is";
}

struct ShapeCase
{
    const char* what;
    int width;
    int height;
    std::vector<recipe::Place> tiles;
    bool globalTable;
    unsigned depth;
};

TEST(GifMosaic, other_shapes_are_pictures_with_a_palette)
{
    const std::vector<ShapeCase> rows{
        {"a global table", 2, 2, {tile(0, 0, 1, 1, warm), tile(1, 1, 1, 1, warm)}, true, 4},
        {"one frame only", 2, 2, {tile(0, 0, 1, 1, warm)}, false, 4},
        {"a mosaic one tile wide", 1, 2, {tile(0, 0, 1, 1, warm), tile(0, 1, 1, 1, warm)}, false, 4},
        {"a mosaic one tile high", 2, 1, {tile(0, 0, 1, 1, warm), tile(1, 0, 1, 1, warm)}, false, 4},
        {"a first frame of the screen", 2, 2, {tile(0, 0, 2, 2, warm), tile(1, 1, 1, 1, warm)}, false, 4},
        {"tiles", 2, 2, {tile(0, 0, 1, 1, warm), tile(1, 1, 1, 1, warm)}, false, 24},
    };
    for (const ShapeCase& row : rows)
    {
        GifBuilder builder(row.width, row.height, row.globalTable ? primaries() : std::vector<Rgb>{});
        for (const recipe::Place& place : row.tiles)
            builder.frame(place, 2, recipe::Bytes(static_cast<std::size_t>(place.width * place.height), 1));
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder)) << row.what;
        EXPECT_EQ(image.GetBpp(), row.depth) << row.what;
    }
}

TEST(GifMosaic, a_tile_that_is_cut_has_the_colour_of_index_0)
{
    GifBuilder builder(3, 3);
    builder.frame(tile(0, 0, 2, 2, warm), 2, {1, 1, 1, 1});
    builder.frameOfCodes(tile(0, 0, 2, 2, cold), 2, {4, 1, 5}).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(colourAt(image, 0, 0), 0x030AC8U);
    EXPECT_EQ(colourAt(image, 1, 0), 0x010101U);
    EXPECT_EQ(colourAt(image, 1, 1), 0x010101U);
    EXPECT_EQ(colourAt(image, 2, 2), 0U);
}
} // namespace
