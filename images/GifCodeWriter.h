// Packs LZW codes of growing width into bytes, and bytes into the sub-blocks of a GIF stream.
#pragma once

#include <cstdint>
#include <cstring>
#include "oxa/images/GifEncoderState.h"
#include "oxa/images/GifWire.h"

/// Writes through an encoder state. It works on a copy of the numbers and puts them back at the end of its life, when
/// less than a byte waits in the accumulator.
class GifCodeWriter
{
public:
    /// Sets a state up for a raster whose codes begin with `initialBits`. False, and nothing changed, for a width that
    /// no table of 16-bit codes can begin with.
    static bool Begin(LzwEncoderState& state, BitAccumulator& waiting, int initialBits, CKxMemFile* stream);
    /// Adds a byte to the sub-block, and writes it out when it is full.
    static void AppendByte(LzwEncoderState& state, int value);
    /// Writes out the sub-block, unless it is empty.
    static void FlushBlock(LzwEncoderState& state);

    GifCodeWriter(LzwEncoderState& state, BitAccumulator& waiting);
    ~GifCodeWriter();
    GifCodeWriter(const GifCodeWriter&) = delete;
    GifCodeWriter& operator=(const GifCodeWriter&) = delete;

    /// Writes a code of the current width, and widens the next one when the table has outgrown it. The end code also
    /// writes out everything that waits.
    void Output(int code)
    {
        const std::uint64_t bits = static_cast<std::uint32_t>(code) & GifCodeMask(m_codeWidth);
        m_waiting |= bits << m_waitingBits;
        m_waitingBits += m_codeWidth;
        if (m_waitingBits >= BatchBits)
            WriteBatch();
        if (m_nextFreeCode > m_highestCode || m_clearFlag)
            AdaptWidth();
        if (code == m_state.endCode)
            End();
    }
    /// Lets the table begin anew, and says so with the clear code.
    void Restart()
    {
        m_nextFreeCode = m_state.clearCode + 2;
        m_clearFlag = true;
        Output(m_state.clearCode);
    }

    bool HasFreeCode() const { return m_nextFreeCode < LzwEncoderState::CodeLimit; }
    /// The next code, which is then in use.
    unsigned TakeCode() { return static_cast<unsigned>(m_nextFreeCode++); }

private:
    enum : int
    {
        BatchBits = 48, // leaves room for one more code of 16 bits
        BatchBytes = 6,
    };

    void WriteBatch();
    void AdaptWidth();
    void WriteWholeBytes();
    void End();

    LzwEncoderState& m_state;
    BitAccumulator& m_stored;
    std::uint64_t m_waiting;
    int m_waitingBits;
    int m_codeWidth;
    int m_highestCode;
    int m_nextFreeCode;
    bool m_clearFlag;
};

inline void GifCodeWriter::WriteBatch()
{
    if (m_state.blockCount + BatchBytes < LzwEncoderState::BlockLength)
    {
        // Two bytes more than count are copied: the next batch writes over them.
        std::memcpy(m_state.block.data() + m_state.blockCount, &m_waiting, sizeof m_waiting);
        m_state.blockCount += BatchBytes;
        m_waiting >>= BatchBits;
        m_waitingBits -= BatchBits;
    }
    else
        WriteWholeBytes();
}
