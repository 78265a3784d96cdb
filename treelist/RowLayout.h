// Where a row of the tree list and its cells are painted. All x count from the first column's left edge.
#pragma once

#include <afx.h>

#include <algorithm>
#include <vector>

#include "WidthRules.h"

namespace treelist
{

struct ColumnLook
{
    int width = 0;
    int align = 0; ///< 0 left, 1 right, 2 centred
};

/// The columns as they are painted, with the sum of their widths as it was last recalculated.
struct Columns
{
    std::vector<ColumnLook> looks;
    int total = 0;

    int FirstWidth() const { return looks.empty() ? 0 : looks.front().width; }
};

/// What is filled behind a row. `text`, `full`: the rectangles that the platform's tree gives for the node.
inline CRect RowArea(const CRect& text, const CRect& full, const Columns& columns)
{
    const int left =
        columns.looks.size() > 1 ? std::min<int>(text.left, columns.FirstWidth()) : static_cast<int>(text.left);
    return {left, static_cast<int>(full.top), columns.total, static_cast<int>(full.bottom)};
}

/// The strip to the right of column 0, over the client area.
inline CRect StripBehindFirst(const CRect& client, const Columns& columns)
{
    const int left = columns.FirstWidth();
    return {left, 1, Sum(left, client.Width()), Sum(1, client.Height())};
}

struct CellPlace
{
    int column = 0;
    CRect rect;
    int width = 0;
    int align = 0;
};

/// The cells of a row that has that area. Cell 0 is there even without columns. Cells that have nothing between `from` and
/// `to` are left out.
inline std::vector<CellPlace> CellPlaces(const CRect& row, const Columns& columns, int from, int to)
{
    constexpr int indent = 2;
    std::vector<CellPlace> places;
    const auto add = [&](int column, int left, int right, int width, int align)
    {
        if (right > from && left < to)
            places.push_back({column, CRect(left, row.top, right, row.bottom), width, align});
    };
    const int first = columns.FirstWidth();
    const int textLeft = Sum(row.left, indent);
    add(0, textLeft, first, Difference(first, textLeft), columns.looks.empty() ? 0 : columns.looks.front().align);
    int left = first;
    for (int column = 1; column < static_cast<int>(columns.looks.size()); ++column)
    {
        const ColumnLook& look = columns.looks[static_cast<std::size_t>(column)];
        const int right = Sum(left, look.width);
        add(column, left, right, look.width, look.align);
        left = right;
    }
    return places;
}

} // namespace treelist
