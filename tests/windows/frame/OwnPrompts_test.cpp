// The library's texts as prompts of its project, and its resources as a host finds them.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>
#include "LibraryUnderTest.h"
#include "kitrel/KxPrompts.h"

namespace
{
std::wstring prompt(unsigned int id, const wchar_t* project)
{
    return static_cast<const wchar_t*>(KxPrompts::getPrompt(id, project, 0));
}
} // namespace

TEST(OwnPrompts, are_filed_under_the_project_of_the_library)
{
    const LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    EXPECT_EQ(prompt(22008, L"OXA"), L"Ajout d'un élément");
    EXPECT_EQ(prompt(22010, L"OXA"), L"Etes-vous sûr de vouloir supprimer ?");
    EXPECT_EQ(prompt(22011, L"OXA"), L"Saisie invalide : format non respecté !");
    EXPECT_EQ(prompt(22020, L"OXA").substr(0, 17), L"Longueurs\nForces\n");
    EXPECT_EQ(prompt(22040, L"OXA"), L"< Default symbol >");
    CString text;
    EXPECT_EQ(KxPrompts::getPrompt(text, 22014, L"OXA", 0), 1);
    EXPECT_STREQ(text, L"Appliquer");
}

TEST(OwnPrompts, and_those_of_the_sibling_are_kept_apart)
{
    const LibraryUnderTest library;
    EXPECT_EQ(prompt(22008, L"KITREL"), L"");
    EXPECT_EQ(prompt(20907, L"OXA"), L"");
    EXPECT_EQ(prompt(20907, L"KITREL"), L"Annuler");
}

TEST(OwnPrompts, are_there_while_the_library_is_loaded_and_no_longer)
{
    LibraryUnderTest library;
    EXPECT_EQ(prompt(22015, L"OXA"), L"OK");
    library.unload();
    ASSERT_EQ(GetModuleHandleW(L"Oxa10.dll"), nullptr);
    EXPECT_EQ(prompt(22015, L"OXA"), L"");
}

TEST(OwnResources, are_found_by_the_host_through_the_chain_whatever_their_type)
{
    const LibraryUnderTest library;
    const struct
    {
        UINT id;
        LPCTSTR type;
    } rows[] = {{8273, RT_DIALOG},  {22005, RT_DIALOG},     {22006, RT_DIALOG},    {22007, RT_DIALOG},
                {22020, RT_DIALOG}, {22004, RT_MENU},       {22041, RT_BITMAP},    {22021, RT_BITMAP},
                {22030, RT_BITMAP}, {22002, RT_GROUP_ICON}, {22003, RT_GROUP_ICON}};
    for (const auto& row : rows)
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(row.id), row.type), library.module()) << row.id;
}

TEST(OwnResources, that_do_not_exist_are_looked_for_in_the_program)
{
    const LibraryUnderTest library;
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(22099), RT_DIALOG), GetModuleHandleW(nullptr));
    CMenu menu;
    EXPECT_FALSE(menu.LoadMenu(22099));
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(22099));
    CDialog dialog;
    EXPECT_FALSE(dialog.Create(22099, nullptr));
    EXPECT_EQ(CDialog(22099).DoModal(), -1);
    CString text(L"before");
    EXPECT_FALSE(text.LoadString(22099));
    CString prompts(L"before");
    KxPrompts::AfxFormatString2(prompts, 22099, L"OXA", L"a", L"b");
    EXPECT_TRUE(prompts.IsEmpty());
}
