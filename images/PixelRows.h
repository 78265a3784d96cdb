// Rows of 1, 4 and 8 bits per pixel, to and from one byte per pixel. The leftmost pixel takes the high bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

struct PixelRows
{
    /// Bits of an index above the depth are dropped; what is left of the last byte becomes 0.
    static void Pack(const std::uint8_t* indexes, std::size_t width, int bits, std::uint8_t* row)
    {
        if (bits == 8)
        {
            std::memcpy(row, indexes, width);
            return;
        }
        const std::size_t perByte = 8U / static_cast<unsigned>(bits);
        const unsigned mask = (1U << bits) - 1U;
        for (std::size_t x = 0; x < width; x += perByte)
        {
            unsigned packed = 0;
            for (std::size_t i = 0; i < perByte; ++i)
                packed = packed << bits | (x + i < width ? indexes[x + i] & mask : 0U);
            *row++ = static_cast<std::uint8_t>(packed);
        }
    }

    static void Unpack(const std::uint8_t* row, std::size_t width, int bits, std::uint8_t* indexes)
    {
        if (bits == 8)
        {
            std::memcpy(indexes, row, width);
            return;
        }
        const std::size_t perByte = 8U / static_cast<unsigned>(bits);
        const unsigned mask = (1U << bits) - 1U;
        for (std::size_t x = 0; x < width; ++x)
        {
            const std::size_t shift = (perByte - 1 - x % perByte) * static_cast<unsigned>(bits);
            indexes[x] = static_cast<std::uint8_t>(row[x / perByte] >> shift & mask);
        }
    }
};
