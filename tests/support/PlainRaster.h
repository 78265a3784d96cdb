// The raster reader of GIF in its plain form, one byte, one code and one stack entry at a time, and the stream below it.
// Part of the judge that the library's decoder must equal; it shares no code with the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace plain
{
/// Bytes with a position that may lie behind their end.
class ByteStream
{
public:
    ByteStream(const std::uint8_t* bytes, std::size_t size) : m_bytes(bytes), m_size(static_cast<std::int64_t>(size)) {}

    /// Copies what is there, at most `count` bytes, and says how many they were.
    int read(std::uint8_t* target, int count)
    {
        if (onRead)
            onRead();
        int copied = 0;
        while (copied < count && m_position < m_size)
            target[copied++] = m_bytes[m_position++];
        return copied;
    }
    void seek(std::int64_t position) { m_position = position < 0 ? 0 : position; }
    void skip(std::int64_t distance) { seek(m_position + distance); }
    std::int64_t position() const { return m_position; }

    std::function<void()> onRead{}; // called before each read, if set

private:
    const std::uint8_t* m_bytes;
    std::int64_t m_size;
    std::int64_t m_position = 0;
};

/// Reads the raster of one frame after the other. The prefix table outlives a frame: its upper half is never cleared.
class RasterReader
{
public:
    /// Takes a row of `length` indexes; false stops the frame.
    using RowSink = std::function<bool(const std::uint8_t* row, int length)>;

    /// From the minimum code size to the end of the frame. `width` is that of a row.
    void readFrame(ByteStream& stream, int width, const RowSink& sink, int& badCodes)
    {
        m_readIndex = 16384; // nothing is left of the frame before
        badCodes = 0;
        const int size = nextByte(stream);
        if (size < 2 || size > 9)
            return;
        start(size);
        if (width >= 32768)
            return; // no row buffer of that length
        m_row.assign(static_cast<std::size_t>(width) + 1, 0);
        m_rowLength = width;
        m_filled = 0;
        if (readCodes(stream, size, sink, badCodes) && m_filled > 0)
            sink(m_row.data(), m_filled);
    }

    /// As after construction.
    void forget() { std::memset(m_prefix, 0, sizeof m_prefix); }

    /// Where the byte behind the last used one stands, relative to the position of the stream.
    int unread() const { return m_readIndex - m_validCount; }

private:
    static constexpr int failed = -1;

    int nextByte(ByteStream& stream)
    {
        if (m_readIndex >= 16383)
        {
            m_validCount = stream.read(m_input.get(), 16383);
            if (m_validCount < 16383)
                m_input[static_cast<std::size_t>(m_validCount)] = 255;
            m_readIndex = 0;
        }
        if (m_readIndex >= m_validCount)
            return failed;
        return m_input[static_cast<std::size_t>(m_readIndex++)];
    }

    void start(int size)
    {
        m_width = size + 1;
        m_top = 1 << m_width;
        m_clear = 1 << size;
        m_end = m_clear + 1;
        m_firstFree = m_next = m_clear + 2;
        m_bytesLeft = m_bitsLeft = 0;
        std::memset(m_suffix, 0, sizeof m_suffix);
        std::memset(&m_prefix[0], 0, 4096); // half of the table, which is meant
    }

    /// 0, or the failed read.
    int fillBlock(ByteStream& stream)
    {
        m_blockPosition = 0;
        m_bytesLeft = nextByte(stream);
        if (m_bytesLeft < 0)
            return failed;
        for (int i = 0; i < m_bytesLeft; ++i)
        {
            const int value = nextByte(stream);
            if (value < 0)
                return failed;
            m_block[i] = static_cast<std::uint8_t>(value);
        }
        return 0;
    }

    int nextCode(ByteStream& stream)
    {
        if (m_bitsLeft == 0)
        {
            if (m_bytesLeft <= 0 && fillBlock(stream) < 0)
                return failed;
            m_held = m_block[m_blockPosition++];
            m_bitsLeft = 8;
            --m_bytesLeft;
            if (m_bytesLeft < 0)
                return m_end;
        }
        else if (m_bytesLeft < 0)
            return m_end;
        std::uint32_t code = static_cast<std::uint32_t>(m_held) >> (8 - m_bitsLeft);
        while (m_width > m_bitsLeft)
        {
            if (m_bytesLeft <= 0 && fillBlock(stream) < 0)
                return failed;
            m_held = m_block[m_blockPosition++];
            code |= static_cast<std::uint32_t>(m_held) << m_bitsLeft;
            m_bitsLeft += 8;
            --m_bytesLeft;
        }
        m_bitsLeft -= m_width;
        return static_cast<int>(code & ((1U << m_width) - 1U));
    }

    bool put(int pixel, const RowSink& sink)
    {
        if (m_rowLength == 0)
            return true; // a row of no pixels is never full
        m_row[static_cast<std::size_t>(m_filled++)] = static_cast<std::uint8_t>(pixel);
        if (m_filled < m_rowLength)
            return true;
        m_filled = 0;
        return sink(m_row.data(), m_rowLength);
    }

    /// True when the end code was met, so that a partly filled row goes out.
    bool readCodes(ByteStream& stream, int size, const RowSink& sink, int& badCodes)
    {
        int old = 0;
        int first = 0;
        for (;;)
        {
            int code = nextCode(stream);
            if (code == m_end)
                return true;
            if (code < 0)
                return false;
            if (code == m_clear)
            {
                m_width = size + 1;
                m_next = m_firstFree;
                m_top = 1 << m_width;
                do
                    code = nextCode(stream);
                while (code == m_clear);
                if (code == m_end)
                    return true;
                if (code < 0)
                    return false;
                old = first = code >= m_next ? 0 : code;
                if (!put(old, sink))
                    return false;
                continue;
            }
            if (!expand(code, old, first, badCodes))
                return false;
            while (m_depth > 0)
                if (!put(m_stack[--m_depth], sink))
                    return false;
        }
    }

    bool push(int value)
    {
        if (m_depth == 4096)
            return false;
        m_stack[m_depth++] = static_cast<std::uint8_t>(value);
        return true;
    }

    /// Puts the string of a code on the stack and adds the next entry; false when the stack is full.
    bool expand(int code, int& old, int& first, int& badCodes)
    {
        m_depth = 0;
        int walked = code;
        if (code >= m_next)
        {
            if (code > m_next)
                ++badCodes;
            walked = old;
            if (!push(first))
                return false;
        }
        for (; walked >= m_firstFree; walked = m_prefix[walked])
            if (!push(m_suffix[walked]))
                return false;
        if (!push(walked))
            return false;
        if (m_next < m_top)
        {
            first = walked;
            m_suffix[m_next] = static_cast<std::uint8_t>(first);
            m_prefix[m_next] = static_cast<std::uint16_t>(old);
            ++m_next;
            old = code;
        }
        if (m_next >= m_top && m_width < 12)
        {
            m_top *= 2;
            ++m_width;
        }
        return true;
    }

    std::unique_ptr<std::uint8_t[]> m_input{new std::uint8_t[16384]};
    int m_readIndex = 0;
    int m_validCount = 0;
    int m_width = 0;
    int m_top = 0;
    int m_clear = 0;
    int m_end = 0;
    int m_firstFree = 0;
    int m_next = 0;
    int m_bytesLeft = 0;
    int m_bitsLeft = 0;
    std::uint8_t m_held = 0;
    int m_blockPosition = 0;
    std::uint8_t m_block[257] = {};
    int m_depth = 0;
    std::uint8_t m_stack[4096] = {};
    std::uint8_t m_suffix[4096] = {};
    std::uint16_t m_prefix[4096] = {};
    std::vector<std::uint8_t> m_row{};
    int m_rowLength = 0;
    int m_filled = 0;
};
} // namespace plain
