// Where the records of an enhanced metafile hold points, widths and transformations.
#include "EmfReach.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "EmfKinds.h"

namespace
{
enum HeaderAt : std::uint32_t
{
    frameAt = 24, // hundredths of a millimetre
    pixelsAt = 72,
    millimetresAt = 80,
};

double floatAt(const FileBytes& record, std::uint32_t at)
{
    static_assert(sizeof(float) == sizeof(std::uint32_t) && std::numeric_limits<float>::is_iec559);
    const std::uint32_t bits = record.longAt(at);
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

MetafileMapping::World worldAt(const FileBytes& record, std::uint32_t at)
{
    MetafileMapping::World world{};
    for (std::uint32_t i = 0; i < world.size(); ++i)
    {
        world[i] = floatAt(record, at + i * 4);
    }
    return world;
}

MetafileReach reachOf(const FileBytes& header, double pixelsAcross, double pixelsDown)
{
    const double left = header.signedLongAt(frameAt) * pixelsAcross;
    const double top = header.signedLongAt(frameAt + 4) * pixelsDown;
    return {left, top, header.signedLongAt(frameAt + 8) * pixelsAcross - left,
            header.signedLongAt(frameAt + 12) * pixelsDown - top, MetafileMapping()};
}

double pixelsPerUnit(const FileBytes& header, std::uint32_t direction)
{
    constexpr double unitsPerMillimetre = 100;
    return header.signedLongAt(pixelsAt + direction) /
           (header.signedLongAt(millimetresAt + direction) * unitsPerMillimetre);
}

/// Points of 32 bits each.
bool pointsWithin(const MetafileReach& reach, const FileBytes& record, std::uint64_t at, std::uint32_t count,
                  std::uint32_t step = 8)
{
    for (std::uint32_t i = 0; i < count; ++i, at += step)
    {
        if (!reach.point(record.signedLongAt(at), record.signedLongAt(at + 4), MetafileReach::MostForStraight))
        {
            return false;
        }
    }
    return true;
}

bool points16Within(const MetafileReach& reach, const FileBytes& record, std::uint64_t at, std::uint32_t count)
{
    for (std::uint32_t i = 0; i < count; ++i, at += 4)
    {
        if (!reach.point(record.signedWordAt(at), record.signedWordAt(at + 2), MetafileReach::MostForStraight))
        {
            return false;
        }
    }
    return true;
}

bool boxWithin(const MetafileReach& reach, const FileBytes& record, double most)
{
    return reach.box(record.signedLongAt(8), record.signedLongAt(12), record.signedLongAt(16), record.signedLongAt(20),
                     most);
}

bool arcWithin(const MetafileReach& reach, const FileBytes& record)
{
    const double x = record.signedLongAt(8);
    const double y = record.signedLongAt(12);
    const double radius = record.longAt(16);
    constexpr double mostTurns = 360 * 100;
    return reach.box(x - radius, y - radius, x + radius, y + radius, MetafileReach::MostForRound) &&
           std::abs(floatAt(record, 20)) <= mostTurns && std::abs(floatAt(record, 24)) <= mostTurns;
}

/// A place at 24, and a size at `at`.
bool blockWithin(const MetafileReach& reach, const FileBytes& record, std::uint32_t at)
{
    const double x = record.signedLongAt(24);
    const double y = record.signedLongAt(28);
    return reach.box(x, y, x + record.signedLongAt(at), y + record.signedLongAt(at + 4),
                     MetafileReach::MostForStraight);
}

/// The part of a bitmap that goes into a parallelogram.
bool sourceWithin(const FileBytes& record)
{
    constexpr std::int32_t most = 0x7FFF;
    for (const std::uint32_t at : {48U, 52U, 56U, 60U})
    {
        if (record.signedLongAt(at) > most || record.signedLongAt(at) < -most)
        {
            return false;
        }
    }
    return true;
}

void setExtents(MetafileMapping& mapping, double MetafileAxis::*part, const FileBytes& record)
{
    mapping.x.*part = record.signedLongAt(8);
    mapping.y.*part = record.signedLongAt(12);
}

void scaleExtents(MetafileMapping& mapping, double MetafileAxis::*part, const FileBytes& record)
{
    mapping.x.*part = mapping.x.*part * record.signedLongAt(8) / record.signedLongAt(12);
    mapping.y.*part = mapping.y.*part * record.signedLongAt(16) / record.signedLongAt(20);
}

void changeWorld(MetafileMapping& mapping, const FileBytes& record)
{
    enum : std::uint32_t
    {
        identity = 1,
        before = 2,
        behind = 3,
        replace = 4,
    };
    const MetafileMapping::World world = worldAt(record, 8);
    switch (record.longAt(32))
    {
    case identity:
        mapping.world = MetafileMapping().world;
        break;
    case before:
        mapping.world = MetafileMapping::combined(world, mapping.world);
        break;
    case behind:
        mapping.world = MetafileMapping::combined(mapping.world, world);
        break;
    case replace:
        mapping.world = world;
        break;
    default:
        break;
    }
}

double greater(std::int32_t a, std::int32_t b)
{
    return std::max(std::abs(double{1} * a), std::abs(double{1} * b));
}
} // namespace

EmfReach::EmfReach(const FileBytes& header)
    : m_pixelsPerUnitAcross(pixelsPerUnit(header, 0)),
      m_pixelsPerUnitDown(pixelsPerUnit(header, 4)), m_reaches{
                                                         reachOf(header, m_pixelsPerUnitAcross, m_pixelsPerUnitDown),
                                                         reachOf(header, m_pixelsPerUnitAcross, m_pixelsPerUnitDown)}
{
}

bool EmfReach::isPictureSize(const FileBytes& header)
{
    constexpr std::int64_t most = 400'000; // four metres
    const auto size = [&](std::uint32_t at)
    { return std::int64_t{header.signedLongAt(at + 8)} - header.signedLongAt(at); };
    return size(frameAt) <= most && size(frameAt + 4) <= most;
}

bool EmfReach::isWithin(const FileBytes& record)
{
    return isWithin(m_reaches[0], Extents::Ignored, record) && isWithin(m_reaches[1], Extents::Kept, record);
}

bool EmfReach::isWithin(MetafileReach& reach, Extents extents, const FileBytes& record) const
{
    follow(reach, extents, record);
    return drawsWithin(reach, record);
}

void EmfReach::setMode(MetafileMapping& mapping, Extents extents, std::uint32_t mode) const
{
    if (mode < MetafileMapping::Text || mode > MetafileMapping::Last)
    {
        return;
    }
    // Between the mode of pixels and those of own extents: tenths and hundredths of a millimetre and of an inch, twips.
    constexpr double units[] = {10, 1, 25.4, 2.54, 2540.0 / 1440};
    const bool ownExtents = mode >= MetafileMapping::FirstOfOwnExtents;
    if (!ownExtents && (extents == Extents::Ignored))
    {
        const double unit = mode == MetafileMapping::Text ? 0 : units[mode - 2];
        mapping.x.windowExtent = mapping.y.windowExtent = 1;
        mapping.x.viewportExtent = unit == 0 ? 1 : unit * m_pixelsPerUnitAcross;
        mapping.y.viewportExtent = unit == 0 ? 1 : -unit * m_pixelsPerUnitDown;
    }
    mapping.mode = mode;
}

/// Takes over what the record says of the ones behind it.
void EmfReach::follow(MetafileReach& reach, Extents extents, const FileBytes& record) const
{
    MetafileMapping& now = reach.now();
    const bool setsExtents = extents == Extents::Kept || now.mode >= MetafileMapping::FirstOfOwnExtents;
    switch (static_cast<EmfKind>(record.longAt(0)))
    {
    case EmfKind::WindowExtent:
        if (setsExtents)
        {
            setExtents(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case EmfKind::WindowOrigin:
        setExtents(now, &MetafileAxis::windowOrigin, record);
        break;
    case EmfKind::ViewportExtent:
        if (setsExtents)
        {
            setExtents(now, &MetafileAxis::viewportExtent, record);
        }
        break;
    case EmfKind::ViewportOrigin:
        setExtents(now, &MetafileAxis::viewportOrigin, record);
        break;
    case EmfKind::MapMode:
        setMode(now, extents, record.longAt(8));
        break;
    case EmfKind::ScaleViewport:
        if (setsExtents)
        {
            scaleExtents(now, &MetafileAxis::viewportExtent, record);
        }
        break;
    case EmfKind::ScaleWindow:
        if (setsExtents)
        {
            scaleExtents(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case EmfKind::Save:
        reach.save();
        break;
    case EmfKind::Restore:
        reach.restore(record.signedLongAt(8));
        break;
    case EmfKind::SetWorldTransform:
        now.world = worldAt(record, 8);
        break;
    case EmfKind::ModifyWorldTransform:
        changeWorld(now, record);
        break;
    case EmfKind::SelectObject:
        reach.selectObject(record.longAt(8));
        break;
    case EmfKind::NewBrush: // the other objects take their place
    case EmfKind::NewPalette:
    case EmfKind::NewMonoBrush:
    case EmfKind::NewPatternBrush:
    case EmfKind::NewColorSpace:
    case EmfKind::NewWideColorSpace:
        reach.keepObject(record.longAt(8), MetafileReach::Ink::None, 0);
        break;
    case EmfKind::NewPen:
        reach.keepObject(record.longAt(8), MetafileReach::Ink::Pen, record.signedLongAt(16));
        break;
    case EmfKind::NewExtendedPen:
        reach.keepObject(record.longAt(8), MetafileReach::Ink::Pen, record.longAt(32));
        break;
    case EmfKind::NewFont:
        reach.keepObject(record.longAt(8), MetafileReach::Ink::Letter,
                         greater(record.signedLongAt(12), record.signedLongAt(16)));
        break;
    default:
        break;
    }
}

bool EmfReach::drawsWithin(const MetafileReach& reach, const FileBytes& record) const
{
    const std::uint32_t count = record.longAt(24);
    const std::uint64_t polygonPoints = 32 + std::uint64_t{count} * 4;
    switch (static_cast<EmfKind>(record.longAt(0)))
    {
    case EmfKind::PolyBezier: // all of the shapes of points
    case EmfKind::Polygon:
    case EmfKind::Polyline:
    case EmfKind::PolyBezierTo:
    case EmfKind::PolylineTo:
    case EmfKind::PolyDraw:
        return reach.line() && pointsWithin(reach, record, 28, count);
    case EmfKind::PolyBezier16:
    case EmfKind::Polygon16:
    case EmfKind::Polyline16:
    case EmfKind::PolyBezierTo16:
    case EmfKind::PolylineTo16:
    case EmfKind::PolyDraw16:
        return reach.line() && points16Within(reach, record, 28, count);
    case EmfKind::PolyPolyline:
    case EmfKind::PolyPolygon:
        return reach.line() && pointsWithin(reach, record, polygonPoints, record.longAt(28));
    case EmfKind::PolyPolyline16:
    case EmfKind::PolyPolygon16:
        return reach.line() && points16Within(reach, record, polygonPoints, record.longAt(28));
    case EmfKind::MoveTo:
        return pointsWithin(reach, record, 8, 1);
    case EmfKind::LineTo:
        return reach.line() && pointsWithin(reach, record, 8, 1);
    case EmfKind::AngleArc:
        return reach.line() && arcWithin(reach, record);
    case EmfKind::Ellipse: // round ones
    case EmfKind::RoundRectangle:
    case EmfKind::Arc:
    case EmfKind::Chord:
    case EmfKind::Pie:
    case EmfKind::ArcTo:
        return reach.line() && boxWithin(reach, record, MetafileReach::MostForRound);
    case EmfKind::Rectangle:
        return reach.line() && boxWithin(reach, record, MetafileReach::MostForStraight);
    case EmfKind::BitBlock: // bitmaps
    case EmfKind::StretchedBlock:
    case EmfKind::MaskedBlock:
    case EmfKind::BlendedBlock:
    case EmfKind::TransparentBlock:
        return blockWithin(reach, record, 32);
    case EmfKind::BitmapToDevice:
        return blockWithin(reach, record, 40);
    case EmfKind::StretchedBitmap:
        return blockWithin(reach, record, 72);
    case EmfKind::ParallelogramBlock:
        return pointsWithin(reach, record, 24, 3) && sourceWithin(record);
    case EmfKind::Gradient:
        return pointsWithin(reach, record, 36, count, 16);
    case EmfKind::StrokeAndFillPath: // paths with an outline
    case EmfKind::StrokePath:
    case EmfKind::WidenPath:
        return reach.line();
    case EmfKind::TextOfBytes: // texts
    case EmfKind::Text:
    case EmfKind::TextsOfBytes:
    case EmfKind::Texts:
    case EmfKind::SmallText:
        return reach.letters();
    default:
        return true;
    }
}
