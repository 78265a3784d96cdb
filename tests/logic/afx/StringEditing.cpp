// CString: construction and every operation that changes the text.
#include <afx.h>

#include <climits>

#include "Raises.h"

TEST(StringEditing, constructors)
{
    EXPECT_EQ(CString(L"abc"), L"abc");
    EXPECT_EQ(CString("abc"), L"abc");
    EXPECT_EQ(CString(L'x', 3), L"xxx");
    EXPECT_EQ(CString(L'x'), L"x");
    EXPECT_EQ(CString('x', 2), L"xx");
    EXPECT_EQ(CString(L"abcdef", 3), L"abc");
    EXPECT_EQ(CString("abcdef", 2), L"ab");
    EXPECT_EQ(CString(static_cast<LPCSTR>(nullptr)), L"");
    EXPECT_EQ(CString(L'x', 0), L"");
    EXPECT_EQ(CString(L'x', -4), L"");
}

TEST(StringEditing, a_length_without_a_text_is_refused)
{
    EXPECT_RAISES(CInvalidArgException, CString(static_cast<LPCWSTR>(nullptr), 3));
    EXPECT_RAISES(CInvalidArgException, CString(L"abc", -1));
    EXPECT_RAISES(CInvalidArgException, CString("abc", -1));
    EXPECT_EQ(CString(static_cast<LPCWSTR>(nullptr), 0), L"");
}

TEST(StringEditing, an_embedded_terminator_counts_in_the_length)
{
    const CString a(L"a\0b", 3);
    EXPECT_EQ(a.GetLength(), 3);
    EXPECT_EQ(a[1], L'\0');
    EXPECT_EQ(a[2], L'b');
    EXPECT_EQ((a + a).GetLength(), 6);
    EXPECT_EQ(a.Right(1), L"b");
}

TEST(StringEditing, narrow_bytes_are_code_page_1252)
{
    const CString a("\xE9\x80");
    ASSERT_EQ(a.GetLength(), 2);
    EXPECT_EQ(a[0], static_cast<wchar_t>(0xE9));
    EXPECT_EQ(a[1], static_cast<wchar_t>(0x20AC));
    EXPECT_STREQ(CStringA(a).GetString(), "\xE9\x80");
    const wchar_t alpha[] = {0x3B1, 0};
    EXPECT_EQ(CStringA(alpha).GetLength(), 1);
}

TEST(StringEditing, assignment_forms)
{
    CString a;
    a = L"wide";
    EXPECT_EQ(a, L"wide");
    a = "narrow";
    EXPECT_EQ(a, L"narrow");
    a = L'c';
    EXPECT_EQ(a, L"c");
    a = 'd';
    EXPECT_EQ(a, L"d");
    a = static_cast<LPCWSTR>(nullptr);
    EXPECT_EQ(a, L"");
}

TEST(StringEditing, a_long_text_is_shortened_by_assignment)
{
    CString a(L'x', 100);
    a = L"short";
    EXPECT_EQ(a, L"short");
    EXPECT_EQ(a.GetLength(), 5);
}

TEST(StringEditing, concatenation_forms)
{
    const CString a(L"ab");
    EXPECT_EQ(a + a, L"abab");
    EXPECT_EQ(a + L"cd", L"abcd");
    EXPECT_EQ(L"cd" + a, L"cdab");
    EXPECT_EQ(a + L'c', L"abc");
    EXPECT_EQ(L'c' + a, L"cab");
    EXPECT_EQ(a + 'c', L"abc");
    EXPECT_EQ('c' + a, L"cab");
    EXPECT_EQ(a + static_cast<LPCWSTR>(nullptr), L"ab");
    EXPECT_EQ(CString() + CString(), L"");
}

TEST(StringEditing, appending_forms)
{
    CString a;
    a += L"a";
    a += CString(L"b");
    a += L'c';
    a += 'd';
    a += "e";
    a.Append(L"fgh", 2);
    a.AppendChar(L'!');
    a.Append(static_cast<LPCWSTR>(nullptr));
    EXPECT_EQ(a, L"abcdefg!");
    EXPECT_RAISES(CInvalidArgException, a.Append(L"x", -1));
    EXPECT_RAISES(CInvalidArgException, a.Append(nullptr, 1));
}

TEST(StringEditing, get_at_reads_up_to_the_terminator)
{
    const CString a(L"ab");
    EXPECT_EQ(a.GetAt(0), L'a');
    EXPECT_EQ(a[1], L'b');
    EXPECT_EQ(a[2], L'\0');
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a.GetAt(3)));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a.GetAt(-1)));
    EXPECT_RAISES(CInvalidArgException, static_cast<void>(a[INT_MIN]));
}

TEST(StringEditing, set_at_stays_before_the_terminator)
{
    CString a(L"ab");
    a.SetAt(1, L'c');
    EXPECT_EQ(a, L"ac");
    EXPECT_RAISES(CInvalidArgException, a.SetAt(2, L'x'));
    EXPECT_RAISES(CInvalidArgException, a.SetAt(-1, L'x'));
    CString empty;
    EXPECT_RAISES(CInvalidArgException, empty.SetAt(0, L'x'));
    EXPECT_EQ(a, L"ac");
}

TEST(StringEditing, insert_clamps_the_position_and_answers_the_length)
{
    CString a(L"bc");
    EXPECT_EQ(a.Insert(-5, L'a'), 3);
    EXPECT_EQ(a.Insert(100, L"de"), 5);
    EXPECT_EQ(a.Insert(2, L'-'), 6);
    EXPECT_EQ(a, L"ab-cde");
    EXPECT_EQ(a.Insert(1, L""), 6);
    EXPECT_EQ(a.Insert(1, nullptr), 6);
    EXPECT_EQ(a, L"ab-cde");
    CString empty;
    EXPECT_EQ(empty.Insert(3, L"x"), 1);
    EXPECT_EQ(empty, L"x");
}

TEST(StringEditing, delete_clamps_position_and_count)
{
    CString a(L"abcdef");
    EXPECT_EQ(a.Delete(1), 5);
    EXPECT_EQ(a, L"acdef");
    EXPECT_EQ(a.Delete(-3, 2), 3);
    EXPECT_EQ(a, L"def");
    EXPECT_EQ(a.Delete(1, INT_MAX), 1);
    EXPECT_EQ(a, L"d");
    EXPECT_EQ(a.Delete(1), 1);
    EXPECT_EQ(a.Delete(0, 0), 1);
    EXPECT_EQ(a.Delete(0, -1), 1);
    EXPECT_EQ(a.Delete(0), 0);
    EXPECT_TRUE(a.IsEmpty());
}

TEST(StringEditing, replace_characters)
{
    CString a(L"banana");
    EXPECT_EQ(a.Replace(L'a', L'o'), 3);
    EXPECT_EQ(a, L"bonono");
    EXPECT_EQ(a.Replace(L'x', L'y'), 0);
    EXPECT_EQ(a.Replace(L'o', L'o'), 0);
}

TEST(StringEditing, replace_texts_of_other_lengths)
{
    CString a(L"aXbXc");
    EXPECT_EQ(a.Replace(L"X", L"--"), 2);
    EXPECT_EQ(a, L"a--b--c");
    EXPECT_EQ(a.Replace(L"--", L""), 2);
    EXPECT_EQ(a, L"abc");
    EXPECT_EQ(a.Replace(L"b", nullptr), 1);
    EXPECT_EQ(a, L"ac");
    EXPECT_EQ(a.Replace(L"", L"x"), 0);
    EXPECT_EQ(a.Replace(nullptr, L"x"), 0);
    EXPECT_EQ(a.Replace(L"longer than the text", L"x"), 0);
    EXPECT_EQ(a, L"ac");
}

TEST(StringEditing, replaced_texts_are_not_searched_again)
{
    CString a(L"aaaa");
    EXPECT_EQ(a.Replace(L"aa", L"a"), 2);
    EXPECT_EQ(a, L"aa");
    CString b(L"aaa");
    EXPECT_EQ(b.Replace(L"aa", L"x"), 1);
    EXPECT_EQ(b, L"xa");
    CString c(L"ab");
    EXPECT_EQ(c.Replace(L"ab", L"abab"), 1);
    EXPECT_EQ(c, L"abab");
}

TEST(StringEditing, replace_reaches_behind_an_embedded_terminator)
{
    CString a(L"a\0a", 3);
    EXPECT_EQ(a.Replace(L"a", L"bb"), 2);
    EXPECT_EQ(a.GetLength(), 5);
    EXPECT_EQ(a[4], L'b');
}

TEST(StringEditing, remove_drops_every_such_character)
{
    CString a(L"banana");
    EXPECT_EQ(a.Remove(L'a'), 3);
    EXPECT_EQ(a, L"bnn");
    EXPECT_EQ(a.Remove(L'x'), 0);
    EXPECT_EQ(a.Remove(L'n'), 2);
    EXPECT_EQ(a, L"b");
}

TEST(StringEditing, truncate_only_shortens)
{
    CString a(L"abcd");
    a.Truncate(2);
    EXPECT_EQ(a, L"ab");
    EXPECT_RAISES(CInvalidArgException, a.Truncate(3));
    EXPECT_RAISES(CInvalidArgException, a.Truncate(-1));
    a.Truncate(0);
    EXPECT_TRUE(a.IsEmpty());
}

TEST(StringEditing, case_changes_fold_accented_letters)
{
    const wchar_t mixed[] = {L'a', L'B', 0xE9, 0xC0, 0x3A9, 0x434, L'1', 0};
    const wchar_t upper[] = {L'A', L'B', 0xC9, 0xC0, 0x3A9, 0x414, L'1', 0};
    const wchar_t lower[] = {L'a', L'b', 0xE9, 0xE0, 0x3C9, 0x434, L'1', 0};
    EXPECT_EQ(CString(mixed).MakeUpper(), upper);
    EXPECT_EQ(CString(mixed).MakeLower(), lower);
    EXPECT_EQ(CString().MakeUpper(), L"");
}

TEST(StringEditing, make_reverse)
{
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");
    EXPECT_EQ(CString(L"ab").MakeReverse(), L"ba");
    EXPECT_EQ(CString().MakeReverse(), L"");
}

TEST(StringEditing, trim_blanks)
{
    EXPECT_EQ(CString(L" \t\r\n ab c \v\f").Trim(), L"ab c");
    EXPECT_EQ(CString(L"  ab  ").TrimLeft(), L"ab  ");
    EXPECT_EQ(CString(L"  ab  ").TrimRight(), L"  ab");
    EXPECT_EQ(CString(L"   ").Trim(), L"");
    EXPECT_EQ(CString().Trim(), L"");
    const wchar_t noBreak[] = {0xA0, L'x', 0x2003, 0};
    EXPECT_EQ(CString(noBreak).Trim(), L"x");
}

TEST(StringEditing, trim_one_character)
{
    EXPECT_EQ(CString(L"xxabxx").Trim(L'x'), L"ab");
    EXPECT_EQ(CString(L"xxabxx").TrimLeft(L'x'), L"abxx");
    EXPECT_EQ(CString(L"xxabxx").TrimRight(L'x'), L"xxab");
    EXPECT_EQ(CString(L" ab ").Trim(L'x'), L" ab ");
}

TEST(StringEditing, trim_a_set_of_characters)
{
    EXPECT_EQ(CString(L"xyxabyx").Trim(L"xy"), L"ab");
    EXPECT_EQ(CString(L"xyxabyx").TrimLeft(L"xy"), L"abyx");
    EXPECT_EQ(CString(L"xyxabyx").TrimRight(L"xy"), L"xyxab");
    EXPECT_EQ(CString(L" ab ").Trim(L""), L" ab ");
    EXPECT_EQ(CString(L" ab ").Trim(static_cast<LPCWSTR>(nullptr)), L" ab ");
    CString self(L"abcba");
    EXPECT_EQ(self.Trim(self), L"");
}

TEST(StringEditing, empty_forgets_the_text)
{
    CString a(L"abc");
    a.Empty();
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetLength(), 0);
    a.Empty();
    EXPECT_EQ(a, L"");
}

TEST(StringEditing, narrow_string_class)
{
    CStringA a("ab");
    a += "cd";
    a += 'e';
    EXPECT_TRUE(a == "abcde");
    EXPECT_EQ(a.GetLength(), 5);
    EXPECT_EQ(CStringA(CString(L"wide")).Compare("wide"), 0);
    EXPECT_TRUE(CStringA(static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_EQ(CString(a), L"abcde");
    a.Empty();
    EXPECT_TRUE(a.IsEmpty());
}
