// How a value is written as a text: decimal numbers, feet and inches.
#include "UnitPrinter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace kitrel
{
namespace
{

constexpr int c_significant = 14;
constexpr double c_beyondSignificant = 1e14;
constexpr std::uint64_t c_inchesPerFoot = 12;

constexpr double c_powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12};

// A conversion leaves a few units in the last place: what lies that near below a half is a half.
std::uint64_t roundedHalfUp(double scaled)
{
    constexpr double nearly = 1.0 + 1e-15;
    return static_cast<std::uint64_t>(std::llround(scaled * nearly));
}

// A magnitude as digits * 10^-scale.
struct Decimal
{
    std::uint64_t digits = 0;
    int scale = 0;
};

Decimal significantDigits(double magnitude)
{
    char text[32];
    const auto end =
        std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific, c_significant - 1).ptr;
    Decimal decimal;
    const char* at = text;
    for (; at != end && *at != 'e'; ++at)
    {
        if (*at != '.')
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    at += at != end && at + 1 != end && at[1] == '+' ? 2 : 1;
    int exponent = 0;
    std::from_chars(at, end, exponent);
    decimal.scale = c_significant - 1 - exponent;
    return decimal;
}

Decimal roundedDecimal(double magnitude, unsigned int decimals)
{
    const double scaled = magnitude * c_powers[decimals];
    if (scaled < c_beyondSignificant)
        return {roundedHalfUp(scaled), static_cast<int>(decimals)};
    return significantDigits(magnitude);
}

struct DigitText
{
    explicit DigitText(std::uint64_t number)
    {
        length = static_cast<size_t>(std::to_chars(text, text + sizeof text, number).ptr - text);
    }
    void addTo(TextWriter& out, size_t from, size_t to) const
    {
        for (size_t i = from; i < to; ++i)
            out.add(static_cast<wchar_t>(text[i]));
    }
    size_t withoutClosingZeros() const
    {
        size_t end = length;
        while (end > 1 && text[end - 1] == '0')
            --end;
        return end;
    }
    char text[24] = {};
    size_t length = 0;
};

void printInteger(TextWriter& out, std::uint64_t number)
{
    const DigitText digits(number);
    digits.addTo(out, 0, digits.length);
}

// Digits behind the decimal sign, and the sign, where there are any.
void printFraction(TextWriter& out, std::uint64_t fraction, size_t width, size_t decimals, const PrintingRules& rules)
{
    const DigitText digits(fraction);
    const size_t end = rules.fillZeros ? digits.length : digits.withoutClosingZeros();
    if (decimals == 0 || (!rules.fillZeros && fraction == 0))
        return;
    out.add(rules.separator);
    if (fraction == 0)
    {
        out.addZeros(decimals);
        return;
    }
    out.addZeros(width - digits.length);
    digits.addTo(out, 0, end);
    if (rules.fillZeros)
        out.addZeros(decimals - width);
}

void printFixed(TextWriter& out, const Decimal& decimal, unsigned int decimals, const PrintingRules& rules)
{
    if (decimal.scale <= 0)
    {
        printInteger(out, decimal.digits);
        out.addZeros(static_cast<size_t>(-decimal.scale));
        printFraction(out, 0, 0, decimals, rules);
        return;
    }
    const auto divisor = static_cast<std::uint64_t>(c_powers[decimal.scale]);
    printInteger(out, decimal.digits / divisor);
    printFraction(out, decimal.digits % divisor, static_cast<size_t>(decimal.scale), decimals, rules);
}

void printExponent(TextWriter& out, const Decimal& decimal, const PrintingRules& rules)
{
    const DigitText digits(decimal.digits);
    const size_t end = digits.withoutClosingZeros();
    digits.addTo(out, 0, 1);
    if (end > 1)
        out.add(rules.separator);
    digits.addTo(out, 1, end);
    const int exponent = static_cast<int>(digits.length) - 1 - decimal.scale;
    out.add(L'e');
    out.add(exponent < 0 ? L'-' : L'+');
    if (std::abs(exponent) < 10)
        out.add(L'0');
    printInteger(out, static_cast<std::uint64_t>(std::abs(exponent)));
}

size_t fixedLength(const Decimal& decimal, unsigned int decimals, bool negative)
{
    size_t whole = 1;
    if (decimal.scale < c_significant)
    {
        const int count = static_cast<int>(DigitText(decimal.digits).length) - decimal.scale;
        whole = static_cast<size_t>(std::max(count, 1));
    }
    return (negative ? 1U : 0U) + whole + (decimals == 0 ? 0U : 1U + decimals);
}

// Inches with an exponent, for lengths beyond all feet.
void printFarInches(TextWriter& out, double magnitude, const PrintingRules& rules)
{
    printExponent(out, significantDigits(std::max(magnitude, c_longestFeetAndInches)), rules);
    out.add(L'"');
}

void printFeet(TextWriter& out, bool negative, std::uint64_t feet)
{
    if (negative)
        out.add(L'-');
    printInteger(out, feet);
    out.add(L"'-");
}

} // namespace

void printDecimal(TextWriter& out, double value, const PrintingRules& rules)
{
    const unsigned int decimals = std::min(rules.precision, c_mostDecimals);
    const Decimal decimal = roundedDecimal(std::fabs(value), decimals);
    const bool negative = value < 0.0 && decimal.digits != 0;
    if (negative)
        out.add(L'-');
    const unsigned int longest = std::clamp(rules.longestFixed, 24U, 200U);
    // Only a number beyond all significant digits can be that long.
    if (decimal.digits >= 10'000'000'000U && fixedLength(decimal, decimals, negative) > longest)
    {
        printExponent(out, decimal, rules);
    }
    else
    {
        printFixed(out, decimal, decimals, rules);
    }
}

void printArchitectural(TextWriter& out, double inches, const PrintingRules& rules)
{
    const unsigned int power = std::min(rules.precision, c_finestFraction);
    const std::uint64_t parts = std::uint64_t{1} << power;
    const double magnitude = std::fabs(inches);
    const double scaled = magnitude * static_cast<double>(parts);
    const bool near = magnitude < c_longestFeetAndInches;
    const std::uint64_t count = near ? roundedHalfUp(scaled) : 0;
    if (!near || count >= static_cast<std::uint64_t>(c_longestFeetAndInches) * parts)
    {
        if (inches < 0.0)
            out.add(L'-');
        printFarInches(out, magnitude, rules);
        return;
    }
    const std::uint64_t whole = count / parts;
    printFeet(out, inches < 0.0 && count != 0, whole / c_inchesPerFoot);
    printInteger(out, whole % c_inchesPerFoot);
    std::uint64_t above = count % parts;
    std::uint64_t below = parts;
    if (above != 0)
    {
        for (; above % 2 == 0; above /= 2)
            below /= 2;
        out.add(L' ');
        printInteger(out, above);
        out.add(L'/');
        printInteger(out, below);
    }
    out.add(L'"');
}

void printEngineering(TextWriter& out, double inches, const PrintingRules& rules)
{
    const unsigned int decimals = std::min(rules.precision, c_mostDecimals);
    const double magnitude = std::fabs(inches);
    unsigned int digits = decimals; // as many as the significant ones allow
    while (digits > 0 && magnitude * c_powers[digits] >= c_beyondSignificant)
        --digits;
    const auto parts = static_cast<std::uint64_t>(c_powers[digits]);
    const bool near = magnitude < c_longestFeetAndInches;
    const std::uint64_t count = near ? roundedHalfUp(magnitude * c_powers[digits]) : 0;
    if (!near || count >= static_cast<std::uint64_t>(c_longestFeetAndInches) * parts)
    {
        if (inches < 0.0)
            out.add(L'-');
        printFarInches(out, magnitude, rules);
        return;
    }
    const std::uint64_t whole = count / parts;
    printFeet(out, inches < 0.0 && count != 0, whole / c_inchesPerFoot);
    printInteger(out, whole % c_inchesPerFoot);
    printFraction(out, count % parts, digits, decimals, rules);
    out.add(L'"');
}

} // namespace kitrel
