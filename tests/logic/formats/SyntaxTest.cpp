// The grammar of format strings: good ones, bad ones, and the nodes that each leaves.
#include "FormatFixture.h"
#include "formats/TextToInteger.h"

namespace
{
int checked(const wchar_t* format)
{
    return Parsed(format).result;
}

std::wstring parsed(const wchar_t* format)
{
    return nodes(Parsed(format));
}
} // namespace

TEST(Syntax, an_empty_format_is_good_and_has_no_nodes)
{
    EXPECT_EQ(checked(L""), 1);
    EXPECT_EQ(parsed(L""), L"");
}

TEST(Syntax, a_fixed_group_has_its_count_and_a_blank_kind)
{
    EXPECT_EQ(checked(L"[(N)3]"), 1);
    EXPECT_EQ(parsed(L"[(N)3]"), L"N/3/ ");
    EXPECT_EQ(parsed(L"[(C)12]"), L"C/12/ ");
    EXPECT_EQ(parsed(L"[(A)1]"), L"A/1/ ");
}

TEST(Syntax, an_open_group_has_count_0_and_kind_x)
{
    EXPECT_EQ(checked(L"[(N)x]"), 1);
    EXPECT_EQ(parsed(L"[(N)x]"), L"N/0/x");
}

TEST(Syntax, a_written_count_of_0_stays_a_fixed_group_of_length_0)
{
    EXPECT_EQ(checked(L"[(N)0]"), 1);
    EXPECT_EQ(parsed(L"[(N)0]"), L"N/0/ ");
}

TEST(Syntax, a_range_has_its_three_characters_as_type)
{
    EXPECT_EQ(checked(L"[(a-f)2]"), 1);
    EXPECT_EQ(parsed(L"[(a-f)2]"), L"a-f/2/ ");
    EXPECT_EQ(parsed(L"[(9-0)x]"), L"9-0/0/x");
}

TEST(Syntax, the_high_character_of_a_range_is_not_checked)
{
    EXPECT_EQ(parsed(L"[(a-))2]"), L"a-)/2/ ");
    EXPECT_EQ(parsed(L"[(--])2]"), L"--]/2/ ");
    EXPECT_EQ(parsed(L"[(a-()x]"), L"a-(/0/x");
}

TEST(Syntax, a_range_that_begins_with_a_type_letter_cannot_be_written)
{
    EXPECT_EQ(checked(L"[(A-Z)2]"), -1);
    EXPECT_EQ(checked(L"[(N-P)2]"), -1);
    EXPECT_EQ(checked(L"[(C-x)2]"), -1);
    EXPECT_EQ(checked(L"[(B-Z)2]"), 1);
}

TEST(Syntax, a_separator_runs_to_the_next_bracket)
{
    EXPECT_EQ(checked(L"[(N)3]-[(A)x]"), 1);
    EXPECT_EQ(parsed(L"[(N)3]-[(A)x]"), L"N/3/  -/1/S A/0/x");
    EXPECT_EQ(parsed(L"[(N)1] to [(N)1]"), L"N/1/   to /4/S N/1/ ");
}

TEST(Syntax, a_separator_runs_to_the_end_of_the_string)
{
    EXPECT_EQ(parsed(L"[(N)1]mm"), L"N/1/  mm/2/S");
    EXPECT_EQ(parsed(L"abc"), L"abc/3/S");
}

TEST(Syntax, a_format_may_begin_with_a_separator)
{
    EXPECT_EQ(checked(L"No [(N)2]"), 1);
    EXPECT_EQ(parsed(L"No [(N)2]"), L"No /3/S N/2/ ");
    EXPECT_EQ(parsed(L"]x[(N)2]"), L"]x/2/S N/2/ ");
}

TEST(Syntax, a_separator_at_the_head_may_not_begin_with_a_parenthesis)
{
    EXPECT_EQ(checked(L"("), -1);
    EXPECT_EQ(checked(L"(a)[(N)2]"), -1);
    EXPECT_EQ(parsed(L"(a)[(N)2]"), L"");
    EXPECT_EQ(checked(L"a([(N)2]"), 1);
}

TEST(Syntax, a_separator_behind_a_group_may_begin_with_anything)
{
    EXPECT_EQ(checked(L"[(N)2](a)"), 1);
    EXPECT_EQ(parsed(L"[(N)2](a)"), L"N/2/  (a)/3/S");
    EXPECT_EQ(parsed(L"[(N)2]]"), L"N/2/  ]/1/S");
}

TEST(Syntax, two_groups_never_touch)
{
    EXPECT_EQ(checked(L"[(N)2][(A)3]"), 1);
    EXPECT_EQ(parsed(L"[(N)2][(A)3]"), L"N/2/  [(A)3]/6/S");
}

TEST(Syntax, a_bracket_right_behind_a_group_is_literal_and_the_next_one_opens)
{
    EXPECT_EQ(parsed(L"[(N)2][[(A)3]"), L"N/2/  [/1/S A/3/ ");
}

TEST(Syntax, a_group_without_its_closing_bracket_is_bad)
{
    EXPECT_EQ(checked(L"[(N)3"), -1);
    EXPECT_EQ(checked(L"[(N)x"), -1);
    EXPECT_EQ(parsed(L"[(N)3"), L"");
}

TEST(Syntax, every_cut_of_a_group_is_bad)
{
    for (const wchar_t* format :
         {L"[", L"[(", L"[(N", L"[(N)", L"[(N)x", L"[(N)12", L"[(a", L"[(a-", L"[(a-f", L"[(a-f)"})
        EXPECT_EQ(checked(format), -1) << testing::PrintToString(format);
}

TEST(Syntax, what_stands_in_the_wrong_place_is_bad)
{
    EXPECT_EQ(checked(L"[N)2]"), -1);
    EXPECT_EQ(checked(L"[(N]2]"), -1);
    EXPECT_EQ(checked(L"[()2]"), -1);
    EXPECT_EQ(checked(L"[(N)]"), -1);
    EXPECT_EQ(checked(L"[(n)2]"), -1);
    EXPECT_EQ(checked(L"[ (N)2]"), -1);
    EXPECT_EQ(checked(L"[(N) 2]"), -1);
    EXPECT_EQ(checked(L"[(N)X]"), -1);
}

TEST(Syntax, behind_the_x_of_an_open_group_the_bracket_must_follow)
{
    EXPECT_EQ(checked(L"[(N)x2]"), -1);
    EXPECT_EQ(checked(L"[(N)xx]"), -1);
}

TEST(Syntax, behind_the_first_digit_of_a_count_nothing_is_checked)
{
    EXPECT_EQ(checked(L"[(N)2x]"), 1);
    EXPECT_EQ(parsed(L"[(N)2x]"), L"N/2/ ");
    EXPECT_EQ(parsed(L"[(N)3 and more]"), L"N/3/ ");
    EXPECT_EQ(parsed(L"[(N)1[(A)2]"), L"N/1/ ");
}

TEST(Syntax, a_letter_that_is_no_type_needs_a_dash)
{
    EXPECT_EQ(checked(L"[(Z)3]"), -1);
    EXPECT_EQ(checked(L"[(Z-)3]"), -1); // the type is Z, dash, ")" and the test for ")" fails
}

TEST(Syntax, nodes_read_before_an_error_stay)
{
    EXPECT_EQ(checked(L"[(N)2]-[(Z)3]"), -1);
    EXPECT_EQ(parsed(L"[(N)2]-[(Z)3]"), L"N/2/  -/1/S");
}

TEST(Syntax, a_second_check_drops_the_nodes_of_the_first)
{
    CKxSemantic semantic;
    CString format(L"[(N)2]-[(A)x]");
    EXPECT_EQ(semantic.CheckSyntax(format), 1);
    format = L"[(C)1]";
    EXPECT_EQ(semantic.CheckSyntax(format), 1);
    EXPECT_EQ(nodes(semantic), L"C/1/ ");
    format = L"";
    EXPECT_EQ(semantic.CheckSyntax(format), 1);
    EXPECT_EQ(nodes(semantic), L"");
    format = L"(";
    EXPECT_EQ(semantic.CheckSyntax(format), -1);
    EXPECT_EQ(wide(format), L"(");
}

TEST(Syntax, a_count_holds_at_the_limit_of_int)
{
    EXPECT_EQ(parsed(L"[(N)99999999999999999999]"), L"N/2147483647/ ");
    EXPECT_EQ(parsed(L"[(N)2147483648]"), L"N/2147483647/ ");
}

TEST(Syntax, feet_and_inches_signs_begin_a_count_in_architectural_mode_only)
{
    for (const wchar_t* format : {L"[(N)']", L"[(N)\"]", L"[(N)-]", L"[(N)-5]", L"[(N)'5]"})
    {
        EXPECT_EQ(checked(format), -1);
        EXPECT_EQ(ParsedFeet(format).result, 1);
    }
    EXPECT_EQ(nodes(ParsedFeet(L"[(N)'5]")), L"N/0/ ");
    EXPECT_EQ(nodes(ParsedFeet(L"[(N)\"]")), L"N/0/ ");
    EXPECT_EQ(nodes(ParsedFeet(L"[(N)-5]")), L"N/-5/ ");
    EXPECT_EQ(nodes(ParsedFeet(L"[(N)-99999999999]")), L"N/-2147483648/ ");
    EXPECT_EQ(ParsedFeet(L"[(N)+5]").result, -1);
}

TEST(Syntax, an_embedded_terminator_is_an_ordinary_literal_character)
{
    const Parsed literal(std::wstring(L"[(N)1]\0b[(A)x]", 14));
    EXPECT_EQ(literal.result, 1);
    EXPECT_EQ(nodes(literal), std::wstring(L"N/1/  \0b/2/S A/0/x", 18));
    EXPECT_EQ(Parsed(std::wstring(L"[(\0)1]", 6)).result, -1);
    EXPECT_EQ(Parsed(std::wstring(L"[(N)\0]", 6)).result, -1);
}

TEST(Syntax, long_formats_are_read_in_one_pass)
{
    std::wstring format;
    for (int i = 0; i < 20000; ++i)
        format += L"[(N)x]-";
    const Parsed semantic(format);
    EXPECT_EQ(semantic.result, 1);
    EXPECT_EQ(semantic.GetNodes().GetCount(), 40000);
    const Parsed literal(std::wstring(100000, L'a'));
    EXPECT_EQ(static_cast<const CKxSemanticNode*>(literal.GetNodes().GetHead())->GetCount(), 100000);
}

TEST(Syntax, the_architectural_switch_is_off_at_first_and_stays_as_set)
{
    CKxSemantic semantic;
    EXPECT_FALSE(semantic.IsUsingArchitecturalFormat());
    semantic.SetUseArchitecturalFormat(true, feetUnit());
    EXPECT_TRUE(semantic.IsUsingArchitecturalFormat());
    CString format(L"[(N)x]");
    semantic.CheckSyntax(format);
    EXPECT_TRUE(semantic.IsUsingArchitecturalFormat());
    semantic.SetUseArchitecturalFormat(false, CKxUnit());
    EXPECT_FALSE(semantic.IsUsingArchitecturalFormat());
}

TEST(SemanticNode, keeps_text_count_and_kind)
{
    const CKxSemanticNode node(L"a-z", 4, L" ");
    EXPECT_EQ(wide(node.GetText()), L"a-z");
    EXPECT_EQ(node.GetCount(), 4);
    EXPECT_EQ(wide(node.GetKind()), L" ");
}

TEST(TextToInteger, reads_blanks_one_sign_and_digits)
{
    EXPECT_EQ(textToInteger(L""), 0);
    EXPECT_EQ(textToInteger(L"12ab"), 12);
    EXPECT_EQ(textToInteger(L" \t\n\v\f\r12"), 12);
    EXPECT_EQ(textToInteger(L"-12"), -12);
    EXPECT_EQ(textToInteger(L"+12"), 12);
    EXPECT_EQ(textToInteger(L"- 12"), 0);
    EXPECT_EQ(textToInteger(L"+-12"), 0);
    EXPECT_EQ(textToInteger(L"-"), 0);
    EXPECT_EQ(textToInteger(L"a12"), 0);
    EXPECT_EQ(textToInteger(L"007"), 7);
    EXPECT_EQ(textToInteger(std::wstring_view(L"1\0002", 3)), 1);
}

TEST(TextToInteger, holds_at_the_limits_of_int)
{
    EXPECT_EQ(textToInteger(L"2147483647"), 2147483647);
    EXPECT_EQ(textToInteger(L"2147483648"), 2147483647);
    EXPECT_EQ(textToInteger(L"-2147483648"), -2147483647 - 1);
    EXPECT_EQ(textToInteger(L"-2147483649"), -2147483647 - 1);
    EXPECT_EQ(textToInteger(std::wstring(1000, L'9')), 2147483647);
}
