// What a click on a column's header does to the sort images, and where the parts of a header item are drawn.
#pragma once

#include <afx.h>

#include <optional>

#include "WidthRules.h"

namespace treelist
{

/// The sort images by number.
enum SortImageNumber
{
    noSortImage = -1,
    ascendingImage = 0,
    descendingImage = 1
};

/// Whether a click on a column with that image sorts ascending.
constexpr bool ClickSortsAscending(int image)
{
    return image != ascendingImage;
}

/// The image of the column that was clicked; all others have none then.
constexpr int ImageAfterClick(bool ascending)
{
    return ascending ? ascendingImage : descendingImage;
}

/// Flags of header items and of drawn text, numbered as the platform numbers them.
enum HeaderFormat : unsigned
{
    headerRight = 0x1,
    headerCenter = 0x2
};
enum TextFlag : unsigned
{
    textCenter = 0x1,
    textRight = 0x2,
    textMiddle = 0x4,
    textSingleLine = 0x20,
    textNoClip = 0x100,
    textNoPrefix = 0x800,
    textEndEllipsis = 0x8000
};
constexpr unsigned itemSelected = 0x1; ///< the state of an item that is pressed, and nothing else

struct HeaderItemMeasures
{
    CRect rect;
    unsigned state = 0;
    unsigned format = 0;
    int blankWidth = 0;
    int firstCharacterWidth = 0;
    bool hasImage = false;         ///< there is a list, and the column has an image
    std::optional<int> imageWidth; ///< none where the list does not have that image
};

struct HeaderItemDrawing
{
    unsigned textFlags = 0;
    bool imageFirst = false;   ///< right-aligned: the image stands in front of the text
    std::optional<CRect> text; ///< none where there is no room
    std::optional<CPoint> image;
};

constexpr bool IsCentered(unsigned format)
{
    return (format & headerCenter) != 0;
}

/// Centred wins where both flags are set.
constexpr bool IsRightAligned(unsigned format)
{
    return !IsCentered(format) && (format & headerRight) != 0;
}

constexpr unsigned HeaderTextFlags(unsigned format)
{
    return textEndEllipsis | textNoPrefix | textNoClip | textSingleLine | textMiddle |
           (IsCentered(format)       ? textCenter
            : IsRightAligned(format) ? textRight
                                     : 0U);
}

/// The room for the text inside `rect`: margins at both sides, shifted while the item is pressed.
inline CRect HeaderTextRect(CRect rect, unsigned state, int margin)
{
    if (state == itemSelected)
        rect.SetRect(Sum(rect.left, 1), Sum(rect.top, 2), Sum(rect.right, 1), rect.bottom);
    rect.left = Sum(rect.left, margin);
    rect.right = Difference(rect.right, margin);
    return rect;
}

inline std::optional<CRect> IfRoom(const CRect& rect)
{
    return rect.left < rect.right ? std::optional<CRect>(rect) : std::nullopt;
}

/// Where the text and the image of an item go.
inline HeaderItemDrawing DrawHeaderItem(const HeaderItemMeasures& item)
{
    const int margin = Sum(item.blankWidth, item.blankWidth);
    HeaderItemDrawing drawing;
    drawing.textFlags = HeaderTextFlags(item.format);
    drawing.imageFirst = IsRightAligned(item.format);
    CRect rect = item.rect;
    if (!drawing.imageFirst)
    {
        rect = HeaderTextRect(rect, item.state, margin);
        drawing.text = IfRoom(rect);
    }
    if (item.hasImage)
    {
        const int back = Sum(item.firstCharacterWidth, item.firstCharacterWidth);
        drawing.image = CPoint(drawing.imageFirst ? Sum(rect.left, margin) : Difference(rect.right, back), margin / 3);
        if (item.imageWidth)
            rect.left = Sum(rect.left, Sum(margin / 2, *item.imageWidth));
    }
    if (drawing.imageFirst)
        drawing.text = IfRoom(HeaderTextRect(rect, item.state, margin));
    return drawing;
}

} // namespace treelist
