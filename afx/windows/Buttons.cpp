// Buttons, and those that show bitmaps.
#include <afxwin.h>

#include "Ask.h"
#include "ControlParts.h"

using kx::ask;
using kx::createControl;
using kx::drawReflected;

namespace
{

bool loadNamed(CBitmap& bitmap, LPCTSTR name)
{
    return name == nullptr || bitmap.LoadBitmap(name);
}

} // namespace

IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CButton::CButton() = default;

CButton::~CButton()
{
    DestroyWindow();
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return createControl(*this, WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetState() const
{
    return ask<UINT>(m_hWnd, BM_GETSTATE);
}

void CButton::SetState(BOOL bHighlight)
{
    ask(m_hWnd, BM_SETSTATE, bHighlight);
}

int CButton::GetCheck() const
{
    return ask<int>(m_hWnd, BM_GETCHECK);
}

void CButton::SetCheck(int nCheck)
{
    ask(m_hWnd, BM_SETCHECK, nCheck);
}

UINT CButton::GetButtonStyle() const
{
    return static_cast<UINT>(::GetWindowLongW(m_hWnd, GWL_STYLE)) & 0xFFFFU;
}

void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    ask(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
}

HICON CButton::SetIcon(HICON hIcon)
{
    return ask<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon);
}

HICON CButton::GetIcon() const
{
    return ask<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON);
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap)
{
    return ask<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
}

HBITMAP CButton::GetBitmap() const
{
    return ask<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP);
}

HCURSOR CButton::SetCursor(HCURSOR hCursor)
{
    return ask<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
}

HCURSOR CButton::GetCursor()
{
    return ask<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR);
}

BOOL CButton::GetIdealSize(SIZE* psize)
{
    return ask<BOOL>(m_hWnd, BCM_GETIDEALSIZE, 0, psize);
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return ask<BOOL>(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return ask<BOOL>(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::SetTextMargin(RECT* pmargin)
{
    return ask<BOOL>(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin);
}

BOOL CButton::GetTextMargin(RECT* pmargin)
{
    return ask<BOOL>(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT /*lpDrawItemStruct*/) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return drawReflected(*this, message, lParam) || CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

CBitmapButton::CBitmapButton() = default;

CBitmapButton::CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel, LPCTSTR lpszBitmapResourceFocus,
                             LPCTSTR lpszBitmapResourceDisabled)
{
    if (!LoadBitmaps(lpszBitmapResource, lpszBitmapResourceSel, lpszBitmapResourceFocus, lpszBitmapResourceDisabled))
        AfxThrowResourceException();
}

CBitmapButton::CBitmapButton(UINT nIDBitmapResource, UINT nIDBitmapResourceSel, UINT nIDBitmapResourceFocus,
                             UINT nIDBitmapResourceDisabled)
{
    if (!LoadBitmaps(nIDBitmapResource, nIDBitmapResourceSel, nIDBitmapResourceFocus, nIDBitmapResourceDisabled))
        AfxThrowResourceException();
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled)
{
    m_bitmap.DeleteObject();
    m_bitmapSel.DeleteObject();
    m_bitmapFocus.DeleteObject();
    m_bitmapDisabled.DeleteObject();
    if (!m_bitmap.LoadBitmap(lpszBitmapResource))
        return FALSE;
    const bool sel = loadNamed(m_bitmapSel, lpszBitmapResourceSel);
    const bool focus = loadNamed(m_bitmapFocus, lpszBitmapResourceFocus);
    const bool disabled = loadNamed(m_bitmapDisabled, lpszBitmapResourceDisabled);
    return sel && focus && disabled;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel, UINT nIDBitmapResourceFocus,
                                UINT nIDBitmapResourceDisabled)
{
    return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                       MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent)
{
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString caption;
    GetWindowText(caption);
    LoadBitmaps(caption + L"U", caption + L"D", caption + L"F", caption + L"X");
    if (m_bitmap.m_hObject == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent()
{
    BITMAP bitmap = {};
    if (m_bitmap.GetBitmap(&bitmap) != 0)
        SetWindowPos(nullptr, -1, -1, bitmap.bmWidth, bitmap.bmHeight,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CBitmap& shown = BitmapFor(lpDrawItemStruct->itemState);
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    CDC memory;
    if (shown.m_hObject == nullptr || !memory.CreateCompatibleDC(dc))
        return;
    CBitmap* const before = memory.SelectObject(&shown);
    if (before == nullptr)
        return;
    const CRect area = lpDrawItemStruct->rcItem;
    dc->BitBlt(area.left, area.top, area.Width(), area.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(before);
}

CBitmap& CBitmapButton::BitmapFor(UINT state)
{
    if ((state & ODS_SELECTED) != 0 && m_bitmapSel.m_hObject != nullptr)
        return m_bitmapSel;
    if ((state & ODS_FOCUS) != 0 && m_bitmapFocus.m_hObject != nullptr)
        return m_bitmapFocus;
    if ((state & ODS_DISABLED) != 0 && m_bitmapDisabled.m_hObject != nullptr)
        return m_bitmapDisabled;
    return m_bitmap;
}
