// What the rows of a tree list do: the same cases for a tree in memory and for the real control. A driver has the control's
// operations, and what a test sees of the nodes and does behind the control's back.
#pragma once
#include <string>
#include <gtest/gtest.h>
#include "oxa/treelist/KxTreeListRow.h"

template <typename Driver> class TreeListCases : public testing::Test
{
protected:
    using Node = typename Driver::Node;

    Node Add(const wchar_t* text, Node parent) { return list.InsertItem(text, parent, Driver::Behind()); }
    Node Add(const wchar_t* text) { return Add(text, Driver::Root()); }
    /// Top-level rows, one for each text.
    void AddAll(std::initializer_list<const wchar_t*> texts)
    {
        for (const wchar_t* text : texts)
            Add(text);
    }
    /// A row with children.
    Node AddFamily(const wchar_t* text, std::initializer_list<const wchar_t*> children, Node parent = Driver::Root())
    {
        const Node node = Add(text, parent);
        for (const wchar_t* child : children)
            Add(child, node);
        return node;
    }

    static std::wstring Wide(const CString& text) { return {text.GetString(), std::size_t(text.GetLength())}; }
    std::wstring Cell(Node node, int column) { return Wide(list.GetItemText(node, column)); }
    std::wstring Packed(Node node) { return list.Row(node) == nullptr ? L"none" : Wide(list.Row(node)->texts); }
    Node TopNode(int index)
    {
        Node node = list.First();
        for (; index > 0; --index)
            node = list.Next(node);
        return node;
    }
    /// The cells 0 of a sibling chain, with those below in brackets: `a b[c d[e]]`.
    std::wstring ShownFrom(Node first)
    {
        std::wstring all;
        for (Node node = first; node; node = list.Next(node))
        {
            all += (all.empty() ? L"" : L" ") + (list.Row(node) == nullptr ? L"-" : Cell(node, 0));
            if (list.FirstChild(node))
                all += L"[" + ShownFrom(list.FirstChild(node)) + L"]";
        }
        return all;
    }
    std::wstring Shown() { return ShownFrom(list.First()); }

    Driver list;
};

TYPED_TEST_SUITE_P(TreeListCases);

// ---- Rows and cells

TYPED_TEST_P(TreeListCases, a_fresh_row_has_its_text_in_cell_0_and_nothing_else)
{
    const auto row = this->Add(L"a");
    EXPECT_EQ(this->Cell(row, 0), L"a");
    EXPECT_EQ(this->Cell(row, 1), L"");
    EXPECT_EQ(this->Cell(row, 7), L"");
    EXPECT_EQ(this->Packed(row), L"a");
    EXPECT_EQ(this->list.GetItemValue(row, 0), 0.0);
    EXPECT_EQ(this->list.GetItemData(row), 0U);
    EXPECT_EQ(this->list.Row(row)->bold, 0);
    EXPECT_EQ(this->list.Row(row)->color, TypeParam::textColor);
    EXPECT_EQ(this->list.Row(row)->separator, 182);
}

TYPED_TEST_P(TreeListCases, a_row_without_a_text_is_empty)
{
    const auto row = this->Add(nullptr);
    EXPECT_EQ(this->Packed(row), L"");
    EXPECT_EQ(this->Cell(row, 0), L"");
}

TYPED_TEST_P(TreeListCases, rows_stand_where_they_were_put)
{
    const auto b = this->Add(L"b");
    this->Add(L"d");
    this->list.InsertItem(L"a", TypeParam::Root(), TypeParam::Before());
    this->list.InsertItem(L"c", TypeParam::Root(), b);
    this->Add(L"b1", b);
    this->list.InsertItem(L"b0", 3, 4, b, TypeParam::Before());
    EXPECT_EQ(this->Shown(), L"a b[b0 b1] c d");
    EXPECT_EQ(this->list.Image(this->list.FirstChild(b)), 3);
}

TYPED_TEST_P(TreeListCases, a_cell_far_behind_is_reached_by_empty_cells)
{
    const auto row = this->Add(L"a");
    EXPECT_NE(this->list.SetItemText(row, 3, L"x"), 0);
    EXPECT_EQ(this->Packed(row), L"a\u00b6\u00b6\u00b6x");
    EXPECT_EQ(this->Cell(row, 1), L"");
    EXPECT_EQ(this->Cell(row, 2), L"");
    EXPECT_EQ(this->Cell(row, 3), L"x");
}

TYPED_TEST_P(TreeListCases, a_second_write_of_cell_1_behind_an_empty_cell_0_lands_in_cell_0)
{
    const auto row = this->Add(L"");
    this->list.SetItemText(row, 1, L"v");
    EXPECT_EQ(this->Packed(row), L"\u00b6v");
    this->list.SetItemText(row, 1, L"w");
    EXPECT_EQ(this->Packed(row), L"w");
    EXPECT_EQ(this->Cell(row, 0), L"w");
    EXPECT_EQ(this->Cell(row, 1), L"");
}

TYPED_TEST_P(TreeListCases, a_text_with_a_separator_is_two_cells)
{
    const auto row = this->Add(L"a\u00b6b");
    EXPECT_EQ(this->Cell(row, 0), L"a");
    EXPECT_EQ(this->Cell(row, 1), L"b");
    this->list.SetItemText(row, 0, L"x\u00b6y");
    EXPECT_EQ(this->Packed(row), L"x\u00b6y\u00b6b");
    EXPECT_EQ(this->Cell(row, 2), L"b");
}

TYPED_TEST_P(TreeListCases, a_negative_column_reads_as_empty_and_writes_nothing)
{
    const auto row = this->Add(L"a");
    this->list.SetItemText(row, -1, L"x");
    this->list.SetItemText(row, -2147483647 - 1, L"x");
    EXPECT_EQ(this->Packed(row), L"a");
    EXPECT_EQ(this->Cell(row, -1), L"");
    EXPECT_EQ(this->Cell(row, -2147483647 - 1), L"");
}

TYPED_TEST_P(TreeListCases, a_column_that_no_memory_could_hold_is_refused_and_the_row_stays)
{
    const auto row = this->Add(L"a");
    EXPECT_EQ(this->list.SetItemText(row, 2147483647, L"x"), 0);
    EXPECT_EQ(this->Packed(row), L"a");
    EXPECT_EQ(this->Cell(row, 2147483647), L"");
}

TYPED_TEST_P(TreeListCases, a_value_is_one_a_row_and_its_text_stands_in_the_column_named)
{
    const auto row = this->Add(L"a");
    EXPECT_NE(this->list.SetItemValue(row, 2, 3.5), 0);
    EXPECT_EQ(this->list.GetItemValue(row, 0), 3.5);
    EXPECT_EQ(this->list.GetItemValue(row, -9), 3.5);
    EXPECT_EQ(this->Cell(row, 2), L" 3.50");
    EXPECT_EQ(this->Packed(row), L"a\u00b6\u00b6 3.50");
}

TYPED_TEST_P(TreeListCases, the_callers_word_has_32_bits)
{
    const auto row = this->Add(L"a");
    EXPECT_NE(this->list.SetItemData(row, 0xFFFFFFFFU), 0);
    EXPECT_EQ(this->list.GetItemData(row), 0xFFFFFFFFU) << "no sign is spread over the upper half";
}

TYPED_TEST_P(TreeListCases, a_text_of_a_million_characters_is_kept)
{
    const std::wstring text(1000000, L'm');
    const auto row = this->Add(L"a");
    this->list.SetItemText(row, 1, text.c_str());
    this->list.SetItemText(row, 2, L"z");
    EXPECT_EQ(this->Cell(row, 1), text);
    EXPECT_EQ(this->Cell(row, 2), L"z");
    this->list.SetItemText(row, 1, L"");
    EXPECT_EQ(this->Packed(row), L"a\u00b6\u00b6z");
}

TYPED_TEST_P(TreeListCases, a_million_separators_are_a_million_cells)
{
    const auto row = this->Add(std::wstring(1000000, L'\u00b6').c_str());
    EXPECT_EQ(this->Cell(row, 999999), L"");
    this->list.SetItemText(row, 1000000, L"end");
    EXPECT_EQ(this->Cell(row, 1000000), L"end");
    EXPECT_EQ(this->Packed(row).size(), 1000003U);
}

// ---- Nodes without a record

TYPED_TEST_P(TreeListCases, a_node_without_a_record_reads_as_empty_and_takes_nothing)
{
    for (const LPARAM param : {LPARAM(0), LPARAM(1), LPARAM(-1), LPARAM(0x12345678)})
    {
        const auto node = this->list.InsertForeign(param, TypeParam::Root());
        EXPECT_EQ(this->list.SetItemText(node, 0, L"x"), 0);
        EXPECT_EQ(this->list.SetItemValue(node, 0, 1.0), 0);
        EXPECT_EQ(this->list.SetItemData(node, 1), 0);
        EXPECT_EQ(this->list.SetItemBold(node, 1), 0);
        EXPECT_EQ(this->Cell(node, 0), L"");
        EXPECT_EQ(this->list.GetItemValue(node, 0), 0.0);
        EXPECT_EQ(this->list.GetItemData(node), 0U);
        EXPECT_FALSE(this->list.CopyItem(node, TypeParam::Root(), TypeParam::Behind()));
        EXPECT_FALSE(this->list.MoveItem(node, TypeParam::Root(), TypeParam::Behind()));
        EXPECT_FALSE(this->list.MoveItemAndChildren(node, TypeParam::Root(), TypeParam::Behind(), false));
        EXPECT_EQ(this->list.DeleteItem(node), 0);
        EXPECT_EQ(this->list.Param(node), param);
    }
    EXPECT_EQ(this->list.GetItemCount(), 0);
    EXPECT_EQ(this->list.NodeCount(), 4);
}

TYPED_TEST_P(TreeListCases, an_address_inside_a_record_is_no_record)
{
    const auto row = this->Add(L"a");
    const auto node = this->list.InsertForeign(this->list.Param(row) + 8, TypeParam::Root());
    EXPECT_EQ(this->list.SetItemText(node, 0, L"x"), 0);
    EXPECT_EQ(this->Cell(row, 0), L"a");
}

TYPED_TEST_P(TreeListCases, null_is_no_node)
{
    EXPECT_EQ(this->list.SetItemText(nullptr, 0, L"x"), 0);
    EXPECT_EQ(this->Cell(nullptr, 0), L"");
    EXPECT_EQ(this->list.DeleteItem(typename TypeParam::Node{}), 0);
    EXPECT_FALSE(this->list.CopyItem(nullptr, TypeParam::Root(), TypeParam::Behind()));
    EXPECT_FALSE(this->list.MoveItemAndChildren(nullptr, TypeParam::Root(), TypeParam::Behind(), false));
    this->list.MemDeleteAllItems(nullptr);
    EXPECT_EQ(this->list.NodeCount(), 0);
}

TYPED_TEST_P(TreeListCases, nodes_without_a_record_sort_as_empty_ones)
{
    this->AddAll({L"b", L"a"});
    this->list.InsertForeign(0, TypeParam::Root());
    this->Add(L"c");
    this->list.InsertForeign(7, TypeParam::Root());
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"- - a b c");
    EXPECT_EQ(this->list.Param(this->list.First()), 0) << "and keep their order";
}

// ---- The item count

TYPED_TEST_P(TreeListCases, the_item_count_is_the_number_of_calls)
{
    const auto a = this->AddFamily(L"a", {L"b", L"c"});
    EXPECT_EQ(this->list.GetItemCount(), 3);
    const auto copy = this->list.CopyItem(this->list.FirstChild(a), TypeParam::Root(), TypeParam::Behind());
    EXPECT_EQ(this->list.GetItemCount(), 3) << "a copy does not count";
    this->list.MoveItem(copy, TypeParam::Root(), TypeParam::Before());
    EXPECT_EQ(this->list.GetItemCount(), 2) << "a move is a deletion";
    this->list.DeleteItem(a);
    EXPECT_EQ(this->list.GetItemCount(), 1) << "whatever was below";
    EXPECT_EQ(this->list.NodeCount(), 1);
    this->list.DeleteAllItems();
    EXPECT_EQ(this->list.GetItemCount(), 1) << "not touched";
    EXPECT_EQ(this->list.NodeCount(), 0);
}

TYPED_TEST_P(TreeListCases, moving_a_row_with_two_children_lowers_the_count_by_three)
{
    const auto a = this->AddFamily(L"a", {L"b", L"c"});
    this->list.MoveItemAndChildren(a, TypeParam::Root(), TypeParam::Behind(), false);
    EXPECT_EQ(this->list.GetItemCount(), 0);
    EXPECT_EQ(this->Shown(), L"a[b c]");
}

// ---- Copies and moves

TYPED_TEST_P(TreeListCases, a_copy_has_all_fields_and_a_record_of_its_own)
{
    const auto row = this->list.InsertItem(L"a", 3, 4, TypeParam::Root(), TypeParam::Behind());
    this->list.SetItemText(row, 1, L"b");
    this->list.SetItemValue(row, 2, 2.0);
    this->list.SetItemData(row, 77);
    this->list.SetItemBold(row, 5);
    const auto copy = this->list.CopyItem(row, TypeParam::Root(), TypeParam::Before());
    ASSERT_TRUE(copy);
    EXPECT_EQ(this->Shown(), L"a a");
    EXPECT_EQ(this->list.First(), copy);
    EXPECT_NE(this->list.Row(copy), this->list.Row(row));
    EXPECT_EQ(this->Packed(copy), L"a\u00b6b\u00b6 2.00");
    EXPECT_EQ(this->list.GetItemValue(copy, 0), 2.0);
    EXPECT_EQ(this->list.GetItemData(copy), 77U);
    EXPECT_EQ(this->list.Row(copy)->bold, 5);
    EXPECT_EQ(this->list.Row(copy)->color, TypeParam::textColor);
    EXPECT_EQ(this->list.Image(copy), 3);
    this->list.SetItemText(copy, 0, L"x");
    EXPECT_EQ(this->Cell(row, 0), L"a");
}

TYPED_TEST_P(TreeListCases, a_row_with_children_is_neither_copied_nor_moved_alone)
{
    const auto a = this->AddFamily(L"a", {L"b"});
    const auto c = this->Add(L"c");
    EXPECT_FALSE(this->list.CopyItem(a, c, TypeParam::Behind()));
    EXPECT_FALSE(this->list.MoveItem(a, c, TypeParam::Behind()));
    EXPECT_EQ(this->Shown(), L"a[b] c");
    EXPECT_EQ(this->list.GetItemCount(), 3);
}

TYPED_TEST_P(TreeListCases, a_moved_row_leaves_its_place)
{
    const auto a = this->Add(L"a");
    const auto b = this->Add(L"b");
    const auto c = this->Add(L"c");
    EXPECT_TRUE(this->list.MoveItem(a, TypeParam::Root(), b));
    EXPECT_EQ(this->Shown(), L"b a c");
    EXPECT_TRUE(this->list.MoveItem(c, b, TypeParam::Behind()));
    EXPECT_EQ(this->Shown(), L"b[c] a");
}

TYPED_TEST_P(TreeListCases, a_subtree_moves_with_its_order)
{
    const auto a = this->AddFamily(L"a", {L"b", L"c", L"d"});
    const auto c = this->list.Next(this->list.FirstChild(a));
    this->Add(L"c1", c);
    this->Add(L"c2", c);
    const auto z = this->Add(L"z");
    const auto moved = this->list.MoveItemAndChildren(a, z, TypeParam::Behind(), false);
    EXPECT_EQ(this->Shown(), L"z[a[b c[c1 c2] d]]");
    EXPECT_EQ(this->list.FirstChild(z), moved);
    EXPECT_EQ(this->list.NodeCount(), 7);
}

TYPED_TEST_P(TreeListCases, a_subtree_moves_up_and_behind_its_own_parent)
{
    const auto a = this->AddFamily(L"a", {});
    const auto b = this->AddFamily(L"b", {L"c"}, a);
    EXPECT_TRUE(this->list.MoveItemAndChildren(b, TypeParam::Root(), a, true));
    EXPECT_EQ(this->Shown(), L"a b[c]");
}

TYPED_TEST_P(TreeListCases, a_row_does_not_move_below_or_behind_itself)
{
    const auto a = this->AddFamily(L"a", {L"b"});
    const auto b = this->list.FirstChild(a);
    const auto c = this->Add(L"c");
    EXPECT_FALSE(this->list.MoveItem(c, c, TypeParam::Behind()));
    EXPECT_FALSE(this->list.MoveItem(c, TypeParam::Root(), c));
    EXPECT_FALSE(this->list.MoveItemAndChildren(a, a, TypeParam::Behind(), false));
    EXPECT_FALSE(this->list.MoveItemAndChildren(a, b, TypeParam::Behind(), false));
    EXPECT_FALSE(this->list.MoveItemAndChildren(a, TypeParam::Root(), a, false));
    EXPECT_FALSE(this->list.MoveItemAndChildren(a, TypeParam::Root(), b, false));
    EXPECT_FALSE(this->list.MoveItemAndChildren(c, c, TypeParam::Behind(), false));
    EXPECT_EQ(this->Shown(), L"a[b] c");
    EXPECT_EQ(this->list.GetItemCount(), 3);
}

// ---- Deleting

TYPED_TEST_P(TreeListCases, a_deleted_row_leaves_its_record)
{
    const auto a = this->AddFamily(L"a", {L"b"});
    const CKxTreeListRow* const record = this->list.Row(a);
    const CKxTreeListRow* const below = this->list.Row(this->list.FirstChild(a));
    EXPECT_NE(this->list.DeleteItem(a), 0);
    EXPECT_EQ(this->Shown(), L"");
    EXPECT_EQ(this->Wide(record->texts), L"a") << "kept on purpose: it stays allocated";
    EXPECT_EQ(this->Wide(below->texts), L"b");
}

TYPED_TEST_P(TreeListCases, destroying_the_records_alone_leaves_nodes_without_records)
{
    const auto a = this->AddFamily(L"a", {L"b"});
    const auto c = this->Add(L"c");
    this->list.MemDeleteAllItems(this->list.First());
    EXPECT_EQ(this->Shown(), L"-[-] -");
    EXPECT_NE(this->list.Param(a), 0) << "the parameters stay";
    EXPECT_EQ(this->list.SetItemText(c, 0, L"x"), 0);
    const auto d = this->Add(L"d");
    EXPECT_EQ(this->Shown(), L"-[-] - d");
    EXPECT_NE(this->list.Param(d), this->list.Param(a)) << "no new record takes the place that a node still names";
    this->list.MemDeleteAllItems(this->list.First());
    EXPECT_NE(this->list.DeleteAllItems(), 0);
    EXPECT_EQ(this->list.NodeCount(), 0);
}

TYPED_TEST_P(TreeListCases, destroying_begins_at_the_node_given)
{
    const auto a = this->AddFamily(L"a", {L"b", L"c"});
    this->Add(L"d");
    this->list.MemDeleteAllItems(this->list.Next(this->list.FirstChild(a)));
    EXPECT_EQ(this->Shown(), L"a[b -] d");
}

TYPED_TEST_P(TreeListCases, rows_go_in_again_after_everything_was_deleted)
{
    this->AddFamily(L"a", {L"b"});
    EXPECT_NE(this->list.DeleteAllItems(), 0);
    this->AddFamily(L"c", {L"d"});
    EXPECT_EQ(this->Shown(), L"c[d]");
}

// ---- Sorting

TYPED_TEST_P(TreeListCases, only_the_direct_children_are_sorted)
{
    const auto b = this->AddFamily(L"b", {L"y", L"x"});
    this->AddFamily(L"a", {L"w", L"v"});
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"a[w v] b[y x]");
    this->list.SortItems(0, 1, b);
    EXPECT_EQ(this->Shown(), L"a[w v] b[x y]");
}

TYPED_TEST_P(TreeListCases, numbers_in_texts_sort_as_numbers)
{
    this->AddAll({L"Item10", L"abc1", L"Item2", L"abc"});
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"abc abc1 Item2 Item10");
}

TYPED_TEST_P(TreeListCases, equal_rows_keep_their_order)
{
    for (const wchar_t* const cell : {L"2", L"1", L"2", L"1", L"2"})
    {
        const auto row = this->Add(std::to_wstring(this->list.GetItemCount()).c_str());
        this->list.SetItemText(row, 1, cell);
    }
    this->list.SortItems(1, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"1 3 0 2 4");
    this->list.SortItems(1, 0, nullptr);
    EXPECT_EQ(this->Shown(), L"0 2 4 1 3");
    this->list.SortItems(9, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"0 2 4 1 3") << "a column without texts moves nothing";
    this->list.SortItems(-1, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"0 2 4 1 3");
}

TYPED_TEST_P(TreeListCases, descending_turns_only_differences_of_exactly_one)
{
    this->AddAll({L"a", L"b"});
    this->list.SortItems(0, 0, nullptr);
    EXPECT_EQ(this->Shown(), L"b a") << "neighbours in the alphabet";
    this->list.DeleteAllItems();
    this->AddAll({L"c", L"a"});
    this->list.SortItems(0, 0, nullptr);
    EXPECT_EQ(this->Shown(), L"a c") << "two letters apart: ascending all the same";
}

TYPED_TEST_P(TreeListCases, the_walk_sorts_all_levels_of_what_it_visits)
{
    const auto a = this->AddFamily(L"a", {});
    this->AddFamily(L"b", {L"2", L"1"}, a);
    this->AddFamily(L"c", {L"4", L"3"}, a);
    this->list.SortTree(0, 1, this->list.First());
    EXPECT_EQ(this->Shown(), L"a[b[1 2] c[3 4]]");
}

TYPED_TEST_P(TreeListCases, the_walk_leaves_out_what_was_sorted_in_front_of_the_former_first_child)
{
    const auto a = this->AddFamily(L"a", {});
    this->AddFamily(L"c", {L"4", L"3"}, a);
    this->AddFamily(L"b", {L"2", L"1"}, a);
    this->AddFamily(L"d", {L"6", L"5"}, a);
    this->list.SortTree(0, 1, this->list.First());
    EXPECT_EQ(this->Shown(), L"a[b[2 1] c[3 4] d[5 6]]");
}

TYPED_TEST_P(TreeListCases, the_walk_does_not_sort_the_chain_that_it_starts_from)
{
    this->AddFamily(L"b", {L"2", L"1"});
    this->AddFamily(L"a", {L"4", L"3"});
    this->list.SortTree(0, 1, this->list.First());
    EXPECT_EQ(this->Shown(), L"b[1 2] a[3 4]");
    this->list.SortTree(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"b[1 2] a[3 4]");
}

REGISTER_TYPED_TEST_SUITE_P(
    TreeListCases, a_fresh_row_has_its_text_in_cell_0_and_nothing_else, a_row_without_a_text_is_empty,
    rows_stand_where_they_were_put, a_cell_far_behind_is_reached_by_empty_cells,
    a_second_write_of_cell_1_behind_an_empty_cell_0_lands_in_cell_0, a_text_with_a_separator_is_two_cells,
    a_negative_column_reads_as_empty_and_writes_nothing,
    a_column_that_no_memory_could_hold_is_refused_and_the_row_stays,
    a_value_is_one_a_row_and_its_text_stands_in_the_column_named, the_callers_word_has_32_bits,
    a_text_of_a_million_characters_is_kept, a_million_separators_are_a_million_cells,
    a_node_without_a_record_reads_as_empty_and_takes_nothing, an_address_inside_a_record_is_no_record, null_is_no_node,
    nodes_without_a_record_sort_as_empty_ones, the_item_count_is_the_number_of_calls,
    moving_a_row_with_two_children_lowers_the_count_by_three, a_copy_has_all_fields_and_a_record_of_its_own,
    a_row_with_children_is_neither_copied_nor_moved_alone, a_moved_row_leaves_its_place, a_subtree_moves_with_its_order,
    a_subtree_moves_up_and_behind_its_own_parent, a_row_does_not_move_below_or_behind_itself,
    a_deleted_row_leaves_its_record, destroying_the_records_alone_leaves_nodes_without_records,
    destroying_begins_at_the_node_given, rows_go_in_again_after_everything_was_deleted,
    only_the_direct_children_are_sorted, numbers_in_texts_sort_as_numbers, equal_rows_keep_their_order,
    descending_turns_only_differences_of_exactly_one, the_walk_sorts_all_levels_of_what_it_visits,
    the_walk_leaves_out_what_was_sorted_in_front_of_the_former_first_child,
    the_walk_does_not_sort_the_chain_that_it_starts_from);
