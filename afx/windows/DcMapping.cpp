// Device contexts: colours, modes, mapping and clipping.
#include <afxwin.h>

#include "DcBoth.h"

#include <cstdlib>

using kx::onBoth;

namespace
{

using PointSetter = BOOL(WINAPI*)(HDC, int, int, LPPOINT);

CPoint pointOf(HDC dc, BOOL(WINAPI* question)(HDC, LPPOINT))
{
    POINT point = {0, 0};
    question(dc, &point);
    return point;
}

CPoint pointOnBoth(const CDC& dc, PointSetter setter, int x, int y)
{
    return onBoth(dc, CPoint(0, 0),
                  [=](HDC handle)
                  {
                      POINT before = {0, 0};
                      setter(handle, x, y, &before);
                      return CPoint(before);
                  });
}

CSize sizeOf(HDC dc, BOOL(WINAPI* question)(HDC, LPSIZE))
{
    SIZE size = {0, 0};
    question(dc, &size);
    return size;
}

CSize sizeOnBoth(const CDC& dc, BOOL(WINAPI* setter)(HDC, int, int, LPSIZE), int cx, int cy)
{
    return onBoth(dc, CSize(0, 0),
                  [=](HDC handle)
                  {
                      SIZE before = {0, 0};
                      setter(handle, cx, cy, &before);
                      return CSize(before);
                  });
}

CSize scaleOnBoth(const CDC& dc, BOOL(WINAPI* setter)(HDC, int, int, int, int, LPSIZE), int xNum, int xDenom, int yNum,
                  int yDenom)
{
    return onBoth(dc, CSize(0, 0),
                  [=](HDC handle)
                  {
                      SIZE before = {0, 0};
                      setter(handle, xNum, xDenom, yNum, yDenom, &before);
                      return CSize(before);
                  });
}

/// numerator and denominator: extents, of which only the amount counts.
void scaleSize(LPSIZE size, CSize numerator, CSize denominator)
{
    if (size == nullptr)
        return;
    size->cx = ::MulDiv(size->cx, std::abs(numerator.cx), std::abs(denominator.cx));
    size->cy = ::MulDiv(size->cy, std::abs(numerator.cy), std::abs(denominator.cy));
}

} // namespace

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return onBoth(*this, CLR_INVALID, [=](HDC dc) { return ::SetBkColor(dc, crColor); });
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return onBoth(*this, CLR_INVALID, [=](HDC dc) { return ::SetTextColor(dc, crColor); });
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return ::SetDCBrushColor(m_hDC, crColor);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return ::SetDCPenColor(m_hDC, crColor);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return lpColorAdjust != nullptr && ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return lpColorAdjust != nullptr && ::SetColorAdjustment(m_hDC, lpColorAdjust);
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hDC);
}

int CDC::SetGraphicsMode(int iMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetGraphicsMode(dc, iMode); });
}

BOOL CDC::GetWorldTransform(XFORM& rXform) const
{
    return ::GetWorldTransform(m_hDC, &rXform);
}

BOOL CDC::SetWorldTransform(const XFORM& rXform)
{
    return onBoth(*this, FALSE, [&](HDC dc) { return ::SetWorldTransform(dc, &rXform); });
}

BOOL CDC::ModifyWorldTransform(const XFORM& rXform, DWORD iMode)
{
    return onBoth(*this, FALSE, [&](HDC dc) { return ::ModifyWorldTransform(dc, &rXform, iMode); });
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int nMapMode)
{
    return onBoth(*this, 0, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::GetViewportOrg() const
{
    return pointOf(m_hAttribDC, ::GetViewportOrgEx);
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return pointOnBoth(*this, ::SetViewportOrgEx, x, y);
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return pointOnBoth(*this, ::OffsetViewportOrgEx, nWidth, nHeight);
}

CSize CDC::GetViewportExt() const
{
    return sizeOf(m_hAttribDC, ::GetViewportExtEx);
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return sizeOnBoth(*this, ::SetViewportExtEx, cx, cy);
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return scaleOnBoth(*this, ::ScaleViewportExtEx, xNum, xDenom, yNum, yDenom);
}

CPoint CDC::GetWindowOrg() const
{
    return pointOf(m_hAttribDC, ::GetWindowOrgEx);
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return pointOnBoth(*this, ::SetWindowOrgEx, x, y);
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    return pointOnBoth(*this, ::OffsetWindowOrgEx, nWidth, nHeight);
}

CSize CDC::GetWindowExt() const
{
    return sizeOf(m_hAttribDC, ::GetWindowExtEx);
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return sizeOnBoth(*this, ::SetWindowExtEx, cx, cy);
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return scaleOnBoth(*this, ::ScaleWindowExtEx, xNum, xDenom, yNum, yDenom);
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    scaleSize(lpSize, GetWindowExt(), GetViewportExt());
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    scaleSize(lpSize, GetViewportExt(), GetWindowExt());
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    return lpRect == nullptr ? ERROR : ::GetClipBox(m_hAttribDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return lpRect != nullptr && ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    HRGN const region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return onBoth(*this, ERROR, [=](HDC dc) { return ::SelectClipRgn(dc, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    HRGN const region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return onBoth(*this, ERROR, [=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return onBoth(*this, ERROR, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return lpRect == nullptr ? ERROR : ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return pWnd == nullptr ? ERROR : ::ExcludeUpdateRgn(m_hDC, pWnd->m_hWnd);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return onBoth(*this, ERROR, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return lpRect == nullptr ? ERROR : IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return onBoth(*this, ERROR, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}
