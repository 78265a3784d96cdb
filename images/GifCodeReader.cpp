// Codes out of joined sub-blocks.
#include "GifCodeReader.h"

#include <algorithm>
#include <cstring>
#include "oxa/images/GifWire.h"

// The block in the state, or `GifInput::End`.
int GifCodeReader::FillBlock(LzwDecoderState& state, GifInput& input)
{
    state.blockPosition = 0;
    const int length = input.Byte();
    state.bytesLeft = static_cast<std::int16_t>(length);
    if (length < 0)
        return GifInput::End;
    for (int filled = 0; filled < length;)
    {
        const int value = input.Byte();
        if (value < 0)
            return GifInput::End;
        state.block[filled++] = static_cast<std::uint8_t>(value);
        const std::size_t more = std::min(input.AtHand(), static_cast<std::size_t>(length - filled));
        std::memcpy(state.block + filled, input.Next(), more);
        input.Skip(more);
        filled += static_cast<int>(more);
    }
    return 0;
}

// A terminator inside a code does not end it: the first byte of the block before it is taken once more, and the reading
// goes on behind it. This is meant: what a stream without an end code gives depends on it.
int GifCodeReader::NextPlain(LzwDecoderState& state, GifInput& input)
{
    const auto takeByte = [&state]
    {
        state.heldByte = state.block[state.blockPosition++];
        --state.bytesLeft;
    };
    if (state.bitsLeft == 0)
    {
        if (state.bytesLeft <= 0 && FillBlock(state, input) < 0)
            return GifInput::End;
        takeByte();
        state.bitsLeft = 8;
    }
    if (state.bytesLeft < 0)
        return state.endCode;
    std::uint32_t code = static_cast<std::uint32_t>(state.heldByte) >> (8 - state.bitsLeft);
    while (state.codeWidth > state.bitsLeft)
    {
        if (state.bytesLeft <= 0 && FillBlock(state, input) < 0)
            return GifInput::End;
        takeByte();
        code |= static_cast<std::uint32_t>(state.heldByte) << state.bitsLeft;
        state.bitsLeft = static_cast<std::int16_t>(state.bitsLeft + 8);
    }
    state.bitsLeft = static_cast<std::int16_t>(state.bitsLeft - state.codeWidth);
    return static_cast<int>(code & GifCodeMask(state.codeWidth));
}

int GifCodeReader::Next()
{
    const auto width = static_cast<std::size_t>(m_state->codeWidth);
    if (m_bit + width > m_bitEnd)
    {
        Leave();
        const int code = NextPlain(*m_state, *m_input);
        if (code >= 0)
            Join();
        return code;
    }
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, m_joined + m_bit / 8, sizeof bytes);
    const std::uint32_t code = bytes >> m_bit % 8 & GifCodeMask(m_state->codeWidth);
    m_bit += width;
    return static_cast<int>(code);
}

// The held byte, the rest of the block, and the whole blocks behind it. A terminator is left to the plain form.
void GifCodeReader::Join()
{
    if (m_state->bytesLeft < 0)
        return;
    const auto bitsLeft = static_cast<std::size_t>(m_state->bitsLeft);
    m_held = bitsLeft > 0 ? 1 : 0;
    m_joined[0] = m_state->heldByte;
    std::size_t size = m_held;
    const auto rest = static_cast<std::size_t>(m_state->bytesLeft);
    std::memcpy(m_joined + size, m_state->block + m_state->blockPosition, rest);
    size += rest;
    m_first = size;

    const std::uint8_t* next = m_input->Next();
    for (std::size_t atHand = m_input->AtHand(); atHand > 0;)
    {
        const std::size_t length = *next;
        if (length == 0 || length >= atHand || size + length > Capacity)
            break;
        std::memcpy(m_joined + size, next + 1, length);
        size += length;
        next += length + 1;
        atHand -= length + 1;
    }
    std::memset(m_joined + size, 0, Padding);
    m_bit = m_start = m_held * 8 - bitsLeft;
    m_bitEnd = size * 8;
}

void GifCodeReader::Leave()
{
    const std::size_t bit = m_bit;
    const bool taken = bit > m_start;
    m_bit = m_start = m_bitEnd = 0;
    if (!taken)
        return;
    const std::size_t used = (bit - 1) / 8 + 1; // joined bytes, the last one perhaps in part
    m_state->heldByte = m_joined[used - 1];
    m_state->bitsLeft = static_cast<std::int16_t>(used * 8 - bit);
    if (used <= m_first)
    {
        m_state->blockPosition = static_cast<std::int16_t>(m_state->blockPosition + static_cast<int>(used - m_held));
        m_state->bytesLeft = static_cast<std::int16_t>(m_state->bytesLeft - static_cast<int>(used - m_held));
        return;
    }
    std::size_t before = m_first;
    while (used > before + *m_input->Next())
    {
        before += *m_input->Next();
        m_input->Skip(*m_input->Next() + std::size_t{1});
    }
    const std::size_t length = *m_input->Next();
    std::memcpy(m_state->block, m_input->Next() + 1, length);
    m_input->Skip(length + 1);
    m_state->blockPosition = static_cast<std::int16_t>(used - before);
    m_state->bytesLeft = static_cast<std::int16_t>(length - (used - before));
}
