// What only the real control has: columns in a header, the full insertion, positions, the static comparison.
#include <gtest/gtest.h>
#include <climits>
#include "TreeListHost.h"

namespace
{
class TreeListControl : public testing::Test
{
protected:
    /// The label that the platform's tree itself holds.
    std::wstring nativeLabel(HTREEITEM item) { return std::wstring(host.tree().CTreeCtrl::GetItemText(item)); }

    TreeListHost host;
    CKxTreeListViewCtrl& tree = host.tree();
};

TEST_F(TreeListControl, starts_without_columns_rows_and_editing)
{
    EXPECT_EQ(tree.GetColumnsNum(), 0);
    EXPECT_EQ(tree.GetColumnsWidth(), 0);
    EXPECT_EQ(tree.GetItemCount(), 0);
    EXPECT_FALSE(tree.GetCanModifyLabels());
    EXPECT_TRUE(tree.GetCanUpdateCloseTree());
    EXPECT_EQ(OpenTree::editColumn(tree), -1);
    EXPECT_EQ(OpenTree::offset(tree), 0);
    EXPECT_FALSE(OpenTree::headerCustomDraw(tree));
    EXPECT_EQ(tree.GetTreeItem(0), nullptr);
}

TEST_F(TreeListControl, columns_are_header_items_that_the_owner_draws)
{
    EXPECT_EQ(tree.InsertColumn(0, L"Name", 0, 120, 7), 0);
    EXPECT_EQ(tree.InsertColumn(1, L"Count", 1, 60, 0), 1);
    EXPECT_EQ(tree.InsertColumn(2, L"Mark", 2, 30, 0), 2);
    EXPECT_EQ(tree.InsertColumn(3, L"Other", 99, 10, 0), 3);
    EXPECT_EQ(tree.GetColumnsNum(), 4);
    EXPECT_EQ(tree.GetColumnsWidth(), 220);
    const struct
    {
        int width, align, flag;
        const wchar_t* text;
    } expected[] = {{120, 0, HDF_LEFT, L"Name"},
                    {60, 1, HDF_RIGHT, L"Count"},
                    {30, 2, HDF_CENTER, L"Mark"},
                    {10, 0, HDF_LEFT, L"Other"}};
    for (int column = 0; column < 4; ++column)
    {
        EXPECT_EQ(tree.GetColumnWidth(column), expected[column].width);
        EXPECT_EQ(tree.GetColumnAlign(column), expected[column].align);
        wchar_t text[64] = {};
        HDITEM item = {};
        item.mask = HDI_FORMAT | HDI_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        ASSERT_TRUE(OpenTree::header(tree).GetItem(column, &item));
        EXPECT_EQ(item.fmt & HDF_JUSTIFYMASK, expected[column].flag);
        EXPECT_NE(item.fmt & HDF_OWNERDRAW, 0);
        EXPECT_STREQ(text, expected[column].text);
    }
}

TEST_F(TreeListControl, a_column_of_width_minus_one_gets_the_headers_own_width)
{
    ASSERT_EQ(tree.InsertColumn(0, L"Name", 0, -1, 0), 0);
    const int own = tree.GetColumnWidth(0);
    EXPECT_GE(own, 0) << "none was set";
    EXPECT_EQ(tree.GetColumnsWidth(), own);
    EXPECT_EQ(tree.InsertColumn(1, nullptr, 0, 40, 0), 1) << "no text is an empty one";
    EXPECT_EQ(tree.GetColumnsWidth(), own + 40);
}

TEST_F(TreeListControl, a_column_out_of_range_has_no_width_and_no_alignment)
{
    tree.InsertColumn(0, L"Name", 1, 120, 0);
    for (const int column : {INT_MIN, -1, 1, INT_MAX})
    {
        EXPECT_EQ(tree.GetColumnWidth(column), 0) << column;
        EXPECT_EQ(tree.GetColumnAlign(column), 0) << column;
    }
}

TEST_F(TreeListControl, right_wins_over_centred)
{
    tree.InsertColumn(0, L"Name", 0, 120, 0);
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_OWNERDRAW | HDF_RIGHT | HDF_CENTER;
    ASSERT_TRUE(OpenTree::header(tree).SetItem(0, &item));
    EXPECT_EQ(tree.GetColumnAlign(0), 1);
}

TEST_F(TreeListControl, the_first_column_ever_inserted_has_the_ascending_image)
{
    tree.InsertColumn(0, L"a", 0, 50, 0);
    tree.InsertColumn(0, L"b", 0, 50, 0);
    EXPECT_EQ(OpenTree::header(tree).GetSortImage(0), 0);
    EXPECT_EQ(OpenTree::header(tree).GetSortImage(1), -1);
}

TEST_F(TreeListControl, a_thousand_columns_are_counted_and_measured)
{
    for (int column = 0; column < 1000; ++column)
        ASSERT_EQ(tree.InsertColumn(column, L"c", 0, 10, 0), column);
    EXPECT_EQ(tree.GetColumnsNum(), 1000);
    EXPECT_EQ(tree.GetColumnsWidth(), 10000);
    HTREEITEM const row = host.add(L"a");
    EXPECT_TRUE(tree.SetItemText(row, 999, L"last"));
    EXPECT_EQ(host.cell(row, 999), L"last");
}

TEST_F(TreeListControl, editing_settings_follow_the_order_of_insertion)
{
    tree.InsertColumn(0, L"b", 0, 50, 0);
    tree.SetCanEditColumn(0, true);
    EXPECT_FALSE(tree.GetCanEditColumn(0)) << "closed: nothing was written";
    tree.SetCanModifyLabels(true);
    tree.SetCanEditColumn(0, true);
    tree.InsertColumn(0, L"a", 0, 50, 0);
    EXPECT_TRUE(tree.GetCanEditColumn(0)) << "the header's numbers moved, the table's did not";
    EXPECT_FALSE(tree.GetCanEditColumn(1));
    EXPECT_FALSE(tree.GetCanEditColumn(2));
    tree.SetHeaderCustomDraw(false);
    EXPECT_TRUE(OpenTree::headerCustomDraw(tree));
}

TEST_F(TreeListControl, the_native_label_is_always_empty)
{
    HTREEITEM const a = host.add(L"a");
    tree.SetItemText(a, 0, L"changed");
    EXPECT_EQ(nativeLabel(a), L"");
    EXPECT_EQ(nativeLabel(tree.CopyItem(a, TVI_ROOT, TVI_LAST)), L"");
}

TEST_F(TreeListControl, the_full_insertion_keeps_state_and_word)
{
    HTREEITEM const item = tree.InsertItem(TVIF_TEXT | TVIF_PARAM | TVIF_STATE, L"a", 0, 0, TVIS_CUT, TVIS_CUT,
                                           LPARAM{0x123456789AB}, TVI_ROOT, TVI_LAST);
    EXPECT_EQ(tree.GetItemData(item), 0x123456789ABU) << "64 bits here";
    EXPECT_EQ(host.cell(item, 0), L"a");
    EXPECT_EQ(tree.GetItemState(item, TVIS_CUT), UINT{TVIS_CUT});
    HTREEITEM const copy = tree.CopyItem(item, TVI_ROOT, TVI_LAST);
    EXPECT_EQ(tree.GetItemState(copy, TVIS_CUT), 0U) << "no state is copied";
    EXPECT_EQ(tree.GetItemData(copy), 0x123456789ABU);
}

TEST_F(TreeListControl, a_full_insertion_without_parameter_makes_a_node_without_record)
{
    HTREEITEM const item = tree.InsertItem(TVIF_TEXT, L"a", 0, 0, 0, 0, 5, TVI_ROOT, TVI_LAST);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(tree.GetItemCount(), 1);
    EXPECT_EQ(host.cell(item, 0), L"");
    EXPECT_FALSE(tree.SetItemText(item, 0, L"x"));
    EXPECT_FALSE(tree.DeleteItem(item));
    EXPECT_FALSE(tree.SetItemColor(item, 0, TRUE));
    EXPECT_FALSE(tree.SetItemBold(item, TRUE, TRUE));
}

TEST_F(TreeListControl, a_position_is_always_that_of_the_first_row)
{
    for (const wchar_t* text : {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9"})
        host.add(text);
    for (const int index : {INT_MIN, -1, 0, 5, 9, 10, INT_MAX})
    {
        EXPECT_EQ(tree.GetTreeItem(index), tree.GetRootItem()) << index;
        EXPECT_EQ(std::wstring(tree.GetItemText(index, 0)), L"0") << index;
    }
    EXPECT_EQ(tree.GetListItem(tree.GetRootItem()), 0);
    EXPECT_TRUE(tree.DeleteItem(7));
    EXPECT_EQ(host.cell(tree.GetRootItem(), 0), L"1");
    EXPECT_EQ(tree.GetCount(), 9U);
}

TEST_F(TreeListControl, positions_of_an_empty_tree_are_none)
{
    EXPECT_EQ(tree.GetListItem(nullptr), 0);
    EXPECT_EQ(tree.GetListItem(reinterpret_cast<HTREEITEM>(1234)), 0);
    EXPECT_FALSE(tree.DeleteItem(0));
    EXPECT_EQ(std::wstring(tree.GetItemText(3, 0)), L"");
}

TEST_F(TreeListControl, a_moved_subtree_arrives_collapsed_and_not_selected)
{
    HTREEITEM const a = host.add(L"a");
    host.add(L"b", a);
    host.add(L"c");
    tree.Expand(a, TVE_EXPAND);
    tree.SelectItem(a);
    ASSERT_NE(tree.GetItemState(a, TVIS_EXPANDED), 0U);
    HTREEITEM const moved = tree.MoveItemAndChildren(a, TVI_ROOT, TVI_LAST, true);
    ASSERT_NE(moved, nullptr);
    EXPECT_EQ(tree.GetItemState(moved, TVIS_EXPANDED | TVIS_SELECTED), 0U);
    EXPECT_EQ(host.cell(tree.GetChildItem(moved), 0), L"b");
}

TEST_F(TreeListControl, the_root_stands_for_the_top_level_in_a_sort_too)
{
    for (const wchar_t* text : {L"Item3", L"Item1", L"Item2"})
        host.add(text);
    EXPECT_TRUE(tree.SortItems(0, TRUE, TVI_ROOT));
    EXPECT_EQ(host.cell(tree.GetRootItem(), 0), L"Item1");
    HTREEITEM const bare =
        tree.CTreeCtrl::InsertItem(TVIF_PARAM, L"", 0, 0, 0, 0, LPARAM{7}, TVI_ROOT, TVI_LAST); // no record
    EXPECT_TRUE(tree.SortItems(0, FALSE, TVI_ROOT));
    EXPECT_EQ(tree.GetRootItem(), bare) << "as an empty text";
    EXPECT_EQ(host.cell(tree.GetNextSiblingItem(bare), 0), L"Item3");
}

TEST_F(TreeListControl, what_is_no_node_has_nothing_to_sort)
{
    host.add(L"b");
    HTREEITEM const a = host.add(L"a");
    HTREEITEM const gone = host.add(L"gone");
    tree.DeleteItem(gone);
    for (HTREEITEM wrong : {TVI_FIRST, TVI_LAST, TVI_SORT, gone})
        EXPECT_FALSE(tree.SortItems(0, TRUE, wrong));
    EXPECT_NE(tree.GetRootItem(), a);
}

TEST_F(TreeListControl, special_places_are_no_rows)
{
    host.add(L"a");
    for (HTREEITEM special : {TVI_ROOT, TVI_FIRST, TVI_LAST, TVI_SORT})
    {
        EXPECT_FALSE(tree.SetItemText(special, 0, L"x"));
        EXPECT_EQ(host.cell(special, 0), L"");
        EXPECT_FALSE(tree.DeleteItem(special));
        EXPECT_EQ(tree.MoveItemAndChildren(special, TVI_ROOT, TVI_LAST, false), nullptr);
        EXPECT_EQ(tree.CopyItem(special, TVI_ROOT, TVI_LAST), nullptr);
        tree.MemDeleteAllItems(special);
    }
    EXPECT_EQ(host.cell(tree.GetRootItem(), 0), L"a");
}

TEST_F(TreeListControl, a_control_without_a_window_answers_as_an_empty_one)
{
    CKxTreeListViewCtrl bare;
    EXPECT_EQ(bare.InsertColumn(0, L"a", 0, 50, 0), -1);
    EXPECT_EQ(bare.GetColumnsNum(), 1);
    EXPECT_EQ(bare.GetColumnsWidth(), 0);
    EXPECT_EQ(bare.InsertItem(L"a"), nullptr);
    EXPECT_EQ(bare.GetItemCount(), 1);
    EXPECT_EQ(bare.GetTreeItem(0), nullptr);
    EXPECT_FALSE(bare.SetItemText(nullptr, 0, L"x"));
    bare.ResetVertScrollBar();
    EXPECT_TRUE(bare.ProcessEditNotification());
    bare.FreeEditControl();
}

TEST_F(TreeListControl, a_control_without_a_frame_keeps_rows_all_the_same)
{
    CKxTreeListViewCtrl plain;
    ASSERT_TRUE(plain.Create(WS_CHILD, CRect(0, 0, 100, 100), &host, 555));
    HTREEITEM const a = plain.InsertItem(L"a");
    HTREEITEM const b = plain.InsertItem(L"b", a);
    EXPECT_NE(b, nullptr);
    EXPECT_NE(plain.MoveItemAndChildren(a, TVI_ROOT, TVI_FIRST, true), nullptr);
    EXPECT_TRUE(plain.DeleteAllItems());
    plain.ResetVertScrollBar();
}

TEST(TreeListCompareFunc, compares_two_records_by_the_column_at_the_parameter)
{
    CKxTreeListRow a;
    CKxTreeListRow b;
    a.texts = L"x\u00b6Item2";
    b.texts = L"x\u00b6Item10";
    const auto compare = [&](int column, int ascending)
    {
        int order[2] = {column, ascending};
        return CKxTreeListViewCtrl::CompareFunc(reinterpret_cast<LPARAM>(&a), reinterpret_cast<LPARAM>(&b),
                                                reinterpret_cast<LPARAM>(order));
    };
    EXPECT_EQ(compare(1, 1), -1);
    EXPECT_EQ(compare(1, 0), 1);
    EXPECT_EQ(compare(0, 1), 0);
    EXPECT_EQ(compare(INT_MAX, 1), 0);
    EXPECT_EQ(compare(INT_MIN, 1), 0);
    int order[2] = {1, 1};
    const auto param = reinterpret_cast<LPARAM>(order);
    EXPECT_EQ(CKxTreeListViewCtrl::CompareFunc(0, 0, param), 0);
    EXPECT_EQ(CKxTreeListViewCtrl::CompareFunc(reinterpret_cast<LPARAM>(&a), 0, param), L'i') << "against the end";
    EXPECT_EQ(CKxTreeListViewCtrl::CompareFunc(reinterpret_cast<LPARAM>(&a), reinterpret_cast<LPARAM>(&b), 0), 0);
}

TEST(TreeListRowOnWindows, starts_in_the_colour_of_window_texts)
{
    EXPECT_EQ(CKxTreeListRow().color, ::GetSysColor(COLOR_WINDOWTEXT));
}
} // namespace
