// The tree view control.
#pragma once
#include "kx/ImageList.h"
#include "kx/Edits.h"
#include "kx/ToolTipCtrl.h"

/// A tree of items. Null stands for no item.
class KXAFX_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    CTreeCtrl();
    ~CTreeCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The tree as a whole
    UINT GetCount() const;
    UINT GetVisibleCount() const;
    UINT GetIndent() const;
    void SetIndent(UINT nIndent);
    CImageList* GetImageList(UINT nImageList) const;
    /// The list shown before. The caller owns both.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    /// CLR_NONE stands for the system's colour.
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    COLORREF GetLineColor() const;
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE);
    SHORT GetItemHeight() const;
    SHORT SetItemHeight(SHORT cyHeight);
    UINT GetScrollTime() const;
    UINT SetScrollTime(UINT uScrollTime);

    // Walking
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetLastVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    HTREEITEM GetRootItem() const;
    BOOL ItemHasChildren(HTREEITEM hItem) const;

    // Items
    BOOL GetItem(TVITEM* pItem) const;
    BOOL SetItem(TVITEM* pItem);
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    /// Empty where there is no such item. Any length.
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    /// Of a tree with TVS_CHECKBOXES.
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    /// Client coordinates. FALSE where the item is not visible.
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    HTREEITEM MapAccIdToItem(UINT uAccId) const;
    UINT MapItemToAccId(HTREEITEM hItem) const;

    // Changing
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState, UINT nStateMask,
                         LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    /// With everything below it.
    BOOL DeleteItem(HTREEITEM hItem);
    BOOL DeleteAllItems();
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    BOOL Select(HTREEITEM hItem, UINT nCode);
    BOOL SelectItem(HTREEITEM hItem);
    BOOL SelectDropTarget(HTREEITEM hItem);
    BOOL SelectSetFirstVisible(HTREEITEM hItem);
    BOOL EnsureVisible(HTREEITEM hItem);
    /// The edit field, or null. It lives until the editing ends.
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancel);
    /// Client coordinates.
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    /// Null on failure. The caller deletes the list.
    CImageList* CreateDragImage(HTREEITEM hItem);
    BOOL SortChildren(HTREEITEM hItem);
    BOOL SortChildrenCB(LPTVSORTCB pSort);
};
