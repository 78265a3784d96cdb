// A tree list with rows and columns that can be edited: column 0 cannot, column 1 is of lengths, column 2 is plain text.
#pragma once
#include <gtest/gtest.h>
#include "TreeListHost.h"
#include "kitrel/KxUnitCtrl.h"
#include "support/AnswerModal.h"

class TreeListEdit : public testing::Test
{
protected:
    // Widths of the columns, and a place inside each.
    enum : int
    {
        width0 = 150,
        width1 = 100,
        width2 = 80,
        inName = 60,
        inLength = 200,
        inPlain = 300
    };

    TreeListEdit()
    {
        host.frame->SetCanModifyLabels(true);
        tree.InsertColumn(0, L"Name", 0, width0, 0);
        tree.InsertColumn(1, L"Length", 1, width1, 0);
        tree.InsertColumn(2, L"Plain", 0, width2, 0);
        tree.SetUnitManager(&manager);
        tree.SetCanEditColumn(1, true);
        tree.SetColumnEditStyle(1, 1);
        tree.SetCanEditColumn(2, true);
        a = addRow(L"a", 1.5, L"first");
        b = addRow(L"b", 2.5, L"second");
        c = addRow(L"c", 3.5, L"third");
        host.show();
        tree.SelectItem(c);
    }

    HTREEITEM addRow(const wchar_t* name, double length, const wchar_t* plain, HTREEITEM parent = TVI_ROOT)
    {
        HTREEITEM const row = host.add(name, parent);
        tree.SetItemValue(row, 1, length);
        tree.SetItemText(row, 2, plain);
        return row;
    }
    std::wstring editorText()
    {
        CString text;
        if (host.editor() != nullptr)
            host.editor()->GetWindowText(text);
        return std::wstring(text);
    }
    static WPARAM rowOf(HTREEITEM item) { return reinterpret_cast<WPARAM>(item); }
    /// What a commit of one cell sends.
    static std::vector<Heard> CommitOf(HTREEITEM item, int column)
    {
        return {{0x435, rowOf(item), column}, {0x436, rowOf(item), column}};
    }

    CKxUnitManager manager;
    TreeListHost host{CSize(420, 300)};
    CKxTreeListViewCtrl& tree = host.tree();
    HTREEITEM a = nullptr;
    HTREEITEM b = nullptr;
    HTREEITEM c = nullptr;
};
