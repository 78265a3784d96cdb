// What CKxGifImage keeps while it decodes: interlace, buffered input, the LZW tables.
#pragma once

#include <cstdint>
#include "oxa/images/ScratchTable.h"

/// Which row of an interlaced frame comes next.
struct InterlaceState
{
    std::int32_t interlaced = 0;  // 0x40 when the frame's flags say so
    std::int32_t rowPosition = 0; // from the top of the frame
    std::int32_t rowStep = 0;
    std::int32_t frameHeight = 0;
    std::int32_t pass = 0;
};

/// The bytes that were fetched from the stream and not yet used.
struct InputBuffer
{
    enum : std::int32_t
    {
        ReadSize = 16383,    // bytes fetched at once
        ForceRefill = 16384, // as read index: the next byte fetches anew
    };

    std::int32_t readIndex = 0;
    std::int32_t validCount = 0;
    ScratchTable<std::uint8_t, 16384> bytes;
};

/// The LZW decoder: the bits that wait, and the two tables.
struct LzwDecoderState
{
    enum : int
    {
        MaximumCodeWidth = 12, // bits
        TableSize = 4096,
        BadCodeSize = -20, // result of `decoder`: the minimum code size is outside 2 to 9
        OutOfMemory = -10, // result of `decoder`: the row buffer cannot be allocated
    };

    std::int16_t codeWidth = 0;
    std::int16_t clearCode = 0;
    std::int16_t endCode = 0;
    std::int16_t firstFreeCode = 0;
    std::int16_t topSlot = 0; // the first code that the width cannot hold
    std::int16_t nextSlot = 0;
    std::int16_t bytesLeft = 0; // in the block; -1 behind a terminator
    std::int16_t bitsLeft = 0;  // in the held byte
    std::uint8_t heldByte = 0;
    std::int16_t blockPosition = 0; // next byte of the block
    bool prefixFilled = false;      // false: the prefix table counts as zero
    std::uint8_t block[257] = {};
    ScratchTable<std::uint8_t, TableSize> stack;
    ScratchTable<std::uint8_t, TableSize> suffix;
    ScratchTable<std::uint16_t, TableSize> prefix; // its upper half outlives a frame
};
