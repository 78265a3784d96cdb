// Menus.
#include "Support.h"
#include "resource.h"

namespace
{
class CFileMenu : public CMenu
{
public:
    CFileMenu()
    {
        CreatePopupMenu();
        AppendMenu(MF_STRING, 10, L"ten");
        AppendMenu(MF_SEPARATOR);
        AppendMenu(MF_STRING, 30, L"thirty");
    }
};
} // namespace

TEST(Menu, is_loaded_from_the_chain_of_modules)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_MENU));
    EXPECT_EQ(2U, menu.GetMenuItemCount());
    CMenu* const file = menu.GetSubMenu(0);
    ASSERT_NE(nullptr, file);
    EXPECT_EQ(3U, file->GetMenuItemCount());
    EXPECT_EQ(1001U, file->GetMenuItemID(0));
    EXPECT_EQ(0U, file->GetMenuItemID(1));
    CString text;
    EXPECT_EQ(15, file->GetMenuString(1001, text, MF_BYCOMMAND));
    EXPECT_EQ(L"&Open...\tCtrl+O", plain(text));
    EXPECT_EQ(nullptr, menu.GetSubMenu(1));
    EXPECT_EQ(nullptr, menu.GetSubMenu(77));
    EXPECT_FALSE(CMenu().LoadMenu(9999));
}

TEST(Menu, is_destroyed_with_its_owner_unless_detached)
{
    HMENU handle = nullptr;
    {
        CFileMenu menu;
        handle = menu.m_hMenu;
        EXPECT_EQ(&menu, CMenu::FromHandle(handle));
        EXPECT_EQ(&menu, CMenu::FromHandlePermanent(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
    {
        CFileMenu menu;
        handle = menu.Detach();
        EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    }
    EXPECT_TRUE(::IsMenu(handle));
    EXPECT_TRUE(::DestroyMenu(handle));
}

TEST(Menu, null_pointers_and_empty_objects)
{
    CMenu* const none = nobody<CMenu>();
    EXPECT_EQ(nullptr, none->GetSafeHmenu());
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
    CMenu menu;
    EXPECT_FALSE(menu.DestroyMenu());
    EXPECT_FALSE(menu.Attach(nullptr));
    EXPECT_EQ(static_cast<UINT>(-1), menu.GetMenuItemCount());
}

TEST(Menu, items_are_inserted_changed_and_taken_out)
{
    CFileMenu menu;
    EXPECT_TRUE(menu.InsertMenu(30, MF_BYCOMMAND | MF_STRING, 20, L"twenty"));
    EXPECT_EQ(20U, menu.GetMenuItemID(2));
    EXPECT_TRUE(menu.ModifyMenu(20, MF_BYCOMMAND | MF_STRING, 21, L"twenty-one"));
    CString text;
    menu.GetMenuString(21, text, MF_BYCOMMAND);
    EXPECT_EQ(L"twenty-one", plain(text));
    EXPECT_TRUE(menu.DeleteMenu(21, MF_BYCOMMAND));
    EXPECT_TRUE(menu.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_EQ(2U, menu.GetMenuItemCount());
    EXPECT_FALSE(menu.DeleteMenu(999, MF_BYCOMMAND));
}

TEST(Menu, states_are_set_and_asked_for)
{
    CFileMenu menu;
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), menu.CheckMenuItem(10, MF_BYCOMMAND | MF_CHECKED));
    EXPECT_TRUE((menu.GetMenuState(10, MF_BYCOMMAND) & MF_CHECKED) != 0);
    EXPECT_EQ(static_cast<UINT>(MF_ENABLED), menu.EnableMenuItem(30, MF_BYCOMMAND | MF_GRAYED));
    EXPECT_TRUE((menu.GetMenuState(30, MF_BYCOMMAND) & MF_GRAYED) != 0);
    EXPECT_EQ(static_cast<UINT>(-1), menu.GetMenuState(77, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(-1), menu.EnableMenuItem(77, MF_BYCOMMAND));
    EXPECT_TRUE(menu.CheckMenuRadioItem(10, 30, 30, MF_BYCOMMAND));
    EXPECT_TRUE(menu.SetDefaultItem(30));
    EXPECT_EQ(30U, menu.GetDefaultItem(GMDI_USEDISABLED));
    EXPECT_EQ(2U, menu.GetDefaultItem(GMDI_USEDISABLED, TRUE));
    EXPECT_EQ(static_cast<UINT>(-1), menu.GetDefaultItem(0)) << "it is disabled";
}

TEST(Menu, item_records)
{
    CFileMenu menu;
    MENUITEMINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_DATA;
    info.dwItemData = 0x1234;
    EXPECT_TRUE(menu.SetMenuItemInfo(10, &info));
    info.dwItemData = 0;
    EXPECT_TRUE(menu.GetMenuItemInfo(0, &info, TRUE));
    EXPECT_EQ(0x1234U, info.dwItemData);
    EXPECT_FALSE(menu.GetMenuItemInfo(77, &info));
    EXPECT_FALSE(menu.GetMenuItemInfo(10, nullptr));
}

TEST(Menu, a_long_text_is_read_whole_and_a_missing_one_is_empty)
{
    CFileMenu menu;
    const std::wstring longer(3000, L'm');
    menu.AppendMenu(MF_STRING, 40, longer.c_str());
    CString text(L"before");
    EXPECT_EQ(3000, menu.GetMenuString(40, text, MF_BYCOMMAND));
    EXPECT_EQ(longer, plain(text));
    EXPECT_EQ(0, menu.GetMenuString(77, text, MF_BYCOMMAND));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Menu, bitmaps_as_items)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    CFileMenu menu;
    EXPECT_TRUE(menu.AppendMenu(0, 50, &bitmap));
    EXPECT_TRUE((menu.GetMenuState(50, MF_BYCOMMAND) & MF_BITMAP) != 0);
    EXPECT_TRUE(menu.SetMenuItemBitmaps(10, MF_BYCOMMAND, &bitmap, nullptr));
}

TEST(Menu, a_popup_returns_the_command_that_was_picked)
{
    CParentWindow parent;
    parent.SetForegroundWindow();
    CFileMenu menu;
    parent.SetTimer(7, 50,
                    [](HWND window, UINT, UINT_PTR id, DWORD)
                    {
                        ::KillTimer(window, id);
                        INPUT keys[4] = {};
                        for (INPUT& key : keys)
                            key.type = INPUT_KEYBOARD;
                        keys[0].ki.wVk = keys[1].ki.wVk = VK_DOWN;
                        keys[2].ki.wVk = keys[3].ki.wVk = VK_RETURN;
                        keys[1].ki.dwFlags = keys[3].ki.dwFlags = KEYEVENTF_KEYUP;
                        ::SendInput(4, keys, sizeof *keys);
                    });
    EXPECT_EQ(10, menu.TrackPopupMenu(TPM_RETURNCMD | TPM_NONOTIFY, 100, 100, &parent));
}

namespace
{
class COwnDrawnMenu : public CMenu
{
public:
    int measured = 0;
    int drawn = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measured;
        item->itemWidth = 50;
        item->itemHeight = 20;
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};
} // namespace

TEST(Menu, owner_drawn_items_are_measured_and_drawn_by_their_menu)
{
    CParentWindow parent;
    parent.SetForegroundWindow();
    COwnDrawnMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, 10, L"data");
    parent.SetTimer(7, 100,
                    [](HWND window, UINT, UINT_PTR id, DWORD)
                    {
                        ::KillTimer(window, id);
                        ::EndMenu();
                    });
    menu.TrackPopupMenu(TPM_RETURNCMD, 100, 100, &parent);
    EXPECT_GE(menu.measured, 1);
    EXPECT_GE(menu.drawn, 1);
}
