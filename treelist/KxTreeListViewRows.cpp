// The tree of the tree list: operations on rows. What they do is in TreeRows.h; here the platform's tree does it.
#include "NativeTree.h"
#include "TreeWork.h"
#include "ValueText.h"

namespace
{

using Rows = treelist::TreeRows<treelist::NativeTree>;

constexpr unsigned rowMask = TVIF_TEXT | TVIF_PARAM;
constexpr unsigned rowMaskWithImages = rowMask | TVIF_IMAGE | TVIF_SELECTEDIMAGE;

Rows RowsOf(const CKxTreeListViewCtrl& tree, treelist::RowStore& store)
{
    return {treelist::NativeTree(tree), store};
}

/// Sets one field of a row's record; 0 when there is none.
template <typename Field> BOOL SetField(Rows rows, HTREEITEM item, Field CKxTreeListRow::*field, Field value)
{
    return rows.Rewrite(item,
                        [field, value](CKxTreeListRow& row)
                        {
                            row.*field = value;
                            return true;
                        });
}

/// A new look is shown at once where that is asked for.
BOOL ShowLook(CWnd& tree, BOOL isSet, BOOL redraw)
{
    if (isSet && redraw)
        tree.Invalidate();
    return isSet ? 1 : 0;
}

/// A row for that store.
CKxTreeListRow RowNamed(const wchar_t* text, const treelist::RowStore& store)
{
    CKxTreeListRow row;
    if (const int room = store.UsualLength(); room > 0)
        row.texts.Preallocate(room);
    treelist::RowCells::Write(row.texts, row.separator, 0, text);
    return row;
}

} // namespace

// ---- Insertion

HTREEITEM CKxTreeListViewCtrl::InsertItem(const wchar_t* text, HTREEITEM parent, HTREEITEM after)
{
    treelist::NodeBlock block;
    block.mask = rowMask;
    return RowsOf(*this, *m_rows).Insert(block, RowNamed(text, *m_rows), m_itemCount, parent, after);
}

HTREEITEM CKxTreeListViewCtrl::InsertItem(const wchar_t* text, int image, int selectedImage, HTREEITEM parent,
                                          HTREEITEM after)
{
    treelist::NodeBlock block;
    block.mask = rowMaskWithImages;
    block.image = image;
    block.selectedImage = selectedImage;
    return RowsOf(*this, *m_rows).Insert(block, RowNamed(text, *m_rows), m_itemCount, parent, after);
}

HTREEITEM CKxTreeListViewCtrl::InsertItem(unsigned mask, const wchar_t* text, int image, int selectedImage,
                                          unsigned state, unsigned stateMask, LPARAM data, HTREEITEM parent,
                                          HTREEITEM after)
{
    treelist::NodeBlock block;
    block.mask = mask;
    block.image = image;
    block.selectedImage = selectedImage;
    block.state = state;
    block.stateMask = stateMask;
    CKxTreeListRow row = RowNamed(text, *m_rows);
    row.data = static_cast<std::uint64_t>(data);
    return RowsOf(*this, *m_rows).Insert(block, row, m_itemCount, parent, after);
}

// ---- Cells and values

BOOL CKxTreeListViewCtrl::SetItemText(HTREEITEM item, int col, const wchar_t* text)
{
    return RowsOf(*this, *m_rows).SetCell(item, col, text);
}

CString CKxTreeListViewCtrl::GetItemText(HTREEITEM item, int col)
{
    return RowsOf(*this, *m_rows).Cell(item, col);
}

CString CKxTreeListViewCtrl::GetItemText(int row, int col)
{
    return GetItemText(GetTreeItem(row), col);
}

BOOL CKxTreeListViewCtrl::SetItemValue(HTREEITEM item, int col, double value)
{
    return RowsOf(*this, *m_rows).SetValue(item, col, value, FormatValue(value, col));
}

double CKxTreeListViewCtrl::GetItemValue(HTREEITEM item, int)
{
    const CKxTreeListRow* const row = RowsOf(*this, *m_rows).RowOf(item);
    return row == nullptr ? 0.0 : row->value;
}

CString CKxTreeListViewCtrl::FormatValue(double value, int col)
{
    return treelist::ValueText::Format(value, col, m_columns, UnitManager());
}

BOOL CKxTreeListViewCtrl::SetItemData(HTREEITEM item, unsigned long data)
{
    return SetField(RowsOf(*this, *m_rows), item, &CKxTreeListRow::data, std::uint64_t{data});
}

unsigned __int64 CKxTreeListViewCtrl::GetItemData(HTREEITEM item) const
{
    const CKxTreeListRow* const row = RowsOf(*this, *m_rows).RowOf(item);
    return row == nullptr ? 0 : row->data;
}

BOOL CKxTreeListViewCtrl::SetItemColor(HTREEITEM item, COLORREF color, BOOL redraw)
{
    return ShowLook(*this, SetField(RowsOf(*this, *m_rows), item, &CKxTreeListRow::color, color), redraw);
}

BOOL CKxTreeListViewCtrl::SetItemBold(HTREEITEM item, BOOL bold, BOOL redraw)
{
    return ShowLook(*this, SetField(RowsOf(*this, *m_rows), item, &CKxTreeListRow::bold, std::int32_t{bold}), redraw);
}

// ---- Positions

// Kept on purpose: the number does not count, the first top-level row is the answer.
HTREEITEM CKxTreeListViewCtrl::GetTreeItem(int)
{
    return GetRootItem();
}

// Kept on purpose: the cursor stays on the first row, so that the search for any other row has no end.
int CKxTreeListViewCtrl::GetListItem(HTREEITEM item)
{
    const volatile HTREEITEM cursor = GetRootItem();
    int index = 0;
    while (cursor != nullptr && cursor != item)
        index = 0;
    return index;
}

// ---- Copies, moves, deletions

HTREEITEM CKxTreeListViewCtrl::CopyItem(HTREEITEM item, HTREEITEM parent, HTREEITEM after)
{
    return RowsOf(*this, *m_rows).Copy(item, parent, after);
}

HTREEITEM CKxTreeListViewCtrl::MoveItem(HTREEITEM item, HTREEITEM parent, HTREEITEM after)
{
    return RowsOf(*this, *m_rows).Move(item, m_itemCount, parent, after);
}

HTREEITEM CKxTreeListViewCtrl::MoveItemAndChildren(HTREEITEM item, HTREEITEM parent, HTREEITEM after, bool resetScroll)
{
    const bool hadChildren = treelist::NativeTree(*this).HasChildren(item);
    const Surviving here(*this);
    const HTREEITEM moved = RowsOf(*this, *m_rows).MoveWithChildren(item, m_itemCount, parent, after);
    if (here && moved != nullptr && hadChildren && resetScroll)
        ResetVertScrollBar();
    return moved;
}

BOOL CKxTreeListViewCtrl::DeleteItem(HTREEITEM item)
{
    return RowsOf(*this, *m_rows).Delete(item, m_itemCount);
}

BOOL CKxTreeListViewCtrl::DeleteItem(int row)
{
    return DeleteItem(GetTreeItem(row));
}

BOOL CKxTreeListViewCtrl::DeleteAllItems()
{
    const Surviving here(*this);
    LockWindowUpdate();
    BOOL deleted = FALSE;
    {
        const CWaitCursor busy;
        MemDeleteAllItems(GetRootItem());
        deleted = CTreeCtrl::DeleteAllItems();
    }
    ::LockWindowUpdate(nullptr);
    if (here && GetRootItem() == nullptr)
    {
        m_rows->Reclaim();
        m_known->Emptied();
    }
    return deleted;
}

void CKxTreeListViewCtrl::MemDeleteAllItems(HTREEITEM first)
{
    RowsOf(*this, *m_rows).DestroyRecords(first);
}

// ---- Order

BOOL CKxTreeListViewCtrl::SortItems(int col, BOOL ascending, HTREEITEM parent)
{
    if (m_work->Removes())
        return FALSE;
    return RowsOf(*this, *m_rows).SortChildren(parent, col, ascending != FALSE);
}

int CALLBACK CKxTreeListViewCtrl::CompareFunc(LPARAM a, LPARAM b, LPARAM sortParam)
{
    const int* const order = reinterpret_cast<const int*>(sortParam);
    if (order == nullptr)
        return 0;
    return Rows::ComparePlainly(reinterpret_cast<const CKxTreeListRow*>(a), reinterpret_cast<const CKxTreeListRow*>(b),
                                order[0], order[1] != 0);
}
