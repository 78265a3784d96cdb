// The loops that take one sound code after the other.
#include <algorithm>
#include <cstring>

#include "GifLzwDecoder.h"

namespace
{
// `to` is where the string `from` ends, or lies behind it. Up to 15 pixels more are written.
inline void copyString(std::uint8_t* to, const std::uint8_t* from, std::size_t length)
{
    copyPixels16(to, from);
    for (std::size_t done = 16; done < length; done += 16)
        copyPixels16(to + done, from + done);
}

// The earlier string, which ends at `to`, and its first pixel once more.
inline void copyEarlier(std::uint8_t* to, const std::uint8_t* from, std::size_t length)
{
    copyString(to, from, length);
    if (length <= 16)
        to[length - 1] = *from;
}

/// One run of sound codes of one width, with everything that it changes at hand.
template <int width, bool store, bool adding> class Run
{
public:
    GifLzwEntry* entries;
    std::uint8_t* window;
    const std::uint8_t* joined;
    std::size_t bitEnd;
    std::size_t bound;
    std::size_t top;

    std::size_t bit;
    std::size_t next;
    std::size_t at;
    std::size_t earlier; // index and length of the string of the earlier code, and that code
    std::size_t earlierLength;
    std::size_t earlierCode;

    /// Stops before a code that needs care (a clear or end code, one that is not sound, a string that has left the window),
    /// at the end of the joined bits, at the bound, and when the width is used up.
    void Go()
    {
        do
            TakeGroups();
        while (TakeOne());
    }

private:
    static constexpr std::size_t groupPixels = 64; // of four strings in one piece each

    bool IsRoom() const { return at < bound && bit + width <= bitEnd && (!adding || next < top); }

    /// Four codes at a time, as long as their strings are short.
    void TakeGroups()
    {
        while (at + groupPixels <= bound && bit + 4 * width <= bitEnd && (!adding || next + 4 <= top))
        {
            const std::uint64_t codes = Bits();
            if (!TakeShort(codes & mask) || !TakeShort(codes >> width & mask) ||
                !TakeShort(codes >> 2 * width & mask) || !TakeShort(codes >> 3 * width & mask))
                return;
        }
    }

    bool TakeShort(std::size_t code)
    {
        if (adding && code >= next)
            return false;
        const GifLzwEntry entry = entries[code];
        const std::size_t length = entry.MarkedLength();
        if (length > (store ? 16 : GifLzwEntry::NoString - 1))
            return false;
        if constexpr (store)
            copyPixels16(window + at, window + entry.At());
        Took(code, length);
        return true;
    }

    bool TakeOne()
    {
        if (!IsRoom())
            return false;
        const std::size_t code = Bits() & mask;
        std::size_t length = earlierLength + 1;
        if (!adding || code < next)
        {
            const GifLzwEntry entry = entries[code];
            length = entry.MarkedLength();
            if (length >= GifLzwEntry::NoString)
                return false;
            if constexpr (store)
                copyString(window + at, window + entry.At(), length);
        }
        else if (code > next)
            return false;
        else if constexpr (store)
            copyEarlier(window + at, window + earlier, length);
        Took(code, length);
        return true;
    }

    void Took(std::size_t code, std::size_t length)
    {
        if constexpr (adding)
        {
            entries[next++] = GifLzwEntry(earlier, earlierLength + 1, static_cast<unsigned>(earlierCode));
            earlier = store ? at : 0;
            earlierLength = length;
            earlierCode = code;
        }
        at += length;
        bit += width;
    }

    std::uint64_t Bits() const
    {
        std::uint64_t bytes;
        std::memcpy(&bytes, joined + bit / 8, sizeof bytes);
        return bytes >> bit % 8;
    }

    static constexpr std::uint64_t mask = (1U << width) - 1U;
};
} // namespace

template <int width, bool store, bool adding> void GifLzwDecoder::RunOf()
{
    Run<width, store, adding> run{m_tables->entries, m_window.get(),  m_reader.Joined(),
                                  m_reader.BitEnd(), m_bound,         static_cast<std::size_t>(m_state->topSlot),
                                  m_reader.Bit(),    NextSlot(),      m_at,
                                  m_earlier,         m_earlierLength, m_earlierCode};
    run.Go();
    m_reader.SetBit(run.bit);
    m_state->nextSlot = static_cast<std::int16_t>(run.next);
    m_at = run.at;
    m_earlier = run.earlier;
    m_earlierLength = run.earlierLength;
    m_earlierCode = static_cast<unsigned>(run.earlierCode);
}

template <int width> void GifLzwDecoder::RunOf()
{
    if (Stores())
        RunOf<width, true, true>();
    else
        RunOf<width, false, true>();
}

void GifLzwDecoder::RunWidth()
{
    switch (m_state->codeWidth)
    {
    case 3:
        return RunOf<3>();
    case 4:
        return RunOf<4>();
    case 5:
        return RunOf<5>();
    case 6:
        return RunOf<6>();
    case 7:
        return RunOf<7>();
    case 8:
        return RunOf<8>();
    case 9:
        return RunOf<9>();
    case 10:
        return RunOf<10>();
    case 11:
        return RunOf<11>();
    default:
        return RunOf<12>();
    }
}

// As many codes as can be taken without care, through all widths.
void GifLzwDecoder::RunClean()
{
    while (NextSlot() < TableSize)
    {
        RunWidth();
        m_written = std::max(m_written, NextSlot());
        if (m_state->nextSlot < m_state->topSlot)
            return;
        Widen();
    }
    if (Stores())
        RunOf<12, true, false>();
    else
        RunOf<12, false, false>();
}

// One code that is not above the next free one.
void GifLzwDecoder::CleanStep(unsigned code)
{
    GifLzwEntry* const entries = m_tables->entries;
    const unsigned next = NextSlot();
    std::size_t length = m_earlierLength + 1;
    if (code == next)
    {
        if (Stores())
            copyEarlier(m_window.get() + m_at, m_window.get() + m_earlier, length);
    }
    else
    {
        if (entries[code].IsMarked())
            PutBack(code);
        length = entries[code].Length();
        if (Stores())
            copyString(m_window.get() + m_at, m_window.get() + entries[code].At(), length);
    }
    if (next < TableSize)
    {
        entries[next] = GifLzwEntry(m_earlier, m_earlierLength + 1, m_earlierCode);
        m_state->nextSlot = static_cast<std::int16_t>(next + 1);
        m_written = std::max(m_written, next + 1);
        m_earlier = Stores() ? m_at : 0;
        m_earlierLength = length;
        m_earlierCode = code;
        Widen();
    }
    m_at += length;
}

// Writes a string that has left the window at the end of the pixels, from its last pixel back to a code whose string is
// there. It and the strings that it begins with stand here from now on.
void GifLzwDecoder::PutBack(unsigned code)
{
    GifLzwEntry* const entries = m_tables->entries;
    std::uint8_t* const to = m_window.get() + m_at;
    for (; entries[code].IsMarked(); code = entries[code].Prefix())
    {
        to[entries[code].Length() - 1] = m_tables->lastPixels[code];
        entries[code].MoveTo(m_at);
    }
    std::memcpy(to, m_window.get() + entries[code].At(), entries[code].Length());
}
