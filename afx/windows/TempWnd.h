// Window objects for handles of foreign windows.
#pragma once
#include <afxwin.h>

#include "ThreadState.h"

/// The program's object of a handle, or a temporary one of the class that is asked for; null for null.
/// Kept on purpose: the program's own object is answered even when it is of another class, so that a handler can
/// compare addresses; its members of CWnd are all that may be used then.
template <class Wanted> Wanted* kxWndFromHandle(HWND wnd)
{
    if (wnd == nullptr)
        return nullptr;
    if (CWnd* own = CWnd::FromHandlePermanent(wnd))
    {
        auto* exact = dynamic_cast<Wanted*>(own);
        return exact != nullptr ? exact : reinterpret_cast<Wanted*>(own);
    }
    auto& slot = kxThread().temporary[{wnd, std::type_index(typeid(Wanted))}];
    if (!slot)
        slot = std::make_unique<Wanted>();
    slot->m_hWnd = wnd;
    return static_cast<Wanted*>(slot.get());
}
