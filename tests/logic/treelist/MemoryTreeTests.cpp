// The cases of the tree list over a tree in memory, and what only such a tree can show.
#include "support/MemoryTree.h"
#include "support/TreeListCases.h"
#include "support/TreeListSortCases.h"

INSTANTIATE_TYPED_TEST_SUITE_P(OverMemory, TreeListCases, MemoryTreeList);
INSTANTIATE_TYPED_TEST_SUITE_P(OverMemory, TreeListSorts, MemoryTreeList);

namespace
{
TEST(TreeRowsInsert, the_scroll_bars_are_recalculated_before_the_node_exists)
{
    MemoryTreeList list;
    std::vector<std::pair<int, int>> seen; // nodes and item count at that moment
    list.onReadyForRow = [&]
    {
        seen.emplace_back(list.NodeCount(), list.GetItemCount());
        return true;
    };
    list.InsertItem(L"a", list.Root(), list.Behind());
    list.InsertItem(L"b", list.Root(), list.Behind());
    EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{0, 1}, {1, 2}}));
}

TEST(TreeRowsInsert, copies_and_moves_do_not_recalculate_the_scroll_bars)
{
    MemoryTreeList list;
    MemoryNode* const row = list.InsertItem(L"a", list.Root(), list.Behind());
    int recalculated = 0;
    list.onReadyForRow = [&]
    {
        ++recalculated;
        return true;
    };
    list.MoveItem(list.CopyItem(row, list.Root(), list.Behind()), list.Root(), list.Before());
    EXPECT_EQ(recalculated, 0);
}

TEST(TreeRowsInsert, stops_when_the_tree_does_not_survive_the_recalculation)
{
    MemoryTreeList list;
    list.onReadyForRow = [] { return false; };
    EXPECT_EQ(list.InsertItem(L"a", list.Root(), list.Behind()), nullptr);
    EXPECT_EQ(list.NodeCount(), 0);
}

TEST(TreeRowsInsert, a_node_that_the_tree_refuses_still_counts)
{
    MemoryTreeList list;
    MemoryNode* const gone = list.InsertItem(L"a", list.Root(), list.Behind());
    list.DeleteItem(gone);
    EXPECT_EQ(list.InsertItem(L"b", gone, list.Behind()), nullptr);
    EXPECT_EQ(list.GetItemCount(), 1);
    EXPECT_EQ(list.NodeCount(), 0);
}

TEST(TreeRowsMove, a_subtree_that_the_target_refuses_stays)
{
    MemoryTreeList list;
    MemoryNode* const gone = list.InsertItem(L"x", list.Root(), list.Behind());
    list.DeleteItem(gone);
    MemoryNode* const a = list.InsertItem(L"a", list.Root(), list.Behind());
    list.InsertItem(L"b", a, list.Behind());
    EXPECT_EQ(list.MoveItemAndChildren(a, gone, list.Behind(), false), nullptr);
    EXPECT_EQ(list.NodeCount(), 2);
    EXPECT_EQ(list.FirstChild(a)->parent, a);
}

TEST(TreeRowsMove, stops_when_the_tree_does_not_survive_a_deletion)
{
    MemoryTreeList list;
    MemoryNode* const a = list.InsertItem(L"a", list.Root(), list.Behind());
    list.InsertItem(L"b", a, list.Behind());
    list.InsertItem(L"c", a, list.Behind());
    MemoryNode* const d = list.InsertItem(L"d", list.Root(), list.Behind());
    list.onRemove = [] { return false; };
    EXPECT_EQ(list.MoveItemAndChildren(a, list.Root(), list.Behind(), false), nullptr);
    EXPECT_EQ(list.NodeCount(), 4) << "a copy of a came, b went, and that was all";
    EXPECT_EQ(list.MoveItem(d, list.Root(), list.Before()), nullptr);
    EXPECT_EQ(list.NodeCount(), 3);
}

TEST(TreeRowsMove, children_without_a_record_go_with_their_old_parent)
{
    MemoryTreeList list;
    MemoryNode* const a = list.InsertItem(L"a", list.Root(), list.Behind());
    list.InsertItem(L"b", a, list.Behind());
    MemoryNode* const foreign = list.InsertForeign(5, a);
    list.InsertForeign(6, foreign);
    list.InsertItem(L"c", a, list.Behind());
    MemoryNode* const moved = list.MoveItemAndChildren(a, list.Root(), list.Behind(), false);
    ASSERT_NE(moved, nullptr);
    EXPECT_EQ(list.NodeCount(), 3);
    EXPECT_EQ(list.GetItemText(list.FirstChild(moved), 0), L"b");
    EXPECT_EQ(list.GetItemText(list.Next(list.FirstChild(moved)), 0), L"c");
}

/// A chain of rows, each below the one before.
MemoryNode* AddChain(MemoryTreeList& list, int depth)
{
    MemoryNode* node = list.Root();
    for (int level = 0; level < depth; ++level)
        node = list.InsertItem(std::to_wstring(level).c_str(), node, list.Behind());
    return node;
}

TEST(TreeRowsDepth, a_tree_of_20000_levels_is_sorted_moved_and_deleted)
{
    constexpr int depth = 20000;
    MemoryTreeList list;
    MemoryNode* const deepest = AddChain(list, depth);
    MemoryNode* const top = list.First();
    EXPECT_EQ(list.MoveItemAndChildren(top, deepest, list.Behind(), false), nullptr);
    list.SortTree(0, 1, top);
    MemoryNode* node = list.MoveItemAndChildren(top, list.Root(), list.Behind(), false);
    EXPECT_EQ(list.GetItemCount(), 0);
    for (int level = 0; level < depth; ++level, node = list.FirstChild(node))
        ASSERT_EQ(list.GetItemText(node, 0), std::to_wstring(level).c_str());
    EXPECT_EQ(node, nullptr);
    list.DeleteAllItems();
    EXPECT_EQ(list.NodeCount(), 0);
    EXPECT_EQ(list.store.LivingCount(), 0U);
}
} // namespace
