// The raster of one frame: where its bytes come from, and where its rows go.
#include <algorithm>

#include "GifReading.h"
#include "GifRowPacking.h"

void CKxGifImage::GifReading::BeginRaster(const tag_image& descriptor)
{
    m_image.m_input.readIndex = InputBuffer::ForceRefill;
    m_image.m_interlace = {descriptor.flags & 0x40, 0, 8, descriptor.height, 0};
}

// Behind a sound raster one byte more is stepped over, the terminator.
void CKxGifImage::GifReading::EndRaster(std::size_t start)
{
    if (BadCodes() != 0)
        m_image.seek_next_image(&m_file, static_cast<long>(start));
    else if (m_way == GifWay::Observed)
        m_file.Seek(m_image.m_input.readIndex - m_image.m_input.validCount + 1, 1);
    else
        m_file.Seek(static_cast<long>(m_used) + 1, 0);
}

// From the bytes in memory. Without sink only lengths are counted.
GifLzwDecoder::End CKxGifImage::GifReading::DecodeBytes(const Frame& frame, GifRowSink* sink)
{
    GifMemoryInput input(m_bytes + frame.start, m_size - frame.start);
    GifRaster raster;
    raster.width = frame.descriptor.width;
    raster.sink = HasPixels(frame.descriptor) ? sink : nullptr;
    if ((frame.descriptor.flags & 0x40) == 0)
        raster.rows = frame.descriptor.height;
    raster.window = WindowFor(frame);
    const GifLzwDecoder::End end = m_lzw.Decode(m_image.m_lzwDecoder, input, raster);
    m_used = static_cast<std::size_t>(input.Next() - m_bytes);
    return end;
}

// All pixels of a small frame; of a large one, no more than the canvas takes.
std::size_t CKxGifImage::GifReading::WindowFor(const Frame& frame)
{
    const std::size_t pixels = std::size_t{frame.descriptor.width} * frame.descriptor.height;
    return std::min(pixels, std::clamp(pixels * frame.depth / 8, std::size_t{1} << 16, std::size_t{1} << 18));
}

/// Rows on their way into the image.
class CKxGifImage::GifReading::RowsOfImage final : public GifRowSink
{
public:
    RowsOfImage(CKxGifImage& image, CKxGifImageIterator* iterator, std::size_t width)
        : m_image(image), m_iterator(iterator), m_width(width)
    {
    }
    void TakeRows(const std::uint8_t* pixels, std::size_t count) override
    {
        for (std::size_t i = 0; i < count; ++i)
            StoreRow(m_image, m_iterator, pixels + i * m_width, m_width);
    }
    void TakePart(const std::uint8_t* pixels, std::size_t length) override
    {
        StoreRow(m_image, m_iterator, pixels, length);
    }

private:
    CKxGifImage& m_image;
    CKxGifImageIterator* m_iterator;
    std::size_t m_width;
};

GifLzwDecoder::End CKxGifImage::GifReading::DecodeRaster(CKxGifImageIterator* iterator, std::uint32_t width)
{
    RowsOfImage rows(m_image, iterator, width);
    GifRaster raster;
    raster.width = width;
    raster.sink = &rows;
    raster.window = std::size_t{1} << 16;
    if (m_image.m_interlace.interlaced == 0)
    {
        CKxGifImage* const target = iterator ? static_cast<CKxGifImage*>(*iterator) : nullptr;
        const bool ready = target && target->IsValid() && iterator->ItOK() != 0;
        raster.rows = ready ? static_cast<std::uint64_t>(iterator->GetY()) + 1 : 0;
    }
    GifFileInput input(m_file, m_image.m_input);
    return m_lzw.Decode(m_image.m_lzwDecoder, input, raster);
}

namespace
{
void storePixels(CKxGifImage& target, CKxGifImageIterator& iterator, const std::uint8_t* row, std::size_t length)
{
    constexpr std::size_t longest = 32767;
    std::uint8_t packed[longest / 2 + 1];
    length = std::min<std::size_t>(length, target.GetWidth());
    const int bits = target.GetBpp();
    if (bits >= 8)
    {
        iterator.SetRow(const_cast<std::uint8_t*>(row), static_cast<int>(length));
        return;
    }
    length = std::min(length, longest);
    const std::size_t bytes = (length * static_cast<std::size_t>(bits) + 7) / 8;
    iterator.GetRow(packed, static_cast<int>(bytes));
    packRow(packed, row, length, bits);
    iterator.SetRow(packed, static_cast<int>(bytes));
}
} // namespace

bool CKxGifImage::GifReading::StoreRow(CKxGifImage& image, CKxGifImageIterator* iterator, const std::uint8_t* row,
                                       std::size_t length)
{
    CKxGifImage* const found = iterator ? static_cast<CKxGifImage*>(*iterator) : nullptr;
    CKxGifImage* const target = found && found->IsValid() ? found : nullptr;
    InterlaceState& interlace = image.m_interlace;
    if (interlace.interlaced == 0)
    {
        if (!target || iterator->ItOK() == 0)
            return false;
        storePixels(*target, *iterator, row, length);
        iterator->PrevRow();
        return true;
    }
    if (target)
    {
        // A row beyond the frame goes where the last one went.
        iterator->SetY(interlace.frameHeight - interlace.rowPosition - 1);
        storePixels(*target, *iterator, row, length);
    }
    advanceInterlace(interlace);
    return true;
}
