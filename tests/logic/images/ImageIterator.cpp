// Walking rows and bytes of an image, inside and at its edges.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>
#include "ExposedImage.h"

namespace
{
// 5 by 4 at 8 bits, stride 8: byte x of row y is 10 * y + x, the three bytes behind the row included.
CKxGifImage counted()
{
    CKxGifImage image(5, 4, 8);
    for (unsigned long y = 0; y < 4; ++y)
        for (int x = 0; x < 8; ++x)
            image.GetBits(y)[x] = static_cast<unsigned char>(10 * y + static_cast<unsigned long>(x));
    return image;
}
} // namespace

TEST(ImageIterator, without_image_everything_is_zero)
{
    for (CKxGifImageIterator iterator : {CKxGifImageIterator(), CKxGifImageIterator(nullptr)})
    {
        unsigned char buffer[4] = {1, 2, 3, 4};
        EXPECT_EQ(static_cast<CKxGifImage*>(iterator), nullptr);
        EXPECT_EQ(iterator.ItOK(), 0);
        EXPECT_EQ(iterator.GetY(), 0);
        EXPECT_EQ(iterator.GetRow(), nullptr);
        EXPECT_EQ(iterator.GetRow(0), nullptr);
        EXPECT_EQ(iterator.GetByte(), 0);
        iterator.SetByte(1);
        iterator.SetRow(buffer, 4);
        iterator.GetRow(buffer, 4);
        EXPECT_EQ(buffer[3], 4);
        iterator.Reset();
        iterator.Upset();
        iterator.SetY(3);
        EXPECT_EQ(iterator.GetY(), 0);
        EXPECT_EQ(iterator.GetCol(buffer, 0), 0);
        EXPECT_EQ(iterator.SetCol(buffer, 0), 0);
        EXPECT_EQ(iterator.NextRow(), 0);
        EXPECT_EQ(iterator.PrevRow(), 1); // from row 1 to row 0
        EXPECT_EQ(iterator.PrevRow(), 0);
        EXPECT_EQ(iterator.NextByte(), 0);
        int stepX = 9;
        int stepY = 9;
        iterator.GetSteps(&stepX, &stepY);
        EXPECT_EQ(stepX, 0);
        EXPECT_EQ(stepY, 0);
    }
}

TEST(ImageIterator, over_an_empty_image_nothing_is_read_or_written)
{
    CKxGifImage image(5, 4, 8);
    image.Destroy();
    CKxGifImageIterator iterator(&image);
    unsigned char buffer[16] = {7};
    EXPECT_EQ(iterator.GetRow(), nullptr);
    iterator.SetRow(buffer, -1);
    iterator.GetRow(buffer, 4);
    EXPECT_EQ(buffer[0], 7);
    iterator.Upset();
    EXPECT_EQ(iterator.GetY(), 3);
    EXPECT_EQ(iterator.GetRow(), nullptr);
    EXPECT_EQ(iterator.GetCol(buffer, 0), 0);
    EXPECT_EQ(iterator.GetByte(), 0);
}

TEST(ImageIterator, begins_at_the_bottom_row)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    EXPECT_EQ(static_cast<CKxGifImage*>(iterator), &image);
    EXPECT_EQ(iterator.ItOK(), 1);
    EXPECT_EQ(iterator.GetRow(), image.GetBits());
    EXPECT_EQ(iterator.GetByte(), 0);
}

TEST(ImageIterator, walks_the_rows_up)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    for (int y = 1; y < 4; ++y)
    {
        EXPECT_EQ(iterator.NextRow(), 1);
        EXPECT_EQ(iterator.GetY(), y);
        EXPECT_EQ(iterator.GetByte(), 10 * y);
    }
    EXPECT_EQ(iterator.NextRow(), 0);
    EXPECT_EQ(iterator.GetY(), 4);
    EXPECT_EQ(iterator.GetByte(), 30); // the pointer stays
    EXPECT_EQ(iterator.ItOK(), 0);
    EXPECT_EQ(iterator.NextRow(), 0); // and stays behind the end
    EXPECT_EQ(iterator.GetByte(), 30);
}

TEST(ImageIterator, walks_the_rows_down)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.Upset();
    EXPECT_EQ(iterator.GetY(), 3);
    EXPECT_EQ(iterator.GetByte(), 30);
    for (int y = 2; y >= 0; --y)
    {
        EXPECT_EQ(iterator.PrevRow(), 1);
        EXPECT_EQ(iterator.GetByte(), 10 * y);
    }
    EXPECT_EQ(iterator.PrevRow(), 0);
    EXPECT_EQ(iterator.GetY(), -1);
    EXPECT_EQ(iterator.GetByte(), 0);
    iterator.Reset();
    EXPECT_EQ(iterator.GetY(), 0);
    EXPECT_EQ(iterator.ItOK(), 1);
}

TEST(ImageIterator, set_y_takes_the_height_too)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.SetY(2);
    EXPECT_EQ(iterator.GetByte(), 20);
    iterator.SetY(-1);
    iterator.SetY(5);
    iterator.SetY(INT_MAX);
    EXPECT_EQ(iterator.GetY(), 2);
    iterator.SetY(4);
    EXPECT_EQ(iterator.GetY(), 4);
    EXPECT_EQ(image.GetBits(4), nullptr);
    EXPECT_EQ(iterator.GetRow(), image.GetBits() + 32); // one row past the pixels
    EXPECT_EQ(iterator.ItOK(), 0);
}

TEST(ImageIterator, writes_at_the_height_are_ignored)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    std::vector<unsigned char> ones(8, 1);
    iterator.SetY(4);
    iterator.SetRow(ones.data(), -1);
    iterator.SetRow(ones.data(), 8);
    iterator.SetByte(1);
    EXPECT_EQ(iterator.GetByte(), 0);
    std::vector<unsigned char> back(8, 77);
    iterator.GetRow(back.data(), 8);
    EXPECT_EQ(back, std::vector<unsigned char>(8, 0));
    EXPECT_EQ(image.GetBits(3)[7], 37);
}

TEST(ImageIterator, set_row_is_limited_to_the_stride)
{
    CKxGifImage image(5, 4, 8);
    std::vector<unsigned char> source(100, 9);
    CKxGifImageIterator iterator(&image);
    iterator.SetRow(source.data(), 3);
    EXPECT_EQ(image.GetBits()[2], 9);
    EXPECT_EQ(image.GetBits()[3], 0);
    iterator.SetRow(source.data(), 100);
    EXPECT_EQ(image.GetBits()[7], 9);
    EXPECT_EQ(image.GetBits()[8], 0);
    iterator.SetY(3);
    iterator.SetRow(source.data(), -5);
    EXPECT_EQ(image.GetBits(3)[7], 9);
    iterator.SetY(2);
    iterator.SetRow(source.data(), 0);
    iterator.SetRow(nullptr, 8);
    EXPECT_EQ(image.GetBits(2)[0], 0);
}

TEST(ImageIterator, get_row_reads_over_the_stride_and_not_over_the_block)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    std::vector<unsigned char> back(40, 77);
    iterator.GetRow(back.data(), 10);
    EXPECT_EQ(back[7], 7);
    EXPECT_EQ(back[8], 10); // the next row
    EXPECT_EQ(back[10], 77);
    iterator.SetY(3);
    iterator.GetRow(back.data(), 40);
    EXPECT_EQ(back[7], 37);
    for (std::size_t i = 8; i < 40; ++i)
        EXPECT_EQ(back[i], 0) << i;
    iterator.GetRow(back.data(), 0);
    iterator.GetRow(back.data(), -1);
    iterator.GetRow(nullptr, 8);
    EXPECT_EQ(back[0], 30);
}

TEST(ImageIterator, get_row_with_a_number_goes_there_first)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    EXPECT_EQ(iterator.GetRow(2), image.GetBits(2));
    EXPECT_EQ(iterator.GetY(), 2);
    EXPECT_EQ(iterator.GetRow(9), image.GetBits(2)); // ignored
}

TEST(ImageIterator, walks_the_bytes_up)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    std::vector<int> seen{iterator.GetByte()};
    while (iterator.NextByte() == 1)
        seen.push_back(iterator.GetByte());
    ASSERT_EQ(seen.size(), 32U);
    EXPECT_EQ(seen[7], 7);
    EXPECT_EQ(seen[8], 10);
    EXPECT_EQ(seen[31], 37);
    EXPECT_EQ(iterator.GetY(), 4);
    EXPECT_EQ(iterator.NextByte(), 0); // again behind the end
    EXPECT_EQ(iterator.GetByte(), 0);
    iterator.SetByte(200);
    EXPECT_EQ(image.GetBits(3)[7], 37);
}

TEST(ImageIterator, from_the_first_byte_goes_back_to_the_first_byte_of_the_row_below)
{
    CKxGifImage image(3, 8, 8);
    for (unsigned long y = 0; y < 8; ++y)
        image.GetBits(y)[0] = static_cast<unsigned char>(y);
    CKxGifImageIterator iterator(&image);
    iterator.SetY(5);
    EXPECT_EQ(iterator.PrevByte(), 1);
    EXPECT_EQ(iterator.GetY(), 4);
    EXPECT_EQ(iterator.GetByte(), 4);
}

TEST(ImageIterator, walks_the_bytes_back_within_a_row)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.NextByte();
    iterator.NextByte();
    EXPECT_EQ(iterator.PrevByte(), 1);
    EXPECT_EQ(iterator.GetByte(), 1);
    EXPECT_EQ(iterator.PrevByte(), 1);
    EXPECT_EQ(iterator.PrevByte(), 0); // below row 0
    EXPECT_EQ(iterator.GetY(), -1);
    EXPECT_EQ(iterator.PrevByte(), 0);
    EXPECT_EQ(iterator.GetByte(), 0); // byte -2 is no byte of the pixels
    iterator.SetByte(1);
    EXPECT_EQ(hex(image.GetPaletteColor(255)), 0U);
}

TEST(ImageIterator, steps_forward_moving_the_pointer_by_one_row_whatever_the_step_is)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.SetSteps(3, 2);
    int stepX = 0;
    int stepY = 0;
    iterator.GetSteps(&stepX, &stepY);
    EXPECT_EQ(stepX, 3);
    EXPECT_EQ(stepY, 2);
    iterator.GetSteps(nullptr, nullptr);
    EXPECT_EQ(iterator.NextStep(), 1);
    EXPECT_EQ(iterator.GetByte(), 3);
    EXPECT_EQ(iterator.NextStep(), 1);
    EXPECT_EQ(iterator.GetByte(), 6);
    EXPECT_EQ(iterator.NextStep(), 1); // y is 2, the pointer on row 1
    EXPECT_EQ(iterator.GetY(), 2);
    EXPECT_EQ(iterator.GetByte(), 10);
    iterator.NextStep();
    iterator.NextStep();
    EXPECT_EQ(iterator.NextStep(), 0); // y would be 4
    EXPECT_EQ(iterator.GetY(), 4);
}

TEST(ImageIterator, steps_back_moving_the_pointer_by_one_row_whatever_the_step_is)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.SetSteps(2, 3);
    iterator.SetY(3);
    EXPECT_EQ(iterator.PrevStep(), 1); // y is 0, the pointer on row 2
    EXPECT_EQ(iterator.GetY(), 0);
    EXPECT_EQ(iterator.GetByte(), 20);
    EXPECT_EQ(iterator.PrevStep(), 0);
    EXPECT_EQ(iterator.GetY(), -3);
}

TEST(ImageIterator, a_step_back_that_leads_above_the_top_gives_zero)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    iterator.SetSteps(1, -4);
    EXPECT_EQ(iterator.PrevStep(), 0);
    EXPECT_EQ(iterator.GetY(), 4);
}

TEST(ImageIterator, endless_steps_never_leave_the_pixels)
{
    CKxGifImage image = counted();
    for (const int stepX : {INT_MAX, INT_MIN, -1, 8})
    {
        for (const int stepY : {0, INT_MAX, INT_MIN, -1})
        {
            CKxGifImageIterator iterator(&image);
            iterator.SetSteps(stepX, stepY);
            unsigned char row[8] = {};
            for (int i = 0; i < 50; ++i)
            {
                iterator.NextStep();
                iterator.GetByte();
                iterator.GetRow(row, 8);
                unsigned char* const pointer = iterator.GetRow();
                EXPECT_TRUE(!pointer || (pointer >= image.GetBits() && pointer <= image.GetBits() + 32));
            }
            for (int i = 0; i < 100; ++i)
            {
                iterator.PrevStep();
                iterator.GetByte();
                iterator.GetRow(row, 8);
            }
        }
    }
}

TEST(ImageIterator, a_row_pointer_that_has_gone_stale_is_not_used)
{
    CKxGifImage image(100, 100, 24);
    CKxGifImageIterator iterator(&image);
    iterator.Upset();
    image.Create(2, 2, 8);
    std::vector<unsigned char> ones(400, 1);
    iterator.SetRow(ones.data(), -1);
    iterator.GetRow(ones.data(), 400);
    iterator.SetByte(1);
    iterator.GetByte();
    EXPECT_EQ(iterator.ItOK(), 0);
    image.Destroy();
    iterator.SetRow(ones.data(), -1);
    EXPECT_EQ(iterator.GetRow(), nullptr);
}

TEST(ImageIterator, columns_of_whole_bytes_are_copied_from_the_bottom_up)
{
    CKxGifImage image = counted();
    CKxGifImageIterator iterator(&image);
    unsigned char column[5] = {9, 9, 9, 9, 9};
    EXPECT_EQ(iterator.GetCol(column, 4), 1);
    EXPECT_EQ((std::vector<int>(column, column + 5)), (std::vector<int>{4, 14, 24, 34, 9}));
    EXPECT_EQ(iterator.GetY(), 0);
    unsigned char fresh[4] = {101, 102, 103, 104};
    EXPECT_EQ(iterator.SetCol(fresh, 0), 1);
    EXPECT_EQ(image.GetPixelIndex(0, 3), 104);
    EXPECT_EQ(image.GetPixelIndex(1, 3), 31);
}

TEST(ImageIterator, a_true_colour_column_has_three_bytes_a_row)
{
    CKxGifImage image(2, 2, 24);
    image.SetPixelColor(1, 0, quad(1, 2, 3));
    image.SetPixelColor(1, 1, quad(4, 5, 6));
    CKxGifImageIterator iterator(&image);
    unsigned char column[6] = {};
    EXPECT_EQ(iterator.GetCol(column, 1), 1);
    EXPECT_EQ((std::vector<int>(column, column + 6)), (std::vector<int>{3, 2, 1, 6, 5, 4}));
    EXPECT_EQ(iterator.SetCol(column, 0), 1);
    EXPECT_EQ(hex(image.GetPixelColor(0, 1)), 0x040506U);
}

TEST(ImageIterator, columns_are_refused_below_8_bits_and_beyond_the_width)
{
    unsigned char column[16] = {};
    for (const unsigned long bpp : {1UL, 4UL})
    {
        CKxGifImage image(5, 4, bpp);
        CKxGifImageIterator iterator(&image);
        EXPECT_EQ(iterator.GetCol(column, 0), 0);
        EXPECT_EQ(iterator.SetCol(column, 0), 0);
    }
    CKxGifImage image(5, 4, 8);
    CKxGifImageIterator iterator(&image);
    EXPECT_EQ(iterator.GetCol(column, 5), 0);
    EXPECT_EQ(iterator.SetCol(column, 5), 0);
    EXPECT_EQ(iterator.GetCol(column, ULONG_MAX), 0);
    EXPECT_EQ(iterator.GetCol(nullptr, 0), 0);
    EXPECT_EQ(iterator.SetCol(nullptr, 0), 0);
}

TEST(ImageIterator, assignment_copies_the_whole_state)
{
    CKxGifImage image = counted();
    CKxGifImageIterator first(&image);
    first.SetSteps(3, 4);
    first.SetY(2);
    first.NextByte();
    CKxGifImageIterator second;
    second = first;
    EXPECT_EQ(static_cast<CKxGifImage*>(second), &image);
    EXPECT_EQ(second.GetY(), 2);
    EXPECT_EQ(second.GetByte(), 21);
    int stepX = 0;
    int stepY = 0;
    second.GetSteps(&stepX, &stepY);
    EXPECT_EQ(stepX, 3);
    EXPECT_EQ(stepY, 4);
}
