// Decodes a stream with the library and with the plain reader, and says where the two differ.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "support/PlainGifDecoder.h"

/// An image whose inside a test may see.
class OpenGifImage : public CKxGifImage
{
public:
    using CKxGifImage::CKxGifImage;
    using CKxGifImage::DecodeExtension;
    using CKxGifImage::decoder;
    using CKxGifImage::get_byte;
    using CKxGifImage::get_next_code;
    using CKxGifImage::get_num_frames;
    using CKxGifImage::Ghost;
    using CKxGifImage::GifMix;
    using CKxGifImage::init_exp;
    using CKxGifImage::m_comment;
    using CKxGifImage::m_graphicControl;
    using CKxGifImage::m_Head;
    using CKxGifImage::m_Info;
    using CKxGifImage::m_input;
    using CKxGifImage::m_interlace;
    using CKxGifImage::m_lzwDecoder;
    using CKxGifImage::m_pDib;
    using CKxGifImage::out_line;
    using CKxGifImage::seek_next_image;
    using CKxGifImage::Startup;
};

/// An image object and its plain twin, which go through the same decodes.
class GifJudge
{
public:
    OpenGifImage image{};
    plain::GifDecoder plainImage{};

    /// Both as after construction.
    void reset()
    {
        plainImage.reset();
        image.Startup();
        image.m_graphicControl = {};
        image.m_lzwDecoder.prefixFilled = false;
    }

    /// Empty when the two agree, else what differs. `offset` is where the stream begins in the bytes.
    std::string decode(const std::vector<std::uint8_t>& bytes, long frame = 0, long offset = 0)
    {
        static std::uint8_t none = 0; // a null buffer would be a closed stream
        CKxMemFile file(bytes.empty() ? &none : const_cast<std::uint8_t*>(bytes.data()),
                        static_cast<unsigned long>(bytes.size()));
        return decode(file, bytes.data(), bytes.size(), frame, offset);
    }

    std::string decode(CKxMemFile& file, const std::uint8_t* bytes, std::size_t size, long frame, long offset = 0)
    {
        plain::ByteStream stream(bytes, size);
        stream.onRead = onPlainRead;
        stream.seek(offset);
        file.Seek(offset, 0);
        image.SetFrame(frame);
        plainImage.frame = static_cast<std::int32_t>(frame);
        expected = plainImage.decode(stream);
        result = image.Decode(&file);
        m_difference.clear();
        compare(stream.position(), file.Tell());
        return m_difference;
    }

    std::function<void()> onPlainRead{}; // see plain::ByteStream
    bool expected = false;
    bool result = false;

private:
    void compare(std::int64_t position, long filePosition)
    {
        const plain::DecodedPicture& picture = plainImage.picture;
        same("result", expected, result);
        same("position", position, filePosition);
        same("frames", plainImage.frames, image.GetNumFrames());
        same("frame", plainImage.frame, image.GetFrame());
        same("transparent index", plainImage.transparentIndex, image.GetTransIndex());
        same("delay", plainImage.delay, image.GetFrameDelay());
        same("disposal", plainImage.disposal, image.GetDisposalMethod());
        same("loops", plainImage.loops, image.GetLoops());
        same("escape", plainImage.escape, image.GetEscape());
        if (plainImage.comment != image.m_comment)
            m_difference += "comment ";
        if (std::memcmp(plainImage.control, &image.m_graphicControl, sizeof plainImage.control) != 0)
            m_difference += "control block ";
        if (std::memcmp(plainImage.transparentColour, &image.m_Info.TransColor, 3) != 0)
            m_difference += "transparent colour ";
        same("validity", picture.valid, image.IsValid());
        same("width", picture.width, image.GetWidth());
        same("height", picture.height, image.GetHeight());
        if (picture.valid && image.IsValid() && m_difference.empty())
            comparePixels(picture);
    }

    void comparePixels(const plain::DecodedPicture& picture)
    {
        same("depth", picture.depth, image.GetBpp());
        same("stride", picture.stride(), image.GetEffWidth());
        same("colours", picture.entries(), image.GetNumColors());
        if (!m_difference.empty())
            return;
        if (!picture.palette.empty() &&
            std::memcmp(picture.palette.data(), image.GetPalette(), picture.palette.size()) != 0)
            m_difference += "palette ";
        const std::uint8_t* const bits = image.GetBits();
        if (std::memcmp(picture.rows.data(), bits, picture.rows.size()) == 0)
            return;
        for (std::size_t i = 0; i < picture.rows.size(); ++i)
            if (picture.rows[i] != bits[i])
            {
                m_difference += "pixel byte " + std::to_string(i % picture.stride()) + " of row " +
                                std::to_string(i / picture.stride()) + ": " + std::to_string(picture.rows[i]) +
                                " expected, " + std::to_string(bits[i]) + " found ";
                return;
            }
    }

    template <class A, class B> void same(std::string_view what, A wanted, B found)
    {
        if (static_cast<std::int64_t>(wanted) != static_cast<std::int64_t>(found))
            m_difference +=
                std::string(what) + ": " + std::to_string(wanted) + " expected, " + std::to_string(found) + " found; ";
    }

    std::string m_difference{};
};
