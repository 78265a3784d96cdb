// Colour reduction pixel by pixel, through the image's own pixel operations: what the fast one is compared with.
#pragma once
#include "oxa/images/KxGifImage.h"

class PlainReduction : public CKxGifImage
{
public:
    using CKxGifImage::CKxGifImage;

    bool DecreaseBpp(unsigned long nbit, bool diffuse, RGBQUAD* palette, unsigned long important)
    {
        if (!IsValid() || nbit > GetBpp())
            return false;
        if (nbit == GetBpp() && (important == 0 || (GetClrImportant() != 0 && GetClrImportant() < important)))
            return true;
        PlainReduction temp;
        temp.CopyInfo(*this);
        temp.Create(GetWidth(), GetHeight(), nbit);
        if (important != 0)
            temp.SetClrImportant(important);
        if (!temp.IsValid() || !temp.Colour(palette))
            return false;
        for (long y = 0; y < Rows(); ++y)
        {
            if (GetEscape() != 0)
                break;
            m_Info.nProgress = static_cast<std::uint32_t>(y * 100 / Rows());
            for (long x = 0; x < Columns(); ++x)
            {
                const RGBQUAD color = GetPixelColor(x, y);
                temp.SetPixelColor(x, y, color);
                if (diffuse)
                    Spread(x, y, color, temp.GetPixelColor(x, y));
            }
        }
        if (GetBpp() == 1)
            temp.BlackAndWhite();
        return Transfer(temp);
    }

private:
    long Rows() const { return static_cast<long>(GetHeight()); }
    long Columns() const { return static_cast<long>(GetWidth()); }
    void BlackAndWhite()
    {
        SetPaletteColor(0, 0, 0, 0);
        SetPaletteColor(1, 255, 255, 255);
    }
    bool Colour(RGBQUAD* palette)
    {
        if (GetBpp() == 24)
            return false;
        if (palette)
            SetPalette(palette, GetNumColors());
        else if (GetBpp() == 1)
            BlackAndWhite();
        else
            SetStdPalette();
        return true;
    }
    void Spread(long x, long y, RGBQUAD wanted, RGBQUAD got)
    {
        const int error[3] = {wanted.rgbBlue - got.rgbBlue, wanted.rgbGreen - got.rgbGreen, wanted.rgbRed - got.rgbRed};
        Add(x + 1, y, error, 7);
        Add(x - 1, y + 1, error, 2);
        Add(x, y + 1, error, 4);
        Add(x + 1, y + 1, error, 1);
    }
    void Add(long x, long y, const int (&error)[3], int weight)
    {
        const auto moved = [weight](int value, int by)
        {
            const int sum = value + by * weight / 16;
            return static_cast<unsigned char>(sum < 0 ? 0 : sum > 255 ? 255 : sum);
        };
        const RGBQUAD old = GetPixelColor(x, y);
        SetPixelColor(
            x, y, RGBQUAD{moved(old.rgbBlue, error[0]), moved(old.rgbGreen, error[1]), moved(old.rgbRed, error[2]), 0});
    }
};
