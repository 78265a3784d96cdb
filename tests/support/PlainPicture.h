// Images of the library as pictures of the plain encoder, and images made for tests.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "support/PlainGifEncoder.h"

namespace plain
{
/// The picture of an image, read pixel by pixel through its public operations.
inline Picture pictureOf(const CKxGifImage& image)
{
    Picture picture;
    picture.width = static_cast<int>(image.GetWidth());
    picture.height = static_cast<int>(image.GetHeight());
    picture.depth = image.GetBpp();
    for (unsigned long i = 0; i < image.GetNumColors(); ++i)
    {
        const RGBQUAD entry = image.GetPaletteColor(static_cast<unsigned char>(i));
        picture.palette.push_back({entry.rgbRed, entry.rgbGreen, entry.rgbBlue});
    }
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
        {
            picture.indexes.push_back(image.GetPixelIndex(x, y));
            const RGBQUAD colour = image.GetPixelColor(x, y);
            picture.colours.push_back({colour.rgbRed, colour.rgbGreen, colour.rgbBlue});
        }
    picture.transparent = static_cast<int>(image.GetTransIndex());
    const RGBQUAD transparent = image.GetTransColor();
    picture.transparentColour = {transparent.rgbRed, transparent.rgbGreen, transparent.rgbBlue};
    picture.disposal = static_cast<int>(image.GetDisposalMethod());
    picture.delay = static_cast<unsigned>(image.GetFrameDelay());
    char comment[256] = {};
    image.GetComment(comment);
    picture.comment = comment;
    long left = 0;
    long top = 0;
    image.GetOffset(&left, &top);
    picture.left = static_cast<int>(left);
    picture.top = static_cast<int>(top);
    return picture;
}

/// What the image is written as; empty when it cannot be written.
inline Bytes encoded(CKxGifImage& image)
{
    CByteArray data;
    if (!image.Encode(data))
        return {};
    return Bytes(data.GetData(), data.GetData() + data.GetSize());
}

/// An image whose pixels are `indexes`, the top row first.
inline void drawIndexes(CKxGifImage& image, long width, long height, unsigned long depth,
                        const std::vector<int>& indexes)
{
    image.Create(static_cast<unsigned long>(width), static_cast<unsigned long>(height), depth);
    std::size_t next = 0;
    for (long y = height - 1; y >= 0; --y)
        for (long x = 0; x < width; ++x)
            image.SetPixelIndex(x, y, static_cast<unsigned char>(indexes.at(next++)));
}

/// How the pixels of a random image are made: runs of up to `longestRun` pixels out of `colours` values.
struct Grain
{
    int colours;
    int longestRun;
};

/// An image of random pixels and palette. At 24 bits the colours are out of a small set.
inline void drawRandom(CKxGifImage& image, long width, long height, unsigned long depth, Grain grain, unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    image.Create(static_cast<unsigned long>(width), static_cast<unsigned long>(height), depth);
    for (unsigned long i = 0; i < image.GetNumColors(); ++i)
        image.SetPaletteColor(static_cast<unsigned char>(i), static_cast<unsigned long>(random() & 0xFFFFFF));
    int value = 0;
    int left = 0;
    for (long y = 0; y < height; ++y)
        for (long x = 0; x < width; ++x, --left)
        {
            if (left <= 0)
            {
                value = below(grain.colours);
                left = 1 + below(grain.longestRun);
            }
            if (depth <= 8)
                image.SetPixelIndex(x, y, static_cast<unsigned char>(value));
            else
                image.SetPixelColor(x, y, static_cast<unsigned long>(value * 0x010305 & 0xFFFFFF));
        }
}
} // namespace plain
