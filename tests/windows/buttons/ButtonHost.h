// A visible parent that writes down what its controls tell it.
#pragma once

#include <afxwin.h>

#include <functional>
#include <utility>
#include <vector>

#include "resource.h"
#include "support/HostWindow.h"
#include "support/MessageRecorder.h"
#include "support/Pixels.h"
#include "support/RealInput.h"

/// A window at 200, 150 of 400 by 300 pixels, without a caption.
class ButtonHost : public HostWindow
{
public:
    explicit ButtonHost(CRect place = CRect(200, 150, 600, 450)) : HostWindow(place, WS_POPUP | WS_CLIPCHILDREN) {}
    ~ButtonHost() override { DestroyWindow(); } // while it is whole, so that it hears of the end

    /// Called at each message of the control, when it is of the kind that the test waits for.
    std::function<void()> onTold;
    UINT waitsFor = WM_COMMAND;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == waitsFor && onTold)
            if (const auto once = std::exchange(onTold, nullptr))
                once();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

inline CPoint screenPoint(const CWnd& window, CPoint client)
{
    window.ClientToScreen(&client);
    return client;
}

/// Moves the cursor to a point of a window, in its client coordinates, and lets the messages through.
inline void hover(const CWnd& window, CPoint client)
{
    moveTo(screenPoint(window, client));
    pumpFor(10);
}

/// Presses the left button there, never as the second click of a double click: another button is clicked in between.
inline void press(const CWnd& window, CPoint client)
{
    hover(window, client);
    mouseButton(MOUSEEVENTF_MIDDLEDOWN);
    mouseButton(MOUSEEVENTF_MIDDLEUP);
    mouseButton(MOUSEEVENTF_LEFTDOWN);
}

inline void release()
{
    mouseButton(MOUSEEVENTF_LEFTUP);
}
