// The codes of a raster, worked out by hand, and the sub-blocks that they fill.
#include "EncoderFixture.h"

#include <algorithm>
#include <numeric>

namespace
{
/// `count` pixels, each one above the one before.
std::vector<int> risingFrom(int first, int count)
{
    std::vector<int> values(static_cast<std::size_t>(count));
    std::iota(values.begin(), values.end(), first);
    return values;
}

void append(std::vector<int>& to, std::initializer_list<int> values)
{
    to.insert(to.end(), values);
}
} // namespace

TEST(EncodeRaster, one_bit_pictures_begin_with_codes_of_three_bits)
{
    EXPECT_EQ(codesOfRow(1, {1}), (std::vector<int>{4, 1, 5}));
    EXPECT_EQ(codesOfRow(1, {0, 1}), (std::vector<int>{4, 0, 1, 5}));
    CKxGifImage image;
    plain::drawIndexes(image, 2, 1, 1, {1, 1});
    EXPECT_EQ(GifStream(plain::encoded(image)).frames().at(0).data, (Bytes{0x4C, 0x0A})); // 4, 1, 1, 5
}

TEST(EncodeRaster, a_known_string_goes_out_as_one_code)
{
    // 1; 1 1 becomes code 6; then 6 with the next 1 becomes 7, behind which codes have four bits.
    EXPECT_EQ(codesOfRow(1, {1, 1, 1, 1}), (std::vector<int>{4, 1, 6, 1, 5}));
    CKxGifImage image;
    plain::drawIndexes(image, 4, 1, 1, {1, 1, 1, 1});
    EXPECT_EQ(GifStream(plain::encoded(image)).frames().at(0).data, (Bytes{0x8C, 0x53}));
    // Strings: 3 5 = 18, 5 3 = 19, 18 3 = 20.
    EXPECT_EQ(codesOfRow(4, {3, 5, 3, 5, 3, 5}), (std::vector<int>{16, 3, 5, 18, 18, 17}));
}

TEST(EncodeRaster, a_run_of_one_colour_takes_longer_and_longer_strings)
{
    // 1 + 2 + 3 + ... + 9 pixels: 45, and 258 is the string of two.
    EXPECT_EQ(codesOfRow(8, std::vector<int>(45, 9)),
              (std::vector<int>{256, 9, 258, 259, 260, 261, 262, 263, 264, 265, 257}));
    // Two more pixels are the string of two again.
    EXPECT_EQ(codesOfRow(8, std::vector<int>(47, 9)).at(10), 258);
    // A run that goes on behind the known part of it: 1, 2, ... 40 pixels, then 20 and another colour.
    std::vector<int> row(820 + 20, 9);
    row.push_back(8);
    const std::vector<int> codes = codesOfRow(8, row);
    ASSERT_EQ(codes.size(), 44U);
    EXPECT_EQ(codes.at(40), 258 + 38); // 40 pixels
    EXPECT_EQ(codes.at(41), 258 + 18); // 20 pixels
    EXPECT_EQ(codes.at(42), 8);
}

TEST(EncodeRaster, rows_leave_top_first_from_left_to_right)
{
    CKxGifImage image(2, 2, 8);
    image.SetPixelIndex(0, 1, 10); // row 1 is the top
    image.SetPixelIndex(1, 1, 20);
    image.SetPixelIndex(0, 0, 30);
    image.SetPixelIndex(1, 0, 40);
    EXPECT_EQ(codesOf(image), (std::vector<int>{256, 10, 20, 30, 40, 257}));
}

TEST(EncodeRaster, codes_widen_when_the_table_outgrows_them)
{
    // Every pixel makes a new pair. At the 255th pixel, code 512 is the next free one, and codes get ten bits behind it.
    std::vector<int> row;
    for (int low = 0; low < 16; ++low)
        for (int high = 128; high < 144; ++high)
            append(row, {low, high});
    row.resize(256);
    CKxGifImage image;
    plain::drawIndexes(image, 256, 1, 8, row);
    const GifBlock frame = GifStream(plain::encoded(image)).frames().at(0);
    std::vector<int> expected{256};
    expected.insert(expected.end(), row.begin(), row.end());
    expected.push_back(257);
    EXPECT_EQ(plain::codesOf(frame.data, 8), expected);
    // The clear code and 255 pixels of nine bits; the last pixel and the end code of ten.
    EXPECT_EQ(frame.data.size(), (256U * 9 + 2 * 10 + 7) / 8);
}

TEST(EncodeRaster, sub_blocks_are_254_bytes_long_but_the_last)
{
    CKxGifImage image;
    plain::drawRandom(image, 100, 100, 8, {256, 1}, 3);
    const GifBlock frame = GifStream(plain::encoded(image)).frames().at(0);
    ASSERT_GT(frame.subBlocks.size(), 10U);
    for (std::size_t i = 0; i + 1 < frame.subBlocks.size(); ++i)
        EXPECT_EQ(frame.subBlocks[i], 254U);
    EXPECT_LE(frame.subBlocks.back(), 254U);
}

TEST(EncodeRaster, a_raster_that_fills_its_last_sub_block_has_no_empty_one_behind_it)
{
    // Each pixel makes a new pair and so goes out by itself. Clear code, 223 pixels and end code are 225 codes of nine
    // bits: 253.1 bytes. With one pixel more it is 254.25.
    for (const int pixels : {223, 224})
    {
        CKxGifImage image;
        plain::drawIndexes(image, pixels, 1, 8, risingFrom(0, pixels));
        const GifBlock frame = GifStream(plain::encoded(image)).frames().at(0);
        if (pixels == 223)
            EXPECT_EQ(frame.subBlocks, (std::vector<std::size_t>{254}));
        else
            EXPECT_EQ(frame.subBlocks, (std::vector<std::size_t>{254, 1}));
    }
}

TEST(EncodeRaster, a_full_table_is_cleared_and_widths_begin_anew)
{
    CKxGifImage image;
    plain::drawRandom(image, 200, 100, 8, {256, 1}, 11);
    const std::vector<int> codes = codesOf(image);
    // The strings 258 to 4095 are 3,838; the code behind them finds the table full, and the clear code follows it.
    ASSERT_GT(codes.size(), 3841U);
    EXPECT_EQ(codes[0], 256);
    EXPECT_EQ(std::find(codes.begin() + 1, codes.end(), 256) - codes.begin(), 3840);
    EXPECT_LT(codes[3841], 256);
    EXPECT_EQ(codes.back(), 257);
}

namespace
{
/// Pairs that give code 272 to (114, 115) and then slot 0 of the hash table to that string with a 17, so that the string
/// 0 0 (key 0) goes to slot 5002.
std::vector<int> zeroPairOutOfItsSlot()
{
    std::vector<int> row = risingFrom(100, 16);
    append(row, {114, 115, 17, 0, 0});
    return row;
}
std::vector<int> codesOfZeroPair()
{
    std::vector<int> codes{256};
    for (const int pixel : risingFrom(100, 16))
        codes.push_back(pixel);
    append(codes, {272, 17, 0});
    return codes;
}
} // namespace

TEST(EncodeProbe, a_pair_of_zeros_outside_its_first_slot_is_found)
{
    // 5 156 takes slot 2501. Nothing else comes by slot 5002, twice 2501.
    std::vector<int> row = zeroPairOutOfItsSlot();
    append(row, {5, 156, 0, 0});
    std::vector<int> expected = codesOfZeroPair();
    append(expected, {0, 5, 156, 276, 257}); // 276 is 0 0
    EXPECT_EQ(codesOfRow(8, row), expected);
}

TEST(EncodeProbe, a_pair_of_zeros_is_lost_to_a_new_string_that_probes_its_slot)
{
    // 5 156 takes slot 2501; 21 157 finds that taken, and next probes slot 5002, whose value of 0 stops it.
    std::vector<int> row = zeroPairOutOfItsSlot();
    append(row, {5, 156, 21, 157, 0, 0});
    std::vector<int> expected = codesOfZeroPair();
    append(expected, {0, 5, 156, 21, 157, 0, 0, 257}); // 0 0 is not known any more
    EXPECT_EQ(codesOfRow(8, row), expected);
}

TEST(EncodeProbe, a_lost_pair_of_zeros_is_learnt_again)
{
    std::vector<int> row = zeroPairOutOfItsSlot();
    append(row, {5, 156, 21, 157, 0, 0, 0, 0, 0, 1, 0, 0});
    std::vector<int> expected = codesOfZeroPair();
    // Strings: 17 0 = 275, 0 0 = 276, 0 5 = 277, 5 156 = 278, 156 21 = 279, 21 157 = 280, 157 0 = 281, 0 0 = 282,
    // 282 0 = 283, 282 1 = 284 (three zeros would be 283, but only two are left), 1 0 = 285.
    append(expected, {0, 5, 156, 21, 157, 0, 282, 282, 1, 282, 257});
    EXPECT_EQ(codesOfRow(8, row), expected);
}
