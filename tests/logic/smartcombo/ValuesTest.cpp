// Remembered values of the smart combo box: added, deleted, fetched, sorted, selected.
#include <utility>
#include "SmartFixture.h"

TEST_F(SmartCombo, begins_free_of_format_sorted_and_untouched)
{
    const SmartComboData& data = smart.data();
    EXPECT_EQ(elements(), L"");
    EXPECT_EQ(formatText(), L"");
    EXPECT_EQ(data.uppercase, 1);
    EXPECT_EQ(data.sort, 1);
    EXPECT_EQ(data.showButtons, 1);
    EXPECT_EQ(data.autoAdd, 0);
    EXPECT_EQ(data.selectedFormat, 0);
    EXPECT_EQ(data.currentBitmap, 0xFFFFFFFFU);
    EXPECT_EQ(data.variant, 0);
    EXPECT_EQ(data.bitmapMode, BITMAPMODE_NONE);
    EXPECT_EQ(data.visibility, 0);
    EXPECT_TRUE(data.list.IsEmpty() && data.formatList.IsEmpty() && data.filterList.IsEmpty());
}

TEST_F(SmartCombo, values_go_where_sort_sends_them)
{
    const struct
    {
        int sort;
        bool comboSorts;
        const wchar_t* values;
        const wchar_t* shown;
    } rows[] = {
        {1, false, L"b C a", L"b C a / a b C / "},
        {1, true, L"b C a", L"a b C / a b C / "},
        {0, false, L"b C a", L"b C a / b C a / "},
        {0, true, L"b C a", L"a b C / b C a / "},
        {1, false, L"B a b A", L"B a / a B / "},
        {0, false, L"b B b", L"b / b / "},
        {1, false, L"_ 10 9 z", L"_ 10 9 z / 10 9 _ z / "},
    };
    for (const auto& row : rows)
    {
        TestedSmartCombo other;
        other.data().sort = row.sort;
        other.combo().keepSorted = row.comboSorts;
        CStringList values;
        TestedSmartCombo::fill(values, row.values);
        for (POSITION place = values.GetHeadPosition(); place != nullptr;)
            other.call().AddStringCombo(values.GetNext(place));
        EXPECT_EQ(other.shown(), row.shown) << row.values;
    }
}

TEST_F(SmartCombo, a_value_that_differs_in_case_only_is_there_already)
{
    remember(L"Beton");
    smart.call().AddStringCombo(L"BETON");
    smart.call().AddStringCombo(L"beton");
    EXPECT_EQ(smart.shown(), L"Beton / Beton / ");
}

// The platform's search never finds the empty text.
TEST_F(SmartCombo, the_empty_value_is_added_anew_each_time)
{
    smart.call().AddStringCombo(L"");
    smart.call().AddStringCombo(L"");
    EXPECT_EQ(smart.data().list.GetCount(), 2);
    EXPECT_EQ(smart.combo().GetCount(), 2);
}

TEST_F(SmartCombo, a_list_that_sort_never_ordered_takes_a_value_before_the_first_item_above_it)
{
    remember(L"D A C", 0);
    smart.data().sort = 1;
    smart.call().AddStringCombo(L"B");
    EXPECT_EQ(smart.shown(), L"D A C B / B D A C / ");
}

TEST_F(SmartCombo, deleting_by_index_takes_the_item_and_the_equal_value)
{
    remember(L"A B C");
    smart.combo().SetCurSel(2);
    smart.call().DeleteStringCombo(1U);
    EXPECT_EQ(smart.shown(), L"A [C] / A C / C");
}

TEST_F(SmartCombo, deleting_by_an_index_outside_deletes_nothing)
{
    remember(L"A B");
    smart.call().AddStringCombo(L"");
    for (const unsigned int index : {3U, 100U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
        smart.call().DeleteStringCombo(index);
    EXPECT_EQ(smart.combo().GetCount(), 3);
    EXPECT_EQ(smart.data().list.GetCount(), 3) << "the empty value stays, though an item outside has no text";
}

TEST_F(SmartCombo, deleting_an_item_that_is_not_in_the_list_leaves_the_list)
{
    remember(L"A");
    smart.combo().AddString(L"from elsewhere");
    smart.call().DeleteStringCombo(1U);
    EXPECT_EQ(smart.shown(), L"A / A / ");
}

TEST_F(SmartCombo, deleting_by_text_finds_the_item_in_any_case_and_the_value_in_its_own)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* shown;
    } rows[] = {
        {L"B", L"A C / A C / "},
        {L"b", L"A C / A B C / "},
        {L"BB", L"A B C / A B C / "},
        {L"", L"A B C / A B C / "},
    };
    for (const auto& row : rows)
    {
        remember(L"A B C");
        smart.call().DeleteStringCombo(CString(row.text));
        EXPECT_EQ(smart.shown(), row.shown) << row.text;
    }
}

TEST_F(SmartCombo, reset_empties_the_values_and_leaves_the_format)
{
    remember(L"A B");
    smart.call().SetFormat(L"[(N)2]");
    smart.call().ResetContent();
    EXPECT_EQ(smart.shown(), L" /  / ");
    EXPECT_EQ(formatText(), L"[(N)2]");
    EXPECT_EQ(elements(), L"##");
}

TEST_F(SmartCombo, new_values_replace_the_old_ones_and_the_text_becomes_that_of_the_elements)
{
    const struct
    {
        const wchar_t* format;
        const wchar_t* shown;
        const wchar_t* elements;
    } rows[] = {
        {nullptr, L"C B / B C / ", L""},
        {L"[(N)2]-[(A)x]", L"C B / B C / ##-#", L"##-#"},
    };
    for (const auto& row : rows)
    {
        remember(L"A B");
        smart.combo().SetCurSel(0);
        if (row.format != nullptr)
            smart.call().SetFormat(row.format);
        fillFormat(L"12");
        remember(L"C B");
        EXPECT_EQ(smart.shown(), row.shown);
        EXPECT_EQ(elements(), row.elements) << "a format is built anew";
    }
}

// The element list outlives the format text: kept on purpose.
TEST_F(SmartCombo, without_format_text_new_values_show_the_elements_that_are_left)
{
    smart.call().SetFormat(L"[(N)2]");
    smart.call().SetFormatEmpty();
    fillFormat(L"7");
    remember(L"A");
    EXPECT_EQ(smart.shown(), L"A / A / 7#");
}

TEST_F(SmartCombo, lists_given_may_be_the_controls_own)
{
    remember(L"B A");
    smart.call().SetStringCombo(smart.data().list);
    EXPECT_EQ(smart.shown(), L"A B / A B / ");
    int index = 0;
    smart.call().GetStringCombo(smart.data().list, index, 0, 0);
    EXPECT_EQ(smart.shown(), L"A B / A B / ");
    smart.call().SetListFilterString(smart.data().list);
    smart.call().SetListFilterString(smart.data().filterList);
    smart.call().SetListFilterString(smart.data().formatList);
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().filterList), L"A B");
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"A B");
    smart.call().GetListFilterString(smart.data().filterList);
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().filterList), L"A B A B");
}

TEST_F(SmartCombo, fetching_values_replaces_what_the_list_held)
{
    remember(L"B A");
    CStringList out;
    TestedSmartCombo::fill(out, L"old");
    int index = 77;
    smart.call().GetStringCombo(out, index, 0, 1);
    EXPECT_EQ(TestedSmartCombo::joined(out), L"A B");
    EXPECT_EQ(index, 77) << "nothing was judged";
    EXPECT_EQ(smart.events, L"");
}

TEST_F(SmartCombo, fetching_with_judgement_adds_the_text_first)
{
    remember(L"B A");
    smart.combo().Type(L"C");
    CStringList out;
    int index = 77;
    smart.call().GetStringCombo(out, index, 1, 1);
    EXPECT_EQ(TestedSmartCombo::joined(out), L"A B C");
    EXPECT_EQ(index, 2);
    EXPECT_EQ(smart.events, L"focus, release +");
}

// ---- Selection and text

TEST_F(SmartCombo, selecting_by_index_judges_the_new_text)
{
    alternatives(L"[(N)2]");
    remember(L"A B");
    EXPECT_EQ(smart.call().SetCurSel(1), 1);
    EXPECT_EQ(smart.shown(), L"A [B] / A B / B");
    EXPECT_EQ(smart.call().SetCurSel(-1), -1);
    EXPECT_EQ(smart.combo().GetCount(), 3) << "the empty text fits a format of one element, and joins the values";
    EXPECT_EQ(smart.data().list.GetCount(), 3);
    EXPECT_TRUE(smart.data().list.GetHead().IsEmpty());
}

TEST_F(SmartCombo, clearing_the_selection_adds_nothing_when_no_format_takes_the_empty_text)
{
    alternatives(L"[(N)2]-[(N)1]");
    remember(L"A B");
    smart.call().SetCurSel(0);
    smart.call().SetCurSel(-1);
    EXPECT_EQ(smart.shown(), L"A B / A B / ");
}

TEST_F(SmartCombo, selecting_by_text_finds_it_in_any_case_as_a_whole_and_judges_nothing)
{
    alternatives(L"[(N)2]");
    remember(L"Alpha Beta");
    EXPECT_EQ(smart.call().SetCurSel(CString(L"BETA")), 0);
    EXPECT_EQ(smart.shown(), L"Alpha [Beta] / Alpha Beta / Beta");
    EXPECT_EQ(smart.call().SetCurSel(CString(L"Alp")), -1);
    EXPECT_EQ(smart.call().SetCurSel(CString()), -1);
    EXPECT_EQ(smart.call().GetCurSel(), 1);
}

TEST_F(SmartCombo, the_text_is_read_without_blanks_at_its_right_end)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* read;
    } rows[] = {
        {L" a b  ", L" a b"},
        {L"   ", L""},
        {L"a\t", L"a\t"},
        {L"#1 #  ", L"#1 #"},
    };
    for (const auto& row : rows)
    {
        smart.call().SetSelectText(row.text);
        CString read;
        smart.call().GetSelectText(read);
        EXPECT_EQ(read, row.read);
    }
}

TEST_F(SmartCombo, the_text_with_its_judgement_has_no_placeholders_and_joins_when_it_fits)
{
    alternatives(L"[(N)2]");
    CString text;
    bool valid = false;
    smart.call().SetSelectText(L"1#2#  ");
    smart.call().GetSelectText(text, valid);
    EXPECT_TRUE(valid);
    EXPECT_EQ(text, L"12");
    EXPECT_EQ(smart.shown(), L"12 / 12 / 1#2#  ");
    smart.call().SetSelectText(L"1 #"); // blanks before a placeholder stay
    smart.call().GetSelectText(text, valid);
    EXPECT_FALSE(valid);
    EXPECT_EQ(text, L"1 ");
}

TEST_F(SmartCombo, the_pattern_is_valid_whatever_the_text)
{
    alternatives(L"[(N)2]");
    for (const auto& [text, expected] : {std::pair(L"1#2", L"12"), std::pair(L"ab#", L"ab")})
    {
        smart.call().SetSelectText(text);
        CString read;
        EXPECT_TRUE(smart.call().getPatternAndValidate(read));
        EXPECT_EQ(read, expected);
    }
    EXPECT_EQ(smart.shown(), L"12 / 12 / ab#") << "the one that fits has joined";
}

TEST_F(SmartCombo, clearing_the_control_leaves_values_elements_and_formats)
{
    remember(L"A B");
    smart.call().SetFormat(L"[(N)2]");
    fillFormat(L"7");
    smart.call().SetCurSel(1);
    smart.data().visibility = 1;
    smart.call().ClearControl();
    EXPECT_EQ(smart.shown(), L"A B / A B / ");
    EXPECT_EQ(formatText(), L"");
    EXPECT_EQ(elements(), L"7#");
    EXPECT_EQ(smart.data().visibility, 0);
}

// ---- Sorting

TEST_F(SmartCombo, sorting_drops_duplicates_and_keeps_the_selection)
{
    remember(L"b C a", 0);
    smart.combo().SetCurSel(1);
    smart.call().SortCombo();
    EXPECT_EQ(smart.shown(), L"[C] a b / C a b / C") << "unsorted: by character code, and so the capital first";
    smart.data().sort = 1;
    smart.call().SortCombo();
    EXPECT_EQ(smart.shown(), L"[C] a b / a b C / C");
}

TEST_F(SmartCombo, sorting_without_selection_leaves_none_and_shows_the_elements)
{
    remember(L"b a", 0);
    smart.combo().Type(L"typed");
    smart.call().SortCombo();
    EXPECT_EQ(smart.shown(), L"a b / a b / ");
}

TEST_F(SmartCombo, sorting_selects_the_edit_text_and_not_the_item_that_was_selected)
{
    remember(L"b a c", 0);
    smart.combo().SetCurSel(2);
    smart.combo().SetEditText(L"A");
    smart.call().SortCombo();
    EXPECT_EQ(smart.shown(), L"[a] b c / a b c / a");
}

TEST_F(SmartCombo, sorting_an_empty_list_gives_an_empty_list_and_goes_on)
{
    smart.call().SetFormat(L"[(N)2]");
    smart.combo().AddString(L"only in the combo box");
    smart.combo().SetCurSel(0);
    fillFormat(L"1");
    smart.call().SortCombo();
    EXPECT_EQ(smart.shown(), L" /  / ##");
    EXPECT_EQ(elements(), L"##");
}
