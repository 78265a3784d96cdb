// Draws decoded pictures into bitmaps.
#include "oxa/images/KxPictureEx.h"

#include <utility>

#include "DecodedPicture.h"
#include "MemoryDc.h"

namespace
{
struct Drawn
{
    OwnedBitmap bitmap; // null when none could be made
    bool complete = false;
};

/// Without a background the new bitmap's content stays behind transparent pixels.
Drawn drawPicture(const DecodedPicture& picture, HDC dc, int w, int h, const COLORREF* background)
{
    Drawn result;
    if (!picture.exists() || w < 0 || h < 0)
    {
        return result;
    }
    result.bitmap.reset(::CreateCompatibleBitmap(dc, w, h));
    const MemoryDc memory(dc, result.bitmap.get());
    if (!memory.ready())
    {
        result.bitmap.reset();
        return result;
    }
    ::SetStretchBltMode(memory.handle(), COLORONCOLOR); // a smaller picture keeps its colours
    const RECT all = {0, 0, w, h};
    if (background != nullptr)
    {
        CDC painter;
        painter.Attach(memory.handle());
        painter.FillSolidRect(&all, *background);
        painter.Detach();
    }
    result.complete = picture.render(memory.handle(), 0, 0, w, h, background == nullptr ? nullptr : &all);
    return result;
}

void give(OwnedBitmap drawn, CBitmap& bitmap)
{
    bitmap.DeleteObject();
    bitmap.Attach(drawn.release());
}

int loadPlain(const DecodedPicture& picture, HDC dc, int w, int h, HBITMAP& bitmap)
{
    Drawn drawn = drawPicture(picture, dc, w, h, nullptr);
    if (drawn.bitmap == nullptr)
    {
        return 0;
    }
    bitmap = drawn.complete ? drawn.bitmap.release() : nullptr;
    return drawn.complete;
}

int loadPlain(const DecodedPicture& picture, HDC dc, int w, int h, CBitmap& bitmap)
{
    Drawn drawn = drawPicture(picture, dc, w, h, nullptr);
    if (drawn.bitmap == nullptr)
    {
        return 0;
    }
    give(drawn.complete ? std::move(drawn.bitmap) : nullptr, bitmap);
    return drawn.complete;
}

int loadFilled(const DecodedPicture& picture, HDC dc, int w, int h, CBitmap& bitmap, COLORREF background)
{
    Drawn drawn = drawPicture(picture, dc, w, h, &background);
    if (drawn.bitmap == nullptr)
    {
        return 0;
    }
    give(std::move(drawn.bitmap), bitmap); // kept on purpose: also when the picture could not be drawn on it
    return drawn.complete;
}
} // namespace

int CKxPictureEx::LoadBitmap(unsigned int id, HDC dc, int w, int h, HBITMAP& bitmap, CString type)
{
    return loadPlain(DecodedPicture::fromResource(id, type), dc, w, h, bitmap);
}

int CKxPictureEx::LoadBitmap(unsigned int id, HDC dc, int w, int h, CBitmap& bitmap, CString type)
{
    return loadPlain(DecodedPicture::fromResource(id, type), dc, w, h, bitmap);
}

int CKxPictureEx::LoadBitmap(CString path, HDC dc, int w, int h, HBITMAP& bitmap)
{
    return loadPlain(DecodedPicture::fromPath(path), dc, w, h, bitmap);
}

int CKxPictureEx::LoadBitmap(CString path, HDC dc, int w, int h, CBitmap& bitmap)
{
    return loadPlain(DecodedPicture::fromPath(path), dc, w, h, bitmap);
}

int CKxPictureEx::LoadBitmapPath(CString path, HDC dc, int w, int h, CBitmap& bitmap, COLORREF background)
{
    return loadFilled(DecodedPicture::fromPath(path), dc, w, h, bitmap, background);
}

int CKxPictureEx::LoadPicture(unsigned char* data, size_t size, HDC dc, int w, int h, CBitmap& bitmap,
                              COLORREF background)
{
    return loadFilled(DecodedPicture::fromMemory(data, size), dc, w, h, bitmap, background);
}

int CKxPictureEx::SaveBitmap(unsigned int id, const CString& path)
{
    return !path.IsEmpty() && DecodedPicture::fromResource(id, L"BINARY").save(path);
}
