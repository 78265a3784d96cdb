// Rows and bytes of an image, one after the other.
#include "oxa/images/KxGifImageIterator.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include "oxa/images/KxGifImage.h"

namespace
{
// Counters stop at the ends of their range instead of overflowing.
std::int32_t limited(std::int64_t value)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, std::numeric_limits<std::int32_t>::min(),
                                                              std::numeric_limits<std::int32_t>::max()));
}

std::uintptr_t address(const unsigned char* pointer)
{
    return reinterpret_cast<std::uintptr_t>(pointer);
}
} // namespace

CKxGifImageIterator::CKxGifImageIterator(CKxGifImage* image) : m_image(image)
{
    Reset();
}

std::int64_t CKxGifImageIterator::Stride() const
{
    return m_image ? static_cast<std::int64_t>(m_image->GetEffWidth()) : 0;
}

std::int64_t CKxGifImageIterator::Height() const
{
    return m_image ? static_cast<std::int64_t>(m_image->GetHeight()) : 0;
}

// The pointer may come to lie outside the image: it is an address to move by rows, and looked at before each use.
void CKxGifImageIterator::MovePointer(int rows)
{
    if (m_row)
        m_row = reinterpret_cast<unsigned char*>(address(m_row) + static_cast<std::uintptr_t>(rows * Stride()));
}

// How many bytes of the image's pixels there are from a column of the present row on.
std::size_t CKxGifImageIterator::BytesFrom(std::int64_t column) const
{
    unsigned char* const first = m_image ? m_image->GetBits() : nullptr;
    if (!first || !m_row)
        return 0;
    const auto size = static_cast<std::uint64_t>(Stride() * Height());
    const std::uint64_t offset = address(m_row) - address(first) + static_cast<std::uint64_t>(column);
    return offset < size ? static_cast<std::size_t>(size - offset) : 0;
}

int CKxGifImageIterator::ItOK() const
{
    return m_image && m_image->IsInside(m_x, m_y) ? 1 : 0;
}

void CKxGifImageIterator::Reset()
{
    m_x = 0;
    m_y = 0;
    m_row = m_image ? m_image->GetBits() : nullptr;
}

void CKxGifImageIterator::Upset()
{
    Reset();
    if (!m_image)
        return;
    m_y = limited(Height() - 1);
    MovePointer(m_y);
}

int CKxGifImageIterator::NextRow()
{
    m_y = limited(std::int64_t{m_y} + 1);
    if (m_y >= Height())
        return 0;
    MovePointer(1);
    return 1;
}

int CKxGifImageIterator::PrevRow()
{
    m_y = limited(std::int64_t{m_y} - 1);
    if (m_y < 0)
        return 0;
    MovePointer(-1);
    return 1;
}

void CKxGifImageIterator::SetY(int y)
{
    if (!m_image || y < 0 || y > Height()) // the height itself is let in on purpose
        return;
    m_y = y;
    m_row = m_image->GetBits();
    MovePointer(y);
}

void CKxGifImageIterator::SetSteps(int x, int y)
{
    m_stepX = x;
    m_stepY = y;
}

void CKxGifImageIterator::GetSteps(int* x, int* y) const
{
    if (x)
        *x = m_stepX;
    if (y)
        *y = m_stepY;
}

void CKxGifImageIterator::SetRow(unsigned char* src, int n)
{
    const std::int64_t length = n < 0 ? Stride() : std::min<std::int64_t>(n, Stride());
    const std::size_t room = BytesFrom(0);
    if (src && room != 0 && length >= 1)
        std::memmove(m_row, src, std::min(room, static_cast<std::size_t>(length)));
}

void CKxGifImageIterator::GetRow(unsigned char* dst, int n) const
{
    if (!m_row || !dst || n < 1)
        return;
    const auto length = static_cast<std::size_t>(n);
    const std::size_t there = std::min(length, BytesFrom(0));
    if (there != 0)
        std::memmove(dst, m_row, there);
    std::memset(dst + there, 0, length - there);
}

unsigned char* CKxGifImageIterator::GetRow() const
{
    // One row past the pixels is still a place that SetY may lead to.
    return BytesFrom(0) != 0 || BytesFrom(-1) != 0 ? m_row : nullptr;
}

unsigned char* CKxGifImageIterator::GetRow(int y)
{
    SetY(y);
    return GetRow();
}

unsigned char CKxGifImageIterator::GetByte() const
{
    return BytesFrom(m_x) != 0 ? m_row[m_x] : 0;
}

void CKxGifImageIterator::SetByte(unsigned char value)
{
    if (BytesFrom(m_x) != 0)
        m_row[m_x] = value;
}

int CKxGifImageIterator::NextByte()
{
    m_x = limited(std::int64_t{m_x} + 1);
    if (m_x < Stride())
        return 1;
    m_y = limited(std::int64_t{m_y} + 1);
    if (m_y >= Height())
        return 0;
    MovePointer(1);
    m_x = 0;
    return 1;
}

int CKxGifImageIterator::PrevByte()
{
    m_x = limited(std::int64_t{m_x} - 1);
    if (m_x >= 0)
        return 1;
    m_y = limited(std::int64_t{m_y} - 1);
    if (m_y < 0)
        return 0;
    MovePointer(-1);
    m_x = 0; // not the end of the row: meant
    return 1;
}

int CKxGifImageIterator::NextStep()
{
    m_x = limited(std::int64_t{m_x} + m_stepX);
    if (m_x < Stride())
        return 1;
    m_y = limited(std::int64_t{m_y} + m_stepY);
    if (m_y >= Height())
        return 0;
    MovePointer(1); // one row, whatever the step of y is: meant
    m_x = 0;
    return 1;
}

int CKxGifImageIterator::PrevStep()
{
    m_x = limited(std::int64_t{m_x} - m_stepX);
    if (m_x >= 0)
        return 1;
    m_y = limited(std::int64_t{m_y} - m_stepY);
    if (m_y < 0 || m_y >= Height())
        return 0;
    MovePointer(-1); // one row, whatever the step of y is: meant
    m_x = 0;
    return 1;
}

// The bottom pixel of a column of whole bytes, or null.
unsigned char* CKxGifImageIterator::Column(unsigned long x, std::size_t& pixelBytes) const
{
    unsigned char* const first = m_image ? m_image->GetBits() : nullptr;
    if (!first || m_image->GetBpp() < 8 || x >= m_image->GetWidth())
        return nullptr;
    pixelBytes = m_image->GetBpp() / 8U;
    return first + x * pixelBytes;
}

int CKxGifImageIterator::GetCol(unsigned char* dst, unsigned long x) const
{
    std::size_t pixelBytes = 0;
    const unsigned char* pixel = Column(x, pixelBytes);
    if (!dst || !pixel)
        return 0;
    for (std::int64_t y = 0; y < Height(); ++y)
        std::memcpy(dst + static_cast<std::size_t>(y) * pixelBytes, pixel + y * Stride(), pixelBytes);
    return 1;
}

int CKxGifImageIterator::SetCol(unsigned char* src, unsigned long x)
{
    std::size_t pixelBytes = 0;
    unsigned char* pixel = Column(x, pixelBytes);
    if (!src || !pixel)
        return 0;
    for (std::int64_t y = 0; y < Height(); ++y)
        std::memcpy(pixel + y * Stride(), src + static_cast<std::size_t>(y) * pixelBytes, pixelBytes);
    return 1;
}
