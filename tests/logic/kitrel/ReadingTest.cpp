// Reading of decimal texts: numbers, signs, exponents, symbols, sums.
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>

#include "UnitSupport.h"

namespace
{

const CKxUnit inMetres = makeUnit(lengths, metre);

/// A text in a field of a unit, and its value in SI.
struct Read
{
    CKxUnit unit;
    const wchar_t* text;
    double value;
};

std::string narrow(const wchar_t* text)
{
    return CStringA(text).GetString();
}

void check(std::initializer_list<Read> rows)
{
    for (const Read& row : rows)
        EXPECT_EQ(si(row.unit, row.text), row.value) << narrow(row.text);
}

/// The same, for values that took more than one rounding.
void checkClose(std::initializer_list<Read> rows)
{
    for (const Read& row : rows)
        EXPECT_DOUBLE_EQ(si(row.unit, row.text), row.value) << narrow(row.text);
}

void checkRefused(const CKxUnit& unit, std::initializer_list<const wchar_t*> texts)
{
    for (const wchar_t* text : texts)
        EXPECT_FALSE(understands(unit, text)) << narrow(text);
}

TEST(Reading, a_bare_number_takes_the_unit_of_the_field)
{
    check({
        {inMetres, L"1.5", 1.5},
        {makeUnit(lengths, millimetre), L"1500", 1.5},
        {makeUnit(lengths, foot), L"2", 2 * c_foot},
    });
}

TEST(Reading, numbers)
{
    check({
        {inMetres, L"2.25", 2.25},
        {inMetres, L"2,25", 2.25}, // both are decimal signs
        {inMetres, L".5", 0.5},    // digits may be missing on one side
        {inMetres, L",5", 0.5},
        {inMetres, L"5.", 5.0},
        {inMetres, L"-1.5", -1.5},
        {inMetres, L"+1.5", 1.5},
        {inMetres, L"- 1.5", -1.5},
        {inMetres, L"1e3", 1000.0},
        {inMetres, L"1E-2", 0.01},
        {inMetres, L"2.5e+2", 250.0},
    });
}

TEST(Reading, what_is_no_number)
{
    checkRefused(inMetres, {L".", L"1.5.2", L"--1", L"1+-2", L"-", L"1+", L"1e"});
}

TEST(Reading, the_typographic_minus_is_a_minus)
{
    const wchar_t text[] = {0x2212, L'2', 0};
    EXPECT_EQ(si(inMetres, text), -2.0);
}

TEST(Reading, blanks_and_the_own_symbol)
{
    check({
        {inMetres, L" \t 1.5 m  ", 1.5},
        {inMetres, L"1.5\x00A0m", 1.5}, // an unbreakable blank is a blank
        {inMetres, L"1.5 m", 1.5},
        {inMetres, L"1.5m", 1.5},
    });
}

TEST(Reading, another_unit_of_the_family_by_its_symbol)
{
    check({
        {inMetres, L"12 cm", 0.12},
        {inMetres, L"12 dm", 1.2},
        {inMetres, L"12mm", 0.012},
        {inMetres, L"2 km", 2000.0},
        {inMetres, L"10 in", 0.254},
        {inMetres, L"10 ft", 3.048},
        {inMetres, L"5 \x00B5m", 5e-6}, // both micro signs
        {inMetres, L"5 \x03BCm", 5e-6},
        {makeUnit(forces, 0), L"3 MN", 3e6},
    });
}

TEST(Reading, symbols_are_whole_in_exact_case_and_of_the_family)
{
    checkRefused(makeUnit(forces, 0), {L"3 mN"});
    checkRefused(makeUnit(forces, 2), {L"3 m"});
    checkRefused(makeUnit(stresses, 0), {L"3 mPa"});
    checkRefused(inMetres, {L"3 CM", L"3 kN", L"3 inch", L"3 mx"});
}

TEST(Reading, what_is_not_understood_gives_zero_and_the_flag_zero)
{
    int ok = -1;
    EXPECT_EQ(inMetres.String2Double(CString(L"12 abc"), &ok, 1), 0.0);
    EXPECT_EQ(ok, 0);
}

TEST(Reading, the_empty_text_gives_zero_and_the_flag_zero)
{
    int ok = -1;
    EXPECT_EQ(inMetres.String2Double(CString(), &ok, 1), 0.0);
    EXPECT_EQ(ok, 0);
    EXPECT_FALSE(understands(inMetres, L"   "));
}

TEST(Reading, the_empty_text_gives_zero_in_temperatures_too)
{
    EXPECT_EQ(makeUnit(temperatures, 1).String2Double(CString(), nullptr, 1), 0.0);
}

TEST(Reading, a_null_text_is_an_empty_one)
{
    int ok = -1;
    wchar_t* const nothing = nullptr;
    EXPECT_EQ(inMetres.String2Double(nothing, &ok, 1), 0.0);
    EXPECT_EQ(ok, 0);
}

TEST(Reading, the_flag_may_be_null)
{
    wchar_t text[] = L"4 m";
    EXPECT_EQ(inMetres.String2Double(text, nullptr, 1), 4.0);
    EXPECT_EQ(inMetres.String2Double(CString(L"x"), nullptr, 1), 0.0);
}

TEST(Reading, with_flag_zero_the_value_is_in_the_unit_itself)
{
    EXPECT_EQ(makeUnit(lengths, millimetre).String2Double(CString(L"12 cm"), nullptr, 0), 120.0);
    EXPECT_EQ(makeUnit(lengths, millimetre).String2Double(CString(L"x"), nullptr, 0), 0.0);
}

TEST(Reading, sums_and_differences)
{
    check({
        {inMetres, L"1.2+0.3", 1.5},
        {inMetres, L"2 - 0.5 + 1", 2.5},
        {inMetres, L"-1 + 3", 2.0},
        {makeUnit(lengths, centimetre), L"100 + 1 m", 2.0}, // each bare number takes the unit of the field
    });
    checkClose({{inMetres, L"100in+3mm+5cm", 2.593}});
}

TEST(Reading, what_is_no_sum)
{
    checkRefused(inMetres, {L"1 2", L"1 m + 2 kN"});
}

TEST(Reading, temperatures_have_their_zero)
{
    const CKxUnit celsius = makeUnit(temperatures, 1);
    check({{celsius, L"20", 293.15}, {celsius, L"-273.15", 0.0}, {celsius, L"300 K", 300.0}});
    checkClose({{celsius, L"32 °F", 273.15}});
}

TEST(Reading, further_terms_of_a_temperature_are_differences)
{
    const CKxUnit celsius = makeUnit(temperatures, 1);
    checkClose({
        {celsius, L"20 °C + 5 °C", 298.15},
        {celsius, L"20 °C - 9 °F", 288.15},
        {celsius, L"20 + 5", 298.15},
    });
}

TEST(Reading, angles_understand_the_degree_sign)
{
    constexpr double half = 3.14159265358979323846;
    checkClose({{makeUnit(angles, 1), L"180°", half}, {makeUnit(angles, 0), L"200 gr", half}});
}

TEST(Reading, feet_and_inch_signs_belong_to_lengths_alone)
{
    checkRefused(makeUnit(angles, 1), {L"5'"});
    checkRefused(makeUnit(forces, 0), {L"5\"", L"1/2"});
}

TEST(Reading, symbols_of_several_characters)
{
    check({
        {makeUnit(accelerations, 0), L"9.81 m/s²", 9.81},
        {makeUnit(accelerations, 0), L"9.81 m/s2", 9.81}, // squares may be typed as a digit
        {makeUnit(stresses, 0), L"2 N/mm2", 2e6},
        {makeUnit(moments, 0), L"3 kN·m", 3000.0}, // the point of a product may be raised
        {makeUnit(speeds, 0), L"36 km/h", 10.0},   // the longest symbol counts
        {makeUnit(times, 0), L"2 min", 120.0},
        {makeUnit(numbers, 0), L"5 %", 0.05}, // a percentage is a hundredth
        {makeUnit(numbers, 1), L"5", 0.05},
    });
    checkRefused(makeUnit(speeds, 0), {L"3 m/s2"});
}

TEST(Reading, values_are_held_within_the_limits)
{
    check({
        {inMetres, L"1e400", 1e290},
        {inMetres, L"-1e300", -1e290},
        {makeUnit(lengths, kilometre), L"1e99999999999999999999", 1e290},
        {inMetres, L"1e290+1e290", 1e290},
        {inMetres, L"1e-400", 0.0}, // too small
        {inMetres, L"1e-99999999999999999999", 0.0},
        {inMetres, L"0e99999", 0.0},
    });
}

TEST(Reading, many_digits_are_rounded_correctly)
{
    check({
        {inMetres, L"0.1000000000000000055511151231257827", 0.1},
        {inMetres, L"9007199254740993", 9007199254740992.0},
        {inMetres, L"123456789012345678901234567890", 123456789012345678901234567890.0},
    });
}

TEST(Reading, a_terminator_inside_a_string_is_not_understood)
{
    int ok = -1;
    EXPECT_EQ(inMetres.String2Double(CString(L"1\0m", 3), &ok, 1), 0.0);
    EXPECT_EQ(ok, 0);
}

TEST(Reading, lone_surrogates_are_not_understood)
{
    const wchar_t text[] = {L'1', static_cast<wchar_t>(0xD800), 0};
    EXPECT_FALSE(understands(inMetres, text));
}

TEST(Reading, a_hundred_thousand_digits_are_one_number)
{
    const std::wstring digits(100000, L'9');
    EXPECT_EQ(si(inMetres, digits.c_str()), 1e290);
    EXPECT_EQ(si(inMetres, (L"0." + std::wstring(100000, L'0') + L"1").c_str()), 0.0);
    EXPECT_EQ(si(inMetres, (L"0." + std::wstring(100000, L'3')).c_str()), 1.0 / 3.0);
}

TEST(Reading, a_sum_of_a_hundred_thousand_characters)
{
    std::wstring text = L"1";
    for (int i = 0; i < 50000; ++i)
        text += L"+1";
    EXPECT_EQ(si(inMetres, text.c_str()), 50001.0);
}

TEST(Reading, long_texts_of_odd_characters_are_refused)
{
    for (const wchar_t c : {L'-', L'\'', L'"', L'/', L'.', L'e', L'm', L' ', L'±'})
        EXPECT_FALSE(understands(inMetres, std::wstring(100000, c).c_str())) << static_cast<unsigned int>(c);
}

TEST(Reading, long_chains_that_invite_looking_ahead_are_read_once)
{
    std::wstring dashes = L"1";
    std::wstring feet = L"1'";
    for (int i = 0; i < 30000; ++i)
    {
        dashes += L"-1/2";
        feet += L"-1'";
    }
    EXPECT_NEAR(si(makeUnit(lengths, inch), dashes.c_str()), (1 - 15000) * c_inch, 1e-6);
    EXPECT_NEAR(si(makeUnit(lengths, inch), feet.c_str()), -29999 * c_foot, 1e-6);
}

TEST(Reading, an_own_factor_holds_for_the_own_symbol_and_bare_numbers)
{
    const CKxUnit unit(forces, 0, 2, L'.', 0.5, 0);
    check({{unit, L"3", 6.0}, {unit, L"3 N", 6.0}, {unit, L"3 kN", 3000.0}});
}

} // namespace
