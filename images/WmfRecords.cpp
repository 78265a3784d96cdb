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

const WmfRecords::Rule* WmfRecords::ruleOf(WmfKind kind)
{
    using W = WmfRecords;
    // Not among them: the bitmaps of one kind of device, which no other device can read.
    static constexpr std::array rules{Rule{WmfKind::EndOfFile, 3, nullptr},
                                      Rule{WmfKind::Save, 3, &W::save},
                                      Rule{WmfKind::RealizePalette, 3, nullptr},
                                      Rule{WmfKind::SetPaletteEntries, 5, &W::paletteEntries},
                                      Rule{WmfKind::NewPalette, 5, &W::palette},
                                      Rule{WmfKind::BackgroundMode, 4, nullptr},
                                      Rule{WmfKind::MapMode, 4, nullptr},
                                      Rule{WmfKind::RasterOperation, 4, nullptr},
                                      Rule{WmfKind::RelativeOrAbsoluteCoordinates, 3, nullptr},
                                      Rule{WmfKind::PolygonFillMode, 4, nullptr},
                                      Rule{WmfKind::StretchMode, 4, nullptr},
                                      Rule{WmfKind::CharacterDistance, 4, nullptr},
                                      Rule{WmfKind::Restore, 4, &W::restore},
                                      Rule{WmfKind::InvertRegion, 4, &W::object},
                                      Rule{WmfKind::PaintRegion, 4, &W::object},
                                      Rule{WmfKind::SelectClipRegion, 4, &W::object},
                                      Rule{WmfKind::SelectObject, 4, &W::object},
                                      Rule{WmfKind::TextAlignment, 4, nullptr},
                                      Rule{WmfKind::ResizePalette, 4, nullptr},
                                      Rule{WmfKind::NewPatternBrush, 5, &W::patternBrush},
                                      Rule{WmfKind::Layout, 4, nullptr},
                                      Rule{WmfKind::DeleteObject, 4, &W::deleted},
                                      Rule{WmfKind::BackgroundColor, 5, nullptr},
                                      Rule{WmfKind::TextColor, 5, nullptr},
                                      Rule{WmfKind::TextJustification, 5, nullptr},
                                      Rule{WmfKind::WindowOrigin, 5, nullptr},
                                      Rule{WmfKind::WindowExtent, 5, nullptr},
                                      Rule{WmfKind::ViewportOrigin, 5, nullptr},
                                      Rule{WmfKind::ViewportExtent, 5, nullptr},
                                      Rule{WmfKind::OffsetWindowOrigin, 5, nullptr},
                                      Rule{WmfKind::OffsetViewportOrigin, 5, nullptr},
                                      Rule{WmfKind::LineTo, 5, nullptr},
                                      Rule{WmfKind::MoveTo, 5, nullptr},
                                      Rule{WmfKind::OffsetClipRegion, 5, nullptr},
                                      Rule{WmfKind::FillRegion, 5, &W::twoObjects},
                                      Rule{WmfKind::FontMapperFlags, 5, nullptr},
                                      Rule{WmfKind::SelectPalette, 4, &W::object},
                                      Rule{WmfKind::NewPen, 8, &W::newObject},
                                      Rule{WmfKind::NewFont, 13, &W::font},
                                      Rule{WmfKind::NewBrush, 7, &W::brush},
                                      Rule{WmfKind::Polygon, 4, &W::points},
                                      Rule{WmfKind::Polyline, 4, &W::points},
                                      Rule{WmfKind::ScaleWindow, 7, nullptr},
                                      Rule{WmfKind::ScaleViewport, 7, nullptr},
                                      Rule{WmfKind::ExcludeClipRectangle, 7, nullptr},
                                      Rule{WmfKind::IntersectClipRectangle, 7, nullptr},
                                      Rule{WmfKind::Ellipse, 7, nullptr},
                                      Rule{WmfKind::FloodFill, 7, nullptr},
                                      Rule{WmfKind::Rectangle, 7, nullptr},
                                      Rule{WmfKind::Pixel, 7, nullptr},
                                      Rule{WmfKind::FrameRegion, 7, &W::framedRegion},
                                      Rule{WmfKind::AnimatePalette, 5, &W::paletteEntries},
                                      Rule{WmfKind::Text, 6, &W::text},
                                      Rule{WmfKind::PolyPolygon, 4, &W::polygons},
                                      Rule{WmfKind::FloodFillOfAKind, 8, nullptr},
                                      Rule{WmfKind::RoundRectangle, 9, nullptr},
                                      Rule{WmfKind::PatternBlock, 9, nullptr},
                                      Rule{WmfKind::Escape, 5, &W::bytes},
                                      Rule{WmfKind::NewRegion, 14, &W::region},
                                      Rule{WmfKind::Arc, 11, nullptr},
                                      Rule{WmfKind::Pie, 11, nullptr},
                                      Rule{WmfKind::Chord, 11, nullptr},
                                      Rule{WmfKind::BitBlock, 12, &W::block},
                                      Rule{WmfKind::BitBlockWithBitmap, 12, &W::bitmapBlock},
                                      Rule{WmfKind::TextWithDistances, 7, &W::extendedText},
                                      Rule{WmfKind::StretchedBlockWithBitmap, 13, &W::stretchedBlock},
                                      Rule{WmfKind::BitmapToDevice, 12, &W::bitmapRows},
                                      Rule{WmfKind::StretchedBitmap, 14, &W::stretchedBitmap}};
    const auto* const found = std::lower_bound(rules.begin(), rules.end(), kind,
                                               [](const Rule& rule, WmfKind value) { return rule.kind < value; });
    return found != rules.end() && found->kind == kind ? &*found : nullptr;
}

bool WmfRecords::isSound(const FileBytes& record)
{
    const Rule* const rule = ruleOf(static_cast<WmfKind>(record.wordAt(4)));
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
