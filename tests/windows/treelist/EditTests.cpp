// Editing in place with real mouse and keys.
#include "EditHost.h"
#include "support/MessageRecorder.h"

namespace
{
// ---- Opening by the mouse

TEST_F(TreeListEdit, a_click_on_a_row_that_is_not_selected_only_selects_it)
{
    host.clickRow(a, inLength);
    EXPECT_EQ(tree.GetSelectedItem(), a);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_TRUE(::GetFocus() == tree.m_hWnd);
}

TEST_F(TreeListEdit, a_click_on_the_selected_row_opens_the_editor_of_the_column)
{
    host.edit(a, inLength);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_NE(dynamic_cast<CKxUnitCtrl*>(host.editor()), nullptr);
    EXPECT_EQ(OpenTree::editColumn(tree), 1);
    EXPECT_EQ(OpenTree::editState(tree), 1);
    EXPECT_EQ(editorText(), host.cell(a, 1));
    EXPECT_TRUE(::GetFocus() == host.editor()->m_hWnd);
    EXPECT_EQ(host.editor()->GetDlgCtrlID(), 1);
    constexpr DWORD kept = 0x50010084; // the platform's edit field turns WS_BORDER into a look of its own
    EXPECT_EQ(host.editor()->GetStyle() & kept, kept);
    EXPECT_EQ(host.editor()->GetFont()->GetSafeHandle(), tree.GetFont()->GetSafeHandle());
}

TEST_F(TreeListEdit, the_editor_lies_over_its_cell)
{
    host.edit(a, inLength);
    ASSERT_NE(host.editor(), nullptr);
    CRect place;
    host.editor()->GetWindowRect(&place);
    tree.ScreenToClient(&place);
    CRect text;
    tree.GetItemRect(a, &text, TRUE);
    EXPECT_EQ(place, CRect(width0, text.top, width0 + width1, text.bottom + 1));
}

TEST_F(TreeListEdit, a_plain_column_has_a_plain_editor_at_the_width_of_the_column_before)
{
    host.edit(a, inPlain);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(dynamic_cast<CKxUnitCtrl*>(host.editor()), nullptr);
    EXPECT_EQ(OpenTree::editColumn(tree), 2);
    EXPECT_EQ(editorText(), L"first");
    CRect place;
    host.editor()->GetWindowRect(&place);
    tree.ScreenToClient(&place);
    EXPECT_EQ(place.left, width1) << "kept on purpose: the cell is drawn at 250";
    EXPECT_EQ(place.right, width0 + width1 + width2);
}

TEST_F(TreeListEdit, no_editor_opens_where_none_may)
{
    host.edit(a, inName);
    EXPECT_EQ(host.editor(), nullptr) << "column 0";
    EXPECT_EQ(OpenTree::editState(tree), 0);
    tree.SetCanModifyLabels(false);
    host.edit(b, inPlain);
    EXPECT_EQ(host.editor(), nullptr) << "labels cannot be modified";
}

TEST_F(TreeListEdit, a_column_of_units_without_a_unit_manager_has_a_plain_editor)
{
    tree.SetUnitManager(nullptr);
    host.edit(a, inLength);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(dynamic_cast<CKxUnitCtrl*>(host.editor()), nullptr);
}

TEST_F(TreeListEdit, the_native_label_editor_never_opens)
{
    EXPECT_EQ(tree.CTreeCtrl::EditLabel(a), nullptr);
    EXPECT_EQ(tree.CTreeCtrl::GetEditControl(), nullptr);
}

TEST_F(TreeListEdit, a_point_tells_whether_its_cell_can_be_edited)
{
    CRect row;
    tree.GetItemRect(a, &row, FALSE);
    EXPECT_FALSE(tree.GetCanEditColumn(CPoint(inName, row.top + 2)));
    EXPECT_TRUE(tree.GetCanEditColumn(CPoint(inLength, row.top + 2)));
    EXPECT_TRUE(tree.GetCanEditColumn(CPoint(inPlain, row.top + 2)));
    EXPECT_TRUE(tree.GetCanEditColumn(CPoint(inPlain, 100000))) << "the column counts, whether or not there is a row";
    tree.SetCanModifyLabels(false);
    EXPECT_FALSE(tree.GetCanEditColumn(CPoint(inPlain, row.top + 2)));
}

TEST_F(TreeListEdit, an_editor_outside_the_columns_is_none)
{
    CRect rect(0, 0, 50, 20);
    for (const int column : {-2147483647 - 1, -1, 3, 2147483647})
        EXPECT_EQ(tree.GetEditControl(column, rect), nullptr) << column;
    const std::unique_ptr<CEdit> editor(tree.GetEditControl(0, rect));
    EXPECT_NE(editor, nullptr) << "whether the column may be edited is asked before";
}

// ---- Committing

TEST_F(TreeListEdit, return_commits_a_typed_length)
{
    host.edit(a, inLength);
    host.retype(L"250 cm");
    host.press(VK_RETURN);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(tree.GetItemValue(a, 1), 2.5);
    EXPECT_EQ(host.cell(a, 1), std::wstring(tree.FormatValue(2.5, 1)));
    EXPECT_EQ(host.heard, CommitOf(a, 1));
    EXPECT_EQ(OpenTree::editState(tree), 0);
}

TEST_F(TreeListEdit, return_commits_a_plain_text_as_it_stands)
{
    host.edit(a, inPlain);
    host.retype(L" new ");
    host.press(VK_RETURN);
    EXPECT_EQ(host.cell(a, 2), L" new ");
    EXPECT_EQ(host.cell(a, 1), std::wstring(tree.FormatValue(1.5, 1)));
    EXPECT_EQ(host.heard, CommitOf(a, 2));
}

TEST_F(TreeListEdit, escape_drops_what_was_typed)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    host.press(VK_ESCAPE);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_TRUE(host.heard.empty());
}

TEST_F(TreeListEdit, the_host_hears_before_and_after_the_cell_is_written)
{
    std::vector<std::wstring> seen;
    host.onHear = [&](const Heard&) { seen.push_back(host.cell(a, 2)); };
    host.edit(a, inPlain);
    host.retype(L"new");
    host.press(VK_RETURN);
    EXPECT_EQ(seen, (std::vector<std::wstring>{L"first", L"new"}));
}

TEST_F(TreeListEdit, a_click_on_another_row_commits_and_moves_the_selection)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    host.clickRow(b, inPlain);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"new");
    EXPECT_EQ(host.cell(b, 2), L"second");
    EXPECT_EQ(tree.GetSelectedItem(), b);
    EXPECT_EQ(host.heard, CommitOf(a, 2));
}

TEST_F(TreeListEdit, a_click_below_the_rows_commits)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    CPoint below(inPlain, 200);
    tree.ClientToScreen(&below);
    click(below);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"new");
    EXPECT_EQ(tree.GetSelectedItem(), a);
    EXPECT_TRUE(::GetFocus() == tree.m_hWnd);
}

TEST_F(TreeListEdit, a_click_on_the_edited_row_commits_and_opens_no_new_editor)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    host.clickRow(a, inName);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"new");
}

TEST_F(TreeListEdit, an_empty_plain_text_empties_the_cell)
{
    host.edit(a, inPlain);
    host.retype(L"x");
    host.press(VK_BACK);
    host.press(VK_RETURN);
    EXPECT_EQ(host.cell(a, 2), L"");
    EXPECT_EQ(host.heard, CommitOf(a, 2));
}

TEST_F(TreeListEdit, an_empty_length_and_the_bare_name_of_the_unit_change_nothing)
{
    const CString unitName = manager.GetVisUnit(1).GetName();
    const std::wstring before = host.cell(a, 1);
    for (const wchar_t* text : {L"", L"  ", unitName.GetString()})
    {
        host.heard.clear();
        host.edit(a, inLength);
        ASSERT_NE(host.editor(), nullptr);
        host.editor()->SetWindowText(text);
        host.press(VK_RETURN);
        EXPECT_EQ(host.editor(), nullptr);
        EXPECT_EQ(host.cell(a, 1), before);
        EXPECT_EQ(tree.GetItemValue(a, 1), 1.5);
        EXPECT_EQ(host.heard, (std::vector<Heard>{{0x435, rowOf(a), 1}})) << "no 0x436: nothing was written";
    }
}

TEST_F(TreeListEdit, losing_the_focus_ends_nothing)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    host.SetFocus();
    host.pump(10);
    EXPECT_NE(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(tree.SendMessage(0x450), 1) << "the message for it does nothing";
    EXPECT_NE(host.editor(), nullptr);
    EXPECT_EQ(tree.CTreeCtrl::EditLabel(a), nullptr);
    EXPECT_TRUE(::GetFocus() == host.editor()->m_hWnd) << "another attempt to edit gives it the focus again";
}

TEST_F(TreeListEdit, closing_the_tree_ends_an_edit)
{
    EXPECT_TRUE(tree.GetCanUpdateCloseTree());
    host.edit(a, inPlain);
    host.retype(L"new");
    EXPECT_TRUE(tree.GetCanUpdateCloseTree());
    EXPECT_EQ(host.cell(a, 2), L"new");
    EXPECT_EQ(host.editor(), nullptr);
}

TEST_F(TreeListEdit, the_edit_state_decides_what_the_end_does)
{
    host.edit(a, inPlain);
    host.retype(L"new");
    tree.SetEditState(EDIT_STATE_CANCEL);
    EXPECT_TRUE(tree.ProcessEditNotification());
    EXPECT_EQ(host.cell(a, 2), L"first");
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_TRUE(tree.ProcessEditNotification()) << "without an editor there is nothing to end";
}

// ---- Refusals

TEST_F(TreeListEdit, a_refused_length_keeps_the_editor_the_focus_and_the_selection)
{
    host.edit(a, inLength);
    host.retype(L"abc");
    {
        const AnswerModal answer(IDOK);
        host.clickRow(b, inPlain);
        EXPECT_EQ(AnswerModal::count(), 1);
    }
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(editorText(), L"abc");
    EXPECT_TRUE(::GetFocus() == host.editor()->m_hWnd);
    EXPECT_EQ(tree.GetSelectedItem(), a);
    EXPECT_TRUE(host.heard.empty());
    EXPECT_EQ(tree.GetItemValue(a, 1), 1.5);
    host.retype(L"4");
    host.press(VK_RETURN);
    EXPECT_EQ(tree.GetItemValue(a, 1), 4.0) << "and may be corrected";
}

TEST_F(TreeListEdit, a_length_below_zero_is_refused)
{
    host.edit(a, inLength);
    host.retype(L"-1");
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(tree.GetCanUpdateCloseTree()) << "kept on purpose: the lower limit is no negative number";
    EXPECT_EQ(AnswerModal::count(), 1);
    host.press(VK_ESCAPE);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(tree.GetItemValue(a, 1), 1.5);
}

// ---- Keys

TEST_F(TreeListEdit, a_digit_opens_the_first_column_of_units_and_is_typed_into_it)
{
    tree.SelectItem(a);
    const std::wstring before = host.cell(a, 1);
    host.press('5');
    host.pump(20);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(OpenTree::editColumn(tree), 1);
    EXPECT_EQ(editorText(), L"5" + before);
    EXPECT_FALSE(OpenTree::keyEdit(tree));
    host.press(VK_ESCAPE);
    EXPECT_EQ(host.cell(a, 1), before);
}

TEST_F(TreeListEdit, without_a_column_of_units_a_digit_opens_the_column_edited_last)
{
    tree.SetCanEditColumn(1, false);
    tree.SelectItem(a);
    tree.SetFocus();
    tree.SendMessage(WM_KEYDOWN, VK_SUBTRACT, 1);
    EXPECT_EQ(host.editor(), nullptr) << "no key of the set";
    tree.SendMessage(WM_KEYDOWN, '5', 1);
    EXPECT_EQ(host.editor(), nullptr) << "no column was edited yet";
    host.edit(a, inPlain);
    host.press(VK_ESCAPE);
    tree.SendMessage(WM_KEYDOWN, '5', 1);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(OpenTree::editColumn(tree), 2);
}

TEST_F(TreeListEdit, keys_open_nothing_without_a_selection_or_while_labels_stay)
{
    tree.SelectItem(nullptr);
    tree.SendMessage(WM_KEYDOWN, '5', 1);
    EXPECT_EQ(host.editor(), nullptr);
    tree.SelectItem(a);
    tree.SetCanModifyLabels(false);
    tree.SendMessage(WM_KEYDOWN, '5', 1);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_FALSE(OpenTree::keyEdit(tree));
}

TEST_F(TreeListEdit, arrows_still_move_the_selection)
{
    tree.SelectItem(a);
    host.press(VK_DOWN);
    EXPECT_EQ(tree.GetSelectedItem(), b);
    EXPECT_EQ(host.editor(), nullptr);
}

// ---- Clicks

TEST_F(TreeListEdit, the_frame_hears_of_a_click_first_and_last)
{
    CRect row;
    tree.GetItemRect(a, &row, FALSE);
    struct Seen
    {
        UINT message;
        WPARAM flags;
        CPoint point;
        HTREEITEM selected;
        bool operator==(const Seen&) const = default;
    };
    std::vector<Seen> seen;
    MessageRecorder recorder(host.frame->m_hWnd, [](UINT message) { return message == 0x433 || message == 0x434; });
    recorder.onRecord = [&](const RecordedMessage& m) {
        seen.push_back({m.message, m.wParam, *reinterpret_cast<CPoint*>(m.lParam), tree.GetSelectedItem()});
    };
    const CPoint point(inName, row.top + 3);
    tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(point.x, point.y));
    EXPECT_EQ(seen,
              (std::vector<Seen>{{0x433, MK_LBUTTON | MK_SHIFT, point, c}, {0x434, MK_LBUTTON | MK_SHIFT, point, a}}));
}

TEST_F(TreeListEdit, a_button_expands_its_row_and_leaves_the_selection)
{
    addRow(L"below", 1.0, L"x", a);
    CRect text;
    tree.GetItemRect(a, &text, TRUE);
    const int onButton = text.left - 10;
    host.clickRow(a, onButton);
    EXPECT_NE(tree.GetItemState(a, TVIS_EXPANDED), 0U);
    EXPECT_EQ(tree.GetSelectedItem(), c);
    host.clickRow(a, onButton);
    EXPECT_EQ(tree.GetItemState(a, TVIS_EXPANDED), 0U);
}

TEST_F(TreeListEdit, a_button_waits_for_the_edit_to_end)
{
    addRow(L"below", 1.0, L"x", a);
    CRect text;
    tree.GetItemRect(a, &text, TRUE);
    host.edit(b, inLength);
    host.retype(L"abc");
    {
        const AnswerModal answer(IDOK);
        host.clickRow(a, text.left - 10);
        EXPECT_EQ(AnswerModal::count(), 1);
    }
    EXPECT_EQ(tree.GetItemState(a, TVIS_EXPANDED), 0U);
    ASSERT_NE(host.editor(), nullptr);
    host.retype(L"7");
    host.clickRow(a, text.left - 10);
    EXPECT_NE(tree.GetItemState(a, TVIS_EXPANDED), 0U);
    EXPECT_EQ(tree.GetItemValue(b, 1), 7.0);
}

TEST_F(TreeListEdit, a_double_click_past_the_first_column_goes_to_the_dialog)
{
    tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(inLength, 20));
    tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(width0, 5));
    EXPECT_EQ(host.heard, (std::vector<Heard>{{WM_LBUTTONDBLCLK, 0, 20 * 0x10000 + inLength},
                                              {WM_LBUTTONDBLCLK, 0, 5 * 0x10000 + width0}}));
    host.heard.clear();
    tree.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(width0 - 1, 5));
    EXPECT_TRUE(host.heard.empty());
}
} // namespace
