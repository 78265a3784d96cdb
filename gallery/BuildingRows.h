// The bill of materials that the tree list page shows: storeys, their members, the bars in those.
#pragma once
#include "oxa/treelist/KxTreeListFrame.h"

namespace building
{
/// The columns of the page.
enum Column
{
    nameColumn,
    lengthColumn, // behind the first one: there an editor covers its cell exactly
    sectionColumn,
    weightColumn,
    countColumn
};

/// The images of the rows.
enum Picture
{
    storeyPicture,
    memberPicture,
    barPicture
};

/// Adds the columns, left- and right-aligned.
void addColumns(CKxTreeListViewCtrl& tree);

/// Replaces all rows by those of a building of five storeys.
void fill(CKxTreeListFrame& frame);

/// Adds a storey of `count` bars.
void addMany(CKxTreeListFrame& frame, int count);

/// Works the weight of a row out from its section, length and count, and those of the rows above it from their rows.
void weigh(CKxTreeListViewCtrl& tree, HTREEITEM item);

/// Calls `change(row)` for every row below `parent` (null: all rows).
template <class Change> void forEach(CKxTreeListViewCtrl& tree, HTREEITEM parent, const Change& change)
{
    HTREEITEM row = parent == nullptr ? tree.GetRootItem() : tree.GetChildItem(parent);
    for (; row != nullptr; row = tree.GetNextSiblingItem(row))
    {
        change(row);
        forEach(tree, row, change);
    }
}
} // namespace building
