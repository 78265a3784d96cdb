// Which object stands for which window: permanent and temporary objects, subclassing.
#include <afxwin.h>

#include <mutex>
#include <unordered_map>

#include "TempWnd.h"

namespace
{
struct Owner
{
    CWnd* object;
    DWORD threadId;
};

struct Owners
{
    std::mutex mutex;
    std::unordered_map<HWND, Owner> byHandle;
};

// Never deleted: window objects may be destroyed after the statics of this DLL.
Owners& owners()
{
    static auto* all = new Owners;
    return *all;
}

bool isPlaceInOrder(HWND wnd)
{
    return wnd == HWND_BOTTOM || wnd == HWND_TOPMOST || wnd == HWND_NOTOPMOST;
}
} // namespace

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

CWnd::CWnd() = default;

CWnd::CWnd(HWND wnd) : m_hWnd(wnd) {}

CWnd::~CWnd()
{
    if (m_hWnd != nullptr && !isPlaceInOrder(m_hWnd))
    {
        CWnd::DestroyWindow();
        Detach(); // a window of another thread stays, but without an object
    }
    KxThreadState& thread = kxThread();
    if (thread.waiting == this)
        thread.waiting = nullptr;
    if (thread.toolTipOwner == this)
        CancelToolTips(TRUE);
}

HWND CWnd::GetSafeHwnd() const
{
    return this == nullptr ? nullptr : m_hWnd;
}

CWnd* CWnd::FromHandle(HWND wnd)
{
    return kxWndFromHandle<CWnd>(wnd);
}

CWnd* CWnd::FromHandlePermanent(HWND wnd)
{
    Owners& all = owners();
    const std::lock_guard<std::mutex> guard(all.mutex);
    const auto found = all.byHandle.find(wnd);
    const bool mine = found != all.byHandle.end() && found->second.threadId == ::GetCurrentThreadId();
    return mine ? found->second.object : nullptr;
}

void CWnd::DeleteTempMap()
{
    auto gone = std::move(kxThread().temporary);
    kxThread().temporary.clear();
    for (auto& entry : gone)
        entry.second->m_hWnd = nullptr; // borrowed, not ours to destroy
}

BOOL CWnd::Attach(HWND wnd)
{
    if (wnd == nullptr || m_hWnd != nullptr)
        return FALSE;
    Owners& all = owners();
    const std::lock_guard<std::mutex> guard(all.mutex);
    all.byHandle[wnd] = {this, ::GetCurrentThreadId()};
    m_hWnd = wnd;
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND wnd = m_hWnd;
    m_hWnd = nullptr;
    if (wnd != nullptr)
    {
        Owners& all = owners();
        const std::lock_guard<std::mutex> guard(all.mutex);
        const auto found = all.byHandle.find(wnd);
        if (found != all.byHandle.end() && found->second.object == this)
            all.byHandle.erase(found);
    }
    return wnd;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND wnd)
{
    if (!::IsWindow(wnd) || !Attach(wnd))
        return FALSE;
    PreSubclassWindow();
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc())));
    if (before == nullptr)
    {
        Detach(); // a window of another process or already gone
        return FALSE;
    }
    if (before != AfxGetAfxWndProc())
    {
        WNDPROC* super = GetSuperWndProcAddr();
        if (super != nullptr)
            *super = before;
    }
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND item = ::GetDlgItem(parent->GetSafeHwnd(), static_cast<int>(id));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow()
{
    WNDPROC* super = GetSuperWndProcAddr();
    if (m_hWnd != nullptr && super != nullptr && *super != nullptr)
    {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
        *super = nullptr;
    }
    return Detach();
}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

void AfxLockTempMaps()
{
    ++kxThread().tempLocks;
}
