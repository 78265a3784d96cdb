// Cutting symbols and tolerances off texts.
#include <gtest/gtest.h>

#include "UnitSupport.h"

namespace
{

std::wstring withoutSymbol(unsigned int family, const wchar_t* text)
{
    CString cut(text);
    CKxUnit::EliminateUnitsSymbol(family, cut);
    return cut.GetString();
}

std::wstring withoutPrecision(const wchar_t* text)
{
    CString cut(text);
    CKxUnit::EliminatePrecision(cut);
    return cut.GetString();
}

TEST(Symbols, are_cut_with_their_blanks)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 cm"), L"12");
    EXPECT_EQ(withoutSymbol(sections, L"12   cm"), L"12");
    EXPECT_EQ(withoutSymbol(sections, L"12cm"), L"12");
}

TEST(Symbols, of_every_length_are_cut)
{
    for (const wchar_t* text : {L"7 m", L"7 dm", L"7 cm", L"7 mm", L"7 in", L"7 ft", L"7 µm", L"7 km"})
        EXPECT_EQ(withoutSymbol(sections, text), L"7");
}

TEST(Symbols, are_cut_behind_a_decimal_sign)
{
    EXPECT_EQ(withoutSymbol(sections, L"12. m"), L"12.");
    EXPECT_EQ(withoutSymbol(sections, L"12,m"), L"12,");
}

TEST(Symbols, behind_a_letter_stay)
{
    EXPECT_EQ(withoutSymbol(sections, L"abc m"), L"abc m");
    EXPECT_EQ(withoutSymbol(sections, L"x12xm"), L"x12xm");
}

TEST(Symbols, alone_stay)
{
    EXPECT_EQ(withoutSymbol(sections, L"m"), L"m");
    EXPECT_EQ(withoutSymbol(sections, L" mm"), L" mm");
}

TEST(Symbols, in_another_case_stay)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 CM"), L"12 CM");
}

TEST(Symbols, of_another_family_stay)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 kN"), L"12 kN");
    EXPECT_EQ(withoutSymbol(forces, L"12 kN"), L"12");
}

TEST(Symbols, inside_a_text_stay)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 cm 5"), L"12 cm 5");
}

TEST(Symbols, only_the_last_one_goes)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 cm 5 mm"), L"12 cm 5");
}

TEST(Symbols, blanks_behind_the_symbol_go_with_it)
{
    EXPECT_EQ(withoutSymbol(sections, L"12 cm  "), L"12");
}

TEST(Symbols, a_text_without_symbol_stays_as_it_is)
{
    EXPECT_EQ(withoutSymbol(sections, L"12"), L"12");
    EXPECT_EQ(withoutSymbol(sections, L"12  "), L"12  ");
    EXPECT_EQ(withoutSymbol(sections, L""), L"");
    EXPECT_EQ(withoutSymbol(sections, L"IPE-300"), L"IPE-300");
}

TEST(Symbols, that_end_with_a_square_are_cut)
{
    EXPECT_EQ(withoutSymbol(accelerations, L"9.81 m/s²"), L"9.81");
    EXPECT_EQ(withoutSymbol(accelerations, L"9.81 m/s2"), L"9.81");
}

TEST(Symbols, that_are_no_letters_are_cut)
{
    EXPECT_EQ(withoutSymbol(numbers, L"5 %"), L"5");
    EXPECT_EQ(withoutSymbol(numbers, L"5 ‰"), L"5");
    EXPECT_EQ(withoutSymbol(angles, L"45°"), L"45");
}

TEST(Symbols, of_an_unknown_family_are_those_without_dimension)
{
    EXPECT_EQ(withoutSymbol(99, L"5 %"), L"5");
}

TEST(Symbols, the_family_without_dimension_cuts_no_empty_symbol)
{
    EXPECT_EQ(withoutSymbol(numbers, L"5"), L"5");
}

TEST(Symbols, what_a_unit_prints_loses_its_symbol)
{
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        for (unsigned int range = 0; range < row[1]; ++range)
            EXPECT_EQ(
                withoutSymbol(row[0], print(makeUnit(row[0], range, 0), 0.0).c_str()).find_first_not_of(L"-0123456789"),
                std::wstring::npos);
    }
}

TEST(Tolerances, are_cut_with_their_blanks)
{
    EXPECT_EQ(withoutPrecision(L"12 ±0.5"), L"12");
    EXPECT_EQ(withoutPrecision(L"12±1"), L"12");
    EXPECT_EQ(withoutPrecision(L"12 ± ,5 "), L"12");
}

TEST(Tolerances, without_a_number_stay)
{
    EXPECT_EQ(withoutPrecision(L"12 ±"), L"12 ±");
    EXPECT_EQ(withoutPrecision(L"12 ±."), L"12 ±.");
    EXPECT_EQ(withoutPrecision(L"12 ±x"), L"12 ±x");
    EXPECT_EQ(withoutPrecision(L"12 ±1.2.3"), L"12 ±1.2.3");
}

TEST(Tolerances, inside_a_text_stay)
{
    EXPECT_EQ(withoutPrecision(L"1±2 x"), L"1±2 x");
}

TEST(Tolerances, only_the_last_one_goes)
{
    EXPECT_EQ(withoutPrecision(L"12±1±2"), L"12±1");
}

TEST(Tolerances, alone_leave_nothing)
{
    EXPECT_EQ(withoutPrecision(L"±3"), L"");
}

TEST(AboutSign, in_front_is_cut)
{
    EXPECT_EQ(withoutPrecision(L"≈12"), L"12");
    EXPECT_EQ(withoutPrecision(L"≈ 12"), L"12");
    EXPECT_EQ(withoutPrecision(L"≈"), L"");
}

TEST(AboutSign, elsewhere_stays)
{
    EXPECT_EQ(withoutPrecision(L"1≈2"), L"1≈2");
}

TEST(AboutSign, goes_together_with_a_tolerance)
{
    EXPECT_EQ(withoutPrecision(L"≈12 ±0.5"), L"12");
    EXPECT_EQ(withoutPrecision(L"≈±1"), L"");
}

TEST(AboutSign, a_text_without_any_mark_stays_as_it_is)
{
    for (const wchar_t* text : {L"", L"12", L" 12 ", L"1'-6\"", L"IPE 300", L"-"})
        EXPECT_EQ(withoutPrecision(text), text);
}

TEST(Marks, long_texts_are_cut_once)
{
    const std::wstring digits(100000, L'1');
    EXPECT_EQ(withoutPrecision((L"≈" + digits + L"±" + digits).c_str()), digits);
    EXPECT_EQ(withoutSymbol(sections, (digits + std::wstring(100000, L' ') + L"mm").c_str()), digits);
}

} // namespace
