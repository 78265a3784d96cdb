// A picture, out of a stream or drawn from a recipe: written as the plain encoder writes it, read back the same, reduced,
// and written and read again.
// Input: one byte of options, then a stream (option 0x01) or a recipe. Options: 0x06 the bits to reduce to: none, 1, 4, 8;
// 0x08 with diffusion; 0x30 the depth of a recipe: 1, 4, 8, 24; 0x40 the raster operations with any arguments; 0x80 a
// recipe of single pixels, not of runs.
// Recipe: width, height (above 0x7F: a picture large enough to fill the table of codes), transparent index, transparent
// red, disposal and delay, length of the comment, then pixels from the bottom row on: bytes in turn, or run lengths and
// bytes. What is missing is used again with other bits.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>
#include "support/PlainPicture.h"

namespace
{
// Small pictures let the fuzzer try many.
constexpr std::size_t smallArea = 160;
constexpr std::size_t mosaicArea = 384; // four tiles
constexpr std::size_t largeArea = 4400; // more than the table of codes holds

void require(bool good, const char* what)
{
    if (good)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    unsigned byte()
    {
        if (m_size == 0)
            return 0;
        const unsigned value = m_data[m_next] ^ m_round;
        if (++m_next == m_size)
        {
            m_next = 0;
            m_round = (m_round * 5 + 1) & 0xFF;
        }
        return value;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_next = 0;
    unsigned m_round = 0;
};

struct OpenImage : CKxGifImage
{
    using CKxGifImage::compressLZW;
    using CKxGifImage::compressNONE;
    using CKxGifImage::GifNextPixel;
    using CKxGifImage::m_encoderCursor;
};

void drawRecipe(OpenImage& image, Input& input, unsigned options)
{
    constexpr unsigned long depths[] = {1, 4, 8, 24};
    const unsigned long depth = depths[options >> 4 & 3];
    const unsigned width = 1 + input.byte() % 127;
    const unsigned wantedHeight = input.byte();
    const std::size_t area = wantedHeight > 0x7F ? largeArea : depth == 24 ? mosaicArea : smallArea;
    const unsigned height = 1 + wantedHeight % 0x80 % static_cast<unsigned>(area / width);
    image.Create(width, height, depth);
    image.SetStdPalette();
    image.SetTransIndex(static_cast<int>(input.byte()) - 1);
    image.SetTransColor({static_cast<BYTE>(input.byte()), 0, 0, 0});
    const unsigned timing = input.byte();
    image.SetDisposalMethod(static_cast<int>(timing & 15));
    image.SetFrameDelay(timing * 1000);
    image.SetComment(std::string(input.byte(), '*').c_str());
    unsigned left = 0;
    unsigned value = 0;
    for (unsigned y = 0; y < height; ++y)
        for (unsigned x = 0; x < width; ++x, --left)
        {
            if (left == 0)
            {
                left = (options & 0x80) != 0 ? 1 : 1 + input.byte();
                value = input.byte();
            }
            if (depth == 24)
                image.SetPixelColor(static_cast<long>(x), static_cast<long>(y), RGB(value, 0, value >> 4));
            else
                image.SetPixelIndex(static_cast<long>(x), static_cast<long>(y), static_cast<unsigned char>(value));
        }
}

/// False when the stream has no picture, or one too large to be looked at.
bool readStream(OpenImage& image, std::vector<std::uint8_t> bytes)
{
    constexpr std::size_t widthAt = 6;
    if (bytes.size() < 10)
        return false;
    const std::size_t width = bytes[widthAt] | static_cast<std::size_t>(bytes[widthAt + 1]) << 8;
    const std::size_t height = bytes[widthAt + 2] | static_cast<std::size_t>(bytes[widthAt + 3]) << 8;
    return width * height <= mosaicArea && image.Decode(bytes.data(), static_cast<unsigned long>(bytes.size())) &&
           image.IsValid();
}

/// Written as the plain encoder does it, and read back.
void check(CKxGifImage& image)
{
    const plain::Picture picture = plain::pictureOf(image);
    plain::Bytes bytes = plain::encoded(image);
    require(bytes == plain::encode(picture), "the encoders differ");
    CKxGifImage read;
    require(read.Decode(bytes.data(), static_cast<unsigned long>(bytes.size())), "what was written is not read");
    const plain::Picture found = plain::pictureOf(read);
    require(found.width == picture.width && found.height == picture.height, "the size differs");
    if (picture.depth <= 8)
    {
        require(found.depth == picture.depth && found.palette == picture.palette, "the palette differs");
        require(found.indexes == picture.indexes, "the pixels differ");
        require(found.transparent == (picture.transparent == -1 ? -1 : picture.transparent & 0xFF),
                "the transparent index differs");
        require(found.comment == picture.comment && found.disposal == (picture.disposal & 7), "the extensions differ");
    }
    else if (picture.width > 17 && picture.height > 15)
        require(found.depth == 24 && found.colours == picture.colours, "the colours differ");
}

/// The raster operations from any place with any width of codes.
void checkRaster(OpenImage& image, Input& input)
{
    const EncoderCursor cursor{static_cast<std::int32_t>(input.byte()) - 3, static_cast<std::int32_t>(input.byte()) - 3,
                               static_cast<std::int32_t>(input.byte())};
    const int initialBits = static_cast<int>(input.byte() % 20) - 2;
    image.m_encoderCursor = cursor;
    std::vector<int> values;
    for (int value = image.GifNextPixel(); value >= 0; value = image.GifNextPixel())
        values.push_back(value);
    CKxMemFile compressed;
    compressed.Open();
    image.m_encoderCursor = cursor;
    image.compressLZW(initialBits, &compressed);
    CKxMemFile passed;
    passed.Open();
    image.m_encoderCursor = cursor;
    image.compressNONE(initialBits, &passed);
    if (initialBits < 1 || initialBits > 12)
        return;
    const int clear = 1 << (initialBits - 1);
    if (!std::all_of(values.begin(), values.end(), [&](int value) { return value < clear; }))
        return;
    plain::Bytes expected;
    plain::Raster(expected, values, initialBits).compress();
    const unsigned char* data = compressed.GetBuffer(false);
    require(plain::Bytes(data, data + compressed.Size()) == expected, "the compressors differ");
    expected.clear();
    plain::Raster(expected, values, initialBits).passThrough();
    data = passed.GetBuffer(false);
    require(plain::Bytes(data, data + passed.Size()) == expected, "the writers without compression differ");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const unsigned options = data[0];
    Input input(data + 1, size - 1);
    OpenImage image;
    if ((options & 1) == 0)
        drawRecipe(image, input, options);
    else if (!readStream(image, {data + 1, data + size}))
        return 0;
    check(image);
    if ((options & 0x40) != 0)
        checkRaster(image, input);
    constexpr unsigned long targets[] = {0, 1, 4, 8};
    const unsigned long bits = targets[options >> 1 & 3];
    if (bits != 0 && image.GetWidth() * image.GetHeight() <= mosaicArea &&
        image.DecreaseBpp(bits, (options & 8) != 0, nullptr, 0))
        check(image);
    return 0;
}
