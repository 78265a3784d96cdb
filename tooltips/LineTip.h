// The one-line tip as plain values: the two parts of its text, its rectangle, where each part is written.
#pragma once

#include <afx.h>
#include <atltypes.h>

#include "oxa/Export.h"

/// The text of a one-line tip, cut into the part in the normal font and the part in the bold font.
struct OXA_API LineTipText
{
    CString left;  ///< what stands before the first "<"; normal font
    CString right; ///< the rest without any "<" and ">"; bold font

    /// Cuts a text: "Length <1.5 m>" is "Length " and "1.5 m". A text without "<" is all left.
    static LineTipText split(const CString& text);
};

/// Where a one-line tip goes and where its texts are written.
struct OXA_API LineTipLayout
{
    enum : int
    {
        textLeft = 3, ///< x of the left part, pixels in the tip's window
        textTop = 1,  ///< y of both parts
        shift = 1     ///< the window stands this much right of and below `bounds`
    };

    CRect bounds; ///< the tip's rectangle, in client coordinates of its parent
    CSize frame;  ///< the size of `bounds`, which is the frame drawn and the size of the window
    CPoint left;  ///< where the left part is written
    CPoint right; ///< where the right part is written

    /// The sum of the sizes of both texts, in both dimensions.
    static CSize sum(CSize leftSize, CSize rightSize);

    /// The layout for a tip centred on `point`, with the size of the left text and the sum of both sizes.
    static LineTipLayout of(CPoint point, CSize leftSize, CSize total);
};
