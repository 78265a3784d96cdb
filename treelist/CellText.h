// How a text is cut to the width of its cell, and with which flags it is drawn.
#pragma once

#include <afx.h>

#include <algorithm>

#include "WidthRules.h"

namespace treelist
{

/// Room at the sides of a text, in pixels.
enum CellMargin : int
{
    cellMargin = 4
};

/// How many characters of `text` are no wider than `limit`, tried from the whole text downwards; none always fit.
/// `measure(text, count)` answers the width of the first characters, which must not get smaller with more of them. The cost
/// does not depend on how much is cut off.
template <typename Measure> int FittingLength(const CString& text, int limit, const Measure& measure)
{
    constexpr int measuredWhole = 256;
    const int length = text.GetLength();
    const auto fitsIn = [&](int count) { return measure(text.GetString(), count) <= limit; };
    if (length <= measuredWhole && (length == 0 || fitsIn(length)))
        return length;
    int fits = 0;
    int tooLong = 1;
    while (tooLong <= length && fitsIn(tooLong))
    {
        fits = tooLong;
        tooLong = tooLong == length ? length + 1 : tooLong > length / 2 ? length : tooLong * 2;
    }
    while (tooLong - fits > 1)
    {
        const int middle = fits + (tooLong - fits) / 2;
        (fitsIn(middle) ? fits : tooLong) = middle;
    }
    return fits;
}

/// The text that is shown in a cell with that room: the text itself, or its beginning and "...".
template <typename Measure> CString CutText(const CString& text, int room, const Measure& measure)
{
    const int fits = FittingLength(text, Difference(room, cellMargin), measure);
    if (fits == text.GetLength())
        return text;
    return text.Left(std::max(fits - 1, 0)) + L"...";
}

/// What is drawn for one cell. An empty text draws nothing.
struct CellDrawing
{
    CString text;
    CRect rect;
    UINT format = DT_SINGLELINE | DT_VCENTER;
};

/// `width`: of the column; `align`: 0 left, 2 centred, any other right.
template <typename Measure>
CellDrawing DrawCell(const CString& text, const CRect& rect, int width, int align, const Measure& measure)
{
    const int room = Difference(width, cellMargin);
    CellDrawing drawing;
    drawing.rect = rect;
    drawing.rect.right = Sum(static_cast<int>(rect.left), room);
    if (align != 0)
        drawing.format |= align == 2 ? DT_CENTER : DT_RIGHT;
    if (drawing.rect.right > drawing.rect.left)
        drawing.text = CutText(text, room, measure);
    return drawing;
}

} // namespace treelist
