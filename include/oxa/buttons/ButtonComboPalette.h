// The palette of the button combo as numbers: its size, its cells, which cell is under the mouse, its captions.
#pragma once

#include <afx.h>

#include <optional>
#include <vector>
#include <atltypes.h>
#include "oxa/Export.h"

/// How an item, a tile or a colour, is drawn into a rectangle.
struct ButtonComboItem
{
    std::optional<CPoint> tile; ///< where the tile goes
    int tileX = 0;              ///< where it begins in the strip of tiles
    std::optional<CRect> fill;  ///< the rectangle that a colour fills
};

/// A palette of colours, or of tiles that stand side by side in one bitmap.
struct OXA_API ButtonComboPalette
{
    /// A cell as it is painted.
    struct Cell
    {
        CRect rect;
        int index;
        bool shown;   ///< it has a tile or a colour, and a frame
        bool current; ///< a black frame goes around it
    };
    enum : int
    {
        none = -1
    };

    CSize grid;            ///< columns and rows
    CSize cell;            ///< without the frame
    int count = none;      ///< cells in use
    bool hasTiles = false; ///< the bitmap form
    int captionHeight = 0; ///< 0 without captions

    /// The colour form; every cell is in use.
    static ButtonComboPalette OfColors(CSize grid, CSize cell, int captionHeight);
    /// The bitmap form for a strip of the given size; none for a count below 1.
    static std::optional<ButtonComboPalette> OfTiles(CSize grid, CSize strip, int count, int captionHeight);

    CSize WindowSize() const;
    /// Columns and rows of the cells that begin within the client area.
    CSize Visible(const CRect& client) const;
    Cell CellAt(const CRect& client, int column, int row, int current) const;
    /// The room of the captions, below the cells.
    CRect CaptionRect(const CRect& client) const;
    /// The black frame around the current cell, and the rectangle in a cell that its colour fills.
    static CRect CurrentFrame(const CRect& cellRect);
    static CRect ColorRect(const CRect& cellRect);

    /// The index of the cell at a point, or none. The cells of the test stand one pixel further apart, each, than those
    /// of the picture, and a gap counts as part of the cell behind it: kept on purpose.
    int HitTest(const CRect& client, CPoint point) const;

    /// How an item is drawn into a rectangle, on the face or in a cell. In the colour form the item is the colour, and only
    /// those of a value up to the count are shown: kept on purpose.
    ButtonComboItem Item(const CRect& rect, long item) const;

    /// The captions of the cells, divided by ";". One at the end makes no caption.
    static std::vector<CString> Captions(const CString& text);
    /// The height of the caption font for a screen of so many pixels per inch.
    static int FontHeight(int pixelsPerInch);

private:
    CSize Framed() const;
    CRect CellRect(const CRect& client, int column, int row) const;
};
