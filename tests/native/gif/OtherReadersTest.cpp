// What other programs read in the streams that the library writes.
#include <gif_lib.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>
#include <unistd.h>
#include "support/PlainPicture.h"

namespace
{
using plain::Bytes;
using plain::Colour;
using plain::Picture;

/// One frame as giflib reads it: its place, and its pixels top row first.
struct Frame
{
    GifImageDesc place{};
    Bytes indexes{};
    std::vector<Colour> palette{};
    GraphicsControlBlock control{};
};

struct Reader
{
    const Bytes& bytes;
    std::size_t at = 0;
};

int takeFrom(GifFileType* file, GifByteType* target, int count)
{
    auto& reader = *static_cast<Reader*>(file->UserData);
    const std::size_t taken = std::min(static_cast<std::size_t>(count), reader.bytes.size() - reader.at);
    std::memcpy(target, reader.bytes.data() + reader.at, taken);
    reader.at += taken;
    return static_cast<int>(taken);
}

/// All frames; none when giflib refuses the stream.
std::vector<Frame> readByGiflib(const Bytes& bytes)
{
    Reader reader{bytes};
    int error = 0;
    const auto close = [](GifFileType* file) { DGifCloseFile(file, nullptr); };
    const std::unique_ptr<GifFileType, decltype(close)> file(DGifOpen(&reader, takeFrom, &error), close);
    std::vector<Frame> frames;
    if (!file || DGifSlurp(file.get()) != GIF_OK)
        return frames;
    for (int i = 0; i < file->ImageCount; ++i)
    {
        const SavedImage& image = file->SavedImages[i];
        Frame frame;
        frame.place = image.ImageDesc;
        const std::size_t pixels =
            static_cast<std::size_t>(frame.place.Width) * static_cast<std::size_t>(frame.place.Height);
        frame.indexes.assign(image.RasterBits, image.RasterBits + pixels);
        const ColorMapObject* map = image.ImageDesc.ColorMap ? image.ImageDesc.ColorMap : file->SColorMap;
        for (int colour = 0; map && colour < map->ColorCount; ++colour)
            frame.palette.push_back({map->Colors[colour].Red, map->Colors[colour].Green, map->Colors[colour].Blue});
        DGifSavedExtensionToGCB(file.get(), i, &frame.control);
        frames.push_back(std::move(frame));
    }
    return frames;
}

/// The indexes of a picture, top row first.
Bytes topFirst(const Picture& picture)
{
    Bytes indexes;
    for (int y = picture.height - 1; y >= 0; --y)
        for (int x = 0; x < picture.width; ++x)
            indexes.push_back(static_cast<std::uint8_t>(picture.indexes[picture.at(x, y)]));
    return indexes;
}

/// The colours of a picture, top row first, three bytes a pixel.
Bytes coloursTopFirst(const Picture& picture)
{
    Bytes bytes;
    for (int y = picture.height - 1; y >= 0; --y)
        for (int x = 0; x < picture.width; ++x)
        {
            const Colour& colour = picture.colours[picture.at(x, y)];
            bytes.push_back(colour.red);
            bytes.push_back(colour.green);
            bytes.push_back(colour.blue);
        }
    return bytes;
}

/// The pixels of all frames, one on the other, as ImageMagick reads them. `form` says which bytes make a pixel.
Bytes readByImageMagick(const Bytes& bytes, const std::string& form)
{
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("oxa-readers-" + std::to_string(::getpid()) + ".gif");
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    const std::string command = "convert gif:" + path.string() + " -coalesce -delete 0--2 -depth 8 " + form + ":-";
    Bytes pixels;
    if (FILE* pipe = ::popen(command.c_str(), "r"))
    {
        std::array<std::uint8_t, 4096> part{};
        for (std::size_t got = 0; (got = std::fread(part.data(), 1, part.size(), pipe)) > 0;)
            pixels.insert(pixels.end(), part.begin(), part.begin() + static_cast<std::ptrdiff_t>(got));
        EXPECT_EQ(::pclose(pipe), 0) << command;
    }
    std::filesystem::remove(path);
    return pixels;
}
} // namespace

TEST(OtherReaders, giflib_reads_the_same_indexes_palette_and_control_block)
{
    unsigned seed = 1;
    for (const unsigned long depth : {1UL, 4UL, 8UL})
        for (const long width : {1L, 2L, 9L, 40L, 333L})
            for (const long height : {1L, 3L, 40L, 200L})
                for (const int longestRun : {1, 30})
                {
                    CKxGifImage image;
                    plain::drawRandom(image, width, height, depth, {1 << depth, longestRun}, seed++);
                    image.SetTransIndex(seed % 3 == 0 ? 1 : -1);
                    image.SetFrameDelay(seed);
                    image.SetDisposalMethod(static_cast<int>(seed % 4));
                    image.SetComment("seen by others");
                    const Picture picture = plain::pictureOf(image);
                    const std::vector<Frame> frames = readByGiflib(plain::encoded(image));
                    ASSERT_EQ(frames.size(), 1U);
                    EXPECT_EQ(frames[0].place.Width, width);
                    EXPECT_EQ(frames[0].place.Height, height);
                    EXPECT_TRUE(frames[0].indexes == topFirst(picture));
                    EXPECT_TRUE(frames[0].palette == picture.palette);
                    EXPECT_EQ(frames[0].control.TransparentColor, picture.transparent);
                    EXPECT_EQ(frames[0].control.DelayTime, static_cast<int>(picture.delay));
                    EXPECT_EQ(frames[0].control.DisposalMode, picture.disposal);
                }
}

TEST(OtherReaders, giflib_reads_every_colour_of_a_mosaic)
{
    for (const long width : {1L, 17L, 18L, 50L})
        for (const long height : {1L, 15L, 16L, 44L})
        {
            CKxGifImage image;
            plain::drawRandom(image, width, height, 24, {900, 2}, 5);
            const Picture picture = plain::pictureOf(image);
            std::vector<Colour> canvas(picture.colours.size());
            for (const Frame& frame : readByGiflib(plain::encoded(image)))
                for (int y = 0; y < frame.place.Height; ++y)
                    for (int x = 0; x < frame.place.Width; ++x)
                        canvas.at(picture.at(frame.place.Left + x, picture.height - 1 - frame.place.Top - y)) =
                            frame.palette.at(frame.indexes.at(static_cast<std::size_t>(y * frame.place.Width + x)));
            EXPECT_TRUE(canvas == picture.colours) << width << " x " << height;
        }
}

TEST(OtherReaders, imagemagick_reads_the_same_colours)
{
    unsigned seed = 31;
    for (const unsigned long depth : {1UL, 4UL, 8UL, 24UL})
        for (const auto& [width, height] : {std::pair{1L, 1L}, std::pair{61L, 47L}, std::pair{300L, 2L}})
            for (const int longestRun : {1, 20})
            {
                CKxGifImage image;
                plain::drawRandom(image, width, height, depth, {depth == 24 ? 900 : 1 << depth, longestRun}, seed++);
                EXPECT_TRUE(readByImageMagick(plain::encoded(image), "rgb") == coloursTopFirst(plain::pictureOf(image)))
                    << width << " x " << height << " at " << depth << " bits";
            }
}

TEST(OtherReaders, imagemagick_sees_through_the_same_pixels)
{
    for (const unsigned long depth : {1UL, 4UL, 8UL, 24UL})
    {
        CKxGifImage image;
        plain::drawRandom(image, 40, 31, depth, {depth == 24 ? 30 : 1 << depth, 3}, 5);
        const long someX = 20;
        const long someY = 20;
        if (depth == 24)
        {
            image.SetTransIndex(0);
            image.SetTransColor(image.GetPixelColor(someX, someY));
        }
        else
            image.SetTransIndex(image.GetPixelIndex(someX, someY));
        Bytes opaque;
        const Bytes read = readByImageMagick(plain::encoded(image), "rgba");
        for (std::size_t at = 3; at < read.size(); at += 4)
            opaque.push_back(read[at]);
        Bytes expected;
        for (long y = 30; y >= 0; --y)
            for (long x = 0; x < 40; ++x)
                expected.push_back(image.IsTransparent(x, y) ? 0 : 255);
        EXPECT_TRUE(opaque == expected) << depth;
        EXPECT_NE(std::count(expected.begin(), expected.end(), 0), 0);
    }
}
