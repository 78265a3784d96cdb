// The information record: accessors, resolution, flags, cancelling, comment.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>
#include "ExposedImage.h"

TEST(ImageInformation, flags_lose_their_high_half_when_the_reserved_bits_are_locked)
{
    CKxGifImage image;
    image.SetFlags(0x12345678, false);
    EXPECT_EQ(image.GetFlags(), 0x12345678U);
    image.SetFlags(0xABCDEF01, true);
    EXPECT_EQ(image.GetFlags(), 0xEF01U);
}

TEST(ImageInformation, resolution_sets_the_pixels_per_metre)
{
    struct Row
    {
        long dpi;
        long kept;
        long perMetre;
    };
    const Row rows[] = {{96, 96, 3780}, {1, 1, 39},        {0, 96, 3780},     {-5, 96, 3780},   {LONG_MIN, 96, 3780},
                        {72, 72, 2835}, {254, 254, 10000}, {300, 300, 11811}, {600, 600, 23622}};
    for (const Row& row : rows)
    {
        ExposedImage image;
        image.SetXDPI(row.dpi);
        image.SetYDPI(row.dpi);
        EXPECT_EQ(image.GetXDPI(), row.kept) << row.dpi;
        EXPECT_EQ(image.GetYDPI(), row.kept) << row.dpi;
        EXPECT_EQ(image.m_Head.biXPelsPerMeter, row.perMetre) << row.dpi;
        EXPECT_EQ(image.m_Head.biYPelsPerMeter, row.perMetre) << row.dpi;
    }
}

TEST(ImageInformation, a_resolution_that_no_header_can_hold_stays_at_the_largest)
{
    ExposedImage image;
    image.SetXDPI(LONG_MAX);
    EXPECT_EQ(image.GetXDPI(), INT_MAX);
    EXPECT_EQ(image.m_Head.biXPelsPerMeter, INT_MAX);
}

TEST(ImageInformation, horizontal_and_vertical_resolution_are_apart)
{
    CKxGifImage image;
    image.SetXDPI(10);
    image.SetYDPI(20);
    EXPECT_EQ(image.GetXDPI(), 10);
    EXPECT_EQ(image.GetYDPI(), 20);
}

TEST(ImageInformation, plain_fields_are_kept)
{
    ExposedImage image;
    image.Enable(false);
    EXPECT_FALSE(image.IsEnabled());
    image.SetFrame(12);
    EXPECT_EQ(image.GetFrame(), 12);
    image.SetFrameDelay(65536);
    EXPECT_EQ(image.GetFrameDelay(), 65536U);
    image.SetLoops(-3);
    EXPECT_EQ(image.GetLoops(), -3);
    image.SetDisposalMethod(2);
    EXPECT_EQ(image.GetDisposalMethod(), 2);
    image.SetTransIndex(-7);
    EXPECT_EQ(image.GetTransIndex(), -7);
    image.SetOffset(-3, 70000);
    long x = 0;
    long y = 0;
    image.GetOffset(&x, &y);
    EXPECT_EQ(x, -3);
    EXPECT_EQ(y, 70000);
    image.GetOffset(nullptr, nullptr);
    image.SetEscape(-1);
    EXPECT_EQ(image.GetEscape(), -1);
    EXPECT_EQ(image.m_Info.nEscape, -1);
}

TEST(ImageInformation, a_comment_is_cut_to_255_bytes)
{
    CKxGifImage image;
    char back[256];
    std::memset(back, 'x', sizeof back);
    image.SetComment(std::string(300, 'c').c_str());
    image.GetComment(back);
    EXPECT_EQ(std::string(back, 256), std::string(255, 'c') + "x"); // the byte behind is not touched
}

TEST(ImageInformation, a_comment_is_filled_up_with_zeros_and_replaced_whole)
{
    CKxGifImage image;
    image.SetComment("a long comment");
    image.SetComment("ab");
    image.SetComment(nullptr);
    char back[256];
    std::memset(back, 'x', sizeof back);
    image.GetComment(back);
    EXPECT_EQ(std::string(back, 255), "ab" + std::string(253, '\0'));
    EXPECT_EQ(back[255], 'x');
    image.GetComment(nullptr);
}
