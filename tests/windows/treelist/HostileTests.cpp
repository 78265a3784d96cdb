// Hosts that change rows, end the edit or end the control while they handle its messages.
#include <ostream>
#include "EditHost.h"
#include "support/HandleBalance.h"

namespace
{
/// Runs `act` inside the handler of one message of a commit in column 2 of row a.
class TreeListHostile : public TreeListEdit
{
protected:
    void CommitWhile(UINT message, const std::function<void()>& act)
    {
        host.onHear = [this, message, act](const Heard& heard)
        {
            if (heard.message == message)
                act();
        };
        host.edit(a, inPlain);
        ASSERT_NE(host.editor(), nullptr);
        host.retype(L"new");
        EXPECT_TRUE(tree.ProcessEditNotification());
        EXPECT_EQ(host.editor(), nullptr);
        EXPECT_EQ(OpenTree::editState(tree), 0);
    }
    int Count(UINT message) const
    {
        int count = 0;
        for (const Heard& heard : host.heard)
            count += heard.message == message ? 1 : 0;
        return count;
    }
};

TEST_F(TreeListHostile, an_insertion_before_the_cell_is_written_cancels_the_edit)
{
    CommitWhile(0x435, [this] { host.add(L"d"); });
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(Count(0x436), 0);
    EXPECT_EQ(tree.GetCount(), 4U);
}

TEST_F(TreeListHostile, an_insertion_after_the_cell_is_written_changes_nothing)
{
    CommitWhile(0x436, [this] { host.add(L"d"); });
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListHostile, a_row_deleted_before_it_is_written_takes_the_edit_along)
{
    CommitWhile(0x435, [this] { tree.DeleteItem(a); });
    EXPECT_EQ(Count(0x436), 0);
    EXPECT_EQ(host.cell(b, 2), L"second") << "the row that is selected now keeps its text";
    EXPECT_EQ(tree.GetCount(), 2U);
}

TEST_F(TreeListHostile, all_rows_may_go_before_and_after_the_cell_is_written)
{
    CommitWhile(0x435, [this] { tree.DeleteAllItems(); });
    EXPECT_EQ(tree.GetCount(), 0U);
    EXPECT_EQ(Count(0x436), 0);
    a = addRow(L"a", 1.0, L"x");
    CommitWhile(0x436, [this] { tree.DeleteAllItems(); });
    EXPECT_EQ(tree.GetCount(), 0U);
    EXPECT_EQ(Count(0x436), 1);
}

TEST_F(TreeListHostile, records_destroyed_before_the_cell_is_written_end_the_edit)
{
    CommitWhile(0x435, [this] { tree.MemDeleteAllItems(tree.GetRootItem()); });
    EXPECT_EQ(Count(0x436), 0);
}

TEST_F(TreeListHostile, a_sort_keeps_the_edit_with_its_row)
{
    CommitWhile(0x435, [this] { tree.SortItems(2, TRUE, nullptr); });
    EXPECT_EQ(host.cell(a, 2), L"new");
    CommitWhile(0x436, [this] { host.frame->SortTree(2, 0, tree.GetRootItem()); });
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListHostile, a_host_may_drop_the_editor_or_cancel_the_edit)
{
    CommitWhile(0x435, [this] { tree.FreeEditControl(); });
    EXPECT_EQ(host.cell(a, 2), L"first");
    CommitWhile(0x435, [this] { tree.SetEditState(EDIT_STATE_CANCEL); });
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(Count(0x436), 0);
    CommitWhile(0x436, [this] { tree.FreeEditControl(); });
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListHostile, a_host_may_end_the_edit_and_open_another_one)
{
    host.onHear = [this](const Heard& heard)
    {
        if (heard.message != 0x435 || Count(0x435) > 1)
            return;
        tree.FreeEditControl();
        tree.CTreeCtrl::EditLabel(a); // the cursor still is over column 2
    };
    host.edit(a, inPlain);
    host.retype(L"new");
    EXPECT_TRUE(tree.ProcessEditNotification());
    ASSERT_NE(host.editor(), nullptr) << "the second edit stays open";
    EXPECT_EQ(editorText(), L"first");
    EXPECT_EQ(host.cell(a, 2), L"first");
    tree.FreeEditControl();
}

TEST_F(TreeListHostile, a_commit_within_a_commit_ends)
{
    host.onHear = [this](const Heard&)
    {
        if (host.heard.size() < 10)
            tree.ProcessEditNotification();
    };
    host.edit(a, inPlain);
    host.retype(L"new");
    EXPECT_TRUE(tree.ProcessEditNotification());
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListHostile, the_unit_manager_may_be_taken_away_during_an_edit)
{
    host.edit(a, inLength);
    host.retype(L"7");
    tree.SetUnitManager(nullptr);
    EXPECT_TRUE(tree.ProcessEditNotification());
    EXPECT_EQ(tree.GetItemValue(a, 1), 7.0);
    EXPECT_EQ(host.cell(a, 1), L" 7.00");
}

TEST_F(TreeListHostile, the_edited_row_may_go_while_the_editor_is_open)
{
    HTREEITEM const below = addRow(L"below", 1.0, L"x", a);
    tree.Expand(a, TVE_EXPAND);
    for (HTREEITEM const deleted : {below, a})
    {
        const bool first = deleted == below;
        host.edit(first ? below : b, inPlain);
        ASSERT_NE(host.editor(), nullptr);
        host.retype(L"new");
        tree.DeleteItem(first ? a : b); // the edited row itself, or the one above it
        EXPECT_TRUE(tree.ProcessEditNotification());
        EXPECT_EQ(host.editor(), nullptr);
        EXPECT_EQ(host.cell(c, 2), L"third");
    }
    EXPECT_TRUE(host.heard.empty()) << "the end is quiet";
}

TEST_F(TreeListHostile, an_editor_whose_window_somebody_destroyed_writes_nothing_and_makes_room_for_the_next)
{
    for (const int x : {int{inPlain}, int{inLength}})
    {
        host.edit(a, x);
        ASSERT_NE(host.editor(), nullptr);
        host.editor()->DestroyWindow();
        EXPECT_TRUE(tree.ProcessEditNotification());
        EXPECT_EQ(host.editor(), nullptr);
        host.edit(a, x);
        ::DestroyWindow(host.editor()->m_hWnd);
        host.clickRow(b, inName);
        EXPECT_EQ(host.editor(), nullptr);
        EXPECT_EQ(tree.GetSelectedItem(), b);
        host.edit(a, x);
        host.editor()->DestroyWindow();
        tree.CTreeCtrl::EditLabel(a);
        ASSERT_NE(host.editor(), nullptr);
        EXPECT_NE(host.editor()->m_hWnd, nullptr) << "another one";
        host.editor()->DestroyWindow();
        tree.SendMessage(WM_KEYDOWN, '5', 1);
        ASSERT_NE(host.editor(), nullptr);
        EXPECT_NE(host.editor()->m_hWnd, nullptr);
        tree.FreeEditControl();
    }
    EXPECT_TRUE(host.heard.empty());
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(tree.GetItemValue(a, 1), 1.5);
}

TEST_F(TreeListHostile, an_editor_destroyed_before_the_cell_is_written_writes_nothing)
{
    CommitWhile(0x435, [this] { host.editor()->DestroyWindow(); });
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(Count(0x436), 0);
    CommitWhile(0x436, [this] { host.editor()->DestroyWindow(); });
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListHostile, scrolling_painting_and_keys_bear_an_editor_without_a_window)
{
    host.edit(a, inPlain);
    host.editor()->DestroyWindow();
    host.frame->SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(::GetDlgItem(host.frame->m_hWnd, 377)));
    tree.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    MSG message = {tree.m_hWnd, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_TRUE(host.frame->PreTranslateMessage(&message));
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"first");
}

TEST_F(TreeListHostile, the_frame_may_be_destroyed_within_any_message)
{
    for (const UINT message : {0x435U, 0x436U})
    {
        TreeListHost other(CSize(420, 300));
        other.frame->SetCanModifyLabels(true);
        other.tree().InsertColumn(0, L"Name", 0, 150, 0);
        other.tree().SetCanEditColumn(0, true);
        HTREEITEM const row = other.add(L"a");
        other.show();
        other.onHear = [&](const Heard& heard)
        {
            if (heard.message == message)
                other.frame.reset();
        };
        other.edit(row, 60);
        ASSERT_NE(other.editor(), nullptr);
        EXPECT_TRUE(other.tree().ProcessEditNotification());
        EXPECT_EQ(other.frame, nullptr);
    }
}

TEST_F(TreeListHostile, the_frame_may_be_deleted_by_a_click)
{
    for (const UINT message : {0x435U, 0x436U})
    {
        TreeListHost other(CSize(420, 300));
        other.frame->SetCanModifyLabels(true);
        other.tree().InsertColumn(0, L"Name", 0, 150, 0);
        other.tree().SetCanEditColumn(0, true);
        HTREEITEM const row = other.add(L"a");
        HTREEITEM const next = other.add(L"b");
        other.show();
        other.edit(row, 60);
        ASSERT_NE(other.editor(), nullptr);
        CRect place;
        other.tree().GetItemRect(next, &place, FALSE);
        other.onHear = [&](const Heard& heard)
        {
            if (heard.message == message)
                other.frame.reset();
        };
        other.tree().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, place.top + 3));
        EXPECT_EQ(other.frame, nullptr);
    }
}

TEST_F(TreeListHostile, clicks_on_nothing_and_far_outside_are_harmless)
{
    for (const CPoint point : {CPoint(-32768, -32768), CPoint(32767, 32767), CPoint(0, 0), CPoint(5, 250)})
    {
        tree.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(point.x, point.y));
        tree.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(point.x, point.y));
        int column = 5;
        CRect rect;
        EXPECT_TRUE(tree.GetSelectionData(point, column, rect));
    }
    EXPECT_EQ(host.editor(), nullptr);
}

void UseOnce(CKxUnitManager& manager, int round)
{
    TreeListHost host(CSize(300, 200));
    CKxTreeListViewCtrl& tree = host.tree();
    host.frame->SetCanModifyLabels(true);
    tree.InsertColumn(0, L"Name", 0, 100, 0);
    tree.InsertColumn(1, L"Length", 1, 100, 0);
    tree.SetUnitManager(&manager);
    tree.SetCanEditColumn(1, true);
    tree.SetColumnEditStyle(1, round % 2 == 0 ? 1 : -1);
    for (int i = 0; i < 5; ++i)
        tree.SetItemValue(host.add(L"row"), 1, 1.0 + i);
    tree.SetItemBold(tree.GetRootItem(), TRUE, TRUE);
    tree.SelectItem(tree.GetRootItem());
    host.ShowWindow(SW_SHOWNOACTIVATE);
    host.UpdateWindow();
    OpenTree::keyEdit(tree) = true;
    OpenTree::editColumn(tree) = 1;
    tree.CTreeCtrl::EditLabel(tree.GetRootItem());
    OpenTree::keyEdit(tree) = false;
    ASSERT_NE(host.editor(), nullptr);
    if (round % 3 == 0) // else the editor is open when everything ends
    {
        EXPECT_TRUE(tree.ProcessEditNotification());
    }
}

TEST(TreeListLifetime, created_filled_edited_and_destroyed_again_and_again_nothing_is_left)
{
    CKxUnitManager manager;
    expectNoHandleLeft(300, [&](int round) { UseOnce(manager, round); });
}
} // namespace
