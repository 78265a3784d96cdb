// Reads the headers of bitmap and icon files, byte by byte, within the bytes that there are.
#include "PictureData.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "BitmapHeader.h"
#include "FileBytes.h"
#include "MetafileCheck.h"

namespace
{
constexpr uint32_t preambleMark = 0x0000746C; // "lt", 0, 0
constexpr size_t preambleSize = 8;
constexpr uint32_t bitmapMark = 0x4D42; // "BM"
constexpr size_t gifScreenSize = 13;
constexpr size_t gifFlagsAt = 10;
constexpr unsigned char gifTableFlag = 0x80;
constexpr unsigned char gifGreatestTable = 7; // 256 entries
constexpr size_t gifGreatestTableSize = 768;
constexpr size_t iconHeaderSize = 6;
constexpr size_t iconEntrySize = 16;

bool isWholeBitmap(const FileBytes& file)
{
    if (!file.holds(BitmapHeader::FileHeaderSize, BitmapHeader::CoreSize))
    {
        return false;
    }
    const FileBytes info = file.behind(BitmapHeader::FileHeaderSize);
    const BitmapHeader header = BitmapHeader::read(info);
    if (!header.isKnown() || !info.holds(header.headerSize, header.tableSize(header.fileColors())))
    {
        return false;
    }
    const uint32_t offset = file.longAt(10);
    return file.holds(offset, 0) && header.pixelsFit(file.size() - offset);
}

bool isWholeIcon(const FileBytes& file)
{
    const size_t count = file.wordAt(4);
    if (count == 0 || !file.holds(iconHeaderSize, count * iconEntrySize))
    {
        return false;
    }
    for (size_t i = 0; i < count; ++i)
    {
        const size_t entry = iconHeaderSize + i * iconEntrySize;
        const size_t length = file.longAt(entry + 8);
        if (length < BitmapHeader::InfoSize || !file.holds(file.longAt(entry + 12), length))
        {
            return false;
        }
    }
    return true;
}

/// Pictures that were saved as a property stand behind a mark and their length, and may do so several times.
FileBytes behindPreambles(FileBytes file)
{
    while (file.holds(0, preambleSize) && file.longAt(0) == preambleMark)
    {
        const size_t rest = file.size() - preambleSize;
        file = file.part(preambleSize, std::min<size_t>(file.longAt(4), rest));
    }
    return file;
}
} // namespace

bool PictureData::isWhole(const unsigned char* data, size_t size)
{
    if (data == nullptr)
    {
        return true;
    }
    const FileBytes file = behindPreambles(FileBytes(data, size));
    if (file.size() < 2)
    {
        return true;
    }
    switch (file.wordAt(0))
    {
    case bitmapMark:
        return isWholeBitmap(file);
    case 0:
        return isWholeIcon(file);
    default:
        return MetafileCheck::isSound(file.begin(), file.size());
    }
}

bool PictureData::lacksColorTable(const unsigned char* data, size_t size)
{
    const FileBytes file = behindPreambles(FileBytes(data, data == nullptr ? 0 : size));
    return file.size() >= gifScreenSize && std::equal(file.begin(), file.begin() + 3, "GIF") &&
           (file.byteAt(gifFlagsAt) & gifTableFlag) == 0;
}

std::vector<unsigned char> PictureData::withColorTable(const unsigned char* data, size_t size)
{
    constexpr std::array<unsigned char, gifGreatestTableSize> table = {0, 0, 0, 255, 255, 255};
    const FileBytes file = behindPreambles(FileBytes(data, size));
    std::vector<unsigned char> result;
    result.reserve(file.size() + table.size());
    std::copy_n(file.begin(), gifScreenSize, std::back_inserter(result));
    result[gifFlagsAt] = static_cast<unsigned char>(result[gifFlagsAt] | gifTableFlag | gifGreatestTable);
    std::copy(table.begin(), table.end(), std::back_inserter(result));
    std::copy(file.begin() + gifScreenSize, file.end(), std::back_inserter(result));
    return result;
}
