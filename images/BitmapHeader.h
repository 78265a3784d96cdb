// The header of a device independent bitmap: what stands in it, and what has to stand behind it.
#pragma once

#include <cstdint>

#include "FileBytes.h"

struct BitmapHeader
{
    enum Compression : std::uint32_t
    {
        Plain = 0,
        Runs8 = 1,
        Runs4 = 2,
        Masks = 3
    };
    enum Size : std::uint32_t
    {
        FileHeaderSize = 14,
        CoreSize = 12,
        InfoSize = 40,
        GreatestSize = 124
    };
    /// What the numbers of a color table are.
    enum Usage : std::uint32_t
    {
        RgbColors = 0,
        PaletteColors = 1, // words
        NoColors = 2
    };

    static BitmapHeader read(const FileBytes& info);

    /// A header that every decoder reads alike: known size, depth and compression, and something to show.
    bool isKnown() const;
    bool isPacked() const { return compression == Runs8 || compression == Runs4; }
    /// Bytes of the masks and of `colors` entries between the header and the pixels.
    std::uint64_t tableSize(std::uint64_t colors, std::uint32_t usage = RgbColors) const;
    /// Entries of the color table that a file of its own has.
    std::uint64_t fileColors() const;
    /// Whether this many rows fit in `room` bytes.
    bool rowsFit(std::uint64_t rows, std::uint64_t room) const;
    /// Whether all pixels, packed or not, fit in `room` bytes.
    bool pixelsFit(std::uint64_t room) const;

    std::uint32_t headerSize;
    std::int64_t width;
    std::int64_t height; // without its sign
    std::uint32_t planes;
    std::uint32_t bits;
    std::uint32_t compression;
    std::uint32_t packedSize;
    std::uint32_t usedColors;
};

/// A bitmap inside of something else.
struct EmbeddedBitmap
{
    FileBytes header; // with its color table
    FileBytes pixels;
    std::uint32_t usage;

    /// Whether the table and all pixels lie within.
    bool isSound() const;
    /// The same when only `count` rows from row `first` on are there.
    bool isSound(std::uint32_t first, std::uint32_t count) const;
    /// Bytes of the header and of the table that its numbers claim.
    static std::uint64_t headSize(const FileBytes& header, std::uint32_t usage);
};
