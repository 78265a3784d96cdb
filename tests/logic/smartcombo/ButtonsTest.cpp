// "+", "-" and the picker's buttons.
#include "SmartFixture.h"

TEST_F(SmartCombo, plus_on_an_empty_field_only_loses_its_default_look)
{
    remember(L"A");
    smart.call().OnButtonAdd();
    EXPECT_EQ(smart.events, L"release +");
    EXPECT_EQ(smart.shown(), L"A / A / ");
}

TEST_F(SmartCombo, plus_adds_the_text_and_shows_a_message_when_it_is_refused)
{
    smart.combo().Type(L"A");
    smart.call().OnButtonAdd();
    EXPECT_EQ(smart.shown(), L"[A] / A / A");
    smart.call().SetFormat(L"[(N)1]-[(N)1]");
    fillFormat(L"1");
    smart.events.clear();
    smart.call().OnButtonAdd();
    EXPECT_EQ(smart.events, L"message 22011 22008, focus, release +");
}

TEST_F(SmartCombo, minus_asks_and_deletes)
{
    const struct
    {
        int selected;
        int answer;
        const wchar_t* format;
        const wchar_t* shown;
        const wchar_t* events;
    } rows[] = {
        {-1, 1, nullptr, L"A B / A B / ", L"focus, release -"},
        {1, 0, nullptr, L"A [B] / A B / B", L"focus, ask 22010 22009, release -"},
        {1, 1, nullptr, L"A / A / B", L"focus, ask 22010 22009, no title, release -"},
        {1, 0, L"[(N)2]", L"A [B] / A B / B", L"focus, ask 22010 22009, release -"},
        {0, 1, L"[(N)2]", L"B / B / ##", L"focus, ask 22010 22009, no title, release -"},
    };
    for (const auto& row : rows)
    {
        smart = TestedSmartCombo();
        remember(L"A B");
        if (row.format != nullptr)
            smart.call().SetFormat(row.format);
        smart.combo().SetCurSel(row.selected);
        smart.answer = row.answer;
        smart.call().OnButtonDelete();
        EXPECT_EQ(smart.shown(), row.shown);
        EXPECT_EQ(smart.events, row.events);
    }
}

// What the field shows after a deletion is the platform's matter: a combo box keeps the text of a deleted item.

TEST_F(SmartCombo, a_button_of_the_picker_brings_its_format)
{
    const struct
    {
        LPARAM index;
        const wchar_t* format;
        const wchar_t* events;
    } rows[] = {
        {0, L"[(C)1]", L"buttonsel 0, focus"},
        {1, L"[(N)2]", L"buttonsel 1, focus"},
        {2, L"before", L"buttonsel 2, focus"},
        {-1, L"before", L"buttonsel -1, focus"},
        {0x7FFFFFFF, L"before", L"buttonsel 2147483647, focus"},
    };
    for (const auto& row : rows)
    {
        smart = TestedSmartCombo();
        alternatives(L"[(C)1] [(N)2]");
        smart.data().formatText = L"before";
        smart.call().OnButtonSelChanged(row.index);
        EXPECT_EQ(formatText(), row.format);
        EXPECT_EQ(smart.events, row.events);
    }
}

TEST_F(SmartCombo, the_formats_of_the_picker_replace_the_alternatives)
{
    const struct
    {
        int selected;
        const wchar_t* format;
    } rows[] = {{0, L"[(C)1]"}, {1, L"[(N)2]"}, {2, L""}, {-1, L""}};
    for (const auto& row : rows)
    {
        smart = TestedSmartCombo();
        alternatives(L"old");
        CStringList formats;
        TestedSmartCombo::fill(formats, L"[(C)1] [(N)2]");
        EXPECT_TRUE(smart.call().TakePickerFormats(formats, row.selected));
        EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"[(C)1] [(N)2]");
        EXPECT_EQ(formatText(), row.format);
        EXPECT_EQ(smart.data().selectedFormat, row.selected);
        EXPECT_EQ(smart.data().bitmapMode, BITMAPMODE_PICKER);
        EXPECT_TRUE(smart.call().TakePickerFormats(smart.data().formatList, 1)) << "the control's own list";
        EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"[(C)1] [(N)2]");
    }
}

TEST_F(SmartCombo, a_picker_without_formats_changes_nothing)
{
    alternatives(L"old");
    EXPECT_FALSE(smart.call().TakePickerFormats(CStringList(), 1));
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"old");
    EXPECT_EQ(smart.data().bitmapMode, BITMAPMODE_NONE);
    EXPECT_EQ(smart.data().selectedFormat, 0);
}

TEST_F(SmartCombo, the_formats_of_bitmap_buttons_go_behind_the_alternatives)
{
    alternatives(L"old");
    CStringList formats;
    TestedSmartCombo::fill(formats, L"a b");
    smart.call().TakeButtonFormats(formats, BITMAPMODE_DOUBLE);
    EXPECT_EQ(TestedSmartCombo::joined(smart.data().formatList), L"old a b");
    EXPECT_EQ(smart.data().bitmapMode, BITMAPMODE_DOUBLE);
    EXPECT_EQ(formatText(), L"");
}

TEST_F(SmartCombo, the_text_chooses_the_item_when_an_alternative_takes_it)
{
    remember(L"A");
    alternatives(L"[(N)2]");
    smart.combo().Type(L"12");
    EXPECT_EQ(smart.call().UpdateBitmapFromText(), 1);
    EXPECT_EQ(smart.shown(), L"A [12] / 12 A / 12");
    smart.combo().Type(L"A");
    EXPECT_EQ(smart.call().UpdateBitmapFromText(), 0);
    EXPECT_EQ(smart.combo().GetCurSel(), -1);
}
