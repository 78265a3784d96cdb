// Rows that go in one behind the other, while the host changes what the bars depend on between two of them: each insertion has
// the whole effect of a recalculation. A frame of 300 by 200 pixels.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
constexpr UINT sizeOnly = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;

/// A frame in which the latest insertions had nothing to set any more.
OpenFrame& filled(FrameHost& host, int columns)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(columns, 200);
    frame.addRows(4);
    return frame;
}

/// What a host may do by itself, and what the next insertion makes of it.
struct Meddling
{
    const char* what;
    int columns; ///< of 200 pixels: one needs no bar, three do
    void (*meddle)(OpenFrame&);
};

/// All that a recalculation sets.
struct Look
{
    bool barShown;
    int upperEnd, position, offset;
    CRect header, tree;
    CSize bar;
    bool operator==(const Look& other) const
    {
        return barShown == other.barShown && upperEnd == other.upperEnd && position == other.position &&
               offset == other.offset && header == other.header && tree == other.tree && bar == other.bar;
    }
};

Look lookOf(OpenFrame& frame)
{
    return {frame.barShown(),
            frame.upperEnd(),
            frame.bar().GetScrollPos(),
            frame.offset(),
            frame.placeOf(frame.header()),
            frame.placeOf(frame.m_tree),
            frame.placeOf(frame.bar()).Size()};
}

const Meddling meddlings[] = {
    {"the range of the bar", 3, [](OpenFrame& frame) { frame.bar().SetScrollRange(0, 5); }},
    {"the range of the bar that is hidden", 1, [](OpenFrame& frame) { frame.bar().SetScrollRange(0, 5); }},
    {"the position of the bar", 3, [](OpenFrame& frame) { frame.bar().SetScrollPos(33); }},
    {"the bar is disabled", 3, [](OpenFrame& frame) { frame.bar().EnableWindow(FALSE); }},
    {"the bar is hidden", 3, [](OpenFrame& frame) { frame.bar().ShowWindow(SW_HIDE); }},
    {"the hidden bar is shown", 1, [](OpenFrame& frame) { frame.bar().ShowWindow(SW_SHOWNA); }},
    {"the hidden bar is enabled", 1, [](OpenFrame& frame) { frame.bar().EnableWindow(TRUE); }},
    {"the width of the bar", 3,
     [](OpenFrame& frame) { frame.bar().SetWindowPos(nullptr, 0, 0, 20, frame.barHeight(), sizeOnly); }},
    {"the size of the tree", 1, [](OpenFrame& frame) { frame.m_tree.SetWindowPos(nullptr, 0, 0, 300, 100, sizeOnly); }},
    {"the size of the tree above a bar", 3,
     [](OpenFrame& frame) { frame.m_tree.SetWindowPos(nullptr, 0, 0, 300, 100, sizeOnly); }},
    {"the size of the tree, without a word to it", 1,
     [](OpenFrame& frame) { frame.m_tree.SetWindowPos(nullptr, 0, 0, 300, 100, sizeOnly | SWP_NOSENDCHANGING); }},
    {"the width of the header", 1,
     [](OpenFrame& frame) { frame.header().SetWindowPos(nullptr, 0, 0, 20, frame.headerHeight(), sizeOnly); }},
    {"the header is hidden", 1, [](OpenFrame& frame) { frame.header().ShowWindow(SW_HIDE); }},
    {"the scroll style of the tree", 3, [](OpenFrame& frame) { frame.m_tree.ModifyStyle(WS_VSCROLL, 0); }},
    {"the font of the header", 1,
     [](OpenFrame& frame)
     { frame.header().SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(SYSTEM_FONT)), 1); }},
    {"the height of the rows", 1, [](OpenFrame& frame) { frame.m_tree.SetItemHeight(12); }},
};
} // namespace

TEST(RepeatedInsertion, finds_out_what_the_host_changed_meanwhile)
{
    for (const Meddling& one : meddlings)
    {
        SCOPED_TRACE(one.what);
        FrameHost host;
        OpenFrame& frame = filled(host, one.columns);
        const Look settled = lookOf(frame);
        one.meddle(frame);
        frame.addRows(1);
        EXPECT_TRUE(settled == lookOf(frame));
    }
}

TEST(RepeatedInsertion, follows_a_header_that_the_host_moved)
{
    FrameHost host;
    OpenFrame& frame = filled(host, 3);
    frame.header().SetWindowPos(nullptr, -70, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    frame.addRows(1);
    EXPECT_EQ(-70, frame.offset());
    EXPECT_EQ(70, frame.bar().GetScrollPos());
}

TEST(RepeatedInsertion, follows_the_frame_and_the_columns)
{
    FrameHost host;
    OpenFrame& frame = filled(host, 3);
    frame.MoveWindow(10, 10, 260, 160);
    frame.addRows(1);
    EXPECT_EQ(600 - 260, frame.upperEnd());
    frame.m_tree.InsertColumn(3, L"more", 0, 50, 0);
    frame.addRows(1);
    EXPECT_EQ(650 - 260, frame.upperEnd());
}

TEST(RepeatedInsertion, follows_a_vertical_bar_that_rows_bring_and_take_along)
{
    FrameHost host;
    OpenFrame& frame = filled(host, 3);
    const int vertical = ::GetSystemMetrics(SM_CXVSCROLL);
    frame.addRows(40);
    EXPECT_EQ(300 + vertical, frame.upperEnd());
    EXPECT_EQ(300 - vertical, frame.placeOf(frame.bar()).Width());
    while (frame.m_tree.GetCount() > 2)
        frame.m_tree.DeleteItem(frame.m_tree.GetRootItem());
    frame.addRows(2);
    EXPECT_EQ(300, frame.upperEnd());
    EXPECT_EQ(300, frame.placeOf(frame.bar()).Width());
}

TEST(RepeatedInsertion, follows_a_vertical_bar_without_a_range)
{
    FrameHost host;
    OpenFrame& frame = filled(host, 3);
    const int vertical = ::GetSystemMetrics(SM_CXVSCROLL);
    frame.addRows(40);
    ASSERT_EQ(300 - vertical, frame.placeOf(frame.bar()).Width());
    frame.m_tree.SetRedraw(FALSE); // the tree does not set its bar meanwhile
    SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_DISABLENOSCROLL, 0, 0, 0, 0, 0};
    frame.m_tree.SetScrollInfo(SB_VERT, &info, FALSE);
    frame.addRows(1);
    EXPECT_FALSE(frame.VerticalScrollVisible());
    EXPECT_EQ(300, frame.placeOf(frame.bar()).Width());
    frame.m_tree.SetRedraw(TRUE);
}

TEST(RepeatedInsertion, paints_a_tree_without_a_bar_anew_each_time)
{
    FrameHost host;
    OpenFrame& frame = filled(host, 1);
    host.ShowWindow(SW_SHOW);
    for (int round = 0; round < 3; ++round)
    {
        SCOPED_TRACE(round);
        frame.m_tree.UpdateWindow();
        ASSERT_FALSE(frame.m_tree.GetUpdateRect(nullptr));
        frame.addRows(1);
        CRect toPaint;
        CRect client;
        frame.m_tree.GetUpdateRect(&toPaint);
        frame.m_tree.GetClientRect(&client);
        EXPECT_TRUE(toPaint == client);
    }
}

TEST(RepeatedInsertion, cancels_each_edit)
{
    FrameHost host(IDD_FRAME_HOST, true);
    for (const int columns : {1, 3})
    {
        SCOPED_TRACE(columns);
        OpenFrame& frame = filled(host, columns);
        for (int round = 0; round < 3; ++round)
        {
            frame.openEditor(CRect(0, 0, 50, 15));
            frame.addRows(1);
            EXPECT_EQ(nullptr, frame.edit());
        }
    }
}
