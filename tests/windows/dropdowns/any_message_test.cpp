// Each control of the family ended in the middle of any message that its life brings its parent, and on a platform that
// has run out of something.
#include <gtest/gtest.h>
#include <afxcmn.h>
#include <type_traits>
#include "oxa/dropdowns/KxBitmapComboBox.h"
#include "oxa/dropdowns/KxComboBox.h"
#include "oxa/dropdowns/KxComboBoxEx.h"
#include "oxa/dropdowns/KxComboColorPicker.h"
#include "resource.h"
#include "support/HandleBalance.h"
#include "support/Refusal.h"
#include "support/TrapHost.h"

namespace
{
constexpr DWORD box = WS_CHILD | WS_VISIBLE | WS_VSCROLL;
const CRect place(20, 20, 220, 200);

/// A key for whatever has the focus, which may go with it.
void keyDown(WORD code)
{
    ::SendMessageW(::GetFocus(), WM_KEYDOWN, code, 1);
    ::SendMessageW(::GetFocus(), WM_KEYUP, code, 1);
}
template <WORD code> void pressKey(CWnd&)
{
    keyDown(code);
}
void takeFocus(CWnd& control)
{
    control.SetFocus();
}
void loseFocus(CWnd& control)
{
    ::SetFocus(::GetParent(control.m_hWnd));
}
void paint(CWnd& control)
{
    ::RedrawWindow(control.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}
void disable(CWnd& control)
{
    const HWND window = control.m_hWnd;
    ::EnableWindow(window, FALSE);
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    ::EnableWindow(window, TRUE);
}
void typeOne(CWnd&)
{
    ::SendMessageW(::GetFocus(), WM_CHAR, L'a', 1);
    ::SendMessageW(::GetFocus(), WM_SYSCHAR, L'a', 1);
}
/// A click on the second row of the open list, as the list gets it.
void clickRow(HWND field)
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if (!::GetComboBoxInfo(field, &info) || !::IsWindowVisible(info.hwndList))
        return;
    CRect row;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
    const LPARAM at = MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
        if (::IsWindow(info.hwndList))
            ::SendMessageW(info.hwndList, message, MK_LBUTTON, at);
}
void clickSecondRow(CWnd& combo)
{
    clickRow(combo.m_hWnd);
}

/// What the user of every combo box does, by the keys of the window that has the focus.
template <class Control> std::vector<std::function<void(Control&)>> comboSteps()
{
    return {
        paint,           takeFocus,           typeOne,         pressKey<VK_F4>, pressKey<VK_DOWN>, pressKey<VK_RETURN>,
        pressKey<VK_F4>, pressKey<VK_ESCAPE>, pressKey<VK_F4>, clickSecondRow,  pressKey<VK_UP>,   disable,
        loseFocus};
}

constexpr std::initializer_list<Kind> comboKinds = {
    {WM_COMMAND, CBN_SETFOCUS},  {WM_COMMAND, CBN_DROPDOWN},   {WM_COMMAND, CBN_SELCHANGE},
    {WM_COMMAND, CBN_SELENDOK},  {WM_COMMAND, CBN_CLOSEUP},    {WM_COMMAND, CBN_SELENDCANCEL},
    {WM_COMMAND, CBN_KILLFOCUS}, {WM_PARENTNOTIFY, WM_CREATE},
};
constexpr std::initializer_list<Kind> drawnKinds = {{WM_DRAWITEM}, {WM_MEASUREITEM}, {WM_CTLCOLORLISTBOX}};

TEST(AnyMessage, may_be_the_last_of_an_edit_field)
{
    ControlLife<CKxEdit> life;
    life.create = [](CKxEdit& field, TrapHost& host)
    { field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, place, &host, 7); };
    life.steps = {paint,
                  takeFocus,
                  typeOne,
                  pressKey<VK_LEFT>,
                  [](CKxEdit& field) { ::SendMessageW(field.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3)); },
                  [](CKxEdit& field) { ::SendMessageW(field.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(3, 3)); },
                  disable,
                  [](CKxEdit& field) { field.ClearControl(); },
                  loseFocus};
    life.expectToEndInAnyMessage({{WM_PARENTNOTIFY, WM_CREATE},
                                  {WM_CTLCOLOREDIT},
                                  {WM_CTLCOLORSTATIC},
                                  {WM_COMMAND, EN_SETFOCUS},
                                  {WM_COMMAND, EN_CHANGE},
                                  {WM_COMMAND, EN_UPDATE},
                                  {WM_COMMAND, EN_KILLFOCUS},
                                  {WM_CHAR},
                                  {WM_SYSCHAR},
                                  {WM_KEYDOWN},
                                  {WM_LBUTTONDOWN}});
}

TEST(AnyMessage, may_be_the_last_of_a_combo_box)
{
    ControlLife<CKxComboBox> life;
    life.create = [](CKxComboBox& combo, TrapHost& host)
    {
        if (!combo.Create(box | CBS_DROPDOWN | CBS_AUTOHSCROLL, place, &host, 7))
            return;
        for (const wchar_t* text : {L"alpha", L"beta", L"gamma"})
            combo.AddString(text);
        combo.m_edit.SubclassWindow(::GetWindow(combo.m_hWnd, GW_CHILD));
    };
    life.steps = comboSteps<CKxComboBox>();
    life.expectToEndInAnyMessage(comboKinds);
}

TEST(AnyMessage, may_be_the_last_of_a_combo_box_of_bitmaps)
{
    ControlLife<CKxBitmapComboBox> life;
    life.create = [](CKxBitmapComboBox& combo, TrapHost& host)
    {
        if (!combo.Create(box | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE, place, &host, 7))
            return;
        combo.AddFormatToolTip(L"tip");
    };
    life.steps = comboSteps<CKxBitmapComboBox>();
    for (int i = 0; i < 3; ++i)
        life.steps.insert(life.steps.begin(), [](CKxBitmapComboBox& combo) { combo.AddBitmap(IDB_BLOCK); });
    life.expectToEndInAnyMessage(comboKinds);
    life.expectToEndInAnyMessage(drawnKinds);
}

TEST(AnyMessage, may_be_the_last_of_a_list_of_colours)
{
    ControlLife<CKxComboColorPicker> life;
    life.create = [](CKxComboColorPicker& picker, TrapHost& host)
    { picker.Create(box | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, place, &host, 7); };
    life.steps = comboSteps<CKxComboColorPicker>();
    life.steps.insert(life.steps.begin() + 2, [](CKxComboColorPicker& picker) { picker.SetCurSel(8); });
    life.steps.insert(life.steps.begin() + 3, pressKey<VK_DOWN>); // to the row that asks
    life.expectToEndInAnyMessage(comboKinds);
    life.expectToEndInAnyMessage({{WM_DRAWITEM}, {WM_MEASUREITEM}, {WM_KX_PICK_OTHER_COLOR}});
}

TEST(AnyMessage, may_be_the_last_of_a_combo_box_with_images)
{
    CImageList pictures;
    pictures.Create(16, 16, ILC_COLOR32, 1, 1);
    CBitmap one;
    one.CreateBitmap(16, 16, 1, 32, nullptr);
    pictures.Add(&one, static_cast<CBitmap*>(nullptr));
    for (const DWORD kind : {CBS_DROPDOWNLIST, CBS_DROPDOWN})
    {
        ControlLife<CKxComboBoxEx> life;
        life.create = [&pictures, kind](CKxComboBoxEx& combo, TrapHost& host)
        {
            if (!combo.Create(box | kind, place, &host, 7))
                return;
            combo.SetImageList(&pictures);
            combo.AddFormatToolTip(L"tip");
        };
        life.steps = comboSteps<CKxComboBoxEx>();
        life.steps[9] = [](CKxComboBoxEx& combo)
        { clickRow(reinterpret_cast<HWND>(combo.SendMessage(CBEM_GETCOMBOCONTROL))); };
        for (int i = 0; i < 3; ++i)
        {
            life.steps.insert(life.steps.begin(),
                              [](CKxComboBoxEx& combo)
                              {
                                  wchar_t text[] = L"row";
                                  COMBOBOXEXITEM item = {};
                                  item.mask = CBEIF_TEXT | CBEIF_IMAGE;
                                  item.iItem = -1;
                                  item.pszText = text;
                                  combo.InsertItem(&item);
                              });
        }
        life.steps.push_back([](CKxComboBoxEx& combo) { combo.ShowDropDown(TRUE); });
        life.steps.push_back([](CKxComboBoxEx& combo) { combo.ShowDropDown(FALSE); });
        if (kind == CBS_DROPDOWNLIST)
            life.expectToEndInAnyMessage(comboKinds);
        else // the keys go to a field of its own
            life.expectToEndInAnyMessage({{WM_COMMAND, CBN_DROPDOWN}, {WM_COMMAND, CBN_CLOSEUP}});
    }
}
// ---- Nothing left

/// A life in which the platform gives nothing of a kind, and another one behind it.
template <class Control> void expectToOutlive(const char* function, DWORD style)
{
    SCOPED_TRACE(function);
    const auto live = [style]
    {
        TrapHost host;
        Control control;
        if constexpr (std::is_base_of_v<CKxEdit, Control>)
            control.Create(style, place, &host, 7);
        else if (control.Create(style, place, &host, 7))
            control.AddString(L"row");
        if constexpr (std::is_same_v<CKxComboBoxEx, Control> || std::is_same_v<CKxBitmapComboBox, Control>)
            control.AddFormatToolTip(L"tip");
        if constexpr (std::is_same_v<CKxBitmapComboBox, Control>)
            control.AddBitmap(IDB_BLOCK);
        if (control.m_hWnd == nullptr)
            return false;
        takeFocus(control);
        pressKey<VK_F4>(control);
        paint(control);
        pressKey<VK_DOWN>(control);
        pressKey<VK_RETURN>(control);
        disable(control);
        return true;
    };
    ASSERT_TRUE(live());
    const int objects = gdiObjectCount();
    const int windows = windowCount();
    {
        const Refusal refusal(function);
        ASSERT_TRUE(refusal.works());
        live();
    }
    EXPECT_TRUE(live());
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
}

TEST(NothingLeft, is_no_harm_to_the_controls_of_the_family)
{
    for (const char* function : {"CreateCompatibleDC", "CreateCompatibleBitmap", "CreateSolidBrush", "LoadImageW"})
    {
        expectToOutlive<CKxEdit>(function, WS_CHILD | WS_VISIBLE | WS_BORDER);
        expectToOutlive<CKxComboBox>(function, box | CBS_DROPDOWN);
        expectToOutlive<CKxComboBoxEx>(function, box | CBS_DROPDOWNLIST);
        expectToOutlive<CKxBitmapComboBox>(function, box | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE);
        expectToOutlive<CKxComboColorPicker>(function, box | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED);
    }
}

TEST(NothingLeft, makes_no_tip_and_no_window)
{
    const Refusal refusal("CreateWindowExW");
    ASSERT_TRUE(refusal.works());
    CKxComboBoxEx images;
    CKxBitmapComboBox bitmaps;
    images.AddFormatToolTip(L"tip");
    bitmaps.AddFormatToolTip(L"tip");
    MSG message = {};
    EXPECT_FALSE(bitmaps.PreTranslateMessage(&message));
    EXPECT_FALSE(images.Create(box | CBS_DROPDOWNLIST, place, CWnd::GetDesktopWindow(), 7));
    EXPECT_EQ(images.m_hWnd, nullptr);
}
} // namespace
