// CKxImage: draws one bitmap, opaque or with pure green left out.
#pragma once

#include <afxwin.h>

#include <cstddef>
#include <memory>
#include <type_traits>

#include "oxa/Export.h"

/// A bitmap at a place of a device context, made on the stack in paint code:
///
///     CKxImage image(&dc, IDB_ARROW, 4, 4);
///     image.SetTransparent(1);
///     image.DrawBitmap(false);
///
/// The transparent colour is pure green, RGB(0, 255, 0), and no other. Neither the context nor the bitmap is owned; both
/// must outlive the object, and the bitmap must not be selected into another context while it draws. Nothing reports
/// an error: what cannot be loaded or drawn has no effect. Copies share the mask, which is deleted with the last one.
class OXA_API CKxImage
{
public:
    /// @param id a bitmap resource, looked for in the chain of modules
    /// @param x, y the left top corner, in logical units of the context
    CKxImage(CDC* dc, int id, int x, int y);
    CKxImage(CDC* dc, CBitmap* bitmap, int x, int y);
    CKxImage(const CKxImage& other);
    CKxImage& operator=(const CKxImage& other);
    virtual ~CKxImage();

    /// Not 0: green pixels leave the target as it is. 0 at first.
    void SetTransparent(int transparent);
    /// The colour that the brush of `TransparentBlt` is mixed with, white at first.
    void SetBackGroundColor(COLORREF color);

    /// Draws the bitmap in its own size.
    /// @param bUseMask true: green pixels are left out whatever `SetTransparent` says, by one masked copy with a mask that
    ///        is made anew; only with a `CBitmap`, with an id nothing is drawn. False: opaque, or, when transparent, by an
    ///        off-screen copy of the target. The mask of a `CBitmap` is then kept for the next draw: a bitmap whose green
    ///        pixels change in between wants a new object.
    void DrawBitmap(bool bUseMask);

    /// Decodes a picture (see CKxPictureEx::LoadPicture) and draws it stretched into `rect`.
    /// @param data, size the bytes of a picture file, not owned
    /// @param background fills the rectangle first
    /// @return 1, or 0 when `dc` or `data` is null or the picture cannot be decoded
    static int DrawImageFromBuffer(unsigned char* data, size_t size, CDC* dc, const CRect& rect, COLORREF background);

private:
    void TransparentBlt(CDC* dc, long x, long y, CBitmap* bitmap, COLORREF key);
    void DrawTrans(int bRebuildMask, HDC dc, int x, int y);
    void DrawMasked(HBITMAP bitmap, CSize size);
    void DrawOpaque(HBITMAP bitmap, CSize size);
    void CreateMask(HDC dc);
    void GetMetrics();
    int GetWidth();
    int GetHeight();

    CDC* m_pDC;
    int m_nBitmapID;
    int m_x;
    int m_y;
    CBitmap* m_pBitmap;
    int m_bTransparent;
    COLORREF m_crBackground;
    std::shared_ptr<std::remove_pointer_t<HBITMAP>> m_hMask;
    int m_nWidth;
    int m_nHeight;
};
