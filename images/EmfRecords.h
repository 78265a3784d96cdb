// The records of an enhanced metafile: the least size of each kind, and the checks of those with counts and offsets.
#pragma once

#include <cstdint>

#include "FileBytes.h"
#include "SavedStates.h"

/// Judges the records of one file in their order. A record begins with its kind and its size, 32 bits each.
class EmfRecords
{
public:
    enum : std::uint32_t
    {
        RecordHead = 8,
    };

    explicit EmfRecords(std::uint32_t handles) : m_handles(handles) {}

    /// `record` is one whole record of at least RecordHead bytes.
    bool isSound(const FileBytes& record);

private:
    using Check = bool (EmfRecords::*)(const FileBytes& record, std::uint32_t at);
    struct Rule
    {
        std::uint32_t least; // bytes; 0: not a kind that is played
        Check check;         // null: the size is all there is to check
        std::uint32_t at;    // where what it checks begins
    };
    static const Rule* ruleOf(std::uint32_t kind);

    bool header(const FileBytes& record, std::uint32_t at);
    bool endOfFile(const FileBytes& record, std::uint32_t at);
    bool save(const FileBytes& record, std::uint32_t at);
    bool restore(const FileBytes& record, std::uint32_t at);
    bool numbers(const FileBytes& record, std::uint32_t at);
    bool transform(const FileBytes& record, std::uint32_t at);

    bool points(const FileBytes& record, std::uint32_t at);
    bool points16(const FileBytes& record, std::uint32_t at);
    bool typedPoints(const FileBytes& record, std::uint32_t at);
    bool typedPoints16(const FileBytes& record, std::uint32_t at);
    bool polygons(const FileBytes& record, std::uint32_t at);
    bool polygons16(const FileBytes& record, std::uint32_t at);
    bool gradient(const FileBytes& record, std::uint32_t at);

    bool newObject(const FileBytes& record, std::uint32_t at);
    bool ownObject(const FileBytes& record, std::uint32_t at);
    bool anyObject(const FileBytes& record, std::uint32_t at);
    bool brush(const FileBytes& record, std::uint32_t at);
    bool extendedPen(const FileBytes& record, std::uint32_t at);
    bool palette(const FileBytes& record, std::uint32_t at);
    bool paletteEntries(const FileBytes& record, std::uint32_t at);
    bool patternBrush(const FileBytes& record, std::uint32_t at);

    bool text(const FileBytes& record, std::uint32_t at);
    bool text16(const FileBytes& record, std::uint32_t at);
    bool texts(const FileBytes& record, std::uint32_t at);
    bool texts16(const FileBytes& record, std::uint32_t at);
    bool smallText(const FileBytes& record, std::uint32_t at);

    bool bytesAt(const FileBytes& record, std::uint32_t at);
    bool twoByteRows(const FileBytes& record, std::uint32_t at);
    bool region(const FileBytes& record, std::uint32_t at);
    bool filledRegion(const FileBytes& record, std::uint32_t at);
    bool clipRegion(const FileBytes& record, std::uint32_t at);

    bool bitmap(const FileBytes& record, std::uint32_t at);
    bool maskedBitmap(const FileBytes& record, std::uint32_t at);
    bool drawnBitmap(const FileBytes& record, std::uint32_t at);
    bool bitmapRows(const FileBytes& record, std::uint32_t at);

    std::uint32_t m_handles;
    SavedStates m_saved{};
};
