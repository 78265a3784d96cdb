// Reads the headers of bitmap and icon files, byte by byte, within the bytes that there are.
#include "PictureData.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace
{
/// Little-endian numbers of a file; beyond its end they are 0.
class Bytes
{
public:
    Bytes(const unsigned char* data, size_t size) : m_data(data), m_size(size) {}

    size_t size() const { return m_size; }
    uint32_t byteAt(size_t at) const { return at < m_size ? m_data[at] : 0; }
    uint32_t wordAt(size_t at) const { return byteAt(at) | byteAt(at + 1) << 8; }
    uint32_t longAt(size_t at) const { return wordAt(at) | wordAt(at + 2) << 16; }
    bool holds(size_t from, size_t count) const { return from <= m_size && count <= m_size - from; }
    Bytes part(size_t from, size_t count) const { return {m_data + from, count}; }
    const unsigned char* begin() const { return m_data; }
    const unsigned char* end() const { return m_data + m_size; }

private:
    const unsigned char* m_data;
    size_t m_size;
};

constexpr uint32_t preambleMark = 0x0000746C; // "lt", 0, 0
constexpr size_t preambleSize = 8;
constexpr uint32_t bitmapMark = 0x4D42; // "BM"
constexpr size_t fileHeaderSize = 14;
constexpr uint32_t coreHeaderSize = 12;
constexpr uint32_t infoHeaderSize = 40;
constexpr uint32_t greatestHeaderSize = 124;
constexpr size_t gifScreenSize = 13;
constexpr size_t gifFlagsAt = 10;
constexpr unsigned char gifTableFlag = 0x80;
constexpr unsigned char gifGreatestTable = 7; // 256 entries
constexpr size_t gifGreatestTableSize = 768;
constexpr size_t iconHeaderSize = 6;
constexpr size_t iconEntrySize = 16;

enum Compression : uint32_t
{
    plain = 0,
    runs8 = 1,
    runs4 = 2,
    masks = 3
};

struct BitmapHeader
{
    uint32_t headerSize;
    int64_t width;
    int64_t height; // without its sign
    uint32_t bits;
    uint32_t compression;
    uint32_t packedSize;
    uint32_t usedColors;
};

int64_t signedLong(uint32_t value)
{
    return static_cast<int32_t>(value);
}

BitmapHeader readHeader(const Bytes& info)
{
    const uint32_t headerSize = info.longAt(0);
    if (headerSize == coreHeaderSize)
    {
        return {headerSize, info.wordAt(4), info.wordAt(6), info.wordAt(10), plain, 0, 0};
    }
    const int64_t height = signedLong(info.longAt(8));
    return {headerSize,
            signedLong(info.longAt(4)),
            height < 0 ? -height : height,
            info.wordAt(14),
            info.longAt(16),
            info.longAt(20),
            info.longAt(32)};
}

bool isKnown(const BitmapHeader& header)
{
    const bool sizeIsKnown = header.headerSize == coreHeaderSize ||
                             (header.headerSize >= infoHeaderSize && header.headerSize <= greatestHeaderSize);
    constexpr uint32_t depths[] = {1, 4, 8, 16, 24, 32};
    return sizeIsKnown && header.width > 0 && header.height > 0 && header.compression <= masks &&
           std::find(std::begin(depths), std::end(depths), header.bits) != std::end(depths);
}

/// What stands between the header and the pixels.
size_t colorTableSize(const BitmapHeader& header)
{
    constexpr size_t maskTableSize = 12;
    if (header.bits > 8)
    {
        return header.compression == masks ? maskTableSize : 0;
    }
    const size_t most = size_t{1} << header.bits;
    const size_t count = header.usedColors == 0 ? most : std::min<size_t>(header.usedColors, most);
    return count * (header.headerSize == coreHeaderSize ? 3 : 4);
}

bool pixelsLieWithin(const BitmapHeader& header, size_t room)
{
    if (header.compression == runs8 || header.compression == runs4)
    {
        return header.packedSize > 0 && header.packedSize <= room;
    }
    const int64_t stride = (header.width * header.bits + 31) / 32 * 4;
    return static_cast<uint64_t>(header.height) <= room / static_cast<uint64_t>(stride);
}

bool isWholeBitmap(const Bytes& file)
{
    if (!file.holds(fileHeaderSize, coreHeaderSize))
    {
        return false;
    }
    const Bytes info = file.part(fileHeaderSize, file.size() - fileHeaderSize);
    const BitmapHeader header = readHeader(info);
    if (!isKnown(header) || !info.holds(header.headerSize, colorTableSize(header)))
    {
        return false;
    }
    const uint32_t offset = file.longAt(10);
    return file.holds(offset, 0) && pixelsLieWithin(header, file.size() - offset);
}

bool isWholeIcon(const Bytes& file)
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
        if (length < infoHeaderSize || !file.holds(file.longAt(entry + 12), length))
        {
            return false;
        }
    }
    return true;
}

/// Pictures that were saved as a property stand behind a mark and their length, and may do so several times.
Bytes behindPreambles(Bytes file)
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
    const Bytes file = behindPreambles(Bytes(data, size));
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
        return true;
    }
}

bool PictureData::lacksColorTable(const unsigned char* data, size_t size)
{
    const Bytes file = behindPreambles(Bytes(data, data == nullptr ? 0 : size));
    return file.size() >= gifScreenSize && std::equal(file.begin(), file.begin() + 3, "GIF") &&
           (file.byteAt(gifFlagsAt) & gifTableFlag) == 0;
}

std::vector<unsigned char> PictureData::withColorTable(const unsigned char* data, size_t size)
{
    constexpr std::array<unsigned char, gifGreatestTableSize> table = {0, 0, 0, 255, 255, 255};
    const Bytes file = behindPreambles(Bytes(data, size));
    std::vector<unsigned char> result;
    result.reserve(file.size() + table.size());
    std::copy_n(file.begin(), gifScreenSize, std::back_inserter(result));
    result[gifFlagsAt] = static_cast<unsigned char>(result[gifFlagsAt] | gifTableFlag | gifGreatestTable);
    std::copy(table.begin(), table.end(), std::back_inserter(result));
    std::copy(file.begin() + gifScreenSize, file.end(), std::back_inserter(result));
    return result;
}
