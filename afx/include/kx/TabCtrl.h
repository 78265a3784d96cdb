// The tab control.
#pragma once
#include "kx/ImageList.h"
#include "kx/ToolTipCtrl.h"

/// A row of tabs.
class KXAFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)
public:
    CTabCtrl();
    ~CTabCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    BOOL SetItemExtra(int nBytes);
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    /// The tab before. Sends no notification.
    int SetCurSel(int nItem);
    int GetCurFocus() const;
    void SetCurFocus(int nItem);
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    int GetRowCount() const;
    int SetMinTabWidth(int cx);
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);

    /// The index of the new tab, -1 on failure.
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    void DeselectAll(BOOL fExcludeFocus);
    /// From the page's rectangle to that of the window, or back.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    void RemoveImage(int nImage);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;

    /// Called for TCS_OWNERDRAWFIXED. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
