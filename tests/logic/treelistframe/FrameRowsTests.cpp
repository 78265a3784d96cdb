// Finding and adding rows, on a tree in memory.
#include "treelist/FrameRows.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <vector>

using namespace treelist;

namespace
{
struct Row
{
    std::map<int, CString> cells;
    double value = 0.0;
    std::vector<std::unique_ptr<Row>> children;
    Row* parent = nullptr;
};

/// Rows with cells; the root is null.
class MemoryRows
{
public:
    using Node = Row*;

    Node FirstChild(Node node)
    {
        Row& row = at(node);
        return row.children.empty() ? nullptr : row.children.front().get();
    }
    Node NextSibling(Node node)
    {
        auto& all = node->parent->children;
        for (std::size_t i = 0; i + 1 < all.size(); ++i)
            if (all[i].get() == node)
                return all[i + 1].get();
        return nullptr;
    }
    CString Cell(Node node, int column) { return node->cells[column]; }
    double Value(Node node) { return node->value; }
    CString FormatValue(double value, int column)
    {
        CString text;
        text.Format(L"%.1f in %d", value, column);
        return text;
    }
    Node Append(Node parent, const CString& text)
    {
        if (refuses)
            return nullptr;
        Row& above = at(parent);
        above.children.push_back(std::make_unique<Row>());
        above.children.back()->parent = &above;
        above.children.back()->cells[0] = text;
        return above.children.back().get();
    }
    void SetCell(Node node, int column, const CString& text) { node->cells[column] = text; }
    void SetValue(Node node, int column, double value)
    {
        node->value = value;
        node->cells[column] = FormatValue(value, column);
    }
    bool refuses = false;
    std::size_t childCount(Node node) { return at(node).children.size(); }

private:
    Row& at(Node node) { return node == nullptr ? m_root : *node; }
    Row m_root;
};

using Node = MemoryRows::Node;
} // namespace

TEST(FindOrAdd, a_new_number_makes_a_row_with_the_number_in_cell_1)
{
    MemoryRows rows;
    const Node added = FindOrAdd(rows, Node(), L"beam", -12);
    EXPECT_TRUE(added->cells[0] == L"beam");
    EXPECT_TRUE(added->cells[1] == L"-12");
    EXPECT_EQ(1U, rows.childCount(nullptr));
}

TEST(FindOrAdd, a_row_with_both_cells_is_found_and_not_added_again)
{
    MemoryRows rows;
    const Node first = FindOrAdd(rows, Node(), L"beam", 12);
    EXPECT_EQ(first, FindOrAdd(rows, Node(), L"beam", 12));
    EXPECT_NE(first, FindOrAdd(rows, Node(), L"beam", 13));
    EXPECT_NE(first, FindOrAdd(rows, Node(), L"Beam", 12)) << "case counts";
    EXPECT_EQ(3U, rows.childCount(nullptr));
}

TEST(FindOrAdd, a_number_is_compared_as_text)
{
    MemoryRows rows;
    const Node row = rows.Append(nullptr, L"beam");
    rows.SetCell(row, 1, L"012");
    EXPECT_NE(row, FindOrAdd(rows, Node(), L"beam", 12));
}

TEST(FindOrAdd, looks_at_the_children_of_one_node_alone)
{
    MemoryRows rows;
    const Node storey = FindOrAdd(rows, Node(), L"storey", 1);
    const Node inside = FindOrAdd(rows, storey, L"beam", 1);
    EXPECT_EQ(storey->children.front().get(), inside);
    const Node outside = FindOrAdd(rows, Node(), L"beam", 1);
    EXPECT_NE(inside, outside);
    EXPECT_EQ(inside, FindOrAdd(rows, storey, L"beam", 1));
    EXPECT_EQ(1U, rows.childCount(storey));
}

TEST(FindOrAdd, a_new_value_makes_a_row_with_value_and_text)
{
    MemoryRows rows;
    const Node added = FindOrAdd(rows, Node(), L"beam", 2.5);
    EXPECT_TRUE(added->cells[0] == L"beam");
    EXPECT_TRUE(added->cells[1] == L"2.5 in 1");
    EXPECT_EQ(2.5, added->value);
}

TEST(FindOrAdd, values_no_farther_apart_than_a_ten_thousand_millionth_are_one)
{
    MemoryRows rows;
    const Node zero = FindOrAdd(rows, Node(), L"beam", 0.0);
    EXPECT_EQ(zero, FindOrAdd(rows, Node(), L"beam", 0.99e-10));
    EXPECT_NE(zero, FindOrAdd(rows, Node(), L"beam", 1.01e-10));
}

TEST(FindOrAdd, the_tolerance_does_not_grow_with_the_value)
{
    EXPECT_FALSE(SameValue(1e12, 1e12 + 0.001));
    EXPECT_TRUE(SameValue(1e12, 1e12));
    EXPECT_FALSE(SameValue(1e200, -1e200));
}

TEST(FindOrAdd, the_text_of_cell_1_plays_no_part_for_a_value)
{
    MemoryRows rows;
    const Node row = FindOrAdd(rows, Node(), L"beam", 2.5);
    rows.SetCell(row, 1, L"something else");
    EXPECT_EQ(row, FindOrAdd(rows, Node(), L"beam", 2.5));
    EXPECT_NE(row, FindOrAdd(rows, Node(), L"Beam", 2.5)) << "the name's case counts";
}

TEST(FindOrAdd, what_is_no_number_equals_nothing)
{
    MemoryRows rows;
    const double none = std::numeric_limits<double>::quiet_NaN();
    const Node first = FindOrAdd(rows, Node(), L"beam", none);
    EXPECT_NE(first, FindOrAdd(rows, Node(), L"beam", none));
    EXPECT_FALSE(SameValue(std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()));
}

TEST(FindOrAdd, a_row_that_cannot_be_added_is_none)
{
    MemoryRows rows;
    rows.refuses = true;
    EXPECT_EQ(nullptr, FindOrAdd(rows, Node(), L"beam", 1));
    EXPECT_EQ(nullptr, FindOrAdd(rows, Node(), L"beam", 1.5));
}

TEST(FindChildByText, gives_the_first_child_with_that_cell_0)
{
    MemoryRows rows;
    EXPECT_EQ(nullptr, FindChildByText(rows, Node(), L"b"));
    rows.Append(nullptr, L"a");
    const Node first = rows.Append(nullptr, L"b");
    rows.Append(nullptr, L"b");
    rows.Append(first, L"c");
    EXPECT_EQ(first, FindChildByText(rows, Node(), L"b"));
    EXPECT_EQ(nullptr, FindChildByText(rows, Node(), L"B")) << "case counts";
    EXPECT_EQ(nullptr, FindChildByText(rows, Node(), L"c")) << "it is below a row";
}
