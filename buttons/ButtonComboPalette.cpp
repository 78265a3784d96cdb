// The palette of the button combo as numbers: its size, its cells, which cell is under the mouse, its captions.
#include "oxa/buttons/ButtonComboPalette.h"

#include <algorithm>

namespace
{
constexpr int margin = 2;     ///< around the cells
constexpr int tileMargin = 8; ///< what a tile's cell is wider and higher than the tile
constexpr int paintedGap = 1; ///< between two cells
constexpr int testedGap = 2;  ///< the same for the hit test
constexpr long long noSpan = -1;
constexpr int points = 8; ///< of the caption font
constexpr int pointsPerInch = 72;

long long wide(int value)
{
    return value;
}

/// The first of the spans [k * (size + gap), k * (size + gap) + size) that ends behind the offset; none: all end before.
long long firstSpan(long long offset, long long size, long long spans)
{
    if (spans <= 0)
        return noSpan;
    if (offset < size)
        return 0;
    const long long step = size + testedGap;
    if (step <= 0)
        return noSpan;
    const long long span = (offset - size) / step + 1;
    return span < spans ? span : noSpan;
}

/// How many of the cells begin before the end of the client area.
int visible(int cells, int size, int extent)
{
    const long long step = wide(size) + paintedGap;
    const long long room = wide(extent) - margin;
    if (step <= 0 || room <= 0)
        return 0;
    return static_cast<int>(std::clamp((room + step - 1) / step, 0LL, wide(std::max(cells, 0))));
}
} // namespace

ButtonComboPalette ButtonComboPalette::OfColors(CSize grid, CSize cell, int captionHeight)
{
    return {grid, cell, kx::wrap(wide(grid.cx) * grid.cy), false, captionHeight};
}

std::optional<ButtonComboPalette> ButtonComboPalette::OfTiles(CSize grid, CSize strip, int count, int captionHeight)
{
    if (count < 1)
        return std::nullopt;
    return ButtonComboPalette{grid, CSize(strip.cx / count, strip.cy), count, true, captionHeight};
}

CSize ButtonComboPalette::Framed() const
{
    return hasTiles ? cell + CSize(tileMargin, tileMargin) : cell;
}

CSize ButtonComboPalette::WindowSize() const
{
    const int withoutCaptions = captionHeight < 1 ? 1 : 0;
    const CSize framed = Framed();
    const long long width = wide(grid.cx) * framed.cx + grid.cx + 3;
    const long long height = wide(grid.cy) * framed.cy + grid.cy - withoutCaptions + captionHeight + 4;
    return {kx::wrap(width), kx::wrap(height)};
}

CRect ButtonComboPalette::CellRect(const CRect& client, int column, int row) const
{
    const CSize framed = Framed();
    const CSize offset(kx::wrap(margin + wide(column) * (framed.cx + wide(paintedGap))),
                       kx::wrap(margin + wide(row) * (framed.cy + wide(paintedGap))));
    return {CPoint(client.left, client.top) + offset, framed};
}

CSize ButtonComboPalette::Visible(const CRect& client) const
{
    const CSize framed = Framed();
    return {visible(grid.cx, framed.cx, client.Width()), visible(grid.cy, framed.cy, client.Height())};
}

ButtonComboPalette::Cell ButtonComboPalette::CellAt(const CRect& client, int column, int row, int current) const
{
    const int index = kx::wrap(wide(row) * grid.cx + column);
    return {CellRect(client, column, row), index, index < count, index == current};
}

CRect ButtonComboPalette::CaptionRect(const CRect& client) const
{
    return {kx::add(client.left, margin), CellRect(client, 0, grid.cy).top, kx::sub(client.right, margin),
            kx::sub(client.bottom, margin)};
}

CRect ButtonComboPalette::CurrentFrame(const CRect& cellRect)
{
    CRect frame = cellRect;
    frame.InflateRect(1, 1);
    return frame;
}

CRect ButtonComboPalette::ColorRect(const CRect& cellRect)
{
    CRect fill = cellRect;
    fill.DeflateRect(1, 1);
    return fill;
}

int ButtonComboPalette::HitTest(const CRect& client, CPoint point) const
{
    if (client.PtInRect(point) == FALSE)
        return none;
    const CSize framed = Framed();
    const long long row = firstSpan(wide(point.y) - client.top - margin, framed.cy, grid.cy);
    const long long column = firstSpan(wide(point.x) - client.left - margin, framed.cx, grid.cx);
    if (row == noSpan || column == noSpan)
        return none;
    const long long index = row * grid.cx + column;
    return index < count ? static_cast<int>(index) : none;
}

ButtonComboItem ButtonComboPalette::Item(const CRect& rect, long item) const
{
    ButtonComboItem drawn;
    if (item == none || item > count)
        return drawn;
    if (hasTiles && item < 0)
        return drawn; // such a tile would stand left of the strip
    if (hasTiles)
    {
        drawn.tile = rect.CenterPoint() - CSize(cell.cx / 2, cell.cy / 2);
        drawn.tileX = kx::wrap(wide(static_cast<int>(item)) * cell.cx);
    }
    else
    {
        drawn.fill = rect;
        drawn.fill->DeflateRect(2, 2, 3, 2);
    }
    return drawn;
}

std::vector<CString> ButtonComboPalette::Captions(const CString& text)
{
    std::vector<CString> captions;
    for (int start = 0; start < text.GetLength();)
    {
        const int found = text.Find(L';', start);
        const int end = found < 0 ? text.GetLength() : found;
        captions.push_back(text.Mid(start, end - start));
        start = end + 1;
    }
    return captions;
}

int ButtonComboPalette::FontHeight(int pixelsPerInch)
{
    return kx::neg(kx::mulDiv(points, pixelsPerInch, pointsPerInch));
}
