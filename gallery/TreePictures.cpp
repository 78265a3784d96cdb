// The pictures of the tree list page: letters stand for colours.
#include "TreePictures.h"
#include <array>

namespace
{
constexpr COLORREF transparent = RGB(255, 0, 255);

COLORREF colorOf(char letter)
{
    switch (letter)
    {
    case 'b':
        return RGB(0, 84, 150); // dark blue
    case 'l':
        return RGB(150, 200, 240); // light blue
    case 'g':
        return RGB(90, 100, 112); // grey
    case 's':
        return RGB(170, 180, 190); // silver
    case 'r':
        return RGB(176, 96, 32); // rust
    case 'o':
        return RGB(226, 158, 92); // light rust
    default:
        return transparent;
    }
}

constexpr std::array storey = {
    "................", "................", "...bbbbbbbbbb...", "...bllbllbllb...",
    "...bllbllbllb...", "...bbbbbbbbbb...", "...bllbllbllb...", "...bllbllbllb...",
    "...bbbbbbbbbb...", "...bllbllbllb...", "...bllbllbllb...", "...bbbbbbbbbb...",
    "...bbbbllbbbb...", ".bbbbbbllbbbbbb.", "................", "................",
};
constexpr std::array member = {
    "................", "................", "...gggggggggg...", "...gssssssssg...",
    "...gggggggggg...", "......gssg......", "......gssg......", "......gssg......",
    "......gssg......", "......gssg......", "......gssg......", "...gggggggggg...",
    "...gssssssssg...", "...gggggggggg...", "................", "................",
};
constexpr std::array bar = {
    "................", "................", "................", "................",
    "................", "................", "..rrrrrrrrrrrr..", ".rooroorooroorr.",
    ".roorooroororrr.", "..rrrrrrrrrrrr..", "................", "................",
    "................", "................", "................", "................",
};
constexpr std::array ascending = {
    ".........", ".........", ".........", ".........", "....b....", "...bbb...",
    "..bbbbb..", ".bbbbbbb.", ".........", ".........", ".........", ".........",
};
constexpr std::array descending = {
    ".........", ".........", ".........", ".........", ".bbbbbbb.", "..bbbbb..",
    "...bbb...", "....b....", ".........", ".........", ".........", ".........",
};

template <std::size_t rows> void add(CImageList& pictures, const std::array<const char*, rows>& drawing, int width)
{
    CClientDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateBitmap(width, static_cast<int>(rows), 1, 32, nullptr);
    CBitmap* const before = dc.SelectObject(&bitmap);
    for (std::size_t y = 0; y < rows; ++y)
        for (int x = 0; x < width; ++x)
            dc.SetPixelV(x, static_cast<int>(y), colorOf(drawing[y][x]));
    dc.SelectObject(before);
    pictures.Add(&bitmap, transparent);
}
} // namespace

void makeRowPictures(CImageList& pictures)
{
    constexpr int size = 16;
    pictures.Create(size, size, ILC_COLOR32 | ILC_MASK, 3, 1);
    add(pictures, storey, size);
    add(pictures, member, size);
    add(pictures, bar, size);
}

void makeSortPictures(CImageList& pictures)
{
    constexpr int width = 9;
    pictures.Create(width, 12, ILC_COLOR32 | ILC_MASK, 2, 1);
    add(pictures, ascending, width);
    add(pictures, descending, width);
}
