// CWnd's message map, and the handlers that do more than the system: notifications go back to their controls.
#include <afxwin.h>

#include "StillThere.h"
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

// The control may end this window and its object while it is asked.
LRESULT CWnd::OfferLastMsg(CWnd* control)
{
    const kx::StillThere here(*this);
    LRESULT result = 0;
    if (control != nullptr && control->SendChildNotifyLastMsg(&result))
        return result;
    return here ? Default() : 0;
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool aboutChild = message == WM_CREATE || message == WM_DESTROY;
    OfferLastMsg(aboutChild ? FromHandlePermanent(reinterpret_cast<HWND>(lParam)) : nullptr);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* bar)
{
    OfferLastMsg(reinterpret_cast<CWnd*>(bar));
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* bar)
{
    OfferLastMsg(reinterpret_cast<CWnd*>(bar));
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* wnd, UINT)
{
    return reinterpret_cast<HBRUSH>(OfferLastMsg(wnd));
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT item)
{
    const bool ofMenu = item != nullptr && item->CtlType == ODT_MENU;
    if (CMenu* menu = ofMenu ? CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(item->hwndItem)) : nullptr)
        menu->DrawItem(item);
    else
        OfferLastMsg(item != nullptr && !ofMenu ? FromHandlePermanent(item->hwndItem) : nullptr);
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
    if (item == nullptr || item->CtlType != ODT_MENU)
    {
        OfferLastMsg(item != nullptr ? GetDescendantWindow(static_cast<int>(item->CtlID), TRUE) : nullptr);
        return;
    }
    const HMENU from = kxThread().trackingWnd == m_hWnd ? kxThread().trackedMenu : ::GetMenu(m_hWnd);
    if (CMenu* menu = menuWithItem(from, item->itemID))
        menu->MeasureItem(item);
    else
        Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT item)
{
    OfferLastMsg(item != nullptr ? FromHandlePermanent(item->hwndItem) : nullptr);
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT item)
{
    return static_cast<int>(OfferLastMsg(item != nullptr ? FromHandlePermanent(item->hwndItem) : nullptr));
}

int CWnd::OnCharToItem(UINT, CListBox* box, UINT)
{
    return static_cast<int>(OfferLastMsg(reinterpret_cast<CWnd*>(box)));
}

int CWnd::OnVKeyToItem(UINT, CListBox* box, UINT)
{
    return static_cast<int>(OfferLastMsg(reinterpret_cast<CWnd*>(box)));
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
