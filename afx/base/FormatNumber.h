// Numbers as text for CString::Format: integers in any base, and floating point as the usual Windows formatting has it.
#pragma once

#include <cstdint>
#include <string>

namespace kx
{

/// How one conversion of a format string is to be made.
struct FormatSpec
{
    bool left = false;      ///< '-'
    bool plus = false;      ///< '+'
    bool blank = false;     ///< ' '
    bool alternate = false; ///< '#'
    bool zero = false;      ///< '0'
    int width = 0;
    int precision = -1; ///< -1: not given
    char conversion = 0;
};

/// What stands before the padding zeros (sign, 0x) and behind them. Plain ASCII.
struct NumberText
{
    std::string prefix;
    std::string body;
    bool zerosAllowed = true; ///< whether the flag '0' fills between prefix and body
};

/// d, i, u, o, x, X. negative: the value is minus magnitude.
NumberText integerText(std::uint64_t magnitude, bool negative, const FormatSpec& spec);

/// e, E, f, F, g, G: exact digits, halves away from zero, exponents of at least three digits, 1.#INF and 1.#QNAN.
NumberText floatText(double value, const FormatSpec& spec);

} // namespace kx
