// CObject, its run-time class record, and the checks of the diagnostic macros.
#include "kx/Object.h"

#include <cstdio>
#include <cstdlib>

CObject::CObject() = default;
CObject::~CObject() = default;

const CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr,
                                             &CObject::_GetBaseClass};

const CRuntimeClass* CObject::_GetBaseClass()
{
    return nullptr;
}

CRuntimeClass* CObject::GetThisClass()
{
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::AssertValid() const {}

void AFXAPI AfxAssertFailedLine(LPCSTR file, int line)
{
    std::fprintf(stderr, "%s:%d: assertion failed\n", file, line);
    std::abort();
}

void AFXAPI AfxAssertValidObject(const CObject* object, LPCSTR file, int line)
{
    if (object == nullptr)
    {
        AfxAssertFailedLine(file, line);
    }
    object->AssertValid();
}

BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR /*bytes*/, BOOL /*readWrite*/)
{
    return address != nullptr ? TRUE : FALSE;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR text, int /*length*/)
{
    return text != nullptr ? TRUE : FALSE;
}

BOOL AFXAPI AfxIsValidString(LPCSTR text, int /*length*/)
{
    return text != nullptr ? TRUE : FALSE;
}
