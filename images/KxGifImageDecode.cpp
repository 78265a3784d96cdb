// Reading GIF: the operations of the image class.
#include <algorithm>
#include <cstring>
#include <new>
#include <typeinfo>

#include "GifReading.h"
#include "GifRowPacking.h"

CKxGifImage::CKxGifImage(CByteArray& data)
{
    Startup();
    Decode(data);
}

bool CKxGifImage::Decode(CByteArray& data)
{
    return Decode(data.GetData(), static_cast<unsigned long>(data.GetSize()));
}

bool CKxGifImage::Decode(unsigned char* data, unsigned long size)
{
    CKxMemFile file(data, size);
    return Decode(&file);
}

bool CKxGifImage::Decode(CKxMemFile* file)
try
{
    if (!file)
        return false;
    const bool plain = typeid(*file) == typeid(CKxMemFile) && GetEscape() == 0 && !m_Info.pGhostOf;
    if (!plain)
        return GifReading(*this, *file, GifWay::Observed).Decode() == GifReading::Result::Good;
    const long start = file->Tell();
    const GifReading::Before before(*this);
    const GifReading::Result result = GifReading(*this, *file, GifWay::OnePass).Decode();
    if (result != GifReading::Result::Again)
        return result == GifReading::Result::Good;
    before.PutBack(*this);
    file->Seek(start, 0);
    return GifReading(*this, *file, GifWay::TwoPasses).Decode() == GifReading::Result::Good;
}
catch (const std::bad_alloc&)
{
    Destroy();
    return false;
}

namespace
{
bool readByte(CKxMemFile& file, std::uint8_t& value)
{
    return file.Read(&value, 1, 1) == 1;
}

// A block of no bytes is a failed read.
bool readBlock(CKxMemFile& file, std::uint8_t count, void* target, std::size_t& came)
{
    came = file.Read(target, 1, count);
    return came == count && count != 0;
}

bool skipBlocks(CKxMemFile& file)
{
    std::uint8_t count = 0;
    while (readByte(file, count))
    {
        if (count == 0)
            return true;
        file.Seek(count, 1);
    }
    return false;
}
} // namespace

bool CKxGifImage::DecodeExtension(CKxMemFile* file)
{
    std::uint8_t label = 0;
    if (!file || !readByte(*file, label))
        return false;
    bool good = true;
    if (label == 0xF9)
        good = ReadControl(*file);
    else if (label == 0xFE)
        good = ReadComment(*file);
    else if (label == 0xFF)
        good = ReadApplication(*file);
    return good && skipBlocks(*file);
}

// The size byte must be that of the bytes that came.
bool CKxGifImage::ReadControl(CKxMemFile& file)
{
    std::uint8_t count = 0;
    if (!readByte(file, count) || file.Read(&m_graphicControl, 1, sizeof m_graphicControl) != count)
        return false;
    if (m_graphicControl.IsTransparent())
        m_Info.nTransIndex = m_graphicControl.transparentIndex;
    m_Info.nFrameDelay = m_graphicControl.delay;
    m_nDisposal = m_graphicControl.Disposal();
    return true;
}

bool CKxGifImage::ReadComment(CKxMemFile& file)
{
    std::uint8_t count = 0;
    if (!readByte(file, count))
        return false;
    std::size_t came = 0;
    std::memset(m_comment, 0, sizeof m_comment);
    return readBlock(file, count, m_comment, came);
}

// The loop count is taken from whatever application the block is of, on purpose.
bool CKxGifImage::ReadApplication(CKxMemFile& file)
{
    std::uint8_t count = 0;
    std::uint8_t bytes[255] = {};
    std::size_t came = 0;
    if (!readByte(file, count) || count != 11 || !readBlock(file, count, bytes, came) || !readByte(file, count))
        return false;
    const bool good = readBlock(file, count, bytes, came);
    if (came > 2)
        m_nLoops = bytes[1] | bytes[2] << 8;
    return good;
}

int CKxGifImage::get_byte(CKxMemFile* file)
{
    return file ? GifFileInput(*file, m_input).Byte() : -1;
}

int CKxGifImage::out_line(CKxGifImageIterator* iterator, unsigned char* row, int length)
{
    if (!row || length < 0)
        return -1;
    CKxGifImage* const image = iterator ? static_cast<CKxGifImage*>(*iterator) : nullptr;
    const bool stored = GifReading::StoreRow(*this, iterator, row, static_cast<std::size_t>(length));
    if (image && image->GetBpp() < 8)
        packRow(row, row, std::min<std::size_t>(static_cast<std::size_t>(length), image->GetWidth()), image->GetBpp());
    return stored ? 0 : -1;
}

short CKxGifImage::init_exp(short size)
{
    if (size >= 2 && size <= 9)
    {
        GifLzwDecoder::Initialize(m_lzwDecoder, size);
        GifLzwDecoder::ClearTables(m_lzwDecoder);
    }
    return 0;
}

short CKxGifImage::get_next_code(CKxMemFile* file)
{
    if (!file)
        return GifInput::End;
    GifFileInput input(*file, m_input);
    return static_cast<short>(GifCodeReader::NextPlain(m_lzwDecoder, input));
}

short CKxGifImage::decoder(CKxMemFile* file, CKxGifImageIterator* iterator, short width, int& badCodes)
{
    badCodes = 0;
    if (!file)
        return -1;
    GifReading reading(*this, *file, GifWay::Observed);
    // A width of 32,768 or more comes as a negative one, and is the row that cannot be allocated.
    const GifLzwDecoder::End end = reading.DecodeRaster(iterator, static_cast<std::uint16_t>(width));
    badCodes = reading.BadCodes();
    switch (end)
    {
    case GifLzwDecoder::End::BadCodeSize:
        return LzwDecoderState::BadCodeSize;
    case GifLzwDecoder::End::NoMemory:
        return LzwDecoderState::OutOfMemory;
    case GifLzwDecoder::End::NoCodeSize:
    case GifLzwDecoder::End::OutOfRows:
        return -1;
    default:
        return 0;
    }
}

int CKxGifImage::get_num_frames(CKxMemFile* file, tag_TabCol* table, tag_dscgif* screen)
{
    return file && table && screen ? GifReading(*this, *file, GifWay::Observed).CountFrames(*table, *screen) : 0;
}

long CKxGifImage::seek_next_image(CKxMemFile* file, long position)
{
    if (!file)
        return -1;
    file->Seek(position, 0);
    std::uint8_t last = 0;
    std::uint8_t value = 0;
    while (readByte(*file, value))
    {
        if (value == ',' && last == 0)
        {
            file->Seek(-1, 1);
            return file->Tell();
        }
        last = value;
    }
    return -1;
}

void CKxGifImage::GifMix(CKxGifImage& frame, tag_image& descriptor)
{
    const auto height = static_cast<long>(GetHeight());
    const auto frameHeight = static_cast<long>(frame.GetHeight());
    const long first = std::max(0L, height - descriptor.top - frameHeight);
    const long end = height - descriptor.top;
    const long right =
        std::min<long>(descriptor.left + static_cast<long>(frame.GetWidth()), static_cast<long>(GetWidth()));
    for (long y = first; y < end; ++y)
        for (long x = descriptor.left; x < right; ++x)
        {
            const unsigned char index = frame.GetPixelIndex(x - descriptor.left, y - first);
            if (index != frame.m_Info.nTransIndex)
                SetPixelIndex(x, y, index);
        }
}
