// The thread states' life: made on demand, deleted when the thread leaves the DLL.
#include <afxwin.h>

#include "ThreadState.h"

namespace
{
// A plain slot of the system: run-time thread locals may be gone already when a thread detaches.
DWORD slot()
{
    static const DWORD index = ::TlsAlloc();
    return index;
}

HINSTANCE frameworkModule = nullptr;
} // namespace

KxThreadState::~KxThreadState()
{
    if (createHook != nullptr)
        ::UnhookWindowsHookEx(createHook);
    for (auto& entry : temporary)
        entry.second->m_hWnd = nullptr; // borrowed, not ours to destroy
    temporary.clear();                  // while this state can still be asked for
}

KxThreadState& kxThread()
{
    auto* state = static_cast<KxThreadState*>(::TlsGetValue(slot()));
    if (state == nullptr)
    {
        state = new KxThreadState;
        ::TlsSetValue(slot(), state);
    }
    return *state;
}

void kxEndThread()
{
    auto* state = static_cast<KxThreadState*>(::TlsGetValue(slot()));
    delete state;
    ::TlsSetValue(slot(), nullptr);
}

HINSTANCE kxFrameworkModule()
{
    return frameworkModule;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        frameworkModule = instance;
    else if (reason == DLL_THREAD_DETACH)
        kxEndThread();
    return TRUE;
}
