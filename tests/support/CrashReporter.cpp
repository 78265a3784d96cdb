// Walks the stack of a crash and names each frame, with the debug library of the platform (which reads DWARF 4).
#include "support/CrashReporter.h"
#include <windows.h>
#include <dbghelp.h>
#include <cstdio>
#include <cstring>

namespace
{
void printFrame(HANDLE process, int number, DWORD64 address)
{
    alignas(SYMBOL_INFO) char buffer[sizeof(SYMBOL_INFO) + 256] = {};
    auto* symbol = reinterpret_cast<SYMBOL_INFO*>(buffer);
    symbol->SizeOfStruct = sizeof *symbol;
    symbol->MaxNameLen = 255;
    IMAGEHLP_LINE64 line = {};
    line.SizeOfStruct = sizeof line;
    DWORD64 offset = 0;
    DWORD column = 0;
    const bool named = SymFromAddr(process, address, &offset, symbol) != FALSE;
    const bool placed = SymGetLineFromAddr64(process, address, &column, &line) != FALSE;
    const DWORD64 base = SymGetModuleBase64(process, address);
    char module[MAX_PATH] = "?";
    GetModuleFileNameA(reinterpret_cast<HMODULE>(base), module, MAX_PATH);
    const char* slash = std::strrchr(module, '\\');
    std::fprintf(stderr, "  #%-2d %s+0x%llx %s %s:%lu\n", number, slash ? slash + 1 : module,
                 static_cast<unsigned long long>(address - base), named ? symbol->Name : "?",
                 placed ? line.FileName : "?", placed ? line.LineNumber : 0UL);
}

void printStack(HANDLE process, CONTEXT context)
{
    STACKFRAME64 frame = {};
    frame.AddrPC.Offset = context.Rip;
    frame.AddrFrame.Offset = context.Rbp;
    frame.AddrStack.Offset = context.Rsp;
    frame.AddrPC.Mode = frame.AddrFrame.Mode = frame.AddrStack.Mode = AddrModeFlat;
    for (int i = 0; i < 40; ++i)
    {
        if (!StackWalk64(IMAGE_FILE_MACHINE_AMD64, process, GetCurrentThread(), &frame, &context, nullptr,
                         SymFunctionTableAccess64, SymGetModuleBase64, nullptr) ||
            frame.AddrPC.Offset == 0)
            return;
        printFrame(process, i, frame.AddrPC.Offset);
    }
}

LONG CALLBACK onCrash(EXCEPTION_POINTERS* exception)
{
    static LONG once;
    HANDLE process = GetCurrentProcess();
    if (InterlockedExchange(&once, 1) != 0)
        TerminateProcess(process, 99);
    std::fprintf(stderr, "crash: code %08lx at %p\n", exception->ExceptionRecord->ExceptionCode,
                 exception->ExceptionRecord->ExceptionAddress);
    SymSetOptions(SYMOPT_LOAD_LINES | SYMOPT_DEFERRED_LOADS | SYMOPT_UNDNAME);
    SymInitialize(process, nullptr, TRUE);
    printStack(process, *exception->ContextRecord);
    std::fflush(stderr);
    TerminateProcess(process, 99);
    return EXCEPTION_EXECUTE_HANDLER;
}
} // namespace

void installCrashReporter()
{
    SetUnhandledExceptionFilter(onCrash);
}
