// The string table of the LZW decoder while the codes are sound.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Where a string stands in the pixels already decoded, how long it is, and the code that it extends: one word, so that an
/// entry is one store.
class GifLzwEntry
{
public:
    static constexpr std::uint32_t NoString = 0x8000; // added to the length: the string does not stand in the window

    GifLzwEntry() = default;
    GifLzwEntry(std::size_t at, std::size_t length, unsigned prefix)
        : m_word(static_cast<std::uint64_t>(at) << 32 | static_cast<std::uint64_t>(prefix) << 16 | length)
    {
    }

    std::size_t At() const { return static_cast<std::size_t>(m_word >> 32); }
    /// With the mark.
    std::size_t MarkedLength() const { return m_word & 0xFFFF; }
    std::size_t Length() const { return m_word & (NoString - 1); }
    bool IsMarked() const { return (m_word & NoString) != 0; }
    unsigned Prefix() const { return static_cast<unsigned>(m_word >> 16 & 0xFFFF); }

    void MoveTo(std::size_t at) { *this = GifLzwEntry(at, Length(), Prefix()); }
    void Mark() { m_word |= NoString; }

private:
    std::uint64_t m_word;
};

/// The table, and what is kept of strings that have left the window.
struct GifLzwTables
{
    GifLzwEntry entries[4096];
    std::uint8_t lastPixels[4096]; // of marked entries
};

/// 16 pixels at once. The places may overlap when `to` is at least 16 behind `from`.
inline void copyPixels16(std::uint8_t* to, const std::uint8_t* from)
{
    std::uint8_t pixels[16];
    std::memcpy(pixels, from, sizeof pixels);
    std::memcpy(to, pixels, sizeof pixels);
}
