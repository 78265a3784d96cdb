// The painted dialog bar as numbers: which colours and brush a control on it takes, what is painted where, what is disabled.
#pragma once

#include <afx.h>
#include <atltypes.h>
#include "oxa/Export.h"

enum class BarBrush
{
    Default,  ///< whatever the base class answers, with its colours
    Pale,     ///< the pale blue of edits and lists
    Disabled, ///< the face colour
    Pattern   ///< the piece of the bar's picture behind the control
};

/// What a control on a dialog bar is painted with.
struct OXA_API BarColors
{
    enum : COLORREF
    {
        paleBlue = 0x00F6DBC9
    };
    /// The values of CTLCOLOR_MSGBOX to CTLCOLOR_STATIC.
    enum Kind : unsigned int
    {
        OfMessageBox = 0,
        OfEdit = 1,
        OfListBox = 2,
        OfStatic = 6
    };

    BarBrush brush = BarBrush::Default;
    int textColor = COLOR_WINDOWTEXT; ///< a system colour; not for BarBrush::Default
    /// What the text stands on: a pale blue, a system colour, or nothing.
    enum class Ground
    {
        None,
        PaleBlue,
        Highlight, ///< COLOR_HIGHLIGHT
        Transparent
    } ground = Ground::None;

    /// For a control that asks with the given CTLCOLOR number. `isButton`: its object is a CButton, whatever its class name.
    static BarColors Of(unsigned int kind, bool enabled, bool painted, bool isButton, const wchar_t* className);

    friend bool operator==(const BarColors&, const BarColors&) = default;
};

struct OXA_API BarRules
{
    /// Where the background is stretched to: the right and bottom of the client rectangle serve as width and height.
    static CRect Background(const CRect& client);

    /// Whether a child of a disabled bar stays as it is, with all its children.
    static bool IsSpared(unsigned int id, unsigned int propertyId, unsigned int helpId);
};

/// What a property sheet that is shown for reading only takes away.
struct OXA_API SheetRules
{
    static bool DisablesOk(bool protectionDisabled, bool disabled, bool sheetDisabled);

    /// The key that a pressed key counts as: Enter would press the default button. Looks at `sheetDisabled` alone.
    static unsigned int Key(unsigned int key, bool sheetDisabled);
};
