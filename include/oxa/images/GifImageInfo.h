// The information record of a CKxGifImage, which is copied and cleared as a unit.
#pragma once

#include <afx.h>

#include <cstdint>

#include "oxa/images/SharedWord.h"

class CKxGifImage;

/// All zero after construction; `CKxGifImage` sets what differs.
struct GifImageInfo
{
    std::uint32_t nEffWidth = 0;         // bytes per row: (bpp * width + 31) / 32 * 4
    unsigned char* pImage = nullptr;     // first pixel byte of the block
    CKxGifImage* pGhostOf = nullptr;     // non-null: the block is borrowed
    SharedWord<std::uint32_t> nProgress; // percentage, written by long operations
    SharedWord<std::int32_t> nEscape;    // -1: dimensions only; 0: normal; another value stops the work
    std::int32_t nTransIndex = 0;        // palette index that is transparent, -1 for none
    RGBQUAD TransColor = {};             // transparent colour of images without a palette
    std::int32_t nFrame = 0;             // frame to decode, from 0
    std::int32_t nNumFrames = 0;         // counted by the last decode
    std::uint32_t nFrameDelay = 0;       // hundredths of a second
    std::int32_t nXDPI = 0;
    std::int32_t nYDPI = 0;
    bool bEnabled = false;
    std::int32_t nXOffset = 0; // position of the frame on the logical screen when encoding
    std::int32_t nYOffset = 0;
    RGBQUAD LastColor = {}; // the one-entry cache of GetNearestIndex
    std::uint8_t nLastIndex = 0;
    bool bLastValid = false;
    std::uint32_t nFlags = 0;
};
