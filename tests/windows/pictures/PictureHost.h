// A place to draw on, the colours of the test pictures, their bytes, and a window for the controls.
#pragma once

#include <afxwin.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "resource.h"
#include "support/RealInput.h"

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF nearlyGreen = RGB(0, 254, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF yellow = RGB(255, 255, 0);
constexpr COLORREF grey = RGB(90, 100, 110);

using PictureBytes = std::vector<unsigned char>;
using Colors = std::vector<COLORREF>;

/// A bitmap of the screen's depth in a memory context, filled with one colour.
class Canvas : public CDC
{
public:
    explicit Canvas(CSize size = CSize(8, 6), COLORREF paper = grey) : width(size.cx), height(size.cy)
    {
        HDC screen = ::GetDC(nullptr);
        CreateCompatibleDC(nullptr);
        bitmap.Attach(::CreateCompatibleBitmap(screen, width, height));
        ::ReleaseDC(nullptr, screen);
        old = ::SelectObject(m_hDC, bitmap.GetSafeHandle());
        fill(paper);
    }
    ~Canvas() override { ::SelectObject(m_hDC, old); }

    void fill(COLORREF color) { FillSolidRect(0, 0, width, height, color); }
    void set(int x, int y, COLORREF color) { ::SetPixelV(m_hDC, x, y, color); }
    COLORREF at(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    Colors row(int y, int from, int count) const
    {
        Colors colors;
        for (int x = from; x < from + count; ++x)
            colors.push_back(at(x, y));
        return colors;
    }
    /// The pixels that are not of this colour.
    int countOther(COLORREF color) const
    {
        int count = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                count += at(x, y) != color;
        return count;
    }

private:
    int width;
    int height;
    CBitmap bitmap;
    HGDIOBJ old;
};

inline CSize sizeOf(const CBitmap& bitmap)
{
    BITMAP record = {};
    bitmap.GetObject(sizeof record, &record);
    return {record.bmWidth, record.bmHeight};
}

/// One pixel of a bitmap that no context holds.
inline COLORREF pixelOf(HBITMAP bitmap, int x, int y)
{
    HDC dc = ::CreateCompatibleDC(nullptr);
    HGDIOBJ old = ::SelectObject(dc, bitmap);
    const COLORREF color = ::GetPixel(dc, x, y);
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
    return color;
}

inline COLORREF pixelOf(const CBitmap& bitmap, int x, int y)
{
    return pixelOf(static_cast<HBITMAP>(bitmap.GetSafeHandle()), x, y);
}

inline void setPixelOf(const CBitmap& bitmap, int x, int y, COLORREF color)
{
    HDC dc = ::CreateCompatibleDC(nullptr);
    HGDIOBJ old = ::SelectObject(dc, bitmap.GetSafeHandle());
    ::SetPixelV(dc, x, y, color);
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
}

inline PictureBytes resourceBytes(int id)
{
    HMODULE module = ::GetModuleHandleW(nullptr);
    HRSRC found = ::FindResourceW(module, MAKEINTRESOURCE(id), L"BINARY");
    const auto* data = static_cast<const unsigned char*>(::LockResource(::LoadResource(module, found)));
    return PictureBytes(data, data + ::SizeofResource(module, found));
}

/// A file with a full path that is deleted at the end.
class TemporaryFile
{
public:
    explicit TemporaryFile(const wchar_t* name, const PictureBytes* content = nullptr)
    {
        wchar_t folder[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        path = CString(folder) + name;
        ::DeleteFileW(path);
        if (content != nullptr)
        {
            HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
            DWORD written = 0;
            ::WriteFile(file, content->data(), static_cast<DWORD>(content->size()), &written, nullptr);
            ::CloseHandle(file);
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { ::DeleteFileW(path); }

    bool exists() const { return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; }
    PictureBytes content() const
    {
        HANDLE file = ::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return {};
        PictureBytes bytes(::GetFileSize(file, nullptr));
        DWORD read = 0;
        ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
        ::CloseHandle(file);
        return bytes;
    }

    CString path;
};

/// A visible popup of 300 by 200 pixels on which the controls stand; its background is yellow.
class PictureHost : public CWnd
{
public:
    PictureHost()
    {
        brush.CreateSolidBrush(yellow);
        CreateEx(0, AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(brush.GetSafeHandle())), L"pictures",
                 WS_POPUP | WS_VISIBLE, 100, 100, 300, 200, nullptr, nullptr);
        pumpFor(0);
    }
    PictureHost(const PictureHost&) = delete;
    PictureHost& operator=(const PictureHost&) = delete;
    ~PictureHost() override { DestroyWindow(); }

    void repaint() { RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW); }

private:
    CBrush brush;
};

inline COLORREF shownAt(CWnd& window, int x, int y)
{
    const CClientDC dc(&window);
    return ::GetPixel(dc.GetSafeHdc(), x, y);
}
