// Painting, showing, fonts, menus and carets of a window.
#include <afxwin.h>
#include <afxcmn.h>

#include "kx/ImageList.h"
#include "ThreadState.h"

CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, paint));
}

void CWnd::EndPaint(LPPAINTSTRUCT paint)
{
    ::EndPaint(m_hWnd, paint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(GetSafeHwnd()));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* clip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, static_cast<HRGN>(clip->GetSafeHandle()), flags));
}

int CWnd::ReleaseDC(CDC* dc)
{
    return ::ReleaseDC(GetSafeHwnd(), dc->GetSafeHdc());
}

void CWnd::Print(CDC* dc, DWORD flags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(dc->GetSafeHdc()), static_cast<LPARAM>(flags));
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL redraw)
{
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw));
}

BOOL CWnd::GetUpdateRect(LPRECT rect, BOOL erase)
{
    return ::GetUpdateRect(m_hWnd, rect, erase);
}

int CWnd::GetUpdateRgn(CRgn* region, BOOL erase)
{
    return ::GetUpdateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::Invalidate(BOOL erase)
{
    InvalidateRect(nullptr, erase);
}

// Without a window nothing happens: for the system a null window is the whole screen.
void CWnd::InvalidateRect(LPCRECT rect, BOOL erase)
{
    if (m_hWnd != nullptr)
        ::InvalidateRect(m_hWnd, rect, erase);
}

void CWnd::InvalidateRgn(CRgn* region, BOOL erase)
{
    if (m_hWnd != nullptr)
        ::InvalidateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()), erase);
}

void CWnd::ValidateRect(LPCRECT rect)
{
    if (m_hWnd != nullptr)
        ::ValidateRect(m_hWnd, rect);
}

void CWnd::ValidateRgn(CRgn* region)
{
    if (m_hWnd != nullptr)
        ::ValidateRgn(m_hWnd, static_cast<HRGN>(region->GetSafeHandle()));
}

BOOL CWnd::ShowWindow(int cmdShow)
{
    return ::ShowWindow(m_hWnd, cmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

void CWnd::ShowOwnedPopups(BOOL show)
{
    ::ShowOwnedPopups(m_hWnd, show);
}

BOOL CWnd::RedrawWindow(LPCRECT rect, CRgn* region, UINT flags)
{
    return m_hWnd != nullptr && ::RedrawWindow(m_hWnd, rect, static_cast<HRGN>(region->GetSafeHandle()), flags);
}

BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(nullptr);
}

void CWnd::DragAcceptFiles(BOOL accept)
{
    ::DragAcceptFiles(m_hWnd, accept);
}

void CWnd::SetFont(CFont* font, BOOL redraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font->GetSafeHandle()), MAKELPARAM(redraw, 0));
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* menu)
{
    return ::SetMenu(m_hWnd, menu->GetSafeHmenu());
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL revert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert));
}

void CWnd::CreateSolidCaret(int width, int height)
{
    ::CreateCaret(m_hWnd, nullptr, width, height);
}

void CWnd::CreateGrayCaret(int width, int height)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), width, height);
}

void CWnd::CreateCaret(CBitmap* bitmap)
{
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(bitmap->GetSafeHandle()), 0, 0);
}

CPoint CWnd::GetCaretPos()
{
    POINT point = {};
    ::GetCaretPos(&point);
    return point;
}

void CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

BOOL AfxUnlockTempMaps(BOOL deleteTemps)
{
    KxThreadState& thread = kxThread();
    if (thread.tempLocks > 0 && --thread.tempLocks == 0 && deleteTemps)
    {
        CWnd::DeleteTempMap();
        CDC::DeleteTempMap();
        CGdiObject::DeleteTempMap();
        CMenu::DeleteTempMap();
        CImageList::DeleteTempMap();
    }
    return thread.tempLocks != 0;
}
