// Static controls.
#include <afxwin.h>

#include "Ask.h"
#include "ControlParts.h"

using kx::ask;
using kx::createControl;
using kx::drawReflected;

IMPLEMENT_DYNAMIC(CStatic, CWnd)

CStatic::CStatic() = default;

CStatic::~CStatic()
{
    DestroyWindow();
}

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon)
{
    return ask<HICON>(m_hWnd, STM_SETICON, hIcon);
}

HICON CStatic::GetIcon() const
{
    return ask<HICON>(m_hWnd, STM_GETICON);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return ask<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

HENHMETAFILE CStatic::GetEnhMetaFile() const
{
    return ask<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap)
{
    return ask<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CStatic::GetBitmap() const
{
    return ask<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CStatic::SetCursor(HCURSOR hCursor)
{
    return ask<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CStatic::GetCursor()
{
    return ask<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
