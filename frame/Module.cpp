// The entry of the library: joins the framework's module chain at load and leaves it at unload.
#include "Module.h"
#include "oxa/frame/ModulePrompts.h"

AFX_EXTENSION_MODULE moduleExtensionState = {};
HINSTANCE moduleInstance = nullptr;

namespace
{
bool attach(HINSTANCE instance)
{
    moduleInstance = instance;
    if (!AfxInitExtensionModule(moduleExtensionState, instance))
        return false;
    // Never kept and never freed here: the framework's module chain owns it.
    new CDynLinkLibrary(moduleExtensionState, FALSE);
    return true;
}
} // namespace

extern "C" BOOL APIENTRY DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
        return attach(instance) ? TRUE : FALSE;
    if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(moduleExtensionState, FALSE);
    return TRUE;
}

const wchar_t* getModulePromptsProjectName()
{
    return c_promptsProject;
}
