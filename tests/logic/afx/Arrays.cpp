// The array classes.
#include <afxcoll.h>
#include <afxtempl.h>

#include "Raises.h"

TEST(Arrays, a_new_array_is_empty)
{
    const CUIntArray a;
    EXPECT_EQ(a.GetSize(), 0);
    EXPECT_EQ(a.GetUpperBound(), -1);
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetData(), nullptr);
}

TEST(Arrays, add_answers_the_index)
{
    CDWordArray a;
    EXPECT_EQ(a.Add(10), 0);
    EXPECT_EQ(a.Add(20), 1);
    EXPECT_EQ(a.GetCount(), 2);
    EXPECT_EQ(a[1], 20U);
    EXPECT_EQ(a.GetAt(0), 10U);
}

TEST(Arrays, elements_can_be_changed_in_place)
{
    CByteArray a;
    a.SetSize(3);
    a[0] = 1;
    a.SetAt(1, 2);
    a.ElementAt(2) = 3;
    EXPECT_EQ(a.GetData()[0] + a.GetData()[1] + a.GetData()[2], 6);
}

TEST(Arrays, growing_fills_with_zeros)
{
    CPtrArray a;
    a.SetSize(3, 10);
    EXPECT_EQ(a[2], nullptr);
    CWordArray b;
    b.SetAtGrow(4, 7);
    EXPECT_EQ(b.GetSize(), 5);
    EXPECT_EQ(b[3], 0);
    EXPECT_EQ(b[4], 7);
    b.SetAtGrow(0, 9);
    EXPECT_EQ(b.GetSize(), 5);
    EXPECT_EQ(b[0], 9);
}

TEST(Arrays, indices_outside_are_refused)
{
    CUIntArray a;
    a.Add(1);
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a[1]));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a[-1]));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a.GetAt(1)));
    EXPECT_RAISES(CInvalidArgException, a.SetAt(1, 5));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a.ElementAt(INTPTR_MIN)));
    EXPECT_RAISES(CInvalidArgException, a.SetAtGrow(-1, 5));
    EXPECT_RAISES(CInvalidArgException, a.InsertAt(-1, 5));
    EXPECT_RAISES(CInvalidArgException, a.InsertAt(0, 5, 0));
    EXPECT_RAISES(CInvalidArgException, a.RemoveAt(0, 2));
    EXPECT_RAISES(CInvalidArgException, a.RemoveAt(-1));
    EXPECT_RAISES(CInvalidArgException, a.RemoveAt(0, -1));
    EXPECT_RAISES(CInvalidArgException, a.RemoveAt(INTPTR_MAX, INTPTR_MAX));
    EXPECT_RAISES(CInvalidArgException, a.SetSize(-1));
    EXPECT_EQ(a.GetSize(), 1);
}

TEST(Arrays, impossible_sizes_raise_the_memory_exception)
{
    CUIntArray a;
    EXPECT_RAISES(CMemoryException, a.SetSize(INTPTR_MAX));
    EXPECT_RAISES(CMemoryException, a.SetAtGrow(INTPTR_MAX, 1));
    EXPECT_RAISES(CMemoryException, a.InsertAt(0, 1, INTPTR_MAX));
    EXPECT_EQ(a.GetSize(), 0);
}

TEST(Arrays, insert_and_remove_in_the_middle)
{
    CUIntArray a;
    a.Add(1);
    a.Add(4);
    a.InsertAt(1, 2);
    a.InsertAt(2, 3);
    a.InsertAt(6, 7, 2);
    ASSERT_EQ(a.GetSize(), 8);
    const UINT expected[] = {1, 2, 3, 4, 0, 0, 7, 7};
    for (int i = 0; i < 8; ++i)
    {
        EXPECT_EQ(a[i], expected[i]);
    }
    a.RemoveAt(4, 4);
    a.RemoveAt(0);
    EXPECT_EQ(a.GetSize(), 3);
    EXPECT_EQ(a[0], 2U);
    a.RemoveAt(3, 0);
    a.RemoveAll();
    EXPECT_TRUE(a.IsEmpty());
}

TEST(Arrays, append_copy_and_insert_another_array)
{
    CUIntArray a;
    a.Add(1);
    a.Add(2);
    CUIntArray b;
    b.Add(9);
    EXPECT_EQ(b.Append(a), 1);
    EXPECT_EQ(b.GetSize(), 3);
    b.InsertAt(1, &a);
    EXPECT_EQ(b.GetSize(), 5);
    EXPECT_EQ(b[1], 1U);
    EXPECT_EQ(b[2], 2U);
    EXPECT_EQ(b[3], 1U);
    b.Copy(a);
    EXPECT_EQ(b.GetSize(), 2);
    EXPECT_RAISES(CInvalidArgException, b.InsertAt(0, static_cast<CUIntArray*>(nullptr)));
}

TEST(Arrays, an_array_may_be_appended_to_and_inserted_into_itself)
{
    CStringArray a;
    a.Add(L"x");
    a.Add(L"y");
    EXPECT_EQ(a.Append(a), 2);
    EXPECT_EQ(a.GetSize(), 4);
    EXPECT_EQ(a[3], L"y");
    a.InsertAt(1, &a);
    EXPECT_EQ(a.GetSize(), 8);
    EXPECT_EQ(a[1], L"x");
    EXPECT_EQ(a[4], L"y");
    EXPECT_EQ(a[5], L"y");
    a.Copy(a);
    EXPECT_EQ(a.GetSize(), 8);
}

TEST(Arrays, an_element_may_be_added_to_its_own_array)
{
    CStringArray a;
    a.Add(L"x");
    for (int i = 0; i < 100; ++i)
    {
        a.Add(a[0]);
        a.InsertAt(0, a[a.GetUpperBound()], 2);
        a.SetAtGrow(a.GetSize() + 1, a[0]);
    }
    EXPECT_EQ(a[0], L"x");
    EXPECT_EQ(a[a.GetUpperBound()], L"x");
}

TEST(Arrays, string_arrays_take_plain_texts)
{
    CStringArray a;
    EXPECT_EQ(a.Add(L"abc"), 0);
    a.SetAt(0, L"def");
    a.SetAtGrow(2, L"ghi");
    EXPECT_EQ(a[0], L"def");
    EXPECT_EQ(a[1], L"");
    EXPECT_EQ(a[2], L"ghi");
    a[1] = L"mid";
    EXPECT_EQ(a.GetAt(1), L"mid");
}

TEST(Arrays, template_arrays_hold_any_type)
{
    CArray<CPoint, CPoint> points;
    points.Add(CPoint(1, 2));
    EXPECT_TRUE(points[0] == CPoint(1, 2));
    CArray<CString> texts;
    texts.Add(L"a");
    texts.SetSize(2);
    EXPECT_EQ(texts[1], L"");
    texts.FreeExtra();
    EXPECT_EQ(texts.GetData()[0], L"a");
}

TEST(Arrays, typed_pointer_arrays_answer_the_type_that_went_in)
{
    struct Row : CObject
    {
        int number = 0;
    };
    Row row;
    Row other;
    CTypedPtrArray<CObArray, Row*> a;
    a.Add(&row);
    a[0]->number = 5;
    EXPECT_EQ(row.number, 5);
    a[0] = &other;
    Row* const got = a.GetAt(0);
    EXPECT_EQ(got, &other);
    a.SetAtGrow(2, &row);
    EXPECT_EQ(static_cast<Row*>(a[1]), nullptr);
    a[1] = a[2];
    EXPECT_EQ(a.GetAt(1), &row);
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a.GetAt(3)));
}

TEST(Arrays, arrays_have_run_time_classes)
{
    CStringArray a;
    EXPECT_TRUE(a.IsKindOf(RUNTIME_CLASS(CStringArray)));
    EXPECT_TRUE(a.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(a.IsKindOf(RUNTIME_CLASS(CPtrArray)));
}
