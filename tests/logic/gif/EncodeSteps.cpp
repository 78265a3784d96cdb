// The operations inside the encoder, called one by one as a derived class may.
#include "EncoderFixture.h"

#include <algorithm>

namespace
{
/// Writes down the calls that a raster makes.
class RecordingStream : public CKxMemFile
{
public:
    size_t Write(const void* /*buffer*/, size_t size, size_t count) override
    {
        calls += "write " + std::to_string(size * count) + " ";
        return count;
    }
    bool PutC(unsigned char value) override
    {
        calls += "put " + std::to_string(value) + " ";
        return true;
    }
    bool Flush() override
    {
        calls += "flush ";
        return false;
    }
    long Error() override
    {
        calls += "error ";
        return -1;
    }

    std::string calls;
};

/// A raster out of the codes of `compressNONE` or `compressLZW`, without block lengths.
std::vector<int> codesIn(const Bytes& raster, int minimumCodeSize)
{
    Bytes data;
    for (std::size_t at = 0; at < raster.size(); at += std::size_t{1} + raster[at])
        data.insert(data.end(), raster.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                    raster.begin() + static_cast<std::ptrdiff_t>(at) + 1 + raster[at]);
    return plain::codesOf(data, minimumCodeSize);
}

std::vector<int> valuesOf(ExposedEncoder& image)
{
    std::vector<int> values;
    for (int value = image.GifNextPixel(); value >= 0; value = image.GifNextPixel())
        values.push_back(value);
    return values;
}
} // namespace

TEST(EncodeSteps, the_loop_block_holds_the_loop_count)
{
    ExposedEncoder image(1, 1, 1);
    image.SetLoops(0x12345);
    OpenStream file;
    image.EncodeLoopExtension(&file);
    // clang-format off
    EXPECT_EQ(file.bytes(), (Bytes{0x21, 0xFF, 11, 'N', 'E', 'T', 'S', 'C', 'A', 'P', 'E', '2', '.', '0',
                                   3, 1, 0x45, 0x23, 0}));
    // clang-format on
}

TEST(EncodeSteps, a_word_goes_out_low_byte_first)
{
    ExposedEncoder image;
    OpenStream file;
    image.Putword(0x12345678, &file);
    image.Putword(-2, &file);
    EXPECT_EQ(file.bytes(), (Bytes{0x78, 0x56, 0xFE, 0xFF}));
}

TEST(EncodeSteps, pixels_come_top_row_first)
{
    ExposedEncoder image;
    plain::drawIndexes(image, 3, 2, 4, {1, 2, 3, 4, 5, 6});
    image.atFirstPixel();
    EXPECT_EQ(valuesOf(image), (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(image.GifNextPixel(), -1);
}

TEST(EncodeSteps, pixels_below_the_picture_are_the_transparent_index)
{
    ExposedEncoder image;
    plain::drawIndexes(image, 2, 1, 8, {1, 2});
    image.SetTransIndex(77);
    image.atFirstPixel();
    image.m_encoderCursor.pixelsLeft = 5;
    EXPECT_EQ(valuesOf(image), (std::vector<int>{1, 2, 77, 77, 77}));
}

TEST(EncodeSteps, a_cursor_anywhere_is_read_alike_one_by_one_and_by_rows)
{
    const EncoderCursor cursors[] = {
        {3, 1, 30},
        {-4, 2, 40},
        {0, 200, 7},
        {17, 0, 3},
        {16, 1, 99},
        {2147483647, 0, 5},
        {0, -2147483647 - 1, 50},
        {-2147483647 - 1, 1, 3},
        {0, 1, 0},
        {0, 1, -2147483647 - 1},
    };
    for (const unsigned long depth : {1UL, 4UL, 8UL, 24UL})
    {
        ExposedEncoder image;
        plain::drawRandom(image, 17, 3, depth, {depth == 1 ? 2 : 16, 2}, 9);
        image.SetTransIndex(1);
        for (const EncoderCursor& cursor : cursors)
        {
            image.m_encoderCursor = cursor;
            const std::vector<int> values = valuesOf(image);
            image.m_encoderCursor = cursor;
            OpenStream file;
            image.compressLZW(9, &file);
            Bytes expected;
            plain::Raster(expected, values, 9).compress();
            EXPECT_EQ(file.bytes(), expected);
            EXPECT_LE(image.m_encoderCursor.pixelsLeft, 0);
        }
    }
}

TEST(EncodeSteps, a_raster_of_no_pixel_has_a_code_of_all_bits_between_clear_and_end)
{
    ExposedEncoder image(1, 1, 8);
    OpenStream file;
    image.compressLZW(9, &file); // the cursor has nothing left
    EXPECT_EQ(codesIn(file.bytes(), 8), (std::vector<int>{256, 511, 257}));
    OpenStream other;
    image.compressNONE(9, &other);
    EXPECT_EQ(codesIn(other.bytes(), 8), (std::vector<int>{256, 257}));
}

TEST(EncodeSteps, pixels_with_the_numbers_of_codes_are_taken_for_them_as_in_the_plain_form)
{
    for (const int initialBits : {1, 2, 3, 5, 8, 9, 12})
        for (const plain::Grain grain : {plain::Grain{256, 3}, plain::Grain{12, 5}, plain::Grain{3, 90}})
        {
            ExposedEncoder image;
            plain::drawRandom(image, 90, 90, 8, grain, 7);
            image.atFirstPixel();
            std::vector<int> values = valuesOf(image);
            const int endCode = (1 << (initialBits - 1)) + 1;
            std::replace(values.begin(), values.end(), endCode, 0); // a pixel that ends the raster makes no sense
            plain::drawIndexes(image, 90, 90, 8, values);
            image.atFirstPixel();
            OpenStream file;
            image.compressLZW(initialBits, &file);
            Bytes expected;
            plain::Raster(expected, values, initialBits).compress();
            EXPECT_TRUE(file.bytes() == expected) << initialBits << " bits, " << grain.colours << " colours";
        }
}

TEST(EncodeSteps, a_code_width_that_no_table_can_begin_with_writes_nothing)
{
    ExposedEncoder image(4, 4, 8);
    for (const int initialBits : {0, -1, 16, 25, 32, 2147483647, -2147483647 - 1})
    {
        OpenStream file;
        image.atFirstPixel();
        image.compressLZW(initialBits, &file);
        image.compressNONE(initialBits, &file);
        EXPECT_EQ(file.Size(), 0);
    }
    for (const int initialBits : {13, 14, 15}) // wider than any code that the table can hold
    {
        OpenStream file;
        image.atFirstPixel();
        image.compressLZW(initialBits, &file);
        image.atFirstPixel();
        image.compressNONE(initialBits, &file);
        EXPECT_GT(file.Size(), 0);
    }
}

TEST(EncodeSteps, a_body_at_24_bits_has_no_table_and_no_codes)
{
    ExposedEncoder image(4, 4, 24);
    OpenStream file;
    image.EncodeBody(&file, true);
    EXPECT_EQ(file.bytes(), (Bytes{',', 0, 0, 0, 0, 4, 0, 4, 0, 0x80 | 23, 24, 0}));
}

TEST(EncodeSteps, without_compression_each_pixel_is_a_code)
{
    ExposedEncoder image;
    plain::drawIndexes(image, 4, 2, 1, {1, 1, 1, 1, 0, 0, 1, 0});
    image.atFirstPixel();
    OpenStream file;
    image.compressNONE(3, &file);
    EXPECT_EQ(codesIn(file.bytes(), 2), (std::vector<int>{4, 1, 1, 1, 1, 0, 0, 1, 0, 5}));
}

TEST(EncodeSteps, without_compression_a_clear_follows_the_pixel_that_fills_the_table)
{
    ExposedEncoder image(4090, 2, 1); // free codes begin at 6
    image.atFirstPixel();
    OpenStream file;
    image.compressNONE(3, &file);
    const std::vector<int> codes = codesIn(file.bytes(), 2);
    std::vector<int> expected(1 + 4090 + 1 + 4090 + 2, 0);
    expected[0] = 4;
    expected[1 + 4090] = 4;
    expected[1 + 4090 + 1 + 4090] = 4; // no pixel follows this one
    expected.back() = 5;
    EXPECT_EQ(codes, expected);
}

TEST(EncodeSteps, without_compression_the_bytes_are_those_of_the_plain_form)
{
    for (const unsigned long depth : {1UL, 4UL, 8UL})
    {
        ExposedEncoder image;
        plain::drawRandom(image, 111, 111, depth, {1 << depth, 2}, 4);
        const int initialBits = static_cast<int>(std::max(depth, 2UL)) + 1;
        image.atFirstPixel();
        const std::vector<int> values = valuesOf(image);
        image.atFirstPixel();
        OpenStream file;
        image.compressNONE(initialBits, &file);
        Bytes expected;
        plain::Raster(expected, values, initialBits).passThrough();
        EXPECT_EQ(file.bytes(), expected);
    }
}

TEST(EncodeSteps, a_sub_block_is_its_length_and_then_its_bytes_and_the_raster_ends_with_flush_and_error)
{
    RecordingStream file;
    ExposedEncoder image;
    plain::drawIndexes(image, 224, 1, 8, std::vector<int>(224, 0));
    image.atFirstPixel();
    image.compressNONE(9, &file); // 226 codes of nine bits
    EXPECT_EQ(file.calls, "put 254 write 254 put 1 write 1 flush error ");
}

TEST(EncodeSteps, bytes_gather_in_the_block_until_it_is_flushed_or_full)
{
    ExposedEncoder image(1, 1, 1);
    OpenStream file;
    image.m_lzwEncoder.output = &file;
    image.flush_char();
    EXPECT_EQ(file.Size(), 0);
    image.char_out(0x141); // its low byte
    image.char_out('B');
    EXPECT_EQ(file.Size(), 0);
    image.flush_char();
    EXPECT_EQ(file.bytes(), (Bytes{2, 'A', 'B'}));
    for (int i = 0; i < 254; ++i)
        image.char_out(i);
    EXPECT_EQ(file.Size(), 3 + 255);
    EXPECT_EQ(image.m_lzwEncoder.blockCount, 0);
}

TEST(EncodeSteps, codes_gather_in_the_accumulator_until_they_are_bytes)
{
    ExposedEncoder image(1, 1, 1);
    OpenStream file;
    image.m_lzwEncoder.output = &file;
    image.m_lzwEncoder.codeWidth = 5;
    image.m_lzwEncoder.highestCode = 31;
    image.m_lzwEncoder.endCode = 17;
    image.output(3);
    EXPECT_EQ(image.m_encoderBits.count, 5);
    EXPECT_EQ(image.m_encoderBits.bits, 3U);
    EXPECT_EQ(image.m_lzwEncoder.blockCount, 0);
    image.output(-1); // five bits of it
    EXPECT_EQ(image.m_encoderBits.count, 2);
    EXPECT_EQ(image.m_encoderBits.bits, 3U);
    EXPECT_EQ(image.m_lzwEncoder.blockCount, 1);
    image.output(17); // the end code puts everything out
    EXPECT_EQ(image.m_encoderBits.count, 0);
    EXPECT_EQ(file.bytes(), (Bytes{2, 0xE3, 0x47})); // 00011, 11111 and 10001 from the lowest bit on
}

TEST(EncodeSteps, the_width_follows_the_next_free_code)
{
    ExposedEncoder image(1, 1, 1);
    image.m_lzwEncoder.codeWidth = 9;
    image.m_lzwEncoder.initialBits = 9;
    image.m_lzwEncoder.highestCode = 511;
    image.m_lzwEncoder.endCode = 257;
    image.m_lzwEncoder.nextFreeCode = 512;
    image.output(1);
    EXPECT_EQ(image.m_lzwEncoder.codeWidth, 10);
    EXPECT_EQ(image.m_lzwEncoder.highestCode, 1023);
    image.m_lzwEncoder.nextFreeCode = 2048;
    image.output(1);
    image.output(1);
    EXPECT_EQ(image.m_lzwEncoder.codeWidth, 12);
    EXPECT_EQ(image.m_lzwEncoder.highestCode, 4096); // out of reach, so that the width stays
    image.m_lzwEncoder.nextFreeCode = 4096;
    image.output(1);
    EXPECT_EQ(image.m_lzwEncoder.codeWidth, 12);
    image.m_lzwEncoder.clearFlag = 1;
    image.output(256);
    EXPECT_EQ(image.m_lzwEncoder.codeWidth, 9);
    EXPECT_EQ(image.m_lzwEncoder.highestCode, 511);
    EXPECT_EQ(image.m_lzwEncoder.clearFlag, 0);
}

TEST(EncodeSteps, codes_without_a_stream_are_dropped)
{
    ExposedEncoder image(1, 1, 8);
    image.atFirstPixel();
    image.compressLZW(9, nullptr);
    EXPECT_EQ(image.m_lzwEncoder.blockCount, 0);
    for (int i = 0; i < 1000; ++i)
        image.char_out(i);
    image.output(5);
    image.flush_char();
    EXPECT_EQ(image.m_lzwEncoder.blockCount, 0);
}

TEST(EncodeSteps, clearing_the_hash_table_stays_inside_it)
{
    ExposedEncoder image(1, 1, 1);
    for (int slot = 0; slot < LzwEncoderState::HashSize; ++slot)
        image.m_lzwEncoder.hashTable[static_cast<std::size_t>(slot)] = 5;
    image.cl_hash(-3);
    EXPECT_EQ(image.m_lzwEncoder.hashTable[0], 5);
    image.cl_hash(2);
    EXPECT_EQ(image.m_lzwEncoder.hashTable[1], -1);
    EXPECT_EQ(image.m_lzwEncoder.hashTable[2], 5);
    image.cl_hash(2147483647);
    EXPECT_EQ(image.m_lzwEncoder.hashTable[5002], -1);
}
