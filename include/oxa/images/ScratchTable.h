// A table of a codec: part of the object, but without a value until a run of the codec gives it one.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

/// An array member that costs nothing to construct. A copy takes the bytes over as they are, written or not.
template <class Entry, std::size_t Count> class ScratchTable
{
    static_assert(std::is_trivially_copyable_v<Entry>);

public:
    ScratchTable() {} // leaves the entries alone on purpose: see above
    ScratchTable(const ScratchTable& other) { std::memcpy(m_entries, other.m_entries, sizeof m_entries); }
    ScratchTable& operator=(const ScratchTable& other)
    {
        std::memmove(m_entries, other.m_entries, sizeof m_entries);
        return *this;
    }
    ~ScratchTable() = default;

    Entry& operator[](std::size_t index) { return m_entries[index]; }
    const Entry& operator[](std::size_t index) const { return m_entries[index]; }
    Entry* data() { return m_entries; }
    const Entry* data() const { return m_entries; }
    static constexpr std::size_t size() { return Count; }

private:
    Entry m_entries[Count];
};
