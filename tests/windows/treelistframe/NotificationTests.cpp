// What comes to the frame and what it sends on: notifications, clicks, keys, the context menu, the focus.
#include <gtest/gtest.h>
#include "FrameHost.h"
#include "support/MessageRecorder.h"

namespace
{
OpenFrame& oneColumn(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 200);
    frame.addRows(3);
    return frame;
}

LRESULT notify(OpenFrame& frame, NMHDR& header)
{
    return frame.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}
} // namespace

TEST(Notifications, go_on_to_the_parent_with_the_same_words)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    NMHDR header = {frame.m_tree.m_hWnd, 373, 4242};
    frame.SendMessage(WM_NOTIFY, 77, reinterpret_cast<LPARAM>(&header));
    ASSERT_EQ(1U, host.heard.size());
    EXPECT_EQ(77U, host.heard[0].wParam);
    EXPECT_EQ(reinterpret_cast<LPARAM>(&header), host.heard[0].lParam);
}

TEST(Notifications, of_the_header_go_on_too_but_for_clicks_and_changes)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    NMHEADERW header = {};
    header.hdr = {frame.header().m_hWnd, 337, static_cast<UINT>(HDN_DIVIDERDBLCLICKW)};
    notify(frame, header.hdr);
    EXPECT_EQ(1, host.count(WM_NOTIFY, static_cast<UINT>(HDN_DIVIDERDBLCLICKW)));
    header.hdr.code = static_cast<UINT>(HDN_ITEMCHANGEDW);
    notify(frame, header.hdr);
    EXPECT_EQ(1U, host.heard.size());
}

TEST(Notifications, with_the_headers_codes_from_elsewhere_go_on)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    NMHEADERW header = {};
    header.hdr = {frame.m_tree.m_hWnd, 373, static_cast<UINT>(HDN_ITEMCLICKW)};
    notify(frame, header.hdr);
    EXPECT_EQ(1, host.count(WM_NOTIFY, static_cast<UINT>(HDN_ITEMCLICKW)));
    EXPECT_EQ(0, frame.header().GetSortImage(0));
}

TEST(Notifications, of_a_click_on_a_column_that_is_not_there_clear_the_images)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    NMHEADERW header = {};
    header.hdr = {frame.header().m_hWnd, 337, static_cast<UINT>(HDN_ITEMCLICKW)};
    for (const int column : {9, -1, INT_MAX, INT_MIN})
    {
        header.iItem = column;
        notify(frame, header.hdr);
        EXPECT_EQ(-1, frame.header().GetSortImage(0));
    }
}

TEST(Notifications, without_a_record_are_nothing)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    frame.SendMessage(WM_NOTIFY, 337, 0);
    EXPECT_TRUE(host.heard.empty());
}

TEST(Notifications, of_a_new_selection_reach_the_host)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    frame.m_tree.SelectItem(frame.m_tree.GetRootItem());
    EXPECT_EQ(1, host.count(WM_NOTIFY, static_cast<UINT>(TVN_SELCHANGEDW)));
}

TEST(Clicks, come_to_the_virtual_operations)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    CPoint point(12, 34);
    EXPECT_EQ(1, frame.SendMessage(0x433, MK_LBUTTON, reinterpret_cast<LPARAM>(&point)));
    EXPECT_EQ(1, frame.SendMessage(0x434, MK_LBUTTON | MK_SHIFT, reinterpret_cast<LPARAM>(&point)));
    ASSERT_EQ(2U, frame.clicks.size());
    EXPECT_EQ(UINT{MK_LBUTTON}, frame.clicks[0].flags);
    EXPECT_EQ(point, frame.clicks[0].point);
    EXPECT_FALSE(frame.clicks[0].after);
    EXPECT_EQ(UINT{MK_LBUTTON | MK_SHIFT}, frame.clicks[1].flags);
    EXPECT_TRUE(frame.clicks[1].after);
}

TEST(Clicks, without_a_point_are_answered_and_no_more)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    EXPECT_EQ(1, frame.SendMessage(0x433, MK_LBUTTON, 0));
    EXPECT_EQ(1, frame.SendMessage(0x434, MK_LBUTTON, 0));
    EXPECT_TRUE(frame.clicks.empty());
}

TEST(Clicks, of_the_mouse_on_a_row_come_before_and_after_the_selection)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    CRect row;
    HTREEITEM const second = frame.m_tree.GetNextSiblingItem(frame.m_tree.GetRootItem());
    frame.m_tree.GetItemRect(second, &row, TRUE);
    CPoint point = row.CenterPoint();
    const CPoint inTree = point;
    frame.m_tree.ClientToScreen(&point);
    click(point);
    ASSERT_EQ(2U, frame.clicks.size());
    EXPECT_EQ(inTree, frame.clicks[0].point);
    EXPECT_EQ(inTree, frame.clicks[1].point);
    EXPECT_EQ(second, frame.m_tree.GetSelectedItem());
}

TEST(ContextMenu, goes_to_the_parent_with_the_object_of_the_window)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.heard.clear();
    frame.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(frame.m_tree.m_hWnd), MAKELPARAM(5, 6));
    ASSERT_EQ(1U, host.heard.size());
    EXPECT_EQ(UINT{WM_CONTEXTMENU}, host.heard[0].message);
    EXPECT_EQ(reinterpret_cast<WPARAM>(static_cast<CWnd*>(&frame.m_tree)), host.heard[0].wParam);
    EXPECT_EQ(0, host.heard[0].lParam);
}

TEST(Keys, a_digit_opens_the_editor_of_the_selection)
{
    for (const UINT pressed : {47U, 48U, 53U, 57U, 58U, UINT{VK_NUMPAD5}})
    {
        FrameHost host(IDD_FRAME_HOST, true);
        OpenFrame& frame = oneColumn(host);
        frame.m_tree.SelectItem(frame.m_tree.GetRootItem());
        host.heard.clear();
        frame.SendMessage(WM_KEYDOWN, pressed, 1);
        const bool digit = pressed >= 48 && pressed <= 57;
        EXPECT_EQ(digit ? 1 : 0, host.count(WM_NOTIFY, static_cast<UINT>(TVN_BEGINLABELEDITW))) << pressed;
    }
}

TEST(Keys, a_digit_opens_nothing_while_labels_cannot_be_modified)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    frame.m_tree.SelectItem(frame.m_tree.GetRootItem());
    frame.SendMessage(WM_KEYDOWN, '5', 1);
    EXPECT_EQ(0, host.count(WM_NOTIFY, static_cast<UINT>(TVN_BEGINLABELEDITW)));
}

TEST(Keys, a_digit_opens_nothing_without_a_selection_or_with_an_open_editor)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = oneColumn(host);
    frame.m_tree.SelectItem(nullptr);
    frame.SendMessage(WM_KEYDOWN, '5', 1);
    frame.m_tree.SelectItem(frame.m_tree.GetRootItem());
    CEdit* const edit = &frame.openEditor(CRect(10, 10, 60, 28));
    frame.SendMessage(WM_KEYDOWN, '5', 1);
    EXPECT_EQ(0, host.count(WM_NOTIFY, static_cast<UINT>(TVN_BEGINLABELEDITW)));
    EXPECT_EQ(edit, frame.edit());
}

TEST(Keys, escape_and_return_end_an_open_edit)
{
    for (const WPARAM pressed : {VK_ESCAPE, VK_RETURN})
    {
        FrameHost host(IDD_FRAME_HOST, true);
        OpenFrame& frame = oneColumn(host);
        frame.openEditor(CRect(10, 10, 60, 28)).SetFocus();
        key(static_cast<WORD>(pressed));
        MSG message = {frame.edit()->m_hWnd, WM_KEYDOWN, pressed, 1, 0, {}};
        EXPECT_TRUE(frame.PreTranslateMessage(&message));
        EXPECT_EQ(nullptr, frame.edit()) << pressed;
    }
}

TEST(Keys, escape_comes_to_the_frame_through_the_hosts_loop)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = oneColumn(host);
    frame.openEditor(CRect(10, 10, 60, 28)).SetFocus();
    HostLoop::press(VK_ESCAPE);
    EXPECT_TRUE(HostLoop::pumpUntil([&] { return frame.edit() == nullptr; }));
    EXPECT_TRUE(host.IsWindowVisible()) << "the key was handled: the dialog does not see it";
}

TEST(Keys, escape_and_return_are_the_dialogs_where_nothing_is_edited)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = oneColumn(host);
    MSG message = {frame.m_tree.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_FALSE(frame.PreTranslateMessage(&message));
    CEdit* const edit = &frame.openEditor(CRect(10, 10, 60, 28));
    message.wParam = 'A';
    EXPECT_FALSE(frame.PreTranslateMessage(&message));
    message.message = WM_KEYUP;
    message.wParam = VK_ESCAPE;
    EXPECT_FALSE(frame.PreTranslateMessage(&message));
    frame.SetCanModifyLabels(false);
    message.message = WM_KEYDOWN;
    EXPECT_FALSE(frame.PreTranslateMessage(&message)) << "the frame's flag is not set";
    EXPECT_EQ(edit, frame.edit());
}

TEST(Focus, of_the_frame_goes_to_the_tree)
{
    FrameHost host;
    OpenFrame& frame = oneColumn(host);
    host.GetDlgItem(IDC_OTHER)->SetFocus();
    frame.SetFocus();
    EXPECT_EQ(frame.m_tree.m_hWnd, ::GetFocus());
}

TEST(Closing, is_the_systems)
{
    CKxTreeListFrame::RegisterClassW();
    FrameHost host;
    OpenFrame& frame = *host.frame;
    const HWND tree = frame.m_tree.m_hWnd;
    frame.SendMessage(WM_CLOSE);
    EXPECT_EQ(nullptr, frame.m_hWnd);
    EXPECT_FALSE(::IsWindow(tree));
    EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
}
