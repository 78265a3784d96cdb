// Paints the resource.
#include "oxa/images/KxStaticPicture.h"

#include "oxa/images/KxImage.h"

// clang-format off
BEGIN_MESSAGE_MAP(CKxStaticPicture, CStatic)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

CKxStaticPicture::CKxStaticPicture() : CKxStaticPicture(0) {}

CKxStaticPicture::CKxStaticPicture(unsigned int id) : m_nBitmapID(id) {}

CKxStaticPicture::~CKxStaticPicture() = default;

void CKxStaticPicture::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CKxImage(&dc, static_cast<int>(m_nBitmapID), client.left, client.top).DrawBitmap(false);
}
