// Replaces a function that a loaded module imports, for as long as the patch lives.
#pragma once
#include <windows.h>
#include <cstring>

/// Finds the import by its decorated name, or the start of it, in whatever module it comes from.
class ImportPatch
{
public:
    ImportPatch(HMODULE module, const char* name, const void* replacement) : m_slot(find(module, name))
    {
        if (m_slot)
            m_original = write(replacement);
    }
    ~ImportPatch()
    {
        if (m_slot)
            write(m_original);
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    /// False when the module imports no such function.
    bool found() const { return m_slot != nullptr; }

    /// The module is gone: there is nothing left to put back.
    void forget() { m_slot = nullptr; }

    const void* original() const { return m_original; }

private:
    static const void** find(HMODULE module, const char* name)
    {
        auto* const base = reinterpret_cast<BYTE*>(module);
        const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
        const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const auto& folder = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        if (!folder.VirtualAddress)
            return nullptr;
        auto* entry = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + folder.VirtualAddress);
        for (; entry->Name; ++entry)
        {
            const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + entry->OriginalFirstThunk);
            auto* slots = reinterpret_cast<IMAGE_THUNK_DATA*>(base + entry->FirstThunk);
            for (; names->u1.AddressOfData; ++names, ++slots)
            {
                if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal))
                    continue;
                const auto* const import =
                    reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
                if (std::strncmp(reinterpret_cast<const char*>(import->Name), name, std::strlen(name)) == 0)
                    return reinterpret_cast<const void**>(&slots->u1.Function);
            }
        }
        return nullptr;
    }

    const void* write(const void* value)
    {
        DWORD before = 0;
        VirtualProtect(m_slot, sizeof *m_slot, PAGE_READWRITE, &before);
        const void* const old = *m_slot;
        *m_slot = value;
        VirtualProtect(m_slot, sizeof *m_slot, before, &before);
        return old;
    }

    const void** m_slot;
    const void* m_original = nullptr;
};
