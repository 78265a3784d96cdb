// Edit fields.
#include <afxwin.h>

#include "Ask.h"
#include "ControlParts.h"

using kx::ask;
using kx::createControl;

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

CEdit::~CEdit()
{
    DestroyWindow();
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CEdit::CanUndo() const
{
    return ask<BOOL>(m_hWnd, EM_CANUNDO);
}

BOOL CEdit::Undo()
{
    return ask<BOOL>(m_hWnd, EM_UNDO);
}

void CEdit::EmptyUndoBuffer()
{
    ask(m_hWnd, EM_EMPTYUNDOBUFFER);
}

int CEdit::GetLineCount() const
{
    return ask<int>(m_hWnd, EM_GETLINECOUNT);
}

BOOL CEdit::GetModify() const
{
    return ask<BOOL>(m_hWnd, EM_GETMODIFY);
}

void CEdit::SetModify(BOOL bModified)
{
    ask(m_hWnd, EM_SETMODIFY, bModified);
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly)
{
    return ask<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly);
}

TCHAR CEdit::GetPasswordChar() const
{
    return ask<TCHAR>(m_hWnd, EM_GETPASSWORDCHAR);
}

void CEdit::SetPasswordChar(TCHAR ch)
{
    ask(m_hWnd, EM_SETPASSWORDCHAR, ch);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    ask(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CEdit::LimitText(int nChars)
{
    ask(m_hWnd, EM_LIMITTEXT, nChars);
}

UINT CEdit::GetLimitText() const
{
    return ask<UINT>(m_hWnd, EM_GETLIMITTEXT);
}

void CEdit::SetLimitText(UINT nMax)
{
    ask(m_hWnd, EM_SETLIMITTEXT, nMax);
}

HLOCAL CEdit::GetHandle() const
{
    return ask<HLOCAL>(m_hWnd, EM_GETHANDLE);
}

void CEdit::SetHandle(HLOCAL hBuffer)
{
    ask(m_hWnd, EM_SETHANDLE, hBuffer);
}

BOOL CEdit::FmtLines(BOOL bAddEOL)
{
    return ask<BOOL>(m_hWnd, EM_FMTLINES, bAddEOL);
}

void CEdit::Clear()
{
    ask(m_hWnd, WM_CLEAR);
}

void CEdit::Copy()
{
    ask(m_hWnd, WM_COPY);
}

void CEdit::Cut()
{
    ask(m_hWnd, WM_CUT);
}

void CEdit::Paste()
{
    ask(m_hWnd, WM_PASTE);
}

DWORD CEdit::GetSel() const
{
    return ask<DWORD>(m_hWnd, EM_GETSEL);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD start = 0;
    DWORD end = 0;
    ask(m_hWnd, EM_GETSEL, &start, &end);
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    ask(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        ask(m_hWnd, EM_SCROLLCARET);
}

int CEdit::GetFirstVisibleLine() const
{
    return ask<int>(m_hWnd, EM_GETFIRSTVISIBLELINE);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer) const
{
    return ask<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    if (lpszBuffer == nullptr || nMaxLength <= 0)
        return 0;
    lpszBuffer[0] = static_cast<TCHAR>(nMaxLength < 0xFFFF ? nMaxLength : 0xFFFF);
    return GetLine(nIndex, lpszBuffer);
}

int CEdit::LineFromChar(int nIndex) const
{
    return ask<int>(m_hWnd, EM_LINEFROMCHAR, nIndex);
}

int CEdit::LineIndex(int nLine) const
{
    return ask<int>(m_hWnd, EM_LINEINDEX, nLine);
}

int CEdit::LineLength(int nLine) const
{
    return ask<int>(m_hWnd, EM_LINELENGTH, nLine);
}

void CEdit::LineScroll(int nLines, int nChars)
{
    ask(m_hWnd, EM_LINESCROLL, nChars, nLines);
}

void CEdit::GetRect(LPRECT lpRect) const
{
    if (lpRect != nullptr)
        ask(m_hWnd, EM_GETRECT, 0, lpRect);
}

void CEdit::SetRect(LPCRECT lpRect)
{
    ask(m_hWnd, EM_SETRECT, 0, lpRect);
}

void CEdit::SetRectNP(LPCRECT lpRect)
{
    ask(m_hWnd, EM_SETRECTNP, 0, lpRect);
}

void CEdit::SetTabStops()
{
    ask(m_hWnd, EM_SETTABSTOPS);
}

BOOL CEdit::SetTabStops(const int& cxEachStop)
{
    return ask<BOOL>(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return ask<BOOL>(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    ask(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

DWORD CEdit::GetMargins() const
{
    return ask<DWORD>(m_hWnd, EM_GETMARGINS);
}

CPoint CEdit::PosFromChar(UINT nChar) const
{
    const auto position = ask<DWORD>(m_hWnd, EM_POSFROMCHAR, nChar);
    return CPoint(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
}

int CEdit::CharFromPos(CPoint pt) const
{
    return ask<int>(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

BOOL CEdit::SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused)
{
    return ask<BOOL>(m_hWnd, EM_SETCUEBANNER, fDrawIfFocused, lpszText);
}

BOOL CEdit::GetCueBanner(LPWSTR lpszText, int cchText) const
{
    return ask<BOOL>(m_hWnd, EM_GETCUEBANNER, lpszText, cchText);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return ask<BOOL>(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {sizeof(EDITBALLOONTIP), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

BOOL CEdit::HideBalloonTip()
{
    return ask<BOOL>(m_hWnd, EM_HIDEBALLOONTIP);
}
