// What the library exports: classes, and one plain function.
#include <gtest/gtest.h>
#include <set>
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
std::string counted(const std::string& name)
{
    return std::to_string(name.size()) + name;
}

/// The decorated name of a member function without arguments, or of a static data member.
std::string function(const std::string& owner, const char* name)
{
    return "_ZN" + counted(owner) + counted(name) + "Ev";
}
std::string constFunction(const std::string& owner, const char* name)
{
    return "_ZNK" + counted(owner) + counted(name) + "Ev";
}
std::string data(const std::string& owner, const std::string& name)
{
    return "_ZN" + counted(owner) + counted(name) + "E";
}

/// The exported names, to be asked for one by one.
class ExportedNames
{
public:
    explicit ExportedNames(HMODULE module)
    {
        for (const std::string& name : exportsOf(module))
            m_names.insert(name);
    }
    bool has(const std::string& name) const { return m_names.count(name) != 0; }
    bool hasStart(const std::string& start) const
    {
        const auto first = m_names.lower_bound(start);
        return first != m_names.end() && first->rfind(start, 0) == 0;
    }

private:
    std::set<std::string> m_names;
};
} // namespace

TEST(Exports, every_class_has_its_constructor_destructor_and_virtual_table)
{
    const LibraryUnderTest library;
    const ExportedNames names(library.module());
    for (const char* owner : {"CKxComboBoxUnit", "KxToolTip2", "CToolTip2", "CKxToolTip", "CKxFormat", "CKxGroup",
                              "CKxSeparator", "CKxSemantic", "CKxSemanticNode"})
    {
        EXPECT_TRUE(names.hasStart("_ZN" + counted(owner) + "C1E")) << owner;
        EXPECT_TRUE(names.has("_ZN" + counted(owner) + "D1Ev")) << owner;
        EXPECT_TRUE(names.has("_ZTV" + counted(owner))) << owner;
    }
}

TEST(Exports, classes_with_a_message_map_have_both_of_its_functions)
{
    const LibraryUnderTest library;
    const ExportedNames names(library.module());
    for (const char* owner : {"CKxComboBoxUnit", "KxToolTip2", "CToolTip2"})
    {
        EXPECT_TRUE(names.has(constFunction(owner, "GetMessageMap"))) << owner;
        EXPECT_TRUE(names.has(function(owner, "GetThisMessageMap"))) << owner;
    }
}

TEST(Exports, classes_with_dynamic_type_information_have_their_record_and_its_functions)
{
    const LibraryUnderTest library;
    const ExportedNames names(library.module());
    for (const std::string owner : {"CKxComboBoxUnit", "CKxGroup", "CKxSeparator"})
    {
        EXPECT_TRUE(names.has(function(owner, "GetThisClass"))) << owner;
        EXPECT_TRUE(names.has(constFunction(owner, "GetRuntimeClass"))) << owner;
        EXPECT_TRUE(names.has(data(owner, "class" + owner))) << owner; // classCKxComboBoxUnit, ...
    }
}

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
