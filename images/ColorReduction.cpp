// The two ways through a row.
#include "ColorReduction.h"

#include "GifRowPacking.h"

namespace
{
struct Color
{
    int blue;
    int green;
    int red;

    bool IsZero() const { return (blue | green | red) == 0; }
};

// Part of an error, added to a channel; the division truncates towards 0.
unsigned char moved(int value, int error, int weight)
{
    const int sum = value + error * weight / 16;
    return static_cast<unsigned char>(sum < 0 ? 0 : sum > 255 ? 255 : sum);
}

struct TrueColorRow
{
    unsigned char* pixels;

    static constexpr bool zeroErrorChangesNothing = true;

    Color Get(std::size_t x) const { return {pixels[3 * x], pixels[3 * x + 1], pixels[3 * x + 2]}; }
    void Add(std::size_t x, const Color& error, int weight) const
    {
        unsigned char* const pixel = pixels + 3 * x;
        pixel[0] = moved(pixel[0], error.blue, weight);
        pixel[1] = moved(pixel[1], error.green, weight);
        pixel[2] = moved(pixel[2], error.red, weight);
    }
};

struct IndexedRow
{
    std::uint8_t* indexes;
    const RGBQUAD* palette;
    RememberingChooser* chooser;

    // A pixel may have an entry that its own colour would not choose.
    static constexpr bool zeroErrorChangesNothing = false;

    Color Get(std::size_t x) const
    {
        const RGBQUAD& entry = palette[indexes[x]];
        return {entry.rgbBlue, entry.rgbGreen, entry.rgbRed};
    }
    void Add(std::size_t x, const Color& error, int weight) const
    {
        const Color old = Get(x);
        indexes[x] = chooser->Choose(moved(old.blue, error.blue, weight), moved(old.green, error.green, weight),
                                     moved(old.red, error.red, weight));
    }
};
} // namespace

ColorReduction::ColorReduction(const PixelBlock& source, const GifImageInfo& sourceInfo, const PixelBlock& target,
                               const GifImageInfo& targetInfo)
    : m_source(source), m_target(target), m_chooser(target.palette, target.choosable, targetInfo),
      m_indexes(source.width), m_current(source.palette ? source.width : 0), m_above(m_current)
{
    if (source.palette)
        m_sourceChooser.emplace(source.palette, source.choosable, sourceInfo);
}

void ColorReduction::ReduceRow(std::size_t y)
{
    if (!m_source.palette)
    {
        const TrueColorRow row{m_source.Row(y)};
        for (std::size_t x = 0; x < m_source.width; ++x)
        {
            const Color color = row.Get(x);
            m_indexes[x] = m_chooser.Choose(color.blue, color.green, color.red);
        }
    }
    else
    {
        unpackRow(m_current.data(), m_source.Row(y), 0, m_source.width, m_source.bits);
        const IndexedRow row{m_current.data(), m_source.palette, nullptr};
        for (std::size_t x = 0; x < m_source.width; ++x)
        {
            const Color color = row.Get(x);
            m_indexes[x] = m_chooser.Choose(color.blue, color.green, color.red);
        }
    }
    packRow(m_target.Row(y), m_indexes.data(), m_target.width, m_target.bits);
}

void ColorReduction::DiffuseRow(std::size_t y)
{
    const bool hasAbove = y + 1 < m_source.height;
    unsigned char* const above = hasAbove ? m_source.Row(y + 1) : nullptr;
    if (!m_source.palette)
        Diffuse(TrueColorRow{m_source.Row(y)}, TrueColorRow{above}, hasAbove);
    else
    {
        unpackRow(m_current.data(), m_source.Row(y), 0, m_source.width, m_source.bits);
        if (hasAbove)
            unpackRow(m_above.data(), above, 0, m_source.width, m_source.bits);
        Diffuse(IndexedRow{m_current.data(), m_source.palette, &*m_sourceChooser},
                IndexedRow{m_above.data(), m_source.palette, &*m_sourceChooser}, hasAbove);
        packRow(m_source.Row(y), m_current.data(), m_source.width, m_source.bits);
        if (hasAbove)
            packRow(above, m_above.data(), m_source.width, m_source.bits);
    }
    packRow(m_target.Row(y), m_indexes.data(), m_target.width, m_target.bits);
}

// The neighbours get 7, 2, 4 and 1 sixteenths of the error, 14 in all: meant.
template <class Row> void ColorReduction::Diffuse(Row current, Row above, bool hasAbove)
{
    const std::size_t last = m_source.width - 1;
    for (std::size_t x = 0; x <= last; ++x)
    {
        const Color wanted = current.Get(x);
        const unsigned char index = m_chooser.Choose(wanted.blue, wanted.green, wanted.red);
        m_indexes[x] = index;
        const RGBQUAD& got = m_target.palette[index];
        const Color error{wanted.blue - got.rgbBlue, wanted.green - got.rgbGreen, wanted.red - got.rgbRed};
        if (Row::zeroErrorChangesNothing && error.IsZero())
            continue;
        if (x < last)
            current.Add(x + 1, error, 7);
        if (!hasAbove)
            continue;
        if (x > 0)
            above.Add(x - 1, error, 2);
        above.Add(x, error, 4);
        if (x < last)
            above.Add(x + 1, error, 1);
    }
}
