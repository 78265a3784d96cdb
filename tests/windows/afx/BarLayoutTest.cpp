// Where bars and the pane stand in a frame, and what happens to the layout when one of them ends in it.
#include "BarFixture.h"
#include "ids.h"
#include "support/RealInput.h"

namespace
{
/// A frame of 300 by 200 with a bar at each side and a pane; the bars came in this order.
struct FourBars
{
    CBarFrame frame;
    CStrip top, bottom, left, right;
    CChild pane;

    FourBars()
    {
        top.make(frame, CBRS_TOP, 20, AFX_IDW_TOOLBAR);
        bottom.make(frame, CBRS_BOTTOM, 30, AFX_IDW_STATUS_BAR);
        left.make(frame, CBRS_LEFT, 40, AFX_IDW_DIALOGBAR);
        right.make(frame, CBRS_RIGHT, 50, 0xE810);
        pane.make(frame, AFX_IDW_PANE_FIRST);
    }
};
} // namespace

TEST(BarLayout, each_bar_takes_its_strip_and_the_pane_gets_the_rest)
{
    FourBars bars;
    bars.frame.RecalcLayout();
    EXPECT_EQ(placeOf(bars.top), CRect(0, 0, 300, 20));
    EXPECT_EQ(placeOf(bars.bottom), CRect(0, 170, 300, 200));
    EXPECT_EQ(placeOf(bars.left), CRect(0, 20, 40, 170));
    EXPECT_EQ(placeOf(bars.right), CRect(250, 20, 300, 170));
    EXPECT_EQ(placeOf(bars.pane), CRect(40, 20, 250, 170));
}

TEST(BarLayout, a_frame_of_another_size_lays_out_by_itself)
{
    FourBars bars;
    bars.frame.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(placeOf(bars.bottom), CRect(0, 270, 400, 300));
    EXPECT_EQ(placeOf(bars.right), CRect(350, 20, 400, 270));
    EXPECT_EQ(placeOf(bars.pane), CRect(40, 20, 350, 270));
}

TEST(BarLayout, a_frame_without_room_gives_what_there_is)
{
    FourBars bars;
    bars.frame.SetWindowPos(nullptr, 0, 0, 30, 25, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(placeOf(bars.top), CRect(0, 0, 30, 20));
    EXPECT_EQ(placeOf(bars.bottom), CRect(0, 20, 30, 25)) << "5 are left of its 30";
    EXPECT_EQ(placeOf(bars.left).Size(), CSize(30, 0));
    EXPECT_EQ(placeOf(bars.right).Size(), CSize(0, 0));
}

TEST(BarLayout, hidden_unaligned_and_uncalled_bars_take_nothing)
{
    FourBars bars;
    bars.top.ShowWindow(SW_HIDE);
    bars.bottom.SetBarStyle(CBRS_BORDER_TOP);
    bars.frame.RepositionBars(AFX_IDW_TOOLBAR, 0xE80F, AFX_IDW_PANE_FIRST); // the bar at the right is not in it
    EXPECT_EQ(placeOf(bars.left), CRect(0, 0, 40, 200));
    EXPECT_EQ(placeOf(bars.pane), CRect(40, 0, 300, 200));
    EXPECT_TRUE(placeOf(bars.right).IsRectEmpty());
}

TEST(BarLayout, a_query_moves_nothing_and_answers_with_the_rest)
{
    FourBars bars;
    CRect rest;
    bars.frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &rest);
    EXPECT_EQ(rest, CRect(40, 20, 250, 170));
    EXPECT_TRUE(placeOf(bars.top).IsRectEmpty());
    EXPECT_EQ(placeOf(bars.pane), CRect(0, 0, 50, 20)) << "where it was made";
}

TEST(BarLayout, a_query_without_stretching_answers_with_the_size_of_the_bars)
{
    FourBars bars; // each is 100 long
    CRect size;
    const CRect within(0, 0, 500, 500);
    bars.frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &size, &within, FALSE);
    // Top and bottom: 100 by 50. The two that stand add 90 to the width, and are higher than the 50.
    EXPECT_EQ(size, CRect(0, 0, 190, 100));
}

TEST(BarLayout, a_rectangle_other_than_the_client_area_may_be_divided)
{
    FourBars bars;
    const CRect within(10, 10, 110, 110);
    bars.frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposDefault, nullptr, &within);
    EXPECT_EQ(placeOf(bars.top), CRect(10, 10, 110, 30));
    EXPECT_EQ(placeOf(bars.pane), CRect(50, 30, 60, 80));
}

TEST(BarLayout, the_border_of_the_frame_stays_free_around_the_pane)
{
    FourBars bars;
    bars.frame.setBorder(CRect(1, 2, 3, 4));
    bars.frame.RecalcLayout();
    EXPECT_EQ(placeOf(bars.pane), CRect(41, 22, 247, 166));
}

TEST(BarLayout, a_bar_with_an_object_is_asked_once_a_layout)
{
    FourBars bars;
    int asked = 0;
    bars.top.onMeasure = [&] { ++asked; };
    bars.frame.RecalcLayout();
    EXPECT_EQ(asked, 1);
    bars.top.onMeasure = [&]
    {
        ++asked;
        bars.frame.RecalcLayout(); // a layout in a layout is not begun
    };
    bars.frame.RecalcLayout();
    EXPECT_EQ(asked, 2);
}

TEST(BarLayout, showing_and_hiding_lays_out)
{
    FourBars bars;
    bars.frame.RecalcLayout();
    bars.frame.ShowControlBar(&bars.left, FALSE, FALSE);
    EXPECT_FALSE(bars.left.IsVisible());
    EXPECT_EQ(placeOf(bars.pane), CRect(0, 20, 250, 170));
    bars.frame.ShowControlBar(&bars.left, TRUE, FALSE);
    EXPECT_TRUE(bars.left.IsVisible());
    EXPECT_EQ(placeOf(bars.pane), CRect(40, 20, 250, 170));
}

TEST(BarLayout, delayed_showing_waits_for_the_idle_moment)
{
    FourBars bars;
    bars.frame.RecalcLayout();
    const int before = bars.frame.layouts;
    bars.frame.ShowControlBar(&bars.left, FALSE, TRUE);
    EXPECT_FALSE(bars.left.IsVisible()) << "it will not be";
    EXPECT_NE(bars.left.GetStyle() & WS_VISIBLE, 0U) << "but still is";
    EXPECT_EQ(bars.frame.layouts, before);
    bars.frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bars.frame.layouts, before + 1);
    EXPECT_EQ(bars.left.GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(placeOf(bars.pane), CRect(0, 20, 250, 170));
    bars.frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bars.frame.layouts, before + 1) << "once";
}

TEST(BarLayout, a_change_of_mind_before_the_idle_moment_changes_nothing)
{
    FourBars bars;
    bars.left.DelayShow(FALSE);
    bars.left.DelayShow(TRUE);
    EXPECT_TRUE(bars.left.IsVisible());
    bars.left.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_NE(bars.left.GetStyle() & WS_VISIBLE, 0U);
}

TEST(BarLayout, docking_needs_a_side_that_bar_and_frame_allow)
{
    const struct
    {
        DWORD frame, bar;
        UINT wanted;
        DWORD side; ///< of a bar that stood at the top
    } rows[] = {
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT},
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, 0, CBRS_ALIGN_TOP},
        {CBRS_ALIGN_ANY, CBRS_ORIENT_VERT, 0, CBRS_ALIGN_LEFT},
        {CBRS_ORIENT_HORZ, CBRS_ALIGN_BOTTOM, 0, CBRS_ALIGN_BOTTOM},
        {CBRS_ORIENT_HORZ, CBRS_ALIGN_ANY, AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_TOP}, // the frame does not allow it
        {CBRS_ALIGN_ANY, CBRS_ORIENT_HORZ, AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_TOP}, // the bar does not
        {CBRS_ALIGN_ANY, CBRS_ALIGN_ANY, 12, CBRS_ALIGN_TOP},                     // no such side
        {0, 0, 0, CBRS_ALIGN_TOP},
    };
    for (const auto& row : rows)
    {
        CBarFrame frame;
        CStrip bar;
        ASSERT_TRUE(bar.make(frame, CBRS_TOP, 20, AFX_IDW_TOOLBAR));
        frame.EnableDocking(row.frame);
        bar.EnableDocking(row.bar);
        frame.DockControlBar(&bar, row.wanted);
        EXPECT_EQ(bar.GetBarStyle() & CBRS_ALIGN_ANY, row.side) << row.frame << " " << row.bar << " " << row.wanted;
        EXPECT_EQ(bar.GetBarStyle() & CBRS_BORDER_ANY, static_cast<DWORD>(CBRS_BORDER_BOTTOM)) << "the rest stays";
    }
}

TEST(BarLayout, a_docked_bar_stands_at_its_side_at_once)
{
    FourBars bars;
    bars.frame.EnableDocking(CBRS_ALIGN_ANY);
    bars.top.EnableDocking(CBRS_ALIGN_ANY);
    bars.frame.DockControlBar(&bars.top, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(placeOf(bars.top), CRect(280, 0, 300, 200)) << "the first of the children takes its strip first";
    EXPECT_EQ(placeOf(bars.pane), CRect(40, 0, 230, 170));
}

TEST(BarLayout, a_pane_that_moves_takes_no_picture_of_a_bar_along)
{
    CBarFrame frame;
    CDialogBar bar;
    CWnd pane;
    ASSERT_TRUE(bar.Create(&frame, IDD_LISTBAR, CBRS_LEFT, 1));
    LPCTSTR const white = AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    ASSERT_TRUE(pane.Create(white, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &frame, AFX_IDW_PANE_FIRST));
    frame.EnableDocking(CBRS_ALIGN_ANY);
    bar.EnableDocking(CBRS_ALIGN_ANY);
    frame.RecalcLayout();
    frame.ShowWindow(SW_SHOW);
    frame.SetForegroundWindow();
    pumpFor(0);
    const CRect before = placeOf(pane);
    frame.DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
    pumpFor(0);
    const CRect after = placeOf(pane);
    ASSERT_EQ(after.Size(), before.Size());
    EXPECT_EQ(after.left, 0);
    const CClientDC dc(&pane);
    EXPECT_EQ(::GetPixel(dc.GetSafeHdc(), after.Width() - 3, 150), RGB(255, 255, 255));
    EXPECT_EQ(::GetPixel(dc.GetSafeHdc(), 3, 150), RGB(255, 255, 255));
}

TEST(BarLayout, a_bar_of_another_window_moves_in)
{
    FourBars bars;
    CBarFrame other;
    other.EnableDocking(CBRS_ALIGN_ANY);
    bars.top.EnableDocking(CBRS_ALIGN_ANY);
    other.DockControlBar(&bars.top, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(bars.top.GetParent(), &other);
    EXPECT_EQ(bars.top.GetDockingFrame(), &other);
    EXPECT_EQ(placeOf(bars.top), CRect(0, 0, 300, 20));
}

// ---- Ends in between

TEST(BarLayout, a_bar_that_ends_itself_while_it_is_measured_leaves_its_room)
{
    FourBars bars;
    bars.top.onMeasure = [&] { bars.top.DestroyWindow(); };
    bars.frame.RecalcLayout();
    EXPECT_EQ(bars.top.m_hWnd, nullptr);
    EXPECT_EQ(placeOf(bars.left), CRect(0, 0, 40, 170));
}

TEST(BarLayout, a_bar_that_deletes_itself_while_it_is_measured_is_not_touched_again)
{
    FourBars bars;
    bool deleted = false;
    auto* fifth = new CStrip;
    fifth->deleted = &deleted;
    fifth->m_bAutoDelete = TRUE;
    ASSERT_TRUE(fifth->make(bars.frame, CBRS_TOP, 10, 0xE811));
    fifth->onMeasure = [fifth] { fifth->DestroyWindow(); };
    bars.frame.RecalcLayout();
    EXPECT_TRUE(deleted);
    EXPECT_EQ(placeOf(bars.top), CRect(0, 0, 300, 20));
}

TEST(BarLayout, a_bar_or_the_pane_that_another_one_ends_is_passed_over)
{
    FourBars bars;
    bars.bottom.onMeasure = [&]
    {
        bars.right.DestroyWindow();
        bars.pane.DestroyWindow();
    };
    bars.frame.RecalcLayout();
    EXPECT_EQ(placeOf(bars.left), CRect(0, 20, 40, 170));
    EXPECT_EQ(bars.right.m_hWnd, nullptr);
    EXPECT_EQ(bars.pane.m_hWnd, nullptr);
}

TEST(BarLayout, a_frame_that_ends_while_it_lays_out_is_not_touched_again)
{
    FourBars bars;
    bars.bottom.onMeasure = [&] { bars.frame.DestroyWindow(); };
    bars.frame.RecalcLayout();
    EXPECT_EQ(bars.frame.m_hWnd, nullptr);
    EXPECT_EQ(bars.bottom.m_hWnd, nullptr);
    bars.frame.RecalcLayout(); // plainly nothing
    bars.frame.ShowControlBar(&bars.top, TRUE, FALSE);
    bars.frame.DockControlBar(&bars.top);
    bars.frame.ShowControlBar(nullptr, TRUE, FALSE);
    bars.frame.DockControlBar(nullptr);
    EXPECT_EQ(bars.frame.GetControlBar(AFX_IDW_TOOLBAR), nullptr);
    EXPECT_FALSE(bars.frame.OnBarCheck(AFX_IDW_TOOLBAR));
}

TEST(BarLayout, hostile_layout_messages_are_taken_calmly)
{
    FourBars bars;
    EXPECT_EQ(bars.top.SendMessage(WM_SIZEPARENT, 0, 0), 0);
    AFX_SIZEPARENTPARAMS inside = {nullptr, {50, 50, 10, 10}, {0, 0}, TRUE}; // a rectangle turned inside out
    EXPECT_EQ(bars.top.SendMessage(WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&inside)), 0);
    EXPECT_EQ(CRect(inside.rect), CRect(50, 50, 10, 10));
    AfxRepositionWindow(&inside, bars.top.m_hWnd, nullptr);
    EXPECT_TRUE(placeOf(bars.top).IsRectEmpty());
    CWnd none;
    none.RepositionBars(0, 0xFFFF, 0);
}
