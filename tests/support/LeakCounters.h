// Counts the process's GDI objects and the thread's windows; the platform's own counter is always 0 here.
#pragma once
#include <windows.h>
#include <intrin.h>

/// The number of GDI objects of this process, read from the process's handle table.
inline int gdiObjectCount()
{
    struct Entry
    {
        ULONGLONG object;
        ULONG owner;
        WORD unique;
        BYTE type, flags;
        ULONGLONG user;
    };
    const auto* process = reinterpret_cast<const BYTE*>(__readgsqword(0x60));
    const Entry* table = *reinterpret_cast<Entry* const*>(process + 0xF8);
    int count = 0;
    for (int i = 0; table && i < 0x10000; ++i)
        count += table[i].type != 0;
    return count;
}

/// The number of top-level windows of this thread and of all their children.
inline int windowCount()
{
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM p) -> BOOL
        {
            ++*reinterpret_cast<int*>(p);
            EnumChildWindows(
                window,
                [](HWND, LPARAM q) -> BOOL
                {
                    ++*reinterpret_cast<int*>(q);
                    return TRUE;
                },
                p);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}
