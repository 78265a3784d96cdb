// Image lists.
#pragma once
#include "kx/Dc.h"
#include <commctrl.h>

/// A list of pictures of one size, with masks. The list is destroyed with the object, unless it was detached before
/// (as it must be where a control owns it).
class KXAFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)
public:
    HIMAGELIST m_hImageList = nullptr;

    CImageList();
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
    ~CImageList() override;
    operator HIMAGELIST() const;
    /// The handle; null also for a null object.
    HIMAGELIST GetSafeHandle() const;
    /// The object that owns the handle, or a temporary one that lives until the next idle time. Null for null.
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    /// Takes ownership. FALSE when the handle is null or this object holds one already.
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();

    // Creating. Bitmap resources are looked for in the chain of modules
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// One picture laid over another.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    /// A copy.
    BOOL Create(CImageList* pImageList);

    // Pictures. An index, or -1 on failure
    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL RemoveAll();
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage);
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    /// nOverlay: 1 to 4.
    BOOL SetOverlayImage(int nImage, int nOverlay);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF cr);

    // Drawing
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    /// Sets the record's size and list.
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    // Dragging
    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag();
    /// Client coordinates of the window with its frame, or screen coordinates for a null window.
    static BOOL PASCAL DragMove(CPoint pt);
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);

private:
    BOOL TakeNew(HIMAGELIST hImageList);
};
