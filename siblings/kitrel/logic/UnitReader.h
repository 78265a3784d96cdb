// How a text is read as a value with its unit: numbers, symbols, feet and inches, sums and differences.
#pragma once

#include <string_view>

#include "UnitTables.h"

namespace kitrel
{

/// What a text is read with.
struct ReadingRules
{
    const UnitFamily& family; ///< whose symbols are understood
    unsigned int range = 0;   ///< unit of a bare number
    double ownCoef = 0.0;     ///< factor from SI to that unit, when it is not the table's; else 0
    bool sums = true;         ///< several terms with + and -

    UnitScale scaleOf(unsigned int unit) const noexcept
    {
        if (ownCoef != 0.0 && unit == range)
            return {1.0, ownCoef, 0.0};
        return family.units[unit].scale;
    }
};

struct Reading
{
    double value = 0.0; ///< in the base of the family, within c_largestValue; 0 when not understood
    bool understood = false;
};

/// Reads the whole of `text`. Linear in its length.
Reading readText(std::wstring_view text, const ReadingRules& rules);

} // namespace kitrel
