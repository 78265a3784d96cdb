// Rows of one byte a pixel, to and from the packed form of an image.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Sixteen pixels, one a byte.
using SixteenPixels = __m128i;

inline SixteenPixels loadPixels(const std::uint8_t* pixels)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
}

/// Packed to 4 bits, high bits first. What is too large for a pixel is masked.
inline std::uint64_t packTo4(SixteenPixels pixels)
{
    pixels = _mm_and_si128(pixels, _mm_set1_epi8(15));
    const __m128i pairs = _mm_or_si128(_mm_slli_epi16(pixels, 4), _mm_srli_epi16(pixels, 8));
    const __m128i bytes = _mm_and_si128(pairs, _mm_set1_epi16(255));
    return static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_packus_epi16(bytes, bytes)));
}

/// The same to 1 bit.
inline std::uint16_t packTo1(SixteenPixels pixels)
{
    constexpr int backwards = 0x1B;
    const __m128i swapped = _mm_or_si128(_mm_slli_epi16(pixels, 8), _mm_srli_epi16(pixels, 8));
    const __m128i reversed = _mm_shufflehi_epi16(_mm_shufflelo_epi16(swapped, backwards), backwards);
    return static_cast<std::uint16_t>(_mm_movemask_epi8(_mm_slli_epi16(reversed, 7)));
}

/// How far to shift the pixels of a row to have its bytes.
inline int pixelsToBytes(int bits)
{
    return bits == 8 ? 0 : bits == 4 ? 1 : 3;
}

/// How far pixel `x` of a row stands from the low end of its byte.
inline int bitsBehind(std::size_t x, int bits)
{
    const int last = (1 << pixelsToBytes(bits)) - 1;
    return (last - (static_cast<int>(x) & last)) * bits;
}

/// Puts pixel `x` of a row of 1 or 4 bits a pixel.
inline void putPackedPixel(std::uint8_t* row, std::size_t x, int pixel, int bits)
{
    const int mask = bits == 4 ? 15 : 1;
    const int shift = bitsBehind(x, bits);
    std::uint8_t& cell = row[x >> pixelsToBytes(bits)];
    cell = static_cast<std::uint8_t>((cell & ~(mask << shift)) | (pixel & mask) << shift);
}

/// Packs `count` pixels to `bits` (1, 4 or 8) a pixel, high bits first; what is too large for a pixel is masked. The last
/// byte keeps the bits that belong to no pixel. `to` may be `pixels` itself.
inline void packRow(std::uint8_t* to, const std::uint8_t* pixels, std::size_t count, int bits)
{
    if (bits == 8)
    {
        std::memmove(to, pixels, count);
        return;
    }
    for (; count >= 16; count -= 16, pixels += 16)
    {
        if (bits == 1)
        {
            const std::uint16_t packed = packTo1(loadPixels(pixels));
            std::memcpy(to, &packed, sizeof packed);
            to += sizeof packed;
            continue;
        }
        const std::uint64_t packed = packTo4(loadPixels(pixels));
        std::memcpy(to, &packed, sizeof packed);
        to += sizeof packed;
    }
    for (std::size_t i = 0; i < count; ++i)
        putPackedPixel(to, i, pixels[i], bits);
}

/// One pixel of a packed row.
inline std::uint8_t packedPixel(const std::uint8_t* row, std::size_t x, int bits)
{
    return static_cast<std::uint8_t>(row[x >> pixelsToBytes(bits)] >> bitsBehind(x, bits) & ((1 << bits) - 1));
}

/// The eight pixels of a byte at 1 bit, the leftmost one first in memory: the product puts bit 7 - i of the byte to the top
/// of byte i.
inline std::uint64_t eightPixels(std::uint8_t packed)
{
    return (packed * 0x8040201008040201U & 0x8080808080808080U) >> 7;
}

/// The pixels of `count` bytes of 1 or 4 bits each.
inline void unpackBytes(std::uint8_t* to, const std::uint8_t* bytes, std::size_t count, int bits)
{
    if (bits == 1)
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::uint64_t eight = eightPixels(bytes[i]);
            std::memcpy(to + i * 8, &eight, sizeof eight);
        }
    else
        for (std::size_t i = 0; i < count; ++i)
        {
            to[i * 2] = bytes[i] >> 4;
            to[i * 2 + 1] = bytes[i] & 15;
        }
}

/// The reverse of `packRow`: `count` pixels from `x` on become bytes.
inline void unpackRow(std::uint8_t* to, const std::uint8_t* row, std::size_t x, std::size_t count, int bits)
{
    if (bits == 8)
    {
        std::memcpy(to, row + x, count);
        return;
    }
    const int toBytes = pixelsToBytes(bits);
    const std::size_t inByte = (std::size_t{1} << toBytes) - 1;
    for (; count > 0 && (x & inByte) != 0; --count)
        *to++ = packedPixel(row, x++, bits);
    const std::size_t whole = count >> toBytes;
    unpackBytes(to, row + (x >> toBytes), whole, bits);
    for (std::size_t i = whole << toBytes; i < count; ++i)
        to[i] = packedPixel(row, x + i, bits);
}
