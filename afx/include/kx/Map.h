// CMap: the documented hash map, walked in the order of insertion.
#pragma once

#include <vector>

#include "kx/Elements.h"
#include "kx/SlotList.h"

/// Unique keys with values. Values keep their address while their key is in the map. Bad positions raise
/// CInvalidArgException.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject
{
public:
    struct CPair
    {
        const KEY key;
        VALUE value;

        explicit CPair(ARG_KEY keyValue) : key(keyValue), value() {}
    };

    /// nBlockSize is accepted for the documented signature.
    explicit CMap(INT_PTR /*nBlockSize*/ = 10) {}

    INT_PTR GetCount() const noexcept { return m_slots.size(); }
    INT_PTR GetSize() const noexcept { return m_slots.size(); }
    BOOL IsEmpty() const noexcept { return m_slots.size() == 0 ? TRUE : FALSE; }

    BOOL Lookup(ARG_KEY key, VALUE& rValue) const
    {
        const std::uint32_t slot = find(key, HashKey<ARG_KEY>(key));
        if (slot == Slots::none)
        {
            return FALSE;
        }
        rValue = m_slots.value(slot).pair.value;
        return TRUE;
    }
    /// Null when the key is missing.
    const CPair* PLookup(ARG_KEY key) const
    {
        const std::uint32_t slot = find(key, HashKey<ARG_KEY>(key));
        return slot != Slots::none ? &m_slots.value(slot).pair : nullptr;
    }
    CPair* PLookup(ARG_KEY key) { return const_cast<CPair*>(static_cast<const CMap*>(this)->PLookup(key)); }

    /// The value of the key, which is added (with a zero or default value) when missing.
    VALUE& operator[](ARG_KEY key)
    {
        const UINT hash = HashKey<ARG_KEY>(key);
        std::uint32_t slot = find(key, hash);
        if (slot == Slots::none)
        {
            slot = add(key, hash);
        }
        return m_slots.value(slot).pair.value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }

    BOOL RemoveKey(ARG_KEY key)
    {
        const UINT hash = HashKey<ARG_KEY>(key);
        const std::uint32_t slot = find(key, hash);
        if (slot == Slots::none)
        {
            return FALSE;
        }
        std::uint32_t* link = &m_buckets[hash % m_buckets.size()];
        while (*link != slot)
        {
            link = &m_slots.value(*link).nextInBucket;
        }
        *link = m_slots.value(slot).nextInBucket;
        m_slots.remove(slot);
        return TRUE;
    }
    void RemoveAll()
    {
        m_buckets.clear();
        m_slots.clear();
    }

    /// Null when the map is empty.
    POSITION GetStartPosition() const { return m_slots.position(m_slots.first()); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const
    {
        const CPair* const pair = advance(rNextPosition);
        rKey = pair->key;
        rValue = pair->value;
    }
    const CPair* PGetFirstAssoc() const { return pairAt(m_slots.first()); }
    CPair* PGetFirstAssoc() { return const_cast<CPair*>(pairAt(m_slots.first())); }
    /// The pair after one of this map's pairs; null behind the last.
    const CPair* PGetNextAssoc(const CPair* pAssoc) const { return pairAt(following(pAssoc)); }
    CPair* PGetNextAssoc(const CPair* pAssoc) { return const_cast<CPair*>(pairAt(following(pAssoc))); }

    UINT GetHashTableSize() const noexcept
    {
        return m_buckets.empty() ? m_wantedBuckets : static_cast<UINT>(m_buckets.size());
    }
    /// A hint, taken while the map is empty: the table grows by itself.
    void InitHashTable(UINT hashSize, BOOL /*bAllocNow*/ = TRUE)
    {
        if (m_buckets.empty() && hashSize > 0)
        {
            m_wantedBuckets = hashSize < maxWantedBuckets ? hashSize : maxWantedBuckets;
        }
    }

private:
    struct Entry
    {
        CPair pair;
        UINT hash;
        std::uint32_t nextInBucket;

        Entry(ARG_KEY key, UINT keyHash) : pair(key), hash(keyHash), nextInBucket(kx::SlotList<int>::none) {}
    };
    using Slots = kx::SlotList<Entry>;
    static constexpr UINT maxWantedBuckets = 1U << 20U;

    std::uint32_t find(ARG_KEY key, UINT hash) const
    {
        if (m_buckets.empty())
        {
            return Slots::none;
        }
        std::uint32_t slot = m_buckets[hash % m_buckets.size()];
        while (slot != Slots::none)
        {
            const Entry& entry = m_slots.value(slot);
            if (entry.hash == hash && CompareElements(&entry.pair.key, &key) != FALSE)
            {
                break;
            }
            slot = entry.nextInBucket;
        }
        return slot;
    }

    std::uint32_t add(ARG_KEY key, UINT hash)
    {
        if (m_buckets.empty())
        {
            rehash(m_wantedBuckets);
        }
        else if (static_cast<std::size_t>(m_slots.size()) >= m_buckets.size())
        {
            rehash(m_buckets.size() * 2 + 1);
        }
        const std::uint32_t slot = m_slots.insertBefore(Slots::none, key, hash);
        std::uint32_t& bucket = m_buckets[hash % m_buckets.size()];
        m_slots.value(slot).nextInBucket = bucket;
        bucket = slot;
        return slot;
    }

    void rehash(std::size_t count)
    {
        std::vector<std::uint32_t> fresh;
        kx::orMemoryException([&] { fresh.assign(count, Slots::none); });
        for (std::uint32_t slot = m_slots.first(); slot != Slots::none; slot = m_slots.next(slot))
        {
            Entry& entry = m_slots.value(slot);
            std::uint32_t& bucket = fresh[entry.hash % count];
            entry.nextInBucket = bucket;
            bucket = slot;
        }
        m_buckets.swap(fresh);
    }

    const CPair* pairAt(std::uint32_t slot) const { return slot != Slots::none ? &m_slots.value(slot).pair : nullptr; }

    const CPair* advance(POSITION& position) const
    {
        const std::uint32_t slot = m_slots.slotAt(position);
        position = m_slots.position(m_slots.next(slot));
        return &m_slots.value(slot).pair;
    }

    std::uint32_t following(const CPair* pair) const
    {
        for (std::uint32_t slot = m_buckets.empty() || pair == nullptr ? Slots::none : bucketOf(pair);
             slot != Slots::none; slot = m_slots.value(slot).nextInBucket)
        {
            if (&m_slots.value(slot).pair == pair)
            {
                return m_slots.next(slot);
            }
        }
        AfxThrowInvalidArgException();
    }
    std::uint32_t bucketOf(const CPair* pair) const
    {
        const KEY& key = pair->key;
        return m_buckets[HashKey<ARG_KEY>(key) % m_buckets.size()];
    }

    Slots m_slots;
    std::vector<std::uint32_t> m_buckets; // the first slot of each chain
    UINT m_wantedBuckets = 17;
};
