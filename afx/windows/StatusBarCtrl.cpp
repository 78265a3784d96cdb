// Status bars.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::createCommon;
using kx::drawReflected;

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

CStatusBarCtrl::~CStatusBarCtrl()
{
    DestroyWindow();
}

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_BAR_CLASSES, STATUSCLASSNAME, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createCommon(*this, ICC_BAR_CLASSES, STATUSCLASSNAME, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType)
{
    return ask<BOOL>(m_hWnd, SB_SETTEXT, MAKEWORD(nPane, nType), lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const
{
    CString text;
    const int length = GetTextLength(nPane, pType);
    if (length <= 0)
        return text;
    const auto copied = LOWORD(ask<DWORD>(m_hWnd, SB_GETTEXT, nPane, text.GetBufferSetLength(length)));
    text.ReleaseBuffer(copied < length ? copied : length);
    return text;
}

int CStatusBarCtrl::GetText(LPCTSTR lpszText, int nPane, int* pType) const
{
    const auto answer = ask<DWORD>(m_hWnd, SB_GETTEXT, nPane, lpszText);
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const
{
    const auto answer = ask<DWORD>(m_hWnd, SB_GETTEXTLENGTH, nPane);
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths)
{
    return pWidths != nullptr && ask<BOOL>(m_hWnd, SB_SETPARTS, nParts, pWidths);
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const
{
    return ask<int>(m_hWnd, SB_GETPARTS, nParts, pParts);
}

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const
{
    return pBorders != nullptr && ask<BOOL>(m_hWnd, SB_GETBORDERS, 0, pBorders);
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const
{
    int borders[3] = {};
    const BOOL known = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return known;
}

void CStatusBarCtrl::SetMinHeight(int nMin)
{
    ask(m_hWnd, SB_SETMINHEIGHT, nMin);
}

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple)
{
    return ask<BOOL>(m_hWnd, SB_SIMPLE, bSimple);
}

BOOL CStatusBarCtrl::IsSimple() const
{
    return ask<BOOL>(m_hWnd, SB_ISSIMPLE);
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const
{
    return lpRect != nullptr && ask<BOOL>(m_hWnd, SB_GETRECT, nPane, lpRect);
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr)
{
    return ask<COLORREF>(m_hWnd, SB_SETBKCOLOR, 0, cr);
}

BOOL CStatusBarCtrl::SetIcon(int nPane, HICON hIcon)
{
    return ask<BOOL>(m_hWnd, SB_SETICON, nPane, hIcon);
}

HICON CStatusBarCtrl::GetIcon(int iPart) const
{
    return ask<HICON>(m_hWnd, SB_GETICON, iPart);
}

void CStatusBarCtrl::SetTipText(int nPane, LPCTSTR pszTipText)
{
    ask(m_hWnd, SB_SETTIPTEXT, nPane, pszTipText);
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    wchar_t text[1024] = {};
    ask(m_hWnd, SB_GETTIPTEXT, MAKELONG(nPane, 1024), text);
    text[1023] = 0;
    return text;
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
