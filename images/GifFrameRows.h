// Where the rows of a frame go: onto the canvas, or into memory until the frame is whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>
#include "GifCanvas.h"
#include "GifLzwDecoder.h"
#include "oxa/images/GifDecoderState.h"
#include "oxa/images/GifWire.h"

/// Steps on to the row behind the present one, of a frame of more than 0 rows.
void advanceInterlace(InterlaceState& state);

/// The order of the rows of a frame, from its top row 0 on.
class GifRowOrder
{
public:
    explicit GifRowOrder(const tag_image& frame);

    /// Whether each row comes once, as long as there are no more than `frame.height`.
    bool IsStraight() const { return !m_interlaced || m_everyRowOnce; }
    /// The row that comes next. Behind the last row of a frame without interlace there is none to ask for.
    std::size_t Next();

private:
    InterlaceState m_state{};
    std::size_t m_row = 0;
    bool m_interlaced;
    bool m_everyRowOnce;
};

/// Draws rows on the canvas as they come. With a transparent index a row must not come twice.
class GifRowsToCanvas final : public GifRowSink
{
public:
    GifRowsToCanvas(GifCanvas& canvas, std::size_t screenHeight, const tag_image& frame, const GifFrameColors& colors);

    void TakeRows(const std::uint8_t* pixels, std::size_t count) override;
    void TakePart(const std::uint8_t* pixels, std::size_t length) override;
    /// Index 0 for every pixel that did not come.
    void Finish();

private:
    std::size_t CanvasRow(std::size_t row) const { return m_screenHeight - 1 - m_frame.top - row; }
    void Zeros(std::size_t row, std::size_t from);

    GifCanvas& m_canvas;
    std::size_t m_screenHeight;
    tag_image m_frame;
    GifFrameColors m_colors;
    GifRowOrder m_order;
    std::size_t m_rows = 0;     // that came, without interlace
    std::vector<bool> m_came{}; // with interlace
};

/// Keeps packed rows, a later one in place of an earlier one, until they are drawn all at once.
class GifRowStore final : public GifRowSink
{
public:
    GifRowStore(const tag_image& frame, int depth);

    void TakeRows(const std::uint8_t* pixels, std::size_t count) override;
    void TakePart(const std::uint8_t* pixels, std::size_t length) override;
    void Draw(GifCanvas& canvas, std::size_t screenHeight, const GifFrameColors& colors) const;

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    void Keep(const std::uint8_t* pixels, std::size_t length);

    tag_image m_frame;
    int m_depth;
    std::size_t m_stride;
    GifRowOrder m_order;
    std::vector<std::size_t> m_places; // of each row in `m_packed`
    std::vector<std::uint8_t> m_packed{};
};
