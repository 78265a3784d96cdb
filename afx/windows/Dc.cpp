// Device contexts: attaching, creating, state, selecting objects; the window classes.
#include <afxwin.h>

#include "DcBoth.h"
#include "kx/HandleMap.h"

using kx::onBoth;

namespace
{

void releaseDc(CDC& dc)
{
    dc.m_hDC = nullptr;
    dc.m_hAttribDC = nullptr;
}

kx::HandleOwners<CDC>& owners()
{
    static auto* const all = new kx::HandleOwners<CDC>; // lives as long as the process: objects of any module use it
    return *all;
}

kx::TemporaryObjects<CDC>& temporaries()
{
    thread_local kx::TemporaryObjects<CDC> all(releaseDc);
    return all;
}

CDC* dcFromHandle(HDC handle)
{
    if (handle == nullptr)
        return nullptr;
    if (CDC* const owner = owners().find(handle))
        return owner;
    return temporaries().get<CDC>(handle,
                                  [=](CDC& dc)
                                  {
                                      dc.m_hDC = handle;
                                      dc.m_hAttribDC = handle;
                                  });
}

} // namespace

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CDC::CDC() = default;

CDC::~CDC()
{
    DeleteDC();
}

CDC::operator HDC() const
{
    return GetSafeHdc();
}

HDC CDC::GetSafeHdc() const
{
    const CDC* self = this;
    return self == nullptr ? nullptr : self->m_hDC;
}

CWnd* CDC::GetWindow() const
{
    HWND const window = ::WindowFromDC(m_hDC);
    return window == nullptr ? nullptr : CWnd::FromHandle(window);
}

CDC* CDC::FromHandle(HDC hDC)
{
    return dcFromHandle(hDC);
}

void CDC::DeleteTempMap()
{
    temporaries().clear();
}

BOOL CDC::Attach(HDC hDC)
{
    if (hDC == nullptr || m_hDC != nullptr)
        return FALSE;
    m_hDC = hDC;
    owners().add(hDC, this);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC const handle = m_hDC;
    if (handle != nullptr)
        owners().remove(handle, this);
    ReleaseAttribDC();
    m_hDC = nullptr;
    return handle;
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::SetOutputDC(HDC hDC)
{
    ReleaseOutputDC();
    m_hDC = hDC;
    if (hDC != nullptr)
        owners().add(hDC, this);
}

void CDC::ReleaseOutputDC()
{
    if (m_hDC != nullptr)
        owners().remove(m_hDC, this);
    m_hDC = nullptr;
}

BOOL CDC::IsPrinting() const
{
    return m_bPrinting;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return TakeNew(::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return TakeNew(::CreateICW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return TakeNew(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC()
{
    HDC const handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

int CDC::SaveDC()
{
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::SaveDC(m_hAttribDC);
    return ::SaveDC(m_hDC);
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        restored = restored && ::RestoreDC(m_hAttribDC, nSavedDC);
    return restored;
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode)
{
    return lpDevMode != nullptr && ::ResetDCW(m_hAttribDC, lpDevMode) != nullptr;
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hDC);
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return ::SetLayout(m_hDC, dwLayout);
}

CPoint CDC::GetBrushOrg() const
{
    POINT origin = {0, 0};
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT before = {0, 0};
    ::SetBrushOrgEx(m_hDC, x, y, &before);
    return before;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    HGDIOBJ const stock = ::GetStockObject(nIndex);
    return stock == nullptr ? nullptr : CGdiObject::FromHandle(SelectBoth(stock));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle(static_cast<HPEN>(SelectBoth(pPen->GetSafeHandle())));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectBoth(pBrush->GetSafeHandle())));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle(static_cast<HFONT>(SelectBoth(pFont->GetSafeHandle())));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(SelectBoth(pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(SelectBoth(pRgn->GetSafeHandle())));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    return CGdiObject::FromHandle(SelectBoth(pObject->GetSafeHandle()));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(pPalette->GetSafeHandle()), bForceBackground));
}

UINT CDC::RealizePalette()
{
    return ::RealizePalette(m_hDC);
}

void CDC::UpdateColors()
{
    ::UpdateColors(m_hDC);
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

BOOL CDC::TakeNew(HDC created)
{
    if (created == nullptr)
        return FALSE;
    m_bPrinting = ::GetDeviceCaps(created, TECHNOLOGY) == DT_RASPRINTER;
    if (Attach(created))
        return TRUE;
    ::DeleteDC(created);
    return FALSE;
}

HGDIOBJ CDC::SelectBoth(HGDIOBJ object)
{
    return object == nullptr
               ? nullptr
               : onBoth(*this, static_cast<HGDIOBJ>(nullptr), [=](HDC dc) { return ::SelectObject(dc, object); });
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
