// The rows of the colour picker: the colours that it begins with, where a new one goes, what a row draws.
#include "ColorComboItem.h"

namespace
{
constexpr unsigned int selectionChanged = 1; // CBN_SELCHANGE
constexpr unsigned int editChanged = 5;      // CBN_EDITCHANGE
} // namespace

ColorRow ColorComboItem::Of(unsigned int row, int lastIndex, unsigned int state)
{
    if (lastIndex < 0 || row > static_cast<unsigned int>(lastIndex)) // also the row -1 of an empty field
        return ColorRow::Nothing;
    if (row == static_cast<unsigned int>(lastIndex))
        return ColorRow::Other;
    return (state & ODS_SELECTED) != 0 ? ColorRow::FramedColor : ColorRow::Color;
}

bool ColorComboItem::AsksParent(unsigned int notification, int selected, int lastIndex)
{
    return (notification == selectionChanged || notification == editChanged) && selected == lastIndex;
}
