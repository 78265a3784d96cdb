// KxUnitField: what a numeric field with a unit knows, without its window.
#include "kitrel/KxUnitField.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "UnitTables.h"

namespace
{

constexpr double c_infinite = std::numeric_limits<double>::infinity();
constexpr double c_tolerance = 1e-10;
constexpr double c_farLimit = 1.7976931348623157e+150; // hosts write it where they mean no limit
constexpr unsigned int c_mostDecimals = 12;

constexpr bool isSpace(wchar_t c)
{
    return c == L' ' || (c >= L'\t' && c <= L'\r') || c == 0xA0 || c == 0x202F;
}

std::wstring_view trimmed(const CString& text)
{
    std::wstring_view part(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    while (!part.empty() && isSpace(part.front()))
        part.remove_prefix(1);
    while (!part.empty() && isSpace(part.back()))
        part.remove_suffix(1);
    return part;
}

CString stringOf(std::wstring_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

bool isFar(double limit)
{
    return std::fabs(limit) >= c_farLimit;
}

double toleranceOf(double limit)
{
    return c_tolerance + c_tolerance * std::fabs(limit);
}

CString quote(std::wstring_view text)
{
    constexpr std::size_t longest = KxUnitField::c_longestQuote;
    const bool cut = text.size() > longest;
    std::wstring_view start = text.substr(0, longest);
    if (cut && start.back() >= 0xD800 && start.back() <= 0xDBFF)
        start.remove_suffix(1); // half of a pair
    CString quoted;
    for (const wchar_t c : start)
        quoted += c < L' ' ? L' ' : c;
    if (cut)
        quoted += wchar_t{0x2026};
    return quoted;
}

} // namespace

KxUnitField::KxUnitField(bool showSymbol) : m_minimum(-c_infinite), m_maximum(c_infinite), m_showSymbol(showSymbol) {}

void KxUnitField::setValue(double value)
{
    m_value = kitrel::held(value);
}

void KxUnitField::setLimits(double minimum, double maximum)
{
    m_minimum = std::isfinite(minimum) ? minimum : -c_infinite;
    m_maximum = std::isfinite(maximum) ? maximum : c_infinite;
    if (m_minimum > m_maximum)
        std::swap(m_minimum, m_maximum);
}

KxUnitField::Entry KxUnitField::entryOf(double value) const
{
    if (std::isfinite(m_minimum) && m_minimum - toleranceOf(m_minimum) > value)
        return Entry::tooSmall;
    if (std::isfinite(m_maximum) && value > m_maximum + toleranceOf(m_maximum))
        return Entry::tooLarge;
    return Entry::value;
}

bool KxUnitField::allows(double value) const
{
    return std::isfinite(value) && entryOf(value) == Entry::value;
}

CString KxUnitField::print(const CKxUnit& unit, double value, bool showSymbol) const
{
    return unit.Double2String(nullptr, value, showSymbol ? 1 : 0, L"%.*f", 1, 1, 50);
}

CString KxUnitField::valueText() const
{
    return print(m_unit, m_value, m_showSymbol);
}

const CString& KxUnitField::show()
{
    m_shown = valueText();
    return m_shown;
}

KxUnitField::Reading KxUnitField::read(const CString& text) const
{
    const std::wstring_view entered = trimmed(text);
    const CString name = m_unit.GetName();
    if (entered.empty() || entered == name.GetString())
        return {Entry::nothing, m_value};
    double value = m_value;
    if (text != m_shown)
    {
        int understood = 0;
        value = m_unit.String2Double(stringOf(entered), &understood, 1);
        if (understood == 0)
            return {Entry::notUnderstood, m_value};
    }
    const Entry entry = entryOf(value);
    return {entry, entry == Entry::value ? value : m_value};
}

bool KxUnitField::takeOver(const CString& text)
{
    const Reading reading = read(text);
    if (reading.isRefused())
        return false;
    if (reading.entry == Entry::value)
    {
        m_value = reading.value;
        m_shown = text;
    }
    return true;
}

CString KxUnitField::limitText(double limit) const
{
    CKxUnit unit = m_unit;
    for (unsigned int precision = m_unit.GetPrecision();; ++precision)
    {
        unit.SetPrecision(precision);
        const CString text = print(unit, limit, true);
        int understood = 0;
        const double back = unit.String2Double(text, &understood, 1);
        if (precision >= c_mostDecimals || (understood != 0 && allows(back)))
            return text;
    }
}

KxUnitField::Refusal KxUnitField::refusalOf(const CString& text) const
{
    const Entry entry = read(text).entry;
    Refusal refusal{entry != Entry::notUnderstood, quote(trimmed(text)), CString(), CString()};
    if (entry == Entry::tooSmall || !isFar(m_minimum))
        refusal.minimum = limitText(m_minimum);
    if (entry == Entry::tooLarge || !isFar(m_maximum))
        refusal.maximum = limitText(m_maximum);
    return refusal;
}
