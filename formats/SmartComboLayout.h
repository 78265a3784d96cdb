// The smart combo box as numbers: where its children stand, the picker's grid, the frames around the buttons.
#pragma once

#include <afx.h>

#include <array>
#include <optional>
#include <atltypes.h>
#include "oxa/Export.h"
#include "oxa/formats/SmartComboData.h"

/// Where the children of a control stand. All values are pixels in its client coordinates.
struct OXA_API SmartComboLayout
{
    enum : int
    {
        listHeight = 200, ///< height of the combo box with its list
        buttonRoom = 14,  ///< what "+" and "-" take at the right
        pickerWidth = 45,
        bitmapSize = 16 ///< width and height of the picture on a bitmap button
    };

    CSize client;
    int fontHeight; ///< lfHeight of the control's font, of either sign
    bool showsButtons;

    /// The height of a field: that of the font, and 4.
    int FieldHeight() const;

    CRect Combo() const; ///< at creation, under the buttons
    CRect AddButton() const;
    CRect DeleteButton() const;
    CRect Picker() const;
    CRect LeftBitmap() const;
    CRect RightBitmap() const;

    /// Where the combo box moves when its pictures come; its right end may lie behind the edge of the control.
    CRect ComboBesidePicker() const;
    CRect ComboBesideBitmap() const;
    CRect ComboBesideBitmaps() const;
    CRect ComboAlone() const; ///< without any picture

    /// Where the combo box moves when "+" and "-" go; none: it stays.
    std::optional<CRect> ComboWithoutButtons(int bitmapMode) const;

    /// The combo box's rectangle when the control becomes `width` wide.
    static CRect Widened(const CRect& combo, int width);

    /// Columns and rows of the picker for a count of pictures; as near to a square as it goes.
    static CSize Grid(int count);

private:
    CRect ComboFrom(int left, int width) const;
};

/// Whether "+" and "-" become enabled; none: they stay as they are.
struct OXA_API SmartComboButtonsState
{
    bool add;
    bool remove;

    static std::optional<SmartComboButtonsState> Of(bool add, bool remove);
};

/// A line of a frame, from its first point up to, and without, its last.
struct SmartComboLine
{
    enum : int
    {
        presentPen = -1
    };

    int pen; ///< a system colour for a pen of width 1, or presentPen: the one that the context has
    CPoint from;
    CPoint to;
};

/// The frames, drawn on the window that owns the control's parent; `control` is the control's rectangle there.
struct OXA_API SmartComboFrames
{
    /// Around "+" and "-".
    static std::array<SmartComboLine, 5> AroundButtons(const CRect& control, int bitmapMode, int fontHeight);
    /// Around the picker.
    static std::array<SmartComboLine, 4> AroundPicker(const CRect& control, int fontHeight);
};
