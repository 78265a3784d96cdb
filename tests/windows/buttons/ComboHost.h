// What the tests of the button combo share: a combo in a host, its palette, and a plain way to draw what is expected.
#pragma once

#include "ButtonHost.h"
#include "oxa/buttons/KxButtonCombo.h"

constexpr UINT comboId = 1009;
const CRect comboPlace(20, 30, 80, 56); // with its border: a client area of 58 by 24
const CSize comboClient(58, 24);
const CPoint onStrip(7, 10);
const CPoint onBody(30, 10);

/// The palette window of a combo: the one of this thread that belongs to it.
inline CWndCombo* paletteOf(const CKxButtonCombo& combo)
{
    struct Search
    {
        const CKxButtonCombo* combo;
        CWndCombo* found;
    } search = {&combo, nullptr};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL
        {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            auto* const palette = dynamic_cast<CWndCombo*>(CWnd::FromHandlePermanent(window));
            const auto begin = reinterpret_cast<const char*>(wanted.combo);
            const auto at = reinterpret_cast<const char*>(palette);
            if (at >= begin && at < begin + sizeof(CKxButtonCombo)) // it is a member
                wanted.found = palette;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Draws an expected picture out of rectangles.
struct Brush
{
    HDC dc;

    void fill(CRect rect, COLORREF color) const
    {
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(dc, &rect, brush);
        ::DeleteObject(brush);
    }
    /// One pixel wide; the corners at the left bottom and the right top are of the second colour.
    void frame(CRect rect, int topLeft, int bottomRight) const
    {
        fill(CRect(rect.left, rect.top, rect.right - 1, rect.top + 1), ::GetSysColor(topLeft));
        fill(CRect(rect.left, rect.top, rect.left + 1, rect.bottom - 1), ::GetSysColor(topLeft));
        fill(CRect(rect.right - 1, rect.top, rect.right, rect.bottom), ::GetSysColor(bottomRight));
        fill(CRect(rect.left, rect.bottom - 1, rect.right, rect.bottom), ::GetSysColor(bottomRight));
    }
    void raised(CRect rect) const { frame(rect, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW); }
    void sunken(CRect rect) const { frame(rect, COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT); }
    /// Rows of 5, 3 and 1 pixels around the middle.
    void arrow(int x, int y) const
    {
        for (int row = 0; row < 3; ++row)
            fill(CRect(x - 2 + row, y - 1 + row, x + 3 - row, y + row), 0);
    }
    void blackFrame(CRect rect) const { ::FrameRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))); }
    /// The face without its item.
    void face() const
    {
        fill(CRect(CPoint(0, 0), comboClient), ::GetSysColor(COLOR_BTNFACE));
        raised(CRect(0, 0, 58, 24));
        raised(CRect(15, 0, 58, 23));
        raised(CRect(0, 0, 15, 23));
        arrow(7, 11);
    }
};

inline Pixels expectedPicture(CSize size, const std::function<void(const Brush&)>& draw)
{
    return Pixels(size, [&](HDC dc) { draw(Brush{dc}); });
}

/// Red, green, blue and light grey, as the strip of the tests has them; the grey becomes the face colour.
inline COLORREF tileColor(int index)
{
    const COLORREF colors[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255), ::GetSysColor(COLOR_BTNFACE)};
    return colors[index];
}

/// A combo of the four tiles in a host; tiles of 12 by 10 in cells of 20 by 18.
struct TileCombo
{
    ButtonHost host;
    CKxButtonCombo combo;

    bool create(CSize grid = CSize(2, 2), const wchar_t* captions = L"")
    {
        const bool made = combo.Create(comboPlace, grid, IDB_TILES, 4, &host, comboId, captions) != FALSE;
        pumpFor(0);
        return made;
    }
    CWndCombo& palette() { return *paletteOf(combo); }
    bool open() { return palette().IsWindowVisible() != FALSE; }
};
