// What is known of nodes without asking the tree.
#include <gtest/gtest.h>
#include "treelist/KnownNodes.h"

namespace
{
using Known = treelist::KnownNodes<const char*>;
constexpr const char* top = nullptr;
constexpr const char* const a = "a";
constexpr const char* const b = "b";

TEST(KnownNodes, rise_in_rank_as_they_come)
{
    Known known;
    EXPECT_EQ(known.TakeRanks(1, 10), 1U);
    EXPECT_EQ(known.TakeRanks(3, 10), 2U);
    EXPECT_EQ(known.TakeRanks(6, 10), 5U);
    EXPECT_TRUE(known.RanksTell(top));
    EXPECT_EQ(known.TakeRanks(1, 10), 0U) << "no more";
    EXPECT_FALSE(known.RanksTell(top));
}

TEST(KnownNodes, in_another_order_are_known_again_once_they_stand_by_rank)
{
    Known known;
    known.Shuffled(a);
    EXPECT_FALSE(known.RanksTell(a));
    EXPECT_TRUE(known.RanksTell(top));
    known.StandByRank(a);
    EXPECT_TRUE(known.RanksTell(a));
}

TEST(KnownNodes, ask_what_is_above_a_parent_once)
{
    Known known;
    EXPECT_FALSE(known.GetsChild(top));
    EXPECT_TRUE(known.GetsChild(a));
    EXPECT_FALSE(known.GetsChild(a));
    EXPECT_FALSE(known.MayHaveParentBelow(top));
    known.HasParentBelow(top);
    EXPECT_TRUE(known.MayHaveParentBelow(top));
    EXPECT_FALSE(known.MayHaveParentBelow(a));
}

TEST(KnownNodes, are_all_on_top_until_one_comes_below_another)
{
    Known known;
    known.GetsChild(top);
    EXPECT_TRUE(known.EveryRecordIsOnTop());
    known.GetsChild(a);
    EXPECT_FALSE(known.EveryRecordIsOnTop());
    known.GetsChild(top);
    EXPECT_FALSE(known.EveryRecordIsOnTop());
    known.Emptied();
    EXPECT_TRUE(known.EveryRecordIsOnTop());
    known.Removed();
    EXPECT_FALSE(known.EveryRecordIsOnTop()) << "some have no node any more";
}

TEST(KnownNodes, ask_again_once_nodes_went)
{
    Known known;
    known.GetsChild(a);
    known.HasParentBelow(top);
    EXPECT_TRUE(known.EveryRecordHasNode());
    known.Removed();
    EXPECT_FALSE(known.EveryRecordHasNode());
    EXPECT_TRUE(known.GetsChild(a));
    EXPECT_TRUE(known.MayHaveParentBelow(top)) << "what may be is kept";
    EXPECT_TRUE(known.RanksTell(top));
}

TEST(KnownNodes, that_another_changes_are_not_known_until_none_is_left)
{
    Known known;
    known.TakeRanks(5, 10);
    known.Distrust();
    EXPECT_FALSE(known.RanksTell(top));
    EXPECT_FALSE(known.EveryRecordHasNode());
    EXPECT_TRUE(known.MayHaveParentBelow(b));
    known.StandByRank(top);
    EXPECT_FALSE(known.RanksTell(top));
    known.Emptied();
    EXPECT_TRUE(known.RanksTell(top));
    EXPECT_TRUE(known.EveryRecordHasNode());
    EXPECT_FALSE(known.MayHaveParentBelow(b));
    EXPECT_EQ(known.TakeRanks(1, 10), 1U);
}

TEST(KnownNodes, tell_whether_more_happened_meanwhile)
{
    Known known;
    known.TakeRanks(1, 10);
    const auto steps = known.Steps();
    known.Shuffled(a);
    known.GetsChild(a);
    EXPECT_EQ(known.Steps(), steps);
    known.StandByRank(top);
    EXPECT_GT(known.Steps(), steps);
    const auto sorted = known.Steps();
    known.Emptied();
    EXPECT_GT(known.Steps(), sorted);
    const auto emptied = known.Steps();
    known.TakeRanks(1, 10);
    EXPECT_GT(known.Steps(), emptied);
}

TEST(KnownNodes, that_never_came_leave_a_record_without_a_node)
{
    Known known;
    known.RecordWithoutNode();
    EXPECT_FALSE(known.EveryRecordHasNode());
    EXPECT_TRUE(known.RanksTell(top));
}
} // namespace
