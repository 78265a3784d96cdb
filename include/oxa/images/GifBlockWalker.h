// Where the blocks of a GIF stream begin and end, and which of them make up one frame.
#pragma once

#include <cstdint>

#include "oxa/Export.h"

/// What stands at a place of a GIF stream, told by its first one or two bytes.
enum GIFBlockTypes : std::int32_t
{
    BLOCK_UNKNOWN = 0,    // anything else
    BLOCK_APPEXT = 1,     // 0x21 0xFF: application data
    BLOCK_COMMENT = 2,    // 0x21 0xFE
    BLOCK_CONTROLEXT = 3, // 0x21 0xF9: delay and disposal of the frame behind it
    BLOCK_PLAINTEXT = 4,  // 0x21 0x01
    BLOCK_IMAGE = 5,      // 0x2C
    BLOCK_TRAILER = 6,    // 0x3B: the end
};

/// What the first 13 bytes of a stream and its global colour table say.
struct GifScreen
{
    std::int32_t width = 0;  // pixels
    std::int32_t height = 0; // pixels
    bool hasTable = false;
    std::uint32_t background = 0; // 0x00BBGGRR, the table's entry for the background; only with a table
};

/// One frame: where its blocks lie, and how it is shown.
struct GifFrameBlock
{
    enum : std::uint32_t
    {
        NoDelay = 0xFFFFFFFF, // there is no control block
    };

    std::uint32_t start = 0;  // of its first block
    std::uint64_t length = 0; // bytes from there; what lies beyond the stream counts as zeros
    std::uint32_t delay = 0;  // hundredths of a second, or NoDelay
    std::uint32_t disposal = 0;
    std::int32_t cx = 0; // size and place on the screen, in pixels; all 0 for a plain text block
    std::int32_t cy = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
};

/// Walks the blocks of a GIF stream that lies in memory, and cuts it into streams of one frame each. The bytes are borrowed
/// and must outlive the walk. Whatever they are, none beyond them is read: such a byte counts as zero. A walk takes time in
/// proportion to the length of the stream.
class OXA_API GifBlockWalker
{
public:
    /// A walk without data: nothing is found.
    GifBlockWalker() = default;
    /// Stands behind the global colour table of a stream that begins with "GIF".
    GifBlockWalker(const std::uint8_t* data, std::uint32_t length);

    /// Whether bytes begin with "GIF"; the version behind it plays no part.
    static bool IsGif(const std::uint8_t* data, std::uint32_t length);
    GifScreen Screen() const;

    /// Goes back behind the global colour table.
    void ResetDataPointer();
    std::uint32_t ReadOffset() const { return m_nReadOffset; }

    GIFBlockTypes GetNextBlock() const;
    /// Bytes of the next block from its introducer on, also beyond the end of the stream: -1 for an unknown block, 0 for one
    /// whose sub-blocks are longer than an int can say.
    std::int32_t GetNextBlockLen() const;
    /// Bytes of a row of sub-blocks with its terminator; 0 when an int cannot hold them.
    std::int32_t GetSubBlocksLen(std::uint32_t startingOffset) const;

    /// False at an unknown block, at one that runs beyond the stream, and without data.
    bool SkipNextBlock();
    /// Steps behind the next image or plain text block; false when there is none.
    bool SkipNextGraphicBlock();
    /// The same, and tells what it stepped over. `frame.disposal` is set in any case, the rest as far as it was found.
    bool FindNextGraphicBlock(GifFrameBlock& frame);

    /// The length of a frame as a stream of its own.
    std::uint64_t AssembledSize(const GifFrameBlock& frame) const;
    /// Writes that stream: signature, screen, global table, the frame, trailer.
    void Assemble(const GifFrameBlock& frame, std::uint8_t* target) const;

private:
    std::uint8_t ByteAt(std::uint64_t offset) const
    {
        return offset < m_nDataLength ? m_pData[offset] : std::uint8_t{0};
    }
    std::int32_t WordAt(std::uint64_t offset) const { return ByteAt(offset) | ByteAt(offset + 1) << 8; }
    std::int32_t WithSubBlocks(std::uint32_t head) const;
    std::uint32_t ImageTableBytes() const;
    void Copy(std::uint64_t offset, std::uint64_t count, std::uint8_t* target) const;

    const std::uint8_t* m_pData = nullptr;
    std::uint32_t m_nDataLength = 0;
    std::uint32_t m_nGlobalTableBytes = 0;
    std::uint32_t m_nReadOffset = 0;
};
