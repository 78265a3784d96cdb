// Loads at the fixed size.
#include "oxa/images/KxStaticPictureEx2.h"

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
    const CClientDC dc(CWnd::GetDesktopWindow());
    return CKxPictureEx::LoadBitmap(id, dc.GetSafeHdc(), frameWidth, frameHeight, bitmap, type);
}

int CKxStaticPictureEx2::SetBitmapPath(CString path, CBitmap& bitmap)
{
    const CClientDC dc(CWnd::GetDesktopWindow());
    return CKxPictureEx::LoadBitmap(path, dc.GetSafeHdc(), frameWidth, frameHeight, bitmap);
}
