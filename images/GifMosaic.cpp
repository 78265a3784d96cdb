// Writes a true-colour image as a mosaic: tiles small enough to have a palette entry for each of their pixels.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace
{
constexpr unsigned long tileWidth = 17;
constexpr unsigned long tileHeight = 15; // 17 times 15 and the transparent entry are 256

std::uint32_t colorWord(RGBQUAD color)
{
    return static_cast<std::uint32_t>(color.rgbRed) << 16 | static_cast<std::uint32_t>(color.rgbGreen) << 8 |
           color.rgbBlue;
}

/// The lowest palette entry of each colour that a tile has so far.
class EntryOfColor
{
public:
    /// The entry of a colour; `entry` if it has none yet, which it then is.
    std::uint8_t Find(RGBQUAD color, std::size_t entry)
    {
        const std::uint32_t wanted = colorWord(color) + 1;
        std::size_t slot = wanted * 2654435761U >> 23;
        for (; m_colors[slot] != 0; slot = (slot + 1) % slots)
            if (m_colors[slot] == wanted)
                return m_entries[slot];
        m_colors[slot] = wanted;
        m_entries[slot] = static_cast<std::uint8_t>(entry);
        return m_entries[slot];
    }

private:
    static constexpr std::size_t slots = 512; // twice the colours that there can be
    std::uint32_t m_colors[slots] = {};       // one more than the colour; 0: free
    std::uint8_t m_entries[slots] = {};
};

/// Gives each pixel of a tile a palette entry, and equal pixels the lowest entry that has their colour.
/// `left` and `bottom` say where the tile stands in the image.
void fillTile(CKxGifImage& image, unsigned long left, unsigned long bottom, CKxGifImage& tile)
{
    RGBQUAD* const palette = tile.GetPalette();
    EntryOfColor entries;
    entries.Find(palette[0], 0);
    for (unsigned long y = 0; y < tile.GetHeight(); ++y)
    {
        // A narrow tile leaves the entries behind its first row black for good.
        if (y == 1 && tile.GetWidth() < tileWidth)
            entries.Find(RGBQUAD{}, tile.GetWidth() + 1);
        const unsigned char* source = image.GetBits(bottom + y) + left * 3;
        unsigned char* const indexes = tile.GetBits(y);
        for (unsigned long x = 0; x < tile.GetWidth(); ++x, source += 3)
        {
            const std::size_t entry = x + y * tileWidth + 1;
            palette[entry] = {source[0], source[1], source[2], 0};
            indexes[x] = entries.Find(palette[entry], entry);
        }
    }
}
} // namespace

bool CKxGifImage::EncodeRGB(CKxMemFile* file)
{
    EncodeHeader(file);
    EncodeComment(file);
    CKxGifImage tile;
    for (unsigned long y = 0; y < GetHeight(); y += tileHeight)
        for (unsigned long x = 0; x < GetWidth(); x += tileWidth)
        {
            const unsigned long width = std::min(tileWidth, GetWidth() - x);
            const unsigned long height = std::min(tileHeight, GetHeight() - y);
            if ((tile.GetWidth() != width || tile.GetHeight() != height) && !tile.Create(width, height, 8))
                return false;
            if (IsTransparent())
            {
                tile.SetTransIndex(0);
                tile.SetPaletteColor(0, GetTransColor());
            }
            fillTile(*this, x, GetHeight() - y - height, tile);
            tile.SetOffset(static_cast<long>(x), static_cast<long>(y));
            tile.EncodeExtension(file);
            tile.EncodeBody(file, true);
        }
    file->PutC(';');
    return true;
}
