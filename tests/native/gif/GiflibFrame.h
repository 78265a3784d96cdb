// The first frame of a GIF file as giflib reads it.
#pragma once

#include <gif_lib.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace peers
{
struct FirstFrame
{
    int screenWidth = 0;
    int screenHeight = 0;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int frames = 0;
    bool interlaced = false;
    int transparent = -1;
    std::vector<std::uint8_t> indexes{}; // top row first
    std::vector<GifColorType> colours{};
};

/// No pixels when giflib cannot read the file.
inline FirstFrame readWithGiflib(const std::string& path)
{
    FirstFrame result;
    int error = 0;
    GifFileType* file = DGifOpenFileName(path.c_str(), &error);
    if (!file)
        return result;
    if (DGifSlurp(file) == GIF_OK && file->ImageCount > 0)
    {
        const SavedImage& frame = file->SavedImages[0];
        const GifImageDesc& place = frame.ImageDesc;
        result.screenWidth = file->SWidth;
        result.screenHeight = file->SHeight;
        result.left = place.Left;
        result.top = place.Top;
        result.width = place.Width;
        result.height = place.Height;
        result.frames = file->ImageCount;
        result.interlaced = place.Interlace;
        GraphicsControlBlock control;
        if (DGifSavedExtensionToGCB(file, 0, &control) == GIF_OK)
            result.transparent = control.TransparentColor;
        const auto pixels = static_cast<std::size_t>(place.Width) * static_cast<std::size_t>(place.Height);
        result.indexes.assign(frame.RasterBits, frame.RasterBits + pixels);
        const ColorMapObject* map = place.ColorMap ? place.ColorMap : file->SColorMap;
        if (map)
            result.colours.assign(map->Colors, map->Colors + map->ColorCount);
    }
    DGifCloseFile(file, &error);
    return result;
}
} // namespace peers
