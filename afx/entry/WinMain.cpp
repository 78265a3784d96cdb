// The entry of a windowed program that has a CWinApp object: hands everything to the framework.
#include <afxwin.h>

namespace
{
// The command line behind the program's own name, which may stand in quotes.
LPTSTR argumentsOf(LPTSTR line)
{
    const TCHAR end = *line == _T('"') ? _T('"') : _T(' ');
    if (end == _T('"'))
        ++line;
    while (*line != 0 && *line != end)
        ++line;
    if (*line == _T('"'))
        ++line;
    while (*line == _T(' '))
        ++line;
    return line;
}

int showCommand()
{
    STARTUPINFO info = {};
    info.cb = sizeof info;
    ::GetStartupInfo(&info);
    return (info.dwFlags & STARTF_USESHOWWINDOW) != 0 ? info.wShowWindow : SW_SHOWDEFAULT;
}
} // namespace

// main and not WinMain: the linker looks for it before it has read this library to the end, and the start-up code of
// windowed programs calls it as well.
int main()
{
    return AfxWinMain(::GetModuleHandle(nullptr), nullptr, argumentsOf(::GetCommandLine()), showCommand());
}
