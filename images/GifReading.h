// One run of CKxGifImage::Decode: the scan of the stream, its two passes, and how the frames come together.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>
#include "GifCanvas.h"
#include "GifFrameRows.h"
#include "GifLzwDecoder.h"
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxMemFile.h"

/// How a stream is read. The results are the same.
enum class GifWay
{
    /// Through the stream's operations, in the order and the portions of the two passes: for streams of derived classes,
    /// which may watch, and for a decode that is stopped.
    Observed,
    /// Two passes over the bytes in memory; the first counts lengths only.
    TwoPasses,
    /// The first pass believes the lengths of the sub-blocks, the second one proves them. Not for damaged streams.
    OnePass,
};

class CKxGifImage::GifReading
{
public:
    /// What a decode changes in an image besides its block.
    class Before
    {
    public:
        explicit Before(const CKxGifImage& image);
        void PutBack(CKxGifImage& image) const;

    private:
        GifImageInfo m_info;
        GraphicControl m_control;
        std::int32_t m_loops;
        std::int32_t m_disposal;
        char m_comment[sizeof CKxGifImage::m_comment];
        bool m_prefixFilled;
        std::uint16_t m_prefixes[LzwDecoderState::TableSize / 2]; // the upper half
    };

    enum class Result
    {
        Good,
        Failed,
        /// `OnePass` was not enough. The image's block is gone; what else was changed is for the caller to put back.
        Again,
    };

    GifReading(CKxGifImage& image, CKxMemFile& file, GifWay way);

    Result Decode();
    int CountFrames(tag_TabCol table, const tag_dscgif& screen);
    /// Decodes a raster from the stream into the image of `iterator`.
    GifLzwDecoder::End DecodeRaster(CKxGifImageIterator* iterator, std::uint32_t width);
    int BadCodes() const { return m_lzw.BadCodes(); }

    /// Stores the first `length` pixels of a row where iterator and interlace say; false behind the last row.
    static bool StoreRow(CKxGifImage& image, CKxGifImageIterator* iterator, const std::uint8_t* row,
                         std::size_t length);

private:
    enum class Step
    {
        Next,
        Done,
        Failed,
        Again,
    };
    struct Frame
    {
        tag_image descriptor;
        unsigned long depth;
        std::size_t start; // of the raster
        std::size_t end;   // behind its terminator
    };
    class RowsOfImage;

    static constexpr std::size_t MostInOnePass = 4096; // frames; streams of more are read in two passes

    bool ReadByte(std::uint8_t& value) { return m_file.Read(&value, 1, 1) == 1; }
    bool ReadDescriptor(tag_image& descriptor) { return m_file.Read(&descriptor, sizeof descriptor, 1) == 1; }
    void ReadTable(std::uint8_t flags, tag_TabCol& table);
    std::size_t Position() { return static_cast<std::size_t>(m_file.Tell()); }
    static bool IsInside(const tag_image& descriptor, const tag_dscgif& screen);
    static unsigned long DepthOf(const tag_TabCol& table);
    static bool IsTooLarge(const tag_image& descriptor)
    {
        return std::uint64_t{descriptor.width} * descriptor.height > MaximumPixels;
    }
    static bool HasPixels(const tag_image& descriptor) { return descriptor.width != 0 && descriptor.height != 0; }

    // The first pass

    bool CountFrame(tag_TabCol& table, const tag_dscgif& screen);
    bool CountObserved(const Frame& frame);
    void CountLengths(const Frame& frame);
    void CountBlocks(Frame& frame);
    void LeaveLastCounted();

    // Rasters

    void BeginRaster(const tag_image& descriptor);
    void EndRaster(std::size_t start);
    GifLzwDecoder::End DecodeBytes(const Frame& frame, GifRowSink* sink);
    static std::size_t WindowFor(const Frame& frame);

    // The second pass

    Result Scan();
    Step ReadFrame();
    bool BeginCanvas(unsigned long depth);
    void MakePalette(const Frame& frame);
    GifFrameColors ColorsOf(const Frame& frame) const;
    bool DrawObserved(const Frame& frame, const GifFrameColors& colors);
    bool DrawBytes(const Frame& frame, const GifFrameColors& colors);
    void EndFrame(const Frame& frame);
    bool IsAsCounted(const Frame& frame) const;
    bool ProveTheRest();
    void FinishPicture();
    Result Stopped();

    CKxGifImage& m_image;
    CKxMemFile& m_file;
    GifWay m_way;
    const std::uint8_t* m_bytes = nullptr; // of the stream, unless it is observed
    std::size_t m_size = 0;
    GifLzwDecoder m_lzw;
    std::size_t m_used = 0;         // bytes of the stream, behind the last decoded raster
    int m_frames = 0;               // counted so far
    Frame m_lastCounted{};          // of these
    Frame m_lastWithPixels{};       // of these
    std::vector<Frame> m_counted{}; // all of them, in one pass only
    bool m_sound = true;
    std::vector<std::uint16_t> m_prefixBefore{}; // upper half of the table, before the last counted frame with pixels

    tag_dscgif m_screen{};
    tag_TabCol m_table{};
    RGBQUAD m_palette[256] = {}; // of the present frame
    unsigned long m_colors = 0;  // entries of it
    int m_score = 0;             // 2: the frames are tiles of a true-colour picture
    int m_counter = 0;
    int m_disposal = 0;            // of the frame before
    std::int32_t m_background = 0; // transparent index when the first frame began
    CKxGifImage m_picture;
    GifCanvas m_canvas{};
};
