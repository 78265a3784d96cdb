// The comparison of two cells done step by step on whole texts: slow, and easy to check by eye.
#pragma once
#include <algorithm>
#include <climits>
#include <cmath>
#include <string>
#include <vector>
#include "kitrel/KxImperialLength.h"

namespace plainrows
{
inline std::wstring Folded(std::wstring text)
{
    for (wchar_t& character : text)
        character = character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + 32) : character;
    return text;
}

inline int BlindToCase(const std::wstring& s, const std::wstring& t)
{
    const std::wstring a = Folded(s) + L'\0', b = Folded(t) + L'\0';
    for (std::size_t i = 0;; ++i)
    {
        if (i == s.size() || i == t.size() || a[i] != b[i])
            return static_cast<int>(a[i]) - static_cast<int>(b[i]);
    }
}

inline std::wstring DigitRun(const std::wstring& text)
{
    const std::size_t first = text.find_first_of(L"0123456789");
    if (first == std::wstring::npos)
        return L"";
    const std::size_t behind = text.find_first_not_of(L"0123456789", first);
    return text.substr(first, behind == std::wstring::npos ? behind : behind - first);
}

inline std::wstring Prefix(const std::wstring& text)
{
    return text.substr(0, text.find_first_of(L"0123456789"));
}

inline int Number(const std::wstring& run)
{
    long long number = 0;
    for (const wchar_t digit : run)
        number = std::min<long long>(number * 10 + (digit - L'0'), INT_MAX);
    return static_cast<int>(number);
}

inline int Texts(const std::wstring& s, const std::wstring& t)
{
    if (DigitRun(s).empty() && DigitRun(t).empty())
        return BlindToCase(s, t);
    const int m = Number(DigitRun(s)), n = Number(DigitRun(t));
    if (Prefix(s) != Prefix(t) || m == n)
        return BlindToCase(s, t);
    return m > n ? 1 : -1;
}

inline int Compare(const std::wstring& s, const std::wstring& t, bool ascending)
{
    double x = 0.0, y = 0.0;
    int result = 0;
    if (CKxImperialLength::ImperialStr2Inches(s.c_str(), IMPERIAL_LENGTH_ANY, x) &&
        CKxImperialLength::ImperialStr2Inches(t.c_str(), IMPERIAL_LENGTH_ANY, y))
    {
        const double tolerance = 1e-10 + 1e-10 * std::fabs(y);
        result = x > y + tolerance ? 1 : y - tolerance > x ? -1 : 0;
    }
    else
        result = Texts(s, t);
    if (!ascending && result == 1)
        return -1;
    return !ascending && result == -1 ? 1 : result;
}

/// The order that inserting one text after the other gives.
inline std::vector<std::size_t> Inserted(const std::vector<std::wstring>& texts, bool ascending)
{
    std::vector<std::size_t> order;
    for (std::size_t next = 0; next < texts.size(); ++next)
    {
        std::size_t place = order.size();
        while (place > 0 && Compare(texts[order[place - 1]], texts[next], ascending) > 0)
            --place;
        order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), next);
    }
    return order;
}
} // namespace plainrows
