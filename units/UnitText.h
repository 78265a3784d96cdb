// What the unit controls know of texts: which may be numbers, and how a unit reads and prints them.
#pragma once

#include <afx.h>

#include "kitrel/KxUnit.h"
#include "oxa/Export.h"

struct OXA_API UnitText
{
    /// A cheap test of shape, done before the unit is asked.
    static bool MayBeNumber(const CString& text);

    /// The SI value that the unit gives to the text, whether or not it understands the whole of it.
    static double Read(const CKxUnit& unit, const CString& text);

    /// The text of an SI value, with the unit's precision, separator, symbol and format.
    static CString Canonical(const CKxUnit& unit, double value);
};
