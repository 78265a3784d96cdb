// The face of the button combo as numbers: its two parts, what the mouse makes of them, what one paint draws.
#pragma once

#include <afx.h>

#include <array>
#include <optional>
#include <atltypes.h>
#include "oxa/Export.h"

/// A raised or sunken frame; the colours are system colours.
struct ButtonComboFrame
{
    CRect rect;
    int topLeft;
    int bottomRight;
};

/// What one paint of the face draws, in the order of the members, over a rectangle filled with COLOR_BTNFACE.
struct ButtonComboPicture
{
    ButtonComboFrame outer;
    std::optional<ButtonComboFrame> bodyFrame;
    CRect item; ///< where the chosen item goes
    std::optional<ButtonComboFrame> stripFrame;
    std::optional<CRect> arrow; ///< the rectangle around the arrow
    bool disabled;              ///< the whole is turned into the embossed look
};

/// Which part of the face is pressed.
struct OXA_API ButtonComboFace
{
    enum : int
    {
        stripWidth = 15
    };

    bool isStatic = false;
    bool bodyPressed = false;
    bool arrowPressed = false; ///< the palette is open
    bool offBody = false;      ///< the last mouse move was outside MoveTest

    /// The arrow strip, at the left, and the body beside it.
    static CRect Strip(const CRect& client);
    static CRect Body(const CRect& client);
    /// Where a mouse move counts as on the body. The width of the strip is taken off at the right: kept on purpose.
    static CRect MoveTest(const CRect& client);

    void Press(const CRect& client, CPoint point);
    /// Answers whether the face has to be painted anew.
    bool Move(const CRect& client, CPoint point);
    /// An item was chosen.
    void Select();

    ButtonComboPicture Picture(const CRect& client, bool enabled) const;

    /// The corners of the arrow.
    static std::array<CPoint, 3> Arrow(const CRect& rect);

    /// Whether the parent hears of a chosen item.
    static bool Tells(long item, int elementNumber);
};
