// The helper functions that a program may specialise for its own element types: comparing and hashing.
#pragma once

#include <cstdint>
#include <type_traits>

#include "kx/Diagnostics.h"
#include "kx/String.h"

/// Whether two elements are equal: used by CList::Find and by the keys of CMap.
template <class TYPE, class ARG_TYPE> BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2 ? TRUE : FALSE;
}

namespace kx
{

/// The hash of a text (a null pointer counts as empty).
inline UINT hashText(LPCWSTR text) noexcept
{
    UINT hash = 2166136261U;
    for (; text != nullptr && *text != L'\0'; ++text)
    {
        hash = (hash ^ static_cast<UINT>(*text)) * 16777619U;
    }
    return hash;
}

inline UINT hashBits(std::uint64_t bits) noexcept
{
    return static_cast<UINT>((bits * 0x9E3779B97F4A7C15U) >> 32U);
}

} // namespace kx

/// The hash of a key. Texts, numbers, enumerations and pointers are known; other keys need a specialisation.
template <class ARG_KEY> UINT AFXAPI HashKey(ARG_KEY key)
{
    using Key = std::remove_cvref_t<ARG_KEY>;
    if constexpr (std::is_convertible_v<const Key&, LPCWSTR>)
    {
        return kx::hashText(key);
    }
    else if constexpr (std::is_pointer_v<Key>)
    {
        return kx::hashBits(reinterpret_cast<std::uintptr_t>(key));
    }
    else
    {
        return kx::hashBits(static_cast<std::uint64_t>(key));
    }
}
