// Loads at the client's size, and paints.
#include "oxa/images/KxStaticPictureEx.h"

#include "ClientContext.h"
#include "oxa/images/KxImage.h"
#include "oxa/images/KxPictureEx.h"

namespace
{
/// Calls load(dc, width, height) with those of the client area.
template <class Load> int loadAtClientSize(CWnd& control, CBitmap& old, Load load)
{
    old.DeleteObject();
    CRect client;
    control.GetClientRect(&client);
    return loadOnClientOf(&control, [&](HDC dc) { return load(dc, client.Width(), client.Height()); });
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CKxStaticPictureEx, CStatic)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

CKxStaticPictureEx::CKxStaticPictureEx() = default;

CKxStaticPictureEx::CKxStaticPictureEx(unsigned int id, CString type)
{
    SetBitmapID(id, type);
}

CKxStaticPictureEx::CKxStaticPictureEx(CString path)
{
    SetBitmapPath(path);
}

CKxStaticPictureEx::~CKxStaticPictureEx() = default;

int CKxStaticPictureEx::SetBitmapID(unsigned int id, CString type)
{
    return loadAtClientSize(
        *this, m_Bitmap, [&](HDC dc, int w, int h) { return CKxPictureEx::LoadBitmap(id, dc, w, h, m_Bitmap, type); });
}

int CKxStaticPictureEx::SetBitmapPath(CString path)
{
    return loadAtClientSize(*this, m_Bitmap,
                            [&](HDC dc, int w, int h) { return CKxPictureEx::LoadBitmap(path, dc, w, h, m_Bitmap); });
}

int CKxStaticPictureEx::SetBitmapPathEx(CString path)
{
    return loadAtClientSize(
        *this, m_Bitmap,
        [&](HDC dc, int w, int h)
        { return CKxPictureEx::LoadBitmapPath(path, dc, w, h, m_Bitmap, ::GetSysColor(COLOR_WINDOW)); });
}

int CKxStaticPictureEx::SetPicture(unsigned char* data, size_t size)
{
    return loadAtClientSize(
        *this, m_Bitmap,
        [&](HDC dc, int w, int h)
        { return CKxPictureEx::LoadPicture(data, size, dc, w, h, m_Bitmap, ::GetSysColor(COLOR_WINDOW)); });
}

void CKxStaticPictureEx::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CKxImage(&dc, &m_Bitmap, client.left, client.top).DrawBitmap(false);
}
