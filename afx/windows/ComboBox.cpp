// Combo boxes.
#include <afxwin.h>

#include "Ask.h"
#include "ControlParts.h"

using kx::ask;
using kx::createControl;
using kx::itemText;
using kx::ownerDrawn;

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

CComboBox::~CComboBox()
{
    DestroyWindow();
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const
{
    return ask<int>(m_hWnd, CB_GETCOUNT);
}

int CComboBox::GetCurSel() const
{
    return ask<int>(m_hWnd, CB_GETCURSEL);
}

int CComboBox::SetCurSel(int nSelect)
{
    return ask<int>(m_hWnd, CB_SETCURSEL, nSelect);
}

LCID CComboBox::GetLocale() const
{
    return ask<LCID>(m_hWnd, CB_GETLOCALE);
}

LCID CComboBox::SetLocale(LCID nNewLocale)
{
    return ask<LCID>(m_hWnd, CB_SETLOCALE, nNewLocale);
}

int CComboBox::GetTopIndex() const
{
    return ask<int>(m_hWnd, CB_GETTOPINDEX);
}

int CComboBox::SetTopIndex(int nIndex)
{
    return ask<int>(m_hWnd, CB_SETTOPINDEX, nIndex);
}

int CComboBox::InitStorage(int nItems, UINT nBytes)
{
    return ask<int>(m_hWnd, CB_INITSTORAGE, nItems, nBytes);
}

void CComboBox::SetHorizontalExtent(UINT nExtent)
{
    ask(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent);
}

UINT CComboBox::GetHorizontalExtent() const
{
    return ask<UINT>(m_hWnd, CB_GETHORIZONTALEXTENT);
}

int CComboBox::SetDroppedWidth(UINT nWidth)
{
    return ask<int>(m_hWnd, CB_SETDROPPEDWIDTH, nWidth);
}

int CComboBox::GetDroppedWidth() const
{
    return ask<int>(m_hWnd, CB_GETDROPPEDWIDTH);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
{
    return pcbi != nullptr && ::GetComboBoxInfo(m_hWnd, pcbi);
}

DWORD CComboBox::GetEditSel() const
{
    return ask<DWORD>(m_hWnd, CB_GETEDITSEL);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return ask<BOOL>(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar));
}

BOOL CComboBox::LimitText(int nMaxChars)
{
    return ask<BOOL>(m_hWnd, CB_LIMITTEXT, nMaxChars);
}

void CComboBox::Clear()
{
    ask(m_hWnd, WM_CLEAR);
}

void CComboBox::Copy()
{
    ask(m_hWnd, WM_COPY);
}

void CComboBox::Cut()
{
    ask(m_hWnd, WM_CUT);
}

void CComboBox::Paste()
{
    ask(m_hWnd, WM_PASTE);
}

BOOL CComboBox::SetCueBanner(LPCTSTR lpszText)
{
    return ask<BOOL>(m_hWnd, CB_SETCUEBANNER, 0, lpszText);
}

BOOL CComboBox::GetCueBanner(LPTSTR lpszText, int cchText) const
{
    return ask<BOOL>(m_hWnd, CB_GETCUEBANNER, lpszText, cchText);
}

CString CComboBox::GetCueBanner() const
{
    wchar_t text[1024] = {};
    ask(m_hWnd, CB_GETCUEBANNER, text, 1024);
    text[1023] = 0;
    return text;
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const
{
    return ask<DWORD_PTR>(m_hWnd, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return ask<int>(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
}

void* CComboBox::GetItemDataPtr(int nIndex) const
{
    return ask<void*>(m_hWnd, CB_GETITEMDATA, nIndex);
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const
{
    return lpszText == nullptr ? CB_ERR : ask<int>(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    itemText(m_hWnd, CB_GETLBTEXTLEN, CB_GETLBTEXT, nIndex, rString);
}

int CComboBox::GetLBTextLen(int nIndex) const
{
    return ask<int>(m_hWnd, CB_GETLBTEXTLEN, nIndex);
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return ask<int>(m_hWnd, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CComboBox::GetItemHeight(int nIndex) const
{
    return ask<int>(m_hWnd, CB_GETITEMHEIGHT, nIndex);
}

int CComboBox::SetMinVisibleItems(int iMinVisible)
{
    return ask<int>(m_hWnd, CB_SETMINVISIBLE, iMinVisible);
}

int CComboBox::GetMinVisible() const
{
    return ask<int>(m_hWnd, CB_GETMINVISIBLE);
}

void CComboBox::ShowDropDown(BOOL bShowIt)
{
    ask(m_hWnd, CB_SHOWDROPDOWN, bShowIt);
}

BOOL CComboBox::GetDroppedState() const
{
    return ask<BOOL>(m_hWnd, CB_GETDROPPEDSTATE);
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const
{
    if (lprect != nullptr)
        ask(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
}

BOOL CComboBox::GetExtendedUI() const
{
    return ask<BOOL>(m_hWnd, CB_GETEXTENDEDUI);
}

int CComboBox::SetExtendedUI(BOOL bExtended)
{
    return ask<int>(m_hWnd, CB_SETEXTENDEDUI, bExtended);
}

int CComboBox::AddString(LPCTSTR lpszString)
{
    return ask<int>(m_hWnd, CB_ADDSTRING, 0, lpszString);
}

int CComboBox::DeleteString(UINT nIndex)
{
    return ask<int>(m_hWnd, CB_DELETESTRING, nIndex);
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return ask<int>(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
}

void CComboBox::ResetContent()
{
    ask(m_hWnd, CB_RESETCONTENT);
}

int CComboBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return ask<int>(m_hWnd, CB_DIR, attr, lpszWildCard);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return ask<int>(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return ask<int>(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return ask<int>(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT /*lpMeasureItemStruct*/) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT /*lpCompareItemStruct*/)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT /*lpDeleteItemStruct*/) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ownerDrawn(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
