// The fast colour reduction against the plain one, pixel by pixel.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>
#include "ExposedImage.h"
#include "support/PlainReduction.h"

namespace
{
using Random = std::mt19937;

int below(Random& random, int limit)
{
    return static_cast<int>(random() % static_cast<unsigned>(limit));
}

RGBQUAD anyColor(Random& random)
{
    return quad(below(random, 256), below(random, 256), below(random, 256), below(random, 2) * below(random, 256));
}

// Colours of few values collide and tie often; those of all values seldom.
std::vector<RGBQUAD> anyPalette(Random& random)
{
    const int step = below(random, 2) ? 1 : 1 << below(random, 8);
    std::vector<RGBQUAD> palette(256);
    for (RGBQUAD& color : palette)
        color = quad(below(random, 256) / step * step, below(random, 256) / step * step,
                     below(random, 256) / step * step, below(random, 2));
    return palette;
}

void fill(CKxGifImage& image, Random& random)
{
    auto palette = anyPalette(random);
    image.SetPalette(palette.data(), 256);
    const int kind = below(random, 3);
    // Also the bits and bytes behind the pixels of a row, which nobody may touch.
    unsigned char* const end = static_cast<unsigned char*>(image.GetDIB()) + image.GetSize();
    for (unsigned char* pixel = image.GetBits(); pixel != end; ++pixel)
        *pixel = static_cast<unsigned char>(below(random, 256));
    for (long y = 0; y < static_cast<long>(image.GetHeight()); ++y)
    {
        for (long x = 0; x < static_cast<long>(image.GetWidth()); ++x)
        {
            if (kind == 0)
                image.SetPixelColor(x, y, anyColor(random));
            else if (kind == 1)
                image.SetPixelColor(x, y, palette[static_cast<std::size_t>((x / 3 + y) % 256)]);
            else
                image.SetPixelIndex(x, y, static_cast<unsigned char>(below(random, 256)));
        }
    }
}

std::vector<unsigned char> blockOf(const CKxGifImage& image)
{
    const auto* const block = static_cast<const unsigned char*>(image.GetDIB());
    return block ? std::vector<unsigned char>(block, block + image.GetSize()) : std::vector<unsigned char>();
}

struct Case
{
    unsigned long depth;
    unsigned long bits;
    bool diffuse;
    bool ownPalette;
    unsigned long important;
};

void compare(const Case& test, Random& random)
{
    const auto width = static_cast<unsigned long>(1 + below(random, 40));
    const auto height = static_cast<unsigned long>(1 + below(random, 20));
    ExposedImage fast(width, height, test.depth);
    fill(fast, random);
    // A colour may be remembered that the palette would not give any more.
    fast.SetClrImportant(static_cast<unsigned long>(below(random, 20)));
    fast.GetNearestIndex(anyColor(random));
    fast.SetClrImportant(static_cast<unsigned long>(below(random, 20)));
    PlainReduction plain;
    plain.Copy(fast, true, false, false);
    plain.SetClrImportant(fast.GetClrImportant());
    const ExposedImage fastSource(fast);
    const CKxGifImage plainSource(plain);

    auto palette = anyPalette(random);
    RGBQUAD* const given = test.ownPalette ? palette.data() : nullptr;
    EXPECT_EQ(fast.DecreaseBpp(test.bits, test.diffuse, given, test.important),
              plain.DecreaseBpp(test.bits, test.diffuse, given, test.important));
    EXPECT_EQ(blockOf(fast), blockOf(plain));
    EXPECT_EQ(blockOf(fastSource), blockOf(plainSource)); // what diffusion did to the source
    EXPECT_EQ(fast.GetClrImportant(), plain.GetClrImportant());
    const RGBQUAD next = anyColor(random);
    EXPECT_EQ(fast.GetNearestIndex(next), plain.GetNearestIndex(next));
}
} // namespace

TEST(ColorReductionAgainstPlain, agrees_at_all_depths)
{
    Random random(4711);
    for (const unsigned long depth : {1UL, 4UL, 8UL, 24UL})
        for (const unsigned long bits : {1UL, 4UL, 8UL})
            for (const bool diffuse : {false, true})
                for (const bool ownPalette : {false, true})
                    for (const unsigned long important : {0UL, 1UL, 2UL, 7UL, 16UL, 200UL, 300UL})
                        for (int i = 0; i < 3; ++i)
                        {
                            SCOPED_TRACE(testing::Message() << depth << " to " << bits << ", diffuse " << diffuse
                                                            << ", palette " << ownPalette << ", " << important);
                            compare({depth, bits, diffuse, ownPalette, important}, random);
                        }
}

TEST(ColorReductionAgainstPlain, remembers_the_same_colour_at_the_end)
{
    Random random(5);
    for (int i = 0; i < 20; ++i)
    {
        ExposedImage fast(7, 5, i % 2 ? 8 : 24);
        fill(fast, random);
        PlainReduction plain;
        plain.Copy(fast, true, false, false);
        ASSERT_TRUE(fast.DecreaseBpp(4, i % 3 == 0, nullptr, 0));
        ASSERT_TRUE(plain.DecreaseBpp(4, i % 3 == 0, nullptr, 0));
        ExposedImage result;
        result.Transfer(plain);
        EXPECT_EQ(fast.m_Info.bLastValid, result.m_Info.bLastValid);
        EXPECT_EQ(hex(fast.m_Info.LastColor), hex(result.m_Info.LastColor));
        EXPECT_EQ(fast.m_Info.nLastIndex, result.m_Info.nLastIndex);
    }
}

TEST(ColorReductionAgainstPlain, agrees_on_every_colour_of_a_fine_lattice)
{
    // 52 levels a channel, 5 apart: every cell of the colour cube is met.
    ExposedImage fast(52 * 52, 52, 24);
    for (long y = 0; y < 52; ++y)
        for (long x = 0; x < 52 * 52; ++x)
            fast.SetPixelColor(
                x, y, quad(static_cast<int>(x % 52) * 5, static_cast<int>(x / 52) * 5, static_cast<int>(y) * 5));
    PlainReduction plain;
    plain.Copy(fast, true, false, false);
    ASSERT_TRUE(fast.DecreaseBpp(8, false, nullptr, 0));
    ASSERT_TRUE(plain.DecreaseBpp(8, false, nullptr, 0));
    EXPECT_EQ(blockOf(fast), blockOf(plain));
}
