// A platform that has run out of something.
#pragma once
#include <windows.h>

#include "support/ImportPatch.h"

/// While it lives, a function that gives handles gives none to the framework and the library.
class Refusal
{
public:
    explicit Refusal(const char* function)
        : m_framework(::GetModuleHandleW(L"kxafx.dll"), function, reinterpret_cast<const void*>(&nothing)),
          m_library(::GetModuleHandleW(L"Oxa10.dll"), function, reinterpret_cast<const void*>(&nothing))
    {
    }
    /// False when neither calls it.
    bool works() const { return m_framework.found() || m_library.found(); }

private:
    static void* WINAPI nothing() { return nullptr; } // whatever it is given

    ImportPatch m_framework;
    ImportPatch m_library;
};
