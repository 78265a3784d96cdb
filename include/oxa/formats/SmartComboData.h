// What a smart combo box knows: its formats, the values that it remembers, its switches.
#pragma once

#include <afxcoll.h>
#include "oxa/formats/FormatReadings.h"
#include "oxa/formats/KxFormat.h"

/// The data of one smart combo box, with the values that they have at first.
struct SmartComboData
{
    CKxFormat format;                        ///< the elements that formatText was expanded to
    CString mask;                            ///< the owner's; nothing here reads it
    CString formatText;                      ///< the current format; empty: any text may stand in the field
    CStringList list{10};                    ///< the remembered values, in order
    CStringList formatList{10};              ///< the formats of which a free text may fit any, tried in order
    int uppercase = 1;                       ///< the owner's; nothing here reads it
    int sort = 1;                            ///< non-zero: list and combo box are kept sorted
    int showButtons = 1;                     ///< non-zero: the "+" and "-" buttons show
    int autoAdd = 0;                         ///< non-zero: picking an item adds the text that was typed before
    int selectedFormat = 0;                  ///< index of the format that came with the bitmap picker
    unsigned int currentBitmap = 0xFFFFFFFF; ///< handed to ButtonHasChange; nothing here changes it
    int variant = 0;                         ///< the owner's; nothing here reads it
    int bitmapMode = 0;                      ///< a number of BitmapMode
    int visibility = 0;                      ///< 1 once the user has touched the control, whatever the name says
    CStringList filterList{10};              ///< the texts of SetListFilterString
    FormatReadings readings;                 ///< of formatList
};

/// What shows at the left of the combo box.
enum BitmapMode : int
{
    BITMAPMODE_NONE = 0,   ///< nothing
    BITMAPMODE_PICKER = 1, ///< the bitmap picker, one picture per format
    BITMAPMODE_SINGLE = 2, ///< one bitmap button, or none after SetNoBitmap
    BITMAPMODE_DOUBLE = 3  ///< two bitmap buttons
};
