// The control bars of a frame: layout, sides, showing and hiding.
#include <afxext.h>

#include <array>
#include <utility>

#include "kx/CmdUI.h"
#include "StillThere.h"

namespace
{
constexpr std::array<std::pair<UINT, DWORD>, 4> sides = {{{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                                                          {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
                                                          {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                                                          {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}}};

/// The side that is asked for, of those that are possible; 0 where there is none.
DWORD sideFor(UINT dockBarId, DWORD present, DWORD possible)
{
    if (dockBarId == 0 && (present & possible & CBRS_ALIGN_ANY) != 0)
        return present & CBRS_ALIGN_ANY;
    for (const auto& [id, side] : sides)
        if ((dockBarId == 0 || dockBarId == id) && (possible & side) != 0)
            return side;
    return 0;
}
} // namespace

void CFrameWnd::OnSize(UINT type, int cx, int cy)
{
    const kx::StillThere here(*this);
    CWnd::OnSize(type, cx, cy);
    if (here && type != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_hWnd == nullptr || m_bInRecalcLayout)
        return;
    const kx::StillThere here(*this);
    m_bInRecalcLayout = TRUE;
    m_bLayoutDelayed = FALSE;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    if (here)
        m_bInRecalcLayout = FALSE;
}

void CFrameWnd::DelayRecalcLayout(BOOL notify)
{
    m_bDelayedNotify = notify || (m_bLayoutDelayed && m_bDelayedNotify);
    m_bLayoutDelayed = TRUE;
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM)
{
    if (m_bLayoutDelayed)
        RecalcLayout(m_bDelayedNotify);
    return 0;
}

void CFrameWnd::EnableDocking(DWORD dockStyle)
{
    m_dwDockStyle = dockStyle & CBRS_ALIGN_ANY;
}

void CFrameWnd::DockControlBar(CControlBar* bar, UINT dockBarId, LPCRECT)
{
    if (bar->GetSafeHwnd() == nullptr || m_hWnd == nullptr)
        return;
    const DWORD side = sideFor(dockBarId, bar->GetBarStyle(), m_dwDockStyle & bar->GetDockStyle());
    if (side == 0)
        return;
    if (::GetParent(bar->m_hWnd) != m_hWnd)
        bar->SetParent(this);
    bar->SetBarStyle((bar->GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | side);
    ShowControlBar(bar, TRUE, FALSE);
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay)
{
    if (bar->GetSafeHwnd() == nullptr)
        return;
    bar->DelayShow(show);
    if (delay)
    {
        DelayRecalcLayout(FALSE);
        return;
    }
    const kx::StillThere here(*this);
    const kx::StillThere barHere(*bar);
    bar->SetWindowPos(nullptr, 0, 0, 0, 0,
                      SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOMOVE | SWP_NOSIZE |
                          (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    if (barHere)
        bar->DelayShow(show); // nothing is left to do later
    if (here)
        RecalcLayout(FALSE);
}

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    for (HWND child = ::GetTopWindow(m_hWnd); m_hWnd != nullptr && child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
        if (static_cast<UINT>(::GetDlgCtrlID(child)) == id)
            if (auto* bar = dynamic_cast<CControlBar*>(CWnd::FromHandlePermanent(child)))
                return bar;
    return nullptr;
}

BOOL CFrameWnd::OnBarCheck(UINT id)
{
    CControlBar* bar = GetControlBar(id);
    if (bar == nullptr)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* ui)
{
    CControlBar* bar = GetControlBar(ui->m_nID);
    if (bar == nullptr)
        ui->ContinueRouting();
    else
        ui->SetCheck(bar->IsVisible() ? 1 : 0);
}
