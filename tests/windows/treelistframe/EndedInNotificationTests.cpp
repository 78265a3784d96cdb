// Hosts that end the frame while the platform's tree or header tells of something that cannot be called off.
#include <gtest/gtest.h>
#include "NotificationCauses.h"

namespace
{
/// The host ends the frame at the first such notification of the child with that id.
void endIn(const Cause& cause, UINT_PTR child)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(2, 120);
    frame.addRows(3);
    frame.m_tree.InsertItem(L"below", firstRow(frame), TVI_LAST);
    frame.m_tree.SelectItem(firstRow(frame));
    host.GetDlgItem(IDC_OTHER)->SetFocus();
    const HWND window = child == CKxTreeListFrame::ID_TREE ? frame.m_tree.m_hWnd : frame.header().m_hWnd;
    bool wasThere = false;
    host.onHear = [&](const HeardByHost& one)
    {
        if (host.frame == nullptr || one.message != WM_NOTIFY || one.code != cause.code ||
            reinterpret_cast<const NMHDR*>(one.lParam)->idFrom != child)
            return;
        host.frame.reset();
        wasThere = ::IsWindow(window) != FALSE;
    };
    cause.act(frame);
    EXPECT_EQ(nullptr, host.frame) << cause.what << ": it was not told";
    EXPECT_TRUE(wasThere) << cause.what << ": the control still works with its window";
    EXPECT_FALSE(::IsWindow(window)) << cause.what << ": the window ends behind that";
    EXPECT_EQ(nullptr, host.GetDlgItem(IDC_FRAME)) << cause.what;
}
} // namespace

TEST(EndedInNotification, of_the_tree)
{
    for (const Cause& cause : ofTheTree)
        endIn(cause, CKxTreeListFrame::ID_TREE);
}

TEST(EndedInNotification, of_the_header)
{
    for (const Cause& cause : ofTheHeader)
        endIn(cause, CKxTreeListFrame::ID_HEADER);
}

TEST(EndedInNotification, the_window_alone_and_the_frame_is_used_again)
{
    FrameHost host;
    OpenFrame frame;
    for (int round = 0; round < 3; ++round)
    {
        ASSERT_TRUE(frame.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 9));
        frame.Initialize();
        frame.addColumns(1, 90);
        frame.addRows(2);
        const HWND tree = frame.m_tree.m_hWnd;
        host.onHear = [&](const HeardByHost& one)
        {
            if (one.message == WM_NOTIFY && one.code == static_cast<UINT>(TVN_SELCHANGEDW))
                frame.DestroyWindow();
        };
        frame.m_tree.SelectItem(secondRow(frame));
        EXPECT_EQ(nullptr, frame.m_hWnd);
        EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
        EXPECT_EQ(nullptr, frame.header().m_hWnd);
        EXPECT_FALSE(::IsWindow(tree));
    }
}

TEST(EndedInNotification, with_an_open_editor)
{
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    frame.addColumns(1, 200);
    frame.addRows(2);
    const HWND tree = frame.m_tree.m_hWnd;
    const HWND edit = frame.openEditor(CRect(0, 0, 50, 18)).m_hWnd;
    host.onHear = [&](const HeardByHost& one)
    {
        if (one.message == WM_NOTIFY && one.code == static_cast<UINT>(TVN_SELCHANGEDW))
            host.frame.reset();
    };
    frame.m_tree.SelectItem(secondRow(frame));
    EXPECT_EQ(nullptr, host.frame);
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(::IsWindow(tree));
}
