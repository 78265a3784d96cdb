// Reads and writes whole files, and puts every failure into a sentence.
#include "PictureSource.h"
#include <cstring>
#include <memory>
#include <type_traits>

namespace
{
constexpr LONGLONG largestFile = 256LL << 20; // bytes

struct CloseFile
{
    void operator()(HANDLE file) const { CloseHandle(file); }
};
using File = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseFile>;

File openFile(const CString& path, DWORD access, DWORD sharing, DWORD disposition)
{
    const HANDLE file = CreateFileW(path, access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return File(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

bool isFolder(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

CString reasonOf(DWORD error)
{
    switch (error)
    {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return L"there is no such file";
    case ERROR_INVALID_NAME:
        return L"no file can have that name";
    case ERROR_ACCESS_DENIED:
        return L"access is denied";
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return L"another program is using it";
    case ERROR_DISK_FULL:
        return L"the disk is full";
    default:
        CString text;
        text.Format(L"the system reports error %lu", error);
        return text;
    }
}

CString sentence(const CString& name, const wchar_t* what)
{
    return L"\"" + name + L"\" " + what + L".";
}

CString readAll(const CString& path, const CString& name, std::vector<unsigned char>& bytes)
{
    if (path.IsEmpty())
        return L"No file was named.";
    if (isFolder(path))
        return sentence(name, L"is a folder, not a picture");
    const File file = openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (!file)
        return sentence(name, L"cannot be opened: " + reasonOf(GetLastError()));
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(file.get(), &size))
        return sentence(name, L"cannot be read: " + reasonOf(GetLastError()));
    if (size.QuadPart == 0)
        return sentence(name, L"is empty");
    if (size.QuadPart > largestFile)
        return sentence(name, L"is too large: a picture file may have 256 megabytes here");
    bytes.resize(static_cast<size_t>(size.QuadPart));
    DWORD came = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &came, nullptr))
        return sentence(name, L"cannot be read: " + reasonOf(GetLastError()));
    bytes.resize(came);
    return bytes.empty() ? sentence(name, L"is empty") : CString();
}
} // namespace

CString nameOf(const CString& path)
{
    return path.Mid(path.ReverseFind(L'\\') + 1);
}

CString grouped(unsigned long long number)
{
    CString text;
    text.Format(L"%I64u", number);
    for (int i = text.GetLength() - 3; i > 0; i -= 3)
        text.Insert(i, L',');
    return text;
}

bool PictureSource::isGif() const
{
    return bytes.size() >= 3 && std::memcmp(bytes.data(), "GIF", 3) == 0;
}

PictureSource PictureSource::read(const CString& path)
{
    PictureSource source;
    source.name = nameOf(path);
    if (source.name.IsEmpty())
        source.name = path;
    source.trouble = readAll(path, source.name, source.bytes);
    if (!source.trouble.IsEmpty())
        source.bytes.clear();
    return source;
}

CString writeFile(const CString& path, const unsigned char* bytes, size_t count)
{
    const File file = openFile(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    DWORD written = 0;
    if (file && WriteFile(file.get(), bytes, static_cast<DWORD>(count), &written, nullptr) && written == count)
        return {};
    return sentence(nameOf(path), L"cannot be written: " + reasonOf(GetLastError()));
}
