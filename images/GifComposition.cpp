// How the frames of a GIF come together: over one another, or side by side as tiles of a true-colour picture.
#include <algorithm>
#include <cstring>

#include "GifReading.h"

bool CKxGifImage::GifReading::Scan()
{
    bool afterNull = true;
    std::uint8_t value = 0;
    while (ReadByte(value))
    {
        if (m_image.GetEscape() > 0)
            return false;
        if (!afterNull && value != 0)
            continue;
        if (value == '!')
        {
            if (!m_image.DecodeExtension(&m_file))
                break;
        }
        else if (value == ',')
        {
            const Step step = ReadFrame();
            if (step == Step::Failed)
                return false;
            if (step == Step::Done)
                break;
        }
        else if (value == ';')
            break;
        else
            afterNull = value == 0;
    }
    FinishMosaic();
    return true;
}

CKxGifImage::GifReading::Step CKxGifImage::GifReading::ReadFrame()
{
    tag_image descriptor{};
    if (!ReadDescriptor(descriptor) || !IsInside(descriptor, m_screen))
        return Step::Next;
    if (m_counter == 0 && descriptor.width != m_screen.screenWidth && descriptor.height != m_screen.screenHeight)
        ++m_score;
    ReadTable(descriptor.flags, m_table);
    const unsigned long depth = DepthOf(m_table);
    CKxGifImage background;
    if (!MakeBackground(background, depth) ||
        CannotCreate(m_image.Create(descriptor.width, descriptor.height, depth), descriptor.width, descriptor.height))
    {
        m_image.Destroy();
        return Step::Failed;
    }
    if (((descriptor.flags | m_screen.flags) & 0x80) != 0)
        SetPalette();
    CKxGifImageIterator iterator(&m_image);
    iterator.Upset();
    BeginRaster(descriptor);
    const long start = m_file.Tell();
    DecodeRaster(&iterator, descriptor.width);
    if (m_image.GetEscape() != 0)
        return Step::Failed;
    if (m_score >= 2)
        AddToMosaic(descriptor);
    else
        Compose(background, descriptor);
    m_disposal = m_image.m_graphicControl.Disposal();
    EndRaster(start);
    return m_image.m_Info.nFrame == m_counter++ ? Step::Done : Step::Next;
}

bool CKxGifImage::GifReading::MakeBackground(CKxGifImage& background, unsigned long depth)
{
    background.CopyInfo(m_image);
    if (m_counter > 0)
    {
        background.Copy(m_image, true, true, true);
        if (m_disposal == 2)
            background.Clear(static_cast<unsigned char>(m_background));
        return true;
    }
    m_background = m_image.m_Info.nTransIndex;
    if (CannotCreate(background.Create(m_screen.screenWidth, m_screen.screenHeight, depth), m_screen.screenWidth,
                     m_screen.screenHeight))
        return false;
    background.Clear(m_image.m_graphicControl.transparentIndex);
    return true;
}

// With a transparent index the entries that the stream does not have are white.
void CKxGifImage::GifReading::SetPalette()
{
    ::rgb_color colors[256];
    std::memset(colors, 255, sizeof colors);
    const auto count = static_cast<std::size_t>(m_table.sogct);
    std::copy_n(m_table.colors, count, colors);
    m_image.SetPalette(colors, m_image.m_Info.nTransIndex == -1 ? static_cast<unsigned long>(count) : 256UL);
}

void CKxGifImage::GifReading::Compose(CKxGifImage& background, tag_image& descriptor)
{
    if (m_image.IsValid())
        background.GifMix(m_image, descriptor);
    background.m_Info.nTransIndex = m_background;
    background.SetPalette(m_image.GetPalette(), m_image.GetNumColors());
    m_image.Transfer(background);
}

void CKxGifImage::GifReading::AddToMosaic(const tag_image& descriptor)
{
    m_image.m_Info.nFrame = m_image.m_Info.nNumFrames - 1;
    if (!m_hasMosaic)
        m_mosaic.Create(m_screen.screenWidth, m_screen.screenHeight, 24);
    m_hasMosaic = true;
    for (long y = 0; y < descriptor.height; ++y)
        for (long x = 0; x < descriptor.width; ++x)
            m_mosaic.SetPixelColor(x + descriptor.left, m_screen.screenHeight - 1 - descriptor.top - y,
                                   m_image.GetPixelColor(x, descriptor.height - y - 1));
}

// The picture keeps what the image knows besides: it is transparent when the last control block says so.
void CKxGifImage::GifReading::FinishMosaic()
{
    if (m_score < 2 || !m_hasMosaic)
        return;
    GifImageInfo info = m_image.m_Info;
    info.pImage = m_mosaic.m_Info.pImage;
    info.nEffWidth = m_mosaic.m_Info.nEffWidth;
    const bool transparent = m_image.m_graphicControl.IsTransparent();
    info.TransColor = {};
    if (transparent)
        info.TransColor = m_image.GetPaletteColor(static_cast<unsigned char>(info.nTransIndex));
    info.nTransIndex = transparent ? 0 : -1;
    m_mosaic.m_Info = info;
    m_image.Transfer(m_mosaic);
}
