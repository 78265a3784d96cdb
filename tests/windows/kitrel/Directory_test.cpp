// The files of a directory, on real directories.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>
#include "kitrel/KxDirectory.h"

namespace
{
/// A new directory under the temporary one, removed at the end.
class TemporaryDirectory
{
public:
    TemporaryDirectory()
    {
        m_path = std::filesystem::temp_directory_path() / (L"kitrel-" + std::to_wstring(GetCurrentProcessId()));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryDirectory() { std::filesystem::remove_all(m_path); }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    void add(const wchar_t* name) const { std::ofstream(m_path / name) << "x"; }
    void addFolder(const wchar_t* name) const { std::filesystem::create_directory(m_path / name); }
    CString path() const { return {m_path.wstring().c_str()}; }

private:
    std::filesystem::path m_path;
};

std::vector<std::wstring> namesIn(const CString& path, const wchar_t* ext)
{
    wchar_t(*names)[260] = nullptr;
    unsigned int count = 99;
    EXPECT_EQ(CKxDirectory(path).GetFileNames(&names, &count, ext), 1);
    const std::unique_ptr<wchar_t[][260], decltype(&std::free)> owner(names, std::free);
    std::vector<std::wstring> result;
    for (unsigned int i = 0; i < count; ++i)
        result.emplace_back(names[i]);
    return result;
}

std::wstring newName(const CString& path, const wchar_t* name)
{
    return static_cast<const wchar_t*>(CKxDirectory(path).GetIncName(CString(name)));
}

using Names = std::vector<std::wstring>;
} // namespace

TEST(Directory, lists_names_without_directory_and_extension_in_order)
{
    const TemporaryDirectory directory;
    directory.add(L"beton.sty");
    directory.add(L"Acier.sty");
    directory.add(L"élévation.STY");
    directory.add(L"other.txt");
    directory.add(L"beton.style");
    directory.add(L"sty");
    directory.add(L".sty");
    directory.addFolder(L"folder.sty");
    EXPECT_EQ(namesIn(directory.path(), L".sty"), (Names{L"Acier", L"beton", L"élévation"}));
    EXPECT_EQ(namesIn(directory.path() + L"\\", L".sty"), (Names{L"Acier", L"beton", L"élévation"}));
}

TEST(Directory, without_a_fitting_file_gives_no_array)
{
    const TemporaryDirectory directory;
    directory.add(L"other.txt");
    EXPECT_EQ(namesIn(directory.path(), L".sty"), Names());
}

TEST(Directory, that_does_not_exist_gives_0_and_no_array)
{
    const TemporaryDirectory directory;
    wchar_t(*names)[260] = reinterpret_cast<wchar_t(*)[260]>(1); // what was there is neither read nor freed
    unsigned int count = 7;
    EXPECT_EQ(CKxDirectory(directory.path() + L"\\missing").GetFileNames(&names, &count, L".sty"), 0);
    EXPECT_EQ(names, nullptr);
    EXPECT_EQ(count, 0U);
}

TEST(Directory, missing_arguments_give_0)
{
    const TemporaryDirectory directory;
    wchar_t(*names)[260] = nullptr;
    unsigned int count = 7;
    const CKxDirectory reader(directory.path());
    EXPECT_EQ(reader.GetFileNames(nullptr, &count, L".sty"), 0);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(reader.GetFileNames(&names, nullptr, L".sty"), 0);
    EXPECT_EQ(reader.GetFileNames(&names, &count, nullptr), 0);
}

TEST(Directory, new_name_is_the_given_one_while_it_is_free)
{
    const TemporaryDirectory directory;
    EXPECT_EQ(newName(directory.path(), L"Style.sty"), L"Style.sty");
    EXPECT_EQ(newName(directory.path() + L"\\missing", L"Style.sty"), L"Style.sty");
}

TEST(Directory, new_name_takes_the_first_free_number)
{
    const TemporaryDirectory directory;
    directory.add(L"Style.sty");
    EXPECT_EQ(newName(directory.path(), L"Style.sty"), L"Style1.sty");
    directory.add(L"style1.sty"); // names are compared without regard to case
    directory.add(L"Style3.sty");
    EXPECT_EQ(newName(directory.path(), L"Style.sty"), L"Style2.sty");
    EXPECT_EQ(newName(directory.path(), L"STYLE.STY"), L"STYLE2.STY");
}

TEST(Directory, new_name_counts_folders_and_takes_names_without_extension)
{
    const TemporaryDirectory directory;
    directory.addFolder(L"Style");
    EXPECT_EQ(newName(directory.path(), L"Style"), L"Style1");
}
