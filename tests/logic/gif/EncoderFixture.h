// What the tests of the encoder share: images of a few pixels, and an image whose inner operations can be called.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include "support/GifStream.h"
#include "support/PlainPicture.h"

using plain::Bytes;
using plain::GifBlock;
using plain::GifStream;

/// An image with its protected operations in the open.
class ExposedEncoder : public CKxGifImage
{
public:
    using CKxGifImage::char_out;
    using CKxGifImage::CKxGifImage;
    using CKxGifImage::cl_hash;
    using CKxGifImage::compressLZW;
    using CKxGifImage::compressNONE;
    using CKxGifImage::EncodeBody;
    using CKxGifImage::EncodeExtension;
    using CKxGifImage::EncodeLoopExtension;
    using CKxGifImage::EncodeSafeCheck;
    using CKxGifImage::flush_char;
    using CKxGifImage::GifNextPixel;
    using CKxGifImage::m_encoderBits;
    using CKxGifImage::m_encoderCursor;
    using CKxGifImage::m_graphicControl;
    using CKxGifImage::m_lzwEncoder;
    using CKxGifImage::output;
    using CKxGifImage::Putword;

    /// The cursor that `EncodeBody` begins with.
    void atFirstPixel()
    {
        const auto width = static_cast<std::int32_t>(GetWidth());
        const auto height = static_cast<std::int32_t>(GetHeight());
        m_encoderCursor = {0, height - 1, width * height};
    }
};

/// A stream of its own, open, whose bytes can be looked at.
class OpenStream : public CKxMemFile
{
public:
    OpenStream() { Open(); }
    Bytes bytes()
    {
        const unsigned char* data = GetBuffer(false);
        return Bytes(data, data + Size());
    }
};

/// The codes of the only frame of an image.
inline std::vector<int> codesOf(CKxGifImage& image)
{
    const Bytes bytes = plain::encoded(image);
    const GifBlock frame = GifStream(bytes).frames().at(0);
    return plain::codesOf(frame.data, frame.minimumCodeSize);
}

/// The codes of a picture of one row.
inline std::vector<int> codesOfRow(unsigned long depth, const std::vector<int>& row)
{
    CKxGifImage image;
    plain::drawIndexes(image, static_cast<long>(row.size()), 1, depth, row);
    return codesOf(image);
}
