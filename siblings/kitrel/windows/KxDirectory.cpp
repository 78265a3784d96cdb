// Lists the files of a directory, and finds a name that is new in it.
#include "kitrel/KxDirectory.h"
#include <windows.h>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{
/// A directory search that is closed on every path.
class Search
{
public:
    explicit Search(const CString& pattern) : m_handle(FindFirstFileW(pattern, &m_entry)) {}
    ~Search()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
            FindClose(m_handle);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    bool found() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool next() { return FindNextFileW(m_handle, &m_entry) != FALSE; }
    const WIN32_FIND_DATAW& entry() const { return m_entry; }

private:
    WIN32_FIND_DATAW m_entry = {};
    HANDLE m_handle;
};

/// The name without `ext`; empty when the entry is a directory or has another extension.
std::wstring stemOf(const WIN32_FIND_DATAW& entry, const std::wstring& ext)
{
    const std::wstring name = entry.cFileName;
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) || name.size() <= ext.size())
        return {};
    const std::size_t stem = name.size() - ext.size();
    return lstrcmpiW(name.c_str() + stem, ext.c_str()) == 0 ? name.substr(0, stem) : std::wstring();
}

bool readStems(const CString& path, const std::wstring& ext, std::vector<std::wstring>& stems)
{
    Search search(path + L"*");
    if (!search.found())
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    do
    {
        std::wstring stem = stemOf(search.entry(), ext);
        if (!stem.empty())
            stems.push_back(std::move(stem));
    } while (search.next());
    std::sort(stems.begin(), stems.end(),
              [](const std::wstring& a, const std::wstring& b)
              {
                  const int order = lstrcmpiW(a.c_str(), b.c_str());
                  return order < 0 || (order == 0 && a < b);
              });
    return true;
}

bool exists(const CString& file)
{
    return GetFileAttributesW(file) != INVALID_FILE_ATTRIBUTES;
}
} // namespace

CKxDirectory::CKxDirectory(const CString& directory) : m_path(directory)
{
    const int length = m_path.GetLength();
    const wchar_t last = length ? m_path[length - 1] : L'\\';
    if (last != L'\\' && last != L'/')
        m_path += L'\\';
}

CKxDirectory::~CKxDirectory() = default;

int CKxDirectory::GetFileNames(wchar_t (**names)[260], unsigned int* count, const wchar_t* ext) const
{
    if (names)
        *names = nullptr;
    if (count)
        *count = 0;
    std::vector<std::wstring> stems;
    if (!names || !count || !ext || !readStems(m_path, ext, stems))
        return 0;
    if (stems.empty())
        return 1;
    auto* const list = static_cast<wchar_t(*)[260]>(std::calloc(stems.size(), sizeof(wchar_t[260])));
    if (!list)
        return 0;
    for (std::size_t i = 0; i < stems.size(); ++i) // a name has at most 259 characters
        std::copy_n(stems[i].data(), std::min<std::size_t>(stems[i].size(), 259), list[i]);
    *names = list;
    *count = static_cast<unsigned int>(stems.size());
    return 1;
}

CString CKxDirectory::GetIncName(CString name) const
{
    const int dot = name.ReverseFind(L'.');
    const CString stem = dot < 0 ? name : name.Left(dot);
    const CString ext = dot < 0 ? CString() : name.Mid(dot);
    CString candidate = name;
    for (unsigned int number = 1; exists(m_path + candidate); ++number)
        candidate.Format(L"%s%u%s", static_cast<const wchar_t*>(stem), number, static_cast<const wchar_t*>(ext));
    return candidate;
}
