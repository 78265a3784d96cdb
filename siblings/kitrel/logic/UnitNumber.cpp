// How a decimal number is read from a text.
#include "UnitNumber.h"

#include <charconv>
#include <cstdint>
#include <string>
#include <system_error>

namespace kitrel
{
namespace
{

constexpr double c_largestNumber = 1e306;
constexpr int c_largestExponent = 99999;

// Powers of ten that a double holds exactly.
constexpr double c_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                               1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr long long c_exactPower = 22;

// What the characters of a number say before it is turned into a double.
struct Scan
{
    std::uint64_t mantissa = 0; // first 18 significant digits
    long long significant = 0;  // digits from the first that is not 0
    long long scale = 0;        // digits behind the decimal sign
    long long exponent = 0;
    size_t length = 0;
    bool anyDigit = false;

    void digit(wchar_t c)
    {
        anyDigit = true;
        if (significant == 0 && c == L'0')
            return;
        if (++significant <= 18)
            mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - L'0');
    }
};

void scanExponent(std::wstring_view text, Scan& scan)
{
    size_t at = scan.length;
    if (at >= text.size() || (text[at] != L'e' && text[at] != L'E'))
        return;
    ++at;
    const bool negative = at < text.size() && isMinus(text[at]);
    if (negative || (at < text.size() && text[at] == L'+'))
        ++at;
    if (at >= text.size() || !isDigit(text[at]))
        return;
    int exponent = 0;
    for (; at < text.size() && isDigit(text[at]); ++at)
    {
        if (exponent < c_largestExponent)
            exponent = exponent * 10 + (text[at] - L'0');
    }
    scan.exponent = negative ? -exponent : exponent;
    scan.length = at;
}

Scan scanCharacters(std::wstring_view text)
{
    Scan scan;
    size_t at = 0;
    for (; at < text.size() && isDigit(text[at]); ++at)
        scan.digit(text[at]);
    if (at < text.size() && isDecimalSign(text[at]))
    {
        ++at;
        for (; at < text.size() && isDigit(text[at]); ++at)
        {
            scan.digit(text[at]);
            ++scan.scale;
        }
    }
    if (!scan.anyDigit)
        return {};
    scan.length = at;
    scanExponent(text, scan);
    return scan;
}

double largeOrSmall(const Scan& scan)
{
    return scan.significant - scan.scale + scan.exponent > 0 ? c_largestNumber : 0.0;
}

// Any number of digits, correctly rounded.
double convertNarrow(std::wstring_view text, const Scan& scan)
{
    std::string narrow;
    narrow.reserve(text.size());
    for (const wchar_t c : text)
    {
        if (isDecimalSign(c))
            narrow += '.';
        else if (isMinus(c))
            narrow += '-';
        else
            narrow += static_cast<char>(c);
    }
    double value = 0.0;
    const auto result = std::from_chars(narrow.data(), narrow.data() + narrow.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        return largeOrSmall(scan);
    return value < c_largestNumber ? value : c_largestNumber;
}

double convert(std::wstring_view text, const Scan& scan)
{
    if (scan.significant == 0)
        return 0.0;
    const long long power = scan.exponent - scan.scale;
    // A mantissa and a power that are both exact give the correctly rounded quotient or product.
    if (scan.significant <= 18 && scan.mantissa < (std::uint64_t{1} << 53))
    {
        const auto mantissa = static_cast<double>(scan.mantissa);
        if (power == 0)
            return mantissa;
        if (power < 0 && power >= -c_exactPower)
            return mantissa / c_powers[-power];
        if (power > 0 && power <= c_exactPower)
            return mantissa * c_powers[power];
    }
    return convertNarrow(text.substr(0, scan.length), scan);
}

} // namespace

ScannedNumber scanNumber(std::wstring_view text)
{
    const Scan scan = scanCharacters(text);
    ScannedNumber number;
    if (scan.length == 0)
        return number;
    number.length = scan.length;
    number.value = convert(text, scan);
    number.digitsOnly = isDigit(text[0]);
    for (size_t i = 0; number.digitsOnly && i < scan.length; ++i)
        number.digitsOnly = isDigit(text[i]);
    return number;
}

} // namespace kitrel
