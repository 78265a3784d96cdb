// Streams that were made to do harm: sizes, tables and counts that are larger than what is there.
#include <gtest/gtest.h>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

TEST(GifHostile, a_screen_of_65535_by_65535_with_thousands_of_frames_is_refused)
{
    GifBuilder builder(65535, 65535, primaries());
    for (int i = 0; i < 5000; ++i)
        builder.control(2, 0, 1).frame(at(i, i, 1, 1), 2, {1});
    CKxGifImage image;
    EXPECT_FALSE(decode(image, builder, 4999));
    EXPECT_EQ(image.GetNumFrames(), 5000);
    EXPECT_FALSE(image.IsValid());
}

TEST(GifHostile, frames_of_65535_by_65535_are_refused_at_the_first)
{
    GifBuilder builder(65535, 65535, primaries());
    for (int i = 0; i < 5000; ++i)
        builder.frame(at(0, 0, 65535, 65535), 2, {1});
    CKxGifImage image;
    EXPECT_FALSE(decode(image, builder));
    EXPECT_EQ(image.GetNumFrames(), 1);
    EXPECT_FALSE(image.IsValid());
}

TEST(GifHostile, the_largest_canvas_is_read_and_one_row_more_is_not)
{
    CKxGifImage image;
    EXPECT_TRUE(decode(image, GifBuilder(16384, 16384, recipe::greys(2)).frame(at(16383, 16383, 1, 1), 2, {1})));
    EXPECT_EQ(image.GetPixelIndex(16383, 0), 1);
    EXPECT_EQ(image.GetPixelIndex(16382, 0), 0);
    EXPECT_FALSE(decode(image, GifBuilder(16384, 16385, recipe::greys(2)).frame(at(0, 0, 1, 1), 2, {1})));
    EXPECT_FALSE(image.IsValid());
}

// Each frame claims the canvas, holds one pixel and clears the canvas behind it: drawn in full, these would be thousands
// of millions of pixels.
TEST(GifHostile, many_large_frames_with_hardly_a_pixel_cost_their_rows_only)
{
    for (const bool interlaced : {false, true})
    {
        GifBuilder builder(8190, 8190, primaries());
        for (int i = 0; i < 100; ++i)
        {
            recipe::Place place = at(i % 2, 0, 8188, 8190);
            place.interlaced = interlaced;
            builder.control(2, 0, 1).frameOfCodes(place, 2, {4, 2, 5});
        }
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder, 99));
        EXPECT_EQ(image.GetPixelIndex(1, 8189), 2);
        EXPECT_EQ(image.GetPixelIndex(2, 8189), 0);
        EXPECT_EQ(image.GetPixelIndex(8188, 0), 0);
        EXPECT_EQ(image.GetPixelIndex(0, 0), 1) << "the background";
        EXPECT_EQ(image.GetPixelIndex(8189, 0), 1);
    }
}

TEST(GifHostile, many_large_tiles_with_hardly_a_pixel_cost_their_rows_only)
{
    GifBuilder builder(4000, 4000);
    builder.frame({0, 0, 10, 10, false, primaries()}, 2, Bytes(100, 1));
    for (int i = 1; i <= 100; ++i)
    {
        const auto shade = static_cast<std::uint8_t>(i);
        builder.frameOfCodes({1, 0, 3998, 4000, false, {{shade, 0, 0}, {0, shade, 0}}}, 2, {4, 1, 5});
    }
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(image.GetBpp(), 24U);
    EXPECT_EQ(colourAt(image, 0, 0), 0xFF0000U);
    EXPECT_EQ(colourAt(image, 1, 0), 0x006400U);
    EXPECT_EQ(colourAt(image, 2, 0), 0x640000U);
    EXPECT_EQ(colourAt(image, 3999, 3999), 0U);
}

struct CutCase
{
    const char* what;
    GifBuilder builder;
    Rows rows;
};

TEST(GifHostile, frames_and_tables_larger_than_what_follows)
{
    GifBuilder noRaster(2, 1, primaries());
    noRaster.descriptor(at(0, 0, 2, 1));
    GifBuilder noBlocks(2, 1, primaries());
    noBlocks.descriptor(at(0, 0, 2, 1)).byte(2);
    GifBuilder halfBlock(2, 1, primaries());
    halfBlock.descriptor(at(0, 0, 2, 1)).byte(2).byte(200).byte(0x4C);
    const std::vector<CutCase> rows{
        {"no raster", noRaster, {"00"}},
        {"no blocks", noBlocks, {"00"}},
        {"half a block", halfBlock, {"00"}},
    };
    for (const CutCase& row : rows)
    {
        CKxGifImage image;
        EXPECT_TRUE(decode(image, row.builder)) << row.what;
        EXPECT_EQ(rowsOf(image), row.rows) << row.what;
        EXPECT_EQ(entryOf(image, 1), 0xFF0000U);
    }
    Bytes cutTable = GifBuilder(2, 1).descriptor({0, 0, 2, 1, false, recipe::greys(256)}).bytes();
    cutTable.resize(cutTable.size() - 600);
    CKxGifImage image;
    EXPECT_TRUE(decode(image, cutTable));
    EXPECT_EQ(image.GetBpp(), 8U);
    EXPECT_EQ(entryOf(image, 55), 0x373737U);
    EXPECT_EQ(entryOf(image, 56), 0U) << "the entries that did not come";
    Bytes cutGlobal = GifBuilder(2, 1, recipe::greys(256)).bytes();
    cutGlobal.resize(100);
    EXPECT_FALSE(decode(image, cutGlobal));
}

TEST(GifHostile, frames_without_width_or_height_are_counted_and_stepped_over)
{
    for (const recipe::Place& place : {at(0, 0, 0, 1), at(0, 0, 2, 0), at(2, 1, 0, 0)})
        for (const bool interlaced : {false, true})
        {
            recipe::Place empty = place;
            empty.interlaced = interlaced;
            GifBuilder builder(2, 1, primaries());
            builder.frame(at(0, 0, 2, 1), 2, {1, 2}).frame(empty, 2, {3, 3, 3}).byte(0);
            builder.frame(at(1, 0, 1, 1), 2, {3}).trailer();
            CKxGifImage image;
            ASSERT_TRUE(decode(image, builder, 2));
            EXPECT_EQ(image.GetNumFrames(), 3);
            EXPECT_EQ(rowsOf(image), Rows{"13"});
        }
}

TEST(GifHostile, a_screen_without_width_or_height_gives_no_picture)
{
    for (const recipe::Place& screen : {at(0, 0, 0, 0), at(0, 0, 0, 9), at(0, 0, 9, 0)})
    {
        CKxGifImage image;
        EXPECT_TRUE(decode(image, GifBuilder(screen.width, screen.height, primaries()).frame(screen, 2, {1, 2, 3})));
        EXPECT_FALSE(image.IsValid());
        EXPECT_EQ(image.GetPixelIndex(0, 0), 0);
        EXPECT_EQ(image.GetNumFrames(), 1);
    }
}

TEST(GifHostile, rows_of_32768_pixels_and_more_have_no_buffer)
{
    for (const int width : {32767, 32768, 65535})
    {
        GifBuilder builder(65535, 2, primaries());
        builder.frameOfCodes(at(0, 0, width, 1), 2, recipe::lzwCodes(2, Bytes(static_cast<std::size_t>(width), 1)));
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder));
        EXPECT_EQ(image.GetPixelIndex(0, 1), width == 32767 ? 1 : 0);
        EXPECT_EQ(image.GetPixelIndex(32766, 1), width == 32767 ? 1 : 0);
        EXPECT_EQ(image.GetPixelIndex(32767, 1), 0);
    }
}

TEST(GifHostile, a_background_index_beyond_the_palette_fills_with_its_low_bits)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(3, 1, primaries()).control(2, 0, 0xF9).frame(at(0, 0, 1, 1), 2, {3})));
    EXPECT_EQ(rowsOf(image), Rows{"399"});
    EXPECT_EQ(image.GetTransIndex(), 0xF9);
    EXPECT_EQ(colourAt(image, 2, 0), 0xFFFFFFU);
    ASSERT_TRUE(decode(image, GifBuilder(3, 1, recipe::greys(2)).control(2, 0, 0x80).frame(at(0, 0, 1, 1), 2, {0})));
    EXPECT_EQ(rowsOf(image), Rows{"011"});
}

TEST(GifHostile, an_interlaced_frame_of_one_row_and_endless_data_ends)
{
    recipe::Place place = at(0, 0, 2, 1);
    place.interlaced = true;
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(2, 1, primaries()).frame(place, 2, recipe::noise(50000, 4)).trailer()));
    const Bytes all = recipe::noise(50000, 4);
    EXPECT_EQ(image.GetPixelIndex(0, 0), all[49998]);
    EXPECT_EQ(image.GetPixelIndex(1, 0), all[49999]);
}

TEST(GifHostile, streams_of_random_bytes_agree_with_the_plain_form)
{
    GifJudge judge;
    for (std::uint32_t round = 0; round < 3000; ++round)
    {
        Bytes bytes = recipe::noise(30 + round % 300, 256, round + 1);
        const Bytes head = GifBuilder(20, 20, primaries()).descriptor(at(0, 0, 20, 20)).byte(2).bytes();
        bytes.insert(bytes.begin(), head.begin(), head.end());
        ASSERT_EQ(judge.decode(bytes, round % 3), "") << round;
    }
}
} // namespace
