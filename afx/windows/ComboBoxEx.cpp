// Combo boxes with images.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

CComboBoxEx::CComboBoxEx() = default;

CComboBoxEx::~CComboBoxEx()
{
    DestroyWindow();
}

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_USEREX_CLASSES, WC_COMBOBOXEX, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBoxEx::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_USEREX_CLASSES, WC_COMBOBOXEX, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

int CComboBoxEx::DeleteItem(int iIndex)
{
    return ask<int>(m_hWnd, CBEM_DELETEITEM, iIndex);
}

BOOL CComboBoxEx::GetItem(COMBOBOXEXITEM* pCBItem)
{
    return pCBItem != nullptr && ask<BOOL>(m_hWnd, CBEM_GETITEM, 0, pCBItem);
}

int CComboBoxEx::InsertItem(const COMBOBOXEXITEM* pCBItem)
{
    return pCBItem == nullptr ? -1 : ask<int>(m_hWnd, CBEM_INSERTITEM, 0, pCBItem);
}

BOOL CComboBoxEx::SetItem(const COMBOBOXEXITEM* pCBItem)
{
    return pCBItem != nullptr && ask<BOOL>(m_hWnd, CBEM_SETITEM, 0, pCBItem);
}

DWORD CComboBoxEx::GetExtendedStyle() const
{
    return ask<DWORD>(m_hWnd, CBEM_GETEXTENDEDSTYLE);
}

DWORD CComboBoxEx::SetExtendedStyle(DWORD dwExMask, DWORD dwExStyle)
{
    return ask<DWORD>(m_hWnd, CBEM_SETEXTENDEDSTYLE, dwExMask, dwExStyle);
}

BOOL CComboBoxEx::HasEditChanged()
{
    return ask<BOOL>(m_hWnd, CBEM_HASEDITCHANGED);
}

CEdit* CComboBoxEx::GetEditCtrl()
{
    return kxWndFromHandle<CEdit>(ask<HWND>(m_hWnd, CBEM_GETEDITCONTROL));
}

CComboBox* CComboBoxEx::GetComboBoxCtrl()
{
    return kxWndFromHandle<CComboBox>(ask<HWND>(m_hWnd, CBEM_GETCOMBOCONTROL));
}

CImageList* CComboBoxEx::GetImageList() const
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, CBEM_GETIMAGELIST));
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(ask<HIMAGELIST>(m_hWnd, CBEM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}
