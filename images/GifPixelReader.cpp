// Reads rows at once where they lie in memory, and unpacks pixels that share a byte.
#include "GifPixelReader.h"

#include <algorithm>
#include "GifRowPacking.h"
#include "oxa/images/KxGifImage.h"

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
        unpackRow(m_unpacked, row, x, count, m_image.GetBpp());
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
