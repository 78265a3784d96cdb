// The two compressors of CKxGifImage, and the operations that they are made of.
#include "oxa/images/KxGifImage.h"

#include "GifCodeWriter.h"
#include "GifLzwDictionary.h"
#include "GifPixelReader.h"

namespace
{
/// Turns pixels into codes: the longest string that is known goes out, and is known with one more pixel from then on.
class Compressor
{
public:
    Compressor(GifCodeWriter& writer, GifLzwDictionary& dictionary, unsigned firstPixel)
        : m_writer(writer), m_dictionary(dictionary), m_string(firstPixel), m_last(firstPixel)
    {
    }

    void Feed(std::span<const std::uint8_t> pixels)
    {
        const std::uint8_t* at = pixels.data();
        const std::uint8_t* const end = at + pixels.size();
        while (at != end)
        {
            const unsigned pixel = *at;
            if (m_dictionary.IsRun(m_string, m_last, pixel))
            {
                const std::uint8_t* const stopped = m_dictionary.FollowRun(m_string, at, end);
                if (stopped == at++)
                    EndRun(pixel);
                else
                    at = stopped;
                continue;
            }
            ++at;
            const GifLzwDictionary::Place place = m_dictionary.Find(m_string, pixel);
            if (place.code != 0)
                m_string = place.code;
            else
                EndString(pixel, place);
            m_last = pixel;
        }
    }

    /// The code of what was read and not written.
    int Rest() const { return static_cast<int>(m_string); }

private:
    void EndString(unsigned pixel, GifLzwDictionary::Place place)
    {
        m_writer.Output(Rest());
        if (m_writer.HasFreeCode())
            m_dictionary.Add(m_string, pixel, m_writer.TakeCode(), place);
        else
            Restart();
        m_string = pixel;
    }
    void EndRun(unsigned pixel)
    {
        m_writer.Output(Rest());
        if (m_writer.HasFreeCode())
            m_dictionary.AddRun(m_string, pixel, m_writer.TakeCode());
        else
            Restart();
        m_string = pixel;
    }
    void Restart()
    {
        m_dictionary.Clear();
        m_writer.Restart();
    }

    GifCodeWriter& m_writer;
    GifLzwDictionary& m_dictionary;
    unsigned m_string; // its code
    unsigned m_last;   // its last pixel
};
} // namespace

void CKxGifImage::compressLZW(int initBits, CKxMemFile* file)
{
    if (!GifCodeWriter::Begin(m_lzwEncoder, m_encoderBits, initBits, file))
        return;
    // Runs are followed by numbers of pixels and codes alike, which must not be mixed up then.
    const bool followRuns = GetNumColors() <= static_cast<unsigned long>(m_lzwEncoder.clearCode);
    GifLzwDictionary dictionary(m_lzwEncoder.hashTable, static_cast<unsigned>(m_lzwEncoder.nextFreeCode), followRuns);
    GifCodeWriter writer(m_lzwEncoder, m_encoderBits);
    GifPixelReader pixels(*this, m_encoderCursor);
    const int first = GifNextPixel();
    writer.Output(m_lzwEncoder.clearCode);
    if (first >= 0)
    {
        Compressor compressor(writer, dictionary, static_cast<unsigned>(first));
        for (auto row = pixels.Next(); !row.empty(); row = pixels.Next())
            compressor.Feed(row);
        writer.Output(compressor.Rest());
    }
    else
        writer.Output(first); // no pixel at all: every bit of a code is set
    writer.Output(m_lzwEncoder.endCode);
}

void CKxGifImage::compressNONE(int initBits, CKxMemFile* file)
{
    if (!GifCodeWriter::Begin(m_lzwEncoder, m_encoderBits, initBits, file))
        return;
    GifCodeWriter writer(m_lzwEncoder, m_encoderBits);
    int pixel = GifNextPixel();
    writer.Output(m_lzwEncoder.clearCode);
    for (; pixel >= 0; pixel = GifNextPixel())
    {
        writer.Output(pixel);
        if (writer.HasFreeCode())
            writer.TakeCode();
        if (!writer.HasFreeCode())
            writer.Restart();
    }
    writer.Output(m_lzwEncoder.endCode);
}

int CKxGifImage::GifNextPixel()
{
    return GifPixelReader::NextPixel(*this, m_encoderCursor);
}

void CKxGifImage::output(short code)
{
    GifCodeWriter(m_lzwEncoder, m_encoderBits).Output(code);
}

void CKxGifImage::cl_hash(long size)
{
    GifHashLayout::Clear(m_lzwEncoder.hashTable, size);
}

void CKxGifImage::char_out(int value)
{
    GifCodeWriter::AppendByte(m_lzwEncoder, value);
}

void CKxGifImage::flush_char()
{
    GifCodeWriter::FlushBlock(m_lzwEncoder);
}
