// Editing in a list that is wider than its frame: columns of 330 pixels in 250.
#include <climits>
#include "EditHost.h"

namespace
{
class TreeListScrolledEdit : public TreeListEdit
{
protected:
    TreeListScrolledEdit()
    {
        host.frame->MoveWindow(0, 0, 250, 300);
        m_bar = ::GetDlgItem(host.frame->m_hWnd, CKxTreeListFrame::ID_SCROLL_BAR);
        host.pump(10);
    }
    /// A real click on the arrow at the right end of the bar: 6 pixels.
    void ScrollByMouse()
    {
        CRect bar;
        ::GetWindowRect(m_bar, &bar);
        click({bar.right - 5, bar.CenterPoint().y});
        host.pump(10);
    }
    CRect EditorPlace()
    {
        CRect place;
        host.editor()->GetWindowRect(&place);
        tree.ScreenToClient(&place);
        return place;
    }

private:
    HWND m_bar = nullptr;
};

TEST_F(TreeListScrolledEdit, the_editor_goes_along_with_its_columns_and_commits)
{
    host.edit(a, inLength);
    ASSERT_NE(host.editor(), nullptr);
    host.retype(L"9");
    const CRect before = EditorPlace();
    ScrollByMouse();
    ScrollByMouse();
    ASSERT_EQ(OpenTree::offset(tree), -12);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(EditorPlace(), before - CPoint(12, 0));
    EXPECT_TRUE(host.editor()->IsWindowVisible());
    EXPECT_EQ(editorText(), L"9") << "scrolling neither commits nor cancels";
    host.editor()->SetFocus();
    host.press(VK_RETURN);
    EXPECT_EQ(tree.GetItemValue(a, 1), 9.0);
    EXPECT_EQ(host.heard, CommitOf(a, 1));
}

TEST_F(TreeListScrolledEdit, a_click_into_scrolled_columns_opens_the_editor_of_the_column_under_it)
{
    host.frame->SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(::GetDlgItem(host.frame->m_hWnd, 377)));
    ASSERT_EQ(OpenTree::offset(tree), -80);
    host.edit(a, inPlain - 80);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(OpenTree::editColumn(tree), 2);
    EXPECT_EQ(EditorPlace().right, 330 - 80);
    EXPECT_EQ(EditorPlace().left, width1 - 80) << "the width of the column before, less the bar's position";
}

TEST_F(TreeListScrolledEdit, what_was_scrolled_looks_as_if_it_were_painted_there)
{
    tree.SetItemColor(b, RGB(255, 0, 0), TRUE);
    tree.SetItemBold(b, TRUE, TRUE);
    tree.SelectItem(a);
    tree.UpdateWindow();
    for (int step = 0; step < 5; ++step)
        ScrollByMouse();
    tree.UpdateWindow();
    CRect client;
    tree.GetClientRect(&client);
    const auto picture = [&]
    {
        CClientDC dc(&tree);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < 60; ++y)
        {
            for (int x = 0; x < client.Width(); ++x)
                pixels.push_back(dc.GetPixel(x, y));
        }
        return pixels;
    };
    const std::vector<COLORREF> scrolled = picture();
    tree.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_TRUE(scrolled == picture());
}

// ---- Texts and rows that nobody means

class TreeListOddTexts : public TreeListEdit
{
};

TEST_F(TreeListOddTexts, a_typed_separator_makes_two_cells)
{
    host.edit(a, inPlain);
    host.retype(L"x\u00b6y");
    host.press(VK_RETURN);
    EXPECT_EQ(host.cell(a, 2), L"x");
    EXPECT_EQ(host.cell(a, 3), L"y");
    host.edit(a, inPlain);
    EXPECT_EQ(editorText(), L"x");
}

TEST_F(TreeListOddTexts, a_cell_of_a_million_characters_is_edited_and_committed)
{
    const std::wstring text(1000000, L'w');
    tree.SetItemText(a, 2, text.c_str());
    host.edit(a, inPlain);
    ASSERT_NE(host.editor(), nullptr);
    EXPECT_EQ(editorText().size(), text.size());
    host.press(VK_RETURN);
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_EQ(host.cell(a, 2).size(), text.size());
    EXPECT_EQ(host.cell(b, 2), L"second");
}

TEST_F(TreeListOddTexts, a_node_without_a_record_is_selected_and_never_edited)
{
    HTREEITEM const bare =
        tree.CTreeCtrl::InsertItem(TVIF_TEXT | TVIF_PARAM, L"", 0, 0, 0, 0, 4711, TVI_ROOT, TVI_LAST);
    host.edit(bare, inPlain);
    EXPECT_EQ(tree.GetSelectedItem(), bare);
    EXPECT_EQ(host.editor(), nullptr);
    host.press('5');
    EXPECT_EQ(host.editor(), nullptr);
    EXPECT_FALSE(tree.SetItemValue(bare, 1, 1.0));
    EXPECT_FALSE(tree.SetItemColor(bare, 0, TRUE));
    EXPECT_FALSE(tree.SetItemBold(bare, TRUE, TRUE));
    EXPECT_TRUE(tree.SortItems(1, TRUE, nullptr));
    EXPECT_EQ(tree.GetRootItem(), bare) << "as an empty text";
}

TEST_F(TreeListOddTexts, columns_far_out_of_range_are_harmless_everywhere)
{
    for (const int column : {INT_MIN, -1, 3, 1000000, INT_MAX})
    {
        tree.SetCanEditColumn(column, true);
        tree.SetColumnEditStyle(column, 1);
        EXPECT_FALSE(tree.GetCanEditColumn(column)) << column;
        EXPECT_EQ(tree.GetColumnWidth(column), 0) << column;
        EXPECT_EQ(tree.GetColumnAlign(column), 0) << column;
        EXPECT_EQ(host.cell(a, column), L"") << column;
        EXPECT_EQ(tree.FormatValue(1.5, column), L" 1.50") << column;
        EXPECT_EQ(tree.GetItemValue(a, column), 1.5) << column;
        EXPECT_TRUE(tree.SortItems(column, TRUE, nullptr)) << column;
        host.frame->SortTree(column, FALSE, tree.GetRootItem());
        host.frame->GetHeaderCtrl().SetSortImage(column, column);
        OpenTree::editColumn(tree) = column;
        tree.SetCanEditColumn(1, false);
        tree.SelectItem(a);
        tree.SendMessage(WM_KEYDOWN, '5', 1);
        EXPECT_EQ(host.editor(), nullptr) << column;
        tree.SetCanEditColumn(1, true);
    }
    EXPECT_EQ(host.cell(a, 2), L"first");
}

// ---- What the control answers for the platform

TEST_F(TreeListOddTexts, reflected_notifications_keep_the_result_of_a_click_and_clear_that_of_the_focus)
{
    EXPECT_EQ(OpenTree::resultOf(tree, NM_CLICK), 7);
    EXPECT_EQ(OpenTree::resultOf(tree, NM_KILLFOCUS), 0);
}

TEST_F(TreeListOddTexts, a_row_that_was_just_filled_is_none_once_it_is_gone)
{
    HTREEITEM const gone = host.add(L"short lived");
    EXPECT_EQ(host.cell(gone, 0), L"short lived");
    EXPECT_TRUE(tree.DeleteItem(gone));
    EXPECT_EQ(host.cell(gone, 0), L"");
    EXPECT_FALSE(tree.SetItemText(gone, 0, L"x"));
    HTREEITEM const child = host.add(L"child", a);
    tree.Expand(a, TVE_EXPAND);
    EXPECT_EQ(host.cell(child, 0), L"child");
    tree.Expand(a, TVE_COLLAPSE | TVE_COLLAPSERESET);
    EXPECT_EQ(host.cell(child, 0), L"") << "the platform took it away";
    EXPECT_EQ(host.cell(b, 0), L"b");
    tree.CTreeCtrl::SetItemData(b, 99);
    EXPECT_EQ(host.cell(b, 0), L"") << "somebody wrote another parameter";
}
} // namespace
