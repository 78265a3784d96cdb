// Following typing: what a text becomes after each keystroke.
#include "FormatFixture.h"

namespace
{
int raisesInvalid(const wchar_t* format, const wchar_t* text)
{
    const Parsed semantic(format);
    return raises<CInvalidArgException>([&] { semantic.AnalyseSemantic(text); }) ? 1 : 0;
}

std::wstring feetAnalysed(const wchar_t* format, const wchar_t* text)
{
    return wide(ParsedFeet(format).AnalyseSemantic(text));
}
} // namespace

TEST(Analyse, an_unfinished_group_is_left_alone)
{
    expectAnalysed({{L"[(N)3]-[(A)x]", {{L"12", L"12"}, {L"", L""}}}});
}

TEST(Analyse, filling_a_fixed_group_adds_the_separator)
{
    expectAnalysed({
        {L"[(N)3]-[(A)x]", {{L"123", L"123-"}}},
        {L"[(N)1] to [(N)1]", {{L"1", L"1 to "}}},
    });
}

TEST(Analyse, a_character_that_breaks_the_format_goes)
{
    expectAnalysed({{L"[(N)3]-[(A)x]", {{L"12a", L"12"}, {L"a", L""}}}});
}

TEST(Analyse, what_follows_a_separator_is_judged_by_the_next_group)
{
    expectAnalysed({
        {L"[(N)3]-[(A)x]", {{L"123-b", L"123-b"}, {L"123-b~", L"123-b"}}},
        {L"[(N)1]-[(N)2]", {{L"1-2", L"1-2"}, {L"1-a", L"1-"}}},
    });
}

TEST(Analyse, a_separator_may_be_typed_before_the_group_is_full)
{
    expectAnalysed({
        {L"[(N)3]-[(A)x]", {{L"1-", L"1-"}}},
        {L"[(N)3]-[(N)2]", {{L"1-23", L"1-23"}, {L"1-234", L"1-23"}}},
    });
}

TEST(Analyse, one_character_too_many_goes_from_a_last_group)
{
    expectAnalysed({{L"[(N)2]", {{L"123", L"12"}, {L"12", L"12"}}}});
}

TEST(Analyse, letter_groups_refuse_the_small_x_only)
{
    expectAnalysed({
        {L"[(C)2]", {{L"ax", L"a"}, {L"aX", L"aX"}, {L"a1", L"a"}}},
        {L"[(A)2]", {{L"ax", L"ax"}}},
    });
}

TEST(Analyse, ranges_compare_by_character_code)
{
    expectAnalysed({
        {L"[(b-d)3]", {{L"bcd", L"bcd"}, {L"ba", L"b"}, {L"be", L"b"}, {L"bC", L"b"}}},
        {L"[(\ud7ff-\uffff)2]", {{L"\ue000\uffff", L"\ue000\uffff"}}},
        {L"[(d-b)3]", {{L"c", L""}}},
    });
}

TEST(Analyse, placeholders_are_passed_over)
{
    expectAnalysed({
        {L"[(N)2]", {{L"##", L"##"}, {L"#####", L"#####"}}},
        {L"[(N)3]-[(A)x]", {{L"1#3", L"1#3-"}, {L"1#a", L"1#"}}},
    });
}

TEST(Analyse, placeholders_hide_a_separator_position)
{
    // "####" passes over the dash's place; the 5 at position 4 lies behind the limit of 3
    EXPECT_EQ(analysed(L"[(N)3]-[(A)x]", L"####5"), L"####");
}

TEST(Analyse, an_open_group_takes_any_number)
{
    expectAnalysed({
        {L"[(N)x]", {{L"1234567890", L"1234567890"}, {L"12a", L"12"}}},
        {L"[(N)x]-[(N)x]", {{L"12-34", L"12-34"}, {L"12-34-", L"12-34"}}},
    });
}

TEST(Analyse, a_separator_must_stand_exactly)
{
    expectAnalysed({
        {L"[(N)1]a[(N)1]", {{L"1A", L"1"}, {L"1a", L"1a"}}},
        {L"[(N)1]ab[(N)1]", {{L"1a", L"1"}, {L"1ab2", L"1ab2"}}},
    });
}

TEST(Analyse, exactly_one_character_goes_whichever_offended)
{
    expectAnalysed({
        {L"[(N)4]", {{L"a123", L"a12"}}},
        {L"[(N)1]-[(N)1]", {{L"1/2", L"1/"}}},
    });
}

TEST(Analyse, a_format_that_begins_with_a_separator_wants_it_typed)
{
    expectAnalysed({{L"-[(N)2]", {{L"-", L"-"}, {L"-1", L"-1"}, {L"-12", L"-12"}, {L"-123", L"-12"}, {L"1", L""}}}});
}

TEST(Analyse, a_lone_separator_is_stripped_when_it_is_complete)
{
    // the literal is passed, no node is left, the kind is still that of a separator
    expectAnalysed({{L"abc", {{L"abc", L"ab"}, {L"ab", L"a"}, {L"", L""}}}});
}

TEST(Analyse, a_last_separator_is_added_when_the_group_before_it_is_full)
{
    EXPECT_EQ(analysed(L"[(N)2]mm", L"12"), L"12mm");
}

TEST(Analyse, behind_a_last_separator_a_keystroke_goes_when_the_group_before_is_fixed)
{
    // "-" against itself: it passes, and lies behind the limit of 2
    expectAnalysed({{L"[(N)2]-", {{L"12-", L"12"}, {L"12-3", L"12-"}}}});
}

TEST(Analyse, a_last_separator_typed_early_fills_the_group_and_has_nothing_behind)
{
    // "-" passes against itself at position 1, which fills the limit of 2, and no node is left
    EXPECT_EQ(analysed(L"[(N)2]-", L"1-"), L"1-");
}

TEST(Analyse, a_last_separator_behind_an_open_group_stands)
{
    expectAnalysed({
        {L"[(N)x]-", {{L"12", L"12"}, {L"12-", L"12-"}, {L"12--", L"12--"}}}, // each dash passes against itself
    });
}

TEST(Analyse, behind_a_last_separator_of_an_open_group_the_walk_runs_past_the_end)
{
    EXPECT_EQ(raisesInvalid(L"[(N)x]-", L"12-3"), 1);
    EXPECT_EQ(analysed(L"[(N)x]ab", L"1ab"), L"1ab"); // both letters lie between a and b
    EXPECT_EQ(raisesInvalid(L"[(N)x]ab", L"1abc"), 1);
}

TEST(Analyse, a_separator_that_spells_a_type_is_judged_by_that_type)
{
    // behind the last separator "N" its text is the type: "N" is no digit, and the walk runs past the end
    EXPECT_EQ(raisesInvalid(L"[(a-f)x]N", L"abN"), 1);
    expectAnalysed({{L"[(N)x]A", {{L"12A", L"12A"}, {L"12A?", L"12A?"}}}});
}

TEST(Analyse, a_written_count_of_0_at_the_head_is_open)
{
    expectAnalysed({{L"[(N)0]", {{L"12345", L"12345"}, {L"12a", L"12"}}}});
}

TEST(Analyse, a_written_count_of_0_behind_a_separator_keeps_its_limit)
{
    expectAnalysed({{L"[(N)1]-[(N)0]", {{L"1-", L"1-"}, {L"1-2", L"1-"}}}});
}

TEST(Analyse, is_not_idempotent)
{
    expectAnalysed({{L"[(N)2]-", {{L"12", L"12-"}, {L"12-", L"12"}}}});
}

TEST(Analyse, leaves_the_nodes_and_may_be_repeated)
{
    const Parsed semantic(L"[(N)3]-[(A)x]");
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(wide(semantic.AnalyseSemantic(L"123")), L"123-");
        EXPECT_EQ(nodes(semantic), L"N/3/  -/1/S A/0/x");
    }
}

TEST(Analyse, an_empty_node_list_is_an_invalid_argument)
{
    EXPECT_EQ(raisesInvalid(L"", L"1"), 1);
    EXPECT_EQ(raisesInvalid(L"", L""), 1);
    EXPECT_EQ(raisesInvalid(L"(", L"1"), 1);
    EXPECT_TRUE(raises<CInvalidArgException>([] { CKxSemantic().AnalyseSemantic(L""); }));
}

TEST(Analyse, architectural_mode_lets_feet_and_inches_signs_into_digit_groups)
{
    EXPECT_EQ(feetAnalysed(L"[(N)x]", L"1'-6\""), L"1'-6\"");
    EXPECT_EQ(analysed(L"[(N)x]", L"1'"), L"1");
    EXPECT_EQ(feetAnalysed(L"[(N)x]/[(N)x]", L"1'-6\"/2'"), L"1'-6\"/2'");
}

TEST(Analyse, a_negative_count_leaves_no_room)
{
    expectAnalysed<ParsedFeet>({
        {L"[(N)-5]", {{L"1", L""}, {L"", L""}}},
        {L"[(N)-99999999999]", {{L"12", L"1"}}},
    });
}

TEST(Analyse, a_negative_count_behind_a_separator_can_make_the_limit_0_which_means_open)
{
    // limit = position of the separator 1 + count -2 + length 1 = 0
    EXPECT_EQ(feetAnalysed(L"[(N)2]/[(N)-2]", L"1/23456"), L"1/23456");
}

TEST(Analyse, huge_counts_do_not_overflow)
{
    expectAnalysed({
        {L"[(N)2147483647]-[(N)2147483647]", {{L"1-2", L"1-2"}}},
        {L"[(N)2147483647]", {{L"1a", L"1"}}},
    });
}

TEST(Analyse, terminators_and_surrogates_pass_no_class)
{
    expectAnalysed({
        {L"[(A)x]", {{std::wstring(L"a\0", 2), L"a"}, {std::wstring(L"a") + static_cast<wchar_t>(0xD800), L"a"}}},
        {L"[(C)x]", {{std::wstring(1, static_cast<wchar_t>(0xDC00)), L""}}},
    });
}

TEST(Analyse, a_text_of_100000_characters_is_followed)
{
    expectAnalysed({
        {L"[(N)x]",
         {{std::wstring(100000, L'7'), std::wstring(100000, L'7')},
          {std::wstring(100000, L'7') + L"a", std::wstring(100000, L'7')}}},
        {L"[(N)2]", {{std::wstring(100000, L'#'), std::wstring(100000, L'#')}}},
    });
}
