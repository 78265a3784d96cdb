// What the library exports: classes, and one plain function.
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include "LibraryUnderTest.h"

namespace
{
std::vector<std::string> exportsOf(HMODULE module)
{
    const auto* const base = reinterpret_cast<const BYTE*>(module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& folder = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* const table = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + folder.VirtualAddress);
    const auto* const names = reinterpret_cast<const DWORD*>(base + table->AddressOfNames);
    std::vector<std::string> result;
    for (DWORD i = 0; i < table->NumberOfNames; ++i)
        result.emplace_back(reinterpret_cast<const char*>(base + names[i]));
    return result;
}

// Decorated names of class members, virtual tables, type records, thunks, and guards of a class's statics.
bool belongsToAClass(const std::string& name)
{
    for (const char* start : {"_ZN", "_ZTV", "_ZTI", "_ZTS", "_ZTh", "_ZTv", "_ZTc", "_ZGVZN", "_ZZN", "_ZGVN"})
        if (name.rfind(start, 0) == 0)
            return true;
    return false;
}
} // namespace

TEST(Exports, are_class_members_and_the_one_plain_function)
{
    const LibraryUnderTest library;
    ASSERT_NE(library.module(), nullptr);
    int plain = 0;
    for (const std::string& name : exportsOf(library.module()))
    {
        if (name == "getModulePromptsProjectName")
            ++plain;
        else
            EXPECT_TRUE(belongsToAClass(name)) << name;
    }
    EXPECT_EQ(plain, 1);
}
