// Regions.
#include <afxwin.h>

CRgn::CRgn() = default;

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(GetSafeHandle());
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return TakeNew(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return lpRect != nullptr && TakeNew(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return TakeNew(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return lpRect != nullptr && TakeNew(::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode)
{
    return lpPoints != nullptr && TakeNew(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode)
{
    return lpPoints != nullptr && lpPolyCounts != nullptr &&
           TakeNew(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return TakeNew(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return pDC != nullptr && TakeNew(::PathToRegion(pDC->m_hDC));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return pRgnData != nullptr && nCount >= 0 &&
           TakeNew(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(static_cast<HRGN>(m_hObject), x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    if (lpRect != nullptr)
        SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(static_cast<HRGN>(m_hObject), static_cast<HRGN>(pRgn1->GetSafeHandle()),
                        static_cast<HRGN>(pRgn2->GetSafeHandle()), nCombineMode);
}

int CRgn::CopyRgn(CRgn* pRgnSrc)
{
    return CombineRgn(pRgnSrc, nullptr, RGN_COPY);
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(static_cast<HRGN>(m_hObject), x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return OffsetRgn(point.x, point.y);
}

BOOL CRgn::EqualRgn(CRgn* pRgn) const
{
    return ::EqualRgn(static_cast<HRGN>(m_hObject), static_cast<HRGN>(pRgn->GetSafeHandle()));
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    return lpRect == nullptr ? ERROR : ::GetRgnBox(static_cast<HRGN>(m_hObject), lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(static_cast<HRGN>(m_hObject), x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return lpRect != nullptr && ::RectInRegion(static_cast<HRGN>(m_hObject), lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const
{
    if (nDataSize < 0)
        return 0;
    return static_cast<int>(::GetRegionData(static_cast<HRGN>(m_hObject), static_cast<DWORD>(nDataSize), lpRgnData));
}
