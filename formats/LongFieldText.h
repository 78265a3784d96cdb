// Texts that are too long for an edit field: it shows their beginning, and they count whole.
#pragma once

#include <windows.h>

/// The platform's field may take time that grows with the square of a text (a million digits: an hour), at each change and
/// at each painting. A watched field gets the first characters of a longer text only. Whoever reads it gets the whole one,
/// for as long as what it shows is that beginning; what the user makes of it is a text of its own.
struct LongFieldText
{
    /// Until the field ends. A null handle is passed over.
    static void Watch(HWND field);
};
