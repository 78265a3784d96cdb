// Tool tips.
#include <afxcmn.h>

#include "CommonParts.h"

using kx::ask;
using kx::initControls;

namespace
{

/// Accepted by every version of the common controls; the newest size is not.
constexpr UINT toolInfoSize = offsetof(TOOLINFO, lParam) + sizeof(LPARAM);
constexpr int longestText = 0x8000;

/// A record whose size nobody has set gets one that is accepted.
void acceptSize(TOOLINFO& info)
{
    if (info.cbSize == 0)
        info.cbSize = toolInfoSize;
}

/// The text itself, or what fits of it. The control copies whole texts into a buffer whose size it is not told.
LPTSTR boundedText(LPCTSTR text, CString& cut)
{
    if (text == LPSTR_TEXTCALLBACK || IS_INTRESOURCE(text) || ::wcsnlen(text, longestText) + 1 < longestText)
        return const_cast<LPTSTR>(text);
    cut = CString(text, longestText - 2);
    return const_cast<LPTSTR>(static_cast<LPCTSTR>(cut));
}

void setResourceText(TOOLINFO& info, UINT id)
{
    info.hinst = AfxFindStringResourceHandle(id);
    info.lpszText = MAKEINTRESOURCE(id);
}

} // namespace

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl()
{
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    initControls(ICC_BAR_CLASSES);
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    setResourceText(info, nIDText);
    return AddFilled(info, lpRectTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    CString cut;
    info.lpszText = boundedText(lpszText, cut);
    return AddFilled(info, lpRectTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    ask(m_hWnd, TTM_DELTOOL, 0, &info);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    TTHITTESTINFO test = {};
    test.ti.cbSize = toolInfoSize;
    test.hwnd = pWnd->GetSafeHwnd();
    test.pt = pt;
    if (lpToolInfo == nullptr || !ask<BOOL>(m_hWnd, TTM_HITTEST, 0, &test))
        return FALSE;
    *lpToolInfo = test.ti;
    return TRUE;
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    std::vector<wchar_t> text(longestText);
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    info.lpszText = text.data();
    ask(m_hWnd, TTM_GETTEXT, longestText, &info);
    text.back() = 0;
    str = info.lpszText == text.data() ? text.data() : L"";
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    FillInToolInfo(ToolInfo, pWnd, nIDTool);
    std::vector<wchar_t> text(longestText);
    ToolInfo.lpszText = text.data();
    const BOOL found = ask<BOOL>(m_hWnd, TTM_GETTOOLINFO, 0, &ToolInfo);
    text.back() = 0;
    ::lstrcpynW(ToolInfo.szText, text.data(), static_cast<int>(std::size(ToolInfo.szText)));
    if (ToolInfo.lpszText == text.data())
        ToolInfo.lpszText = ToolInfo.szText;
    return found;
}

void CToolTipCtrl::SetToolInfo(LPTOOLINFO lpToolInfo)
{
    if (lpToolInfo == nullptr)
        return;
    acceptSize(*lpToolInfo);
    CString cut;
    LPTSTR const text = lpToolInfo->lpszText;
    lpToolInfo->lpszText = boundedText(text, cut);
    ask(m_hWnd, TTM_SETTOOLINFO, 0, lpToolInfo);
    lpToolInfo->lpszText = text;
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    if (lpRect == nullptr)
        return;
    info.rect = *lpRect;
    ask(m_hWnd, TTM_NEWTOOLRECT, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    setResourceText(info, nIDText);
    ask(m_hWnd, TTM_UPDATETIPTEXT, 0, &info);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO info = {};
    FillInToolInfo(info, pWnd, nIDTool);
    CString cut;
    info.lpszText = boundedText(lpszText, cut);
    ask(m_hWnd, TTM_UPDATETIPTEXT, 0, &info);
}

int CToolTipCtrl::GetToolCount() const
{
    return ask<int>(m_hWnd, TTM_GETTOOLCOUNT);
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const
{
    if (lpToolInfo == nullptr)
        return FALSE;
    acceptSize(*lpToolInfo);
    return ask<BOOL>(m_hWnd, TTM_GETCURRENTTOOL, 0, lpToolInfo);
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const
{
    HWND const window = pWnd->GetSafeHwnd();
    ::memset(&ti, 0, sizeof(TOOLINFO));
    ti.cbSize = toolInfoSize;
    ti.hwnd = nIDTool == 0 ? ::GetParent(window) : window;
    ti.uFlags = nIDTool == 0 ? TTF_IDISHWND : 0;
    ti.uId = nIDTool == 0 ? reinterpret_cast<UINT_PTR>(window) : nIDTool;
}

void CToolTipCtrl::Activate(BOOL bActivate)
{
    ask(m_hWnd, TTM_ACTIVATE, bActivate);
}

void CToolTipCtrl::RelayEvent(LPMSG lpMsg)
{
    ask(m_hWnd, TTM_RELAYEVENT, 0, lpMsg);
}

void CToolTipCtrl::Pop()
{
    ask(m_hWnd, TTM_POP);
}

void CToolTipCtrl::Popup()
{
    ask(m_hWnd, TTM_POPUP);
}

void CToolTipCtrl::Update()
{
    ask(m_hWnd, TTM_UPDATE);
}

void CToolTipCtrl::TrackActivate(LPTOOLINFO lpti, BOOL bActivate)
{
    if (lpti == nullptr)
        return;
    acceptSize(*lpti);
    ask(m_hWnd, TTM_TRACKACTIVATE, bActivate, lpti);
}

void CToolTipCtrl::TrackPosition(int xPos, int yPos)
{
    ask(m_hWnd, TTM_TRACKPOSITION, 0, MAKELPARAM(xPos, yPos));
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    if (lpToolInfo == nullptr)
        return CSize(0, 0);
    acceptSize(*lpToolInfo);
    const auto size = ask<DWORD>(m_hWnd, TTM_GETBUBBLESIZE, 0, lpToolInfo);
    return CSize(LOWORD(size), HIWORD(size));
}

BOOL CToolTipCtrl::AdjustRect(LPRECT lprc, BOOL bLarger)
{
    return ask<BOOL>(m_hWnd, TTM_ADJUSTRECT, bLarger, lprc);
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const
{
    return ask<int>(m_hWnd, TTM_GETDELAYTIME, dwDuration);
}

void CToolTipCtrl::SetDelayTime(UINT nDelay)
{
    ask(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay);
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime)
{
    ask(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

void CToolTipCtrl::GetMargin(LPRECT lprc) const
{
    ask(m_hWnd, TTM_GETMARGIN, 0, lprc);
}

void CToolTipCtrl::SetMargin(LPRECT lprc)
{
    ask(m_hWnd, TTM_SETMARGIN, 0, lprc);
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return ask<int>(m_hWnd, TTM_GETMAXTIPWIDTH);
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth)
{
    return ask<int>(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return ask<COLORREF>(m_hWnd, TTM_GETTIPBKCOLOR);
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr)
{
    ask(m_hWnd, TTM_SETTIPBKCOLOR, clr);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return ask<COLORREF>(m_hWnd, TTM_GETTIPTEXTCOLOR);
}

void CToolTipCtrl::SetTipTextColor(COLORREF clr)
{
    ask(m_hWnd, TTM_SETTIPTEXTCOLOR, clr);
}

BOOL CToolTipCtrl::SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
{
    return ask<BOOL>(m_hWnd, TTM_SETTITLE, uIcon, lpstrTitle);
}

void CToolTipCtrl::GetTitle(PTTGETTITLE pttgt) const
{
    ask(m_hWnd, TTM_GETTITLE, 0, pttgt);
}

void CToolTipCtrl::SetWindowTheme(LPCWSTR pszSubAppName)
{
    ask(m_hWnd, TTM_SETWINDOWTHEME, 0, pszSubAppName);
}

BOOL CToolTipCtrl::AddFilled(TOOLINFO& info, LPCRECT rect) const
{
    if (info.hwnd == nullptr && info.uId == 0)
        return FALSE;
    if (rect != nullptr)
        info.rect = *rect;
    return ask<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &info);
}
