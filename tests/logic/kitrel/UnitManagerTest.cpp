// The working units of a program.
#include <gtest/gtest.h>

#include "UnitSupport.h"
#include "kitrel/KxUnitManager.h"

namespace
{

TEST(UnitManager, holds_a_unit_of_each_family)
{
    const CKxUnitManager manager;
    for (unsigned int family = 1; family <= 21; ++family)
        EXPECT_EQ(manager.GetVisUnit(family).GetIDUnit(), family);
}

TEST(UnitManager, is_metric_at_first)
{
    const CKxUnitManager manager;
    EXPECT_TRUE(manager.IsMetric());
    EXPECT_EQ(print(manager.GetVisUnit(lengths), 1.5), L"1.500 m");
    EXPECT_EQ(print(manager.GetVisUnit(forces), 1500.0), L"1.50 kN");
    EXPECT_EQ(print(manager.GetVisUnit(moments), 1500.0), L"1.50 kN.m");
    EXPECT_EQ(print(manager.GetVisUnit(stresses), 1.5e6), L"1.50 MPa");
    EXPECT_EQ(print(manager.GetVisUnit(temperatures), 293.15), L"20.0 °C");
    EXPECT_EQ(print(manager.GetVisUnit(dampings), 1000.0), L"1.00 kN.s/m");
    EXPECT_EQ(manager.GetUnitType(), 4);
}

TEST(UnitManager, has_imperial_units)
{
    const CKxUnitManager manager(false);
    EXPECT_FALSE(manager.IsMetric());
    EXPECT_EQ(print(manager.GetVisUnit(lengths), 18.5 * c_inch), L"1'-6 1/2\"");
    EXPECT_EQ(print(manager.GetVisUnit(forces), 4448.2216152605), L"1.00 kip");
    EXPECT_EQ(print(manager.GetVisUnit(moments), 1355.8179483314004), L"1.00 kip.ft");
    EXPECT_EQ(print(manager.GetVisUnit(stresses), 6894757.293168361), L"1.00 ksi");
    EXPECT_EQ(print(manager.GetVisUnit(temperatures), 273.15), L"32.0 °F");
    EXPECT_EQ(manager.GetUnitType(), 6);
}

TEST(UnitManager, the_whole_imperial_set_but_times_angles_and_numbers_is_imperial)
{
    const CKxUnitManager manager(false);
    const wchar_t* const names[] = {L"ft",    L"kip",      L"kip.ft", L"lb", L"°",  L"ksi",    L"s",
                                    L"in",    L"°F",       L"",       L"in", L"in", L"ft.lbf", L"ft/s",
                                    L"ft/s²", L"kip.s/ft", L"in",     L"ft", L"ft", L"ft",     L"ft"};
    for (unsigned int family = 1; family <= 21; ++family)
        EXPECT_EQ(manager.GetVisUnit(family).GetName(), names[family - 1]) << family;
}

TEST(UnitManager, gives_a_copy)
{
    const CKxUnitManager manager;
    CKxUnit unit = manager.GetVisUnit(lengths);
    unit.SetRange(millimetre);
    EXPECT_EQ(manager.GetVisUnit(lengths).GetRange(), static_cast<unsigned int>(metre));
}

TEST(UnitManager, takes_a_unit)
{
    CKxUnitManager manager;
    CKxUnit unit = makeUnit(lengths, millimetre, 1);
    manager.SetVisUnit(lengths, unit);
    EXPECT_EQ(print(manager.GetVisUnit(lengths), 1.5), L"1500.0 mm");
    unit.SetRange(foot);
    manager.SetVisUnit(lengths, unit);
    EXPECT_FALSE(manager.IsMetric());
}

TEST(UnitManager, does_not_take_a_unit_of_another_family)
{
    CKxUnitManager manager;
    CKxUnit unit = makeUnit(forces, 0);
    manager.SetVisUnit(lengths, unit);
    manager.SetVisUnit(0, unit);
    manager.SetVisUnit(22, unit);
    EXPECT_EQ(manager.GetVisUnit(lengths).GetIDUnit(), 1U);
    EXPECT_EQ(manager.GetVisUnit(forces).GetRange(), 2U);
}

TEST(UnitManager, an_unknown_family_is_the_one_without_dimension)
{
    const CKxUnitManager manager;
    EXPECT_EQ(manager.GetVisUnit(0).GetIDUnit(), 10U);
    EXPECT_EQ(manager.GetVisUnit(0xFFFFFFFF).GetIDUnit(), 10U);
}

TEST(UnitManager, keeps_the_name_of_the_style)
{
    CKxUnitManager manager;
    EXPECT_EQ(manager.GetNameStyleUnit(), L"");
    manager.SetNameStyleUnit(L"Bureau");
    EXPECT_EQ(manager.GetNameStyleUnit(), L"Bureau");
    manager.SetNameStyleUnit(nullptr);
    EXPECT_EQ(manager.GetNameStyleUnit(), L"");
}

TEST(UnitManager, keeps_no_style_files_yet_and_says_so)
{
    CKxUnitManager manager;
    manager.SetNameStyleUnit(L"Bureau");
    EXPECT_EQ(manager.SaveStyleUnit(), 0);
    EXPECT_EQ(manager.SaveAsStyleUnit(L"Autre"), 0);
    EXPECT_EQ(manager.LoadStyleUnit(L"Bureau"), 0);
    EXPECT_EQ(manager.GetNameStyleUnit(), L"Bureau");
}

TEST(UnitManager, the_extension_of_style_files_has_four_characters)
{
    const CKxUnitManager manager;
    EXPECT_EQ(manager.m_strStyleExtension.GetLength(), 4);
    EXPECT_EQ(manager.m_strStyleExtension[0], L'.');
}

TEST(UnitManager, takes_an_input_unit_from_1_to_6)
{
    CKxUnitManager manager;
    manager.SetUnitType(1);
    EXPECT_EQ(manager.GetUnitType(), 1);
    manager.SetUnitType(0);
    manager.SetUnitType(7);
    EXPECT_EQ(manager.GetUnitType(), 1);
}

TEST(UnitManager, copies_are_independent)
{
    CKxUnitManager manager;
    manager.SetNameStyleUnit(L"Bureau");
    const CKxUnitManager copy(manager);
    CKxUnit unit = makeUnit(lengths, foot);
    manager.SetVisUnit(lengths, unit);
    manager.SetNameStyleUnit(L"Autre");
    EXPECT_TRUE(copy.IsMetric());
    EXPECT_EQ(copy.GetNameStyleUnit(), L"Bureau");
    CKxUnitManager assigned(false);
    assigned = copy;
    EXPECT_TRUE(assigned.IsMetric());
}

} // namespace

TEST(UnitManager, whoever_keeps_a_pointer_can_tell_when_it_ended)
{
    std::weak_ptr<const void> life;
    {
        CKxUnitManager manager;
        life = manager.GetLife();
        EXPECT_FALSE(life.expired());
        {
            CKxUnitManager copy(manager);
            manager = copy;
            EXPECT_FALSE(life.expired()) << "assigned to, it lives on";
        }
        EXPECT_FALSE(life.expired()) << "a copy has a life of its own";
    }
    EXPECT_TRUE(life.expired());
}
