// A word that one thread writes while another reads it.
#pragma once

#include <atomic>

/// Reads, writes and copies as a plain `T`; no order of other memory follows from it. Made for words that only ask
/// (stop now) or tell (so far), such as those of a long operation.
template <typename T> class SharedWord
{
public:
    SharedWord(T value = {}) : m_value(value) {}
    SharedWord(const SharedWord& other) : m_value(static_cast<T>(other)) {}
    SharedWord& operator=(const SharedWord& other) { return *this = static_cast<T>(other); }
    SharedWord& operator=(T value)
    {
        m_value.store(value, std::memory_order_relaxed);
        return *this;
    }
    operator T() const { return m_value.load(std::memory_order_relaxed); }

private:
    std::atomic<T> m_value;
};
