// CWnd's message map, and the handlers that do more than the system: notifications go back to their controls.
#include <afxwin.h>

#include "ThreadState.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    // LRESULT OnSystemCtlColor(WPARAM, LPARAM)
    ON_MESSAGE(WM_CTLCOLORMSGBOX, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLOREDIT, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLORLISTBOX, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLORBTN, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLORDLG, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLORSCROLLBAR, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_CTLCOLORSTATIC, &CWnd::OnSystemCtlColor)
    ON_MESSAGE(WM_DISPLAYCHANGE, &CWnd::OnDisplayChange)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_FONTCHANGE()
END_MESSAGE_MAP()

namespace
{
bool isChildWindow(const CWnd& wnd)
{
    return (wnd.GetStyle() & WS_CHILD) != 0;
}

// The system tells top-level windows only; controls want to know too.
void tellDescendants(CWnd& wnd)
{
    if (isChildWindow(wnd))
        return;
    const MSG* now = CWnd::GetCurrentMessage();
    wnd.SendMessageToDescendants(now->message, now->wParam, now->lParam, TRUE, TRUE);
}
} // namespace

void CWnd::OnNcDestroy()
{
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr)
    {
        if (thread->m_pMainWnd == this)
        {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this)
            thread->m_pActiveWnd = nullptr;
    }
    if (kxThread().toolTipOwner == this)
        CancelToolTips(TRUE);

    const LONG_PTR procedure = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    WNDPROC* super = GetSuperWndProcAddr();
    if (super != nullptr && *super != nullptr && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == procedure)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    if (super == &m_pfnSuper)
        m_pfnSuper = nullptr; // the object may be used for a window of another class
    Detach();
    PostNcDestroy();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool aboutChild = message == WM_CREATE || message == WM_DESTROY;
    if (!aboutChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* bar)
{
    if (bar == nullptr || !reinterpret_cast<CWnd*>(bar)->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* bar)
{
    if (bar == nullptr || !reinterpret_cast<CWnd*>(bar)->SendChildNotifyLastMsg())
        Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* wnd, UINT)
{
    LRESULT brush = 0;
    if (wnd != nullptr && wnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item)
{
    if (item->CtlType == ODT_MENU)
    {
        if (CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(item->hwndItem)))
        {
            menu->DrawItem(item);
            return;
        }
    }
    else if (ReflectLastMsg(item->hwndItem))
    {
        return;
    }
    Default();
}

namespace
{
/// The program's own menu that holds an item, looked for from a menu down; null where there is none.
CMenu* menuWithItem(HMENU from, UINT id)
{
    for (int i = 0; i < ::GetMenuItemCount(from); ++i)
    {
        MENUITEMINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_ID | MIIM_SUBMENU;
        if (!::GetMenuItemInfo(from, static_cast<UINT>(i), TRUE, &info))
            continue;
        if (info.wID == id)
            return CMenu::FromHandlePermanent(from);
        if (CMenu* below = info.hSubMenu != nullptr ? menuWithItem(info.hSubMenu, id) : nullptr)
            return below;
    }
    return nullptr;
}
} // namespace

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT item)
{
    if (item->CtlType == ODT_MENU)
    {
        const HMENU from = kxThread().trackingWnd == m_hWnd ? kxThread().trackedMenu : ::GetMenu(m_hWnd);
        if (CMenu* menu = menuWithItem(from, item->itemID))
        {
            menu->MeasureItem(item);
            return;
        }
    }
    else
    {
        CWnd* child = GetDescendantWindow(static_cast<int>(item->CtlID), TRUE);
        if (child != nullptr && child->SendChildNotifyLastMsg())
            return;
    }
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT item)
{
    if (!ReflectLastMsg(item->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT item)
{
    LRESULT order = 0;
    if (ReflectLastMsg(item->hwndItem, &order))
        return static_cast<int>(order);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox* box, UINT)
{
    LRESULT index = 0;
    if (box != nullptr && reinterpret_cast<CWnd*>(box)->SendChildNotifyLastMsg(&index))
        return static_cast<int>(index);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* box, UINT)
{
    LRESULT index = 0;
    if (box != nullptr && reinterpret_cast<CWnd*>(box)->SendChildNotifyLastMsg(&index))
        return static_cast<int>(index);
    return static_cast<int>(Default());
}

void CWnd::OnSysColorChange()
{
    tellDescendants(*this);
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    tellDescendants(*this);
    Default();
}

void CWnd::OnDevModeChange(LPTSTR)
{
    tellDescendants(*this);
    Default();
}

void CWnd::OnFontChange()
{
    tellDescendants(*this);
    Default();
}

LRESULT CWnd::OnDisplayChange(WPARAM, LPARAM)
{
    tellDescendants(*this);
    return Default();
}
