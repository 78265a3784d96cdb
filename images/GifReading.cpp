// The two passes over a GIF stream.
#include "GifReading.h"

#include <cstring>
#include "GifRowPacking.h"

bool CKxGifImage::GifReading::Decode()
{
    m_file.Read(&m_screen, sizeof m_screen, 1); // what is missing is zero
    if (std::memcmp(m_screen.header, "GIF8", 4) != 0)
        return false;
    if (m_image.GetEscape() == -1)
    {
        m_image.Destroy();
        m_image.m_Head.biWidth = m_screen.screenWidth;
        m_image.m_Head.biHeight = m_screen.screenHeight;
        return true;
    }
    m_table.colorResolution = static_cast<std::int16_t>(((m_screen.flags & 0x70) >> 3) + 1);
    m_table.sogct = static_cast<std::int16_t>(1 << ((m_screen.flags & 7) + 1));
    if ((m_screen.flags & 0x80) == 0)
        ++m_score;
    ReadTable(m_screen.flags, m_table);
    GifImageInfo& info = m_image.m_Info;
    info.nNumFrames = CountFrames(m_table, m_screen);
    if (info.nFrame < 0 || info.nFrame >= info.nNumFrames)
        return false;
    if (info.nNumFrames == 1)
        m_score = 0;
    return Scan();
}

void CKxGifImage::GifReading::ReadTable(std::uint8_t flags, tag_TabCol& table)
{
    if ((flags & 0x80) == 0)
        return;
    table.sogct = static_cast<std::int16_t>(1 << ((flags & 7) + 1));
    m_file.Read(table.colors, 1, static_cast<std::size_t>(table.sogct) * sizeof(::rgb_color));
}

bool CKxGifImage::GifReading::IsInside(const tag_image& descriptor, const tag_dscgif& screen)
{
    return descriptor.left + descriptor.width <= screen.screenWidth &&
           descriptor.top + descriptor.height <= screen.screenHeight;
}

unsigned long CKxGifImage::GifReading::DepthOf(const tag_TabCol& table)
{
    return table.sogct <= 2 ? 1 : table.sogct > 16 ? 8 : 4;
}

// A picture of no pixels is none, and is no reason to stop.
bool CKxGifImage::GifReading::CannotCreate(void* block, unsigned long width, unsigned long height)
{
    return !block && width != 0 && height != 0;
}

int CKxGifImage::GifReading::CountFrames(tag_TabCol table, const tag_dscgif& screen)
{
    const long start = m_file.Tell();
    int count = 0;
    bool afterNull = true;
    std::uint8_t value = 0;
    while (ReadByte(value))
    {
        if (!afterNull && value != 0)
            continue;
        if (value == '!')
            m_image.DecodeExtension(&m_file);
        else if (value == ',')
        {
            if (!CountFrame(table, screen, count))
                break;
        }
        else if (value == ';')
            break;
        else
            afterNull = value == 0;
    }
    m_file.Seek(start, 0);
    return count;
}

// A frame is decoded only to find the end of its raster.
bool CKxGifImage::GifReading::CountFrame(tag_TabCol& table, const tag_dscgif& screen, int& count)
{
    tag_image descriptor{};
    if (!ReadDescriptor(descriptor) || !IsInside(descriptor, screen))
        return true;
    ++count;
    ReadTable(descriptor.flags, table);
    void* const block = m_image.Create(descriptor.width, descriptor.height, DepthOf(table));
    if (CannotCreate(block, descriptor.width, descriptor.height))
        return false;
    const long rasterStart = m_file.Tell();
    BeginRaster(descriptor);
    CKxGifImageIterator iterator(&m_image);
    iterator.Upset();
    DecodeRaster(&iterator, descriptor.width);
    EndRaster(rasterStart);
    return true;
}

void CKxGifImage::GifReading::BeginRaster(const tag_image& descriptor)
{
    m_image.m_input.readIndex = InputBuffer::ForceRefill;
    m_image.m_interlace = {descriptor.flags & 0x40, 0, 8, descriptor.height, 0};
}

void CKxGifImage::GifReading::EndRaster(long start)
{
    if (BadCodes() != 0)
        m_image.seek_next_image(&m_file, start);
    else
        m_file.Seek(m_image.m_input.readIndex - m_image.m_input.validCount + 1, 1);
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
    raster.window = 65536;
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
    std::uint8_t packed[32768 / 2];
    length = std::min<std::size_t>(length, target.GetWidth());
    const int bits = target.GetBpp();
    if (bits >= 8)
    {
        iterator.SetRow(const_cast<std::uint8_t*>(row), static_cast<int>(length));
        return;
    }
    length = std::min<std::size_t>(length, 32768);
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
        iterator->SetY(interlace.frameHeight - interlace.rowPosition -
                       1); // a row beyond the end goes where the last went
        storePixels(*target, *iterator, row, length);
    }
    interlace.rowPosition += interlace.rowStep;
    if (interlace.rowPosition < interlace.frameHeight)
        return true;
    do
    {
        if (interlace.pass > 0)
            interlace.rowStep /= 2;
        ++interlace.pass;
        interlace.rowPosition = interlace.rowStep / 2;
    } while (interlace.rowPosition > interlace.frameHeight);
    return true;
}
