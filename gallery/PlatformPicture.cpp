// Asks the platform's decoder.
#include "PlatformPicture.h"
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxPictureEx.h"

#include <ocidl.h>
#include <olectl.h>

namespace
{
constexpr int himetricPerInch = 2540;

struct Release
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface> using Owner = std::unique_ptr<Interface, Release>;

Owner<IPicture> decode(const std::vector<unsigned char>& bytes)
{
    IStream* made = nullptr;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &made)))
        return nullptr;
    const Owner<IStream> stream(made);
    const auto count = static_cast<ULONG>(bytes.size());
    const LARGE_INTEGER start = {};
    void* picture = nullptr;
    if (FAILED(stream->Write(bytes.data(), count, nullptr)) || FAILED(stream->Seek(start, STREAM_SEEK_SET, nullptr)) ||
        FAILED(OleLoadPicture(stream.get(), static_cast<LONG>(count), FALSE, IID_IPicture, &picture)))
        return nullptr;
    return Owner<IPicture>(static_cast<IPicture*>(picture));
}

/// Whether the library draws it: that is asked first, because it refuses damaged files that some decoders do not survive.
bool isDrawn(const std::vector<unsigned char>& bytes, HDC dc, CSize size, CBitmap& bitmap)
{
    return !bytes.empty() && CKxPictureEx::LoadPicture(const_cast<unsigned char*>(bytes.data()), bytes.size(), dc,
                                                       size.cx, size.cy, bitmap, RGB(255, 255, 255)) == 1;
}
} // namespace

CSize platformSize(const std::vector<unsigned char>& bytes)
{
    CClientDC dc(nullptr);
    CBitmap probe;
    if (!isDrawn(bytes, dc, CSize(1, 1), probe))
        return CSize(0, 0);
    const Owner<IPicture> picture = decode(bytes);
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    if (!picture || FAILED(picture->get_Width(&width)) || FAILED(picture->get_Height(&height)))
        return CSize(0, 0);
    return CSize(MulDiv(width, dc.GetDeviceCaps(LOGPIXELSX), himetricPerInch),
                 MulDiv(height, dc.GetDeviceCaps(LOGPIXELSY), himetricPerInch));
}

std::unique_ptr<CKxGifImage> platformPixels(const std::vector<unsigned char>& bytes, CSize size)
{
    CClientDC dc(nullptr);
    CBitmap bitmap;
    auto image = std::make_unique<CKxGifImage>();
    if (!isDrawn(bytes, dc, size, bitmap) || !image->CreateFromHBITMAP(bitmap))
        return nullptr;
    return image;
}
