// Where a unit's symbol or a tolerance stands in a text.
#include "UnitMarks.h"

#include "UnitNumber.h"
#include "UnitTables.h"

namespace kitrel
{
namespace
{

constexpr wchar_t c_about = 0x2248;     // ≈
constexpr wchar_t c_plusMinus = 0x00B1; // ±

size_t withoutClosingBlanks(std::wstring_view text, size_t length) noexcept
{
    while (length > 0 && isBlank(text[length - 1]))
        --length;
    return length;
}

// Start of the closing "±number", or the length of the text.
size_t toleranceStart(std::wstring_view text) noexcept
{
    size_t at = withoutClosingBlanks(text, text.size());
    bool digits = false;
    bool sign = false;
    for (; at > 0; --at)
    {
        const wchar_t c = text[at - 1];
        if (isDigit(c))
            digits = true;
        else if (isDecimalSign(c) && !sign)
            sign = true;
        else
            break;
    }
    at = withoutClosingBlanks(text, at);
    return digits && at > 0 && text[at - 1] == c_plusMinus ? at - 1 : text.size();
}

} // namespace

size_t lengthWithoutSymbol(unsigned int idUnit, std::wstring_view text) noexcept
{
    const size_t end = withoutClosingBlanks(text, text.size());
    if (end == 0 || !symbolMayEndWith(idUnit, text[end - 1]))
        return text.size();
    for (const UnitEntry& unit : familyOf(idUnit).units)
    {
        if (unit.symbol.empty() || unit.symbol.size() >= end)
            continue;
        const size_t start = end - unit.symbol.size();
        if (!beginsWithSymbol(text.substr(start), unit.symbol))
            continue;
        const size_t kept = withoutClosingBlanks(text, start);
        if (kept > 0 && (isDigit(text[kept - 1]) || isDecimalSign(text[kept - 1])))
            return kept;
    }
    return text.size();
}

KeptPart partWithoutPrecision(std::wstring_view text) noexcept
{
    KeptPart kept{0, text.size()};
    if (text.empty())
        return kept;
    const wchar_t last = text.back();
    if (isDigit(last) || isDecimalSign(last) || isBlank(last))
    {
        const size_t start = toleranceStart(text);
        if (start != text.size())
            kept.end = withoutClosingBlanks(text, start);
    }
    if (text[0] == c_about && kept.end > 0)
    {
        kept.begin = 1;
        while (kept.begin < kept.end && isBlank(text[kept.begin]))
            ++kept.begin;
    }
    return kept;
}

} // namespace kitrel
