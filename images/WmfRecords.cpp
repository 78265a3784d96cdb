// The table of the kinds, and the checks of the variable ones.
#include "WmfRecords.h"

#include <algorithm>
#include <array>

#include "BitmapHeader.h"

namespace
{
/// The header, its colors and the pixels in one piece, from `at` to the end of the record.
bool splitBitmap(const FileBytes& record, std::uint32_t at, std::uint32_t usage, EmbeddedBitmap& bitmap)
{
    if (!record.holds(at, BitmapHeader::CoreSize))
    {
        return false;
    }
    const FileBytes whole = record.behind(at);
    const std::uint64_t head = EmbeddedBitmap::headSize(whole, usage);
    if (!whole.holds(0, head))
    {
        return false;
    }
    bitmap = {whole.part(0, head), whole.behind(head), usage};
    return true;
}

bool hasSoundBitmap(const FileBytes& record, std::uint32_t at, std::uint32_t usage)
{
    EmbeddedBitmap bitmap{record, record, usage};
    return splitBitmap(record, at, usage, bitmap) && bitmap.isSound();
}

/// A copy within the surface has no bitmap, and one size.
bool isWithoutBitmap(const FileBytes& record)
{
    constexpr std::uint32_t recordHeadWords = 3;
    return record.size() == 2 * ((record.wordAt(4) >> 8) + recordHeadWords);
}

std::uint64_t padded(std::uint64_t characters)
{
    return (characters + 1) / 2 * 2;
}
} // namespace

const WmfRecords::Rule* WmfRecords::ruleOf(std::uint32_t kind)
{
    using W = WmfRecords;
    // Not among them: the bitmaps of one kind of device, which no other device can read.
    static constexpr std::array rules{
        Rule{EndOfFile, 3, nullptr},
        Rule{0x001E, 3, &W::save},            // save
        Rule{0x0035, 3, nullptr},             // realize palette
        Rule{0x0037, 5, &W::paletteEntries},  // set palette entries
        Rule{0x00F7, 5, &W::palette},         // palette
        Rule{0x0102, 4, nullptr},             // background mode
        Rule{0x0103, 4, nullptr},             // map mode
        Rule{0x0104, 4, nullptr},             // raster operation
        Rule{0x0105, 3, nullptr},             // relative or absolute coordinates
        Rule{0x0106, 4, nullptr},             // polygon fill mode
        Rule{0x0107, 4, nullptr},             // stretch mode
        Rule{0x0108, 4, nullptr},             // character distance
        Rule{0x0127, 4, &W::restore},         // restore
        Rule{0x012A, 4, &W::object},          // invert region
        Rule{0x012B, 4, &W::object},          // paint region
        Rule{0x012C, 4, &W::object},          // select clip region
        Rule{0x012D, 4, &W::object},          // select
        Rule{0x012E, 4, nullptr},             // text alignment
        Rule{0x0139, 4, nullptr},             // resize palette
        Rule{0x0142, 5, &W::patternBrush},    // pattern brush
        Rule{0x0149, 4, nullptr},             // layout
        Rule{0x01F0, 4, &W::deleted},         // delete
        Rule{0x0201, 5, nullptr},             // background color
        Rule{0x0209, 5, nullptr},             // text color
        Rule{0x020A, 5, nullptr},             // text justification
        Rule{0x020B, 5, nullptr},             // window origin
        Rule{0x020C, 5, nullptr},             // window extent
        Rule{0x020D, 5, nullptr},             // viewport origin
        Rule{0x020E, 5, nullptr},             // viewport extent
        Rule{0x020F, 5, nullptr},             // offset window origin
        Rule{0x0211, 5, nullptr},             // offset viewport origin
        Rule{0x0213, 5, nullptr},             // line to
        Rule{0x0214, 5, nullptr},             // move to
        Rule{0x0220, 5, nullptr},             // offset clip region
        Rule{0x0228, 5, &W::twoObjects},      // fill region
        Rule{0x0231, 5, nullptr},             // font mapper flags
        Rule{0x0234, 4, &W::object},          // select palette
        Rule{0x02FA, 8, &W::newObject},       // pen
        Rule{0x02FB, 13, &W::font},           // font
        Rule{0x02FC, 7, &W::brush},           // brush
        Rule{0x0324, 4, &W::points},          // polygon
        Rule{0x0325, 4, &W::points},          // polyline
        Rule{0x0410, 7, nullptr},             // scale window
        Rule{0x0412, 7, nullptr},             // scale viewport
        Rule{0x0415, 7, nullptr},             // exclude clip rectangle
        Rule{0x0416, 7, nullptr},             // intersect clip rectangle
        Rule{0x0418, 7, nullptr},             // ellipse
        Rule{0x0419, 7, nullptr},             // flood fill
        Rule{0x041B, 7, nullptr},             // rectangle
        Rule{0x041F, 7, nullptr},             // pixel
        Rule{0x0429, 7, &W::framedRegion},    // frame region
        Rule{0x0436, 5, &W::paletteEntries},  // animate palette
        Rule{0x0521, 6, &W::text},            // text
        Rule{0x0538, 4, &W::polygons},        // poly polygon
        Rule{0x0548, 8, nullptr},             // flood fill of a kind
        Rule{0x061C, 9, nullptr},             // round rectangle
        Rule{0x061D, 9, nullptr},             // pattern block
        Rule{0x0626, 5, &W::bytes},           // escape
        Rule{0x06FF, 14, &W::region},         // region
        Rule{0x0817, 11, nullptr},            // arc
        Rule{0x081A, 11, nullptr},            // pie
        Rule{0x0830, 11, nullptr},            // chord
        Rule{0x0922, 12, &W::block},          // bit block
        Rule{0x0940, 12, &W::bitmapBlock},    // bit block with a bitmap
        Rule{0x0A32, 7, &W::extendedText},    // text with distances
        Rule{0x0B41, 13, &W::stretchedBlock}, // stretched block with a bitmap
        Rule{0x0D33, 12, &W::bitmapRows},     // bitmap to device
        Rule{0x0F43, 14, &W::stretchedBitmap} // stretched bitmap
    };
    const auto* const found = std::lower_bound(rules.begin(), rules.end(), kind,
                                               [](const Rule& rule, auto value) { return rule.kind < value; });
    return found != rules.end() && found->kind == kind ? &*found : nullptr;
}

bool WmfRecords::isSound(const FileBytes& record)
{
    const Rule* const rule = ruleOf(record.wordAt(4));
    return rule != nullptr && record.size() >= std::uint64_t{rule->least} * 2 &&
           (rule->check == nullptr || (this->*rule->check)(record));
}

bool WmfRecords::save(const FileBytes& /*record*/)
{
    m_saved.save();
    return true;
}

bool WmfRecords::restore(const FileBytes& record)
{
    return m_saved.restore(record.signedWordAt(6));
}

/// Takes the first place that is free, as the player does.
bool WmfRecords::newObject(const FileBytes& /*record*/)
{
    if (m_free == 0)
    {
        return false;
    }
    const auto place = std::find(m_taken.begin(), m_taken.end(), false);
    *place = true;
    m_lastObject = static_cast<std::uint32_t>(place - m_taken.begin());
    --m_free;
    return true;
}

bool WmfRecords::object(const FileBytes& record)
{
    return record.wordAt(6) < m_objects;
}

/// Region and brush; one comes first by the books, the other by what recorders write.
bool WmfRecords::twoObjects(const FileBytes& record)
{
    return object(record) && record.wordAt(8) < m_objects;
}

/// The same with the width and the height of the frame in front or behind: whichever it is, no handle is out of the table.
bool WmfRecords::framedRegion(const FileBytes& record)
{
    return twoObjects(record) && record.wordAt(10) < m_objects && record.wordAt(12) < m_objects;
}

bool WmfRecords::deleted(const FileBytes& record)
{
    if (!object(record))
    {
        return false;
    }
    const std::uint32_t index = record.wordAt(6);
    m_free += m_taken[index] ? 1 : 0;
    m_taken[index] = false;
    return true;
}

bool WmfRecords::brush(const FileBytes& record)
{
    constexpr std::uint32_t lastPlainStyle = 2; // solid, none, hatched; the others hold a handle or a pointer
    return record.wordAt(6) <= lastPlainStyle && newObject(record);
}

/// The name ends with a zero, unless it fills its place.
bool WmfRecords::font(const FileBytes& record)
{
    constexpr std::uint32_t nameAt = 24;
    constexpr std::uint32_t longestName = 32;
    const FileBytes name = record.behind(nameAt);
    return (name.size() >= longestName || std::find(name.begin(), name.end(), 0) != name.end()) && newObject(record);
}

bool WmfRecords::palette(const FileBytes& record)
{
    return paletteEntries(record) && newObject(record);
}

bool WmfRecords::paletteEntries(const FileBytes& record)
{
    return record.holds(10, std::uint64_t{record.wordAt(8)} * 4);
}

/// Bands, each with the number of its edges in front and behind.
bool WmfRecords::region(const FileBytes& record)
{
    constexpr std::uint32_t bandsAt = 16;
    constexpr std::uint32_t firstBandAt = 28;
    std::uint64_t at = firstBandAt;
    for (std::uint32_t band = record.wordAt(bandsAt); band > 0; --band)
    {
        const std::uint32_t edges = record.wordAt(at);
        const std::uint64_t size = std::uint64_t{edges} * 2 + 8;
        if (edges % 2 != 0 || !record.holds(at, size) || record.wordAt(at + size - 2) != edges)
        {
            return false;
        }
        at += size;
    }
    return newObject(record);
}

bool WmfRecords::patternBrush(const FileBytes& record)
{
    return hasSoundBitmap(record, 10, record.wordAt(8)) && newObject(record);
}

bool WmfRecords::points(const FileBytes& record)
{
    return record.holds(8, std::uint64_t{record.wordAt(6)} * 4);
}

bool WmfRecords::polygons(const FileBytes& record)
{
    const std::uint32_t count = record.wordAt(6);
    std::uint64_t size = std::uint64_t{count} * 2;
    for (std::uint32_t i = 0; i < count; ++i)
    {
        size += std::uint64_t{record.wordAt(8 + std::size_t{i} * 2)} * 4;
    }
    return record.holds(8, size);
}

/// The characters, then the place.
bool WmfRecords::text(const FileBytes& record)
{
    return record.holds(8, padded(record.wordAt(6)) + 4);
}

bool WmfRecords::extendedText(const FileBytes& record)
{
    constexpr std::uint32_t rectangleSize = 8;
    const std::uint32_t count = record.wordAt(10);
    const bool hasRectangle = record.wordAt(12) != 0; // a player may look for it behind any option
    const std::uint64_t size = padded(count) + (hasRectangle ? rectangleSize : 0);
    return record.holds(14, size);
}

bool WmfRecords::bytes(const FileBytes& record)
{
    return record.holds(10, record.wordAt(8));
}

bool WmfRecords::block(const FileBytes& record)
{
    return isWithoutBitmap(record);
}

bool WmfRecords::bitmapBlock(const FileBytes& record)
{
    return isWithoutBitmap(record) || hasSoundBitmap(record, 22, BitmapHeader::RgbColors);
}

bool WmfRecords::stretchedBlock(const FileBytes& record)
{
    return hasSoundBitmap(record, 26, BitmapHeader::RgbColors);
}

bool WmfRecords::stretchedBitmap(const FileBytes& record)
{
    return hasSoundBitmap(record, 28, record.wordAt(10));
}

bool WmfRecords::bitmapRows(const FileBytes& record)
{
    const std::uint32_t usage = record.wordAt(6);
    EmbeddedBitmap bitmap{record, record, usage};
    return splitBitmap(record, 24, usage, bitmap) && bitmap.isSound(record.wordAt(10), record.wordAt(8));
}
