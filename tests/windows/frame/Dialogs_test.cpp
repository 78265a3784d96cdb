// The library's dialog templates: size, caption and controls, as a dialog made from them shows.
#include <gtest/gtest.h>
#include <cstring>
#include <string>
#include "LibraryUnderTest.h"
#include "support/Screenshot.h"

namespace
{
struct Template
{
    DWORD style = 0;
    short width = 0, height = 0;
    std::wstring caption;
};

/// Reads the head of an extended dialog template.
Template templateOf(HMODULE module, UINT id)
{
    Template result;
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    if (!resource)
        return result;
    const auto* const words = static_cast<const WORD*>(LockResource(LoadResource(module, resource)));
    EXPECT_EQ(words[1], 0xFFFF) << "not an extended template: " << id;
    std::memcpy(&result.style, words + 6, sizeof result.style);
    result.width = static_cast<short>(words[11]);
    result.height = static_cast<short>(words[12]);
    const WORD* rest = words + 13;
    for (int i = 0; i < 2; ++i) // menu and window class: none
        rest += *rest == 0xFFFF ? 2 : wcslen(reinterpret_cast<const wchar_t*>(rest)) + 1;
    result.caption = reinterpret_cast<const wchar_t*>(rest);
    return result;
}

/// A dialog made from a template, under a window class in the place of the grid's.
class ShownDialog
{
public:
    ShownDialog(HMODULE module, UINT id)
    {
        WNDCLASSW grid = {};
        grid.style = CS_GLOBALCLASS; // the template belongs to another module
        grid.lpfnWndProc = DefWindowProcW;
        grid.hInstance = GetModuleHandleW(nullptr);
        grid.lpszClassName = L"GXWND";
        grid.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
        RegisterClassW(&grid);
        m_window = CreateDialogParamW(module, MAKEINTRESOURCEW(id), GetDesktopWindow(), procedure, 0);
        if (m_window)
            ShowWindow(m_window, SW_SHOW);
    }
    ~ShownDialog()
    {
        if (m_window)
            DestroyWindow(m_window);
        UnregisterClassW(L"GXWND", GetModuleHandleW(nullptr));
    }
    ShownDialog(const ShownDialog&) = delete;
    ShownDialog& operator=(const ShownDialog&) = delete;

    HWND window() const { return m_window; }
    HWND item(int id) const { return GetDlgItem(m_window, id); }
    std::wstring text(int id) const
    {
        wchar_t buffer[100] = L"";
        GetDlgItemTextW(m_window, id, buffer, 100);
        return buffer;
    }
    std::wstring className(int id) const
    {
        wchar_t buffer[100] = L"";
        GetClassNameW(item(id), buffer, 100);
        return buffer;
    }
    LONG_PTR style(int id) const { return GetWindowLongPtrW(item(id), GWL_STYLE); }

private:
    static INT_PTR CALLBACK procedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }
    HWND m_window = nullptr;
};

/// No text of a child may be cut, and no child may stand outside of the dialog.
void expectEverythingFits(const ShownDialog& dialog)
{
    RECT client = {};
    GetClientRect(dialog.window(), &client);
    for (HWND child = GetWindow(dialog.window(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        RECT r = {};
        GetWindowRect(child, &r);
        MapWindowPoints(nullptr, dialog.window(), reinterpret_cast<POINT*>(&r), 2);
        EXPECT_GE(r.left, 0);
        EXPECT_GE(r.top, 0);
        EXPECT_LE(r.right, client.right);
        EXPECT_LE(r.bottom, client.bottom);
        wchar_t text[100] = L"";
        const int length = GetWindowTextW(child, text, 100);
        const HDC dc = GetDC(child);
        const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(child, WM_GETFONT, 0, 0)));
        SIZE size = {};
        GetTextExtentPoint32W(dc, text, length, &size);
        SelectObject(dc, old);
        ReleaseDC(child, dc);
        EXPECT_LE(size.cx, r.right - r.left) << "control " << GetDlgCtrlID(child);
    }
}
/// Saves a picture to be looked at beside the test program, whatever the current folder is.
bool savePicture(HWND window, const wchar_t* name)
{
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring folder(program);
    folder.resize(folder.rfind(L'\\') + 1);
    folder += L"pictures";
    CreateDirectoryW(folder.c_str(), nullptr);
    return saveWindowPng(window, (folder + L'\\' + name).c_str());
}
} // namespace

TEST(Dialogs, have_the_sizes_and_captions_of_the_library)
{
    const LibraryUnderTest library;
    const struct
    {
        UINT id;
        int width, height;
        const wchar_t* caption;
    } expected[] = {
        {8273, 220, 33, L""},
        {22005, 393, 170, L"Définition des unités de travail"},
        {22006, 163, 42, L"Nouveau style"},
        {22007, 75, 215, L"Visualisation"},
        {22020, 232, 182, L"Sélection du répertoire destination"},
    };
    for (const auto& e : expected)
    {
        const Template found = templateOf(library.module(), e.id);
        EXPECT_EQ(found.width, e.width) << e.id;
        EXPECT_EQ(found.height, e.height) << e.id;
        EXPECT_EQ(found.caption, e.caption) << e.id;
    }
}

TEST(Dialogs, browse_edit_is_a_child_with_a_field_and_a_button)
{
    const LibraryUnderTest library;
    EXPECT_TRUE(templateOf(library.module(), 8273).style & WS_CHILD);
    const ShownDialog dialog(library.module(), 8273);
    ASSERT_NE(dialog.window(), nullptr);
    EXPECT_EQ(dialog.className(1334), L"Edit");
    EXPECT_EQ(dialog.className(1339), L"Button");
    EXPECT_EQ(dialog.text(1339), L"...");
}

TEST(Dialogs, units_dialog_has_its_controls)
{
    const LibraryUnderTest library;
    const ShownDialog dialog(library.module(), 22005);
    ASSERT_NE(dialog.window(), nullptr);
    const struct
    {
        int id;
        const wchar_t *windowClass, *text;
    } expected[] = {
        {1051, L"Button", L"Style"},
        {1052, L"Static", L"Nom :"},
        {1014, L"ComboBox", L""},
        {1011, L"Button", L"&Nouveau..."},
        {1012, L"Button", L"&Renommer..."},
        {1013, L"Button", L"&Supprimer..."},
        {1035, L"Button", L"Unités de visualisation"},
        {1036, L"GXWND", L""},
        {1050, L"Button", L""},
        {1049, L"Static", L"Unité de saisie des éléments : "},
        {1047, L"ComboBox", L""},
        {IDOK, L"Button", L"OK"},
        {IDCANCEL, L"Button", L"Annuler"},
        {9, L"Button", L"&Aide"},
    };
    for (const auto& e : expected)
    {
        EXPECT_EQ(dialog.className(e.id), e.windowClass) << e.id;
        EXPECT_EQ(dialog.text(e.id), e.text) << e.id;
    }
    EXPECT_TRUE(dialog.style(1049) & WS_DISABLED);
    EXPECT_TRUE(dialog.style(1047) & WS_DISABLED);
    EXPECT_FALSE(dialog.style(1014) & CBS_SORT); // the names keep the order in which they are added
    expectEverythingFits(dialog);
    EXPECT_TRUE(savePicture(dialog.window(), L"dialog-22005.png"));
}

TEST(Dialogs, units_dialog_keeps_its_buttons_clear_of_the_grid_that_grows_downward)
{
    const LibraryUnderTest library;
    const ShownDialog dialog(library.module(), 22005);
    RECT group = {};
    GetWindowRect(dialog.item(1035), &group);
    for (const int id : {IDOK, IDCANCEL, 9})
    {
        RECT button = {};
        GetWindowRect(dialog.item(id), &button);
        EXPECT_GE(button.left, group.right) << id;
    }
}

TEST(Dialogs, style_dialog_has_its_controls)
{
    const LibraryUnderTest library;
    const ShownDialog dialog(library.module(), 22006);
    ASSERT_NE(dialog.window(), nullptr);
    EXPECT_EQ(dialog.text(1340), L"Nom du style :");
    EXPECT_EQ(dialog.className(1033), L"Edit");
    EXPECT_EQ(dialog.text(IDOK), L"OK");
    EXPECT_EQ(dialog.text(IDCANCEL), L"Annuler");
    EXPECT_EQ(dialog.item(9), nullptr);
    expectEverythingFits(dialog);
    EXPECT_TRUE(savePicture(dialog.window(), L"dialog-22006.png"));
}

TEST(Dialogs, visualisation_has_frame_label_and_a_list_with_multiple_selection)
{
    const LibraryUnderTest library;
    const ShownDialog dialog(library.module(), 22007);
    ASSERT_NE(dialog.window(), nullptr);
    EXPECT_EQ(dialog.className(1005), L"Static");
    EXPECT_EQ(dialog.className(1034), L"Static");
    EXPECT_EQ(dialog.className(1004), L"ListBox");
    EXPECT_TRUE(dialog.style(1004) & LBS_MULTIPLESEL);
    EXPECT_FALSE(dialog.style(1004) & LBS_SORT);
    EXPECT_EQ(dialog.item(-1), nullptr); // the selection dialog asks for it and must live without
    EXPECT_TRUE(savePicture(dialog.window(), L"dialog-22007.png"));
}

TEST(Dialogs, destination_dialog_shows_a_tree_of_directories)
{
    const LibraryUnderTest library;
    const ShownDialog dialog(library.module(), 22020);
    ASSERT_NE(dialog.window(), nullptr);
    EXPECT_EQ(dialog.className(1342), L"SysTreeView32");
    EXPECT_EQ(dialog.className(1344), L"Edit");
    expectEverythingFits(dialog);
    EXPECT_TRUE(savePicture(dialog.window(), L"dialog-22020.png"));
}

TEST(Dialogs, help_ids_name_the_texts_that_are_filed)
{
    const LibraryUnderTest library;
    for (const UINT id : {8273U, 22005U, 22006U, 22007U})
    {
        const ShownDialog dialog(library.module(), id);
        ASSERT_NE(dialog.window(), nullptr) << id;
        EXPECT_EQ(GetWindowContextHelpId(dialog.window()), 0x20000U + id);
        EXPECT_NE(FindResourceW(library.module(), MAKEINTRESOURCEW(id), L"HELPTEXTS"), nullptr) << id;
    }
}
