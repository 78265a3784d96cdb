// A GIF stream through the decoder and through the plain reader, which must agree in everything.
// Input: one byte of options, then the stream. Options: 0x07 the frame; 0x08 through a derived stream, in the portions of
// the two passes; 0x10 a second decode in the same image, of frame 0; 0x20 with 0x08, a stop is asked for before read 40.
// The screen is at most 63 by 63, or 511 by 255 when 0xC0 are both set: the plain reader's work grows with the areas.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>
#include "support/GifJudge.h"
#include "support/WatchedFile.h"

namespace
{
constexpr std::size_t widthAt = 6;
constexpr std::size_t heightAt = 8;

void require(const std::string& difference)
{
    if (difference.empty())
        return;
    std::fprintf(stderr, "%s\n", difference.c_str());
    std::abort();
}

void limitScreen(std::vector<std::uint8_t>& bytes, bool large)
{
    if (bytes.size() < heightAt + 2)
        return;
    bytes[widthAt] &= large ? 255 : 63;
    bytes[widthAt + 1] &= large ? 1 : 0;
    bytes[heightAt] &= large ? 255 : 63;
    bytes[heightAt + 1] = 0;
}
} // namespace

/// What was freed is kept for a while, to find uses of it: 8 MiB are many decodes.
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=8:malloc_context_size=8";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static GifJudge judge;
    static std::vector<std::uint8_t> bytes;
    if (size < 2)
        return 0;
    const unsigned options = data[0];
    const long frame = static_cast<long>(options & 7U);
    bytes.assign(data + 1, data + size);
    limitScreen(bytes, (options & 0xC0U) == 0xC0U);
    judge.reset();
    if ((options & 8U) == 0)
        require(judge.decode(bytes, frame));
    else
    {
        WatchedFile file(bytes.data(), static_cast<unsigned long>(bytes.size()));
        int reads = 0;
        if ((options & 0x20U) != 0)
        {
            file.stopped = &judge.image;
            file.stopAt = 40;
            judge.onPlainRead = [&]
            {
                if (++reads == file.stopAt)
                    judge.plainImage.escape = 1;
            };
        }
        require(judge.decode(file, bytes.data(), bytes.size(), frame));
        judge.onPlainRead = nullptr;
        judge.image.SetEscape(0);
        judge.plainImage.escape = 0;
    }
    if ((options & 0x10U) != 0)
        require(judge.decode(bytes, 0));
    return 0;
}
