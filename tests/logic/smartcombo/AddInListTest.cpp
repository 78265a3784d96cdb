// "+" and its kin: which texts are added, where they stand then, what is refused.
#include "SmartFixture.h"

namespace
{
struct Addition
{
    const wchar_t* what;
    int sort;
    const wchar_t* values;
    const wchar_t* alternatives;
    const wchar_t* format; ///< null: free
    const wchar_t* filled; ///< what stands on the places of the format
    const wchar_t* typed;
    int result;
    int index;
    const wchar_t* shown;
    const wchar_t* elements;
    const wchar_t* events;
};

const wchar_t* const quiet = L"focus, release +";
const wchar_t* const refused = L"message 22011 22008, focus, release +";

const Addition additions[] = {
    {L"free, new, sorted", 1, L"B D", L"", nullptr, L"", L"C", 1, 1, L"B [C] D / B C D / C", L"", quiet},
    {L"free, new, unsorted", 0, L"B A", L"", nullptr, L"", L"C", 1, 2, L"B A [C] / B A C / C", L"", quiet},
    {L"blanks behind it", 0, L"", L"", nullptr, L"", L"C  ", 1, 0, L"[C] / C / C", L"", quiet},
    {L"placeholders in it", 0, L"", L"", nullptr, L"", L"A#B#", 1, 0, L"[AB] / AB / AB", L"", quiet},
    {L"begins another value", 1, L"Calm", L"", nullptr, L"", L"cal", 1, 0, L"[Calm] / Calm / Calm", L"", quiet},
    {L"there in another case", 1, L"Calm", L"", nullptr, L"", L"CALM", 1, 0, L"[Calm] / Calm / Calm", L"", quiet},
    {L"fits an alternative", 1, L"B", L"[(C)2] [(N)2]", nullptr, L"", L"12", 1, 0, L"[12] B / 12 B / 12", L"", quiet},
    {L"fits none, and is lost", 1, L"B", L"[(N)1]-[(N)1]", nullptr, L"", L"ab", 1, -1, L"B / B / ", L"", quiet},
    {L"fits none, but is there", 1, L"B", L"[(N)1]-[(N)1]", nullptr, L"", L"b", 1, 0, L"[B] / B / B", L"", quiet},
    {L"elements untouched", 1, L"B", L"", L"[(N)2]", L"", L"12", 1, -1, L"B / B / 12", L"##", quiet},
    {L"elements untouched, there", 1, L"12", L"", L"[(N)2]", L"", L"12", 1, 0, L"12 / 12 / 12", L"##", quiet},
    {L"elements filled, sorted", 1, L"B", L"", L"[(N)2]", L"12", L"12", 1, 0, L"[12] B / 12 B / 12", L"##", quiet},
    {L"elements filled, unsorted", 0, L"B", L"", L"[(N)2]", L"12", L"12", 1, 1, L"B [12] / B 12 / 12", L"##", quiet},
    {L"elements count, not the text", 0, L"", L"", L"[(N)2]", L"1", L"zz", 1, 0, L"[zz] / zz / zz", L"##", quiet},
    {L"half filled", 1, L"B", L"", L"[(N)1]-[(N)1]", L"1", L"1-#", 0, -1, L"B / B / 1-#", L"1-#", refused},
    {L"half filled, begins a value", 1, L"1-#2", L"", L"[(N)1]-[(N)1]", L"1", L"1-#", 1, 0, L"1-#2 / 1-#2 / 1-#",
     L"1-#", quiet},
    {L"half filled, only unmasked there", 1, L"1-", L"", L"[(N)1]-[(N)1]", L"1", L"1-#", 0, -1, L"1- / 1- / 1-#",
     L"1-#", refused},
};

class SmartAddition : public SmartCombo, public testing::WithParamInterface<Addition>
{
protected:
    void SetUp() override
    {
        const Addition& row = GetParam();
        smart.combo().keepSorted = row.sort != 0; // as the control is created
        remember(row.values, row.sort);
        alternatives(row.alternatives);
        if (row.format != nullptr)
            smart.call().SetFormat(row.format);
        fillFormat(row.filled);
        smart.combo().Type(row.typed);
    }
};
} // namespace

TEST_P(SmartAddition, goes_by_the_format_and_the_list)
{
    const Addition& row = GetParam();
    int index = 77;
    EXPECT_EQ(smart.call().AddInListFormat(index, 1), row.result) << row.what;
    EXPECT_EQ(index, row.index) << row.what;
    EXPECT_EQ(smart.shown(), row.shown) << row.what;
    EXPECT_EQ(elements(), row.elements) << row.what;
    EXPECT_EQ(smart.events, row.events) << row.what;
}

TEST_P(SmartAddition, shows_no_message_when_none_is_wanted)
{
    const Addition& row = GetParam();
    int index = 77;
    EXPECT_EQ(smart.call().AddInListFormat(index, 0), row.result) << row.what;
    EXPECT_EQ(smart.shown(), row.shown) << row.what;
    EXPECT_EQ(smart.events, quiet) << row.what;
}

INSTANTIATE_TEST_SUITE_P(Rows, SmartAddition, testing::ValuesIn(additions));

// Sorting comes whether or not anything was added.
TEST_F(SmartCombo, adding_a_value_that_is_there_sorts_all_the_same)
{
    remember(L"B A", 0);
    smart.data().sort = 1;
    smart.combo().Type(L"A");
    int index = 77;
    smart.call().AddInListFormat(index, 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(smart.shown(), L"[A] B / A B / A");
}

// A refused free text clears the selection, and so the empty text is judged, and joins.
TEST_F(SmartCombo, a_refused_text_may_bring_in_the_empty_one)
{
    remember(L"B", 0);
    alternatives(L"[(N)2]");
    smart.combo().Type(L"abc");
    int index = 77;
    EXPECT_EQ(smart.call().AddInListFormat(index, 1), 1);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(smart.shown(), L"B  / B  / ");
    EXPECT_EQ(smart.events, quiet);
}

TEST_F(SmartCombo, the_text_read_with_placeholders_has_no_blanks_at_its_end_either)
{
    remember(L"1-#");
    smart.call().SetFormat(L"[(N)1]-[(N)1]");
    fillFormat(L"1");
    smart.combo().Type(L"1-#  ");
    int index = 77;
    EXPECT_EQ(smart.call().AddInListFormat(index, 1), 1);
    EXPECT_EQ(index, 0);
}
