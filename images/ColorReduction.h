// Takes the pixels of one block over into another of fewer colours, row by row, with and without error diffusion.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>
#include "RememberingChooser.h"

/// The pixels of an image; nothing is owned.
struct PixelBlock
{
    unsigned char* first;
    std::size_t stride;
    std::size_t width;
    std::size_t height;
    int bits;               // 1, 4, 8, 24
    const RGBQUAD* palette; // null at 24 bits
    unsigned choosable;     // the entries that may be chosen, counted from 0

    unsigned char* Row(std::size_t y) const { return first + y * stride; }
};

/// Gives every pixel of the target what CKxGifImage::SetPixelColor would give it.
class ColorReduction
{
public:
    /// The information records hold the remembered colour of each image. Throws std::bad_alloc, and only here.
    ColorReduction(const PixelBlock& source, const GifImageInfo& sourceInfo, const PixelBlock& target,
                   const GifImageInfo& targetInfo);

    void ReduceRow(std::size_t y);
    /// Changes the source in this row and in the one above it, where the errors go.
    void DiffuseRow(std::size_t y);
    /// Leaves the last colour in the target's record.
    void Remember(GifImageInfo& targetInfo) const { m_chooser.Remember(targetInfo); }

private:
    template <class Row> void Diffuse(Row current, Row above, bool hasAbove);

    PixelBlock m_source;
    PixelBlock m_target;
    RememberingChooser m_chooser;
    std::optional<RememberingChooser> m_sourceChooser; // for what diffusion writes into an indexed source
    std::vector<std::uint8_t> m_indexes;               // of the target's row
    std::vector<std::uint8_t> m_current;               // of two rows of an indexed source
    std::vector<std::uint8_t> m_above;
};
