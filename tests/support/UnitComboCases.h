// What a unit combo box does with values, typed texts and picked items: the same cases for the list in memory and for the
// real control. A driver has the control's operations, what a user does (Type, Leave, Pick), and what a test sees.
#pragma once
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <gtest/gtest.h>
#include "kitrel/KxUnit.h"

namespace unitcases
{
/// Family 1 is lengths, entry 0 metres; three decimals.
inline CKxUnit Metre()
{
    return CKxUnit(1, 0, 3, L'.', 1.0, 1);
}

inline std::uint64_t BitsOf(double value)
{
    return std::bit_cast<std::uint64_t>(value);
}
constexpr std::uint64_t noValueBits = 0xDF2192E9EE706E4A;

inline std::wstring Wide(const CString& text)
{
    return {static_cast<const wchar_t*>(text), static_cast<std::size_t>(text.GetLength())};
}
} // namespace unitcases

template <typename Driver> class UnitComboCases : public testing::Test
{
protected:
    UnitComboCases() { combo.SetUnit(unitcases::Metre()); }

    void typeAndLeave(const wchar_t* text)
    {
        combo.Type(text);
        combo.Leave();
    }
    std::wstring textOf(int index) { return unitcases::Wide(combo.Text(index)); }
    std::wstring editText() { return unitcases::Wide(combo.EditText()); }
    double valueOf(int index)
    {
        double value = -77.0;
        EXPECT_EQ(combo.GetValueSI(index, value), 1) << "no value at " << index;
        return value;
    }
    /// The whole list as one text, a star behind a typed item, brackets around the selected one.
    std::wstring shown()
    {
        std::wstring all;
        for (int i = 0; i < combo.Count(); ++i)
        {
            const std::wstring item = textOf(i) + (combo.IsPermanent(i) ? L"" : L"*");
            all += (i == 0 ? L"" : L" | ") + (i == combo.Selected() ? L"[" + item + L"]" : item);
        }
        return all;
    }

    Driver combo;
};

TYPED_TEST_SUITE_P(UnitComboCases);

TYPED_TEST_P(UnitComboCases, a_value_of_the_host_is_shown_as_canonical_text_and_kept_exactly)
{
    this->combo.AddValueSI(1.23456789);
    EXPECT_EQ(this->shown(), L"1.235 m");
    EXPECT_EQ(this->valueOf(0), 1.23456789);
}

TYPED_TEST_P(UnitComboCases, a_text_of_the_host_keeps_its_spelling_and_has_the_value_that_it_says)
{
    EXPECT_EQ(this->combo.AddString(L"12 cm"), 0);
    EXPECT_EQ(this->combo.AddString(L"2,5"), 1);
    EXPECT_EQ(this->shown(), L"12 cm | 2,5");
    EXPECT_DOUBLE_EQ(this->valueOf(0), 0.12);
    EXPECT_EQ(this->valueOf(1), 2.5);
}

TYPED_TEST_P(UnitComboCases, inserted_texts_move_the_values_behind_them)
{
    this->combo.AddValueSI(1.0);
    this->combo.AddValueSI(3.0);
    EXPECT_EQ(this->combo.InsertString(1, L"2 m"), 1);
    EXPECT_EQ(this->combo.InsertString(0, L"0.5 m"), 0);
    EXPECT_EQ(this->combo.InsertString(4, L"4 m"), 4);
    EXPECT_EQ(this->shown(), L"0.5 m | 1.000 m | 2 m | 3.000 m | 4 m");
    EXPECT_EQ(this->valueOf(0), 0.5);
    EXPECT_EQ(this->valueOf(1), 1.0);
    EXPECT_EQ(this->valueOf(2), 2.0);
    EXPECT_EQ(this->valueOf(3), 3.0);
    EXPECT_EQ(this->valueOf(4), 4.0);
}

TYPED_TEST_P(UnitComboCases, inserting_at_minus_one_puts_item_and_value_at_the_end)
{
    this->combo.AddValueSI(1.0);
    EXPECT_EQ(this->combo.InsertString(-1, L"7 m"), 1);
    EXPECT_EQ(this->shown(), L"1.000 m | 7 m");
    EXPECT_EQ(this->valueOf(1), 7.0);
    EXPECT_EQ(this->combo.ValueCount(), 2U);
}

TYPED_TEST_P(UnitComboCases, inserting_outside_the_list_changes_nothing)
{
    this->combo.AddValueSI(1.0);
    for (const int index : {-2, 2, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_LT(this->combo.InsertString(index, L"7 m"), 0) << index;
    EXPECT_EQ(this->shown(), L"1.000 m");
    EXPECT_EQ(this->combo.ValueCount(), 1U);
}

TYPED_TEST_P(UnitComboCases, deleting_takes_the_value_with_the_item_and_answers_how_many_are_left)
{
    for (const double value : {1.0, 2.0, 3.0})
        this->combo.AddValueSI(value);
    EXPECT_EQ(this->combo.DeleteString(1), 2);
    EXPECT_EQ(this->shown(), L"1.000 m | 3.000 m");
    EXPECT_EQ(this->valueOf(1), 3.0);
    EXPECT_EQ(this->combo.ValueCount(), 2U);
}

TYPED_TEST_P(UnitComboCases, deleting_outside_the_list_fails_and_changes_nothing)
{
    this->combo.AddValueSI(1.0);
    for (const unsigned int index : {1U, 2U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
        EXPECT_LT(this->combo.DeleteString(index), 0) << index;
    EXPECT_EQ(this->shown(), L"1.000 m");
    EXPECT_EQ(this->combo.ValueCount(), 1U);
}

TYPED_TEST_P(UnitComboCases, reset_empties_list_and_values_and_keeps_the_unit)
{
    this->combo.AddValueSI(1.0);
    this->typeAndLeave(L"2");
    CKxUnit* const unit = this->combo.GetUnit();
    this->combo.ResetContent();
    EXPECT_EQ(this->combo.Count(), 0);
    EXPECT_EQ(this->combo.ValueCount(), 0U);
    EXPECT_EQ(this->combo.GetUnit(), unit);
    EXPECT_EQ(unitcases::BitsOf(this->combo.GetValueSI()), unitcases::noValueBits);
}

TYPED_TEST_P(UnitComboCases, without_selection_the_value_is_the_no_value_constant_bit_for_bit)
{
    EXPECT_EQ(unitcases::BitsOf(this->combo.GetValueSI()), unitcases::noValueBits);
    this->combo.AddValueSI(1.0);
    EXPECT_EQ(unitcases::BitsOf(this->combo.GetValueSI()), unitcases::noValueBits);
    EXPECT_EQ(this->combo.GetValueSI(), -1.7976931348623157e+150);
    this->combo.Select(0);
    EXPECT_EQ(this->combo.GetValueSI(), 1.0);
    this->combo.ClearControl();
    EXPECT_EQ(unitcases::BitsOf(this->combo.GetValueSI()), unitcases::noValueBits);
    EXPECT_EQ(this->combo.Count(), 1);
}

TYPED_TEST_P(UnitComboCases, a_wrong_index_leaves_the_value_untouched)
{
    this->combo.AddValueSI(1.0);
    double value = -77.0;
    for (const int index : {-1, 1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(this->combo.GetValueSI(index, value), 0) << index;
    EXPECT_EQ(value, -77.0);
}

TYPED_TEST_P(UnitComboCases, values_that_print_alike_are_the_same_value)
{
    this->combo.AddValueSI(1.0);
    this->combo.AddValueSI(2.0001);
    int index = -77;
    EXPECT_EQ(this->combo.FindValueSI(2.0004, index), 1);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(this->combo.FindValueSI(2.001, index), 0);
    EXPECT_EQ(index, -1);
}

TYPED_TEST_P(UnitComboCases, a_higher_duplicate_of_item_0_is_found_before_it)
{
    for (const double value : {5.0, 6.0, 5.0})
        this->combo.AddValueSI(value);
    int index = -77;
    EXPECT_EQ(this->combo.FindValueSI(5.0, index), 1);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(this->combo.FindValueSI(6.0, index), 1);
    EXPECT_EQ(index, 1);
    this->combo.DeleteString(2);
    EXPECT_EQ(this->combo.FindValueSI(5.0, index), 1);
    EXPECT_EQ(index, 0);
}

TYPED_TEST_P(UnitComboCases, items_are_found_whatever_their_case)
{
    this->combo.AddString(L"other");
    this->combo.AddString(L"5.000 M");
    int index = -77;
    EXPECT_EQ(this->combo.FindValueSI(5.0, index), 1);
    EXPECT_EQ(index, 1);
}

TYPED_TEST_P(UnitComboCases, a_typed_value_becomes_the_one_typed_item)
{
    this->combo.AddValueSI(1.0);
    this->combo.AddValueSI(2.0);
    this->typeAndLeave(L"1.5");
    EXPECT_EQ(this->shown(), L"1.000 m | 2.000 m | [1.500 m*]");
    EXPECT_EQ(this->combo.GetValueSI(), 1.5);
    EXPECT_EQ(this->editText(), L"1.500 m");
    EXPECT_EQ(this->combo.Told(), 1);

    this->typeAndLeave(L"1.75");
    EXPECT_EQ(this->shown(), L"1.000 m | 2.000 m | [1.750 m*]");
    EXPECT_EQ(this->combo.GetValueSI(), 1.75);
    EXPECT_EQ(this->combo.ValueCount(), 3U);

    this->typeAndLeave(L"1.000 m");
    EXPECT_EQ(this->shown(), L"[1.000 m] | 2.000 m");
    EXPECT_EQ(this->combo.GetValueSI(), 1.0);
    EXPECT_EQ(this->combo.ValueCount(), 2U);
    EXPECT_EQ(this->combo.Told(), 3);
}

TYPED_TEST_P(UnitComboCases, a_typed_item_in_the_middle_leaves_and_the_selection_stays_on_its_item)
{
    this->combo.AddValueSI(1.0);
    this->typeAndLeave(L"1.5");
    this->combo.AddValueSI(2.0);
    this->combo.AddValueSI(3.0);
    this->typeAndLeave(L"3");
    EXPECT_EQ(this->shown(), L"1.000 m | 2.000 m | [3.000 m]");
    EXPECT_EQ(this->combo.GetValueSI(), 3.0);
    EXPECT_EQ(this->combo.ValueCount(), 3U);
}

TYPED_TEST_P(UnitComboCases, the_text_of_the_typed_item_typed_again_keeps_it)
{
    this->typeAndLeave(L"1.5");
    this->typeAndLeave(L"1.50");
    EXPECT_EQ(this->shown(), L"[1.500 m*]");
    EXPECT_EQ(this->combo.Told(), 2) << "sent also when the value stays the same";
}

TYPED_TEST_P(UnitComboCases, a_permanent_item_that_is_typed_takes_the_fresh_value_and_keeps_its_text)
{
    this->combo.AddValueSI(9.0);
    this->combo.AddString(L"2.000 M");
    this->typeAndLeave(L"2.0003");
    EXPECT_EQ(this->shown(), L"9.000 m | [2.000 M]");
    EXPECT_EQ(this->combo.GetValueSI(), 2.0003);
}

TYPED_TEST_P(UnitComboCases, a_text_that_is_no_number_becomes_silently_the_value_of_the_empty_text)
{
    this->combo.AddValueSI(1.0);
    this->combo.SetVariant(true);
    this->typeAndLeave(L"abc");
    EXPECT_EQ(this->shown(), L"1.000 m | [0.000 m*]");
    EXPECT_EQ(this->combo.GetValueSI(), 0.0);
    EXPECT_EQ(this->editText(), L"0.000 m");
    EXPECT_EQ(this->combo.Told(), 0);
    EXPECT_TRUE(this->combo.GetVariant()) << "only a valid text ends the variant state";
    this->typeAndLeave(L"2");
    EXPECT_FALSE(this->combo.GetVariant());
    EXPECT_EQ(this->shown(), L"1.000 m | [2.000 m*]");
}

TYPED_TEST_P(UnitComboCases, an_empty_edit_field_becomes_the_value_of_the_empty_text)
{
    this->typeAndLeave(L"");
    EXPECT_EQ(this->shown(), L"[0.000 m*]");
    EXPECT_EQ(this->combo.Told(), 0);
}

TYPED_TEST_P(UnitComboCases, the_shape_test_lets_a_text_pass_that_only_starts_like_a_number)
{
    this->typeAndLeave(L"+abc5");
    EXPECT_EQ(this->combo.Told(), 1);
    EXPECT_EQ(this->combo.Count(), 1);
    EXPECT_FALSE(this->combo.IsPermanent(0));
}

TYPED_TEST_P(UnitComboCases, feet_and_inches_typed_in_a_metre_field_are_metres)
{
    this->typeAndLeave(L"1'-6\"");
    EXPECT_EQ(this->shown(), L"[0.457 m*]");
    EXPECT_EQ(this->combo.GetValueSI(), 0.457) << "a new typed item holds what its text says";
}

TYPED_TEST_P(UnitComboCases, picking_an_item_rounds_its_value_to_its_text)
{
    this->combo.AddValueSI(1.23456789);
    this->combo.AddValueSI(2.0);
    this->combo.SetVariant(true);
    this->combo.Pick(0);
    EXPECT_EQ(this->combo.GetValueSI(), 1.235);
    EXPECT_TRUE(this->combo.GetVariant()) << "picking does not touch the variant state";
    EXPECT_EQ(this->combo.Told(), 0);
}

TYPED_TEST_P(UnitComboCases, picking_drops_what_was_typed)
{
    this->combo.AddValueSI(1.0);
    this->combo.Type(L"7");
    EXPECT_TRUE(this->combo.IsChanged());
    this->combo.Pick(0);
    EXPECT_FALSE(this->combo.IsChanged());
    this->combo.Leave();
    EXPECT_EQ(this->shown(), L"[1.000 m]");
    EXPECT_EQ(this->combo.Told(), 0);
}

TYPED_TEST_P(UnitComboCases, leaving_without_a_change_commits_nothing)
{
    this->combo.AddValueSI(1.0);
    this->combo.Leave();
    EXPECT_EQ(this->shown(), L"1.000 m");
    EXPECT_EQ(this->combo.Told(), 0);
    this->typeAndLeave(L"2");
    this->combo.Leave();
    EXPECT_EQ(this->combo.Told(), 1);
}

TYPED_TEST_P(UnitComboCases, typed_text_counts_only_after_the_commit)
{
    this->combo.AddValueSI(1.0);
    this->combo.Pick(0);
    this->combo.Type(L"7");
    EXPECT_NE(this->combo.GetValueSI(), 7.0);
    this->combo.UpdateControlValue();
    EXPECT_EQ(this->combo.GetValueSI(), 7.0);
    EXPECT_FALSE(this->combo.IsChanged());
}

TYPED_TEST_P(UnitComboCases, a_new_precision_of_the_unit_held_counts_for_new_texts_only)
{
    this->combo.AddValueSI(1.0);
    this->combo.GetUnit()->SetPrecision(1);
    this->combo.AddValueSI(2.0);
    EXPECT_EQ(this->shown(), L"1.000 m | 2.0 m");
}

TYPED_TEST_P(UnitComboCases, the_unit_held_is_a_copy_that_may_be_set_again_from_itself)
{
    CKxUnit mine = unitcases::Metre();
    this->combo.SetUnit(mine);
    mine.SetPrecision(0);
    EXPECT_NE(this->combo.GetUnit(), &mine);
    this->combo.AddValueSI(1.0);
    this->combo.SetUnit(*this->combo.GetUnit());
    this->combo.AddValueSI(2.0);
    EXPECT_EQ(this->shown(), L"1.000 m | 2.000 m");
}

TYPED_TEST_P(UnitComboCases, items_taken_from_under_the_control_do_no_harm)
{
    for (const double value : {1.0, 2.0, 3.0})
        this->combo.AddValueSI(value);
    this->combo.StealItem(0);
    this->combo.StealItem(0);
    double value = -77.0;
    EXPECT_EQ(this->combo.GetValueSI(1, value), 0) << "behind the last item there is no value";
    EXPECT_EQ(this->combo.GetValueSI(0, value), 1);
    this->typeAndLeave(L"8");
    this->typeAndLeave(L"9");
    EXPECT_EQ(this->editText(), L"9.000 m");
    this->combo.InsertString(0, L"4 m");
    while (this->combo.DeleteString(0) > 0)
    {
    }
    EXPECT_EQ(this->combo.Count(), 0);
    this->combo.ResetContent();
    EXPECT_EQ(this->combo.ValueCount(), 0U);
}

TYPED_TEST_P(UnitComboCases, values_that_are_no_numbers_do_no_harm)
{
    const double odd[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::max(),
                          std::numeric_limits<double>::lowest(),    std::numeric_limits<double>::denorm_min()};
    int index = 0;
    for (const double value : odd)
    {
        this->combo.AddValueSI(value);
        this->combo.FindValueSI(value, index);
        EXPECT_GE(index, 0) << value << " is found by the text that it was given";
    }
    EXPECT_EQ(this->combo.Count(), 6);
    EXPECT_EQ(this->combo.ValueCount(), 6U);
    EXPECT_TRUE(std::isnan(this->valueOf(0)));
    EXPECT_EQ(this->valueOf(3), std::numeric_limits<double>::max());
    for (int i = 0; i < 6; ++i)
    {
        this->combo.Pick(i);
        EXPECT_TRUE(std::isfinite(this->combo.GetValueSI())) << i;
    }
}

TYPED_TEST_P(UnitComboCases, a_precision_beyond_every_table_does_no_harm)
{
    for (const unsigned int precision : {9U, 255U, 5000U, 0x7FFFFFFFU, 0xFFFFFFFFU})
    {
        this->combo.GetUnit()->SetPrecision(precision);
        this->combo.AddValueSI(1.0 / 3.0);
        this->combo.AddValueSI(std::numeric_limits<double>::max());
    }
    EXPECT_EQ(this->combo.Count(), 10);
}

TYPED_TEST_P(UnitComboCases, items_of_100000_characters_are_taken_whole)
{
    const std::wstring digits(100000, L'1');
    EXPECT_EQ(this->combo.AddString(digits.c_str()), 0);
    EXPECT_EQ(this->textOf(0), digits);
    EXPECT_TRUE(std::isfinite(this->valueOf(0)));
    const std::wstring zeros = L"1." + std::wstring(100000, L'0');
    EXPECT_EQ(this->combo.InsertString(0, zeros.c_str()), 0);
    EXPECT_EQ(this->valueOf(0), 1.0);
}

TYPED_TEST_P(UnitComboCases, a_long_typed_text_is_read_whole)
{
    const std::wstring zeros = L"1." + std::wstring(TypeParam::longestTyped, L'0');
    this->typeAndLeave(zeros.c_str());
    EXPECT_EQ(this->editText(), L"1.000 m");
    EXPECT_EQ(this->combo.GetValueSI(), 1.0);
}

TYPED_TEST_P(UnitComboCases, lone_surrogates_do_no_harm)
{
    const wchar_t lone[] = {L'1', 0xD800, L'5', 0xDC00, 0};
    EXPECT_EQ(this->combo.AddString(lone), 0);
    EXPECT_EQ(this->textOf(0), lone);
    this->typeAndLeave(lone);
    EXPECT_TRUE(std::isfinite(this->combo.GetValueSI()));
    EXPECT_EQ(this->combo.Told(), 1);
}

TYPED_TEST_P(UnitComboCases, a_null_text_is_the_empty_text)
{
    EXPECT_EQ(this->combo.AddString(nullptr), 0);
    EXPECT_EQ(this->combo.InsertString(0, nullptr), 0);
    EXPECT_EQ(this->textOf(0), L"");
    EXPECT_EQ(this->valueOf(0), 0.0);
    EXPECT_EQ(this->combo.ValueCount(), 2U);
}

TYPED_TEST_P(UnitComboCases, a_thousand_commits_leave_one_typed_item)
{
    this->combo.AddValueSI(0.5);
    for (int i = 0; i < 1000; ++i)
        this->typeAndLeave(std::to_wstring(i + 1).c_str());
    EXPECT_EQ(this->shown(), L"0.500 m | [1000.000 m*]");
    EXPECT_EQ(this->combo.ValueCount(), 2U);
    EXPECT_EQ(this->combo.Told(), 1000);
}

REGISTER_TYPED_TEST_SUITE_P(
    UnitComboCases, a_value_of_the_host_is_shown_as_canonical_text_and_kept_exactly,
    a_text_of_the_host_keeps_its_spelling_and_has_the_value_that_it_says, inserted_texts_move_the_values_behind_them,
    inserting_at_minus_one_puts_item_and_value_at_the_end, inserting_outside_the_list_changes_nothing,
    deleting_takes_the_value_with_the_item_and_answers_how_many_are_left,
    deleting_outside_the_list_fails_and_changes_nothing, reset_empties_list_and_values_and_keeps_the_unit,
    without_selection_the_value_is_the_no_value_constant_bit_for_bit, a_wrong_index_leaves_the_value_untouched,
    values_that_print_alike_are_the_same_value, a_higher_duplicate_of_item_0_is_found_before_it,
    items_are_found_whatever_their_case, a_typed_value_becomes_the_one_typed_item,
    a_typed_item_in_the_middle_leaves_and_the_selection_stays_on_its_item,
    the_text_of_the_typed_item_typed_again_keeps_it,
    a_permanent_item_that_is_typed_takes_the_fresh_value_and_keeps_its_text,
    a_text_that_is_no_number_becomes_silently_the_value_of_the_empty_text,
    an_empty_edit_field_becomes_the_value_of_the_empty_text,
    the_shape_test_lets_a_text_pass_that_only_starts_like_a_number, feet_and_inches_typed_in_a_metre_field_are_metres,
    picking_an_item_rounds_its_value_to_its_text, picking_drops_what_was_typed,
    leaving_without_a_change_commits_nothing, typed_text_counts_only_after_the_commit,
    a_new_precision_of_the_unit_held_counts_for_new_texts_only,
    the_unit_held_is_a_copy_that_may_be_set_again_from_itself, items_taken_from_under_the_control_do_no_harm,
    values_that_are_no_numbers_do_no_harm, a_precision_beyond_every_table_does_no_harm,
    items_of_100000_characters_are_taken_whole, a_long_typed_text_is_read_whole, lone_surrogates_do_no_harm,
    a_null_text_is_the_empty_text, a_thousand_commits_leave_one_typed_item);
