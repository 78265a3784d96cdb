// The nearest palette entry, asked for many times in a row.
#pragma once

#include <cstdint>
#include <cstring>
#include "NearestColor.h"
#include "oxa/images/GifImageInfo.h"

/// Gives the answers of CKxGifImage::GetNearestIndex, its memory of the last colour included.
class RememberingChooser
{
public:
    /// Throws std::bad_alloc.
    RememberingChooser(const RGBQUAD* palette, unsigned count, const GifImageInfo& memory)
        : m_nearest(palette, count), m_last(Word(memory.LastColor)), m_index(memory.nLastIndex),
          m_valid(memory.bLastValid)
    {
    }

    unsigned char Choose(int blue, int green, int red)
    {
        const auto color = static_cast<std::uint32_t>(blue | green << 8 | red << 16);
        if (color != m_last || !m_valid)
        {
            m_last = color;
            m_index = m_nearest.Find(blue, green, red);
            m_valid = true;
        }
        return m_index;
    }

    void Remember(GifImageInfo& memory) const
    {
        std::memcpy(&memory.LastColor, &m_last, sizeof m_last);
        memory.nLastIndex = m_index;
        memory.bLastValid = m_valid;
    }

private:
    static std::uint32_t Word(RGBQUAD color)
    {
        std::uint32_t word = 0;
        std::memcpy(&word, &color, sizeof word);
        return word;
    }

    NearestColor m_nearest;
    std::uint32_t m_last;
    std::uint8_t m_index;
    bool m_valid;
};
