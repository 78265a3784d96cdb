// Frames over canvases of another depth, wide enough for whole groups of pixels; more colours of tiles than are kept.
#include <gtest/gtest.h>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"

namespace
{
using namespace giftest;
using recipe::GifBuilder;
using recipe::greys;

TEST(GifDepths, frames_of_every_depth_over_canvases_of_every_depth)
{
    GifJudge judge;
    for (const int below : {2, 16, 256})
        for (const int above : {2, 16, 256})
            for (const int transparent : {-1, 0, 1, 200})
                for (const int left : {0, 3, 8})
                {
                    recipe::Place place = at(left, 1, 85 - left, 4);
                    place.interlaced = left == 3;
                    place.table = greys(above);
                    GifBuilder builder(85, 6, greys(below));
                    builder.frame(at(0, 0, 85, 6), 8, recipe::noise(85 * 6, 256));
                    builder.control(0, 0, transparent).frame(place, 8, recipe::noise(340, 3, 5)).trailer();
                    judge.reset();
                    ASSERT_EQ(judge.decode(builder.bytes(), 1), "")
                        << below << ' ' << above << ' ' << transparent << ' ' << left;
                }
}

TEST(GifDepths, a_wide_transparent_frame_keeps_what_is_below)
{
    for (const int colours : {2, 16, 256})
    {
        recipe::Bytes below(40, 1);
        recipe::Bytes above(40, 1);
        above[3] = above[17] = above[39] = 0;
        GifBuilder builder(40, 1, greys(colours));
        builder.frame(at(0, 0, 40, 1), 8, below).control(0, 0, 1).frame(at(0, 0, 40, 1), 8, above).trailer();
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder, 1));
        // Index 1 of the second frame is transparent, and index 1 lies below it.
        std::string expected(40, '1');
        expected[3] = expected[17] = expected[39] = '0';
        EXPECT_EQ(rowsOf(image), Rows{expected}) << colours;
    }
}

TEST(GifDepths, more_than_255_colours_of_tiles_that_are_cut)
{
    GifBuilder builder(140, 301);
    for (int i = 0; i < 300; ++i)
    {
        const auto low = static_cast<std::uint8_t>(i % 256);
        const auto high = static_cast<std::uint8_t>(i / 256);
        builder.frameOfCodes({0, i, 130, 1, false, {{low, high, 7}, {255, 255, 255}}}, 2, {4, 1, 5});
    }
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    for (int i = 0; i < 300; ++i)
    {
        ASSERT_EQ(colourAt(image, 0, i), 0xFFFFFFU) << i;
        ASSERT_EQ(colourAt(image, 100, i), static_cast<unsigned>(i % 256 << 16 | i / 256 << 8 | 7)) << i;
        ASSERT_EQ(colourAt(image, 130, i), 0U) << i;
    }
}
} // namespace
