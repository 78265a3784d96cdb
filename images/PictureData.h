// Judges whether what the headers of a picture file point at lies within its bytes.
#pragma once

#include <cstddef>

#include "oxa/Export.h"

/// Not every platform's decoder checks the offsets of bitmap and icon files; those of other formats are checked by it.
struct OXA_API PictureData
{
    /// False when a bitmap, icon or cursor file claims palette entries, pixels or images beyond its end, or none at all.
    /// True for every other format, and for nothing.
    static bool isWhole(const unsigned char* data, size_t size);
};
