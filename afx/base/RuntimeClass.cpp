// The list of run-time classes of all loaded modules, and creation by name.
#include "kx/RuntimeClass.h"

#include <cstring>
#include <mutex>
#include <new>
#include <string>

#include "kx/Exceptions.h"
#include "kx/Object.h"

namespace
{

struct ClassList
{
    std::mutex guard;
    AFX_CLASSINIT* first = nullptr;
};

// Made on first use, so that classes of any module may enter while static data is initialised; never destroyed, because
// modules leave the list while static data is destroyed.
ClassList& classList()
{
    alignas(ClassList) static unsigned char storage[sizeof(ClassList)];
    static ClassList* const list = new (storage) ClassList;
    return *list;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* record) : m_record(record)
{
    ClassList& list = classList();
    const std::lock_guard lock(list.guard);
    m_next = list.first;
    list.first = this;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    ClassList& list = classList();
    const std::lock_guard lock(list.guard);
    for (AFX_CLASSINIT** link = &list.first; *link != nullptr; link = &(*link)->m_next)
    {
        if (*link == this)
        {
            *link = m_next;
            return;
        }
    }
}

CObject* CRuntimeClass::CreateObject() const
{
    if (m_pfnCreateObject == nullptr)
    {
        return nullptr;
    }
    try
    {
        return m_pfnCreateObject();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
    catch (CMemoryException* e)
    {
        e->Delete();
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    if (pBaseClass == nullptr)
    {
        return FALSE;
    }
    for (const CRuntimeClass* c = this; c != nullptr; c = c->m_pfnGetBaseClass())
    {
        if (c == pBaseClass)
        {
            return TRUE;
        }
    }
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
    {
        return nullptr;
    }
    ClassList& list = classList();
    const std::lock_guard lock(list.guard);
    for (const AFX_CLASSINIT* entry = list.first; entry != nullptr; entry = entry->m_next)
    {
        if (std::strcmp(entry->m_record->m_lpszClassName, lpszClassName) == 0)
        {
            return entry->m_record;
        }
    }
    return nullptr;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    std::string narrow;
    for (LPCWSTR p = lpszClassName; p != nullptr && *p != L'\0'; ++p)
    {
        if (static_cast<unsigned>(*p) > 0x7EU)
        {
            return nullptr; // class names are plain ASCII
        }
        narrow += static_cast<char>(*p);
    }
    return FromName(narrow.c_str());
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    const CRuntimeClass* const record = FromName(lpszClassName);
    return record != nullptr ? record->CreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    const CRuntimeClass* const record = FromName(lpszClassName);
    return record != nullptr ? record->CreateObject() : nullptr;
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) != FALSE ? pObject : nullptr;
}
