// The pictures that codecs are measured on, drawn by a few lines of code: indexes top row first, one byte a pixel.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace bench
{
struct Picture
{
    const char* name;
    int width;
    int height;
    int depth; // 1, 4 or 8 bits
    std::vector<std::uint8_t> indexes;
};

/// The same numbers in every run and on every machine.
class Random
{
public:
    unsigned below(unsigned limit)
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<unsigned>(m_state >> 33) % limit;
    }

private:
    std::uint64_t m_state = 20240601;
};

/// Draws into a picture; what falls outside is cut off.
class Brush
{
public:
    explicit Brush(Picture& picture) : m_picture(picture) {}

    void dot(int x, int y, unsigned colour)
    {
        if (x >= 0 && x < m_picture.width && y >= 0 && y < m_picture.height)
            m_picture.indexes[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_picture.width) +
                              static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(colour);
    }
    void box(int left, int top, int width, int height, unsigned colour)
    {
        for (int y = top; y < top + height; ++y)
            for (int x = left; x < left + width; ++x)
                dot(x, y, colour);
    }
    void line(int x0, int y0, int x1, int y1, unsigned colour)
    {
        const int steps = std::max({std::abs(x1 - x0), std::abs(y1 - y0), 1});
        for (int i = 0; i <= steps; ++i)
            dot(x0 + (x1 - x0) * i / steps, y0 + (y1 - y0) * i / steps, colour);
    }
    void text(int left, int top, int letters, unsigned colour, Random& random)
    {
        for (int letter = 0; letter < letters; ++letter)
        {
            const unsigned kind = random.below(40);
            if (kind > 32)
                continue;
            Random shape;
            for (unsigned skip = 0; skip < kind * 35; ++skip)
                shape.below(2);
            for (int y = 0; y < 7; ++y)
                for (int x = 0; x < 5; ++x)
                    if (shape.below(5) < 2)
                        dot(left + letter * 6 + x, top + y, colour);
        }
    }

private:
    Picture& m_picture;
};

inline Picture blank(const char* name, int width, int height, int depth, unsigned colour)
{
    return {name, width, height, depth,
            std::vector<std::uint8_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                                      static_cast<std::uint8_t>(colour))};
}

/// A desktop: a flat ground, windows with borders, title bars, lines of text and buttons.
inline Picture screen()
{
    Picture picture = blank("screen 1920x1080", 1920, 1080, 8, 11);
    Brush brush(picture);
    Random random;
    for (int window = 0; window < 6; ++window)
    {
        const int left = 60 + window * 230;
        const int top = 40 + window * 110;
        const int width = 700;
        const int height = 400;
        brush.box(left, top, width, height, 7);
        brush.box(left + 1, top + 1, width - 2, height - 2, 15);
        brush.box(left + 1, top + 1, width - 2, 22, 200);
        brush.text(left + 8, top + 8, 24, 255, random);
        for (int row = 0; row < 24; ++row)
            brush.text(left + 10, top + 34 + row * 14, 30 + static_cast<int>(random.below(60)), 0, random);
        for (int button = 0; button < 3; ++button)
        {
            brush.box(left + 400 + button * 95, top + height - 30, 88, 22, 8);
            brush.box(left + 401 + button * 95, top + height - 29, 86, 20, 7);
            brush.text(left + 420 + button * 95, top + height - 22, 8, 0, random);
        }
    }
    brush.box(0, 1040, 1920, 40, 60);
    brush.text(20, 1056, 200, 255, random);
    return picture;
}

/// A photograph with grain: two soft slopes and four bits of noise.
inline Picture noise()
{
    Picture picture = blank("noise 1024x768", 1024, 768, 8, 0);
    Brush brush(picture);
    Random random;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            brush.dot(x, y, static_cast<unsigned>(x / 9 + y / 7) + random.below(16));
    return picture;
}

/// A plan on white paper: axes, walls, hatches, circles and lettering.
inline Picture lineArt(const char* name, int depth)
{
    const unsigned paper = depth == 1 ? 1 : 15;
    const auto ink = [&](unsigned colour) { return depth == 1 ? 0 : colour; };
    Picture picture = blank(name, 1600, 1200, depth, paper);
    Brush brush(picture);
    Random random;
    for (int axis = 0; axis < 12; ++axis)
    {
        brush.line(100 + axis * 120, 40, 100 + axis * 120, 1160, ink(9));
        brush.line(40, 80 + axis * 90, 1560, 80 + axis * 90, ink(9));
    }
    for (int wall = 0; wall < 40; ++wall)
    {
        const int x = 100 + static_cast<int>(random.below(12)) * 120;
        const int y = 80 + static_cast<int>(random.below(12)) * 90;
        const int length = 120 * (1 + static_cast<int>(random.below(4)));
        brush.box(x, y - 4, length, 1, ink(0));
        brush.box(x, y + 4, length, 1, ink(0));
        for (int hatch = 0; hatch < length; hatch += 8)
            brush.line(x + hatch, y + 4, x + hatch + 8, y - 4, ink(8));
        brush.text(x + 20, y + 12, 12, ink(1), random);
    }
    for (int i = 0; i < 30; ++i)
    {
        const int x = static_cast<int>(random.below(1600));
        const int y = static_cast<int>(random.below(1200));
        for (int corner = 0; corner < 24; ++corner)
            brush.line(x + corner * 4, y + (corner % 5) * 20, x + corner * 7 - 50, y - 60 + corner * 5, ink(4));
    }
    return picture;
}

/// A scene with slopes in the ground and boxes that move over it.
inline std::vector<Picture> animation()
{
    std::vector<Picture> frames;
    for (int i = 0; i < 30; ++i)
    {
        Picture picture = blank("animation", 320, 240, 8, 0);
        Brush brush(picture);
        Random random;
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < picture.width; ++x)
                brush.dot(x, y, static_cast<unsigned>(40 + y / 6 + x / 40));
        for (int box = 0; box < 8; ++box)
            brush.box(box * 37 + i * 4, 20 + box * 24 + (box % 2 == 0 ? i : -i), 30, 18,
                      static_cast<unsigned>(120 + box * 15));
        for (int row = 0; row < 6; ++row)
            brush.text(10 + i, 30 + row * 36, 40, 250, random);
        frames.push_back(picture);
    }
    return frames;
}

/// Twelve dots on a circle that fade one after the other.
inline std::vector<Picture> spinner()
{
    static constexpr int xs[] = {24, 33, 40, 42, 40, 33, 24, 15, 8, 6, 8, 15};
    static constexpr int ys[] = {6, 8, 15, 24, 33, 40, 42, 40, 33, 24, 15, 8};
    std::vector<Picture> frames;
    for (int i = 0; i < 12; ++i)
    {
        Picture picture = blank("spinner", 48, 48, 4, 0);
        Brush brush(picture);
        for (int dot = 0; dot < 12; ++dot)
        {
            const auto shade = static_cast<unsigned>(1 + (dot + i) % 12);
            brush.box(xs[dot] - 2, ys[dot] - 3, 4, 6, shade);
            brush.box(xs[dot] - 3, ys[dot] - 2, 6, 4, shade);
        }
        frames.push_back(picture);
    }
    return frames;
}
} // namespace bench
