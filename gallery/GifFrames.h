// The frames of a GIF stream as its blocks tell them, without decoding a pixel.
#pragma once
#include <afx.h>
#include <vector>

struct GifFrame
{
    int left, top, width, height; // pixels of the logical screen
    unsigned long delay;          // hundredths of a second
    long disposal;                // 0 to 7
};

/// Walks a stream in one pass. A frame that lies outside the screen is left out, as `CKxGifImage` leaves it out. Damaged
/// streams give the frames that were found.
std::vector<GifFrame> listGifFrames(const std::vector<unsigned char>& stream);
