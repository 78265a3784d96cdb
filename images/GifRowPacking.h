// Rows of one byte a pixel, to and from the packed form of an image.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Packs `count` pixels to `bits` (1, 4 or 8) a pixel, high bits first; what is too large for a pixel is masked. The last
/// byte keeps the bits that belong to no pixel. `to` may be `pixels` itself.
inline void packRow(std::uint8_t* to, const std::uint8_t* pixels, std::size_t count, int bits)
{
    if (bits == 8)
    {
        std::memmove(to, pixels, count);
        return;
    }
    const std::size_t group = bits == 4 ? 2 : 8;
    for (; count >= 8; count -= 8, pixels += 8, to += 8 / group)
    {
        std::uint64_t eight;
        std::memcpy(&eight, pixels, sizeof eight);
        if (bits == 1)
        {
            *to = static_cast<std::uint8_t>((eight & 0x0101010101010101) * 0x8040201008040201 >> 56);
            continue;
        }
        eight &= 0x0F0F0F0F0F0F0F0F;
        eight = (eight << 4 | eight >> 8) & 0x00FF00FF00FF00FF;
        eight = (eight | eight >> 8) & 0x0000FFFF0000FFFF;
        const auto four = static_cast<std::uint32_t>(eight | eight >> 16);
        std::memcpy(to, &four, sizeof four);
    }
    const std::uint32_t mask = bits == 4 ? 15 : 1;
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t shift = 8 - (i % group + 1) * static_cast<std::size_t>(bits);
        const std::uint32_t pixel = pixels[i] & mask;
        std::uint8_t& cell = to[i / group];
        cell = static_cast<std::uint8_t>((cell & ~(mask << shift)) | pixel << shift);
    }
}

/// The reverse: `count` pixels of `bits` (1, 4 or 8) each become bytes.
inline void unpackRow(std::uint8_t* to, const std::uint8_t* row, std::size_t count, int bits)
{
    if (bits == 8)
    {
        std::memcpy(to, row, count);
        return;
    }
    const std::size_t group = bits == 4 ? 2 : 8;
    const std::uint32_t mask = bits == 4 ? 15 : 1;
    for (std::size_t i = 0; i < count; ++i)
        to[i] =
            static_cast<std::uint8_t>(row[i / group] >> (8 - (i % group + 1) * static_cast<std::size_t>(bits)) & mask);
}
