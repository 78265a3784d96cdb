// Where a unit's symbol or a tolerance stands in a text.
#pragma once

#include <string_view>

namespace kitrel
{

/// Length of `text` without a closing symbol of the family and the blanks before it; its whole length when it has none.
size_t lengthWithoutSymbol(unsigned int idUnit, std::wstring_view text) noexcept;

struct KeptPart
{
    size_t begin = 0;
    size_t end = 0;
};

/// The part of `text` between a leading "≈" and a closing "±number".
KeptPart partWithoutPrecision(std::wstring_view text) noexcept;

} // namespace kitrel
