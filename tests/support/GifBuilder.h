// Builds GIF streams piece by piece, good ones and damaged ones: the recipes of the tests are written in its words.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace recipe
{
using Bytes = std::vector<std::uint8_t>;

struct Rgb
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// Writes codes in the widths that a reader expects, whatever the codes are.
class CodeWriter
{
public:
    explicit CodeWriter(int size) : m_size(size), m_clear(1 << size) { restart(); }

    void put(int code)
    {
        m_bits |= (static_cast<std::uint64_t>(code) & ((1U << m_width) - 1U)) << m_count;
        m_count += m_width;
        for (; m_count >= 8; m_count -= 8, m_bits >>= 8)
            m_bytes.push_back(static_cast<std::uint8_t>(m_bits));
        if (code == m_clear)
        {
            restart();
            m_behindClear = true;
        }
        else if (m_behindClear)
            m_behindClear = false; // the first code behind a clear code adds no entry
        else
        {
            m_next += m_next < 1 << m_width ? 1 : 0;
            m_width += m_next >= 1 << m_width && m_width < 12 ? 1 : 0;
        }
    }

    /// All whole bytes, the last one filled up with zeros.
    Bytes bytes() const
    {
        Bytes all = m_bytes;
        if (m_count > 0)
            all.push_back(static_cast<std::uint8_t>(m_bits));
        return all;
    }

private:
    void restart()
    {
        m_width = m_size + 1;
        m_next = m_clear + 2;
    }

    int m_size;
    int m_clear;
    int m_width = 0;
    int m_next = 0;
    bool m_behindClear = false;
    std::uint64_t m_bits = 0;
    int m_count = 0;
    Bytes m_bytes{};
};

inline Bytes packed(int size, const std::vector<int>& codes)
{
    CodeWriter writer(size);
    for (const int code : codes)
        writer.put(code);
    return writer.bytes();
}

enum class WhenFull
{
    Clear,
    GoOn, // with the full table, to the end
};

/// The codes of ordinary compression, from a clear code to the end code.
inline std::vector<int> lzwCodes(int size, const Bytes& pixels, WhenFull whenFull = WhenFull::Clear)
{
    const int clear = 1 << size;
    std::map<std::pair<int, int>, int> table;
    int next = clear + 2;
    std::vector<int> codes{clear};
    int current = -1;
    for (const int pixel : pixels)
    {
        const auto found = table.find({current, pixel});
        if (current < 0)
            current = pixel;
        else if (found != table.end())
            current = found->second;
        else
        {
            codes.push_back(current);
            if (next < 4096)
                table[{current, pixel}] = next++;
            else if (whenFull == WhenFull::Clear)
            {
                codes.push_back(clear);
                table.clear();
                next = clear + 2;
            }
            current = pixel;
        }
    }
    if (current >= 0)
        codes.push_back(current);
    codes.push_back(clear + 1);
    return codes;
}

/// Where a frame stands, and what its descriptor says.
struct Place
{
    int left = 0;
    int top = 0;
    int width = 1;
    int height = 1;
    bool interlaced = false;
    std::vector<Rgb> table{}; // 2, 4, 8, ... entries, or none
};

class GifBuilder
{
public:
    /// A screen with a global table of 2, 4, 8, ... entries, or none. `flags` are added to the packed byte.
    GifBuilder(int width, int height, const std::vector<Rgb>& table = {}, int flags = 0)
    {
        text("GIF89a").word(width).word(height);
        byte((table.empty() ? 0 : 0x80 | sizeField(table)) | flags).byte(0).byte(0);
        colours(table);
    }

    GifBuilder& byte(int value)
    {
        m_bytes.push_back(static_cast<std::uint8_t>(value));
        return *this;
    }
    GifBuilder& word(int value) { return byte(value & 255).byte(value >> 8); }
    GifBuilder& raw(const Bytes& bytes)
    {
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        return *this;
    }
    GifBuilder& text(std::string_view letters) { return raw(Bytes(letters.begin(), letters.end())); }
    /// Sub-blocks of at most `length` bytes, and the terminator.
    GifBuilder& blocks(const Bytes& bytes, std::size_t length = 255) { return openBlocks(bytes, length).byte(0); }
    /// The same without the terminator.
    GifBuilder& openBlocks(const Bytes& bytes, std::size_t length = 255)
    {
        for (std::size_t i = 0; i < bytes.size(); i += length)
        {
            const std::size_t count = std::min(length, bytes.size() - i);
            byte(static_cast<int>(count));
            for (std::size_t j = i; j < i + count; ++j)
                byte(bytes[j]);
        }
        return *this;
    }

    /// `transparent` below 0: the index byte is 0 and its flag is not set.
    GifBuilder& control(int disposal, int delay, int transparent = -1)
    {
        return text("!\xF9\x04")
            .byte(disposal << 2 | (transparent >= 0 ? 1 : 0))
            .word(delay)
            .byte(std::max(transparent, 0))
            .byte(0);
    }
    GifBuilder& comment(const std::string& letters)
    {
        return text("!\xFE").blocks(Bytes(letters.begin(), letters.end()));
    }
    GifBuilder& application(std::string_view elevenLetters, const Bytes& data)
    {
        return text("!\xFF\x0B").text(elevenLetters).blocks(data);
    }

    GifBuilder& descriptor(const Place& place)
    {
        byte(',').word(place.left).word(place.top).word(place.width).word(place.height);
        byte((place.interlaced ? 0x40 : 0) | (place.table.empty() ? 0 : 0x80 | sizeField(place.table)));
        return colours(place.table);
    }
    /// Descriptor and raster of `pixels`, which come in the order of the stream.
    GifBuilder& frame(const Place& place, int size, const Bytes& pixels, std::size_t blockLength = 255)
    {
        return descriptor(place).byte(size).blocks(packed(size, lzwCodes(size, pixels)), blockLength);
    }
    /// Descriptor and a raster of these codes.
    GifBuilder& frameOfCodes(const Place& place, int size, const std::vector<int>& codes, std::size_t blockLength = 255)
    {
        return descriptor(place).byte(size).blocks(packed(size, codes), blockLength);
    }
    GifBuilder& trailer() { return byte(';'); }

    const Bytes& bytes() const { return m_bytes; }
    std::size_t size() const { return m_bytes.size(); }

private:
    static int sizeField(const std::vector<Rgb>& table)
    {
        int field = 0;
        while ((std::size_t{2} << field) < table.size())
            ++field;
        return field;
    }
    GifBuilder& colours(const std::vector<Rgb>& table)
    {
        for (const Rgb& colour : table)
            byte(colour.red).byte(colour.green).byte(colour.blue);
        return *this;
    }

    Bytes m_bytes{};
};

/// `count` greys, from black to white.
inline std::vector<Rgb> greys(int count)
{
    std::vector<Rgb> table;
    for (int i = 0; i < count; ++i)
    {
        const auto level = static_cast<std::uint8_t>(i * 255 / (count - 1));
        table.push_back({level, level, level});
    }
    return table;
}
} // namespace recipe
