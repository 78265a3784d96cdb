// How long colour reduction takes, against a scan of all entries per pixel and against libimagequant on the same palette.
#include <libimagequant.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "support/PlainReduction.h"

extern "C" void omp_set_num_threads(int count); // libimagequant's own threads

namespace
{
using Clock = std::chrono::steady_clock;
using Random = std::mt19937;

RGBQUAD color(long red, long green, long blue)
{
    return {static_cast<BYTE>(blue), static_cast<BYTE>(green), static_cast<BYTE>(red), 0};
}

// Windows, borders, text: few colours in long runs.
void drawScreen(CKxGifImage& image, Random& random)
{
    for (int window = 0; window < 60; ++window)
    {
        const auto left = static_cast<long>(random() % image.GetWidth());
        const auto bottom = static_cast<long>(random() % image.GetHeight());
        const auto width = static_cast<long>(50 + random() % 600);
        const auto height = static_cast<long>(20 + random() % 400);
        const auto paint = static_cast<unsigned long>(random() & 0xFFFFFF);
        for (long y = bottom; y < bottom + height; ++y)
            for (long x = left; x < left + width; ++x)
                image.SetPixelColor(x, y, (x - left) % 97 < 7 && (y - bottom) % 15 < 9 && (random() & 1) ? 0UL : paint);
    }
}

// Soft surfaces with grain, as a photograph has.
void drawPhotograph(CKxGifImage& image, Random& random)
{
    const auto width = static_cast<long>(image.GetWidth());
    const auto height = static_cast<long>(image.GetHeight());
    for (long y = 0; y < height; ++y)
        for (long x = 0; x < width; ++x)
        {
            const auto grain = static_cast<long>(random() % 16);
            image.SetPixelColor(x, y,
                                color(x * 230 / width + grain, y * 230 / height + grain,
                                      (x + y) * 230 / (width + height) + static_cast<long>(random() % 16)));
        }
}

// Every colour as likely as any other.
void drawNoise(CKxGifImage& image, Random& random)
{
    for (long y = 0; y < static_cast<long>(image.GetHeight()); ++y)
        for (long x = 0; x < static_cast<long>(image.GetWidth()); ++x)
            image.SetPixelColor(x, y, static_cast<unsigned long>(random() & 0xFFFFFF));
}

double milliseconds(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

template <class Image> double reduce(const CKxGifImage& source, bool diffuse, Image& image)
{
    image.Copy(source, true, false, false);
    const auto start = Clock::now();
    if (!image.DecreaseBpp(8, diffuse, nullptr, 0))
        std::exit(1);
    return milliseconds(start);
}

void check(bool good)
{
    if (good)
        return;
    std::fprintf(stderr, "libimagequant refuses\n");
    std::exit(1);
}

/// libimagequant on the standard palette; its palette is fixed before the time is taken.
class Peer
{
public:
    Peer(const CKxGifImage& source, bool diffuse) : m_width(source.GetWidth()), m_height(source.GetHeight())
    {
        for (unsigned long y = 0; y < m_height; ++y)
            for (unsigned long x = 0; x < m_width; ++x)
            {
                const RGBQUAD pixel = source.GetPixelColor(static_cast<long>(x), static_cast<long>(y));
                m_pixels.insert(m_pixels.end(), {pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue, 255});
            }
        m_indexes.resize(m_width * m_height);
        m_attributes.reset(liq_attr_create());
        liq_set_max_colors(m_attributes.get(), 256);
        liq_set_speed(m_attributes.get(), 10);
        m_image.reset(liq_image_create_rgba(m_attributes.get(), m_pixels.data(), static_cast<int>(m_width),
                                            static_cast<int>(m_height), 0));
        CKxGifImage standard(1, 1, 8);
        standard.SetStdPalette();
        for (int i = 0; i < 256; ++i)
        {
            const RGBQUAD entry = standard.GetPaletteColor(static_cast<unsigned char>(i));
            liq_image_add_fixed_color(m_image.get(), {entry.rgbRed, entry.rgbGreen, entry.rgbBlue, 255});
        }
        liq_result* result = nullptr;
        check(liq_image_quantize(m_image.get(), m_attributes.get(), &result) == LIQ_OK);
        m_result.reset(result);
        liq_set_dithering_level(result, diffuse ? 1.0F : 0.0F);
    }

    double remap()
    {
        const auto start = Clock::now();
        check(liq_write_remapped_image(m_result.get(), m_image.get(), m_indexes.data(), m_indexes.size()) == LIQ_OK);
        return milliseconds(start);
    }

private:
    struct Destroy
    {
        void operator()(liq_attr* attributes) const { liq_attr_destroy(attributes); }
        void operator()(liq_image* image) const { liq_image_destroy(image); }
        void operator()(liq_result* result) const { liq_result_destroy(result); }
    };

    unsigned long m_width;
    unsigned long m_height;
    std::vector<unsigned char> m_pixels;
    std::vector<unsigned char> m_indexes;
    std::unique_ptr<liq_attr, Destroy> m_attributes;
    std::unique_ptr<liq_image, Destroy> m_image;
    std::unique_ptr<liq_result, Destroy> m_result;
};

void measure(const char* name, const CKxGifImage& source, bool diffuse)
{
    Peer peer(source, diffuse);
    CKxGifImage fast;
    PlainReduction plain;
    double ours = 1e300;
    double scan = 1e300;
    double theirs = 1e300;
    // They take turns and the best round of each counts, so that a busy machine disturbs all alike.
    for (int round = 0; round < 12; ++round)
    {
        ours = std::min(ours, reduce(source, diffuse, fast));
        theirs = std::min(theirs, peer.remap());
        if (round < 3)
            scan = std::min(scan, reduce(source, diffuse, plain));
    }
    if (std::memcmp(fast.GetDIB(), plain.GetDIB(), static_cast<std::size_t>(fast.GetSize())) != 0)
    {
        std::fprintf(stderr, "%s: the fast and the plain reduction disagree\n", name);
        std::exit(1);
    }
    std::printf("%-12s %-10s %8.2f %10.2f %10.2f %11.1f %11.1f\n", name, diffuse ? "diffused" : "plain", ours, scan,
                theirs, scan / ours, theirs / ours);
}
} // namespace

// The argument is the number of libimagequant's threads, 1 without it; the reduction itself has one.
int main(int argc, char** argv)
{
    omp_set_num_threads(argc > 1 ? std::max(std::atoi(argv[1]), 1) : 1);
    Random random(1);
    struct Picture
    {
        const char* name;
        unsigned long width;
        unsigned long height;
        void (*draw)(CKxGifImage&, Random&);
    };
    std::printf("%-12s %-10s %8s %10s %10s %11s %11s\n", "picture", "", "ours ms", "scan ms", "peer ms", "scan/ours",
                "peer/ours");
    for (const Picture& picture :
         {Picture{"screen", 1920, 1080, drawScreen}, Picture{"photograph", 1024, 768, drawPhotograph},
          Picture{"noise", 1024, 768, drawNoise}})
    {
        CKxGifImage image(picture.width, picture.height, 24);
        picture.draw(image, random);
        measure(picture.name, image, false);
        measure(picture.name, image, true);
    }
    std::printf("goals: plain 8 times the scan and 6 times libimagequant, diffused 4 times libimagequant\n");
    return 0;
}
