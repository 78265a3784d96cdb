// What may be done to nodes while a tree is in the middle of something.
#include <gtest/gtest.h>
#include "support/MemoryTree.h"
#include "treelist/HeldNodes.h"

namespace
{
using Held = treelist::HeldNodes<MemoryNode*>;

/// A storey with a beam with a bar, and another storey.
class HeldNodesOfTree : public ::testing::Test
{
protected:
    MemoryNode* Add(MemoryNode* parent) { return nodes.Insert({}, parent, MemoryNodes::Last()); }
    Held::Hold On(MemoryNode* first, MemoryNode* second = nullptr) { return {{first, second}, false, false}; }

    MemoryNodes nodes;
    MemoryTree tree{nodes};
    MemoryNode* const storey = Add(nullptr);
    MemoryNode* const beam = Add(storey);
    MemoryNode* const bar = Add(beam);
    MemoryNode* const other = Add(nullptr);
    Held held;
};

TEST_F(HeldNodesOfTree, below_a_node_lies_what_it_has_and_below_the_root_everything)
{
    EXPECT_TRUE(treelist::IsAtOrBelow(tree, bar, storey));
    EXPECT_TRUE(treelist::IsAtOrBelow(tree, bar, bar));
    EXPECT_FALSE(treelist::IsAtOrBelow(tree, storey, bar));
    EXPECT_FALSE(treelist::IsAtOrBelow(tree, bar, other));
    EXPECT_FALSE(treelist::IsAtOrBelow(tree, nullptr, storey));
    EXPECT_FALSE(treelist::IsAtOrBelow(tree, bar, nullptr));
    EXPECT_TRUE(treelist::IsAtOrBelow(tree, bar, MemoryNodes::Root()));
    EXPECT_TRUE(treelist::IsAtOrBelow(tree, nullptr, MemoryNodes::Root()));
    EXPECT_FALSE(treelist::IsAtOrBelow(tree, MemoryNodes::Root(), storey));
}

TEST_F(HeldNodesOfTree, a_tree_at_rest_lets_all_go)
{
    EXPECT_FALSE(held.Holds());
    EXPECT_FALSE(held.Removes());
    for (MemoryNode* const node : {storey, beam, bar, other})
    {
        EXPECT_TRUE(held.MayRemove(tree, node));
        EXPECT_TRUE(held.MayEmpty(tree, node));
        EXPECT_TRUE(held.Stays(tree, node));
    }
}

TEST_F(HeldNodesOfTree, a_held_node_keeps_itself_and_those_above)
{
    const struct
    {
        MemoryNode* node;
        bool mayGo;
        bool mayBeEmptied;
    } rows[] = {{storey, false, false}, {beam, false, true}, {bar, true, true}, {other, true, true}};
    for (const Held::Hold& hold : {On(beam), On(nullptr, beam)})
    {
        held.Begin(hold);
        EXPECT_TRUE(held.Holds());
        for (const auto& row : rows)
        {
            EXPECT_EQ(held.MayRemove(tree, row.node), row.mayGo);
            EXPECT_EQ(held.MayEmpty(tree, row.node), row.mayBeEmptied);
            EXPECT_TRUE(held.Stays(tree, row.node));
        }
        held.End();
        EXPECT_FALSE(held.Holds());
    }
}

TEST_F(HeldNodesOfTree, a_tree_that_goes_on_with_any_node_lets_none_go)
{
    held.Begin({{}, true, false});
    EXPECT_TRUE(held.Holds());
    EXPECT_FALSE(held.MayRemove(tree, other));
    EXPECT_FALSE(held.MayEmpty(tree, other));
    EXPECT_TRUE(held.Stays(tree, other));
}

TEST_F(HeldNodesOfTree, what_is_removed_does_not_stay_nor_what_is_below)
{
    held.Begin({{beam}, true, true});
    EXPECT_TRUE(held.Removes());
    EXPECT_TRUE(held.Stays(tree, storey));
    EXPECT_FALSE(held.Stays(tree, beam));
    EXPECT_FALSE(held.Stays(tree, bar));
    EXPECT_TRUE(held.Stays(tree, nullptr)) << "the top level";
    held.Begin({{MemoryNodes::Root()}, true, true});
    EXPECT_FALSE(held.Stays(tree, other));
    EXPECT_FALSE(held.Stays(tree, nullptr));
    held.End();
    EXPECT_TRUE(held.Stays(tree, other));
}

TEST_F(HeldNodesOfTree, done_with_its_nodes_the_innermost_lets_them_go_and_no_other)
{
    held.DoneWithNodes(); // at rest: nothing
    held.Begin(On(storey));
    held.Begin({{beam}, false, true});
    held.DoneWithNodes();
    EXPECT_FALSE(held.Removes());
    EXPECT_TRUE(held.MayRemove(tree, beam));
    EXPECT_FALSE(held.MayRemove(tree, storey)) << "the outer one is still at work with it";
    held.Begin({{beam}, true, true});
    held.DoneWithNodes();
    EXPECT_FALSE(held.MayRemove(tree, other)) << "it still goes on with any node";
    EXPECT_TRUE(held.Stays(tree, beam));
}
} // namespace
