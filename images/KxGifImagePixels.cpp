// Single pixels, and the nearest palette entry of a colour.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cstring>

namespace
{
int square(int value)
{
    return value * value;
}

bool sameWord(RGBQUAD a, RGBQUAD b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}
} // namespace

unsigned char CKxGifImage::GetPixelIndex(long x, long y) const
{
    if (!GetPalette())
        return 0;
    if (!IsInside(x, y))
        return m_Info.nTransIndex == -1 ? *m_Info.pImage : static_cast<unsigned char>(m_Info.nTransIndex);
    const unsigned char* row = Row(y);
    switch (m_Head.biBitCount)
    {
    case 8:
        return row[x];
    case 4:
        return x % 2 == 0 ? row[x / 2] >> 4 : row[x / 2] & 15;
    default:
        return row[x / 8] >> (7 - x % 8) & 1;
    }
}

RGBQUAD CKxGifImage::GetPixelColor(long x, long y, bool /*bGetAlpha*/) const
{
    if (!m_pDib || !IsInside(x, y))
    {
        if (m_Info.nTransIndex != -1)
            return m_Head.biBitCount == 24 ? m_Info.TransColor
                                           : GetPaletteColor(static_cast<unsigned char>(m_Info.nTransIndex));
        if (!m_pDib)
            return m_Info.TransColor;
        x = 0;
        y = 0;
    }
    RGBQUAD color{};
    if (IsIndexed())
    {
        color = GetPaletteColor(GetPixelIndex(x, y));
        color.rgbReserved = 0;
    }
    else
        std::memcpy(&color, Row(y) + x * 3, 3);
    return color;
}

unsigned char CKxGifImage::GetPixelGray(long x, long y) const
{
    const RGBQUAD color = GetPixelColor(x, y);
    return static_cast<unsigned char>((color.rgbBlue * 117 + color.rgbGreen * 601 + color.rgbRed * 306) >> 10);
}

bool CKxGifImage::IsTransparent(long x, long y) const
{
    if (!m_pDib || m_Info.nTransIndex < 0)
        return false;
    if (IsIndexed())
        return GetPixelIndex(x, y) == m_Info.nTransIndex;
    return sameWord(GetPixelColor(x, y), m_Info.TransColor);
}

void CKxGifImage::SetPixelIndex(long x, long y, unsigned char index)
{
    if (!GetPalette() || !IsInside(x, y))
        return;
    unsigned char* row = Row(y);
    if (m_Head.biBitCount == 8)
    {
        row[x] = index;
        return;
    }
    const int bits = m_Head.biBitCount;
    const long perByte = 8 / bits;
    const int shift = static_cast<int>(perByte - 1 - x % perByte) * bits;
    const int mask = (1 << bits) - 1;
    unsigned char& cell = row[x / perByte];
    cell = static_cast<unsigned char>((cell & ~(mask << shift)) | ((index & mask) << shift));
}

void CKxGifImage::SetPixelColor(long x, long y, unsigned long colorref)
{
    SetPixelColor(x, y, RGBtoRGBQUAD(colorref));
}

void CKxGifImage::SetPixelColor(long x, long y, RGBQUAD color, bool /*bSetAlpha*/)
{
    if (!m_pDib || !IsInside(x, y))
        return;
    if (IsIndexed())
        SetPixelIndex(x, y, GetNearestIndex(color));
    else
        std::memcpy(Row(y) + x * 3, &color, 3);
}

unsigned char CKxGifImage::GetNearestIndex(RGBQUAD color)
{
    const RGBQUAD* palette = GetPalette();
    if (!palette)
        return 0;
    if (m_Info.bLastValid && sameWord(m_Info.LastColor, color))
        return m_Info.nLastIndex;
    m_Info.LastColor = color;
    m_Info.bLastValid = true;
    const DWORD important = m_Head.biClrImportant;
    const DWORD count = important == 0 ? m_Head.biClrUsed : std::min(important, m_Head.biClrUsed);
    int nearest = 200000; // above the largest distance, 195,075
    for (DWORD i = 0; i < count && nearest != 0; ++i)
    {
        const int distance = square(palette[i].rgbBlue - color.rgbBlue) + square(palette[i].rgbGreen - color.rgbGreen) +
                             square(palette[i].rgbRed - color.rgbRed);
        if (distance < nearest)
        {
            nearest = distance;
            m_Info.nLastIndex = static_cast<std::uint8_t>(i);
        }
    }
    return m_Info.nLastIndex;
}
