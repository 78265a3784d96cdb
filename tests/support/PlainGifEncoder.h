// The GIF writer in its plain form, one pixel, one code and one byte at a time: what the library's must equal.
// It has a picture model of its own and shares no code with the library.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace plain
{
using Bytes = std::vector<std::uint8_t>;

struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

/// A picture as a writer sees it. Row 0 is the bottom row.
struct Picture
{
    int width = 0;
    int height = 0;
    int depth = 8;                 // 1, 4, 8 or 24
    std::vector<Colour> palette{}; // 2, 16 or 256 entries, none at 24 bits
    std::vector<int> indexes{};    // below 24 bits
    std::vector<Colour> colours{}; // at 24 bits
    int transparent = -1;          // -1: opaque
    Colour transparentColour{};    // at 24 bits
    int disposal = 0;
    unsigned delay = 0;
    std::string comment{};
    int left = 0;
    int top = 0;

    std::size_t at(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

/// The raster of one frame: the bit packer, the sub-blocks, and the two compressors.
class Raster
{
public:
    Raster(Bytes& out, std::vector<int> pixels, int initialBits)
        : m_out(out), m_pixels(std::move(pixels)), m_initialBits(initialBits), m_width(initialBits),
          m_highest((1 << initialBits) - 1), m_clear(1 << (initialBits - 1)), m_next(m_clear + 2)
    {
    }

    void compress()
    {
        int ent = nextPixel();
        emptyTable();
        output(m_clear);
        for (int c = nextPixel(); c >= 0; c = nextPixel())
        {
            const int key = (c << 12) + ent;
            int slot = (c << 4) ^ ent;
            if (find(key, slot))
            {
                ent = m_codes.at(static_cast<std::size_t>(slot));
                continue;
            }
            output(ent);
            ent = c;
            if (m_next < 4096)
            {
                m_codes.at(static_cast<std::size_t>(slot)) = m_next++;
                m_keys.at(static_cast<std::size_t>(slot)) = key;
            }
            else
            {
                emptyTable();
                startAgain();
            }
        }
        output(ent);
        output(m_clear + 1);
    }

    void passThrough()
    {
        output(m_clear);
        for (int c = nextPixel(); c >= 0; c = nextPixel())
        {
            output(c);
            if (++m_next == 4096)
                startAgain();
        }
        output(m_clear + 1);
    }

private:
    static constexpr int tableSize = 5003;

    int nextPixel() { return m_read < m_pixels.size() ? m_pixels[m_read++] : -1; }
    void emptyTable() { m_keys.fill(-1); }
    void startAgain()
    {
        m_next = m_clear + 2;
        m_clearing = true;
        output(m_clear);
    }

    /// True with the slot that holds the key; false with the slot that takes it.
    bool find(int key, int& slot) const
    {
        if (m_keys.at(static_cast<std::size_t>(slot)) == key)
            return true;
        if (m_keys.at(static_cast<std::size_t>(slot)) < 0)
            return false;
        const int step = slot == 0 ? 1 : tableSize - slot;
        do
        {
            slot -= step;
            if (slot < 0)
                slot += tableSize;
            if (m_keys.at(static_cast<std::size_t>(slot)) == key)
                return true;
        } while (m_keys.at(static_cast<std::size_t>(slot)) >= 1);
        return false;
    }

    void output(int code)
    {
        m_bits &= (1U << m_bitCount) - 1;
        m_bits |= static_cast<std::uint32_t>(code) << m_bitCount;
        m_bitCount += m_width;
        for (; m_bitCount >= 8; m_bitCount -= 8, m_bits >>= 8)
            byte(m_bits & 0xFF);
        if (m_clearing)
        {
            m_width = m_initialBits;
            m_highest = (1 << m_width) - 1;
            m_clearing = false;
        }
        else if (m_next > m_highest)
        {
            ++m_width;
            m_highest = m_width == 12 ? 4096 : (1 << m_width) - 1;
        }
        if (code == m_clear + 1)
        {
            for (; m_bitCount > 0; m_bitCount -= 8, m_bits >>= 8)
                byte(m_bits & 0xFF);
            endBlock();
        }
    }

    void byte(std::uint32_t value)
    {
        m_block.push_back(static_cast<std::uint8_t>(value));
        if (m_block.size() == 254)
            endBlock();
    }
    void endBlock()
    {
        if (m_block.empty())
            return;
        m_out.push_back(static_cast<std::uint8_t>(m_block.size()));
        m_out.insert(m_out.end(), m_block.begin(), m_block.end());
        m_block.clear();
    }

    Bytes& m_out;
    std::vector<int> m_pixels;
    std::size_t m_read = 0;
    int m_initialBits;
    int m_width;
    int m_highest;
    int m_clear;
    int m_next;
    bool m_clearing = false;
    std::uint32_t m_bits = 0;
    int m_bitCount = 0;
    Bytes m_block{};
    std::array<int, tableSize> m_keys{};
    std::array<int, tableSize> m_codes{};
};

/// A whole stream.
class Writer
{
public:
    explicit Writer(const Picture& picture) : m_picture(picture) {}

    Bytes write()
    {
        header();
        if (m_picture.depth <= 8)
        {
            control(m_picture);
            comment();
            frame(m_picture, false);
        }
        else
        {
            comment();
            mosaic();
        }
        m_out.push_back(';');
        return std::move(m_out);
    }

private:
    static constexpr int tileWidth = 17;
    static constexpr int tileHeight = 15;

    void word(int value)
    {
        m_out.push_back(static_cast<std::uint8_t>(value & 0xFF));
        m_out.push_back(static_cast<std::uint8_t>((value >> 8) & 0xFF));
    }
    void bytes(std::initializer_list<int> values)
    {
        for (const int value : values)
            m_out.push_back(static_cast<std::uint8_t>(value));
    }
    void text(const std::string& letters)
    {
        for (const char letter : letters)
            m_out.push_back(static_cast<std::uint8_t>(letter));
    }
    void table(const std::vector<Colour>& palette)
    {
        for (const Colour& colour : palette)
            bytes({colour.red, colour.green, colour.blue});
    }

    void header()
    {
        text("GIF89a");
        word(m_picture.width);
        word(m_picture.height);
        const int field = m_picture.depth - 1;
        m_out.push_back(m_picture.palette.empty() ? 0x11 : static_cast<std::uint8_t>(0x80 | (field << 5) | field));
        bytes({0, 0});
        table(m_picture.palette);
    }

    void control(const Picture& picture)
    {
        const int flags = (picture.transparent != -1 ? 1 : 0) | ((picture.disposal & 7) << 2);
        bytes({0x21, 0xF9, 4, flags});
        word(static_cast<int>(picture.delay & 0xFFFF));
        bytes({picture.transparent & 0xFF, 0});
    }

    void comment()
    {
        if (m_picture.comment.empty())
            return;
        const std::string cut = m_picture.comment.substr(0, 255);
        bytes({0x21, 0xFE, static_cast<int>(cut.size())});
        text(cut);
        m_out.push_back(0);
    }

    void frame(const Picture& picture, bool localTable)
    {
        m_out.push_back(',');
        word(picture.left);
        word(picture.top);
        word(picture.width);
        word(picture.height);
        m_out.push_back(localTable ? static_cast<std::uint8_t>(0x80 | (picture.depth - 1)) : 0);
        if (localTable)
            table(picture.palette);
        std::vector<int> topDown;
        for (int y = picture.height - 1; y >= 0; --y)
            for (int x = 0; x < picture.width; ++x)
                topDown.push_back(picture.indexes[picture.at(x, y)]);
        const int codeSize = std::max(picture.depth, 2);
        m_out.push_back(static_cast<std::uint8_t>(codeSize));
        Raster(m_out, std::move(topDown), codeSize + 1).compress();
        m_out.push_back(0);
    }

    void mosaic()
    {
        Picture tile;
        for (int y = 0; y < m_picture.height; y += tileHeight)
            for (int x = 0; x < m_picture.width; x += tileWidth)
            {
                const int width = std::min(tileWidth, m_picture.width - x);
                const int height = std::min(tileHeight, m_picture.height - y);
                if (tile.width != width || tile.height != height)
                {
                    tile = Picture();
                    tile.width = width;
                    tile.height = height;
                    tile.palette.assign(256, Colour());
                    tile.indexes.assign(static_cast<std::size_t>(width * height), 0);
                }
                tile.left = x;
                tile.top = y;
                fill(tile);
                control(tile);
                frame(tile, true);
            }
    }

    void fill(Picture& tile) const
    {
        if (m_picture.transparent >= 0)
        {
            tile.transparent = 0;
            tile.palette[0] = m_picture.transparentColour;
        }
        for (int j = 0; j < tile.height; ++j)
            for (int i = 0; i < tile.width; ++i)
            {
                const int y = m_picture.height - tile.top - tile.height + j;
                const Colour colour = m_picture.colours[m_picture.at(tile.left + i, y)];
                tile.palette[static_cast<std::size_t>(i + j * tileWidth + 1)] = colour;
                const auto found = std::find(tile.palette.begin(), tile.palette.end(), colour);
                tile.indexes[tile.at(i, j)] = static_cast<int>(found - tile.palette.begin());
            }
    }

    const Picture& m_picture;
    Bytes m_out{};
};

inline Bytes encode(const Picture& picture)
{
    return Writer(picture).write();
}
} // namespace plain
