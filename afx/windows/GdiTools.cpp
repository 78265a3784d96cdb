// Drawing tools: pens, brushes and fonts.
#include <afxwin.h>

#include <cstdlib>

CPen::CPen() = default;

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(GetSafeHandle());
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return TakeNew(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (pLogBrush == nullptr || nWidth < 0 || nStyleCount < 0)
        return FALSE;
    return TakeNew(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                  static_cast<DWORD>(nStyleCount), lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return lpLogPen != nullptr && TakeNew(::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen)
{
    return GetObject(sizeof(LOGPEN), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    return GetObject(sizeof(EXTLOGPEN), pLogPen);
}

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(GetSafeHandle());
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return TakeNew(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return TakeNew(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return lpLogBrush != nullptr && TakeNew(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return pBitmap != nullptr && TakeNew(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    const void* const packed = ::GlobalLock(hPackedDIB);
    if (packed == nullptr)
        return FALSE;
    const BOOL made = CreateDIBPatternBrush(packed, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return made;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return lpPackedDIB != nullptr && TakeNew(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return TakeNew(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return GetObject(sizeof(LOGBRUSH), pLogBrush);
}

CFont::CFont() = default;

CFont::operator HFONT() const
{
    return static_cast<HFONT>(GetSafeHandle());
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return lpLogFont != nullptr && TakeNew(::CreateFontIndirectW(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return TakeNew(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                 nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    if (lpszFaceName != nullptr)
        ::lstrcpynW(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    if (lpLogFont == nullptr)
        return FALSE;
    const bool given = pDC != nullptr && pDC->m_hAttribDC != nullptr;
    HDC const dc = given ? pDC->m_hAttribDC : ::GetDC(nullptr);
    POINT size = {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), lpLogFont->lfHeight, 720)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &size, 1);
    ::DPtoLP(dc, &origin, 1);
    if (!given)
        ::ReleaseDC(nullptr, dc);
    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(size.y - origin.y);
    return CreateFontIndirect(&font);
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return GetObject(sizeof(LOGFONT), pLogFont);
}
