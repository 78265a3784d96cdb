// The families of quantity with their units, factors, titles and symbols.
#pragma once

#include <span>
#include <string_view>

namespace kitrel
{

/// Largest SI value that is read or written; beyond it values are held.
inline constexpr double c_largestValue = 1e290;

/// `value` within the limits; NaN gives 0.
constexpr double held(double value) noexcept
{
    if (value > c_largestValue)
        return c_largestValue;
    if (value < -c_largestValue)
        return -c_largestValue;
    return value == value ? value : 0.0;
}

/// SI value = (value + zero) * numerator / denominator. Kept as a ratio, so that 12 cm is 12 / 100, rounded once.
struct UnitScale
{
    double numerator = 1.0;
    double denominator = 1.0;
    double zero = 0.0;

    constexpr double toSI(double value) const noexcept { return (value + zero) * numerator / denominator; }
    constexpr double differenceToSI(double value) const noexcept { return value * numerator / denominator; }
    constexpr double fromSI(double value) const noexcept { return value * denominator / numerator - zero; }
    constexpr double coef() const noexcept { return denominator / numerator; }
};

struct UnitEntry
{
    const wchar_t* title;
    std::wstring_view symbol;
    UnitScale scale;
};

struct UnitFamily
{
    std::span<const UnitEntry> units;
    int inch = -1; ///< index of the inch in a family of lengths, else -1
    int foot = -1;

    constexpr bool isLength() const noexcept { return inch >= 0; }
    constexpr bool isImperial(unsigned int range) const noexcept
    {
        return isLength() && (static_cast<int>(range) == inch || static_cast<int>(range) == foot);
    }
};

/// Family 1 to 21; any other number gives family 10, which has no dimension.
const UnitFamily& familyOf(unsigned int idUnit) noexcept;

/// Inches and feet alone, with the inch as the base.
const UnitFamily& imperialFamily() noexcept;

/// Whether a symbol of the family can end with `last`; quick, may say true too often.
bool symbolMayEndWith(unsigned int idUnit, wchar_t last) noexcept;

/// The character by which symbols are compared: spellings of the same sign (², µ, ·, °) fold to one.
constexpr wchar_t foldedSymbolChar(wchar_t c) noexcept
{
    if (c < 0x80)
        return c;
    switch (c)
    {
    case 0xB2:
        return L'2';
    case 0xB7:
    case 0x22C5:
        return L'.';
    case 0xBA:
        return 0xB0;
    case 0x3BC:
        return 0xB5;
    default:
        return c;
    }
}

/// Whether `text` begins with `symbol`.
constexpr bool beginsWithSymbol(std::wstring_view text, std::wstring_view symbol) noexcept
{
    if (text.size() < symbol.size())
        return false;
    for (size_t i = 0; i < symbol.size(); ++i)
    {
        if (foldedSymbolChar(text[i]) != foldedSymbolChar(symbol[i]))
            return false;
    }
    return true;
}

} // namespace kitrel
