// CObject: the root class, with its run-time class record.
#pragma once

#include "kx/RuntimeClass.h"

/// Principal base class. Objects are not copyable; deleting through a CObject pointer is safe in any module.
class KXAFX_API CObject
{
public:
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// The record of the most derived class that has one.
    virtual CRuntimeClass* GetRuntimeClass() const;
    static CRuntimeClass* GetThisClass();
    static const CRuntimeClass classCObject;

    /// TRUE when the object's class is pClass or derives from it; FALSE for null.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    /// Overridden to check the object's state with ASSERT; here: does nothing.
    virtual void AssertValid() const;

protected:
    CObject();
    static const CRuntimeClass* _GetBaseClass();
};
