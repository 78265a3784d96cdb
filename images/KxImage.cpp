// Draws a bitmap opaque, through a mask of its green pixels, or over a copy of the target.
#include "oxa/images/KxImage.h"

#include "MemoryDc.h"
#include "oxa/images/KxPictureEx.h"

namespace
{
constexpr COLORREF keyColor = RGB(0, 255, 0);
constexpr COLORREF white = 0xFFFFFF;
// Where the mask is 1 the target stays, where it is 0 the source is copied.
constexpr DWORD keepTargetOrCopy = 0xCCAA0029;
// Where the source is 1 the brush is put, where it is 0 the target stays.
constexpr DWORD brushWhereSet = 0xE20746;

HBITMAP handleOf(const CBitmap* bitmap)
{
    return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(bitmap->GetSafeHandle());
}

CSize sizeOf(HBITMAP bitmap)
{
    BITMAP record = {};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof record, &record) == 0)
    {
        return {0, 0};
    }
    return {record.bmWidth, record.bmHeight};
}

void copyPixels(HDC target, const MemoryDc& source, CSize size, DWORD code = SRCCOPY)
{
    ::BitBlt(target, 0, 0, size.cx, size.cy, source.handle(), 0, 0, code);
}
} // namespace

CKxImage::CKxImage(CDC* dc, int id, int x, int y)
    : m_pDC(dc), m_nBitmapID(id), m_x(x), m_y(y), m_pBitmap(nullptr), m_bTransparent(0), m_crBackground(white),
      m_nWidth(0), m_nHeight(0)
{
}

CKxImage::CKxImage(CDC* dc, CBitmap* bitmap, int x, int y)
    : m_pDC(dc), m_nBitmapID(0), m_x(x), m_y(y), m_pBitmap(bitmap), m_bTransparent(0), m_crBackground(white),
      m_nWidth(0), m_nHeight(0)
{
}

CKxImage::CKxImage(const CKxImage& other) = default;

CKxImage& CKxImage::operator=(const CKxImage& other) = default;

CKxImage::~CKxImage() = default;

void CKxImage::SetTransparent(int transparent)
{
    m_bTransparent = transparent;
}

void CKxImage::SetBackGroundColor(COLORREF color)
{
    m_crBackground = color;
}

void CKxImage::DrawBitmap(bool bUseMask)
{
    if (m_pDC == nullptr)
    {
        return;
    }
    CBitmap loaded;
    const bool isOwn = m_pBitmap == nullptr;
    if (isOwn)
    {
        loaded.LoadBitmap(static_cast<UINT>(m_nBitmapID));
    }
    const HBITMAP bitmap = handleOf(isOwn ? &loaded : m_pBitmap);
    if (bUseMask)
    {
        DrawMasked(bitmap, sizeOf(bitmap));
    }
    else if (m_bTransparent == 0)
    {
        DrawOpaque(bitmap, sizeOf(bitmap));
    }
    else
    {
        if (isOwn)
        {
            m_pBitmap = &loaded;
        }
        DrawTrans(isOwn, m_pDC->GetSafeHdc(), m_x, m_y);
        if (isOwn)
        {
            m_pBitmap = nullptr;
            m_hMask.reset();
        }
    }
}

int CKxImage::DrawImageFromBuffer(unsigned char* data, size_t size, CDC* dc, const CRect& rect, COLORREF background)
{
    if (dc == nullptr || data == nullptr || !AfxIsValidAddress(data, size, TRUE))
    {
        return 0;
    }
    CBitmap bitmap;
    if (CKxPictureEx::LoadPicture(data, size, dc->GetSafeHdc(), rect.Width(), rect.Height(), bitmap, background) == 0)
    {
        return 0;
    }
    CKxImage image(dc, &bitmap, rect.left, rect.top);
    image.DrawBitmap(false);
    return 1;
}

void CKxImage::DrawMasked(HBITMAP bitmap, CSize size)
{
    const HDC target = m_pDC->GetSafeHdc();
    GetMetrics();
    CreateMask(target); // before the bitmap is selected: only one context can hold it
    const MemoryDc source(target, bitmap);
    if (m_hMask != nullptr && source.ready())
    {
        ::MaskBlt(target, m_x, m_y, size.cx, size.cy, source.handle(), 0, 0, m_hMask.get(), 0, 0, keepTargetOrCopy);
    }
    m_hMask.reset();
}

void CKxImage::DrawOpaque(HBITMAP bitmap, CSize size)
{
    const HDC target = m_pDC->GetSafeHdc();
    const MemoryDc source(target, bitmap);
    if (source.ready())
    {
        ::BitBlt(target, m_x, m_y, size.cx, size.cy, source.handle(), 0, 0, SRCCOPY);
    }
}

void CKxImage::DrawTrans(int bRebuildMask, HDC dc, int x, int y)
{
    if (dc == nullptr)
    {
        return;
    }
    if (bRebuildMask != 0 || m_hMask == nullptr)
    {
        GetMetrics();
        CreateMask(dc);
    }
    const CSize size(GetWidth(), GetHeight());
    if (m_hMask == nullptr || size.cx <= 0 || size.cy <= 0)
    {
        return;
    }
    const OwnedBitmap picture(::CreateBitmap(size.cx, size.cy, static_cast<UINT>(::GetDeviceCaps(dc, PLANES)),
                                             static_cast<UINT>(::GetDeviceCaps(dc, BITSPIXEL)), nullptr));
    const MemoryDc offscreen(dc, picture.get());
    const MemoryDc image(dc, handleOf(m_pBitmap));
    const MemoryDc mask(dc, m_hMask.get());
    if (!offscreen.ready() || !image.ready() || !mask.ready())
    {
        return;
    }
    ::BitBlt(offscreen.handle(), 0, 0, size.cx, size.cy, dc, x, y, SRCCOPY);
    ::SetBkColor(offscreen.handle(), white);
    copyPixels(offscreen.handle(), image, size, SRCINVERT);
    copyPixels(offscreen.handle(), mask, size, SRCAND);
    copyPixels(offscreen.handle(), image, size, SRCINVERT);
    ::BitBlt(dc, x, y, size.cx, size.cy, offscreen.handle(), 0, 0, SRCCOPY);
}

void CKxImage::CreateMask(HDC dc)
{
    m_hMask.reset();
    const CSize size(GetWidth(), GetHeight());
    if (size.cx <= 0 || size.cy <= 0)
    {
        return;
    }
    OwnedBitmap made(::CreateBitmap(size.cx, size.cy, 1, 1, nullptr));
    {
        const MemoryDc source(dc, handleOf(m_pBitmap));
        const MemoryDc mask(dc, made.get());
        if (!source.ready() || !mask.ready())
        {
            return;
        }
        ::SetBkColor(source.handle(), keyColor);
        copyPixels(mask.handle(), source, size);
    }
    m_hMask = std::move(made);
}

void CKxImage::TransparentBlt(CDC* dc, long x, long y, CBitmap* bitmap, COLORREF key)
{
    const HDC target = dc == nullptr ? nullptr : dc->GetSafeHdc();
    const CSize size = sizeOf(handleOf(bitmap));
    if (target == nullptr || size.cx <= 0 || size.cy <= 0)
    {
        return;
    }
    const OwnedBitmap keyPixels(::CreateBitmap(size.cx, size.cy, 1, 1, nullptr));
    const OwnedBitmap result(::CreateCompatibleBitmap(target, size.cx, size.cy));
    const OwnedBrush brush(::CreateSolidBrush(::GetBkColor(target)));
    const MemoryDc image(target, handleOf(bitmap));
    const MemoryDc mask(target, keyPixels.get());
    const MemoryDc work(target, result.get());
    if (!image.ready() || !mask.ready() || !work.ready() || brush == nullptr)
    {
        return;
    }
    const COLORREF imageBackground = ::SetBkColor(image.handle(), key);
    copyPixels(mask.handle(), image, size);
    ::SetBkColor(image.handle(), imageBackground);
    copyPixels(work.handle(), image, size);

    const HGDIOBJ oldBrush = ::SelectObject(work.handle(), brush.get());
    ::SetTextColor(work.handle(), 0);
    ::SetBkColor(work.handle(), m_crBackground);
    copyPixels(work.handle(), mask, size, brushWhereSet);
    ::BitBlt(target, x, y, size.cx, size.cy, work.handle(), 0, 0, SRCCOPY);
    ::SelectObject(work.handle(), oldBrush);
}

void CKxImage::GetMetrics()
{
    const CSize size = sizeOf(handleOf(m_pBitmap));
    m_nWidth = size.cx;
    m_nHeight = size.cy;
}

int CKxImage::GetWidth()
{
    if (m_nWidth == 0 || m_nHeight == 0)
    {
        GetMetrics();
    }
    return m_nWidth;
}

int CKxImage::GetHeight()
{
    if (m_nWidth == 0 || m_nHeight == 0)
    {
        GetMetrics();
    }
    return m_nHeight;
}
