// The records of a 16-bit metafile: the least size of each kind, and the checks of those with counts.
#pragma once

#include <cstdint>
#include <vector>

#include "FileBytes.h"
#include "SavedStates.h"
#include "WmfKinds.h"

/// Judges the records of one file in their order. A record begins with its size in words, 32 bits, and its kind, 16 bits.
class WmfRecords
{
public:
    enum : std::uint32_t
    {
        RecordHead = 6,
    };

    explicit WmfRecords(std::uint32_t objects) : m_objects(objects), m_free(objects) {}

    /// `record` is one whole record of at least RecordHead bytes.
    bool isSound(const FileBytes& record);
    /// The place of the object that was made last.
    std::uint32_t lastObject() const { return m_lastObject; }

private:
    using Check = bool (WmfRecords::*)(const FileBytes& record);
    struct Rule
    {
        WmfKind kind;
        std::uint32_t least; // words
        Check check;         // null: the size is all there is to check
    };
    static const Rule* ruleOf(WmfKind kind);

    bool save(const FileBytes& record);
    bool restore(const FileBytes& record);
    bool newObject(const FileBytes& record);
    bool object(const FileBytes& record);
    bool twoObjects(const FileBytes& record);
    bool framedRegion(const FileBytes& record);
    bool deleted(const FileBytes& record);

    bool brush(const FileBytes& record);
    bool font(const FileBytes& record);
    bool palette(const FileBytes& record);
    bool paletteEntries(const FileBytes& record);
    bool region(const FileBytes& record);
    bool patternBrush(const FileBytes& record);

    bool points(const FileBytes& record);
    bool polygons(const FileBytes& record);
    bool text(const FileBytes& record);
    bool extendedText(const FileBytes& record);
    bool bytes(const FileBytes& record);

    bool block(const FileBytes& record);
    bool bitmapBlock(const FileBytes& record);
    bool stretchedBlock(const FileBytes& record);
    bool stretchedBitmap(const FileBytes& record);
    bool bitmapRows(const FileBytes& record);

    std::uint32_t m_objects;
    std::uint32_t m_free;
    std::uint32_t m_lastObject = 0;
    std::vector<bool> m_taken = std::vector<bool>(m_objects);
    SavedStates m_saved{};
};
