// CKxImperialLength: texts of feet and inches.
#pragma once

#include "kitrel/Export.h"

/// Spelling that a text of feet and inches is expected in. It decides what a bare number is: feet for
/// IMPERIAL_LENGTH_DECIMAL_FEET, inches for all others. Every spelling is read under each of them.
enum enumIMPERIAL_LENGTH_TYPE : int
{
    IMPERIAL_LENGTH_DECIMAL_INCHES = 0,
    IMPERIAL_LENGTH_DECIMAL_FEET = 1,
    IMPERIAL_LENGTH_ARCHITECTURAL = 2,
    IMPERIAL_LENGTH_ENGINEERING = 3,
    IMPERIAL_LENGTH_FRACTIONAL = 4,
    IMPERIAL_LENGTH_ANY = 5,
};

class KITREL_API CKxImperialLength
{
public:
    /**
     * Reads one length in feet and inches: `1'-6"`, `6 1/2"`, `3 ft 6 in`, `-2'`, or a bare number. No sums, no other
     * units.
     *
     * @param text the text, ended by NUL; null is an empty text
     * @param inches receives the length in inches; left alone on failure
     * @return whether the whole text was understood; false for an empty one
     */
    static bool ImperialStr2Inches(const wchar_t* text, enumIMPERIAL_LENGTH_TYPE type, double& inches);
};
