// The top-level window that the hosts of tests are made of.
#pragma once
#include <afxwin.h>

#include "support/RealInput.h"

/// A visible window in the foreground, in the colour of a dialog. It goes with the object.
class HostWindow : public CWnd
{
public:
    explicit HostWindow(CRect place, DWORD style = WS_POPUP)
    {
        CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)), L"host", style | WS_VISIBLE,
                 place, nullptr, 0);
        SetForegroundWindow();
        pumpFor(0);
    }
    ~HostWindow() override { DestroyWindow(); }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
};
