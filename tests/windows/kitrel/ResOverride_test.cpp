// The scope in which resources are looked for in a given module first.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <type_traits>
#include "kitrel/KxToolsResOverride.h"
#include "resource.h"

namespace
{
constexpr wchar_t c_sibling[] = L"Kitrel10-9.dll";

HINSTANCE finderOfDialog()
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(IDD_FILED), RT_DIALOG);
}

HINSTANCE finderOfIcon()
{
    return AfxFindResourceHandle(MAKEINTRESOURCE(20922), RT_GROUP_ICON);
}

HMODULE program()
{
    return GetModuleHandleW(nullptr);
}
} // namespace

TEST(ResOverride, by_file_name_makes_the_sibling_the_first_to_be_asked)
{
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CKxToolsResOverride scope{CString(c_sibling)};
        EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(c_sibling));
        EXPECT_EQ(finderOfIcon(), GetModuleHandleW(c_sibling));
        const HICON icon = LoadIconW(finderOfIcon(), MAKEINTRESOURCEW(20922));
        EXPECT_NE(icon, nullptr);
        DestroyIcon(icon);
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResOverride, by_instance_looks_there)
{
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CKxToolsResOverride scope(GetModuleHandleW(c_sibling));
        EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(c_sibling));
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResOverride, nested_scopes_put_back_what_each_found)
{
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CKxToolsResOverride outer{CString(c_sibling)};
        {
            const CKxToolsResOverride inner(program());
            EXPECT_EQ(AfxGetResourceHandle(), program());
            EXPECT_EQ(finderOfDialog(), program());
            {
                const CKxToolsResOverride innermost{CString(c_sibling)};
                EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(c_sibling));
            }
            EXPECT_EQ(AfxGetResourceHandle(), program());
        }
        EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(c_sibling));
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResOverride, a_module_that_is_not_loaded_is_opened_for_its_resources_and_closed_again)
{
    wchar_t original[MAX_PATH] = L"", folder[MAX_PATH] = L"";
    GetModuleFileNameW(GetModuleHandleW(c_sibling), original, MAX_PATH);
    GetTempPathW(MAX_PATH, folder);
    const CString copy = CString(folder) + L"copy-of-the-sibling.dll";
    ASSERT_TRUE(CopyFileW(original, copy, FALSE));
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CKxToolsResOverride scope(copy);
        const HINSTANCE opened = AfxGetResourceHandle();
        EXPECT_NE(opened, before);
        EXPECT_NE(opened, GetModuleHandleW(c_sibling));
        EXPECT_EQ(finderOfIcon(), opened);
        EXPECT_NE(FindResourceW(opened, MAKEINTRESOURCEW(20922), RT_GROUP_ICON), nullptr);
        EXPECT_EQ(GetModuleHandleW(copy), nullptr); // none of its code was loaded
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
    EXPECT_TRUE(DeleteFileW(copy)); // it is not held open
}

TEST(ResOverride, what_cannot_be_found_changes_nothing)
{
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const CKxToolsResOverride missing{CString(L"no-such-module.dll")};
        EXPECT_EQ(AfxGetResourceHandle(), before);
        const CKxToolsResOverride empty{CString()};
        EXPECT_EQ(AfxGetResourceHandle(), before);
        const CKxToolsResOverride null(static_cast<HINSTANCE>(nullptr));
        EXPECT_EQ(AfxGetResourceHandle(), before);
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ResOverride, has_a_virtual_destructor_and_cannot_be_copied)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<CKxToolsResOverride>);
    EXPECT_FALSE(std::is_copy_constructible_v<CKxToolsResOverride>);
}
