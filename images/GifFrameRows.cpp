// The rows of a frame in their order.
#include "GifFrameRows.h"

#include <algorithm>
#include "GifRowPacking.h"

// Entered at or beyond the height, repeated only above it: frames of 2 and of 4 rows lose one by this, which is meant.
void advanceInterlace(InterlaceState& state)
{
    state.rowPosition += state.rowStep;
    if (state.rowPosition < state.frameHeight)
        return;
    do
    {
        if (state.pass > 0)
            state.rowStep /= 2;
        ++state.pass;
        state.rowPosition = state.rowStep / 2;
    } while (state.rowPosition > state.frameHeight);
}

GifRowOrder::GifRowOrder(const tag_image& frame)
    : m_state{frame.flags & 0x40, 0, 8, frame.height, 0}, m_interlaced((frame.flags & 0x40) != 0),
      m_everyRowOnce(frame.height != 2 && frame.height != 4)
{
}

// A position beyond the frame gives the row that came last.
std::size_t GifRowOrder::Next()
{
    if (!m_interlaced)
        return m_row++;
    if (m_state.rowPosition < m_state.frameHeight)
        m_row = static_cast<std::size_t>(m_state.rowPosition);
    advanceInterlace(m_state);
    return m_row;
}

GifRowsToCanvas::GifRowsToCanvas(GifCanvas& canvas, std::size_t screenHeight, const tag_image& frame,
                                 const GifFrameColors& colors)
    : m_canvas(canvas), m_screenHeight(screenHeight), m_frame(frame), m_colors(colors), m_order(frame)
{
    if ((frame.flags & 0x40) != 0)
        m_came.assign(frame.height, false);
}

void GifRowsToCanvas::TakeRows(const std::uint8_t* pixels, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i, pixels += m_frame.width)
    {
        const std::size_t row = m_order.Next();
        m_canvas.PutRow(CanvasRow(row), m_frame.left, pixels, m_frame.width, m_colors);
        if (!m_came.empty())
            m_came[row] = true;
    }
    m_rows += count;
}

void GifRowsToCanvas::TakePart(const std::uint8_t* pixels, std::size_t length)
{
    const std::size_t row = m_order.Next();
    m_canvas.PutRow(CanvasRow(row), m_frame.left, pixels, length, m_colors);
    if (m_came.empty() || !m_came[row])
        Zeros(row, length);
    if (!m_came.empty())
        m_came[row] = true;
    ++m_rows;
}

void GifRowsToCanvas::Zeros(std::size_t row, std::size_t from)
{
    m_canvas.PutZeros(CanvasRow(row), m_frame.left + from, m_frame.width - from, m_colors);
}

void GifRowsToCanvas::Finish()
{
    for (std::size_t row = m_came.empty() ? m_rows : 0; row < m_frame.height; ++row)
        if (m_came.empty() || !m_came[row])
            Zeros(row, 0);
}

GifRowStore::GifRowStore(const tag_image& frame, int depth)
    : m_frame(frame), m_depth(depth), m_stride((std::size_t{frame.width} * static_cast<std::size_t>(depth) + 7) / 8),
      m_order(frame), m_places(frame.height, None)
{
}

void GifRowStore::TakeRows(const std::uint8_t* pixels, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i, pixels += m_frame.width)
        Keep(pixels, m_frame.width);
}

void GifRowStore::TakePart(const std::uint8_t* pixels, std::size_t length)
{
    Keep(pixels, length);
}

void GifRowStore::Keep(const std::uint8_t* pixels, std::size_t length)
{
    std::size_t& place = m_places[m_order.Next()];
    if (place == None)
    {
        place = m_packed.size();
        m_packed.resize(place + m_stride, 0);
    }
    packRow(m_packed.data() + place, pixels, length, m_depth);
}

void GifRowStore::Draw(GifCanvas& canvas, std::size_t screenHeight, const GifFrameColors& colors) const
{
    std::vector<std::uint8_t> pixels(m_frame.width);
    for (std::size_t row = 0; row < m_frame.height; ++row)
    {
        const std::size_t y = screenHeight - 1 - m_frame.top - row;
        if (m_places[row] == None)
        {
            canvas.PutZeros(y, m_frame.left, m_frame.width, colors);
            continue;
        }
        unpackRow(pixels.data(), m_packed.data() + m_places[row], 0, pixels.size(), m_depth);
        canvas.PutRow(y, m_frame.left, pixels.data(), pixels.size(), colors);
    }
}
