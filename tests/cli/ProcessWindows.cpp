// Processes of Windows.
#ifdef _WIN32

#include "Process.h"

#include <windows.h>

#include <stdexcept>

namespace
{
/// A file that a child process may use as a standard stream.
class InheritedFile
{
public:
    InheritedFile(const std::string& path, bool forWriting)
    {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        m_handle = CreateFileW(std::filesystem::path(path).c_str(), forWriting ? GENERIC_WRITE : GENERIC_READ,
                               FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                               forWriting ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (m_handle == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot open " + path);
    }
    ~InheritedFile() { CloseHandle(m_handle); }
    InheritedFile(const InheritedFile&) = delete;
    InheritedFile& operator=(const InheritedFile&) = delete;

    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

/// A word as programs of this system take their command line apart.
std::wstring quoted(const std::string& word)
{
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : std::filesystem::path(word).wstring())
    {
        if (letter == L'"')
            text.append(backslashes + 1, L'\\'); // the backslashes before it count double, and one more is its own
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        text += letter;
    }
    return text.append(backslashes, L'\\') + L"\"";
}

std::wstring commandLine(const std::string& program, const std::vector<std::string>& arguments)
{
    std::wstring line = quoted(program);
    for (const std::string& argument : arguments)
        line += L" " + quoted(argument);
    return line;
}
} // namespace

// The program is looked for beside this one.
Outcome runProgram(const std::string& program, const std::vector<std::string>& arguments, const std::string& input,
                   const std::string& outputPath)
{
    const TestFolder folder;
    folder.write("in", input);
    DWORD status = 0;
    {
        const InheritedFile in(folder.path("in"), false);
        const InheritedFile out(outputPath.empty() ? folder.path("out") : outputPath, true);
        const InheritedFile err(folder.path("err"), true);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = in.get();
        startup.hStdOutput = out.get();
        startup.hStdError = err.get();
        PROCESS_INFORMATION process{};
        std::wstring line = commandLine(program, arguments);
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
            throw std::runtime_error("cannot start " + program);
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    std::string errors = folder.read("err");
    std::erase(errors, '\r'); // standard error is text
    return {static_cast<int>(status), folder.read("out"), errors};
}

#endif
