// Judges whether what the headers of a picture file point at lies within its bytes, and fills in what a decoder needs.
#pragma once

#include <cstddef>
#include <vector>

#include "oxa/Export.h"

/// Not every platform's decoder checks the offsets of bitmap, icon and metafiles; those of other formats are checked by it.
struct OXA_API PictureData
{
    /// False when a bitmap, icon or cursor file claims palette entries, pixels or images beyond its end, or none at all, and
    /// for a damaged metafile (see MetafileCheck). True for every other format, and for nothing.
    static bool isWhole(const unsigned char* data, size_t size);

    /// Whether the file is a GIF without a global colour table. Not every decoder stands one whose image has no table
    /// either.
    static bool lacksColorTable(const unsigned char* data, size_t size);
    /// Such a file with a global table of 256 entries: black, white, and black for all others.
    static std::vector<unsigned char> withColorTable(const unsigned char* data, size_t size);
};
