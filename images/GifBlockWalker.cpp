// Reads introducers, lengths and sub-blocks, and puts frames together.
#include "oxa/images/GifBlockWalker.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace
{
enum : std::uint32_t
{
    screenFlagsAt = 10,
    backgroundIndexAt = 11,
    tableAt = 13,
    tableFlag = 0x80,
    tableSizeMask = 7,

    controlLength = 8,
    applicationHead = 14,
    commentHead = 2,
    plainTextHead = 15,
    imageHead = 11, // descriptor and code size, without the table
    trailerLength = 1,
};
constexpr std::uint32_t longest = std::numeric_limits<std::int32_t>::max();

constexpr std::uint32_t tableBytes(std::uint8_t flags)
{
    return (flags & tableFlag) != 0 ? 3U << ((flags & tableSizeMask) + 1) : 0U;
}

bool isDrawn(GIFBlockTypes type)
{
    return type == BLOCK_IMAGE || type == BLOCK_PLAINTEXT;
}

bool isEnd(GIFBlockTypes type)
{
    return type == BLOCK_UNKNOWN || type == BLOCK_TRAILER;
}

bool beginsFrame(GIFBlockTypes type)
{
    return isDrawn(type) || type == BLOCK_CONTROLEXT;
}
} // namespace

GifBlockWalker::GifBlockWalker(const std::uint8_t* data, std::uint32_t length)
    : m_pData(data), m_nDataLength(data == nullptr ? 0 : length), m_nGlobalTableBytes(tableBytes(ByteAt(screenFlagsAt)))
{
    ResetDataPointer();
}

bool GifBlockWalker::IsGif(const std::uint8_t* data, std::uint32_t length)
{
    return data != nullptr && length >= 3 && std::memcmp(data, "GIF", 3) == 0;
}

GifScreen GifBlockWalker::Screen() const
{
    const std::uint64_t entry = tableAt + std::uint64_t{ByteAt(backgroundIndexAt)} * 3;
    GifScreen screen;
    screen.width = WordAt(6);
    screen.height = WordAt(8);
    screen.hasTable = m_nGlobalTableBytes != 0;
    if (screen.hasTable)
        screen.background = static_cast<std::uint32_t>(WordAt(entry) | ByteAt(entry + 2) << 16);
    return screen;
}

void GifBlockWalker::ResetDataPointer()
{
    m_nReadOffset = m_nGlobalTableBytes + tableAt;
}

GIFBlockTypes GifBlockWalker::GetNextBlock() const
{
    switch (ByteAt(m_nReadOffset))
    {
    case ',':
        return BLOCK_IMAGE;
    case ';':
        return BLOCK_TRAILER;
    case '!':
        break;
    default:
        return BLOCK_UNKNOWN;
    }
    switch (ByteAt(std::uint64_t{m_nReadOffset} + 1))
    {
    case 0xFF:
        return BLOCK_APPEXT;
    case 0xFE:
        return BLOCK_COMMENT;
    case 0xF9:
        return BLOCK_CONTROLEXT;
    case 0x01:
        return BLOCK_PLAINTEXT;
    default:
        return BLOCK_UNKNOWN;
    }
}

std::int32_t GifBlockWalker::GetNextBlockLen() const
{
    switch (GetNextBlock())
    {
    case BLOCK_APPEXT:
        return WithSubBlocks(applicationHead);
    case BLOCK_COMMENT:
        return WithSubBlocks(commentHead);
    case BLOCK_CONTROLEXT:
        return controlLength; // kept on purpose: whatever its size byte says
    case BLOCK_PLAINTEXT:
        return WithSubBlocks(plainTextHead);
    case BLOCK_IMAGE:
        return WithSubBlocks(imageHead + ImageTableBytes());
    case BLOCK_TRAILER:
        return trailerLength;
    default:
        return -1;
    }
}

std::uint32_t GifBlockWalker::ImageTableBytes() const
{
    return tableBytes(ByteAt(std::uint64_t{m_nReadOffset} + 9));
}

std::int32_t GifBlockWalker::WithSubBlocks(std::uint32_t head) const
{
    const std::uint64_t start = std::uint64_t{m_nReadOffset} + head;
    const std::int32_t rest = start < m_nDataLength ? GetSubBlocksLen(static_cast<std::uint32_t>(start)) : 1;
    const std::uint32_t length = head + static_cast<std::uint32_t>(rest);
    return rest < 1 || length > longest ? 0 : static_cast<std::int32_t>(length);
}

std::int32_t GifBlockWalker::GetSubBlocksLen(std::uint32_t startingOffset) const
{
    std::uint64_t offset = startingOffset;
    while (const std::uint8_t count = ByteAt(offset))
        offset += count + 1U;
    const std::uint64_t length = offset + 1 - startingOffset;
    return length > longest ? 0 : static_cast<std::int32_t>(length);
}

bool GifBlockWalker::SkipNextBlock()
{
    const std::int32_t length = GetNextBlockLen();
    if (length < 1 || m_nReadOffset > m_nDataLength ||
        static_cast<std::uint32_t>(length) > m_nDataLength - m_nReadOffset)
        return false;
    m_nReadOffset += static_cast<std::uint32_t>(length);
    return true;
}

bool GifBlockWalker::SkipNextGraphicBlock()
{
    GifFrameBlock frame;
    return FindNextGraphicBlock(frame);
}

bool GifBlockWalker::FindNextGraphicBlock(GifFrameBlock& frame)
{
    frame.disposal = 0;
    GIFBlockTypes type = GetNextBlock();
    for (; !beginsFrame(type) && !isEnd(type); type = GetNextBlock())
        if (!SkipNextBlock())
            return false;
    const std::int32_t first = GetNextBlockLen();
    if (isEnd(type) || first < 1)
        return false;
    frame.start = m_nReadOffset;
    frame.length = static_cast<std::uint32_t>(first);
    frame.delay = GifFrameBlock::NoDelay;
    if (type == BLOCK_CONTROLEXT)
    {
        frame.delay = static_cast<std::uint32_t>(WordAt(std::uint64_t{frame.start} + 4));
        frame.disposal = (ByteAt(std::uint64_t{frame.start} + 3) & 0x1CU) >> 2;
        if (!SkipNextBlock())
            return false;
        for (type = GetNextBlock(); !isDrawn(type) && !isEnd(type); type = GetNextBlock())
        {
            if (!SkipNextBlock())
                return false;
            // Kept on purpose: not the block that was stepped over counts, but the one behind it, and the image once more.
            frame.length += static_cast<std::uint64_t>(std::max(GetNextBlockLen(), 0));
        }
        if (isEnd(type))
            return false;
        frame.length += static_cast<std::uint64_t>(std::max(GetNextBlockLen(), 0));
    }
    if (type == BLOCK_IMAGE)
    {
        frame.x = WordAt(std::uint64_t{m_nReadOffset} + 1);
        frame.y = WordAt(std::uint64_t{m_nReadOffset} + 3);
        frame.cx = WordAt(std::uint64_t{m_nReadOffset} + 5);
        frame.cy = WordAt(std::uint64_t{m_nReadOffset} + 7);
    }
    return SkipNextBlock();
}

std::uint64_t GifBlockWalker::AssembledSize(const GifFrameBlock& frame) const
{
    return m_nGlobalTableBytes + frame.length + tableAt + trailerLength;
}

void GifBlockWalker::Assemble(const GifFrameBlock& frame, std::uint8_t* target) const
{
    const std::uint64_t head = std::uint64_t{m_nGlobalTableBytes} + tableAt;
    Copy(0, head, target);
    Copy(frame.start, frame.length, target + head);
    target[head + frame.length] = ';';
}

void GifBlockWalker::Copy(std::uint64_t offset, std::uint64_t count, std::uint8_t* target) const
{
    const std::uint64_t there = offset < m_nDataLength ? std::min(count, m_nDataLength - offset) : 0;
    if (there > 0)
        std::memcpy(target, m_pData + offset, there);
    std::memset(target + there, 0, count - there);
}
