// How fast GIF streams are read, against giflib reading the same streams from memory.
#include <gif_lib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>
#include "bench/Fastest.h"
#include "bench/GifPictures.h"
#include "oxa/images/KxGifImage.h"

namespace
{
using Bytes = std::vector<std::uint8_t>;

void require(bool good, const char* what)
{
    if (good)
        return;
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(1);
}

int appendTo(GifFileType* file, const GifByteType* bytes, int count)
{
    auto& out = *static_cast<Bytes*>(file->UserData);
    out.insert(out.end(), bytes, bytes + count);
    return count;
}

struct Source
{
    const Bytes* bytes;
    std::size_t at;
};

int takeFrom(GifFileType* file, GifByteType* bytes, int count)
{
    auto& source = *static_cast<Source*>(file->UserData);
    const std::size_t taken = std::min(static_cast<std::size_t>(count), source.bytes->size() - source.at);
    std::memcpy(bytes, source.bytes->data() + source.at, taken);
    source.at += taken;
    return static_cast<int>(taken);
}

enum class Order
{
    Straight,
    Interlaced,
};

bool putRows(GifFileType* file, bench::Picture& picture, Order order)
{
    static constexpr int offsets[] = {0, 4, 2, 1};
    static constexpr int steps[] = {8, 8, 4, 2};
    const bool interlaced = order == Order::Interlaced;
    bool good = true;
    for (int pass = 0; pass < (interlaced ? 4 : 1); ++pass)
        for (int y = interlaced ? offsets[pass] : 0; y < picture.height; y += interlaced ? steps[pass] : 1)
            good = good && EGifPutLine(file, &picture.indexes[static_cast<std::size_t>(y * picture.width)],
                                       picture.width) == GIF_OK;
    return good;
}

/// The stream that giflib writes of some frames of one size; from the second on they have a control block.
Bytes streamOf(std::vector<bench::Picture> frames, Order order, int disposal = 0, int transparent = -1)
{
    Bytes out;
    int error = 0;
    GifFileType* file = EGifOpen(&out, appendTo, &error);
    require(file != nullptr, "EGifOpen");
    EGifSetGifVersion(file, true);
    ColorMapObject* colors = GifMakeMapObject(1 << frames[0].depth, nullptr);
    for (int i = 0; i < colors->ColorCount; ++i)
        colors->Colors[i] = {static_cast<GifByteType>(i), static_cast<GifByteType>(i), static_cast<GifByteType>(i)};
    bool good = EGifPutScreenDesc(file, frames[0].width, frames[0].height, frames[0].depth, 0, colors) == GIF_OK;
    for (bench::Picture& frame : frames)
    {
        GraphicsControlBlock control{disposal, false, 4, transparent};
        GifByteType bytes[4];
        EGifGCBToExtension(&control, bytes);
        if (frames.size() > 1)
            good = good && EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, 4, bytes) == GIF_OK;
        good = good &&
               EGifPutImageDesc(file, 0, 0, frame.width, frame.height, order == Order::Interlaced, nullptr) == GIF_OK &&
               putRows(file, frame, order);
    }
    good = EGifCloseFile(file, &error) == GIF_OK && good;
    GifFreeMapObject(colors);
    require(good, "giflib's encoder");
    return out;
}

void giflibDecode(const Bytes& bytes)
{
    Source source{&bytes, 0};
    int error = 0;
    GifFileType* file = DGifOpen(&source, takeFrom, &error);
    require(file != nullptr && DGifSlurp(file) == GIF_OK, "giflib's decoder");
    DGifCloseFile(file, &error);
}

void ourDecode(Bytes& bytes, long frame)
{
    CKxGifImage image;
    image.SetFrame(frame);
    require(image.Decode(bytes.data(), static_cast<unsigned long>(bytes.size())) && image.IsValid(), "Decode");
}

template <class Work> double milliseconds(int repeats, Work work)
{
    const auto all = [&]
    {
        for (int i = 0; i < repeats; ++i)
            work();
    };
    return bench::timeOf(all) / 1e6 / repeats;
}

const char* g_only = nullptr; // the picture that was asked for

void compare(const char* name, Bytes bytes, long frame, double floor, double goal)
{
    if (g_only && std::strstr(name, g_only) == nullptr)
        return;
    constexpr int rounds = 41; // in turn, so that a busy machine slows both
    const double once = milliseconds(1, [&] { giflibDecode(bytes); });
    const int repeats = std::max(1, static_cast<int>(2.0 / once));
    std::vector<double> ratios;
    double ours = 1e300;
    double theirs = 1e300;
    for (int round = 0; round < rounds; ++round)
    {
        const double their = milliseconds(repeats, [&] { giflibDecode(bytes); });
        const double our = milliseconds(repeats, [&] { ourDecode(bytes, frame); });
        ratios.push_back(their / our);
        ours = std::min(ours, our);
        theirs = std::min(theirs, their);
    }
    std::nth_element(ratios.begin(), ratios.begin() + rounds / 2, ratios.end());
    std::printf("%-18s %9zu %9.4f %9.4f %8.2f %8.2f %7.1f %6.0f\n", name, bytes.size(), ours, theirs, theirs / ours,
                ratios[rounds / 2], floor, goal);
}
} // namespace

// bench_gif_decode [PICTURE]
int main(int count, char** arguments)
{
    if (count > 1)
        g_only = arguments[1];
    std::printf("%-18s %9s %9s %9s %8s %8s %7s %6s\n", "picture", "bytes", "best ms", "giflib", "best", "median",
                "floor", "goal");
    compare("screen", streamOf({bench::screen()}, Order::Straight), 0, 10, 20);
    compare("screen interlaced", streamOf({bench::screen()}, Order::Interlaced), 0, 8, 14);
    compare("noise", streamOf({bench::noise()}, Order::Straight), 0, 2.4, 5);
    compare("line art 4 bits", streamOf({bench::lineArt("line art 4 bits", 4)}, Order::Straight), 0, 6, 10);
    compare("line art 1 bit", streamOf({bench::lineArt("line art 1 bit", 1)}, Order::Straight), 0, 8, 14);
    compare("animation, last", streamOf(bench::animation(), Order::Straight), 29, 4, 8);
    compare("spinner, last", streamOf(bench::spinner(), Order::Straight, 2, 0), 11, 4.5, 9);
    return 0;
}
