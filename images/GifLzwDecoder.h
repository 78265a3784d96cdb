// Turns the codes of a frame into rows of pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>
#include "GifCodeReader.h"
#include "GifLzwTables.h"
#include "oxa/images/GifDecoderState.h"

/// Takes the rows of a frame in the order of the stream, one byte a pixel.
class GifRowSink
{
public:
    /// `count` whole rows, one behind the other.
    virtual void TakeRows(const std::uint8_t* pixels, std::size_t count) = 0;
    /// The first `length` pixels of one more row, at the end of the frame.
    virtual void TakePart(const std::uint8_t* pixels, std::size_t length) = 0;

protected:
    ~GifRowSink() = default;
};

/// What a frame asks of the decoder.
struct GifRaster
{
    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    std::uint32_t width = 0;        // of a row; a row of no pixels never comes
    std::uint64_t rows = unlimited; // a row beyond them stops the frame
    GifRowSink* sink = nullptr;     // null: only lengths are counted
    std::size_t window = 0;         // pixels to hold before rows go out, at least
};

/// The LZW decoder.
///
/// While the codes are sound, a table entry is where its string stands in the pixels already decoded, and how long it is:
/// "the earlier string plus the next byte" stands there in one piece. Adding a code is one store, and putting out a string
/// is a copy. From a code that no sound stream has (one above the next free code, or one before the first clear code) to
/// the next clear code the prefix and suffix tables of the state are walked instead; they are then filled in as if they
/// had always been kept. What the walk finds there is meant: entries from before a clear code and, in the upper half of
/// the prefix table, from earlier frames.
class GifLzwDecoder
{
public:
    /// How the codes of a frame ended.
    enum class End
    {
        EndCode,
        NoCodeSize,
        OutOfData,
        OutOfRows,
        BadCodeSize,
        StackFull,
        NoMemory,
    };

    GifLzwDecoder() = default;
    GifLzwDecoder(const GifLzwDecoder&) = delete;
    GifLzwDecoder& operator=(const GifLzwDecoder&) = delete;

    /// Resets the state for a minimum code size.
    static void Initialize(LzwDecoderState& state, int size);
    /// The other half of it: what is left in the tables is gone, the upper half of the prefix table excepted.
    static void ClearTables(LzwDecoderState& state);

    /// Decodes from the minimum code size on. State and input stand behind the last used byte afterwards.
    End Decode(LzwDecoderState& state, GifInput& input, const GifRaster& raster);
    /// Of the last frame: the codes above the next free one.
    int BadCodes() const { return m_badCodes; }
    /// Of the last frame: the pixels that its codes gave, those of a row that stopped it included.
    std::uint64_t Pixels() const { return m_origin + m_at; }
    /// Entries of the prefix table below it, in its upper half, were written since the last call of this.
    unsigned TakeKept() { return std::exchange(m_kept, 0U); }

private:
    static constexpr std::size_t History = 512; // index of the first pixel; before it stand the strings of the roots
    static constexpr std::size_t LongestString = 4096;
    static constexpr std::size_t Overrun = LongestString + 16; // behind the bound, for one string in pieces of 16
    static constexpr unsigned TableSize = LzwDecoderState::TableSize;

    bool Prepare(const GifRaster& raster);
    void PlaceRoots();
    void SetBound();
    End DecodeCodes();
    int SkipClearCodes();
    bool Step(unsigned code);
    void Widen();

    void RunClean();
    void RunWidth();
    template <int width> void RunOf();
    template <int width, bool store, bool adding> void RunOf();
    void EnterClean(unsigned root);
    void LeaveClean();
    void CleanStep(unsigned code);
    void PutString(std::size_t from, std::size_t length);
    void PutBack(unsigned code);

    bool PlainStep(unsigned code);
    bool Push(unsigned value);
    void FillTables();
    void KeepPrefixes();

    bool MakeRoom();
    void GiveRows();
    void Slide();
    End Finish(End end);

    bool Stores() const { return m_raster.sink != nullptr; }
    unsigned FirstFree() const { return static_cast<unsigned>(m_state->firstFreeCode); }
    unsigned NextSlot() const { return static_cast<unsigned>(m_state->nextSlot); }

    std::unique_ptr<GifLzwTables> m_tables{};
    std::unique_ptr<std::uint8_t[]> m_window{};
    std::size_t m_windowSize = 0;

    LzwDecoderState* m_state = nullptr;
    GifRaster m_raster{};
    int m_badCodes = 0;
    unsigned m_roots = 0;          // how many are placed
    std::int16_t m_firstWidth = 0; // of codes behind a clear code
    bool m_clean = false;          // the codes have been sound since the last clear code
    bool m_tablesReady = false;    // prefix and suffix hold what the plain form would find there
    unsigned m_written = 0;        // entries below it were written in this frame and are not in prefix and suffix
    std::uint64_t m_origin = 0;    // pixels before index 0 of the window, as a wrapping number
    std::uint64_t m_limit = 0;     // pixels at which the frame stops
    std::uint64_t m_rowsGiven = 0; // to the sink
    std::size_t m_at = 0;          // index behind the last pixel
    std::size_t m_bound = 0;       // index at which to make room
    std::size_t m_flushAt = 0;     // the window's part in that
    std::size_t m_firstRow = 0;    // index of the first pixel that no row took yet
    std::size_t m_earlier = 0;     // index and length of the string of the earlier code, and that code
    std::size_t m_earlierLength = 0;
    unsigned m_earlierCode = 0;
    unsigned m_kept = 0;  // see `TakeKept`
    unsigned m_depth = 0; // bytes on the stack
    unsigned m_old = 0;   // the earlier code and the first character of its string, in the plain form
    unsigned m_first = 0;
    GifCodeReader m_reader{};
};
