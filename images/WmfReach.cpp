// Where the records of a 16-bit metafile hold points, widths and transformations; the vertical number comes first.
#include "WmfReach.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "WmfKinds.h"

namespace
{
// The surface is one picture wide and high, and nobody makes one of more pixels for a picture of this kind.
constexpr double mostPixels = 4096;

MetafileMapping wholePicture(double width, double height)
{
    MetafileMapping mapping;
    mapping.mode = MetafileMapping::Last;
    mapping.x.windowExtent = width;
    mapping.y.windowExtent = height;
    return mapping;
}

void set(MetafileMapping& mapping, double MetafileAxis::*part, const FileBytes& record, double unit = 1)
{
    mapping.y.*part = record.signedWordAt(6) / unit;
    mapping.x.*part = record.signedWordAt(8) / unit;
}

void move(MetafileMapping& mapping, double MetafileAxis::*part, const FileBytes& record, double unit = 1)
{
    mapping.y.*part += record.signedWordAt(6) / unit;
    mapping.x.*part += record.signedWordAt(8) / unit;
}

void scale(MetafileMapping& mapping, double MetafileAxis::*part, const FileBytes& record)
{
    mapping.y.*part = mapping.y.*part * record.signedWordAt(8) / record.signedWordAt(6);
    mapping.x.*part = mapping.x.*part * record.signedWordAt(12) / record.signedWordAt(10);
}

/// All other modes count pixels, or units that are smaller.
void setMode(MetafileMapping& mapping, std::uint32_t mode)
{
    if (mode < MetafileMapping::Text || mode > MetafileMapping::Last)
    {
        return;
    }
    mapping.mode = mode;
    if (mode < MetafileMapping::FirstOfOwnExtents)
    {
        for (MetafileAxis* const axis : {&mapping.x, &mapping.y})
        {
            axis->windowExtent = 1;
            axis->viewportExtent = 1 / mostPixels;
        }
    }
}

bool pointsWithin(const MetafileReach& reach, const FileBytes& record, std::size_t at, std::uint64_t count)
{
    for (std::uint64_t i = 0; i < count; ++i, at += 4)
    {
        if (!reach.point(record.signedWordAt(at), record.signedWordAt(at + 2), MetafileReach::MostForStraight))
        {
            return false;
        }
    }
    return true;
}

bool polygonsWithin(const MetafileReach& reach, const FileBytes& record)
{
    const std::uint32_t count = record.wordAt(6);
    std::uint64_t points = 0;
    for (std::uint32_t i = 0; i < count; ++i)
    {
        points += record.wordAt(8 + std::size_t{i} * 2);
    }
    return pointsWithin(reach, record, 8 + std::size_t{count} * 2, points);
}

/// Bottom, right, top, left.
bool boxWithin(const MetafileReach& reach, const FileBytes& record, std::size_t at)
{
    return reach.box(record.signedWordAt(at + 6), record.signedWordAt(at + 4), record.signedWordAt(at + 2),
                     record.signedWordAt(at), MetafileReach::MostForRound);
}

double greater(std::int32_t a, std::int32_t b)
{
    return std::max(std::abs(a), std::abs(b));
}

bool drawsWithin(const MetafileReach& reach, const FileBytes& record)
{
    switch (static_cast<WmfKind>(record.wordAt(4)))
    {
    case WmfKind::LineTo: // to and from
    case WmfKind::MoveTo:
        return reach.line() &&
               reach.point(record.signedWordAt(8), record.signedWordAt(6), MetafileReach::MostForStraight);
    case WmfKind::Polygon: // points
    case WmfKind::Polyline:
        return reach.line() && pointsWithin(reach, record, 8, record.wordAt(6));
    case WmfKind::PolyPolygon:
        return reach.line() && polygonsWithin(reach, record);
    case WmfKind::Ellipse: // round ones
        return reach.line() && boxWithin(reach, record, 6);
    case WmfKind::RoundRectangle:
        return reach.line() && boxWithin(reach, record, 10);
    case WmfKind::Arc:
    case WmfKind::Pie:
    case WmfKind::Chord:
        return reach.line() && boxWithin(reach, record, 14);
    case WmfKind::Rectangle:
        return reach.line();
    case WmfKind::Text: // texts
    case WmfKind::TextWithDistances:
        return reach.letters();
    default:
        return true;
    }
}
} // namespace

WmfReach::WmfReach(double width, double height) : m_reach(0, 0, 1, 1, wholePicture(width, height)) {}

bool WmfReach::isWithin(const FileBytes& record, std::uint32_t object)
{
    follow(record, object);
    return drawsWithin(m_reach, record);
}

void WmfReach::follow(const FileBytes& record, std::uint32_t object)
{
    MetafileMapping& now = m_reach.now();
    const bool ownExtents = now.mode >= MetafileMapping::FirstOfOwnExtents;
    switch (static_cast<WmfKind>(record.wordAt(4)))
    {
    case WmfKind::WindowOrigin:
        set(now, &MetafileAxis::windowOrigin, record);
        break;
    case WmfKind::WindowExtent:
        if (ownExtents)
        {
            set(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case WmfKind::ViewportOrigin:
        set(now, &MetafileAxis::viewportOrigin, record, mostPixels);
        break;
    case WmfKind::ViewportExtent:
        if (ownExtents)
        {
            set(now, &MetafileAxis::viewportExtent, record, mostPixels);
        }
        break;
    case WmfKind::OffsetWindowOrigin:
        move(now, &MetafileAxis::windowOrigin, record);
        break;
    case WmfKind::OffsetViewportOrigin:
        move(now, &MetafileAxis::viewportOrigin, record, mostPixels);
        break;
    case WmfKind::ScaleWindow:
        if (ownExtents)
        {
            scale(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case WmfKind::ScaleViewport:
        if (ownExtents)
        {
            scale(now, &MetafileAxis::viewportExtent, record);
        }
        break;
    case WmfKind::MapMode:
        setMode(now, record.wordAt(6));
        break;
    case WmfKind::Save:
        m_reach.save();
        break;
    case WmfKind::Restore:
        m_reach.restore(record.signedWordAt(6));
        break;
    case WmfKind::SelectObject:
        m_reach.selectObject(record.wordAt(6));
        break;
    case WmfKind::NewPen:
        m_reach.keepObject(object, MetafileReach::Ink::Pen, record.signedWordAt(8));
        break;
    case WmfKind::NewFont:
        m_reach.keepObject(object, MetafileReach::Ink::Letter, greater(record.signedWordAt(6), record.signedWordAt(8)));
        break;
    case WmfKind::NewPalette: // the other objects take their place
    case WmfKind::NewPatternBrush:
    case WmfKind::NewBrush:
    case WmfKind::NewRegion:
        m_reach.keepObject(object, MetafileReach::Ink::None, 0);
        break;
    default:
        break;
    }
}
