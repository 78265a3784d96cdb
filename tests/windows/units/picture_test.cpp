// What the unit combo box looks like in a dialog: focused, open, disabled. Pictures go to the folder that OXA_PICTURES names.
#include <gtest/gtest.h>
#include <cstdlib>
#include <string>
#include "UnitHost.h"
#include "support/Screenshot.h"

namespace
{
/// The number of pixels of a colour within a window.
int pixelsOf(HWND window, COLORREF colour)
{
    RECT area = {};
    ::GetClientRect(window, &area);
    const HDC source = ::GetDC(window);
    int count = 0;
    for (int y = 0; y < area.bottom; ++y)
    {
        for (int x = 0; x < area.right; ++x)
            count += ::GetPixel(source, x, y) == colour ? 1 : 0;
    }
    ::ReleaseDC(window, source);
    return count;
}

std::wstring fileNamed(const wchar_t* name)
{
    const wchar_t* const folder = _wgetenv(L"OXA_PICTURES");
    wchar_t temporary[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, temporary);
    return (folder != nullptr ? std::wstring(folder) + L"\\" : std::wstring(temporary)) + name;
}

class UnitComboPicture : public testing::Test
{
protected:
    UnitComboPicture()
    {
        for (const double value : {0.5, 1.0, 2.5})
            host.metre->AddValueSI(value);
        host.focusOn(IDC_METRE);
        host.type(L"1.5");
        host.press(VK_TAB);
    }
    static void draw() { UnitHost::pump(50); }

    UnitHost host;
};

TEST_F(UnitComboPicture, focused_shows_the_selected_text)
{
    host.focusOn(IDC_METRE);
    host.press(VK_HOME);
    host.press(VK_END, {VK_SHIFT});
    draw();
    EXPECT_GT(pixelsOf(host.metre->editField(), ::GetSysColor(COLOR_HIGHLIGHT)), 100);
    EXPECT_TRUE(saveWindowPng(host.m_hWnd, fileNamed(L"unit-combo-focused.png").c_str()));
}

TEST_F(UnitComboPicture, open_shows_the_items_with_the_typed_one_selected)
{
    host.focusOn(IDC_METRE);
    host.press(VK_F4);
    draw();
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(host.metre->m_hWnd, &info));
    EXPECT_TRUE(::IsWindowVisible(info.hwndList));
    EXPECT_EQ(::SendMessageW(info.hwndList, LB_GETCURSEL, 0, 0), 3);
    EXPECT_TRUE(saveWindowWithPopupsPng(host.m_hWnd, fileNamed(L"unit-combo-open.png").c_str()));
    host.metre->ShowDropDown(FALSE);
}

TEST_F(UnitComboPicture, disabled_shows_its_text_in_grey)
{
    host.focusOn(IDC_AFTER);
    draw();
    EXPECT_EQ(pixelsOf(host.metre->editField(), ::GetSysColor(COLOR_GRAYTEXT)), 0);
    host.metre->EnableWindow(FALSE);
    draw();
    EXPECT_GT(pixelsOf(host.metre->editField(), ::GetSysColor(COLOR_GRAYTEXT)), 10);
    EXPECT_TRUE(saveWindowPng(host.m_hWnd, fileNamed(L"unit-combo-disabled.png").c_str()));
}
} // namespace
