// Whole texts over the groups, and their return to placeholders.
#include "FormatFixture.h"

namespace
{
std::wstring filled(const wchar_t* format, const std::wstring& text)
{
    CKxFormat list;
    Parsed(format).CreateListFormat(list);
    CString characters = framework(text);
    list.SetString(characters);
    return elements(list);
}

std::wstring updated(const wchar_t* format, int length)
{
    CKxFormat list;
    Parsed(format).CreateListFormat(list);
    list.UpdateFormat(CString(L'z', length));
    return elements(list);
}

// The documented way: one Insert per position that is not a separator.
void setOneByOne(CKxFormat& format, const std::wstring& text)
{
    for (std::size_t i = 0; i < text.size(); ++i)
        if (format.IsSeparator(static_cast<int>(i)) == 0)
            format.Insert(static_cast<int>(i), text[i]);
}
// The documented way: two running values, and one Insert of a placeholder per position.
void updateOneByOne(Elements& format, int length)
{
    int first = 0;
    int last = 0;
    for (POSITION place = format.GetHeadPosition(); place;)
    {
        const CObject* element = format.GetNext(place);
        if (dynamic_cast<const CKxGroup*>(element))
        {
            if (last == -2)
                last = length - 1;
            for (int pos = first; pos <= last; ++pos)
                format.Insert(pos, L'#');
        }
        else
        {
            first = static_cast<const CKxSeparator*>(element)->GetEnd() + 1;
            last = format.GetFirstSeparator(first) - 1;
        }
    }
}

const std::vector<void (*)(Elements&)>& oddAndPlainLists()
{
    static const std::vector<void (*)(Elements&)> lists{
        [](Elements& f) { f.fixed(L"##", 0, 1).literal(L"-", 2, 2).open(L"#", 3, 3).literal(L"+", 4, 4); },
        [](Elements& f) { f.open(L"", 0, 0).literal(L"--", 1, 2).fixed(L"###", 3, 5); },
        [](Elements& f)
        { f.open(L"ab", 0, 1).literal(L"-", 2, 2).open(L"cd", 3, 4).literal(L"+", 5, 5).open(L"e", 6, 6); },
        [](Elements& f) { f.literal(L"-", 0, 0).open(L"ab#", 1, 3).literal(L"+", 4, 4).fixed(L"1", 5, 9); },
        [](Elements& f) { f.open(L"#", 0, 9).literal(L"-", 10, 10); },
        [](Elements& f)
        { f.literal(L"-", 0, 0).open(L"a", 1, 5).fixed(L"123", 6, 8).open(L"#", 9, 9).literal(L"-", 10, 10); },
        [](Elements& f) { f.literal(L"abc", 4, 6).open(L"#", 0, 8).open(L"#", 2, 3).literal(L"-", 1, 5); },
        [](Elements& f) { f.fixed(L"12", 3, 20).open(L"ab", 0, 30).literal(L"-", 2, 40).fixed(L"###", 1, 3); },
        [](Elements& f) { f.open(L"x", 5, 5).open(L"y#", 2, 3).literal(L"-", 9, 12).open(L"", 7, 30); },
        [](Elements& f) { f.literal(L"abcdef", 2, 3).open(L"q#", 0, 1).fixed(L"12345678", 0, 7); },
    };
    return lists;
}
} // namespace

TEST(FormatSetString, a_text_goes_over_fixed_groups_and_leaves_separators_uncompared)
{
    EXPECT_EQ(filled(L"[(N)2]-[(N)2]", L"12/34"), L"G0-1:12 S2-2:- G3-4:34");
}

TEST(FormatSetString, a_short_text_leaves_the_rest_free)
{
    EXPECT_EQ(filled(L"[(N)2]-[(N)2]", L"12-3"), L"G0-1:12 S2-2:- G3-4:3#");
    EXPECT_EQ(filled(L"[(N)2]-[(N)2]", L""), L"G0-1:## S2-2:- G3-4:##");
}

TEST(FormatSetString, what_lies_behind_the_last_element_is_lost)
{
    EXPECT_EQ(filled(L"[(N)2]", L"1234"), L"G0-1:12");
}

TEST(FormatSetString, an_open_group_swallows_all_that_follows)
{
    EXPECT_EQ(filled(L"[(A)x]-[(N)2]", L"ab-cd"), L"O0-5:ab-cd# S6-6:- G7-8:##");
}

TEST(FormatSetString, an_open_group_behind_a_separator_takes_its_part)
{
    EXPECT_EQ(filled(L"[(N)2]/[(A)x]", L"12/abc"), L"G0-1:12 S2-2:/ O3-6:abc#");
}

TEST(FormatSetString, marks_the_list_as_modified_only_if_a_group_was_reached)
{
    Elements literal;
    literal.literal(L"ab", 0, 1);
    literal.SetModified(0);
    CString text(L"xy");
    literal.SetString(text);
    EXPECT_EQ(literal.GetModified(), 0);
    Elements group;
    group.fixed(L"#", 0, 0);
    group.SetModified(0);
    group.SetString(text);
    EXPECT_EQ(group.GetModified(), 1);
}

TEST(FormatSetString, an_open_group_in_whose_text_the_run_starts_full_goes_on_with_free_places)
{
    Elements format;
    format.open(L"abc", 0, 2).literal(L"-", 3, 3);
    CString text(L"XYZ");
    format.SetString(text);
    // X at 0: Xabc#; Y at 1: XYabc#; Z at 2: XYZabc#; positions grow by 2, 1, 1
    EXPECT_EQ(elements(format), L"O0-6:XYZabc# S7-7:-");
}

TEST(FormatSetString, gives_what_single_insertions_give_for_well_formed_and_odd_lists)
{
    for (const auto build : oddAndPlainLists())
        for (const std::wstring text : {L"", L"a", L"abcde", L"#", L"##a##", L"0123456789abcdefghij", L"a#b#c#d#e#f#"})
        {
            Elements bulk;
            Elements single;
            build(bulk);
            build(single);
            CString characters = framework(text);
            bulk.SetString(characters);
            setOneByOne(single, text);
            EXPECT_EQ(elements(bulk), elements(single)) << testing::PrintToString(text);
        }
}

TEST(FormatSetString, a_text_of_100000_characters_fills_an_open_group)
{
    CKxFormat format;
    Parsed(L"[(N)2]/[(A)x]").CreateListFormat(format);
    CString text(L'a', 100000);
    format.SetString(text);
    const auto* group = static_cast<CKxGroup*>(format.GetTail());
    EXPECT_EQ(group->GetTextLength(), 100000 - 3 + 1);
    EXPECT_EQ(group->GetEnd(), 100000);
}

TEST(FormatUpdate, a_first_group_gets_one_placeholder_at_position_0_only)
{
    Elements format;
    format.fixed(L"123", 0, 2);
    format.UpdateFormat(L"12345");
    EXPECT_EQ(elements(format), L"G0-2:#23");
}

TEST(FormatUpdate, an_open_first_group_grows_by_that_one_placeholder)
{
    Elements format;
    format.open(L"12#", 0, 2).literal(L"-", 3, 3);
    format.UpdateFormat(L"");
    EXPECT_EQ(elements(format), L"O0-3:#12# S4-4:-");
}

TEST(FormatUpdate, a_group_between_separators_is_reset_as_a_whole)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"-", 2, 2).fixed(L"345", 3, 5).literal(L"/", 6, 6);
    format.UpdateFormat(L"a");
    EXPECT_EQ(elements(format), L"G0-1:#2 S2-2:- G3-5:### S6-6:/");
}

TEST(FormatUpdate, a_group_without_a_separator_behind_it_is_reset_up_to_the_length_of_the_text)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"-", 2, 2).fixed(L"345", 3, 5);
    format.UpdateFormat(L"1234");
    EXPECT_EQ(elements(format), L"G0-1:#2 S2-2:- G3-5:#45");
}

TEST(FormatUpdate, an_empty_text_resets_nothing_in_the_last_group)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"-", 2, 2).fixed(L"345", 3, 5);
    format.UpdateFormat(L"");
    EXPECT_EQ(elements(format), L"G0-1:#2 S2-2:- G3-5:345");
}

TEST(FormatUpdate, an_open_last_group_grows_by_the_text_behind_its_start)
{
    EXPECT_EQ(updated(L"[(N)2]/[(A)x]", 6), L"G0-1:## S2-2:/ O3-6:####");
}

TEST(FormatUpdate, an_open_group_between_separators_doubles_its_places)
{
    EXPECT_EQ(updated(L"[(N)2]/[(A)x]-[(N)1]", 9), L"G0-1:## S2-2:/ O3-4:## S5-5:- G6-6:#");
}

TEST(FormatUpdate, a_head_separator_gives_the_first_group_the_full_range)
{
    Elements format;
    format.literal(L"a", 0, 0).fixed(L"123", 1, 3).literal(L"b", 4, 4);
    format.UpdateFormat(L"");
    EXPECT_EQ(elements(format), L"S0-0:a G1-3:### S4-4:b");
}

TEST(FormatUpdate, two_groups_in_a_row_share_the_running_range)
{
    Elements format;
    format.literal(L"a", 0, 0).fixed(L"1", 1, 1).fixed(L"2", 2, 2);
    format.UpdateFormat(L"zzz");
    EXPECT_EQ(elements(format), L"S0-0:a G1-1:# G2-2:#");
}

TEST(FormatUpdate, marks_the_list_as_modified)
{
    Elements format;
    format.fixed(L"1", 0, 0);
    format.SetModified(0);
    format.UpdateFormat(L"");
    EXPECT_EQ(format.GetModified(), 1);
}

TEST(FormatUpdate, gives_what_single_insertions_give_for_plain_and_odd_lists)
{
    for (const auto build : oddAndPlainLists())
        for (int length = 0; length < 20; ++length)
        {
            Elements bulk;
            Elements single;
            build(bulk);
            build(single);
            for (int round = 0; round < 3; ++round)
            {
                bulk.UpdateFormat(CString(L'z', length));
                updateOneByOne(single, length);
                EXPECT_EQ(elements(bulk), elements(single)) << length;
            }
        }
}

TEST(FormatUpdate, a_memory_exception_leaves_the_elements_behind_one_another)
{
    Elements format;
    format.open(L"#", 0, 0).literal(L"-", 1, 1).open(L"", 2, 2).literal(L"+", 3, 3);
    auto* group = static_cast<CKxGroup*>(format.GetElement(2));
    group->SetText(CString(L'a', CKxGroup::MaxTextLength));
    EXPECT_TRUE(raises<CMemoryException>([&] { format.UpdateFormat(L""); }));
    EXPECT_EQ(group->GetStart(), 3);
    EXPECT_EQ(static_cast<CKxSeparator*>(format.GetTail())->GetStart(), 4);
}

TEST(FormatUpdate, repeated_updates_end_at_the_longest_text_with_a_memory_exception)
{
    CKxFormat format;
    Parsed(L"-[(A)x]-").CreateListFormat(format);
    for (int i = 0; i < 24; ++i)
        format.UpdateFormat(L"");
    const auto* group = static_cast<CKxGroup*>(format.GetElement(1));
    EXPECT_EQ(group->GetTextLength(), CKxGroup::MaxTextLength); // 2 to the power of 24
    EXPECT_TRUE(raises<CMemoryException>([&] { format.UpdateFormat(L""); }));
    EXPECT_TRUE(raises<CMemoryException>([&] { format.Insert(1, L'a'); }));
    EXPECT_TRUE(raises<CMemoryException>([&] { format.AddFormatCarac(1); }));
    EXPECT_EQ(group->GetTextLength(), CKxGroup::MaxTextLength);
    EXPECT_EQ(group->GetEnd(), CKxGroup::MaxTextLength);
}

TEST(FormatUpdate, a_group_of_a_huge_range_ends_with_a_memory_exception)
{
    Elements format;
    format.literal(L"a", 0, 0).open(L"#", 1, 2147483646).literal(L"b", 2147483647, 2147483647);
    EXPECT_TRUE(raises<CMemoryException>([&] { format.UpdateFormat(L""); }));
    Elements fixed;
    fixed.literal(L"a", 0, 0).fixed(L"123", 1, 2147483646).literal(L"b", 2147483647, 2147483647);
    fixed.UpdateFormat(L"");
    EXPECT_EQ(elements(fixed), L"S0-0:a G1-2147483646:### S2147483647-2147483647:b");
}
