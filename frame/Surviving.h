// Whether a window's object outlived a call that runs the host's code.
#pragma once

#include <afxwin.h>

/// Made before the call and asked after it; it does not touch the object then. An object without a window counts as gone.
class Surviving
{
public:
    explicit Surviving(const CWnd& window) : m_object(&window), m_handle(window.m_hWnd) {}
    explicit operator bool() const { return m_handle != nullptr && CWnd::FromHandlePermanent(m_handle) == m_object; }

private:
    const CWnd* m_object;
    HWND m_handle;
};
