// The shape test of typed numbers, and the fixed way in which a unit is asked to read and print.
#include "UnitText.h"

#include <algorithm>
#include <string_view>

namespace
{

constexpr std::wstring_view digits = L"0123456789";
constexpr std::wstring_view firstCharacters = L"+-.,0123456789";

std::wstring_view ViewOf(const CString& text)
{
    return {static_cast<const wchar_t*>(text), static_cast<std::size_t>(text.GetLength())};
}

bool HasDigit(std::wstring_view text)
{
    return text.find_first_of(digits) != std::wstring_view::npos;
}

} // namespace

bool UnitText::MayBeNumber(const CString& text)
{
    const std::wstring_view view = ViewOf(text);
    if (!HasDigit(view) || firstCharacters.find(view.front()) == std::wstring_view::npos)
        return false;
    // "+." is not among them, on purpose: "+.x5" is left to the unit, "-.x5" is refused.
    const bool signThenSeparator = view.starts_with(L"-,") || view.starts_with(L"+,") || view.starts_with(L"-.");
    // Nothing is asked of the characters behind a sign alone, on purpose: "+abc5" may be a number.
    return !signThenSeparator || HasDigit(view.substr(0, 3));
}

double UnitText::Read(const CKxUnit& unit, const CString& text)
{
    return unit.String2Double(text, nullptr, 1);
}

CString UnitText::Canonical(const CKxUnit& unit, double value)
{
    wchar_t buffer[CKxUnit::c_nTextSize] = {};
    unit.Double2String(buffer, value, 1, L"%.*f", 1, 1, 50);
    return buffer;
}
