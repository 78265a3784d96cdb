// List views: creation, looks, walking and selection.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;
using kx::drawReflected;

namespace
{

/// A position is the index and one, so that none is null.
POSITION positionOf(int item)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(item) + 1);
}

int itemOf(POSITION position)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
}

} // namespace

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    // void OnNcDestroy()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

CListCtrl::CListCtrl() = default;

CListCtrl::~CListCtrl()
{
    DestroyWindow();
}

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_LISTVIEW_CLASSES, WC_LISTVIEW, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_LISTVIEW_CLASSES, WC_LISTVIEW, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

COLORREF CListCtrl::GetBkColor() const
{
    return ask<COLORREF>(m_hWnd, LVM_GETBKCOLOR);
}

BOOL CListCtrl::SetBkColor(COLORREF cr)
{
    return ask<BOOL>(m_hWnd, LVM_SETBKCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextColor() const
{
    return ask<COLORREF>(m_hWnd, LVM_GETTEXTCOLOR);
}

BOOL CListCtrl::SetTextColor(COLORREF cr)
{
    return ask<BOOL>(m_hWnd, LVM_SETTEXTCOLOR, 0, cr);
}

COLORREF CListCtrl::GetTextBkColor() const
{
    return ask<COLORREF>(m_hWnd, LVM_GETTEXTBKCOLOR);
}

BOOL CListCtrl::SetTextBkColor(COLORREF cr)
{
    return ask<BOOL>(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr);
}

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CImageList::FromHandle(
        ask<HIMAGELIST>(m_hWnd, LVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

int CListCtrl::GetItemCount() const
{
    return ask<int>(m_hWnd, LVM_GETITEMCOUNT);
}

void CListCtrl::SetItemCount(int nItems)
{
    ask(m_hWnd, LVM_SETITEMCOUNT, nItems);
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return ask<BOOL>(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
}

int CListCtrl::GetTopIndex() const
{
    return ask<int>(m_hWnd, LVM_GETTOPINDEX);
}

int CListCtrl::GetCountPerPage() const
{
    return ask<int>(m_hWnd, LVM_GETCOUNTPERPAGE);
}

BOOL CListCtrl::GetOrigin(LPPOINT lpPoint) const
{
    return lpPoint != nullptr && ask<BOOL>(m_hWnd, LVM_GETORIGIN, 0, lpPoint);
}

BOOL CListCtrl::GetViewRect(LPRECT lpRect) const
{
    return lpRect != nullptr && ask<BOOL>(m_hWnd, LVM_GETVIEWRECT, 0, lpRect);
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return ask<DWORD>(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return ask<DWORD>(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

DWORD CListCtrl::GetView() const
{
    return ask<DWORD>(m_hWnd, LVM_GETVIEW);
}

DWORD CListCtrl::SetView(int iView)
{
    return ask<DWORD>(m_hWnd, LVM_SETVIEW, iView);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return kxWndFromHandle<CHeaderCtrl>(ask<HWND>(m_hWnd, LVM_GETHEADER));
}

CEdit* CListCtrl::GetEditControl() const
{
    return kxWndFromHandle<CEdit>(ask<HWND>(m_hWnd, LVM_GETEDITCONTROL));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, LVM_GETTOOLTIPS));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    return kxWndFromHandle<CToolTipCtrl>(ask<HWND>(m_hWnd, LVM_SETTOOLTIPS, pWndTip->GetSafeHwnd()));
}

UINT CListCtrl::GetHoverTime() const
{
    return ask<UINT>(m_hWnd, LVM_GETHOVERTIME);
}

UINT CListCtrl::SetHoverTime(UINT nHoverTime)
{
    return ask<UINT>(m_hWnd, LVM_SETHOVERTIME, 0, nHoverTime);
}

HCURSOR CListCtrl::GetHotCursor() const
{
    return ask<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR);
}

HCURSOR CListCtrl::SetHotCursor(HCURSOR hc)
{
    return ask<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc);
}

int CListCtrl::GetHotItem() const
{
    return ask<int>(m_hWnd, LVM_GETHOTITEM);
}

int CListCtrl::SetHotItem(int iIndex)
{
    return ask<int>(m_hWnd, LVM_SETHOTITEM, iIndex);
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    const auto before = ask<DWORD>(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy));
    return CSize(LOWORD(before), HIWORD(before));
}

CSize CListCtrl::SetIconSpacing(CSize size)
{
    return SetIconSpacing(size.cx, size.cy);
}

CSize CListCtrl::GetItemSpacing(BOOL bSmall) const
{
    const auto spacing = ask<DWORD>(m_hWnd, LVM_GETITEMSPACING, bSmall);
    return CSize(LOWORD(spacing), HIWORD(spacing));
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return ask<int>(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return positionOf(GetNextItem(-1, LVIS_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int item = itemOf(pos);
    pos = positionOf(item < 0 ? -1 : GetNextItem(item, LVNI_SELECTED));
    return item;
}

UINT CListCtrl::GetSelectedCount() const
{
    return ask<UINT>(m_hWnd, LVM_GETSELECTEDCOUNT);
}

int CListCtrl::GetSelectionMark()
{
    return ask<int>(m_hWnd, LVM_GETSELECTIONMARK);
}

int CListCtrl::SetSelectionMark(int iIndex)
{
    return ask<int>(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex);
}

int CListCtrl::GetSelectedColumn() const
{
    return ask<int>(m_hWnd, LVM_GETSELECTEDCOLUMN);
}

void CListCtrl::SetSelectedColumn(int iCol)
{
    ask(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return pFindInfo == nullptr ? -1 : ask<int>(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
}

int CListCtrl::HitTest(LVHITTESTINFO* pHitTestInfo) const
{
    return pHitTestInfo == nullptr ? -1 : ask<int>(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO test = {};
    test.pt = pt;
    const int found = HitTest(&test);
    if (pFlags != nullptr)
        *pFlags = test.flags;
    return found;
}

int CListCtrl::SubItemHitTest(LPLVHITTESTINFO pInfo)
{
    return pInfo == nullptr ? -1 : ask<int>(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo);
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

void CListCtrl::RemoveImageList(int nImageList)
{
    if (CImageList::FromHandlePermanent(ask<HIMAGELIST>(m_hWnd, LVM_GETIMAGELIST, nImageList)) != nullptr)
        ask(m_hWnd, LVM_SETIMAGELIST, nImageList);
}

afx_msg void CListCtrl::OnNcDestroy()
{
    RemoveImageList(LVSIL_NORMAL);
    RemoveImageList(LVSIL_SMALL);
    RemoveImageList(LVSIL_STATE);
    CWnd::OnNcDestroy();
}
