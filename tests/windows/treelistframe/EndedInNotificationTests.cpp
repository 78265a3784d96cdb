// Hosts that end the frame while the platform's tree or header tells of something that cannot be called off.
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include "NotificationCauses.h"
#include "support/MessageRecorder.h"

namespace
{
/// What the host ends.
struct End
{
    const char* what;
    void (*act)(FrameHost& host, HWND window);
};

const End ends[] = {
    {"the frame", [](FrameHost& host, HWND) { host.frame.reset(); }},
    {"the frame's window", [](FrameHost& host, HWND) { host.frame->DestroyWindow(); }},
    {"the dialog", [](FrameHost& host, HWND) { host.DestroyWindow(); }},
    {"the control's own window", [](FrameHost&, HWND window) { ::DestroyWindow(window); }},
    {"the control's own window by its object",
     [](FrameHost&, HWND window) { CWnd::FromHandle(window)->DestroyWindow(); }},
};

void fillForEnd(OpenFrame& frame)
{
    frame.addColumns(2, 120);
    frame.addRows(3);
    frame.m_tree.InsertItem(L"below", firstRow(frame), TVI_LAST);
    frame.m_tree.SelectItem(firstRow(frame));
}

/// A frame whose tree or header has gone goes on without it.
void useWithout(OpenFrame& frame)
{
    frame.MoveWindow(5, 5, 250, 150);
    frame.Initialize();
    frame.ResetScrollBar();
    frame.m_tree.ResetVertScrollBar();
    frame.addColumns(1, 50);
    frame.setColumnWidth(0, 333);
    frame.SetCanModifyLabels(false);
    frame.ExpandTree();
    frame.SortTree(0, 1, firstRow(frame));
    frame.SendMessage(WM_KEYDOWN, '5', 1);
    frame.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(frame.bar().m_hWnd));
    frame.addRows(1);
    frame.m_tree.DeleteAllItems();
    frame.SetFocus();
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

/// The host ends something at the first such notification of the child with that id.
void endIn(const Cause& cause, UINT_PTR child, const End& end)
{
    SCOPED_TRACE(std::string(cause.what) + ": " + end.what);
    FrameHost host(IDD_FRAME_HOST, true);
    OpenFrame& frame = host.usual();
    fillForEnd(frame);
    host.GetDlgItem(IDC_OTHER)->SetFocus();
    const HWND window = child == CKxTreeListFrame::ID_TREE ? frame.m_tree.m_hWnd : frame.header().m_hWnd;
    bool told = false;
    bool wasThere = false;
    host.onHear = [&](const HeardByHost& one)
    {
        if (told || one.message != WM_NOTIFY || one.code != cause.code ||
            reinterpret_cast<const NMHDR*>(one.lParam)->idFrom != child)
            return;
        told = true;
        end.act(host, window);
        wasThere = ::IsWindow(window) != FALSE;
    };
    cause.act(frame);
    EXPECT_TRUE(told) << "it was not told";
    EXPECT_TRUE(wasThere) << "the control still works with its window";
    EXPECT_FALSE(::IsWindow(window)) << "the window ends behind that";
    EXPECT_TRUE(host.m_hWnd == nullptr || host.frame == nullptr || host.frame->m_hWnd != nullptr ||
                host.GetDlgItem(IDC_FRAME) == nullptr);
    host.onHear = nullptr;
    if (host.frame != nullptr && host.frame->m_hWnd != nullptr)
        useWithout(*host.frame);
}
} // namespace

TEST(EndedInNotification, of_the_tree)
{
    for (const Cause& cause : ofTheTree)
        for (const End& end : ends)
            endIn(cause, CKxTreeListFrame::ID_TREE, end);
}

TEST(EndedInNotification, of_the_header)
{
    for (const Cause& cause : ofTheHeader)
        for (const End& end : ends)
            endIn(cause, CKxTreeListFrame::ID_HEADER, end);
}

TEST(EndedInNotification, or_in_a_click_or_commit)
{
    for (const UINT message : {0x433U, 0x434U, 0x435U, 0x436U})
    {
        for (const End& end : ends)
        {
            SCOPED_TRACE(std::to_string(message) + ": " + end.what);
            FrameHost host(IDD_FRAME_HOST, true);
            OpenFrame& frame = host.usual();
            fillForEnd(frame);
            frame.m_tree.SetCanEditColumn(0, true);
            const HWND tree = frame.m_tree.m_hWnd;
            bool told = false;
            const auto act = [&]
            {
                if (!std::exchange(told, true))
                    end.act(host, tree);
            };
            host.onHear = [&](const HeardByHost& one)
            {
                if (one.message == message)
                    act();
            };
            frame.openEditor(CRect(0, 0, 50, 18));
            OpenTree::beginEdit(frame.m_tree, firstRow(frame));
            MessageRecorder recorder(frame.m_hWnd, [&](UINT heard) { return heard == message; });
            recorder.onRecord = [&](const RecordedMessage&) { act(); };
            ::SendMessage(tree, WM_LBUTTONDOWN, MK_LBUTTON, placeOf(frame, secondRow(frame)));
            EXPECT_TRUE(told);
            EXPECT_FALSE(::IsWindow(tree));
        }
    }
}

TEST(EndedInNotification, a_window_that_is_at_rest_ends_at_once)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    fillForEnd(frame);
    EXPECT_TRUE(frame.m_tree.DestroyWindow());
    EXPECT_TRUE(frame.header().DestroyWindow());
    EXPECT_EQ(nullptr, frame.m_tree.m_hWnd);
    useWithout(frame);
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
