// Tree views.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;
using kx::growingText;
using kx::newImageList;

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

CTreeCtrl::CTreeCtrl() = default;

CTreeCtrl::~CTreeCtrl()
{
    DestroyWindow();
}

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_TREEVIEW_CLASSES, WC_TREEVIEW, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_TREEVIEW_CLASSES, WC_TREEVIEW, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

UINT CTreeCtrl::GetCount() const
{
    return ask<UINT>(m_hWnd, TVM_GETCOUNT);
}

UINT CTreeCtrl::GetVisibleCount() const
{
    return ask<UINT>(m_hWnd, TVM_GETVISIBLECOUNT);
}

UINT CTreeCtrl::GetIndent() const
{
    return ask<UINT>(m_hWnd, TVM_GETINDENT);
}

void CTreeCtrl::SetIndent(UINT nIndent)
{
    ask(m_hWnd, TVM_SETINDENT, nIndent);
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(
        ask<HIMAGELIST>(m_hWnd, TVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return kxWndFromHandle<CEdit>(ask<HWND>(m_hWnd, TVM_GETEDITCONTROL));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, TVM_GETTOOLTIPS));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, TVM_SETTOOLTIPS, pWndTip->GetSafeHwnd()));
}

COLORREF CTreeCtrl::GetBkColor() const
{
    return ask<COLORREF>(m_hWnd, TVM_GETBKCOLOR);
}

COLORREF CTreeCtrl::SetBkColor(COLORREF clr)
{
    return ask<COLORREF>(m_hWnd, TVM_SETBKCOLOR, 0, clr);
}

COLORREF CTreeCtrl::GetTextColor() const
{
    return ask<COLORREF>(m_hWnd, TVM_GETTEXTCOLOR);
}

COLORREF CTreeCtrl::SetTextColor(COLORREF clr)
{
    return ask<COLORREF>(m_hWnd, TVM_SETTEXTCOLOR, 0, clr);
}

COLORREF CTreeCtrl::GetLineColor() const
{
    return ask<COLORREF>(m_hWnd, TVM_GETLINECOLOR);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew)
{
    return ask<COLORREF>(m_hWnd, TVM_SETLINECOLOR, 0, clrNew);
}

COLORREF CTreeCtrl::GetInsertMarkColor() const
{
    return ask<COLORREF>(m_hWnd, TVM_GETINSERTMARKCOLOR);
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return ask<COLORREF>(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter)
{
    return ask<BOOL>(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
}

SHORT CTreeCtrl::GetItemHeight() const
{
    return ask<SHORT>(m_hWnd, TVM_GETITEMHEIGHT);
}

SHORT CTreeCtrl::SetItemHeight(SHORT cyHeight)
{
    return ask<SHORT>(m_hWnd, TVM_SETITEMHEIGHT, cyHeight);
}

UINT CTreeCtrl::GetScrollTime() const
{
    return ask<UINT>(m_hWnd, TVM_GETSCROLLTIME);
}

UINT CTreeCtrl::SetScrollTime(UINT uScrollTime)
{
    return ask<UINT>(m_hWnd, TVM_SETSCROLLTIME, uScrollTime);
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return ask<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_CHILD);
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXT);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUS);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PARENT);
}

HTREEITEM CTreeCtrl::GetFirstVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_FIRSTVISIBLE);
}

HTREEITEM CTreeCtrl::GetLastVisibleItem() const
{
    return GetNextItem(nullptr, TVGN_LASTVISIBLE);
}

HTREEITEM CTreeCtrl::GetNextVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_NEXTVISIBLE);
}

HTREEITEM CTreeCtrl::GetPrevVisibleItem(HTREEITEM hItem) const
{
    return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    return GetNextItem(nullptr, TVGN_CARET);
}

HTREEITEM CTreeCtrl::GetDropHilightItem() const
{
    return GetNextItem(nullptr, TVGN_DROPHILITE);
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    return GetNextItem(nullptr, TVGN_ROOT);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_CHILDREN;
    return GetItem(&item) && item.cChildren != 0;
}

BOOL CTreeCtrl::GetItem(TVITEM* pItem) const
{
    return pItem != nullptr && ask<BOOL>(m_hWnd, TVM_GETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(TVITEM* pItem)
{
    return pItem != nullptr && ask<BOOL>(m_hWnd, TVM_SETITEM, 0, pItem);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_TEXT;
    return growingText(
        [&](LPTSTR buffer, int room)
        {
            item.pszText = buffer;
            item.cchTextMax = room;
            const BOOL found = GetItem(&item);
            return found ? item.pszText : nullptr;
        });
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    const BOOL found = GetItem(&item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return found;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    return ask<UINT>(m_hWnd, TVM_GETITEMSTATE, hItem, nStateMask) & nStateMask;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.hItem = hItem;
    item.mask = TVIF_PARAM;
    return GetItem(&item) ? static_cast<DWORD_PTR>(item.lParam) : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) - 1 == 1;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1)), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    if (lpRect == nullptr || hItem == nullptr)
        return FALSE;
    const auto item = reinterpret_cast<UINT_PTR>(hItem); // travels in the rectangle's first bytes
    static_assert(sizeof(RECT) >= sizeof item);
    ::memcpy(lpRect, &item, sizeof item);
    return ask<BOOL>(m_hWnd, TVM_GETITEMRECT, bTextOnly, lpRect);
}

HTREEITEM CTreeCtrl::MapAccIdToItem(UINT uAccId) const
{
    return ask<HTREEITEM>(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccId);
}

UINT CTreeCtrl::MapItemToAccId(HTREEITEM hItem) const
{
    return ask<UINT>(m_hWnd, TVM_MAPHTREEITEMTOACCID, hItem);
}

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
{
    return lpInsertStruct == nullptr ? nullptr : ask<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0, hParent,
                      hInsertAfter);
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM hItem)
{
    return ask<BOOL>(m_hWnd, TVM_DELETEITEM, 0, hItem);
}

BOOL CTreeCtrl::DeleteAllItems()
{
    return ask<BOOL>(m_hWnd, TVM_DELETEITEM, 0, TVI_ROOT);
}

BOOL CTreeCtrl::Expand(HTREEITEM hItem, UINT nCode)
{
    return ask<BOOL>(m_hWnd, TVM_EXPAND, nCode, hItem);
}

BOOL CTreeCtrl::Select(HTREEITEM hItem, UINT nCode)
{
    return ask<BOOL>(m_hWnd, TVM_SELECTITEM, nCode, hItem);
}

BOOL CTreeCtrl::SelectItem(HTREEITEM hItem)
{
    return Select(hItem, TVGN_CARET);
}

BOOL CTreeCtrl::SelectDropTarget(HTREEITEM hItem)
{
    return Select(hItem, TVGN_DROPHILITE);
}

BOOL CTreeCtrl::SelectSetFirstVisible(HTREEITEM hItem)
{
    return Select(hItem, TVGN_FIRSTVISIBLE);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM hItem)
{
    return ask<BOOL>(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem);
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return kxWndFromHandle<CEdit>(ask<HWND>(m_hWnd, TVM_EDITLABEL, 0, hItem));
}

BOOL CTreeCtrl::EndEditLabelNow(BOOL fCancel)
{
    return ask<BOOL>(m_hWnd, TVM_ENDEDITLABELNOW, fCancel);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO test = {};
    test.pt = pt;
    HTREEITEM const found = HitTest(&test);
    if (pFlags != nullptr)
        *pFlags = test.flags;
    return found;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const
{
    return pHitTestInfo == nullptr ? nullptr : ask<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    return newImageList(ask<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem));
}

BOOL CTreeCtrl::SortChildren(HTREEITEM hItem)
{
    return ask<BOOL>(m_hWnd, TVM_SORTCHILDREN, 0, hItem);
}

BOOL CTreeCtrl::SortChildrenCB(LPTVSORTCB pSort)
{
    return pSort != nullptr && ask<BOOL>(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort);
}
