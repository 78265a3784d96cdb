// The frame of the tree list: the window that a dialog holds, with the header, the tree and the horizontal scroll bar.
#pragma once

#include <afxcmn.h>

#include <cstdint>
#include <optional>

#include "oxa/Export.h"
#include "oxa/treelist/KxTreeListViewCtrl.h"

namespace treelist
{
struct Measures;
}

/// Stands in the place of a custom control of the window class "KORVELTREELISTCTRL" and creates its three children: the
/// header, the tree (`m_tree`) and the horizontal scroll bar.
///
///     CKxTreeListFrame::RegisterClassW();              // once, before the dialog opens
///     m_list.SubclassDlgItem(IDC_LIST, this);          // in OnInitDialog
///     m_list.m_tree.InsertColumn(0, L"Name", 0, 120, 0);
///     HTREEITEM row = m_list.m_tree.InsertItem(L"Beam", TVI_ROOT, TVI_LAST);
///
/// A click on a column's header sorts by it: ascending at first, then in turns (the first column ever inserted counts as
/// sorted ascending already). Dragging a divider, like every insertion of a row, recalculates the scroll bar, and that
/// cancels an open edit.
///
/// Messages that come to the frame's parent: 0x435 and 0x436 of the tree; `WM_CONTEXTMENU` with the `CWnd` of the clicked
/// window as wParam and 0 as lParam; every `WM_NOTIFY` of the children but the header's clicks and changes; a double click
/// past the first column. The parent may destroy the frame, and delete it, while it handles one of them, whatever the tree or
/// the header is doing.
class OXA_API CKxTreeListFrame : public CWnd
{
    DECLARE_DYNAMIC(CKxTreeListFrame)

public:
    /// The ids of the children.
    enum ChildId
    {
        ID_HEADER = 337,
        ID_TREE = 373,
        ID_SCROLL_BAR = 377
    };

    CKxTreeListFrame();
    ~CKxTreeListFrame() override;

    /// Registers the window class "KORVELTREELISTCTRL" for dialog templates. Called again it changes nothing.
    static void RegisterClassW();

    /// Attaches to the dialog item and creates the children. 1, or 0 when there is no such item.
    BOOL SubclassDlgItem(UINT id, CWnd* parent);

    /// Creates the children of the attached window; `SubclassDlgItem` calls it. Called again it changes nothing.
    void Initialize();

    /// The header: sort images, and the list that they are drawn from.
    CKxHeaderCtrl& GetHeaderCtrl();

    /// Whether the tree has a vertical scroll bar: the upper end of its range isn't 0.
    BOOL VerticalScrollVisible();
    /// Whether there is something to scroll horizontally: the upper end of the bar's range isn't 0.
    BOOL HorizontalScrollVisible();

    /// The next multiple of `b` above `a`, and `a` + `b` when `a` is a multiple already: (`a` / `b` + 1) * `b`. `a` for a
    /// `b` of 0. Held at the ends of int.
    int StretchWidth(int a, int b);

    /// Recalculates the horizontal bar from the column widths and the sizes, and cancels an open edit. Every insertion of a
    /// row calls it.
    void ResetScrollBar();

    /// Sorts the children of each node of the sibling chain from `first`, and the levels below, by column `col`. Kept on
    /// purpose: below a node the walk goes on from the child that was first before the sort, so that what was sorted in
    /// front of it is not visited.
    void SortTree(int col, int ascending, HTREEITEM first);

    /// The first top-level row whose cell 0 is `text`, by case; null when none is.
    HTREEITEM GetElementItemByString(CString text);

    /// The child of `parent` (null: the top level) with the cells `name` and `value`, which is added when there is none.
    HTREEITEM InsertItemIfNecessary(HTREEITEM parent, CString name, int value);
    /// The same with a numeric value; two values that differ by at most 1e-10, whatever their size, are the same.
    HTREEITEM InsertItemIfNecessary(HTREEITEM parent, CString name, double value);

    /// Expands each top-level node, none of the levels below.
    void ExpandTree();

    /// Whether cells may be edited in place. Once the tree exists its style `TVS_EDITLABELS` follows, and the frame's flag
    /// follows that style.
    void SetCanModifyLabels(const bool& can);
    bool GetCanModifyLabels() const;

    /// Whether a click on a header moves rows. The sort images change in any case. True at first.
    void SetEnableTreeSort(const bool& enable);
    bool GetCanSortTree() const;

    /// Called before and after the tree handles the left button, with the mouse flags and the point in client coordinates of
    /// the tree. They do nothing here.
    virtual void OnTreeListLeftClickBefore(UINT flags, CPoint point);
    virtual void OnTreeListLeftClickAfter(UINT flags, CPoint point);

    BOOL PreTranslateMessage(MSG* message) override;

    CKxTreeListViewCtrl m_tree; ///< the rows and columns

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnTreeListViewLeftClickBefore(WPARAM flags, LPARAM point);
    afx_msg LRESULT OnTreeListViewLeftClickAfter(WPARAM flags, LPARAM point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnSetFocus(CWnd* before);
    DECLARE_MESSAGE_MAP()

    CScrollBar m_scrollBar; ///< the horizontal one
    bool m_canModifyLabels = false;
    bool m_treeSortEnabled = true;

private:
    friend class CKxTreeListViewCtrl; // its ResetVertScrollBar serves the frame

    void CopyParentFont();
    void OnHeaderClick(int column);
    void ShowSortImage(int column, int image);
    void OnHeaderChanged();
    treelist::Measures Measure() const;
    void ShowBar(bool show);
    void SetBarRange(int low, int high);
    void PutHeader(int width);
    void ShowFromTheLeft(const treelist::Measures& now);
    void FollowHeader();
    void CancelEdit();
    void ResetVertical();
    void PlaceChildren(bool repaint);
    int ScrollLimit();
    UINT ThumbOf(UINT pos);
    void ScrollTo(int current, int position);
    void ShiftEdit(int shift);

    /// What a recalculation of the bar goes by, as far as it can be asked at little cost.
    struct BarInputs
    {
        CSize frame;
        int columns = 0;
        int offset = 0;
        bool barShown = false;
        int besideBar = 0; ///< the width of the vertical bar that the shown one stands beside
        std::uint64_t messages = 0;
        bool operator==(const BarInputs&) const = default;
    };
    BarInputs ReadInputs(bool barShown);
    bool IsSettled();
    void PaintTreeAnew();

    bool m_recalculationHeld = false;   ///< changes of header items are made up for later
    std::optional<BarInputs> m_settled; ///< the inputs of a recalculation that had nothing to set; by the same none has
};
