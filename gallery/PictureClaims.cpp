// Sizes that are too large, and streams without pictures.
#include "PictureClaims.h"
#include "oxa/images/KxGifImage.h"
#include <algorithm>

namespace
{
constexpr LONGLONG largestPicture = 64 << 20; // pixels

/// The size that a GIF stream claims; 0 by 0 when it is none.
CSize claimedSize(const PictureSource& source)
{
    CKxGifImage probe;
    probe.SetEscape(-1); // dimensions only
    if (!probe.Decode(const_cast<unsigned char*>(source.bytes.data()), static_cast<unsigned long>(source.bytes.size())))
        return CSize(0, 0);
    return CSize(static_cast<int>(probe.GetWidth()), static_cast<int>(probe.GetHeight()));
}
} // namespace

bool isTooLarge(CSize size)
{
    return static_cast<LONGLONG>(size.cx) * size.cy > largestPicture;
}

CString pixelsText(CSize size)
{
    CString text;
    text.Format(L"%d by %d pixels", size.cx, size.cy);
    return text;
}

CString refusalOfGif(const PictureSource& source, const std::vector<GifFrame>& frames)
{
    const CSize size = claimedSize(source);
    const bool framesFit =
        std::none_of(frames.begin(), frames.end(),
                     [](const GifFrame& frame) { return isTooLarge(CSize(frame.width, frame.height)); });
    if (isTooLarge(size) || !framesFit)
        return L"\"" + source.name + L"\" claims to have " + pixelsText(size) + L", more than are shown here.";
    if (frames.empty())
        return L"\"" + source.name + L"\" begins like a GIF, but holds no picture that can be read.";
    return {};
}

CString refusalOfOther(const PictureSource& source, CSize size)
{
    if (size.cx <= 0 || size.cy <= 0)
        return L"\"" + source.name + L"\" is not a picture that can be read.";
    if (isTooLarge(size))
        return L"\"" + source.name + L"\" has " + pixelsText(size) + L", more than are shown here.";
    return {};
}
