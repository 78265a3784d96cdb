// The records of a GIF stream, byte for byte as they stand there; numbers are little-endian.
#pragma once

#include <cstdint>

/// One colour of a colour table.
struct rgb_color
{
    std::uint8_t r;
    std::uint8_t g;
    std::uint8_t b;
};

#pragma pack(push, 1)

/// The first 13 bytes of a stream.
struct tag_dscgif
{
    char header[6]; // "GIF87a" or "GIF89a"
    std::uint16_t screenWidth;
    std::uint16_t screenHeight;
    std::uint8_t flags; // 0x80: a global table follows; 0x70: colour resolution; 0x07: its size
    std::uint8_t background;
    std::uint8_t aspectRatio;
};

/// An image descriptor, behind its ','.
struct tag_image
{
    std::uint16_t left;
    std::uint16_t top;
    std::uint16_t width;
    std::uint16_t height;
    std::uint8_t flags; // 0x80: a local table follows; 0x40: interlaced; 0x07: size of the table
};

/// The four bytes of a graphic control block, behind its size byte.
struct GraphicControl
{
    std::uint8_t flags = 0;  // 0x01: transparent; 0x1C: disposal
    std::uint16_t delay = 0; // hundredths of a second
    std::uint8_t transparentIndex = 0;

    int Disposal() const { return (flags >> 2) & 7; }
    bool IsTransparent() const { return (flags & 1) != 0; }
};

#pragma pack(pop)

static_assert(sizeof(rgb_color) == 3 && sizeof(tag_dscgif) == 13 && sizeof(tag_image) == 9 &&
              sizeof(GraphicControl) == 4);

/// The colour table in force while a stream is decoded.
struct tag_TabCol
{
    std::int16_t colorResolution; // ((flags & 0x70) >> 3) + 1
    std::int16_t sogct;           // entries that count: 1 << ((flags & 7) + 1)
    rgb_color colors[256];
};

/// The `bits` low bits of a code; `bits` is 0 to 16. Decoder and encoder share it.
inline constexpr std::uint32_t GifCodeMask(int bits)
{
    return (1U << bits) - 1U;
}
