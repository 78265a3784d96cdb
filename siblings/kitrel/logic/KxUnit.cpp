// CKxUnit: a unit of measure that turns texts into SI values and SI values into texts.
#include "kitrel/KxUnit.h"

#include <algorithm>
#include <cwchar>

#include "UnitMarks.h"
#include "UnitPrinter.h"
#include "UnitReader.h"
#include "UnitTables.h"

namespace
{

constexpr unsigned int c_withoutDimension = 10;
constexpr double c_smallestOwnCoef = 1e-15;
constexpr double c_largestOwnCoef = 1e15;

constexpr unsigned int knownFamily(unsigned int idUnit)
{
    return idUnit >= 1 && idUnit <= CKxUnit::c_nFamilies ? idUnit : c_withoutDimension;
}

// A sign of its own is written at the number, a word behind a blank.
constexpr bool standsAtTheNumber(std::wstring_view symbol)
{
    return symbol == L"°";
}

} // namespace

IMPLEMENT_DYNAMIC(CKxUnit, KX_UNIT_BASE)

static_assert(CKxUnit::c_nTextSize == kitrel::TextWriter::c_size + 1);

const wchar_t* const CKxUnit::c_arrayPrecision[c_nPrecisions] = {
    L"0", L"0.0", L"0.00", L"0.000", L"0.0000", L"0.00000", L"0.000000", L"0.0000000", L"0.00000000"};

const wchar_t* const CKxUnit::c_arrayImperialPrecision[c_nPrecisions][2] = {
    {L"0'-0\"", L"0'-0\""},
    {L"0'-0 1/2\"", L"0'-0.0\""},
    {L"0'-0 1/4\"", L"0'-0.00\""},
    {L"0'-0 1/8\"", L"0'-0.000\""},
    {L"0'-0 1/16\"", L"0'-0.0000\""},
    {L"0'-0 1/32\"", L"0'-0.00000\""},
    {L"0'-0 1/64\"", L"0'-0.000000\""},
    {L"0'-0 1/128\"", L"0'-0.0000000\""},
    {L"0'-0 1/256\"", L"0'-0.00000000\""},
};

const unsigned int CKxUnit::c_arrayTypeNumber[c_nFamilies][2] = {
    {1, 8},  {2, 8},  {3, 10}, {4, 6},  {5, 4},  {6, 11}, {7, 5},  {8, 8},  {9, 3},  {10, 3}, {11, 8},
    {12, 8}, {13, 7}, {14, 7}, {15, 6}, {16, 8}, {17, 8}, {18, 8}, {19, 8}, {20, 8}, {21, 8}};

CKxUnit::CKxUnit() = default;

CKxUnit::CKxUnit(const CKxUnit& other)
    : KX_UNIT_BASE(), m_idUnit(other.m_idUnit), m_range(other.m_range), m_precision(other.m_precision),
      m_format(other.m_format), m_ownCoef(other.m_ownCoef), m_separator(other.m_separator)
{
}

CKxUnit& CKxUnit::operator=(const CKxUnit& other)
{
    m_idUnit = other.m_idUnit;
    m_range = other.m_range;
    m_precision = other.m_precision;
    m_format = other.m_format;
    m_ownCoef = other.m_ownCoef;
    m_separator = other.m_separator;
    return *this;
}

CKxUnit::~CKxUnit() = default;

CKxUnit::CKxUnit(unsigned int idUnit, unsigned int range, unsigned int precision, wchar_t separator, double coef,
                 int flag)
    : m_idUnit(knownFamily(idUnit)), m_precision(precision)
{
    SetRange(range);
    SetSep(separator);
    if (flag == 0 && GetType() == UNITTYPE_METRIC && coef >= c_smallestOwnCoef && coef <= c_largestOwnCoef)
    {
        m_ownCoef = coef;
    }
}

double CKxUnit::read(const wchar_t* text, size_t length, int* ok, int flag) const
{
    const kitrel::ReadingRules rules{kitrel::familyOf(m_idUnit), m_range, m_ownCoef};
    const kitrel::Reading reading = kitrel::readText({text, length}, rules);
    if (ok != nullptr)
        *ok = reading.understood ? 1 : 0;
    if (!reading.understood || flag != 0)
        return reading.value;
    return rules.scaleOf(m_range).fromSI(reading.value);
}

double CKxUnit::String2Double(wchar_t* text, int* ok, int flag) const
{
    return read(text, text == nullptr ? 0 : std::wcslen(text), ok, flag);
}

double CKxUnit::String2Double(CString text, int* ok, int flag) const
{
    return read(text.GetString(), static_cast<size_t>(text.GetLength()), ok, flag);
}

CString CKxUnit::Double2String(wchar_t* buffer, double value, int showSymbol, const wchar_t* /*format*/, int fillZeros,
                               int valueIsSI, unsigned int longestFixed) const
{
    const kitrel::UnitFamily& family = kitrel::familyOf(m_idUnit);
    const kitrel::ReadingRules rules{family, m_range, m_ownCoef};
    const kitrel::UnitScale scale = rules.scaleOf(m_range);
    const kitrel::PrintingRules printing{m_precision, m_separator, fillZeros != 0, longestFixed};
    const double si = kitrel::held(valueIsSI != 0 ? value : scale.toSI(kitrel::held(value)));

    kitrel::TextWriter out;
    if (m_format != UNITFORMAT_DECIMAL && GetType() == UNITTYPE_IMPERIAL)
    {
        const double inches = family.units[static_cast<size_t>(family.inch)].scale.fromSI(si);
        if (m_format == UNITFORMAT_ARCHITECTURAL)
            kitrel::printArchitectural(out, inches, printing);
        else
            kitrel::printEngineering(out, inches, printing);
    }
    else
    {
        kitrel::printDecimal(out, scale.fromSI(si), printing);
        const std::wstring_view symbol = family.units[m_range].symbol;
        if (showSymbol != 0 && !symbol.empty())
        {
            if (!standsAtTheNumber(symbol))
                out.add(L' ');
            out.add(symbol);
        }
    }
    const std::wstring_view text = out.view();
    if (buffer != nullptr)
    {
        std::copy(text.begin(), text.end(), buffer);
        buffer[text.size()] = L'\0';
    }
    return {text.data(), static_cast<int>(text.size())};
}

unsigned int CKxUnit::GetPrecision() const
{
    return m_precision;
}

void CKxUnit::SetPrecision(unsigned int precision)
{
    m_precision = precision;
}

unsigned int CKxUnit::GetRange() const
{
    return m_range;
}

void CKxUnit::SetRange(unsigned int range)
{
    m_range = range < kitrel::familyOf(m_idUnit).units.size() ? range : 0;
    m_ownCoef = 0.0;
}

double CKxUnit::GetCoef() const
{
    return m_ownCoef != 0.0 ? m_ownCoef : kitrel::familyOf(m_idUnit).units[m_range].scale.coef();
}

unsigned int CKxUnit::GetIDUnit() const
{
    return m_idUnit;
}

void CKxUnit::SetIdUnit(unsigned int idUnit)
{
    m_idUnit = knownFamily(idUnit);
    SetRange(m_range);
}

enumUNITTYPE CKxUnit::GetType() const
{
    return kitrel::familyOf(m_idUnit).isImperial(m_range) ? UNITTYPE_IMPERIAL : UNITTYPE_METRIC;
}

enumUNITFORMAT CKxUnit::GetUnitFormat() const
{
    return m_format;
}

void CKxUnit::SetUnitFormat(enumUNITFORMAT format)
{
    const bool known = format == UNITFORMAT_ARCHITECTURAL || format == UNITFORMAT_ENGINEERING;
    m_format = known ? format : UNITFORMAT_DECIMAL;
}

void CKxUnit::SetSep(wchar_t separator)
{
    m_separator = separator == L',' ? L',' : L'.';
}

wchar_t CKxUnit::GetSep() const
{
    return m_separator;
}

CString CKxUnit::GetTitle() const
{
    return {kitrel::familyOf(m_idUnit).units[m_range].title};
}

CString CKxUnit::GetName() const
{
    const std::wstring_view symbol = kitrel::familyOf(m_idUnit).units[m_range].symbol;
    return {symbol.data(), static_cast<int>(symbol.size())};
}

void CKxUnit::EliminateUnitsSymbol(unsigned int idUnit, CString& text)
{
    const auto length = static_cast<size_t>(text.GetLength());
    const size_t kept = kitrel::lengthWithoutSymbol(idUnit, {text.GetString(), length});
    if (kept != length)
        text.Truncate(static_cast<int>(kept));
}

void CKxUnit::EliminatePrecision(CString& text)
{
    const auto length = static_cast<size_t>(text.GetLength());
    const kitrel::KeptPart kept = kitrel::partWithoutPrecision({text.GetString(), length});
    if (kept.end != length)
        text.Truncate(static_cast<int>(kept.end));
    if (kept.begin != 0)
        text.Delete(0, static_cast<int>(kept.begin));
}
