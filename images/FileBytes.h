// Little-endian numbers of a file that lies in memory, read within the bytes that there are.
#pragma once

#include <cstddef>
#include <cstdint>

/// Borrowed bytes; beyond their end they are 0.
class FileBytes
{
public:
    FileBytes(const unsigned char* data, std::size_t size) : m_data(data), m_size(data == nullptr ? 0 : size) {}

    std::size_t size() const { return m_size; }
    std::uint32_t byteAt(std::size_t at) const { return at < m_size ? m_data[at] : 0; }
    std::uint32_t wordAt(std::size_t at) const { return byteAt(at) | byteAt(at + 1) << 8; }
    std::uint32_t longAt(std::size_t at) const { return wordAt(at) | wordAt(at + 2) << 16; }
    std::int32_t signedWordAt(std::size_t at) const { return static_cast<std::int16_t>(wordAt(at)); }
    std::int32_t signedLongAt(std::size_t at) const { return static_cast<std::int32_t>(longAt(at)); }
    bool holds(std::uint64_t from, std::uint64_t count) const { return from <= m_size && count <= m_size - from; }
    /// The caller has asked `holds` before.
    FileBytes part(std::size_t from, std::size_t count) const { return {m_data + from, count}; }
    FileBytes behind(std::size_t from) const { return part(from, m_size - from); }
    const unsigned char* begin() const { return m_data; }
    const unsigned char* end() const { return m_data + m_size; }

private:
    const unsigned char* m_data;
    std::size_t m_size;
};
