// The table of the kinds, and the checks of states, shapes and objects.
#include "EmfRecords.h"

#include <array>

namespace
{
constexpr std::uint32_t stockObject = 0x80000000;

bool isFinite(std::uint32_t floatBits)
{
    constexpr std::uint32_t exponent = 0x7F800000;
    return (floatBits & exponent) != exponent;
}

bool countedPoints(const FileBytes& record, std::uint32_t at, std::uint32_t pointSize)
{
    return record.holds(std::uint64_t{at} + 4, std::uint64_t{record.longAt(at)} * pointSize);
}

/// A number of polygons, a number of points, the length of each polygon, the points.
bool countedPolygons(const FileBytes& record, std::uint32_t at, std::uint32_t pointSize)
{
    const std::uint64_t polygons = record.longAt(at);
    const std::uint64_t points = record.longAt(at + 4);
    if (!record.holds(at + 8, polygons * 4 + points * pointSize))
    {
        return false;
    }
    std::uint64_t sum = 0;
    for (std::uint64_t i = 0; i < polygons; ++i)
    {
        sum += record.longAt(at + 8 + i * 4);
    }
    return sum <= points;
}
} // namespace

const EmfRecords::Rule* EmfRecords::ruleOf(std::uint32_t kind)
{
    using E = EmfRecords;
    static constexpr std::array<Rule, 123> rules{{
        {0, nullptr, 0},             // 0
        {88, &E::header, 0},         // 1: header
        {28, &E::points, 24},        // 2: poly bezier
        {28, &E::points, 24},        // 3: polygon
        {28, &E::points, 24},        // 4: polyline
        {28, &E::points, 24},        // 5: poly bezier to
        {28, &E::points, 24},        // 6: polyline to
        {32, &E::polygons, 24},      // 7: poly polyline
        {32, &E::polygons, 24},      // 8: poly polygon
        {16, nullptr, 0},            // 9: window extent
        {16, nullptr, 0},            // 10: window origin
        {16, nullptr, 0},            // 11: viewport extent
        {16, nullptr, 0},            // 12: viewport origin
        {16, nullptr, 0},            // 13: brush origin
        {20, &E::endOfFile, 0},      // 14: end
        {20, nullptr, 0},            // 15: pixel
        {12, nullptr, 0},            // 16: font mapper flags
        {12, nullptr, 0},            // 17: map mode
        {12, nullptr, 0},            // 18: background mode
        {12, nullptr, 0},            // 19: polygon fill mode
        {12, nullptr, 0},            // 20: raster operation
        {12, nullptr, 0},            // 21: stretch mode
        {12, nullptr, 0},            // 22: text alignment
        {32, nullptr, 0},            // 23: color adjustment
        {12, nullptr, 0},            // 24: text color
        {12, nullptr, 0},            // 25: background color
        {16, nullptr, 0},            // 26: offset clip region
        {16, nullptr, 0},            // 27: move to
        {8, nullptr, 0},             // 28: meta region
        {24, nullptr, 0},            // 29: exclude clip rectangle
        {24, nullptr, 0},            // 30: intersect clip rectangle
        {24, nullptr, 0},            // 31: scale viewport
        {24, nullptr, 0},            // 32: scale window
        {8, &E::save, 0},            // 33: save
        {12, &E::restore, 8},        // 34: restore
        {32, &E::transform, 8},      // 35: world transform
        {36, &E::transform, 8},      // 36: change of the world transform
        {12, &E::anyObject, 8},      // 37: select
        {28, &E::newObject, 8},      // 38: pen
        {24, &E::brush, 8},          // 39: brush
        {12, &E::ownObject, 8},      // 40: delete
        {28, &E::numbers, 20},       // 41: angle arc
        {24, nullptr, 0},            // 42: ellipse
        {24, nullptr, 0},            // 43: rectangle
        {32, nullptr, 0},            // 44: round rectangle
        {40, nullptr, 0},            // 45: arc
        {40, nullptr, 0},            // 46: chord
        {40, nullptr, 0},            // 47: pie
        {12, &E::anyObject, 8},      // 48: select palette
        {16, &E::palette, 8},        // 49: palette
        {20, &E::paletteEntries, 8}, // 50: set palette entries
        {16, &E::ownObject, 8},      // 51: resize palette
        {8, nullptr, 0},             // 52: realize palette
        {24, nullptr, 0},            // 53: flood fill
        {16, nullptr, 0},            // 54: line to
        {40, nullptr, 0},            // 55: arc to
        {28, &E::typedPoints, 24},   // 56: poly draw
        {12, nullptr, 0},            // 57: arc direction
        {12, nullptr, 0},            // 58: miter limit
        {8, nullptr, 0},             // 59: begin path
        {8, nullptr, 0},             // 60: end path
        {8, nullptr, 0},             // 61: close figure
        {24, nullptr, 0},            // 62: fill path
        {24, nullptr, 0},            // 63: stroke and fill path
        {24, nullptr, 0},            // 64: stroke path
        {8, nullptr, 0},             // 65: flatten path
        {8, nullptr, 0},             // 66: widen path
        {12, nullptr, 0},            // 67: select clip path
        {8, nullptr, 0},             // 68: abort path
        {0, nullptr, 0},             // 69
        {12, &E::bytesAt, 8},        // 70: comment
        {32, &E::filledRegion, 32},  // 71: fill region
        {40, &E::filledRegion, 40},  // 72: frame region
        {28, &E::region, 28},        // 73: invert region
        {28, &E::region, 28},        // 74: paint region
        {16, &E::clipRegion, 16},    // 75: select clip region
        {100, &E::bitmap, 80},       // 76: bit block
        {108, &E::bitmap, 80},       // 77: stretched block
        {128, &E::maskedBitmap, 80}, // 78: masked block
        {140, &E::maskedBitmap, 92}, // 79: block in a parallelogram
        {76, &E::bitmapRows, 0},     // 80: bitmap to device
        {80, &E::drawnBitmap, 48},   // 81: stretched bitmap
        {104, &E::newObject, 8},     // 82: font
        {76, &E::text, 36},          // 83: text of bytes
        {76, &E::text16, 36},        // 84: text
        {28, &E::points16, 24},      // 85: poly bezier, 16 bits
        {28, &E::points16, 24},      // 86: polygon, 16 bits
        {28, &E::points16, 24},      // 87: polyline, 16 bits
        {28, &E::points16, 24},      // 88: poly bezier to, 16 bits
        {28, &E::points16, 24},      // 89: polyline to, 16 bits
        {32, &E::polygons16, 24},    // 90: poly polyline, 16 bits
        {32, &E::polygons16, 24},    // 91: poly polygon, 16 bits
        {28, &E::typedPoints16, 24}, // 92: poly draw, 16 bits
        {32, &E::patternBrush, 8},   // 93: mono brush
        {32, &E::patternBrush, 8},   // 94: pattern brush
        {52, &E::extendedPen, 8},    // 95: extended pen
        {40, &E::texts, 36},         // 96: texts of bytes
        {40, &E::texts16, 36},       // 97: texts
        {12, nullptr, 0},            // 98: color management mode
        {340, &E::newObject, 8},     // 99: color space
        {12, &E::anyObject, 8},      // 100: select color space
        {12, &E::ownObject, 8},      // 101: delete color space
        {12, &E::bytesAt, 8},        // 102: three-dimensional drawing
        {28, &E::bytesAt, 24},       // 103: the same with its bounds
        {48, nullptr, 0},            // 104: pixel format
        {16, &E::bytesAt, 12},       // 105: drawing escape
        {16, &E::bytesAt, 12},       // 106: escape
        {0, nullptr, 0},             // 107
        {36, &E::smallText, 8},      // 108: small text
        {16, nullptr, 0},            // 109: font mapping
        {20, &E::twoByteRows, 12},   // 110: escape of a named driver
        {24, &E::anyObject, 8},      // 111: palette correction
        {20, &E::twoByteRows, 12},   // 112: color profile
        {20, &E::twoByteRows, 12},   // 113: color profile
        {108, &E::bitmap, 80},       // 114: blended block
        {12, nullptr, 0},            // 115: layout
        {108, &E::bitmap, 80},       // 116: transparent block
        {0, nullptr, 0},             // 117
        {36, &E::gradient, 24},      // 118: gradient
        {12, &E::points, 8},         // 119: linked fonts
        {16, nullptr, 0},            // 120: text justification
        {24, &E::twoByteRows, 16},   // 121: color matching
        {608, &E::newObject, 8},     // 122: color space
    }};
    return kind < rules.size() && rules[kind].least != 0 ? &rules[kind] : nullptr;
}

bool EmfRecords::isSound(const FileBytes& record)
{
    const Rule* const rule = ruleOf(record.longAt(0));
    return rule != nullptr && record.size() >= rule->least &&
           (rule->check == nullptr || (this->*rule->check)(record, rule->at));
}

bool EmfRecords::header(const FileBytes& record, std::uint32_t /*at*/)
{
    enum : std::uint32_t
    {
        frameAt = 24,
        descriptionAt = 60,
        deviceAt = 72,
    };
    for (const std::uint32_t size : {deviceAt + 0U, deviceAt + 4U, deviceAt + 8U, deviceAt + 12U})
    {
        if (record.signedLongAt(size) <= 0) // pixels, and millimetres: both are divided by
        {
            return false;
        }
    }
    return record.signedLongAt(frameAt) < record.signedLongAt(frameAt + 8) &&
           record.signedLongAt(frameAt + 4) < record.signedLongAt(frameAt + 12) &&
           record.holds(record.longAt(descriptionAt + 4), std::uint64_t{record.longAt(descriptionAt)} * 2);
}

bool EmfRecords::endOfFile(const FileBytes& record, std::uint32_t /*at*/)
{
    const std::size_t last = record.size() - 4;
    const std::uint64_t entries = record.longAt(8);
    return record.part(0, last).holds(record.longAt(12), entries * 4) && record.longAt(last) == record.size();
}

bool EmfRecords::save(const FileBytes& /*record*/, std::uint32_t /*at*/)
{
    m_saved.save();
    return true;
}

bool EmfRecords::restore(const FileBytes& record, std::uint32_t at)
{
    const std::int32_t which = record.signedLongAt(at);
    return which < 0 && m_saved.restore(which);
}

bool EmfRecords::numbers(const FileBytes& record, std::uint32_t at)
{
    return isFinite(record.longAt(at)) && isFinite(record.longAt(at + 4));
}

bool EmfRecords::transform(const FileBytes& record, std::uint32_t at)
{
    return numbers(record, at) && numbers(record, at + 8) && numbers(record, at + 16);
}

bool EmfRecords::points(const FileBytes& record, std::uint32_t at)
{
    return countedPoints(record, at, 8);
}

bool EmfRecords::points16(const FileBytes& record, std::uint32_t at)
{
    return countedPoints(record, at, 4);
}

bool EmfRecords::typedPoints(const FileBytes& record, std::uint32_t at)
{
    return countedPoints(record, at, 9); // and a byte for the type of each
}

bool EmfRecords::typedPoints16(const FileBytes& record, std::uint32_t at)
{
    return countedPoints(record, at, 5);
}

bool EmfRecords::polygons(const FileBytes& record, std::uint32_t at)
{
    return countedPolygons(record, at, 8);
}

bool EmfRecords::polygons16(const FileBytes& record, std::uint32_t at)
{
    return countedPolygons(record, at, 4);
}

bool EmfRecords::gradient(const FileBytes& record, std::uint32_t at)
{
    enum : std::uint32_t
    {
        triangles = 2,
        vertexSize = 16,
    };
    const std::uint64_t vertices = record.longAt(at);
    const std::uint64_t meshes = record.longAt(at + 4);
    const std::uint32_t mode = record.longAt(at + 8);
    const std::uint64_t corners = meshes * (mode == triangles ? 3 : 2);
    const std::uint64_t first = at + 12 + vertices * vertexSize;
    if (mode > triangles || !record.holds(first, corners * 4))
    {
        return false;
    }
    for (std::uint64_t i = 0; i < corners; ++i)
    {
        if (record.longAt(first + i * 4) >= vertices)
        {
            return false;
        }
    }
    return true;
}

/// The table's first place is the file's own.
bool EmfRecords::ownObject(const FileBytes& record, std::uint32_t at)
{
    const std::uint32_t index = record.longAt(at);
    return index > 0 && index < m_handles;
}

bool EmfRecords::newObject(const FileBytes& record, std::uint32_t at)
{
    return ownObject(record, at);
}

bool EmfRecords::anyObject(const FileBytes& record, std::uint32_t at)
{
    constexpr std::uint32_t mostStockObjects = 32;
    const std::uint32_t index = record.longAt(at);
    return (index & stockObject) != 0 ? (index & ~stockObject) < mostStockObjects : ownObject(record, at);
}

bool EmfRecords::brush(const FileBytes& record, std::uint32_t at)
{
    constexpr std::uint32_t lastPlainStyle = 2; // solid, none, hatched; the others hold a pointer
    return newObject(record, at) && record.longAt(at + 4) <= lastPlainStyle;
}

bool EmfRecords::palette(const FileBytes& record, std::uint32_t at)
{
    return newObject(record, at) && record.holds(at + 8, std::uint64_t{record.wordAt(at + 6)} * 4);
}

bool EmfRecords::paletteEntries(const FileBytes& record, std::uint32_t at)
{
    return ownObject(record, at) && record.holds(at + 12, std::uint64_t{record.longAt(at + 8)} * 4);
}
