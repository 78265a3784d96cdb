// The block walk in its plainest form: cut the whole stream into blocks first, then pick the frames out of the list.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace plain
{
enum class BlockKind
{
    unknown,
    application,
    comment,
    control,
    plainText,
    image,
    trailer,
};

struct Block
{
    BlockKind kind = BlockKind::unknown;
    std::size_t start = 0;
    std::size_t length = 0; // 0 for an unknown block
    bool within = false;    // it ends within the stream

    bool isDrawn() const { return kind == BlockKind::image || kind == BlockKind::plainText; }
    bool stops() const { return !within || kind == BlockKind::unknown || kind == BlockKind::trailer; }
};

/// A frame is a row of pieces of the stream that are copied as one, from `start` on.
struct Frame
{
    std::size_t start = 0;
    std::size_t length = 0;
    std::uint32_t delay = 0xFFFFFFFF;
    std::uint32_t disposal = 0;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// The lists keep their memory from one stream to the next.
class GifBlocks
{
public:
    void read(const std::uint8_t* data, std::size_t size)
    {
        m_data = data;
        m_size = size;
        m_tableBytes = (at(10) & 0x80) != 0 ? std::size_t{6} << (at(10) & 7) : 0;
        cut();
        pick();
    }

    const std::vector<Block>& blocks() const { return m_blocks; }
    const std::vector<Frame>& frames() const { return m_frames; }
    std::size_t tableBytes() const { return m_tableBytes; }

    std::size_t streamSize(const Frame& frame) const { return 13 + m_tableBytes + frame.length + 1; }
    /// The frame as a stream of its own.
    void write(const Frame& frame, std::vector<std::uint8_t>& stream) const
    {
        stream.clear();
        append(0, 13 + m_tableBytes, stream);
        append(frame.start, frame.length, stream);
        stream.push_back(0x3B);
    }

private:
    std::uint8_t at(std::size_t index) const { return index < m_size ? m_data[index] : std::uint8_t{0}; }
    int pairAt(std::size_t index) const { return at(index) + 256 * at(index + 1); }

    void append(std::size_t start, std::size_t count, std::vector<std::uint8_t>& stream) const
    {
        const std::size_t there = std::min(m_size - std::min(start, m_size), count);
        if (there > 0)
            stream.insert(stream.end(), m_data + start, m_data + start + there);
        stream.resize(stream.size() + (count - there));
    }

    Block blockAt(std::size_t start) const
    {
        Block block;
        block.start = start;
        std::size_t head = 0; // 0: no sub-blocks
        switch (256 * at(start) + (at(start) == 0x21 ? at(start + 1) : 0))
        {
        case 0x21FF:
            block.kind = BlockKind::application;
            head = 14;
            break;
        case 0x21FE:
            block.kind = BlockKind::comment;
            head = 2;
            break;
        case 0x21F9:
            block.kind = BlockKind::control;
            block.length = 8;
            break;
        case 0x2101:
            block.kind = BlockKind::plainText;
            head = 15;
            break;
        case 0x2C00:
            block.kind = BlockKind::image;
            head = 11 + ((at(start + 9) & 0x80) != 0 ? std::size_t{6} << (at(start + 9) & 7) : 0);
            break;
        case 0x3B00:
            block.kind = BlockKind::trailer;
            block.length = 1;
            break;
        default:
            break;
        }
        if (head != 0)
        {
            std::size_t end = start + head;
            for (; at(end) != 0; end += std::size_t{at(end)} + 1)
                ;
            block.length = end + 1 - start;
        }
        block.within = block.length > 0 && start + block.length <= m_size;
        return block;
    }

    void cut()
    {
        m_blocks.clear();
        std::size_t offset = 13 + m_tableBytes;
        do
        {
            m_blocks.push_back(blockAt(offset));
            offset += m_blocks.back().length;
        } while (!m_blocks.back().stops());
    }

    // The last block of the list is one at which every walk stops.
    void pick()
    {
        m_frames.clear();
        for (std::size_t i = 0; !m_blocks[i].stops(); ++i)
        {
            if (m_blocks[i].isDrawn())
                m_frames.push_back(frameOf(i, i));
            else if (m_blocks[i].kind == BlockKind::control)
            {
                std::size_t drawn = i + 1;
                while (!m_blocks[drawn].stops() && !m_blocks[drawn].isDrawn())
                    ++drawn;
                if (m_blocks[drawn].stops())
                    return;
                m_frames.push_back(frameOf(i, drawn));
                i = drawn;
            }
        }
    }

    Frame frameOf(std::size_t first, std::size_t drawn) const
    {
        Frame frame;
        frame.start = m_blocks[first].start;
        frame.length = m_blocks[first].length;
        if (first != drawn)
        {
            frame.delay = static_cast<std::uint32_t>(pairAt(frame.start + 4));
            frame.disposal = at(frame.start + 3) / 4U % 8U;
            frame.length += m_blocks[drawn].length;
            for (std::size_t i = first + 2; i <= drawn; ++i)
                frame.length += m_blocks[i].length;
        }
        if (m_blocks[drawn].kind == BlockKind::image)
        {
            const std::size_t descriptor = m_blocks[drawn].start;
            frame.left = pairAt(descriptor + 1);
            frame.top = pairAt(descriptor + 3);
            frame.width = pairAt(descriptor + 5);
            frame.height = pairAt(descriptor + 7);
        }
        return frame;
    }

    const std::uint8_t* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_tableBytes = 0;
    std::vector<Block> m_blocks{};
    std::vector<Frame> m_frames{};
};
} // namespace plain
