// What the tests of the smart combo box share: a control that is free of format, with values.
#pragma once
#include <gtest/gtest.h>
#include "logic/afx/Raises.h"
#include "support/MemorySmartCombo.h"

class SmartCombo : public testing::Test
{
protected:
    /// Lets the control remember values, given with blanks between them.
    void remember(const std::wstring& values, int sort = 1)
    {
        smart.data().sort = sort;
        CStringList list;
        MemorySmartCombo::fill(list, values);
        smart.call().SetStringCombo(list);
    }
    void alternatives(const std::wstring& formats) { MemorySmartCombo::fill(smart.data().formatList, formats); }
    /// Puts characters on the places of the current format, as an owner that follows the typing does.
    void fillFormat(const wchar_t* characters)
    {
        CString text = characters;
        smart.data().format.SetString(text);
    }
    std::wstring formatText() { return MemorySmartCombo::wide(smart.data().formatText); }
    std::wstring elements() { return MemorySmartCombo::wide(smart.data().format.CreateEditFormat()); }

    MemorySmartCombo smart;
};
