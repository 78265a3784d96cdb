// The walk of prefix and suffix tables, for codes that no sound stream has.
#include <algorithm>
#include <cstring>

#include "GifLzwDecoder.h"

void GifLzwDecoder::ClearTables(LzwDecoderState& state)
{
    std::memset(state.suffix.data(), 0, TableSize);
    // Only half of the prefix table, on purpose: damaged streams show what earlier frames left in the other.
    std::memset(state.prefix.data(), 0, (state.prefixFilled ? 1 : 2) * std::size_t{TableSize});
    state.prefixFilled = true;
}

// Brings the entries that were added by the fast form into the tables.
void GifLzwDecoder::FillTables()
{
    if (!m_tablesReady)
        ClearTables(*m_state);
    m_tablesReady = true;
    for (unsigned i = FirstFree(); i < m_written; ++i)
    {
        const GifLzwEntry& entry = m_tables->entries[i];
        m_state->prefix[i] = static_cast<std::uint16_t>(entry.Prefix());
        if (Stores())
            m_state->suffix[i] = entry.IsMarked() ? m_tables->lastPixels[i] : m_window[entry.At() + entry.Length() - 1];
    }
    m_kept = std::max(m_kept, m_written);
    m_written = FirstFree();
}

// What the next frame may see of this one.
void GifLzwDecoder::KeepPrefixes()
{
    m_kept = std::max(m_kept, m_written);
    if (m_written <= TableSize / 2)
        return;
    if (!m_state->prefixFilled)
        ClearTables(*m_state);
    for (unsigned i = TableSize / 2; i < m_written; ++i)
        m_state->prefix[i] = static_cast<std::uint16_t>(m_tables->entries[i].Prefix());
}

bool GifLzwDecoder::Push(unsigned value)
{
    if (m_depth == TableSize)
        return false;
    m_state->stack[m_depth++] = static_cast<std::uint8_t>(value);
    return true;
}

// One code in the plain form. False when the string does not fit the stack, as of a chain that runs in a circle.
bool GifLzwDecoder::PlainStep(unsigned code)
{
    LzwDecoderState& state = *m_state;
    FillTables();
    m_depth = 0;
    unsigned walked = code;
    if (code >= NextSlot())
    {
        if (code > NextSlot())
            ++m_badCodes;
        walked = m_old;
        Push(m_first);
    }
    for (; walked >= FirstFree(); walked = state.prefix[walked])
        if (!Push(state.suffix[walked]))
            return false;
    if (!Push(walked))
        return false;
    if (state.nextSlot < state.topSlot)
    {
        m_first = walked;
        state.suffix[NextSlot()] = static_cast<std::uint8_t>(walked);
        state.prefix[NextSlot()] = static_cast<std::uint16_t>(m_old);
        ++state.nextSlot;
        m_kept = std::max(m_kept, NextSlot());
        m_old = code;
    }
    Widen();
    if (Stores())
        std::reverse_copy(state.stack.data(), state.stack.data() + m_depth, m_window.get() + m_at);
    m_at += m_depth;
    return true;
}
