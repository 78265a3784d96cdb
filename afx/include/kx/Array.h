// CArray: the documented growing array.
#pragma once

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

#include "kx/Exceptions.h"
#include "kx/SlotList.h"

/// A row of TYPE with indices from 0. Indices outside raise CInvalidArgException; elements that growing makes are
/// zero or default-constructed. References and GetData() are good until the array grows or shrinks.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject
{
    static_assert(!std::is_same_v<TYPE, bool>, "use BOOL: an element needs an address");

public:
    CArray() = default;

    INT_PTR GetSize() const noexcept { return static_cast<INT_PTR>(m_data.size()); }
    INT_PTR GetCount() const noexcept { return GetSize(); }
    BOOL IsEmpty() const noexcept { return m_data.empty() ? TRUE : FALSE; }
    /// -1 when empty.
    INT_PTR GetUpperBound() const noexcept { return GetSize() - 1; }
    /// Grows or shrinks. nGrowBy is accepted for the documented signature: growth is geometric.
    void SetSize(INT_PTR nNewSize, INT_PTR /*nGrowBy*/ = -1)
    {
        if (nNewSize < 0)
        {
            AfxThrowInvalidArgException();
        }
        kx::orMemoryException([&] { m_data.resize(static_cast<std::size_t>(nNewSize)); });
    }

    void FreeExtra()
    {
        kx::orMemoryException([&] { m_data.shrink_to_fit(); });
    }
    void RemoveAll() { m_data.clear(); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_data[checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return m_data[checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_data[checked(nIndex)] = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_data[checked(nIndex)]; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_data[checked(nIndex)]; }
    const TYPE& operator[](INT_PTR nIndex) const { return m_data[checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_data[checked(nIndex)]; }

    /// Null when empty.
    const TYPE* GetData() const noexcept { return m_data.empty() ? nullptr : m_data.data(); }
    TYPE* GetData() noexcept { return m_data.empty() ? nullptr : m_data.data(); }

    /// Grows the array up to nIndex when needed.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
    {
        if (nIndex < 0)
        {
            AfxThrowInvalidArgException();
        }
        if (nIndex < GetSize())
        {
            SetAt(nIndex, newElement);
            return;
        }
        TYPE copy(newElement); // may be an element of this array
        SetSize(nIndex);
        kx::orMemoryException([&] { m_data.push_back(std::move(copy)); });
    }

    /// Answers the index of the new element.
    INT_PTR Add(ARG_TYPE newElement)
    {
        kx::orMemoryException([&] { m_data.push_back(newElement); });
        return GetUpperBound();
    }

    /// Answers the index of the first appended element.
    INT_PTR Append(const CArray& src)
    {
        const INT_PTR old = GetSize();
        kx::orMemoryException(
            [&]
            {
                const std::size_t count = src.m_data.size();
                m_data.reserve(m_data.size() + count);
                for (std::size_t i = 0; i < count; ++i) // src may be this array
                {
                    m_data.push_back(src.m_data[i]);
                }
            });
        return old;
    }

    void Copy(const CArray& src)
    {
        if (&src != this)
        {
            kx::orMemoryException([&] { m_data = src.m_data; });
        }
    }

    /// Inserts nCount copies before nIndex; grows up to nIndex first when needed. nCount must be positive.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount <= 0)
        {
            AfxThrowInvalidArgException();
        }
        const TYPE copy(newElement); // may be an element of this array
        growTo(nIndex);
        kx::orMemoryException([&] { m_data.insert(m_data.begin() + nIndex, static_cast<std::size_t>(nCount), copy); });
    }

    /// Inserts all elements of another array.
    void InsertAt(INT_PTR nStartIndex, const CArray* pNewArray)
    {
        if (nStartIndex < 0 || pNewArray == nullptr)
        {
            AfxThrowInvalidArgException();
        }
        if (pNewArray->m_data.empty())
        {
            return;
        }
        const std::vector<TYPE> copy = kx::orMemoryException([&] { return pNewArray->m_data; }); // may be this array
        growTo(nStartIndex);
        kx::orMemoryException([&] { m_data.insert(m_data.begin() + nStartIndex, copy.begin(), copy.end()); });
    }

    /// All nCount elements must be there.
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1)
    {
        if (nIndex < 0 || nCount < 0 || nIndex > GetSize() || nCount > GetSize() - nIndex)
        {
            AfxThrowInvalidArgException();
        }
        m_data.erase(m_data.begin() + nIndex, m_data.begin() + nIndex + nCount);
    }

private:
    std::size_t checked(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= GetSize())
        {
            AfxThrowInvalidArgException();
        }
        return static_cast<std::size_t>(nIndex);
    }

    void growTo(INT_PTR size)
    {
        if (size > GetSize())
        {
            SetSize(size);
        }
    }

    std::vector<TYPE> m_data;
};
