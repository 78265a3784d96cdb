// Creating, filling, editing and destroying leaves no handle behind.
#include <gtest/gtest.h>
#include "FrameHost.h"
#include "kitrel/KxUnitManager.h"
#include "support/HandleBalance.h"

namespace
{
void fill(OpenFrame& frame, CKxUnitManager& units)
{
    CKxTreeListViewCtrl& tree = frame.m_tree;
    tree.SetUnitManager(&units);
    frame.SetCanModifyLabels(true);
    frame.addColumns(3, 90);
    for (int column = 0; column < 3; ++column)
        tree.SetCanEditColumn(column, true);
    tree.SetColumnEditStyle(1, 1);
    frame.addRows(4);
    tree.InsertItem(L"child", tree.GetRootItem(), TVI_LAST);
    tree.SetItemValue(tree.GetRootItem(), 1, 2.5);
    tree.SelectItem(tree.GetRootItem());
}

/// Creates, fills, paints, edits by a key, and ends in one of four ways.
void useOnce(CWnd& parent, int round)
{
    CKxUnitManager units;
    OpenFrame frame;
    ASSERT_TRUE(frame.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &parent, 4000));
    frame.Initialize();
    fill(frame, units);
    frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    frame.m_tree.SendMessage(WM_KEYDOWN, '5', 1);
    ASSERT_NE(nullptr, frame.edit());
    frame.edit()->SetWindowText(L"3.75");
    switch (round % 4)
    {
    case 0: // commits
        frame.m_tree.ProcessEditNotification();
        EXPECT_EQ(3.75, frame.m_tree.GetItemValue(frame.m_tree.GetRootItem(), 1));
        break;
    case 1: // cancels, by an insertion
        frame.addRows(1);
        EXPECT_EQ(nullptr, frame.edit());
        break;
    case 2: // ends with the editor open
        frame.DestroyWindow();
        break;
    default: // and so does the object
        break;
    }
}
} // namespace

TEST(TreeListLifetime, two_thousand_edited_lists_leave_no_handle)
{
    CKxTreeListFrame::RegisterClassW();
    FrameHost host;
    expectNoHandleLeft(2000, [&](int round) { useOnce(host, round); });
}

TEST(TreeListLifetime, a_frame_without_a_window_leaves_nothing)
{
    const Handles before;
    for (int i = 0; i < 100; ++i)
        OpenFrame().SetCanModifyLabels(true);
    EXPECT_EQ(Handles(), before);
}

TEST(TreeListLifetime, a_frame_object_can_be_used_again)
{
    FrameHost host;
    OpenFrame frame;
    for (int i = 0; i < 2; ++i)
    {
        ASSERT_TRUE(frame.Create(L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 9));
        frame.Initialize();
        frame.addColumns(1, 90);
        frame.addRows(2);
        EXPECT_EQ(2U, frame.m_tree.GetCount());
        frame.DestroyWindow();
    }
}
