// What CKxGifImage keeps while it encodes: the next pixel, unwritten bits, the LZW hash table.
#pragma once

#include <cstdint>
#include "oxa/images/ScratchTable.h"

class CKxMemFile;

/// The pixel that goes out next. Rows leave top first, that is with falling y.
struct EncoderCursor
{
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t pixelsLeft = 0;
};

/// Bits that wait for a whole byte; the oldest are the lowest.
struct BitAccumulator
{
    std::uint32_t bits = 0;
    std::int32_t count = 0;
};

/// The hash-table LZW compressor and the block that it fills.
struct LzwEncoderState
{
    enum : int
    {
        HashSize = 5003,
        HashShift = 4,
        CodeLimit = 4096,
        MaximumCodeWidth = 12, // bits
        BlockLength = 254,     // one less than the format allows, on purpose
    };

    ScratchTable<std::int32_t, HashSize> hashTable; // -1 marks an empty slot
    std::int32_t codeWidth = 0;                     // bits
    std::int16_t highestCode = 0;                   // at this width
    std::int16_t nextFreeCode = 0;
    std::int32_t clearFlag = 0;   // set after a table reset
    std::int32_t initialBits = 0; // code width after a clear
    CKxMemFile* output = nullptr; // not owned
    std::int32_t clearCode = 0;
    std::int32_t endCode = 0;
    std::int32_t blockCount = 0; // bytes that wait in the block
    ScratchTable<std::uint8_t, 256> block;
};
