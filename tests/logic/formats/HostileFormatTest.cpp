// Positions far outside, odd lists and long formats: defined results, no overflow, no hang.
#include "FormatFixture.h"

namespace
{
constexpr int lowest = -2147483647 - 1;
constexpr int highest = 2147483647;
} // namespace

TEST(FarPositions, answer_like_positions_in_no_element)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"-", 2, 2);
    for (const int pos : {lowest, -1, 3, highest})
    {
        EXPECT_EQ(format.GetElement(pos), nullptr);
        EXPECT_EQ(format.IsSeparator(pos), 0);
        EXPECT_EQ(format.GetFirstGroup(pos), -1);
        EXPECT_EQ(format.GetFirstSeparator(pos), -1);
        EXPECT_EQ(format.Jump(pos, 1), pos);
        format.Insert(pos, L'1');
        format.Delete(pos);
        format.IncFormat(pos);
        format.DecFormat(pos);
    }
    EXPECT_EQ(elements(format), L"G0-1:## S2-2:-");
}

TEST(FarPositions, growing_and_shrinking_hold_at_the_limits_of_int)
{
    Elements format;
    format.open(L"#", highest, highest).literal(L"-", highest, highest);
    format.Insert(highest, L'a');
    format.IncFormat(highest);
    EXPECT_EQ(elements(format), L"O2147483647-2147483647:a# S2147483647-2147483647:-");
    Elements low;
    low.open(L"a#", lowest, lowest).literal(L"-", lowest, lowest);
    low.Delete(lowest);
    EXPECT_EQ(elements(low), L"O-2147483648--2147483648:# S-2147483648--2147483648:-");
}

TEST(FarPositions, jumping_holds_at_the_limits_of_int)
{
    Elements format;
    format.literal(L"-", lowest, highest);
    EXPECT_EQ(format.Jump(5, 1), highest);
    EXPECT_EQ(format.Jump(5, -1), lowest);
}

TEST(FarPositions, a_group_over_all_positions_takes_characters_far_from_its_start)
{
    Elements format;
    format.open(L"#", lowest, highest);
    format.Insert(highest, L'a'); // nothing stands there: it goes to the end
    EXPECT_EQ(elements(format), L"O-2147483648-2147483647:#a");
    format.Delete(highest);
    EXPECT_EQ(elements(format), L"O-2147483648-2147483646:#a");
}

TEST(OddLists, an_element_that_ends_before_it_starts_is_found_nowhere)
{
    Elements format;
    format.open(L"abc", 5, 2);
    for (int pos = 0; pos < 8; ++pos)
        EXPECT_EQ(format.GetElement(pos), nullptr);
    CString text(L"0123456789");
    format.SetString(text);
    EXPECT_EQ(elements(format), L"O5-2:abc");
}

TEST(OddLists, a_separator_at_minus_1_sends_the_next_group_to_the_length_of_the_text)
{
    // its start minus 1 is -2, which is what "no separator" gives
    Elements format;
    format.literal(L"ab", -3, -2).fixed(L"123", 0, 2).literal(L"c", -1, -1);
    format.UpdateFormat(L"xx");
    EXPECT_EQ(elements(format), L"S-3--2:ab G0-2:##3 S-1--1:c");
}

TEST(LongFormats, fill_and_update_20000_groups)
{
    std::wstring text;
    for (int i = 0; i < 20000; ++i)
        text += L"[(N)1]-";
    CKxFormat format;
    Parsed(text).CreateListFormat(format);
    CString digits(L'5', 40000);
    format.SetString(digits);
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_FALSE(format.HaveAnyValue());
    format.UpdateFormat(digits);
    EXPECT_EQ(format.IsEmpty(), 1);
    EXPECT_EQ(format.GetCount(), 40000);
}

TEST(LongFormats, update_10000_open_groups)
{
    std::wstring text;
    for (int i = 0; i < 10000; ++i)
        text += L"-[(N)x]";
    CKxFormat format;
    Parsed(text).CreateListFormat(format);
    format.UpdateFormat(CString(L'5', 20000));
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetTail())->GetStart(), 29998); // 10000 literals, 9999 groups of 2
}

TEST(LongFormats, updates_that_double_a_group_end_with_a_memory_exception)
{
    // a group between two literals gets as many places as it has, each time
    CKxFormat format;
    Parsed(L"-[(N)x]-").CreateListFormat(format);
    const auto* group = static_cast<const CKxGroup*>(format.GetElement(1));
    for (int length = 2; length <= CKxGroup::MaxTextLength; length *= 2)
    {
        format.UpdateFormat(CString());
        ASSERT_EQ(group->GetTextLength(), length);
    }
    EXPECT_TRUE(raises<CMemoryException>([&] { format.UpdateFormat(CString()); }));
    EXPECT_EQ(group->GetTextLength(), 16777216);
    EXPECT_EQ(group->GetEnd(), 16777216);
    EXPECT_EQ(format.GetFirstSeparator(2), 16777217);
}
