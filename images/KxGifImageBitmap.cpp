// To and from the platform's bitmaps.
#include <afxwin.h>

#include <algorithm>
#include <cstring>
#include "oxa/images/KxGifImage.h"

namespace
{
/// A header with room for every palette.
struct BitmapInfo
{
    BITMAPINFOHEADER header;
    RGBQUAD colors[256];

    BitmapInfo(const BITMAPINFOHEADER& head, const RGBQUAD* palette) : header(head), colors{}
    {
        if (palette)
            std::copy_n(palette, std::min<DWORD>(head.biClrUsed, 256), colors);
    }
    operator BITMAPINFO*() { return reinterpret_cast<BITMAPINFO*>(this); }
};

/// The device context of the whole screen, perhaps with a palette in it.
class ScreenContext
{
public:
    explicit ScreenContext(HPALETTE palette) : m_context(GetDC(nullptr))
    {
        if (!palette)
            return;
        m_previous = SelectPalette(m_context, palette, FALSE);
        RealizePalette(m_context);
    }
    ~ScreenContext()
    {
        if (m_previous)
            SelectPalette(m_context, m_previous, FALSE);
        ReleaseDC(nullptr, m_context);
    }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;
    operator HDC() const { return m_context; }

private:
    HDC m_context;
    HPALETTE m_previous = nullptr;
};
} // namespace

HBITMAP CKxGifImage::MakeBitmap(HDC hdc)
{
    if (!m_pDib)
        return nullptr;
    BitmapInfo info(m_Head, GetPalette());
    if (hdc)
        return CreateDIBitmap(hdc, &info.header, CBM_INIT, m_Info.pImage, info, DIB_RGB_COLORS);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(memory, info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap && bits)
        std::memcpy(bits, m_Info.pImage, m_Head.biSizeImage);
    return bitmap;
}

bool CKxGifImage::CreateFromHBITMAP(HBITMAP hbmp, HPALETTE hpal)
{
    BITMAP bitmap{};
    if (!Destroy() || !hbmp || GetObjectW(hbmp, sizeof bitmap, &bitmap) == 0 || bitmap.bmWidth <= 0 ||
        bitmap.bmHeight <= 0)
        return false;
    if (!Create(static_cast<unsigned long>(bitmap.bmWidth), static_cast<unsigned long>(bitmap.bmHeight),
                bitmap.bmBitsPixel))
        return false;
    const ScreenContext screen(hpal);
    BitmapInfo info(m_Head, nullptr);
    const int rows =
        GetDIBits(screen, hbmp, 0, static_cast<UINT>(bitmap.bmHeight), m_Info.pImage, info, DIB_RGB_COLORS);
    SetPalette(info.colors, 256);
    return rows > 0;
}
