// The plain text-to-integer conversion: blanks, one sign, digits; what follows is ignored.
#pragma once

#include <algorithm>
#include <limits>
#include <string_view>

/// The number at the head of text, 0 if there is none, held at the limits of int.
inline int textToInteger(std::wstring_view text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == L' ' || (text[i] >= L'\t' && text[i] <= L'\r')))
        ++i;
    const bool negative = i < text.size() && text[i] == L'-';
    if (i < text.size() && (text[i] == L'-' || text[i] == L'+'))
        ++i;
    const long long most =
        negative ? -static_cast<long long>(std::numeric_limits<int>::min()) : std::numeric_limits<int>::max();
    long long value = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i)
        value = std::min(value * 10 + (text[i] - L'0'), most);
    return static_cast<int>(negative ? -value : value);
}
