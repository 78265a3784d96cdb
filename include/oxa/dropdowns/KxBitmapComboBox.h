// CKxBitmapComboBox: a combo box whose items are bitmaps.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"
#include "oxa/tooltips/KxToolTip.h"

/// An owner-drawn combo box of bitmap resources, each drawn in the middle of its item, pure green left out.
///
/// Give it the style CBS_OWNERDRAWVARIABLE and the items have the height of the bitmaps plus 4. With CBS_OWNERDRAWFIXED the
/// platform has asked for the height before a dialog's control is subclassed: call `SetItemHeight` then. A bitmap is looked
/// for in this library first (its ids are from 22000 on), then in the host and the chain of modules; an item whose bitmap
/// is in none of them stays empty.
///
///     m_arrows.SubclassDlgItem(16, IDC_ARROWS, this);
///     m_arrows.AddBitmap(IDB_ARROW_LEFT);
class OXA_API CKxBitmapComboBox : public CComboBox
{
    DECLARE_DYNAMIC(CKxBitmapComboBox)

public:
    CKxBitmapComboBox();
    ~CKxBitmapComboBox() override;

    /// Takes over the combo box `id` of `parent`. `height`: of the bitmaps, in pixels; 16 until then.
    BOOL SubclassDlgItem(int height, unsigned int id, CWnd* parent);

    /// Appends an item that shows the bitmap resource `id`. The new index, or a negative number on failure.
    int AddBitmap(unsigned short id);

    /// Inserts such an item before the item `index`. The new index, or a negative number on failure.
    int InsertBitmap(unsigned short id, unsigned short index);

    /// Shows `text` as the tip of the whole control, which must have its window.
    void AddFormatToolTip(CString text);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    int m_itemHeight;
    CKxToolTip m_toolTip;

private:
    bool HasText(int index) const;
    void DrawBitmapOf(CDC& dc, const DRAWITEMSTRUCT& item) const;
};
