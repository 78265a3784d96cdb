// An image whose protected operations and information record a test may use.
#pragma once
#include <array>
#include <cstdint>
#include "oxa/images/KxGifImage.h"

class ExposedImage : public CKxGifImage
{
public:
    using CKxGifImage::CKxGifImage;
    using CKxGifImage::CopyInfo;
    using CKxGifImage::Ghost;
    using CKxGifImage::m_Head;
    using CKxGifImage::m_Info;
    using CKxGifImage::m_pAlpha;
    using CKxGifImage::m_pSelection;
};

inline RGBQUAD quad(int red, int green, int blue, int reserved = 0)
{
    return {static_cast<BYTE>(blue), static_cast<BYTE>(green), static_cast<BYTE>(red), static_cast<BYTE>(reserved)};
}

/// 0x00RRGGBB, with the reserved byte in front.
inline std::uint32_t hex(RGBQUAD color)
{
    return static_cast<std::uint32_t>(color.rgbReserved) << 24 | static_cast<std::uint32_t>(color.rgbRed) << 16 |
           static_cast<std::uint32_t>(color.rgbGreen) << 8 | color.rgbBlue;
}
