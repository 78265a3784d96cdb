// The operations below Decode, as a derived class may call them: in any order, with any argument.
#include <gtest/gtest.h>

#include <cstring>

#include "DecoderFixture.h"
#include "support/GifSeeds.h"

namespace
{
using namespace giftest;
using recipe::Bytes;
using recipe::GifBuilder;

class Stream
{
public:
    explicit Stream(Bytes bytes)
        : m_bytes(std::move(bytes)), file(m_bytes.data(), static_cast<unsigned long>(m_bytes.size()))
    {
    }

private:
    Bytes m_bytes;

public:
    CKxMemFile file;
};

/// Size byte, blocks and terminator.
Bytes rasterOf(int size, const std::vector<int>& codes)
{
    const Bytes all = GifBuilder(1, 1).byte(size).blocks(recipe::packed(size, codes)).bytes();
    return Bytes(all.begin() + 13, all.end());
}

TEST(GifOperations, bytes_come_through_the_buffer_and_end_with_minus_1)
{
    Stream stream(Bytes{10, 20, 30});
    OpenGifImage image;
    EXPECT_EQ(image.get_byte(&stream.file), -1) << "nothing is fetched before a refill is asked for";
    image.m_input.readIndex = InputBuffer::ForceRefill;
    EXPECT_EQ(image.get_byte(&stream.file), 10);
    EXPECT_EQ(image.m_input.validCount, 3);
    EXPECT_EQ(image.m_input.readIndex, 1);
    EXPECT_EQ(image.m_input.bytes[3], 255);
    EXPECT_EQ(image.get_byte(&stream.file), 20);
    EXPECT_EQ(image.get_byte(&stream.file), 30);
    EXPECT_EQ(image.get_byte(&stream.file), -1);
    EXPECT_EQ(image.get_byte(&stream.file), -1);
    EXPECT_EQ(image.get_byte(nullptr), -1);
}

TEST(GifOperations, the_buffer_is_filled_again_behind_16383_bytes)
{
    Stream stream(recipe::noise(16383 + 5, 256));
    const Bytes all = recipe::noise(16383 + 5, 256);
    OpenGifImage image;
    image.m_input.readIndex = InputBuffer::ForceRefill;
    for (std::size_t i = 0; i < all.size(); ++i)
    {
        ASSERT_EQ(image.get_byte(&stream.file), all[i]) << i;
        EXPECT_EQ(image.m_input.validCount, i < 16383 ? 16383 : 5);
    }
    EXPECT_EQ(image.get_byte(&stream.file), -1);
}

TEST(GifOperations, the_state_of_a_minimum_code_size)
{
    for (short size = 2; size <= 9; ++size)
    {
        OpenGifImage image;
        EXPECT_EQ(image.init_exp(size), 0);
        EXPECT_EQ(image.m_lzwDecoder.codeWidth, size + 1);
        EXPECT_EQ(image.m_lzwDecoder.topSlot, 1 << (size + 1));
        EXPECT_EQ(image.m_lzwDecoder.clearCode, 1 << size);
        EXPECT_EQ(image.m_lzwDecoder.endCode, (1 << size) + 1);
        EXPECT_EQ(image.m_lzwDecoder.firstFreeCode, (1 << size) + 2);
        EXPECT_EQ(image.m_lzwDecoder.nextSlot, (1 << size) + 2);
        EXPECT_EQ(image.m_lzwDecoder.suffix[4095], 0);
        EXPECT_EQ(image.m_lzwDecoder.prefix[4095], 0);
    }
    OpenGifImage image;
    for (const int size : {-32768, -1, 0, 1, 10, 15, 32767})
        EXPECT_EQ(image.init_exp(static_cast<short>(size)), 0) << "nothing is done for another size";
    EXPECT_EQ(image.m_lzwDecoder.codeWidth, 0);
}

TEST(GifOperations, only_the_lower_half_of_the_prefix_table_is_cleared)
{
    OpenGifImage image;
    image.init_exp(8);
    image.m_lzwDecoder.prefix[2047] = 7;
    image.m_lzwDecoder.prefix[2048] = 7;
    image.init_exp(8);
    EXPECT_EQ(image.m_lzwDecoder.prefix[2047], 0);
    EXPECT_EQ(image.m_lzwDecoder.prefix[2048], 7);
}

TEST(GifOperations, codes_come_one_by_one_until_the_terminator)
{
    // Codes of 3 bits: 4, 1, 2, 3, 0, and the 1 bit that is left: no code.
    Stream stream(Bytes{2, 0x8C, 0x06, 0});
    OpenGifImage image;
    image.init_exp(2);
    image.m_input.readIndex = InputBuffer::ForceRefill;
    for (const int code : {4, 1, 2, 3, 0})
        EXPECT_EQ(image.get_next_code(&stream.file), code);
    // The bit that is left, and two bits of the first byte again.
    EXPECT_EQ(image.get_next_code(&stream.file), 0);
    EXPECT_EQ(image.get_next_code(&stream.file), 5) << "the end code";
    EXPECT_EQ(image.get_next_code(&stream.file), 5);
    EXPECT_EQ(image.get_next_code(nullptr), -1);
}

TEST(GifOperations, a_code_behind_the_end_of_the_data_is_negative)
{
    Stream stream(Bytes{3, 0x8C});
    OpenGifImage image;
    image.init_exp(2);
    image.m_input.readIndex = InputBuffer::ForceRefill;
    EXPECT_EQ(image.get_next_code(&stream.file), -1);
}

TEST(GifOperations, codes_of_an_image_that_was_never_set_up_do_no_harm)
{
    Stream stream(recipe::noise(300, 256));
    OpenGifImage image;
    image.m_input.readIndex = InputBuffer::ForceRefill;
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(image.get_next_code(&stream.file), 0);
}

struct ResultCase
{
    const char* what;
    Bytes raster;
    short width;
    int result;
    int badCodes;
};

TEST(GifOperations, what_a_raster_results_in)
{
    const std::vector<ResultCase> rows{
        {"whole", rasterOf(2, {4, 1, 2, 3, 1, 5}), 2, 0, 0},
        {"cut", Bytes{2, 9, 0x4C}, 2, 0, 0},
        {"nothing", Bytes{}, 2, -1, 0},
        {"code size 1", rasterOf(1, {0}), 2, -20, 0},
        {"code size 10", Bytes{10, 0}, 2, -20, 0},
        {"no row buffer", rasterOf(2, {4, 5}), -1, -10, 0},
        {"too many rows", rasterOf(2, {4, 1, 1, 1, 1, 1, 1, 1, 1, 5}), 2, -1, 0},
        {"a row in part too many", rasterOf(2, {4, 1, 1, 1, 1, 1, 1, 1, 5}), 2, -1, 0},
        {"two bad codes", rasterOf(2, {4, 1, 7, 1, 15, 5}), 2, 0, 2},
    };
    for (const ResultCase& row : rows)
    {
        Stream stream(row.raster);
        OpenGifImage image;
        image.Create(2, 3, 4);
        CKxGifImageIterator iterator(&image);
        iterator.Upset();
        image.m_input.readIndex = InputBuffer::ForceRefill;
        image.m_interlace = {0, 0, 8, 3, 0};
        int badCodes = 99;
        EXPECT_EQ(image.decoder(&stream.file, &iterator, row.width, badCodes), row.result) << row.what;
        EXPECT_EQ(badCodes, row.badCodes) << row.what;
    }
}

TEST(GifOperations, a_raster_without_a_place_to_go)
{
    const Bytes raster = rasterOf(2, {4, 1, 2, 3, 1, 2, 3, 5});
    for (const int interlaced : {0, 0x40})
    {
        OpenGifImage image;
        image.m_interlace = {interlaced, 0, 8, 3, 0};
        int badCodes = 0;
        Stream none(raster);
        image.m_input.readIndex = InputBuffer::ForceRefill;
        EXPECT_EQ(image.decoder(&none.file, nullptr, 2, badCodes), interlaced ? 0 : -1);
        Stream empty(raster);
        CKxGifImageIterator iterator(&image);
        image.m_input.readIndex = InputBuffer::ForceRefill;
        EXPECT_EQ(image.decoder(&empty.file, &iterator, 2, badCodes), interlaced ? 0 : -1);
    }
    OpenGifImage image;
    int badCodes = 7;
    EXPECT_EQ(image.decoder(nullptr, nullptr, 2, badCodes), -1);
    EXPECT_EQ(badCodes, 0);
}

TEST(GifOperations, a_row_is_packed_in_place_and_stored)
{
    OpenGifImage image;
    image.Create(5, 2, 4);
    CKxGifImageIterator iterator(&image);
    iterator.Upset();
    unsigned char row[] = {1, 2, 3, 4, 0xF5, 0};
    EXPECT_EQ(image.out_line(&iterator, row, 5), 0);
    EXPECT_EQ(row[0], 0x12);
    EXPECT_EQ(row[1], 0x34);
    EXPECT_EQ(row[2] >> 4, 5);
    EXPECT_EQ(rowsOf(image), (Rows{"12345", "00000"}));
    unsigned char bits[] = {1, 0, 1, 1, 0};
    EXPECT_EQ(image.out_line(&iterator, bits, 3), 0);
    EXPECT_EQ(rowsOf(image), (Rows{"12345", "10100"})) << "only as far as the row goes";
    EXPECT_EQ(image.out_line(&iterator, bits, 5), -1) << "there is no third row";
    EXPECT_EQ(image.out_line(nullptr, bits, 5), -1);
    EXPECT_EQ(image.out_line(&iterator, nullptr, 5), -1);
    EXPECT_EQ(image.out_line(&iterator, bits, -5), -1);
}

TEST(GifOperations, a_row_longer_than_the_image_is_cut)
{
    for (const unsigned long depth : {1UL, 4UL, 8UL})
    {
        OpenGifImage image;
        image.Create(3, 1, depth);
        std::memset(image.GetBits(), 0x55, image.GetEffWidth());
        CKxGifImageIterator iterator(&image);
        iterator.Upset();
        Bytes row(100, 1);
        EXPECT_EQ(image.out_line(&iterator, row.data(), 100), 0);
        EXPECT_EQ(rowsOf(image), Rows{"111"});
        EXPECT_EQ(image.GetBits()[3], 0x55);
    }
}

TEST(GifOperations, interlaced_rows_go_where_the_state_says)
{
    OpenGifImage image;
    image.Create(1, 9, 8);
    image.SetGrayPalette();
    CKxGifImageIterator iterator(&image);
    iterator.Upset();
    image.m_interlace = {0x40, 0, 8, 9, 0};
    for (unsigned char i = 1; i <= 9; ++i)
        EXPECT_EQ(image.out_line(&iterator, &i, 1), 0);
    std::string picture;
    for (const std::string& row : rowsOf(image))
        picture += row;
    EXPECT_EQ(picture, "164738592");
    EXPECT_EQ(image.m_interlace.pass, 4);
}

TEST(GifOperations, frames_are_counted_and_the_stream_stays_where_it_was)
{
    GifBuilder builder(3, 3, primaries());
    builder.frame(at(0, 0, 3, 3), 2, recipe::noise(9, 4)).frame(at(0, 0, 1, 1), 2, {2}).trailer();
    Stream stream(builder.bytes());
    stream.file.Seek(13 + 12, 0);
    tag_TabCol table{};
    table.sogct = 4;
    tag_dscgif screen{};
    screen.screenWidth = 3;
    screen.screenHeight = 3;
    OpenGifImage image;
    EXPECT_EQ(image.get_num_frames(&stream.file, &table, &screen), 2);
    EXPECT_EQ(stream.file.Tell(), 25);
    EXPECT_EQ(rowsOf(image), Rows{"2"}) << "the last one is in the image";
    screen.screenWidth = 2;
    EXPECT_EQ(image.get_num_frames(&stream.file, &table, &screen), 1);
    EXPECT_EQ(image.get_num_frames(nullptr, &table, &screen), 0);
    EXPECT_EQ(image.get_num_frames(&stream.file, nullptr, &screen), 0);
    EXPECT_EQ(image.get_num_frames(&stream.file, &table, nullptr), 0);
}

struct SeekCase
{
    long from;
    long found;
    long left;
};

TEST(GifOperations, the_next_image_is_a_separator_behind_a_null_byte)
{
    const std::string stream("a,b\0,c\0\0,", 9); // separators at 1, 4 and 8
    for (const SeekCase& row :
         {SeekCase{0, 4, 4}, {1, 1, 1}, {4, 4, 4}, {5, 8, 8}, {9, -1, 9}, {-7, 4, 4}, {100, -1, 100}})
    {
        Stream file(Bytes(stream.begin(), stream.end()));
        OpenGifImage image;
        EXPECT_EQ(image.seek_next_image(&file.file, row.from), row.found) << row.from;
        EXPECT_EQ(file.file.Tell(), row.left) << row.from;
    }
    OpenGifImage image;
    EXPECT_EQ(image.seek_next_image(nullptr, 0), -1);
}

TEST(GifOperations, mixing_draws_what_is_not_transparent_and_inside)
{
    OpenGifImage background;
    background.Create(4, 3, 8);
    OpenGifImage frame;
    frame.Create(3, 2, 8);
    for (long i = 0; i < 6; ++i)
        frame.SetPixelIndex(i % 3, 1 - i / 3, static_cast<unsigned char>(i + 1));
    frame.SetTransIndex(3);
    tag_image place{1, 1, 3, 2, 0};
    background.GifMix(frame, place);
    EXPECT_EQ(rowsOf(background), (Rows{"0000", "0120", "0456"}));
    place.left = 3;
    place.top = 2;
    background.GifMix(frame, place); // a frame that passes the bottom is drawn from its lowest rows
    EXPECT_EQ(rowsOf(background), (Rows{"0000", "0120", "0454"}));
    place.left = 65535;
    place.top = 65535;
    background.GifMix(frame, place);
    OpenGifImage empty;
    background.GifMix(empty, place);
    empty.GifMix(frame, place);
    EXPECT_EQ(rowsOf(background), (Rows{"0000", "0120", "0454"}));
}
} // namespace
