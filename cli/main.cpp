// oxa-gif: hands the arguments on, as wide text where the system has it.
#include "cli/GifTool.h"

#ifdef _WIN32

#include <fcntl.h>
#include <io.h>

#include <cstdio>

int wmain(int count, wchar_t** arguments)
{
    // Pictures pass through the standard streams byte for byte.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    return GifTool::Run({arguments + (count > 0 ? 1 : 0), arguments + count});
}

#else

#include <csignal>

int main(int count, char** arguments)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that went away is a write that fails, and is told as one
    return GifTool::Run({arguments + (count > 0 ? 1 : 0), arguments + count});
}

#endif
