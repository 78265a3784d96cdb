// What an item of the bitmap combo box draws, and where its bitmap stands.
#include "BitmapComboItem.h"

BitmapComboItem BitmapComboItem::Of(int id, unsigned int action, unsigned int state)
{
    const bool focusOnly = action == ODA_FOCUS;
    return {id == -1, focusOnly && state != ODS_FOCUS, (state & ODS_SELECTED) != 0, focusOnly && state == ODS_FOCUS};
}

CPoint BitmapComboItem::Place(const CRect& item, CSize bitmap)
{
    return {kx::sub(item.Width(), bitmap.cx) / 2, kx::add(item.top, kx::sub(item.Height(), bitmap.cy) / 2)};
}

int BitmapComboItem::Height(int bitmapHeight)
{
    return kx::add(bitmapHeight, 4);
}
