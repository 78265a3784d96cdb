// Bitmaps and palettes.
#include <afxwin.h>

CBitmap::CBitmap() = default;

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(GetSafeHandle());
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return TakeNew(::LoadBitmapW(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return TakeNew(::LoadBitmapW(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    HINSTANCE const module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return TakeNew(::CreateMappedBitmap(module, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return TakeNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return lpBitmap != nullptr && TakeNew(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != nullptr && TakeNew(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != nullptr && TakeNew(::CreateDiscardableBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap)
{
    return GetObject(sizeof(BITMAP), pBitMap);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    return static_cast<DWORD>(::SetBitmapBits(static_cast<HBITMAP>(m_hObject), dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return static_cast<DWORD>(::GetBitmapBits(static_cast<HBITMAP>(m_hObject), static_cast<LONG>(dwCount), lpBits));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    SIZE before = {0, 0};
    ::SetBitmapDimensionEx(static_cast<HBITMAP>(m_hObject), nWidth, nHeight, &before);
    return before;
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {0, 0};
    ::GetBitmapDimensionEx(static_cast<HBITMAP>(m_hObject), &size);
    return size;
}

CPalette::CPalette() = default;

CPalette::operator HPALETTE() const
{
    return static_cast<HPALETTE>(GetSafeHandle());
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette)
{
    return lpLogPalette != nullptr && TakeNew(::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC)
{
    return pDC != nullptr && TakeNew(::CreateHalftonePalette(pDC->m_hDC));
}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const
{
    return ::GetPaletteEntries(static_cast<HPALETTE>(m_hObject), nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    return ::SetPaletteEntries(static_cast<HPALETTE>(m_hObject), nStartIndex, nNumEntries, lpPaletteColors);
}

void CPalette::AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    ::AnimatePalette(static_cast<HPALETTE>(m_hObject), nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const
{
    return ::GetNearestPaletteIndex(static_cast<HPALETTE>(m_hObject), crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries)
{
    return ::ResizePalette(static_cast<HPALETTE>(m_hObject), nNumEntries);
}
