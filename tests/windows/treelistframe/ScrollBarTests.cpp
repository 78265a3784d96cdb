// The horizontal bar as columns, rows and sizes change. A frame of 300 by 200 pixels.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
int verticalBar()
{
    return ::GetSystemMetrics(SM_CXVSCROLL);
}

/// Adds nodes past the frame's back, so that nothing is recalculated.
void addNodesUntilVerticalBar(OpenFrame& frame)
{
    TVINSERTSTRUCTW node = {};
    node.hParent = TVI_ROOT;
    node.hInsertAfter = TVI_LAST;
    node.item.mask = TVIF_PARAM;
    for (int i = 0; i < 100 && !frame.VerticalScrollVisible(); ++i)
        frame.m_tree.SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&node));
}

void removeNodes(OpenFrame& frame, int left)
{
    while (frame.m_tree.GetCount() > static_cast<UINT>(left))
        frame.m_tree.SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(frame.m_tree.GetRootItem()));
}
} // namespace

TEST(HorizontalBar, an_empty_frame_has_none)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    EXPECT_TRUE(frame.barHidden());
    EXPECT_FALSE(frame.HorizontalScrollVisible());
    EXPECT_FALSE(frame.VerticalScrollVisible());
    EXPECT_EQ(CSize(300, 200 - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(HorizontalBar, columns_of_150_in_a_frame_of_200_need_none)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    frame.MoveWindow(10, 10, 200, 100);
    frame.addColumns(1, 150);
    frame.addRows(1);
    EXPECT_TRUE(frame.barHidden());
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(0, 0, 200, frame.headerHeight()));
    EXPECT_EQ(CSize(200, 100 - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(HorizontalBar, columns_of_exactly_200_in_a_frame_of_200_stretch_the_header_to_400)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    frame.MoveWindow(10, 10, 200, 100);
    frame.addColumns(2, 100);
    frame.addRows(1);
    EXPECT_TRUE(frame.barHidden());
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(0, 0, 400, frame.headerHeight()));
}

TEST(HorizontalBar, wide_columns_show_it_under_the_tree)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    EXPECT_TRUE(frame.barShown());
    EXPECT_TRUE(frame.HorizontalScrollVisible());
    EXPECT_EQ(300, frame.upperEnd()); // 600 - 300
    EXPECT_EQ(0, frame.bar().GetScrollPos());
    EXPECT_EQ(0, frame.offset());
    EXPECT_EQ(300, frame.placeOf(frame.bar()).Width());
    EXPECT_EQ(CSize(300, 200 - frame.barHeight() - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(HorizontalBar, beside_a_vertical_bar_it_is_shorter_and_reaches_farther)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(40);
    EXPECT_TRUE(frame.VerticalScrollVisible());
    EXPECT_EQ(300 - verticalBar(), frame.treeClient().cx);
    EXPECT_EQ(300 - verticalBar(), frame.placeOf(frame.bar()).Width());
    EXPECT_EQ(300 + verticalBar(), frame.upperEnd());
}

TEST(HorizontalBar, a_recalculation_takes_the_offset_from_the_header)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.header().SetWindowPos(nullptr, -70, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    frame.ResetScrollBar();
    EXPECT_EQ(-70, frame.offset());
    EXPECT_EQ(70, frame.bar().GetScrollPos());
}

TEST(HorizontalBar, a_recalculation_that_needs_none_goes_back_to_the_left)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    EXPECT_EQ(-300, frame.offset());
    frame.setColumnWidth(2, 0);
    frame.setColumnWidth(1, 50);
    EXPECT_TRUE(frame.barHidden());
    EXPECT_EQ(0, frame.upperEnd());
    EXPECT_EQ(0, frame.offset());
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(0, 0, 300, frame.headerHeight()));
    frame.UpdateWindow();
    frame.m_tree.ValidateRect(nullptr);
    frame.ResetScrollBar();
    EXPECT_TRUE(frame.m_tree.GetUpdateRect(nullptr)) << "the tree is painted anew";
}

TEST(VerticalBar, that_came_lengthens_the_range)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    addNodesUntilVerticalBar(frame);
    EXPECT_EQ(300, frame.upperEnd()) << "nothing was recalculated yet";
    frame.m_tree.ResetVertScrollBar();
    EXPECT_EQ(300 + verticalBar(), frame.upperEnd());
    EXPECT_EQ(300 - verticalBar(), frame.placeOf(frame.bar()).Width());
    frame.m_tree.ResetVertScrollBar();
    EXPECT_EQ(300 + verticalBar(), frame.upperEnd()) << "once only";
}

TEST(VerticalBar, that_went_shortens_the_range)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(40);
    removeNodes(frame, 1);
    EXPECT_EQ(300 + verticalBar(), frame.upperEnd()) << "nothing was recalculated yet";
    frame.m_tree.ResetVertScrollBar();
    EXPECT_EQ(300, frame.upperEnd());
    EXPECT_EQ(300, frame.placeOf(frame.bar()).Width());
}

TEST(VerticalBar, that_went_takes_the_horizontal_one_along_when_all_fits_then)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 290);
    frame.addRows(40);
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    ASSERT_EQ(290 - (300 - verticalBar()), frame.upperEnd());
    ASSERT_EQ(-frame.upperEnd(), frame.offset());
    removeNodes(frame, 1);
    frame.m_tree.ResetVertScrollBar();
    EXPECT_TRUE(frame.barHidden());
    EXPECT_EQ(0, frame.upperEnd());
    EXPECT_EQ(0, frame.offset());
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(0, 0, 300, frame.headerHeight()));
    EXPECT_EQ(CSize(300, 200 - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(VerticalBar, over_the_last_column_brings_the_horizontal_one)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 290);
    frame.addRows(1);
    EXPECT_TRUE(frame.barHidden());
    addNodesUntilVerticalBar(frame);
    frame.m_tree.ResetVertScrollBar();
    EXPECT_TRUE(frame.barShown());
    EXPECT_EQ(290 - (300 - verticalBar()), frame.upperEnd());
    EXPECT_EQ(300 - verticalBar(), frame.placeOf(frame.bar()).Width());
    EXPECT_EQ(CSize(300, 200 - frame.barHeight() - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(VerticalBar, a_tree_without_its_frame_is_left_alone)
{
    FrameHost host;
    CKxTreeListViewCtrl loose;
    loose.ResetVertScrollBar();
    ASSERT_TRUE(loose.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 60), host.frame.get(), 99));
    loose.ResetVertScrollBar();
    CRect place;
    loose.GetWindowRect(&place);
    EXPECT_EQ(CSize(80, 60), place.Size());
}

TEST(Resizing, moves_the_bar_to_the_lower_end)
{
    FrameHost host;
    OpenFrame& frame = *host.frame;
    frame.addColumns(3, 200);
    frame.MoveWindow(10, 10, 250, 150);
    const CRect bar = frame.placeOf(frame.bar());
    EXPECT_EQ(CPoint(0, 150 - frame.barHeight()), bar.TopLeft());
    EXPECT_EQ(250, bar.Width());
    EXPECT_EQ(350, frame.upperEnd());
    EXPECT_EQ(250, frame.placeOf(frame.header()).Width());
    EXPECT_EQ(CSize(250, 150 - frame.barHeight() - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(Resizing, leaves_room_beside_the_bar_for_a_vertical_one)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(40);
    frame.MoveWindow(10, 10, 250, 150);
    EXPECT_EQ(250 - verticalBar(), frame.placeOf(frame.bar()).Width());
    EXPECT_EQ(600 - (250 - verticalBar()), frame.upperEnd());
}

TEST(Resizing, to_a_frame_that_shows_all_hides_the_bar_and_leaves_the_offset)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 200);
    frame.addRows(1);
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    ASSERT_EQ(-100, frame.offset());
    frame.MoveWindow(10, 10, 450, 200);
    EXPECT_TRUE(frame.barHidden());
    EXPECT_EQ(0, frame.upperEnd());
    EXPECT_EQ(-100, frame.offset()) << "kept on purpose, until the next recalculation";
    EXPECT_EQ(-100, frame.placeOf(frame.header()).left);
    frame.ResetScrollBar();
    EXPECT_EQ(0, frame.offset());
}

TEST(Resizing, back_and_forth_ends_where_it_began)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 100);
    frame.addRows(3);
    const CRect tree = frame.placeOf(frame.m_tree);
    for (const int width : {100, 299, 300, 301, 1000, 17, 300})
        frame.MoveWindow(10, 10, width, 200);
    EXPECT_TRUE(frame.placeOf(frame.m_tree) == tree);
    EXPECT_TRUE(frame.barHidden());
}

TEST(Moving, places_the_children_and_leaves_the_range)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    frame.bar().SetScrollRange(0, 55);
    frame.header().SetWindowPos(nullptr, 0, 0, 20, 20, SWP_NOMOVE | SWP_NOZORDER);
    const int headerHeight = frame.headerHeight();
    frame.bar().SetWindowPos(nullptr, 33, 33, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    frame.SetWindowPos(nullptr, 12, 14, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(55, frame.upperEnd());
    EXPECT_EQ(CSize(300, headerHeight), frame.placeOf(frame.header()).Size());
    EXPECT_TRUE(frame.placeOf(frame.bar()) == CRect(0, 200 - frame.barHeight(), 300, 200));
    EXPECT_EQ(CSize(300, 200 - frame.barHeight() - headerHeight), frame.placeOf(frame.m_tree).Size());
}

TEST(Editing, is_cancelled_by_every_recalculation)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 100);
    frame.addRows(1);
    frame.openEditor(CRect(0, 0, 50, 15));
    frame.ResetScrollBar();
    EXPECT_EQ(nullptr, frame.edit());
    frame.openEditor(CRect(0, 0, 50, 15)).SetWindowText(L"typed");
    frame.addRows(1);
    EXPECT_EQ(nullptr, frame.edit()) << "an insertion recalculates";
    EXPECT_TRUE(frame.m_tree.GetItemText(frame.m_tree.GetRootItem(), 0) == L"row 000") << "nothing is written";
    EXPECT_EQ(0, host.count(WM_KX_TREELIST_EDIT_BEFORE));
}
