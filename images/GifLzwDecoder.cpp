// The course of a frame: clear codes, rows, the window of pixels.
#include "GifLzwDecoder.h"

#include <algorithm>
#include <new>

void GifLzwDecoder::Initialize(LzwDecoderState& state, int size)
{
    state.codeWidth = static_cast<std::int16_t>(size + 1);
    state.topSlot = static_cast<std::int16_t>(1 << (size + 1));
    state.clearCode = static_cast<std::int16_t>(1 << size);
    state.endCode = static_cast<std::int16_t>(state.clearCode + 1);
    state.firstFreeCode = state.nextSlot = static_cast<std::int16_t>(state.clearCode + 2);
    state.bytesLeft = state.bitsLeft = 0;
}

GifLzwDecoder::End GifLzwDecoder::Decode(LzwDecoderState& state, GifInput& input, const GifRaster& raster)
{
    m_badCodes = 0;
    m_origin = m_at = 0;
    const int size = input.Byte();
    if (size < 0)
        return End::NoCodeSize;
    if (size < 2 || size > 9)
        return End::BadCodeSize;
    Initialize(state, size);
    m_state = &state;
    if (raster.width > 32767 || !Prepare(raster))
        return End::NoMemory;
    m_reader.Begin(state, input);
    const End end = DecodeCodes();
    m_reader.Leave();
    return Finish(end);
}

bool GifLzwDecoder::Prepare(const GifRaster& raster)
{
    m_raster = raster;
    if (raster.width == 0)
        m_raster.sink = nullptr;
    if (!m_tables)
        m_tables.reset(new (std::nothrow) GifLzwTables);
    // A row in part, the earlier string and one more are in the window when it has been made as empty as it gets.
    const std::size_t room = History + std::max(m_raster.window, std::size_t{m_raster.width} + 2 * LongestString);
    if (Stores() && m_windowSize < room + Overrun)
    {
        m_window.reset(new (std::nothrow) std::uint8_t[room + Overrun]);
        m_windowSize = m_window ? room + Overrun : 0;
        for (std::size_t i = 0; m_window && i < History; ++i)
            m_window[i] = static_cast<std::uint8_t>(i);
    }
    if (!m_tables || (Stores() && !m_window))
        return false;
    PlaceRoots();
    m_firstWidth = m_state->codeWidth;
    m_clean = m_tablesReady = false;
    m_old = m_first = 0;
    m_written = FirstFree();
    m_rowsGiven = 0;
    m_limit = raster.width == 0 || raster.rows == GifRaster::unlimited ? GifRaster::unlimited
                                                                       : (raster.rows + 1) * raster.width;
    m_flushAt = room;
    m_at = m_firstRow = Stores() ? History : 0;
    m_origin = 0 - static_cast<std::uint64_t>(m_at);
    SetBound();
    return true;
}

// The strings of the roots stand before all pixels.
void GifLzwDecoder::PlaceRoots()
{
    const auto roots = static_cast<unsigned>(m_state->clearCode);
    if (m_roots == roots)
        return;
    m_roots = roots;
    for (unsigned i = 0; i < roots; ++i)
        m_tables->entries[i] = GifLzwEntry(i, 1, 0);
    m_tables->entries[roots] = m_tables->entries[roots + 1] = GifLzwEntry(0, GifLzwEntry::NoString, 0);
}

void GifLzwDecoder::SetBound()
{
    const std::uint64_t limit = m_limit == GifRaster::unlimited ? m_limit : m_limit - m_origin;
    m_bound = static_cast<std::size_t>(Stores() ? std::min<std::uint64_t>(limit, m_flushAt) : limit);
}

GifLzwDecoder::End GifLzwDecoder::DecodeCodes()
{
    for (;;)
    {
        if (m_clean)
            RunClean();
        if (m_at >= m_bound && !MakeRoom())
            return End::OutOfRows;
        int code = m_reader.Next();
        const bool behindClear = code == m_state->clearCode;
        if (behindClear)
            code = SkipClearCodes();
        if (code == m_state->endCode)
            return End::EndCode;
        if (code < 0)
            return End::OutOfData;
        if (behindClear)
            EnterClean(static_cast<unsigned>(code));
        else if (!Step(static_cast<unsigned>(code)))
            return End::StackFull;
    }
}

// The code behind one clear code or several.
int GifLzwDecoder::SkipClearCodes()
{
    m_state->codeWidth = m_firstWidth;
    m_state->topSlot = static_cast<std::int16_t>(1 << m_firstWidth);
    m_state->nextSlot = m_state->firstFreeCode;
    int code = 0;
    do
        code = m_reader.Next();
    while (code == m_state->clearCode);
    return code;
}

bool GifLzwDecoder::Step(unsigned code)
{
    if (m_clean && code <= NextSlot())
    {
        CleanStep(code);
        return true;
    }
    if (m_clean)
        LeaveClean();
    return PlainStep(code);
}

// Behind a clear code the tables count as empty, so that what comes is sound again. A code that is not there yet is 0.
void GifLzwDecoder::EnterClean(unsigned root)
{
    if (root >= NextSlot())
        root = 0;
    m_clean = true;
    if (Stores())
        m_window[m_at] = static_cast<std::uint8_t>(root);
    m_earlier = Stores() ? m_at : 0;
    m_earlierLength = 1;
    m_earlierCode = root;
    ++m_at;
}

void GifLzwDecoder::LeaveClean()
{
    FillTables();
    m_clean = false;
    m_old = m_earlierCode;
    m_first = Stores() ? m_window[m_earlier] : 0;
}

void GifLzwDecoder::Widen()
{
    if (m_state->nextSlot < m_state->topSlot || m_state->codeWidth >= LzwDecoderState::MaximumCodeWidth)
        return;
    m_state->topSlot = static_cast<std::int16_t>(m_state->topSlot * 2);
    ++m_state->codeWidth;
}

// False when the frame has had more rows than it takes.
bool GifLzwDecoder::MakeRoom()
{
    if (Pixels() >= m_limit)
        return false;
    GiveRows();
    Slide();
    SetBound();
    return true;
}

void GifLzwDecoder::GiveRows()
{
    const std::size_t rows = (m_at - m_firstRow) / m_raster.width;
    const std::uint64_t taken = std::min<std::uint64_t>(rows, m_raster.rows - m_rowsGiven);
    if (taken > 0)
        m_raster.sink->TakeRows(m_window.get() + m_firstRow, static_cast<std::size_t>(taken));
    m_rowsGiven += taken;
    m_firstRow += rows * m_raster.width;
}

// Moves what is still needed in one piece to the front: the row in part, and the earlier string. Strings of entries that
// leave the window are marked; their last pixel is kept.
void GifLzwDecoder::Slide()
{
    std::size_t keep = m_firstRow;
    if (m_clean && NextSlot() < TableSize)
        keep = std::min(keep, m_earlier);
    const std::size_t distance = keep - History;
    if (distance == 0)
        return;
    for (unsigned i = FirstFree(); i < m_written; ++i)
    {
        GifLzwEntry& entry = m_tables->entries[i];
        if (entry.IsMarked())
            continue;
        if (entry.At() >= keep)
        {
            entry.MoveTo(entry.At() - distance);
            continue;
        }
        m_tables->lastPixels[i] = m_window[entry.At() + entry.Length() - 1];
        entry.Mark();
    }
    std::memmove(m_window.get() + History, m_window.get() + keep, m_at - keep);
    m_at -= distance;
    m_firstRow -= distance;
    m_earlier -= distance;
    m_origin += distance;
}

// A row in part goes out at the end code, if there is a row for it.
GifLzwDecoder::End GifLzwDecoder::Finish(End end)
{
    if (end == End::EndCode && m_limit != GifRaster::unlimited && Pixels() > m_limit - m_raster.width)
        end = End::OutOfRows;
    if (Stores())
    {
        GiveRows();
        const std::size_t part = m_at - m_firstRow;
        if (end == End::EndCode && part > 0)
            m_raster.sink->TakePart(m_window.get() + m_firstRow, part);
    }
    KeepPrefixes();
    return end;
}
