// What the framework remembers for each thread.
#pragma once
#include <afx.h>

#include <map>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

#include <windows.h>

#include "kx/Module.h"

class CWinThread;
class CWnd;

struct KxThreadState
{
    AFX_MODULE_STATE* moduleState = nullptr; ///< null: the host program's
    CWinThread* thread = nullptr;            ///< null for a thread that the framework did not start

    // creation
    CWnd* waiting = nullptr;    ///< gets the next window that is created
    HHOOK createHook = nullptr; ///< also asked when a window is to end

    // messages
    MSG lastSent{};         ///< the message that a window procedure is handling
    MSG pumped{};           ///< the message that was taken last, where there is no thread object
    HWND lockout = nullptr; ///< notifications to this window are not routed: its data is being exchanged

    std::vector<HWND> atWork; ///< windows that may not end yet: the system's own code works on them

    // temporary objects, one for each handle and class that was asked for
    std::map<std::pair<HWND, std::type_index>, std::unique_ptr<CWnd>> temporary;
    int tempLocks = 0;

    // the popup menu that CMenu::TrackPopupMenu shows
    HMENU trackedMenu = nullptr;
    HWND trackingWnd = nullptr;

    // tool tips
    HWND toolTip = nullptr;
    CWnd* toolTipOwner = nullptr;
    HWND lastHitWnd = nullptr;
    INT_PTR lastHit = -1;

    KxThreadState() = default;
    KxThreadState(const KxThreadState&) = delete;
    KxThreadState& operator=(const KxThreadState&) = delete;
    ~KxThreadState();
};

/// The calling thread's state; made at the first call.
KxThreadState& kxThread();
/// Deletes the calling thread's state, if there is one.
void kxEndThread();
/// The handle of kxafx.dll.
HINSTANCE kxFrameworkModule();
