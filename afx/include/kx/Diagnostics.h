// ASSERT, VERIFY, TRACE, ENSURE and the address checks, as the documented framework macros behave.
#pragma once

#include "kx/Export.h"
#include "kx/WinTypes.h"

#define AFXAPI
#define AFX_CDECL
#ifndef afx_msg
#define afx_msg
#endif

class CObject;

/// Called by a failed ASSERT in a debug build (_DEBUG): writes file and line to standard error and aborts.
[[noreturn]] KXAFX_API void AFXAPI AfxAssertFailedLine(LPCSTR file, int line);

/// Calls pObject->AssertValid(); a null pointer is a failed assertion.
KXAFX_API void AFXAPI AfxAssertValidObject(const CObject* object, LPCSTR file, int line);

/// TRUE unless the pointer is null; no memory is probed. nBytes and bReadWrite are accepted for the documented signature.
KXAFX_API BOOL AFXAPI AfxIsValidAddress(const void* address, UINT_PTR bytes, BOOL readWrite = TRUE);

/// TRUE unless the pointer is null.
KXAFX_API BOOL AFXAPI AfxIsValidString(LPCWSTR text, int length = -1);
KXAFX_API BOOL AFXAPI AfxIsValidString(LPCSTR text, int length = -1);

#ifdef _DEBUG
#define ASSERT(f) ((f) ? static_cast<void>(0) : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(p) (AfxAssertValidObject(p, __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)
#else
#define ASSERT(f) (static_cast<void>(0))
#define VERIFY(f) (static_cast<void>(f))
#define ASSERT_VALID(p) (static_cast<void>(0))
#define DEBUG_ONLY(f) (static_cast<void>(0))
#endif

#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(p, type) ASSERT(((p) != nullptr) && AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT(((p) == nullptr) || AfxIsValidAddress((p), sizeof(type), FALSE))

#define TRACE(...) (static_cast<void>(0))
#define TRACE0(sz) (static_cast<void>(0))
#define TRACE1(sz, p1) (static_cast<void>(0))
#define TRACE2(sz, p1, p2) (static_cast<void>(0))
#define TRACE3(sz, p1, p2, p3) (static_cast<void>(0))
#define UNUSED(x) (static_cast<void>(x))
#define UNUSED_ALWAYS(x) (static_cast<void>(x))

#define ENSURE(cond) ((cond) ? static_cast<void>(0) : AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE(cond)
#define ENSURE_VALID(object) ENSURE((object) != nullptr)

#define DEBUG_NEW new
