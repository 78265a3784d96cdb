// A window's items by their ids, and its scroll bars.
#include <afxwin.h>

#include <algorithm>

#include "ScrollLimit.h"
#include "TempWnd.h"

void CWnd::CheckDlgButton(int id, UINT check)
{
    ::CheckDlgButton(m_hWnd, id, check);
}

void CWnd::CheckRadioButton(int first, int last, int check)
{
    ::CheckRadioButton(m_hWnd, first, last, check);
}

int CWnd::GetCheckedRadioButton(int first, int last) const
{
    for (int id = first; id <= last; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id) != 0)
            return id;
    return 0;
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    return ::IsDlgButtonChecked(m_hWnd, id);
}

int CWnd::DlgDirList(LPTSTR pathSpec, int listId, int staticId, UINT fileType)
{
    return ::DlgDirList(m_hWnd, pathSpec, listId, staticId, fileType);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* control, BOOL previous) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, control->GetSafeHwnd(), previous));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* control, BOOL previous) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, control->GetSafeHwnd(), previous));
}

UINT CWnd::GetDlgItemInt(int id, BOOL* translated, BOOL isSigned) const
{
    return ::GetDlgItemInt(m_hWnd, id, translated, isSigned);
}

int CWnd::GetDlgItemText(int id, LPTSTR buffer, int maxCount) const
{
    return buffer == nullptr || maxCount <= 0 ? 0 : static_cast<int>(::GetDlgItemText(m_hWnd, id, buffer, maxCount));
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    text.Empty();
    if (const CWnd* item = GetDlgItem(id))
        item->GetWindowText(text);
    return text.GetLength();
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, id, message, wParam, lParam);
}

void CWnd::SetDlgItemInt(int id, UINT value, BOOL isSigned)
{
    ::SetDlgItemInt(m_hWnd, id, value, isSigned);
}

void CWnd::SetDlgItemText(int id, LPCTSTR text)
{
    ::SetDlgItemText(m_hWnd, id, text);
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int id)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, id));
}

CWnd* CWnd::GetDlgItem(int id) const
{
    return FromHandle(::GetDlgItem(m_hWnd, id));
}

void CWnd::GetDlgItem(int id, HWND* wnd) const
{
    *wnd = ::GetDlgItem(m_hWnd, id);
}

BOOL CWnd::IsDialogMessage(LPMSG message)
{
    return ::IsDialogMessage(m_hWnd, message);
}

int CWnd::GetScrollPos(int bar) const
{
    return ::GetScrollPos(m_hWnd, bar);
}

void CWnd::GetScrollRange(int bar, LPINT minPos, LPINT maxPos) const
{
    ::GetScrollRange(m_hWnd, bar, minPos, maxPos);
}

int CWnd::SetScrollPos(int bar, int pos, BOOL redraw)
{
    return ::SetScrollPos(m_hWnd, bar, pos, redraw);
}

void CWnd::SetScrollRange(int bar, int minPos, int maxPos, BOOL redraw)
{
    ::SetScrollRange(m_hWnd, bar, minPos, maxPos, redraw);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof(SCROLLINFO);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, bar, info);
}

int CWnd::GetScrollLimit(int bar)
{
    int minPos = 0;
    int maxPos = 0;
    GetScrollRange(bar, &minPos, &maxPos);
    SCROLLINFO info = {};
    return GetScrollInfo(bar, &info, SIF_PAGE) ? kx::scrollLimit(maxPos, info.nPage) : maxPos;
}

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

void CWnd::ShowScrollBar(UINT bar, BOOL show)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show);
}

BOOL CWnd::EnableScrollBar(int bar, UINT flags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(bar), flags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT rect, LPCRECT clip)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, rect, clip);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, scroll, clip, static_cast<HRGN>(update->GetSafeHandle()), updateRect,
                            flags);
}
