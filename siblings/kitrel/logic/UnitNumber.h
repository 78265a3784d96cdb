// How a decimal number is read from a text.
#pragma once

#include <string_view>

namespace kitrel
{

constexpr bool isDigit(wchar_t c) noexcept
{
    return c >= L'0' && c <= L'9';
}
constexpr bool isDecimalSign(wchar_t c) noexcept
{
    return c == L'.' || c == L',';
}
constexpr bool isBlank(wchar_t c) noexcept
{
    return c == L' ' || c == L'\t' || c == 0xA0 || c == 0x202F; // the last two do not break a line
}
constexpr bool isMinus(wchar_t c) noexcept
{
    return c == L'-' || c == 0x2212;
}

struct ScannedNumber
{
    double value = 0.0;     ///< finite, at most 1e306
    size_t length = 0;      ///< characters taken; 0: no number here
    bool digitsOnly = true; ///< neither decimal sign nor exponent
};

/// The number without sign at the start of `text`: digits, one decimal sign, an exponent. Linear in its length.
ScannedNumber scanNumber(std::wstring_view text);

} // namespace kitrel
