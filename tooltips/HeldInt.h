// Keeps a wide result within the range of a coordinate.
#pragma once

#include <algorithm>
#include <limits>

/// The value itself, or the nearest int when it is beyond the range of int.
inline int heldInt(long long value)
{
    constexpr long long least = std::numeric_limits<int>::min();
    constexpr long long most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, least, most));
}
