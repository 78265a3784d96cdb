// What a decode gives: frames and their order, palettes, depths, disposal, transparency.
#include <gtest/gtest.h>

#include "DecoderFixture.h"

namespace
{
using namespace giftest;
using recipe::GifBuilder;
using recipe::greys;
using recipe::Rgb;

TEST(GifDecode, any_version_behind_the_four_letters_is_read)
{
    for (const char* version : {"7a", "9a", "xx", "\1\2"})
    {
        recipe::Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {1, 2}).trailer().bytes();
        bytes[4] = static_cast<std::uint8_t>(version[0]);
        bytes[5] = static_cast<std::uint8_t>(version[1]);
        CKxGifImage image;
        EXPECT_TRUE(decode(image, bytes)) << version;
        EXPECT_EQ(rowsOf(image), Rows{"12"});
    }
}

TEST(GifDecode, another_magic_is_refused_and_leaves_the_image)
{
    CKxGifImage image(3, 2, 8);
    recipe::Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {1, 2}).trailer().bytes();
    bytes[3] = '7';
    EXPECT_FALSE(decode(image, bytes));
    EXPECT_EQ(image.GetWidth(), 3U);
    EXPECT_FALSE(decode(image, recipe::Bytes{}));
    EXPECT_FALSE(decode(image, recipe::Bytes{'G', 'I', 'F'}));
    EXPECT_FALSE(image.Decode(static_cast<CKxMemFile*>(nullptr)));
    EXPECT_FALSE(image.Decode(nullptr, 100));
    EXPECT_TRUE(image.IsValid());
}

TEST(GifDecode, a_stream_without_frame_is_refused_even_with_a_good_header)
{
    CKxGifImage image;
    EXPECT_FALSE(decode(image, GifBuilder(4, 4, primaries()).trailer()));
    EXPECT_EQ(image.GetNumFrames(), 0);
    EXPECT_FALSE(image.IsValid());
    EXPECT_FALSE(decode(image, GifBuilder(4, 4, primaries()).comment("no picture")));
}

TEST(GifDecode, a_stream_without_trailer_is_read)
{
    CKxGifImage image;
    EXPECT_TRUE(decode(image, GifBuilder(2, 2, primaries()).frame(at(0, 0, 2, 2), 2, pixels("0123"))));
    EXPECT_EQ(rowsOf(image), (Rows{"01", "23"}));
}

TEST(GifDecode, a_byte_array_is_read_by_its_constructor_too)
{
    const recipe::Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1}).trailer().bytes();
    CByteArray array;
    array.SetSize(static_cast<INT_PTR>(bytes.size()));
    for (std::size_t i = 0; i < bytes.size(); ++i)
        array[static_cast<INT_PTR>(i)] = bytes[i];
    CKxGifImage constructed(array);
    EXPECT_EQ(rowsOf(constructed), Rows{"31"});
    CKxGifImage image;
    EXPECT_TRUE(image.Decode(array));
    EXPECT_EQ(rowsOf(image), Rows{"31"});
    CByteArray none;
    EXPECT_FALSE(image.Decode(none));
}

TEST(GifDecode, the_stream_is_read_from_its_position_and_left_behind_the_frame)
{
    recipe::Bytes bytes = GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1}).bytes();
    const auto size = static_cast<long>(bytes.size());
    bytes.insert(bytes.begin(), {9, 9, 9});
    bytes.insert(bytes.end(), {';', 7, 7});
    CKxMemFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
    file.Seek(3, 0);
    CKxGifImage image;
    EXPECT_TRUE(image.Decode(&file));
    EXPECT_EQ(file.Tell(), 3 + size);
}

struct DepthCase
{
    int colours;
    int size;
    unsigned depth;
};

TEST(GifDecode, the_depth_comes_from_the_size_of_the_table)
{
    for (const DepthCase& row : {DepthCase{2, 2, 1}, {4, 2, 4}, {8, 3, 4}, {16, 4, 4}, {32, 5, 8}, {256, 8, 8}})
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, GifBuilder(3, 1, greys(row.colours)).frame(at(0, 0, 3, 1), row.size, {1, 0, 1})));
        EXPECT_EQ(image.GetBpp(), row.depth);
        EXPECT_EQ(rowsOf(image), Rows{"101"});
        EXPECT_EQ(entryOf(image, static_cast<unsigned char>(row.colours - 1)), 0xFFFFFFU);
    }
}

TEST(GifDecode, without_any_table_the_palette_is_black_and_the_depth_that_of_the_packed_byte)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(2, 1, {}, 4).frame(at(0, 0, 2, 1), 5, {30, 1})));
    EXPECT_EQ(image.GetBpp(), 8U);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 30);
    EXPECT_EQ(entryOf(image, 30), 0U);
    EXPECT_EQ(entryOf(image, 1), 0U);
}

TEST(GifDecode, entries_that_the_stream_does_not_have_are_white_with_a_transparent_index_and_black_without)
{
    CKxGifImage opaque;
    ASSERT_TRUE(decode(opaque, GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1})));
    EXPECT_EQ(entryOf(opaque, 3), 0x0000FFU);
    EXPECT_EQ(entryOf(opaque, 4), 0U);
    EXPECT_EQ(entryOf(opaque, 15), 0U);
    CKxGifImage transparent;
    ASSERT_TRUE(decode(transparent, GifBuilder(2, 1, primaries()).control(0, 0, 2).frame(at(0, 0, 2, 1), 2, {3, 1})));
    EXPECT_EQ(entryOf(transparent, 3), 0x0000FFU);
    EXPECT_EQ(entryOf(transparent, 4), 0xFFFFFFU);
    EXPECT_EQ(entryOf(transparent, 15), 0xFFFFFFU);
    EXPECT_EQ(transparent.GetTransIndex(), 2);
}

GifBuilder twoFrames(int firstDisposal, int transparent)
{
    GifBuilder builder(4, 3, primaries());
    builder.control(firstDisposal, 5, 3).frame(at(0, 0, 4, 3), 2, pixels("111122221111"));
    builder.control(0, 9, transparent).frame(at(1, 1, 2, 2), 2, pixels("0230"));
    return builder.trailer();
}

TEST(GifDecode, frame_0_is_the_default_and_all_frames_are_counted)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, twoFrames(0, -1)));
    EXPECT_EQ(image.GetNumFrames(), 2);
    EXPECT_EQ(image.GetFrame(), 0);
    EXPECT_EQ(rowsOf(image), (Rows{"1111", "2222", "1111"}));
    EXPECT_EQ(image.GetFrameDelay(), 5U);
}

TEST(GifDecode, a_later_frame_stands_over_the_ones_before)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, twoFrames(0, -1), 1));
    // Index 3 is still the transparent one: the second control block does not set it.
    EXPECT_EQ(rowsOf(image), (Rows{"1111", "2022", "1101"}));
    EXPECT_EQ(image.GetFrameDelay(), 9U);
}

TEST(GifDecode, the_transparent_index_of_a_later_frame_shows_the_frame_below)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, twoFrames(0, 0), 1));
    EXPECT_EQ(rowsOf(image), (Rows{"1111", "2222", "1311"}));
    EXPECT_EQ(image.GetTransIndex(), 3) << "the value that was remembered when the first frame began";
}

struct DisposalCase
{
    int disposal;
    Rows rows;
};

TEST(GifDecode, disposal_2_leaves_the_background_value_and_the_others_leave_the_picture)
{
    const Rows kept{"1111", "2022", "1101"};
    const Rows cleared{"3333", "3023", "3303"};
    for (const DisposalCase& row : {DisposalCase{0, kept}, {1, kept}, {2, cleared}, {3, kept}, {4, kept}, {6, kept}})
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, twoFrames(row.disposal, -1), 1));
        EXPECT_EQ(rowsOf(image), row.rows) << row.disposal;
        EXPECT_EQ(image.GetDisposalMethod(), 0) << "of the last control block";
    }
}

TEST(GifDecode, what_no_frame_covers_has_the_index_of_the_control_block)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(4, 2, primaries()).control(0, 0, 2).frame(at(1, 0, 2, 1), 2, {1, 2})));
    EXPECT_EQ(rowsOf(image), (Rows{"2122", "2222"}));
    CKxGifImage without;
    ASSERT_TRUE(decode(without, GifBuilder(4, 2, primaries()).frame(at(1, 0, 2, 1), 2, {1, 2})));
    EXPECT_EQ(rowsOf(without), (Rows{"0120", "0000"})) << "all zero until a control block was read";
}

TEST(GifDecode, the_counting_pass_gives_the_first_frame_the_last_transparent_index)
{
    GifBuilder builder(3, 1, primaries());
    builder.frame(at(0, 0, 3, 1), 2, pixels("123")).control(0, 7, 2).frame(at(0, 0, 1, 1), 2, {3});
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(image.GetTransIndex(), 2);
    EXPECT_EQ(image.GetFrameDelay(), 7U);
    EXPECT_EQ(entryOf(image, 9), 0xFFFFFFU);
    EXPECT_EQ(rowsOf(image), Rows{"123"}) << "index 2 stands over a background of index 2";
}

TEST(GifDecode, a_local_table_stays_in_force_and_recolours_what_lies_below)
{
    const std::vector<Rgb> local{{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}};
    GifBuilder builder(2, 1, primaries());
    builder.frame(at(0, 0, 2, 1), 2, {1, 2});
    builder.frame({0, 0, 1, 1, false, local}, 2, {3});
    builder.frame(at(1, 0, 1, 1), 2, {0});
    for (const long frame : {1L, 2L})
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder, frame));
        EXPECT_EQ(entryOf(image, 3), 0x040404U);
        EXPECT_EQ(colourAt(image, 0, 0), 0x040404U);
        EXPECT_EQ(colourAt(image, 1, 0), frame == 1 ? 0x030303U : 0x010101U);
    }
}

TEST(GifDecode, the_depth_of_the_first_frame_stays_and_larger_indexes_are_masked)
{
    GifBuilder builder(3, 1, greys(2));
    builder.frame(at(0, 0, 3, 1), 2, {1, 0, 0});
    builder.frame({1, 0, 2, 1, false, greys(16)}, 4, {7, 8});
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(image.GetBpp(), 1U);
    EXPECT_EQ(rowsOf(image), Rows{"110"});
    EXPECT_EQ(entryOf(image, 1), 0x111111U) << "as many entries as both have";
}

TEST(GifDecode, a_frame_out_of_range_is_refused_and_leaves_what_was_counted_last)
{
    for (const long frame : {-1L, 2L, 2000000000L})
    {
        CKxGifImage image;
        EXPECT_FALSE(decode(image, twoFrames(0, -1), frame)) << frame;
        EXPECT_EQ(image.GetNumFrames(), 2);
        EXPECT_EQ(rowsOf(image), (Rows{"02", "30"}));
        EXPECT_EQ(entryOf(image, 1), 0U) << "the counting pass sets no palette";
    }
}

TEST(GifDecode, a_decode_replaces_the_image_and_can_be_repeated)
{
    CKxGifImage image(50, 40, 24);
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_TRUE(decode(image, twoFrames(2, 0), 1));
        EXPECT_EQ(rowsOf(image).size(), 3U);
        EXPECT_EQ(image.GetTransIndex(), 3);
        // The transparent index and the control block of the decode before are still there.
        ASSERT_TRUE(decode(image, GifBuilder(3, 1, primaries()).frame(at(0, 0, 3, 1), 2, {2, 3, 1})));
        EXPECT_EQ(rowsOf(image), Rows{"201"});
    }
}

TEST(GifDecode, copies_of_an_image_keep_their_pixels)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(2, 1, primaries()).frame(at(0, 0, 2, 1), 2, {3, 1})));
    CKxGifImage copy(image);
    ASSERT_TRUE(decode(image, GifBuilder(1, 1, primaries()).frame(at(0, 0, 1, 1), 2, {2})));
    EXPECT_EQ(rowsOf(copy), Rows{"31"});
    EXPECT_EQ(rowsOf(image), Rows{"2"});
    ASSERT_TRUE(decode(copy, GifBuilder(1, 1, primaries()).frame(at(0, 0, 1, 1), 2, {0})));
    EXPECT_EQ(rowsOf(image), Rows{"2"});
}

TEST(GifDecode, resolution_and_flags_of_the_image_stay_and_the_head_has_96_dots_per_inch)
{
    OpenGifImage image;
    image.SetXDPI(300);
    image.SetFlags(5, false);
    image.SetOffset(2, 3);
    ASSERT_TRUE(decode(image, GifBuilder(1, 1, primaries()).frame(at(0, 0, 1, 1), 2, {2})));
    EXPECT_EQ(image.GetXDPI(), 300);
    EXPECT_EQ(image.GetFlags(), 5U);
    EXPECT_EQ(image.m_Head.biXPelsPerMeter, 3780);
    EXPECT_TRUE(image.IsEnabled());
}

TEST(GifDecode, a_ghost_is_refused_and_its_block_stays)
{
    CKxGifImage owner(2, 2, 8);
    owner.SetPixelIndex(0, 0, 77);
    OpenGifImage ghost;
    ghost.Ghost(&owner);
    EXPECT_FALSE(decode(ghost, GifBuilder(2, 2, primaries()).frame(at(0, 0, 2, 2), 2, {1, 1, 1, 1})));
    EXPECT_EQ(owner.GetPixelIndex(0, 0), 77);
    EXPECT_EQ(ghost.GetPixelIndex(0, 0), 77);
}
} // namespace
