// A CPictureEx on a yellow host, what it shows, and small GIF streams of flat colours.
#pragma once

#include "oxa/images/PictureEx.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "PictureHost.h"
#include "support/GifBuilder.h"

/// A GIF of 8 by 6 pixels with the colours red, green, blue and white; background index 2.
class Movie : public recipe::GifBuilder
{
public:
    enum Index : unsigned char
    {
        Red,
        Green,
        Blue,
        White,
    };

    explicit Movie(int width = 8, int height = 6)
        : GifBuilder(width, height, {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}})
    {
    }

    /// An image of one colour.
    Movie& image(Index color, const recipe::Place& place = {0, 0, 8, 6})
    {
        frame(place, 2, recipe::Bytes(static_cast<size_t>(place.width * place.height), color));
        return *this;
    }
    /// An image behind a control block.
    Movie& timed(Index color, int disposal, int delay, const recipe::Place& place = {0, 0, 8, 6})
    {
        control(disposal, delay);
        return image(color, place);
    }
    /// The same with a transparent left half.
    Movie& half(Index color, int disposal, int delay, const recipe::Place& place)
    {
        control(disposal, delay, White);
        recipe::Bytes pixels;
        for (int i = 0; i < place.width * place.height; ++i)
            pixels.push_back(i % place.width < place.width / 2 ? White : color);
        frame(place, 2, pixels);
        return *this;
    }
};

/// A movable block with the bytes.
class Block
{
public:
    explicit Block(const recipe::Bytes& bytes)
        : size(static_cast<DWORD>(bytes.size())), handle(::GlobalAlloc(GMEM_MOVEABLE, bytes.size()))
    {
        if (void* to = ::GlobalLock(handle))
        {
            std::copy(bytes.begin(), bytes.end(), static_cast<unsigned char*>(to));
            ::GlobalUnlock(handle);
        }
    }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() { ::GlobalFree(handle); }

    const DWORD size;
    const HGLOBAL handle;
};

/// A control whose inside a test may see.
class OpenPicture : public CPictureEx
{
public:
    using CPictureEx::Load;
    BOOL Load(const recipe::Bytes& bytes)
    {
        const Block block(bytes);
        return Load(block.handle, block.size);
    }
    BOOL Load(const recipe::GifBuilder& movie) { return Load(movie.bytes()); }

    using CPictureEx::GetNextBlock;
    using CPictureEx::GetNextBlockLen;
    using CPictureEx::GetNextGraphicBlock;
    using CPictureEx::GetSubBlocksLen;
    using CPictureEx::m_walker;
    using CPictureEx::PrepareDC;
    using CPictureEx::ResetDataPointer;
    using CPictureEx::SkipNextBlock;
    using CPictureEx::SkipNextGraphicBlock;

    HANDLE worker() const { return m_hWorker.get(); }
};

/// The control at 10, 20 of the host; a test gives it its picture.
template <class Picture = OpenPicture> struct PictureStand
{
    PictureStand() { picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 20, 14, 23), &host); }

    /// Repaints, and reads the window.
    COLORREF at(int x, int y)
    {
        host.repaint();
        return shownAt(picture, x, y);
    }
    /// Pumps until the window shows a colour by itself.
    bool shows(int x, int y, COLORREF color)
    {
        return waitFor([&] { return shownAt(picture, x, y) == color; });
    }

    PictureHost host;
    Picture picture;
};
