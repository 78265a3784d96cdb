// Nodes that a host sorts, changes, collapses or puts in by messages of the platform's tree, or while a notification is at work:
// rows sort as they stand then.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
class ForeignNodes : public testing::Test
{
protected:
    HTREEITEM add(const wchar_t* text, const wchar_t* second = L"", HTREEITEM parent = TVI_ROOT)
    {
        HTREEITEM const row = tree.InsertItem(text, parent, TVI_LAST);
        tree.SetItemText(row, 1, second);
        return row;
    }
    std::wstring childrenOf(HTREEITEM parent)
    {
        std::wstring all;
        for (HTREEITEM row = tree.GetChildItem(parent); row != nullptr; row = tree.GetNextSiblingItem(row))
            all += std::wstring(tree.GetItemText(row, 0));
        return all;
    }
    /// Turns the order of the children around, past the control.
    void turnAround(HTREEITEM parent, WPARAM below = 0)
    {
        static int asked = 0; // any order will do that the rows do not have
        asked = 0;
        TVSORTCB sort = {parent, [](LPARAM, LPARAM, LPARAM) { return ++asked > 0 ? 1 : 0; }, 0};
        tree.SendMessage(TVM_SORTCHILDRENCB, below, reinterpret_cast<LPARAM>(&sort));
    }

    FrameHost host;
    OpenFrame& frame = *host.frame;
    CKxTreeListViewCtrl& tree = frame.m_tree;
};
} // namespace

TEST_F(ForeignNodes, an_order_that_the_host_made_is_the_one_that_equal_rows_keep)
{
    for (const WPARAM below : {WPARAM{0}, WPARAM{1}})
    {
        SCOPED_TRACE(below);
        tree.DeleteAllItems();
        for (const wchar_t* text : {L"a", L"b", L"c", L"d"})
            add(text, L"same");
        ASSERT_TRUE(tree.SortItems(1, TRUE, nullptr));
        ASSERT_EQ(frame.rows(), L"a b c d");
        turnAround(TVI_ROOT, below);
        const std::wstring turned = frame.rows();
        ASSERT_NE(turned, L"a b c d");
        EXPECT_TRUE(tree.SortItems(1, TRUE, nullptr));
        EXPECT_EQ(frame.rows(), turned);
        add(L"e", L"same");
        EXPECT_TRUE(tree.SortItems(1, FALSE, TVI_ROOT));
        EXPECT_EQ(frame.rows(), turned + L" e");
    }
}

TEST_F(ForeignNodes, an_order_of_children_that_the_host_made_is_kept_too)
{
    HTREEITEM const parent = add(L"parent");
    for (const wchar_t* text : {L"a", L"b", L"c"})
        add(text, L"same", parent);
    turnAround(parent);
    const std::wstring turned = childrenOf(parent);
    ASSERT_NE(turned, L"abc");
    EXPECT_TRUE(tree.SortItems(1, TRUE, parent));
    EXPECT_EQ(childrenOf(parent), turned);
}

TEST_F(ForeignNodes, a_sort_by_labels_moves_none_and_rows_sort_behind_it)
{
    for (const wchar_t* text : {L"b", L"a"})
        add(text);
    tree.SendMessage(TVM_SORTCHILDREN, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    EXPECT_TRUE(tree.SortItems(0, TRUE, nullptr));
    EXPECT_EQ(frame.rows(), L"a b");
}

TEST_F(ForeignNodes, a_parameter_of_the_hosts_own_makes_a_row_an_empty_one)
{
    HTREEITEM const c = add(L"c");
    add(L"b");
    ASSERT_TRUE(tree.SortItems(0, TRUE, nullptr));
    tree.CTreeCtrl::SetItemData(c, 77);
    add(L"a");
    EXPECT_TRUE(tree.SortItems(0, TRUE, nullptr));
    EXPECT_EQ(tree.GetRootItem(), c);
    EXPECT_EQ(frame.rows(), L"a b") << "behind the empty one";
    EXPECT_TRUE(tree.DeleteAllItems());
    for (const wchar_t* text : {L"e", L"d"})
        add(text);
    EXPECT_TRUE(tree.SortItems(0, TRUE, nullptr));
    EXPECT_EQ(frame.rows(), L"d e");
}

TEST_F(ForeignNodes, put_in_by_a_narrow_message_sort_as_empty_ones)
{
    add(L"b");
    TVINSERTSTRUCTA node = {};
    node.hParent = TVI_ROOT;
    node.hInsertAfter = TVI_LAST;
    node.item.mask = TVIF_PARAM;
    node.item.lParam = 1;
    tree.SendMessage(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&node));
    add(L"a");
    EXPECT_TRUE(tree.SortItems(0, TRUE, nullptr));
    EXPECT_EQ(tree.GetCount(), 3U);
    EXPECT_EQ(std::wstring(tree.GetItemText(tree.GetRootItem(), 0)), L"");
    EXPECT_EQ(frame.rows(), L"a b");
}

TEST_F(ForeignNodes, children_that_a_collapse_took_away_come_again_and_are_sorted)
{
    HTREEITEM const top = add(L"top");
    for (int round = 0; round < 3; ++round)
    {
        SCOPED_TRACE(round);
        HTREEITEM const parent = add(L"parent", L"", top);
        add(L"2", L"", parent);
        add(L"1", L"", parent);
        tree.Expand(top, TVE_EXPAND);
        frame.SortTree(0, 1, tree.GetRootItem());
        EXPECT_EQ(childrenOf(parent), L"12");
        tree.Expand(top, TVE_COLLAPSE | TVE_COLLAPSERESET);
        ASSERT_EQ(tree.GetChildItem(top), nullptr);
    }
    EXPECT_TRUE(tree.DeleteAllItems());
}

TEST_F(ForeignNodes, rows_that_come_and_sorts_that_run_while_a_row_goes)
{
    HTREEITEM const gone = add(L"gone");
    add(L"below", L"", gone);
    for (const wchar_t* text : {L"c", L"b"})
        add(text);
    int deletions = 0;
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.code != TVN_DELETEITEM || ++deletions > 1)
            return;
        add(L"a");
        tree.SortItems(0, TRUE, nullptr);
    };
    EXPECT_TRUE(tree.DeleteItem(gone));
    host.onHear = {};
    ASSERT_GT(deletions, 0);
    EXPECT_TRUE(tree.SortItems(0, TRUE, nullptr));
    EXPECT_EQ(frame.rows(), L"a b c");
    frame.SortTree(0, 1, tree.GetRootItem());
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(tree.GetCount(), 0U);
}

TEST_F(ForeignNodes, rows_that_come_while_everything_goes)
{
    for (const wchar_t* text : {L"c", L"b"})
        add(text);
    bool added = false;
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.code == TVN_DELETEITEM && !std::exchange(added, true))
            add(L"late");
    };
    tree.DeleteAllItems();
    host.onHear = {};
    ASSERT_TRUE(added);
    add(L"a");
    tree.SortItems(0, TRUE, nullptr);
    HTREEITEM const first = tree.GetRootItem();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(std::wstring(tree.GetItemText(first, 0)), L"a");
    EXPECT_TRUE(tree.DeleteAllItems());
}
