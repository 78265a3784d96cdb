// What an item of the bitmap combo box draws, and where its bitmap stands.
#pragma once

#include <afx.h>
#include <atltypes.h>
#include "oxa/Export.h"

/// What one item draws, in the order of the members. A focus mark goes around the item's rectangle, and toggles.
struct OXA_API BitmapComboItem
{
    bool focusWithoutItem; ///< the focus mark of an empty field
    bool focusTakenOff;
    bool highlighted; ///< background and brush go to COLOR_HIGHLIGHT; the rectangle is filled in any case
    bool focusPutOn;  ///< after the bitmap, with the old colours

    /// For ODA_ and ODS_ values. The focus state counts only when it is the only one: kept on purpose.
    static BitmapComboItem Of(int id, unsigned int action, unsigned int state);

    /// Where a bitmap goes in its item: in the middle, but reckoned from x 0 and not from the item's left, on purpose.
    static CPoint Place(const CRect& item, CSize bitmap);

    /// The height of an item for bitmaps of the given height.
    static int Height(int bitmapHeight);
};
