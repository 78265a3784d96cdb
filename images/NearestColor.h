// Which palette entry is nearest to a colour, for many colours on one palette.
#pragma once

#include <afx.h>

#include <array>
#include <cstdint>
#include <vector>

/// The entry with the smallest sum of squared channel differences; of several the lowest.
///
/// The cube of all colours is cut into 32 by 32 by 32 cells. A cell lists the few entries that are nearest to some colour
/// in it, and is filled when the first colour in it is asked for.
class NearestColor
{
public:
    /// Of the first `count` entries of `palette`, 1 to 256. The entries are copied. Throws std::bad_alloc.
    NearestColor(const RGBQUAD* palette, unsigned count);

    unsigned char Find(int blue, int green, int red)
    {
        const auto cell = static_cast<unsigned>(blue >> 3 << 10 | green >> 3 << 5 | red >> 3);
        if (m_cells[cell].count == 0)
            Fill(cell);
        const List list = m_cells[cell];
        const Entry* entry = m_entries.data() + list.first;
        const Entry* const end = entry + list.count;
        std::uint32_t best = Key(*entry, blue, green, red);
        while (++entry != end)
        {
            const std::uint32_t key = Key(*entry, blue, green, red);
            best = key < best ? key : best;
        }
        return static_cast<unsigned char>(best & 255);
    }

private:
    struct Entry
    {
        std::uint8_t channels[3]; // blue, green, red
        std::uint8_t index;
    };
    /// A stretch of m_entries; not filled yet while count is 0.
    struct List
    {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };
    struct Box;

    enum : unsigned
    {
        cells = 32, // on an edge of the cube
    };

    // A distance is below 2^18: with the index behind it, it fits one number, and the least number is the answer.
    static std::uint32_t Key(Entry entry, int blue, int green, int red)
    {
        const int b = entry.channels[0] - blue;
        const int g = entry.channels[1] - green;
        const int r = entry.channels[2] - red;
        return static_cast<std::uint32_t>(b * b + g * g + r * r) << 8 | entry.index;
    }

    void Fill(unsigned cell);
    List Select(List from, const Box& box);

    List m_all;
    std::vector<Entry> m_entries; // the palette, then the lists of the cells
    std::vector<List> m_cells;
    std::array<List, 512> m_coarse{}; // 8 by 8 by 8 boxes that hold the cells: what those choose from
};
