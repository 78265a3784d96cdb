// CString: one buffer for all copies until one of them is changed; the buffer functions; texts that name themselves.
#include <afx.h>

#include <climits>
#include <thread>
#include <utility>
#include <vector>

#include "Raises.h"

TEST(StringSharing, a_string_is_one_pointer)
{
    EXPECT_EQ(sizeof(CString), sizeof(void*));
}

TEST(StringSharing, empty_strings_share_one_text_and_allocate_nothing)
{
    const CString a;
    const CString b(L"");
    const CString c(static_cast<LPCWSTR>(nullptr));
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), c.GetString());
    EXPECT_EQ(a.GetAllocLength(), 0);
    EXPECT_EQ(*a.GetString(), L'\0');
}

TEST(StringSharing, a_copy_shares_the_buffer)
{
    const CString a(L"abc");
    const CString b(a); // NOLINT(performance-unnecessary-copy-initialization): it is tested
    CString c;
    c = b;
    EXPECT_EQ(a.GetString(), b.GetString());
    EXPECT_EQ(a.GetString(), c.GetString());
}

TEST(StringSharing, changing_a_copy_leaves_the_others)
{
    const CString a(L"abc");
    CString b(a);
    b.SetAt(0, L'x');
    CString c(a);
    c += L"d";
    CString d(a);
    d.MakeUpper();
    CString e(a);
    e.Delete(0);
    CString f(a);
    f.Replace(L'a', L'z');
    CString g(a);
    g.Empty();
    CString h(a);
    h.GetBuffer()[1] = L'-';
    EXPECT_EQ(a, L"abc");
    EXPECT_EQ(b, L"xbc");
    EXPECT_EQ(c, L"abcd");
    EXPECT_EQ(d, L"ABC");
    EXPECT_EQ(e, L"bc");
    EXPECT_EQ(f, L"zbc");
    EXPECT_EQ(g, L"");
    EXPECT_EQ(h, L"a-c");
}

TEST(StringSharing, changing_the_original_leaves_the_copy)
{
    CString a(L"abc");
    const CString b(a);
    a.Insert(0, L">");
    EXPECT_EQ(a, L">abc");
    EXPECT_EQ(b, L"abc");
}

TEST(StringSharing, a_sole_owner_is_changed_in_place)
{
    CString a(L"abc");
    LPCWSTR const before = a.GetString();
    a.SetAt(1, L'x');
    EXPECT_EQ(a.GetString(), before);
}

TEST(StringSharing, a_moved_from_string_is_empty)
{
    CString a(L"abc");
    const CString b(std::move(a));
    EXPECT_EQ(b, L"abc");
    EXPECT_TRUE(a.IsEmpty()); // NOLINT(bugprone-use-after-move): that is what is tested
}

TEST(StringSharing, assigning_a_string_to_itself_keeps_it)
{
    CString a(L"abc");
    const CString& same = a;
    a = same;
    EXPECT_EQ(a, L"abc");
}

TEST(StringSharing, a_string_may_be_set_to_a_part_of_itself)
{
    CString a(L"abcdef");
    a = a.GetString() + 2;
    EXPECT_EQ(a, L"cdef");
    a.SetString(a.GetString() + 1, 2);
    EXPECT_EQ(a, L"de");
    a.SetString(a.GetString() + 1, 50); // behind the end of its own text: cut
    EXPECT_EQ(a, L"e");
}

TEST(StringSharing, a_shared_string_set_to_a_part_of_itself_leaves_the_copy)
{
    CString a(L"abcdef");
    const CString b(a);
    a = a.GetString() + 2;
    EXPECT_EQ(a, L"cdef");
    EXPECT_EQ(b, L"abcdef");
}

TEST(StringSharing, a_string_may_be_appended_to_itself)
{
    CString a(L"abc");
    a += a;
    EXPECT_EQ(a, L"abcabc");
    a += a.GetString() + 4;
    EXPECT_EQ(a, L"abcabcbc");
    a.Append(a.GetString() + 6, 100);
    EXPECT_EQ(a, L"abcabcbcbc");
    for (int i = 0; i < 8; ++i)
    {
        a += a;
    }
    EXPECT_EQ(a.GetLength(), 2560);
}

TEST(StringSharing, a_string_may_be_inserted_into_itself)
{
    CString a(L"abc");
    EXPECT_EQ(a.Insert(1, a), 6);
    EXPECT_EQ(a, L"aabcbc");
}

TEST(StringSharing, arguments_of_replace_may_point_into_the_text)
{
    CString a(L"xyxyz");
    EXPECT_EQ(a.Replace(CString(L"xy"), a.GetString() + 4), 2);
    EXPECT_EQ(a, L"zzz");
    CString b(L"ab");
    EXPECT_EQ(b.Replace(b.GetString(), L"cd"), 1);
    EXPECT_EQ(b, L"cd");
}

TEST(StringSharing, format_arguments_may_point_into_the_text)
{
    CString a(L"abc");
    a.Format(L"%s-%s", a.GetString(), a.GetString());
    EXPECT_EQ(a, L"abc-abc");
    a.AppendFormat(L"/%s", a.GetString());
    EXPECT_EQ(a, L"abc-abc/abc-abc");
    a.Format(a);
    EXPECT_EQ(a, L"abc-abc/abc-abc");
}

TEST(StringSharing, get_buffer_gives_room_and_release_finds_the_end)
{
    CString a(L"abc");
    const CString copy(a);
    LPWSTR const buffer = a.GetBuffer(100);
    EXPECT_GE(a.GetAllocLength(), 100);
    EXPECT_EQ(buffer[2], L'c');
    buffer[0] = L'h';
    buffer[1] = L'i';
    buffer[2] = L'\0';
    a.ReleaseBuffer();
    EXPECT_EQ(a, L"hi");
    EXPECT_EQ(copy, L"abc");
}

TEST(StringSharing, release_with_a_length_cuts_or_extends_within_the_buffer)
{
    CString a(L"abcdef");
    a.GetBuffer(10);
    a.ReleaseBuffer(2);
    EXPECT_EQ(a, L"ab");
    EXPECT_RAISES(CInvalidArgException, a.ReleaseBuffer(1000000));
    EXPECT_RAISES(CInvalidArgException, a.ReleaseBuffer(-2));
    EXPECT_EQ(a, L"ab");
}

TEST(StringSharing, release_without_get_buffer_leaves_the_copies)
{
    CString a(L"abcdef");
    const CString b(a);
    a.ReleaseBuffer(3);
    EXPECT_EQ(a, L"abc");
    EXPECT_EQ(b, L"abcdef");
    CString empty;
    empty.ReleaseBuffer();
    empty.ReleaseBuffer(0);
    EXPECT_RAISES(CInvalidArgException, empty.ReleaseBuffer(1));
    EXPECT_TRUE(CString().IsEmpty());
}

TEST(StringSharing, get_buffer_set_length_has_the_length_at_once)
{
    CString a(L"ab");
    LPWSTR const buffer = a.GetBufferSetLength(4);
    buffer[2] = L'c';
    buffer[3] = L'd';
    EXPECT_EQ(a, L"abcd");
    a.GetBufferSetLength(1);
    EXPECT_EQ(a, L"a");
    a.ReleaseBufferSetLength(1);
    EXPECT_EQ(a, L"a");
}

TEST(StringSharing, negative_buffer_lengths_are_refused)
{
    CString a(L"ab");
    EXPECT_RAISES(CInvalidArgException, a.GetBuffer(-1));
    EXPECT_RAISES(CInvalidArgException, a.GetBufferSetLength(-5));
    a.Preallocate(-5);
    EXPECT_EQ(a, L"ab");
}

TEST(StringSharing, impossible_lengths_raise_the_memory_exception)
{
    CString a(L"ab");
    EXPECT_RAISES(CMemoryException, a.GetBuffer(INT_MAX));
    EXPECT_RAISES(CMemoryException, CString(L'x', INT_MAX));
    EXPECT_EQ(a, L"ab");
}

TEST(StringSharing, preallocate_keeps_the_text)
{
    CString a(L"ab");
    a.Preallocate(500);
    LPCWSTR const before = a.GetString();
    for (int i = 0; i < 498; ++i)
    {
        a += L'x';
    }
    EXPECT_EQ(a.GetString(), before);
    EXPECT_EQ(a.GetLength(), 500);
    EXPECT_EQ(a.Left(3), L"abx");
}

TEST(StringSharing, free_extra_gives_room_back)
{
    CString a(L"ab");
    a.Preallocate(500);
    a.FreeExtra();
    EXPECT_LT(a.GetAllocLength(), 20);
    EXPECT_EQ(a, L"ab");
    CString().FreeExtra();
}

TEST(StringSharing, a_locked_string_is_not_shared)
{
    CString a(L"abc");
    LPWSTR const buffer = a.LockBuffer();
    const CString b(a);
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(b, L"abc");
    buffer[0] = L'x';
    EXPECT_EQ(a, L"xbc");
    EXPECT_EQ(b, L"abc");
    a.UnlockBuffer();
    const CString c(a);
    EXPECT_EQ(a.GetString(), c.GetString());
}

TEST(StringSharing, a_locked_string_may_grow_and_die_locked)
{
    CString a(L"abc");
    a.LockBuffer();
    a.LockBuffer();
    a += CString(L'x', 1000);
    a.UnlockBuffer();
    const CString b(a);
    EXPECT_NE(a.GetString(), b.GetString());
    a.UnlockBuffer();
    a.UnlockBuffer(); // one too many does nothing
    const CString c(a);
    EXPECT_EQ(a.GetString(), c.GetString());
    CString d;
    d.LockBuffer();
    const CString e(d);
    EXPECT_TRUE(e.IsEmpty());
}

TEST(StringSharing, assigning_to_a_locked_string_works)
{
    CString a(L"abc");
    const CString other(L"a longer text than before");
    a.LockBuffer();
    a = other;
    EXPECT_EQ(a, other);
    a = L"x";
    EXPECT_EQ(a, L"x");
}

TEST(StringSharing, copies_may_be_made_and_dropped_by_many_threads)
{
    const CString shared(L"shared text");
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t)
    {
        threads.emplace_back(
            [shared]
            {
                for (int i = 0; i < 5000; ++i)
                {
                    CString copy(shared);
                    copy.SetAt(0, L'S');
                    const CString again(shared); // NOLINT(performance-unnecessary-copy-initialization): it is tested
                    if (copy == again)
                    {
                        ADD_FAILURE();
                    }
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    EXPECT_EQ(shared, L"shared text");
    CString last(shared);
    last.SetAt(0, L'x');
    EXPECT_EQ(shared[0], L's');
}
