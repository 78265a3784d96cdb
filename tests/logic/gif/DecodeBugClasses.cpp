// The ways in which readers of GIF were broken elsewhere, one test each. What else is wrong with such streams is tested
// where it belongs; here they have to do no harm and to give what the plain form gives.
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

/// A frame of four colours that fills a screen of 6 by 4, of these codes.
GifBuilder ofCodes(const std::vector<int>& codes)
{
    GifBuilder builder(6, 4, primaries());
    return builder.frameOfCodes(at(0, 0, 6, 4), 2, codes).trailer();
}

void expectAgreement(const GifBuilder& builder, long frame = 0)
{
    GifJudge judge;
    EXPECT_EQ(judge.decode(builder.bytes(), frame), "");
}

TEST(GifBugClass, a_prefix_index_that_was_never_written)
{
    // 15 is far above the next free code; the entry that extends it is used, and its prefix is an entry that is not there.
    expectAgreement(ofCodes({4, 1, 2, 15, 3, 7, 8, 9, 5}));
    // The highest code of all, as soon as codes are 12 bits wide.
    std::vector<int> codes{256};
    for (int i = 0; i < 2000; ++i)
        codes.push_back(i % 256);
    codes.insert(codes.end(), {4095, 1, 2258, 2259, 257});
    GifBuilder builder(50, 50, recipe::greys(256));
    expectAgreement(builder.frameOfCodes(at(0, 0, 50, 50), 8, codes).trailer());
}

TEST(GifBugClass, a_stack_that_is_popped_empty)
{
    // Nothing was pushed when the first code is one that ends or clears, or when there is no row to pop to.
    for (const std::vector<int>& codes : {std::vector<int>{5}, {4, 5}, {4, 4, 5}, {6, 5}, {7, 5}, {4}, {}})
        expectAgreement(ofCodes(codes));
    GifBuilder noRow(6, 4, primaries());
    expectAgreement(noRow.frameOfCodes(at(0, 0, 0, 4), 2, {4, 1, 6, 7, 8, 5}).trailer());
}

TEST(GifBugClass, a_stack_deeper_than_4096)
{
    // Entry 7 extends code 7, and so itself: the walk from it never comes to a root.
    CKxGifImage image;
    const GifBuilder circle = ofCodes({4, 1, 7, 3, 1, 7, 2, 5});
    ASSERT_TRUE(decode(image, circle));
    EXPECT_EQ(rowsOf(image), (Rows{"000000", "000000", "000000", "000000"})) << "the row in part does not come";
    expectAgreement(circle);
}

TEST(GifBugClass, the_longest_string_that_a_table_can_hold)
{
    // Each entry extends the one before: with 258 codes below, the last string has 3,839 pixels.
    std::vector<int> codes{256, 7};
    for (int code = 258; code < 4096; ++code)
        codes.push_back(code);
    codes.push_back(257);
    GifBuilder builder(32000, 231, recipe::greys(256));
    builder.frameOfCodes(at(0, 0, 32000, 231), 8, codes).trailer();
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    const long pixels = 3839L * 3840 / 2; // 1 + 2 + ... + 3,839 = 230 rows and 10,880
    EXPECT_EQ(image.GetPixelIndex(pixels % 32000 - 1, 0), 7);
    EXPECT_EQ(image.GetPixelIndex(pixels % 32000, 0), 0);
    EXPECT_EQ(image.GetPixelIndex(31999, 1), 7);
}

TEST(GifBugClass, zero_width_or_height)
{
    for (const recipe::Place& place : {at(0, 0, 0, 0), at(0, 0, 0, 4), at(0, 0, 6, 0)})
        for (const bool interlaced : {false, true})
        {
            recipe::Place empty = place;
            empty.interlaced = interlaced;
            GifBuilder builder(6, 4, primaries());
            expectAgreement(builder.frame(empty, 2, {1, 2, 3}).byte(0).frame(at(0, 0, 6, 4), 2, Bytes(24, 1)), 1);
            GifBuilder screen(place.width, place.height, primaries());
            expectAgreement(screen.frame(empty, 2, {1, 2, 3}).trailer());
        }
}

TEST(GifBugClass, a_frame_wider_than_the_screen_or_far_outside)
{
    for (const recipe::Place& place : {at(0, 0, 7, 4), at(1, 0, 6, 4), at(0, 1, 6, 4), at(60000, 60000, 6, 4)})
    {
        GifBuilder builder(6, 4, primaries());
        builder.frame(place, 2, Bytes(24, 1)).byte(0).frame(at(0, 0, 6, 4), 2, Bytes(24, 2)).trailer();
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder));
        EXPECT_EQ(image.GetNumFrames(), 1);
        EXPECT_EQ(rowsOf(image), Rows(4, "222222"));
    }
}

TEST(GifBugClass, a_background_or_pixel_index_beyond_the_palette)
{
    CKxGifImage image;
    GifBuilder builder(3, 1, recipe::greys(2));
    builder.control(2, 0, 255).frame(at(0, 0, 2, 1), 8, {0xFE, 0xFF}).control(0, 0).frame(at(0, 0, 1, 1), 2, {1});
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(rowsOf(image), Rows{"111"});
    EXPECT_EQ(image.GetTransIndex(), 255);
    expectAgreement(builder, 0);
    expectAgreement(builder, 1);
}

TEST(GifBugClass, copies_that_share_a_block_survive_a_decode_that_fails)
{
    const Bytes good = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1}).trailer().bytes();
    const Bytes noFrame = GifBuilder(2, 1, primaries()).trailer().bytes();
    const Bytes tooLarge = GifBuilder(65535, 65535, primaries()).frame(at(0, 0, 1, 1), 2, {1}).bytes();
    for (const Bytes& bad : {noFrame, tooLarge, Bytes{'G', 'I', 'F'}})
    {
        auto first = std::make_unique<CKxGifImage>();
        ASSERT_TRUE(decode(*first, good));
        std::optional<CKxGifImage> second(*first);
        EXPECT_FALSE(decode(*first, bad));
        EXPECT_EQ(rowsOf(*second), Rows{"31"});
        first.reset();
        EXPECT_EQ(rowsOf(*second), Rows{"31"});
        CKxGifImage third(*second);
        EXPECT_FALSE(decode(third, bad));
        second.reset();
    }
}

TEST(GifBugClass, copies_of_a_stream_are_read_side_by_side)
{
    Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1}).trailer().bytes();
    CKxMemFile stream;
    stream.Open();
    stream.Write(bytes.data(), 1, bytes.size());
    stream.Seek(0, 0);
    CKxGifImage image;
    {
        CKxMemFile copy(stream);
        ASSERT_TRUE(image.Decode(&copy));
    }
    ASSERT_TRUE(image.Decode(&stream));
    EXPECT_EQ(rowsOf(image), Rows{"31"});
}

TEST(GifBugClass, a_control_block_shorter_than_its_size_byte)
{
    // The four bytes are taken whatever the size byte says; another size than four ends the scan.
    for (int size = 0; size < 8; ++size)
    {
        GifBuilder builder(2, 1, primaries());
        builder.frame(at(0, 0, 2, 1), 2, {1, 2}).text("!\xF9").byte(size);
        expectAgreement(builder, 0);
        expectAgreement(builder.byte(1).byte(9), 1);
    }
}

TEST(GifBugClass, the_product_of_the_sizes_does_not_wrap)
{
    // 32,768 by 32,768 pixels of 4 bits are 2 to the power of 32 bits: nothing in 32-bit arithmetic.
    for (const recipe::Place& screen : {at(0, 0, 32768, 32768), at(0, 0, 65534, 65534), at(0, 0, 65535, 65534)})
    {
        CKxGifImage image;
        EXPECT_FALSE(decode(image, GifBuilder(screen.width, screen.height, primaries()).frame(screen, 2, {1, 2})));
        EXPECT_FALSE(image.IsValid());
        EXPECT_EQ(image.GetBits(1), nullptr);
    }
}

TEST(GifBugClass, nothing_is_read_before_the_start_of_the_buffer)
{
    // A raster that ends at once hands back more than it took, and a damaged one is looked for from its start on.
    GifBuilder damaged(1, 1, primaries());
    damaged.frameOfCodes(at(0, 0, 1, 1), 2, {4, 1, 7, 5});
    expectAgreement(damaged);
    Bytes bytes = damaged.bytes();
    CKxMemFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    OpenGifImage image;
    EXPECT_EQ(image.seek_next_image(&file, -100), -1) << "no separator stands behind a null byte";
    file.Seek(-100, 1);
    EXPECT_EQ(file.Tell(), 0);
}

TEST(GifBugClass, thousands_of_frames_of_hardly_a_byte)
{
    GifBuilder builder(3, 2, primaries());
    for (int i = 0; i < 5000; ++i)
        builder.frameOfCodes(at(i % 3, i % 2, 1, 1), 2, {4, i % 4, 5});
    GifJudge judge;
    EXPECT_EQ(judge.decode(builder.bytes(), 4999), "");
    EXPECT_EQ(judge.image.GetNumFrames(), 5000);
    EXPECT_EQ(judge.decode(builder.bytes(), 5000), "") << "one behind the last";
}
} // namespace
