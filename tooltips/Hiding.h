// Hides a tip's window.
#pragma once

#include <afxwin.h>

/// Hides a window that exists. This may give the activation back to its owner, whose handlers may end the tip:
/// false when the window and perhaps the object itself have gone.
inline bool hideWindow(CWnd& window)
{
    const HWND handle = window.m_hWnd;
    ::ShowWindow(handle, SW_HIDE);
    return CWnd::FromHandlePermanent(handle) == &window;
}
