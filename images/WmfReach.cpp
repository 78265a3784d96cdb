// Where the records of a 16-bit metafile hold points, widths and transformations; the vertical number comes first.
#include "WmfReach.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

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
    switch (record.wordAt(4))
    {
    case 0x0213: // to and from
    case 0x0214:
        return reach.line() &&
               reach.point(record.signedWordAt(8), record.signedWordAt(6), MetafileReach::MostForStraight);
    case 0x0324: // points
    case 0x0325:
        return reach.line() && pointsWithin(reach, record, 8, record.wordAt(6));
    case 0x0538:
        return reach.line() && polygonsWithin(reach, record);
    case 0x0418: // round ones
        return reach.line() && boxWithin(reach, record, 6);
    case 0x061C:
        return reach.line() && boxWithin(reach, record, 10);
    case 0x0817:
    case 0x081A:
    case 0x0830:
        return reach.line() && boxWithin(reach, record, 14);
    case 0x041B:
        return reach.line();
    case 0x0521: // texts
    case 0x0A32:
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
    switch (record.wordAt(4))
    {
    case 0x020B:
        set(now, &MetafileAxis::windowOrigin, record);
        break;
    case 0x020C:
        if (ownExtents)
        {
            set(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case 0x020D:
        set(now, &MetafileAxis::viewportOrigin, record, mostPixels);
        break;
    case 0x020E:
        if (ownExtents)
        {
            set(now, &MetafileAxis::viewportExtent, record, mostPixels);
        }
        break;
    case 0x020F:
        move(now, &MetafileAxis::windowOrigin, record);
        break;
    case 0x0211:
        move(now, &MetafileAxis::viewportOrigin, record, mostPixels);
        break;
    case 0x0410:
        if (ownExtents)
        {
            scale(now, &MetafileAxis::windowExtent, record);
        }
        break;
    case 0x0412:
        if (ownExtents)
        {
            scale(now, &MetafileAxis::viewportExtent, record);
        }
        break;
    case 0x0103:
        setMode(now, record.wordAt(6));
        break;
    case 0x001E:
        m_reach.save();
        break;
    case 0x0127:
        m_reach.restore(record.signedWordAt(6));
        break;
    case 0x012D:
        m_reach.selectObject(record.wordAt(6));
        break;
    case 0x02FA:
        m_reach.keepObject(object, MetafileReach::Ink::Pen, record.signedWordAt(8));
        break;
    case 0x02FB:
        m_reach.keepObject(object, MetafileReach::Ink::Letter, greater(record.signedWordAt(6), record.signedWordAt(8)));
        break;
    case 0x00F7: // the other objects take their place
    case 0x0142:
    case 0x02FC:
    case 0x06FF:
        m_reach.keepObject(object, MetafileReach::Ink::None, 0);
        break;
    default:
        break;
    }
}
