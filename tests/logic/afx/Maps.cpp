// The map classes.
#include <afxcoll.h>
#include <afxtempl.h>

#include "Raises.h"

namespace
{

// A program's own key type.
struct Cell
{
    int row;
    int column;
    bool operator==(const Cell&) const = default;
};

} // namespace

template <> UINT AFXAPI HashKey<const Cell&>(const Cell& key)
{
    return static_cast<UINT>(key.row * 31 + key.column);
}

TEST(Maps, lookup_answers_whether_the_key_is_there)
{
    CMapStringToString map;
    CString value(L"untouched");
    EXPECT_FALSE(map.Lookup(L"a", value));
    EXPECT_EQ(value, L"untouched");
    map.SetAt(L"a", L"1");
    EXPECT_TRUE(map.Lookup(L"a", value));
    EXPECT_EQ(value, L"1");
    EXPECT_FALSE(map.Lookup(L"A", value));
}

TEST(Maps, a_second_value_replaces_the_first)
{
    CMapStringToString map;
    map[L"a"] = L"1";
    map[L"a"] = L"2";
    EXPECT_EQ(map.GetCount(), 1);
    EXPECT_EQ(map[L"a"], L"2");
}

TEST(Maps, indexing_a_missing_key_adds_it)
{
    CMap<int, int, int, int> map;
    EXPECT_EQ(map[7], 0);
    EXPECT_EQ(map.GetCount(), 1);
    CMapPtrToPtr pointers;
    EXPECT_EQ(pointers[&map], nullptr);
    EXPECT_EQ(pointers.GetSize(), 1);
}

TEST(Maps, remove_key)
{
    CMapStringToPtr map;
    int x = 0;
    map.SetAt(L"a", &x);
    map.SetAt(L"b", &x);
    EXPECT_TRUE(map.RemoveKey(L"a"));
    EXPECT_FALSE(map.RemoveKey(L"a"));
    void* value = nullptr;
    EXPECT_FALSE(map.Lookup(L"a", value));
    EXPECT_TRUE(map.Lookup(L"b", value));
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_FALSE(map.Lookup(L"b", value));
    map.SetAt(L"b", &x);
    EXPECT_EQ(map.GetCount(), 1);
}

TEST(Maps, the_walk_follows_the_order_of_insertion)
{
    CMapStringToString map;
    for (const wchar_t* key : {L"one", L"two", L"three", L"four"})
    {
        map.SetAt(key, key);
    }
    map.RemoveKey(L"two");
    map.SetAt(L"one", L"1");
    map.SetAt(L"two", L"2");
    CString all;
    CString key;
    CString value;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;)
    {
        map.GetNextAssoc(pos, key, value);
        all += key + L"=" + value + L" ";
    }
    EXPECT_EQ(all, L"one=1 three=three four=four two=2 ");
}

TEST(Maps, the_pair_walk)
{
    CMap<int, int, CString, LPCWSTR> map;
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
    map.SetAt(3, L"c");
    map.SetAt(1, L"a");
    map.SetAt(2, L"b");
    CString all;
    for (auto* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair))
    {
        all += pair->value;
        pair->value += L"!";
    }
    EXPECT_EQ(all, L"cab");
    EXPECT_EQ(map.PLookup(1)->value, L"a!");
    EXPECT_EQ(map.PLookup(9), nullptr);
}

TEST(Maps, the_current_key_may_be_removed_during_a_walk)
{
    CMapPtrToWord map;
    WORD numbers[100] = {};
    for (WORD& number : numbers)
    {
        map.SetAt(&number, 1);
    }
    int steps = 0;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr; ++steps)
    {
        void* key = nullptr;
        WORD value = 0;
        map.GetNextAssoc(pos, key, value);
        EXPECT_EQ(value, 1);
        map.RemoveKey(key);
    }
    EXPECT_EQ(steps, 100);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(Maps, bad_positions_are_refused)
{
    CMap<int, int, int, int> map;
    map[1] = 1;
    POSITION pos = map.GetStartPosition();
    map.RemoveAll();
    map[2] = 2;
    int key = 0;
    int value = 0;
    EXPECT_RAISES(CInvalidArgException, map.GetNextAssoc(pos, key, value));
    pos = nullptr;
    EXPECT_RAISES(CInvalidArgException, map.GetNextAssoc(pos, key, value));
    EXPECT_RAISES(CInvalidArgException, map.PGetNextAssoc(nullptr));
    EXPECT_EQ(map.GetStartPosition() == nullptr, false);
}

TEST(Maps, many_keys_stay_findable)
{
    CMap<int, int, int, int> map;
    for (int i = 0; i < 10000; ++i)
    {
        map[i * 1024] = i;
    }
    for (int i = 0; i < 10000; i += 2)
    {
        EXPECT_TRUE(map.RemoveKey(i * 1024));
    }
    EXPECT_EQ(map.GetCount(), 5000);
    int value = -1;
    for (int i = 0; i < 10000; ++i)
    {
        EXPECT_EQ(map.Lookup(i * 1024, value), i % 2 != 0);
    }
    EXPECT_GE(map.GetHashTableSize(), 5000U);
}

TEST(Maps, values_keep_their_address_while_the_map_grows)
{
    CMap<int, int, CString, LPCWSTR> map;
    map.SetAt(0, L"zero");
    CString* const address = &map.PLookup(0)->value;
    for (int i = 1; i < 1000; ++i)
    {
        map.SetAt(i, L"x");
    }
    EXPECT_EQ(&map.PLookup(0)->value, address);
}

TEST(Maps, the_table_size_is_a_hint)
{
    CMapWordToPtr map;
    map.InitHashTable(101);
    EXPECT_EQ(map.GetHashTableSize(), 101U);
    map.InitHashTable(0);
    EXPECT_EQ(map.GetHashTableSize(), 101U);
    map.InitHashTable(0xFFFFFFFFU);
    map.SetAt(7, &map);
    void* value = nullptr;
    EXPECT_TRUE(map.Lookup(7, value));
    map.InitHashTable(5); // too late
    EXPECT_TRUE(map.Lookup(7, value));
}

TEST(Maps, null_text_keys_count_as_empty)
{
    CMapStringToString map;
    map.SetAt(nullptr, L"x");
    CString value;
    EXPECT_TRUE(map.Lookup(L"", value));
    EXPECT_TRUE(map.Lookup(nullptr, value));
    EXPECT_EQ(map.GetCount(), 1);
}

TEST(Maps, lookup_key_answers_the_own_copy_of_the_map)
{
    CMapStringToOb map;
    CString key(L"key");
    map.SetAt(key, nullptr);
    LPCTSTR stored = nullptr;
    EXPECT_TRUE(map.LookupKey(L"key", stored));
    EXPECT_STREQ(stored, L"key");
    EXPECT_FALSE(map.LookupKey(L"other", stored));
}

TEST(Maps, string_keys_by_reference_and_own_key_types)
{
    CMap<CString, const CString&, int, int> texts;
    texts[L"a"] = 1;
    texts[CString(L"a")] += 1;
    EXPECT_EQ(texts[L"a"], 2);
    CMap<Cell, const Cell&, int, int> cells;
    cells[Cell{1, 2}] = 12;
    cells[Cell{2, 1}] = 21;
    EXPECT_EQ(cells.GetCount(), 2);
    int value = 0;
    EXPECT_TRUE(cells.Lookup(Cell{2, 1}, value));
    EXPECT_EQ(value, 21);
}

TEST(Maps, the_removed_key_may_be_the_stored_one)
{
    CMap<CString, const CString&, int, int> map;
    map[L"a"] = 1;
    EXPECT_TRUE(map.RemoveKey(map.PGetFirstAssoc()->key));
    EXPECT_TRUE(map.IsEmpty());
}
