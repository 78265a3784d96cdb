// Reads rows at once where they lie in memory, and unpacks pixels that share a byte.
#include "GifPixelReader.h"

#include <algorithm>
#include <cstring>
#include "oxa/images/KxGifImage.h"

namespace
{
std::uint8_t packedPixel(const unsigned char* row, std::size_t x, std::size_t bits)
{
    const std::size_t perByte = 8 / bits;
    const std::size_t shift = (perByte - 1 - x % perByte) * bits;
    return static_cast<std::uint8_t>(row[x / perByte] >> shift & ((1U << bits) - 1U));
}

/// The eight pixels of a byte in memory order: the product puts bit 7 - i of the byte to the top of byte i.
std::uint64_t eightPixels(unsigned char packed)
{
    return (packed * 0x8040201008040201U & 0x8080808080808080U) >> 7;
}

void unpackBytes(const unsigned char* bytes, std::size_t count, std::size_t bits, std::uint8_t* pixels)
{
    if (bits == 1)
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::uint64_t eight = eightPixels(bytes[i]);
            std::memcpy(pixels + i * 8, &eight, sizeof eight);
        }
    else
        for (std::size_t i = 0; i < count; ++i)
        {
            pixels[i * 2] = bytes[i] >> 4;
            pixels[i * 2 + 1] = bytes[i] & 15;
        }
}

/// `count` pixels of `bits` bits from `x` on, one byte each.
void unpack(const unsigned char* row, std::size_t x, std::size_t count, std::size_t bits, std::uint8_t* pixels)
{
    const std::size_t perByte = 8 / bits;
    const std::size_t end = x + count;
    for (; x < end && x % perByte != 0; ++x)
        *pixels++ = packedPixel(row, x, bits);
    const std::size_t whole = (end - x) / perByte;
    unpackBytes(row + x / perByte, whole, bits, pixels);
    for (std::size_t i = whole * perByte; x + i < end; ++i)
        pixels[i] = packedPixel(row, x + i, bits);
}
} // namespace

int GifPixelReader::NextPixel(const CKxGifImage& image, EncoderCursor& cursor)
{
    if (cursor.pixelsLeft <= 0)
        return -1;
    const int pixel = image.GetPixelIndex(cursor.x, cursor.y);
    Advance(image, cursor, 1);
    return pixel;
}

std::span<const std::uint8_t> GifPixelReader::Next()
{
    if (m_cursor.pixelsLeft <= 0)
        return {};
    if (m_image.IsInside(m_cursor.x, m_cursor.y) && m_image.GetPalette())
        return RestOfRow();
    m_unpacked[0] = static_cast<std::uint8_t>(NextPixel(m_image, m_cursor));
    return {m_unpacked, 1};
}

std::span<const std::uint8_t> GifPixelReader::RestOfRow()
{
    const auto x = static_cast<std::size_t>(m_cursor.x);
    std::size_t count = std::min(m_image.GetWidth() - x, static_cast<std::size_t>(m_cursor.pixelsLeft));
    const unsigned char* row = m_image.GetBits(static_cast<unsigned long>(m_cursor.y));
    const std::uint8_t* pixels = row + x;
    if (m_image.GetBpp() < 8)
    {
        count = std::min(count, sizeof m_unpacked);
        unpack(row, x, count, m_image.GetBpp(), m_unpacked);
        pixels = m_unpacked;
    }
    Advance(m_image, m_cursor, count);
    return {pixels, count};
}

// Computed without overflow: a cursor far outside the image only wraps.
void GifPixelReader::Advance(const CKxGifImage& image, EncoderCursor& cursor, std::size_t count)
{
    cursor.pixelsLeft -= static_cast<std::int32_t>(count);
    cursor.x = static_cast<std::int32_t>(static_cast<std::uint32_t>(cursor.x) + static_cast<std::uint32_t>(count));
    if (static_cast<unsigned long>(cursor.x) == image.GetWidth())
    {
        cursor.x = 0;
        cursor.y = static_cast<std::int32_t>(static_cast<std::uint32_t>(cursor.y) - 1U);
    }
}
