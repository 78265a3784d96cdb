// The list in memory of the logic tests answers as the platform's combo box does.
#include <gtest/gtest.h>
#include <random>
#include "UnitHost.h"
#include "support/MemoryListBox.h"

namespace
{
class MemoryListAgainstCombo : public testing::Test
{
protected:
    MemoryListAgainstCombo()
    {
        combo.Create(WS_CHILD | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(0, 0, 150, 150), &host, 4000);
    }
    void add(const wchar_t* text) { EXPECT_EQ(memory.AddString(text), combo.AddString(text)) << text; }
    void expectSameSearch(int start, const wchar_t* text)
    {
        EXPECT_EQ(memory.FindStringExact(start, text), combo.FindStringExact(start, text)) << text << " from " << start;
    }
    void expectSame()
    {
        ASSERT_EQ(memory.GetCount(), combo.GetCount());
        EXPECT_EQ(memory.GetCurSel(), combo.GetCurSel());
        for (int i = 0; i < memory.GetCount(); ++i)
        {
            CString text;
            combo.GetLBText(i, text);
            EXPECT_EQ(memory.GetItemText(i), text);
        }
    }

    UnitHost host;
    CComboBox combo;
    MemoryListBox memory;
};

TEST_F(MemoryListAgainstCombo, searches_alike)
{
    for (const wchar_t* text : {L"1.000 m", L"2.000 M", L"1.000 m", L"\x00C9t\x00E9", L"ete", L"12'-6\""})
        add(text);
    for (int start = -1; start < 7; ++start)
        for (const wchar_t* text :
             {L"1.000 m", L"1.000 M", L"2.000 m", L"\x00E9T\x00C9", L"ETE", L"1.000", L"12'-6\"", L"nothing"})
            expectSameSearch(start, text);
}

// With accented letters as they stand: Wine's search for beginnings folds only A to Z, Windows all.
TEST_F(MemoryListAgainstCombo, searches_for_beginnings_alike)
{
    for (const wchar_t* text : {L"Poteau", L"poutre", L"[cadre]", L"[-c-]", L"\x00C9t\x00E9", L"co-op", L"", L"pot"})
        add(text);
    for (int start = -1; start < 9; ++start)
        for (const wchar_t* text : {L"", L"p", L"PO", L"pot", L"Poteaux", L"cadre", L"[CAD", L"c", L"c-", L"[-", L"-c",
                                    L"\x00C9T", L"e", L"coop", L"co-"})
        {
            EXPECT_EQ(memory.FindString(start, text), combo.FindString(start, text)) << text << " from " << start;
            expectSameSearch(start, text);
        }
}

TEST_F(MemoryListAgainstCombo, keeps_selection_and_text_apart_alike)
{
    const auto expectSameText = [this]
    {
        CString text;
        combo.GetWindowText(text);
        EXPECT_EQ(memory.GetEditText(), text);
        expectSame();
    };
    for (const wchar_t* text : {L"a", L"b", L"c"})
        add(text);
    EXPECT_EQ(memory.SetCurSel(1), combo.SetCurSel(1));
    memory.SetEditText(L"typed");
    combo.SetWindowText(L"typed");
    expectSameText();
    EXPECT_EQ(memory.DeleteString(1), combo.DeleteString(1));
    expectSameText();
    EXPECT_EQ(memory.SetCurSel(-1), combo.SetCurSel(-1));
    expectSameText();
    memory.SetEditText(L"typed");
    combo.SetWindowText(L"typed");
    memory.ResetContent();
    combo.ResetContent();
    expectSameText();
}

TEST_F(MemoryListAgainstCombo, lives_through_the_same_operations_alike)
{
    std::mt19937 random(7); // a fixed seed
    for (int i = 0; i < 2000; ++i)
    {
        const int roll = static_cast<int>(random() % 6);
        const int index = static_cast<int>(random() % 12) - 1;
        const std::wstring text = std::to_wstring(random() % 9) + L" m";
        if (roll == 0)
            EXPECT_EQ(memory.AddString(text.c_str()), combo.AddString(text.c_str()));
        else if (roll == 1)
            EXPECT_EQ(memory.InsertString(index, text.c_str()), combo.InsertString(index, text.c_str()));
        else if (roll <= 3)
            EXPECT_EQ(memory.DeleteString(static_cast<unsigned int>(index)),
                      combo.DeleteString(static_cast<UINT>(index)));
        else if (roll == 4)
        {
            const int within = index < memory.GetCount() ? index : -1;
            memory.SetCurSel(within);
            combo.SetCurSel(within);
        }
        else
            expectSameSearch(index, text.c_str());
        ASSERT_NO_FATAL_FAILURE(expectSame());
    }
    memory.ResetContent();
    combo.ResetContent();
    expectSame();
}
} // namespace
