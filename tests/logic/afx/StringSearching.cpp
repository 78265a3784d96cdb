// CString: comparing, finding, taking parts, tokens.
#include <afx.h>

#include <climits>

#include "Raises.h"

TEST(StringSearching, comparison_operators)
{
    const CString a(L"abc");
    const CString b(L"abd");
    EXPECT_TRUE(a == CString(L"abc"));
    EXPECT_TRUE(a == L"abc");
    EXPECT_TRUE(L"abc" == a);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a != L"ab");
    EXPECT_TRUE(L"ab" != a);
    EXPECT_TRUE(a < b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(a <= a);
    EXPECT_TRUE(a >= L"abb");
    EXPECT_TRUE(L"abb" < a);
    EXPECT_TRUE(L"abd" > a);
    EXPECT_TRUE(L"abc" <= a);
    EXPECT_TRUE(L"abc" >= a);
    EXPECT_TRUE(CString(L"x") == L'x');
    EXPECT_TRUE(L'x' == CString(L"x"));
    EXPECT_TRUE(CString(L"xx") != L'x');
    EXPECT_TRUE(CString() == static_cast<LPCWSTR>(nullptr));
}

TEST(StringSearching, compare_minds_case)
{
    EXPECT_EQ(CString(L"abc").Compare(L"abc"), 0);
    EXPECT_LT(CString(L"ABC").Compare(L"abc"), 0);
    EXPECT_GT(CString(L"b").Compare(L"abc"), 0);
    EXPECT_LT(CString(L"ab").Compare(L"abc"), 0);
    EXPECT_GT(CString(L"a").Compare(nullptr), 0);
    EXPECT_LT(CString(L"Z").Collate(L"a"), 0);
}

TEST(StringSearching, compare_no_case_folds_accented_letters)
{
    const wchar_t lower[] = {0xE9, L't', 0xE9, 0};
    const wchar_t upper[] = {0xC9, L'T', 0xC9, 0};
    const wchar_t plain[] = {L'E', L'T', L'E', 0};
    EXPECT_EQ(CString(lower).CompareNoCase(upper), 0);
    EXPECT_EQ(CString(lower).CollateNoCase(upper), 0);
    EXPECT_NE(CString(lower).CompareNoCase(plain), 0);
    EXPECT_EQ(CString(L"aBc").CompareNoCase(L"AbC"), 0);
    EXPECT_LT(CString(L"ABC").CompareNoCase(L"abd"), 0);
    EXPECT_GT(CString(L"a").CompareNoCase(nullptr), 0);
    EXPECT_EQ(CString().CompareNoCase(nullptr), 0);
}

TEST(StringSearching, find_a_character)
{
    const CString a(L"banana");
    EXPECT_EQ(a.Find(L'a'), 1);
    EXPECT_EQ(a.Find(L'a', 2), 3);
    EXPECT_EQ(a.Find(L'x'), -1);
    EXPECT_EQ(a.Find(L'a', -1), -1);
    EXPECT_EQ(a.Find(L'a', 6), -1);
    EXPECT_EQ(a.Find(L'a', INT_MAX), -1);
    EXPECT_EQ(CString().Find(L'a'), -1);
}

TEST(StringSearching, find_a_text)
{
    const CString a(L"banana");
    EXPECT_EQ(a.Find(L"ana"), 1);
    EXPECT_EQ(a.Find(L"ana", 2), 3);
    EXPECT_EQ(a.Find(L"anab"), -1);
    EXPECT_EQ(a.Find(L""), 0);
    EXPECT_EQ(a.Find(L"", 6), 6);
    EXPECT_EQ(a.Find(L"", 7), -1);
    EXPECT_EQ(a.Find(L"b", -1), -1);
    EXPECT_EQ(a.Find(static_cast<LPCWSTR>(nullptr)), -1);
}

TEST(StringSearching, reverse_find)
{
    EXPECT_EQ(CString(L"banana").ReverseFind(L'a'), 5);
    EXPECT_EQ(CString(L"banana").ReverseFind(L'b'), 0);
    EXPECT_EQ(CString(L"banana").ReverseFind(L'x'), -1);
    EXPECT_EQ(CString().ReverseFind(L'x'), -1);
}

TEST(StringSearching, find_one_of)
{
    EXPECT_EQ(CString(L"banana").FindOneOf(L"xn"), 2);
    EXPECT_EQ(CString(L"banana").FindOneOf(L"xyz"), -1);
    EXPECT_EQ(CString(L"banana").FindOneOf(L""), -1);
    EXPECT_EQ(CString(L"banana").FindOneOf(nullptr), -1);
}

TEST(StringSearching, mid_is_cut_to_what_is_there)
{
    const CString a(L"abcdef");
    EXPECT_EQ(a.Mid(2), L"cdef");
    EXPECT_EQ(a.Mid(2, 2), L"cd");
    EXPECT_EQ(a.Mid(4, 10), L"ef");
    EXPECT_EQ(a.Mid(4, INT_MAX), L"ef");
    EXPECT_EQ(a.Mid(-3, 2), L"ab");
    EXPECT_EQ(a.Mid(2, -1), L"");
    EXPECT_EQ(a.Mid(6), L"");
    EXPECT_EQ(a.Mid(INT_MAX, INT_MAX), L"");
    EXPECT_EQ(a.Mid(INT_MIN, INT_MIN), L"");
}

TEST(StringSearching, the_whole_text_as_a_part_is_shared)
{
    const CString a(L"abcdef");
    EXPECT_EQ(a.Mid(0).GetString(), a.GetString());
    EXPECT_EQ(a.Left(6).GetString(), a.GetString());
    EXPECT_EQ(a.Right(100).GetString(), a.GetString());
}

TEST(StringSearching, left_and_right_are_cut_to_what_is_there)
{
    const CString a(L"abcdef");
    EXPECT_EQ(a.Left(2), L"ab");
    EXPECT_EQ(a.Left(0), L"");
    EXPECT_EQ(a.Left(-1), L"");
    EXPECT_EQ(a.Left(100), L"abcdef");
    EXPECT_EQ(a.Right(2), L"ef");
    EXPECT_EQ(a.Right(0), L"");
    EXPECT_EQ(a.Right(INT_MIN), L"");
    EXPECT_EQ(a.Right(INT_MAX), L"abcdef");
}

TEST(StringSearching, spans)
{
    const CString a(L"123abc456");
    EXPECT_EQ(a.SpanIncluding(L"0123456789"), L"123");
    EXPECT_EQ(a.SpanIncluding(L"x"), L"");
    EXPECT_EQ(a.SpanExcluding(L"abc"), L"123");
    EXPECT_EQ(a.SpanExcluding(L"x"), L"123abc456");
    EXPECT_EQ(a.SpanExcluding(nullptr), L"123abc456");
    EXPECT_EQ(a.SpanIncluding(nullptr), L"");
}

TEST(StringSearching, tokenize_walks_over_runs_of_separators)
{
    const CString a(L"%First Second#Third");
    int at = 0;
    EXPECT_EQ(a.Tokenize(L"% #", at), L"First");
    EXPECT_EQ(at, 7);
    EXPECT_EQ(a.Tokenize(L"% #", at), L"Second");
    EXPECT_EQ(at, 14);
    EXPECT_EQ(a.Tokenize(L"% #", at), L"Third");
    EXPECT_EQ(at, 20);
    EXPECT_EQ(a.Tokenize(L"% #", at), L"");
    EXPECT_EQ(at, -1);
    EXPECT_RAISES(CInvalidArgException, a.Tokenize(L"% #", at));
}

TEST(StringSearching, tokenize_of_separators_only_ends_at_once)
{
    int at = 0;
    EXPECT_EQ(CString(L",,,").Tokenize(L",", at), L"");
    EXPECT_EQ(at, -1);
    at = 0;
    EXPECT_EQ(CString().Tokenize(L",", at), L"");
    EXPECT_EQ(at, -1);
    at = INT_MAX;
    EXPECT_EQ(CString(L"abc").Tokenize(L",", at), L"");
    EXPECT_EQ(at, -1);
}

TEST(StringSearching, tokenize_without_separators_gives_the_rest_once)
{
    int at = 1;
    EXPECT_EQ(CString(L"abc").Tokenize(L"", at), L"bc");
    EXPECT_EQ(CString(L"abc").Tokenize(nullptr, at), L"");
    EXPECT_EQ(at, -1);
}
