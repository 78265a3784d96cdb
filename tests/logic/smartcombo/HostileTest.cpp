// What a host, a user and a platform can do to a smart combo box at the wrong moment.
#include <random>
#include "SmartFixture.h"

namespace
{
/// Runs an operation over and over; the control comes to its end at one event more each time.
template <typename Prepare, typename Operation> void endAtEachEvent(const Prepare& prepare, const Operation& operation)
{
    MemorySmartCombo whole;
    prepare(whole);
    whole.events.clear();
    operation(whole);
    ASSERT_NE(whole.events, L"");
    for (int at = 0;; ++at)
    {
        MemorySmartCombo smart;
        prepare(smart);
        smart.events.clear();
        smart.endsAt = at;
        operation(smart);
        if (smart.control != nullptr)
        {
            EXPECT_GT(at, 0);
            return;
        }
        EXPECT_EQ(whole.events.substr(0, smart.events.size()), smart.events) << "nothing happens afterwards";
    }
}

/// The same for each time that the operation asks for the unit, which is as often as said.
template <typename Prepare, typename Operation>
void endAtEachUnit(const Prepare& prepare, const Operation& operation, int questions)
{
    for (int at = 0; at <= questions; ++at)
    {
        MemorySmartCombo smart;
        prepare(smart);
        smart.events.clear();
        smart.endsAtUnit = at;
        operation(smart);
        EXPECT_EQ(smart.control == nullptr, at < questions) << at;
        if (at < questions)
        {
            EXPECT_EQ(smart.events.find(L"selchange"), std::wstring::npos) << "nobody is told afterwards";
        }
    }
}

void underFormat(MemorySmartCombo& smart)
{
    CStringList values;
    MemorySmartCombo::fill(values, L"A B");
    smart.call().SetStringCombo(values);
    smart.call().SetFormat(L"[(N)1]-[(N)1]");
    smart.data().autoAdd = 1;
    smart.combo().SetCurSel(1);
    smart.combo().SetEditText(L"1-2");
}

void halfFilled(MemorySmartCombo& smart)
{
    underFormat(smart);
    CString text = L"1-2";
    smart.data().format.SetString(text);
    smart.combo().Type(L"zz");
}
} // namespace

TEST(SmartComboEnding, nothing_is_touched_when_an_event_ends_the_control)
{
    int index = 0;
    CStringList out;
    const auto pick = [](MemorySmartCombo& smart) { smart.call().OnSelchangeCombo(); };
    endAtEachEvent(underFormat, pick);
    endAtEachEvent(halfFilled, pick);
    endAtEachEvent(underFormat, [](MemorySmartCombo& smart) { smart.call().OnButtonAdd(); });
    endAtEachEvent(underFormat, [](MemorySmartCombo& smart) { smart.call().OnButtonDelete(); });
    endAtEachEvent(underFormat, [](MemorySmartCombo& smart) { smart.call().OnSelchangeOkCombo(); });
    endAtEachEvent(underFormat, [](MemorySmartCombo& smart) { smart.call().OnEditUpdate(); });
    endAtEachEvent(underFormat, [](MemorySmartCombo& smart) { smart.call().OnButtonSelChanged(0); });
    endAtEachEvent(underFormat, [&](MemorySmartCombo& smart) { smart.call().GetStringCombo(out, index, 1, 1); });
}

TEST(SmartComboEnding, nothing_is_touched_when_the_question_for_the_unit_ends_the_control)
{
    const auto withAlternatives = [](MemorySmartCombo& smart)
    {
        underFormat(smart);
        MemorySmartCombo::fill(smart.data().formatList, L"[(C)1]-[(C)1] [(N)1]-[(N)1]");
    };
    const auto filled = [&](MemorySmartCombo& smart)
    {
        withAlternatives(smart);
        smart.call().SetFormat(L"[(N)2]");
        smart.combo().SetEditText(L"12");
        CString text = L"12";
        smart.data().format.SetString(text);
    };
    const auto refused = [&](MemorySmartCombo& smart)
    {
        withAlternatives(smart);
        smart.combo().SetEditText(L"zz");
    };
    const auto free = [&](MemorySmartCombo& smart)
    {
        withAlternatives(smart);
        smart.data().formatText.Empty();
    };
    const auto pick = [](MemorySmartCombo& smart) { smart.call().OnSelchangeCombo(); };
    const auto add = [](MemorySmartCombo& smart) { smart.call().OnButtonAdd(); };
    int index = 0;
    CString text;
    bool valid = false;
    endAtEachUnit(withAlternatives, pick, 2);
    endAtEachUnit(refused, pick, 2);
    endAtEachUnit(free, pick, 1);
    endAtEachUnit(filled, add, 1);
    endAtEachUnit(free, add, 2);
    endAtEachUnit(
        free, [](MemorySmartCombo& smart) { smart.call().UpdateBitmapFromText(); }, 1);
    endAtEachUnit(
        free, [&](MemorySmartCombo& smart) { smart.call().GetText(text, 1, index, index); }, 1);
    endAtEachUnit(
        free, [&](MemorySmartCombo& smart) { smart.call().GetSelectText(text, valid); }, 1);
    endAtEachUnit(
        free, [](MemorySmartCombo& smart) { smart.call().SetCurSel(0); }, 1);
}

TEST(SmartComboEnding, a_refusal_that_ends_the_control_gives_neither_focus_nor_values)
{
    MemorySmartCombo smart;
    underFormat(smart);
    CString text = L"1";
    smart.data().format.SetString(text);
    smart.endsAt = 0;
    CStringList out;
    MemorySmartCombo::fill(out, L"mine");
    int index = 77;
    smart.call().GetStringCombo(out, index, 1, 1);
    EXPECT_EQ(smart.events, L"message 22011 22008");
    EXPECT_EQ(MemorySmartCombo::joined(out), L"mine");
    EXPECT_EQ(index, -1);
}

TEST_F(SmartCombo, the_parent_may_empty_everything_while_it_hears_of_an_addition)
{
    underFormat(smart);
    smart.onEvent = [this]
    {
        smart.onEvent = nullptr;
        smart.call().ResetContent();
        smart.data().format.DeleteFormat();
        smart.call().ClearControl();
    };
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.shown(), L"1-2 / 1-2 / ");
    EXPECT_EQ(smart.events, L"adding, has change -1");
}

TEST_F(SmartCombo, a_combo_box_that_refuses_the_text_makes_a_free_one_known_to_the_parent)
{
    remember(L"A B");
    alternatives(L"[(N)1]-[(N)1]");
    smart.data().autoAdd = 1;
    smart.combo().SetCurSel(1);
    smart.combo().SetEditText(L"1-2");
    smart.combo().refuseInsertions = true;
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.events, L"adding, has change -1");
    EXPECT_EQ(MemorySmartCombo::joined(smart.data().list), L"1-2 A B");
}

TEST_F(SmartCombo, texts_of_a_million_characters_pass_through)
{
    const CString longText(L'7', 1000000);
    alternatives(L"[(C)x] [(N)x]");
    smart.data().autoAdd = 1;
    smart.combo().Type(longText);
    int index = 0;
    EXPECT_EQ(smart.call().AddInListFormat(index, 1), 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(smart.data().list.GetHead(), longText);
    smart.call().SetFormat(L"[(N)x]");
    smart.combo().SetEditText(longText);
    smart.call().OnSelchangeCombo();
    EXPECT_EQ(smart.events, L"focus, release +, selchange");
    EXPECT_EQ(smart.data().list.GetCount(), 1);
}

TEST_F(SmartCombo, many_values_are_filled_and_sorted)
{
    CStringList values;
    for (int i = 0; i < 100000; ++i)
    {
        CString text;
        text.Format(L"%d", i * 7919 % 100000); // each number once
        values.AddTail(text);
    }
    smart.call().SetStringCombo(values);
    smart.call().SortCombo();
    EXPECT_EQ(smart.combo().GetCount(), 100000);
    EXPECT_EQ(smart.data().list.GetCount(), 100000);
    EXPECT_EQ(smart.data().list.GetHead(), L"0");
    EXPECT_EQ(smart.data().list.GetTail(), L"99999");
}

TEST_F(SmartCombo, unreadable_formats_are_survived_in_every_operation)
{
    const wchar_t* const formats[] = {
        L"(",       L"[",     L"[(",      L"[(N",      L"[(N)", L"[(N)]",        L"[(N)0]",
        L"[(N)-3]", L"[(N)x", L"[(a-)2]", L"[(z-a)2]", L"x",    L"[(N)2][(A)3]", L"[(N)99999999999]"};
    const wchar_t* const texts[] = {L"", L"1", L"##", L"12", L"[", L"x1", L"12[(A)3]"};
    int refusals = 0;
    for (const wchar_t* const format : formats)
        for (const wchar_t* const text : texts)
            for (int operation = 0; operation < 6; ++operation)
            {
                smart = MemorySmartCombo();
                remember(L"A B");
                alternatives(format);
                smart.data().autoAdd = 1;
                int index = 0;
                CString read;
                try
                {
                    if (operation % 2 == 0)
                        smart.call().SetFormat(format);
                    fillFormat(text);
                    smart.combo().SetCurSel(1);
                    smart.combo().SetEditText(text);
                    if (operation / 2 == 0)
                        smart.call().OnSelchangeCombo();
                    else if (operation / 2 == 1)
                        smart.call().AddInListFormat(index, 1);
                    else
                        smart.call().GetText(read, 1, index, index);
                }
                catch (CException* exception) // no element at all, or too many places
                {
                    ++refusals;
                    exception->Delete();
                }
                ASSERT_GE(smart.combo().GetCount(), 2);
                ASSERT_GE(smart.data().list.GetCount(), 2);
            }
    EXPECT_GT(refusals, 0);
}

// Whatever host and user do: the list and the combo box hold the same texts, and sorted ones are in order.
TEST_F(SmartCombo, list_and_combo_box_agree_over_random_operations)
{
    const wchar_t* const texts[] = {L"12", L"1-2", L"ab", L"AB", L"##", L"1-#", L"x", L"a b ", L"7", L"3-4"};
    std::mt19937 random(20240614); // a fixed seed
    const auto below = [&random](unsigned int bound) { return static_cast<int>(random() % bound); };
    smart.data().autoAdd = 1;
    smart.combo().keepSorted = true;
    alternatives(L"[(N)1]-[(N)1] [(C)1]-[(C)x]");
    int most = 0;
    for (int round = 0; round < 20000; ++round)
    {
        const CString text = texts[below(std::size(texts))];
        int number = 0;
        CString read;
        switch (below(12))
        {
        case 0:
            smart.call().SetFormat(L"[(N)1]-[(N)1]");
            break;
        case 1:
            smart.call().SetFormatEmpty();
            break;
        case 2:
            fillFormat(text);
            break;
        case 3:
            smart.answer = below(8) == 0 ? 1 : 0;
            smart.call().OnButtonDelete();
            break;
        case 4:
            smart.call().GetText(read, below(2), number, number);
            break;
        case 5:
            smart.call().SortCombo();
            break;
        case 6:
            smart.combo().SetCurSel(below(6) - 1);
            smart.combo().SetEditText(text);
            smart.call().OnSelchangeCombo();
            break;
        case 7:
            smart.call().ClearControl();
            break;
        default:
            smart.combo().Type(text);
            smart.call().AddInListFormat(number, below(2));
            break;
        }
        most = std::max(most, smart.combo().GetCount());
        ASSERT_EQ(smart.combo().GetCount(), smart.data().list.GetCount()) << round;
        int index = 0;
        for (POSITION place = smart.data().list.GetHeadPosition(); place != nullptr; ++index)
            ASSERT_EQ(smart.combo().GetItemText(index), smart.data().list.GetNext(place)) << round;
    }
    EXPECT_GT(most, 4);
}
