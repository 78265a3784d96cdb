// Rasters: rows and their order, codes, blocks; what damaged ones give.
#include <gtest/gtest.h>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

/// The rows of a single frame of four colours that fills the screen.
Rows rowsOfCodes(int width, int height, const std::vector<int>& codes)
{
    CKxGifImage image;
    EXPECT_TRUE(decode(image, GifBuilder(width, height, primaries()).frameOfCodes(at(0, 0, width, height), 2, codes)));
    return rowsOf(image);
}

struct InterlaceCase
{
    const char* stream; // one pixel a row, in the order of the stream
    const char* picture;
};

TEST(GifRaster, the_rows_of_an_interlaced_frame_come_in_four_passes)
{
    const std::vector<InterlaceCase> rows{
        {"1", "1"},
        {"12", "20"}, // meant: the second row goes where the first went, and nothing comes to the other
        {"123", "132"},
        {"1234", "2430"}, // meant: the same with the second and the fourth
        {"12345", "14352"},
        {"12345678", "15362748"},
        {"123456789", "164738592"},
    };
    for (const InterlaceCase& row : rows)
    {
        recipe::Place place = at(0, 0, 1, static_cast<int>(std::string(row.stream).size()));
        place.interlaced = true;
        CKxGifImage image;
        ASSERT_TRUE(decode(image, GifBuilder(1, place.height, recipe::greys(16)).frame(place, 4, pixels(row.stream))));
        std::string picture;
        for (const std::string& line : rowsOf(image))
            picture += line;
        EXPECT_EQ(picture, row.picture);
    }
}

TEST(GifRaster, interlaced_rows_beyond_the_frame_start_over_and_rows_that_do_not_come_are_0)
{
    recipe::Place place = at(0, 0, 1, 8);
    place.interlaced = true;
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(1, 8, recipe::greys(16)).frame(place, 4, pixels("123"))));
    EXPECT_EQ(rowsOf(image), (Rows{"1", "0", "3", "0", "2", "0", "0", "0"}));
    // Behind the four passes the rows come from the top on, and then, as the step has come to nothing, only to the top.
    ASSERT_TRUE(decode(image, GifBuilder(1, 8, recipe::greys(16)).frame(place, 4, pixels("12345678abc"))));
    EXPECT_EQ(rowsOf(image), (Rows{"a", "b", "c", "6", "2", "7", "4", "8"}));
    ASSERT_TRUE(decode(image, GifBuilder(1, 8, recipe::greys(16)).frame(place, 4, pixels("1234567812345678abc"))));
    EXPECT_EQ(rowsOf(image), (Rows{"c", "2", "3", "4", "5", "6", "7", "8"}));
}

TEST(GifRaster, pixels_that_do_not_come_are_0)
{
    EXPECT_EQ(rowsOfCodes(3, 3, {4, 1, 2, 3, 3, 5}), (Rows{"123", "300", "000"}));
    EXPECT_EQ(rowsOfCodes(3, 3, {4, 1, 2, 3, 3}), (Rows{"123", "300", "000"})) << "the terminator stands for it";
    EXPECT_EQ(rowsOfCodes(3, 1, {4, 5}), Rows{"000"});
    EXPECT_EQ(rowsOfCodes(3, 1, {5}), Rows{"000"});
    GifBuilder cut(3, 3, primaries());
    cut.descriptor(at(0, 0, 3, 3)).byte(2).openBlocks(recipe::packed(2, {4, 1, 2, 3, 3}));
    CKxGifImage image;
    ASSERT_TRUE(decode(image, cut));
    EXPECT_EQ(rowsOf(image), (Rows{"123", "000", "000"})) << "where the data ends a row in part does not come";
}

TEST(GifRaster, pixels_that_do_not_come_cover_what_lies_below_unless_0_is_transparent)
{
    for (const int transparent : {-1, 0, 1})
    {
        GifBuilder builder(3, 2, primaries());
        builder.frame(at(0, 0, 3, 2), 2, pixels("333333"));
        builder.control(0, 0, transparent).frameOfCodes(at(0, 0, 3, 2), 2, {4, 2, 5});
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder, 1));
        EXPECT_EQ(rowsOf(image), transparent == 0 ? (Rows{"233", "333"}) : (Rows{"200", "000"})) << transparent;
    }
}

TEST(GifRaster, rows_beyond_the_frame_end_it)
{
    EXPECT_EQ(rowsOfCodes(2, 2, recipe::lzwCodes(2, pixels("1223311223"))), (Rows{"12", "23"}));
}

struct CodesCase
{
    const char* what;
    std::vector<int> codes; // 4 is the clear code, 5 the end code, 6 the first free one
    const char* pixels;
};

TEST(GifRaster, what_sound_and_damaged_codes_give)
{
    const std::vector<CodesCase> rows{
        {"an entry right behind its making", {4, 1, 2, 6, 7, 5}, "121221"},
        {"an entry that is just being made", {4, 1, 6, 7, 8, 5}, "1111111111"},
        {"clear codes in a row", {4, 4, 4, 1, 4, 4, 2, 5}, "12"},
        {"a free code behind a clear code is 0", {4, 7, 1, 5}, "01"},
        {"no clear code: the earlier code is 0", {6, 1, 5}, "001"},
        {"no clear code: the entry of the first code begins with 0", {1, 6, 5}, "101"},
        {"a code above the next free one is taken for it", {4, 1, 7, 3, 5}, "1113"},
        {"and is what the next entry extends: nothing stands there", {4, 1, 2, 3, 15, 1, 9, 5}, "123331001"},
        {"entries from before a clear code are found", {4, 1, 2, 3, 4, 1, 7, 7, 5}, "123111231"},
        {"no code is read behind the end code", {4, 1, 5, 2, 2}, "1"},
    };
    for (const CodesCase& row : rows)
    {
        const std::string expected = row.pixels;
        EXPECT_EQ(rowsOfCodes(static_cast<int>(expected.size()), 1, row.codes), Rows{expected}) << row.what;
    }
}

TEST(GifRaster, a_prefix_chain_in_a_circle_stops_the_frame)
{
    // Entry 7 extends code 7. The row in part does not come.
    EXPECT_EQ(rowsOfCodes(4, 3, {4, 1, 7, 3, 1, 7, 2, 5}), (Rows{"1113", "0000", "0000"}));
}

TEST(GifRaster, entries_of_an_earlier_frame_are_found_in_the_upper_half_of_the_prefix_table)
{
    std::vector<int> rising{256, 1};
    for (int code = 258; code < 4096; ++code)
        rising.push_back(code); // each entry extends the one before
    rising.push_back(257);
    std::vector<int> damaged{256, 2};
    for (int code = 258; code <= 2300; ++code)
        damaged.push_back(code);
    damaged.insert(damaged.end(), {4000, 2302, 257});
    // Codes 2 to 2300 give strings of 1 to 2044, code 4000 one of 2045. Code 2302 is the walk from 4000 down: 2 and the
    // entries 258 to 2301 of this frame, 1,699 entries of the first frame whose suffixes are gone, and 2 once more.
    const long twos = 2044 * 2045 / 2 + 2045 + 2045 + 1;
    const long zeros = 1699;
    recipe::Place first = at(0, 0, 250, 1);
    first.interlaced = true; // without interlace a second row would end it
    GifBuilder builder(1000, 2100, recipe::greys(256));
    builder.frameOfCodes(first, 8, rising).frameOfCodes(at(0, 0, 1000, 2100), 8, damaged);
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    long found = 0;
    for (long y = 0; y < 2100; ++y)
        for (long x = 0; x < 1000; ++x)
            found += image.GetPixelIndex(x, y) == 2 ? 1 : 0;
    EXPECT_EQ(found, twos);
    const auto pixelAt = [&image](long i) { return int{image.GetPixelIndex(i % 1000, 2099 - i / 1000)}; };
    EXPECT_EQ(pixelAt(twos - 2), 2);
    EXPECT_EQ(pixelAt(twos - 1), 0);
    EXPECT_EQ(pixelAt(twos + zeros - 2), 0);
    EXPECT_EQ(pixelAt(twos + zeros - 1), 2);
    EXPECT_EQ(pixelAt(twos + zeros), 0) << "not reached";
}

TEST(GifRaster, a_terminator_inside_a_code_gives_the_first_byte_of_the_block_again)
{
    // 0x8C: clear code, 1, and the low two bits of a code whose high bit comes from the byte again.
    GifBuilder builder(2, 1, primaries());
    builder.descriptor(at(0, 0, 2, 1)).byte(2).blocks({0x8C});
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(rowsOf(image), Rows{"12"});
    // The byte behind the terminator is stepped over, here the separator of the next frame.
    builder.frame(at(0, 0, 2, 1), 2, {3, 3});
    ASSERT_TRUE(decode(image, builder));
    EXPECT_EQ(image.GetNumFrames(), 1);
}

TEST(GifRaster, a_raster_of_blocks_of_every_length_is_the_same)
{
    const Bytes indexes = recipe::noise(40 * 30, 4);
    CKxGifImage expected;
    ASSERT_TRUE(decode(expected, GifBuilder(40, 30, primaries()).frame(at(0, 0, 40, 30), 2, indexes)));
    for (std::size_t length = 1; length <= 255; ++length)
    {
        CKxGifImage image;
        ASSERT_TRUE(decode(image, GifBuilder(40, 30, primaries()).frame(at(0, 0, 40, 30), 2, indexes, length)));
        ASSERT_EQ(rowsOf(image), rowsOf(expected)) << length;
    }
}

struct CodeSizeCase
{
    int size;
    bool read;
};

TEST(GifRaster, a_code_size_outside_2_to_9_gives_a_frame_of_0)
{
    for (const CodeSizeCase& row :
         {CodeSizeCase{0, false}, {1, false}, {2, true}, {9, true}, {10, false}, {255, false}})
    {
        GifBuilder builder(2, 1, recipe::greys(256));
        builder.frame(at(0, 0, 2, 1), 8, {7, 7});
        if (row.read)
            builder.frame(at(0, 0, 2, 1), row.size, {1, 2});
        else
            builder.descriptor(at(0, 0, 2, 1)).byte(row.size).blocks({0x4C, 0x0A});
        CKxGifImage image;
        ASSERT_TRUE(decode(image, builder, 1)) << row.size;
        EXPECT_EQ(rowsOf(image), row.read ? Rows{"12"} : Rows{"00"}) << row.size;
    }
}

TEST(GifRaster, indexes_beyond_the_palette_are_masked)
{
    CKxGifImage image;
    ASSERT_TRUE(decode(image, GifBuilder(3, 1, primaries()).frame(at(0, 0, 3, 1), 8, {0x12, 0xFF, 0x01})));
    EXPECT_EQ(rowsOf(image), Rows{"2f1"});
    ASSERT_TRUE(decode(image, GifBuilder(3, 1, recipe::greys(2)).frame(at(0, 0, 3, 1), 2, {2, 3, 1})));
    EXPECT_EQ(rowsOf(image), Rows{"011"});
    ASSERT_TRUE(decode(image, GifBuilder(2, 1, recipe::greys(256)).frame(at(0, 0, 2, 1), 9, {7, 5})));
    EXPECT_EQ(rowsOf(image), Rows{"75"});
}

TEST(GifRaster, a_masked_index_can_be_the_transparent_one)
{
    GifBuilder builder(2, 1, primaries());
    builder.frame(at(0, 0, 2, 1), 2, {3, 3}).control(0, 0, 2).frame(at(0, 0, 2, 1), 8, {0x12, 0x11});
    CKxGifImage image;
    ASSERT_TRUE(decode(image, builder, 1));
    EXPECT_EQ(rowsOf(image), Rows{"31"});
}
} // namespace
