// Putting characters in and taking them out, and what that does to the positions of all elements.
#include "FormatFixture.h"

namespace
{
// "12#" open, "--", "##" fixed
struct Mixed : Elements
{
    Mixed() { open(L"12#", 0, 2).literal(L"--", 3, 4).fixed(L"##", 5, 6); }
};
} // namespace

TEST(FormatShift, growing_stretches_the_group_at_the_position_and_slides_what_follows)
{
    Mixed format;
    format.IncFormat(1);
    EXPECT_EQ(elements(format), L"O0-3:12# S4-5:-- G6-7:##");
}

TEST(FormatShift, growing_at_a_later_group_leaves_the_earlier_ones)
{
    Mixed format;
    format.IncFormat(6);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-7:##");
}

TEST(FormatShift, growing_at_a_separator_leaves_it_and_slides_what_follows)
{
    Mixed format;
    format.IncFormat(3);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G6-7:##");
}

TEST(FormatShift, shrinking_is_the_same_walk_backwards)
{
    Mixed format;
    format.DecFormat(0);
    EXPECT_EQ(elements(format), L"O0-1:12# S2-3:-- G4-5:##");
    Mixed other;
    other.DecFormat(4);
    EXPECT_EQ(elements(other), L"O0-2:12# S3-4:-- G4-5:##");
}

TEST(FormatShift, a_position_in_no_element_moves_nothing)
{
    Mixed format;
    format.IncFormat(7);
    format.IncFormat(-1);
    format.DecFormat(7);
    format.DecFormat(-1);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:##");
}

TEST(FormatShift, elements_behind_that_also_cover_the_position_stretch_or_stay)
{
    Elements format;
    format.open(L"#", 0, 5).open(L"#", 2, 8).literal(L"-", 3, 3).literal(L"+", 9, 9);
    format.IncFormat(3);
    EXPECT_EQ(elements(format), L"O0-6:# O2-9:# S3-3:- S10-10:+");
}

TEST(FormatCarac, adding_appends_a_place_and_lets_the_end_lag)
{
    Mixed format;
    format.AddFormatCarac(5);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:###");
    format.IncFormat(5);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-7:###");
}

TEST(FormatCarac, deleting_takes_the_last_character_and_shrinks)
{
    Mixed format;
    format.DeleteFormatCarac(0);
    EXPECT_EQ(elements(format), L"O0-1:12 S2-3:-- G4-5:##");
}

TEST(FormatCarac, separators_and_outer_positions_are_left_alone)
{
    Mixed format;
    for (const int pos : {3, 4, 7, -1})
    {
        format.AddFormatCarac(pos);
        format.DeleteFormatCarac(pos);
    }
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:##");
}

TEST(FormatCarac, a_group_without_text_shrinks_all_the_same)
{
    Elements format;
    format.open(L"", 0, 0).literal(L"-", 1, 1);
    format.DeleteFormatCarac(0);
    EXPECT_EQ(elements(format), L"O0--1: S0-0:-");
}

TEST(FormatInsert, a_fixed_group_takes_the_character_in_place)
{
    Elements format;
    format.fixed(L"###", 0, 2);
    format.Insert(1, L'7');
    EXPECT_EQ(elements(format), L"G0-2:#7#");
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_EQ(format.IsEmpty(), 0);
}

TEST(FormatInsert, a_fixed_group_is_overwritten_and_nothing_moves)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"-", 2, 2).fixed(L"3", 3, 3);
    format.Insert(3, L'9');
    format.Insert(0, L'8');
    EXPECT_EQ(elements(format), L"G0-1:82 S2-2:- G3-3:9");
}

TEST(FormatInsert, an_open_group_with_a_free_place_at_its_end_grows_by_one)
{
    Elements format;
    format.open(L"#", 0, 0).literal(L"-", 1, 1);
    format.Insert(0, L'a');
    EXPECT_EQ(elements(format), L"O0-1:a# S2-2:-");
    format.Insert(1, L'b');
    EXPECT_EQ(elements(format), L"O0-2:ab# S3-3:-");
    format.Insert(0, L'c');
    EXPECT_EQ(elements(format), L"O0-3:cab# S4-4:-");
}

TEST(FormatInsert, a_full_open_group_overwrites_the_character_before_and_adds_two_positions)
{
    Elements format;
    format.open(L"abc", 0, 2).literal(L"-", 3, 3);
    format.Insert(2, L'X');
    EXPECT_EQ(elements(format), L"O0-4:aXc# S5-5:-"); // the first 1 of abc, X, abc from 2 on, "#"
}

TEST(FormatInsert, a_full_open_group_at_its_head_loses_nothing)
{
    Elements format;
    format.open(L"abc", 0, 2).literal(L"-", 3, 3);
    format.Insert(0, L'X');
    EXPECT_EQ(elements(format), L"O0-4:Xabc# S5-5:-");
}

TEST(FormatInsert, an_open_group_without_text_counts_as_full)
{
    Elements format;
    format.open(L"", 0, 0).literal(L"-", 1, 1);
    format.Insert(0, L'X');
    EXPECT_EQ(elements(format), L"O0-2:X# S3-3:-");
}

TEST(FormatInsert, behind_the_text_of_an_open_group_the_missing_part_is_nothing)
{
    Elements free;
    free.open(L"#", 0, 9);
    free.Insert(5, L'a');
    EXPECT_EQ(elements(free), L"O0-10:#a");
    Elements full;
    full.open(L"ab", 0, 9);
    full.Insert(5, L'c');
    EXPECT_EQ(elements(full), L"O0-11:abc#");
    Elements last;
    last.open(L"ab", 0, 9);
    last.Insert(2, L'c'); // the first 1 of ab, c, nothing, "#"
    EXPECT_EQ(elements(last), L"O0-11:ac#");
}

TEST(FormatInsert, behind_the_text_of_a_fixed_group_nothing_is_replaced)
{
    Elements format;
    format.fixed(L"1", 0, 4);
    format.SetModified(0);
    format.Insert(3, L'2');
    EXPECT_EQ(elements(format), L"G0-4:1");
    EXPECT_EQ(format.GetModified(), 1);
}

TEST(FormatInsert, separators_and_outer_positions_take_nothing)
{
    Mixed format;
    format.SetModified(0);
    for (const int pos : {3, 4, 7, -1})
        format.Insert(pos, L'z');
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:##");
    EXPECT_EQ(format.GetModified(), 0);
}

TEST(FormatInsert, every_group_case_marks_the_list_as_modified)
{
    for (const wchar_t* text : {L"#", L"a"})
    {
        Elements format;
        format.open(text, 0, 0);
        format.SetModified(0);
        format.Insert(0, L'b');
        EXPECT_EQ(format.GetModified(), 1);
    }
}

TEST(FormatInsert, a_placeholder_may_be_inserted)
{
    Elements format;
    format.fixed(L"12", 0, 1);
    format.Insert(1, L'#');
    EXPECT_EQ(elements(format), L"G0-1:1#");
}

TEST(FormatInsert, an_embedded_terminator_is_a_character)
{
    Elements format;
    format.open(L"#", 0, 0);
    format.Insert(0, L'\0');
    format.Insert(1, L'a');
    EXPECT_EQ(elements(format), std::wstring(L"O0-2:\0a#", 8));
}

TEST(FormatDelete, a_fixed_group_gets_a_placeholder_at_its_end_and_nothing_moves)
{
    Elements format;
    format.fixed(L"123", 0, 2).literal(L"-", 3, 3);
    format.Delete(0);
    EXPECT_EQ(elements(format), L"G0-2:23# S3-3:-");
}

TEST(FormatDelete, an_open_group_with_a_free_place_shrinks)
{
    Elements format;
    format.open(L"12#", 0, 2).literal(L"-", 3, 3).fixed(L"#", 4, 4);
    format.Delete(0);
    EXPECT_EQ(elements(format), L"O0-1:2# S2-2:- G3-3:#");
}

TEST(FormatDelete, an_open_group_without_a_free_place_keeps_its_positions)
{
    Elements format;
    format.open(L"12", 0, 1).literal(L"-", 2, 2);
    format.Delete(0);
    EXPECT_EQ(elements(format), L"O0-1:2# S2-2:-");
}

TEST(FormatDelete, taking_the_only_placeholder_of_an_open_group_gives_it_back)
{
    Elements format;
    format.open(L"#", 0, 0).literal(L"-", 1, 1);
    format.Delete(0);
    EXPECT_EQ(elements(format), L"O0-0:# S1-1:-");
}

TEST(FormatDelete, behind_the_text_nothing_goes_and_the_other_steps_run)
{
    Elements fixed;
    fixed.fixed(L"1", 0, 4);
    fixed.Delete(3);
    EXPECT_EQ(elements(fixed), L"G0-4:1#");
    Elements open;
    open.open(L"1#", 0, 4).literal(L"-", 5, 5);
    open.Delete(3);
    EXPECT_EQ(elements(open), L"O0-3:1# S4-4:-");
    EXPECT_EQ(open.GetModified(), 1);
}

TEST(FormatDelete, separators_and_outer_positions_lose_nothing)
{
    Mixed format;
    format.SetModified(0);
    for (const int pos : {3, 4, 7, -1})
        format.Delete(pos);
    EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:##");
    EXPECT_EQ(format.GetModified(), 0);
}

TEST(FormatDelete, a_group_marks_the_list_as_modified)
{
    Mixed format;
    format.SetModified(0);
    format.Delete(6);
    EXPECT_EQ(format.GetModified(), 1);
}
