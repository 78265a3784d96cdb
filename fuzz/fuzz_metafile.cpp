// The check of metafiles, and of the other pictures whose offsets are checked. Input: the file.
#include <cstddef>
#include <cstdint>
#include "images/MetafileCheck.h"
#include "images/PictureData.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // What the picture classes let through is nothing that the check refuses.
    const bool whole = PictureData::isWhole(data, size);
    const bool metafile = size >= 4 && (data[0] == 1 || data[0] == 2 || data[0] == 0xD7);
    if (metafile && whole && !MetafileCheck::isSound(data, size))
        __builtin_trap();
    return 0;
}
