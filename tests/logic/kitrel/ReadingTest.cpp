// Reading of decimal texts: numbers, signs, exponents, symbols, sums.
#include <gtest/gtest.h>

#include <cmath>

#include "UnitSupport.h"

namespace
{

const CKxUnit inMetres = makeUnit(lengths, metre);

TEST(Reading, a_bare_number_takes_the_unit_of_the_field)
{
    EXPECT_EQ(si(inMetres, L"1.5"), 1.5);
    EXPECT_EQ(si(makeUnit(lengths, millimetre), L"1500"), 1.5);
    EXPECT_EQ(si(makeUnit(lengths, foot), L"2"), 2 * c_foot);
}

TEST(Reading, point_and_comma_are_decimal_signs)
{
    EXPECT_EQ(si(inMetres, L"2.25"), 2.25);
    EXPECT_EQ(si(inMetres, L"2,25"), 2.25);
}

TEST(Reading, digits_may_be_missing_on_one_side_of_the_decimal_sign)
{
    EXPECT_EQ(si(inMetres, L".5"), 0.5);
    EXPECT_EQ(si(inMetres, L",5"), 0.5);
    EXPECT_EQ(si(inMetres, L"5."), 5.0);
}

TEST(Reading, a_decimal_sign_alone_is_no_number)
{
    EXPECT_FALSE(understands(inMetres, L"."));
}

TEST(Reading, two_decimal_signs_are_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"1.5.2"));
}

TEST(Reading, signs_stand_before_the_number)
{
    EXPECT_EQ(si(inMetres, L"-1.5"), -1.5);
    EXPECT_EQ(si(inMetres, L"+1.5"), 1.5);
    EXPECT_EQ(si(inMetres, L"- 1.5"), -1.5);
}

TEST(Reading, the_typographic_minus_is_a_minus)
{
    EXPECT_EQ(si(inMetres, L"\x2212"
                           L"2"),
              -2.0);
}

TEST(Reading, two_signs_are_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"--1"));
    EXPECT_FALSE(understands(inMetres, L"1+-2"));
}

TEST(Reading, a_sign_alone_is_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"-"));
    EXPECT_FALSE(understands(inMetres, L"1+"));
}

TEST(Reading, exponents)
{
    EXPECT_EQ(si(inMetres, L"1e3"), 1000.0);
    EXPECT_EQ(si(inMetres, L"1E-2"), 0.01);
    EXPECT_EQ(si(inMetres, L"2.5e+2"), 250.0);
}

TEST(Reading, an_exponent_without_digits_is_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"1e"));
}

TEST(Reading, blanks_around_the_text_are_passed_over)
{
    EXPECT_EQ(si(inMetres, L" \t 1.5 m  "), 1.5);
}

TEST(Reading, an_unbreakable_blank_is_a_blank)
{
    EXPECT_EQ(si(inMetres, L"1.5\x00A0m"), 1.5);
}

TEST(Reading, the_own_symbol_with_and_without_blank)
{
    EXPECT_EQ(si(inMetres, L"1.5 m"), 1.5);
    EXPECT_EQ(si(inMetres, L"1.5m"), 1.5);
}

TEST(Reading, another_unit_of_the_family_by_its_symbol)
{
    EXPECT_EQ(si(inMetres, L"12 cm"), 0.12);
    EXPECT_EQ(si(inMetres, L"12 dm"), 1.2);
    EXPECT_EQ(si(inMetres, L"12mm"), 0.012);
    EXPECT_EQ(si(inMetres, L"2 km"), 2000.0);
    EXPECT_EQ(si(inMetres, L"10 in"), 0.254);
    EXPECT_EQ(si(inMetres, L"10 ft"), 3.048);
}

TEST(Reading, both_micro_signs_are_understood)
{
    EXPECT_EQ(si(inMetres, L"5 \x00B5m"), 5e-6);
    EXPECT_EQ(si(inMetres, L"5 \x03BCm"), 5e-6);
}

TEST(Reading, symbols_are_in_exact_case)
{
    EXPECT_FALSE(understands(makeUnit(forces, 0), L"3 mN"));
    EXPECT_FALSE(understands(makeUnit(stresses, 0), L"3 mPa"));
    EXPECT_FALSE(understands(inMetres, L"3 CM"));
    EXPECT_EQ(si(makeUnit(forces, 0), L"3 MN"), 3e6);
}

TEST(Reading, a_unit_of_another_family_is_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"3 kN"));
    EXPECT_FALSE(understands(makeUnit(forces, 2), L"3 m"));
}

TEST(Reading, letters_behind_a_symbol_are_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"3 inch"));
    EXPECT_FALSE(understands(inMetres, L"3 mx"));
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
    EXPECT_EQ(si(inMetres, L"1.2+0.3"), 1.5);
    EXPECT_DOUBLE_EQ(si(inMetres, L"100in+3mm+5cm"), 2.593);
    EXPECT_EQ(si(inMetres, L"2 - 0.5 + 1"), 2.5);
    EXPECT_EQ(si(inMetres, L"-1 + 3"), 2.0);
}

TEST(Reading, in_a_sum_each_bare_number_takes_the_unit_of_the_field)
{
    EXPECT_EQ(si(makeUnit(lengths, centimetre), L"100 + 1 m"), 2.0);
}

TEST(Reading, terms_without_an_operator_are_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"1 2"));
}

TEST(Reading, a_sum_with_one_wrong_term_is_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"1 m + 2 kN"));
}

TEST(Reading, temperatures_have_their_zero)
{
    const CKxUnit celsius = makeUnit(temperatures, 1);
    EXPECT_EQ(si(celsius, L"20"), 293.15);
    EXPECT_EQ(si(celsius, L"-273.15"), 0.0);
    EXPECT_DOUBLE_EQ(si(celsius, L"32 °F"), 273.15);
    EXPECT_EQ(si(celsius, L"300 K"), 300.0);
}

TEST(Reading, further_terms_of_a_temperature_are_differences)
{
    EXPECT_DOUBLE_EQ(si(makeUnit(temperatures, 1), L"20 °C + 5 °C"), 298.15);
    EXPECT_DOUBLE_EQ(si(makeUnit(temperatures, 1), L"20 °C - 9 °F"), 288.15);
    EXPECT_DOUBLE_EQ(si(makeUnit(temperatures, 1), L"20 + 5"), 298.15);
}

TEST(Reading, angles_understand_the_degree_sign)
{
    EXPECT_DOUBLE_EQ(si(makeUnit(angles, 1), L"180°"), 3.14159265358979323846);
    EXPECT_DOUBLE_EQ(si(makeUnit(angles, 0), L"200 gr"), 3.14159265358979323846);
}

TEST(Reading, feet_and_inch_signs_belong_to_lengths_alone)
{
    EXPECT_FALSE(understands(makeUnit(angles, 1), L"5'"));
    EXPECT_FALSE(understands(makeUnit(forces, 0), L"5\""));
    EXPECT_FALSE(understands(makeUnit(forces, 0), L"1/2"));
}

TEST(Reading, squares_may_be_typed_as_a_digit)
{
    EXPECT_EQ(si(makeUnit(accelerations, 0), L"9.81 m/s²"), 9.81);
    EXPECT_EQ(si(makeUnit(accelerations, 0), L"9.81 m/s2"), 9.81);
    EXPECT_EQ(si(makeUnit(stresses, 0), L"2 N/mm2"), 2e6);
}

TEST(Reading, the_point_of_a_product_may_be_raised)
{
    EXPECT_EQ(si(makeUnit(moments, 0), L"3 kN·m"), 3000.0);
}

TEST(Reading, the_longest_symbol_counts)
{
    EXPECT_EQ(si(makeUnit(speeds, 0), L"36 km/h"), 10.0);
    EXPECT_EQ(si(makeUnit(times, 0), L"2 min"), 120.0);
    EXPECT_FALSE(understands(makeUnit(speeds, 0), L"3 m/s2"));
}

TEST(Reading, a_percentage_is_a_hundredth)
{
    EXPECT_EQ(si(makeUnit(numbers, 0), L"5 %"), 0.05);
    EXPECT_EQ(si(makeUnit(numbers, 1), L"5"), 0.05);
}

TEST(Reading, values_are_held_within_the_limits)
{
    EXPECT_EQ(si(inMetres, L"1e400"), 1e290);
    EXPECT_EQ(si(inMetres, L"-1e300"), -1e290);
    EXPECT_EQ(si(makeUnit(lengths, kilometre), L"1e99999999999999999999"), 1e290);
    EXPECT_EQ(si(inMetres, L"1e290+1e290"), 1e290);
}

TEST(Reading, values_too_small_are_zero)
{
    EXPECT_EQ(si(inMetres, L"1e-400"), 0.0);
    EXPECT_EQ(si(inMetres, L"1e-99999999999999999999"), 0.0);
    EXPECT_EQ(si(inMetres, L"0e99999"), 0.0);
}

TEST(Reading, many_digits_are_rounded_correctly)
{
    EXPECT_EQ(si(inMetres, L"0.1000000000000000055511151231257827"), 0.1);
    EXPECT_EQ(si(inMetres, L"9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(si(inMetres, L"123456789012345678901234567890"), 123456789012345678901234567890.0);
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
    EXPECT_EQ(si(unit, L"3"), 6.0);
    EXPECT_EQ(si(unit, L"3 N"), 6.0);
    EXPECT_EQ(si(unit, L"3 kN"), 3000.0);
}

} // namespace
