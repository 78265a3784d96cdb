// The pixels of an image in the order in which they are written, as many at a time as lie together.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include "oxa/images/GifEncoderState.h"

class CKxGifImage;

/// Moves a cursor through an image. Pixels outside the image are those that `GetPixelIndex` gives there.
class GifPixelReader
{
public:
    GifPixelReader(CKxGifImage& image, EncoderCursor& cursor) : m_image(image), m_cursor(cursor) {}

    /// The next pixel, or -1.
    static int NextPixel(const CKxGifImage& image, EncoderCursor& cursor);
    /// The next pixels of one row, one byte each; none at the end. They stand until the next call.
    std::span<const std::uint8_t> Next();

private:
    std::span<const std::uint8_t> RestOfRow();
    static void Advance(const CKxGifImage& image, EncoderCursor& cursor, std::size_t count);

    CKxGifImage& m_image;
    EncoderCursor& m_cursor;
    std::uint8_t m_unpacked[1024] = {}; // pixels of less than a byte
};
