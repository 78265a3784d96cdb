// What a window shows, or what is drawn in memory, as colours that tests compare.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

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

    /// Empty for an equal picture, else the first pixel that differs.
    std::string difference(const Pixels& other) const
    {
        if (width != other.width || height != other.height)
            return "another size";
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (at(x, y) != other.at(x, y))
                    return "at " + std::to_string(x) + ", " + std::to_string(y) + ": " + said(at(x, y)) + " and " +
                           said(other.at(x, y));
        return {};
    }

    int width = 0;
    int height = 0;

private:
    static std::string said(COLORREF color)
    {
        return std::to_string(GetRValue(color)) + "/" + std::to_string(GetGValue(color)) + "/" +
               std::to_string(GetBValue(color));
    }

    void read(HDC source)
    {
        colors.reserve(static_cast<size_t>(width) * static_cast<size_t>(height));
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                colors.push_back(::GetPixel(source, x, y));
    }

    std::vector<COLORREF> colors;
};
