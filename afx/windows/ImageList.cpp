// Image lists.
#include <afxcmn.h>

#include "kx/HandleMap.h"

namespace
{

kx::HandleOwners<CImageList>& owners()
{
    static auto* const all =
        new kx::HandleOwners<CImageList>; // lives as long as the process: objects of any module use it
    return *all;
}

kx::TemporaryObjects<CImageList>& temporaries()
{
    thread_local kx::TemporaryObjects<CImageList> all([](CImageList& list) { list.m_hImageList = nullptr; });
    return all;
}

} // namespace

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::CImageList() = default;

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList::operator HIMAGELIST() const
{
    return GetSafeHandle();
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    const CImageList* self = this;
    return self == nullptr ? nullptr : self->m_hImageList;
}

CImageList* CImageList::FromHandle(HIMAGELIST hImageList)
{
    if (hImageList == nullptr)
        return nullptr;
    if (CImageList* const owner = owners().find(hImageList))
        return owner;
    return temporaries().get<CImageList>(hImageList, [=](CImageList& list) { list.m_hImageList = hImageList; });
}

CImageList* CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return hImageList == nullptr ? nullptr : owners().find(hImageList);
}

void CImageList::DeleteTempMap()
{
    temporaries().clear();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (hImageList == nullptr || m_hImageList != nullptr)
        return FALSE;
    m_hImageList = hImageList;
    owners().add(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    HIMAGELIST const handle = m_hImageList;
    if (handle != nullptr)
        owners().remove(handle, this);
    m_hImageList = nullptr;
    return handle;
}

BOOL CImageList::DeleteImageList()
{
    HIMAGELIST const handle = Detach();
    return handle != nullptr && ::ImageList_Destroy(handle);
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return TakeNew(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return TakeNew(::ImageList_LoadImageW(AfxFindResourceHandle(lpszBitmapID, RT_BITMAP), lpszBitmapID, cx, nGrow,
                                          crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy)
{
    return TakeNew(::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList)
{
    return pImageList != nullptr && TakeNew(::ImageList_Duplicate(pImageList->m_hImageList));
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT uNewCount)
{
    return ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return pbmImage == nullptr
               ? -1
               : ::ImageList_Add(m_hImageList, *pbmImage, static_cast<HBITMAP>(pbmMask->GetSafeHandle()));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return pbmImage == nullptr ? -1 : ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
}

int CImageList::Add(HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage)
{
    return ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::RemoveAll()
{
    return Remove(-1);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    return pbmImage != nullptr &&
           ::ImageList_Replace(m_hImageList, nImage, *pbmImage, static_cast<HBITMAP>(pbmMask->GetSafeHandle()));
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

HICON CImageList::ExtractIcon(int nImage)
{
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    return pImageInfo != nullptr && ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, pSrc->GetSafeHandle(), iSrc, uFlags);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    return ::ImageList_SetBkColor(m_hImageList, cr);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    return ::ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
{
    return ::ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
{
    if (pimldp == nullptr)
        return FALSE;
    pimldp->cbSize = sizeof *pimldp;
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle, DWORD dwRop,
                              COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame, COLORREF crEffect)
{
    IMAGELISTDRAWPARAMS draw = {};
    draw.hdcDst = pDC->GetSafeHdc();
    draw.i = nImage;
    draw.x = pt.x;
    draw.y = pt.y;
    draw.cx = sz.cx;
    draw.cy = sz.cy;
    draw.xBitmap = ptOrigin.x;
    draw.yBitmap = ptOrigin.y;
    draw.rgbBk = rgbBack;
    draw.rgbFg = rgbFore;
    draw.fStyle = fStyle;
    draw.dwRop = dwRop;
    draw.fState = fState;
    draw.Frame = Frame;
    draw.crEffect = crEffect;
    return DrawIndirect(&draw);
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

void CImageList::EndDrag()
{
    ::ImageList_EndDrag();
}

BOOL CImageList::DragMove(CPoint pt)
{
    return ::ImageList_DragMove(pt.x, pt.y);
}

BOOL CImageList::DragEnter(CWnd* pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
}

BOOL CImageList::DragLeave(CWnd* pWndLock)
{
    return ::ImageList_DragLeave(pWndLock->GetSafeHwnd());
}

BOOL CImageList::DragShowNolock(BOOL bShow)
{
    return ::ImageList_DragShowNolock(bShow);
}

CImageList* CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

BOOL CImageList::TakeNew(HIMAGELIST hImageList)
{
    if (Attach(hImageList))
        return TRUE;
    if (hImageList != nullptr)
        ::ImageList_Destroy(hImageList);
    return FALSE;
}
