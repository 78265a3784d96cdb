// The formats of the smart combo box: set, emptied, chosen among alternatives.
#include "SmartFixture.h"

TEST_F(SmartCombo, a_format_shows_its_placeholders)
{
    smart.call().SetFormat(L"[(N)3]-[(A)x]");
    EXPECT_EQ(formatText(), L"[(N)3]-[(A)x]");
    EXPECT_EQ(smart.shown(), L" /  / ###-#");
    EXPECT_EQ(smart.data().format.GetModified(), 0);
}

TEST_F(SmartCombo, an_emptied_format_keeps_its_elements)
{
    smart.call().SetFormat(L"[(N)3]");
    smart.call().SetFormatEmpty();
    EXPECT_EQ(formatText(), L"");
    EXPECT_EQ(smart.shown(), L" /  / ");
    EXPECT_EQ(elements(), L"###");
}

TEST_F(SmartCombo, the_text_is_reset_to_fresh_placeholders)
{
    smart.call().SetFormat(L"[(N)3]");
    fillFormat(L"12");
    smart.call().SetSelectText(L"12#");
    EXPECT_EQ(smart.data().format.GetModified(), 1);
    smart.call().ResetSelectText();
    EXPECT_EQ(smart.shown(), L" /  / ###");
    EXPECT_EQ(smart.data().format.GetModified(), 0);
}

TEST_F(SmartCombo, a_format_without_any_element_is_refused_and_leaves_what_was_done_before)
{
    smart.call().SetFormat(L"[(N)3]");
    for (const wchar_t* const bad : {L"", L"(a)", L"[(Z)3]"})
    {
        EXPECT_RAISES(CInvalidArgException, smart.call().SetFormat(bad));
        EXPECT_EQ(formatText(), bad);
        EXPECT_EQ(elements(), L"");
        EXPECT_EQ(smart.shown(), L" /  / ###") << "the text was not reached";
    }
    EXPECT_RAISES(CInvalidArgException, smart.call().ResetSelectText());
}

TEST_F(SmartCombo, a_bad_format_goes_on_with_the_elements_before_the_mistake)
{
    smart.call().SetFormat(L"[(N)2]-[(Z)3]");
    EXPECT_EQ(smart.shown(), L" /  / ##-");
}

TEST_F(SmartCombo, numbers_are_read_from_the_elements)
{
    smart.call().SetFormat(L"[(N)2]/[(N)2]");
    fillFormat(L"12");
    CString separator;
    CList<int, int> values;
    smart.call().GetFeatureFormat(separator, values);
    EXPECT_EQ(separator, L"/");
    ASSERT_EQ(values.GetCount(), 2);
    EXPECT_EQ(values.GetHead(), 12);
    EXPECT_EQ(values.GetTail(), 0);
}

TEST_F(SmartCombo, filters_are_the_alternative_formats_and_are_appended_when_fetched)
{
    alternatives(L"old");
    CStringList filters;
    TestedSmartCombo::fill(filters, L"[(N)2] [(C)x]");
    smart.call().SetListFilterString(filters);
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"[(N)2] [(C)x]");
    alternatives(L"[(N)3]");
    CStringList fetched;
    TestedSmartCombo::fill(fetched, L"mine");
    smart.call().GetListFilterString(fetched);
    EXPECT_EQ(TestedSmartCombo::joined(fetched), L"mine [(N)2] [(C)x]");
}

// ---- Alternatives

TEST_F(SmartCombo, a_text_is_judged_by_the_alternatives_in_order)
{
    const struct
    {
        const wchar_t* formats;
        const wchar_t* text;
        int apply;
        int result;
        const wchar_t* shown;
        const wchar_t* format;
    } rows[] = {
        {L"", L"12", 0, 0, L" /  / typed", L""},
        {L"", L"12", 1, 0, L" /  / typed", L""},
        {L"[(C)2]", L"12", 1, 0, L" /  / typed", L""},
        {L"[(N)2]", L"12", 0, 1, L"12 / 12 / typed", L""}, // a mere question adds the text: kept on purpose
        {L"[(N)2]", L"12", 1, 1, L"12 / 12 / ##", L"[(N)2]"},
        {L"[(C)2] [(A)x] [(N)2]", L"12", 1, 1, L"12 / 12 / #", L"[(A)x]"},
        {L"[(N)2]-[(N)1]", L"1-#", 1, 0, L" /  / typed", L""}, // a placeholder is a character as any other
        {L"[(A)x]", L"#", 1, 1, L"# / # / #", L"[(A)x]"},
    };
    for (const auto& row : rows)
    {
        smart = TestedSmartCombo();
        alternatives(row.formats);
        smart.combo().Type(L"typed");
        EXPECT_EQ(smart.call().ValidFreeFormat(row.text, row.apply), row.result) << row.formats;
        EXPECT_EQ(smart.shown(), row.shown) << row.formats;
        EXPECT_EQ(formatText(), row.format) << row.formats;
        EXPECT_EQ(smart.events, L"");
    }
}

TEST_F(SmartCombo, alternatives_that_change_are_read_anew)
{
    const struct
    {
        const wchar_t* formats;
        bool digits; ///< whether two digits fit
        bool letters;
    } rows[] = {
        {L"[(N)2] [(C)2]", true, true},
        {L"[(N)1] [(C)2]", false, true},
        {L"[(N)1]", false, false},
        {L"[(N)2]", true, false},
        {L"", false, false},
        {L"[(C)2] [(N)2]", true, true},
    };
    for (const auto& row : rows)
        for (int again = 0; again < 2; ++again)
        {
            alternatives(row.formats);
            EXPECT_EQ(smart.call().ValidFreeFormat(L"12", 0), row.digits ? 1 : 0) << row.formats;
            EXPECT_EQ(smart.call().ValidFreeFormat(L"ab", 0), row.letters ? 1 : 0) << row.formats;
        }
}

TEST_F(SmartCombo, the_picker_follows_the_alternative_that_fits)
{
    const struct
    {
        int mode;
        int apply;
        const wchar_t* events;
    } rows[] = {
        {BITMAPMODE_PICKER, 1, L"button 2"}, {BITMAPMODE_PICKER, 0, L""}, {BITMAPMODE_NONE, 1, L""},
        {BITMAPMODE_SINGLE, 1, L""},         {BITMAPMODE_DOUBLE, 1, L""},
    };
    for (const auto& row : rows)
    {
        smart = TestedSmartCombo();
        smart.data().bitmapMode = row.mode;
        alternatives(L"[(C)1] [(N)1] [(N)2] [(N)2]");
        EXPECT_EQ(smart.call().ValidFreeFormat(L"12", row.apply), 1);
        EXPECT_EQ(smart.events, row.events);
    }
}

TEST_F(SmartCombo, an_empty_alternative_is_refused_when_its_turn_comes)
{
    smart.data().formatList.AddTail(L"[(N)2]");
    smart.data().formatList.AddTail(L"");
    EXPECT_EQ(smart.call().ValidFreeFormat(L"12", 0), 1);
    EXPECT_RAISES(CInvalidArgException, smart.call().ValidFreeFormat(L"ab", 0));
}

TEST_F(SmartCombo, feet_and_inches_count_as_digits_with_a_unit_that_knows_them)
{
    alternatives(L"[(N)x]");
    const struct
    {
        unsigned int range; ///< of the lengths: metres, inches, feet
        int result;
    } rows[] = {{0, 0}, {4, 1}, {5, 1}};
    for (const auto& row : rows)
    {
        smart.unit = std::make_unique<CKxUnit>(1, row.range, 3, L'.', 1.0, 1);
        EXPECT_EQ(smart.call().ValidFreeFormat(L"5'-6\"", 0), row.result) << row.range;
    }
    smart.unit.reset();
    EXPECT_EQ(smart.call().ValidFreeFormat(L"5'-6\"", 0), 0) << "what was read with the unit is not kept";
}

TEST_F(SmartCombo, a_button_is_looked_up_by_the_exact_format)
{
    alternatives(L"[(C)1] [(N)1]");
    smart.call().SetButtonSelection(L"[(N)1]");
    smart.call().SetButtonSelection(L"[(n)1]");
    EXPECT_EQ(smart.events, L"button 1");
}
