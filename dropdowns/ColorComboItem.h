// The rows of the colour picker: the colours that it begins with, where a new one goes, what a row draws.
#pragma once

#include <afx.h>

#include <array>
#include <concepts>
#include "oxa/Export.h"

/// What a row draws.
enum class ColorRow
{
    Nothing,
    Color,       ///< filled with its colour
    FramedColor, ///< the same, with a black frame
    Other        ///< COLOR_WINDOW, with the prompt for another colour in its middle, in COLOR_WINDOWTEXT
};

struct OXA_API ColorComboItem
{
    enum : unsigned int
    {
        otherPrompt = 22023
    };
    /// The colours of a new picker, in order.
    static constexpr std::array<COLORREF, 9> StartColors()
    {
        return {0xFF0000, 0xFF00, 0xFFFF00, 0xFF, 0xFF00FF, 0xFFFF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    }

    /// For a row of the list; `lastIndex` is the row that asks for another colour. `state` holds ODS_ values.
    static ColorRow Of(unsigned int row, int lastIndex, unsigned int state);

    /// Whether a notification (CBN_SELCHANGE or CBN_EDITCHANGE) with that selection asks the parent for a colour.
    static bool AsksParent(unsigned int notification, int selected, int lastIndex);
};

namespace colorrows
{
/// The rows of a combo box that hold colours.
template <typename Rows>
concept ColorRows = requires(Rows& rows, const Rows& reader, int index, COLORREF color)
{
    {
        reader.GetCount()
        } -> std::same_as<int>;
    {
        reader.GetColorRef(index)
        } -> std::same_as<COLORREF>;
    rows.InsertColor(color, index);
};

/// The first row of that colour; a new one before the row that asks for another, which moves down. The asking row has no
/// colour, and so counts as black: on purpose.
template <ColorRows Rows> int GetColorIndex(Rows& rows, COLORREF color, int& lastIndex)
{
    for (int index = 0; index < rows.GetCount(); ++index)
        if (rows.GetColorRef(index) == color)
            return index;
    rows.InsertColor(color, lastIndex);
    return lastIndex++;
}
} // namespace colorrows
