// Which cell is edited, where its editor opens, and which keys open it.
#pragma once

#include <afx.h>

#include <string_view>
#include <vector>

#include "WidthRules.h"

namespace treelist
{

/// How a cell is looked for: by the mouse, or while a key opens the editor by the column that was edited last.
struct CellSearch
{
    int mouseX = 0;
    bool byKey = false;
    int editColumn = -1;
    int offset = 0;      ///< x origin of the drawing
    int barPosition = 0; ///< of the horizontal bar, 0 when it is not visible
};

struct FoundCell
{
    int column = 0;
    CRect rect;
};

/// `text`: the text rectangle of the node; `widths`: of all columns.
/// Kept on purpose: from column 1 on the left edge is the width of the one column before, not the sum of all.
inline FoundCell FindCell(const CellSearch& search, const CRect& text, const std::vector<int>& widths)
{
    FoundCell found;
    found.rect = text;
    int left = Sum(text.left, search.offset);
    int right = Sum(widths.empty() ? 0 : widths.front(), search.offset);
    for (int column = 1; column < static_cast<int>(widths.size()); ++column)
    {
        const bool taken = search.byKey ? column <= search.editColumn : search.mouseX > right;
        if (!taken)
            continue;
        found.column = column;
        left = widths[static_cast<std::size_t>(column) - 1];
        right = Sum(right, widths[static_cast<std::size_t>(column)]);
    }
    found.rect.left = Difference(left, search.barPosition);
    found.rect.right = right;
    found.rect.bottom = Sum(text.bottom, 1);
    return found;
}

/// Whether a key opens the editor, compared as a number with the characters "Ee0123456789+-.," and with the keys 0 to 8 and
/// the separator of the numeric pad.
/// Kept on purpose: 9 and the decimal key of the pad do not, and '+', ',', '-', '.' are the numbers of other keys.
constexpr bool KeyOpensEditor(unsigned key)
{
    constexpr std::wstring_view characters = L"Ee0123456789+-.,";
    constexpr unsigned firstPadKey = 96;
    constexpr unsigned lastPadKey = 104;
    constexpr unsigned padSeparator = 108;
    for (const wchar_t character : characters)
    {
        if (static_cast<unsigned>(character) == key)
            return true;
    }
    return (key >= firstPadKey && key <= lastPadKey) || key == padSeparator;
}

/// The key's bits of a WM_KEYDOWN: the repeat count below, the flags above.
constexpr LPARAM KeyBits(unsigned repeat, unsigned flags)
{
    constexpr unsigned flagShift = 16;
    return static_cast<LPARAM>((repeat & 0xFFFFU) | (flags << flagShift));
}

} // namespace treelist
