// The hash table of the compressor, as far as its order of slots is seen from outside.
#pragma once

#include <algorithm>
#include <cstdint>
#include "oxa/images/GifEncoderState.h"

/// Which slot each key takes, key 0 being the string of two pixels of index 0.
///
/// A probe stops at a slot whose value is below 1, though an empty slot is marked by -1. So a new key that comes by the
/// slot of key 0 takes it over, and that string is lost. This is meant: the streams that are written depend on it.
class GifHashLayout
{
public:
    using Slots = ScratchTable<std::int32_t, LzwEncoderState::HashSize>;

    /// Over slots that are all empty.
    explicit GifHashLayout(Slots& slots) : m_slots(slots) {}

    /// Marks the first `size` slots as empty, at most all.
    static void Clear(Slots& slots, long size = LzwEncoderState::HashSize)
    {
        const long all = LzwEncoderState::HashSize;
        std::fill_n(slots.data(), std::clamp(size, 0L, all), std::int32_t{-1});
    }

    /// Puts in a key that is not there. True when it took the slot of key 0.
    bool Insert(std::uint32_t key)
    {
        const std::uint32_t pixel = key >> 12;
        const std::uint32_t prefix = key & 0xFFF;
        std::int32_t slot = static_cast<std::int32_t>((pixel << LzwEncoderState::HashShift) ^ prefix);
        if (At(slot) >= 0)
        {
            const std::int32_t step = slot == 0 ? 1 : LzwEncoderState::HashSize - slot;
            do
            {
                slot -= step;
                if (slot < 0)
                    slot += LzwEncoderState::HashSize;
            } while (At(slot) >= 1);
        }
        const bool displaced = At(slot) == 0;
        At(slot) = static_cast<std::int32_t>(key);
        return displaced;
    }

private:
    std::int32_t& At(std::int32_t slot) { return m_slots[static_cast<std::size_t>(slot)]; }

    Slots& m_slots;
};
