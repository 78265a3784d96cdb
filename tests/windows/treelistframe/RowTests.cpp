// Rows that are found or added, and the expansion of the top level.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
OpenFrame& twoColumns(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 120);
    return frame;
}

UINT childCount(OpenFrame& frame, HTREEITEM parent)
{
    UINT count = 0;
    HTREEITEM child = parent == nullptr ? frame.m_tree.GetRootItem() : frame.m_tree.GetChildItem(parent);
    for (; child != nullptr; child = frame.m_tree.GetNextSiblingItem(child))
        ++count;
    return count;
}

bool isExpanded(OpenFrame& frame, HTREEITEM item)
{
    return (frame.m_tree.GetItemState(item, TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}
} // namespace

TEST(FindingRows, by_the_text_of_cell_0_at_the_top_level)
{
    FrameHost host;
    OpenFrame& frame = twoColumns(host);
    EXPECT_EQ(nullptr, frame.GetElementItemByString(L"b"));
    HTREEITEM const a = frame.m_tree.InsertItem(L"a", TVI_ROOT, TVI_LAST);
    frame.m_tree.InsertItem(L"c", a, TVI_LAST);
    HTREEITEM const b = frame.m_tree.InsertItem(L"b", TVI_ROOT, TVI_LAST);
    frame.m_tree.InsertItem(L"b", TVI_ROOT, TVI_LAST);
    EXPECT_EQ(b, frame.GetElementItemByString(L"b"));
    EXPECT_EQ(nullptr, frame.GetElementItemByString(L"B"));
    EXPECT_EQ(nullptr, frame.GetElementItemByString(L"c"));
}

TEST(InsertItemIfNecessary, with_a_number_adds_a_row_once)
{
    FrameHost host;
    OpenFrame& frame = twoColumns(host);
    HTREEITEM const storey = frame.InsertItemIfNecessary(nullptr, L"Storey", 3);
    ASSERT_NE(nullptr, storey);
    EXPECT_TRUE(frame.m_tree.GetItemText(storey, 0) == L"Storey");
    EXPECT_TRUE(frame.m_tree.GetItemText(storey, 1) == L"3");
    EXPECT_EQ(storey, frame.InsertItemIfNecessary(nullptr, L"Storey", 3));
    EXPECT_EQ(storey, frame.InsertItemIfNecessary(TVI_ROOT, L"Storey", 3));
    HTREEITEM const below = frame.InsertItemIfNecessary(storey, L"Storey", 3);
    EXPECT_NE(storey, below);
    EXPECT_EQ(1U, childCount(frame, nullptr));
    EXPECT_EQ(1U, childCount(frame, storey));
}

TEST(InsertItemIfNecessary, with_a_value_compares_within_a_ten_thousand_millionth)
{
    FrameHost host;
    OpenFrame& frame = twoColumns(host);
    HTREEITEM const beam = frame.InsertItemIfNecessary(nullptr, L"Beam", 2.5);
    ASSERT_NE(nullptr, beam);
    EXPECT_TRUE(frame.m_tree.GetItemText(beam, 1) == L" 2.50") << "five places, two of them decimals";
    EXPECT_EQ(2.5, frame.m_tree.GetItemValue(beam, 1));
    EXPECT_EQ(beam, frame.InsertItemIfNecessary(nullptr, L"Beam", 2.5 + 0.9e-10));
    EXPECT_NE(beam, frame.InsertItemIfNecessary(nullptr, L"Beam", 2.5 + 1.2e-10));
    EXPECT_EQ(2U, childCount(frame, nullptr));
}

TEST(InsertItemIfNecessary, of_big_values_keeps_the_same_tolerance)
{
    FrameHost host;
    OpenFrame& frame = twoColumns(host);
    HTREEITEM const first = frame.InsertItemIfNecessary(nullptr, L"Beam", 1e12);
    EXPECT_NE(first, frame.InsertItemIfNecessary(nullptr, L"Beam", 1e12 + 0.001));
    EXPECT_EQ(first, frame.InsertItemIfNecessary(nullptr, L"Beam", 1e12));
}

TEST(ExpandTree, expands_the_top_level_alone)
{
    FrameHost host;
    OpenFrame& frame = twoColumns(host);
    HTREEITEM tops[2] = {};
    HTREEITEM children[2] = {};
    for (int i = 0; i < 2; ++i)
    {
        tops[i] = frame.m_tree.InsertItem(L"top", TVI_ROOT, TVI_LAST);
        children[i] = frame.m_tree.InsertItem(L"child", tops[i], TVI_LAST);
        frame.m_tree.InsertItem(L"grandchild", children[i], TVI_LAST);
    }
    frame.ExpandTree();
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(isExpanded(frame, tops[i]));
        EXPECT_FALSE(isExpanded(frame, children[i]));
    }
}

TEST(MovingRows, recalculates_the_bars_for_a_row_with_children_where_that_is_asked_for)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200); // the bar is shown, and as wide as the frame
    HTREEITEM top = frame.m_tree.InsertItem(L"top", TVI_ROOT, TVI_LAST);
    HTREEITEM leaf = frame.m_tree.InsertItem(L"leaf", TVI_ROOT, TVI_LAST);
    frame.m_tree.InsertItem(L"child", top, TVI_LAST);
    const auto shrinkBar = [&]
    { frame.bar().SetWindowPos(nullptr, 0, 0, 50, frame.barHeight(), SWP_NOMOVE | SWP_NOZORDER); };
    shrinkBar();
    leaf = frame.m_tree.MoveItemAndChildren(leaf, TVI_ROOT, TVI_FIRST, true);
    EXPECT_NE(nullptr, leaf);
    EXPECT_EQ(50, frame.placeOf(frame.bar()).Width()) << "a row without children: never";
    top = frame.m_tree.MoveItemAndChildren(top, TVI_ROOT, TVI_FIRST, false);
    EXPECT_EQ(50, frame.placeOf(frame.bar()).Width());
    EXPECT_NE(nullptr, frame.m_tree.MoveItemAndChildren(top, TVI_ROOT, TVI_LAST, true));
    EXPECT_EQ(300, frame.placeOf(frame.bar()).Width());
}
