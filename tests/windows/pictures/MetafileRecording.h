// Metafiles that the platform itself records, of many kinds of drawing calls.
#pragma once

#include <afxwin.h>

#include <utility>

#include "PictureHost.h"
#include "support/MetafileBuilder.h"

/// GDI objects that are deleted when the recording is over.
class RecordedObjects
{
public:
    RecordedObjects() = default;
    RecordedObjects(const RecordedObjects&) = delete;
    RecordedObjects& operator=(const RecordedObjects&) = delete;
    ~RecordedObjects()
    {
        for (HGDIOBJ object : objects)
            ::DeleteObject(object);
    }

    template <class Handle> Handle keep(Handle object)
    {
        objects.push_back(object);
        return object;
    }

private:
    std::vector<HGDIOBJ> objects;
};

/// A bitmap's header and up to 256 colours for 4 by 4 pixels.
struct SmallBitmap
{
    explicit SmallBitmap(WORD depth, DWORD colors = 0)
    {
        const LONG stride = (4 * depth + 31) / 32 * 4;
        header = {sizeof header, 4, 4, 1, depth, BI_RGB, static_cast<DWORD>(4 * stride), 0, 0, colors, 0};
        pixels.assign(static_cast<size_t>(4 * stride), 0x55);
        colorTable[1] = {255, 255, 255, 0};
    }
    const BITMAPINFO* info() const { return reinterpret_cast<const BITMAPINFO*>(&header); }

    BITMAPINFOHEADER header{};
    RGBQUAD colorTable[256] = {};
    std::vector<unsigned char> pixels;
};

inline void drawShapes(HDC dc)
{
    const POINT points[] = {{1, 1}, {10, 5}, {20, 30}, {5, 40}, {60, 70}, {70, 60}, {80, 90}};
    const INT counts[] = {3, 4};
    const DWORD lineCounts[] = {3, 4};
    ::MoveToEx(dc, 1, 1, nullptr);
    ::LineTo(dc, 50, 50);
    ::Rectangle(dc, 5, 5, 30, 30);
    ::Ellipse(dc, 30, 30, 60, 60);
    ::RoundRect(dc, 5, 5, 20, 20, 4, 4);
    ::Arc(dc, 1, 1, 20, 20, 3, 3, 18, 18);
    ::Pie(dc, 1, 1, 20, 20, 3, 3, 18, 18);
    ::Chord(dc, 1, 1, 20, 20, 3, 3, 18, 18);
    ::Polygon(dc, points, 4);
    ::Polyline(dc, points, 4);
    ::PolyBezier(dc, points, 4);
    ::PolyBezierTo(dc, points, 3);
    ::PolylineTo(dc, points, 3);
    ::PolyPolygon(dc, points, counts, 2);
    ::PolyPolyline(dc, points, lineCounts, 2);
    ::SetPixel(dc, 3, 3, blue);
    ::ExtFloodFill(dc, 2, 2, red, FLOODFILLSURFACE);
}

inline void drawTexts(HDC dc, RecordedObjects& objects)
{
    const RECT area = {1, 1, 60, 30};
    const INT distances[] = {6, 6, 6, 6, 6};
    ::SelectObject(dc, objects.keep(::CreateFontW(12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma")));
    ::SetTextColor(dc, red);
    ::SetTextAlign(dc, TA_LEFT);
    ::TextOutW(dc, 5, 5, L"Hello", 5);
    ::ExtTextOutW(dc, 5, 20, ETO_OPAQUE | ETO_CLIPPED, &area, L"World", 5, distances);
    ::ExtTextOutW(dc, 5, 30, 0, nullptr, L"", 0, nullptr);
    ::ExtTextOutA(dc, 7, 40, 0, nullptr, "abc", 3, nullptr);
}

inline void drawBitmaps(HDC dc, RecordedObjects& objects)
{
    const SmallBitmap trueColor(24);
    const SmallBitmap greys(8, 256);
    const SmallBitmap lines(1, 2);
    for (const SmallBitmap* each : {&trueColor, &greys, &lines})
    {
        ::StretchDIBits(dc, 50, 10, 8, 8, 0, 0, 4, 4, each->pixels.data(), each->info(), DIB_RGB_COLORS, SRCCOPY);
        ::SetDIBitsToDevice(dc, 60, 10, 4, 4, 0, 0, 0, 4, each->pixels.data(), each->info(), DIB_RGB_COLORS);
    }
    const HDC memory = ::CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HGDIOBJ old = ::SelectObject(
        memory, objects.keep(::CreateDIBSection(nullptr, trueColor.info(), DIB_RGB_COLORS, &bits, nullptr, 0)));
    ::BitBlt(dc, 10, 60, 4, 4, memory, 0, 0, SRCCOPY);
    ::StretchBlt(dc, 20, 60, 8, 8, memory, 0, 0, 4, 4, SRCCOPY);
    ::SelectObject(memory, old);
    ::DeleteDC(memory);
    const HBITMAP pattern = objects.keep(::CreateBitmap(8, 8, 1, 1, greys.pixels.data()));
    ::SelectObject(dc, objects.keep(::CreatePatternBrush(pattern)));
    ::PatBlt(dc, 0, 80, 10, 10, PATCOPY);
}

inline void drawRegions(HDC dc, RecordedObjects& objects)
{
    const HRGN region = objects.keep(::CreateRectRgn(40, 40, 60, 60));
    const HRGN round = objects.keep(::CreateEllipticRgn(10, 10, 30, 30));
    const HBRUSH brush = objects.keep(::CreateSolidBrush(green));
    ::CombineRgn(region, region, round, RGN_OR);
    ::FillRgn(dc, region, brush);
    ::FrameRgn(dc, region, brush, 1, 1);
    ::InvertRgn(dc, region);
    ::PaintRgn(dc, region);
    ::SaveDC(dc);
    ::ExtSelectClipRgn(dc, region, RGN_COPY);
    ::IntersectClipRect(dc, 0, 0, 90, 90);
    ::ExcludeClipRect(dc, 1, 1, 3, 3);
    ::OffsetClipRgn(dc, 1, 1);
    ::RestoreDC(dc, -1);
}

inline void drawPensAndPalettes(HDC dc, RecordedObjects& objects)
{
    const LOGBRUSH ink = {BS_SOLID, red, 0};
    const DWORD dashes[] = {3, 4};
    ::SelectObject(dc, objects.keep(::CreatePen(PS_DASH, 1, red)));
    ::SelectObject(dc, objects.keep(::CreateHatchBrush(HS_CROSS, blue)));
    ::LineTo(dc, 90, 10);
    ::SelectObject(dc, objects.keep(::ExtCreatePen(PS_GEOMETRIC | PS_USERSTYLE, 3, &ink, 2, dashes)));
    ::LineTo(dc, 90, 10);
    ::SelectObject(dc, objects.keep(::ExtCreatePen(PS_GEOMETRIC, 3, &ink, 0, nullptr)));
    ::LineTo(dc, 90, 50);
    struct
    {
        WORD version = 0x300;
        WORD count = 2;
        PALETTEENTRY entries[2] = {{1, 2, 3, 0}, {4, 5, 6, 0}};
    } colors;
    const HPALETTE palette = objects.keep(::CreatePalette(reinterpret_cast<const LOGPALETTE*>(&colors)));
    const HPALETTE before = ::SelectPalette(dc, palette, FALSE);
    ::RealizePalette(dc);
    ::SelectPalette(dc, before, FALSE);
}

/// What only an enhanced metafile takes.
inline void drawEnhanced(HDC dc, RecordedObjects& objects)
{
    const XFORM moved = {1, 0, 0, 1, 2, 2};
    const POINT points[] = {{1, 1}, {10, 5}, {20, 30}, {5, 40}};
    const BYTE types[] = {PT_MOVETO, PT_LINETO, PT_LINETO, PT_LINETO};
    TRIVERTEX corners[] = {{0, 0, 0xFF00, 0, 0, 0}, {20, 20, 0, 0xFF00, 0, 0}, {0, 20, 0, 0, 0xFF00, 0}};
    GRADIENT_RECT area = {0, 1};
    GRADIENT_TRIANGLE triangle = {0, 1, 2};
    const SmallBitmap trueColor(24);
    const HDC memory = ::CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HGDIOBJ old = ::SelectObject(
        memory, objects.keep(::CreateDIBSection(nullptr, trueColor.info(), DIB_RGB_COLORS, &bits, nullptr, 0)));
    const HBITMAP mask = objects.keep(::CreateBitmap(4, 4, 1, 1, nullptr));
    ::PolyDraw(dc, points, types, 4);
    ::GdiAlphaBlend(dc, 30, 60, 4, 4, memory, 0, 0, 4, 4, {AC_SRC_OVER, 0, 128, 0});
    ::GdiTransparentBlt(dc, 40, 60, 4, 4, memory, 0, 0, 4, 4, white);
    ::MaskBlt(dc, 10, 70, 4, 4, memory, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, SRCPAINT));
    ::PlgBlt(dc, points, memory, 0, 0, 4, 4, mask, 0, 0);
    ::GdiGradientFill(dc, corners, 2, &area, 1, GRADIENT_FILL_RECT_H);
    ::GdiGradientFill(dc, corners, 3, &triangle, 1, GRADIENT_FILL_TRIANGLE);
    ::SelectObject(memory, old);
    ::DeleteDC(memory);
    ::SelectObject(dc, objects.keep(::CreateDIBPatternBrushPt(trueColor.info(), DIB_RGB_COLORS)));
    ::BeginPath(dc);
    ::Rectangle(dc, 1, 1, 5, 5);
    ::EndPath(dc);
    ::StrokeAndFillPath(dc);
    ::AngleArc(dc, 40, 40, 10, 0, 90);
    ::SetGraphicsMode(dc, GM_ADVANCED);
    ::SetWorldTransform(dc, &moved);
    ::ModifyWorldTransform(dc, &moved, MWT_LEFTMULTIPLY);
    ::ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
    ::GdiComment(dc, 5, reinterpret_cast<const BYTE*>("hello"));
}

/// Everything, and then a red square over the left half and a blue one over the right.
inline void drawFully(HDC dc, bool enhanced)
{
    RecordedObjects objects;
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetWindowExtEx(dc, 100, 100, nullptr);
    if (enhanced)
        ::SetViewportExtEx(dc, 100, 100, nullptr);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetROP2(dc, R2_COPYPEN);
    ::SetPolyFillMode(dc, WINDING);
    ::SetStretchBltMode(dc, COLORONCOLOR);
    drawShapes(dc);
    drawTexts(dc, objects);
    drawBitmaps(dc, objects);
    drawRegions(dc, objects);
    drawPensAndPalettes(dc, objects);
    if (enhanced)
        drawEnhanced(dc, objects);
    ::SelectObject(dc, ::GetStockObject(NULL_PEN));
    ::SelectObject(dc, objects.keep(::CreateSolidBrush(red)));
    ::Rectangle(dc, 0, 0, 51, 101);
    ::SelectObject(dc, objects.keep(::CreateSolidBrush(blue)));
    ::Rectangle(dc, 50, 0, 101, 101);
    ::SelectObject(dc, ::GetStockObject(WHITE_BRUSH));
    ::SelectObject(dc, ::GetStockObject(SYSTEM_FONT));
}

/// A line, an ellipse, a polygon and a word: small enough to be damaged bit by bit.
inline void drawBriefly(HDC dc, bool /*enhanced*/)
{
    RecordedObjects objects;
    const POINT points[] = {{1, 1}, {90, 5}, {20, 90}};
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, 100, 100, nullptr);
    ::SelectObject(dc, objects.keep(::CreatePen(PS_DASH, 1, red)));
    ::LineTo(dc, 50, 50);
    ::Ellipse(dc, 30, 30, 60, 60);
    ::Polygon(dc, points, 3);
    ::TextOutW(dc, 5, 5, L"Hi", 2);
    ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
}

using Drawing = void (*)(HDC dc, bool enhanced);

inline PictureBytes recordEnhanced(Drawing draw)
{
    const RECT inch = {0, 0, 2540, 2540};
    const HDC dc = ::CreateEnhMetaFileW(nullptr, nullptr, &inch, L"tests\0picture\0");
    draw(dc, true);
    const HENHMETAFILE file = ::CloseEnhMetaFile(dc);
    PictureBytes bytes(::GetEnhMetaFileBits(file, 0, nullptr));
    ::GetEnhMetaFileBits(file, static_cast<UINT>(bytes.size()), bytes.data());
    ::DeleteEnhMetaFile(file);
    return bytes;
}

/// With a place of one inch in front.
inline PictureBytes recordOld(Drawing draw)
{
    const HDC dc = ::CreateMetaFileW(nullptr);
    draw(dc, false);
    const HMETAFILE file = ::CloseMetaFile(dc);
    PictureBytes records(::GetMetaFileBitsEx(file, 0, nullptr));
    ::GetMetaFileBitsEx(file, static_cast<UINT>(records.size()), records.data());
    ::DeleteMetaFile(file);
    PictureBytes bytes = recipe::WmfBuilder().bytes();
    bytes.resize(recipe::WmfBuilder::PlaceSize);
    bytes.insert(bytes.end(), records.begin(), records.end());
    return bytes;
}
