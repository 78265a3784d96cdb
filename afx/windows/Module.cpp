// Module states and the chain of extension modules.
#include <afxwin.h>

#include <mutex>

#include "ModuleChain.h"
#include "ThreadState.h"

namespace
{
// Never deleted: extension modules leave the chain while the process ends.
AFX_MODULE_STATE& appState()
{
    static auto* state = new AFX_MODULE_STATE;
    return *state;
}

std::recursive_mutex& chainMutex()
{
    static auto* mutex = new std::recursive_mutex;
    return *mutex;
}

void join(CDynLinkLibrary* library)
{
    const std::lock_guard<std::recursive_mutex> guard(chainMutex());
    AFX_MODULE_STATE* state = AfxGetAppModuleState();
    library->m_pNextDLL = state->m_pFirstLibrary;
    state->m_pFirstLibrary = library;
}

HINSTANCE findInChain(const std::function<bool(HINSTANCE)>& holds, bool system)
{
    const std::lock_guard<std::recursive_mutex> guard(chainMutex());
    for (const CDynLinkLibrary* library = AfxGetAppModuleState()->m_pFirstLibrary; library != nullptr;
         library = library->m_pNextDLL)
    {
        const bool asked = (library->m_bSystem != FALSE) == system && library->m_hResource != nullptr;
        if (asked && holds(library->m_hResource))
            return library->m_hResource;
    }
    return nullptr;
}
} // namespace

AFX_MODULE_STATE::AFX_MODULE_STATE() = default;

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(system)
{
    join(this);
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE module, HINSTANCE resource)
    : m_hModule(module), m_hResource(resource), m_bSystem(FALSE)
{
    join(this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    const std::lock_guard<std::recursive_mutex> guard(chainMutex());
    for (CDynLinkLibrary** link = &AfxGetAppModuleState()->m_pFirstLibrary; *link != nullptr;
         link = &(*link)->m_pNextDLL)
    {
        if (*link == this)
        {
            *link = m_pNextDLL;
            return;
        }
    }
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (state.bInitialized)
        return TRUE;
    if (module == nullptr)
        return FALSE;
    state.bInitialized = TRUE;
    state.hModule = module;
    if (state.hResource == nullptr)
        state.hResource = module;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all)
{
    if (!state.bInitialized)
        return;
    const std::lock_guard<std::recursive_mutex> guard(chainMutex());
    for (CDynLinkLibrary* library = AfxGetAppModuleState()->m_pFirstLibrary; library != nullptr;)
    {
        CDynLinkLibrary* next = library->m_pNextDLL;
        if (all || library->m_hModule == state.hModule)
            delete library;
        library = next;
    }
    state.bInitialized = FALSE;
}

AFX_MODULE_STATE* AfxGetAppModuleState()
{
    return &appState();
}

AFX_MODULE_STATE* AfxGetStaticModuleState()
{
    return &appState();
}

AFX_MODULE_STATE* AfxGetModuleState()
{
    AFX_MODULE_STATE* state = kxThread().moduleState;
    return state != nullptr ? state : &appState();
}

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* state)
{
    AFX_MODULE_STATE* before = AfxGetModuleState();
    kxThread().moduleState = state;
    return before;
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state) : m_before(AfxSetModuleState(state)) {}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2()
{
    AfxSetModuleState(m_before);
}

// Before AfxWinInit the program file stands for the module.
HINSTANCE AfxGetInstanceHandle()
{
    HINSTANCE instance = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return instance != nullptr ? instance : ::GetModuleHandle(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    HINSTANCE resources = AfxGetModuleState()->m_hCurrentResourceHandle;
    return resources != nullptr ? resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE instance)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = instance;
}

HINSTANCE kxFindModule(const std::function<bool(HINSTANCE)>& holds)
{
    HINSTANCE inForce = AfxGetResourceHandle();
    if (holds(inForce))
        return inForce;
    if (HINSTANCE found = findInChain(holds, false))
        return found;
    if (HINSTANCE found = findInChain(holds, true))
        return found;
    return holds(kxFrameworkModule()) ? kxFrameworkModule() : nullptr;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR name, LPCTSTR type)
{
    HINSTANCE found = kxFindModule([=](HINSTANCE module) { return ::FindResource(module, name, type) != nullptr; });
    return found != nullptr ? found : AfxGetResourceHandle();
}

HINSTANCE AfxLoadLibrary(LPCTSTR module)
{
    return module != nullptr ? ::LoadLibrary(module) : nullptr;
}

HINSTANCE AfxLoadLibraryEx(LPCTSTR module, HANDLE file, DWORD flags)
{
    return module != nullptr ? ::LoadLibraryEx(module, file, flags) : nullptr;
}

BOOL AfxFreeLibrary(HINSTANCE library)
{
    return ::FreeLibrary(library);
}
