// Which bitmap and icon files claim more than they have.
#include "images/PictureData.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace
{
using FileBytes = std::vector<unsigned char>;

void put(FileBytes& bytes, size_t at, std::uint64_t value, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
}

struct BitmapFile
{
    std::uint32_t width = 3;
    std::uint32_t height = 2;
    unsigned bits = 24;
    std::uint32_t offset = 54;
    size_t total = 54 + 24; // two rows of nine bytes, each filled up to twelve
    std::uint32_t compression = 0;
    std::uint32_t packedSize = 0;
    std::uint32_t usedColors = 0;
    std::uint32_t headerSize = 40;

    FileBytes bytes() const
    {
        FileBytes file(std::max<size_t>(total, 54));
        file[0] = 'B';
        file[1] = 'M';
        put(file, 10, offset, 4);
        put(file, 14, headerSize, 4);
        put(file, 18, width, 4);
        put(file, 22, height, 4);
        put(file, 26, 1, 2);
        put(file, 28, bits, 2);
        put(file, 30, compression, 4);
        put(file, 34, packedSize, 4);
        put(file, 46, usedColors, 4);
        file.resize(total);
        return file;
    }
};

bool isWhole(const FileBytes& bytes)
{
    const FileBytes exact(bytes.begin(), bytes.end()); // so that a sanitizer sees a read behind the end
    return PictureData::isWhole(exact.data(), exact.size());
}

FileBytes iconOf(std::uint32_t offset, std::uint32_t length, size_t total, unsigned count = 1)
{
    FileBytes file(total);
    put(file, 2, 1, 2);
    put(file, 4, count, 2);
    put(file, 14, length, 4);
    put(file, 18, offset, 4);
    return file;
}

FileBytes behindPreamble(std::uint32_t length, const FileBytes& content)
{
    FileBytes file = {'l', 't', 0, 0, 0, 0, 0, 0};
    put(file, 4, length, 4);
    file.insert(file.end(), content.begin(), content.end());
    return file;
}
} // namespace

TEST(PictureData, nothing_and_formats_that_the_platform_checks_pass)
{
    EXPECT_TRUE(PictureData::isWhole(nullptr, 0));
    EXPECT_TRUE(PictureData::isWhole(nullptr, 10));
    for (const FileBytes& bytes : {FileBytes{}, FileBytes{'B'}, FileBytes{'G', 'I', 'F', '8', '9', 'a'}})
        EXPECT_TRUE(isWhole(bytes));
}

TEST(PictureData, a_bitmap_file_is_whole_when_its_pixels_lie_within)
{
    struct Row
    {
        const char* what;
        BitmapFile file;
        bool whole;
    };
    const Row rows[] = {
        {"true colour", {}, true},
        {"one byte short", {.total = 77}, false},
        {"top down", {.height = 0xFFFFFFFE}, true},
        {"top down, one row too many", {.height = 0xFFFFFFFD}, false},
        {"one row too many", {.height = 3}, false},
        {"offset one too far", {.offset = 55}, false},
        {"offset behind the end", {.offset = 79}, false},
        {"offset as far as it goes", {.offset = 0xFFFFFFFF}, false},
        {"no width", {.width = 0}, false},
        {"no height", {.height = 0}, false},
        {"negative width", {.width = 0xFFFFFFFF}, false},
        {"least height", {.height = 0x80000000}, false},
        {"greatest sizes", {.width = 0x7FFFFFFF, .height = 0x7FFFFFFF, .bits = 32}, false},
        {"unknown depth", {.bits = 7}, false},
        {"unknown compression", {.compression = 4}, false},
        {"unknown header", {.headerSize = 39}, false},
        {"greatest header", {.headerSize = 0xFFFFFFFF}, false},
        {"256 colours", {.bits = 8, .offset = 1078, .total = 1078 + 8}, true},
        {"256 colours, table cut", {.bits = 8, .offset = 54, .total = 1077}, false},
        {"2 of 256 colours", {.bits = 8, .offset = 62, .total = 70, .usedColors = 2}, true},
        {"more used colours than there are", {.bits = 1, .offset = 62, .total = 70, .usedColors = 9999}, true},
        {"16 bits with masks", {.bits = 16, .offset = 66, .total = 66 + 16, .compression = 3}, true},
        {"16 bits, masks cut", {.bits = 16, .offset = 54, .total = 65, .compression = 3}, false},
        {"runs", {.bits = 8, .offset = 62, .total = 66, .compression = 1, .packedSize = 4, .usedColors = 2}, true},
        {"runs cut", {.bits = 8, .offset = 62, .total = 65, .compression = 1, .packedSize = 4, .usedColors = 2}, false},
        {"runs without size", {.bits = 8, .offset = 62, .total = 66, .compression = 1, .usedColors = 2}, false},
        {"header cut", {.total = 53}, false},
        {"file header alone", {.total = 14}, false},
        {"mark alone", {.total = 2}, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(isWhole(row.file.bytes()), row.whole) << row.what;
}

TEST(PictureData, the_old_short_header_is_known)
{
    // 2 by 1 pixels of 1 bit, two palette entries of three bytes, one row of four bytes: 14 + 12 + 6 + 4
    FileBytes file(36);
    file[0] = 'B';
    file[1] = 'M';
    put(file, 10, 32, 4);
    put(file, 14, 12, 4);
    put(file, 18, 2, 2);
    put(file, 20, 1, 2);
    put(file, 22, 1, 2);
    put(file, 24, 1, 2);
    EXPECT_TRUE(isWhole(file));
    file.pop_back();
    EXPECT_FALSE(isWhole(file));
    file.resize(31);
    EXPECT_FALSE(isWhole(file));
}

TEST(PictureData, an_icon_file_is_whole_when_every_image_lies_within)
{
    EXPECT_TRUE(isWhole(iconOf(22, 40, 62)));
    EXPECT_FALSE(isWhole(iconOf(22, 40, 61)));
    EXPECT_FALSE(isWhole(iconOf(23, 40, 62)));
    EXPECT_FALSE(isWhole(iconOf(22, 39, 62)));
    EXPECT_FALSE(isWhole(iconOf(0xFFFFFFFF, 40, 62)));
    EXPECT_FALSE(isWhole(iconOf(22, 0xFFFFFFFF, 62)));
    EXPECT_FALSE(isWhole(iconOf(22, 40, 62, 0)));
    EXPECT_FALSE(isWhole(iconOf(22, 40, 62, 2)));
    EXPECT_FALSE(isWhole(iconOf(22, 40, 62, 65535)));
    EXPECT_FALSE(isWhole({0, 0}));
    EXPECT_FALSE(isWhole({0, 0, 1, 0, 1}));
}

TEST(PictureData, a_bitmap_behind_its_mark_and_length_is_judged_within_that_length)
{
    const FileBytes bitmap = BitmapFile{}.bytes();
    EXPECT_TRUE(isWhole(behindPreamble(78, bitmap)));
    EXPECT_TRUE(isWhole(behindPreamble(0xFFFFFFFF, bitmap)));
    EXPECT_FALSE(isWhole(behindPreamble(77, bitmap)));
    EXPECT_TRUE(isWhole(behindPreamble(86, behindPreamble(78, bitmap))));
    EXPECT_FALSE(isWhole(behindPreamble(85, behindPreamble(78, bitmap))));
    EXPECT_TRUE(isWhole(behindPreamble(0, bitmap)));
    EXPECT_TRUE(isWhole({'l', 't', 0, 0, 1, 0, 0}));
}

FileBytes gifWithFlags(int flags, size_t size = 15)
{
    FileBytes file = {'G', 'I', 'F', '8', '9', 'a', 5, 0, 4, 0, static_cast<unsigned char>(flags), 1, 2, ',', ';'};
    file.resize(size);
    return file;
}

bool lacksTable(const FileBytes& bytes)
{
    return PictureData::lacksColorTable(bytes.data(), bytes.size());
}

TEST(PictureDataTable, a_gif_lacks_its_table_when_the_flag_is_not_set)
{
    EXPECT_TRUE(lacksTable(gifWithFlags(0)));
    EXPECT_TRUE(lacksTable(gifWithFlags(0x7F)));
    EXPECT_TRUE(lacksTable(gifWithFlags(0, 13)));
    EXPECT_FALSE(lacksTable(gifWithFlags(0x80)));
    EXPECT_FALSE(lacksTable(gifWithFlags(0xF7)));
    EXPECT_FALSE(lacksTable(gifWithFlags(0, 12))); // too short to be decoded
    EXPECT_FALSE(lacksTable({}));
    EXPECT_FALSE(PictureData::lacksColorTable(nullptr, 100));
    FileBytes other = gifWithFlags(0);
    other[0] = 'g';
    EXPECT_FALSE(lacksTable(other));
}

TEST(PictureDataTable, the_table_is_put_behind_the_screen)
{
    FileBytes expected = {'G', 'I', 'F', '8', '9', 'a', 5, 0, 4, 0, 0xB7, 1, 2, 0, 0, 0, 255, 255, 255};
    expected.resize(13 + 768);
    expected.insert(expected.end(), {',', ';'});
    const FileBytes bare = gifWithFlags(0x30);
    EXPECT_EQ(PictureData::withColorTable(bare.data(), bare.size()), expected);
    FileBytes saved = {'l', 't', 0, 0, 15, 0, 0, 0};
    saved.insert(saved.end(), bare.begin(), bare.end());
    EXPECT_TRUE(lacksTable(saved));
    EXPECT_EQ(PictureData::withColorTable(saved.data(), saved.size()), expected);
}
