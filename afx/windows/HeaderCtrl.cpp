// Header controls.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;
using kx::drawReflected;
using kx::newImageList;

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

CHeaderCtrl::~CHeaderCtrl()
{
    DestroyWindow();
}

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_LISTVIEW_CLASSES, WC_HEADER, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_LISTVIEW_CLASSES, WC_HEADER, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const
{
    return ask<int>(m_hWnd, HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return pHeaderItem != nullptr && ask<BOOL>(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem)
{
    return pHeaderItem != nullptr && ask<BOOL>(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi)
{
    return phdi == nullptr ? -1 : ask<int>(m_hWnd, HDM_INSERTITEM, nPos, phdi);
}

BOOL CHeaderCtrl::DeleteItem(int nPos)
{
    return ask<BOOL>(m_hWnd, HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return lpRect != nullptr && ask<BOOL>(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout)
{
    return pHeaderLayout != nullptr && ask<BOOL>(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout);
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti)
{
    return phdhti == nullptr ? -1 : ask<int>(m_hWnd, HDM_HITTEST, 0, phdhti);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const
{
    return ask<int>(m_hWnd, HDM_ORDERTOINDEX, nOrder);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    const int count = iCount < 0 ? GetItemCount() : iCount;
    return piArray != nullptr && count >= GetItemCount() && ask<BOOL>(m_hWnd, HDM_GETORDERARRAY, count, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return piArray != nullptr && ask<BOOL>(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, HDM_GETIMAGELIST));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, HDM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return newImageList(ask<HIMAGELIST>(m_hWnd, HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return ask<int>(m_hWnd, HDM_GETBITMAPMARGIN);
}

int CHeaderCtrl::SetBitmapMargin(int nWidth)
{
    return ask<int>(m_hWnd, HDM_SETBITMAPMARGIN, nWidth);
}

int CHeaderCtrl::SetHotDivider(CPoint pt)
{
    return ask<int>(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
}

int CHeaderCtrl::SetHotDivider(int nIndex)
{
    return ask<int>(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex);
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
