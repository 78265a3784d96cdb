// The library, loaded by a test and given back at its end.
#pragma once
#include <windows.h>

class LibraryUnderTest
{
public:
    LibraryUnderTest() : m_module(LoadLibraryW(L"Oxa10.dll")) {}
    ~LibraryUnderTest() { unload(); }
    LibraryUnderTest(const LibraryUnderTest&) = delete;
    LibraryUnderTest& operator=(const LibraryUnderTest&) = delete;

    HMODULE module() const { return m_module; }
    void unload()
    {
        if (m_module)
            FreeLibrary(m_module);
        m_module = nullptr;
    }

private:
    HMODULE m_module;
};
