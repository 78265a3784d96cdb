// Whether an object outlived a call that may have destroyed its window and deleted it.
#pragma once
#include <afxwin.h>

namespace kx
{

/// Made before the call and asked after it; it does not touch the object then. A temporary object counts as there.
class StillThere
{
public:
    explicit StillThere(const CWnd& wnd)
        : m_wnd(&wnd), m_handle(wnd.m_hWnd), m_permanent(CWnd::FromHandlePermanent(m_handle) == m_wnd)
    {
    }
    explicit operator bool() const { return !m_permanent || CWnd::FromHandlePermanent(m_handle) == m_wnd; }

private:
    const CWnd* m_wnd;
    HWND m_handle;
    bool m_permanent;
};

} // namespace kx
