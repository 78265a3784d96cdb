// The cases of the unit combo box over a list in memory, and the failures that only such a list can have.
#include <iterator>
#include <random>
#include "support/MemoryUnitCombo.h"
#include "support/UnitComboCases.h"

INSTANTIATE_TYPED_TEST_SUITE_P(OverMemory, UnitComboCases, MemoryUnitCombo);

namespace
{
using unitcases::Metre;

TEST(UnitValueListWithoutUnit, does_nothing_and_answers_as_a_failing_list)
{
    MemoryUnitCombo combo;
    combo.AddValueSI(1.0);
    EXPECT_EQ(combo.AddString(L"1"), -1);
    EXPECT_EQ(combo.InsertString(0, L"1"), -1);
    int index = 77;
    EXPECT_EQ(combo.FindValueSI(1.0, index), 0);
    EXPECT_EQ(index, -1);
    combo.Type(L"5");
    combo.UpdateControlValue();
    EXPECT_EQ(combo.list.told, 0);
    EXPECT_EQ(combo.EditText(), L"5");
    EXPECT_EQ(combo.Count(), 0);
    EXPECT_EQ(combo.ValueCount(), 0U);
}

TEST(UnitValueListWithoutUnit, picking_still_clears_the_pending_change)
{
    MemoryUnitCombo combo;
    combo.list.AddString(L"from elsewhere");
    combo.Type(L"5");
    combo.Pick(0);
    EXPECT_FALSE(combo.IsChanged());
}

TEST(UnitValueListFailing, a_refused_insertion_leaves_the_values_alone)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.list.refuseInsertions = true;
    combo.AddValueSI(1.0);
    EXPECT_EQ(combo.AddString(L"1"), -1);
    EXPECT_EQ(combo.InsertString(0, L"1"), -1);
    EXPECT_EQ(combo.InsertString(-1, L"1"), -1);
    EXPECT_EQ(combo.ValueCount(), 0U);
}

TEST(UnitValueListFailing, a_commit_that_the_list_refuses_clears_the_selection_and_the_typed_item)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.AddValueSI(1.0);
    combo.Type(L"2");
    combo.Leave();
    combo.list.refuseInsertions = true;
    combo.Type(L"3");
    combo.Leave();
    EXPECT_EQ(combo.Selected(), -1);
    EXPECT_EQ(combo.Count(), 1) << "the typed item is not the selected one, and leaves";
    EXPECT_EQ(combo.ValueCount(), 1U);
    EXPECT_EQ(combo.EditText(), L"");
    EXPECT_EQ(combo.Told(), 2);
}

TEST(UnitValueListFailing, a_sweep_that_the_list_refuses_ends)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.Type(L"2");
    combo.Leave();
    combo.list.refuseDeletions = true;
    combo.Type(L"3");
    combo.Leave();
    EXPECT_EQ(combo.Count(), 2);
    EXPECT_EQ(combo.Selected(), 1);
    EXPECT_EQ(combo.DeleteString(0), -1);
    EXPECT_EQ(combo.ValueCount(), 2U);
    combo.list.refuseDeletions = false;
    combo.Type(L"4");
    combo.Leave();
    EXPECT_EQ(combo.Count(), 1) << "both leave at the next commit";
    EXPECT_EQ(combo.GetValueSI(), 4.0);
}

TEST(UnitValueListCommit, the_parent_hears_before_the_list_changes)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.SetVariant(true);
    combo.list.onValidated = [&combo]
    {
        EXPECT_EQ(combo.Count(), 0);
        EXPECT_EQ(combo.EditText(), L"1.5");
        EXPECT_FALSE(combo.GetVariant());
        EXPECT_FALSE(combo.IsChanged());
        return true;
    };
    combo.Type(L"1.5");
    combo.Leave();
    EXPECT_EQ(combo.Told(), 1);
    EXPECT_EQ(combo.Count(), 1);
}

TEST(UnitValueListCommit, stops_when_the_parent_ended_the_control)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.list.onValidated = [] { return false; };
    combo.Type(L"1.5");
    combo.Leave();
    EXPECT_EQ(combo.Count(), 0);
    EXPECT_EQ(combo.EditText(), L"1.5");
}

TEST(UnitValueListCommit, uses_the_unit_that_the_parent_set_meanwhile)
{
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    combo.list.onValidated = [&combo]
    {
        CKxUnit coarse = Metre();
        coarse.SetPrecision(1);
        combo.SetUnit(coarse);
        combo.ResetContent();
        return true;
    };
    combo.AddValueSI(9.0);
    combo.Type(L"1.25");
    combo.Leave();
    EXPECT_EQ(combo.Count(), 1);
    EXPECT_EQ(combo.ValueCount(), 1U);
    EXPECT_EQ(combo.EditText(), L"1.3 m") << "the typed text was taken before the parent heard of it";
    EXPECT_EQ(combo.GetValueSI(), 1.3);
}

// Whatever a host and a user do: the values stay in step with the items, and a commit leaves one typed item, the selected.
TEST(UnitValueListInvariants, hold_over_random_operations)
{
    const wchar_t* const texts[] = {L"1.5",   L"1.500 M", L"abc", L"",     L"-,x5", L"+.x5",
                                    L"12 cm", L"1'-6\"",  L"2",   L"3 kN", L"1e300"};
    std::mt19937 random(20240602); // a fixed seed
    const auto below = [&random](unsigned int bound) { return static_cast<int>(random() % bound); };
    MemoryUnitCombo combo;
    combo.SetUnit(Metre());
    for (int round = 0; round < 20000; ++round)
    {
        const wchar_t* const text = texts[below(std::size(texts))];
        switch (below(8))
        {
        case 0:
            combo.AddValueSI(below(5) / 3.0);
            break;
        case 1:
            combo.AddString(text);
            break;
        case 2:
            combo.InsertString(below(9) - 2, text);
            break;
        case 3:
            combo.DeleteString(static_cast<unsigned int>(below(20) - 2));
            break;
        case 4:
            combo.Pick(below(9) - 1);
            break;
        case 5:
            combo.list.refuseInsertions = below(10) == 0;
            break;
        case 6:
            if (below(30) == 0)
                combo.ResetContent();
            break;
        default:
        {
            combo.Type(text);
            combo.Leave();
            int typed = 0;
            for (int i = 0; i < combo.Count(); ++i)
            {
                typed += combo.IsPermanent(i) ? 0 : 1;
                ASSERT_TRUE(combo.IsPermanent(i) || i == combo.Selected()) << round;
            }
            ASSERT_LE(typed, 1) << round;
            break;
        }
        }
        ASSERT_EQ(combo.ValueCount(), static_cast<std::size_t>(combo.Count())) << round;
    }
}
} // namespace
