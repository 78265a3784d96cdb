// Counts the process's GDI objects and kernel handles, the thread's windows, menus and icons; the platform's own counters
// are always 0 here.
#pragma once
#include <windows.h>
#include <intrin.h>
#include <vector>

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

/// The number of handles to events, threads, files and the like that this process has.
inline int kernelHandleCount()
{
    struct Handle
    {
        ULONG process;
        BYTE type, flags;
        USHORT value;
        void* object;
        ULONG access;
    };
    struct Handles
    {
        ULONG count;
        Handle handle[1];
    };
    constexpr ULONG systemHandles = 16;
    using Query = LONG(WINAPI*)(ULONG, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation")));
    std::vector<BYTE> buffer(1U << 20);
    ULONG needed = 0;
    while (query(systemHandles, buffer.data(), static_cast<ULONG>(buffer.size()), &needed) != 0 &&
           buffer.size() < (1U << 26))
        buffer.resize(buffer.size() * 2);
    const auto* all = reinterpret_cast<const Handles*>(buffer.data());
    int count = 0;
    for (ULONG i = 0; i < all->count; ++i)
        count += all->handle[i].process == GetCurrentProcessId() ? 1 : 0;
    return count;
}

/// The number of menus, icons and cursors, of this process and of the system.
inline int menuAndIconCount()
{
    int count = 0;
    for (ULONG_PTR value = 0x20; value < 0xFFEE; value += 2)
    {
        ICONINFO icon = {};
        if (IsMenu(reinterpret_cast<HMENU>(value)))
            ++count;
        else if (GetIconInfo(reinterpret_cast<HICON>(value), &icon))
        {
            ++count;
            DeleteObject(icon.hbmMask);
            if (icon.hbmColor != nullptr)
                DeleteObject(icon.hbmColor);
        }
    }
    return count;
}
