// Single pixels: reading, writing, and what stands outside the image.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <utility>
#include <vector>
#include "ExposedImage.h"

TEST(ImagePixels, indexes_are_packed_with_the_leftmost_pixel_in_the_high_bits)
{
    CKxGifImage four(3, 1, 4);
    four.SetPixelIndex(0, 0, 0xA);
    four.SetPixelIndex(1, 0, 0xB);
    four.SetPixelIndex(2, 0, 0xC);
    EXPECT_EQ(four.GetBits()[0], 0xAB);
    EXPECT_EQ(four.GetBits()[1], 0xC0);
    EXPECT_EQ(four.GetPixelIndex(0, 0), 0xA);
    EXPECT_EQ(four.GetPixelIndex(1, 0), 0xB);
    EXPECT_EQ(four.GetPixelIndex(2, 0), 0xC);

    CKxGifImage one(10, 1, 1);
    for (const long x : {0L, 3L, 7L, 9L})
        one.SetPixelIndex(x, 0, 1);
    EXPECT_EQ(one.GetBits()[0], 0x91);
    EXPECT_EQ(one.GetBits()[1], 0x40);
    EXPECT_EQ(one.GetPixelIndex(3, 0), 1);
    EXPECT_EQ(one.GetPixelIndex(4, 0), 0);
    EXPECT_EQ(one.GetPixelIndex(9, 0), 1);
}

TEST(ImagePixels, a_new_index_replaces_all_bits_of_the_old_one)
{
    CKxGifImage four(2, 1, 4);
    four.Clear(0xF);
    four.SetPixelIndex(0, 0, 0x5);
    EXPECT_EQ(four.GetBits()[0], 0x5F);
    CKxGifImage one(8, 1, 1);
    one.Clear(1);
    one.SetPixelIndex(2, 0, 0);
    EXPECT_EQ(one.GetBits()[0], 0xDF);
}

TEST(ImagePixels, an_index_too_large_is_cut_to_its_low_bits)
{
    CKxGifImage four(2, 1, 4);
    four.SetPixelIndex(0, 0, 0x2B);
    EXPECT_EQ(four.GetPixelIndex(0, 0), 0xB);
    EXPECT_EQ(four.GetPixelIndex(1, 0), 0);
    CKxGifImage one(2, 1, 1);
    one.SetPixelIndex(0, 0, 2);
    EXPECT_EQ(one.GetPixelIndex(0, 0), 0);
    one.SetPixelIndex(0, 0, 3);
    EXPECT_EQ(one.GetPixelIndex(0, 0), 1);
}

TEST(ImagePixels, true_colour_has_no_indexes)
{
    CKxGifImage image(2, 2, 24);
    image.Clear(77);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 0);
    image.SetPixelIndex(1, 1, 5);
    EXPECT_EQ(hex(image.GetPixelColor(1, 1)), 0x4D4D4DU);
    image.SetTransIndex(3);
    EXPECT_EQ(image.GetPixelIndex(-1, 0), 0); // no palette comes first
    EXPECT_EQ(CKxGifImage().GetPixelIndex(0, 0), 0);
}

TEST(ImagePixels, writes_outside_are_ignored)
{
    for (const unsigned long bpp : {1UL, 4UL, 8UL, 24UL})
    {
        CKxGifImage image(5, 4, bpp);
        for (const auto& [x, y] : std::vector<std::pair<long, long>>{
                 {-1, 0}, {5, 0}, {0, -1}, {0, 4}, {LONG_MIN, 0}, {LONG_MAX, LONG_MAX}, {1L << 30, 0}})
        {
            image.SetPixelIndex(x, y, 255);
            image.SetPixelColor(x, y, 0xFFFFFFUL);
            image.SetPixelColor(x, y, quad(255, 255, 255));
        }
        const unsigned char* const first = image.GetBits();
        EXPECT_EQ(std::count(first, first + image.GetEffWidth() * 4, 0), static_cast<long>(image.GetEffWidth() * 4));
    }
}

TEST(ImagePixels, an_index_outside_is_the_transparent_one_or_the_first_byte)
{
    for (const unsigned long bpp : {1UL, 4UL, 8UL})
    {
        CKxGifImage image(8, 2, bpp);
        image.GetBits()[0] = 0xA7; // raw, at every depth
        EXPECT_EQ(image.GetPixelIndex(-1, 0), 0xA7);
        EXPECT_EQ(image.GetPixelIndex(0, 2), 0xA7);
        image.SetTransIndex(3);
        EXPECT_EQ(image.GetPixelIndex(-1, 0), 3);
        image.SetTransIndex(0x1FE);
        EXPECT_EQ(image.GetPixelIndex(8, 0), 0xFE);
        image.SetTransIndex(-2);
        EXPECT_EQ(image.GetPixelIndex(8, 0), 0xFE);
    }
}

TEST(ImagePixels, a_colour_is_the_palette_entry_without_its_reserved_byte)
{
    CKxGifImage image(2, 1, 8);
    image.SetPaletteColor(9, quad(1, 2, 3, 4));
    image.SetPixelIndex(1, 0, 9);
    EXPECT_EQ(hex(image.GetPixelColor(1, 0)), 0x010203U);
    EXPECT_EQ(hex(image.GetPixelColor(1, 0, false)), 0x010203U);
}

TEST(ImagePixels, true_colour_is_stored_as_blue_green_red)
{
    CKxGifImage image(2, 2, 24);
    image.SetPixelColor(1, 1, quad(1, 2, 3, 9));
    const unsigned char* const pixel = image.GetBits(1) + 3;
    EXPECT_EQ(pixel[0], 3);
    EXPECT_EQ(pixel[1], 2);
    EXPECT_EQ(pixel[2], 1);
    EXPECT_EQ(hex(image.GetPixelColor(1, 1)), 0x010203U);
    image.SetPixelColor(1, 1, 0x332211UL);
    EXPECT_EQ(hex(image.GetPixelColor(1, 1)), 0x112233U);
}

TEST(ImagePixels, a_colour_outside_an_indexed_image)
{
    CKxGifImage image(4, 4, 8);
    image.SetPixelIndex(0, 0, 5);
    image.SetPaletteColor(5, quad(1, 2, 3, 4));
    image.SetPaletteColor(6, quad(7, 8, 9, 10));
    image.SetTransColor(quad(50, 60, 70));
    EXPECT_EQ(hex(image.GetPixelColor(-1, 0)), 0x010203U); // that of (0, 0)
    image.SetTransIndex(0x106);
    EXPECT_EQ(hex(image.GetPixelColor(-1, 0)), 0x0A070809U); // the entry of the low byte, whole
    CKxGifImage sixteen(4, 4, 4);
    sixteen.SetTransIndex(16);
    EXPECT_EQ(hex(sixteen.GetPixelColor(4, 0)), 0U); // no such entry
}

TEST(ImagePixels, a_colour_outside_a_true_colour_image)
{
    CKxGifImage image(4, 4, 24);
    image.SetPixelColor(0, 0, quad(1, 2, 3));
    image.SetTransColor(quad(50, 60, 70));
    EXPECT_EQ(hex(image.GetPixelColor(0, 4)), 0x010203U);
    image.SetTransIndex(0);
    EXPECT_EQ(hex(image.GetPixelColor(0, 4)), 0x323C46U);
}

TEST(ImagePixels, a_colour_of_an_empty_image_is_the_transparent_colour)
{
    CKxGifImage image;
    image.SetTransColor(quad(50, 60, 70));
    EXPECT_EQ(hex(image.GetPixelColor(0, 0)), 0x323C46U);
    CKxGifImage destroyed(4, 4, 24);
    destroyed.SetTransColor(quad(50, 60, 70));
    destroyed.Destroy();
    EXPECT_EQ(hex(destroyed.GetPixelColor(1, 1)), 0x323C46U);
}

TEST(ImagePixels, grey_weighs_the_channels)
{
    struct Row
    {
        RGBQUAD color;
        int gray;
    };
    for (const Row& row : {Row{quad(255, 255, 255), 255}, Row{quad(0, 0, 0), 0}, Row{quad(255, 0, 0), 76},
                           Row{quad(0, 255, 0), 149}, Row{quad(0, 0, 255), 29}, Row{quad(128, 128, 128), 128}})
    {
        CKxGifImage image(1, 1, 24);
        image.SetPixelColor(0, 0, row.color);
        EXPECT_EQ(image.GetPixelGray(0, 0), row.gray) << hex(row.color);
    }
}

TEST(ImagePixels, a_colour_is_stored_as_the_nearest_index)
{
    CKxGifImage image(1, 1, 8);
    image.SetGrayPalette();
    image.SetPixelColor(0, 0, quad(100, 102, 101));
    EXPECT_EQ(image.GetPixelIndex(0, 0), 101);
    image.SetPixelColor(0, 0, 0x0000FFUL); // pure red: 85 is nearest to a third of it
    EXPECT_EQ(image.GetPixelIndex(0, 0), 85);
}

TEST(ImagePixels, an_exact_match_stores_the_lowest_index)
{
    CKxGifImage image(1, 1, 8);
    image.SetPaletteColor(200, 10, 20, 30);
    image.SetPaletteColor(30, 10, 20, 30);
    image.SetPaletteColor(31, 10, 20, 30);
    image.SetPixelColor(0, 0, quad(10, 20, 30));
    EXPECT_EQ(image.GetPixelIndex(0, 0), 30);
}

TEST(ImagePixels, byte_orders_are_converted)
{
    EXPECT_EQ(hex(CKxGifImage::RGBtoRGBQUAD(0xAA332211)), 0x112233U);
    EXPECT_EQ(CKxGifImage::RGBQUADtoRGB(quad(0x11, 0x22, 0x33, 0xAA)), 0x332211U);
}

TEST(ImageTransparency, is_set_by_an_index_of_zero_or_more)
{
    CKxGifImage image(2, 2, 8);
    EXPECT_FALSE(image.IsTransparent());
    image.SetTransIndex(0);
    EXPECT_TRUE(image.IsTransparent());
    image.SetTransIndex(-2);
    EXPECT_FALSE(image.IsTransparent());
    EXPECT_FALSE(image.IsTransparent(0, 0));
}

TEST(ImageTransparency, of_an_indexed_pixel_is_its_index)
{
    CKxGifImage image(2, 2, 8);
    image.SetPixelIndex(1, 1, 7);
    EXPECT_FALSE(image.IsTransparent(1, 1));
    image.SetTransIndex(7);
    EXPECT_TRUE(image.IsTransparent(1, 1));
    EXPECT_FALSE(image.IsTransparent(0, 0));
    EXPECT_TRUE(image.IsTransparent(-1, 0)); // outside
    image.SetTransIndex(0x107);
    EXPECT_FALSE(image.IsTransparent(1, 1));
    EXPECT_FALSE(image.IsTransparent(-1, 0));
    image.Destroy();
    EXPECT_FALSE(image.IsTransparent(1, 1));
}

TEST(ImageTransparency, of_a_true_colour_pixel_is_its_colour)
{
    CKxGifImage image(2, 2, 24);
    image.SetPixelColor(1, 1, quad(1, 2, 3));
    image.SetTransColor(quad(1, 2, 3, 200)); // the reserved byte is dropped
    EXPECT_FALSE(image.IsTransparent(1, 1));
    image.SetTransIndex(0);
    EXPECT_TRUE(image.IsTransparent(1, 1));
    EXPECT_FALSE(image.IsTransparent(0, 0));
}

TEST(ImageTransparency, the_colour_comes_from_the_palette_or_from_the_image)
{
    CKxGifImage image(2, 2, 8);
    image.SetPaletteColor(7, quad(1, 2, 3, 4));
    image.SetTransColor(quad(50, 60, 70));
    EXPECT_EQ(hex(image.GetTransColor()), 0x323C46U);
    image.SetTransIndex(7);
    EXPECT_EQ(hex(image.GetTransColor()), 0x04010203U);
    CKxGifImage trueColor(2, 2, 24);
    trueColor.SetTransColor(quad(50, 60, 70));
    trueColor.SetTransIndex(7);
    EXPECT_EQ(hex(trueColor.GetTransColor()), 0x323C46U);
}

TEST(NearestIndex, of_equal_distances_is_the_lowest)
{
    CKxGifImage image(1, 1, 4);
    image.SetPaletteColor(0, 255, 255, 255);
    image.SetPaletteColor(3, 110, 100, 100);
    image.SetPaletteColor(4, 90, 100, 100);
    for (unsigned char i = 5; i < 16; ++i)
        image.SetPaletteColor(i, 90, 100, 100);
    EXPECT_EQ(image.GetNearestIndex(quad(100, 100, 100)), 3);
}

TEST(NearestIndex, of_the_farthest_colours_is_found)
{
    CKxGifImage image(1, 1, 1);
    EXPECT_EQ(image.GetNearestIndex(quad(255, 255, 255)), 0); // 195,075 from each
    image.SetPaletteColor(1, 1, 0, 0);
    EXPECT_EQ(image.GetNearestIndex(quad(255, 255, 255)), 1);
}

TEST(NearestIndex, is_limited_to_the_important_colours)
{
    CKxGifImage image(1, 1, 8);
    image.SetGrayPalette();
    image.SetClrImportant(16);
    for (int gray = 0; gray < 256; ++gray)
        EXPECT_EQ(image.GetNearestIndex(quad(gray, gray, gray)), std::min(gray, 15));
}

TEST(NearestIndex, stays_in_the_palette_when_the_head_claims_more)
{
    ExposedImage image(1, 1, 1);
    image.SetGrayPalette();
    image.m_Head.biClrImportant = 100000;
    EXPECT_EQ(image.GetNearestIndex(quad(200, 200, 200)), 1);
}

TEST(NearestIndex, remembers_one_colour_in_all_its_32_bits)
{
    CKxGifImage image(1, 1, 8);
    image.SetGrayPalette();
    EXPECT_EQ(image.GetNearestIndex(quad(50, 50, 50)), 50);
    image.SetClrImportant(10); // does not drop what is remembered
    EXPECT_EQ(image.GetNearestIndex(quad(50, 50, 50)), 50);
    EXPECT_EQ(image.GetNearestIndex(quad(50, 50, 50, 1)), 9);
    EXPECT_EQ(image.GetNearestIndex(quad(50, 50, 50)), 9);
}

TEST(NearestIndex, every_palette_write_drops_what_is_remembered)
{
    using Write = void (*)(CKxGifImage&);
    unsigned char channel[2] = {1, 2};
    static unsigned char* const channels = channel;
    const Write writes[] = {
        [](CKxGifImage& image) { image.SetPaletteColor(200, 1, 2, 3); },
        [](CKxGifImage& image) { image.SetPaletteColor(200, quad(1, 2, 3)); },
        [](CKxGifImage& image) { image.SetPaletteColor(200, 0x112233UL); },
        [](CKxGifImage& image) { image.SetPalette(1UL, channels, nullptr, nullptr); },
        [](CKxGifImage& image)
        {
            rgb_color color{1, 2, 3};
            image.SetPalette(&color, 1);
        },
        [](CKxGifImage& image)
        {
            RGBQUAD color{};
            image.SetPalette(&color, 1);
        },
        [](CKxGifImage& image) { image.SetGrayPalette(); },
        [](CKxGifImage& image) { image.SetStdPalette(); },
        [](CKxGifImage& image) { image.BlendPalette(0, 1); },
        [](CKxGifImage& image) { image.SwapIndex(200, 201); },
    };
    for (const Write write : writes)
    {
        ExposedImage image(1, 1, 8);
        image.SetGrayPalette();
        image.GetNearestIndex(quad(50, 50, 50));
        EXPECT_TRUE(image.m_Info.bLastValid);
        write(image);
        EXPECT_FALSE(image.m_Info.bLastValid) << &write - writes;
    }
}

TEST(NearestIndex, without_palette_is_zero)
{
    EXPECT_EQ(CKxGifImage().GetNearestIndex(quad(1, 2, 3)), 0);
    EXPECT_EQ(CKxGifImage(1, 1, 24).GetNearestIndex(quad(1, 2, 3)), 0);
}
