// Sizes and numbers that nobody means, and hosts that end the frame while it is at work.
#include <gtest/gtest.h>
#include <random>
#include "FrameHost.h"

namespace
{
OpenFrame& wide(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(3, 200);
    frame.addRows(5);
    return frame;
}

void scroll(OpenFrame& frame, UINT code, UINT pos)
{
    frame.SendMessage(WM_HSCROLL, MAKEWPARAM(code, pos), reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
}

/// Deletes the frame when the host hears that.
void deleteOn(FrameHost& host, UINT message, UINT code = 0)
{
    host.onHear = [&host, message, code](const HeardByHost& one)
    {
        if (one.message == message && one.code == code)
            host.frame.reset();
    };
}

/// A frame whose derived class deletes it in a click.
class MortalFrame : public OpenFrame
{
public:
    std::function<void()> onBefore, onAfter;
    void OnTreeListLeftClickBefore(UINT, CPoint) override
    {
        if (onBefore)
            onBefore();
    }
    void OnTreeListLeftClickAfter(UINT, CPoint) override
    {
        if (onAfter)
            onAfter();
    }
};

/// A point on the first row, in screen pixels.
CPoint onFirstRow(OpenFrame& frame)
{
    CRect row;
    frame.m_tree.GetItemRect(frame.m_tree.GetRootItem(), &row, TRUE);
    CPoint point = row.CenterPoint();
    frame.m_tree.ClientToScreen(&point);
    return point;
}
} // namespace

TEST(HostileSizes, any_size_is_taken)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    for (const CSize size : {CSize(0, 0), CSize(-5, -5), CSize(1, 1), CSize(32767, 32767), CSize(INT_MAX, INT_MAX),
                             CSize(INT_MIN, INT_MIN), CSize(300, 0), CSize(0, 200)})
    {
        frame.MoveWindow(10, 10, size.cx, size.cy);
        frame.ResetScrollBar();
        scroll(frame, SB_RIGHT, 0);
        frame.m_tree.ResetVertScrollBar();
        EXPECT_EQ(-frame.bar().GetScrollPos(), frame.offset()) << size.cx;
    }
    frame.MoveWindow(10, 10, 300, 200);
    frame.ResetScrollBar();
    EXPECT_EQ(300, frame.upperEnd());
    EXPECT_EQ(CSize(300, 200 - frame.barHeight() - frame.headerHeight()), frame.placeOf(frame.m_tree).Size());
}

TEST(HostileSizes, a_frame_of_no_width_scrolls_the_whole_total)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    frame.MoveWindow(10, 10, 0, 200);
    EXPECT_EQ(600, frame.upperEnd());
}

TEST(HostileSizes, a_thousand_columns_are_scrolled_and_sorted)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(1000, 30);
    frame.addRows(2);
    EXPECT_EQ(30000, frame.m_tree.GetColumnsWidth());
    EXPECT_EQ(29700, frame.upperEnd());
    scroll(frame, SB_RIGHT, 0);
    EXPECT_EQ(-29700, frame.placeOf(frame.header()).left);
    click(middleOfColumn(frame, 995));
    EXPECT_EQ(0, frame.header().GetSortImage(995));
    EXPECT_EQ(-1, frame.header().GetSortImage(0));
    EXPECT_EQ(-29700, frame.offset()) << "a click changes no width";
}

TEST(HostileSizes, columns_beyond_every_int_stay_in_range)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.addColumns(3, INT_MAX / 2);
    frame.addRows(1);
    scroll(frame, SB_RIGHT, 0);
    scroll(frame, SB_PAGERIGHT, 0);
    scroll(frame, SB_THUMBTRACK, 65535);
    frame.setColumnWidth(0, INT_MAX);
    frame.setColumnWidth(1, -50);
    frame.ResetScrollBar();
    EXPECT_GE(frame.bar().GetScrollPos(), 0);
}

TEST(HostileMessages, of_every_kind_leave_a_frame_that_works)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    std::mt19937 random(20240501);
    for (int i = 0; i < 500; ++i)
    {
        const auto number = static_cast<UINT>(random());
        scroll(frame, number % 20, random() % 65536);
        if (i % 10 == 0)
            frame.setColumnWidth(static_cast<int>(random() % 4), static_cast<int>(random() % 500));
        if (i % 25 == 0)
            frame.MoveWindow(10, 10, static_cast<int>(random() % 700), static_cast<int>(random() % 300));
        if (i % 50 == 0)
            frame.SendMessage(WM_SIZE, random() % 8, static_cast<LPARAM>(random()));
    }
    frame.MoveWindow(10, 10, 300, 200);
    for (int i = 0; i < 3; ++i)
        frame.setColumnWidth(i, 200);
    frame.ResetScrollBar();
    EXPECT_EQ(300, frame.upperEnd());
    EXPECT_EQ(-frame.bar().GetScrollPos(), frame.offset());
    EXPECT_EQ(frame.offset(), frame.placeOf(frame.header()).left);
}

TEST(EndedMeanwhile, by_a_new_selection)
{
    FrameHost host;
    wide(host);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(TVN_SELCHANGEDW));
    NMTREEVIEWW selection = {};
    selection.hdr = {host.frame->m_tree.m_hWnd, 373, static_cast<UINT>(TVN_SELCHANGEDW)};
    host.frame->SendMessage(WM_NOTIFY, 373, reinterpret_cast<LPARAM>(&selection));
    EXPECT_EQ(nullptr, host.frame);
    EXPECT_EQ(nullptr, host.GetDlgItem(IDC_FRAME));
}

TEST(EndedMeanwhile, by_a_notification_of_the_header)
{
    FrameHost host;
    wide(host);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(HDN_DIVIDERDBLCLICKW));
    NMHEADERW divider = {};
    divider.hdr = {host.frame->header().m_hWnd, 337, static_cast<UINT>(HDN_DIVIDERDBLCLICKW)};
    host.frame->SendMessage(WM_NOTIFY, 337, reinterpret_cast<LPARAM>(&divider));
    EXPECT_EQ(nullptr, host.frame);
}

TEST(EndedMeanwhile, when_a_divider_begins_to_be_dragged)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(HDN_BEGINTRACKW));
    dragDivider(frame, 0, 20);
    EXPECT_EQ(nullptr, host.frame);
}

TEST(EndedMeanwhile, before_a_column_changes)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(HDN_ITEMCHANGINGW));
    frame.header().SetSortImage(1, 1);
    EXPECT_EQ(nullptr, host.frame);
}

TEST(EndedMeanwhile, before_a_click_on_the_header_shows_its_image)
{
    FrameHost host;
    wide(host);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(HDN_ITEMCHANGINGW));
    NMHEADERW header = {};
    header.hdr = {host.frame->header().m_hWnd, 337, static_cast<UINT>(HDN_ITEMCLICKW)};
    host.frame->SendMessage(WM_NOTIFY, 337, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(nullptr, host.frame);
}

TEST(EndedMeanwhile, by_the_context_menu)
{
    FrameHost host;
    wide(host);
    deleteOn(host, WM_CONTEXTMENU);
    host.frame->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(host.frame->m_hWnd), 0);
    EXPECT_EQ(nullptr, host.frame);
}

TEST(EndedMeanwhile, by_the_derived_class_before_and_after_a_click)
{
    for (const bool before : {true, false})
    {
        FrameHost host;
        auto owned = std::make_unique<MortalFrame>();
        MortalFrame& mortal = *owned;
        ASSERT_TRUE(mortal.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 9));
        mortal.Initialize();
        mortal.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        mortal.addColumns(1, 100);
        mortal.addRows(1);
        (before ? mortal.onBefore : mortal.onAfter) = [&owned] { owned.reset(); };
        click(onFirstRow(mortal));
        EXPECT_EQ(nullptr, owned);
    }
}

TEST(EndedMeanwhile, by_the_host_before_an_insertion_is_done)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    frame.bar().SetFocus(); // hiding the bar moves the focus, and that is told
    frame.setColumnWidth(0, 0);
    deleteOn(host, WM_NOTIFY, static_cast<UINT>(NM_SETFOCUS));
    frame.setColumnWidth(1, 0);
    EXPECT_TRUE(host.frame == nullptr || host.frame->m_hWnd != nullptr);
}

TEST(EndedMeanwhile, with_an_open_editor)
{
    FrameHost host(IDD_FRAME_HOST, true);
    wide(host).openEditor(CRect(0, 0, 50, 18)).SetFocus();
    host.frame.reset();
    EXPECT_EQ(nullptr, host.GetDlgItem(IDC_FRAME));
}

TEST(EndedMeanwhile, by_its_own_window)
{
    FrameHost host;
    OpenFrame& frame = wide(host);
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.code == static_cast<UINT>(NM_RELEASEDCAPTURE))
            frame.DestroyWindow();
    };
    NMHDR released = {frame.header().m_hWnd, 337, static_cast<UINT>(NM_RELEASEDCAPTURE)};
    frame.SendMessage(WM_NOTIFY, 337, reinterpret_cast<LPARAM>(&released));
    EXPECT_EQ(nullptr, frame.m_hWnd);
    frame.ResetScrollBar();
    EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
}
