// Palette entries, the standard tables, transparency.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include "StandardPalettes.h"

namespace
{
unsigned char grayOf(unsigned long index, unsigned long colors)
{
    return static_cast<unsigned char>(index * (255 / (colors - 1)));
}

unsigned char blended(unsigned char from, unsigned char to, std::int64_t percent)
{
    return static_cast<unsigned char>((from * (100 - percent) + to * percent) / 100);
}
} // namespace

// The table follows the 40 bytes of the header, whatever size the header itself claims.
RGBQUAD* CKxGifImage::GetPalette() const
{
    if (!m_pDib || m_Head.biClrUsed == 0)
        return nullptr;
    return reinterpret_cast<RGBQUAD*>(m_pDib + sizeof(BITMAPINFOHEADER));
}

RGBQUAD CKxGifImage::GetPaletteColor(unsigned char i) const
{
    const RGBQUAD* palette = GetPalette();
    return palette && i < m_Head.biClrUsed ? palette[i] : RGBQUAD{};
}

bool CKxGifImage::GetPaletteColor(unsigned char i, unsigned char* r, unsigned char* g, unsigned char* b) const
{
    const RGBQUAD* palette = GetPalette();
    if (!palette)
        return false;
    // Not tested against the palette: behind its end stand the pixels. Behind the block stands nothing.
    const bool inBlock = sizeof(BITMAPINFOHEADER) + (i + std::size_t{1}) * sizeof(RGBQUAD) <= m_pDib.Size();
    const RGBQUAD color = inBlock ? palette[i] : RGBQUAD{};
    if (r)
        *r = color.rgbRed;
    if (g)
        *g = color.rgbGreen;
    if (b)
        *b = color.rgbBlue;
    return true;
}

void CKxGifImage::SetPaletteColor(unsigned char i, RGBQUAD color)
{
    RGBQUAD* palette = GetPalette();
    if (!palette || i >= m_Head.biClrUsed)
        return;
    palette[i] = color;
    ForgetLastColor();
}

void CKxGifImage::SetPaletteColor(unsigned char i, unsigned char r, unsigned char g, unsigned char b,
                                  unsigned char alpha)
{
    SetPaletteColor(i, RGBQUAD{b, g, r, alpha});
}

void CKxGifImage::SetPaletteColor(unsigned char i, unsigned long colorref)
{
    SetPaletteColor(i, RGBtoRGBQUAD(colorref));
}

void CKxGifImage::SetPalette(unsigned long n, unsigned char* r, unsigned char* g, unsigned char* b)
{
    RGBQUAD* palette = GetPalette();
    if (!palette || !r)
        return;
    if (!g)
        g = r;
    if (!b)
        b = g;
    n = std::min<unsigned long>(n, m_Head.biClrUsed);
    for (unsigned long i = 0; i < n; ++i)
        palette[i] = {b[i], g[i], r[i], palette[i].rgbReserved};
    ForgetLastColor();
}

void CKxGifImage::SetPalette(rgb_color* colors, unsigned long n)
{
    RGBQUAD* palette = GetPalette();
    if (!palette || !colors)
        return;
    n = std::min<unsigned long>(n, m_Head.biClrUsed);
    for (unsigned long i = 0; i < n; ++i)
        palette[i] = {colors[i].b, colors[i].g, colors[i].r, palette[i].rgbReserved};
    ForgetLastColor();
}

void CKxGifImage::SetPalette(RGBQUAD* colors, unsigned long n)
{
    RGBQUAD* palette = GetPalette();
    if (!palette || !colors)
        return;
    std::memmove(palette, colors, std::min<unsigned long>(n, m_Head.biClrUsed) * sizeof(RGBQUAD));
    ForgetLastColor();
}

void CKxGifImage::SetGrayPalette()
{
    RGBQUAD* palette = GetPalette();
    if (!palette)
        return;
    for (unsigned long i = 0; i < m_Head.biClrUsed; ++i)
    {
        const unsigned char gray = grayOf(i, m_Head.biClrUsed);
        palette[i] = {gray, gray, gray, palette[i].rgbReserved};
    }
    ForgetLastColor();
}

void CKxGifImage::SetStdPalette()
{
    RGBQUAD* palette = GetPalette();
    if (!palette)
        return;
    if (m_Head.biBitCount == 4)
        std::ranges::copy(StandardPalettes::Sixteen(), palette);
    else if (m_Head.biBitCount == 8)
        std::ranges::copy(StandardPalettes::TwoHundredFiftySix(), palette);
    else
        return;
    ForgetLastColor();
}

void CKxGifImage::BlendPalette(unsigned long colorref, long percent)
{
    RGBQUAD* palette = GetPalette();
    if (!palette)
        return;
    // No lower limit: meant.
    const std::int64_t share = std::clamp<std::int64_t>(percent, std::numeric_limits<std::int32_t>::min(), 100);
    const RGBQUAD target = RGBtoRGBQUAD(colorref);
    for (unsigned long i = 0; i < m_Head.biClrUsed; ++i)
    {
        RGBQUAD& entry = palette[i];
        entry.rgbBlue = blended(entry.rgbBlue, target.rgbBlue, share);
        entry.rgbGreen = blended(entry.rgbGreen, target.rgbGreen, share);
        entry.rgbRed = blended(entry.rgbRed, target.rgbRed, share);
    }
    ForgetLastColor();
}

bool CKxGifImage::IsGrayScale() const
{
    const RGBQUAD* palette = GetPalette();
    if (!palette)
        return false;
    for (unsigned long i = 0; i < m_Head.biClrUsed; ++i)
        if (palette[i].rgbBlue != i || palette[i].rgbGreen != i || palette[i].rgbRed != i)
            return false;
    return true;
}

void CKxGifImage::SwapIndex(unsigned char a, unsigned char b)
{
    if (!GetPalette())
        return;
    const RGBQUAD colorA = GetPaletteColor(a);
    const RGBQUAD colorB = GetPaletteColor(b);
    SetPaletteColor(a, colorB);
    SetPaletteColor(b, colorA);
    // The column behind the last one takes part, and is refused by SetPixelIndex.
    for (long y = 0; y < m_Head.biHeight; ++y)
    {
        for (long x = 0; x <= m_Head.biWidth; ++x)
        {
            const unsigned char index = GetPixelIndex(x, y);
            if (index == a)
                SetPixelIndex(x, y, b);
            else if (index == b)
                SetPixelIndex(x, y, a);
        }
    }
}

bool CKxGifImage::IsSamePalette(CKxGifImage& other, bool bCheckAlpha) const
{
    const RGBQUAD* ours = GetPalette();
    const RGBQUAD* theirs = other.GetPalette();
    if (!ours || !theirs || m_Head.biClrUsed != other.m_Head.biClrUsed)
        return false;
    for (unsigned long i = 0; i < m_Head.biClrUsed; ++i)
        if (ours[i].rgbRed != theirs[i].rgbRed || ours[i].rgbBlue != theirs[i].rgbBlue ||
            ours[i].rgbGreen != theirs[i].rgbGreen || (bCheckAlpha && ours[i].rgbReserved != theirs[i].rgbReserved))
            return false;
    return true;
}

// Keeps what GetNearestIndex remembers: meant.
void CKxGifImage::SetClrImportant(unsigned long n)
{
    if (n == 0 || n > 256)
        m_Head.biClrImportant = 0;
    else if (m_Head.biBitCount == 1)
        m_Head.biClrImportant = static_cast<DWORD>(std::min(n, 2UL));
    else if (m_Head.biBitCount == 4)
        m_Head.biClrImportant = static_cast<DWORD>(std::min(n, 16UL));
    else if (m_Head.biBitCount == 8)
        m_Head.biClrImportant = static_cast<DWORD>(n);
}

void CKxGifImage::SetTransColor(RGBQUAD color)
{
    color.rgbReserved = 0;
    m_Info.TransColor = color;
}

RGBQUAD CKxGifImage::GetTransColor() const
{
    if (m_Head.biBitCount < 24 && m_Info.nTransIndex != -1)
        return GetPaletteColor(static_cast<unsigned char>(m_Info.nTransIndex));
    return m_Info.TransColor;
}

RGBQUAD CKxGifImage::RGBtoRGBQUAD(unsigned long colorref)
{
    return {static_cast<BYTE>(colorref >> 16), static_cast<BYTE>(colorref >> 8), static_cast<BYTE>(colorref), 0};
}

unsigned long CKxGifImage::RGBQUADtoRGB(RGBQUAD color)
{
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}
