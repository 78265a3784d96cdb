// The scan of a GIF stream, and the pass that counts its frames.
#include "GifReading.h"

#include <algorithm>
#include <cstring>
#include "GifInput.h"

CKxGifImage::GifReading::Before::Before(const CKxGifImage& image)
    : m_info(image.m_Info), m_control(image.m_graphicControl), m_loops(image.m_nLoops), m_disposal(image.m_nDisposal),
      m_prefixFilled(image.m_lzwDecoder.prefixFilled)
{
    std::memcpy(m_comment, image.m_comment, sizeof m_comment);
    if (m_prefixFilled)
        std::memcpy(m_prefixes, image.m_lzwDecoder.prefix.data() + std::size(m_prefixes), sizeof m_prefixes);
}

void CKxGifImage::GifReading::Before::PutBack(CKxGifImage& image) const
{
    image.m_Info.nTransIndex = m_info.nTransIndex;
    image.m_Info.nFrameDelay = m_info.nFrameDelay;
    image.m_Info.nFrame = m_info.nFrame;
    image.m_graphicControl = m_control;
    image.m_nLoops = m_loops;
    image.m_nDisposal = m_disposal;
    std::memcpy(image.m_comment, m_comment, sizeof m_comment);
    image.m_lzwDecoder.prefixFilled = m_prefixFilled;
    if (m_prefixFilled)
        std::memcpy(image.m_lzwDecoder.prefix.data() + std::size(m_prefixes), m_prefixes, sizeof m_prefixes);
}

CKxGifImage::GifReading::GifReading(CKxGifImage& image, CKxMemFile& file, GifWay way)
    : m_image(image), m_file(file), m_way(way)
{
    if (way == GifWay::Observed)
        return;
    m_bytes = file.m_pData;
    m_size = m_bytes ? file.m_nLogicalSize : 0;
}

CKxGifImage::GifReading::Result CKxGifImage::GifReading::Decode()
{
    m_file.Read(&m_screen, sizeof m_screen, 1); // what is missing is zero
    if (std::memcmp(m_screen.header, "GIF8", 4) != 0)
        return Result::Failed;
    if (m_image.GetEscape() == -1)
    {
        m_image.Destroy();
        m_image.m_Head.biWidth = m_screen.screenWidth;
        m_image.m_Head.biHeight = m_screen.screenHeight;
        return Result::Good;
    }
    m_table.colorResolution = static_cast<std::int16_t>(((m_screen.flags & 0x70) >> 3) + 1);
    m_table.sogct = static_cast<std::int16_t>(1 << ((m_screen.flags & 7) + 1));
    if ((m_screen.flags & 0x80) == 0)
        ++m_score;
    ReadTable(m_screen.flags, m_table);
    GifImageInfo& info = m_image.m_Info;
    info.nNumFrames = CountFrames(m_table, m_screen);
    const bool found = info.nFrame >= 0 && info.nFrame < info.nNumFrames;
    if (m_way == GifWay::OnePass && !(m_sound && found))
        return Result::Again;
    if (!found)
    {
        LeaveLastCounted();
        return Result::Failed;
    }
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

int CKxGifImage::GifReading::CountFrames(tag_TabCol table, const tag_dscgif& screen)
{
    const long start = m_file.Tell();
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
            if (!CountFrame(table, screen))
                break;
        }
        else if (value == ';')
            break;
        else
            afterNull = value == 0;
    }
    m_file.Seek(start, 0);
    return m_frames;
}

// False when there is no use in going on.
bool CKxGifImage::GifReading::CountFrame(tag_TabCol& table, const tag_dscgif& screen)
{
    tag_image descriptor{};
    if (!ReadDescriptor(descriptor) || !IsInside(descriptor, screen))
        return true;
    ReadTable(descriptor.flags, table);
    ++m_frames;
    Frame& frame = m_lastCounted = {descriptor, DepthOf(table), Position(), 0};
    if (m_way == GifWay::Observed)
        return CountObserved(frame);
    if (IsTooLarge(descriptor))
    {
        m_sound = false;
        return false;
    }
    if (HasPixels(descriptor))
        m_lastWithPixels = frame;
    if (m_way == GifWay::TwoPasses)
        CountLengths(frame);
    else
        CountBlocks(frame);
    return m_sound;
}

// The frame is really decoded, only to find the end of its raster.
bool CKxGifImage::GifReading::CountObserved(const Frame& frame)
{
    const tag_image& descriptor = frame.descriptor;
    if (!m_image.Create(descriptor.width, descriptor.height, frame.depth) && HasPixels(descriptor))
        return false;
    BeginRaster(descriptor);
    CKxGifImageIterator iterator(&m_image);
    iterator.Upset();
    DecodeRaster(&iterator, descriptor.width);
    EndRaster(frame.start);
    return true;
}

void CKxGifImage::GifReading::CountLengths(const Frame& frame)
{
    const LzwDecoderState& state = m_image.m_lzwDecoder;
    if (HasPixels(frame.descriptor) && state.prefixFilled)
        m_prefixBefore.assign(state.prefix.data() + state.prefix.size() / 2, state.prefix.data() + state.prefix.size());
    DecodeBytes(frame, nullptr);
    EndRaster(frame.start);
}

void CKxGifImage::GifReading::CountBlocks(Frame& frame)
{
    std::size_t at = frame.start;
    m_sound = HasPixels(frame.descriptor) && at < m_size && m_bytes[at] >= 2 && m_bytes[at] <= 9;
    ++at;
    while (m_sound && at < m_size && m_bytes[at] != 0)
        at += m_bytes[at] + std::size_t{1};
    m_sound = m_sound && at < m_size && m_counted.size() < MostInOnePass;
    frame.end = at + 1;
    m_counted.push_back(frame);
    m_file.Seek(static_cast<long>(at + 1), 0);
}

// The plain form has counted in the image itself, so that the last counted frame is found there when no other picture
// takes its place.
void CKxGifImage::GifReading::LeaveLastCounted()
{
    if (m_way != GifWay::TwoPasses || m_frames == 0)
        return;
    m_image.Destroy();
    const Frame& last = m_lastWithPixels;
    const tag_image& descriptor = last.descriptor;
    if (!HasPixels(descriptor))
        return;
    m_image.Create(descriptor.width, descriptor.height, last.depth);
    if (last.start != m_lastCounted.start)
    {
        m_image.Destroy(); // only the sizes of that frame are left
        return;
    }
    const std::size_t position = Position();
    LzwDecoderState& state = m_image.m_lzwDecoder;
    const LzwDecoderState after = state;
    if (!m_prefixBefore.empty())
        std::copy(m_prefixBefore.begin(), m_prefixBefore.end(), state.prefix.data() + state.prefix.size() / 2);
    else
        state.prefixFilled = false;
    m_file.Seek(static_cast<long>(last.start), 0);
    BeginRaster(descriptor);
    CKxGifImageIterator iterator(&m_image);
    iterator.Upset();
    DecodeRaster(&iterator, descriptor.width);
    state = after;
    m_file.Seek(static_cast<long>(position), 0);
}
