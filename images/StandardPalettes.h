// The palettes that SetStdPalette gives an image.
#pragma once

#include <afx.h>

#include <array>

struct StandardPalettes
{
    static const std::array<RGBQUAD, 16>& Sixteen();
    static const std::array<RGBQUAD, 256>& TwoHundredFiftySix();
};
