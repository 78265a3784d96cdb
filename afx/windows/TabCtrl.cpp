// Tab controls.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;
using kx::drawReflected;

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

CTabCtrl::~CTabCtrl()
{
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_TAB_CLASSES, WC_TABCONTROL, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_TAB_CLASSES, WC_TABCONTROL, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, TCM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

int CTabCtrl::GetItemCount() const
{
    return ask<int>(m_hWnd, TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return pTabCtrlItem != nullptr && ask<BOOL>(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    return pTabCtrlItem != nullptr && ask<BOOL>(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItemExtra(int nBytes)
{
    return ask<BOOL>(m_hWnd, TCM_SETITEMEXTRA, nBytes);
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return lpRect != nullptr && ask<BOOL>(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
}

int CTabCtrl::GetCurSel() const
{
    return ask<int>(m_hWnd, TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int nItem)
{
    return ask<int>(m_hWnd, TCM_SETCURSEL, nItem);
}

int CTabCtrl::GetCurFocus() const
{
    return ask<int>(m_hWnd, TCM_GETCURFOCUS);
}

void CTabCtrl::SetCurFocus(int nItem)
{
    ask(m_hWnd, TCM_SETCURFOCUS, nItem);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const auto before = ask<DWORD>(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(before), HIWORD(before));
}

void CTabCtrl::SetPadding(CSize size)
{
    ask(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    return ask<int>(m_hWnd, TCM_GETROWCOUNT);
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    return ask<int>(m_hWnd, TCM_SETMINTABWIDTH, 0, cx);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, TCM_GETTOOLTIPS));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    ask(m_hWnd, TCM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return ask<DWORD>(m_hWnd, TCM_GETEXTENDEDSTYLE);
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask)
{
    return ask<DWORD>(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight)
{
    return ask<BOOL>(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELONG(fHighlight, 0));
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem)
{
    return pTabCtrlItem == nullptr ? -1 : ask<LONG>(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::DeleteItem(int nItem)
{
    return ask<BOOL>(m_hWnd, TCM_DELETEITEM, nItem);
}

BOOL CTabCtrl::DeleteAllItems()
{
    return ask<BOOL>(m_hWnd, TCM_DELETEALLITEMS);
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus)
{
    ask(m_hWnd, TCM_DESELECTALL, fExcludeFocus);
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    if (lpRect != nullptr)
        ask(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect);
}

void CTabCtrl::RemoveImage(int nImage)
{
    ask(m_hWnd, TCM_REMOVEIMAGE, nImage);
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    return pHitTestInfo == nullptr ? -1 : ask<int>(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
