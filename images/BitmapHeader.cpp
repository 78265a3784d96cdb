// Reads bitmap headers, and works out what they claim without overflow.
#include "BitmapHeader.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::uint64_t mostTableColors = 256;
constexpr std::uint64_t mostPackedPixels = std::uint64_t{1} << 26; // some bytes of runs can claim any size

/// The entries that a decoder expects behind an embedded header.
std::uint64_t embeddedColors(const BitmapHeader& header)
{
    if (header.usedColors != 0 || header.bits > 8)
    {
        return header.usedColors;
    }
    return std::uint64_t{1} << header.bits;
}
} // namespace

BitmapHeader BitmapHeader::read(const FileBytes& info)
{
    const std::uint32_t headerSize = info.longAt(0);
    if (headerSize == CoreSize)
    {
        return {headerSize, info.wordAt(4), info.wordAt(6), info.wordAt(8), info.wordAt(10), Plain, 0, 0};
    }
    const std::int64_t height = info.signedLongAt(8);
    return {headerSize,      info.signedLongAt(4), height < 0 ? -height : height,
            info.wordAt(12), info.wordAt(14),      info.longAt(16),
            info.longAt(20), info.longAt(32)};
}

bool BitmapHeader::isKnown() const
{
    const bool sizeIsKnown = headerSize == CoreSize || (headerSize >= InfoSize && headerSize <= GreatestSize);
    constexpr std::uint32_t depths[] = {1, 4, 8, 16, 24, 32};
    return sizeIsKnown && width > 0 && height > 0 && compression <= Masks &&
           std::find(std::begin(depths), std::end(depths), bits) != std::end(depths);
}

std::uint64_t BitmapHeader::tableSize(std::uint64_t colors, std::uint32_t usage) const
{
    constexpr std::uint64_t maskTableSize = 12;
    const std::uint64_t masks = compression == Masks && bits > 8 ? maskTableSize : 0;
    if (usage == NoColors)
    {
        return masks;
    }
    const std::uint64_t entrySize = usage == PaletteColors ? 2 : headerSize == CoreSize ? 3 : 4;
    return masks + colors * entrySize;
}

std::uint64_t BitmapHeader::fileColors() const
{
    if (bits > 8)
    {
        return 0;
    }
    const std::uint64_t most = std::uint64_t{1} << bits;
    return usedColors == 0 ? most : std::min<std::uint64_t>(usedColors, most);
}

bool BitmapHeader::rowsFit(std::uint64_t rows, std::uint64_t room) const
{
    const std::int64_t stride = (width * bits + 31) / 32 * 4;
    return rows <= room / static_cast<std::uint64_t>(stride);
}

bool BitmapHeader::pixelsFit(std::uint64_t room) const
{
    if (isPacked())
    {
        return packedSize > 0 && packedSize <= room;
    }
    return rowsFit(static_cast<std::uint64_t>(height), room);
}

std::uint64_t EmbeddedBitmap::headSize(const FileBytes& header, std::uint32_t usage)
{
    const BitmapHeader claims = BitmapHeader::read(header);
    return claims.headerSize + claims.tableSize(embeddedColors(claims), usage);
}

bool EmbeddedBitmap::isSound() const
{
    const BitmapHeader claims = BitmapHeader::read(header);
    return isSound(0, static_cast<std::uint32_t>(claims.height));
}

bool EmbeddedBitmap::isSound(std::uint32_t first, std::uint32_t count) const
{
    if (!header.holds(0, BitmapHeader::CoreSize) || usage > BitmapHeader::NoColors)
    {
        return false;
    }
    const BitmapHeader claims = BitmapHeader::read(header);
    if (!claims.isKnown() || claims.planes != 1 || embeddedColors(claims) > mostTableColors ||
        !header.holds(0, headSize(header, usage)))
    {
        return false;
    }
    if (claims.isPacked())
    {
        const std::uint32_t depth = claims.compression == BitmapHeader::Runs8 ? 8 : 4;
        return claims.bits == depth && claims.width <= static_cast<std::int64_t>(mostPackedPixels) / claims.height &&
               claims.pixelsFit(pixels.size());
    }
    return count <= claims.height && first <= claims.height - count && claims.rowsFit(count, pixels.size());
}
