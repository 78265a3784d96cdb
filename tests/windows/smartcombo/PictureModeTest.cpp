// The four bitmap modes: what stands at the left, where the combo box goes, what clicks on the pictures do.
#include <gtest/gtest.h>
#include "SmartHost.h"

namespace
{
/// A control of the host that writes down which of its operations were called.
class ToldSmart : public CKxSmartComboBox
{
public:
    explicit ToldSmart(CWnd& parent)
    {
        Create(L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE, CRect(10, 110, 210, 140), &parent, 3000);
    }
    void BitmapButtonClick() override { told += L"bitmap "; }
    void LeftBitmapButtonClick() override { told += L"left "; }
    void RightBitmapButtonClick() override { told += L"right "; }
    void ButtonHasChange(int bitmap) override { told += L"has change " + std::to_wstring(bitmap) + L" "; }

    std::wstring told;
};

void setMode(CKxSmartComboBox& smart, int mode)
{
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2] [(A)3]");
    switch (mode)
    {
    case 1:
        smart.SetBitmapFormatList(formats, IDB_TILES, 3, L"one;two;three", 1);
        break;
    case 2:
        smart.SetBitmapOnly(IDI_BOLT);
        break;
    case 3:
        smart.SetDoubleBitmap(formats, IDI_BOLT, IDB_MASKED);
        break;
    case 4:
        smart.SetNoBitmap();
        break;
    case 5:
        smart.SetBitmapOnly(formats, IDB_MASKED);
        break;
    default:
        break;
    }
}

int pickerHeight()
{
    LOGFONT font = {};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return std::abs(font.lfHeight) + 10;
}
} // namespace

TEST(SmartPictures, each_mode_puts_the_combo_box_in_its_place)
{
    const struct
    {
        int mode;
        bool buttons;
        int left;
        int widthLess; ///< than the client area
    } rows[] = {
        {0, true, 0, 0},    {0, false, 0, 0},  {1, true, 44, 14},  {1, false, 44, 44}, {2, true, 20, 20},
        {2, false, 20, 20}, {3, true, 40, 40}, {3, false, 40, 40}, {4, true, 0, 0},    {5, true, 20, 20},
    };
    for (const auto& row : rows)
    {
        SmartHost host;
        setMode(*host.smart, row.mode);
        if (!row.buttons)
            host.smart->SetVisibleAddDelete(0);
        const CRect combo = host.childPlace(1008);
        EXPECT_EQ(combo.left, row.left) << row.mode;
        EXPECT_EQ(combo.top, 0) << row.mode;
        EXPECT_EQ(combo.Width(), host.clientWidth() - row.widthLess) << row.mode << row.buttons;
        EXPECT_EQ(host.smart->GetActivateButton(), row.buttons ? 1 : 0);
    }
}

TEST(SmartPictures, without_buttons_the_widths_are_others)
{
    const struct
    {
        int mode;
        int left;
        int widthLess;
    } rows[] = {{1, 44, 0}, {2, 20, 0}, {3, 40, 0}, {4, 0, 0}};
    for (const auto& row : rows)
    {
        SmartHost host;
        host.smart->SetVisibleAddDelete(0);
        setMode(*host.smart, row.mode);
        EXPECT_EQ(host.childPlace(1008).left, row.left) << row.mode;
        EXPECT_EQ(host.childPlace(1008).Width(), host.clientWidth() - row.widthLess) << row.mode;
    }
}

TEST(SmartPictures, the_pictures_stand_at_their_places)
{
    const int h = pickerHeight();
    const struct
    {
        int mode;
        int id;
        CRect place;
        LONG_PTR style; ///< 0: not looked at
    } rows[] = {
        {1, 1009, {0, 0, 45, h}, 0},          {2, 1037, {0, 0, 21, h}, 0x5000000B},
        {3, 1037, {0, 0, 21, h}, 0x5000000B}, {3, 1038, {21, 0, 41, h}, 0x5000000B},
        {5, 1037, {0, 0, 21, h}, 0x5000000B},
    };
    for (const auto& row : rows)
    {
        SmartHost host;
        setMode(*host.smart, row.mode);
        ASSERT_NE(host.child(row.id), nullptr) << row.mode;
        EXPECT_EQ(host.childPlace(row.id), row.place) << row.mode;
        if (row.style != 0)
        {
            EXPECT_EQ(::GetWindowLongPtrW(host.child(row.id), GWL_STYLE), row.style) << row.mode;
        }
    }
}

TEST(SmartPictures, each_mode_takes_its_formats)
{
    const struct
    {
        int mode;
        const wchar_t* format;
        INT_PTR formats;
        int number; ///< of buttons, less 1; -1: not looked at
    } rows[] = {{1, L"[(N)2]", 3, 2}, {2, L"", 1, -1}, {3, L"", 4, -1}, {4, L"", 1, -1}, {5, L"", 4, -1}};
    for (const auto& row : rows)
    {
        SmartHost host;
        host.alternatives(L"[(N)9]");
        setMode(*host.smart, row.mode);
        EXPECT_EQ(host.smart->GetFormat(), row.format) << row.mode;
        EXPECT_EQ(host.data().formatList.GetCount(), row.formats) << row.mode;
        if (row.number >= 0)
        {
            EXPECT_EQ(host.smart->GetNumberOfButtons(), row.number);
        }
    }
}

TEST(SmartPictures, an_empty_list_of_formats_makes_no_picker)
{
    SmartHost host;
    CStringList none;
    host.smart->SetBitmapFormatList(none, IDB_TILES, 3, CString(), 0);
    EXPECT_EQ(host.child(1009), nullptr);
    EXPECT_EQ(host.childPlace(1008).left, 0);
}

TEST(SmartPictures, a_selected_format_outside_the_list_is_kept_as_a_number)
{
    SmartHost host;
    CStringList formats;
    fillList(formats, L"[(C)1] [(N)2]");
    host.smart->SetBitmapFormatList(formats, IDB_TILES, 3, CString(), 7);
    EXPECT_EQ(host.smart->GetFormat(), L"");
    EXPECT_EQ(host.data().selectedFormat, 7);
    EXPECT_EQ(OpenSmartCombo::picker(*host.smart).GetSelectedItem(), 7);
}

TEST(SmartPictures, a_chosen_button_brings_its_format_and_tells_the_parent)
{
    const struct
    {
        LPARAM index;
        const wchar_t* format;
    } rows[] = {{0, L"[(C)1]"}, {2, L"[(A)3]"}, {3, L"[(N)2]"}, {-1, L"[(N)2]"}};
    for (const auto& row : rows)
    {
        SmartHost host;
        setMode(*host.smart, 1);
        EXPECT_EQ(host.smart->SendMessage(0x405, 1009, row.index), 0);
        EXPECT_EQ(host.smart->GetFormat(), row.format);
        EXPECT_EQ(host.heard, (std::vector<Heard>{{1029, IDC_SMART, row.index}}));
        EXPECT_EQ(::GetParent(::GetFocus()), host.combo().m_hWnd);
    }
}

// The palette opens under the face: cells of 16 by 16 pixels, with 8 more around each, begin 2 pixels inside.
TEST(SmartPictures, the_user_opens_the_palette_and_chooses_a_picture)
{
    SmartHost host;
    setMode(*host.smart, 1);
    CRect face;
    ::GetWindowRect(host.child(1009), &face);
    host.press(VK_TAB);
    moveTo({face.left + 7, face.top + 8});
    pumpFor(20);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    pumpFor(50);
    moveTo({face.left + 2 + 26 + 12, face.bottom + 14}); // the second of two columns
    pumpFor(50);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    pumpFor(50);
    EXPECT_EQ(host.heard, (std::vector<Heard>{{1029, IDC_SMART, 1}}));
    EXPECT_EQ(host.smart->GetFormat(), L"[(N)2]");
    EXPECT_EQ(host.shown(), L" /  / ##");
}

TEST(SmartPictures, the_picker_follows_a_text_that_fits_another_format)
{
    SmartHost host;
    setMode(*host.smart, 1);
    host.smart->SetFormatEmpty();
    host.type(L"abc");
    CString text;
    int valid = 0, toggled = 0;
    host.smart->GetText(text, 1, valid, toggled);
    EXPECT_EQ(valid, 1);
    EXPECT_EQ(OpenSmartCombo::picker(*host.smart).GetSelectedItem(), 2) << "three of any kind";
    host.type(L"12");
    host.smart->GetText(text, 1, valid, toggled);
    EXPECT_EQ(OpenSmartCombo::picker(*host.smart).GetSelectedItem(), 1);
}

TEST(SmartPictures, clicks_call_the_operation_of_the_mode)
{
    const struct
    {
        int mode;
        int id;
        const wchar_t* told;
    } rows[] = {{2, 1037, L"bitmap "}, {5, 1037, L"bitmap "}, {3, 1037, L"left "}, {3, 1038, L"right "}};
    SmartHost host;
    for (const auto& row : rows)
    {
        auto* const told = new ToldSmart(host);
        setMode(*told, row.mode);
        click(centreOf(::GetDlgItem(told->m_hWnd, row.id)));
        EXPECT_EQ(told->told, row.told) << row.mode;
        told->DestroyWindow();
    }
}

TEST(SmartPictures, the_change_of_the_button_is_told_with_no_bitmap)
{
    SmartHost host;
    auto* const told = new ToldSmart(host);
    told->SetFormat(L"[(N)2]");
    told->AddStringCombo(L"A");
    told->SetAutoAddOnSelChange(1);
    CComboBox& combo = OpenSmartCombo::combo(*told);
    combo.SetCurSel(0);
    combo.SetWindowText(L"12");
    told->SendMessage(WM_COMMAND, MAKEWPARAM(1008, CBN_SELCHANGE), reinterpret_cast<LPARAM>(combo.m_hWnd));
    EXPECT_EQ(told->told, L"has change -1 ");
}

TEST(SmartPictures, a_second_call_makes_nothing_twice)
{
    for (int mode = 1; mode <= 5; ++mode)
    {
        SmartHost host;
        setMode(*host.smart, mode);
        const HWND windows[] = {host.child(1009), host.child(1037), host.child(1038)};
        setMode(*host.smart, mode);
        EXPECT_EQ(host.child(1009), windows[0]) << mode;
        EXPECT_EQ(host.child(1037), windows[1]) << mode;
        EXPECT_EQ(host.child(1038), windows[2]) << mode;
        int children = 0;
        for (HWND child = ::GetWindow(host.smart->m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            ++children;
        EXPECT_EQ(children, 3 + (windows[0] != nullptr) + (windows[1] != nullptr) + (windows[2] != nullptr));
    }
}

TEST(SmartPictures, every_mode_may_follow_every_other)
{
    SmartHost host;
    for (int first = 1; first <= 5; ++first)
        for (int second = 1; second <= 5; ++second)
        {
            setMode(*host.smart, first);
            setMode(*host.smart, second);
            host.smart->SetVisibleAddDelete(second % 2);
            SmartHost::pump();
        }
    host.smart->SetVisibleAddDelete(1);
    EXPECT_TRUE(::IsWindow(host.child(1037)));
}

// ---- "+" and "-"

TEST(SmartButtons, hide_and_show_by_their_style_alone)
{
    SmartHost host;
    for (const int show : {0, 1})
    {
        host.smart->SetVisibleAddDelete(show);
        EXPECT_EQ(host.smart->GetActivateButton(), show);
        for (const int id : {1006, 1007})
            EXPECT_EQ((::GetWindowLongPtrW(host.child(id), GWL_STYLE) & WS_VISIBLE) != 0, show != 0);
    }
}

TEST(SmartButtons, leave_their_place_to_the_combo_box_when_they_go)
{
    SmartHost host;
    const POINT plus = centreOf(host.child(1006));
    EXPECT_EQ(::WindowFromPoint(plus), host.child(1006));
    host.smart->SetVisibleAddDelete(0);
    EXPECT_EQ(::WindowFromPoint(plus), host.child(1008));
    host.smart->SetVisibleAddDelete(1);
    EXPECT_EQ(::WindowFromPoint(plus), host.child(1006));
    setMode(*host.smart, 1);
    EXPECT_EQ(::WindowFromPoint(plus), host.child(1006)) << "also when the combo box has moved";
}

TEST(SmartButtons, are_enabled_apart)
{
    const struct
    {
        int add;
        int del;
        bool addOn;
        bool delOn;
    } rows[] = {{1, 0, true, false}, {0, 0, true, false}, {0, 1, false, true}, {0, 0, false, true}, {1, 1, true, true}};
    SmartHost host;
    for (const auto& row : rows)
    {
        host.smart->SetEnableAddDelete(row.add, row.del);
        EXPECT_EQ(::IsWindowEnabled(host.child(1006)) != FALSE, row.addOn);
        EXPECT_EQ(::IsWindowEnabled(host.child(1007)) != FALSE, row.delOn);
    }
}

TEST(SmartButtons, stay_as_they_are_when_the_control_is_enabled)
{
    SmartHost host;
    setMode(*host.smart, 3);
    setMode(*host.smart, 1);
    host.smart->SetEnableAddDelete(0, 1);
    EXPECT_FALSE(host.smart->EnableWindow(0)) << "it was enabled";
    for (const int id : {1008, 1009, 1037, 1038})
        EXPECT_FALSE(::IsWindowEnabled(host.child(id))) << id;
    EXPECT_TRUE(::IsWindowEnabled(host.child(1007)));
    EXPECT_TRUE(host.smart->EnableWindow(1)) << "it was disabled";
    for (const int id : {1008, 1009, 1037, 1038})
        EXPECT_TRUE(::IsWindowEnabled(host.child(id))) << id;
    EXPECT_FALSE(::IsWindowEnabled(host.child(1006)));
    ::EnableWindow(host.smart->m_hWnd, FALSE); // as a host does that does not know the class
    EXPECT_FALSE(::IsWindowEnabled(host.child(1008)));
    ::EnableWindow(host.smart->m_hWnd, TRUE);
    EXPECT_TRUE(::IsWindowEnabled(host.child(1008)));
}

// ---- Tips

TEST(SmartTips, go_to_the_combo_box_or_to_all_pictures_too)
{
    SmartHost host;
    CKxToolTip& tip = OpenSmartCombo::tip(*host.smart);
    host.smart->SetFormatToolTip(L"the combo box");
    EXPECT_EQ(tip.GetToolCount(), 1);
    setMode(*host.smart, 3);
    setMode(*host.smart, 1);
    host.smart->AddFormatToolTip(L"all");
    EXPECT_EQ(tip.GetToolCount(), 5) << "the picker, two buttons, the combo box once more";
    for (const int id : {1008, 1009, 1037, 1038})
    {
        wchar_t text[80] = {};
        TTTOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = host.child(id);
        tool.uId = reinterpret_cast<UINT_PTR>(tool.hwnd);
        tool.lpszText = text;
        tip.SendMessage(TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
        EXPECT_STREQ(text, id == 1008 ? L"the combo box" : L"all") << id;
    }
}
