// Which texts may be numbers, and how a unit is asked to print.
#include <string>
#include <gtest/gtest.h>
#include "kitrel/KxUnit.h"
#include "units/UnitText.h"

namespace
{
bool accepts(const wchar_t* text)
{
    return UnitText::MayBeNumber(text);
}

std::wstring printed(const CKxUnit& unit, double value)
{
    return std::wstring(UnitText::Canonical(unit, value));
}

TEST(NumberShape, empty_text_is_refused)
{
    EXPECT_FALSE(accepts(L""));
}

TEST(NumberShape, a_text_without_any_digit_is_refused)
{
    for (const wchar_t* text : {L"abc", L"-", L"+", L".", L",", L"-.", L" ", L"\x0660\x0661", L"\xFF11"})
        EXPECT_FALSE(accepts(text)) << text;
}

TEST(NumberShape, the_first_character_must_be_a_digit_a_sign_or_a_separator)
{
    for (const wchar_t* text : {L"x12", L" 12", L"'6", L"\"6", L"e5", L"(1)"})
        EXPECT_FALSE(accepts(text)) << text;
    for (const wchar_t* text : {L"12", L"+1", L"-1", L".5", L",5", L"0", L"9"})
        EXPECT_TRUE(accepts(text)) << text;
}

TEST(NumberShape, behind_sign_and_separator_a_digit_must_stand_third)
{
    for (const wchar_t* text : {L"-,5", L"+,5", L"-.5", L"-,5x", L"-.0abc"})
        EXPECT_TRUE(accepts(text)) << text;
    for (const wchar_t* text : {L"-,x5", L"+,x5", L"-.x5", L"-, 5", L"-..5", L"-,-5"})
        EXPECT_FALSE(accepts(text)) << text;
}

// Plus and point is left out of the pairs on purpose.
TEST(NumberShape, plus_and_point_asks_for_no_digit)
{
    EXPECT_TRUE(accepts(L"+.5"));
    EXPECT_TRUE(accepts(L"+.x5"));
}

// The last of the tests never refuses anything, on purpose.
TEST(NumberShape, a_sign_then_letters_then_a_digit_is_accepted)
{
    for (const wchar_t* text : {L"+abc5", L"-abc5", L".x5", L",abc5", L"--5", L"++,5", L"1abc", L"5-,x"})
        EXPECT_TRUE(accepts(text)) << text;
}

TEST(NumberShape, feet_and_inches_that_start_with_a_digit_or_a_sign_are_accepted)
{
    for (const wchar_t* text : {L"1'-6\"", L"-1'-6 1/2\"", L"6 1/2\"", L"3 ft 6 in"})
        EXPECT_TRUE(accepts(text)) << text;
}

TEST(NumberShape, is_judged_over_the_whole_text_also_behind_a_nul)
{
    const wchar_t withNul[] = {L'+', 0, L'5'};
    EXPECT_TRUE(UnitText::MayBeNumber(CString(withNul, 3)));
    const wchar_t nulFirst[] = {0, L'5'};
    EXPECT_FALSE(UnitText::MayBeNumber(CString(nulFirst, 2)));
}

TEST(NumberShape, long_texts_and_lone_surrogates_are_judged_like_any_other)
{
    EXPECT_TRUE(UnitText::MayBeNumber(CString(L'+', 100000) + L"5"));
    EXPECT_FALSE(UnitText::MayBeNumber(CString(L'+', 100000)));
    const wchar_t surrogateFirst[] = {0xD800, L'5', 0};
    EXPECT_FALSE(accepts(surrogateFirst));
    const wchar_t surrogateBehind[] = {L'5', 0xDC00, 0};
    EXPECT_TRUE(accepts(surrogateBehind));
}

TEST(CanonicalText, has_the_precision_the_separator_and_the_symbol_of_the_unit)
{
    EXPECT_EQ(printed(CKxUnit(1, 0, 3, L'.', 1.0, 1), 1.5), L"1.500 m");
    EXPECT_EQ(printed(CKxUnit(1, 3, 1, L',', 1.0, 1), 1.5), L"1500,0 mm");
    EXPECT_EQ(printed(CKxUnit(2, 2, 2, L'.', 1.0, 1), -1250.0), L"-1.25 kN");
}

TEST(CanonicalText, is_feet_and_inches_in_an_architectural_unit)
{
    CKxUnit feet(1, 5, 2, L'.', 1.0, 1);
    feet.SetUnitFormat(UNITFORMAT_ARCHITECTURAL);
    EXPECT_EQ(printed(feet, 0.4572), L"1'-6\"");
    EXPECT_EQ(UnitText::Read(feet, L"1'-6\""), 0.4572);
}

TEST(CanonicalText, reads_and_prints_to_the_same_text)
{
    const CKxUnit metre(1, 0, 3, L'.', 1.0, 1);
    for (const wchar_t* text : {L"0", L"1.5", L"-2,25", L"12 cm", L"1'-6\"", L"100in+3mm+5cm"})
    {
        const std::wstring first = printed(metre, UnitText::Read(metre, text));
        EXPECT_EQ(printed(metre, UnitText::Read(metre, first.c_str())), first) << text;
    }
}

TEST(CanonicalText, of_an_empty_text_is_that_of_zero)
{
    const CKxUnit metre(1, 0, 3, L'.', 1.0, 1);
    EXPECT_EQ(UnitText::Read(metre, CString()), 0.0);
    EXPECT_EQ(printed(metre, UnitText::Read(metre, CString())), L"0.000 m");
}
} // namespace
