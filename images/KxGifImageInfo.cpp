// Accessors of the information record that do more than read or write a field, and the comment.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace
{
constexpr std::size_t commentLength = 255;

std::int32_t plausibleDpi(long dpi)
{
    constexpr long largest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(dpi < 1 ? 96 : std::min(dpi, largest));
}

LONG pixelsPerMetre(std::int32_t dpi)
{
    constexpr double largest = std::numeric_limits<LONG>::max();
    return static_cast<LONG>(std::min(std::floor(dpi * 10000.0 / 254.0 + 0.5), largest));
}
} // namespace

void CKxGifImage::SetXDPI(long dpi)
{
    m_Info.nXDPI = plausibleDpi(dpi);
    m_Head.biXPelsPerMeter = pixelsPerMetre(m_Info.nXDPI);
}

void CKxGifImage::SetYDPI(long dpi)
{
    m_Info.nYDPI = plausibleDpi(dpi);
    m_Head.biYPelsPerMeter = pixelsPerMetre(m_Info.nYDPI);
}

void CKxGifImage::SetFlags(unsigned long flags, bool bLockReserved)
{
    m_Info.nFlags = static_cast<std::uint32_t>(bLockReserved ? flags & 0xFFFF : flags);
}

void CKxGifImage::GetOffset(long* x, long* y) const
{
    if (x)
        *x = m_Info.nXOffset;
    if (y)
        *y = m_Info.nYOffset;
}

void CKxGifImage::SetOffset(long x, long y)
{
    m_Info.nXOffset = static_cast<std::int32_t>(x);
    m_Info.nYOffset = static_cast<std::int32_t>(y);
}

unsigned long CKxGifImage::GetProgress() const
{
    return m_Info.nProgress;
}

void CKxGifImage::SetEscape(long escape)
{
    m_Info.nEscape = static_cast<std::int32_t>(escape);
}

long CKxGifImage::GetEscape() const
{
    return m_Info.nEscape;
}

void CKxGifImage::SetComment(const char* text)
{
    if (!text)
        return;
    const std::size_t length = strnlen(text, commentLength);
    std::memset(m_comment, 0, sizeof m_comment);
    std::memcpy(m_comment, text, length);
}

void CKxGifImage::GetComment(char* text) const
{
    if (text)
        std::memcpy(text, m_comment, commentLength);
}
