// The GDI objects: pens, brushes, fonts, bitmaps, palettes and regions that own their handle.
#pragma once
#include <afx.h>
#include "kx/Export.h"
#include <windows.h>
#include <commctrl.h>

class CBitmap;
class CDC;

/// A GDI handle with an owner. The handle is deleted with the object, unless it was detached before.
/// Converting a null pointer to a handle by GetSafeHandle gives a null handle.
class KXAFX_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject();
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    ~CGdiObject() override;

    operator HGDIOBJ() const;
    /// The handle; null also for a null object.
    HGDIOBJ GetSafeHandle() const;

    /// The object that owns the handle, or a temporary one that lives until the next idle time. Null for null.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    /// Takes back every temporary object of this thread.
    static void PASCAL DeleteTempMap();
    /// Takes ownership. FALSE when the handle is null or this object holds one already.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle away; the object holds none afterwards.
    HGDIOBJ Detach();
    /// Deletes the handle. FALSE when there is none.
    BOOL DeleteObject();

    /// Fills a buffer with the record of the object (BITMAP, LOGFONT, ...); the count of bytes, 0 on failure.
    int GetObject(int nCount, LPVOID lpObject) const;
    /// OBJ_PEN, OBJ_BRUSH, ...; 0 on failure.
    UINT GetObjectType() const;
    /// Takes one of the system's stock objects (WHITE_BRUSH, DEFAULT_GUI_FONT, ...).
    BOOL CreateStockObject(int nIndex);
    BOOL UnrealizeObject();
    BOOL operator==(const CGdiObject& obj) const;
    BOOL operator!=(const CGdiObject& obj) const;

protected:
    /// Attaches a handle that was just made, or deletes it where Attach refuses.
    BOOL TakeNew(HGDIOBJ hObject);
};

/// A pen. The constructors with arguments throw a resource exception on failure.
class KXAFX_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0, const DWORD* lpStyle = nullptr);
    operator HPEN() const;
    static CPen* PASCAL FromHandle(HPEN hPen);

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    int GetLogPen(LOGPEN* pLogPen);
    int GetExtLogPen(EXTLOGPEN* pLogPen);
};

/// A brush. The constructors with arguments throw a resource exception on failure.
class KXAFX_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush();
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);
    operator HBRUSH() const;
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    /// The bitmap may be deleted afterwards.
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage);
    BOOL CreateSysColorBrush(int nIndex);
    int GetLogBrush(LOGBRUSH* pLogBrush);
};

/// A font.
class KXAFX_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont();
    operator HFONT() const;
    static CFont* PASCAL FromHandle(HFONT hFont);

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// nPointSize in tenths of a point. Without a device context the screen's resolution counts.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// As CreateFontIndirect, with lfHeight in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont);
};

/// A bitmap. Resources are looked for in the chain of modules.
class KXAFX_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap();
    operator HBITMAP() const;
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);

    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    /// One of the system's own bitmaps (OBM_...).
    BOOL LoadOEMBitmap(UINT nIDBitmap);
    /// Loads a bitmap with colours replaced; without a map the greys become the system's button colours.
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap);
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    /// In tenths of a millimetre; what was set last.
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};

/// A palette.
class KXAFX_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette();
    operator HPALETTE() const;
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC* pDC);
    /// The count of entries.
    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);
};

/// A region, in device units.
class KXAFX_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn();
    operator HRGN() const;
    static CRgn* PASCAL FromHandle(HRGN hRgn);

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode);
    BOOL CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    /// The path of a device context, which loses it.
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData);

    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT lpRect);
    /// This region, which must exist, becomes the combination. Answers as the three below: NULLREGION, SIMPLEREGION,
    /// COMPLEXREGION, or ERROR.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc);
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    BOOL EqualRgn(CRgn* pRgn) const;
    int GetRgnBox(LPRECT lpRect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT lpRect) const;
    /// The count of bytes written, or needed when lpRgnData is null; 0 on failure.
    int GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const;
};
