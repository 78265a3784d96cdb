// Which addresses are records, and how long records live.
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>
#include "treelist/RowStore.h"

namespace
{
using treelist::RowStore;

CKxTreeListRow RowNamed(const wchar_t* name)
{
    CKxTreeListRow row(RGB(1, 2, 3));
    row.texts = name;
    return row;
}

TEST(TreeListRow, starts_empty_in_the_colour_given)
{
    const CKxTreeListRow row(RGB(9, 8, 7));
    EXPECT_EQ(row.texts, L"");
    EXPECT_EQ(row.value, 0.0);
    EXPECT_EQ(row.data, 0U);
    EXPECT_EQ(row.separator, 0xB6);
    EXPECT_EQ(row.bold, 0);
    EXPECT_EQ(row.color, RGB(9, 8, 7));
}

TEST(TreeListRow, a_copy_has_all_six_fields)
{
    CKxTreeListRow row(RGB(9, 8, 7));
    row.texts = L"a\u00b6b";
    row.value = 2.5;
    row.data = 0x123456789ABCDEF0U;
    row.bold = 2;
    const CKxTreeListRow copy(row);
    EXPECT_EQ(copy.texts, L"a\u00b6b");
    EXPECT_EQ(copy.value, 2.5);
    EXPECT_EQ(copy.data, 0x123456789ABCDEF0U);
    EXPECT_EQ(copy.separator, 0xB6);
    EXPECT_EQ(copy.bold, 2);
    EXPECT_EQ(copy.color, RGB(9, 8, 7));
}

TEST(RowStore, finds_its_records_and_nothing_else)
{
    RowStore store;
    RowStore other;
    CKxTreeListRow* const row = store.Create(RowNamed(L"a"));
    CKxTreeListRow* const foreign = other.Create(RowNamed(L"b"));
    CKxTreeListRow outside = RowNamed(L"c");
    const LPARAM address = RowStore::AddressOf(row);
    EXPECT_EQ(store.Find(address), row);
    for (const LPARAM wrong :
         {LPARAM(0), LPARAM(1), LPARAM(-1), address - 1, address + 1, address + 8,
          address + LPARAM(sizeof(CKxTreeListRow)), RowStore::AddressOf(foreign), RowStore::AddressOf(&outside)})
        EXPECT_EQ(store.Find(wrong), nullptr);
    EXPECT_EQ(RowStore().Find(address), nullptr);
}

TEST(RowStore, many_records_have_places_of_their_own_and_keep_them)
{
    RowStore store;
    std::vector<CKxTreeListRow*> rows;
    for (int i = 0; i < 20000; ++i)
        rows.push_back(store.Create(RowNamed(std::to_wstring(i).c_str())));
    EXPECT_EQ(std::set<CKxTreeListRow*>(rows.begin(), rows.end()).size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        ASSERT_EQ(store.Find(RowStore::AddressOf(rows[i])), rows[i]);
        ASSERT_EQ(rows[i]->texts, std::to_wstring(i).c_str());
    }
}

TEST(RowStore, a_destroyed_record_is_none_and_its_place_is_not_given_away)
{
    RowStore store;
    const LPARAM address = RowStore::AddressOf(store.Create(RowNamed(L"a")));
    store.Destroy(address);
    store.Destroy(address);
    store.Destroy(0);
    store.Destroy(address + 1);
    EXPECT_EQ(store.Find(address), nullptr);
    EXPECT_EQ(store.LivingCount(), 0U);
    for (int i = 0; i < 1000; ++i)
        ASSERT_NE(RowStore::AddressOf(store.Create(RowNamed(L"b"))), address);
}

TEST(RowStore, takes_records_again_after_reclaiming)
{
    RowStore store;
    for (int round = 0; round < 50; ++round)
    {
        std::vector<LPARAM> addresses;
        for (int i = 0; i < 100; ++i)
            addresses.push_back(RowStore::AddressOf(store.Create(RowNamed(L"a"))));
        for (const LPARAM address : addresses)
            store.Destroy(address);
        store.Reclaim();
        ASSERT_EQ(store.Find(addresses[0]), nullptr);
    }
    EXPECT_EQ(store.LivingCount(), 0U);
}

TEST(RowStore, a_record_that_nobody_destroyed_outlives_reclaiming_and_the_store)
{
    CKxTreeListRow* row = nullptr;
    {
        RowStore store;
        row = store.Create(RowNamed(L"kept"));
        store.Destroy(RowStore::AddressOf(store.Create(RowNamed(L"gone"))));
        store.Reclaim();
        EXPECT_EQ(row->texts, L"kept");
        EXPECT_EQ(store.Find(RowStore::AddressOf(row)), nullptr) << "no node points at it any more";
        row = store.Create(RowNamed(L"kept too"));
    }
    EXPECT_EQ(row->texts, L"kept too");
}

TEST(RowStore, expects_the_next_row_to_be_as_long_as_the_last_one)
{
    RowStore store;
    EXPECT_EQ(store.UsualLength(), 0);
    CKxTreeListRow* const row = store.Create(RowNamed(L"a"));
    EXPECT_EQ(store.UsualLength(), 1);
    row->texts = L"a\u00b6b";
    EXPECT_EQ(store.UsualLength(), 3) << "as it is by now";
    row->texts = CString(L'x', 100000);
    EXPECT_EQ(store.UsualLength(), 127) << "within reason";
    store.Destroy(RowStore::AddressOf(row));
    EXPECT_EQ(store.UsualLength(), 0);
    store.Create(RowNamed(L"b"));
    store.Reclaim();
    EXPECT_EQ(store.UsualLength(), 0);
}

TEST(RowStore, a_rank_stands_beside_each_record)
{
    RowStore store;
    CKxTreeListRow* const a = store.Create(RowNamed(L"a"));
    CKxTreeListRow* const b = store.Create(RowNamed(L"b"));
    EXPECT_EQ(RowStore::Rank(*a), 0U);
    RowStore::SetRank(*a, 7);
    RowStore::SetRank(*b, 9);
    EXPECT_EQ(RowStore::Rank(*a), 7U);
    EXPECT_EQ(RowStore::Rank(*b), 9U);
    EXPECT_EQ(a->texts, L"a");
    RowStore::SetRank(*a, RowStore::c_nLargestRank);
    EXPECT_EQ(RowStore::Rank(*a), 0x3FFFFFFFU);
    EXPECT_EQ(store.Find(RowStore::AddressOf(a)), a);
}

TEST(RowStore, a_mark_stands_beside_each_record)
{
    RowStore store;
    CKxTreeListRow* const a = store.Create(RowNamed(L"a"));
    CKxTreeListRow* const b = store.Create(RowNamed(L"b"));
    EXPECT_FALSE(RowStore::SetMark(*a, true));
    EXPECT_TRUE(RowStore::SetMark(*a, true));
    EXPECT_FALSE(RowStore::SetMark(*b, false));
    EXPECT_TRUE(RowStore::SetMark(*a, false));
    EXPECT_FALSE(RowStore::SetMark(*a, false));
    EXPECT_EQ(store.Find(RowStore::AddressOf(a)), a);
}

TEST(RowStore, a_copy_of_the_fields_leaves_what_stands_beside_them)
{
    RowStore store;
    CKxTreeListRow* const a = store.Create(RowNamed(L"a"));
    RowStore::SetRank(*a, 7);
    RowStore::SetMark(*a, true);
    *a = RowNamed(L"b");
    EXPECT_EQ(RowStore::Rank(*a), 7U);
    EXPECT_TRUE(RowStore::SetMark(*a, false));
    EXPECT_EQ(store.Find(RowStore::AddressOf(a)), a);
    EXPECT_EQ(RowStore::Rank(*store.Create(*a)), 0U) << "a record of its own";
}

TEST(RowStore, lists_and_destroys_the_records_with_a_rank)
{
    RowStore store;
    std::vector<CKxTreeListRow*> rows;
    for (unsigned i = 0; i < 3000; ++i)
    {
        rows.push_back(store.Create(RowNamed(L"a")));
        RowStore::SetRank(*rows.back(), i % 3);
    }
    EXPECT_EQ(store.Ranked().size(), 2000U);
    for (const CKxTreeListRow* row : store.Ranked())
        ASSERT_NE(RowStore::Rank(*row), 0U);
    store.DestroyRanked();
    EXPECT_TRUE(store.Ranked().empty());
    EXPECT_EQ(store.LivingCount(), 1000U);
    for (std::size_t i = 0; i < rows.size(); ++i)
        ASSERT_EQ(store.Find(RowStore::AddressOf(rows[i])) != nullptr, i % 3 == 0) << i;
}
} // namespace
