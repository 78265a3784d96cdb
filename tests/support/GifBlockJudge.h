// Walks a stream with the library and in the plain form, and says where the two differ.
#pragma once

#include <cstring>
#include <vector>
#include "oxa/images/GifBlockWalker.h"
#include "support/PlainGifBlocks.h"

/// Keeps its memory from one stream to the next.
class GifBlockJudge
{
public:
    /// Null when the two agree, else what differs.
    const char* judge(const std::uint8_t* data, std::size_t size)
    {
        m_plain.read(data, size);
        m_walker = GifBlockWalker(data, static_cast<std::uint32_t>(size));
        if (const char* difference = walkBlocks())
            return difference;
        m_walker.ResetDataPointer();
        std::size_t count = 0;
        while (m_walker.SkipNextGraphicBlock())
            ++count;
        if (count != m_plain.frames().size())
            return "number of frames";
        if (m_walker.SkipNextGraphicBlock())
            return "a frame behind the last one";
        m_walker.ResetDataPointer();
        return walkFrames();
    }

    std::size_t frameCount() const { return m_plain.frames().size(); }

private:
    const char* walkBlocks()
    {
        for (const plain::Block& block : m_plain.blocks())
        {
            if (m_walker.ReadOffset() != block.start)
                return "place of a block";
            if (m_walker.GetNextBlock() != typeOf(block.kind))
                return "type of a block";
            const int length = block.length == 0 ? -1 : static_cast<int>(block.length);
            if (m_walker.GetNextBlockLen() != length)
                return "length of a block";
            if (m_walker.SkipNextBlock() != block.within)
                return "step over a block";
        }
        return nullptr;
    }

    const char* walkFrames()
    {
        for (const plain::Frame& expected : m_plain.frames())
        {
            GifFrameBlock frame;
            frame.disposal = 77;
            if (!m_walker.FindNextGraphicBlock(frame))
                return "a frame that is not found";
            if (frame.start != expected.start || frame.length != expected.length)
                return "extent of a frame";
            if (frame.delay != expected.delay || frame.disposal != expected.disposal)
                return "timing of a frame";
            if (frame.x != expected.left || frame.y != expected.top || frame.cx != expected.width ||
                frame.cy != expected.height)
                return "rectangle of a frame";
            if (const char* difference = compareStreams(frame, expected))
                return difference;
        }
        GifFrameBlock none;
        none.disposal = 77;
        if (m_walker.FindNextGraphicBlock(none))
            return "a frame too many";
        return none.disposal < 8 ? nullptr : "disposal of no frame";
    }

    const char* compareStreams(const GifFrameBlock& frame, const plain::Frame& expected)
    {
        const std::uint64_t size = m_walker.AssembledSize(frame);
        if (size != m_plain.streamSize(expected))
            return "size of a frame's stream";
        if (m_stream.size() < size)
            m_stream.resize(size);
        std::memset(m_stream.data(), 0x5A, size);
        m_walker.Assemble(frame, m_stream.data());
        m_plain.write(expected, m_plainStream);
        return std::memcmp(m_stream.data(), m_plainStream.data(), size) == 0 ? nullptr : "bytes of a frame's stream";
    }

    static GIFBlockTypes typeOf(plain::BlockKind kind)
    {
        switch (kind)
        {
        case plain::BlockKind::application:
            return BLOCK_APPEXT;
        case plain::BlockKind::comment:
            return BLOCK_COMMENT;
        case plain::BlockKind::control:
            return BLOCK_CONTROLEXT;
        case plain::BlockKind::plainText:
            return BLOCK_PLAINTEXT;
        case plain::BlockKind::image:
            return BLOCK_IMAGE;
        case plain::BlockKind::trailer:
            return BLOCK_TRAILER;
        default:
            return BLOCK_UNKNOWN;
        }
    }

    plain::GifBlocks m_plain{};
    GifBlockWalker m_walker{};
    std::vector<std::uint8_t> m_stream = std::vector<std::uint8_t>(4096);
    std::vector<std::uint8_t> m_plainStream{};
};
