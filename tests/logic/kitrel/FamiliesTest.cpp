// The families, their units and factors, and the accessors of a unit.
#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <string>

#include "UnitSupport.h"

namespace
{

// SI value of one of a unit.
double one(unsigned int family, const wchar_t* text)
{
    return si(makeUnit(family, 0), text);
}

std::wstring name(unsigned int family, unsigned int range)
{
    return makeUnit(family, range).GetName().GetString();
}

TEST(Families, a_default_unit_is_metres_with_three_decimals)
{
    const CKxUnit unit;
    EXPECT_EQ(unit.GetIDUnit(), 1U);
    EXPECT_EQ(unit.GetRange(), 0U);
    EXPECT_EQ(unit.GetPrecision(), 3U);
    EXPECT_EQ(unit.GetSep(), L'.');
    EXPECT_EQ(unit.GetType(), UNITTYPE_METRIC);
    EXPECT_EQ(unit.GetUnitFormat(), UNITFORMAT_DECIMAL);
}

TEST(Families, there_are_21_in_order)
{
    for (unsigned int i = 0; i < 21; ++i)
        EXPECT_EQ(CKxUnit::c_arrayTypeNumber[i][0], i + 1);
}

TEST(Families, the_table_counts_the_units_of_each)
{
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        EXPECT_EQ(makeUnit(row[0], row[1] - 1).GetRange(), row[1] - 1);
        EXPECT_EQ(makeUnit(row[0], row[1]).GetRange(), 0U)
            << "family " << row[0] << " has more units than the table says";
    }
}

TEST(Families, titles_and_names_are_different_within_a_family)
{
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        std::set<std::wstring> titles;
        std::set<std::wstring> names;
        for (unsigned int range = 0; range < row[1]; ++range)
        {
            titles.insert(makeUnit(row[0], range).GetTitle().GetString());
            names.insert(name(row[0], range));
        }
        EXPECT_EQ(titles.size(), row[1]);
        EXPECT_EQ(names.size(), row[1]);
        EXPECT_EQ(titles.count(L""), 0U);
    }
}

TEST(Families, every_unit_reads_its_own_name)
{
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        for (unsigned int range = 0; range < row[1]; ++range)
        {
            const CKxUnit unit = makeUnit(row[0], range);
            EXPECT_EQ(si(unit, (L"3 " + name(row[0], range)).c_str()), si(unit, L"3")) << row[0] << " " << range;
        }
    }
}

TEST(Families, the_nine_families_of_lengths_hold_the_same_units)
{
    const wchar_t* const names[] = {L"m", L"dm", L"cm", L"mm", L"in", L"ft", L"µm", L"km"};
    for (const unsigned int family : {1U, 8U, 11U, 12U, 17U, 18U, 19U, 20U, 21U})
    {
        for (unsigned int range = 0; range < 8; ++range)
            EXPECT_EQ(name(family, range), names[range]);
    }
}

TEST(Families, titles_are_long)
{
    EXPECT_EQ(makeUnit(lengths, millimetre).GetTitle(), L"Millimètres");
    EXPECT_EQ(makeUnit(lengths, inch).GetTitle(), L"Pouces");
    EXPECT_EQ(makeUnit(lengths, foot).GetTitle(), L"Pieds");
}

/// What one text of a family is worth, and how far the value read may be from that.
struct Worth
{
    unsigned int family;
    const wchar_t* text;
    double value;
    double tolerance = 0.0;
};

void check(std::initializer_list<Worth> rows)
{
    for (const Worth& row : rows)
        EXPECT_NEAR(one(row.family, row.text), row.value, row.tolerance)
            << row.family << " " << CStringA(row.text).GetString();
}

TEST(Families, factors_that_are_exact_by_definition)
{
    check({
        {lengths, L"1 in", 0.0254},
        {lengths, L"1 ft", 0.3048},
        {lengths, L"1 mm", 0.001},
        {masses, L"1 lb", 0.45359237},
        {masses, L"16 oz", 0.45359237},
        {masses, L"1 t", 1000.0},
        {accelerations, L"1 g", 9.80665},
        {forces, L"1 kgf", 9.80665},
        {forces, L"1 daN", 10.0},
        {stresses, L"1 bar", 1e5},
        {moments, L"1 MN.m", 1e6},
        {times, L"1 h", 3600.0},
        {times, L"1 j", 86400.0},
        {energies, L"1 kWh", 3.6e6},
        {energies, L"1 Btu", 1055.05585262},
        {dampings, L"1 kN.s/mm", 1e6},
    });
}

// The tolerance is a few units in the last place.
TEST(Families, factors_computed_from_pound_gravity_and_inch)
{
    check({
        {forces, L"1 lbf", 4.4482216152605, 4e-15},
        {forces, L"1 kip", 4448.2216152605, 4e-12},
        {stresses, L"1 psi", 6894.757293168361, 1e-9},
        {stresses, L"1 ksi", 6894757.293168361, 1e-6},
        {stresses, L"144 psf", 6894.757293168361, 1e-9},
        {stresses, L"1 kgf/cm²", 98066.5, 6e-11},
        {moments, L"1 kip.ft", 1355.8179483314004, 9e-13},
        {moments, L"12 lbf.in", 1.3558179483314004, 9e-16},
        {speeds, L"1 mph", 0.44704, 3e-16},
        {dampings, L"1 lbf.s/in", 175.12683524647636, 1e-11},
    });
}

TEST(Families, slug_is_the_mass_that_a_pound_force_speeds_up_by_a_foot_per_second)
{
    check({{masses, L"1 slug", 14.593902937206364, 1e-13}});
}

TEST(Families, the_coefficient_leads_from_si_to_the_unit)
{
    const struct
    {
        unsigned int family, range;
        double coefficient;
    } rows[] = {{lengths, metre, 1.0}, {lengths, millimetre, 1000.0}, {forces, 2, 0.001}, {temperatures, 1, 1.0}};
    for (const auto& row : rows)
        EXPECT_EQ(makeUnit(row.family, row.range).GetCoef(), row.coefficient) << row.family;
}

TEST(Families, only_inches_and_feet_of_lengths_are_imperial)
{
    for (const auto& row : CKxUnit::c_arrayTypeNumber)
    {
        for (unsigned int range = 0; range < row[1]; ++range)
        {
            const std::wstring symbol = name(row[0], range);
            const bool imperial = symbol == L"in" || symbol == L"ft";
            EXPECT_EQ(makeUnit(row[0], range).GetType(), imperial ? UNITTYPE_IMPERIAL : UNITTYPE_METRIC);
        }
    }
}

TEST(Families, an_unknown_family_is_the_one_without_dimension)
{
    EXPECT_EQ(makeUnit(0, 0).GetIDUnit(), 10U);
    EXPECT_EQ(makeUnit(22, 1).GetIDUnit(), 10U);
    CKxUnit unit;
    unit.SetIdUnit(0xFFFFFFFF);
    EXPECT_EQ(unit.GetIDUnit(), 10U);
    EXPECT_EQ(print(unit, 1.5), L"1.500");
}

TEST(Families, an_unknown_index_is_the_first_unit)
{
    CKxUnit unit = makeUnit(lengths, foot);
    unit.SetRange(8);
    EXPECT_EQ(unit.GetRange(), 0U);
    unit.SetRange(0xFFFFFFFF);
    EXPECT_EQ(unit.GetRange(), 0U);
}

TEST(Families, changing_the_family_keeps_an_index_that_it_has)
{
    CKxUnit unit = makeUnit(lengths, kilometre);
    unit.SetIdUnit(forces);
    EXPECT_EQ(unit.GetRange(), 7U);
    unit.SetIdUnit(temperatures);
    EXPECT_EQ(unit.GetRange(), 0U);
}

TEST(Families, changing_the_unit_changes_the_type)
{
    CKxUnit unit;
    unit.SetRange(inch);
    EXPECT_EQ(unit.GetType(), UNITTYPE_IMPERIAL);
    unit.SetRange(millimetre);
    EXPECT_EQ(unit.GetType(), UNITTYPE_METRIC);
}

TEST(Families, an_unknown_format_is_decimal)
{
    CKxUnit unit = architectural(3);
    unit.SetUnitFormat(static_cast<enumUNITFORMAT>(7));
    EXPECT_EQ(unit.GetUnitFormat(), UNITFORMAT_DECIMAL);
    unit.SetUnitFormat(static_cast<enumUNITFORMAT>(-1));
    EXPECT_EQ(unit.GetUnitFormat(), UNITFORMAT_DECIMAL);
}

TEST(Families, the_precision_is_kept_as_it_was_set)
{
    CKxUnit unit;
    unit.SetPrecision(99);
    EXPECT_EQ(unit.GetPrecision(), 99U);
}

TEST(Families, an_own_factor_lasts_until_the_unit_is_set)
{
    CKxUnit unit(forces, 0, 2, L'.', 0.5, 0);
    EXPECT_EQ(unit.GetCoef(), 0.5);
    unit.SetRange(0);
    EXPECT_EQ(unit.GetCoef(), 1.0);
}

TEST(Families, a_factor_that_is_none_is_not_taken)
{
    for (const double factor : {0.0, -1.0, 1e-16, 1e16, 1e308 * 10, -(1e308 * 10) + 1e308 * 10})
        EXPECT_EQ(CKxUnit(forces, 2, 2, L'.', factor, 0).GetCoef(), 0.001);
    EXPECT_EQ(CKxUnit(forces, 2, 2, L'.', 0.5, 1).GetCoef(), 0.001);
    EXPECT_DOUBLE_EQ(CKxUnit(lengths, inch, 2, L'.', 0.5, 0).GetCoef(), 1 / c_inch);
}

TEST(Families, copies_are_equal_and_independent)
{
    CKxUnit unit = makeUnit(lengths, inch, 5, UNITFORMAT_ENGINEERING);
    unit.SetSep(L',');
    const CKxUnit copy(unit);
    CKxUnit assigned;
    assigned = unit;
    unit.SetRange(metre);
    unit.SetPrecision(0);
    for (const CKxUnit* other : {&copy, static_cast<const CKxUnit*>(&assigned)})
    {
        EXPECT_EQ(other->GetRange(), static_cast<unsigned int>(inch));
        EXPECT_EQ(print(*other, c_inch), L"0'-1,00000\"");
    }
}

TEST(Families, a_unit_assigned_to_itself_stays)
{
    CKxUnit unit = makeUnit(forces, 2, 1);
    const CKxUnit& same = unit;
    unit = same;
    EXPECT_EQ(print(unit, 1000.0), L"1.0 kN");
}

TEST(Families, a_unit_has_a_runtime_class)
{
    const CKxUnit unit;
    EXPECT_TRUE(unit.IsKindOf(RUNTIME_CLASS(CKxUnit)));
    EXPECT_STREQ(unit.GetRuntimeClass()->m_lpszClassName, "CKxUnit");
}

TEST(Precisions, decimals_of_the_texts_grow_by_one)
{
    for (unsigned int i = 0; i < 9; ++i)
        EXPECT_EQ(CKxUnit::c_arrayPrecision[i], std::wstring(L"0") + (i == 0 ? L"" : L"." + std::wstring(i, L'0')));
}

TEST(Precisions, the_texts_are_what_a_unit_prints)
{
    for (unsigned int i = 0; i < 9; ++i)
    {
        EXPECT_EQ(CKxUnit::c_arrayPrecision[i], print(makeUnit(numbers, 0, i), 0.0));
        EXPECT_EQ(CKxUnit::c_arrayImperialPrecision[i][1], print(engineering(i), 0.0));
        const double smallest = i == 0 ? 0.0 : c_inch / (1U << i);
        EXPECT_EQ(CKxUnit::c_arrayImperialPrecision[i][0], print(architectural(i), smallest));
    }
}

} // namespace
