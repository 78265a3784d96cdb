// A packed picture as the judge of the GIF decoder keeps it: palette and rows byte for byte, every access one pixel.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace plain
{
struct DecodedPicture
{
    static constexpr std::int64_t maximumPixels = 16384LL * 16384;

    bool valid = false;
    int width = 0; // the sizes stay behind when the picture is dropped
    int height = 0;
    int depth = 0;                       // 1, 4, 8 or 24
    std::vector<std::uint8_t> palette{}; // blue, green, red, 0 for each entry
    std::vector<std::uint8_t> rows{};    // the bottom row first

    void drop()
    {
        valid = false;
        palette.clear();
        rows.clear();
    }

    static bool tooLarge(int w, int h) { return static_cast<std::int64_t>(w) * h > maximumPixels; }

    /// A picture of index 0 with a black palette; none for a size of 0 or one that is too large.
    void create(int w, int h, int bits)
    {
        drop();
        if (w == 0 || h == 0 || tooLarge(w, h))
            return;
        valid = true;
        width = w;
        height = h;
        depth = bits;
        palette.assign(bits == 24 ? 0 : std::size_t{4} << bits, 0);
        rows.assign(stride() * static_cast<std::size_t>(h), 0);
    }

    void clear(int value)
    {
        if (!valid)
            return;
        int fill = value & 255;
        if (depth == 1 && fill != 0)
            fill = 255;
        if (depth == 4)
            fill = (fill & 15) * 17;
        std::fill(rows.begin(), rows.end(), static_cast<std::uint8_t>(fill));
    }

    int entries() const { return static_cast<int>(palette.size() / 4); }

    void setEntry(int i, int red, int green, int blue)
    {
        if (i >= entries())
            return;
        const std::size_t at = static_cast<std::size_t>(i) * 4;
        palette[at] = static_cast<std::uint8_t>(blue);
        palette[at + 1] = static_cast<std::uint8_t>(green);
        palette[at + 2] = static_cast<std::uint8_t>(red);
    }

    /// Blue, green, red of an entry; black beyond the palette.
    const std::uint8_t* entry(int i) const
    {
        static const std::uint8_t black[3] = {};
        return i < entries() ? &palette[static_cast<std::size_t>(i) * 4] : black;
    }

    int index(int x, int y) const
    {
        const std::uint8_t packed = rows[byteOf(x, y)];
        if (depth == 4)
            return x % 2 == 0 ? packed >> 4 : packed & 15;
        if (depth == 1)
            return packed >> (7 - x % 8) & 1;
        return packed;
    }

    void setIndex(int x, int y, int value)
    {
        std::uint8_t& packed = rows[byteOf(x, y)];
        const int bits = depth;
        const int shift = depth == 8 ? 0 : depth == 4 ? (1 - x % 2) * 4 : 7 - x % 8;
        const int mask = (1 << bits) - 1;
        packed = static_cast<std::uint8_t>((packed & ~(mask << shift)) | ((value & mask) << shift));
    }

    void setColour(int x, int y, const std::uint8_t* blueGreenRed)
    {
        for (std::size_t i = 0; i < 3; ++i)
            rows[stride() * static_cast<std::size_t>(y) + static_cast<std::size_t>(x) * 3 + i] = blueGreenRed[i];
    }

    std::size_t stride() const
    {
        return (static_cast<std::size_t>(depth) * static_cast<std::size_t>(width) + 31) / 32 * 4;
    }

private:
    std::size_t byteOf(int x, int y) const
    {
        return stride() * static_cast<std::size_t>(y) + static_cast<std::size_t>(x * depth / 8);
    }
};
} // namespace plain
