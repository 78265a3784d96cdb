// The read buffer between a stream and the raster.
#include "GifInput.h"

#include <algorithm>
#include "oxa/images/KxMemFile.h"

GifFileInput::GifFileInput(CKxMemFile& file, InputBuffer& buffer) : m_file(file), m_buffer(buffer)
{
    const std::int32_t valid = std::clamp<std::int32_t>(buffer.validCount, 0, InputBuffer::ReadSize);
    m_end = buffer.bytes.data() + valid;
    m_next = buffer.bytes.data() + std::clamp(buffer.readIndex, 0, valid);
}

GifFileInput::~GifFileInput()
{
    if (m_buffer.readIndex < InputBuffer::ReadSize)
        m_buffer.readIndex = static_cast<std::int32_t>(m_next - m_buffer.bytes.data());
}

// A piece that came short was the last one.
bool GifFileInput::Refill()
{
    if (m_buffer.readIndex < InputBuffer::ReadSize && m_next - m_buffer.bytes.data() < InputBuffer::ReadSize)
        return false;
    const auto came = static_cast<std::int32_t>(
        std::min<std::size_t>(m_file.Read(m_buffer.bytes.data(), 1, InputBuffer::ReadSize), InputBuffer::ReadSize));
    if (came < InputBuffer::ReadSize)
        m_buffer.bytes[static_cast<std::size_t>(came)] = 255;
    m_buffer.validCount = came;
    m_buffer.readIndex = 0;
    m_next = m_buffer.bytes.data();
    m_end = m_next + came;
    return came > 0;
}
