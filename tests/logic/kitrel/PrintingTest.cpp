// Printing of values: decimal, architectural, engineering.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "UnitSupport.h"

namespace
{

const CKxUnit inMetres = makeUnit(lengths, metre);

std::wstring printWith(const CKxUnit& unit, double value, int symbol, int zeros, int valueIsSI = 1,
                       unsigned int longest = 50)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    unit.Double2String(buffer, value, symbol, L"%.*f", zeros, valueIsSI, longest);
    return buffer;
}

TEST(DecimalPrinting, has_the_precision_and_the_symbol)
{
    EXPECT_EQ(print(inMetres, 1.5), L"1.500 m");
    EXPECT_EQ(print(makeUnit(lengths, millimetre, 0), 1.5), L"1500 mm");
    EXPECT_EQ(print(makeUnit(forces, 2, 2), 12345.0), L"12.35 kN"); // the half goes up
}

TEST(DecimalPrinting, negative_values)
{
    EXPECT_EQ(print(inMetres, -0.25), L"-0.250 m");
}

TEST(DecimalPrinting, zero_has_no_sign)
{
    EXPECT_EQ(print(inMetres, 0.0), L"0.000 m");
    EXPECT_EQ(print(inMetres, -0.0), L"0.000 m");
    EXPECT_EQ(print(inMetres, -0.0004), L"0.000 m");
}

TEST(DecimalPrinting, halves_go_away_from_zero)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 2), 0.125), L"0.13 m");
    EXPECT_EQ(print(makeUnit(lengths, metre, 2), -0.125), L"-0.13 m");
    EXPECT_EQ(print(makeUnit(lengths, metre, 0), 2.5), L"3 m");
}

TEST(DecimalPrinting, a_typed_half_goes_up_though_its_double_lies_below)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 2), 1.005), L"1.01 m");
    EXPECT_EQ(print(makeUnit(lengths, centimetre, 1), 0.1285), L"12.9 cm");
}

TEST(DecimalPrinting, rounding_carries)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 2), 9.999), L"10.00 m");
}

TEST(DecimalPrinting, the_separator_is_the_units_own)
{
    CKxUnit unit = inMetres;
    unit.SetSep(L',');
    EXPECT_EQ(print(unit, 1.5), L"1,500 m");
}

TEST(DecimalPrinting, any_other_separator_is_a_point)
{
    for (const wchar_t separator : {L'\0', L'5', L'-', L'x', L' '})
    {
        CKxUnit unit = inMetres;
        unit.SetSep(separator);
        EXPECT_EQ(print(unit, 1.5), L"1.500 m");
        EXPECT_EQ(unit.GetSep(), L'.');
    }
}

TEST(DecimalPrinting, the_symbol_can_be_left_out)
{
    EXPECT_EQ(printWith(inMetres, 1.5, 0, 1), L"1.500");
}

TEST(DecimalPrinting, closing_zeros_can_be_left_out)
{
    EXPECT_EQ(printWith(inMetres, 1.5, 1, 0), L"1.5 m");
    EXPECT_EQ(printWith(inMetres, 2.0, 1, 0), L"2 m");
    EXPECT_EQ(printWith(inMetres, 1.05, 1, 0), L"1.05 m");
    EXPECT_EQ(printWith(inMetres, 100.0, 1, 0), L"100 m");
}

TEST(DecimalPrinting, the_value_can_be_in_the_unit_itself)
{
    EXPECT_EQ(printWith(makeUnit(lengths, millimetre), 12.5, 1, 1, 0), L"12.500 mm");
    EXPECT_EQ(printWith(makeUnit(temperatures, 1, 1), 20.0, 1, 1, 0), L"20.0 °C");
}

TEST(DecimalPrinting, the_format_is_not_looked_at)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    for (const wchar_t* format : {static_cast<const wchar_t*>(nullptr), L"", L"%s%s%n", L"%d"})
    {
        inMetres.Double2String(buffer, 1.5, 1, format, 1, 1, 50);
        EXPECT_STREQ(buffer, L"1.500 m");
    }
}

TEST(DecimalPrinting, the_buffer_may_be_null)
{
    EXPECT_EQ(inMetres.Double2String(nullptr, 1.5, 1, L"%.*f", 1, 1, 50), L"1.500 m");
}

TEST(DecimalPrinting, the_result_is_the_text_of_the_buffer)
{
    wchar_t buffer[CKxUnit::c_nTextSize];
    EXPECT_EQ(inMetres.Double2String(buffer, 1.5, 1, L"%.*f", 1, 1, 50), buffer);
}

TEST(DecimalPrinting, fourteen_significant_digits_at_most)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 8), 123456789.123456789), L"123456789.12346000 m");
    EXPECT_EQ(print(makeUnit(lengths, metre, 0), 12345678901234567.0), L"12345678901235000 m");
}

TEST(DecimalPrinting, twelve_decimals_at_most)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 20), 0.5), L"0.500000000000 m");
    EXPECT_EQ(print(makeUnit(lengths, metre, 0xFFFFFFFF), 0.5), L"0.500000000000 m");
}

TEST(DecimalPrinting, a_number_that_is_too_long_gets_an_exponent)
{
    EXPECT_EQ(print(inMetres, 1e45), L"1" + std::wstring(45, L'0') + L".000 m"); // 50 characters
    EXPECT_EQ(print(inMetres, 1e46), L"1e+46 m");
    EXPECT_EQ(print(inMetres, -1.25e60), L"-1.25e+60 m");
    EXPECT_EQ(printWith(inMetres, 1.25e24, 1, 1, 1, 24), L"1.25e+24 m");
}

TEST(DecimalPrinting, the_longest_fixed_notation_is_held_between_24_and_200)
{
    EXPECT_EQ(printWith(makeUnit(lengths, metre, 0), 1e23, 0, 1, 1, 0), L"1" + std::wstring(23, L'0'));
    EXPECT_EQ(printWith(makeUnit(lengths, metre, 0), 1e24, 0, 1, 1, 0), L"1e+24");
    EXPECT_EQ(printWith(makeUnit(lengths, metre, 0), 1e199, 0, 1, 1, 0xFFFFFFFF), L"1" + std::wstring(199, L'0'));
    EXPECT_EQ(printWith(makeUnit(lengths, metre, 0), 1e200, 0, 1, 1, 0xFFFFFFFF), L"1e+200");
}

TEST(DecimalPrinting, not_a_number_prints_zero)
{
    EXPECT_EQ(print(inMetres, std::numeric_limits<double>::quiet_NaN()), L"0.000 m");
}

TEST(DecimalPrinting, values_beyond_the_limits_are_held)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(print(inMetres, infinity), L"1e+290 m");
    EXPECT_EQ(print(inMetres, -infinity), L"-1e+290 m");
    EXPECT_EQ(print(inMetres, 1.7e308), L"1e+290 m");
}

TEST(DecimalPrinting, the_no_value_constant_of_the_controls_has_a_text)
{
    EXPECT_EQ(print(inMetres, -1.7976931348623157e+150), L"-1.7976931348623e+150 m");
}

TEST(DecimalPrinting, the_degree_sign_stands_at_the_number)
{
    EXPECT_EQ(print(makeUnit(angles, 1, 2), 3.14159265358979323846 / 4), L"45.00°");
}

TEST(DecimalPrinting, a_unit_without_symbol_prints_the_number_alone)
{
    EXPECT_EQ(print(makeUnit(numbers, 0, 2), 0.5), L"0.50");
    EXPECT_EQ(print(makeUnit(numbers, 1, 1), 0.5), L"50.0 %");
}

TEST(DecimalPrinting, temperatures)
{
    EXPECT_EQ(print(makeUnit(temperatures, 1, 2), 293.15), L"20.00 °C");
    EXPECT_EQ(print(makeUnit(temperatures, 2, 1), 273.15), L"32.0 °F");
}

TEST(DecimalPrinting, a_metric_unit_prints_decimals_whatever_its_format)
{
    EXPECT_EQ(print(makeUnit(lengths, metre, 3, UNITFORMAT_ARCHITECTURAL), 1.5), L"1.500 m");
    EXPECT_EQ(print(makeUnit(lengths, metre, 3, UNITFORMAT_ENGINEERING), 1.5), L"1.500 m");
}

TEST(DecimalPrinting, feet_and_inches_in_decimal_format)
{
    EXPECT_EQ(print(makeUnit(lengths, foot, 2), 0.4572), L"1.50 ft");
    EXPECT_EQ(print(makeUnit(lengths, inch, 2), 0.4572), L"18.00 in");
}

TEST(ArchitecturalPrinting, feet_inches_and_a_reduced_fraction)
{
    EXPECT_EQ(print(architectural(4), 18.5 * c_inch), L"1'-6 1/2\"");
    EXPECT_EQ(print(architectural(4), 18.0625 * c_inch), L"1'-6 1/16\"");
    EXPECT_EQ(print(architectural(4), 18.75 * c_inch), L"1'-6 3/4\"");
}

TEST(ArchitecturalPrinting, whole_inches_have_no_fraction)
{
    EXPECT_EQ(print(architectural(4), 18 * c_inch), L"1'-6\"");
}

TEST(ArchitecturalPrinting, less_than_a_foot_has_zero_feet)
{
    EXPECT_EQ(print(architectural(4), 0.5 * c_inch), L"0'-0 1/2\"");
    EXPECT_EQ(print(architectural(4), 0.0), L"0'-0\"");
}

TEST(ArchitecturalPrinting, negative_values)
{
    EXPECT_EQ(print(architectural(1), -18.5 * c_inch), L"-1'-6 1/2\"");
    EXPECT_EQ(print(architectural(1), -6 * c_inch), L"-0'-6\"");
}

TEST(ArchitecturalPrinting, a_value_that_rounds_to_zero_has_no_sign)
{
    EXPECT_EQ(print(architectural(1), -0.1 * c_inch), L"0'-0\"");
}

TEST(ArchitecturalPrinting, carries_reach_the_feet)
{
    EXPECT_EQ(print(architectural(3), 11.9999 * c_inch), L"1'-0\"");
    EXPECT_EQ(print(architectural(3), 23.99 * c_inch), L"2'-0\"");
    EXPECT_EQ(print(architectural(3), 6.9999 * c_inch), L"0'-7\"");
}

TEST(ArchitecturalPrinting, precision_zero_is_whole_inches)
{
    EXPECT_EQ(print(architectural(0), 6.4 * c_inch), L"0'-6\"");
    EXPECT_EQ(print(architectural(0), 6.5 * c_inch), L"0'-7\"");
}

TEST(ArchitecturalPrinting, the_finest_fraction_is_a_256th)
{
    EXPECT_EQ(print(architectural(8), c_inch / 256), L"0'-0 1/256\"");
    EXPECT_EQ(print(architectural(99), c_inch / 256), L"0'-0 1/256\"");
}

TEST(ArchitecturalPrinting, the_inch_field_prints_feet_too)
{
    EXPECT_EQ(print(makeUnit(lengths, inch, 2, UNITFORMAT_ARCHITECTURAL), 18.25 * c_inch), L"1'-6 1/4\"");
}

TEST(ArchitecturalPrinting, the_signs_stay_without_the_symbol)
{
    EXPECT_EQ(printWith(architectural(2), 18.25 * c_inch, 0, 1), L"1'-6 1/4\"");
}

TEST(ArchitecturalPrinting, far_lengths_are_inches_with_an_exponent)
{
    EXPECT_EQ(print(architectural(2), 1e12 * c_inch), L"1e+12\"");
    EXPECT_EQ(print(architectural(2), -2.5e20 * c_inch), L"-2.5e+20\"");
}

TEST(EngineeringPrinting, feet_and_decimal_inches)
{
    EXPECT_EQ(print(engineering(2), 18.5 * c_inch), L"1'-6.50\"");
    EXPECT_EQ(print(engineering(0), 18 * c_inch), L"1'-6\"");
    EXPECT_EQ(print(engineering(3), 0.25 * c_inch), L"0'-0.250\"");
}

TEST(EngineeringPrinting, negative_values)
{
    EXPECT_EQ(print(engineering(1), -18.5 * c_inch), L"-1'-6.5\"");
}

TEST(EngineeringPrinting, carries_reach_the_feet)
{
    EXPECT_EQ(print(engineering(2), 11.9999 * c_inch), L"1'-0.00\"");
    EXPECT_EQ(print(engineering(1), 23.96 * c_inch), L"2'-0.0\"");
}

TEST(EngineeringPrinting, the_separator_is_the_units_own)
{
    CKxUnit unit = engineering(1);
    unit.SetSep(L',');
    EXPECT_EQ(print(unit, 18.5 * c_inch), L"1'-6,5\"");
}

TEST(EngineeringPrinting, closing_zeros_can_be_left_out)
{
    EXPECT_EQ(printWith(engineering(3), 18.5 * c_inch, 1, 0), L"1'-6.5\"");
    EXPECT_EQ(printWith(engineering(3), 18 * c_inch, 1, 0), L"1'-6\"");
}

TEST(Printing, the_longest_texts_fit_the_promised_buffer)
{
    size_t longest = 0;
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        for (unsigned int range = 0; range < row[1]; ++range)
        {
            for (unsigned int precision : {0U, 8U, 12U})
            {
                for (int format = 0; format < 3; ++format)
                {
                    const CKxUnit unit = makeUnit(row[0], range, precision, static_cast<enumUNITFORMAT>(format));
                    for (double value = -1.2345678901234567; value > -1e290; value *= 10)
                        longest = std::max(longest, printWith(unit, value, 1, 1, 1, 200).size());
                }
            }
        }
    }
    EXPECT_GE(longest, 200U);
    EXPECT_LT(longest, 256U);
}

} // namespace
