// The loops that take one sound code after the other.
#include <algorithm>
#include <cstring>

#include "GifLzwDecoder.h"
#include "oxa/images/GifWire.h"

namespace
{
inline unsigned codeAt(const std::uint8_t* joined, std::size_t bit, std::uint32_t mask)
{
    std::uint32_t bytes;
    std::memcpy(&bytes, joined + bit / 8, sizeof bytes);
    return bytes >> bit % 8 & mask;
}

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
} // namespace

void GifLzwDecoder::Run()
{
    const bool full = NextSlot() == TableSize;
    if (full)
        Stores() ? RunFull<true>() : RunFull<false>();
    else
        Stores() ? RunAdding<true>() : RunAdding<false>();
}

// Until a code needs care (a clear or end code, one that is not sound, one that is not joined, a string that has left the
// window), the table is full, or the bound is reached.
template <bool store> void GifLzwDecoder::RunAdding()
{
    const std::uint8_t* const joined = m_reader.Joined();
    const std::size_t bitEnd = m_reader.BitEnd();
    GifLzwEntry* const entries = m_tables->entries;
    std::uint8_t* const window = m_window.get();
    const std::size_t bound = m_bound;
    std::size_t bit = m_reader.Bit();
    unsigned next = NextSlot();
    std::size_t at = m_at;
    std::size_t earlier = m_earlier;
    std::size_t earlierLength = m_earlierLength;
    unsigned earlierCode = m_earlierCode;
    while (at < bound && next < TableSize)
    {
        const auto width = static_cast<std::size_t>(m_state->codeWidth);
        const auto top = static_cast<unsigned>(m_state->topSlot);
        const std::uint32_t mask = GifCodeMask(m_state->codeWidth);
        while (bit + width <= bitEnd && at < bound && next < top)
        {
            const unsigned code = codeAt(joined, bit, mask);
            std::size_t length = earlierLength + 1;
            if (code < next)
            {
                const GifLzwEntry entry = entries[code];
                length = entry.MarkedLength();
                if (length >= GifLzwEntry::NoString)
                    break;
                if constexpr (store)
                    copyString(window + at, window + entry.At(), length);
            }
            else if (code > next)
                break;
            else if constexpr (store)
                copyEarlier(window + at, window + earlier, length);
            entries[next++] = GifLzwEntry(earlier, earlierLength + 1, earlierCode);
            earlier = store ? at : 0;
            earlierLength = length;
            earlierCode = code;
            at += length;
            bit += width;
        }
        if (next < top)
            break;
        m_state->nextSlot = static_cast<std::int16_t>(next);
        Widen();
    }
    m_reader.SetBit(bit);
    m_state->nextSlot = static_cast<std::int16_t>(next);
    m_written = std::max(m_written, next);
    m_at = at;
    m_earlier = earlier;
    m_earlierLength = earlierLength;
    m_earlierCode = earlierCode;
}

template <bool store> void GifLzwDecoder::RunFull()
{
    const std::uint8_t* const joined = m_reader.Joined();
    const std::size_t bitEnd = m_reader.BitEnd();
    const auto width = static_cast<std::size_t>(m_state->codeWidth);
    const std::uint32_t mask = GifCodeMask(m_state->codeWidth);
    const GifLzwEntry* const entries = m_tables->entries;
    std::uint8_t* const window = m_window.get();
    std::size_t bit = m_reader.Bit();
    std::size_t at = m_at;
    while (bit + width <= bitEnd && at < m_bound)
    {
        const GifLzwEntry entry = entries[codeAt(joined, bit, mask)];
        const std::size_t length = entry.MarkedLength();
        if (length >= GifLzwEntry::NoString)
            break;
        if constexpr (store)
            copyString(window + at, window + entry.At(), length);
        at += length;
        bit += width;
    }
    m_reader.SetBit(bit);
    m_at = at;
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
