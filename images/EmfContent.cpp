// The checks of texts, regions and bitmaps in the records of an enhanced metafile.
#include <cstdint>

#include "BitmapHeader.h"
#include "EmfRecords.h"

namespace
{
enum TextOption : std::uint32_t
{
    OneByteCharacters = 0x200,
    NoRectangle = 0x100,
    PairsOfDistances = 0x2000,
};

/// A count, a place for the characters, options, a rectangle, and a place for the distances.
bool isSoundText(const FileBytes& record, std::uint64_t at, std::uint32_t characterSize)
{
    constexpr std::uint32_t textSize = 40;
    if (!record.holds(at, textSize))
    {
        return false;
    }
    const std::uint64_t count = record.longAt(at + 8);
    const std::uint32_t options = record.longAt(at + 16);
    const std::uint32_t distances = record.longAt(at + 36);
    const std::uint64_t distanceSize = (options & PairsOfDistances) != 0 ? 8 : 4;
    return record.holds(record.longAt(at + 12), count * characterSize) &&
           (distances == 0 || record.holds(distances, count * distanceSize));
}

bool areSoundTexts(const FileBytes& record, std::uint64_t at, std::uint32_t characterSize)
{
    constexpr std::uint32_t textSize = 40;
    const std::uint64_t count = record.longAt(at);
    if (!record.holds(at + 4, count * textSize))
    {
        return false;
    }
    for (std::uint64_t i = 0; i < count; ++i)
    {
        if (!isSoundText(record, at + 4 + i * textSize, characterSize))
        {
            return false;
        }
    }
    return true;
}

/// A header of 32 bytes with the number of the rectangles that follow it.
bool isSoundRegion(const FileBytes& record, std::uint64_t from, std::uint64_t size)
{
    constexpr std::uint32_t headerSize = 32;
    constexpr std::uint32_t rectangles = 1;
    constexpr std::uint64_t rectangleSize = 16;
    return record.holds(from, size) && size >= headerSize && record.longAt(from) == headerSize &&
           record.longAt(from + 4) == rectangles && record.longAt(from + 8) <= (size - headerSize) / rectangleSize;
}

/// The places and sizes of a header and of its pixels, at four numbers from `at` on.
bool placesBitmap(const FileBytes& record, std::uint32_t at, std::uint32_t usage, EmbeddedBitmap& bitmap)
{
    const std::uint32_t header = record.longAt(at);
    const std::uint32_t headerSize = record.longAt(at + 4);
    const std::uint32_t pixels = record.longAt(at + 8);
    const std::uint32_t pixelsSize = record.longAt(at + 12);
    if (!record.holds(header, headerSize) || !record.holds(pixels, pixelsSize))
    {
        return false;
    }
    bitmap = {record.part(header, headerSize), record.part(pixels, pixelsSize), usage};
    return true;
}

bool hasSoundBitmap(const FileBytes& record, std::uint32_t at, std::uint32_t usage)
{
    EmbeddedBitmap bitmap{record, record, usage};
    return placesBitmap(record, at, usage, bitmap) && bitmap.isSound();
}

/// A player takes the place of the header for the sign that there is one.
bool hasNoBitmap(const FileBytes& record, std::uint32_t at)
{
    return record.longAt(at) == 0;
}
} // namespace

bool EmfRecords::text(const FileBytes& record, std::uint32_t at)
{
    return isSoundText(record, at, 1);
}

bool EmfRecords::text16(const FileBytes& record, std::uint32_t at)
{
    return isSoundText(record, at, 2);
}

bool EmfRecords::texts(const FileBytes& record, std::uint32_t at)
{
    return areSoundTexts(record, at, 1);
}

bool EmfRecords::texts16(const FileBytes& record, std::uint32_t at)
{
    return areSoundTexts(record, at, 2);
}

bool EmfRecords::smallText(const FileBytes& record, std::uint32_t at)
{
    const std::uint64_t count = record.longAt(at + 8);
    const std::uint32_t options = record.longAt(at + 12);
    const std::uint64_t rectangle = (options & NoRectangle) != 0 ? 0 : 16;
    return record.holds(at + 28 + rectangle, count * ((options & OneByteCharacters) != 0 ? 1 : 2));
}

bool EmfRecords::bytesAt(const FileBytes& record, std::uint32_t at)
{
    return record.holds(at + 4, record.longAt(at));
}

bool EmfRecords::twoByteRows(const FileBytes& record, std::uint32_t at)
{
    return record.holds(at + 8, std::uint64_t{record.longAt(at)} + record.longAt(at + 4));
}

/// The size of the region stands behind the rectangle of the drawing.
bool EmfRecords::region(const FileBytes& record, std::uint32_t at)
{
    return isSoundRegion(record, at, record.longAt(24));
}

bool EmfRecords::filledRegion(const FileBytes& record, std::uint32_t at)
{
    return ownObject(record, 28) && region(record, at);
}

bool EmfRecords::clipRegion(const FileBytes& record, std::uint32_t at)
{
    constexpr std::uint32_t replace = 5;
    const std::uint32_t size = record.longAt(8);
    return (size == 0 && record.longAt(12) == replace) || isSoundRegion(record, at, size);
}

/// Players have ended over pixels to be copied that have no colours.
bool EmfRecords::bitmap(const FileBytes& record, std::uint32_t at)
{
    const std::uint32_t usage = record.longAt(at);
    return hasNoBitmap(record, at + 4) || (usage != BitmapHeader::NoColors && hasSoundBitmap(record, at + 4, usage));
}

bool EmfRecords::maskedBitmap(const FileBytes& record, std::uint32_t at)
{
    const std::uint32_t mask = at + 28;
    return bitmap(record, at) &&
           (hasNoBitmap(record, mask + 4) || hasSoundBitmap(record, mask + 4, record.longAt(mask)));
}

bool EmfRecords::drawnBitmap(const FileBytes& record, std::uint32_t at)
{
    return hasSoundBitmap(record, at, record.longAt(at + 16));
}

bool EmfRecords::bitmapRows(const FileBytes& record, std::uint32_t /*at*/)
{
    enum : std::uint32_t
    {
        bitmapAt = 48,
        usageAt = 64,
        firstRowAt = 68,
        rowsAt = 72,
    };
    EmbeddedBitmap bitmap{record, record, 0};
    return placesBitmap(record, bitmapAt, record.longAt(usageAt), bitmap) &&
           bitmap.isSound(record.longAt(firstRowAt), record.longAt(rowsAt));
}

bool EmfRecords::patternBrush(const FileBytes& record, std::uint32_t at)
{
    return newObject(record, at) && hasSoundBitmap(record, at + 8, record.longAt(at + 4));
}

bool EmfRecords::extendedPen(const FileBytes& record, std::uint32_t at)
{
    enum : std::uint32_t
    {
        bitmapAt = 12,
        brushStyleAt = 36,
        entriesAt = 48,
        lastPlainStyle = 2, // solid, none, hatched; the others hold a pointer
    };
    return newObject(record, at) && record.longAt(brushStyleAt) <= lastPlainStyle &&
           (record.longAt(bitmapAt + 4) == 0 || hasSoundBitmap(record, bitmapAt, 0)) &&
           record.holds(entriesAt + 4, std::uint64_t{record.longAt(entriesAt)} * 4);
}
