// The balloon tip as numbers: its body, tail and text room, where the window goes, how its text is set.
#pragma once

#include <afx.h>
#include <atltypes.h>

#include "oxa/Export.h"

/// The shape of a balloon of a given client area. All values are pixels in client coordinates.
struct OXA_API BalloonShape
{
    enum : int
    {
        cornerSize = 10, ///< width and height of the ellipse that rounds the corners of the body
        tailPoints = 3
    };

    CRect text;              ///< the room for the text
    CRect body;              ///< the rounded rectangle
    CPoint tail[tailPoints]; ///< the triangle of the tail; the first point is its tip
    CRect start;             ///< the rectangle that the united region is made with before body and tail replace it

    /// The shape for a client area; the tail's tip is its left bottom corner, or the right bottom one.
    /// Only the tail is mirrored: the body and the text keep their place in both orientations.
    static BalloonShape of(const CRect& client, bool leftOriented);

    /// The left top corner of the window whose tail points at `tip`, on a screen of the given size.
    /// A window pushed away from the right edge or the bottom no longer meets its point.
    static CPoint place(CPoint tip, CSize window, CSize screen, bool leftOriented);

    /// The flags of DrawText for a text that is `textWidth` wide in a room of `roomWidth`:
    /// one line in the middle of the room, or broken into lines from its top when it fills the room.
    static unsigned int textFlags(int textWidth, int roomWidth);
};
