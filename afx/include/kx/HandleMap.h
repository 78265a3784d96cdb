// Which object owns a handle, and which temporary object stands for a handle that nobody owns.
#pragma once
#include <map>
#include <memory>
#include <mutex>
#include <typeindex>
#include <utility>

#include <windows.h>

namespace kx
{

/// The objects that own a handle, by handle and by the thread that attached it. Any thread may remove an object, so
/// that a deleted one leaves no entry behind; only the thread that attached it finds it.
template <class Object> class HandleOwners
{
public:
    void add(HANDLE handle, Object* owner)
    {
        const std::lock_guard guard(m_mutex);
        m_owners[{handle, ::GetCurrentThreadId()}] = owner;
    }
    void remove(HANDLE handle, const Object* owner)
    {
        const std::lock_guard guard(m_mutex);
        for (auto entry = m_owners.lower_bound({handle, 0}); entry != m_owners.end() && entry->first.first == handle;)
            entry = entry->second == owner ? m_owners.erase(entry) : std::next(entry);
    }
    Object* find(HANDLE handle) const
    {
        const std::lock_guard guard(m_mutex);
        const auto entry = m_owners.find({handle, ::GetCurrentThreadId()});
        return entry == m_owners.end() ? nullptr : entry->second;
    }

private:
    mutable std::mutex m_mutex;
    std::map<std::pair<HANDLE, DWORD>, Object*> m_owners;
};

/// The temporary objects of one thread. An object of one handle is made once for each class that is asked for, so
/// that a handle that the system used again for something else gives no object of the wrong class.
template <class Object> class TemporaryObjects
{
public:
    using Release = void (*)(Object&);

    /// release makes an object forget its handle before it is deleted.
    explicit TemporaryObjects(Release release) : m_release(release) {}
    TemporaryObjects(const TemporaryObjects&) = delete;
    TemporaryObjects& operator=(const TemporaryObjects&) = delete;
    ~TemporaryObjects() { clear(); }

    template <class Wanted, class Fill> Wanted* get(HANDLE handle, Fill fill)
    {
        std::unique_ptr<Object>& slot = m_objects[{handle, std::type_index(typeid(Wanted))}];
        if (slot == nullptr)
            slot = std::make_unique<Wanted>();
        fill(*slot);
        return static_cast<Wanted*>(slot.get());
    }
    void clear()
    {
        for (auto& entry : m_objects)
            m_release(*entry.second);
        m_objects.clear();
    }

private:
    Release m_release;
    std::map<std::pair<HANDLE, std::type_index>, std::unique_ptr<Object>> m_objects;
};

} // namespace kx
