// A GIF stream, cut into blocks and frames, against the plain form of the walk. Input: the stream.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include "oxa/images/GifBlockWalker.h"
#include "support/GifBlockJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static GifBlockJudge judge;
    if (const char* difference = judge.judge(data, size))
    {
        std::fprintf(stderr, "they differ: %s\n", difference);
        std::abort();
    }
    const bool gif = size >= 3 && data[0] == 'G' && data[1] == 'I' && data[2] == 'F';
    if (GifBlockWalker::IsGif(data, static_cast<std::uint32_t>(size)) != gif)
        std::abort();
    return 0;
}
