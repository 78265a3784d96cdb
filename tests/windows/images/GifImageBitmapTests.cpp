// Images to and from bitmaps of the platform.
#include <gtest/gtest.h>

#include <afxwin.h>

#include <cstring>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "support/LeakCounters.h"

namespace
{
COLORREF colorref(RGBQUAD color)
{
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}

// Every pixel another colour, as far as there are colours.
CKxGifImage sample(unsigned long bpp)
{
    CKxGifImage image(13, 7, bpp);
    for (int i = 0; i < 256; ++i)
        image.SetPaletteColor(static_cast<unsigned char>(i), static_cast<unsigned char>(i * 5 + 3),
                              static_cast<unsigned char>(i * 9 + 80), static_cast<unsigned char>(255 - i));
    for (long y = 0; y < 7; ++y)
        for (long x = 0; x < 13; ++x)
        {
            image.SetPixelIndex(x, y, static_cast<unsigned char>(x + 13 * y));
            if (bpp == 24)
                image.SetPixelColor(x, y, RGB(x * 19, y * 36, x * y));
        }
    return image;
}

/// A bitmap, selected into a device context so that its pixels can be asked for.
class Probe
{
public:
    explicit Probe(HBITMAP bitmap) : m_bitmap(bitmap)
    {
        m_dc.CreateCompatibleDC(nullptr);
        m_old = SelectObject(m_dc, bitmap);
    }
    ~Probe()
    {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
    }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;

    BITMAP description() const
    {
        BITMAP result{};
        GetObjectW(m_bitmap, sizeof result, &result);
        return result;
    }
    COLORREF at(int x, int y) const { return GetPixel(m_dc, x, y); }

private:
    CDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

void expectSamePicture(const CKxGifImage& image, const Probe& probe)
{
    const int height = static_cast<int>(image.GetHeight());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < static_cast<int>(image.GetWidth()); ++x)
            EXPECT_EQ(probe.at(x, height - 1 - y), colorref(image.GetPixelColor(x, y))) << x << ", " << y;
}

HBITMAP section(WORD bits, int width, int height, const std::vector<RGBQUAD>& colors, void** pixels)
{
    std::vector<unsigned char> info(sizeof(BITMAPINFOHEADER) + 1024);
    auto* const header = reinterpret_cast<BITMAPINFOHEADER*>(info.data());
    header->biSize = sizeof(BITMAPINFOHEADER);
    header->biWidth = width;
    header->biHeight = height;
    header->biPlanes = 1;
    header->biBitCount = bits;
    header->biClrUsed = static_cast<DWORD>(colors.size());
    if (!colors.empty())
        std::memcpy(header + 1, colors.data(), colors.size() * sizeof(RGBQUAD));
    return CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(info.data()), DIB_RGB_COLORS, pixels, nullptr, 0);
}

// A device context whose bitmaps are of the screen's depth.
class ScreenDc
{
public:
    ~ScreenDc() { ReleaseDC(nullptr, m_dc); }
    operator HDC() const { return m_dc; }

private:
    HDC m_dc = GetDC(nullptr);
};

class Ghostly : public CKxGifImage
{
public:
    using CKxGifImage::Ghost;
};
} // namespace

TEST(GifImageBitmap, an_empty_image_makes_no_bitmap)
{
    CKxGifImage image;
    EXPECT_EQ(image.MakeBitmap(nullptr), nullptr);
    const ScreenDc screen;
    EXPECT_EQ(image.MakeBitmap(screen), nullptr);
}

TEST(GifImageBitmap, without_a_device_makes_a_section_of_its_own_depth)
{
    for (const unsigned long bpp : {1UL, 4UL, 8UL, 24UL})
    {
        SCOPED_TRACE(bpp);
        CKxGifImage image = sample(bpp);
        const Probe probe(image.MakeBitmap(nullptr));
        const BITMAP description = probe.description();
        EXPECT_EQ(description.bmWidth, 13);
        EXPECT_EQ(description.bmHeight, 7);
        EXPECT_EQ(description.bmBitsPixel, bpp);
        ASSERT_NE(description.bmBits, nullptr);
        EXPECT_EQ(std::memcmp(description.bmBits, image.GetBits(), image.GetEffWidth() * 7), 0);
        expectSamePicture(image, probe);
    }
}

TEST(GifImageBitmap, with_a_device_makes_a_bitmap_of_that_device)
{
    const ScreenDc screen;
    for (const unsigned long bpp : {1UL, 4UL, 8UL, 24UL})
    {
        SCOPED_TRACE(bpp);
        CKxGifImage image = sample(bpp);
        const Probe probe(image.MakeBitmap(screen));
        const BITMAP description = probe.description();
        EXPECT_EQ(description.bmWidth, 13);
        EXPECT_EQ(description.bmHeight, 7);
        EXPECT_EQ(description.bmBitsPixel, GetDeviceCaps(screen, BITSPIXEL));
        EXPECT_EQ(description.bmBits, nullptr);
        expectSamePicture(image, probe);
    }
}

TEST(GifImageBitmap, is_made_from_the_head_whatever_stands_in_the_block)
{
    CKxGifImage image = sample(8);
    std::memset(image.GetDIB(), 255, sizeof(BITMAPINFOHEADER));
    const Probe probe(image.MakeBitmap(nullptr));
    EXPECT_EQ(probe.description().bmWidth, 13);
    expectSamePicture(image, probe);
}

TEST(GifImageBitmap, reads_sections_of_every_depth)
{
    for (const WORD bits : {WORD{1}, WORD{4}, WORD{8}})
    {
        SCOPED_TRACE(bits);
        std::vector<RGBQUAD> colors;
        for (int i = 0; i < 1 << bits; ++i)
            colors.push_back({static_cast<BYTE>(i), static_cast<BYTE>(255 - i), static_cast<BYTE>(i * 7), 0});
        void* pixels = nullptr;
        const HBITMAP bitmap = section(bits, 20, 3, colors, &pixels);
        ASSERT_NE(bitmap, nullptr);
        const std::size_t stride = (20U * bits + 31) / 32 * 4;
        for (std::size_t i = 0; i < stride * 3; ++i)
            static_cast<unsigned char*>(pixels)[i] = static_cast<unsigned char>(i * 37 + 11);
        CKxGifImage image(2, 2, 24);
        EXPECT_TRUE(image.CreateFromHBITMAP(bitmap, nullptr));
        EXPECT_EQ(image.GetBpp(), bits);
        EXPECT_EQ(image.GetWidth(), 20U);
        EXPECT_EQ(image.GetHeight(), 3U);
        EXPECT_EQ(image.GetEffWidth(), stride);
        for (int i = 0; i < 1 << bits; ++i)
            EXPECT_EQ(colorref(image.GetPaletteColor(static_cast<unsigned char>(i))), RGB(i * 7 & 255, 255 - i, i))
                << i;
        expectSamePicture(image, Probe(bitmap));
    }
}

TEST(GifImageBitmap, reads_24_and_32_bits_as_true_colour)
{
    for (const WORD bits : {WORD{24}, WORD{32}})
    {
        SCOPED_TRACE(bits);
        void* pixels = nullptr;
        const HBITMAP bitmap = section(bits, 5, 3, {}, &pixels);
        const std::size_t stride = (5U * bits + 31) / 32 * 4;
        for (std::size_t i = 0; i < stride * 3; ++i)
            static_cast<unsigned char*>(pixels)[i] = static_cast<unsigned char>(i * 37 + 11);
        CKxGifImage image;
        EXPECT_TRUE(image.CreateFromHBITMAP(bitmap, nullptr));
        EXPECT_EQ(image.GetBpp(), 24);
        EXPECT_FALSE(image.IsIndexed());
        EXPECT_EQ(colorref(image.GetPixelColor(0, 0)), RGB(85, 48, 11)); // bytes 2, 1, 0
        expectSamePicture(image, Probe(bitmap));
    }
}

TEST(GifImageBitmap, reads_a_bitmap_of_the_screen)
{
    const ScreenDc screen;
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 4, 2);
    {
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
        const HGDIOBJ old = SelectObject(memory, bitmap);
        PatBlt(memory, 0, 0, 4, 2, BLACKNESS);
        SetPixel(memory, 3, 0, RGB(10, 20, 30)); // top right
        SelectObject(memory, old);
    }
    CKxGifImage image;
    EXPECT_TRUE(image.CreateFromHBITMAP(bitmap, nullptr));
    EXPECT_EQ(image.GetBpp(), 24);
    EXPECT_EQ(colorref(image.GetPixelColor(3, 1)), RGB(10, 20, 30));
    EXPECT_EQ(colorref(image.GetPixelColor(3, 0)), RGB(0, 0, 0));
    DeleteObject(bitmap);
}

TEST(GifImageBitmap, goes_there_and_back)
{
    for (const unsigned long bpp : {1UL, 4UL, 8UL, 24UL})
    {
        SCOPED_TRACE(bpp);
        CKxGifImage image = sample(bpp);
        const HBITMAP bitmap = image.MakeBitmap(nullptr);
        CKxGifImage back;
        EXPECT_TRUE(back.CreateFromHBITMAP(bitmap, nullptr));
        EXPECT_EQ(std::memcmp(back.GetBits(), image.GetBits(), image.GetEffWidth() * 7), 0);
        EXPECT_EQ(back.IsSamePalette(image, false), bpp != 24);
        DeleteObject(bitmap);
    }
}

TEST(GifImageBitmap, a_null_bitmap_is_refused_behind_destroy)
{
    CKxGifImage image = sample(8);
    EXPECT_FALSE(image.CreateFromHBITMAP(nullptr, nullptr));
    EXPECT_FALSE(image.IsValid());
}

TEST(GifImageBitmap, a_handle_that_is_no_bitmap_is_refused)
{
    CKxGifImage image;
    EXPECT_FALSE(image.CreateFromHBITMAP(static_cast<HBITMAP>(GetStockObject(BLACK_BRUSH)), nullptr));
    EXPECT_FALSE(image.CreateFromHBITMAP(reinterpret_cast<HBITMAP>(std::uintptr_t{0x12345678}), nullptr));
    EXPECT_FALSE(image.IsValid());
}

TEST(GifImageBitmap, a_ghost_takes_no_bitmap)
{
    CKxGifImage owner = sample(8);
    Ghostly ghost;
    ghost.Ghost(&owner);
    const HBITMAP bitmap = owner.MakeBitmap(nullptr);
    EXPECT_FALSE(ghost.CreateFromHBITMAP(bitmap, nullptr));
    EXPECT_EQ(ghost.GetWidth(), 13U);
    DeleteObject(bitmap);
}

TEST(GifImageBitmap, a_palette_does_not_change_the_picture_of_a_section)
{
    std::vector<unsigned char> storage(sizeof(LOGPALETTE) + 3 * sizeof(PALETTEENTRY));
    auto* const logical = reinterpret_cast<LOGPALETTE*>(storage.data());
    logical->palVersion = 0x300;
    logical->palNumEntries = 4;
    const HPALETTE palette = CreatePalette(logical);
    ASSERT_NE(palette, nullptr);
    CKxGifImage image = sample(8);
    const HBITMAP bitmap = image.MakeBitmap(nullptr);
    CKxGifImage back;
    EXPECT_TRUE(back.CreateFromHBITMAP(bitmap, palette));
    EXPECT_TRUE(back.IsSamePalette(image, false));
    EXPECT_TRUE(DeleteObject(palette)); // selected nowhere any more
    DeleteObject(bitmap);
}

TEST(GifImageBitmap, leaves_no_handle_behind)
{
    const ScreenDc screen;
    CKxGifImage image = sample(8);
    const auto round = [&]
    {
        const HBITMAP own = image.MakeBitmap(nullptr);
        const HBITMAP device = image.MakeBitmap(screen);
        CKxGifImage back;
        EXPECT_TRUE(back.CreateFromHBITMAP(own, nullptr));
        EXPECT_TRUE(back.CreateFromHBITMAP(device, nullptr));
        DeleteObject(own);
        DeleteObject(device);
    };
    round();
    const int before = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        round();
    EXPECT_EQ(gdiObjectCount(), before);
}
