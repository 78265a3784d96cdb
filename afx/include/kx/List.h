// CList: the documented doubly linked list.
#pragma once

#include <vector>

#include "kx/Elements.h"
#include "kx/SlotList.h"

/// An ordered list. A position that is null, stale or not of this list raises CInvalidArgException (or, for a position
/// of another list, may name an element of this one). Elements keep their address while they are in the list.
template <class TYPE, class ARG_TYPE = const TYPE&> class CList : public CObject
{
    using Slots = kx::SlotList<TYPE>;

public:
    /// nBlockSize is accepted for the documented signature.
    explicit CList(INT_PTR /*nBlockSize*/ = 10) {}

    INT_PTR GetCount() const noexcept { return m_slots.size(); }
    INT_PTR GetSize() const noexcept { return m_slots.size(); }
    BOOL IsEmpty() const noexcept { return m_slots.size() == 0 ? TRUE : FALSE; }

    /// The ends raise CInvalidArgException when the list is empty.
    TYPE& GetHead() { return m_slots.value(existing(m_slots.first())); }
    const TYPE& GetHead() const { return m_slots.value(existing(m_slots.first())); }
    TYPE& GetTail() { return m_slots.value(existing(m_slots.last())); }
    const TYPE& GetTail() const { return m_slots.value(existing(m_slots.last())); }
    TYPE RemoveHead() { return takeOut(existing(m_slots.first())); }
    TYPE RemoveTail() { return takeOut(existing(m_slots.last())); }

    POSITION AddHead(ARG_TYPE newElement)
    {
        return m_slots.position(m_slots.insertBefore(m_slots.first(), newElement));
    }
    POSITION AddTail(ARG_TYPE newElement) { return m_slots.position(m_slots.insertBefore(Slots::none, newElement)); }
    /// All elements of another list, in their order.
    void AddHead(CList* pNewList) { addAll(pNewList, m_slots.first()); }
    void AddTail(CList* pNewList) { addAll(pNewList, Slots::none); }
    void RemoveAll() { m_slots.clear(); }

    POSITION GetHeadPosition() const { return m_slots.position(m_slots.first()); }
    POSITION GetTailPosition() const { return m_slots.position(m_slots.last()); }
    /// The element at rPosition, which moves on (null behind the last element).
    TYPE& GetNext(POSITION& rPosition) { return m_slots.value(stepForward(rPosition)); }
    const TYPE& GetNext(POSITION& rPosition) const { return m_slots.value(stepForward(rPosition)); }
    TYPE& GetPrev(POSITION& rPosition) { return m_slots.value(stepBack(rPosition)); }
    const TYPE& GetPrev(POSITION& rPosition) const { return m_slots.value(stepBack(rPosition)); }

    TYPE& GetAt(POSITION position) { return m_slots.value(m_slots.slotAt(position)); }
    const TYPE& GetAt(POSITION position) const { return m_slots.value(m_slots.slotAt(position)); }
    void SetAt(POSITION pos, ARG_TYPE newElement) { m_slots.value(m_slots.slotAt(pos)) = newElement; }
    void RemoveAt(POSITION position) { m_slots.remove(m_slots.slotAt(position)); }

    /// A null position: before the head, behind the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        const std::uint32_t place = position != nullptr ? m_slots.slotAt(position) : m_slots.first();
        return m_slots.position(m_slots.insertBefore(place, newElement));
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        const std::uint32_t place = position != nullptr ? m_slots.next(m_slots.slotAt(position)) : Slots::none;
        return m_slots.position(m_slots.insertBefore(place, newElement));
    }

    /// The first equal element behind startAfter (null: from the head on), or null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const
    {
        std::uint32_t slot = startAfter != nullptr ? m_slots.next(m_slots.slotAt(startAfter)) : m_slots.first();
        for (; slot != Slots::none; slot = m_slots.next(slot))
        {
            if (CompareElements(&m_slots.value(slot), &searchValue) != FALSE)
            {
                return m_slots.position(slot);
            }
        }
        return nullptr;
    }

    /// Null when nIndex lies outside.
    POSITION FindIndex(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= GetCount())
        {
            return nullptr;
        }
        std::uint32_t slot = m_slots.first();
        for (; nIndex > 0; --nIndex)
        {
            slot = m_slots.next(slot);
        }
        return m_slots.position(slot);
    }

private:
    static std::uint32_t existing(std::uint32_t slot)
    {
        if (slot == Slots::none)
        {
            AfxThrowInvalidArgException();
        }
        return slot;
    }

    TYPE takeOut(std::uint32_t slot)
    {
        TYPE element = m_slots.value(slot);
        m_slots.remove(slot);
        return element;
    }

    std::uint32_t stepForward(POSITION& position) const
    {
        const std::uint32_t slot = m_slots.slotAt(position);
        position = m_slots.position(m_slots.next(slot));
        return slot;
    }

    std::uint32_t stepBack(POSITION& position) const
    {
        const std::uint32_t slot = m_slots.slotAt(position);
        position = m_slots.position(m_slots.previous(slot));
        return slot;
    }

    void addAll(const CList* other, std::uint32_t place)
    {
        if (other == nullptr)
        {
            AfxThrowInvalidArgException();
        }
        std::uint32_t slot = other->m_slots.first();
        for (INT_PTR left = other->GetCount(); left > 0; --left) // other may be this list
        {
            m_slots.insertBefore(place, other->m_slots.value(slot));
            slot = other->m_slots.next(slot);
        }
    }

    Slots m_slots;
};
