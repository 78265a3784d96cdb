// The quick ways of sorting and filling, against the plain steps.
#include <random>
#include <string>
#include "SmartFixture.h"
#include "support/PlainSmartCombo.h"

namespace
{
using Random = std::mt19937;

/// Short texts out of few letters, so that many are equal, and equal but for their case; some are empty.
CString someText(Random& random)
{
    const wchar_t letters[] = L"aAbB\u00e9\u00c9[-# 1";
    std::wstring text;
    for (auto left = random() % 4; left > 0; --left)
        text += letters[random() % (sizeof letters / sizeof *letters - 1)];
    return text.c_str();
}

void someTexts(Random& random, CStringList& list)
{
    list.RemoveAll();
    for (auto left = random() % 40; left > 0; --left)
        list.AddTail(someText(random));
}

std::wstring lined(const CStringList& list)
{
    std::wstring all;
    for (POSITION place = list.GetHeadPosition(); place != nullptr;)
        all += TestedSmartCombo::wide(list.GetNext(place)) + L'\n';
    return all;
}

void someState(Random& random, TestedSmartCombo& smart)
{
    smart.data().sort = static_cast<int>(random() % 2);
    smart.combo().keepSorted = random() % 2 == 0;
    if (random() % 2 == 0)
        smart.call().SetFormat(L"[(N)2]");
}
} // namespace

TEST(SmartComboAgainstPlain, filling_gives_the_same_items_values_and_text)
{
    Random random(20240611); // a fixed seed
    for (int round = 0; round < randomStates; ++round)
    {
        const Random state = random;
        TestedSmartCombo quick;
        TestedSmartCombo plain;
        CStringList values;
        someState(random, quick);
        someTexts(random, values);
        Random again = state;
        someState(again, plain);
        quick.call().SetStringCombo(values);
        PlainSmartCombo::SetStringCombo(plain, values);
        ASSERT_EQ(quick.shown(), plain.shown()) << round;
        ASSERT_EQ(lined(quick.data().list), lined(plain.data().list)) << round;
    }
}

TEST(SmartComboAgainstPlain, sorting_gives_the_same_items_values_selection_and_text)
{
    Random random(20240612); // a fixed seed
    for (int round = 0; round < randomStates; ++round)
    {
        TestedSmartCombo quick;
        TestedSmartCombo plain;
        const Random state = random;
        Random used = random;
        for (TestedSmartCombo* const one : {&quick, &plain})
        {
            used = state;
            someState(used, *one);
            CStringList values;
            someTexts(used, values);
            RememberedValues::Assign(one->data().list, values); // unsorted and with duplicates, as the host left it
            for (POSITION place = values.GetHeadPosition(); place != nullptr;)
                one->combo().AddString(values.GetNext(place));
            one->combo().SetCurSel(static_cast<int>(used() % 20) - 3);
        }
        random = used;
        quick.call().SortCombo();
        PlainSmartCombo::SortCombo(plain);
        ASSERT_EQ(quick.shown(), plain.shown()) << round;
        ASSERT_EQ(lined(quick.data().list), lined(plain.data().list)) << round;
    }
}

TEST(SmartComboAgainstPlain, an_element_goes_in_at_the_same_place_from_any_position_of_any_list)
{
    Random random(20240613); // a fixed seed
    for (int round = 0; round < 3000; ++round)
    {
        CStringList quick;
        someTexts(random, quick);
        quick.AddTail(someText(random));
        CStringList plain;
        RememberedValues::Assign(plain, quick);
        const INT_PTR index = static_cast<INT_PTR>(random() % static_cast<unsigned int>(quick.GetCount()));
        const CString value = someText(random);
        RememberedValues::InsertElement(quick.FindIndex(index), quick, value);
        PlainSmartCombo::InsertElement(plain.FindIndex(index), plain, value);
        ASSERT_EQ(lined(quick), lined(plain)) << round;
    }
}

TEST(SmartComboAgainstPlain, a_combo_box_that_refuses_an_item_is_asked_again_for_the_next_equal_one)
{
    TestedSmartCombo quick;
    TestedSmartCombo plain;
    CStringList values;
    TestedSmartCombo::fill(values, L"b A a B c");
    quick.combo().refuseInsertions = true;
    plain.combo().refuseInsertions = true;
    quick.call().SetStringCombo(values);
    PlainSmartCombo::SetStringCombo(plain, values);
    EXPECT_EQ(quick.shown(), L" / A a b B c / ");
    EXPECT_EQ(plain.shown(), quick.shown());
}

TEST(SmartComboAgainstPlain, a_sorted_combo_box_of_an_unsorted_control_has_its_own_order)
{
    TestedSmartCombo smart;
    smart.data().sort = 0;
    smart.combo().keepSorted = true;
    CStringList values;
    TestedSmartCombo::fill(values, L"b A a B c");
    smart.call().SetStringCombo(values);
    EXPECT_EQ(smart.shown(), L"A b c / b A c / ");
}

TEST(RememberedValues, an_element_finds_its_place_at_the_far_end_of_a_long_list)
{
    CStringList list;
    for (int i = 0; i < 200000; ++i)
    {
        CString text;
        text.Format(L"%06d", i);
        list.AddTail(text);
    }
    RememberedValues::InsertElement(list.GetHeadPosition(), list, L"199999a");
    EXPECT_EQ(list.GetTail(), L"199999a");
    RememberedValues::InsertElement(list.GetTailPosition(), list, L"");
    EXPECT_EQ(list.GetHead(), L"");
}
