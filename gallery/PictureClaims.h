// What a picture file claims to be, asked before it is decoded.
#pragma once
#include "GifFrames.h"
#include "PictureSource.h"

/// More pixels than the gallery decodes and shows.
bool isTooLarge(CSize size);

/// "240 by 140 pixels"
CString pixelsText(CSize size);

/// A sentence that says why a GIF is not decoded here, or empty. `frames` are those of the stream.
CString refusalOfGif(const PictureSource& source, const std::vector<GifFrame>& frames);

/// The same for other files; `size` is what the platform says of them, and 0 by 0 for what it does not read.
CString refusalOfOther(const PictureSource& source, CSize size);
