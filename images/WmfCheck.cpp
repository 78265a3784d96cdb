// Walks the records of a 16-bit metafile from its headers to its end.
#include <cstdlib>

#include "FileBytes.h"
#include "MetafileCheck.h"
#include "WmfReach.h"
#include "WmfRecords.h"

namespace
{
constexpr std::uint32_t placeMark = 0x9AC6CDD7;
constexpr std::uint32_t placeSize = 22;
constexpr std::uint32_t boxAt = 6;
constexpr std::uint32_t unitsPerInchAt = 14;
constexpr double mostHundredths = 400'000; // four metres
constexpr std::uint32_t headerSize = 18;
constexpr std::uint32_t headerWords = 9;

bool hasPlace(const FileBytes& file)
{
    return file.longAt(0) == placeMark;
}

bool isHeader(const FileBytes& file)
{
    const std::uint32_t kind = file.wordAt(0); // 1: in memory, 2: on disk
    return (kind == 1 || kind == 2) && file.wordAt(2) == headerWords;
}

/// `reach` starts with the picture's size.
bool isSoundBehindPlace(const FileBytes& file, std::uint64_t wholeSize, WmfReach reach)
{
    const std::uint32_t version = file.wordAt(4);
    const std::uint64_t claimed = std::uint64_t{file.longAt(6)} * 2; // some writers count the place too
    if (!isHeader(file) || !file.holds(0, headerSize) || (version != 0x0100 && version != 0x0300) ||
        claimed > wholeSize)
    {
        return false;
    }
    const std::uint32_t longest = file.longAt(12);
    WmfRecords records(file.wordAt(10));
    std::size_t offset = headerSize;
    while (file.holds(offset, WmfRecords::RecordHead))
    {
        const std::uint32_t words = file.longAt(offset);
        const std::uint64_t length = std::uint64_t{words} * 2;
        if (length < WmfRecords::RecordHead || words > longest || !file.holds(offset, length))
        {
            return false;
        }
        const FileBytes record = file.part(offset, length);
        if (!records.isSound(record) || !reach.isWithin(record, records.lastObject()))
        {
            return false;
        }
        if (static_cast<WmfKind>(record.wordAt(4)) == WmfKind::EndOfFile)
        {
            return true;
        }
        offset += length;
    }
    return false;
}
} // namespace

bool WindowsMetafile::isOne(const FileBytes& file)
{
    return hasPlace(file) || isHeader(file);
}

bool WindowsMetafile::isSound(const FileBytes& file)
{
    if (!hasPlace(file))
    {
        return isSoundBehindPlace(file, file.size(), WmfReach(1, 1));
    }
    const std::int32_t width = file.signedWordAt(boxAt + 4) - file.signedWordAt(boxAt);
    const std::int32_t height = file.signedWordAt(boxAt + 6) - file.signedWordAt(boxAt + 2);
    const std::uint32_t unitsPerInch = file.wordAt(unitsPerInchAt);
    if (!file.holds(0, placeSize) || unitsPerInch == 0 || width == 0 || height == 0)
    {
        return false;
    }
    const double hundredths = 2540.0 / unitsPerInch; // of a millimetre: the player's units until the file sets others
    return std::abs(width) * hundredths <= mostHundredths && std::abs(height) * hundredths <= mostHundredths &&
           isSoundBehindPlace(file.behind(placeSize), file.size(), WmfReach(width * hundredths, height * hundredths));
}
