// How the frames of a GIF come together: over one another, or side by side as tiles of a true-colour picture.
#include <algorithm>
#include <cstring>

#include "GifReading.h"
#include "GifRowPacking.h"

CKxGifImage::GifReading::Result CKxGifImage::GifReading::Scan()
{
    bool afterNull = true;
    std::uint8_t value = 0;
    Step step = Step::Next;
    while (step == Step::Next && ReadByte(value))
    {
        if (m_image.GetEscape() > 0)
            return Stopped();
        if (!afterNull && value != 0)
            continue;
        if (value == '!')
            step = m_image.DecodeExtension(&m_file) ? Step::Next : Step::Done;
        else if (value == ',')
            step = ReadFrame();
        else if (value == ';')
            step = Step::Done;
        else
            afterNull = value == 0;
    }
    if (step == Step::Failed)
        return Result::Failed;
    if (step == Step::Again || (m_way == GifWay::OnePass && !ProveTheRest()))
        return Result::Again;
    FinishPicture();
    return Result::Good;
}

// Between two frames: the picture is what there is of it; tiles are not put together.
CKxGifImage::GifReading::Result CKxGifImage::GifReading::Stopped()
{
    if (m_way == GifWay::OnePass)
        return Result::Again;
    if (m_counter == 0 || m_score < 2)
        FinishPicture();
    else if (m_way != GifWay::Observed)
        m_image.Destroy();
    return Result::Failed;
}

CKxGifImage::GifReading::Step CKxGifImage::GifReading::ReadFrame()
{
    Frame frame{};
    tag_image& descriptor = frame.descriptor;
    if (!ReadDescriptor(descriptor) || !IsInside(descriptor, m_screen))
        return Step::Next;
    if (m_counter == 0 && descriptor.width != m_screen.screenWidth && descriptor.height != m_screen.screenHeight)
        ++m_score;
    ReadTable(descriptor.flags, m_table);
    frame.depth = DepthOf(m_table);
    frame.start = Position();
    if (m_counter == 0 && !BeginCanvas(frame.depth))
    {
        LeaveLastCounted();
        m_image.Destroy();
        return m_way == GifWay::OnePass ? Step::Again : Step::Failed;
    }
    if (m_disposal == 2 && m_score < 2)
        m_canvas.Clear(static_cast<std::uint8_t>(m_background));
    MakePalette(frame);
    const GifFrameColors colors = ColorsOf(frame);
    const bool drawn = m_way == GifWay::Observed ? DrawObserved(frame, colors) : DrawBytes(frame, colors);
    if (!drawn)
        return m_way == GifWay::OnePass ? Step::Again : Step::Failed;
    EndFrame(frame);
    return m_image.m_Info.nFrame == m_counter++ ? Step::Done : Step::Next;
}

bool CKxGifImage::GifReading::BeginCanvas(unsigned long depth)
{
    m_background = m_image.m_Info.nTransIndex;
    if (m_way != GifWay::Observed)
        m_image.Destroy();
    // The canvas writes each byte of a row but the padding of true colour.
    const bool trueColor = m_score >= 2;
    if (!m_picture.CreateIn(trueColor ? SharedBytes::Allocate : SharedBytes::AllocateUnset, m_screen.screenWidth,
                            m_screen.screenHeight, trueColor ? 24 : depth))
        return m_screen.screenWidth == 0 || m_screen.screenHeight == 0;
    m_canvas.Begin(m_picture.GetBits(), m_screen.screenWidth, m_screen.screenHeight, m_picture.GetEffWidth(),
                   m_picture.GetBpp());
    m_canvas.Clear(m_image.m_graphicControl.transparentIndex);
    return true;
}

// Black without a table. With a transparent index the entries that the stream does not have are white.
void CKxGifImage::GifReading::MakePalette(const Frame& frame)
{
    std::memset(m_palette, 0, sizeof m_palette);
    m_colors = HasPixels(frame.descriptor) ? 1UL << frame.depth : 0;
    if (((frame.descriptor.flags | m_screen.flags) & 0x80) == 0)
        return;
    const auto count = static_cast<unsigned long>(m_table.sogct);
    for (unsigned long i = 0; i < std::min(m_colors, count); ++i)
        m_palette[i] = {m_table.colors[i].b, m_table.colors[i].g, m_table.colors[i].r, 0};
    if (m_image.m_Info.nTransIndex != -1)
        for (unsigned long i = count; i < m_colors; ++i)
            m_palette[i] = {255, 255, 255, 0};
}

GifFrameColors CKxGifImage::GifReading::ColorsOf(const Frame& frame) const
{
    GifFrameColors colors;
    colors.mask = static_cast<std::uint8_t>((1U << frame.depth) - 1U);
    colors.palette = reinterpret_cast<const std::uint8_t*>(m_palette);
    const std::int32_t transparent = m_image.m_Info.nTransIndex;
    if (m_score < 2 && transparent >= 0 && transparent <= colors.mask && !m_canvas.IsNothingBut(transparent))
        colors.transparent = transparent;
    return colors;
}

// Into the image itself, which keeps the frame when the decode is stopped, and from there onto the canvas.
bool CKxGifImage::GifReading::DrawObserved(const Frame& frame, const GifFrameColors& colors)
{
    const tag_image& descriptor = frame.descriptor;
    if (!m_image.Create(descriptor.width, descriptor.height, frame.depth) && HasPixels(descriptor))
        return false;
    m_image.SetPalette(m_palette, m_colors);
    BeginRaster(descriptor);
    CKxGifImageIterator iterator(&m_image);
    iterator.Upset();
    DecodeRaster(&iterator, descriptor.width);
    if (m_image.GetEscape() != 0)
    {
        if (!HasPixels(descriptor) && m_counter > 0 && m_score < 2)
        {
            // No block, and the sizes of the picture so far.
            m_image.m_Head.biWidth = m_picture.m_Head.biWidth;
            m_image.m_Head.biHeight = m_picture.m_Head.biHeight;
        }
        return false;
    }
    std::vector<std::uint8_t> pixels(descriptor.width);
    for (std::size_t y = 0; y < descriptor.height && HasPixels(descriptor); ++y)
    {
        unpackRow(pixels.data(), m_image.GetBits(static_cast<unsigned long>(y)), 0, pixels.size(),
                  static_cast<int>(frame.depth));
        m_canvas.PutRow(std::size_t{m_screen.screenHeight} - descriptor.top - descriptor.height + y, descriptor.left,
                        pixels.data(), pixels.size(), colors);
    }
    return true;
}

// Straight onto the canvas, unless a row that comes twice would have to be taken back.
bool CKxGifImage::GifReading::DrawBytes(const Frame& frame, const GifFrameColors& colors)
{
    const tag_image& descriptor = frame.descriptor;
    const bool interlaced = (descriptor.flags & 0x40) != 0;
    const bool replaces = interlaced && colors.transparent >= 0;
    if (replaces && (m_way == GifWay::TwoPasses || !GifRowOrder(descriptor).IsStraight()))
    {
        GifRowStore rows(descriptor, static_cast<int>(frame.depth));
        DecodeBytes(frame, &rows);
        rows.Draw(m_canvas, m_screen.screenHeight, colors);
    }
    else
    {
        GifRowsToCanvas rows(m_canvas, m_screen.screenHeight, descriptor, colors);
        DecodeBytes(frame, &rows);
        if (HasPixels(descriptor))
            rows.Finish();
        if (replaces && m_lzw.Pixels() > std::uint64_t{descriptor.width} * descriptor.height)
            return false;
    }
    if (m_way == GifWay::OnePass)
        return m_image.GetEscape() == 0 && IsAsCounted(m_counted[static_cast<std::size_t>(m_counter)]);
    if (m_image.GetEscape() == 0)
        return true;
    m_image.Destroy();
    return false;
}

bool CKxGifImage::GifReading::IsAsCounted(const Frame& frame) const
{
    return BadCodes() == 0 && m_used + 1 == frame.end;
}

void CKxGifImage::GifReading::EndFrame(const Frame& frame)
{
    if (m_score >= 2)
        m_image.m_Info.nFrame = m_image.m_Info.nNumFrames - 1;
    else
    {
        m_image.m_Info.nTransIndex = m_background;
        m_picture.SetPalette(m_palette, m_colors);
    }
    m_disposal = m_image.m_graphicControl.Disposal();
    EndRaster(frame.start);
}

// The frames that were not asked for. What the tables keep of them is older than what they keep of the others.
bool CKxGifImage::GifReading::ProveTheRest()
{
    if (m_counter == 0)
        return false;
    const auto first = static_cast<std::size_t>(m_counter);
    if (first == m_counted.size())
        return true;
    LzwDecoderState& state = m_image.m_lzwDecoder;
    const LzwDecoderState asked = state;
    const unsigned kept = m_lzw.TakeKept();
    for (std::size_t i = first; i < m_counted.size(); ++i)
    {
        DecodeBytes(m_counted[i], nullptr);
        if (!IsAsCounted(m_counted[i]))
            return false;
    }
    for (std::size_t i = state.prefix.size() / 2; i < kept; ++i)
        state.prefix[i] = asked.prefix[i];
    return true;
}

// A true-colour picture is transparent when the last control block says so.
void CKxGifImage::GifReading::FinishPicture()
{
    if (m_counter == 0)
    {
        LeaveLastCounted();
        return;
    }
    m_canvas.Finish();
    GifImageInfo& info = m_image.m_Info;
    if (m_score >= 2)
    {
        const bool transparent = m_image.m_graphicControl.IsTransparent();
        const auto index = static_cast<std::uint8_t>(info.nTransIndex);
        info.TransColor = transparent && index < m_colors ? m_palette[index] : RGBQUAD{};
        info.nTransIndex = transparent ? 0 : -1;
    }
    info.bLastValid = false;
    m_picture.m_Info = info;
    m_picture.PointAtPixels();
    m_image.Transfer(m_picture);
}
