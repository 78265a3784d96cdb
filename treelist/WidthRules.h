// Widths of the tree list's header, and sums that stay inside int.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace treelist
{

/// A wide result, held at the ends of int.
constexpr int Held(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

constexpr int Sum(int a, int b)
{
    return Held(std::int64_t{a} + b);
}

constexpr int Difference(int a, int b)
{
    return Held(std::int64_t{a} - b);
}

/// The next multiple of `b` above `a`, `a` + `b` when `a` is a multiple already; `a` for a `b` of 0.
constexpr int StretchWidth(int a, int b)
{
    return b == 0 ? a : Held((std::int64_t{a} / b + 1) * b);
}

/// The width of the header: `total` stretched in steps of `step`, the frame's client width at least.
/// Kept on purpose: a total of exactly one step is stretched to two.
constexpr int HeaderWidth(int total, int step, int frameWidth)
{
    return std::max(StretchWidth(total, step), frameWidth);
}

} // namespace treelist
