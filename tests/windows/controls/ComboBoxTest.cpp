// Combo boxes.
#include "Support.h"
#include "resource.h"
#include "support/MessageRecorder.h"

namespace
{
const CRect place(10, 10, 210, 200);

class CNames : public CComboBox
{
public:
    explicit CNames(CWnd& parent, DWORD style = CBS_DROPDOWN)
    {
        Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, place, &parent, 5);
        for (const wchar_t* name : {L"alpha", L"beta", L"gamma", L"delta"})
            AddString(name);
    }
};
} // namespace

TEST(ComboBox, selection_fills_the_edit_field)
{
    CParentWindow parent;
    CNames combo(parent);
    EXPECT_EQ(2, combo.SetCurSel(2));
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(L"gamma", plain(text));
}

TEST(ComboBox, the_edit_field)
{
    CParentWindow parent;
    CNames combo(parent);
    combo.SetWindowText(L"typed text");
    EXPECT_TRUE(combo.SetEditSel(2, 5));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(2, 5)), combo.GetEditSel());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(combo.GetComboBoxInfo(&info));
    ASSERT_NE(nullptr, info.hwndItem);
    combo.LimitText(20);
    EXPECT_EQ(20, ::SendMessageW(info.hwndItem, EM_GETLIMITTEXT, 0, 0));
    EXPECT_FALSE(combo.GetComboBoxInfo(nullptr));
    CNames list_only(parent, CBS_DROPDOWNLIST);
    EXPECT_EQ(static_cast<DWORD>(CB_ERR), list_only.GetEditSel());
}

TEST(ComboBox, cut_copy_and_paste_reach_the_edit_field)
{
    CParentWindow parent;
    CNames combo(parent);
    combo.SetWindowText(L"abc");
    combo.SetEditSel(0, 2);
    combo.Copy();
    combo.SetEditSel(3, 3);
    combo.Paste();
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(L"abcab", plain(text));
    combo.SetEditSel(0, 3);
    combo.Cut();
    combo.GetWindowText(text);
    EXPECT_EQ(L"ab", plain(text));
    combo.SetEditSel(0, 2);
    combo.Clear();
    combo.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ComboBox, drops_down)
{
    CParentWindow parent;
    CNames combo(parent);
    EXPECT_FALSE(combo.GetDroppedState());
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    CRect list;
    combo.GetDroppedControlRect(&list);
    EXPECT_EQ(200, list.Width());
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    EXPECT_NE(CB_ERR, combo.SetDroppedWidth(300));
    EXPECT_EQ(300, combo.GetDroppedWidth());
    combo.GetDroppedControlRect(nullptr);
    EXPECT_EQ(0, combo.SetExtendedUI());
    EXPECT_TRUE(combo.GetExtendedUI());
}

TEST(ComboBox, settings_of_the_list)
{
    CParentWindow parent;
    CNames combo(parent);
    combo.SetHorizontalExtent(400);
    EXPECT_EQ(400U, combo.GetHorizontalExtent());
    combo.SetMinVisibleItems(7);
    EXPECT_EQ(7, combo.GetMinVisible());
    const wchar_t* const cue = L"pick one";
    MessageRecorder recorder(combo.m_hWnd);
    combo.SetCueBanner(cue);
    ASSERT_EQ(1, recorder.count(CB_SETCUEBANNER)) << "what comes of it is the platform's";
    EXPECT_EQ(reinterpret_cast<LPARAM>(cue), recorder.all().back().lParam);
    EXPECT_GT(combo.GetItemHeight(-1), 0);
    EXPECT_EQ(0, combo.GetTopIndex());
    EXPECT_NE(CB_ERR, combo.InitStorage(100, 1000));
    EXPECT_NE(0U, combo.GetLocale());
}

TEST(ComboBox, a_thousand_combos_leave_no_window_and_no_gdi_object)
{
    CParentWindow parent;
    const auto cycle = [&] { CNames combo(parent); };
    cycle();
    const int windows = windowCount();
    const int objects = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        cycle();
    EXPECT_EQ(windows, windowCount());
    EXPECT_EQ(objects, gdiObjectCount());
}

TEST(ComboBoxEx, items_have_images_texts_and_data)
{
    CParentWindow parent;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, place, &parent, 5));
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    EXPECT_EQ(nullptr, combo.SetImageList(&images));
    EXPECT_EQ(&images, combo.GetImageList());
    wchar_t text[] = L"first";
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_LPARAM;
    item.pszText = text;
    item.iImage = 1;
    item.lParam = 42;
    EXPECT_EQ(0, combo.InsertItem(&item));
    EXPECT_EQ(1, combo.GetCount());
    wchar_t buffer[32] = {};
    COMBOBOXEXITEM read = {};
    read.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_LPARAM;
    read.pszText = buffer;
    read.cchTextMax = 32;
    EXPECT_TRUE(combo.GetItem(&read));
    EXPECT_STREQ(L"first", read.pszText);
    EXPECT_EQ(1, read.iImage);
    EXPECT_EQ(42, read.lParam);
    EXPECT_NE(nullptr, combo.GetComboBoxCtrl());
    EXPECT_NE(nullptr, combo.GetEditCtrl());
    EXPECT_EQ(0, combo.DeleteItem(0));
    EXPECT_EQ(-1, combo.InsertItem(nullptr));
}
