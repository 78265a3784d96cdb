// Palette entries: reading, writing, the standard tables.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <map>
#include <vector>
#include "ExposedImage.h"

namespace
{
std::vector<std::uint32_t> entries(const CKxGifImage& image)
{
    std::vector<std::uint32_t> result;
    for (unsigned long i = 0; i < image.GetNumColors(); ++i)
        result.push_back(hex(image.GetPalette()[i]));
    return result;
}
} // namespace

TEST(ImagePalette, is_there_for_indexed_images_only)
{
    CKxGifImage image;
    EXPECT_EQ(image.GetPalette(), nullptr);
    image.Create(1, 1, 24);
    EXPECT_EQ(image.GetPalette(), nullptr);
    EXPECT_EQ(image.GetPaletteSize(), 0U);
    image.Create(1, 1, 4);
    EXPECT_EQ(static_cast<void*>(image.GetPalette()), static_cast<unsigned char*>(image.GetDIB()) + 40);
    EXPECT_EQ(image.GetPaletteSize(), 64U);
}

TEST(ImagePalette, begins_behind_40_bytes_whatever_the_header_claims)
{
    CKxGifImage image(1, 1, 4);
    static_cast<BITMAPINFOHEADER*>(image.GetDIB())->biSize = 108;
    EXPECT_EQ(static_cast<void*>(image.GetPalette()), static_cast<unsigned char*>(image.GetDIB()) + 40);
}

TEST(ImagePalette, an_entry_is_read_whole_or_as_zero)
{
    CKxGifImage image(1, 1, 4);
    image.SetPaletteColor(15, quad(1, 2, 3, 4));
    EXPECT_EQ(hex(image.GetPaletteColor(15)), 0x04010203U);
    EXPECT_EQ(hex(image.GetPaletteColor(16)), 0U);
    EXPECT_EQ(hex(CKxGifImage().GetPaletteColor(0)), 0U);
    EXPECT_EQ(hex(CKxGifImage(1, 1, 24).GetPaletteColor(0)), 0U);
}

TEST(ImagePalette, an_entry_is_read_by_channels)
{
    CKxGifImage image(1, 1, 8);
    image.SetPaletteColor(200, 10, 20, 30);
    unsigned char r = 0;
    unsigned char g = 0;
    unsigned char b = 0;
    EXPECT_TRUE(image.GetPaletteColor(200, &r, &g, &b));
    EXPECT_EQ(r, 10);
    EXPECT_EQ(g, 20);
    EXPECT_EQ(b, 30);
    EXPECT_TRUE(image.GetPaletteColor(200, nullptr, nullptr, nullptr));
    EXPECT_FALSE(CKxGifImage(1, 1, 24).GetPaletteColor(0, &r, &g, &b));
    EXPECT_FALSE(CKxGifImage().GetPaletteColor(0, &r, &g, &b));
    EXPECT_EQ(r, 10);
}

TEST(ImagePalette, reading_by_channels_goes_on_into_the_pixels_and_not_beyond_them)
{
    CKxGifImage image(4, 1, 1); // two entries, then one row of four bytes
    std::memcpy(image.GetBits(), "\x11\x22\x33\x44", 4);
    unsigned char r = 0;
    unsigned char g = 0;
    unsigned char b = 0;
    EXPECT_TRUE(image.GetPaletteColor(2, &r, &g, &b));
    EXPECT_EQ(b, 0x11);
    EXPECT_EQ(g, 0x22);
    EXPECT_EQ(r, 0x33);
    EXPECT_TRUE(image.GetPaletteColor(3, &r, &g, &b));
    EXPECT_EQ(r | g | b, 0);
    EXPECT_TRUE(image.GetPaletteColor(255, &r, &g, &b));
    EXPECT_EQ(r | g | b, 0);
}

TEST(ImagePalette, an_entry_is_written_in_three_forms)
{
    CKxGifImage image(1, 1, 8);
    image.SetPaletteColor(1, 10, 20, 30, 40);
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0x280A141EU);
    image.SetPaletteColor(1, quad(1, 2, 3, 4));
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0x04010203U);
    image.SetPaletteColor(1, 0xFF332211UL); // 0x00BBGGRR
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0x00112233U);
}

TEST(ImagePalette, a_write_beyond_the_palette_is_ignored)
{
    CKxGifImage image(40, 2, 1);
    const std::vector<unsigned char> before(static_cast<unsigned char*>(image.GetDIB()),
                                            static_cast<unsigned char*>(image.GetDIB()) + image.GetSize());
    image.SetPaletteColor(2, 1, 2, 3, 4);
    image.SetPaletteColor(255, quad(1, 2, 3, 4));
    image.SetPaletteColor(16, 0x112233UL);
    EXPECT_EQ(std::memcmp(image.GetDIB(), before.data(), before.size()), 0);
    CKxGifImage().SetPaletteColor(0, 1, 2, 3);
    CKxGifImage(1, 1, 24).SetPaletteColor(0, 0x112233UL);
}

TEST(ImagePalette, arrays_of_channels_stand_in_for_each_other)
{
    unsigned char r[3] = {1, 2, 3};
    unsigned char g[3] = {11, 12, 13};
    unsigned char b[3] = {21, 22, 23};
    struct Row
    {
        unsigned char* g;
        unsigned char* b;
        std::uint32_t second;
    };
    for (const Row& row :
         {Row{g, b, 0x020C16}, Row{nullptr, b, 0x020216}, Row{g, nullptr, 0x020C0C}, Row{nullptr, nullptr, 0x020202}})
    {
        CKxGifImage image(1, 1, 4);
        image.SetPalette(3UL, r, row.g, row.b);
        EXPECT_EQ(hex(image.GetPaletteColor(1)), row.second);
        EXPECT_EQ(hex(image.GetPaletteColor(3)), 0U);
    }
}

TEST(ImagePalette, three_byte_forms_keep_the_reserved_byte)
{
    CKxGifImage image(1, 1, 1);
    image.SetPaletteColor(0, quad(0, 0, 0, 9));
    unsigned char r[2] = {1, 2};
    image.SetPalette(2UL, r, nullptr, nullptr);
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x09010101U);
    CKxGifImage::rgb_color colors[2] = {{1, 2, 3}, {4, 5, 6}};
    image.SetPalette(colors, 2);
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x09010203U);
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0x00040506U);
    image.SetGrayPalette();
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x09000000U);
    image.BlendPalette(0xFFFFFF, 100);
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x09FFFFFFU);
}

TEST(ImagePalette, whole_palettes_are_cut_to_what_fits)
{
    CKxGifImage image(1, 1, 1);
    unsigned char channel[2] = {7, 8};
    image.SetPalette(ULONG_MAX, channel, nullptr, nullptr); // two of them
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x070707, 0x080808}));
    rgb_color colors[2] = {{1, 2, 3}, {4, 5, 6}};
    image.SetPalette(colors, ULONG_MAX);
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x010203, 0x040506}));
    RGBQUAD quads[2] = {quad(9, 9, 9, 9), quad(8, 8, 8, 8)};
    image.SetPalette(quads, 1);
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x09090909, 0x040506}));
    image.SetPalette(quads, ULONG_MAX);
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x09090909, 0x08080808}));
    image.SetPalette(quads, 0);
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x09090909, 0x08080808}));
}

TEST(ImagePalette, null_and_images_without_palette_are_left_alone)
{
    CKxGifImage image(1, 1, 1);
    unsigned char channel[2] = {7, 8};
    image.SetPalette(2UL, nullptr, channel, channel);
    image.SetPalette(static_cast<rgb_color*>(nullptr), 2);
    image.SetPalette(static_cast<RGBQUAD*>(nullptr), 2);
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0, 0}));
    for (CKxGifImage other : {CKxGifImage(), CKxGifImage(1, 1, 24)})
    {
        RGBQUAD quads[2] = {};
        rgb_color colors[2] = {};
        other.SetPalette(2UL, channel, channel, channel);
        other.SetPalette(quads, 2);
        other.SetPalette(colors, 2);
        other.SetGrayPalette();
        other.SetStdPalette();
        other.BlendPalette(0, 50);
        other.SwapIndex(0, 1);
        EXPECT_FALSE(other.IsGrayScale());
    }
}

TEST(ImagePalette, grey_is_spread_evenly)
{
    CKxGifImage two(1, 1, 1);
    two.SetGrayPalette();
    EXPECT_EQ(entries(two), (std::vector<std::uint32_t>{0, 0xFFFFFF}));
    CKxGifImage sixteen(1, 1, 4);
    sixteen.SetGrayPalette();
    EXPECT_EQ(hex(sixteen.GetPaletteColor(1)), 0x111111U);
    EXPECT_EQ(hex(sixteen.GetPaletteColor(15)), 0xFFFFFFU);
    CKxGifImage all(1, 1, 8);
    all.SetGrayPalette();
    for (unsigned i = 0; i < 256; ++i)
        EXPECT_EQ(hex(all.GetPaletteColor(static_cast<unsigned char>(i))), i * 0x010101U);
}

TEST(ImagePalette, is_grey_scale_only_with_grey_i_at_every_i)
{
    CKxGifImage image(1, 1, 8);
    EXPECT_FALSE(image.IsGrayScale());
    image.SetGrayPalette();
    EXPECT_TRUE(image.IsGrayScale());
    image.SetPaletteColor(7, quad(7, 7, 7, 99)); // the reserved byte does not matter
    EXPECT_TRUE(image.IsGrayScale());
    for (const RGBQUAD& almost : {quad(255, 255, 254), quad(255, 254, 255), quad(254, 255, 255)})
    {
        image.SetPaletteColor(255, almost);
        EXPECT_FALSE(image.IsGrayScale());
    }
    for (const unsigned long bpp : {1UL, 4UL})
    {
        CKxGifImage other(1, 1, bpp);
        other.SetGrayPalette();
        EXPECT_FALSE(other.IsGrayScale()) << bpp;
    }
    EXPECT_FALSE(CKxGifImage().IsGrayScale());
}

TEST(ImagePalette, the_standard_table_of_16_colours)
{
    CKxGifImage image(1, 1, 4);
    image.SetPaletteColor(3, quad(0, 0, 0, 9));
    image.SetStdPalette();
    EXPECT_EQ(entries(image), (std::vector<std::uint32_t>{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                                                          0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                                                          0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF}));
}

TEST(ImagePalette, the_standard_table_of_256_colours)
{
    CKxGifImage image(1, 1, 8);
    image.SetStdPalette();
    const std::map<int, std::uint32_t> expected = {
        {0, 0x000000},   {1, 0x800000},   {7, 0xC0C0C0},   {8, 0xC0DCC0},   {9, 0xA6CAF0},   {10, 0xFFF0D4},
        {15, 0xFFAA25},  {16, 0xFFAA00},  {21, 0x503200},  {22, 0xFFE3D4},  {40, 0xFE0000},  {45, 0x500000},
        {52, 0xFF0055},  {77, 0xDC00DC},  {88, 0xAA00FF},  {100, 0x5500FF}, {112, 0x0000FE}, {123, 0x2557FF},
        {135, 0x25AAFF}, {148, 0x00FEFE}, {160, 0x00FFAA}, {184, 0x00FE00}, {199, 0x319600}, {208, 0xAAFF00},
        {220, 0xFEFE00}, {225, 0x505000}, {226, 0xF2F2F2}, {245, 0x0E0E0E}, {246, 0xFFFBF0}, {247, 0xA0A0A4},
        {248, 0x808080}, {249, 0xFF0000}, {254, 0x00FFFF}, {255, 0xFFFFFF}};
    for (const auto& [index, color] : expected)
        EXPECT_EQ(hex(image.GetPaletteColor(static_cast<unsigned char>(index))), color) << index;
}

TEST(ImagePalette, the_grey_ramp_falls_by_12_a_step)
{
    CKxGifImage image(1, 1, 8);
    image.SetStdPalette();
    for (unsigned i = 226; i <= 245; ++i)
        EXPECT_EQ(hex(image.GetPaletteColor(static_cast<unsigned char>(i))), (0xF2 - 12 * (i - 226)) * 0x010101U);
}

// A sum over the whole table, with the place of each entry in it: worked out from the printed table.
TEST(ImagePalette, every_entry_of_the_256_colours_takes_part)
{
    CKxGifImage image(1, 1, 8);
    image.SetStdPalette();
    std::uint64_t sum = 0;
    for (std::uint32_t i = 0; i < 256; ++i)
        sum += std::uint64_t{i + 1} * hex(image.GetPaletteColor(static_cast<unsigned char>(i)));
    EXPECT_EQ(sum, 259060208287U);
}

TEST(ImagePalette, there_is_no_standard_table_at_1_bit)
{
    CKxGifImage image(1, 1, 1);
    image.SetPaletteColor(0, 1, 2, 3);
    image.SetStdPalette();
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x010203U);
}

TEST(ImagePalette, blending_divides_whole)
{
    struct Row
    {
        long percent;
        std::uint32_t result; // of 100, 200, 255 with 10, 0, 1
    };
    for (const Row& row : {Row{0, 0x64C8FF}, Row{100, 0x0A0001}, Row{101, 0x0A0001}, Row{LONG_MAX, 0x0A0001},
                           Row{50, 0x376480}, Row{33, 0x4686AB}})
    {
        CKxGifImage image(1, 1, 1);
        image.SetPaletteColor(1, 100, 200, 255);
        image.BlendPalette(0x01000A, row.percent);
        EXPECT_EQ(hex(image.GetPaletteColor(1)), row.result) << row.percent;
    }
}

TEST(ImagePalette, a_negative_percentage_moves_away_and_wraps)
{
    CKxGifImage image(1, 1, 1);
    image.SetPaletteColor(1, 100, 200, 255);
    image.BlendPalette(0x01000A, -10); // 109, 220, 280 - 256
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0x6DDC18U);
    image.BlendPalette(0, LONG_MIN);
}

TEST(ImagePalette, swapping_two_entries_keeps_the_picture)
{
    for (const unsigned long bpp : {1UL, 4UL, 8UL})
    {
        CKxGifImage image(9, 3, bpp);
        image.SetGrayPalette();
        for (long i = 0; i < 27; ++i)
            image.SetPixelIndex(i % 9, i / 9, static_cast<unsigned char>(i));
        CKxGifImage before;
        before = image;
        image.SwapIndex(0, 1);
        EXPECT_EQ(hex(image.GetPaletteColor(0)), hex(before.GetPaletteColor(1)));
        EXPECT_EQ(hex(image.GetPaletteColor(1)), hex(before.GetPaletteColor(0)));
        EXPECT_EQ(image.GetPixelIndex(0, 0), 1);
        EXPECT_EQ(image.GetPixelIndex(1, 0), 0);
        for (long i = 0; i < 27; ++i)
            EXPECT_EQ(hex(image.GetPixelColor(i % 9, i / 9)), hex(before.GetPixelColor(i % 9, i / 9)))
                << bpp << " " << i;
    }
}

TEST(ImagePalette, swapping_leaves_the_bytes_behind_a_row)
{
    CKxGifImage image(5, 2, 8);
    image.Clear(1);
    image.SwapIndex(1, 2);
    EXPECT_EQ(image.GetBits()[4], 2);
    EXPECT_EQ(image.GetBits()[5], 1); // the extra column is refused
}

TEST(ImagePalette, swapping_with_an_entry_that_is_not_there_blackens_the_other)
{
    CKxGifImage image(2, 1, 4);
    image.SetGrayPalette();
    image.SetPixelIndex(0, 0, 3);
    image.SwapIndex(3, 200);
    EXPECT_EQ(hex(image.GetPaletteColor(3)), 0U);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 8); // the low nibble of 200
}

TEST(ImagePalette, palettes_are_compared_with_or_without_the_reserved_byte)
{
    CKxGifImage first(1, 1, 4);
    CKxGifImage second(7, 7, 4);
    EXPECT_TRUE(first.IsSamePalette(second, true));
    second.SetPaletteColor(15, 0, 0, 0, 1);
    EXPECT_TRUE(first.IsSamePalette(second, false));
    EXPECT_FALSE(first.IsSamePalette(second, true));
    for (const RGBQUAD color : {quad(1, 0, 0), quad(0, 1, 0), quad(0, 0, 1)})
    {
        second.SetPaletteColor(15, color);
        EXPECT_FALSE(first.IsSamePalette(second, false));
    }
    CKxGifImage larger(1, 1, 8);
    EXPECT_FALSE(first.IsSamePalette(larger, false));
    CKxGifImage trueColor(1, 1, 24);
    EXPECT_FALSE(trueColor.IsSamePalette(trueColor, false));
    CKxGifImage empty;
    EXPECT_FALSE(empty.IsSamePalette(empty, false));
    CKxGifImage destroyed(1, 1, 4);
    destroyed.Destroy();
    EXPECT_FALSE(first.IsSamePalette(destroyed, false));
    EXPECT_FALSE(destroyed.IsSamePalette(first, false));
}

TEST(ImagePalette, important_colours_are_limited_by_the_depth)
{
    struct Row
    {
        unsigned long bpp;
        unsigned long asked;
        unsigned long kept; // from 1
    };
    const Row rows[] = {{1, 0, 0},   {1, 1, 1},         {1, 2, 2},   {1, 3, 2},   {1, 256, 2},   {1, 257, 0},
                        {4, 15, 15}, {4, 17, 16},       {4, 257, 0}, {8, 17, 17}, {8, 256, 256}, {8, 257, 0},
                        {8, 0, 0},   {8, ULONG_MAX, 0}, {24, 16, 1}, {24, 0, 0}};
    for (const Row& row : rows)
    {
        ExposedImage image(1, 1, row.bpp);
        image.m_Head.biClrImportant = 1;
        image.SetClrImportant(row.asked);
        EXPECT_EQ(image.GetClrImportant(), row.kept) << row.asked << " at " << row.bpp;
    }
}
