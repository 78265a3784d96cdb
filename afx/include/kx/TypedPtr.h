// Type-safe faces of the pointer collections.
#pragma once

#include <type_traits>

#include "kx/Collections.h"

namespace kx
{

/// A stored pointer (void* or CObject*) as the type that was put in.
template <class TYPE, class STORED> TYPE typedPointer(STORED* stored) noexcept
{
    return static_cast<TYPE>(stored);
}

/// An element that can be read and assigned as TYPE. A stored CObject* must not be touched through a TYPE&, hence this
/// in place of a reference.
template <class TYPE, class STORED> class TypedElement
{
public:
    explicit TypedElement(STORED& stored) noexcept : m_stored(stored) {}
    TypedElement(const TypedElement&) = default;
    TypedElement& operator=(const TypedElement& other) noexcept
    {
        m_stored = other.m_stored;
        return *this;
    }
    TypedElement& operator=(TYPE pointer) noexcept
    {
        m_stored = pointer;
        return *this;
    }
    operator TYPE() const noexcept { return typedPointer<TYPE>(m_stored); } // NOLINT(google-explicit-constructor)
    template <class DERIVED> explicit operator DERIVED*() const noexcept
    {
        return static_cast<DERIVED*>(typedPointer<TYPE>(m_stored));
    }
    TYPE operator->() const noexcept { return typedPointer<TYPE>(m_stored); }

private:
    STORED& m_stored;
};

} // namespace kx

/// BASE_CLASS: CPtrArray or CObArray; TYPE: a pointer type.
template <class BASE_CLASS, class TYPE> class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return kx::typedPointer<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    auto ElementAt(INT_PTR nIndex)
    {
        auto& stored = BASE_CLASS::ElementAt(nIndex);
        return kx::TypedElement<TYPE, std::remove_reference_t<decltype(stored)>>(stored);
    }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    auto operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, const CTypedPtrArray* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, pNewArray);
    }
};

/// BASE_CLASS: CPtrList or CObList; TYPE: a pointer type. Elements are answered by value: SetAt changes one.
template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS
{
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE GetHead() const { return kx::typedPointer<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetTail() const { return kx::typedPointer<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return kx::typedPointer<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return kx::typedPointer<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE GetNext(POSITION& rPosition) const { return kx::typedPointer<TYPE>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return kx::typedPointer<TYPE>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetAt(POSITION position) const { return kx::typedPointer<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
    POSITION InsertBefore(POSITION position, TYPE newElement) { return BASE_CLASS::InsertBefore(position, newElement); }
    POSITION InsertAfter(POSITION position, TYPE newElement) { return BASE_CLASS::InsertAfter(position, newElement); }
};
