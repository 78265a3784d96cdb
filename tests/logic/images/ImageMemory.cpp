// The block of an image: creating, clearing, sizes, limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include "ExposedImage.h"

TEST(ImageMemory, a_new_image_is_empty)
{
    ExposedImage image;
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetDIB(), nullptr);
    EXPECT_EQ(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetWidth(), 0U);
    EXPECT_EQ(image.GetHeight(), 0U);
    EXPECT_EQ(image.GetEffWidth(), 0U);
    EXPECT_EQ(image.GetBpp(), 0);
    EXPECT_EQ(image.GetNumColors(), 0U);
    EXPECT_EQ(image.GetSize(), 0);
    EXPECT_EQ(image.GetTransIndex(), -1);
    EXPECT_TRUE(image.IsEnabled());
    EXPECT_EQ(image.GetXDPI(), 96);
    EXPECT_EQ(image.GetYDPI(), 96);
    EXPECT_EQ(image.m_Head.biXPelsPerMeter, 3780);
    EXPECT_EQ(image.m_Head.biYPelsPerMeter, 3780);
    EXPECT_EQ(image.GetLoops(), 0);
    EXPECT_EQ(image.GetDisposalMethod(), 0);
    EXPECT_EQ(image.GetFrame(), 0);
    EXPECT_EQ(image.GetNumFrames(), 0);
    EXPECT_EQ(image.GetFlags(), 0U);
    char comment[255];
    std::memset(comment, 'x', sizeof comment);
    image.GetComment(comment);
    EXPECT_TRUE(std::ranges::all_of(comment, [](char c) { return c == 0; }));
    EXPECT_TRUE(image.Destroy());
}

TEST(ImageMemory, depth_is_rounded_up_and_gives_stride_and_colours)
{
    struct Row
    {
        unsigned long bpp;
        int depth;
        unsigned long stride; // of 10 pixels
        unsigned long colors;
    };
    const Row rows[] = {
        {0, 1, 4, 2},    {1, 1, 4, 2},    {2, 4, 8, 16},  {3, 4, 8, 16},   {4, 4, 8, 16},
        {5, 8, 12, 256}, {8, 8, 12, 256}, {9, 24, 32, 0}, {24, 24, 32, 0}, {ULONG_MAX, 24, 32, 0},
    };
    for (const Row& row : rows)
    {
        ExposedImage image(10, 7, row.bpp);
        ASSERT_TRUE(image.IsValid());
        EXPECT_EQ(image.GetBpp(), row.depth) << row.bpp;
        EXPECT_EQ(image.GetEffWidth(), row.stride) << row.bpp;
        EXPECT_EQ(image.GetNumColors(), row.colors) << row.bpp;
        EXPECT_EQ(image.GetPaletteSize(), 4 * row.colors);
        EXPECT_EQ(image.GetSize(), static_cast<long>(40 + 4 * row.colors + 7 * row.stride));
        EXPECT_EQ(image.GetColorType(), row.depth == 24 ? 2 : 1);
        EXPECT_EQ(image.IsIndexed(), row.depth != 24);
    }
}

TEST(ImageMemory, stride_is_a_multiple_of_four)
{
    struct Row
    {
        unsigned long width;
        unsigned long bpp;
        unsigned long stride;
    };
    for (const Row& row : {Row{1, 1, 4}, Row{32, 1, 4}, Row{33, 1, 8}, Row{8, 4, 4}, Row{9, 4, 8}, Row{4, 8, 4},
                           Row{5, 8, 8}, Row{1, 24, 4}, Row{2, 24, 8}, Row{4, 24, 12}})
        EXPECT_EQ(CKxGifImage(row.width, 1, row.bpp).GetEffWidth(), row.stride) << row.width << " at " << row.bpp;
}

TEST(ImageMemory, the_block_begins_with_the_header_and_is_zero_behind_it)
{
    ExposedImage image;
    auto* const block = static_cast<unsigned char*>(image.Create(10, 7, 8));
    ASSERT_EQ(block, image.GetDIB());
    BITMAPINFOHEADER head;
    std::memcpy(&head, block, sizeof head);
    EXPECT_EQ(head.biSize, 40U);
    EXPECT_EQ(head.biWidth, 10);
    EXPECT_EQ(head.biHeight, 7);
    EXPECT_EQ(head.biPlanes, 1);
    EXPECT_EQ(head.biBitCount, 8);
    EXPECT_EQ(head.biCompression, 0U);
    EXPECT_EQ(head.biSizeImage, 84U);
    EXPECT_EQ(head.biXPelsPerMeter, 3780);
    EXPECT_EQ(head.biYPelsPerMeter, 3780);
    EXPECT_EQ(head.biClrUsed, 256U);
    EXPECT_EQ(head.biClrImportant, 0U);
    EXPECT_EQ(image.GetBits(), block + 40 + 1024);
    EXPECT_EQ(image.GetBits(6), block + 40 + 1024 + 72);
    EXPECT_TRUE(std::all_of(block + 40, block + image.GetSize(), [](unsigned char value) { return value == 0; }));
}

TEST(ImageMemory, pixels_of_a_new_image_are_zero_and_no_leftovers)
{
    for (int i = 0; i < 20; ++i)
    {
        CKxGifImage image(100, 100, 8);
        EXPECT_TRUE(
            std::all_of(image.GetBits(), image.GetBits() + 10000, [](unsigned char value) { return value == 0; }));
        image.Clear(255);
    }
}

TEST(ImageMemory, resolution_stays_when_an_image_is_created_anew)
{
    ExposedImage image;
    image.SetXDPI(300);
    image.Create(2, 2, 8);
    EXPECT_EQ(image.m_Head.biXPelsPerMeter, 11811);
    EXPECT_EQ(static_cast<BITMAPINFOHEADER*>(image.GetDIB())->biXPelsPerMeter, 11811);
}

TEST(ImageMemory, creating_anew_forgets_the_important_colours)
{
    CKxGifImage image(2, 2, 8);
    image.SetClrImportant(7);
    image.Create(2, 2, 8);
    EXPECT_EQ(image.GetClrImportant(), 0U);
}

TEST(ImageMemory, a_size_of_zero_is_refused_and_destroys)
{
    CKxGifImage image(3, 3, 8);
    EXPECT_EQ(image.Create(0, 5, 8), nullptr);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetWidth(), 3U); // the head keeps what it had
    EXPECT_EQ(image.Create(5, 0, 8), nullptr);
    EXPECT_FALSE(CKxGifImage(0, 0, 0).IsValid());
}

TEST(ImageMemory, sizes_above_the_limit_are_refused_whatever_their_product_wraps_to)
{
    struct Row
    {
        unsigned long width;
        unsigned long height;
    };
    const unsigned long most = CKxGifImage::MaximumPixels;
    const Row rows[] = {
        {65535, 65535},  {16385, 16384},           {16384, 16385},         {most, 2},       {2, most}, {most + 1, 1},
        {1, most + 1},   {0x10000, 0x10000}, // 2^32 pixels
        {0x80000000, 2}, {0xFFFFFFFF, 0xFFFFFFFF}, {ULONG_MAX, ULONG_MAX}, {0x20000000, 8},
    };
    for (const Row& row : rows)
    {
        CKxGifImage image(2, 2, 1);
        EXPECT_EQ(image.Create(row.width, row.height, 8), nullptr) << row.width << " by " << row.height;
        EXPECT_FALSE(image.IsValid());
        EXPECT_EQ(image.GetPixelIndex(1, 1), 0);
        image.SetPixelIndex(1, 1, 1);
        image.Clear(1);
    }
}

TEST(ImageMemory, the_limit_itself_is_granted)
{
    EXPECT_GE(CKxGifImage::MaximumPixels, 16384UL * 16384UL);
    CKxGifImage image(16384, 16384, 1);
    ASSERT_TRUE(image.IsValid());
    EXPECT_EQ(image.GetSize(), 40 + 8 + 16384L * 2048);
    image.SetPixelIndex(16383, 16383, 1);
    EXPECT_EQ(image.GetPixelIndex(16383, 16383), 1);
    // Very wide: 24 bits times the width needs more than 32 bits.
    ASSERT_TRUE(image.Create(CKxGifImage::MaximumPixels, 1, 1));
    EXPECT_EQ(image.GetEffWidth(), CKxGifImage::MaximumPixels / 8);
}

TEST(ImageMemory, rows_are_found_up_to_the_height)
{
    CKxGifImage image(10, 3, 8);
    EXPECT_NE(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetBits(2), image.GetBits() + 24);
    EXPECT_EQ(image.GetBits(3), nullptr);
    EXPECT_EQ(image.GetBits(ULONG_MAX), nullptr);
}

TEST(ImageMemory, destroying_clears_the_pointers_and_keeps_the_head)
{
    ExposedImage image(4, 4, 8);
    image.m_pAlpha = SharedBytes::Allocate(16);
    image.m_pSelection = SharedBytes::Allocate(16);
    EXPECT_TRUE(image.Destroy());
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.m_pAlpha.Get(), nullptr);
    EXPECT_EQ(image.m_pSelection.Get(), nullptr);
    EXPECT_EQ(image.GetWidth(), 4U);
    EXPECT_EQ(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetPalette(), nullptr);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 0);
    EXPECT_EQ(hex(image.GetPixelColor(1, 1)), 0U);
    image.SetPixelIndex(1, 1, 1);
    image.SetPixelColor(1, 1, quad(1, 2, 3));
    image.SetPaletteColor(0, 1, 2, 3);
    image.Clear(9);
    image.SwapIndex(0, 1);
    EXPECT_EQ(image.GetNearestIndex(quad(1, 2, 3)), 0);
    EXPECT_FALSE(image.DecreaseBpp(4, false, nullptr, 0));
    EXPECT_TRUE(image.Destroy());
}

TEST(ImageMemory, inside_is_what_the_head_says)
{
    CKxGifImage image(10, 7, 8);
    EXPECT_TRUE(image.IsInside(0, 0));
    EXPECT_TRUE(image.IsInside(9, 6));
    EXPECT_FALSE(image.IsInside(10, 6));
    EXPECT_FALSE(image.IsInside(9, 7));
    EXPECT_FALSE(image.IsInside(-1, 0));
    EXPECT_FALSE(image.IsInside(0, -1));
    EXPECT_FALSE(image.IsInside(LONG_MAX, LONG_MIN));
}

TEST(ImageMemory, clearing_fills_every_byte_of_the_pixels)
{
    struct Row
    {
        unsigned long bpp;
        unsigned char value;
        unsigned char filled;
    };
    const Row rows[] = {{1, 0, 0},    {1, 1, 255},     {1, 128, 255},    {4, 0x23, 0x33}, {4, 0x0F, 0xFF},
                        {4, 0x10, 0}, {8, 0x23, 0x23}, {24, 0x23, 0x23}, {24, 255, 255}};
    for (const Row& row : rows)
    {
        CKxGifImage image(9, 3, row.bpp);
        image.Clear(row.value);
        const unsigned char* const first = image.GetBits();
        const unsigned char* const end = static_cast<unsigned char*>(image.GetDIB()) + image.GetSize();
        EXPECT_TRUE(std::all_of(first, end, [&](unsigned char value) { return value == row.filled; }))
            << row.bpp << " " << int{row.value};
    }
}

TEST(ImageMemory, clearing_leaves_the_palette)
{
    CKxGifImage image(9, 3, 8);
    image.SetStdPalette();
    image.Clear(255);
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0U);
    EXPECT_EQ(hex(image.GetPaletteColor(255)), 0xFFFFFFU);
}
