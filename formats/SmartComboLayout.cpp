// The smart combo box as numbers: where its children stand, the picker's grid, the frames around the buttons.
#include "SmartComboLayout.h"

namespace
{
constexpr int pickerEdge = 44; ///< left edge of the combo box beside the picker
constexpr int bitmapEdge = 20;
constexpr int bitmapsEdge = 40;

int magnitude(int height)
{
    return height < 0 ? kx::neg(height) : height;
}

CPoint at(int x, int y)
{
    return {x, y};
}
} // namespace

int SmartComboLayout::FieldHeight() const
{
    return kx::add(magnitude(fontHeight), 4);
}

CRect SmartComboLayout::Combo() const
{
    return {0, 0, client.cx, listHeight};
}

CRect SmartComboLayout::AddButton() const
{
    return {kx::sub(client.cx, buttonRoom), 2, kx::sub(client.cx, 2), kx::add(FieldHeight(), 6) / 2};
}

CRect SmartComboLayout::DeleteButton() const
{
    const CRect above = AddButton();
    return {above.left, above.bottom, above.right, kx::add(FieldHeight(), 4)};
}

CRect SmartComboLayout::Picker() const
{
    return {0, 0, pickerWidth, kx::add(FieldHeight(), 6)};
}

CRect SmartComboLayout::LeftBitmap() const
{
    return {0, 0, 21, kx::add(FieldHeight(), 6)};
}

CRect SmartComboLayout::RightBitmap() const
{
    return {21, 0, 41, kx::add(FieldHeight(), 6)};
}

CRect SmartComboLayout::ComboFrom(int left, int width) const
{
    return {left, 0, kx::add(left, width), listHeight};
}

// The room of the picker is not taken off the width: kept on purpose.
CRect SmartComboLayout::ComboBesidePicker() const
{
    return ComboFrom(pickerEdge, showsButtons ? kx::sub(client.cx, buttonRoom) : client.cx);
}

CRect SmartComboLayout::ComboBesideBitmap() const
{
    return ComboFrom(bitmapEdge, showsButtons ? kx::sub(client.cx, bitmapEdge) : client.cx);
}

CRect SmartComboLayout::ComboBesideBitmaps() const
{
    return ComboFrom(bitmapsEdge, showsButtons ? kx::sub(client.cx, bitmapsEdge) : client.cx);
}

CRect SmartComboLayout::ComboAlone() const
{
    return ComboFrom(0, client.cx);
}

std::optional<CRect> SmartComboLayout::ComboWithoutButtons(int bitmapMode) const
{
    switch (bitmapMode)
    {
    case BITMAPMODE_NONE:
        return ComboAlone();
    case BITMAPMODE_PICKER:
        return ComboFrom(pickerEdge, kx::sub(client.cx, pickerEdge));
    case BITMAPMODE_SINGLE:
        return ComboFrom(bitmapEdge, kx::sub(client.cx, bitmapEdge));
    default:
        return std::nullopt;
    }
}

CRect SmartComboLayout::Widened(const CRect& combo, int width)
{
    return {combo.left, combo.top, width, combo.bottom};
}

CSize SmartComboLayout::Grid(int count)
{
    if (count <= 0)
        return {0, 0};
    long long root = 1;
    while ((root + 1) * (root + 1) <= count)
        ++root;
    const int side = static_cast<int>(root);
    if (root * root == count)
        return {side, side};
    return {side + 1, root * (root + 1) < count ? side + 1 : side};
}

std::optional<SmartComboButtonsState> SmartComboButtonsState::Of(bool add, bool remove)
{
    if (!add && !remove)
        return std::nullopt;
    return SmartComboButtonsState{add, remove};
}

std::array<SmartComboLine, 5> SmartComboFrames::AroundButtons(const CRect& control, int bitmapMode, int fontHeight)
{
    const int bottom = kx::add(control.top, kx::add(magnitude(fontHeight), 9));
    const int width = bitmapMode == BITMAPMODE_PICKER ? 14 : bitmapMode == BITMAPMODE_SINGLE ? 20 : 0;
    const int left = kx::sub(control.right, width);
    const int right = control.right;
    const int top = control.top;
    return {{
        {SmartComboLine::presentPen, at(kx::sub(left, 2), kx::add(top, 1)), at(kx::sub(right, 2), kx::add(top, 1))},
        {COLOR_WINDOW, at(left, bottom), at(kx::sub(right, 1), bottom)},
        {COLOR_BTNSHADOW, at(kx::sub(left, 1), top), at(kx::sub(right, 1), top)},
        {COLOR_BTNSHADOW, at(kx::sub(right, 2), top), at(kx::sub(right, 2), bottom)},
        {COLOR_BTNFACE, at(kx::sub(left, 2), kx::sub(bottom, 1)), at(kx::sub(right, 2), kx::sub(bottom, 1))},
    }};
}

std::array<SmartComboLine, 4> SmartComboFrames::AroundPicker(const CRect& control, int fontHeight)
{
    const int bottom = kx::add(control.top, kx::add(magnitude(fontHeight), 9));
    const int left = control.left;
    const int top = control.top;
    const int right = kx::add(left, SmartComboLayout::pickerWidth);
    return {{
        {COLOR_BTNHIGHLIGHT, at(left, bottom), at(right, bottom)},
        {COLOR_BTNSHADOW, at(left, top), at(kx::sub(right, 1), top)},
        {COLOR_BTNSHADOW, at(left, kx::add(top, 1)), at(left, kx::add(bottom, 1))},
        {COLOR_BTNFACE, at(kx::add(left, 1), kx::sub(bottom, 1)), at(right, kx::sub(bottom, 1))},
    }};
}
