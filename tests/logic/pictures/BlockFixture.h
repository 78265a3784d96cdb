// A walk over a stream of the tests; the bytes are a copy that ends where they end.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include "oxa/images/GifBlockWalker.h"
#include "support/GifBlockSeeds.h"

class BlockWalk
{
public:
    explicit BlockWalk(const recipe::Bytes& bytes) : m_bytes(new std::uint8_t[bytes.size()])
    {
        if (!bytes.empty())
            std::memcpy(m_bytes.get(), bytes.data(), bytes.size());
        walker = GifBlockWalker(m_bytes.get(), static_cast<std::uint32_t>(bytes.size()));
    }
    explicit BlockWalk(const recipe::GifBuilder& builder) : BlockWalk(builder.bytes()) {}

    int frames()
    {
        int count = 0;
        while (walker.SkipNextGraphicBlock())
            ++count;
        return count;
    }

    /// The next frame as a stream of its own; empty when there is none.
    recipe::Bytes nextStream()
    {
        if (!walker.FindNextGraphicBlock(frame))
            return {};
        recipe::Bytes stream(walker.AssembledSize(frame), 0x5A);
        walker.Assemble(frame, stream.data());
        return stream;
    }

private:
    std::unique_ptr<std::uint8_t[]> m_bytes;

public:
    GifBlockWalker walker{};
    GifFrameBlock frame{};
};

/// A screen of 3 by 2 without a table: its blocks begin at byte 13.
inline recipe::GifBuilder bare()
{
    return recipe::GifBuilder(3, 2);
}

/// Behind `bare()`: an image at (1, 0) of 2 by 1 pixels, in 10 bytes of descriptor, the code size and 4 bytes of codes.
inline const recipe::Bytes smallImage = {',', 1, 0, 0, 0, 2, 0, 1, 0, 0, 2, 2, 0x4C, 0x01, 0};
