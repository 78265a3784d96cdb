// How the cells of the colour cube get their lists.
#include "NearestColor.h"

#include <algorithm>
#include <new>

namespace
{
int square(int value)
{
    return value * value;
}
} // namespace

/// The colours from `low` to `high`, both ends included.
struct NearestColor::Box
{
    int low[3];
    int high[3];

    // Squared distances of an entry to the nearest and to the farthest colour of the box.
    int Closest(Entry entry) const
    {
        int sum = 0;
        for (int i = 0; i < 3; ++i)
            sum += square(std::max({low[i] - entry.channels[i], entry.channels[i] - high[i], 0}));
        return sum;
    }
    int Farthest(Entry entry) const
    {
        int sum = 0;
        for (int i = 0; i < 3; ++i)
            sum += square(std::max(entry.channels[i] - low[i], high[i] - entry.channels[i]));
        return sum;
    }
    // Whether no colour of the box would choose `entry` while `rival` is there. The difference of the two distances is
    // linear in the colour, and therefore smallest in a corner.
    bool Loses(Entry entry, Entry rival) const
    {
        int smallest = 0;
        for (int i = 0; i < 3; ++i)
        {
            const int apart = entry.channels[i] - rival.channels[i];
            const int corner = apart > 0 ? high[i] : low[i];
            smallest += apart * (entry.channels[i] + rival.channels[i] - 2 * corner);
        }
        return smallest > 0 || (smallest == 0 && entry.index > rival.index);
    }
};

NearestColor::NearestColor(const RGBQUAD* palette, unsigned count) : m_all{0, count}
{
    m_entries.reserve(1U << 14);
    for (unsigned i = 0; i < count; ++i)
        m_entries.push_back(
            {{palette[i].rgbBlue, palette[i].rgbGreen, palette[i].rgbRed}, static_cast<std::uint8_t>(i)});
    m_cells.resize(cells * cells * cells);
}

void NearestColor::Fill(unsigned cell)
{
    Box box{};
    Box around{};
    unsigned coarse = 0;
    for (int i = 0; i < 3; ++i)
    {
        const int place = static_cast<int>(cell >> (10 - 5 * i) & 31);
        box.low[i] = place * 8;
        box.high[i] = box.low[i] + 7;
        around.low[i] = place / 4 * 32;
        around.high[i] = around.low[i] + 31;
        coarse = coarse * 8 + static_cast<unsigned>(place / 4);
    }
    if (m_coarse[coarse].count == 0)
        m_coarse[coarse] = Select(m_all, around);
    m_cells[cell] = Select(m_coarse[coarse], box);
}

// Lists those entries of `from` that are the choice of some colour in the box, and perhaps a few more.
NearestColor::List NearestColor::Select(List from, const Box& box)
{
    const Entry* const first = m_entries.data() + from.first;
    const Entry* const end = first + from.count;
    const Entry* rival = first;
    int bound = box.Farthest(*first);
    for (const Entry* entry = first + 1; entry != end; ++entry)
    {
        const int reach = box.Farthest(*entry);
        if (reach < bound)
        {
            bound = reach;
            rival = entry;
        }
    }
    std::array<Entry, 256> kept;
    unsigned count = 0;
    for (const Entry* entry = first; entry != end; ++entry)
        if (entry == rival || (box.Closest(*entry) <= bound && !box.Loses(*entry, *rival)))
            kept[count++] = *entry;
    try
    {
        const auto start = static_cast<std::uint32_t>(m_entries.size());
        m_entries.insert(m_entries.end(), kept.begin(), kept.begin() + count);
        return {start, count};
    }
    catch (const std::bad_alloc&)
    {
        return from; // longer, with the same answers
    }
}
