// An ordered store whose positions are checked: the ground under the list and map classes.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "kx/Exceptions.h"

struct __POSITION
{
};
/// A place in a list or map; null is "no place". It is a number and not an address, so that a stale or foreign one is
/// refused or names another element, and never reaches freed memory.
using POSITION = __POSITION*;

namespace kx
{

static_assert(sizeof(void*) == 8, "positions hold two 32-bit numbers");

/// Runs the callable; what the standard library raises for lack of memory becomes CMemoryException.
template <class Callable> decltype(auto) orMemoryException(Callable&& callable)
{
    try
    {
        return std::forward<Callable>(callable)();
    }
    catch (const std::bad_alloc&)
    {
        AfxThrowMemoryException();
    }
    catch (const std::length_error&)
    {
        AfxThrowMemoryException();
    }
}

/// Elements that stay where they are, linked in an order; each known by its slot number and the serial of its making.
template <class T> class SlotList
{
public:
    static constexpr std::uint32_t none = 0xFFFFFFFFU;

    SlotList() = default;
    SlotList(const SlotList&) = delete;
    SlotList& operator=(const SlotList&) = delete;

    INT_PTR size() const noexcept { return m_count; }
    std::uint32_t first() const noexcept { return m_first; }
    std::uint32_t last() const noexcept { return m_last; }
    std::uint32_t next(std::uint32_t slot) const { return m_slots[slot].next; }
    std::uint32_t previous(std::uint32_t slot) const { return m_slots[slot].previous; }
    T& value(std::uint32_t slot) { return *m_slots[slot].value; }
    const T& value(std::uint32_t slot) const { return *m_slots[slot].value; }

    /// Makes an element before the given slot (none: at the end) and answers its slot.
    template <class... Args> std::uint32_t insertBefore(std::uint32_t place, Args&&... args)
    {
        return orMemoryException(
            [&]
            {
                const std::uint32_t slot = take();
                try
                {
                    m_slots[slot].value.emplace(std::forward<Args>(args)...);
                }
                catch (...)
                {
                    giveBack(slot);
                    throw;
                }
                link(slot, place);
                return slot;
            });
    }

    /// The element is destroyed after it left the list.
    void remove(std::uint32_t slot)
    {
        Slot& s = m_slots[slot];
        (s.previous != none ? m_slots[s.previous].next : m_first) = s.next;
        (s.next != none ? m_slots[s.next].previous : m_last) = s.previous;
        --m_count;
        s.serial = 0;
        s.value.reset();
        giveBack(slot);
    }

    void clear()
    {
        while (m_first != none)
        {
            remove(m_first);
        }
        m_slots.clear();
        m_free = none;
    }

    POSITION position(std::uint32_t slot) const
    {
        if (slot == none)
        {
            return nullptr;
        }
        const std::uint64_t packed =
            (static_cast<std::uint64_t>(m_slots[slot].serial) << 32U) | (static_cast<std::uint64_t>(slot) + 1U);
        return reinterpret_cast<POSITION>(static_cast<std::uintptr_t>(packed));
    }

    /// The slot that a position names; refused (CInvalidArgException) when there is no such element any more.
    std::uint32_t slotAt(POSITION position) const
    {
        const auto packed = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(position));
        const std::uint64_t slot = (packed & 0xFFFFFFFFU) - 1U;
        if ((packed & 0xFFFFFFFFU) == 0 || slot >= m_slots.size() || m_slots[slot].serial != packed >> 32U ||
            !m_slots[slot].value.has_value())
        {
            AfxThrowInvalidArgException();
        }
        return static_cast<std::uint32_t>(slot);
    }

private:
    struct Slot
    {
        std::optional<T> value;
        std::uint32_t serial = 0;
        std::uint32_t previous = none;
        std::uint32_t next = none; // in a free slot: the next free one
    };

    std::uint32_t take()
    {
        if (m_free == none)
        {
            if (m_slots.size() >= none - 1)
            {
                throw std::bad_alloc();
            }
            m_slots.emplace_back();
            return static_cast<std::uint32_t>(m_slots.size() - 1);
        }
        const std::uint32_t slot = m_free;
        m_free = m_slots[slot].next;
        return slot;
    }

    void giveBack(std::uint32_t slot) noexcept
    {
        m_slots[slot].next = m_free;
        m_free = slot;
    }

    void link(std::uint32_t slot, std::uint32_t place) noexcept
    {
        Slot& s = m_slots[slot];
        m_serial = m_serial == 0xFFFFFFFFU ? 1 : m_serial + 1;
        s.serial = m_serial;
        s.next = place;
        s.previous = place != none ? m_slots[place].previous : m_last;
        (s.previous != none ? m_slots[s.previous].next : m_first) = slot;
        (place != none ? m_slots[place].previous : m_last) = slot;
        ++m_count;
    }

    std::deque<Slot> m_slots;
    std::uint32_t m_first = none;
    std::uint32_t m_last = none;
    std::uint32_t m_free = none;
    std::uint32_t m_serial = 0;
    INT_PTR m_count = 0;
};

} // namespace kx
