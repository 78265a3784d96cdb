// Paints images and palettes.
#include "PictureViews.h"
#include "oxa/images/KxGifImage.h"
#include <algorithm>

CRect fitInto(const CRect& room, CSize size)
{
    if (size.cx <= 0 || size.cy <= 0 || room.IsRectEmpty())
        return CRect(room.TopLeft(), CSize(0, 0));
    const double scale =
        std::min({2.0, static_cast<double>(room.Width()) / size.cx, static_cast<double>(room.Height()) / size.cy});
    const int width = std::clamp(static_cast<int>(size.cx * scale), 1, room.Width());
    const int height = std::clamp(static_cast<int>(size.cy * scale), 1, room.Height());
    return CRect(CPoint(room.left + (room.Width() - width) / 2, room.top + (room.Height() - height) / 2),
                 CSize(width, height));
}

BEGIN_MESSAGE_MAP(CGifView, CStatic)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CGifView::show(CKxGifImage* image)
{
    m_image = image;
    Invalidate();
}

void CGifView::OnPaint()
{
    CPaintDC dc(this);
    if (!m_image || !m_image->IsValid())
        return;
    CRect client;
    GetClientRect(&client);
    dc.SetStretchBltMode(HALFTONE);
    StretchDIBits(dc, 0, 0, client.Width(), client.Height(), 0, 0, static_cast<int>(m_image->GetWidth()),
                  static_cast<int>(m_image->GetHeight()), m_image->GetBits(),
                  static_cast<const BITMAPINFO*>(m_image->GetDIB()), DIB_RGB_COLORS, SRCCOPY);
}

BEGIN_MESSAGE_MAP(CPaletteGrid, CStatic)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{
constexpr unsigned long columns = 16;
constexpr int largestCell = 16; // pixels
} // namespace

void CPaletteGrid::show(const CKxGifImage* image)
{
    m_count = image && image->GetPalette() ? std::min(image->GetNumColors(), 256UL) : 0;
    for (unsigned long i = 0; i < m_count; ++i)
        m_colors[i] = image->GetPaletteColor(static_cast<unsigned char>(i));
    m_transparent = image ? image->GetTransIndex() : -1;
    Invalidate();
}

CRect CPaletteGrid::cell(const CRect& client, unsigned long index) const
{
    const int rows = static_cast<int>((m_count + columns - 1) / columns);
    const int width = client.Width() / static_cast<int>(columns),
              height = std::min(client.Height() / rows, largestCell);
    const int column = static_cast<int>(index % columns), row = static_cast<int>(index / columns);
    return CRect(CPoint(client.left + column * width, client.top + row * height), CSize(width - 1, height - 1));
}

void CPaletteGrid::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, GetSysColor(COLOR_BTNFACE));
    for (unsigned long i = 0; i < m_count; ++i)
    {
        const RGBQUAD& color = m_colors[i];
        const CRect r = cell(client, i);
        dc.FillSolidRect(&r, RGB(color.rgbRed, color.rgbGreen, color.rgbBlue));
        if (static_cast<long>(i) != m_transparent)
            continue;
        const bool dark = color.rgbRed * 3 + color.rgbGreen * 6 + color.rgbBlue < 1280;
        const CPoint middle = r.CenterPoint();
        dc.FillSolidRect(middle.x - 2, middle.y - 1, 4, 3, dark ? RGB(255, 255, 255) : RGB(0, 0, 0));
    }
}
