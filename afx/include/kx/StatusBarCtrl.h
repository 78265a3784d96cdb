// The status bar control.
#pragma once
#include "kx/Wnd.h"

/// A bar of panes with texts.
class KXAFX_API CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// nType: 0, SBT_NOBORDERS, SBT_POPOUT or SBT_OWNERDRAW.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    /// Any length; empty where there is no such pane.
    CString GetText(int nPane, int* pType = nullptr) const;
    /// The caller's buffer has room for GetTextLength characters and the null.
    int GetText(LPCTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    /// The right ends of the panes, in client coordinates; -1 for the last: as far as the bar goes.
    BOOL SetParts(int nParts, int* pWidths);
    /// The count of panes; at most nParts ends are copied.
    int GetParts(int nParts, int* pParts) const;
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin);
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL IsSimple() const;
    BOOL GetRect(int nPane, LPRECT lpRect) const;
    COLORREF SetBkColor(COLORREF cr);
    BOOL SetIcon(int nPane, HICON hIcon);
    HICON GetIcon(int iPart) const;
    void SetTipText(int nPane, LPCTSTR pszTipText);
    CString GetTipText(int nPane) const;

    /// Called for SBT_OWNERDRAW. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
