// Device contexts: the parts of controls, disabled pictures and texts, dragged frames.
#include <afxwin.h>

namespace
{

HBRUSH brushOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(brush->GetSafeHandle());
}

BOOL drawState(HDC dc, HBRUSH brush, DRAWSTATEPROC proc, LPARAM data, WPARAM length, CPoint at, CSize size, UINT flags)
{
    return ::DrawStateW(dc, brush, proc, data, length, at.x, at.y, size.cx, size.cy, flags);
}

/// The region between a rectangle and the one that lies size inside of it.
void makeFrame(CRgn& frame, const RECT& rect, SIZE size)
{
    CRect inside = rect;
    inside.DeflateRect(size.cx, size.cy);
    inside.IntersectRect(&inside, &rect);
    CRgn hole;
    hole.CreateRectRgnIndirect(&inside);
    frame.CreateRectRgnIndirect(&rect);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

void invertFrame(CDC& dc, CRgn& frame, CBrush* brush)
{
    CRect box;
    dc.SelectClipRgn(&frame);
    dc.GetClipBox(&box);
    CBrush* const before = dc.SelectObject(brush);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    dc.SelectObject(before);
    dc.SelectClipRgn(nullptr);
}

HBRUSH makeHalftoneBrush()
{
    WORD rows[8];
    for (int row = 0; row < 8; ++row)
        rows[row] = row % 2 == 0 ? 0x5555 : 0xAAAA;
    HBITMAP const pattern = ::CreateBitmap(8, 8, 1, 1, rows);
    HBRUSH const brush = ::CreatePatternBrush(pattern);
    ::DeleteObject(pattern);
    return brush;
}

} // namespace

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    if (lpRect != nullptr)
        ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return lpRect != nullptr && ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return lpRect != nullptr && ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return drawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt, size, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return drawState(m_hDC, brushOf(pBrush), nullptr, reinterpret_cast<LPARAM>(pBitmap->GetSafeHandle()), 0, pt, size,
                     nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return drawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt, size, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, brushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen, HBRUSH hBrush)
{
    if (lpszText == nullptr || nTextLen < 0)
        return FALSE;
    return drawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText), static_cast<WPARAM>(nTextLen), pt,
                     size, nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, brushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush)
{
    return drawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt, size, nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, brushOf(pBrush));
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush, CBrush* pBrushLast)
{
    if (lpRect == nullptr)
        return;
    CBrush* const brush = pBrush != nullptr ? pBrush : GetHalftoneBrush();
    CBrush* const brushLast = pBrushLast != nullptr ? pBrushLast : brush;
    CRgn frame;
    makeFrame(frame, *lpRect, size);
    CRgn last;
    if (lpRectLast != nullptr)
        makeFrame(last, *lpRectLast, sizeLast);
    if (lpRectLast != nullptr && brush->GetSafeHandle() == brushLast->GetSafeHandle())
        frame.CombineRgn(&frame, &last, RGN_XOR);
    else if (lpRectLast != nullptr)
        invertFrame(*this, last, brushLast);
    invertFrame(*this, frame, brush);
}

CBrush* CDC::GetHalftoneBrush()
{
    static HBRUSH const brush = makeHalftoneBrush();
    return CBrush::FromHandle(brush);
}
