// List boxes.
#include <afxwin.h>

#include "Ask.h"
#include "ControlParts.h"

using kx::answer;
using kx::ask;
using kx::createControl;
using kx::itemText;
using kx::ownerDrawn;

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

CListBox::~CListBox()
{
    DestroyWindow();
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CListBox::GetCount() const
{
    return ask<int>(m_hWnd, LB_GETCOUNT);
}

int CListBox::GetHorizontalExtent() const
{
    return ask<int>(m_hWnd, LB_GETHORIZONTALEXTENT);
}

void CListBox::SetHorizontalExtent(int cxExtent)
{
    ask(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent);
}

int CListBox::GetTopIndex() const
{
    return ask<int>(m_hWnd, LB_GETTOPINDEX);
}

int CListBox::SetTopIndex(int nIndex)
{
    return ask<int>(m_hWnd, LB_SETTOPINDEX, nIndex);
}

LCID CListBox::GetLocale() const
{
    return ask<LCID>(m_hWnd, LB_GETLOCALE);
}

LCID CListBox::SetLocale(LCID nNewLocale)
{
    return ask<LCID>(m_hWnd, LB_SETLOCALE, nNewLocale);
}

int CListBox::InitStorage(int nItems, UINT nBytes)
{
    return ask<int>(m_hWnd, LB_INITSTORAGE, nItems, nBytes);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const auto found = ask<DWORD>(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(found) != 0;
    return LOWORD(found);
}

DWORD CListBox::GetListBoxInfo() const
{
    return ask<DWORD>(m_hWnd, LB_GETLISTBOXINFO);
}

int CListBox::GetCurSel() const
{
    return ask<int>(m_hWnd, LB_GETCURSEL);
}

int CListBox::SetCurSel(int nSelect)
{
    return ask<int>(m_hWnd, LB_SETCURSEL, nSelect);
}

int CListBox::GetSel(int nIndex) const
{
    return ask<int>(m_hWnd, LB_GETSEL, nIndex);
}

int CListBox::SetSel(int nIndex, BOOL bSelect)
{
    return ask<int>(m_hWnd, LB_SETSEL, bSelect, nIndex);
}

int CListBox::GetSelCount() const
{
    return ask<int>(m_hWnd, LB_GETSELCOUNT);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return nMaxItems <= 0 || rgIndex == nullptr ? 0 : ask<int>(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    if (bSelect)
        return ask<int>(m_hWnd, LB_SELITEMRANGEEX, nFirstItem, nLastItem);
    return ask<int>(m_hWnd, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::SetAnchorIndex(int nIndex)
{
    ask(m_hWnd, LB_SETANCHORINDEX, nIndex);
}

int CListBox::GetAnchorIndex() const
{
    return ask<int>(m_hWnd, LB_GETANCHORINDEX);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    return ask<int>(m_hWnd, LB_SETCARETINDEX, nIndex, MAKELONG(bScroll, 0));
}

int CListBox::GetCaretIndex() const
{
    return ask<int>(m_hWnd, LB_GETCARETINDEX);
}

DWORD_PTR CListBox::GetItemData(int nIndex) const
{
    return ask<DWORD_PTR>(m_hWnd, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return ask<int>(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
}

void* CListBox::GetItemDataPtr(int nIndex) const
{
    return ask<void*>(m_hWnd, LB_GETITEMDATA, nIndex);
}

int CListBox::SetItemDataPtr(int nIndex, void* pData)
{
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return lpRect == nullptr ? LB_ERR : ask<int>(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
}

int CListBox::GetText(int nIndex, LPTSTR lpszBuffer) const
{
    return lpszBuffer == nullptr ? LB_ERR : ask<int>(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    itemText(m_hWnd, LB_GETTEXTLEN, LB_GETTEXT, nIndex, rString);
}

int CListBox::GetTextLen(int nIndex) const
{
    return ask<int>(m_hWnd, LB_GETTEXTLEN, nIndex);
}

void CListBox::SetColumnWidth(int cxWidth)
{
    ask(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth);
}

void CListBox::SetTabStops()
{
    ask(m_hWnd, LB_SETTABSTOPS);
}

BOOL CListBox::SetTabStops(const int& cxEachStop)
{
    return ask<BOOL>(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return ask<BOOL>(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return ask<int>(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
}

int CListBox::GetItemHeight(int nIndex) const
{
    return ask<int>(m_hWnd, LB_GETITEMHEIGHT, nIndex);
}

int CListBox::AddString(LPCTSTR lpszItem)
{
    return ask<int>(m_hWnd, LB_ADDSTRING, 0, lpszItem);
}

int CListBox::DeleteString(UINT nIndex)
{
    return ask<int>(m_hWnd, LB_DELETESTRING, nIndex);
}

int CListBox::InsertString(int nIndex, LPCTSTR lpszItem)
{
    return ask<int>(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
}

void CListBox::ResetContent()
{
    ask(m_hWnd, LB_RESETCONTENT);
}

int CListBox::Dir(UINT attr, LPCTSTR lpszWildCard)
{
    return ask<int>(m_hWnd, LB_DIR, attr, lpszWildCard);
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return ask<int>(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return ask<int>(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return ask<int>(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT /*lpMeasureItemStruct*/) {}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT /*lpCompareItemStruct*/)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT /*lpDeleteItemStruct*/) {}

int CListBox::VKeyToItem(UINT /*nKey*/, UINT /*nIndex*/)
{
    return static_cast<int>(Default());
}

int CListBox::CharToItem(UINT /*nKey*/, UINT /*nIndex*/)
{
    return static_cast<int>(Default());
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message)
    {
    case WM_VKEYTOITEM:
        answer(pResult, VKeyToItem(LOWORD(wParam), HIWORD(wParam)));
        return TRUE;
    case WM_CHARTOITEM:
        answer(pResult, CharToItem(LOWORD(wParam), HIWORD(wParam)));
        return TRUE;
    default:
        return ownerDrawn(*this, message, lParam, pResult) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}
