// Reading of feet-and-inches texts, by units and by CKxImperialLength.
#include <gtest/gtest.h>

#include "UnitSupport.h"
#include "kitrel/KxImperialLength.h"

namespace
{

const CKxUnit inMetres = makeUnit(lengths, metre);
const CKxUnit inFeet = makeUnit(lengths, foot, 4, UNITFORMAT_ARCHITECTURAL);
const CKxUnit inInches = makeUnit(lengths, inch);

// The inches of a text; -12345 when it was not understood.
double inches(const wchar_t* text, enumIMPERIAL_LENGTH_TYPE type = IMPERIAL_LENGTH_ANY)
{
    double value = 0.0;
    return CKxImperialLength::ImperialStr2Inches(text, type, value) ? value : -12345.0;
}

TEST(FeetAndInches, feet_dash_inches)
{
    EXPECT_EQ(inches(L"1'-6\""), 18.0);
}
TEST(FeetAndInches, feet_blank_inches_and_fraction)
{
    EXPECT_EQ(inches(L"1' 6 1/2\""), 18.5);
}
TEST(FeetAndInches, feet_and_bare_inches)
{
    EXPECT_EQ(inches(L"1'6"), 18.0);
}
TEST(FeetAndInches, feet_and_bare_inches_behind_a_dash)
{
    EXPECT_EQ(inches(L"1'-6"), 18.0);
}
TEST(FeetAndInches, feet_and_bare_inches_with_fraction)
{
    EXPECT_EQ(inches(L"1'-6 1/2"), 18.5);
}
TEST(FeetAndInches, inches_and_fraction)
{
    EXPECT_EQ(inches(L"6 1/2\""), 6.5);
}
TEST(FeetAndInches, a_fraction_alone)
{
    EXPECT_EQ(inches(L"3/4\""), 0.75);
}
TEST(FeetAndInches, feet_alone)
{
    EXPECT_EQ(inches(L"2'"), 24.0);
}
TEST(FeetAndInches, inches_alone)
{
    EXPECT_EQ(inches(L"2\""), 2.0);
}
TEST(FeetAndInches, the_sign_holds_for_feet_and_inches)
{
    EXPECT_EQ(inches(L"-1'-6\""), -18.0);
}
TEST(FeetAndInches, the_sign_holds_when_the_feet_are_zero)
{
    EXPECT_EQ(inches(L"-0'-6\""), -6.0);
}
TEST(FeetAndInches, words)
{
    EXPECT_EQ(inches(L"3 ft 6 in"), 42.0);
}
TEST(FeetAndInches, words_without_blanks)
{
    EXPECT_EQ(inches(L"3ft6in"), 42.0);
}
TEST(FeetAndInches, words_with_a_fraction)
{
    EXPECT_EQ(inches(L"3 ft 6 1/2 in"), 42.5);
}
TEST(FeetAndInches, decimals_of_feet_and_inches)
{
    EXPECT_EQ(inches(L"1.5'-6.25\""), 24.25);
}
TEST(FeetAndInches, more_than_twelve_inches)
{
    EXPECT_EQ(inches(L"1'-18\""), 30.0);
}
TEST(FeetAndInches, two_foot_signs_are_an_inch_sign)
{
    EXPECT_EQ(inches(L"1'-6''"), 18.0);
}
TEST(FeetAndInches, typographic_signs)
{
    EXPECT_EQ(inches(L"1\x2032-6\x2033"), 18.0);
}
TEST(FeetAndInches, curled_signs)
{
    EXPECT_EQ(inches(L"1\x2019-6\x201D"), 18.0);
}
TEST(FeetAndInches, a_fraction_of_feet)
{
    EXPECT_EQ(inches(L"1 1/2'"), 18.0);
}

TEST(FeetAndInches, a_dash_joins_inches_and_fraction_before_the_inch_sign)
{
    EXPECT_EQ(inches(L"6-1/2\""), 6.5);
    EXPECT_EQ(inches(L"1'-6-1/2\""), 18.5);
}

TEST(FeetAndInches, without_the_inch_sign_that_dash_subtracts)
{
    EXPECT_DOUBLE_EQ(si(inInches, L"6-1/2"), 5.5 * c_inch);
    EXPECT_FALSE(understands(inMetres, L"6-1/2"));
}

TEST(FeetAndInches, a_bare_fraction_is_understood_in_inch_and_foot_fields)
{
    EXPECT_DOUBLE_EQ(si(inInches, L"6 1/2"), 6.5 * c_inch);
    EXPECT_DOUBLE_EQ(si(inFeet, L"6 1/2"), 6.5 * c_foot);
    EXPECT_FALSE(understands(inMetres, L"6 1/2"));
}

TEST(FeetAndInches, a_fraction_of_a_metric_unit_is_not_understood)
{
    EXPECT_FALSE(understands(inMetres, L"1/2 cm"));
}

TEST(FeetAndInches, a_division_by_nothing_is_not_understood)
{
    EXPECT_FALSE(understands(inFeet, L"1/0\""));
    EXPECT_FALSE(understands(inFeet, L"1'-6 1/0\""));
    EXPECT_FALSE(understands(inFeet, L"1/\""));
}

TEST(FeetAndInches, behind_the_foot_sign_a_dash_joins)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"1' - 6\""), 18 * c_inch);
}

TEST(FeetAndInches, behind_the_word_a_dash_subtracts)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"3 ft - 6 in"), 30 * c_inch);
}

TEST(FeetAndInches, feet_less_feet_is_a_difference)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"2'-1'"), c_foot);
    EXPECT_DOUBLE_EQ(si(inMetres, L"2'-1'-6\""), 6 * c_inch);
}

TEST(FeetAndInches, feet_less_centimetres_is_a_difference)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"1'-10 cm"), c_foot - 0.1);
}

TEST(FeetAndInches, behind_the_inches_a_dash_subtracts)
{
    EXPECT_EQ(si(inMetres, L"1'-6\"-1'-6\""), 0.0);
}

TEST(FeetAndInches, sums_with_metric_terms)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"1'-6\" + 1 m"), 1.4572);
}

TEST(FeetAndInches, feet_behind_feet_without_operator_are_not_understood)
{
    EXPECT_FALSE(understands(inFeet, L"3' 4'"));
    EXPECT_FALSE(understands(inFeet, L"3' 4 cm"));
}

TEST(FeetAndInches, signs_without_a_number_are_not_understood)
{
    EXPECT_FALSE(understands(inFeet, L"'"));
    EXPECT_FALSE(understands(inFeet, L"\"6"));
    EXPECT_FALSE(understands(inFeet, L"1'-"));
    EXPECT_FALSE(understands(inFeet, L"1'-6\"\""));
}

TEST(FeetAndInches, are_understood_in_a_metre_field)
{
    EXPECT_DOUBLE_EQ(si(inMetres, L"1'-6\""), 0.4572);
}

TEST(FeetAndInches, a_bare_number_is_feet_in_a_foot_field_and_inches_in_an_inch_field)
{
    EXPECT_DOUBLE_EQ(si(inFeet, L"1.5"), 1.5 * c_foot);
    EXPECT_DOUBLE_EQ(si(inInches, L"1.5"), 1.5 * c_inch);
}

TEST(ImperialLength, a_bare_number_is_in_inches)
{
    EXPECT_EQ(inches(L"12"), 12.0);
}

TEST(ImperialLength, a_bare_number_is_in_feet_when_feet_are_expected)
{
    EXPECT_EQ(inches(L"1.5", IMPERIAL_LENGTH_DECIMAL_FEET), 18.0);
    EXPECT_EQ(inches(L"1.5", IMPERIAL_LENGTH_ENGINEERING), 1.5);
}

TEST(ImperialLength, sums_are_not_understood)
{
    EXPECT_EQ(inches(L"1-2"), -12345.0);
    EXPECT_EQ(inches(L"1'+2'"), -12345.0);
}

TEST(ImperialLength, metric_units_are_not_understood)
{
    EXPECT_EQ(inches(L"12 cm"), -12345.0);
}

TEST(ImperialLength, words_are_not_understood)
{
    EXPECT_EQ(inches(L"IPE 300"), -12345.0);
}

TEST(ImperialLength, on_failure_the_result_is_left_alone)
{
    double value = 7.0;
    EXPECT_FALSE(CKxImperialLength::ImperialStr2Inches(L"abc", IMPERIAL_LENGTH_ANY, value));
    EXPECT_FALSE(CKxImperialLength::ImperialStr2Inches(L"", IMPERIAL_LENGTH_ANY, value));
    EXPECT_FALSE(CKxImperialLength::ImperialStr2Inches(nullptr, IMPERIAL_LENGTH_ANY, value));
    EXPECT_EQ(value, 7.0);
}

TEST(ImperialLength, the_type_may_be_any_number)
{
    EXPECT_EQ(inches(L"2", static_cast<enumIMPERIAL_LENGTH_TYPE>(99)), 2.0);
}

} // namespace
