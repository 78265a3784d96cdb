// A visible parent window, and small probes of what a tip shows.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "support/RealInput.h"

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

/// The pixels of a client area, as the window shows them.
class Pixels
{
public:
    explicit Pixels(CWnd& window)
    {
        window.UpdateWindow();
        CRect client;
        window.GetClientRect(&client);
        width = client.Width();
        height = client.Height();
        HDC source = ::GetDC(window.GetSafeHwnd());
        read(source);
        ::ReleaseDC(window.GetSafeHwnd(), source);
    }
    /// A picture that `draw` makes in memory.
    Pixels(CSize size, const std::function<void(HDC)>& draw) : width(size.cx), height(size.cy)
    {
        HDC screen = ::GetDC(nullptr);
        HDC memory = ::CreateCompatibleDC(screen);
        HBITMAP bitmap = ::CreateCompatibleBitmap(screen, width, height);
        HGDIOBJ old = ::SelectObject(memory, bitmap);
        draw(memory);
        read(memory);
        ::SelectObject(memory, old);
        ::DeleteObject(bitmap);
        ::DeleteDC(memory);
        ::ReleaseDC(nullptr, screen);
    }

    COLORREF at(int x, int y) const
    {
        return colors.at(static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x));
    }

    /// How many pixels of `where` have a colour that `wanted` accepts.
    int count(const CRect& where, const std::function<bool(COLORREF)>& wanted) const
    {
        int found = 0;
        for (int y = where.top; y < where.bottom; ++y)
            for (int x = where.left; x < where.right; ++x)
                found += wanted(at(x, y));
        return found;
    }

    /// The smallest rectangle around the pixels of `where` that differ from `paper`.
    CRect ink(const CRect& where, COLORREF paper) const
    {
        CRect box(where.right, where.bottom, where.left, where.top);
        for (int y = where.top; y < where.bottom; ++y)
        {
            for (int x = where.left; x < where.right; ++x)
            {
                if (at(x, y) != paper)
                {
                    box.SetRect(std::min<int>(box.left, x), std::min<int>(box.top, y), std::max<int>(box.right, x + 1),
                                std::max<int>(box.bottom, y + 1));
                }
            }
        }
        return box;
    }

    bool operator==(const Pixels&) const = default;

    int width = 0;
    int height = 0;

private:
    void read(HDC source)
    {
        colors.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                colors.push_back(::GetPixel(source, x, y));
    }

    std::vector<COLORREF> colors;
};

/// Runs the framework's message pump until `ok()` holds; false when it does not within five seconds.
inline bool pumpFrameworkUntil(const std::function<bool()>& ok)
{
    const DWORD start = ::GetTickCount();
    while (!ok() && ::GetTickCount() - start < 5000)
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
            AfxGetThread()->PumpMessage();
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    return ok();
}
