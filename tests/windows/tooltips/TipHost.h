// A visible parent window, and small probes of what a tip shows.
#pragma once

#include <afxwin.h>

#include "support/HostLoop.h"
#include "support/Pixels.h"

/// An overlapped window at 200, 150 of 400 by 300 pixels, with a white background and no caption.
class TipHost : public CWnd
{
public:
    TipHost()
    {
        CreateEx(0, AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH))), L"host",
                 WS_POPUP | WS_VISIBLE, 200, 150, 400, 300, nullptr, nullptr);
        pumpFor(0);
    }
    TipHost(const TipHost&) = delete;
    TipHost& operator=(const TipHost&) = delete;
    ~TipHost() override
    {
        if (GetSafeHwnd() != nullptr)
            DestroyWindow();
    }
};

/// A push button in a window, at 20, 30 of 120 by 40 pixels unless told otherwise.
inline bool makeButton(CWnd& button, CWnd& host, UINT id, CRect where = CRect(20, 30, 140, 70))
{
    return button.CreateEx(0, L"BUTTON", L"Length", WS_CHILD | WS_VISIBLE, where, &host, id) != FALSE;
}

inline CRect windowRect(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}
