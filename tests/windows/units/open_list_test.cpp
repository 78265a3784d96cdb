// Keys and pastes of a real user while the list of the control is open.
#include <gtest/gtest.h>
#include <cmath>
#include <cstring>
#include "UnitHost.h"

namespace
{
void putOnClipboard(const wchar_t* text)
{
    ASSERT_TRUE(::OpenClipboard(nullptr));
    ::EmptyClipboard();
    const std::size_t bytes = (wcslen(text) + 1) * sizeof(wchar_t);
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(::GlobalLock(block), text, bytes);
    ::GlobalUnlock(block);
    ::SetClipboardData(CF_UNICODETEXT, block);
    ::CloseClipboard();
}

class OpenList : public testing::Test
{
protected:
    OpenList()
    {
        host.metre->AddValueSI(1.0);
        host.metre->AddValueSI(2.0);
        host.press(VK_TAB);
        host.press(VK_F4);
        host.heard.clear();
        EXPECT_TRUE(host.metre->GetDroppedState());
    }
    void paste()
    {
        key('V', {VK_CONTROL});
        UnitHost::pump(10);
    }

    UnitHost host;
};

TEST_F(OpenList, takes_a_typed_value_and_commits_it_when_the_focus_leaves)
{
    host.type(L"1.5");
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 0);
    host.press(VK_TAB);
    EXPECT_FALSE(host.metre->GetDroppedState());
    EXPECT_EQ(host.metre->shown(), L"1.000 m | 2.000 m | [1.500 m*]");
    EXPECT_EQ(host.metre->GetValueSI(), 1.5);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
    EXPECT_FALSE(host.metre->isChanged());
}

TEST_F(OpenList, takes_a_pasted_value)
{
    putOnClipboard(L"1,5");
    paste();
    EXPECT_EQ(host.metre->editText(), L"1,5");
    EXPECT_TRUE(host.metre->isChanged());
    host.metre->ShowDropDown(FALSE);
}

TEST_F(OpenList, moved_through_by_arrow_keys_holds_the_value_of_the_item)
{
    host.press(VK_DOWN);
    host.press(VK_DOWN);
    EXPECT_EQ(host.metre->GetCurSel(), 1);
    host.press(VK_F4);
    EXPECT_FALSE(host.metre->GetDroppedState());
    EXPECT_EQ(host.metre->shown(), L"1.000 m | [2.000 m]");
    EXPECT_EQ(host.metre->GetValueSI(), 2.0);
}

TEST_F(OpenList, lives_through_being_emptied_and_filled)
{
    host.press(VK_DOWN);
    host.metre->ResetContent();
    host.press(VK_DOWN);
    host.press(VK_RETURN);
    host.type(L"7");
    host.metre->AddValueSI(3.0);
    host.metre->InsertString(0, L"4 m");
    host.press(VK_UP);
    EXPECT_EQ(host.metre->DeleteString(0), 1);
    host.press(VK_TAB);
    EXPECT_EQ(host.metre->values().size(), static_cast<std::size_t>(host.metre->GetCount()));
}

TEST_F(OpenList, is_closed_with_the_control_that_is_deleted)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(host.metre->m_hWnd, &info));
    host.type(L"1");
    host.metre.reset();
    UnitHost::pump(20);
    EXPECT_FALSE(::IsWindow(info.hwndList));
}

TEST(ClosedList, commits_a_pasted_value_when_the_focus_leaves)
{
    UnitHost host;
    host.press(VK_TAB);
    putOnClipboard(L"12 cm");
    key('V', {VK_CONTROL});
    UnitHost::pump(10);
    host.press(VK_TAB);
    EXPECT_EQ(host.metre->shown(), L"[0.120 m*]");
    EXPECT_EQ(host.metre->GetValueSI(), 0.12);
    EXPECT_EQ(host.count(WM_KX_UNIT_VALIDATED), 1);
}

TEST(ClosedList, takes_the_first_line_of_a_pasted_table)
{
    UnitHost host;
    host.press(VK_TAB);
    putOnClipboard(L"1.5\r\n2.5\t3.5\r\n");
    key('V', {VK_CONTROL});
    UnitHost::pump(10);
    host.press(VK_TAB);
    EXPECT_EQ(host.metre->GetCount(), 1);
    EXPECT_TRUE(std::isfinite(host.metre->GetValueSI()));
    EXPECT_EQ(host.metre->shown(), L"[1.500 m*]");
}
} // namespace
