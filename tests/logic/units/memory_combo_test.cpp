// The cases of the unit combo box over a list in memory, and the failures that only such a list can have.
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
} // namespace
