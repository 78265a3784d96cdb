// Drawing on packed rows, with fills that wait.
#include "GifCanvas.h"

#include <algorithm>
#include <cstring>
#include "GifRowPacking.h"

void GifCanvas::Begin(std::uint8_t* bits, std::size_t width, std::size_t height, std::size_t stride, int depth)
{
    m_bits = bits;
    m_width = width;
    m_height = height;
    m_stride = stride;
    m_depth = depth;
    m_perRow = (width + Piece - 1) / Piece;
    m_pieces.assign(m_perRow * height, Drawn);
    m_fills.clear();
}

// The byte that is full of an index.
std::uint8_t GifCanvas::FillOf(int index) const
{
    if (m_depth == 1)
        return (index & 1) != 0 ? 255 : 0;
    return static_cast<std::uint8_t>(m_depth == 4 ? (index & 15) * 17 : index);
}

void GifCanvas::Clear(std::uint8_t index)
{
    m_padding = m_depth == 24 ? 0 : FillOf(m_depth == 1 && index != 0 ? 1 : index);
    m_fills.assign(1, m_padding);
    std::fill(m_pieces.begin(), m_pieces.end(), std::uint8_t{1});
    m_untouched = true;
}

// There are few fills at a time; should they run out, those that wait are carried out.
std::uint8_t GifCanvas::NumberOfFill(std::uint32_t fill)
{
    auto found = std::find(m_fills.begin(), m_fills.end(), fill);
    if (found == m_fills.end())
    {
        if (m_fills.size() == MostFills)
        {
            for (std::size_t y = 0; y < m_height; ++y)
                CarryOut(y, 0, m_width);
            m_fills.clear();
        }
        m_fills.push_back(fill);
        found = m_fills.end() - 1;
    }
    return static_cast<std::uint8_t>(found - m_fills.begin() + 1);
}

void GifCanvas::CarryOut(std::size_t y, std::size_t piece)
{
    std::uint8_t& number = Pieces(y)[piece];
    if (number == Drawn)
        return;
    FillPixels(Row(y), piece * Piece, std::min(piece * Piece + Piece, m_width), m_fills[number - 1U]);
    number = Drawn;
}

void GifCanvas::CarryOut(std::size_t y, std::size_t left, std::size_t right)
{
    for (std::size_t piece = left / Piece; piece * Piece < right; ++piece)
        CarryOut(y, piece);
}

// At less than 8 bits the ends are whole bytes, or that of the row.
void GifCanvas::FillPixels(std::uint8_t* row, std::size_t left, std::size_t right, std::uint32_t fill)
{
    const auto bits = static_cast<std::size_t>(m_depth);
    if (m_depth <= 8)
    {
        std::memset(row + left * bits / 8, static_cast<int>(fill), (right * bits + 7) / 8 - left * bits / 8);
        return;
    }
    for (std::size_t x = left; x < right; ++x)
        std::memcpy(row + x * 3, &fill, 3);
}

// Of pieces that are covered whole, only `number` remains; the others, at the ends, are made ready to be drawn on.
void GifCanvas::Cover(std::size_t y, std::size_t left, std::size_t right, std::uint8_t number)
{
    std::size_t first = left / Piece;
    std::size_t end = (right + Piece - 1) / Piece;
    if (left % Piece != 0)
        CarryOut(y, first++);
    if (right % Piece != 0 && right != m_width && end > first)
        CarryOut(y, --end);
    if (end > first)
        std::memset(Pieces(y) + first, number, end - first);
}

void GifCanvas::PutRow(std::size_t y, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                       const GifFrameColors& colors)
{
    m_untouched = false;
    if (colors.transparent < 0)
        Cover(y, left, left + count, Drawn);
    else
        CarryOut(y, left, left + count);
    std::uint8_t* const row = Row(y);
    if (m_depth == 24)
        DrawColors(row, left, pixels, count, colors);
    else if (m_depth < 8)
        DrawPacked(row, left, pixels, count, colors);
    else if (colors.transparent < 0 && colors.mask == 255)
        std::memcpy(row + left, pixels, count);
    else
    {
        std::uint8_t* const to = row + left;
        const int transparent = colors.transparent;
        const std::uint8_t mask = colors.mask;
        for (std::size_t i = 0; i < count; ++i)
        {
            const auto index = static_cast<std::uint8_t>(pixels[i] & mask);
            to[i] = index == transparent ? to[i] : index;
        }
    }
}

void GifCanvas::DrawColors(std::uint8_t* row, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                           const GifFrameColors& colors) const
{
    std::uint8_t* to = row + left * 3;
    for (std::size_t i = 0; i < count; ++i, to += 3)
        std::memcpy(to, colors.palette + std::size_t{4} * (pixels[i] & colors.mask), 3);
}

namespace
{
// Lays packed pixels over those that are there, except where `keep` is set.
template <class Word> void layOver(std::uint8_t* to, Word pixels, Word keep)
{
    Word there;
    std::memcpy(&there, to, sizeof there);
    there = static_cast<Word>((there & keep) | (pixels & ~keep));
    std::memcpy(to, &there, sizeof there);
}
} // namespace

// Pixel by pixel up to a whole byte, then sixteen at a time.
void GifCanvas::DrawPacked(std::uint8_t* row, std::size_t left, const std::uint8_t* pixels, std::size_t count,
                           const GifFrameColors& colors) const
{
    const int toBytes = pixelsToBytes(m_depth);
    const std::size_t inByte = (std::size_t{1} << toBytes) - 1;
    const auto drawOne = [&]
    {
        const auto index = static_cast<std::uint8_t>(*pixels++ & colors.mask);
        if (index != colors.transparent)
            putPackedPixel(row, left, index, m_depth);
        ++left;
        --count;
    };
    while (count > 0 && (left & inByte) != 0)
        drawOne();
    const bool opaque = colors.transparent < 0;
    if (opaque && colors.mask >= (1U << m_depth) - 1U)
    {
        packRow(row + (left >> toBytes), pixels, count, m_depth);
        return;
    }
    const __m128i mask = _mm_set1_epi8(static_cast<char>(colors.mask));
    const __m128i transparent = _mm_set1_epi8(static_cast<char>(colors.transparent));
    for (; count >= 16; count -= 16, pixels += 16, left += 16)
    {
        const SixteenPixels indexes = _mm_and_si128(loadPixels(pixels), mask);
        const __m128i keep = opaque ? _mm_setzero_si128() : _mm_cmpeq_epi8(indexes, transparent);
        if (m_depth == 4)
            layOver(row + left / 2, packTo4(indexes), packTo4(keep));
        else
            layOver(row + left / 8, packTo1(indexes), packTo1(keep));
    }
    while (count > 0)
        drawOne();
}

void GifCanvas::PutZeros(std::size_t y, std::size_t left, std::size_t count, const GifFrameColors& colors)
{
    if (colors.transparent == 0 || count == 0)
        return;
    m_untouched = false;
    std::uint32_t fill = 0;
    if (m_depth == 24)
        std::memcpy(&fill, colors.palette, 3);
    const std::size_t right = left + count;
    Cover(y, left, right, NumberOfFill(fill));
    static constexpr std::uint8_t zeros[Piece] = {};
    const GifFrameColors opaque{colors.mask, -1, colors.palette};
    const std::size_t firstWhole = std::min((left + Piece - 1) / Piece * Piece, right);
    const std::size_t endWhole = right == m_width ? right : std::max(right / Piece * Piece, firstWhole);
    const auto draw = [&](std::size_t from, std::size_t to)
    {
        if (from >= to)
            return;
        if (m_depth == 24)
            FillPixels(Row(y), from, to, fill);
        else if (m_depth == 8)
            std::memset(Row(y) + from, 0, to - from);
        else
            DrawPacked(Row(y), from, zeros, to - from, opaque);
    };
    draw(left, firstWhole);
    draw(endWhole, right);
}

void GifCanvas::Finish()
{
    const auto isWaiting = [](std::uint8_t piece) { return piece != Drawn; };
    for (std::size_t y = 0; y < m_height; ++y)
        if (std::any_of(Pieces(y), Pieces(y) + m_perRow, isWaiting))
            CarryOut(y, 0, m_width);
    if (m_depth < 24)
        FinishPadding();
}

// What is behind the last pixel of a row is as the last `Clear` left it.
void GifCanvas::FinishPadding()
{
    const std::size_t bits = m_width * static_cast<std::size_t>(m_depth);
    const std::size_t whole = bits / 8;
    if (whole == m_stride)
        return;
    const auto pixels = static_cast<std::uint8_t>(~(0xFF >> bits % 8));
    for (std::size_t y = 0; y < m_height; ++y)
    {
        std::uint8_t* const row = Row(y);
        row[whole] = static_cast<std::uint8_t>((row[whole] & pixels) | (m_padding & ~pixels));
        std::memset(row + whole + 1, m_padding, m_stride - whole - 1);
    }
}
