// A platform control's window that must not end while one of its messages is at work.
#include "BusyWindow.h"

#include <afxcmn.h>

#include <unordered_map>
#include <utility>

namespace treelist
{

namespace
{

/// What goes on in one window.
struct Work
{
    int depth = 0; ///< messages at work, one within the other
    bool givenUp = false;
    bool ending = false;
    bool ended = false;
    bool callsAtRest = false;
    BusyWindow::Owner owner = {};
    WNDPROC before = nullptr;   ///< the procedure that was there, which leads to the window's object
    WNDPROC platform = nullptr; ///< the control's own
};

/// The watched windows of this thread; a window's messages come to its own thread alone.
struct Watched
{
    std::unordered_map<HWND, Work> works;
    std::uint64_t changingMessages = 0;

    Work* workOf(HWND window)
    {
        const auto found = works.find(window);
        return found == works.end() ? nullptr : &found->second;
    }
};

Watched& watched()
{
    thread_local Watched all;
    return all;
}

/// What changes in a window by such a message comes to it as a message of its own.
bool mayChangeItself(UINT message)
{
    switch (message)
    {
    case SBM_GETPOS:
    case SBM_GETRANGE:
    case SBM_GETSCROLLINFO:
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
    case TVM_GETITEMA:
    case TVM_GETITEMW:
    case TVM_SETITEMA:
    case TVM_SETITEMW:
    case TVM_GETITEMRECT:
    case TVM_GETNEXTITEM:
    case TVM_GETCOUNT:
        return false;
    default:
        return true;
    }
}

/// The framework's own procedure needs no detour by the platform, and every row that is inserted comes by here.
LRESULT callNext(WNDPROC next, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isFramework = next == AfxGetAfxWndProc();
    return isFramework ? next(window, message, wParam, lParam)
                       : ::CallWindowProc(next, window, message, wParam, lParam);
}

/// Refuses to destroy a window that is at work; it is given up instead.
LRESULT CALLBACK keepBusyWindows(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    const Work* const work = code == HCBT_DESTROYWND ? watched().workOf(window) : nullptr;
    if (work == nullptr || work->depth == 0 || work->ending || work->owner.leave == nullptr)
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    if (!work->givenUp)
        work->owner.leave(window);
    return 1;
}

/// The hook of this thread, while it has watched windows.
class Hook
{
public:
    ~Hook() { Set(false); }
    void Set(bool wanted)
    {
        if (wanted && m_hook == nullptr)
            m_hook = ::SetWindowsHookEx(WH_CBT, &keepBusyWindows, nullptr, ::GetCurrentThreadId());
        else if (!wanted && m_hook != nullptr)
            ::UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
    }

private:
    HHOOK m_hook = nullptr;
};

Hook& hook()
{
    thread_local Hook one;
    return one;
}

LRESULT CALLBACK countMessages(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Watched& all = watched();
    Work* const work = all.workOf(window); // stays where it is
    if (work == nullptr)
        return ::DefWindowProc(window, message, wParam, lParam);
    if (mayChangeItself(message))
        ++all.changingMessages;
    ++work->depth;
    const WNDPROC next = work->givenUp ? work->platform : work->before;
    const LRESULT result = callNext(next, window, message, wParam, lParam);
    --work->depth;
    work->ended = work->ended || message == WM_NCDESTROY;
    if (work->depth > 0)
        return result;
    if (work->ended)
    {
        all.works.erase(window);
        hook().Set(!all.works.empty());
    }
    else if (work->givenUp && !work->ending)
    {
        work->ending = true;
        ::DestroyWindow(window);
    }
    else if (std::exchange(work->callsAtRest, false))
        work->owner.rest(window);
    return result;
}

} // namespace

void BusyWindow::Watch(HWND window, const Owner& owner)
{
    if (window == nullptr || watched().workOf(window) != nullptr)
        return;
    Work& work = watched().works[window];
    work.owner = owner;
    hook().Set(true);
    work.platform = reinterpret_cast<WNDPROC>(::GetClassLongPtr(window, GCLP_WNDPROC));
    work.before =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&countMessages)));
}

std::uint64_t BusyWindow::ChangingMessages()
{
    return watched().changingMessages;
}

bool BusyWindow::IsBusy(HWND window)
{
    const Work* const work = watched().workOf(window);
    return work != nullptr && work->depth > 0;
}

bool BusyWindow::CallAtRest(HWND window)
{
    Work* const work = watched().workOf(window);
    if (work == nullptr || work->depth == 0 || work->givenUp || work->owner.rest == nullptr)
        return false;
    work->callsAtRest = true;
    return true;
}

void BusyWindow::GiveUp(HWND window)
{
    Work* const work = watched().workOf(window);
    if (work == nullptr)
        return;
    work->givenUp = true;
    if (::GetCapture() == window)
        ::ReleaseCapture();
    ::ShowWindow(window, SW_HIDE);
    ::SetParent(window, HWND_MESSAGE);
}

} // namespace treelist
