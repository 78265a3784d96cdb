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

TEST(ListBox, a_list_without_texts_reads_its_values_safely)
{
    CParentWindow parent;
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED, place, &parent, 5));
    list.AddString(reinterpret_cast<LPCTSTR>(0x0041004200430044));
    CString text;
    list.GetText(0, text);
    EXPECT_LE(text.GetLength(), 8);
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
}

TEST(ListBox, tab_stops_are_for_a_list_that_uses_them)
{
    CParentWindow parent;
    CNames tabbed(parent, LBS_USETABSTOPS);
    CNames other(parent);
    EXPECT_TRUE(tabbed.SetTabStops(20));
    EXPECT_FALSE(other.SetTabStops(20));
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
