// Menus.
#pragma once
#include <afx.h>
#include "kx/Export.h"
#include <windows.h>

class CBitmap;
class CWnd;

/// A menu with an owner: it is destroyed with the object, unless it was detached before (as a menu must be that a
/// window or another menu holds). Items are found by position or by command, as MF_BYPOSITION or MF_BYCOMMAND say.
class KXAFX_API CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)
public:
    HMENU m_hMenu = nullptr;

    CMenu();
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    ~CMenu() override;

    operator HMENU() const;
    /// The handle; null also for a null object.
    HMENU GetSafeHmenu() const;
    BOOL operator==(const CMenu& menu) const;
    BOOL operator!=(const CMenu& menu) const;
    /// The object that owns the handle, or a temporary one that lives until the next idle time. Null for null.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    /// The object that owns the handle, or null.
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    /// Takes ownership. FALSE when the handle is null or this object holds one already.
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /// Found in the chain of modules.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    // Items
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    /// Screen coordinates. Shows the menu and runs until it is closed; the command with TPM_RETURNCMD, else TRUE.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    /// The state before, or -1 when there is no such item.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    /// -1 (as UINT) without a menu.
    UINT GetMenuItemCount() const;
    /// 0 for a separator, -1 (as UINT) for a submenu or a position behind the last item.
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    /// The count of characters copied; with room for none, the length of the text.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    /// The length of the text; 0 with an empty text when there is no such item.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    CMenu* GetSubMenu(int nPos) const;
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    /// Takes an item out; its submenu lives on.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    /// The command or position of the default item, -1 (as UINT) when there is none.
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);
    DWORD GetMenuContextHelpId() const;
    BOOL SetMenuInfo(LPCMENUINFO lpcmi);
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const;

    /// Called for an owner-drawn item. Does nothing here.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    /// Called for an owner-drawn item before it is shown first. Does nothing here.
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);

private:
    BOOL TakeNew(HMENU hMenu);
};
