// Menus: attaching, loading, items.
#include <afxwin.h>

#include "ThreadState.h"
#include "kx/HandleMap.h"

namespace
{

kx::HandleOwners<CMenu>& owners()
{
    static auto* const all = new kx::HandleOwners<CMenu>; // lives as long as the process: objects of any module use it
    return *all;
}

kx::TemporaryObjects<CMenu>& temporaries()
{
    thread_local kx::TemporaryObjects<CMenu> all([](CMenu& menu) { menu.m_hMenu = nullptr; });
    return all;
}

/// While it lives, the thread knows which menu is shown for which window.
class TrackedMenu
{
public:
    TrackedMenu(HMENU menu, HWND window)
    {
        std::swap(m_menu, kxThread().trackedMenu);
        std::swap(m_window, kxThread().trackingWnd);
        kxThread().trackedMenu = menu;
        kxThread().trackingWnd = window;
    }
    ~TrackedMenu()
    {
        kxThread().trackedMenu = m_menu;
        kxThread().trackingWnd = m_window;
    }
    TrackedMenu(const TrackedMenu&) = delete;
    TrackedMenu& operator=(const TrackedMenu&) = delete;

private:
    HMENU m_menu = nullptr;
    HWND m_window = nullptr;
};

} // namespace

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::CMenu() = default;

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu::operator HMENU() const
{
    return GetSafeHmenu();
}

HMENU CMenu::GetSafeHmenu() const
{
    const CMenu* self = this;
    return self == nullptr ? nullptr : self->m_hMenu;
}

BOOL CMenu::operator==(const CMenu& menu) const
{
    return m_hMenu == menu.m_hMenu;
}

BOOL CMenu::operator!=(const CMenu& menu) const
{
    return m_hMenu != menu.m_hMenu;
}

CMenu* CMenu::FromHandle(HMENU hMenu)
{
    if (hMenu == nullptr)
        return nullptr;
    if (CMenu* const owner = owners().find(hMenu))
        return owner;
    return temporaries().get<CMenu>(hMenu, [=](CMenu& menu) { menu.m_hMenu = hMenu; });
}

CMenu* CMenu::FromHandlePermanent(HMENU hMenu)
{
    return hMenu == nullptr ? nullptr : owners().find(hMenu);
}

void CMenu::DeleteTempMap()
{
    temporaries().clear();
}

BOOL CMenu::Attach(HMENU hMenu)
{
    if (hMenu == nullptr || m_hMenu != nullptr)
        return FALSE;
    m_hMenu = hMenu;
    owners().add(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU const handle = m_hMenu;
    if (handle != nullptr)
        owners().remove(handle, this);
    m_hMenu = nullptr;
    return handle;
}

BOOL CMenu::CreateMenu()
{
    return TakeNew(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return TakeNew(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return TakeNew(::LoadMenuW(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate)
{
    return lpMenuTemplate != nullptr && TakeNew(::LoadMenuIndirectW(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    HMENU const handle = Detach();
    return handle != nullptr && ::DestroyMenu(handle);
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    const TrackedMenu tracked(m_hMenu, pWnd->GetSafeHwnd());
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    const TrackedMenu tracked(m_hMenu, pWnd->GetSafeHwnd());
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenuW(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, static_cast<LPCTSTR>(pBmp->GetSafeHandle()));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

UINT CMenu::GetMenuItemCount() const
{
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuStringW(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    rString.Empty();
    const int length = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0)
        return 0;
    const int copied = ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBufferSetLength(length), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != nullptr && ::GetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != nullptr && ::SetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != nullptr && ::InsertMenuItemW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem,
                         static_cast<LPCTSTR>(pBmp->GetSafeHandle()));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem,
                         static_cast<LPCTSTR>(pBmp->GetSafeHandle()));
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, static_cast<HBITMAP>(pBmpUnchecked->GetSafeHandle()),
                                static_cast<HBITMAP>(pBmpChecked->GetSafeHandle()));
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi)
{
    return lpcmi != nullptr && ::SetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const
{
    return lpcmi != nullptr && ::GetMenuInfo(m_hMenu, lpcmi);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT /*lpMeasureItemStruct*/) {}

BOOL CMenu::TakeNew(HMENU hMenu)
{
    if (Attach(hMenu))
        return TRUE;
    if (hMenu != nullptr)
        ::DestroyMenu(hMenu);
    return FALSE;
}
