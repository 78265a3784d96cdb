// GDI objects: attaching, creating, temporary objects.
#include <afxwin.h>

#include "kx/HandleMap.h"

namespace
{

void releaseGdi(CGdiObject& object)
{
    object.m_hObject = nullptr;
}

kx::HandleOwners<CGdiObject>& owners()
{
    static auto* const all =
        new kx::HandleOwners<CGdiObject>; // lives as long as the process: objects of any module use it
    return *all;
}

kx::TemporaryObjects<CGdiObject>& temporaries()
{
    thread_local kx::TemporaryObjects<CGdiObject> all(releaseGdi);
    return all;
}

template <class Wanted> Wanted* fromHandle(HGDIOBJ handle)
{
    if (handle == nullptr)
        return nullptr;
    if (auto* const owner = dynamic_cast<Wanted*>(owners().find(handle)))
        return owner;
    return temporaries().get<Wanted>(handle, [=](CGdiObject& object) { object.m_hObject = handle; });
}

} // namespace

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return fromHandle<CGdiObject>(hObject);
}

CPen* CPen::FromHandle(HPEN hPen)
{
    return fromHandle<CPen>(hPen);
}

CBrush* CBrush::FromHandle(HBRUSH hBrush)
{
    return fromHandle<CBrush>(hBrush);
}

CFont* CFont::FromHandle(HFONT hFont)
{
    return fromHandle<CFont>(hFont);
}

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap)
{
    return fromHandle<CBitmap>(hBitmap);
}

CPalette* CPalette::FromHandle(HPALETTE hPalette)
{
    return fromHandle<CPalette>(hPalette);
}

CRgn* CRgn::FromHandle(HRGN hRgn)
{
    return fromHandle<CRgn>(hRgn);
}

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject::operator HGDIOBJ() const
{
    return GetSafeHandle();
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    const CGdiObject* self = this;
    return self == nullptr ? nullptr : self->m_hObject;
}

void CGdiObject::DeleteTempMap()
{
    temporaries().clear();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (hObject == nullptr || m_hObject != nullptr)
        return FALSE;
    m_hObject = hObject;
    owners().add(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ const handle = m_hObject;
    if (handle != nullptr)
        owners().remove(handle, this);
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject()
{
    HGDIOBJ const handle = Detach();
    return handle == nullptr ? FALSE : ::DeleteObject(handle);
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return ::GetObjectW(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const
{
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const
{
    return m_hObject != obj.m_hObject;
}

BOOL CGdiObject::TakeNew(HGDIOBJ hObject)
{
    if (Attach(hObject))
        return TRUE;
    if (hObject != nullptr)
        ::DeleteObject(hObject);
    return FALSE;
}
