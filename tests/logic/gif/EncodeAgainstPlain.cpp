// The encoder against its plain form: the same bytes for every picture.
#include <gtest/gtest.h>

#include "support/PlainPicture.h"

namespace
{
using plain::Bytes;

/// Where two streams part, or -1.
std::ptrdiff_t difference(const Bytes& a, const Bytes& b)
{
    if (a == b)
        return -1;
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

void expectPlainBytes(CKxGifImage& image)
{
    EXPECT_EQ(difference(plain::encoded(image), plain::encode(plain::pictureOf(image))), -1)
        << image.GetWidth() << " x " << image.GetHeight() << " at " << image.GetBpp() << " bits";
}

struct RandomPictures
{
    unsigned long depth;
    plain::Grain grain;
};

class EncodeAgainstPlain : public testing::TestWithParam<RandomPictures>
{
};
} // namespace

TEST_P(EncodeAgainstPlain, random_pictures_of_many_sizes)
{
    CKxGifImage image;
    unsigned seed = 1;
    for (const long width : {1L, 2L, 3L, 7L, 8L, 9L, 16L, 17L, 18L, 31L, 64L, 100L, 253L, 700L})
        for (const long height : {1L, 2L, 14L, 15L, 16L, 40L, 111L})
        {
            plain::drawRandom(image, width, height, GetParam().depth, GetParam().grain, seed++);
            expectPlainBytes(image);
        }
}

INSTANTIATE_TEST_SUITE_P(Depths, EncodeAgainstPlain,
                         testing::Values(RandomPictures{1, {1, 1}}, RandomPictures{1, {2, 1}},
                                         RandomPictures{1, {2, 60}}, RandomPictures{4, {2, 1}},
                                         RandomPictures{4, {16, 1}}, RandomPictures{4, {16, 40}},
                                         RandomPictures{8, {1, 1}}, RandomPictures{8, {2, 300}},
                                         RandomPictures{8, {3, 3}}, RandomPictures{8, {256, 1}},
                                         RandomPictures{8, {256, 50}}, RandomPictures{24, {1, 1}},
                                         RandomPictures{24, {300, 2}}, RandomPictures{24, {5000, 1}}));
