// The scan between frames: what is looked at, what is skipped, where a frame ends.
#include <gtest/gtest.h>

#include "DecoderFixture.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

GifBuilder begun()
{
    return GifBuilder(2, 1, primaries());
}

recipe::Place whole()
{
    return at(0, 0, 2, 1);
}

struct ScanCase
{
    const char* what;
    Bytes between; // header and frame
    long frames;
};

TEST(GifScan, a_separator_counts_only_behind_a_null_byte_once_another_byte_was_met)
{
    const std::vector<ScanCase> rows{
        {"nothing", {}, 1},
        {"null bytes", {0, 0, 0}, 1},
        {"a letter and no null byte", {'x'}, 0},
        {"a letter and a null byte", {'x', 0}, 1},
        {"a trailer behind a letter", {'x', ';', 0}, 1},
        {"a trailer behind a letter and a null byte", {'x', 0, ';'}, 0},
        {"a separator behind a letter", {'x', ',', '!', 0}, 1},
    };
    for (const ScanCase& row : rows)
    {
        GifBuilder builder = begun();
        builder.raw(row.between).frame(whole(), 2, {1, 2}).trailer();
        CKxGifImage image;
        EXPECT_EQ(decode(image, builder), row.frames > 0) << row.what;
        EXPECT_EQ(image.GetNumFrames(), row.frames) << row.what;
    }
}

TEST(GifScan, what_follows_the_trailer_is_not_read)
{
    GifBuilder builder = begun();
    builder.frame(whole(), 2, {1, 2}).trailer().frame(whole(), 2, {3, 3});
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(image.GetNumFrames(), 1);
}

TEST(GifScan, a_frame_that_passes_the_screen_is_not_counted)
{
    const std::vector<recipe::Place> places{at(0, 0, 3, 1), at(1, 0, 2, 1),     at(2, 0, 1, 1),        at(0, 1, 1, 1),
                                            at(0, 0, 1, 2), at(65535, 0, 2, 1), at(65535, 65535, 1, 1)};
    for (const recipe::Place& place : places)
    {
        GifBuilder builder = begun();
        builder.frame(place, 2, {1, 1}).byte(0).frame(whole(), 2, {1, 2}).trailer();
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder));
        EXPECT_EQ(image.GetNumFrames(), 1) << place.left << ' ' << place.top << ' ' << place.width;
        EXPECT_EQ(rowsOf(image), Rows{"12"});
    }
}

TEST(GifScan, a_descriptor_that_is_cut_is_no_frame)
{
    const Bytes bytes = begun().frame(whole(), 2, {1, 2}).descriptor(whole()).bytes();
    for (std::size_t missing = 1; missing <= 9; ++missing)
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, Bytes(bytes.begin(), bytes.end() - static_cast<std::ptrdiff_t>(missing))));
        EXPECT_EQ(image.GetNumFrames(), 1);
    }
    CKxGifImage image;
    ASSERT_TRUE(decode(image, bytes));
    EXPECT_EQ(image.GetNumFrames(), 2) << "a whole one is, even without a raster";
}

TEST(GifScan, behind_a_damaged_frame_the_next_image_is_looked_for_from_its_start_on)
{
    GifBuilder builder = begun();
    builder.frameOfCodes(whole(), 2, {4, 1, 7, 5}).text("rubbish").byte(0).frame(whole(), 2, {3, 2}).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(image.GetNumFrames(), 2);
    EXPECT_EQ(rowsOf(image), Rows{"32"});
}

TEST(GifScan, a_damaged_frame_without_a_next_image_ends_the_scan)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, begun().frameOfCodes(whole(), 2, {4, 1, 7, 5}).text(",,,").trailer()));
    EXPECT_EQ(image.GetNumFrames(), 1);
    EXPECT_EQ(rowsOf(image), Rows{"11"});
}

TEST(GifScan, the_rest_of_a_raster_behind_its_end_code_is_scanned_as_loose_bytes)
{
    // One byte is stepped over behind the block with the end code: the length of the block that follows.
    GifBuilder builder = begun();
    builder.descriptor(whole()).byte(2).openBlocks(recipe::packed(2, {4, 1, 2, 5}));
    builder.blocks({'x', 0}).byte(0).frame(whole(), 2, {3, 2}).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(image.GetNumFrames(), 2);
    EXPECT_EQ(rowsOf(image), Rows{"32"});
}

TEST(GifScan, the_screen_alone_is_read_when_only_the_dimensions_are_asked_for)
{
    const Bytes header = GifBuilder(300, 200).bytes();
    ASSERT_EQ(header.size(), 13U);
    CKxGifImage image;
    image.SetEscape(-1);
    EXPECT_TRUE(decode(image, header));
    EXPECT_EQ(image.GetWidth(), 300U);
    EXPECT_EQ(image.GetHeight(), 200U);
    EXPECT_FALSE(image.IsValid());
}

TEST(GifScan, asking_for_dimensions_lets_go_of_the_block_that_has_others)
{
    CKxGifImage image(2, 2, 8);
    image.SetEscape(-1);
    EXPECT_TRUE(decode(image, GifBuilder(60000, 60000).bytes()));
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetPixelIndex(50000, 50000), 0);
    EXPECT_EQ(image.GetBits(50000), nullptr);
}

TEST(GifScan, dimensions_of_a_cut_header_are_zero_where_it_is_cut)
{
    const Bytes header = GifBuilder(0x1234, 0x5678).bytes();
    CKxGifImage image;
    image.SetEscape(-1);
    EXPECT_TRUE(decode(image, Bytes(header.begin(), header.begin() + 9)));
    EXPECT_EQ(image.GetWidth(), 0x1234U);
    EXPECT_EQ(image.GetHeight(), 0x78U);
    EXPECT_TRUE(decode(image, Bytes(header.begin(), header.begin() + 4)));
    EXPECT_EQ(image.GetWidth(), 0U);
    EXPECT_FALSE(decode(image, Bytes(header.begin(), header.begin() + 3)));
}
} // namespace
