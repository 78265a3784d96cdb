// What the tests of the smart combo box share: a control that is free of format, with values.
#pragma once
#include <gtest/gtest.h>
#include <type_traits>
#include "logic/afx/Raises.h"
#include "support/MemorySmartCombo.h"

// The same tests run over a real combo box where a program names one before.
#ifndef SMART_COMBO_UNDER_TEST
#define SMART_COMBO_UNDER_TEST MemoryListBox
#endif
using TestedSmartCombo = SmartComboOver<SMART_COMBO_UNDER_TEST>;

/// How many random states are tried: a window for each takes its time.
constexpr int randomStates = std::is_same_v<SMART_COMBO_UNDER_TEST, MemoryListBox> ? 1500 : 100;

class SmartCombo : public testing::Test
{
protected:
    /// Lets the control remember values, given with blanks between them.
    void remember(const std::wstring& values, int sort = 1)
    {
        smart.data().sort = sort;
        CStringList list;
        TestedSmartCombo::fill(list, values);
        smart.call().SetStringCombo(list);
    }
    void alternatives(const std::wstring& formats) { TestedSmartCombo::fill(smart.data().formatList, formats); }
    /// Puts characters on the places of the current format, as an owner that follows the typing does.
    void fillFormat(const wchar_t* characters)
    {
        CString text = characters;
        smart.data().format.SetString(text);
    }
    std::wstring formatText() { return TestedSmartCombo::wide(smart.data().formatText); }
    std::wstring elements() { return TestedSmartCombo::wide(smart.data().format.CreateEditFormat()); }

    TestedSmartCombo smart;
};
