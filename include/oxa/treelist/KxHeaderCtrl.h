// The header of the tree list: owner-drawn columns with a sort image each.
#pragma once

#include <afxcmn.h>
#include <afxtempl.h>

#include "oxa/Export.h"

/// A header control whose owner-drawn items (`HDF_OWNERDRAW`) show their text and, behind it (in front of it in a
/// right-aligned column), the sort image of the column. Columns are numbered from 0, as the header numbers its items.
///
/// The image list belongs to the host and must outlive the header, or be taken away before. Without one, or with an index
/// that the list does not have, no image is drawn.
class OXA_API CKxHeaderCtrl : public CHeaderCtrl
{
    DECLARE_DYNAMIC(CKxHeaderCtrl)

public:
    /// The indexes of the sort images.
    enum SortImage
    {
        SORT_IMAGE_NONE = -1,
        SORT_IMAGE_ASCENDING = 0,
        SORT_IMAGE_DESCENDING = 1
    };

    CKxHeaderCtrl();
    ~CKxHeaderCtrl() override;

    /// The list that the sort images are drawn from; null for none. Answers the list before. The control does not own it.
    CImageList* SetSortImageList(CImageList* images);

    /// The image of `column`: an index into the image list, `SORT_IMAGE_NONE` when none was stored.
    int GetSortImage(int column) const;

    /// Stores the image of `column`, makes the item owner-drawn, and invalidates the header. A column that the header does
    /// not have keeps its image for later.
    void SetSortImage(int column, int image);

    /// Draws one item.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    // void OnPaint()
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    CImageList* m_sortImageList = nullptr; ///< not owned
    CMap<int, int, int, int> m_sortImages; ///< column to image; a column without entry has none
};
