// The list view control.
#pragma once
#include "kx/HeaderCtrl.h"
#include "kx/Edits.h"
#include "kx/ToolTipCtrl.h"
#include <afxcoll.h>

/// A list of items with columns, icons or both. Results of -1 and FALSE say that there is no such item.
/// Image lists that have an owner among the program's objects are taken out before the control is destroyed, so that
/// it does not destroy them.
class KXAFX_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
public:
    CListCtrl();
    ~CListCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    CImageList* GetImageList(int nImageList) const;
    /// The list shown before.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    int GetItemCount() const;
    void SetItemCount(int nItems);
    /// Of a list with LVS_OWNERDATA.
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL GetOrigin(LPPOINT lpPoint) const;
    BOOL GetViewRect(LPRECT lpRect) const;
    DWORD GetExtendedStyle() const;
    /// The style before.
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    DWORD GetView() const;
    DWORD SetView(int iView);
    CHeaderCtrl* GetHeaderCtrl() const;
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    UINT GetHoverTime() const;
    UINT SetHoverTime(UINT nHoverTime = static_cast<UINT>(-1));
    HCURSOR GetHotCursor() const;
    HCURSOR SetHotCursor(HCURSOR hc);
    int GetHotItem() const;
    int SetHotItem(int iIndex);
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    CSize GetItemSpacing(BOOL bSmall = FALSE) const;

    // Walking and selection
    /// Starts behind nItem (-1: at the first).
    int GetNextItem(int nItem, int nFlags) const;
    POSITION GetFirstSelectedItemPosition() const;
    /// Also moves the position on.
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetSelectedCount() const;
    int GetSelectionMark();
    int SetSelectionMark(int iIndex);
    int GetSelectedColumn() const;
    void SetSelectedColumn(int iCol);
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo);

    // Items
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam, int nIndent);
    /// Any length; empty where there is no such item.
    CString GetItemText(int nItem, int nSubItem) const;
    /// The count of characters copied.
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    UINT GetItemState(int nItem, UINT nMask) const;
    /// Item -1: all.
    BOOL SetItemState(int nItem, LVITEM* pItem);
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    /// Of a list with LVS_EX_CHECKBOXES.
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    /// nCode: LVIR_BOUNDS, LVIR_ICON, LVIR_LABEL or LVIR_SELECTBOUNDS. Client coordinates.
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    int GetStringWidth(LPCTSTR lpsz) const;

    // Columns
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    int GetColumnWidth(int nCol) const;
    /// Pixels, LVSCW_AUTOSIZE or LVSCW_AUTOSIZE_USEHEADER.
    BOOL SetColumnWidth(int nCol, int cx);
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    /// nWidth and nSubItem -1: not given.
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    /// iCount: room in the array, -1 for as many as there are columns.
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);

    // Changing
    /// The index of the new item, -1 on failure.
    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Scroll(CSize size);
    BOOL RedrawItems(int nFirst, int nLast);
    BOOL Update(int nItem);
    BOOL Arrange(UINT nCode);
    /// The edit field, or null. It lives until the editing ends.
    CEdit* EditLabel(int nItem);
    void CancelEditLabel();
    /// pfnCompare gets the data of two items and dwData.
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    /// Null on failure. The caller deletes the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;

    /// Called for LVS_OWNERDRAWFIXED. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    void RemoveImageList(int nImageList);
    afx_msg void OnNcDestroy();

    DECLARE_MESSAGE_MAP()
};
