// Device contexts: lines, figures, bitmaps and paths.
#include <afxwin.h>

#include "DcBoth.h"

using kx::onBoth;

namespace
{

HBRUSH brushOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(brush->GetSafeHandle());
}

CPoint pointOf(HDC dc, BOOL(WINAPI* question)(HDC, LPPOINT))
{
    POINT point = {0, 0};
    question(dc, &point);
    return point;
}

} // namespace

CPoint CDC::GetCurrentPosition() const
{
    return pointOf(m_hAttribDC, ::GetCurrentPositionEx);
}

CPoint CDC::MoveTo(int x, int y)
{
    return onBoth(*this, CPoint(0, 0),
                  [=](HDC dc)
                  {
                      POINT before = {0, 0};
                      ::MoveToEx(dc, x, y, &before);
                      return CPoint(before);
                  });
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC != m_hDC && m_hAttribDC != nullptr)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    return nRadius >= 0 && ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    return nCount >= 0 && ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return nCount >= 0 && ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyBezier(const POINT* lpPoints, int nCount)
{
    return nCount >= 0 && ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    return nCount >= 0 && ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (lpRect != nullptr)
        ::FillRect(m_hDC, lpRect, brushOf(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (lpRect != nullptr)
        ::FrameRect(m_hDC, lpRect, brushOf(pBrush));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    if (lpRect != nullptr)
        ::InvertRect(m_hDC, lpRect);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    if (lpRect == nullptr)
        return;
    SetBkColor(clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    const CRect rect(x, y, x + cx, y + cy);
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (lpRect != nullptr)
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
                   clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return lpRect != nullptr && Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return lpRect != nullptr && RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return lpRect != nullptr && Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return lpRect != nullptr &&
           Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()), brushOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()), brushOf(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    return ::InvertRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                     static_cast<HBITMAP>(maskBitmap.m_hObject), xMask, yMask, dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap& maskBitmap,
                 int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, nWidth, nHeight,
                    static_cast<HBITMAP>(maskBitmap.m_hObject), xMask, yMask);
}

BOOL CDC::TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                         int nSrcHeight, UINT crTransparent)
{
    return ::TransparentBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight,
                            crTransparent);
}

BOOL CDC::AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, BLENDFUNCTION blend)
{
    return ::AlphaBlend(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth, nSrcHeight, blend);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor)
{
    return SetPixelV(point.x, point.y, crColor);
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate, LPRECT lpRectUpdate)
{
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, static_cast<HRGN>(pRgnUpdate->GetSafeHandle()),
                      lpRectUpdate);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

BOOL CDC::SelectClipPath(int nMode)
{
    return ::SelectClipPath(m_hDC, nMode);
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float fMiterLimit)
{
    return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr);
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
