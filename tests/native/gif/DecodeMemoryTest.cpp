// How much memory a decode takes at most: less than three times the canvas.
#ifndef __SANITIZE_ADDRESS__ // its own allocator takes what it likes
#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "support/GifBuilder.h"
#include "support/GifSeeds.h"

namespace
{
using recipe::Bytes;
using recipe::GifBuilder;

struct MemoryCase
{
    const char* what;
    int width;
    int height;
    int depth;
    bool interlaced;
    int frames;
};

Bytes streamOf(const MemoryCase& row)
{
    const int colours = 1 << row.depth;
    GifBuilder builder(row.width, row.height, recipe::greys(colours));
    recipe::Place place{0, 0, row.width, row.height, row.interlaced};
    const auto pixels = static_cast<std::size_t>(row.width) * static_cast<std::size_t>(row.height);
    for (int i = 0; i < row.frames; ++i)
        builder.control(2, 0, 1).frame(place, row.depth < 2 ? 2 : row.depth, recipe::runs(pixels, colours, 200));
    return builder.trailer().bytes();
}

/// In a process of its own: leaves with 0 if the last frame can be read with `room` bytes more than are taken already.
[[noreturn]] void decodeWithin(Bytes& bytes, long frame, std::size_t room)
{
    long pages = 0;
    std::FILE* const file = std::fopen("/proc/self/statm", "r");
    const bool known = file && std::fscanf(file, "%ld", &pages) == 1;
    const rlim_t taken = static_cast<rlim_t>(pages) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    const rlimit limit{taken + room, taken + room};
    if (!known || setrlimit(RLIMIT_AS, &limit) != 0)
        _exit(3);
    CKxGifImage image;
    image.SetFrame(frame);
    const bool read = image.Decode(bytes.data(), bytes.size()) && image.IsValid();
    _exit(read ? 0 : 1);
}

TEST(DecodeMemory, the_peak_is_below_three_times_the_canvas)
{
    GTEST_FLAG_SET(death_test_style, "fast");
    const std::vector<MemoryCase> rows{
        {"8 bits", 1200, 900, 8, false, 1},           {"8 bits interlaced", 1200, 900, 8, true, 1},
        {"4 bits", 1600, 1200, 4, false, 1},          {"1 bit", 3000, 2400, 1, false, 1},
        {"1 bit interlaced", 3000, 2400, 1, true, 1}, {"8 bits, three frames", 900, 600, 8, true, 3},
    };
    for (const MemoryCase& row : rows)
    {
        Bytes bytes = streamOf(row);
        const std::size_t canvas = static_cast<std::size_t>(row.width) * static_cast<std::size_t>(row.height) *
                                   static_cast<std::size_t>(row.depth) / 8;
        malloc_trim(0);
        EXPECT_EXIT(decodeWithin(bytes, row.frames - 1, 3 * canvas), testing::ExitedWithCode(0), "") << row.what;
        EXPECT_EXIT(decodeWithin(bytes, row.frames - 1, canvas / 2), testing::ExitedWithCode(1), "")
            << row.what << ": the measure itself";
    }
}
} // namespace
#endif
