// A tree list with columns of units, and a user who edits its cells by mouse and keys.
#pragma once
#include <gtest/gtest.h>
#include <optional>

#include "kitrel/KxUnitCtrl.h"
#include "kitrel/KxUnitManager.h"
#include "support/AnswerModal.h"
#include "support/RealInput.h"
#include "windows/treelist/TreeListHost.h"

constexpr int nameColumn = 0;
constexpr int lengthColumn = 1;
constexpr int noteColumn = 2;
constexpr int massColumn = 3;
constexpr int lengthFamily = 1;
constexpr int massFamily = 4;

/// A beam of 2.5 m and a column of 4 m; lengths in metres with three decimals, masses in kilograms with two.
class UnitColumns : public testing::Test, public HostLoop
{
protected:
    UnitColumns()
    {
        host.frame->SetCanModifyLabels(true);
        tree.SetUnitManager(&*manager);
        tree.InsertColumn(nameColumn, L"Name", 0, 120, 0);
        tree.InsertColumn(lengthColumn, L"Length", 1, 100, 0);
        tree.InsertColumn(noteColumn, L"Note", 0, 80, 0);
        tree.InsertColumn(massColumn, L"Mass", 1, 90, 0);
        for (const int column : {lengthColumn, noteColumn, massColumn})
            tree.SetCanEditColumn(column, true);
        tree.SetColumnEditStyle(lengthColumn, lengthFamily);
        tree.SetColumnEditStyle(massColumn, massFamily);
        beam = host.add(L"beam");
        post = host.add(L"post");
        tree.SetItemValue(beam, lengthColumn, 2.5);
        tree.SetItemValue(post, lengthColumn, 4.0);
        tree.SelectItem(beam);
        host.show();
    }

    CKxUnitCtrl* unitEditor() { return dynamic_cast<CKxUnitCtrl*>(host.editor()); }
    std::wstring editorText()
    {
        CString text;
        if (host.editor() != nullptr)
            host.editor()->GetWindowText(text);
        return std::wstring(text);
    }
    bool editorHasFocus() { return host.editor() != nullptr && ::GetFocus() == host.editor()->m_hWnd; }

    /// A real click into a cell, by the widths of the columns. `fromRight`: pixels before the cell's right edge.
    void clickCell(HTREEITEM item, int column, int fromRight = 15)
    {
        CRect row;
        ASSERT_TRUE(tree.GetItemRect(item, &row, FALSE));
        int right = 0;
        for (int i = 0; i <= column; ++i)
            right += tree.GetColumnWidth(i);
        CPoint point(right - fromRight, row.CenterPoint().y);
        tree.ClientToScreen(&point);
        click(point);
        pump();
    }
    /// Opens the editor of a cell as a user does: the first click selects, the second one edits.
    void edit(HTREEITEM item, int column)
    {
        if (tree.GetSelectedItem() != item)
            clickCell(item, column);
        clickCell(item, column);
        ASSERT_NE(host.editor(), nullptr);
    }
    /// What stands in the editor is replaced by the keyboard.
    void overtype(const wchar_t* text)
    {
        press(VK_HOME);
        press(VK_END, {VK_SHIFT});
        if (*text == 0)
            press(VK_DELETE);
        type(text);
    }
    /// The words of the last message box.
    static std::wstring told()
    {
        const std::wstring& seen = AnswerModal::seen();
        return seen.substr(seen.find(L'|') + 1);
    }
    static Heard before(HTREEITEM row, int column) { return {0x435, reinterpret_cast<WPARAM>(row), column}; }
    static Heard after(HTREEITEM row, int column) { return {0x436, reinterpret_cast<WPARAM>(row), column}; }

    std::optional<CKxUnitManager> manager{true};
    TreeListHost host{CSize(420, 300)};
    CKxTreeListViewCtrl& tree = host.tree();
    HTREEITEM beam = nullptr;
    HTREEITEM post = nullptr;
};
