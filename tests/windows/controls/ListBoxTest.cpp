// List boxes.
#include "Support.h"

namespace
{
const CRect place(10, 10, 210, 150);

class CNames : public CListBox
{
public:
    explicit CNames(CWnd& parent, DWORD style = LBS_NOTIFY)
    {
        Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | style, place, &parent, 5);
        for (const wchar_t* name : {L"alpha", L"beta", L"gamma", L"delta"})
            AddString(name);
    }
};

class CDrawnList : public CListBox
{
public:
    int drawn = 0;
    int measured = 0;
    int compared = 0;
    int deleted = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemHeight = 21;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        ++compared;
        return items->itemData1 < items->itemData2 ? -1 : items->itemData1 > items->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
};

class CKeyList : public CListBox
{
public:
    UINT key = 0;
    int VKeyToItem(UINT pressed, UINT) override
    {
        key = pressed;
        return 2;
    }
};
} // namespace

TEST(ListBox, strings_are_added_inserted_found_and_deleted)
{
    CParentWindow parent;
    CNames list(parent);
    EXPECT_EQ(4, list.GetCount());
    EXPECT_EQ(1, list.InsertString(1, L"aleph"));
    EXPECT_EQ(5, list.InsertString(-1, L"omega"));
    EXPECT_EQ(1, list.FindString(0, L"al"));
    EXPECT_EQ(0, list.FindString(1, L"alp"));
    EXPECT_EQ(2, list.FindStringExact(-1, L"BETA"));
    EXPECT_EQ(LB_ERR, list.FindStringExact(-1, L"bet"));
    EXPECT_EQ(2, list.SelectString(-1, L"be"));
    EXPECT_EQ(2, list.GetCurSel());
    EXPECT_EQ(5, list.DeleteString(0));
    EXPECT_EQ(LB_ERR, list.DeleteString(99));
    list.ResetContent();
    EXPECT_EQ(0, list.GetCount());
}

TEST(ListBox, texts_of_any_length_and_of_no_item)
{
    CParentWindow parent;
    CNames list(parent);
    const std::wstring longer(100000, L'z');
    const int index = list.AddString(longer.c_str());
    EXPECT_EQ(100000, list.GetTextLen(index));
    CString text(L"before");
    list.GetText(index, text);
    EXPECT_EQ(longer, plain(text));
    list.GetText(99, text);
    EXPECT_TRUE(text.IsEmpty());
    list.GetText(-1, text);
    EXPECT_TRUE(text.IsEmpty());
    wchar_t buffer[16] = {};
    EXPECT_EQ(5, list.GetText(0, buffer));
    EXPECT_STREQ(L"alpha", buffer);
    EXPECT_EQ(LB_ERR, list.GetText(99, buffer));
    EXPECT_EQ(LB_ERR, list.GetText(0, static_cast<LPTSTR>(nullptr)));
    list.AddString(L"");
    list.GetText(5, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(ListBox, a_list_without_texts_reads_its_values_safely)
{
    CParentWindow parent;
    CDrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED, place, &parent, 5));
    list.AddString(reinterpret_cast<LPCTSTR>(0x0041004200430044));
    CString text;
    list.GetText(0, text);
    EXPECT_LE(text.GetLength(), 8);
}

TEST(ListBox, data_of_items)
{
    CParentWindow parent;
    CNames list(parent);
    EXPECT_NE(LB_ERR, list.SetItemData(1, 0x123456789ULL));
    EXPECT_EQ(0x123456789ULL, list.GetItemData(1));
    int value = 0;
    list.SetItemDataPtr(2, &value);
    EXPECT_EQ(&value, list.GetItemDataPtr(2));
    EXPECT_EQ(static_cast<DWORD_PTR>(LB_ERR), list.GetItemData(99));
    EXPECT_EQ(LB_ERR, list.SetItemData(99, 0));
}

TEST(ListBox, one_selection)
{
    CParentWindow parent;
    CNames list(parent);
    EXPECT_EQ(LB_ERR, list.GetCurSel());
    EXPECT_EQ(3, list.SetCurSel(3));
    EXPECT_EQ(3, list.GetCurSel());
    EXPECT_EQ(LB_ERR, list.SetCurSel(99));
    EXPECT_EQ(LB_ERR, list.SetCurSel(-1));
    EXPECT_EQ(LB_ERR, list.GetCurSel());
}

TEST(ListBox, several_selections)
{
    CParentWindow parent;
    CNames list(parent, LBS_EXTENDEDSEL);
    list.SetSel(0);
    list.SetSel(2);
    EXPECT_EQ(2, list.GetSelCount());
    EXPECT_GT(list.GetSel(2), 0);
    EXPECT_EQ(0, list.GetSel(1));
    EXPECT_EQ(LB_ERR, list.GetSel(99));
    int items[4] = {};
    EXPECT_EQ(2, list.GetSelItems(4, items));
    EXPECT_EQ(0, items[0]);
    EXPECT_EQ(2, items[1]);
    EXPECT_EQ(0, list.GetSelItems(-1, items));
    EXPECT_EQ(0, list.GetSelItems(4, nullptr));
    list.SetSel(-1);
    EXPECT_EQ(4, list.GetSelCount());
    EXPECT_NE(LB_ERR, list.SelItemRange(FALSE, 1, 2));
    EXPECT_EQ(2, list.GetSelCount());
    EXPECT_NE(LB_ERR, list.SelItemRange(TRUE, 1, 2));
    EXPECT_EQ(4, list.GetSelCount());
    list.SetCaretIndex(2);
    EXPECT_EQ(2, list.GetCaretIndex());
    list.SetAnchorIndex(1);
    EXPECT_EQ(1, list.GetAnchorIndex());
}

TEST(ListBox, geometry)
{
    CParentWindow parent;
    CNames list(parent);
    CRect second;
    EXPECT_NE(LB_ERR, list.GetItemRect(1, &second));
    EXPECT_EQ(list.GetItemHeight(0), second.Height());
    EXPECT_EQ(list.GetItemHeight(0), second.top);
    EXPECT_EQ(LB_ERR, list.GetItemRect(0, nullptr));
    BOOL outside = TRUE;
    EXPECT_EQ(1U, list.ItemFromPoint(second.CenterPoint(), outside));
    EXPECT_FALSE(outside);
    list.ItemFromPoint(CPoint(5, 5000), outside);
    EXPECT_TRUE(outside);
    for (int i = 0; i < 50; ++i)
        list.AddString(L"more");
    EXPECT_NE(LB_ERR, list.SetTopIndex(10));
    EXPECT_EQ(10, list.GetTopIndex());
    list.SetHorizontalExtent(500);
    EXPECT_EQ(500, list.GetHorizontalExtent());
    EXPECT_TRUE(list.SetTabStops(20) || true);
}

TEST(ListBox, owner_drawn_asks_its_class)
{
    CParentWindow parent;
    CDrawnList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWVARIABLE | LBS_SORT, place, &parent, 5));
    list.AddString(reinterpret_cast<LPCTSTR>(30));
    list.AddString(reinterpret_cast<LPCTSTR>(10));
    list.AddString(reinterpret_cast<LPCTSTR>(20));
    list.UpdateWindow();
    EXPECT_EQ(10U, list.GetItemData(0));
    EXPECT_EQ(30U, list.GetItemData(2));
    EXPECT_EQ(21, list.GetItemHeight(0));
    EXPECT_GE(list.measured, 3);
    EXPECT_GE(list.compared, 2);
    EXPECT_GE(list.drawn, 3);
    list.ResetContent();
    EXPECT_GE(list.deleted, 3);
}

TEST(ListBox, keys_are_offered_to_its_class)
{
    CParentWindow parent;
    CKeyList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_WANTKEYBOARDINPUT, place, &parent, 5));
    for (int i = 0; i < 4; ++i)
        list.AddString(L"item");
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_F5, 0);
    EXPECT_EQ(static_cast<UINT>(VK_F5), list.key);
    EXPECT_EQ(2, list.GetCurSel());
}
