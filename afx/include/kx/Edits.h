// Edit fields and scroll bars.
#pragma once
#include "kx/Wnd.h"

/// An edit field. Positions count characters from 0; lines count from 0.
class KXAFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit();
    ~CEdit() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Text
    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    int GetLineCount() const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR ch);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    /// The largest count of characters that the user may type.
    void LimitText(int nChars = 0);
    UINT GetLimitText() const;
    void SetLimitText(UINT nMax);
    HLOCAL GetHandle() const;
    void SetHandle(HLOCAL hBuffer);
    BOOL FmtLines(BOOL bAddEOL);
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    // Selection
    /// Low word: first character; high word: the one behind the last.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    /// (0, -1) selects all; a start of -1 takes the selection away.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);

    // Lines
    int GetFirstVisibleLine() const;
    /// Copies a line without a terminator. The first word of the buffer must say how many characters it holds.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    /// Room for nMaxLength characters; 0 where there is no room for one.
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    /// The line of a character, or of the caret for -1.
    int LineFromChar(int nIndex = -1) const;
    /// The first character of a line, or of the caret's line for -1; -1 for a line behind the last.
    int LineIndex(int nLine = -1) const;
    /// The length of the line of a character.
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);

    // Layout
    void GetRect(LPRECT lpRect) const;
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    /// Tab stops in dialog units. Without an argument: every 32.
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetMargins(UINT nLeft, UINT nRight);
    DWORD GetMargins() const;
    CPoint PosFromChar(UINT nChar) const;
    /// Low word: the character next to the point; high word: its line.
    int CharFromPos(CPoint pt) const;

    // Common controls version 6
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused = FALSE);
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip();
};

/// A scroll bar control.
class KXAFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
public:
    CScrollBar();
    ~CScrollBar() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    /// The position before.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the thumb reaches.
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
};
