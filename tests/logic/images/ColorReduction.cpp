// DecreaseBpp: what it refuses, what palette comes out, where errors go.
#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <thread>
#include <vector>
#include "ExposedImage.h"

namespace
{
CKxGifImage grayRamp(unsigned long width, unsigned long bpp)
{
    CKxGifImage image(width, 1, bpp);
    image.SetGrayPalette();
    for (long x = 0; x < static_cast<long>(width); ++x)
    {
        const int gray = static_cast<int>(x * 255 / (static_cast<long>(width) - 1));
        image.SetPixelColor(x, 0, quad(gray, gray, gray));
    }
    return image;
}

// Whether the work was stopped, and not done before the other thread came.
bool stopInTheMiddle()
{
    CKxGifImage image(2000, 2000, 24);
    image.Clear(200);
    std::atomic<bool> done = false;
    std::thread other(
        [&]
        {
            while (!done && image.GetProgress() == 0)
                std::this_thread::yield();
            if (!done)
                image.SetEscape(1);
        });
    EXPECT_TRUE(image.DecreaseBpp(8, true, nullptr, 0));
    done = true;
    other.join();
    EXPECT_EQ(image.GetBpp(), 8);
    EXPECT_NE(image.GetPixelIndex(0, 0), 0);
    return image.GetPixelIndex(0, 1999) == 0;
}
} // namespace

TEST(ColorReduction, refuses_an_empty_image_and_a_greater_depth)
{
    EXPECT_FALSE(CKxGifImage().DecreaseBpp(1, false, nullptr, 0));
    CKxGifImage image(3, 3, 4);
    image.SetPixelIndex(1, 1, 9);
    const void* const block = image.GetDIB();
    EXPECT_FALSE(image.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_FALSE(image.DecreaseBpp(5, true, nullptr, 7));
    EXPECT_FALSE(image.DecreaseBpp(ULONG_MAX, true, nullptr, 7));
    EXPECT_EQ(image.GetDIB(), block);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 9);
}

TEST(ColorReduction, at_the_same_depth_does_nothing_unless_colours_are_to_go)
{
    CKxGifImage image(3, 3, 8);
    const void* const block = image.GetDIB();
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_EQ(image.GetDIB(), block);
    image.SetClrImportant(10);
    EXPECT_TRUE(image.DecreaseBpp(8, true, nullptr, 11)); // has fewer already
    EXPECT_EQ(image.GetDIB(), block);
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 10));
    EXPECT_NE(image.GetDIB(), block);
    EXPECT_EQ(image.GetClrImportant(), 10U);
}

TEST(ColorReduction, of_true_colour_to_true_colour_is_refused_when_colours_are_to_go)
{
    CKxGifImage image(3, 3, 24);
    EXPECT_TRUE(image.DecreaseBpp(24, false, nullptr, 0));
    EXPECT_FALSE(image.DecreaseBpp(24, false, nullptr, 16));
    EXPECT_FALSE(image.DecreaseBpp(9, false, nullptr, 0)); // rounded up to 24
    EXPECT_TRUE(image.IsValid());
    EXPECT_EQ(image.GetBpp(), 24);
}

TEST(ColorReduction, rounds_the_depth_up)
{
    struct Row
    {
        unsigned long asked;
        int depth;
    };
    for (const Row& row : {Row{0, 1}, Row{1, 1}, Row{2, 4}, Row{4, 4}, Row{5, 8}, Row{8, 8}})
    {
        CKxGifImage image(3, 3, 24);
        EXPECT_TRUE(image.DecreaseBpp(row.asked, false, nullptr, 0));
        EXPECT_EQ(image.GetBpp(), row.depth) << row.asked;
        EXPECT_EQ(image.GetWidth(), 3U);
        EXPECT_EQ(image.GetHeight(), 3U);
    }
}

TEST(ColorReduction, to_1_bit_takes_the_nearer_of_black_and_white)
{
    CKxGifImage image = grayRamp(256, 24);
    EXPECT_TRUE(image.DecreaseBpp(1, false, nullptr, 0));
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0U);
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0xFFFFFFU);
    EXPECT_EQ(image.GetPixelIndex(127, 0), 0);
    EXPECT_EQ(image.GetPixelIndex(128, 0), 1);
}

TEST(ColorReduction, to_4_bits_with_diffusion_uses_the_16_colours)
{
    CKxGifImage image = grayRamp(64, 24);
    EXPECT_TRUE(image.DecreaseBpp(4, true, nullptr, 0));
    EXPECT_EQ(image.GetBpp(), 4);
    EXPECT_EQ(hex(image.GetPaletteColor(7)), 0xC0C0C0U);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0);
    EXPECT_EQ(image.GetPixelIndex(63, 0), 15);
}

TEST(ColorReduction, to_8_bits_uses_the_256_colours)
{
    CKxGifImage image(2, 1, 24);
    image.SetPixelColor(0, 0, quad(0xA6, 0xCA, 0xF0));
    image.SetPixelColor(1, 0, quad(0xA0, 0xA0, 0xA5));
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_EQ(image.GetPixelIndex(0, 0), 9);
    EXPECT_EQ(image.GetPixelIndex(1, 0), 247);
}

TEST(ColorReduction, takes_the_palette_that_it_is_given)
{
    std::vector<RGBQUAD> palette(256, quad(255, 255, 255));
    palette[0] = quad(10, 0, 0, 7);
    palette[1] = quad(0, 10, 0);
    for (const unsigned long bits : {1UL, 4UL, 8UL})
    {
        CKxGifImage image(2, 1, 24);
        image.SetPixelColor(0, 0, quad(0, 9, 0));
        EXPECT_TRUE(image.DecreaseBpp(bits, false, palette.data(), 0));
        EXPECT_EQ(image.GetPixelIndex(0, 0), 1);
        EXPECT_EQ(hex(image.GetPaletteColor(0)), 0x070A0000U);
    }
}

TEST(ColorReduction, takes_the_important_colours_only)
{
    CKxGifImage image = grayRamp(256, 24);
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 2)); // black and 800000
    EXPECT_EQ(image.GetClrImportant(), 2U);
    EXPECT_EQ(image.GetPixelIndex(42, 0), 0); // 5,292 from black, 10,924 from the other
    EXPECT_EQ(image.GetPixelIndex(255, 0), 1);
}

TEST(ColorReduction, a_picture_of_1_bit_comes_out_black_and_white_whatever_the_palette_says)
{
    RGBQUAD palette[2] = {quad(255, 0, 0), quad(0, 0, 255)};
    CKxGifImage image(2, 1, 1);
    image.SetPaletteColor(1, 0, 0, 200);
    image.SetPixelIndex(1, 0, 1);
    EXPECT_TRUE(image.DecreaseBpp(1, false, palette, 2));
    EXPECT_EQ(hex(image.GetPaletteColor(0)), 0U);
    EXPECT_EQ(hex(image.GetPaletteColor(1)), 0xFFFFFFU);
    EXPECT_EQ(image.GetPixelIndex(0, 0), 0); // black is as far from red as from blue: the lower
    EXPECT_EQ(image.GetPixelIndex(1, 0), 1); // but chosen by what the palette said
}

TEST(ColorReduction, information_is_kept)
{
    ExposedImage image(2, 1, 24);
    image.SetTransIndex(5);
    image.SetFlags(9, false);
    image.SetComment("kept");
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_EQ(image.GetTransIndex(), 5);
    EXPECT_EQ(image.GetFlags(), 9U);
    EXPECT_EQ(image.m_Info.pGhostOf, nullptr);
    char comment[255];
    image.GetComment(comment);
    EXPECT_STREQ(comment, "kept");
}

TEST(ColorReduction, progress_and_escape_are_those_from_before_the_work)
{
    ExposedImage image(2, 100, 24);
    image.m_Info.nProgress = 77;
    EXPECT_TRUE(image.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_EQ(image.GetProgress(), 77U);
    EXPECT_EQ(image.GetEscape(), 0);
}

TEST(ColorReduction, an_escape_leaves_the_rows_at_zero_and_is_still_true)
{
    for (const long escape : {1L, -1L})
    {
        CKxGifImage image(4, 4, 24);
        image.Clear(255);
        image.SetEscape(escape);
        EXPECT_TRUE(image.DecreaseBpp(8, true, nullptr, 0));
        EXPECT_EQ(image.GetBpp(), 8);
        EXPECT_EQ(image.GetPixelIndex(0, 0), 0);
        EXPECT_EQ(image.GetPixelIndex(3, 3), 0);
        EXPECT_EQ(image.GetEscape(), escape);
        EXPECT_EQ(hex(image.GetPaletteColor(255)), 0xFFFFFFU);
    }
}

// The error of grey 100 on black is 100; its sixteenths, cut, are 43, 12, 25, 6 for the weights 7, 2, 4, 1.
TEST(ErrorDiffusion, spreads_7_2_4_and_1_sixteenths)
{
    ExposedImage image(3, 2, 24);
    image.SetPixelColor(1, 0, quad(100, 100, 100));
    const CKxGifImage shared(image);
    ASSERT_TRUE(image.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(hex(shared.GetPixelColor(1, 0)), 0x646464U);
    // (2, 0) got 43 and passes on 43 * 2 / 16 = 5 to (1, 1), 43 * 4 / 16 = 10 to (2, 1).
    EXPECT_EQ(hex(shared.GetPixelColor(2, 0)), 0x2B2B2BU);
    // In row 1: (0, 1) has 12. (1, 1) has 25 + 5, and 12 * 7 / 16 = 5 more. (2, 1) has 6 + 10, and 35 * 7 / 16 = 15 more.
    EXPECT_EQ(hex(shared.GetPixelColor(0, 1)), 0x0C0C0CU);
    EXPECT_EQ(hex(shared.GetPixelColor(1, 1)), 0x232323U);
    EXPECT_EQ(hex(shared.GetPixelColor(2, 1)), 0x1F1F1FU);
}

// The error of grey 200 on white is -55: -24 to the right (-385 / 16), cut towards zero.
TEST(ErrorDiffusion, cuts_negative_shares_towards_zero)
{
    ExposedImage image(2, 1, 24);
    image.SetPixelColor(0, 0, quad(200, 200, 200));
    image.SetPixelColor(1, 0, quad(100, 20, 255));
    const CKxGifImage shared(image);
    ASSERT_TRUE(image.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(hex(shared.GetPixelColor(1, 0)), 0x4C00E7U); // 76, 0 (limited), 231
}

TEST(ErrorDiffusion, limits_at_255)
{
    ExposedImage image(2, 1, 24);
    image.SetPixelColor(0, 0, quad(120, 120, 120));
    image.SetPixelColor(1, 0, quad(255, 210, 0));
    const CKxGifImage shared(image);
    ASSERT_TRUE(image.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(hex(shared.GetPixelColor(1, 0)), 0xFFFF34U); // 120 * 7 / 16 = 52
}

TEST(ErrorDiffusion, into_an_indexed_picture_goes_through_its_own_palette)
{
    CKxGifImage image(2, 1, 8);
    image.SetPaletteColor(0, 100, 100, 100);
    image.SetPaletteColor(1, 0, 0, 0);
    for (int i = 2; i < 256; ++i)
        image.SetPaletteColor(static_cast<unsigned char>(i), 60, 60, 60);
    image.SetPixelIndex(1, 0, 1);
    const CKxGifImage shared(image);
    ASSERT_TRUE(image.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(shared.GetPixelIndex(1, 0), 2); // 0 + 43 is nearer to 60 than to 0
}

TEST(ErrorDiffusion, an_indexed_pixel_that_gets_no_error_is_chosen_anew_all_the_same)
{
    CKxGifImage image(2, 1, 8);
    image.SetPixelIndex(1, 0, 7); // black, as entry 0 is
    const CKxGifImage shared(image);
    ASSERT_TRUE(image.DecreaseBpp(1, true, nullptr, 0));
    EXPECT_EQ(shared.GetPixelIndex(1, 0), 0);
}

TEST(ColorReduction, is_stopped_from_another_thread)
{
    bool stopped = false;
    for (int i = 0; i < 50 && !stopped; ++i)
        stopped = stopInTheMiddle();
    EXPECT_TRUE(stopped);
}
