// The numbers of a pixmap, in and out.
#include "cli/Ppm.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <ostream>
#include "oxa/images/KxGifImage.h"

namespace
{
constexpr std::uint64_t largestNumber = 999999999;

bool isBlank(std::uint8_t byte)
{
    return std::isspace(byte) != 0;
}

class Reader
{
public:
    explicit Reader(const Bytes& bytes) : m_bytes(bytes), m_isText(bytes[1] == '3') {}

    std::string Read(CKxGifImage& image)
    {
        std::uint64_t width = 0;
        std::uint64_t height = 0;
        if (!Number(width) || !Number(height) || !Number(m_largest) || !EndOfHeader())
            return "its PPM header is damaged";
        if (width == 0 || height == 0 || m_largest == 0 || m_largest > 65535)
            return "its PPM header says what cannot be";
        if (width > CKxGifImage::MaximumPixels / height)
            return "it is too large";
        if (BytesNeeded(width * height * 3) > m_bytes.size() - m_next)
            return "its pixels end too early";
        if (!image.Create(static_cast<unsigned long>(width), static_cast<unsigned long>(height), 24))
            return "it is too large";
        return ReadRows(image) ? std::string() : "its pixels are damaged";
    }

private:
    /// One blank stands between the header and pixels that are bytes.
    bool EndOfHeader() { return m_isText || m_next == m_bytes.size() || isBlank(m_bytes[m_next++]); }

    /// The least that so many samples take.
    std::uint64_t BytesNeeded(std::uint64_t samples) const
    {
        if (m_isText)
            return samples * 2; // a blank and a digit each
        return m_largest > 255 ? samples * 2 : samples;
    }

    bool ReadRows(CKxGifImage& image)
    {
        for (unsigned long y = image.GetHeight(); y-- > 0;)
        {
            unsigned char* pixel = image.GetBits(y);
            for (unsigned long x = 0; x < image.GetWidth(); ++x, pixel += 3)
                if (!Sample(pixel[2]) || !Sample(pixel[1]) || !Sample(pixel[0]))
                    return false;
        }
        return true;
    }

    bool Sample(unsigned char& value)
    {
        std::uint64_t sample = 0;
        if (m_isText)
        {
            if (!Number(sample))
                return false;
        }
        else
        {
            sample = m_bytes[m_next++];
            if (m_largest > 255)
                sample = sample << 8 | m_bytes[m_next++];
        }
        if (sample > m_largest)
            return false;
        value = static_cast<unsigned char>((sample * 255 + m_largest / 2) / m_largest);
        return true;
    }

    /// The next number, behind blanks or comments. False if there is none.
    bool Number(std::uint64_t& value)
    {
        if (!SkipBlanks())
            return false;
        const std::size_t first = m_next;
        value = 0;
        for (; m_next < m_bytes.size() && std::isdigit(m_bytes[m_next]) != 0 && value <= largestNumber; ++m_next)
            value = value * 10 + (m_bytes[m_next] - std::uint64_t{'0'});
        return m_next > first && value <= largestNumber;
    }

    /// False if there are none.
    bool SkipBlanks()
    {
        const std::size_t first = m_next;
        while (m_next < m_bytes.size() && (isBlank(m_bytes[m_next]) || m_bytes[m_next] == '#'))
            if (m_bytes[m_next++] == '#')
                while (m_next < m_bytes.size() && m_bytes[m_next] != '\n')
                    ++m_next;
        return m_next > first;
    }

    const Bytes& m_bytes;
    bool m_isText;
    std::size_t m_next = 2; // behind the two letters
    std::uint64_t m_largest = 0;
};

/// A row of pixels as lines of text.
class RowText
{
public:
    void Begin() { m_text.clear(), m_pixels = 0; }

    void Add(RGBQUAD color)
    {
        if (m_pixels > 0)
            m_text += m_pixels % pixelsPerLine == 0 ? '\n' : ' ';
        ++m_pixels;
        AddNumber(color.rgbRed);
        m_text += ' ';
        AddNumber(color.rgbGreen);
        m_text += ' ';
        AddNumber(color.rgbBlue);
    }

    void WriteTo(std::ostream& stream)
    {
        m_text += '\n';
        stream.write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
    }

private:
    static constexpr unsigned long pixelsPerLine = 5; // a line has at most 70 letters

    void AddNumber(unsigned char number)
    {
        std::array<char, 3> digits;
        m_text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
    }

    std::string m_text;
    unsigned long m_pixels = 0;
};
} // namespace

bool Ppm::Recognises(const Bytes& bytes)
{
    return bytes.size() >= 2 && bytes[0] == 'P' && (bytes[1] == '3' || bytes[1] == '6');
}

std::string Ppm::Read(const Bytes& bytes, CKxGifImage& image)
{
    std::string why = Reader(bytes).Read(image);
    if (!why.empty())
        image.Destroy();
    return why;
}

void Ppm::Write(const CKxGifImage& image, std::ostream& stream)
{
    stream << "P3\n" << image.GetWidth() << ' ' << image.GetHeight() << "\n255\n";
    const auto width = static_cast<long>(image.GetWidth());
    RowText row;
    for (long y = static_cast<long>(image.GetHeight()) - 1; y >= 0 && stream; --y)
    {
        row.Begin();
        for (long x = 0; x < width; ++x)
            row.Add(image.GetPixelColor(x, y));
        row.WriteTo(stream);
    }
}
