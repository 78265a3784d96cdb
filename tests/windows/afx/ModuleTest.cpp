// Modules: who is found first, strings, states.
#include "Fixture.h"
#include "ids.h"

namespace
{
// Every system library has a version resource with this name; the test program and the framework have none.
LPCTSTR versionName()
{
    return MAKEINTRESOURCE(1);
}

LPCTSTR versionType()
{
    return RT_VERSION;
}

HINSTANCE findVersion()
{
    return AfxFindResourceHandle(versionName(), versionType());
}

/// An extension module, played by a system library.
struct Extension
{
    explicit Extension(const wchar_t* file, BOOL system = FALSE) : module(::LoadLibraryW(file))
    {
        AfxInitExtensionModule(state, module);
        new CDynLinkLibrary(state, system); // the chain owns it
    }
    ~Extension()
    {
        AfxTermExtensionModule(state);
        ::FreeLibrary(module);
    }
    Extension(const Extension&) = delete;
    Extension& operator=(const Extension&) = delete;

    HMODULE module;
    AFX_EXTENSION_MODULE state{};
};

HINSTANCE self()
{
    return ::GetModuleHandle(nullptr);
}
} // namespace

TEST(Modules, nobody_has_it_so_the_resource_handle_in_force_is_answered)
{
    EXPECT_EQ(findVersion(), AfxGetResourceHandle());
    EXPECT_EQ(AfxGetResourceHandle(), self());
}

TEST(Modules, extension_is_found_when_the_program_does_not_have_it)
{
    const Extension one(L"comdlg32.dll");
    EXPECT_EQ(findVersion(), one.module);
}

TEST(Modules, newest_extension_is_found_first)
{
    const Extension older(L"comdlg32.dll");
    {
        const Extension newer(L"shell32.dll");
        EXPECT_EQ(findVersion(), newer.module);
    }
    EXPECT_EQ(findVersion(), older.module) << "the newer one has left the chain";
}

TEST(Modules, system_extensions_come_last)
{
    const Extension plain(L"comdlg32.dll");
    const Extension system(L"shell32.dll", TRUE);
    EXPECT_EQ(findVersion(), plain.module);
}

TEST(Modules, program_comes_before_every_extension)
{
    const Extension one(L"comdlg32.dll");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDD_DATA), RT_DIALOG), self());
}

TEST(Modules, handle_in_force_comes_before_every_extension)
{
    const Extension one(L"comdlg32.dll");
    const HINSTANCE user = ::GetModuleHandleW(L"user32.dll");
    AfxSetResourceHandle(user);
    const HINSTANCE found = findVersion();
    AfxSetResourceHandle(self());
    EXPECT_EQ(found, user);
}

TEST(Modules, extension_with_resources_elsewhere_is_searched_there)
{
    auto* library = new CDynLinkLibrary(nullptr, ::GetModuleHandleW(L"user32.dll"));
    EXPECT_EQ(findVersion(), ::GetModuleHandleW(L"user32.dll"));
    delete library;
    EXPECT_EQ(findVersion(), AfxGetResourceHandle());
}

TEST(Modules, framework_has_the_last_word)
{
    CString text;
    EXPECT_TRUE(text.LoadString(AFX_IDP_PARSE_INT));
    EXPECT_EQ(text, L"Please enter an integer.");
    EXPECT_EQ(AfxFindStringResourceHandle(AFX_IDP_PARSE_INT), ::GetModuleHandleW(L"kxafx.dll"));
}

TEST(Modules, record_is_filled_once_and_refuses_a_null_module)
{
    AFX_EXTENSION_MODULE state = {};
    EXPECT_FALSE(AfxInitExtensionModule(state, nullptr));
    EXPECT_FALSE(state.bInitialized);
    EXPECT_TRUE(AfxInitExtensionModule(state, self()));
    EXPECT_EQ(state.hModule, self());
    EXPECT_EQ(state.hResource, self());
    EXPECT_TRUE(AfxInitExtensionModule(state, ::GetModuleHandleW(L"user32.dll")));
    EXPECT_EQ(state.hModule, self()) << "a second call changes nothing";
    AfxTermExtensionModule(state);
    EXPECT_FALSE(state.bInitialized);
}

TEST(Modules, state_is_managed_by_the_block)
{
    AFX_MODULE_STATE mine;
    mine.m_hCurrentResourceHandle = ::GetModuleHandleW(L"user32.dll");
    {
        AFX_MANAGE_STATE(&mine)
        EXPECT_EQ(AfxGetModuleState(), &mine);
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"));
        {
            const AFX_MAINTAIN_STATE2 inner(AfxGetAppModuleState());
            EXPECT_EQ(AfxGetResourceHandle(), self());
        }
        EXPECT_EQ(AfxGetModuleState(), &mine);
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetAppModuleState());
    EXPECT_EQ(AfxGetStaticModuleState(), AfxGetAppModuleState());
}

TEST(Strings, string_of_the_program_is_found)
{
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_PLAIN));
    EXPECT_EQ(text, L"plain");
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text.LoadString(self(), IDS_PLAIN));
    EXPECT_FALSE(text.LoadString(::GetModuleHandleW(L"kxafx.dll"), IDS_PLAIN));
}

TEST(Strings, loading_into_a_buffer_cuts_at_its_end)
{
    wchar_t buffer[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(AfxLoadString(IDS_PLAIN, buffer, 4), 3);
    EXPECT_STREQ(buffer, L"pla");
    EXPECT_EQ(AfxLoadString(60000, buffer, 4), 0);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(AfxLoadString(IDS_PLAIN, nullptr, 4), 0);
}

TEST(Strings, place_holders_are_filled)
{
    CString text;
    AfxFormatString2(text, IDS_TWO, L"1", L"10");
    EXPECT_EQ(text, L"from 1 to 10");
    AfxFormatString2(text, IDS_SWAPPED, L"a", L"b");
    EXPECT_EQ(text, L"b before a, ? %") << "what has no text becomes a question mark, a lone sign stays";
    AfxFormatString1(text, IDS_TWO, L"1");
    EXPECT_EQ(text, L"from 1 to ?");
}

TEST(Strings, parts_are_taken_out_by_number)
{
    CString part;
    EXPECT_TRUE(AfxExtractSubString(part, L"a,bc,,d", 1, L','));
    EXPECT_EQ(part, L"bc");
    EXPECT_TRUE(AfxExtractSubString(part, L"a,bc,,d", 2, L','));
    EXPECT_EQ(part, L"");
    EXPECT_TRUE(AfxExtractSubString(part, L"a,bc,,d", 3, L','));
    EXPECT_EQ(part, L"d");
    EXPECT_FALSE(AfxExtractSubString(part, L"a,bc,,d", 4, L','));
    EXPECT_FALSE(AfxExtractSubString(part, nullptr, 0));
}
