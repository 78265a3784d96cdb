// One element of a format seen as a group or a separator, and integers that hold at their limits.
#pragma once

#include <algorithm>
#include <limits>
#include "oxa/formats/KxGroup.h"
#include "oxa/formats/KxSeparator.h"

/// A value brought into the range of int.
inline int saturated(long long value)
{
    return static_cast<int>(
        std::clamp<long long>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

/// A borrowed element: group, separator, or neither of them for a foreign object.
struct FormatElement
{
    CKxGroup* group = nullptr;
    CKxSeparator* separator = nullptr;

    FormatElement() = default;
    explicit FormatElement(CObject* object)
    {
        const CRuntimeClass* kind = object ? object->GetRuntimeClass() : nullptr;
        if (kind == RUNTIME_CLASS(CKxGroup))
            group = static_cast<CKxGroup*>(object);
        else if (kind == RUNTIME_CLASS(CKxSeparator))
            separator = static_cast<CKxSeparator*>(object);
    }

    explicit operator bool() const { return group || separator; }
    int Start() const { return group ? group->m_start : separator->m_start; }
    int End() const { return group ? group->m_end : separator->m_end; }
    const CString& Text() const { return group ? group->m_text : separator->m_text; }
    bool Covers(long long pos) const { return Start() <= pos && pos <= End(); }
    void Move(long long startBy, long long endBy) const
    {
        int& start = group ? group->m_start : separator->m_start;
        int& end = group ? group->m_end : separator->m_end;
        start = saturated(start + startBy);
        end = saturated(end + endBy);
    }
};
