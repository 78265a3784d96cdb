// Loads the bitmap with the current system colours, and owns what the control shows.
#include "oxa/images/KxSysColorBitmapStatic.h"

namespace
{
constexpr int noBitmap = -1;
}

// clang-format off
BEGIN_MESSAGE_MAP(CKxSysColorBitmapStatic, CStatic)
    // void OnSysColorChange()
    ON_WM_SYSCOLORCHANGE()
    // void OnDestroy()
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

CKxSysColorBitmapStatic::CKxSysColorBitmapStatic() : m_nBitmapID(noBitmap), m_shown(nullptr) {}

CKxSysColorBitmapStatic::~CKxSysColorBitmapStatic()
{
    deleteShown();
}

void CKxSysColorBitmapStatic::ReloadBitmap(int id)
{
    if (id != noBitmap)
    {
        m_nBitmapID = id;
    }
    if (m_nBitmapID == noBitmap || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const LPCTSTR name = MAKEINTRESOURCE(m_nBitmapID);
    const HANDLE bitmap = ::LoadImageW(AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0,
                                       LR_LOADMAP3DCOLORS | LR_LOADTRANSPARENT);
    if (bitmap != nullptr)
    {
        show(static_cast<HBITMAP>(bitmap));
    }
}

void CKxSysColorBitmapStatic::OnSysColorChange()
{
    CStatic::OnSysColorChange();
    ReloadBitmap(noBitmap);
}

void CKxSysColorBitmapStatic::OnDestroy()
{
    deleteShown();
    CStatic::OnDestroy();
}

void CKxSysColorBitmapStatic::show(HBITMAP bitmap)
{
    const HBITMAP before = SetBitmap(bitmap);
    if (before != nullptr)
    {
        ::DeleteObject(before);
    }
    // A control that shows no bitmaps takes none, and one may show a copy.
    m_shown = GetBitmap();
    if (m_shown != bitmap)
    {
        ::DeleteObject(bitmap);
    }
}

void CKxSysColorBitmapStatic::deleteShown()
{
    if (m_shown != nullptr && GetSafeHwnd() != nullptr && GetBitmap() == m_shown)
    {
        SetBitmap(nullptr);
        ::DeleteObject(m_shown);
    }
    m_shown = nullptr;
}
