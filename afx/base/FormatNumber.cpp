// Numbers as text for CString::Format.
#include "FormatNumber.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace kx
{

namespace
{

// |value| = 0.d1d2d3... * 10^point, with all its digits; no digits: zero.
struct Decimal
{
    std::string digits;
    int point = 0;
};

Decimal exactDecimal(double magnitude)
{
    Decimal result;
    if (magnitude == 0.0)
    {
        return result;
    }
    int exponent = 0;
    auto mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(magnitude, &exponent), 53));
    int scale = exponent - 53; // magnitude = mantissa * 2^scale
    while ((mantissa & 1U) == 0)
    {
        mantissa >>= 1U;
        ++scale;
    }
    const int decimals = scale < 0 ? -scale : 0; // a binary fraction of n bits has exactly n decimals
    char buffer[1500];
    const int length = std::snprintf(buffer, sizeof buffer, "%.*f", decimals, magnitude);
    const int whole = decimals > 0 ? length - decimals - 1 : length;
    result.digits.assign(buffer, static_cast<std::size_t>(whole));
    if (decimals > 0)
    {
        result.digits.append(buffer + whole + 1, static_cast<std::size_t>(decimals));
    }
    result.point = whole;
    const std::size_t zeros = result.digits.find_first_not_of('0');
    result.digits.erase(0, zeros);
    result.point -= static_cast<int>(zeros);
    return result;
}

// Cuts to count digits, halves upwards; count may be 0 or negative (all digits lie behind the cut).
void roundTo(Decimal& number, int count)
{
    if (count >= static_cast<int>(number.digits.size()))
    {
        return;
    }
    if (count < 0)
    {
        number.digits.clear();
        return;
    }
    const bool up = number.digits[static_cast<std::size_t>(count)] >= '5';
    number.digits.resize(static_cast<std::size_t>(count));
    if (!up)
    {
        return;
    }
    for (std::size_t i = number.digits.size(); i > 0; --i)
    {
        char& digit = number.digits[i - 1];
        if (digit != '9')
        {
            ++digit;
            return;
        }
        digit = '0';
    }
    number.digits.insert(number.digits.begin(), '1');
    ++number.point;
}

char digitAt(const Decimal& number, int index)
{
    return index >= 0 && index < static_cast<int>(number.digits.size()) ? number.digits[static_cast<std::size_t>(index)]
                                                                        : '0';
}

void appendFraction(std::string& text, const Decimal& number, int first, int decimals, bool alternate)
{
    if (decimals > 0 || alternate)
    {
        text += '.';
    }
    for (int i = 0; i < decimals; ++i)
    {
        text += digitAt(number, first + i);
    }
}

std::string fixedText(const Decimal& number, int decimals, bool alternate)
{
    std::string text;
    const int whole = number.digits.empty() ? 0 : number.point;
    for (int i = 0; i < whole; ++i)
    {
        text += digitAt(number, i);
    }
    if (text.empty())
    {
        text.push_back('0');
    }
    // A number below 0.1 has zeros before its first digit: their indices are negative.
    appendFraction(text, number, whole, decimals, alternate);
    return text;
}

std::string exponentText(const Decimal& number, int decimals, bool alternate, bool upper)
{
    std::string text(1, digitAt(number, 0));
    appendFraction(text, number, 1, decimals, alternate);
    const int exponent = number.digits.empty() ? 0 : number.point - 1;
    char tail[16];
    std::snprintf(tail, sizeof tail, "%c%c%03d", upper ? 'E' : 'e', exponent < 0 ? '-' : '+', std::abs(exponent));
    return text + tail;
}

void dropTrailingZeros(std::string& text)
{
    const std::size_t tail = text.find_first_of("eE");
    const std::size_t end = tail == std::string::npos ? text.size() : tail;
    const std::size_t dot = text.find('.');
    if (dot == std::string::npos || dot > end)
    {
        return;
    }
    std::size_t keep = end;
    while (text[keep - 1] == '0')
    {
        --keep;
    }
    keep = keep == dot + 1 ? dot : keep;
    text.erase(keep, end - keep);
}

std::string generalText(Decimal number, int precision, bool alternate, bool upper)
{
    precision = precision == 0 ? 1 : precision;
    roundTo(number, precision);
    const int exponent = number.digits.empty() ? 0 : number.point - 1;
    std::string text = exponent < -4 || exponent >= precision ? exponentText(number, precision - 1, alternate, upper)
                                                              : fixedText(number, precision - 1 - exponent, alternate);
    if (!alternate)
    {
        dropTrailingZeros(text);
    }
    return text;
}

// Infinity and not-a-number count as 1 with a strange fraction, padded with zeros to the precision.
std::string specialText(double value, int precision)
{
    const char* const fraction = std::isinf(value) ? "#INF" : (std::signbit(value) ? "#IND" : "#QNAN");
    std::string text("1.");
    text.append(fraction);
    while (static_cast<int>(text.size()) < precision + 2)
    {
        text.push_back('0');
    }
    return text;
}

std::string signText(bool negative, const FormatSpec& spec)
{
    if (negative)
    {
        return "-";
    }
    return spec.plus ? "+" : (spec.blank ? " " : "");
}

} // namespace

NumberText integerText(std::uint64_t magnitude, bool negative, const FormatSpec& spec)
{
    const char kind = spec.conversion;
    const bool isSigned = kind == 'd' || kind == 'i';
    const unsigned base = kind == 'o' ? 8 : (kind == 'x' || kind == 'X' ? 16 : 10);
    const char* const alphabet = kind == 'X' ? "0123456789ABCDEF" : "0123456789abcdef";
    NumberText result;
    for (std::uint64_t rest = magnitude; rest != 0; rest /= base)
    {
        result.body.insert(result.body.begin(), alphabet[rest % base]);
    }
    const auto atLeast = static_cast<std::size_t>(spec.precision < 0 ? 1 : spec.precision);
    if (result.body.size() < atLeast)
    {
        result.body.insert(0, atLeast - result.body.size(), '0');
    }
    if (isSigned)
    {
        result.prefix = signText(negative, spec);
    }
    else if (spec.alternate && base == 16 && magnitude != 0)
    {
        result.prefix = kind == 'X' ? "0X" : "0x";
    }
    else if (spec.alternate && base == 8 && (result.body.empty() || result.body[0] != '0'))
    {
        result.body.insert(result.body.begin(), '0');
    }
    result.zerosAllowed = spec.precision < 0;
    return result;
}

NumberText floatText(double value, const FormatSpec& spec)
{
    NumberText result;
    const int precision = spec.precision < 0 ? 6 : spec.precision;
    const bool upper = spec.conversion == 'E' || spec.conversion == 'G';
    result.prefix = signText(std::signbit(value), spec);
    if (!std::isfinite(value))
    {
        const bool general = spec.conversion == 'g' || spec.conversion == 'G';
        result.body = specialText(value, general ? 0 : precision);
        return result;
    }
    Decimal number = exactDecimal(std::fabs(value));
    switch (spec.conversion)
    {
    case 'e':
    case 'E':
        roundTo(number, precision + 1);
        result.body = exponentText(number, precision, spec.alternate, upper);
        break;
    case 'g':
    case 'G':
        result.body = generalText(number, precision, spec.alternate, upper);
        break;
    default:
        roundTo(number, number.point + precision);
        result.body = fixedText(number, precision, spec.alternate);
        break;
    }
    return result;
}

} // namespace kx
