// The library's resources: every id, size and text, and their language.
#include <gtest/gtest.h>
#include <set>
#include <string>
#include "LibraryUnderTest.h"

namespace
{
struct Text
{
    UINT id;
    const wchar_t* text;
};

const Text c_texts[] = {
    {22008, L"Ajout d'un élément"},
    {22009, L"Suppression d'un élément"},
    {22010, L"Etes-vous sûr de vouloir supprimer ?"},
    {22011, L"Saisie invalide : format non respecté !"},
    {22012, L"Tout sélectionner"},
    {22013, L"Rien n'a été sélectionné"},
    {22014, L"Appliquer"},
    {22015, L"OK"},
    {22016, L"&Appliquer"},
    {22017, L"Automatique"},
    {22018, L"Manuelle"},
    {22019, L"&OK"},
    {22020, L"Longueurs\nForces\nMoments\nMasses\nAngles\nContraintes\nTemps\nDéplacements\nTempératures\nAdim\n"
            L"Dimensions Sections\nCaractéristiques Sections\nEnergies\nVitesses\nAccélérations\nAmortissements\n"
            L"Dimensions Ouvertures\nLongueurs dans Nomenclatures\nCotations Schémas\nRépartitions de coupe\n"
            L"Longueur dans treillis"},
    {22021, L"Type"},
    {22022, L"Précision"},
    {22023, L"Autres..."},
    {22024, L"Mes documents"},
    {22025, L"Bureau"},
    {22026, L"Mètres"},
    {22027, L"Décimètres"},
    {22028, L"Centimètres"},
    {22029, L"Millimètres"},
    {22030, L"Pouces"},
    {22031, L"Pieds"},
    {22032, L"Impossible de sauvegarder le fichier d'unités !"},
    {22033, L"Confirmez le changement d'unités de dessin ?"},
    {22034, L"Format"},
    {22035, L"Décimal"},
    {22036, L"Architecture"},
    {22037, L"Ingénierie"},
    {22038, L"Données invalides !"},
    {22039, L"Use default symbol"},
    {22040, L"< Default symbol >"},
};

BITMAP bitmapOf(HMODULE module, UINT id)
{
    BITMAP info = {};
    const HANDLE bitmap = LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    if (bitmap)
    {
        GetObjectW(bitmap, sizeof info, &info);
        DeleteObject(bitmap);
    }
    return info;
}

COLORREF pixelOf(HMODULE module, UINT id, int x, int y)
{
    const HANDLE bitmap = LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ old = SelectObject(dc, bitmap);
    const COLORREF colour = GetPixel(dc, x, y);
    SelectObject(dc, old);
    DeleteDC(dc);
    DeleteObject(bitmap);
    return colour;
}

std::set<WORD> s_languages;
int s_resources;

BOOL CALLBACK onLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR)
{
    s_languages.insert(language);
    ++s_resources;
    return TRUE;
}

BOOL CALLBACK onName(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR)
{
    return EnumResourceLanguagesW(module, type, name, onLanguage, 0);
}

BOOL CALLBACK onType(HMODULE module, LPWSTR type, LONG_PTR)
{
    // The manifest is the tool chain's own and has no language of ours.
    return type == RT_MANIFEST || EnumResourceNamesW(module, type, onName, 0);
}
} // namespace

TEST(Resources, every_text_is_there_letter_for_letter)
{
    const LibraryUnderTest library;
    for (const Text& expected : c_texts)
    {
        wchar_t text[600] = L"";
        EXPECT_GT(LoadStringW(library.module(), expected.id, text, 600), 0) << expected.id;
        EXPECT_EQ(std::wstring(text), expected.text) << expected.id;
    }
    EXPECT_EQ(std::size(c_texts), 33U);
}

TEST(Resources, unit_type_names_are_21_lines_of_which_none_needs_cutting)
{
    const std::wstring names = c_texts[12].text;
    int lines = 1;
    std::size_t longest = 0, start = 0;
    for (std::size_t i = 0; i <= names.size(); ++i)
    {
        if (i < names.size() && names[i] != L'\n')
            continue;
        longest = std::max(longest, i - start);
        start = i + 1;
        lines += i < names.size();
    }
    EXPECT_EQ(lines, 21);
    EXPECT_EQ(longest, 28U); // "Longueurs dans Nomenclatures"
}

TEST(Resources, texts_beside_the_table_are_not_there)
{
    const LibraryUnderTest library;
    wchar_t text[8] = L"";
    EXPECT_EQ(LoadStringW(library.module(), 22007, text, 8), 0);
    EXPECT_EQ(LoadStringW(library.module(), 22041, text, 8), 0);
}

TEST(Resources, are_all_french)
{
    const LibraryUnderTest library;
    s_languages.clear();
    s_resources = 0;
    EnumResourceTypesW(library.module(), onType, 0);
    EXPECT_EQ(s_languages, std::set<WORD>{1036});
    EXPECT_GE(s_resources, 5 + 1 + 7 + 2); // dialogs, menu, bitmaps, group icons
}

TEST(Resources, drop_button_bitmaps_are_16_by_17_with_16_colours)
{
    const LibraryUnderTest library;
    for (const UINT id : {22028U, 22029U})
    {
        const BITMAP bitmap = bitmapOf(library.module(), id);
        EXPECT_EQ(bitmap.bmWidth, 16) << id;
        EXPECT_EQ(bitmap.bmHeight, 17) << id;
        EXPECT_EQ(bitmap.bmBitsPixel, 4) << id;
    }
}

TEST(Resources, drop_button_corners_have_the_colour_that_the_combo_masks_out)
{
    const LibraryUnderTest library;
    for (const UINT id : {22028U, 22029U})
    {
        EXPECT_EQ(pixelOf(library.module(), id, 0, 0), RGB(255, 0, 0)) << id;
        EXPECT_EQ(pixelOf(library.module(), id, 15, 16), RGB(255, 0, 0)) << id;
        EXPECT_NE(pixelOf(library.module(), id, 8, 9), RGB(255, 0, 0)) << id;
    }
}

TEST(Resources, check_images_are_four_of_16_by_14_in_a_bitmap_of_64_by_15)
{
    const LibraryUnderTest library;
    const BITMAP bitmap = bitmapOf(library.module(), 22030);
    EXPECT_EQ(bitmap.bmWidth, 64);
    EXPECT_EQ(bitmap.bmHeight, 15);
    // In the middle of the box: nothing, a green mark, a grey mark, a blue block.
    EXPECT_EQ(pixelOf(library.module(), 22030, 8, 8), RGB(0xFF, 0xFF, 0xFF));
    EXPECT_EQ(pixelOf(library.module(), 22030, 16 + 7, 8), RGB(0x1E, 0x8A, 0x2F));
    EXPECT_EQ(pixelOf(library.module(), 22030, 32 + 7, 8), RGB(0x8C, 0x96, 0xA3));
    EXPECT_EQ(pixelOf(library.module(), 22030, 48 + 7, 7), RGB(0x3F, 0x6E, 0xA8));
}

TEST(Resources, check_images_hold_no_pixel_of_the_highlight_colour_that_masks_them)
{
    const LibraryUnderTest library;
    const COLORREF mask = GetSysColor(COLOR_HIGHLIGHT);
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 64; ++x)
            ASSERT_NE(pixelOf(library.module(), 22030, x, y), mask) << x << ", " << y;
}

TEST(Resources, bar_background_is_500_by_29_with_24_bits)
{
    const LibraryUnderTest library;
    const BITMAP bitmap = bitmapOf(library.module(), 22041);
    EXPECT_EQ(bitmap.bmWidth, 500);
    EXPECT_EQ(bitmap.bmHeight, 29);
    EXPECT_EQ(bitmap.bmBitsPixel, 24);
}

TEST(Resources, the_other_bitmaps_are_rows_of_16_by_16_images)
{
    const LibraryUnderTest library;
    const struct
    {
        UINT id;
        int width;
    } expected[] = {{22021, 80}, {22025, 16}, {22027, 16}};
    for (const auto& e : expected)
    {
        const BITMAP bitmap = bitmapOf(library.module(), e.id);
        EXPECT_EQ(bitmap.bmWidth, e.width) << e.id;
        EXPECT_EQ(bitmap.bmHeight, 16) << e.id;
    }
}

TEST(Resources, group_icons_load_in_both_sizes)
{
    const LibraryUnderTest library;
    for (const UINT id : {22002U, 22003U})
    {
        EXPECT_NE(FindResourceW(library.module(), MAKEINTRESOURCEW(id), RT_GROUP_ICON), nullptr) << id;
        for (const int size : {16, 32})
        {
            const HANDLE icon = LoadImageW(library.module(), MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, 0);
            ASSERT_NE(icon, nullptr) << id;
            ICONINFO info = {};
            GetIconInfo(static_cast<HICON>(icon), &info);
            BITMAP mask = {};
            GetObjectW(info.hbmMask, sizeof mask, &mask);
            EXPECT_EQ(mask.bmWidth, size) << id;
            DeleteObject(info.hbmMask);
            DeleteObject(info.hbmColor);
            DestroyIcon(static_cast<HICON>(icon));
        }
    }
}

TEST(Resources, menu_is_one_pop_up_named_section)
{
    const LibraryUnderTest library;
    const HMENU menu = LoadMenuW(library.module(), MAKEINTRESOURCEW(22004));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(GetMenuItemCount(menu), 1);
    wchar_t text[40] = L"";
    GetMenuStringW(menu, 0, text, 40, MF_BYPOSITION);
    EXPECT_STREQ(text, L"Section");
    ASSERT_NE(GetSubMenu(menu, 0), nullptr);
    EXPECT_GT(GetMenuItemCount(GetSubMenu(menu, 0)), 0);
    DestroyMenu(menu);
}
