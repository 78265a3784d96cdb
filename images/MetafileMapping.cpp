// Follows the transformations of a metafile.
#include "MetafileMapping.h"

#include <algorithm>
#include <cmath>

MetafileMapping::World MetafileMapping::combined(const World& first, const World& second)
{
    return {first[0] * second[0] + first[1] * second[2],
            first[0] * second[1] + first[1] * second[3],
            first[2] * second[0] + first[3] * second[2],
            first[2] * second[1] + first[3] * second[3],
            first[4] * second[0] + first[5] * second[2] + second[4],
            first[4] * second[1] + first[5] * second[3] + second[5]};
}

MetafileReach::MetafileReach(double left, double top, double width, double height, const MetafileMapping& start)
    : m_left(left), m_top(top), m_width(width), m_height(height), m_now(start)
{
}

void MetafileReach::restore(std::int64_t which)
{
    const auto depth = static_cast<std::int64_t>(m_saved.size());
    const auto rest = static_cast<std::size_t>(which < 0 ? depth + which : which - 1);
    m_now = m_saved[rest];
    m_saved.resize(rest);
}

void MetafileReach::keepObject(std::uint32_t index, Ink ink, double size)
{
    if (index >= m_objects.size())
    {
        m_objects.resize(std::size_t{index} + 1);
    }
    m_objects[index] = {ink, size};
}

void MetafileReach::selectObject(std::uint32_t index)
{
    const Object object = index < m_objects.size() ? m_objects[index] : Object();
    if (object.ink == Ink::Pen)
    {
        m_now.pen = object.size;
    }
    else if (object.ink == Ink::Letter)
    {
        m_now.letter = object.size;
    }
}

bool MetafileReach::point(double x, double y, double most) const
{
    const MetafileMapping::World& world = m_now.world;
    const double right = m_now.x.toSurface(x * world[0] + y * world[2] + world[4]) - m_left;
    const double down = m_now.y.toSurface(x * world[1] + y * world[3] + world[5]) - m_top;
    return std::abs(right) <= most * m_width && std::abs(down) <= most * m_height; // false for what is no number
}

bool MetafileReach::box(double left, double top, double right, double bottom, double most) const
{
    return point(left, top, most) && point(right, top, most) && point(left, bottom, most) && point(right, bottom, most);
}

bool MetafileReach::isShort(double length) const
{
    if (length == 0)
    {
        return true; // the thinnest line, or letters of a size that the player chooses
    }
    const MetafileMapping::World& world = m_now.world;
    const double across = std::abs(m_now.x.scale()) * (std::abs(world[0]) + std::abs(world[2]));
    const double down = std::abs(m_now.y.scale()) * (std::abs(world[1]) + std::abs(world[3]));
    return std::abs(length) * across <= MostThickness * m_width && std::abs(length) * down <= MostThickness * m_height;
}
