// Scroll bars.
#include <afxwin.h>

#include "ControlParts.h"
#include "ScrollLimit.h"

using kx::createControl;

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

CScrollBar::~CScrollBar()
{
    DestroyWindow();
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

void CScrollBar::ShowScrollBar(BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, SB_CTL, bShow);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    if (lpScrollInfo == nullptr)
        return FALSE;
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    if (lpScrollInfo == nullptr)
        return FALSE;
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    return kx::scrollLimit(info.nMax, info.nPage);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    if (pScrollInfo == nullptr)
        return FALSE;
    pScrollInfo->cbSize = sizeof *pScrollInfo;
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}
