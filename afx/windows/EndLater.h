// Windows that the system works on with a record that goes with them: whoever ends one meanwhile ends it a moment later.
#pragma once
#include <algorithm>

#include "ThreadState.h"

namespace kx
{

/// Keeps a window from ending while it lives.
class AtWork
{
public:
    explicit AtWork(HWND wnd) { kxThread().atWork.push_back(wnd); }
    ~AtWork() { kxThread().atWork.pop_back(); }
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;
};

constexpr UINT_PTR endTimer = 0x4B58;

/// For a window that is about to end: true when it must not yet. It is hidden then, and ends when the loop comes round.
inline bool endsLater(HWND wnd)
{
    const std::vector<HWND>& atWork = kxThread().atWork;
    if (std::find(atWork.begin(), atWork.end(), wnd) == atWork.end())
        return false;
    ::ShowWindow(wnd, SW_HIDE);
    ::SetWindowLongPtr(wnd, GWLP_HWNDPARENT, 0); // an owner that ends now does not wait for it
    ::SetTimer(wnd, endTimer, 0,
               [](HWND ending, UINT, UINT_PTR timer, DWORD)
               {
                   ::KillTimer(ending, timer);
                   ::DestroyWindow(ending);
               });
    return true;
}

/// Ends a window at once that was to end later; false for another one.
inline bool endsNow(HWND wnd)
{
    return wnd != nullptr && ::KillTimer(wnd, endTimer) && ::DestroyWindow(wnd);
}

} // namespace kx
