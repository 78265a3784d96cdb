// Where the samples are, and the drawing of the large one.
#include "SamplePictures.h"
#include <cstring>

namespace
{
constexpr int width = 4000, height = 3000;

// A bitmap file of 24 bits: rings of light in a field of slowly turning colours.
PictureSource largeGradient()
{
    PictureSource source;
    source.name = L"gradient.bmp";
    BITMAPFILEHEADER file = {};
    BITMAPINFOHEADER info = {};
    constexpr DWORD offset = sizeof file + sizeof info, stride = width * 3;
    static_assert(stride % 4 == 0);
    file.bfType = 0x4D42; // "BM"
    file.bfSize = offset + stride * height;
    file.bfOffBits = offset;
    info.biSize = sizeof info;
    info.biWidth = width;
    info.biHeight = height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    source.bytes.resize(file.bfSize);
    std::memcpy(source.bytes.data(), &file, sizeof file);
    std::memcpy(source.bytes.data() + sizeof file, &info, sizeof info);
    unsigned char* next = source.bytes.data() + offset;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const int fromMiddle = ((x - width / 2) * (x - width / 2) + (y - height / 2) * (y - height / 2)) / 12000;
            const int ring = fromMiddle % 64;
            *next++ = static_cast<unsigned char>(255 - x * 200 / width);
            *next++ = static_cast<unsigned char>(60 + y * 130 / height + ring);
            *next++ = static_cast<unsigned char>(x * 120 / width + (height - y) * 120 / height);
        }
    return source;
}
} // namespace

CString samplesFolder()
{
    CString path;
    GetModuleFileNameW(nullptr, path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    return path.Left(path.ReverseFind(L'\\') + 1) + L"samples";
}

PictureSource openSample(const SamplePicture& sample)
{
    return sample.file ? PictureSource::read(samplesFolder() + L"\\" + sample.file) : largeGradient();
}
