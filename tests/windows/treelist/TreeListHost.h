// A host window with a tree list, its members open to the tests, and what the host hears.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>
#include "oxa/treelist/KxTreeListFrame.h"
#include "support/HostLoop.h"
#include "treelist/RowStore.h"

/// Reaches the members of the tree that only the frame sees otherwise.
class OpenTree : public CKxTreeListViewCtrl
{
public:
    static CEdit* editor(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_pEdit); }
    static int editState(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_editState); }
    static int& editColumn(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_editColumn); }
    static bool& keyEdit(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_keyEdit); }
    static int& offset(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_horizontalOffset); }
    static CKxHeaderCtrl& header(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_header); }
    static bool headerCustomDraw(CKxTreeListViewCtrl& tree) { return tree.*(&OpenTree::m_headerCustomDraw); }
    /// What a result of 7 becomes when the tree's parent hands such a notification back to it.
    static LRESULT resultOf(CKxTreeListViewCtrl& tree, int code)
    {
        NMHDR notification = {tree.m_hWnd, static_cast<UINT_PTR>(tree.GetDlgCtrlID()), static_cast<UINT>(code)};
        LRESULT result = 7;
        (tree.*(&OpenTree::OnChildNotify))(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification), &result);
        return result;
    }
};

struct Heard
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

/// A tree list at the top left of a popup window. The host hears 0x435, 0x436 and double clicks.
class TreeListHost : public CWnd, public HostLoop
{
public:
    enum : UINT
    {
        listId = 100
    };

    explicit TreeListHost(CSize size = CSize(400, 300)) : frame(std::make_unique<CKxTreeListFrame>())
    {
        CKxTreeListFrame::RegisterClassW();
        const CRect place(50, 50, 150 + size.cx, 150 + size.cy);
        if (!CreateEx(0, AfxRegisterWndClass(0), L"tree list", WS_POPUP, place, nullptr, 0))
            throw std::runtime_error("the host could not be created");
        ::CreateWindowExW(0, L"KORVELTREELISTCTRL", L"", WS_CHILD | WS_VISIBLE, 0, 0, size.cx, size.cy, m_hWnd,
                          reinterpret_cast<HMENU>(UINT_PTR{listId}), nullptr, nullptr);
        if (!frame->SubclassDlgItem(listId, this))
            throw std::runtime_error("the tree list could not be created");
        frame->MoveWindow(0, 0, size.cx + 1, size.cy); // the first size that the frame hears
        frame->MoveWindow(0, 0, size.cx, size.cy);
    }
    ~TreeListHost() override
    {
        onHear = {};
        DestroyWindow();
    }

    CKxTreeListViewCtrl& tree() { return frame->m_tree; }
    CEdit* editor() { return OpenTree::editor(tree()); }
    void show()
    {
        ShowWindow(SW_SHOW);
        SetForegroundWindow();
        tree().SetFocus();
        UpdateWindow();
        pump();
    }
    HTREEITEM add(const wchar_t* text, HTREEITEM parent = TVI_ROOT)
    {
        return tree().InsertItem(text, parent, TVI_LAST);
    }
    std::wstring cell(HTREEITEM item, int column) { return std::wstring(tree().GetItemText(item, column)); }

    /// Replaces what stands in the open editor.
    void retype(const wchar_t* text)
    {
        editor()->SetSel(0, -1);
        type(text);
    }
    /// A real click at that x of the tree, in the middle of the row.
    void clickRow(HTREEITEM item, int x)
    {
        CRect row;
        tree().GetItemRect(item, &row, FALSE);
        CPoint point(x, row.CenterPoint().y);
        tree().ClientToScreen(&point);
        click(point);
        pump(10);
    }
    /// Selects a row and opens the editor at that x, by two clicks apart.
    void edit(HTREEITEM item, int x)
    {
        tree().SelectItem(item);
        clickRow(item, x);
    }

    std::unique_ptr<CKxTreeListFrame> frame;
    std::vector<Heard> heard;                 ///< wParam of 0x435 and 0x436: the row itself
    std::function<void(const Heard&)> onHear; ///< runs inside the handler

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool ofEdit = message == 0x435 || message == 0x436;
        if (ofEdit || message == WM_LBUTTONDBLCLK)
        {
            const Heard one{message, ofEdit ? *reinterpret_cast<const WPARAM*>(wParam) : wParam, lParam};
            heard.push_back(one);
            if (onHear)
                onHear(one);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};
