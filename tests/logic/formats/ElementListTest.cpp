// Elements, their kinds and owners, and the questions about positions.
#include "FormatFixture.h"

namespace
{
int deletions = 0;

class Foreign : public CObject
{
public:
    ~Foreign() override { ++deletions; }
};

class CountedGroup : public CKxGroup
{
public:
    CountedGroup() : CKxGroup(L"#", 0, 0, 1, 1) {}
    ~CountedGroup() override { ++deletions; }
    CRuntimeClass* GetRuntimeClass() const override { return RUNTIME_CLASS(CKxGroup); }
};
} // namespace

TEST(FormatElements, a_group_keeps_what_its_constructor_was_given)
{
    const CKxGroup group(L"ab#", 4, 6, 1, 3);
    EXPECT_EQ(wide(group.GetText()), L"ab#");
    EXPECT_EQ(group.GetTextLength(), 3);
    EXPECT_EQ(group.GetStart(), 4);
    EXPECT_EQ(group.GetEnd(), 6);
    EXPECT_EQ(group.GetMaxCount(), 3);
}

TEST(FormatElements, a_separator_keeps_what_its_constructor_was_given)
{
    const CKxSeparator separator(L"--", 2, 3);
    EXPECT_EQ(wide(separator.GetText()), L"--");
    EXPECT_EQ(separator.GetTextLength(), 2);
    EXPECT_EQ(separator.GetStart(), 2);
    EXPECT_EQ(separator.GetEnd(), 3);
}

TEST(FormatElements, setting_a_text_moves_no_position)
{
    CKxGroup group(L"#", 0, 0, 1, 1);
    group.SetText(L"long");
    EXPECT_EQ(wide(group.GetText()), L"long");
    EXPECT_EQ(group.GetEnd(), 0);
    CKxSeparator separator(L"-", 1, 1);
    separator.SetText(L"/");
    EXPECT_EQ(wide(separator.GetText()), L"/");
}

TEST(FormatElements, run_time_class_names_tell_the_two_kinds_apart)
{
    const CKxGroup group(L"", 0, 0, 1, 1);
    const CKxSeparator separator(L"", 0, 0);
    EXPECT_STREQ(group.GetRuntimeClass()->m_lpszClassName, "CKxGroup");
    EXPECT_STREQ(separator.GetRuntimeClass()->m_lpszClassName, "CKxSeparator");
    EXPECT_TRUE(group.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(group.IsKindOf(RUNTIME_CLASS(CKxSeparator)));
}

TEST(FormatList, a_new_list_is_empty)
{
    const CKxFormat format;
    EXPECT_EQ(format.GetCount(), 0);
}

TEST(FormatList, an_empty_list_answers_empty_text_1_1_and_false)
{
    const CKxFormat format;
    EXPECT_EQ(wide(format.CreateEditFormat()), L"");
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_EQ(format.IsEmpty(), 1);
    EXPECT_FALSE(format.HaveAnyValue());
}

TEST(FormatList, an_empty_list_knows_no_position)
{
    CKxFormat format;
    EXPECT_EQ(format.GetElement(0), nullptr);
    EXPECT_EQ(format.IsSeparator(0), 0);
    EXPECT_EQ(format.GetFirstGroup(0), -1);
    EXPECT_EQ(format.GetFirstSeparator(0), -1);
    format.Insert(0, L'1');
    format.Delete(0);
    format.IncFormat(0);
    format.DecFormat(0);
    format.AddFormatCarac(0);
    format.DeleteFormatCarac(0);
    format.MakeUpper();
    CString text(L"123");
    format.SetString(text);
    format.UpdateFormat(text);
    EXPECT_EQ(format.GetCount(), 0);
}

TEST(FormatList, deleting_the_format_deletes_every_element_once)
{
    deletions = 0;
    CKxFormat format;
    auto* twice = new CountedGroup;
    format.AddTail(twice);
    format.AddTail(new Foreign);
    format.AddTail(twice);
    format.DeleteFormat();
    EXPECT_EQ(deletions, 2);
    EXPECT_EQ(format.GetCount(), 0);
}

TEST(FormatList, the_destructor_deletes_the_elements)
{
    deletions = 0;
    {
        CKxFormat format;
        format.AddTail(new CountedGroup);
        format.AddTail(new Foreign);
    }
    EXPECT_EQ(deletions, 2);
}

TEST(FormatList, an_emptied_list_can_be_filled_again)
{
    Elements format;
    format.fixed(L"##", 0, 1);
    format.DeleteFormat();
    format.fixed(L"###", 0, 2);
    EXPECT_EQ(elements(format), L"G0-2:###");
}

TEST(FormatList, the_edit_format_joins_all_texts_in_order)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"/", 2, 2).open(L"#", 3, 3);
    EXPECT_EQ(wide(format.CreateEditFormat()), L"##/#");
}

TEST(FormatList, foreign_and_null_elements_are_skipped_everywhere)
{
    deletions = 0;
    Elements format;
    format.AddTail(new Foreign);
    format.fixed(L"1", 0, 0);
    format.AddTail(static_cast<CObject*>(nullptr));
    format.literal(L"-", 1, 1);
    format.AddTail(new Foreign);
    EXPECT_EQ(wide(format.CreateEditFormat()), L"1-");
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_EQ(format.IsEmpty(), 0);
    EXPECT_FALSE(format.HaveAnyValue());
    EXPECT_EQ(format.GetFirstSeparator(0), 1);
    format.IncFormat(0);
    format.DecFormat(0);
    format.MakeUpper();
    CString text(L"5-");
    format.SetString(text);
    format.UpdateFormat(text);
    CString separator;
    CList<int, int> values;
    format.GetFeatureFormat(separator, values);
    EXPECT_EQ(values.GetCount(), 1);
    EXPECT_EQ(elements(format), L"? G0-0:# ? S1-1:- ?");
    format.DeleteFormat();
    EXPECT_EQ(deletions, 2);
}

TEST(FormatList, an_element_covers_its_first_and_its_last_position)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"--", 2, 3).open(L"#", 4, 4);
    EXPECT_EQ(format.GetElement(-1), nullptr);
    EXPECT_EQ(format.GetElement(0), format.GetHead());
    EXPECT_EQ(format.GetElement(1), format.GetHead());
    EXPECT_NE(format.GetElement(2), format.GetHead());
    EXPECT_EQ(format.GetElement(2), format.GetElement(3));
    EXPECT_EQ(format.GetElement(4), format.GetTail());
    EXPECT_EQ(format.GetElement(5), nullptr);
}

TEST(FormatList, of_two_elements_that_cover_a_position_the_first_is_found)
{
    Elements format;
    format.literal(L"abc", 0, 2).fixed(L"###", 1, 3);
    EXPECT_EQ(format.GetElement(1), format.GetHead());
    EXPECT_EQ(format.GetElement(3), format.GetTail());
}

TEST(FormatList, only_separator_positions_are_separators)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"-", 2, 2);
    EXPECT_EQ(format.IsSeparator(1), 0);
    EXPECT_EQ(format.IsSeparator(2), 1);
    EXPECT_EQ(format.IsSeparator(3), 0);
}

TEST(FormatList, the_first_separator_and_group_are_sought_from_the_element_at_the_position_on)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"-", 2, 2).fixed(L"#", 3, 3).literal(L"/", 4, 4);
    EXPECT_EQ(format.GetFirstSeparator(0), 2);
    EXPECT_EQ(format.GetFirstSeparator(2), 2);
    EXPECT_EQ(format.GetFirstSeparator(3), 4);
    EXPECT_EQ(format.GetFirstGroup(1), 0);
    EXPECT_EQ(format.GetFirstGroup(2), 3);
    EXPECT_EQ(format.GetFirstGroup(4), -1);
    EXPECT_EQ(format.GetFirstSeparator(5), -1);
    EXPECT_EQ(format.GetFirstGroup(-7), -1);
}

TEST(FormatJump, direction_1_goes_behind_a_separator)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"--", 2, 3).fixed(L"#", 4, 4);
    EXPECT_EQ(format.Jump(2, 1), 4);
    EXPECT_EQ(format.Jump(3, 1), 4);
}

TEST(FormatJump, any_other_direction_goes_before_a_separator)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"--", 2, 3).fixed(L"#", 4, 4);
    EXPECT_EQ(format.Jump(2, -1), 1);
    EXPECT_EQ(format.Jump(3, 0), 1);
    EXPECT_EQ(format.Jump(3, 2), 1);
}

TEST(FormatJump, before_a_separator_at_0_there_is_nothing_so_the_caret_goes_on_by_one)
{
    Elements format;
    format.literal(L"abc", 0, 2).fixed(L"#", 3, 3);
    EXPECT_EQ(format.Jump(0, -1), 1);
    EXPECT_EQ(format.Jump(1, -1), 2);
    EXPECT_EQ(format.Jump(1, 1), 3);
}

TEST(FormatJump, a_group_is_not_skipped)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"-", 2, 2);
    EXPECT_EQ(format.Jump(0, 1), 0);
    EXPECT_EQ(format.Jump(1, -1), 1);
    EXPECT_EQ(format.Jump(9, 1), 9);
}

TEST(FormatQuestions, valid_add_is_0_as_soon_as_one_group_is_all_placeholders)
{
    Elements format;
    format.fixed(L"1#", 0, 1).literal(L"-", 2, 2).fixed(L"##", 3, 4);
    EXPECT_EQ(format.ValidAdd(), 0);
    format.Insert(4, L'7');
    EXPECT_EQ(format.ValidAdd(), 1);
}

TEST(FormatQuestions, a_group_without_text_counts_as_all_placeholders)
{
    Elements format;
    format.open(L"", 0, 0);
    EXPECT_EQ(format.ValidAdd(), 0);
    EXPECT_EQ(format.IsEmpty(), 1);
    EXPECT_FALSE(format.HaveAnyValue());
}

TEST(FormatQuestions, is_empty_while_every_group_holds_only_placeholders)
{
    Elements format;
    format.fixed(L"##", 0, 1).literal(L"-", 2, 2).open(L"#", 3, 3);
    EXPECT_EQ(format.IsEmpty(), 1);
    format.Insert(3, L'a');
    EXPECT_EQ(format.IsEmpty(), 0);
}

TEST(FormatQuestions, a_list_without_groups_is_empty_and_valid)
{
    Elements format;
    format.literal(L"abc", 0, 2);
    EXPECT_EQ(format.IsEmpty(), 1);
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_FALSE(format.HaveAnyValue());
}

TEST(FormatQuestions, have_any_value_is_true_while_a_place_is_free)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"#", 2, 2).fixed(L"3#", 3, 4);
    EXPECT_TRUE(format.HaveAnyValue());
    format.Insert(4, L'4');
    EXPECT_FALSE(format.HaveAnyValue());
}

TEST(FormatUpper, groups_turn_upper_case_and_separators_stay)
{
    Elements format;
    format.fixed(L"ab1", 0, 2).literal(L"x", 3, 3).open(L"\u00e9#", 4, 5);
    format.MakeUpper();
    EXPECT_EQ(elements(format), L"G0-2:AB1 S3-3:x O4-5:\u00c9#");
}

TEST(FormatFeature, groups_are_read_as_numbers_and_the_first_separator_as_text)
{
    Elements format;
    format.fixed(L"12", 0, 1).literal(L"/", 2, 2).fixed(L"##", 3, 4).literal(L"-", 5, 5).open(L"7b#", 6, 8);
    CString separator(L"old");
    CList<int, int> values;
    format.GetFeatureFormat(separator, values);
    EXPECT_EQ(wide(separator), L"/");
    ASSERT_EQ(values.GetCount(), 3);
    EXPECT_EQ(values.RemoveHead(), 12);
    EXPECT_EQ(values.RemoveHead(), 0);
    EXPECT_EQ(values.RemoveHead(), 7);
}

TEST(FormatFeature, values_are_added_behind_those_there_and_a_missing_separator_leaves_the_text)
{
    Elements format;
    format.fixed(L"-5", 0, 1);
    CString separator(L"old");
    CList<int, int> values;
    values.AddTail(99);
    format.GetFeatureFormat(separator, values);
    EXPECT_EQ(wide(separator), L"old");
    EXPECT_EQ(values.GetHead(), 99);
    EXPECT_EQ(values.GetTail(), -5);
}

TEST(FormatFeature, numbers_hold_at_the_limits_of_int)
{
    Elements format;
    format.open(L"99999999999999999999#", 0, 20).literal(L"a", 21, 21).open(L"-99999999999999999999", 22, 42);
    format.literal(L"b", 43, 43).open(L" \t+7-", 44, 48).literal(L"c", 49, 49).open(L"--3", 50, 52);
    CString separator;
    CList<int, int> values;
    format.GetFeatureFormat(separator, values);
    EXPECT_EQ(values.RemoveHead(), 2147483647);
    EXPECT_EQ(values.RemoveHead(), -2147483647 - 1);
    EXPECT_EQ(values.RemoveHead(), 7);
    EXPECT_EQ(values.RemoveHead(), 0);
}
