// Prompts by id and project, and filed texts in dialogs and menus.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>
#include "TestProject.h"
#include "kitrel/KxPrompts.h"
#include "resource.h"

namespace
{
std::wstring prompt(unsigned int id, const wchar_t* project)
{
    return static_cast<const wchar_t*>(KxPrompts::getPrompt(id, project, 0));
}

/// A dialog that brings to the top each field whose text changes, or ends at the first.
class RestlessDialog : public CTestDialog
{
public:
    RestlessDialog() : CTestDialog(IDD_RESTLESS) {}
    int changes = 0;
    bool ends = false;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        if (HIWORD(wParam) != EN_CHANGE || ++changes > 100)
            return CTestDialog::OnCommand(wParam, lParam);
        if (ends)
            DestroyWindow();
        else
            ::SetWindowPos(reinterpret_cast<HWND>(lParam), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        return TRUE;
    }
};

/// A menu resource of the test program.
class TestMenu
{
public:
    explicit TestMenu(UINT id) { m_menu.LoadMenu(MAKEINTRESOURCE(id)); }
    CMenu& menu() { return m_menu; }
    std::wstring command(UINT id) { return text(m_menu.GetSafeHmenu(), id, MF_BYCOMMAND); }
    std::wstring popUp() { return text(m_menu.GetSafeHmenu(), 0, MF_BYPOSITION); }
    std::wstring innerPopUp() { return text(::GetSubMenu(m_menu.GetSafeHmenu(), 0), 3, MF_BYPOSITION); }

private:
    static std::wstring text(HMENU menu, UINT item, UINT how)
    {
        wchar_t buffer[100] = L"";
        ::GetMenuStringW(menu, item, buffer, 100, how);
        return buffer;
    }
    CMenu m_menu;
};
} // namespace

TEST(Prompts, texts_of_the_sibling_are_filed_under_its_project)
{
    EXPECT_EQ(prompt(20901, L"KITREL"), L"La valeur doit être comprise entre %1 et %2.");
    EXPECT_EQ(prompt(20902, L"KITREL"), L"Nouveau style");
    EXPECT_EQ(prompt(20903, L"KITREL"), L"Voulez-vous vraiment supprimer ce style ?");
    EXPECT_EQ(prompt(20904, L"KITREL"), L"Renommer le style");
    EXPECT_EQ(prompt(20905, L"KITREL"), L"Style");
    EXPECT_EQ(prompt(20906, L"KITREL"), L"Le dernier style ne peut pas être supprimé.");
    EXPECT_EQ(prompt(20907, L"KITREL"), L"Annuler");
    EXPECT_EQ(prompt(20908, L"KITREL"), L"Ce nom de style est déjà utilisé.");
}

TEST(Prompts, a_module_that_answers_for_a_project_gives_its_texts)
{
    EXPECT_EQ(prompt(ID_OWN, L"TESTS"), L"Texte de la commande");
}

TEST(Prompts, second_form_says_whether_the_prompt_exists)
{
    CString text(L"before");
    EXPECT_EQ(KxPrompts::getPrompt(text, 20907, L"KITREL", 0), 1);
    EXPECT_STREQ(text, L"Annuler");
    EXPECT_EQ(KxPrompts::getPrompt(text, 20909, L"KITREL", 0), 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Prompts, are_not_found_under_another_project_or_another_spelling)
{
    EXPECT_EQ(prompt(20907, L"TESTS"), L"");
    EXPECT_EQ(prompt(20907, L"kitrel"), L"");
    EXPECT_EQ(prompt(20907, L"KITRE"), L"");
    EXPECT_EQ(prompt(20907, L""), L"");
    EXPECT_EQ(prompt(20907, L"NOBODY"), L"");
}

TEST(Prompts, result_may_go_where_the_name_of_the_project_stands)
{
    CString text(L"KITREL");
    EXPECT_EQ(KxPrompts::getPrompt(text, 20907, text, 0), 1);
    EXPECT_STREQ(text, L"Annuler");
}

TEST(Prompts, a_null_project_asks_every_module)
{
    EXPECT_EQ(prompt(20907, nullptr), L"Annuler");
    EXPECT_EQ(prompt(ID_OWN, nullptr), L"Texte de la commande");
}

TEST(Prompts, ids_without_a_text_or_too_long_give_nothing)
{
    EXPECT_EQ(prompt(0, L"KITREL"), L"");
    EXPECT_EQ(prompt(20907 + 0x10000, L"KITREL"), L"");
    EXPECT_EQ(prompt(0xFFFFFFFF, L"KITREL"), L"");
}

TEST(Prompts, format_puts_both_texts_into_their_places)
{
    CString text;
    KxPrompts::AfxFormatString2(text, 20901, L"KITREL", L"0.50", L"1.25");
    EXPECT_STREQ(text, L"La valeur doit être comprise entre 0.50 et 1.25.");
    KxPrompts::AfxFormatString2(text, IDS_REPEATED, L"TESTS", L"a", L"b");
    EXPECT_STREQ(text, L"bab 100% %3 %");
}

TEST(Prompts, format_does_not_search_the_texts_that_it_puts_in)
{
    CString text;
    KxPrompts::AfxFormatString2(text, IDS_TWO_PLACES, L"TESTS", L"%2", L"%1");
    EXPECT_STREQ(text, L"%2 ou %1 ?");
}

TEST(Prompts, format_takes_null_texts_as_empty_and_its_own_result_as_a_text)
{
    CString text(L"x");
    KxPrompts::AfxFormatString2(text, IDS_TWO_PLACES, L"TESTS", text, nullptr);
    EXPECT_STREQ(text, L"x ou  ?");
    KxPrompts::AfxFormatString2(text, 499, L"TESTS", L"a", L"b");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Prompts, dialog_takes_the_filed_texts_and_keeps_the_others)
{
    CTestDialog dialog(IDD_FILED);
    ASSERT_NE(dialog.m_hWnd, nullptr);
    KxPrompts::setDialogAndControlText(&dialog, IDD_FILED, L"TESTS");
    EXPECT_EQ(dialog.caption(), L"Légende déposée");
    EXPECT_EQ(dialog.text(IDC_FILED_LABEL), L"Étiquette déposée : ");
    EXPECT_EQ(dialog.text(IDC_PLAIN_LABEL), L"Plain label");
    EXPECT_EQ(dialog.text(IDC_FILED_BUTTON), L"&Déposé");
}

TEST(Prompts, dialog_without_filed_texts_is_left_alone)
{
    CTestDialog dialog(IDD_FILED);
    ASSERT_NE(dialog.m_hWnd, nullptr);
    KxPrompts::setDialogAndControlText(&dialog, IDD_UNFILED, L"TESTS");
    KxPrompts::setDialogAndControlText(&dialog, IDD_FILED, L"KITREL");
    KxPrompts::setDialogAndControlText(&dialog, IDD_FILED + 0x10000, L"TESTS");
    EXPECT_EQ(dialog.caption(), L"Template caption");
    EXPECT_EQ(dialog.text(IDC_FILED_LABEL), L"Label of the template");
}

TEST(Prompts, a_dialog_that_moves_its_controls_as_their_texts_change_gets_each_text_once)
{
    RestlessDialog dialog;
    ASSERT_NE(dialog.m_hWnd, nullptr);
    KxPrompts::setDialogAndControlText(&dialog, IDD_RESTLESS, L"TESTS");
    EXPECT_EQ(dialog.changes, 2);
    EXPECT_EQ(dialog.text(IDC_FILED_LABEL), L"un");
    EXPECT_EQ(dialog.text(IDC_FILED_BUTTON), L"deux");
}

TEST(Prompts, a_dialog_that_goes_as_its_texts_change_is_left)
{
    RestlessDialog dialog;
    dialog.ends = true;
    KxPrompts::setDialogAndControlText(&dialog, IDD_RESTLESS, L"TESTS");
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.changes, 1);
}

TEST(Prompts, no_dialog_and_no_menu_do_no_harm)
{
    KxPrompts::setDialogAndControlText(nullptr, IDD_FILED, L"TESTS");
    CWnd none;
    KxPrompts::setDialogAndControlText(&none, IDD_FILED, L"TESTS");
    KxPrompts::setMenuText(static_cast<CMenu*>(nullptr), IDM_FILED, L"TESTS");
    KxPrompts::setMenuText(static_cast<HMENU>(nullptr), IDM_FILED, L"TESTS");
    CMenu empty;
    KxPrompts::setMenuText(&empty, IDM_FILED, L"TESTS");
    EXPECT_EQ(empty.GetSafeHmenu(), nullptr);
}

TEST(Prompts, menu_takes_the_filed_texts_at_any_depth_and_keeps_the_others)
{
    TestMenu menu(IDM_FILED);
    KxPrompts::setMenuText(&menu.menu(), IDM_FILED, L"TESTS");
    EXPECT_EQ(menu.popUp(), L"Menu déposé");
    EXPECT_EQ(menu.command(ID_FIRST), L"&Premier\tCtrl+P");
    EXPECT_EQ(menu.command(ID_SECOND), L"Second");
    EXPECT_EQ(menu.innerPopUp(), L"Inner pop-up");
    EXPECT_EQ(menu.command(ID_DEEP), L"Profond");
}

TEST(Prompts, menu_by_handle_gets_the_same)
{
    TestMenu menu(IDM_FILED);
    KxPrompts::setMenuText(menu.menu().GetSafeHmenu(), IDM_FILED, L"TESTS");
    EXPECT_EQ(menu.popUp(), L"Menu déposé");
    EXPECT_EQ(menu.command(ID_FIRST), L"&Premier\tCtrl+P");
    EXPECT_EQ(menu.command(ID_SECOND), L"Second");
}

// A button with a menu names the command, not a template.
TEST(Prompts, menu_command_whose_id_is_asked_for_takes_the_prompt_of_that_id)
{
    TestMenu menu(IDM_OWN_ID);
    KxPrompts::setMenuText(&menu.menu(), ID_OWN, L"TESTS");
    EXPECT_EQ(menu.command(ID_OWN), L"Texte de la commande");
    EXPECT_EQ(menu.command(ID_FIRST), L"First");
    EXPECT_EQ(menu.popUp(), L"Pop-up");
}
