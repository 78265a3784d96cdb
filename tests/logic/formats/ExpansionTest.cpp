// What a format expands to, its picture, and the small operations on texts.
#include "FormatFixture.h"

TEST(Expansion, groups_and_separators_follow_each_other_without_gap)
{
    EXPECT_EQ(expanded(L"[(N)2]/[(A)x]"), L"G0-1:## S2-2:/ O3-3:#");
    EXPECT_EQ(expanded(L"[(N)3]-[(A)x]"), L"G0-2:### S3-3:- O4-4:#");
    EXPECT_EQ(expanded(L"No [(N)2] of [(a-f)1]"), L"S0-2:No  G3-4:## S5-8: of  G9-9:#");
}

TEST(Expansion, the_edit_text_shows_the_places_and_the_literals)
{
    CKxFormat format;
    Parsed(L"[(N)2]/[(A)x]").CreateListFormat(format);
    EXPECT_EQ(wide(format.CreateEditFormat()), L"##/#");
    EXPECT_EQ(format.IsEmpty(), 1);
    EXPECT_EQ(format.ValidAdd(), 0);
}

TEST(Expansion, a_fixed_group_keeps_its_count_and_an_open_one_minus_1)
{
    CKxFormat format;
    Parsed(L"[(N)2]/[(A)x]").CreateListFormat(format);
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetHead())->GetMaxCount(), 2);
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetTail())->GetMaxCount(), -1);
}

TEST(Expansion, a_written_count_of_0_makes_an_open_group)
{
    EXPECT_EQ(expanded(L"[(N)0]-"), L"O0-0:# S1-1:-");
}

TEST(Expansion, appends_to_a_list_and_starts_at_0_again)
{
    CKxFormat format;
    const Parsed semantic(L"[(N)1]-");
    semantic.CreateListFormat(format);
    semantic.CreateListFormat(format);
    EXPECT_EQ(elements(format), L"G0-0:# S1-1:- G0-0:# S1-1:-");
}

TEST(Expansion, a_bad_format_expands_to_what_was_read)
{
    EXPECT_EQ(expanded(L"[(N)2]-[(Z)3]"), L"G0-1:## S2-2:-");
}

TEST(Expansion, an_empty_node_list_is_an_invalid_argument)
{
    EXPECT_TRUE(raises<CInvalidArgException>([] { expanded(L""); }));
    EXPECT_TRUE(raises<CInvalidArgException>([] { expanded(L"[(N)3"); }));
}

TEST(Expansion, negative_counts_make_no_places_and_positions_that_go_back)
{
    CKxFormat format;
    ParsedFeet(L"[(N)-5]/[(N)2]").CreateListFormat(format);
    EXPECT_EQ(elements(format), L"G0--6: S-5--5:/ G-4--3:##");
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetHead())->GetMaxCount(), -5);
    CKxFormat open;
    ParsedFeet(L"[(N)-1]").CreateListFormat(open); // a count of -1 reads as a group of open length
    EXPECT_EQ(elements(open), L"O0--2:");
}

TEST(Expansion, positions_hold_at_the_limits_of_int)
{
    CKxFormat format;
    ParsedFeet(L"[(N)-99999999999]/[(N)-99999999999]/[(N)1]").CreateListFormat(format);
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetTail())->GetStart(), -2147483647 - 1);
    format.IncFormat(-2147483647 - 1);
    format.DecFormat(-2147483647 - 1);
    EXPECT_EQ(format.GetCount(), 5);
}

TEST(Expansion, up_to_a_million_places_are_made)
{
    CKxFormat format;
    Parsed(L"[(N)1000000]").CreateListFormat(format);
    EXPECT_EQ(static_cast<CKxGroup*>(format.GetHead())->GetTextLength(), 1000000);
}

TEST(Expansion, more_than_a_million_places_are_refused_and_nothing_is_appended)
{
    CKxFormat format;
    EXPECT_TRUE(raises<CMemoryException>([&] { Parsed(L"[(N)1000001]").CreateListFormat(format); }));
    EXPECT_TRUE(raises<CMemoryException>([&] { Parsed(L"[(N)500000]-[(N)x]-[(A)500000]").CreateListFormat(format); }));
    EXPECT_TRUE(raises<CMemoryException>([&] { Parsed(L"[(a-f)99999999999]").CreateListFormat(format); }));
    EXPECT_EQ(format.GetCount(), 0);
}

TEST(Picture, shows_each_place_by_the_letter_of_its_type)
{
    EXPECT_EQ(picture(L"[(N)3]-[(A)x]"), L"NNN-xA");
    EXPECT_EQ(picture(L"[(C)2]/[(N)x] [(A)1]"), L"CC/xN A");
    EXPECT_EQ(picture(L"[(C)x]"), L"xC");
}

TEST(Picture, a_range_adds_nothing_but_the_x_of_an_open_one)
{
    EXPECT_EQ(picture(L"[(0-9)2]"), L"");
    EXPECT_EQ(picture(L"[(a-f)2]-[(a-f)x]"), L"-x");
    EXPECT_EQ(picture(L"[(a-f)2147483647]"), L"");
}

TEST(Picture, a_written_count_of_0_shows_as_open)
{
    EXPECT_EQ(picture(L"[(N)0]"), L"xN");
}

TEST(Picture, a_literal_that_spells_a_type_stays_a_literal)
{
    EXPECT_EQ(picture(L"A[(N)2]N"), L"ANNN");
}

TEST(Picture, a_negative_count_adds_nothing)
{
    EXPECT_EQ(wide(ParsedFeet(L"[(N)-5]/[(N)2]").MakeToolTipsString(L"")), L"/NN");
}

TEST(Picture, the_argument_is_not_used)
{
    EXPECT_EQ(wide(Parsed(L"[(N)2]").MakeToolTipsString(L"something")), L"NN");
}

TEST(Picture, has_its_bound)
{
    EXPECT_EQ(picture(L"[(N)1000000]").size(), 1000000U);
    EXPECT_TRUE(raises<CMemoryException>([] { picture(L"[(N)1000001]"); }));
    EXPECT_TRUE(raises<CMemoryException>([] { picture(L"[(N)2147483647]-[(A)2147483647]"); }));
}

TEST(Picture, an_empty_node_list_is_an_invalid_argument)
{
    EXPECT_TRUE(raises<CInvalidArgException>([] { picture(L""); }));
}

TEST(Unmasked, every_placeholder_goes_and_the_rest_stays)
{
    const CKxSemantic semantic;
    EXPECT_EQ(wide(semantic.GetStringUnMasked(L"1#2##")), L"12");
    EXPECT_EQ(wide(semantic.GetStringUnMasked(L"a-b c")), L"a-b c");
    EXPECT_EQ(wide(semantic.GetStringUnMasked(L"###")), L"");
    EXPECT_EQ(wide(semantic.GetStringUnMasked(L"")), L"");
    EXPECT_EQ(wide(semantic.GetStringUnMasked(framework(std::wstring(L"#\0#a", 4)))), std::wstring(L"\0a", 2));
}

TEST(Unmasked, a_long_text_is_unmasked)
{
    EXPECT_EQ(wide(CKxSemantic().GetStringUnMasked(CString(L'#', 100000))), L"");
}

TEST(SemanticFeature, forwards_to_the_format)
{
    CKxFormat format;
    const Parsed semantic(L"[(N)2]/[(N)2]");
    semantic.CreateListFormat(format);
    CString text(L"12");
    format.SetString(text);
    CString separator;
    CList<int, int> values;
    semantic.GetFeatureFormat(format, separator, values);
    EXPECT_EQ(wide(separator), L"/");
    ASSERT_EQ(values.GetCount(), 2);
    EXPECT_EQ(values.GetHead(), 12);
    EXPECT_EQ(values.GetTail(), 0);
}
