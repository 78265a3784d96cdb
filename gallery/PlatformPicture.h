// Pictures that only the platform can read, as pixels of the image class.
#pragma once
#include <afxwin.h>
#include <memory>
#include <vector>

class CKxGifImage;

/// The size of a picture file in pixels; nothing (0 by 0) when the platform does not read it.
CSize platformSize(const std::vector<unsigned char>& bytes);

/// The pixels of a picture file of that size, 24 bits each; null when it cannot be drawn.
std::unique_ptr<CKxGifImage> platformPixels(const std::vector<unsigned char>& bytes, CSize size);
