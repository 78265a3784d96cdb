// The order that a sort of rows is measured against.
#pragma once

#include <cstdint>
#include <cwctype>
#include <string_view>

inline bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

/// Runs of digits as numbers, all else as characters blind to case.
inline bool naturallyLess(std::wstring_view a, std::wstring_view b)
{
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size())
    {
        if (!isDigit(a[i]) || !isDigit(b[j]))
        {
            const auto left = std::towlower(static_cast<std::wint_t>(a[i++]));
            const auto right = std::towlower(static_cast<std::wint_t>(b[j++]));
            if (left != right)
                return left < right;
            continue;
        }
        std::uint64_t left = 0, right = 0;
        for (; i < a.size() && isDigit(a[i]); ++i)
            left = left * 10 + static_cast<std::uint64_t>(a[i] - L'0');
        for (; j < b.size() && isDigit(b[j]); ++j)
            right = right * 10 + static_cast<std::uint64_t>(b[j] - L'0');
        if (left != right)
            return left < right;
    }
    return i == a.size() && j < b.size();
}
