// Stopping a decode, and how a stream is read that can be seen to be read.
#include <gtest/gtest.h>

#include <thread>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"
#include "support/WatchedFile.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

GifBuilder twoFrames()
{
    GifBuilder builder(2, 1, primaries());
    builder.frame(at(0, 0, 2, 1), 2, {1, 2}).frame(at(0, 0, 1, 1), 2, {3});
    return builder.trailer();
}

TEST(GifCancel, a_value_above_0_stops_before_the_first_frame_and_leaves_what_was_counted)
{
    CKxGifImage image;
    image.SetEscape(1);
    EXPECT_FALSE(decode(image, twoFrames()));
    EXPECT_EQ(image.GetNumFrames(), 2);
    EXPECT_EQ(rowsOf(image), Rows{"3"});
    EXPECT_EQ(image.GetEscape(), 1);
    image.SetEscape(0);
    EXPECT_TRUE(decode(image, twoFrames()));
    EXPECT_EQ(rowsOf(image), Rows{"12"});
}

TEST(GifCancel, a_value_below_minus_1_stops_behind_the_first_frame)
{
    CKxGifImage image;
    image.SetEscape(-2);
    EXPECT_FALSE(decode(image, twoFrames(), 1));
    EXPECT_EQ(rowsOf(image), Rows{"12"});
    EXPECT_EQ(entryOf(image, 1), 0xFF0000U);
}

TEST(GifCancel, a_stop_before_any_read_gives_what_the_plain_form_gives)
{
    for (const recipe::Seed& seed : recipe::allSeeds())
    {
        if (seed.bytes.size() > 700)
            continue;
        const int reads = [&seed]
        {
            Bytes bytes = seed.bytes;
            WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
            CKxGifImage image;
            image.SetFrame(1);
            image.Decode(&file);
            return file.reads;
        }();
        for (const long escape : {1L, -1L, -5L})
            for (int stopAt = 1; stopAt <= reads; ++stopAt)
            {
                GifJudge judge;
                Bytes bytes = seed.bytes;
                WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
                file.stopped = &judge.image;
                file.stopAt = stopAt;
                file.escape = escape;
                int plainReads = 0;
                judge.onPlainRead = [&]
                {
                    if (++plainReads == stopAt)
                        judge.plainImage.escape = static_cast<std::int32_t>(escape);
                };
                ASSERT_EQ(judge.decode(file, bytes.data(), bytes.size(), 1), "")
                    << seed.name << ", " << escape << " at read " << stopAt;
                ASSERT_EQ(file.reads, plainReads) << seed.name;
            }
    }
}

TEST(GifCancel, a_stop_in_a_later_frame_without_rows_leaves_no_pixels_and_the_sizes_of_the_picture)
{
    Bytes bytes =
        GifBuilder(2, 1, primaries()).frame(at(0, 0, 1, 1), 2, {1}).frame(at(0, 0, 1, 0), 2, {}).trailer().bytes();
    WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    CKxGifImage image;
    file.stopped = &image;
    file.stopAt = 15; // header, table; 3 for each frame and 1 for the trailer; 3 for each frame: the last raster
    image.SetFrame(1);
    EXPECT_FALSE(image.Decode(&file));
    EXPECT_EQ(file.reads, 15);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetWidth(), 2U);
    EXPECT_EQ(image.GetHeight(), 1U);
}

TEST(GifCancel, another_thread_may_stop_a_decode)
{
    Bytes bytes =
        GifBuilder(600, 400, recipe::greys(256)).frame(at(0, 0, 600, 400), 8, recipe::noise(240000, 256)).bytes();
    for (int round = 0; round < 20; ++round)
    {
        CKxGifImage image;
        std::thread stopper([&image] { image.SetEscape(1); });
        const bool read = image.Decode(bytes.data(), static_cast<unsigned long>(bytes.size()));
        stopper.join();
        EXPECT_EQ(image.GetWidth() == 600U, read || image.IsValid());
        EXPECT_EQ(image.GetNumFrames(), 1);
    }
}

TEST(GifInput, a_stream_of_a_derived_class_is_read_in_the_portions_of_two_passes)
{
    Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {1, 2}).trailer().bytes();
    WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    file.keepsSizes = true;
    CKxGifImage image;
    ASSERT_TRUE(image.Decode(&file));
    // Header and table; separator, descriptor, raster and trailer; separator, descriptor and raster again.
    EXPECT_EQ(file.sizes, (std::vector<size_t>{13, 12, 1, 9, 16383, 1, 1, 9, 16383}));
}

TEST(GifInput, a_long_raster_is_read_in_portions_of_16383_bytes)
{
    const Bytes indexes = recipe::noise(60000, 256);
    Bytes bytes = GifBuilder(300, 200, recipe::greys(256)).frame(at(0, 0, 300, 200), 8, indexes).trailer().bytes();
    WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    file.keepsSizes = true;
    CKxGifImage image;
    ASSERT_TRUE(image.Decode(&file));
    const std::size_t raster = bytes.size() - 13 - 768 - 10 - 1; // less header, table, descriptor and trailer
    const auto portions = static_cast<std::ptrdiff_t>((raster + 16382) / 16383);
    EXPECT_GE(portions, 4);
    EXPECT_EQ(std::count(file.sizes.begin(), file.sizes.end(), 16383), 2 * portions);
    CKxGifImage plain;
    ASSERT_TRUE(decode(plain, bytes));
    EXPECT_EQ(rowsOf(image), rowsOf(plain));
    for (std::size_t i = 0; i < indexes.size(); ++i)
        ASSERT_EQ(image.GetPixelIndex(static_cast<long>(i % 300), static_cast<long>(199 - i / 300)), indexes[i]) << i;
}

TEST(GifInput, every_seed_through_a_stream_of_a_derived_class)
{
    for (const recipe::Seed& seed : recipe::allSeeds())
        for (long frame = 0; frame < 4; ++frame)
        {
            GifJudge judge;
            Bytes bytes = seed.bytes;
            WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
            ASSERT_EQ(judge.decode(file, bytes.data(), bytes.size(), frame), "") << seed.name << ", frame " << frame;
        }
}
} // namespace
