// The list classes, and what bad positions do.
#include <afxcoll.h>
#include <afxtempl.h>

#include "Raises.h"

namespace
{

CString joined(const CStringList& list)
{
    CString all;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
    {
        all += list.GetNext(pos);
    }
    return all;
}

} // namespace

TEST(Lists, a_new_list_is_empty)
{
    const CStringList list;
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(Lists, elements_come_in_the_order_of_their_places)
{
    CStringList list;
    list.AddTail(L"b");
    list.AddTail(L"c");
    list.AddHead(L"a");
    EXPECT_EQ(joined(list), L"abc");
    EXPECT_EQ(list.GetHead(), L"a");
    EXPECT_EQ(list.GetTail(), L"c");
    EXPECT_EQ(list.GetSize(), 3);
}

TEST(Lists, walking_backwards)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    CString all;
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;)
    {
        all += list.GetPrev(pos);
    }
    EXPECT_EQ(all, L"ba");
}

TEST(Lists, insert_before_and_after)
{
    CStringList list;
    const POSITION b = list.AddTail(L"b");
    list.InsertBefore(b, L"a");
    const POSITION c = list.InsertAfter(b, L"c");
    list.InsertAfter(c, L"d");
    EXPECT_EQ(joined(list), L"abcd");
    list.InsertBefore(nullptr, L"<");
    list.InsertAfter(nullptr, L">");
    EXPECT_EQ(joined(list), L"<abcd>");
}

TEST(Lists, remove_from_both_ends_and_the_middle)
{
    CStringList list;
    list.AddTail(L"a");
    const POSITION b = list.AddTail(L"b");
    list.AddTail(L"c");
    list.AddTail(L"d");
    EXPECT_EQ(list.RemoveHead(), L"a");
    EXPECT_EQ(list.RemoveTail(), L"d");
    list.RemoveAt(b);
    EXPECT_EQ(joined(list), L"c");
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    list.AddTail(L"again");
    EXPECT_EQ(joined(list), L"again");
}

TEST(Lists, ends_of_an_empty_list_are_refused)
{
    CPtrList list;
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetHead()));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetTail()));
    EXPECT_RAISES(CInvalidArgException, list.RemoveHead());
    EXPECT_RAISES(CInvalidArgException, list.RemoveTail());
}

TEST(Lists, null_and_stale_positions_are_refused)
{
    CStringList list;
    const POSITION a = list.AddTail(L"a");
    list.AddTail(L"b");
    list.RemoveAt(a);
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(a)));
    EXPECT_RAISES(CInvalidArgException, list.RemoveAt(a));
    EXPECT_RAISES(CInvalidArgException, list.SetAt(a, L"x"));
    EXPECT_RAISES(CInvalidArgException, list.InsertBefore(a, L"x"));
    EXPECT_RAISES(CInvalidArgException, list.Find(L"b", a));
    POSITION walk = a;
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetNext(walk)));
    walk = nullptr;
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetNext(walk)));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetPrev(walk)));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(nullptr)));
    EXPECT_RAISES(CInvalidArgException, list.RemoveAt(nullptr));
    EXPECT_EQ(joined(list), L"b");
}

TEST(Lists, a_place_that_is_used_again_has_a_new_position)
{
    CStringList list;
    const POSITION a = list.AddTail(L"a");
    list.RemoveAt(a);
    const POSITION b = list.AddTail(L"b");
    EXPECT_NE(a, b);
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(a)));
    EXPECT_EQ(list.GetAt(b), L"b");
}

TEST(Lists, positions_survive_changes_elsewhere_and_removal_of_all)
{
    CStringList list;
    const POSITION a = list.AddTail(L"a");
    for (int i = 0; i < 1000; ++i)
    {
        list.AddHead(L"x");
    }
    EXPECT_EQ(list.GetAt(a), L"a");
    list.RemoveAll();
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(a)));
    list.AddTail(L"new");
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(a)));
}

TEST(Lists, made_up_positions_are_refused)
{
    CPtrList list;
    list.AddTail(static_cast<void*>(&list));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(list.GetAt(reinterpret_cast<POSITION>(&list))));
    EXPECT_RAISES(CInvalidArgException, list.RemoveAt(reinterpret_cast<POSITION>(~std::uintptr_t{0})));
    EXPECT_EQ(list.GetCount(), 1);
}

TEST(Lists, elements_keep_their_address)
{
    CStringList list;
    const POSITION a = list.AddTail(L"a");
    CString* const address = &list.GetAt(a);
    for (int i = 0; i < 1000; ++i)
    {
        list.AddTail(L"x");
    }
    EXPECT_EQ(&list.GetAt(a), address);
}

TEST(Lists, elements_can_be_changed_through_the_walk)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
    {
        list.GetNext(pos) += L"!";
    }
    list.SetAt(list.GetTailPosition(), L"c");
    EXPECT_EQ(joined(list), L"a!c");
}

TEST(Lists, the_current_element_may_be_removed_during_a_walk)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    list.AddTail(L"c");
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
    {
        const POSITION here = pos;
        if (list.GetNext(pos) != L"b")
        {
            list.RemoveAt(here);
        }
    }
    EXPECT_EQ(joined(list), L"b");
}

TEST(Lists, find_and_find_index)
{
    CStringList list;
    list.AddTail(L"a");
    const POSITION b = list.AddTail(L"b");
    const POSITION second = list.AddTail(L"a");
    EXPECT_EQ(list.Find(L"b"), b);
    EXPECT_EQ(list.Find(L"a"), list.GetHeadPosition());
    EXPECT_EQ(list.Find(L"a", list.GetHeadPosition()), second);
    EXPECT_EQ(list.Find(L"a", second), nullptr);
    EXPECT_EQ(list.Find(L"x"), nullptr);
    EXPECT_EQ(list.FindIndex(1), b);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(Lists, whole_lists_are_added_in_their_order)
{
    CStringList a;
    a.AddTail(L"1");
    a.AddTail(L"2");
    CStringList b;
    b.AddTail(L"x");
    b.AddHead(&a);
    b.AddTail(&a);
    EXPECT_EQ(joined(b), L"12x12");
    EXPECT_EQ(joined(a), L"12");
    EXPECT_RAISES(CInvalidArgException, b.AddTail(static_cast<CStringList*>(nullptr)));
}

TEST(Lists, a_list_may_be_added_to_itself)
{
    CStringList a;
    a.AddTail(L"1");
    a.AddTail(L"2");
    a.AddTail(&a);
    EXPECT_EQ(joined(a), L"1212");
    a.AddHead(&a);
    EXPECT_EQ(joined(a), L"12121212");
}

TEST(Lists, pointer_lists_tell_an_element_from_a_list)
{
    CPtrList list;
    CPtrList other;
    int number = 0;
    other.AddTail(&number);
    list.AddTail(&other); // a list: its elements
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.GetHead(), &number);
    list.AddTail(static_cast<void*>(&other)); // a plain pointer: an element
    EXPECT_EQ(list.GetTail(), &other);
}

TEST(Lists, object_lists_do_not_own_their_objects)
{
    CStringArray object;
    CObList list;
    list.AddTail(&object);
    list.RemoveAll();
    object.Add(L"still here");
    EXPECT_EQ(object.GetSize(), 1);
}

TEST(Lists, an_element_of_the_list_may_be_added_again)
{
    CList<CString, const CString&> list;
    list.AddTail(L"a");
    for (int i = 0; i < 100; ++i)
    {
        list.AddTail(list.GetHead());
        list.AddHead(list.GetTail());
    }
    EXPECT_EQ(list.GetCount(), 201);
    EXPECT_EQ(list.GetTail(), L"a");
}

TEST(Lists, typed_pointer_lists)
{
    struct Row : CObject
    {
        int number = 3;
    };
    Row row;
    CTypedPtrList<CObList, Row*> list;
    const POSITION at = list.AddTail(&row);
    EXPECT_EQ(list.GetHead()->number, 3);
    POSITION pos = list.GetHeadPosition();
    Row* const got = list.GetNext(pos);
    EXPECT_EQ(got, &row);
    EXPECT_EQ(pos, nullptr);
    list.SetAt(at, nullptr);
    EXPECT_EQ(list.GetAt(at), nullptr);
    EXPECT_EQ(list.RemoveHead(), nullptr);
    EXPECT_TRUE(list.IsEmpty());
}
