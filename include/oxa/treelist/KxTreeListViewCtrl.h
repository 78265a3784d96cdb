// The tree of the tree list: rows with columns, sorted, moved and edited in place.
#pragma once

#include <afxcmn.h>
#include <afxcoll.h>

#include <memory>
#include <vector>

#include "kitrel/KxUnitManager.h"
#include "oxa/Export.h"
#include "oxa/treelist/ColumnTables.h"
#include "oxa/treelist/KxHeaderCtrl.h"
#include "oxa/treelist/KxTreeListRow.h"

class CKxTreeListFrame;

namespace treelist
{
template <typename Node> class KnownNodes;
class NativeTree;
class RecentNode;
class RowStore;
class TreeWork;
struct Columns;
struct CellPlace;
} // namespace treelist

/// What the next `ProcessEditNotification` does.
enum eEditState : int
{
    EDIT_STATE_NONE = 0,    ///< nothing is being edited
    EDIT_STATE_EDITING = 1, ///< the edit is committed
    EDIT_STATE_CANCEL = 2   ///< the edit is dropped
};

/// Sent to the parent (the frame) first and last of all when the left button goes down. wParam: the mouse flags; lParam:
/// pointer to the `CPoint` that was clicked, in client coordinates of the tree.
inline constexpr UINT WM_KX_TREELIST_CLICK_BEFORE = 0x433;
inline constexpr UINT WM_KX_TREELIST_CLICK_AFTER = 0x434;
/// Sent to the parent's parent (the dialog) before and after an edit writes its cell. wParam: pointer to the `HTREEITEM` of
/// the row; lParam: the column.
inline constexpr UINT WM_KX_TREELIST_EDIT_BEFORE = 0x435;
inline constexpr UINT WM_KX_TREELIST_EDIT_AFTER = 0x436;

/// A tree control with columns.
///
/// The platform's tree keeps the structure, the expansion and the selection; the label of each node is the empty text. What
/// a row shows is in a record of its own, a `CKxTreeListRow`, on the node's parameter. A node without such a record (put in
/// by a message from outside, or by a full insertion whose mask lacks `TVIF_PARAM`) reads as empty and takes no writes.
///
/// Columns are numbered from 0, in the order of the header. A cell may have any column number from 0 on, whether or not
/// there is a header item for it; a negative one reads as empty and writes nothing.
///
/// Messages to the parent: 0x433 and 0x434 around each click. To the parent's parent: 0x435 and 0x436 around each cell that
/// an edit writes; `WM_LBUTTONDBLCLK` (wParam 0, lParam the point, in client coordinates of the tree) for a double click
/// past the first column. A handler may change rows, end the edit, or destroy the control.
///
/// A handler of the notifications that the platform's tree itself sends (`WM_NOTIFY`) may do so too, in a tree list's frame. What
/// the platform's tree is in the middle of and goes on with behind the notification is spared until it is at rest:
/// - Deleting such a row, or one above it, is put off: it answers as ever, the row goes at the end. While a row is painted or
///   deleted, or its image asked for, that holds for all rows. Deleting all rows then spares those that are inserted later.
/// - Moving such a row answers null, collapsing the row above it with `TVE_COLLAPSERESET` answers 0; nothing is changed.
/// - While rows are deleted, nothing is inserted below those, neither they nor rows that are out of sight are selected, and
///   nothing is expanded, collapsed or sorted: null or 0.
/// - A destroyed window is taken away at once, and ends at the end.
class OXA_API CKxTreeListViewCtrl : public CTreeCtrl
{
    DECLARE_DYNAMIC(CKxTreeListViewCtrl)

public:
    CKxTreeListViewCtrl();
    ~CKxTreeListViewCtrl() override;

    // Columns

    /// Inserts an owner-drawn header item at `nCol`. `format`: 1 right-aligned, 2 centred, anything else left-aligned.
    /// `width` in pixels, -1 for none. `subItem` is ignored. The column cannot be edited and has no style at first. Answers
    /// the header's index, -1 when the header refused.
    ///
    /// The settings of editing are numbered in the order of insertion, whatever place a column takes in the header.
    int InsertColumn(int nCol, const wchar_t* text, int format, int width, int subItem);
    /// In pixels; 0 when there is no such column.
    int GetColumnWidth(int col);
    /// 0 left, 1 right, 2 centred; 0 when there is no such column.
    int GetColumnAlign(int col);
    /// The number of columns inserted.
    int GetColumnsNum() const { return m_columnCount; }
    /// The sum of the columns' widths, in pixels, as `RecalcColumnsWidth` left it.
    int GetColumnsWidth() const { return m_columnsWidth; }
    void RecalcColumnsWidth();

    /// Whether cells of `col` may be edited. While labels cannot be modified, and outside the columns, the write does nothing
    /// and the read answers false.
    void SetCanEditColumn(const int& col, const bool& can);
    bool GetCanEditColumn(const int& col);
    /// The same for the cell under a point, in client coordinates; with the row of the selection and the edit column while a
    /// key opens the editor.
    bool GetCanEditColumn(const CPoint& point);
    /// 1 or more: the family of units (see `CKxUnit`) in which the column's values are shown and typed. Under the same gate.
    void SetColumnEditStyle(const int& col, const int& style);
    /// Not owned; null for none. Once it ends, the control is without one.
    void SetUnitManager(CKxUnitManager* manager);
    /// Keeps the negation of `draw`. Nothing in this library reads it.
    void SetHeaderCustomDraw(const bool& draw);
    /// Whether cells can be edited in place at all; false at first.
    void SetCanModifyLabels(const bool& can);
    bool GetCanModifyLabels() const { return m_columns.IsOpen(); }

    // Rows

    /// Inserts a row whose cell 0 is `text` (null: empty), below `parent`, behind `after`. Cancels an open edit, through the
    /// frame's `ResetScrollBar`. Null on failure.
    HTREEITEM InsertItem(const wchar_t* text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(const wchar_t* text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    /// `mask` goes to the platform's tree as it is; without `TVIF_PARAM` the node has no record. `data` is the caller's word.
    HTREEITEM InsertItem(unsigned mask, const wchar_t* text, int image, int selectedImage, unsigned state,
                         unsigned stateMask, LPARAM data, HTREEITEM parent, HTREEITEM after);

    /// Writes one cell. 0 when the node has no record, or when the packed row would get too long (64 million characters).
    /// Kept on purpose: while cell 0 is empty, a second write of cell 1 lands in cell 0.
    BOOL SetItemText(HTREEITEM item, int col, const wchar_t* text);
    /// Reads one cell; empty when there is none.
    CString GetItemText(HTREEITEM item, int col);
    /// Kept on purpose: of the first top-level row, whatever `row` is.
    CString GetItemText(int row, int col);
    /// Stores the row's number, and writes it into cell `col` as `FormatValue` has it. 0 when the node has no record.
    BOOL SetItemValue(HTREEITEM item, int col, double value);
    /// The row's number, whatever `col` is; 0.0 when the node has no record.
    double GetItemValue(HTREEITEM item, int col);
    /// `value` (SI) in the working unit of the column's style; "%5.2f" without style or unit manager.
    CString FormatValue(double value, int col);
    /// The caller's word: 32 bits are written, 64 are read. 0 when the node has no record; a word never written is 0.
    BOOL SetItemData(HTREEITEM item, unsigned long data);
    unsigned __int64 GetItemData(HTREEITEM item) const;
    /// `redraw` non-zero: the whole control is painted anew. 1, or 0 when the node has no record.
    BOOL SetItemColor(HTREEITEM item, COLORREF color, BOOL redraw);
    BOOL SetItemBold(HTREEITEM item, BOOL bold, BOOL redraw);

    /// Kept on purpose: the first top-level row, whatever `index` is; null in an empty tree.
    HTREEITEM GetTreeItem(int index);
    /// 0 for the first top-level row and in an empty tree. Warning: for any other row this call does not return; kept on
    /// purpose.
    int GetListItem(HTREEITEM item);
    /// The insertions by `InsertItem` less the calls of `DeleteItem` that removed a node, those made by moves included: not
    /// the number of rows. `DeleteAllItems` leaves it.
    int GetItemCount() const { return m_itemCount; }

    /// Copies a row without children. Null when it has children or no record.
    HTREEITEM CopyItem(HTREEITEM item, HTREEITEM parent, HTREEITEM after);
    /// Moves a row without children. Null, and nothing is changed, when it has children or no record, or when `parent` or
    /// `after` is the row itself.
    HTREEITEM MoveItem(HTREEITEM item, HTREEITEM parent, HTREEITEM after);
    /// Moves a row with everything below it. The moved rows are collapsed and not selected. Null, and nothing is changed, when
    /// `parent` or `after` is the row itself or lies below it. `resetScroll`: recalculates the scroll bars when the row had
    /// children.
    HTREEITEM MoveItemAndChildren(HTREEITEM item, HTREEITEM parent, HTREEITEM after, bool resetScroll);
    /// Removes a node with everything below it. 0 when it has no record. Kept on purpose: the records stay allocated until
    /// the process ends.
    BOOL DeleteItem(HTREEITEM item);
    /// Kept on purpose: removes the first top-level row, whatever `row` is.
    BOOL DeleteItem(int row);
    BOOL DeleteAllItems();
    /// Destroys the records of the sibling chain from `first` and of everything below. The nodes stay, without records.
    void MemDeleteAllItems(HTREEITEM first);

    /// Sorts the direct children of `parent` (null or `TVI_ROOT`: the top level) by the texts of column `col`. Rows that compare equal keep
    /// their order. See `CompareFunc`.
    BOOL SortItems(int col, BOOL ascending, HTREEITEM parent);
    /// Compares two `CKxTreeListRow`s by the column and the flag (0: descending) in the two ints at `sortParam`: as lengths in
    /// feet and inches when both are such, else by the text up to the first digit and the number there, else as texts blind to
    /// case. Kept on purpose: descending turns only a result of exactly 1 or -1 around, and a comparison of texts gives the
    /// difference of the characters.
    static int CALLBACK CompareFunc(LPARAM a, LPARAM b, LPARAM sortParam);

    // Painting and editing

    /// Draws one cell. `width`: of the column, in pixels; `align`: 0 left, 2 centred, any other right. A text that is too long
    /// ends in "...".
    void DrawItemText(CDC* dc, CString text, CRect rect, int width, int align);
    /// Finds the column under a point (client coordinates) and the rectangle for its editor. Always true. Kept on purpose:
    /// from column 2 on the left edge is the width of the column before, not the sum of all.
    bool GetSelectionData(const CPoint& point, int& column, CRect& rect);
    /// Creates the editor of a cell; null for a column that has no settings. The caller owns it.
    CEdit* GetEditControl(int column, CRect& rect);
    /// Ends the edit as the edit state says; false when a refused value keeps the editor open.
    bool ProcessEditNotification();
    /// Whether no edit is in the way of closing the tree; ends an open one.
    bool GetCanUpdateCloseTree();
    /// Drops the editor, if there is one, and sets the edit state to 0.
    void FreeEditControl();
    void SetEditState(const eEditState& state);

    /// Adapts the tree and the frame's horizontal bar after the vertical bar may have come or gone.
    void ResetVertScrollBar();

protected:
    void DoDataExchange(CDataExchange* dx) override;

    afx_msg void OnPaint();
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnDestroy();
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnBeginLabelEdit(NMHDR* notify, LRESULT* result);
    afx_msg void OnClick(NMHDR* notify, LRESULT* result);
    afx_msg void OnKillfocus(NMHDR* notify, LRESULT* result);
    afx_msg LRESULT OnEditKillFocus(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInsertNode(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDeleteNode(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetNode(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnExpandNode(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSortNodesByLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSortNodesByHost(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnShowNode(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    friend class CKxTreeListFrame; // fills the header, its font and images, and scrolls

    CKxHeaderCtrl m_header;     ///< created by the frame
    CFont m_headerFont;         ///< filled by the frame
    CImageList m_sortImages;    ///< filled by the frame
    CDWordArray m_unused;       ///< nothing uses it
    int m_horizontalOffset = 0; ///< x origin of the drawing, 0 or negative
    CEdit* m_pEdit = nullptr;   ///< the open editor, owned; a `CKxUnitCtrl` in a column of units
    bool m_keyEdit = false;     ///< a key is opening the editor
    int m_editColumn = -1;
    HTREEITEM m_editedItem = nullptr; ///< the row that is being edited, null once it is gone
    unsigned m_editsOpened = 0;       ///< tells one edit from the next
    eEditState m_editState = EDIT_STATE_NONE;

    int m_columnCount = 0;
    int m_columnsWidth = 0;
    int m_itemCount = 0;
    treelist::ColumnTables m_columns;         ///< open while labels can be modified
    CKxUnitManager* m_pUnitManager = nullptr; ///< read by UnitManager() alone
    std::weak_ptr<const void> m_unitManagerLife;
    bool m_headerCustomDraw = false;

private:
    void PaintRows(CDC& dc, const treelist::Columns& columns, const CRect& clip);
    void PaintCells(CDC& dc, const CKxTreeListRow& row, const std::vector<treelist::CellPlace>& places);
    CWnd* ParentOfFrame() const;
    CKxUnitManager* UnitManager() const { return m_unitManagerLife.expired() ? nullptr : m_pUnitManager; }
    bool IsColumnOfUnits(int column) const;
    bool WriteEditedCell(const CString& trimmed);
    void CreateEditor(HTREEITEM item, int column, CRect& rect);
    void ClickRow(HTREEITEM item);
    bool PressButton(CPoint point);
    void DropLostEditor();
    void LeaveBusyWindow();
    LRESULT ForgetNode();
    LRESULT SortNodes(HTREEITEM parent, bool below);
    void WatchWork();
    LRESULT Remove(HTREEITEM node);
    LRESULT RemoveNow();
    LRESULT PutOff(HTREEITEM node);
    LRESULT RemoveAllThatMayGo();
    void RemoveLeaving();
    void EndEditOf(HTREEITEM node);
    bool MayMove(HTREEITEM node, HTREEITEM parent) const;

    friend class treelist::NativeTree;

    std::unique_ptr<treelist::RowStore> m_rows;
    std::unique_ptr<treelist::RecentNode> m_recent;
    std::unique_ptr<treelist::KnownNodes<HTREEITEM>> m_known;
    std::shared_ptr<treelist::TreeWork> m_work;
};
