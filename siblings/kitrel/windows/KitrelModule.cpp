// The entry of the library, and the search through the modules of the process that file texts.
#include "KitrelModule.h"
#include <psapi.h>
#include <cwchar>
#include <vector>

HINSTANCE kitrelInstance = nullptr;

namespace
{
AFX_EXTENSION_MODULE extensionState = {};

constexpr wchar_t c_ownProject[] = L"KITREL";

std::vector<HMODULE> loadedModules()
{
    std::vector<HMODULE> modules(256);
    for (;;)
    {
        const DWORD room = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
        DWORD needed = 0;
        if (!EnumProcessModules(GetCurrentProcess(), modules.data(), room, &needed))
            return {};
        modules.resize(needed / sizeof(HMODULE));
        if (needed <= room)
            return modules;
    }
}

/// The project of a module, or null when it files nothing.
const wchar_t* projectOf(HMODULE module)
{
    // This library exports no such function, so that a host may link to it and to another module that does.
    if (module == kitrelInstance)
        return c_ownProject;
    const FARPROC answer = GetProcAddress(module, "getModulePromptsProjectName");
    if (!answer)
        return nullptr;
    return reinterpret_cast<const wchar_t* (*)()>(reinterpret_cast<void*>(answer))();
}
} // namespace

bool visitPromptModules(const wchar_t* project, const std::function<bool(HMODULE)>& visit)
{
    for (const HMODULE module : loadedModules())
    {
        const wchar_t* const name = projectOf(module);
        if (name && (!project || std::wcscmp(name, project) == 0) && visit(module))
            return true;
    }
    return false;
}

FiledBytes findFiled(const wchar_t* type, unsigned int id, const wchar_t* project)
{
    FiledBytes found;
    if (id == 0 || id > 0xFFFF)
        return found;
    const wchar_t* const key = MAKEINTRESOURCEW(id);
    visitPromptModules(project,
                       [&](HMODULE module)
                       {
                           const HRSRC resource = FindResourceW(module, key, type);
                           const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
                           if (!loaded)
                               return false;
                           found.data = LockResource(loaded);
                           found.size = SizeofResource(module, resource);
                           return found.data != nullptr;
                       });
    return found;
}

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        kitrelInstance = instance;
        if (!AfxInitExtensionModule(extensionState, instance))
            return FALSE;
        new CDynLinkLibrary(extensionState, FALSE); // owned by the framework's module chain
    }
    else if (reason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(extensionState, FALSE);
    }
    return TRUE;
}
