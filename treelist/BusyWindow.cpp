// A platform control's window that must not end while one of its messages is at work.
#include "BusyWindow.h"

#include <afxcmn.h>

#include <unordered_map>

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
        all.works.erase(window);
    else if (work->givenUp && !work->ending)
    {
        work->ending = true;
        ::DestroyWindow(window);
    }
    return result;
}

} // namespace

void BusyWindow::Watch(HWND window)
{
    if (window == nullptr || watched().workOf(window) != nullptr)
        return;
    Work& work = watched().works[window];
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
