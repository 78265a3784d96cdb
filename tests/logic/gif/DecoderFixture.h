// What the tests of the decoder share: pictures as text, one hexadecimal digit a pixel, top row first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>
#include "support/GifBuilder.h"
#include "support/GifJudge.h"

namespace giftest
{
using Rows = std::vector<std::string>;

/// Indexes out of digits.
inline recipe::Bytes pixels(std::string_view digits)
{
    recipe::Bytes indexes;
    for (const char digit : digits)
        indexes.push_back(static_cast<std::uint8_t>(digit <= '9' ? digit - '0' : digit - 'a' + 10));
    return indexes;
}

inline Rows rowsOf(CKxGifImage& image)
{
    Rows rows;
    for (long y = static_cast<long>(image.GetHeight()) - 1; image.IsValid() && y >= 0; --y)
    {
        std::string row;
        for (long x = 0; x < static_cast<long>(image.GetWidth()); ++x)
        {
            const unsigned index = image.GetPixelIndex(x, y);
            row += index < 16 ? "0123456789abcdef"[index] : '?';
        }
        rows.push_back(row);
    }
    return rows;
}

/// Red, green, blue of a pixel as 0xRRGGBB; `y` counts from the top.
inline unsigned colourAt(CKxGifImage& image, long x, long y)
{
    const RGBQUAD colour = image.GetPixelColor(x, static_cast<long>(image.GetHeight()) - 1 - y);
    return static_cast<unsigned>(colour.rgbRed << 16 | colour.rgbGreen << 8 | colour.rgbBlue);
}

inline unsigned entryOf(CKxGifImage& image, unsigned char i)
{
    const RGBQUAD colour = image.GetPaletteColor(i);
    return static_cast<unsigned>(colour.rgbRed << 16 | colour.rgbGreen << 8 | colour.rgbBlue);
}

inline bool decode(CKxGifImage& image, recipe::Bytes bytes, long frame = 0)
{
    image.SetFrame(frame);
    return image.Decode(bytes.data(), static_cast<unsigned long>(bytes.size()));
}

inline bool decode(CKxGifImage& image, const recipe::GifBuilder& builder, long frame = 0)
{
    return decode(image, builder.bytes(), frame);
}

/// Black, red, green, blue.
inline std::vector<recipe::Rgb> primaries()
{
    return {{0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}};
}

inline recipe::Place at(int left, int top, int width, int height)
{
    return {left, top, width, height};
}
} // namespace giftest
