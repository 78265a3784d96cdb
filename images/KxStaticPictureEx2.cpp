// Loads at the fixed size.
#include "oxa/images/KxStaticPictureEx2.h"

#include "ClientContext.h"
#include "oxa/images/KxPictureEx.h"

namespace
{
constexpr int frameWidth = 235;
constexpr int frameHeight = 182;
} // namespace

CKxStaticPictureEx2::CKxStaticPictureEx2(CBitmap& bitmap, unsigned int id, CString path, CString type)
{
    if (!path.IsEmpty())
    {
        SetBitmapPath(path, bitmap);
    }
    else if (id != 0)
    {
        SetBitmapID(id, bitmap, type);
    }
}

int CKxStaticPictureEx2::SetBitmapID(unsigned int id, CBitmap& bitmap, CString type)
{
    return loadOnClientOf(CWnd::GetDesktopWindow(), [&](HDC dc)
                          { return CKxPictureEx::LoadBitmap(id, dc, frameWidth, frameHeight, bitmap, type); });
}

int CKxStaticPictureEx2::SetBitmapPath(CString path, CBitmap& bitmap)
{
    return loadOnClientOf(CWnd::GetDesktopWindow(),
                          [&](HDC dc) { return CKxPictureEx::LoadBitmap(path, dc, frameWidth, frameHeight, bitmap); });
}
