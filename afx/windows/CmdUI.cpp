// How the answer of an update handler reaches a menu item or a control.
#include <afxwin.h>

#include "kx/CmdUI.h"

namespace
{
// An item that opens a submenu keeps its state: the submenu's own items are asked.
bool isMenuItem(const CCmdUI& ui)
{
    return ui.m_pMenu != nullptr && ui.m_pSubMenu == nullptr;
}
} // namespace

CCmdUI::CCmdUI() = default;
CCmdUI::~CCmdUI() = default;

void CCmdUI::Enable(BOOL on)
{
    m_bEnableChanged = TRUE;
    if (isMenuItem(*this))
    {
        ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    }
    else if (m_pMenu == nullptr && m_pOther != nullptr)
    {
        if (!on && ::GetFocus() == m_pOther->m_hWnd) // a disabled window would keep the keys for itself
            ::SendMessage(::GetParent(m_pOther->m_hWnd), WM_NEXTDLGCTL, 0, FALSE);
        m_pOther->EnableWindow(on);
    }
}

void CCmdUI::SetCheck(int check)
{
    if (isMenuItem(*this))
        ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (check != 0 ? MF_CHECKED : MF_UNCHECKED));
    else if (m_pMenu == nullptr && m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0)
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

void CCmdUI::SetRadio(BOOL on)
{
    SetCheck(on ? 1 : 0);
    if (!isMenuItem(*this))
        return;
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE;
    if (::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info))
    {
        info.fType |= MFT_RADIOCHECK;
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    }
}

void CCmdUI::SetText(LPCTSTR text)
{
    if (isMenuItem(*this))
    {
        MENUITEMINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(text);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    }
    else if (m_pMenu == nullptr && m_pOther != nullptr)
    {
        AfxSetWindowText(m_pOther->m_hWnd, text);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* target, BOOL disableIfNoHandler)
{
    if (target == nullptr || m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // separators and static texts
    m_bEnableChanged = FALSE;
    const BOOL handled = target->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (disableIfNoHandler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info = {};
        Enable(target->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
