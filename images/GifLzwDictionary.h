// The strings of pixels that an LZW compressor has seen, and the code of each.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include "GifHashLayout.h"

/// Strings are known by their codes: a string is an earlier one (`prefix`) and one more pixel.
///
/// A string that goes on with its own last pixel is found through a link of its prefix, all others through a hash table
/// of its own; links of 16 steps make long runs of one colour cheap. Which strings are known is exactly what the
/// documented table of 5,003 slots would say: that table is filled only while it can lose its key 0.
class GifLzwDictionary
{
public:
    using Pixel = std::uint8_t;

    enum : std::size_t
    {
        LongStep = 16,
    };

    /// Where a string is, or would be put.
    struct Place
    {
        unsigned code; // 0: the string is not known
        std::uint32_t entry;
    };

    /// `slots` serves as the documented table; `firstCode` is the first that `Add` will give. With `followRuns` no pixel
    /// may have the number of a code; without, pixels may have any value.
    GifLzwDictionary(GifHashLayout::Slots& slots, unsigned firstCode, bool followRuns)
        : m_slots(slots), m_layout(slots), m_firstCode(firstCode), m_runs(followRuns)
    {
        Clear();
    }

    void Clear()
    {
        m_entries.fill(0);
        for (std::size_t pixel = 0; pixel < 256; ++pixel)
            m_nodes[pixel] = {0, 0, static_cast<std::uint16_t>(pixel), 0};
        if (m_slotsInUse)
            GifHashLayout::Clear(m_slots);
        m_slotsInUse = false;
        m_laidOut = m_firstCode;
        m_hasZero = false;
    }

    /// True if `prefix` and `pixel` make a string that is found by `FollowRun`, not by `Find`. `last` is the last pixel of
    /// `prefix`.
    bool IsRun(unsigned prefix, unsigned last, unsigned pixel) const
    {
        return pixel == last && (m_runs || prefix == 0);
    }

    /// Goes on from `prefix` with the pixels at `at` while they are all alike and the strings are known. Returns where it
    /// stopped. The last pixel of `prefix` is `*at`.
    const Pixel* FollowRun(unsigned& prefix, const Pixel* at, const Pixel* end) const
    {
        const Pixel pixel = *at;
        while (m_nodes[prefix].farther != 0 && AllAlike(at, end, pixel))
        {
            prefix = m_nodes[prefix].farther;
            at += LongStep;
        }
        while (at != end && *at == pixel && m_nodes[prefix].next != 0)
        {
            prefix = m_nodes[prefix].next;
            ++at;
        }
        return at;
    }

    Place Find(unsigned prefix, unsigned pixel) const
    {
        const std::uint32_t key = Key(prefix, pixel);
        std::uint32_t entry = (key * 2654435761U) >> (32 - EntryBits);
        for (; m_entries[entry] != 0; entry = (entry + 1) % Entries)
            if (m_entries[entry] >> CodeBits == key)
                return {m_entries[entry] & (CodeLimit - 1), entry};
        return {0, entry};
    }

    /// Gives `code`, which is one above the last, to a string that `Find` did not know.
    void Add(unsigned prefix, unsigned pixel, unsigned code, Place place)
    {
        m_entries[place.entry] = Key(prefix, pixel) << CodeBits | code;
        m_nodes[code] = {0, 0, static_cast<std::uint16_t>(code), 0};
        Remember(Key(prefix, pixel), code);
    }
    /// The same for one that `FollowRun` did not know.
    void AddRun(unsigned prefix, unsigned pixel, unsigned code)
    {
        Node& before = m_nodes[prefix];
        before.next = static_cast<std::uint16_t>(code);
        const auto depth = static_cast<std::uint16_t>((before.depth + 1U) % LongStep);
        const std::uint16_t anchor = depth == 0 ? static_cast<std::uint16_t>(code) : before.anchor;
        if (depth == 0)
            m_nodes[before.anchor].farther = static_cast<std::uint16_t>(code);
        m_nodes[code] = {0, 0, anchor, depth};
        Remember(Key(prefix, pixel), code);
    }

private:
    enum : std::uint32_t
    {
        CodeBits = 12,
        CodeLimit = 1U << CodeBits,
        EntryBits = 14,
        Entries = 1U << EntryBits,
    };

    /// A known string as the prefix of runs: positions in a run count from its anchor, which is every sixteenth of it.
    struct Node
    {
        std::uint16_t next;    // the string with its last pixel once more; 0: not known
        std::uint16_t farther; // of an anchor, the next anchor; 0: not known
        std::uint16_t anchor;
        std::uint16_t depth; // steps from the anchor
    };

    static std::uint32_t Key(unsigned prefix, unsigned pixel) { return pixel << CodeBits | prefix; }

    static bool AllAlike(const Pixel* at, const Pixel* end, Pixel pixel)
    {
        if (end - at < static_cast<std::ptrdiff_t>(LongStep))
            return false;
        const std::uint64_t pattern = pixel * 0x0101010101010101U;
        std::uint64_t words[2];
        std::memcpy(words, at, sizeof words);
        return words[0] == pattern && words[1] == pattern;
    }

    void Remember(std::uint32_t key, unsigned code)
    {
        m_keys[code] = key;
        if (m_hasZero)
            LayOut(code);
        m_hasZero = m_hasZero || key == 0;
    }

    /// Brings the documented table up to `code`, and forgets the string of key 0 if the last key took its slot.
    void LayOut(unsigned code)
    {
        m_slotsInUse = true;
        bool displaced = false;
        for (; m_laidOut <= code; ++m_laidOut)
            displaced = m_layout.Insert(m_keys[m_laidOut]);
        if (!displaced)
            return;
        m_hasZero = false;
        m_nodes[0].next = 0;
        m_nodes[0].farther = 0;
    }

    GifHashLayout::Slots& m_slots;
    GifHashLayout m_layout;
    unsigned m_firstCode;
    bool m_runs;
    bool m_slotsInUse = true;
    bool m_hasZero = false;                       // key 0 is known
    unsigned m_laidOut = 0;                       // the first code that the slots do not have yet
    std::array<std::uint32_t, Entries> m_entries; // key and code; 0: free. At most a quarter is in use
    std::array<Node, CodeLimit> m_nodes;          // by code
    std::array<std::uint32_t, CodeLimit> m_keys;  // by code
};
