// The header control.
#pragma once
#include "kx/ImageList.h"

/// A row of column headings. Indexes count items from 0; orders count places from 0.
class KXAFX_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    CHeaderCtrl();
    ~CHeaderCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    /// The index of the new item, -1 on failure.
    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);
    /// Client coordinates.
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int HitTest(LPHDHITTESTINFO phdhti);
    int OrderToIndex(int nOrder) const;
    /// iCount: room in the array, -1 for as many as there are items.
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    CImageList* GetImageList() const;
    /// The list shown before. The caller owns both.
    CImageList* SetImageList(CImageList* pImageList);
    /// Null on failure. The caller deletes the list.
    CImageList* CreateDragImage(int nIndex);
    int GetBitmapMargin() const;
    int SetBitmapMargin(int nWidth);
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);

    /// Called for HDF_OWNERDRAW. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
