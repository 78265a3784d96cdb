// Picking an item: the text that was typed before is added, refused or left, and the parent hears of it.
#include "SmartFixture.h"

namespace
{
struct Pick
{
    const wchar_t* what;
    int sort;
    const wchar_t* values;
    const wchar_t* alternatives;
    const wchar_t* format; ///< null: free
    const wchar_t* filled; ///< what stands on the places of the format
    const wchar_t* typed;  ///< what the field still shows
    int picked;
    const wchar_t* shown;
    const wchar_t* formatText;
    const wchar_t* elements;
    int markFirst;
    int markEnd;
    const wchar_t* events;
};

const wchar_t* const picked = L"selchange";
const wchar_t* const added = L"adding, has change -1";
const wchar_t* const refused = L"message 22011 22008, selchange";
const wchar_t* const two = L"[(N)2]";
const wchar_t* const pair = L"[(N)1]-[(N)1]";

const Pick picks[] = {
    {L"nothing typed", 1, L"A B", L"", nullptr, L"", L"", 1, L"A [B] / A B / B", L"", L"", -1, -1, picked},
    {L"placeholders only", 1, L"A B", L"", two, L"", L"##", 0, L"[A] B / A B / A", two, L"##", -1, -1, picked},
    {L"free, no alternatives", 1, L"A B", L"", nullptr, L"", L"new", 1, L"A [B] / A B / new", L"", L"", -1, -1, picked},
    {L"free, fits: joins without the parent's knowledge", 1, L"A B", two, nullptr, L"", L"12", 1,
     L"12 A [B] / 12 A B / 12", L"", L"", -1, -1, picked},
    {L"free, fits none", 1, L"A B", two, nullptr, L"", L"ab", 1, L"A [B] / A B / ab", L"", L"", -1, -1, picked},
    {L"fits, stands before the picked one", 1, L"A B", L"", two, L"", L"12", 1, L"12 A [B] / 12 A B / B", two, L"##", 0,
     1, added},
    {L"fits, stands where the picked one stood", 1, L"A B", L"", two, L"", L"1#2", 0, L"12 [A] B / 12 A B / A", two,
     L"##", 0, 1, added},
    {L"fits, stands behind the picked one", 0, L"A B", L"", two, L"", L"12", 1, L"A [B] 12 / A B 12 / B", two, L"##", 0,
     1, added},
    {L"fits, and nothing is picked", 1, L"A B", L"", two, L"", L"12", -1, L"12 A B / 12 A B / ", two, L"##", 0, 0,
     added},
    {L"fits, the picked one fits an alternative", 1, L"AB B", L"[(C)x]", two, L"", L"12", 1, L"12 AB [B] / 12 AB B / B",
     L"[(C)x]", L"#", 0, 1, added},
    {L"fits, a literal comes first", 1, L"B", L"", L"n-[(N)2]", L"", L"n-12", 0, L"[B] n-12 / B n-12 / B", L"n-[(N)2]",
     L"n-##", 2, 1, added},
    {L"there already", 1, L"12 B", L"", two, L"", L"12", 1, L"12 [B] / 12 B / B", two, L"##", 0, 1, picked},
    {L"begins another value", 1, L"12x B", L"", two, L"", L"12", 1, L"12x [B] / 12x B / B", two, L"##", 0, 1, picked},
    {L"does not fit", 1, L"A B", L"", two, L"", L"ab", 1, L"A [B] / A B / B", two, L"##", 0, 1, picked},
    {L"does not fit, elements of one group filled", 1, L"A B", L"", two, L"12", L"ab", 1, L"A [B] / A B / B", two,
     L"#2", 0, 1, picked},
    {L"does not fit, nothing picked, elements half empty", 1, L"A B", L"", pair, L"1-2", L"ab", -1, L"A B / A B / ",
     pair, L"#-2", 0, 0, refused},
    {L"does not fit, nothing picked, elements empty", 1, L"A B", L"", pair, L"", L"ab", -1, L"A B / A B / ", pair,
     L"#-#", 0, 0, picked},
    {L"a format of literals has no group to mark from", 1, L"A", L"", L"lit", L"", L"zz", 0, L"[A] / A / A", L"lit",
     L"lit", -1, 1, picked},
};

class SmartPick : public SmartCombo, public testing::WithParamInterface<Pick>
{
protected:
    void SetUp() override
    {
        const Pick& row = GetParam();
        smart.combo().keepSorted = row.sort != 0; // as the control is created
        remember(row.values, row.sort);
        alternatives(row.alternatives);
        if (row.format != nullptr)
            smart.call().SetFormat(row.format);
        fillFormat(row.filled);
        smart.combo().SetCurSel(row.picked);
        smart.combo().SetEditText(row.typed);
    }
};
} // namespace

TEST_P(SmartPick, adds_refuses_or_leaves_the_typed_text)
{
    const Pick& row = GetParam();
    smart.data().autoAdd = 1;
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.events, row.events) << row.what;
    EXPECT_EQ(smart.shown(), row.shown) << row.what;
    EXPECT_EQ(formatText(), row.formatText) << row.what;
    EXPECT_EQ(elements(), row.elements) << row.what;
    EXPECT_EQ(smart.combo().markFirst, row.markFirst) << row.what;
    EXPECT_EQ(smart.combo().markEnd, row.markEnd) << row.what;
    EXPECT_EQ(smart.data().visibility, 1) << row.what;
}

TEST_P(SmartPick, does_nothing_but_tell_without_automatic_adding)
{
    const Pick& row = GetParam();
    const std::wstring before = smart.shown();
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.events, L"selchange") << row.what;
    EXPECT_EQ(smart.shown(), before) << row.what;
    EXPECT_EQ(smart.data().visibility, 1) << row.what;
}

INSTANTIATE_TEST_SUITE_P(Rows, SmartPick, testing::ValuesIn(picks));

TEST_F(SmartCombo, picking_reads_the_text_with_the_blanks_at_its_end)
{
    remember(L"A", 0);
    smart.call().SetFormat(L"[(A)x]");
    smart.data().autoAdd = 1;
    smart.combo().SetCurSel(0);
    smart.combo().SetEditText(L"b ");
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.shown(), L"[A] b  / A b  / A");
}

TEST_F(SmartCombo, the_change_of_the_button_names_the_current_bitmap)
{
    remember(L"A", 0);
    smart.call().SetFormat(L"[(N)1]");
    smart.data().autoAdd = 1;
    smart.data().currentBitmap = 3;
    smart.combo().SetCurSel(0);
    smart.combo().SetEditText(L"1");
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.events, L"adding, has change 3");
}

TEST_F(SmartCombo, picking_under_a_format_without_elements_raises_what_the_judgement_raises)
{
    remember(L"A");
    smart.data().formatText = L"(";
    smart.data().autoAdd = 1;
    smart.combo().SetCurSel(0);
    smart.combo().SetEditText(L"zz");
    EXPECT_RAISES(CInvalidArgException, smart.call().OnSelchangeCombo());
    EXPECT_EQ(smart.events, L"");
}

TEST_F(SmartCombo, confirming_and_editing_mark_the_control_as_touched_and_tell_the_parent)
{
    smart.onEvent = [this] { EXPECT_EQ(smart.data().visibility, 1) << "set first"; };
    smart.call().OnSelchangeOkCombo();
    smart.data().visibility = 0;
    smart.call().OnEditUpdate();
    EXPECT_EQ(smart.events, L"selendok, editupdate");
}
