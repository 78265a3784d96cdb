// The highest position of a scroll bar, from its range and its page.
#pragma once
#include <algorithm>
#include <cstdint>
#include <limits>

namespace kx
{

/// The upper end less what a page shows beyond its first unit. Kept on purpose: a bar without a page (0) answers one more than
/// its upper end.
inline int scrollLimit(int upperEnd, unsigned page)
{
    using Limits = std::numeric_limits<int>;
    const std::int64_t limit = std::int64_t{upperEnd} - page + 1;
    return static_cast<int>(std::clamp<std::int64_t>(limit, Limits::min(), Limits::max()));
}

} // namespace kx
