// How fast GIF streams are written, against giflib's encoder on the same pixels, into memory both.
#include <gif_lib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>
#include "bench/Fastest.h"
#include "bench/GifPictures.h"
#include "oxa/images/KxGifImage.h"

namespace
{
using Bytes = std::vector<std::uint8_t>;

void fill(CKxGifImage& image, const bench::Picture& picture)
{
    image.Create(static_cast<unsigned long>(picture.width), static_cast<unsigned long>(picture.height),
                 static_cast<unsigned long>(picture.depth));
    image.SetGrayPalette();
    auto next = picture.indexes.begin();
    for (long y = picture.height - 1; y >= 0; --y)
        for (long x = 0; x < picture.width; ++x)
            image.SetPixelIndex(x, y, *next++);
}

int appendTo(GifFileType* file, const GifByteType* bytes, int count)
{
    auto& out = *static_cast<Bytes*>(file->UserData);
    out.insert(out.end(), bytes, bytes + count);
    return count;
}

bool require(bool good, const char* what)
{
    if (!good)
    {
        std::fprintf(stderr, "%s failed\n", what);
        std::exit(1);
    }
    return good;
}

/// giflib wants its rows writable: it masks them in place, which changes nothing here.
std::size_t giflibEncode(bench::Picture& picture)
{
    Bytes out;
    int error = 0;
    GifFileType* file = EGifOpen(&out, appendTo, &error);
    require(file != nullptr, "EGifOpen");
    ColorMapObject* colors = GifMakeMapObject(1 << picture.depth, nullptr);
    bool good = EGifPutScreenDesc(file, picture.width, picture.height, picture.depth, 0, colors) == GIF_OK &&
                EGifPutImageDesc(file, 0, 0, picture.width, picture.height, false, nullptr) == GIF_OK;
    for (int y = 0; y < picture.height; ++y)
        good = good && EGifPutLine(file, &picture.indexes[static_cast<std::size_t>(y * picture.width)],
                                   picture.width) == GIF_OK;
    good = EGifCloseFile(file, &error) == GIF_OK && good;
    GifFreeMapObject(colors);
    require(good, "giflib's encoder");
    return out.size();
}

std::size_t ourEncode(CKxGifImage& image)
{
    unsigned char* buffer = nullptr;
    long size = 0;
    require(image.Encode(buffer, size), "Encode");
    image.FreeMemory(buffer);
    return static_cast<std::size_t>(size);
}

/// Each frame is a stream of its own.
void compare(std::vector<bench::Picture> pictures)
{
    constexpr int rounds = 61; // in turn, so that a busy machine slows both
    std::vector<CKxGifImage> images(pictures.size());
    for (std::size_t i = 0; i < pictures.size(); ++i)
        fill(images[i], pictures[i]);
    std::size_t ourSize = 0;
    std::size_t theirSize = 0;
    std::vector<double> ratios;
    double ours = 1e300;
    double theirs = 1e300;
    for (int round = 0; round < rounds; ++round)
    {
        ourSize = 0;
        theirSize = 0;
        const auto giflib = [&]
        {
            for (bench::Picture& picture : pictures)
                theirSize += giflibEncode(picture);
        };
        const auto library = [&]
        {
            for (CKxGifImage& image : images)
                ourSize += ourEncode(image);
        };
        const double their = bench::timeOf(giflib) / 1e6;
        const double our = bench::timeOf(library) / 1e6;
        ratios.push_back(their / our);
        ours = std::min(ours, our);
        theirs = std::min(theirs, their);
    }
    std::nth_element(ratios.begin(), ratios.begin() + rounds / 2, ratios.end());
    std::printf("%-18s %9zu %9zu %9.3f %9.3f %8.2f %8.2f\n", pictures[0].name, ourSize, theirSize, ours, theirs,
                theirs / ours, ratios[rounds / 2]);
}
} // namespace

int main()
{
    std::printf("%-18s %9s %9s %9s %9s %8s %8s   (floor 1.2; goals: screen 3, noise 1.3)\n", "picture", "bytes",
                "giflib", "best ms", "giflib", "best", "median");
    compare({bench::screen()});
    compare({bench::noise()});
    compare({bench::lineArt("line art 4 bits", 4)});
    compare({bench::lineArt("line art 1 bit", 1)});
    compare(bench::animation());
    compare(bench::spinner());
    return 0;
}
