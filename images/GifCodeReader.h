// Takes LZW codes out of the sub-blocks of a raster.
#pragma once

#include <cstddef>
#include <cstdint>
#include "GifInput.h"
#include "oxa/images/GifDecoderState.h"

/// Codes of the width that the decoder's state names.
///
/// Whole sub-blocks that are at hand are joined, so that most codes come out of one run of bytes; a code that is not
/// wholly in there is taken byte by byte. The state and the input stand where the byte-by-byte form would have left them
/// after `Leave`, and only then.
class GifCodeReader
{
public:
    static constexpr std::size_t Capacity = 16384; // bytes that are joined at once
    static constexpr std::size_t Padding = 8;      // bytes that may be read behind the joined ones

    /// Both must outlive a frame.
    void Begin(LzwDecoderState& state, GifInput& input)
    {
        m_state = &state;
        m_input = &input;
        m_bit = m_start = m_bitEnd = 0;
    }

    /// The next code; the end code at a block terminator; `GifInput::End` when the data ends.
    int Next();
    /// Puts state and input right.
    void Leave();

    /// The same without joining: the byte-by-byte form itself.
    static int NextPlain(LzwDecoderState& state, GifInput& input);

    // The joined bytes, for a loop that takes many codes.

    const std::uint8_t* Joined() const { return m_joined; }
    std::size_t Bit() const { return m_bit; }
    std::size_t BitEnd() const { return m_bitEnd; }
    void SetBit(std::size_t bit) { m_bit = bit; }

private:
    static int FillBlock(LzwDecoderState& state, GifInput& input);
    void Join();

    LzwDecoderState* m_state = nullptr;
    GifInput* m_input = nullptr;
    std::size_t m_bit = 0;    // the next one
    std::size_t m_start = 0;  // where `m_bit` began
    std::size_t m_bitEnd = 0; // behind the last joined one
    std::size_t m_held = 0;   // 1 if the first joined byte is the held one
    std::size_t m_first = 0;  // joined bytes that belong to the block in the state
    std::uint8_t m_joined[Capacity + Padding];
};
