// The stream in memory: positions, growth, and whose the buffer is.
#include "oxa/images/KxMemFile.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>

namespace
{
// Positions are signed 32 bit numbers, and no stream is longer than the last of them.
constexpr std::int64_t lastPosition = std::numeric_limits<std::int32_t>::max();

// The product of a record's size and count is taken in 32 bits, on purpose.
std::uint32_t recordBytes(size_t size, size_t count)
{
    return static_cast<std::uint32_t>(size) * static_cast<std::uint32_t>(count);
}
} // namespace

CKxMemFile::CKxMemFile(unsigned char* pBuffer, unsigned long size)
    : m_nLogicalSize(
          static_cast<std::uint32_t>(std::min<std::uint64_t>(size, static_cast<std::uint64_t>(lastPosition)))),
      m_bOwnsData(pBuffer == nullptr), m_nPosition(0), m_nCapacity(m_nLogicalSize)
{
    m_pData = SharedBytes::Borrow(pBuffer, m_nLogicalSize);
}

CKxMemFile::CKxMemFile(const CKxMemFile& other) = default;

CKxMemFile& CKxMemFile::operator=(const CKxMemFile& other) = default;

CKxMemFile::~CKxMemFile()
{
    CKxMemFile::Close();
}

bool CKxMemFile::Open()
{
    if (m_pData)
        return false;
    m_nCapacity = 0; // the one byte below does not count
    m_nLogicalSize = 0;
    m_nPosition = 0;
    m_pData = SharedBytes::Allocate(1);
    m_bOwnsData = true;
    return m_pData != nullptr;
}

unsigned char* CKxMemFile::GetBuffer(bool bDetach)
{
    if (bDetach && m_bOwnsData)
        m_pData.GiveAway();
    else if (!bDetach && !m_bOwnsData)
        m_pData.TakeBack();
    m_bOwnsData = !bDetach;
    return m_pData;
}

bool CKxMemFile::Close()
{
    if (m_pData && m_bOwnsData)
    {
        m_pData.Reset();
        m_nLogicalSize = 0;
    }
    return true;
}

size_t CKxMemFile::Read(void* buffer, size_t size, size_t count)
{
    const std::uint32_t wanted = recordBytes(size, count);
    const auto position = static_cast<std::uint32_t>(m_nPosition);
    if (!buffer || !m_pData || position >= m_nLogicalSize || wanted == 0)
        return 0;
    const std::uint32_t copied = std::min(wanted, m_nLogicalSize - position);
    std::memmove(buffer, m_pData + position, copied);
    m_nPosition += static_cast<std::int32_t>(copied);
    return copied / size;
}

size_t CKxMemFile::Write(const void* buffer, size_t size, size_t count)
{
    const std::uint32_t bytes = recordBytes(size, count);
    if (!buffer || !m_pData || bytes == 0)
        return 0;
    const auto* source = static_cast<const unsigned char*>(buffer);
    const std::uint64_t end = static_cast<std::uint64_t>(m_nPosition) + bytes;
    if (!MakeRoom(end, source))
        return 0;
    std::memmove(m_pData + m_nPosition, source, bytes);
    m_nPosition = static_cast<std::int32_t>(end);
    m_nLogicalSize = std::max(m_nLogicalSize, static_cast<std::uint32_t>(end));
    return count;
}

// A source that is part of the buffer moves with it.
bool CKxMemFile::MakeRoom(std::uint64_t end, const unsigned char*& source)
{
    if (end > static_cast<std::uint64_t>(lastPosition))
        return false;
    if (end <= m_nCapacity)
        return true;
    const unsigned char* const before = m_pData;
    const std::less<> isBefore;
    const bool inside = !isBefore(source, before) && isBefore(source, before + m_pData.Size());
    const std::ptrdiff_t offset = inside ? source - before : 0;
    if (!Alloc(static_cast<unsigned long>(end)))
        return false;
    if (inside)
        source = m_pData + offset;
    return true;
}

bool CKxMemFile::Seek(long offset, int origin)
{
    if (!m_pData)
        return false;
    std::int64_t base = 0;
    if (origin == 1)
        base = m_nPosition;
    else if (origin == 2)
        base = m_nLogicalSize;
    else if (origin != 0)
        return false;
    // The offset is limited first, so that the sum cannot overflow where long has 64 bits.
    const std::int64_t step = std::clamp<std::int64_t>(offset, -lastPosition - 1, lastPosition);
    m_nPosition = static_cast<std::int32_t>(std::clamp<std::int64_t>(base + step, 0, lastPosition));
    return true;
}

long CKxMemFile::Tell()
{
    return m_pData ? m_nPosition : -1;
}

long CKxMemFile::Size()
{
    return m_pData ? static_cast<long>(m_nLogicalSize) : -1;
}

bool CKxMemFile::Flush()
{
    return m_pData != nullptr;
}

bool CKxMemFile::Eof()
{
    return !m_pData || static_cast<std::uint32_t>(m_nPosition) >= m_nLogicalSize;
}

long CKxMemFile::Error()
{
    if (!m_pData)
        return -1;
    return static_cast<std::uint32_t>(m_nPosition) > m_nLogicalSize ? 1 : 0;
}

bool CKxMemFile::PutC(unsigned char c)
{
    if (!m_pData)
        return false;
    CKxMemFile::Write(&c, 1, 1);
    return true;
}

long CKxMemFile::GetC()
{
    if (CKxMemFile::Eof())
        return -1;
    return m_pData[m_nPosition++];
}

bool CKxMemFile::Alloc(unsigned long n)
{
    if (n <= m_nCapacity)
        return true;
    const std::uint64_t capacity = ((static_cast<std::uint64_t>(n) >> 12) + 1) << 12;
    if (capacity > static_cast<std::uint64_t>(lastPosition) + 1)
        return false;
    // A block that has to grow grows by half at least, so that many small writes do not copy it each time.
    const auto needed = static_cast<std::size_t>(capacity);
    const std::size_t roomy = needed > m_pData.Size() ? std::max(needed, m_pData.Size() + m_pData.Size() / 2) : needed;
    if (!m_pData.Grow(roomy) && !m_pData.Grow(needed))
        return false;
    m_bOwnsData = true;
    m_nCapacity = static_cast<std::uint32_t>(capacity);
    return true;
}

void CKxMemFile::Free()
{
    Close();
}
