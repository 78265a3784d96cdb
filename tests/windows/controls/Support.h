// What the tests of the control classes share: a parent window, and a memory device context to draw on.
#pragma once
#include <afxcmn.h>
#include <gtest/gtest.h>

#include "support/LeakCounters.h"
#include "support/RealInput.h"

#include <string>

/// A visible top-level window that controls are created in.
class CParentWindow : public CWnd
{
public:
    CParentWindow()
    {
        CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 50,
                 50, 500, 400, nullptr, nullptr);
    }
    ~CParentWindow() override { DestroyWindow(); }
};

/// A white picture of 32 bits a pixel, selected into a memory device context.
class Canvas
{
public:
    explicit Canvas(int width = 40, int height = 30)
    {
        bitmap.CreateBitmap(width, height, 1, 32, nullptr);
        dc.CreateCompatibleDC(nullptr);
        m_before = dc.SelectObject(&bitmap)->GetSafeHandle();
        dc.FillSolidRect(0, 0, width, height, RGB(255, 255, 255));
        dc.SetBkColor(RGB(255, 255, 255));
    }
    ~Canvas() { ::SelectObject(dc.m_hDC, m_before); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// The count of pixels that are not white.
    int painted() const
    {
        BITMAP size = {};
        ::GetObjectW(bitmap.m_hObject, sizeof size, &size);
        int count = 0;
        for (int y = 0; y < size.bmHeight; ++y)
            for (int x = 0; x < size.bmWidth; ++x)
                count += dc.GetPixel(x, y) != white;
        return count;
    }
    static constexpr COLORREF white = 0x00FFFFFF;
    CBitmap bitmap;
    CDC dc;

private:
    HGDIOBJ m_before = nullptr;
};

constexpr COLORREF red = 0x000000FF;
constexpr COLORREF green = 0x0000FF00;
constexpr COLORREF blue = 0x00FF0000;
constexpr COLORREF black = 0x00000000;
constexpr COLORREF white = 0x00FFFFFF;

/// A null pointer that the compiler knows nothing of.
template <class Object> Object* nobody()
{
    static Object* volatile none = nullptr;
    return none;
}

inline std::wstring plain(const CString& text)
{
    return std::wstring(static_cast<LPCTSTR>(text), static_cast<std::size_t>(text.GetLength()));
}
