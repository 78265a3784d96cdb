// Reading the text of the control: which texts are valid, and what reading them changes.
#include "SmartFixture.h"

namespace
{
struct Reading
{
    const wchar_t* what;
    const wchar_t* alternatives;
    const wchar_t* format; ///< null: free
    const wchar_t* filled; ///< what stands on the places of the format
    const wchar_t* typed;
    int validate;
    int toggled;
    const wchar_t* text;
    int valid; ///< 7: as the caller passed it
    int toggledThen;
    const wchar_t* shown;
    const wchar_t* elements;
    const wchar_t* formatText;
};

const wchar_t* const two = L"[(N)2]";

const Reading readings[] = {
    {L"free, not judged", two, nullptr, L"", L"x#y", 0, 0, L"xy", 7, 1, L"B / B / x#y", L"", L""},
    {L"the switch goes back", two, nullptr, L"", L"x", 0, 1, L"x", 7, 0, L"B / B / x", L"", L""},
    {L"any number is on", two, nullptr, L"", L"x", 0, -5, L"x", 7, 0, L"B / B / x", L"", L""},
    {L"free, fits none", two, nullptr, L"", L"xy", 1, 0, L"xy", 0, 1, L"B / B / xy", L"", L""},
    {L"free, no alternatives", L"", nullptr, L"", L"xy", 1, 0, L"xy", 0, 1, L"B / B / xy", L"", L""},
    {L"free, fits", two, nullptr, L"", L"1#2", 1, 0, L"12", 1, 1, L"B 12 / 12 B / 12", L"12", L""},
    {L"blanks at the end count", two, nullptr, L"", L"ab ", 1, 0, L"ab ", 0, 1, L"B / B / ab ", L"", L""},
    {L"format, elements filled", L"", two, L"1", L"zz", 0, 3, L"zz", 1, 3, L"B zz / B zz / zz", L"1#", two},
    {L"format, elements empty", L"", two, L"", L"12", 1, 3, L"12", 0, 3, L"B / B / 12", L"##", two},
    {L"format, placeholders", L"", two, L"1", L"1#", 1, 0, L"1", 1, 0, L"B 1 / 1 B / 1#", L"1#", two},
};

class SmartReading : public SmartCombo, public testing::WithParamInterface<Reading>
{
};
} // namespace

TEST_P(SmartReading, judges_by_the_alternatives_or_by_the_elements)
{
    const Reading& row = GetParam();
    remember(L"B");
    alternatives(row.alternatives);
    if (row.format != nullptr)
        smart.call().SetFormat(row.format);
    fillFormat(row.filled);
    smart.combo().Type(row.typed);
    CString text = L"old";
    int valid = 7;
    int toggled = row.toggled;
    smart.call().GetText(text, row.validate, valid, toggled);
    EXPECT_EQ(text, row.text) << row.what;
    EXPECT_EQ(valid, row.valid) << row.what;
    EXPECT_EQ(toggled, row.toggledThen) << row.what;
    EXPECT_EQ(smart.shown(), row.shown) << row.what;
    EXPECT_EQ(elements(), row.elements) << row.what;
    EXPECT_EQ(formatText(), row.formatText) << row.what;
    EXPECT_EQ(smart.events, L"") << row.what;
}

INSTANTIATE_TEST_SUITE_P(Rows, SmartReading, testing::ValuesIn(readings));

TEST_F(SmartCombo, a_text_that_fits_moves_the_picker_to_its_format)
{
    alternatives(L"[(C)1] [(N)2]");
    smart.data().bitmapMode = BITMAPMODE_PICKER;
    smart.combo().Type(L"12");
    CString text;
    int valid = 0;
    int toggled = 0;
    smart.call().GetText(text, 1, valid, toggled);
    EXPECT_EQ(smart.events, L"button 1");
    EXPECT_EQ(formatText(), L"") << "free again";
}
