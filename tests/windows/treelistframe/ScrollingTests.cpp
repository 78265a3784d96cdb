// Scrolling by messages and by the mouse. A frame of 300 by 200 with columns of 600: positions 0 to 300.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
struct ScrollRow
{
    const char* what;
    UINT code;
    UINT pos;
    int from;
    int expected;
};

OpenFrame& wide(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(1);
    return frame;
}

void scroll(OpenFrame& frame, UINT code, UINT pos = 0)
{
    frame.SendMessage(WM_HSCROLL, MAKEWPARAM(code, pos), reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
}

/// Brings the frame to a position.
void go(OpenFrame& frame, int position)
{
    scroll(frame, SB_LEFT);
    frame.bar().SetScrollPos(position);
    scroll(frame, SB_ENDSCROLL);
}
} // namespace

TEST(Scrolling, each_code_sets_bar_offset_and_header)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    const ScrollRow rows[] = {
        {"line left", SB_LINELEFT, 0, 100, 94},
        {"line left to the end", SB_LINELEFT, 0, 6, 0},
        {"line right", SB_LINERIGHT, 0, 100, 106},
        {"line right to the end", SB_LINERIGHT, 0, 297, 300},
        {"page left", SB_PAGELEFT, 0, 300, 0},
        {"page right", SB_PAGERIGHT, 0, 0, 300},
        {"left", SB_LEFT, 0, 100, 0},
        {"right", SB_RIGHT, 0, 100, 300},
        {"thumb to 0", SB_THUMBTRACK, 0, 100, 0},
        {"thumb to an odd place", SB_THUMBTRACK, 101, 0, 102},
        {"thumb to a multiple", SB_THUMBPOSITION, 102, 0, 108},
        {"thumb beyond the end", SB_THUMBPOSITION, 299, 0, 300},
        {"end of scrolling", SB_ENDSCROLL, 55, 100, 100},
    };
    for (const ScrollRow& row : rows)
    {
        go(frame, row.from);
        scroll(frame, row.code, row.pos);
        EXPECT_EQ(row.expected, frame.bar().GetScrollPos()) << row.what;
        EXPECT_EQ(-row.expected, frame.offset()) << row.what;
        EXPECT_EQ(-row.expected, frame.placeOf(frame.header()).left) << row.what;
    }
}

TEST(Scrolling, stretches_the_header_in_steps_of_the_tree)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    scroll(frame, SB_LINERIGHT);
    EXPECT_TRUE(frame.placeOf(frame.header()) == CRect(-6, 0, 894, frame.headerHeight())); // 600 / 300 + 1 steps of 300
    frame.addRows(40);
    scroll(frame, SB_LINERIGHT);
    const int step = frame.treeClient().cx;
    EXPECT_EQ(step * 3, frame.placeOf(frame.header()).Width()); // 283 * 3
}

TEST(Scrolling, of_another_bar_is_not_the_frames)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    CScrollBar other;
    ASSERT_TRUE(other.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 0, 50, 17), &frame, 99));
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(other.m_hWnd));
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, 0);
    EXPECT_EQ(0, frame.bar().GetScrollPos());
    EXPECT_EQ(0, frame.offset());
}

TEST(Scrolling, an_open_editor_goes_along)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    CEdit& edit = frame.openEditor(CRect(120, 10, 200, 28));
    go(frame, 0);
    scroll(frame, SB_THUMBPOSITION, 47);
    EXPECT_EQ(&edit, frame.edit());
    CRect place;
    edit.GetWindowRect(&place);
    frame.m_tree.ScreenToClient(&place);
    EXPECT_TRUE(place == CRect(72, 10, 152, 28)); // 48 to the left
    EXPECT_TRUE(edit.IsWindowVisible());
    EXPECT_FALSE(edit.GetUpdateRect(nullptr)) << "it is painted at once";
    scroll(frame, SB_LEFT);
    edit.GetWindowRect(&place);
    frame.m_tree.ScreenToClient(&place);
    EXPECT_TRUE(place == CRect(120, 10, 200, 28));
}

TEST(Scrolling, moves_the_picture_of_the_tree)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    frame.UpdateWindow();
    frame.m_tree.UpdateWindow();
    frame.m_tree.ValidateRect(nullptr);
    scroll(frame, SB_LINERIGHT);
    CRect stale;
    ASSERT_TRUE(frame.m_tree.GetUpdateRect(&stale)) << "what came in from the right is to be painted";
    EXPECT_EQ(frame.treeClient().cx, stale.right);
    EXPECT_EQ(frame.treeClient().cx - 6, stale.left);
}

TEST(Scrolling, by_a_click_on_the_right_arrow_goes_a_line)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    CRect bar;
    frame.bar().GetWindowRect(&bar);
    click({bar.right - 5, bar.CenterPoint().y});
    EXPECT_TRUE(waitFor([&] { return frame.bar().GetScrollPos() == 6; }));
    EXPECT_EQ(-6, frame.offset());
}

TEST(Scrolling, by_a_click_beside_the_thumb_goes_a_page)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(10, 200);
    frame.addRows(1);
    CRect bar;
    frame.bar().GetWindowRect(&bar);
    click({bar.right - 40, bar.CenterPoint().y});
    EXPECT_TRUE(waitFor([&] { return frame.bar().GetScrollPos() == 300; }));
    EXPECT_EQ(-300, frame.placeOf(frame.header()).left);
}

TEST(Scrolling, by_dragging_the_thumb_lands_on_a_multiple_of_a_line)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(10, 200);
    frame.addRows(1);
    CRect bar;
    frame.bar().GetWindowRect(&bar);
    const int y = bar.CenterPoint().y;
    const int arrow = ::GetSystemMetrics(SM_CXHSCROLL);
    dragThumb({bar.left + arrow + 4, y}, {bar.left + arrow + 64, y});
    ASSERT_TRUE(waitFor([&] { return frame.bar().GetScrollPos() > 0; }));
    EXPECT_EQ(0, frame.bar().GetScrollPos() % 6);
    EXPECT_EQ(-frame.bar().GetScrollPos(), frame.offset());
}

TEST(Scrolling, by_dragging_the_thumb_goes_beyond_what_the_message_can_tell)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(100, 1000);
    frame.addRows(1);
    ASSERT_EQ(99700, frame.upperEnd());
    CRect bar;
    frame.bar().GetWindowRect(&bar);
    const int y = bar.CenterPoint().y;
    const int arrow = ::GetSystemMetrics(SM_CXHSCROLL);
    dragThumb({bar.left + arrow + 4, y}, {bar.right - arrow, y});
    ASSERT_TRUE(waitFor([&] { return frame.bar().GetScrollPos() > 0; }));
    EXPECT_EQ(99700, frame.bar().GetScrollPos());
    EXPECT_EQ(-99700, frame.offset());
}

TEST(Scrolling, to_a_thumb_that_a_message_alone_tells_takes_its_16_bits)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(100, 1000);
    frame.addRows(1);
    scroll(frame, SB_THUMBTRACK, 65535);
    EXPECT_EQ(65538, frame.bar().GetScrollPos()); // the next multiple of 6
    scroll(frame, SB_THUMBPOSITION, 0);
    EXPECT_EQ(0, frame.bar().GetScrollPos());
}
