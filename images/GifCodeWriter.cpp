// The code writer's start and end, the change of width, and the sub-blocks.
#include "GifCodeWriter.h"

#include "oxa/images/KxMemFile.h"

bool GifCodeWriter::Begin(LzwEncoderState& state, BitAccumulator& waiting, int initialBits, CKxMemFile* stream)
{
    constexpr int narrowest = 1;
    constexpr int widest = 15; // codes are signed 16-bit numbers
    if (initialBits < narrowest || initialBits > widest)
        return false;
    waiting = {};
    state.initialBits = initialBits;
    state.output = stream;
    state.clearFlag = 0;
    state.codeWidth = initialBits;
    state.highestCode = static_cast<std::int16_t>(GifCodeMask(initialBits));
    state.clearCode = 1 << (initialBits - 1);
    state.endCode = state.clearCode + 1;
    state.nextFreeCode = static_cast<std::int16_t>(state.clearCode + 2);
    state.blockCount = 0;
    return true;
}

void GifCodeWriter::AppendByte(LzwEncoderState& state, int value)
{
    state.block[static_cast<std::size_t>(state.blockCount)] = static_cast<std::uint8_t>(value);
    if (++state.blockCount >= LzwEncoderState::BlockLength)
        FlushBlock(state);
}

void GifCodeWriter::FlushBlock(LzwEncoderState& state)
{
    if (state.blockCount > 0 && state.output)
    {
        state.output->PutC(static_cast<unsigned char>(state.blockCount));
        state.output->Write(state.block.data(), 1, static_cast<std::size_t>(state.blockCount));
    }
    state.blockCount = 0;
}

GifCodeWriter::GifCodeWriter(LzwEncoderState& state, BitAccumulator& waiting)
    : m_state(state), m_stored(waiting), m_waiting(waiting.bits & GifCodeMask(waiting.count)),
      m_waitingBits(waiting.count), m_codeWidth(state.codeWidth), m_highestCode(state.highestCode),
      m_nextFreeCode(state.nextFreeCode), m_clearFlag(state.clearFlag != 0)
{
}

GifCodeWriter::~GifCodeWriter()
{
    WriteWholeBytes();
    m_stored.bits = static_cast<std::uint32_t>(m_waiting);
    m_stored.count = m_waitingBits;
    m_state.codeWidth = m_codeWidth;
    m_state.highestCode = static_cast<std::int16_t>(m_highestCode);
    m_state.nextFreeCode = static_cast<std::int16_t>(m_nextFreeCode);
    m_state.clearFlag = 0; // the code behind a reset has dropped it
}

void GifCodeWriter::AdaptWidth()
{
    if (m_clearFlag)
    {
        m_codeWidth = m_state.initialBits;
        m_clearFlag = false;
    }
    else
        ++m_codeWidth;
    const auto largest = static_cast<int>(GifCodeMask(m_codeWidth));
    // One above the largest code of 12 bits, so that the width stays there.
    const bool widened = m_codeWidth != m_state.initialBits;
    m_highestCode = widened && m_codeWidth == LzwEncoderState::MaximumCodeWidth ? LzwEncoderState::CodeLimit : largest;
}

void GifCodeWriter::WriteWholeBytes()
{
    for (; m_waitingBits >= 8; m_waitingBits -= 8, m_waiting >>= 8)
        AppendByte(m_state, static_cast<int>(m_waiting & 0xFF));
}

void GifCodeWriter::End()
{
    WriteWholeBytes();
    if (m_waitingBits > 0)
        AppendByte(m_state, static_cast<int>(m_waiting & 0xFF));
    m_waiting = 0;
    m_waitingBits = 0;
    FlushBlock(m_state);
    if (m_state.output)
    {
        m_state.output->Flush();
        m_state.output->Error();
    }
}
