// Load and unload of the library, and the one plain function that it exports.
#include <afxwin.h>
#include <winternl.h>
#include <gtest/gtest.h>
#include <atomic>
#include <memory>
#include <new>
#include <string>
#include <thread>
#include <vector>
#include "LibraryUnderTest.h"
#include "support/ImportPatch.h"

namespace
{
// The decorated names of what the entry calls.
constexpr char c_initName[] = "_Z22AfxInitExtensionModule";
constexpr char c_termName[] = "_Z22AfxTermExtensionModule";
constexpr char c_chainName[] = "_ZN15CDynLinkLibraryC1E";

int s_initCalls, s_termCalls, s_chainCalls;
BOOL s_termAll, s_chainSystem;
HMODULE s_initModule, s_chainModule;
bool s_accepts;

BOOL judge(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    ++s_initCalls;
    s_initModule = module;
    return s_accepts && AfxInitExtensionModule(state, module);
}

void countTerm(AFX_EXTENSION_MODULE& state, BOOL all)
{
    ++s_termCalls;
    s_termAll = all;
    AfxTermExtensionModule(state, all);
}

void countChain(void* object, AFX_EXTENSION_MODULE& state, BOOL system)
{
    ++s_chainCalls;
    s_chainModule = state.hModule;
    s_chainSystem = system;
    ::new (object) CDynLinkLibrary(state, system);
}

// The loader tells of a module after its imports are bound and before its entry runs.
struct Notification
{
    ULONG flags;
    const UNICODE_STRING* fullName;
    const UNICODE_STRING* baseName;
    void* base;
    ULONG size;
};
using Callback = void(CALLBACK*)(ULONG, const Notification*, void*);
using Register = LONG(NTAPI*)(ULONG, Callback, void*, void**);
using Unregister = LONG(NTAPI*)(void*);

/// A framework layer between the library and the real one, which it passes on to or refuses for.
struct WatchedFramework
{
    std::vector<std::unique_ptr<ImportPatch>> patches;
    void* cookie = nullptr;

    template <class T> static T ntdll(const char* name)
    {
        return reinterpret_cast<T>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
    }
    explicit WatchedFramework(bool accepts)
    {
        s_accepts = accepts;
        s_chainSystem = TRUE;
        s_initCalls = s_termCalls = s_chainCalls = 0;
        ntdll<Register>("LdrRegisterDllNotification")(0, onModule, this, &cookie);
    }
    ~WatchedFramework()
    {
        ntdll<Unregister>("LdrUnregisterDllNotification")(cookie);
        for (const auto& patch : patches)
            patch->forget();
    }
    WatchedFramework(const WatchedFramework&) = delete;
    WatchedFramework& operator=(const WatchedFramework&) = delete;

    static void CALLBACK onModule(ULONG reason, const Notification* what, void* self)
    {
        const std::wstring name(what->baseName->Buffer, what->baseName->Length / sizeof(wchar_t));
        if (reason != 1 || lstrcmpiW(name.c_str(), L"Oxa10.dll") != 0)
            return;
        auto& patches = static_cast<WatchedFramework*>(self)->patches;
        const auto module = static_cast<HMODULE>(what->base);
        auto patch = [&](const char* import, auto function)
        { patches.push_back(std::make_unique<ImportPatch>(module, import, reinterpret_cast<const void*>(function))); };
        patch(c_initName, judge);
        patch(c_termName, countTerm);
        patch(c_chainName, countChain);
    }
};

using Entry = BOOL(WINAPI*)(HINSTANCE, DWORD, void*);

Entry entryOf(HMODULE module)
{
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    return reinterpret_cast<Entry>(base + nt->OptionalHeader.AddressOfEntryPoint);
}

HINSTANCE finderOfCheckImages()
{
    return AfxFindResourceHandle(MAKEINTRESOURCEW(22030), RT_BITMAP);
}

using ProjectName = const wchar_t* (*)();

ProjectName projectNameOf(HMODULE module)
{
    return reinterpret_cast<ProjectName>(
        reinterpret_cast<void*>(GetProcAddress(module, "getModulePromptsProjectName")));
}
} // namespace

// First, because the library must not be loaded yet.
TEST(Module, attach_with_a_framework_that_refuses_fails_the_load_and_makes_no_library_record)
{
    ASSERT_EQ(GetModuleHandleW(L"Oxa10.dll"), nullptr);
    const WatchedFramework framework(false);
    const HMODULE module = LoadLibraryW(L"Oxa10.dll");
    const DWORD error = GetLastError();
    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
    ASSERT_EQ(framework.patches.size(), 3U);
    for (const auto& patch : framework.patches)
        EXPECT_TRUE(patch->found());
    EXPECT_EQ(s_initCalls, 1);
    EXPECT_NE(s_initModule, nullptr);
    EXPECT_EQ(s_chainCalls, 0);
    EXPECT_EQ(GetModuleHandleW(L"Oxa10.dll"), nullptr);
}

TEST(Module, after_a_refused_load_the_next_one_succeeds)
{
    const LibraryUnderTest library;
    EXPECT_NE(library.module(), nullptr);
}

TEST(Module, attach_makes_one_library_record_that_is_no_system_one_for_its_own_instance)
{
    const WatchedFramework framework(true);
    LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    EXPECT_EQ(s_initCalls, 1);
    EXPECT_EQ(s_initModule, library.module());
    EXPECT_EQ(s_chainCalls, 1);
    EXPECT_EQ(s_chainModule, library.module());
    EXPECT_EQ(s_chainSystem, FALSE);
    EXPECT_EQ(s_termCalls, 0);
    library.unload();
    EXPECT_EQ(s_termCalls, 1);
    EXPECT_EQ(s_chainCalls, 1);
}

TEST(Module, attach_joins_the_chain_through_which_the_host_finds_resources)
{
    EXPECT_NE(finderOfCheckImages(), GetModuleHandleW(L"Oxa10.dll"));
    LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    EXPECT_EQ(finderOfCheckImages(), library.module());
}

TEST(Module, detach_leaves_the_chain_by_one_call_that_spares_other_modules)
{
    LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    const HMODULE was = library.module();
    s_termCalls = 0;
    s_termAll = TRUE;
    ImportPatch patch(library.module(), c_termName, reinterpret_cast<const void*>(countTerm));
    ASSERT_TRUE(patch.found());
    library.unload();
    patch.forget();
    EXPECT_EQ(s_termCalls, 1);
    EXPECT_EQ(s_termAll, FALSE);
    EXPECT_NE(finderOfCheckImages(), was);
    EXPECT_EQ(GetModuleHandleW(L"Oxa10.dll"), nullptr);
}

TEST(Module, thread_reasons_return_1_and_touch_nothing)
{
    const LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    s_initCalls = s_termCalls = s_chainCalls = 0;
    const ImportPatch init(library.module(), c_initName, reinterpret_cast<const void*>(judge));
    const ImportPatch term(library.module(), c_termName, reinterpret_cast<const void*>(countTerm));
    const ImportPatch chain(library.module(), c_chainName, reinterpret_cast<const void*>(countChain));
    ASSERT_TRUE(init.found() && term.found() && chain.found());
    const Entry entry = entryOf(library.module());
    EXPECT_EQ(entry(library.module(), DLL_THREAD_ATTACH, nullptr), TRUE);
    EXPECT_EQ(entry(library.module(), DLL_THREAD_DETACH, nullptr), TRUE);
    EXPECT_EQ(entry(library.module(), 7, nullptr), TRUE); // as any other
    std::thread([] {}).join();
    EXPECT_EQ(s_initCalls, 0);
    EXPECT_EQ(s_termCalls, 0);
    EXPECT_EQ(s_chainCalls, 0);
    EXPECT_EQ(finderOfCheckImages(), library.module());
}

TEST(Module, project_name_is_the_same_pointer_on_every_call_and_three_characters_long)
{
    const LibraryUnderTest library;
    const ProjectName project = projectNameOf(library.module());
    ASSERT_NE(project, nullptr);
    const wchar_t* const name = project();
    EXPECT_STREQ(name, L"OXA");
    EXPECT_EQ(wcslen(name), 3U);
    EXPECT_EQ(project(), name);
    EXPECT_EQ(project(), name);
}

TEST(Module, loading_and_unloading_many_times_leaves_nothing_in_the_chain)
{
    for (int i = 0; i < 50; ++i)
    {
        LibraryUnderTest library;
        ASSERT_NE(library.module(), nullptr) << i;
        ASSERT_EQ(finderOfCheckImages(), library.module()) << i;
        const HMODULE was = library.module();
        library.unload();
        ASSERT_NE(finderOfCheckImages(), was) << i;
    }
}
