// The tool tip control.
#pragma once
#include "kx/Wnd.h"

/// The record of a tool, with room for its text.
struct KXAFX_API CToolInfo : public TOOLINFO
{
    TCHAR szText[256];
};

/// A window of tips for tools, which are windows (tool number 0) or rectangles of a window (any other number).
/// The parent must pass its mouse messages to RelayEvent. Tips whose text is LPSTR_TEXTCALLBACK are asked for by
/// TTN_NEEDTEXT, which goes to the window of the tool. Texts are cut at 32766 characters.
class KXAFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    CToolTipCtrl();
    ~CToolTipCtrl() override;
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    // Tools. A tool is named by its window and its number
    /// The text comes from a string resource of the chain of modules.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    /// Rectangles are in client coordinates of the window; a number goes with them, and none without.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    /// The tool at a point in client coordinates of the window.
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    /// Empty where there is no such tool.
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const;
    /// The tool whose tip is shown.
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;
    /// Makes a record name a tool as this class does.
    void FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const;

    // Showing
    void Activate(BOOL bActivate);
    void RelayEvent(LPMSG lpMsg);
    void Pop();
    void Popup();
    void Update();
    /// Shows or hides a tip that was added with TTF_TRACK.
    void TrackActivate(LPTOOLINFO lpti, BOOL bActivate);
    /// Screen coordinates.
    void TrackPosition(int xPos, int yPos);
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    /// From the rectangle of the text to that of the window, or back.
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE);

    // Times in milliseconds, looks
    int GetDelayTime(DWORD dwDuration) const;
    void SetDelayTime(UINT nDelay);
    /// dwDuration: TTDT_AUTOPOP, TTDT_INITIAL, TTDT_RESHOW or TTDT_AUTOMATIC; up to 32767.
    void SetDelayTime(DWORD dwDuration, int iTime);
    void GetMargin(LPRECT lprc) const;
    void SetMargin(LPRECT lprc);
    /// -1: lines are not broken.
    int GetMaxTipWidth() const;
    int SetMaxTipWidth(int iWidth);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF clr);
    /// uIcon: TTI_NONE, TTI_INFO, TTI_WARNING, TTI_ERROR. At most 99 characters.
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle);
    void GetTitle(PTTGETTITLE pttgt) const;
    void SetWindowTheme(LPCWSTR pszSubAppName);

private:
    BOOL AddFilled(TOOLINFO& info, LPCRECT rect) const;
};
