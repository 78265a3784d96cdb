// Where the raster bytes of a GIF come from: a stream's read buffer, or bytes that lie in memory as they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include "oxa/images/GifDecoderState.h"

class CKxMemFile;

/// Bytes in order, some of which are already at hand.
class GifInput
{
public:
    enum : int
    {
        End = -1,
    };

    /// The next byte, or `End`.
    int Byte() { return m_next == m_end && !Refill() ? static_cast<int>(End) : *m_next++; }

    /// What is at hand, from the next byte on. Nothing is fetched for it.
    const std::uint8_t* Next() const { return m_next; }
    std::size_t AtHand() const { return static_cast<std::size_t>(m_end - m_next); }
    /// Steps over bytes that are at hand.
    void Skip(std::size_t count) { m_next += count; }

protected:
    GifInput() = default;
    ~GifInput() = default;
    GifInput(const GifInput&) = delete;
    GifInput& operator=(const GifInput&) = delete;

    virtual bool Refill() = 0;

    const std::uint8_t* m_next = nullptr;
    const std::uint8_t* m_end = nullptr;
};

/// A stream, read in pieces of `InputBuffer::ReadSize` through its `Read`, and never before a byte of the piece is needed.
/// The read index of the buffer is right again when this object is gone.
class GifFileInput final : public GifInput
{
public:
    GifFileInput(CKxMemFile& file, InputBuffer& buffer);
    ~GifFileInput();

private:
    bool Refill() override;

    CKxMemFile& m_file;
    InputBuffer& m_buffer;
};

/// Bytes in memory.
class GifMemoryInput final : public GifInput
{
public:
    GifMemoryInput(const std::uint8_t* bytes, std::size_t size)
    {
        m_next = bytes;
        m_end = bytes + size;
    }

private:
    bool Refill() override { return false; }
};
