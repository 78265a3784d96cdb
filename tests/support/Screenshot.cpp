// Copies window contents from the windows' own device contexts and encodes them with the platform's PNG codec.
#include "support/Screenshot.h"
#include <wincodec.h>
#include <algorithm>
#include <vector>

namespace
{
template <class T> class ComPointer
{
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (m_object)
            m_object->Release();
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    T** out() { return &m_object; }
    T* operator->() const { return m_object; }
    T* get() const { return m_object; }

private:
    T* m_object = nullptr;
};

struct ComScope
{
    ComScope() { started = SUCCEEDED(CoInitialize(nullptr)); }
    ~ComScope()
    {
        if (started)
            CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;
    bool started;
};

bool encode(HBITMAP bitmap, const wchar_t* file)
{
    ComPointer<IWICImagingFactory> factory;
    ComPointer<IWICBitmap> source;
    ComPointer<IWICStream> stream;
    ComPointer<IWICBitmapEncoder> encoder;
    ComPointer<IWICBitmapFrameEncode> frame;
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    UINT width = 0, height = 0;
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                      reinterpret_cast<void**>(factory.out()))) &&
           SUCCEEDED(factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, source.out())) &&
           SUCCEEDED(source->GetSize(&width, &height)) && SUCCEEDED(factory->CreateStream(stream.out())) &&
           SUCCEEDED(stream->InitializeFromFilename(file, GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.out())) &&
           SUCCEEDED(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(frame.out(), nullptr)) && SUCCEEDED(frame->Initialize(nullptr)) &&
           SUCCEEDED(frame->SetSize(width, height)) && SUCCEEDED(frame->SetPixelFormat(&format)) &&
           SUCCEEDED(frame->WriteSource(source.get(), nullptr)) && SUCCEEDED(frame->Commit()) &&
           SUCCEEDED(encoder->Commit());
}

/// A 32-bit picture in memory, with a device context to draw into it.
class Canvas
{
public:
    Canvas(int width, int height)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_dc = CreateCompatibleDC(nullptr);
        m_old = SelectObject(m_dc, m_bitmap);
    }
    ~Canvas()
    {
        SelectObject(m_dc, m_old);
        DeleteDC(m_dc);
        DeleteObject(m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    bool copy(HWND window, const RECT& where, POINT origin)
    {
        UpdateWindow(window);
        HDC source = GetWindowDC(window);
        const bool ok = BitBlt(m_dc, where.left - origin.x, where.top - origin.y, where.right - where.left,
                               where.bottom - where.top, source, 0, 0, SRCCOPY) != FALSE;
        ReleaseDC(window, source);
        return ok;
    }
    bool save(const wchar_t* file)
    {
        SelectObject(m_dc, m_old);
        const bool ok = saveBitmapPng(m_bitmap, file);
        SelectObject(m_dc, m_bitmap);
        return ok;
    }
    void clipTo(HRGN region) { SelectClipRgn(m_dc, region); }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

struct Popups
{
    HWND owner;
    std::vector<HWND> found;
};

// A window with a caption counts when it is a dialog of the owner's.
std::vector<HWND> visiblePopups(HWND owner)
{
    Popups popups = {owner, {}};
    EnumWindows(
        [](HWND window, LPARAM p) -> BOOL
        {
            auto& all = *reinterpret_cast<Popups*>(p);
            const bool captioned = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
            if (IsWindowVisible(window) && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() &&
                window != all.owner && (!captioned || GetWindow(window, GW_OWNER) == all.owner))
                all.found.push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&popups));
    std::reverse(popups.found.begin(), popups.found.end()); // the topmost is painted last
    return popups.found;
}
} // namespace

bool saveBitmapPng(HBITMAP bitmap, const wchar_t* file)
{
    const ComScope com;
    return encode(bitmap, file);
}

bool saveWindowPng(HWND window, const wchar_t* file)
{
    RECT r = {};
    GetWindowRect(window, &r);
    Canvas canvas(r.right - r.left, r.bottom - r.top);
    return canvas.copy(window, r, {r.left, r.top}) && canvas.save(file);
}

bool saveWindowWithPopupsPng(HWND window, const wchar_t* file)
{
    RECT all = {};
    GetWindowRect(window, &all);
    const RECT own = all;
    const std::vector<HWND> popups = visiblePopups(window);
    for (HWND popup : popups)
    {
        RECT r = {};
        GetWindowRect(popup, &r);
        const RECT before = all;
        UnionRect(&all, &before, &r);
    }
    const POINT origin = {all.left, all.top};
    Canvas canvas(all.right - all.left, all.bottom - all.top);
    bool ok = canvas.copy(window, own, origin);
    for (HWND popup : popups)
    {
        RECT r = {};
        GetWindowRect(popup, &r);
        HRGN shape = CreateRectRgn(0, 0, 0, 0);
        const bool shaped = GetWindowRgn(popup, shape) != ERROR;
        OffsetRgn(shape, r.left - origin.x, r.top - origin.y);
        canvas.clipTo(shaped ? shape : nullptr);
        ok = canvas.copy(popup, r, origin) && ok;
        canvas.clipTo(nullptr);
        DeleteObject(shape);
    }
    return ok && canvas.save(file);
}
