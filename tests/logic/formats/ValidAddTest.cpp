// Judging finished texts.
#include "FormatFixture.h"

namespace
{
int feetValid(const wchar_t* format, const wchar_t* text)
{
    return ParsedFeet(format).ValidAdd(text);
}
} // namespace

TEST(ValidAdd, a_fixed_count_is_an_upper_bound)
{
    expectVerdicts({{L"[(N)2]", {L"", L"1", L"12"}, {L"123"}}});
}

TEST(ValidAdd, a_text_that_stops_before_the_end_of_the_format_is_refused)
{
    expectVerdicts({{L"[(N)2]-[(N)1]", {}, {L"", L"1", L"12", L"12-"}}});
}

TEST(ValidAdd, fewer_characters_pass_when_a_separator_closes_the_group)
{
    expectVerdicts({
        {L"[(N)2]-[(N)1]", {L"1-2", L"12-2", L"-2"}, {}},
        {L"[(N)2]-[(N)3]", {L"12-2", L"12-234"}, {}},
    });
}

TEST(ValidAdd, more_characters_than_the_count_are_refused)
{
    expectVerdicts({{L"[(N)2]-[(N)1]", {}, {L"123-2", L"12-23", L"1-23"}}});
}

TEST(ValidAdd, an_open_group_takes_any_number)
{
    expectVerdicts({{L"[(N)x]", {L"", L"1", L"12345678901234567890"}, {L"12a"}}});
}

TEST(ValidAdd, a_format_that_ends_in_a_separator_wants_the_text_without_it)
{
    expectVerdicts({
        {L"[(N)x]-", {L"12"}, {L"12-", L""}},
        {L"[(N)2]-", {}, {L"12", L"1", L"12-"}},
    });
}

TEST(ValidAdd, an_open_group_before_a_group_must_be_closed)
{
    expectVerdicts({{L"[(N)x]-[(A)x]", {L"12-a", L"-a", L"12-a-b-c"}, {L"12", L"12-"}}});
}

TEST(ValidAdd, a_group_takes_what_passes_even_a_separator)
{
    // the dash is in the wide class, so the first group never ends
    EXPECT_EQ(valid(L"[(A)x]-[(N)1]", L"ab-1"), 0);
}

TEST(ValidAdd, separators_are_compared_without_case)
{
    expectVerdicts({
        {L"[(N)1]a[(N)1]", {L"1A2"}, {L"1b2"}},
        {L"[(N)1]AB[(N)1]", {L"1aB2"}, {}},
        {L"[(N)1]\u00e9[(N)1]", {L"1\u00c92"}, {L"1e2"}},
    });
}

TEST(ValidAdd, a_separator_must_stand_whole)
{
    expectVerdicts({{L"[(N)1] to [(N)1]", {L"1 to 2"}, {L"1 to ", L"1 t", L"1to2"}}});
}

TEST(ValidAdd, a_format_may_begin_with_a_separator)
{
    expectVerdicts({
        {L"-[(N)2]", {L"-1", L"-12"}, {L"-123", L"-", L"1", L""}},
        {L"-[(N)x]/[(N)x]", {L"-1/2"}, {}},
    });
}

TEST(ValidAdd, a_format_of_one_separator_takes_only_the_empty_text)
{
    expectVerdicts({{L"abc", {L""}, {L"abc", L"ab"}}});
}

TEST(ValidAdd, placeholders_fail_in_digit_and_letter_groups_and_pass_in_wide_ones)
{
    expectVerdicts({
        {L"[(N)2]", {}, {L"1#"}},
        {L"[(C)2]", {}, {L"a#"}},
        {L"[(A)2]", {L"a#"}, {}},
    });
}

TEST(ValidAdd, letter_groups_refuse_the_small_x_only)
{
    expectVerdicts({
        {L"[(C)2]", {L"aX", L"\u00e7a"}, {L"ax", L"\u00e2a"}},
        {L"[(A)2]", {L"\u00e2x"}, {L"a\""}},
    });
}

TEST(ValidAdd, ranges_compare_by_character_code)
{
    expectVerdicts({
        {L"[(b-d)3]", {L"bcd"}, {L"bce", L"C"}},
        {L"[(0-9)x]/[(a-f)x]", {L"12/af"}, {}},
        {L"[(d-b)3]", {}, {L"c"}},
    });
}

TEST(ValidAdd, several_groups_in_a_row)
{
    expectVerdicts({
        {L"[(N)2].[(N)2].[(N)4]",
         {L"31.12.1999", L"1.2.3", L"31..1999"},
         {L"31.12.", L"31.12", L"31.123.1999", L"31.12.19999"}},
    });
}

TEST(ValidAdd, the_last_character_is_tested_against_a_following_separator)
{
    // a text that fills the group is tested again against the literal, and a literal that lets it pass ends the format
    expectVerdicts({
        {L"[(N)1]1", {L"1"}, {L"2"}},
        {L"[(N)2]135", {L"13"}, {L"16"}},
        {L"[(A)1]A", {L"?"}, {}},
    });
}

TEST(ValidAdd, behind_that_test_the_type_of_the_next_group_is_taken_for_a_literal)
{
    // the a is no dash; the group behind spells "A", which it equals without case, but nothing follows
    expectVerdicts({
        {L"[(A)1]-[(A)1]", {}, {L"a"}},
        {L"[(A)1]-[(A)1]-", {}, {L"a"}},
        {L"[(A)1]-[(A)5]-", {}, {L"a"}},
    });
}

TEST(ValidAdd, that_test_may_pass_through_to_the_next_group)
{
    // the 1 passes the literal "1" and then the group of digits, which is the last
    expectVerdicts({
        {L"[(N)1]1[(N)1]", {L"1"}, {}},
        {L"[(N)1]1[(C)1]", {}, {L"1"}},
    });
}

TEST(ValidAdd, a_written_count_of_0_at_the_head_is_open)
{
    expectVerdicts({
        {L"[(N)0]", {L"12345"}, {}},
        {L"[(N)0]-[(N)1]", {L"12345-6"}, {}},
    });
}

TEST(ValidAdd, a_written_count_of_0_behind_a_separator_takes_nothing)
{
    expectVerdicts({{L"[(N)1]-[(N)0]", {}, {L"1-2", L"1-"}}});
}

TEST(ValidAdd, leaves_the_nodes_and_may_be_repeated)
{
    const Parsed semantic(L"[(N)2]-[(N)1]");
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(semantic.ValidAdd(L"12-3"), 1);
        EXPECT_EQ(semantic.ValidAdd(L"12"), 0);
        EXPECT_EQ(nodes(semantic), L"N/2/  -/1/S N/1/ ");
    }
}

TEST(ValidAdd, an_empty_node_list_is_an_invalid_argument)
{
    EXPECT_TRUE(raises<CInvalidArgException>([] { valid(L"", L""); }));
    EXPECT_TRUE(raises<CInvalidArgException>([] { valid(L"(", L"1"); }));
    EXPECT_TRUE(raises<CInvalidArgException>([] { CKxSemantic().ValidAdd(L"12"); }));
}

TEST(ValidAdd, goes_on_with_the_nodes_of_a_bad_format)
{
    expectVerdicts({
        {L"[(N)2]-[(Z)3]", {}, {L"12-3"}},
        {L"[(N)x]-[(Z)3]", {L"12"}, {}},
    });
}

TEST(ValidAdd, a_symbol_of_a_section_dimension_is_left_out)
{
    expectVerdicts({
        {L"[(N)x]", {L"12 mm", L"12mm"}, {L"12 kN"}},
        {L"[(N)2]", {L"12 cm"}, {}},
    });
}

TEST(ValidAdd, every_symbol_of_a_section_dimension_is_known)
{
    CKxUnit unit;
    unit.SetIdUnit(11);
    unsigned int units = 0;
    for (; unit.SetRange(units), unit.GetRange() == units; ++units)
        for (const wchar_t* blank : {L"", L" ", L"\t", L"\u00a0"})
            EXPECT_EQ(valid(L"[(N)x]", L"12" + wide(unit.GetName()) + blank), 1) << units;
    EXPECT_EQ(units, 8U);
}

TEST(ValidAdd, a_precision_mark_is_left_out)
{
    expectVerdicts({
        {L"[(N)x]", {L"12\u00b10.5", L"\u224812"}, {}},
        {L"[(A)2]", {L"12  \u00b10.5"}, {}}, // with the blanks before it
    });
}

TEST(ValidAdd, marks_and_symbols_go_before_the_text_is_judged)
{
    expectVerdicts({
        {L"[(N)1] [(C)2]", {}, {L"1 mm"}},          // judged as "1"
        {L"[(N)1]\u00b1[(N)1]", {}, {L"1\u00b12"}}, // the same
        {L"[(\u00a0-\u00ff)2]", {L"\u00b1\u00b1"}, {}},
        {L"[(\u2240-\u2250)2]", {L"\u2248\u2248"}, {}}, // one goes, one stays
        {L"[(\u2240-\u2250)1]", {L"\u2248\u2248"}, {}},
        {L"[(A)x]", {}, {L"a\u2248b"}},
    });
}

TEST(ValidAdd, in_architectural_mode_the_symbol_stays)
{
    expectVerdicts<ParsedFeet>({{L"[(N)x]", {L"\u224812"}, {L"12 mm"}}});
}

TEST(ValidAdd, an_architectural_number_must_be_one)
{
    expectVerdicts<ParsedFeet>({{L"[(N)x]", {L"1'-6\"", L"12", L""}, {L"''", L"1-"}}});
    EXPECT_EQ(valid(L"[(N)x]", L"1'-6\""), 0);
}

TEST(ValidAdd, an_architectural_number_is_judged_when_the_next_open_group_begins)
{
    expectVerdicts<ParsedFeet>({
        {L"[(N)x]/[(N)x]", {L"1'-6\"/2'"}, {L"''/2'", L"1'-6\"/--"}},
        {L"[(N)x]/[(A)x]", {L"1'/a"}, {L"''/a"}},
    });
}

TEST(ValidAdd, before_a_fixed_group_an_architectural_number_is_not_judged)
{
    EXPECT_EQ(feetValid(L"[(N)x]/[(A)2]", L"''/a"), 1);
}

TEST(ValidAdd, the_run_is_kept_over_a_fixed_group_and_then_counts_the_characters_before)
{
    // two characters ran in the first group, so two characters before the second slash are judged: "34", not "''"
    expectVerdicts<ParsedFeet>({{L"[(N)x]/[(N)2]/[(N)x]", {L"''/34/5"}, {L"12/''/5"}}});
}

TEST(ValidAdd, a_fixed_architectural_group_is_not_judged)
{
    expectVerdicts<ParsedFeet>({{L"[(N)2]", {L"''", L"-\""}, {}}});
}

TEST(ValidAdd, a_negative_count_leaves_no_room)
{
    expectVerdicts<ParsedFeet>({
        {L"[(N)-5]", {L""}, {L"1"}},
        {L"[(N)-5]/[(N)1]", {L"/1"}, {}},
        {L"[(N)2]/[(N)-2]", {L"1/23456"}, {}}, // limit 0: open
    });
}

TEST(ValidAdd, huge_counts_do_not_overflow)
{
    expectVerdicts({
        {L"[(N)2147483647]-[(N)2147483647]", {L"1-2"}, {}},
        {L"[(N)99999999999]", {L"123"}, {}},
        {L"[(N)2147483647]-", {}, {L"123"}}, // fixed all the same
    });
}

TEST(ValidAdd, terminators_and_surrogates_pass_no_class)
{
    expectVerdicts({
        {L"[(A)x]", {}, {std::wstring(L"a\0b", 3), std::wstring(1, static_cast<wchar_t>(0xD800))}},
        {L"[(C)x]", {}, {std::wstring(1, static_cast<wchar_t>(0xDFFF))}},
        {L"[(N)x]", {}, {std::wstring(1, static_cast<wchar_t>(0xFF11))}},
    });
}

TEST(ValidAdd, a_separator_may_hold_a_terminator)
{
    const Parsed semantic(std::wstring(L"[(N)1]a\0b[(N)1]", 15));
    EXPECT_EQ(semantic.ValidAdd(framework(std::wstring(L"1A\0B2", 5))), 1);
    EXPECT_EQ(semantic.ValidAdd(framework(std::wstring(L"1A\0C2", 5))), 0);
}

TEST(ValidAdd, a_text_of_100000_characters_is_judged)
{
    expectVerdicts({
        {L"[(N)x]", {std::wstring(100000, L'7')}, {std::wstring(100000, L'7') + L"a"}},
        {L"[(A)99999]", {}, {std::wstring(100000, L'b')}},
    });
    EXPECT_EQ(feetValid(L"[(N)x]", std::wstring(100000, L'-').c_str()), 0);
}
