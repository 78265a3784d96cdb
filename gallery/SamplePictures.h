// The pictures that are shipped beside the gallery, and a large one that is drawn when it is asked for.
#pragma once
#include "PictureSource.h"
#include <array>

struct SamplePicture
{
    const wchar_t* title;
    const wchar_t* file; ///< in the samples folder; null: drawn on the spot
};

inline constexpr std::array samplePictures = {
    SamplePicture{L"Landscape, a true-colour picture", L"landscape.bmp"},
    SamplePicture{L"Portal frame, a drawing", L"portal.gif"},
    SamplePicture{L"Load on a beam, animated", L"load.gif"},
    SamplePicture{L"Large gradient, 12 million pixels", nullptr},
};

/// Beside the program.
CString samplesFolder();
PictureSource openSample(const SamplePicture& sample);
