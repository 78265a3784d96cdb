// One-to-one case folding that depends on no locale: ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters.
#pragma once

#include <cstddef>
#include <initializer_list>

namespace kx
{

/// The lower-case form of one character; characters without a one-to-one partner stay.
constexpr wchar_t foldLower(wchar_t ch) noexcept
{
    const auto c = static_cast<unsigned>(ch);
    const auto plus = [c](unsigned step) { return static_cast<wchar_t>(c + step); };
    if (c < 0x80)
    {
        return c >= 'A' && c <= 'Z' ? plus(32) : ch;
    }
    if (c < 0x100)
    {
        return c >= 0xC0 && c <= 0xDE && c != 0xD7 ? plus(32) : ch;
    }
    if (c < 0x180)
    { // Latin Extended-A: neighbours, with the dotted and dotless i, kra, apostrophe-n and long s left out
        const bool evenUpper = (c <= 0x12F) || (c >= 0x132 && c <= 0x137) || (c >= 0x14A && c <= 0x177);
        const bool oddUpper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
        if (c == 0x178)
        {
            return static_cast<wchar_t>(0xFF);
        }
        if ((evenUpper && (c & 1U) == 0) || (oddUpper && (c & 1U) != 0))
        {
            return plus(1);
        }
        return ch;
    }
    if (c >= 0x370 && c < 0x400)
    {
        if (c >= 0x391 && c <= 0x3AB && c != 0x3A2)
        {
            return plus(32);
        }
        switch (c)
        {
        case 0x386:
            return static_cast<wchar_t>(0x3AC);
        case 0x388:
        case 0x389:
        case 0x38A:
            return plus(37);
        case 0x38C:
            return static_cast<wchar_t>(0x3CC);
        case 0x38E:
        case 0x38F:
            return plus(63);
        default:
            return ch;
        }
    }
    if (c >= 0x400 && c < 0x530)
    {
        if (c <= 0x40F)
        {
            return plus(80);
        }
        if (c <= 0x42F)
        {
            return plus(32);
        }
        if (c == 0x4C0)
        {
            return static_cast<wchar_t>(0x4CF);
        }
        const bool evenUpper = (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0);
        const bool oddUpper = c >= 0x4C1 && c <= 0x4CE;
        if ((evenUpper && (c & 1U) == 0) || (oddUpper && (c & 1U) != 0))
        {
            return plus(1);
        }
    }
    return ch;
}

/// The upper-case form of one character: the inverse of foldLower.
constexpr wchar_t foldUpper(wchar_t ch) noexcept
{
    const auto c = static_cast<unsigned>(ch);
    if (c < 0x80)
    {
        return c >= 'a' && c <= 'z' ? static_cast<wchar_t>(c - 32) : ch;
    }
    for (const unsigned step : {32U, 1U, 80U, 37U, 38U, 63U, 64U, 15U})
    {
        if (c > step)
        {
            const auto candidate = static_cast<wchar_t>(c - step);
            if (candidate != ch && foldLower(candidate) == ch)
            {
                return candidate;
            }
        }
    }
    return c == 0xFF ? static_cast<wchar_t>(0x178) : ch;
}

/// Compares two terminated texts letter by letter after foldLower; a null pointer counts as empty.
/// Answers -1, 0 or 1.
constexpr int compareFolded(const wchar_t* a, const wchar_t* b) noexcept
{
    a = a != nullptr ? a : L"";
    b = b != nullptr ? b : L"";
    for (;; ++a, ++b)
    {
        const wchar_t x = foldLower(*a);
        const wchar_t y = foldLower(*b);
        if (x != y)
        {
            return x < y ? -1 : 1;
        }
        if (x == L'\0')
        {
            return 0;
        }
    }
}

/// Compares at most count characters, as compareFolded.
constexpr int compareFolded(const wchar_t* a, const wchar_t* b, std::size_t count) noexcept
{
    a = a != nullptr ? a : L"";
    b = b != nullptr ? b : L"";
    for (; count > 0; ++a, ++b, --count)
    {
        const wchar_t x = foldLower(*a);
        const wchar_t y = foldLower(*b);
        if (x != y)
        {
            return x < y ? -1 : 1;
        }
        if (x == L'\0')
        {
            return 0;
        }
    }
    return 0;
}

} // namespace kx
