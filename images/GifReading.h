// One run of CKxGifImage::Decode: the scan of the stream, its two passes, and how the frames come together.
#pragma once

#include <cstdint>
#include "GifLzwDecoder.h"
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxMemFile.h"

class CKxGifImage::GifReading
{
public:
    GifReading(CKxGifImage& image, CKxMemFile& file) : m_image(image), m_file(file) {}

    bool Decode();

    int CountFrames(tag_TabCol table, const tag_dscgif& screen);
    /// Decodes a raster into the image by way of `iterator`.
    GifLzwDecoder::End DecodeRaster(CKxGifImageIterator* iterator, std::uint32_t width);
    int BadCodes() const { return m_lzw.BadCodes(); }

    /// Stores the first `length` pixels of a row where the iterator and the interlace state say; false behind the last.
    static bool StoreRow(CKxGifImage& image, CKxGifImageIterator* iterator, const std::uint8_t* row,
                         std::size_t length);

private:
    enum class Step
    {
        Next,
        Done,
        Failed,
    };
    class RowsOfImage;

    bool ReadByte(std::uint8_t& value) { return m_file.Read(&value, 1, 1) == 1; }
    bool ReadDescriptor(tag_image& descriptor) { return m_file.Read(&descriptor, sizeof descriptor, 1) == 1; }
    void ReadTable(std::uint8_t flags, tag_TabCol& table);
    static bool IsInside(const tag_image& descriptor, const tag_dscgif& screen);
    static unsigned long DepthOf(const tag_TabCol& table);
    static bool CannotCreate(void* block, unsigned long width, unsigned long height);

    bool CountFrame(tag_TabCol& table, const tag_dscgif& screen, int& count);
    void BeginRaster(const tag_image& descriptor);
    void EndRaster(long start);

    bool Scan();
    Step ReadFrame();
    bool MakeBackground(CKxGifImage& background, unsigned long depth);
    void SetPalette();
    void Compose(CKxGifImage& background, tag_image& descriptor);
    void AddToMosaic(const tag_image& descriptor);
    void FinishMosaic();

    CKxGifImage& m_image;
    CKxMemFile& m_file;
    GifLzwDecoder m_lzw;
    tag_dscgif m_screen{};
    tag_TabCol m_table{};
    int m_score = 0; // 2: the frames are tiles of a true-colour picture
    int m_counter = 0;
    int m_disposal = 0; // of the frame before
    std::int32_t m_background = 0;
    bool m_hasMosaic = false;
    CKxGifImage m_mosaic;
};
