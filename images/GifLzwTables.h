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
    enum : std::uint32_t
    {
        NoString = 0x8000, // as length or with it: the string does not stand in the window, or the code has none
        LengthBits = 0xFFFF,
    };

    GifLzwEntry() = default;
    GifLzwEntry(std::size_t at, std::size_t length, unsigned prefix)
        : m_word(at | static_cast<std::uint64_t>(length) << 32 | static_cast<std::uint64_t>(prefix) << 48)
    {
    }

    std::uint32_t At() const { return static_cast<std::uint32_t>(m_word); }
    /// With the mark.
    std::uint32_t MarkedLength() const { return static_cast<std::uint32_t>(m_word >> 32) & LengthBits; }
    std::uint32_t Length() const { return MarkedLength() & (NoString - 1); }
    bool IsMarked() const { return (MarkedLength() & NoString) != 0; }
    unsigned Prefix() const { return static_cast<unsigned>(m_word >> 48); }

    void MoveTo(std::size_t at) { *this = GifLzwEntry(at, Length(), Prefix()); }
    void Mark() { m_word |= static_cast<std::uint64_t>(NoString) << 32; }

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
