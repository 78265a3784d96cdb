// The order of rows after anything may have happened to the nodes: the same cases for a tree in memory and for the real control.
#pragma once
#include <algorithm>
#include <random>
#include <utility>
#include <vector>
#include "support/TreeListCases.h"

template <typename Driver> class TreeListSorts : public TreeListCases<Driver>
{
protected:
    using Node = typename Driver::Node;

    /// A row that sorts by its number; cell 1 tells it from others with that number.
    Node AddNumbered(unsigned number, Node parent, Node after)
    {
        const Node node = this->list.InsertItem((L"Beam " + std::to_wstring(number)).c_str(), parent, after);
        this->list.SetItemText(node, 1, std::to_wstring(m_added++).c_str());
        return node;
    }
    std::vector<Node> Children(Node parent)
    {
        std::vector<Node> all;
        Node node = parent == Driver::Root() ? this->list.First() : this->list.FirstChild(parent);
        for (; node; node = this->list.Next(node))
            all.push_back(node);
        return all;
    }
    int NumberOf(Node node) { return std::stoi(this->Cell(node, 0).substr(5)); }

    /// Sorts, and compares with a sort of what stood there.
    void ExpectSorted(Node parent, bool ascending)
    {
        std::vector<Node> expected = Children(parent);
        std::stable_sort(expected.begin(), expected.end(),
                         [&](Node a, Node b)
                         { return ascending ? NumberOf(a) < NumberOf(b) : NumberOf(b) < NumberOf(a); });
        this->list.SortItems(0, ascending, parent);
        EXPECT_EQ(Children(parent), expected);
    }

private:
    int m_added = 0;
};

TYPED_TEST_SUITE_P(TreeListSorts);

TYPED_TEST_P(TreeListSorts, equal_rows_keep_their_order_whatever_came_before)
{
    using Handle = typename TypeParam::Node;
    std::mt19937 random(20240701); // a fixed seed
    const auto below = [&random](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    std::vector<Handle> parents = {TypeParam::Root()};
    for (int i = 0; i < 2; ++i)
        parents.push_back(this->AddNumbered(5, TypeParam::Root(), TypeParam::Behind()));
    for (int step = 0; step < 400; ++step)
    {
        SCOPED_TRACE(step);
        const Handle parent = parents[below(parents.size())];
        const std::vector<Handle> rows = this->Children(parent);
        const Handle any = rows.empty() ? TypeParam::Behind() : rows[below(rows.size())];
        const bool isFree = !rows.empty() && std::find(parents.begin(), parents.end(), any) == parents.end();
        const auto number = static_cast<unsigned>(below(6));
        switch (below(8))
        {
        case 0:
            this->AddNumbered(number, parent, TypeParam::Before());
            break;
        case 1:
            this->AddNumbered(number, parent, any);
            break;
        case 2:
            if (isFree)
                this->list.DeleteItem(any);
            break;
        case 3:
            if (isFree)
                this->list.MoveItem(any, parents[below(parents.size())], TypeParam::Behind());
            break;
        case 4:
            this->ExpectSorted(parent, below(2) == 0);
            break;
        default:
            this->AddNumbered(number, parent, TypeParam::Behind());
        }
    }
    for (const Handle parent : parents)
        this->ExpectSorted(parent, true);
}

TYPED_TEST_P(TreeListSorts, the_constant_of_the_top_level_stands_for_it)
{
    this->AddAll({L"3", L"1", L"2"});
    this->list.SortItems(0, 1, TypeParam::Root());
    EXPECT_EQ(this->Shown(), L"1 2 3");
}

TYPED_TEST_P(TreeListSorts, a_node_without_a_record_among_rows_that_were_sorted_before)
{
    this->AddAll({L"3", L"1"});
    this->list.SortItems(0, 1, nullptr);
    this->list.InsertForeign(7, TypeParam::Root());
    this->AddAll({L"2"});
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"- 1 2 3") << "it compares as an empty one";
}

TYPED_TEST_P(TreeListSorts, a_record_on_two_nodes_is_sorted_like_any)
{
    this->AddAll({L"3", L"1", L"2"});
    this->list.SetParam(this->TopNode(1), this->list.Param(this->TopNode(0)));
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"2 3 3");
    this->list.InsertForeign(this->list.Param(this->TopNode(0)), TypeParam::Root());
    this->list.SortItems(0, 1, nullptr);
    EXPECT_EQ(this->Shown(), L"2 2 3 3");
}

TYPED_TEST_P(TreeListSorts, nodes_whose_records_were_destroyed_stay_where_they_are)
{
    this->AddAll({L"3", L"1", L"2"});
    this->list.SortItems(0, 1, nullptr);
    const auto before = this->Children(TypeParam::Root());
    this->list.MemDeleteAllItems(this->list.First());
    this->list.SortItems(0, 0, nullptr);
    EXPECT_EQ(this->Children(TypeParam::Root()), before);
    EXPECT_EQ(this->Shown(), L"- - -");
}

TYPED_TEST_P(TreeListSorts, the_walk_finds_children_that_came_late)
{
    const auto a = this->AddFamily(L"a", {L"x", L"y"});
    const auto x = this->list.FirstChild(a);
    this->list.SortTree(0, 1, this->list.First());
    this->Add(L"2", x);
    this->Add(L"1", x);
    this->list.SortTree(0, 1, this->list.First());
    EXPECT_EQ(this->Shown(), L"a[x[1 2] y]");
}

TYPED_TEST_P(TreeListSorts, the_walk_finds_children_below_nodes_that_took_the_place_of_others)
{
    for (int round = 0; round < 20; ++round)
    {
        SCOPED_TRACE(round);
        const auto a = this->AddFamily(L"a", {});
        const auto b = this->AddFamily(L"b", {L"2", L"1"}, a);
        const auto top = this->AddFamily(L"c", {L"4", L"3"});
        this->list.SortTree(0, 1, this->list.First());
        EXPECT_EQ(this->Shown(), L"a[b[1 2]] c[3 4]");
        this->list.DeleteItem(round % 2 == 0 ? a : b);
        this->list.DeleteItem(top);
        this->AddFamily(L"d", {L"6", L"5"}, this->AddFamily(L"e", {}, this->Add(L"f")));
        this->list.SortTree(0, 1, this->list.First());
        EXPECT_EQ(this->Shown(), round % 2 == 0 ? L"f[e[d[5 6]]]" : L"a f[e[d[5 6]]]");
        this->list.DeleteAllItems();
    }
}

TYPED_TEST_P(TreeListSorts, the_walk_below_a_foreign_node)
{
    const auto foreign = this->list.InsertForeign(7, TypeParam::Root());
    this->AddFamily(L"a", {L"2", L"1"}, foreign);
    this->list.SortTree(0, 1, this->list.First());
    EXPECT_EQ(this->Shown(), L"-[a[1 2]]");
}

TYPED_TEST_P(TreeListSorts, deleting_everything_leaves_the_record_of_a_row_that_was_deleted_alone)
{
    this->AddFamily(L"a", {L"b"});
    const auto alone = this->Add(L"alone");
    const CKxTreeListRow* const record = this->list.Row(alone);
    this->list.DeleteItem(alone);
    this->list.DeleteAllItems();
    EXPECT_EQ(this->list.NodeCount(), 0);
    EXPECT_EQ(this->Wide(record->texts), L"alone");
}

REGISTER_TYPED_TEST_SUITE_P(
    TreeListSorts, equal_rows_keep_their_order_whatever_came_before, the_constant_of_the_top_level_stands_for_it,
    a_node_without_a_record_among_rows_that_were_sorted_before, a_record_on_two_nodes_is_sorted_like_any,
    nodes_whose_records_were_destroyed_stay_where_they_are, the_walk_finds_children_that_came_late,
    the_walk_finds_children_below_nodes_that_took_the_place_of_others, the_walk_below_a_foreign_node,
    deleting_everything_leaves_the_record_of_a_row_that_was_deleted_alone);
