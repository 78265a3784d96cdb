// What is written is read back the same.
#include "EncoderFixture.h"

namespace
{
using plain::Picture;

/// Reads what the image is written as.
void readBack(CKxGifImage& image, CKxGifImage& read)
{
    CByteArray data;
    ASSERT_TRUE(image.Encode(data));
    ASSERT_TRUE(read.Decode(data));
}

void expectIndexed(CKxGifImage& image)
{
    CKxGifImage read;
    ASSERT_NO_FATAL_FAILURE(readBack(image, read));
    const Picture wanted = plain::pictureOf(image);
    const Picture found = plain::pictureOf(read);
    ASSERT_EQ(found.width, wanted.width);
    ASSERT_EQ(found.height, wanted.height);
    ASSERT_EQ(found.depth, wanted.depth);
    ASSERT_TRUE(found.palette == wanted.palette);
    ASSERT_TRUE(found.indexes == wanted.indexes);
    ASSERT_EQ(found.transparent, wanted.transparent);
    ASSERT_EQ(read.GetNumFrames(), 1);
}

/// Every size up to 40 x 40, opaque and with a transparent index.
void expectEverySize(unsigned long depth)
{
    const int colours = 1 << depth;
    unsigned seed = 1;
    for (long width = 1; width <= 40; ++width)
        for (long height = 1; height <= 40; ++height)
            for (const long transparent : {-1L, static_cast<long>(seed) % colours})
            {
                CKxGifImage image;
                plain::drawRandom(image, width, height, depth, {colours, 1 + static_cast<int>(seed % 5)}, seed);
                ++seed;
                image.SetTransIndex(transparent);
                ASSERT_NO_FATAL_FAILURE(expectIndexed(image))
                    << width << " x " << height << ", transparent " << transparent;
            }
}
} // namespace

TEST(RoundTrip, one_bit_pictures_of_every_size)
{
    expectEverySize(1);
}

TEST(RoundTrip, four_bit_pictures_of_every_size)
{
    expectEverySize(4);
}

TEST(RoundTrip, eight_bit_pictures_of_every_size)
{
    expectEverySize(8);
}

TEST(RoundTrip, large_pictures_with_many_clear_codes)
{
    for (const unsigned long depth : {1UL, 4UL, 8UL})
        for (const int longestRun : {1, 4, 900})
        {
            CKxGifImage image;
            plain::drawRandom(image, 317, 211, depth, {1 << depth, longestRun}, 77);
            expectIndexed(image);
        }
}

TEST(RoundTrip, a_pair_of_zeros_that_was_lost_and_learnt_again_does_no_harm)
{
    CKxGifImage image;
    plain::drawIndexes(image, 33, 1, 8,
                       {100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115, 114,
                        115, 17,  0,   0,   5,   156, 21,  157, 0,   0,   0,   0,   0,   1,   0,   0});
    expectIndexed(image);
}

TEST(RoundTrip, mosaics_of_every_size_above_one_tile)
{
    for (long width = 18; width <= 40; ++width)
        for (long height = 16; height <= 40; ++height)
            for (const bool transparent : {false, true})
            {
                CKxGifImage image;
                plain::drawRandom(image, width, height, 24, {400, 3}, static_cast<unsigned>(width * 50 + height));
                if (transparent)
                {
                    image.SetTransIndex(0);
                    image.SetTransColor(image.GetPixelColor(3, 3));
                }
                CKxGifImage read;
                ASSERT_NO_FATAL_FAILURE(readBack(image, read));
                ASSERT_EQ(read.GetBpp(), 24);
                ASSERT_TRUE(plain::pictureOf(read).colours == plain::pictureOf(image).colours)
                    << width << " x " << height;
                ASSERT_EQ(read.IsTransparent(), transparent);
                ASSERT_TRUE(!transparent ||
                            plain::pictureOf(read).transparentColour == plain::pictureOf(image).transparentColour);
                ASSERT_EQ(read.GetNumFrames(), (width + 16) / 17 * ((height + 14) / 15));
            }
}

TEST(RoundTrip, a_mosaic_one_tile_wide_or_high_is_read_as_its_first_tile)
{
    struct Row
    {
        long width;
        long height;
        long frames;
    };
    for (const Row& row : {Row{17, 40, 3}, Row{40, 15, 3}, Row{5, 5, 1}, Row{1, 16, 2}})
    {
        CKxGifImage image;
        plain::drawRandom(image, row.width, row.height, 24, {400, 1}, 3);
        CKxGifImage read;
        ASSERT_NO_FATAL_FAILURE(readBack(image, read));
        EXPECT_EQ(read.GetBpp(), 8);
        EXPECT_EQ(read.GetNumFrames(), row.frames);
        EXPECT_EQ(read.GetWidth(), image.GetWidth());
        EXPECT_EQ(read.GetHeight(), image.GetHeight());
        const long tileWidth = std::min(row.width, 17L);
        const long tileHeight = std::min(row.height, 15L);
        for (long y = row.height - tileHeight; y < row.height; ++y)
            for (long x = 0; x < tileWidth; ++x)
                ASSERT_EQ(CKxGifImage::RGBQUADtoRGB(read.GetPixelColor(x, y)),
                          CKxGifImage::RGBQUADtoRGB(image.GetPixelColor(x, y)));
    }
}

TEST(RoundTrip, delay_disposal_and_comment_come_back)
{
    CKxGifImage image(3, 2, 4);
    image.SetFrameDelay(1234);
    image.SetDisposalMethod(2);
    image.SetComment(std::string(255, 'c').c_str());
    CKxGifImage read;
    ASSERT_NO_FATAL_FAILURE(readBack(image, read));
    EXPECT_EQ(read.GetFrameDelay(), 1234U);
    EXPECT_EQ(read.GetDisposalMethod(), 2);
    char comment[256] = {};
    read.GetComment(comment);
    EXPECT_EQ(std::string(comment), std::string(255, 'c'));
}

TEST(RoundTrip, an_image_may_begin_as_what_was_written)
{
    CKxGifImage image;
    plain::drawRandom(image, 9, 7, 4, {16, 2}, 6);
    CByteArray data;
    ASSERT_TRUE(image.Encode(data));
    CKxGifImage read(data);
    EXPECT_TRUE(plain::pictureOf(read).indexes == plain::pictureOf(image).indexes);
    data.SetSize(20);
    EXPECT_FALSE(CKxGifImage(data).IsValid());
}

TEST(RoundTrip, a_reduced_picture_comes_back)
{
    for (const unsigned long bits : {8UL, 4UL, 1UL})
        for (const bool diffuse : {false, true})
        {
            CKxGifImage image;
            plain::drawRandom(image, 90, 60, 24, {3000, 2}, 12);
            ASSERT_TRUE(image.DecreaseBpp(bits, diffuse, nullptr, 0));
            expectIndexed(image);
        }
}
