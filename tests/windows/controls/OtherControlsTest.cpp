// Tab controls, progress bars, spin buttons, sliders and status bars.
#include "Support.h"
#include "resource.h"

namespace
{
const CRect place(10, 10, 310, 150);
}

TEST(Tab, tabs_are_inserted_selected_and_deleted)
{
    CParentWindow parent;
    CTabCtrl tab;
    ASSERT_TRUE(tab.Create(WS_CHILD | WS_VISIBLE, place, &parent, 5));
    EXPECT_EQ(0, tab.InsertItem(0, L"first"));
    EXPECT_EQ(1, tab.InsertItem(1, L"second", 0));
    EXPECT_EQ(2, tab.InsertItem(TCIF_TEXT | TCIF_PARAM, 2, L"third", 0, 33));
    EXPECT_EQ(3, tab.GetItemCount());
    EXPECT_EQ(0, tab.GetCurSel());
    EXPECT_EQ(0, tab.SetCurSel(2));
    EXPECT_EQ(2, tab.GetCurSel());
    EXPECT_EQ(-1, tab.SetCurSel(99));
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tab.GetItem(2, &item));
    EXPECT_EQ(33, item.lParam);
    EXPECT_FALSE(tab.GetItem(99, &item));
    EXPECT_FALSE(tab.GetItem(0, nullptr));
    EXPECT_TRUE(tab.DeleteItem(0));
    EXPECT_TRUE(tab.DeleteAllItems());
    EXPECT_EQ(0, tab.GetItemCount());
    EXPECT_EQ(-1, tab.InsertItem(0, static_cast<TCITEM*>(nullptr)));
}

TEST(Tab, rectangles_and_hits)
{
    CParentWindow parent;
    CTabCtrl tab;
    ASSERT_TRUE(tab.Create(WS_CHILD | WS_VISIBLE, place, &parent, 5));
    tab.InsertItem(0, L"first");
    tab.InsertItem(1, L"second");
    CRect rect;
    EXPECT_TRUE(tab.GetItemRect(1, &rect));
    TCHITTESTINFO hit = {rect.CenterPoint(), 0};
    EXPECT_EQ(1, tab.HitTest(&hit));
    EXPECT_EQ(-1, tab.HitTest(nullptr));
    CRect page(0, 0, 300, 140);
    tab.AdjustRect(FALSE, &page);
    EXPECT_GE(page.top, rect.bottom);
    EXPECT_EQ(1, tab.GetRowCount());
    tab.AdjustRect(FALSE, nullptr);
    EXPECT_TRUE(tab.HighlightItem(1));
    EXPECT_EQ(static_cast<DWORD>(TCIS_HIGHLIGHTED), tab.GetItemState(1, TCIS_HIGHLIGHTED));
}

TEST(Progress, ranges_steps_positions)
{
    CParentWindow parent;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, place, &parent, 5));
    bar.SetRange(10, 200);
    int low = 0;
    int high = 0;
    bar.GetRange(low, high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(200, high);
    bar.SetRange32(0, 100000);
    bar.GetRange(low, high);
    EXPECT_EQ(100000, high);
    bar.SetPos(50);
    EXPECT_EQ(50, bar.OffsetPos(20));
    EXPECT_EQ(70, bar.GetPos());
    EXPECT_EQ(10, bar.SetStep(5));
    EXPECT_EQ(70, bar.StepIt());
    EXPECT_EQ(75, bar.GetPos());
}

TEST(Spin, ranges_positions_buddies)
{
    CParentWindow parent;
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 20), &parent, 6));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, CRect(60, 0, 80, 20), &parent, 5));
    EXPECT_EQ(nullptr, spin.SetBuddy(&edit));
    EXPECT_EQ(&edit, spin.GetBuddy());
    spin.SetRange(-5, 20);
    int low = 0;
    int high = 0;
    spin.GetRange(low, high);
    EXPECT_EQ(-5, low);
    EXPECT_EQ(20, high);
    spin.SetPos(7);
    EXPECT_EQ(7, LOWORD(static_cast<DWORD>(spin.GetPos())));
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(L"7", plain(text));
    spin.SetRange32(-100000, 100000);
    spin.GetRange32(low, high);
    EXPECT_EQ(-100000, low);
    spin.SetPos32(70000);
    EXPECT_EQ(70000, spin.GetPos32());
    spin.SetBase(16);
    EXPECT_EQ(16U, spin.GetBase());
    UDACCEL acceleration = {0, 3};
    EXPECT_TRUE(spin.SetAccel(1, &acceleration));
    EXPECT_FALSE(spin.SetAccel(1, nullptr));
}

TEST(Slider, ranges_tics_selection)
{
    CParentWindow parent;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_CHILD | WS_VISIBLE | TBS_AUTOTICKS | TBS_ENABLESELRANGE, place, &parent, 5));
    slider.SetRange(0, 50);
    int low = -1;
    int high = -1;
    slider.GetRange(low, high);
    EXPECT_EQ(0, low);
    EXPECT_EQ(50, high);
    slider.SetPos(20);
    EXPECT_EQ(20, slider.GetPos());
    slider.SetPos(99);
    EXPECT_EQ(50, slider.GetPos());
    slider.SetLineSize(2);
    EXPECT_EQ(2, slider.GetLineSize());
    slider.SetPageSize(8);
    EXPECT_EQ(8, slider.GetPageSize());
    slider.SetSelection(5, 9);
    slider.GetSelection(low, high);
    EXPECT_EQ(5, low);
    EXPECT_EQ(9, high);
    slider.SetTicFreq(10);
    EXPECT_EQ(6U, slider.GetNumTics());
    CRect thumb;
    slider.GetThumbRect(&thumb);
    EXPECT_FALSE(thumb.IsRectEmpty());
}

TEST(StatusBar, parts_and_texts)
{
    CParentWindow parent;
    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, 5));
    int ends[3] = {100, 200, -1};
    EXPECT_TRUE(bar.SetParts(3, ends));
    int read[3] = {};
    EXPECT_EQ(3, bar.GetParts(3, read));
    EXPECT_EQ(200, read[1]);
    EXPECT_TRUE(bar.SetText(L"ready", 1, 0));
    int kind = -1;
    EXPECT_EQ(L"ready", plain(bar.GetText(1, &kind)));
    EXPECT_EQ(0, kind);
    EXPECT_TRUE(bar.GetText(99).IsEmpty());
    EXPECT_EQ(5, bar.GetTextLength(1));
    CRect rect;
    EXPECT_TRUE(bar.GetRect(1, &rect));
    EXPECT_GT(rect.Width(), 90);
    EXPECT_FALSE(bar.GetRect(99, &rect));
    int horizontal = -1;
    int vertical = -1;
    int between = -1;
    EXPECT_TRUE(bar.GetBorders(horizontal, vertical, between));
    EXPECT_GE(vertical, 0);
    bar.SetSimple();
    EXPECT_TRUE(bar.IsSimple());
}
