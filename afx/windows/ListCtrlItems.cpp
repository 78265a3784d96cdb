// List views: items, columns, and changing them.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::growingText;
using kx::newImageList;

namespace
{

LVITEM itemRecord(UINT mask, int index, int subItem, LPCTSTR text, int image, UINT state, UINT stateMask, LPARAM data,
                  int indent)
{
    LVITEM item = {};
    item.mask = mask;
    item.iItem = index;
    item.iSubItem = subItem;
    item.pszText = const_cast<LPTSTR>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = data;
    item.iIndent = indent;
    return item;
}

} // namespace

BOOL CListCtrl::GetItem(LVITEM* pItem) const
{
    return pItem != nullptr && ask<BOOL>(m_hWnd, LVM_GETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(const LVITEM* pItem)
{
    return pItem != nullptr && ask<BOOL>(m_hWnd, LVM_SETITEM, 0, pItem);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam, int nIndent)
{
    const LVITEM item = itemRecord(nMask, nItem, nSubItem, lpszItem, nImage, nState, nStateMask, lParam, nIndent);
    return SetItem(&item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    return growingText(
        [&](LPTSTR buffer, int room)
        {
            item.pszText = buffer;
            item.cchTextMax = room;
            ask(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
            return item.pszText;
        });
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    if (lpszText == nullptr || nLen <= 0)
        return 0;
    lpszText[0] = 0;
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return ask<int>(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return ask<BOOL>(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

UINT CListCtrl::GetItemState(int nItem, UINT nMask) const
{
    return ask<UINT>(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
}

BOOL CListCtrl::SetItemState(int nItem, LVITEM* pItem)
{
    return pItem != nullptr && ask<BOOL>(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.iItem = nItem;
    item.mask = LVIF_PARAM;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) - 1 == 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1)), LVIS_STATEIMAGEMASK);
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    if (lpRect == nullptr)
        return FALSE;
    lpRect->left = static_cast<LONG>(nCode);
    return ask<BOOL>(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const
{
    CRect rect(nArea, iSubItem, 0, 0);
    const BOOL found = ask<BOOL>(m_hWnd, LVM_GETSUBITEMRECT, iItem, static_cast<LPRECT>(&rect));
    if (found)
        ref = rect;
    return found;
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const
{
    return lpPoint != nullptr && ask<BOOL>(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt)
{
    return ask<BOOL>(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
}

int CListCtrl::GetStringWidth(LPCTSTR lpsz) const
{
    return ask<int>(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz);
}

BOOL CListCtrl::GetColumn(int nCol, LVCOLUMN* pColumn) const
{
    return pColumn != nullptr && ask<BOOL>(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
}

BOOL CListCtrl::SetColumn(int nCol, const LVCOLUMN* pColumn)
{
    return pColumn != nullptr && ask<BOOL>(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
}

int CListCtrl::GetColumnWidth(int nCol) const
{
    return ask<int>(m_hWnd, LVM_GETCOLUMNWIDTH, nCol);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx)
{
    return ask<BOOL>(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn)
{
    return pColumn == nullptr ? -1 : ask<int>(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::DeleteColumn(int nCol)
{
    return ask<BOOL>(m_hWnd, LVM_DELETECOLUMN, nCol);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    const int columns = ask<int>(ask<HWND>(m_hWnd, LVM_GETHEADER), HDM_GETITEMCOUNT);
    const int count = iCount < 0 ? columns : iCount;
    return piArray != nullptr && count >= columns && ask<BOOL>(m_hWnd, LVM_GETCOLUMNORDERARRAY, columns, piArray);
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray)
{
    return piArray != nullptr && ask<BOOL>(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

int CListCtrl::InsertItem(const LVITEM* pItem)
{
    return pItem == nullptr ? -1 : ask<int>(m_hWnd, LVM_INSERTITEM, 0, pItem);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    const LVITEM item = itemRecord(nMask, nItem, 0, lpszItem, nImage, nState, nStateMask, lParam, 0);
    return InsertItem(&item);
}

BOOL CListCtrl::DeleteItem(int nItem)
{
    return ask<BOOL>(m_hWnd, LVM_DELETEITEM, nItem);
}

BOOL CListCtrl::DeleteAllItems()
{
    return ask<BOOL>(m_hWnd, LVM_DELETEALLITEMS);
}

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return ask<BOOL>(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

BOOL CListCtrl::Scroll(CSize size)
{
    return ask<BOOL>(m_hWnd, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::RedrawItems(int nFirst, int nLast)
{
    return ask<BOOL>(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast);
}

BOOL CListCtrl::Update(int nItem)
{
    return ask<BOOL>(m_hWnd, LVM_UPDATE, nItem);
}

BOOL CListCtrl::Arrange(UINT nCode)
{
    return ask<BOOL>(m_hWnd, LVM_ARRANGE, nCode);
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return kxWndFromHandle<CEdit>(ask<HWND>(m_hWnd, LVM_EDITLABEL, nItem));
}

void CListCtrl::CancelEditLabel()
{
    ask(m_hWnd, LVM_CANCELEDITLABEL);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return pfnCompare != nullptr && ask<BOOL>(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return lpPoint == nullptr ? nullptr : newImageList(ask<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    const auto size = ask<DWORD>(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy));
    return CSize(LOWORD(size), HIWORD(size));
}
