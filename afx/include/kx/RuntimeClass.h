// The run-time class record, the macros that give one to a class, and the list of all such classes across modules.
#pragma once

#include "kx/Diagnostics.h"
#include "kx/Export.h"
#include "kx/WinTypes.h"

class CObject;

/// Describes a class derived from CObject. Records are static data; they are never deleted.
struct KXAFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;                      ///< name as written in the source
    int m_nObjectSize;                           ///< sizeof the class, in bytes
    UINT m_wSchema;                              ///< 0xFFFF: not serialisable
    CObject* (*m_pfnCreateObject)();             ///< null: the class cannot be created dynamically
    const CRuntimeClass* (*m_pfnGetBaseClass)(); ///< answers null for CObject

    /// A new object on the heap, owned by the caller; null when the class has no DYNCREATE macro or memory is short.
    CObject* CreateObject() const;
    /// TRUE when the class is pBaseClass or derives from it; FALSE for null.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// The registered class of that name in any loaded module, or null.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
    static CRuntimeClass* FromName(LPCWSTR lpszClassName);
    /// FromName, then CreateObject; null when there is no such class.
    static CObject* CreateObject(LPCSTR lpszClassName);
    static CObject* CreateObject(LPCWSTR lpszClassName);
};

/// Enters a class in the list that FromName searches, for as long as its module stays loaded.
struct KXAFX_API AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass* record);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

    CRuntimeClass* m_record;
    AFX_CLASSINIT* m_next = nullptr;
};

KXAFX_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);

// Through a function and not through the address of the record: a record may be imported from another module, and
// the tables of that module may not be filled yet while static data is initialised.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
protected:                                                                                                             \
    static const CRuntimeClass* _GetBaseClass();                                                                       \
                                                                                                                       \
public:                                                                                                                \
    static const CRuntimeClass class##class_name;                                                                      \
    static CRuntimeClass* GetThisClass();                                                                              \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                           \
    const CRuntimeClass* class_name::_GetBaseClass()                                                                   \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    const CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), wSchema,   \
                                                         pfnNew, &class_name::_GetBaseClass};                          \
    CRuntimeClass* class_name::GetThisClass()                                                                          \
    {                                                                                                                  \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                             \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }                                                                                                                  \
    static const AFX_CLASSINIT _init_##class_name(class_name::GetThisClass());

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject()                                                                                \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)
