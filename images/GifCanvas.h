// The picture that the frames of a GIF are drawn on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// How the pixels of a frame come onto the canvas.
struct GifFrameColors
{
    std::uint8_t mask = 255;               // of the frame's depth
    int transparent = -1;                  // an index that leaves the canvas as it is; -1: none
    const std::uint8_t* palette = nullptr; // at 24 bits: blue, green, red and one byte more for each index
};

/// The packed rows of an image of 1, 4, 8 or 24 bits, which somebody else owns.
///
/// A fill of more than a few pixels is only noted down, by pieces of 64 pixels, until something is drawn there or `Finish`
/// is called: a stream of many frames that hold hardly any pixels costs its rows, not its areas.
class GifCanvas
{
public:
    /// Rows from the bottom up, each of `stride` bytes.
    void Begin(std::uint8_t* bits, std::size_t width, std::size_t height, std::size_t stride, int depth);
    /// Gives every pixel one index, 0 at 24 bits; what lies behind a row too. At 1 bit any index but 0 counts as 1.
    void Clear(std::uint8_t index);
    /// Whether nothing was drawn since `Clear`, and `index` would not show either.
    bool IsNothingBut(int index) const { return m_untouched && m_depth != 24 && m_padding == FillOf(index); }
    /// Draws `count` indexes, one a byte, from `left` on. The place must be inside.
    void PutRow(std::size_t y, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                const GifFrameColors& colors);
    /// Draws `count` times index 0.
    void PutZeros(std::size_t y, std::size_t left, std::size_t count, const GifFrameColors& colors);
    /// Carries out what was noted down.
    void Finish();

private:
    static constexpr std::size_t Piece = 64; // pixels
    static constexpr std::uint8_t Drawn = 0; // a piece with no fill noted down
    static constexpr std::size_t MostFills = 255;

    std::uint8_t FillOf(int index) const;
    std::uint8_t* Row(std::size_t y) { return m_bits + y * m_stride; }
    std::uint8_t* Pieces(std::size_t y) { return m_pieces.data() + y * m_perRow; }
    std::uint8_t NumberOfFill(std::uint32_t fill);
    void CarryOut(std::size_t y, std::size_t piece);
    void CarryOut(std::size_t y, std::size_t left, std::size_t right);
    void FillPixels(std::uint8_t* row, std::size_t left, std::size_t right, std::uint32_t fill);

    void Cover(std::size_t y, std::size_t left, std::size_t right, std::uint8_t number);
    void DrawPacked(std::uint8_t* row, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                    const GifFrameColors& colors) const;
    void DrawColors(std::uint8_t* row, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                    const GifFrameColors& colors) const;
    void FinishPadding();

    std::uint8_t* m_bits = nullptr;
    std::size_t m_width = 0;
    std::size_t m_height = 0;
    std::size_t m_stride = 0;
    int m_depth = 8;
    std::uint8_t m_padding = 0; // the byte of the last `Clear`
    bool m_untouched = false;   // since then
    std::size_t m_perRow = 0;
    std::vector<std::uint8_t> m_pieces{}; // for each piece of each row: `Drawn`, or the number of its fill
    std::vector<std::uint32_t> m_fills{}; // by number less 1: a byte, or at 24 bits blue, green, red
};
