// DecreaseBpp: fewer bits per pixel, on another palette.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <new>
#include "ColorReduction.h"

PixelBlock CKxGifImage::Pixels() const
{
    const DWORD important = m_Head.biClrImportant;
    return {m_Info.pImage,
            m_Info.nEffWidth,
            GetWidth(),
            GetHeight(),
            m_Head.biBitCount,
            GetPalette(),
            important == 0 ? m_Head.biClrUsed : std::min(important, m_Head.biClrUsed)};
}

bool CKxGifImage::DecreaseBpp(unsigned long nbit, bool bErrorDiffusion, RGBQUAD* palette, unsigned long clrImportant)
{
    if (!m_pDib || nbit > m_Head.biBitCount)
        return false;
    if (nbit == m_Head.biBitCount &&
        (clrImportant == 0 || (m_Head.biClrImportant != 0 && m_Head.biClrImportant < clrImportant)))
        return true;
    CKxGifImage temp;
    temp.CopyInfo(*this);
    temp.Create(GetWidth(), GetHeight(), nbit);
    if (!temp.IsValid())
        return false;
    temp.SetClrImportant(clrImportant);
    if (!temp.StartReduction(palette) || !ReduceTo(temp, bErrorDiffusion))
        return false;
    if (m_Head.biBitCount == 1)
        temp.SetBlackAndWhite();
    return Transfer(temp);
}

// The palette of a reduced image. False at 24 bits, which has none.
bool CKxGifImage::StartReduction(RGBQUAD* palette)
{
    if (!IsIndexed())
        return false;
    if (palette)
        SetPalette(palette, GetNumColors());
    else if (m_Head.biBitCount == 1)
        SetBlackAndWhite();
    else
        SetStdPalette();
    return true;
}

void CKxGifImage::SetBlackAndWhite()
{
    SetPaletteColor(0, 0, 0, 0);
    SetPaletteColor(1, 255, 255, 255);
}

// False, with nothing done, without memory.
bool CKxGifImage::ReduceTo(CKxGifImage& target, bool diffuse)
try
{
    ColorReduction reduction(Pixels(), m_Info, target.Pixels(), target.m_Info);
    const std::size_t height = GetHeight();
    for (std::size_t y = 0; y < height && GetEscape() == 0; ++y)
    {
        m_Info.nProgress = static_cast<std::uint32_t>(y * 100 / height);
        if (diffuse)
            reduction.DiffuseRow(y);
        else
            reduction.ReduceRow(y);
    }
    reduction.Remember(target.m_Info);
    return true;
}
catch (const std::bad_alloc&)
{
    return false;
}
