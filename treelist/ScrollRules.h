// Where the tree list's frame puts its children, and what its horizontal bar is set to: sizes in, sizes out, in pixels.
#pragma once

#include <afx.h>

#include <optional>

#include "WidthRules.h"

namespace treelist
{

/// What is read before anything is set. Sizes are client sizes.
struct Measures
{
    CSize frame;
    int headerHeight = 0;
    int barHeight = 0;
    int treeWidth = 0;
    int total = 0;            ///< of the column widths
    int verticalBarWidth = 0; ///< of a vertical scroll bar of the system
};

struct Range
{
    int low = 0;
    int high = 0;
    constexpr bool operator==(const Range&) const = default;
};

// ---- The first layout

struct FirstLayout
{
    CRect header, tree, bar;
};

/// The children of a frame of that outer size. `textHeight`: of the header font. `barHeight`: of a horizontal scroll bar of
/// the system.
/// Kept on purpose: the bar's lower end is `bottomOnScreen`; the bar takes the system's height when it is created.
inline FirstLayout LayOutFirst(CSize window, int textHeight, int barHeight, int verticalBarWidth, int bottomOnScreen)
{
    FirstLayout first;
    const int headerHeight = Sum(textHeight, 4);
    first.header = CRect(-1, -1, window.cx, Sum(headerHeight, -1));
    first.tree = CRect(0, headerHeight, Difference(window.cx, 4), Difference(Difference(window.cy, barHeight), 4));
    first.bar = CRect(0, first.tree.bottom, Difference(first.tree.right, verticalBarWidth), bottomOnScreen);
    return first;
}

// ---- The tree's and the bar's size

inline bool FitsWithoutBar(const Measures& now)
{
    return now.total <= now.treeWidth;
}

/// The size of the tree under the header, above the bar when that is shown.
inline CSize TreeSize(const Measures& now, bool barShown)
{
    const int height = Difference(now.frame.cy, now.headerHeight);
    return CSize(now.frame.cx, barShown ? Difference(height, now.barHeight) : height);
}

/// The width of the bar: that of the frame, less a vertical bar's.
inline int BarWidth(const Measures& now, bool besideVerticalBar)
{
    return besideVerticalBar ? Difference(now.frame.cx, now.verticalBarWidth) : static_cast<int>(now.frame.cx);
}

/// The upper end of the bar's range, which begins at 0.
inline int UpperEnd(const Measures& now)
{
    return FitsWithoutBar(now) ? 0 : Difference(now.total, now.treeWidth);
}

/// The width of the header where there is nothing to scroll.
inline int HeaderWidthAtRest(const Measures& now)
{
    return HeaderWidth(now.total, now.frame.cx, now.frame.cx);
}

// ---- After the vertical bar came or went

/// What is to be set; what has no value stays.
struct VerticalReset
{
    std::optional<int> barWidth;
    std::optional<Range> range;
    std::optional<bool> barShown;
    std::optional<int> treeHeight;
    bool toTheLeftEnd = false; ///< the offset is 0, and the header stands as it does at rest
    bool operator==(const VerticalReset&) const = default;
};

/// Only the horizontal bar is there: the vertical one may just have gone, and the range may still reckon with it.
inline VerticalReset AfterVerticalWent(const Measures& now, Range range)
{
    VerticalReset reset;
    reset.barWidth = BarWidth(now, false);
    const std::int64_t length = std::int64_t{range.high} - range.low;
    if (length != std::int64_t{now.total} - now.treeWidth + now.verticalBarWidth)
        return reset;
    const int high = Difference(range.high, now.verticalBarWidth);
    if (high >= 1)
    {
        reset.range = Range{range.low, high};
        return reset;
    }
    reset.barShown = false;
    reset.treeHeight = TreeSize(now, false).cy;
    reset.range = Range{0, 0};
    reset.toTheLeftEnd = true;
    return reset;
}

/// Both bars are there: the vertical one may just have come, and the range may not yet reckon with it.
inline VerticalReset AfterVerticalCame(const Measures& now, Range range)
{
    VerticalReset reset;
    reset.barWidth = BarWidth(now, true);
    const std::int64_t length = std::int64_t{range.high} - range.low;
    if (length == std::int64_t{now.total} - now.treeWidth - now.verticalBarWidth)
        reset.range = Range{range.low, Sum(range.high, now.verticalBarWidth)};
    return reset;
}

/// Only the vertical bar is there: it may have taken the room that the last column needs.
inline VerticalReset BesideVerticalAlone(const Measures& now)
{
    VerticalReset reset;
    if (FitsWithoutBar(now))
        return reset;
    reset.barShown = true;
    reset.treeHeight = TreeSize(now, true).cy;
    reset.barWidth = BarWidth(now, true);
    reset.range = Range{0, UpperEnd(now)};
    return reset;
}

/// `now.treeWidth` is the one from before the tree got `TreeSize`, the two flags are those from after it.
inline VerticalReset ResetVertical(const Measures& now, Range range, bool horizontalVisible, bool verticalVisible)
{
    if (horizontalVisible)
        return verticalVisible ? AfterVerticalCame(now, range) : AfterVerticalWent(now, range);
    return verticalVisible ? BesideVerticalAlone(now) : VerticalReset{};
}

// ---- A new size or place

struct Placement
{
    CSize header;
    CSize tree;
    CRect bar; ///< below the tree
};

/// The first step of both: the tree ends above the bar, whether or not that is shown.
inline Placement Place(CSize frame, int headerHeight, int barHeight)
{
    const int bottom = Difference(frame.cy, barHeight);
    return {CSize(frame.cx, headerHeight), CSize(frame.cx, bottom), CRect(0, bottom, frame.cx, Sum(bottom, barHeight))};
}

/// What a new size sets after that; the range begins at 0.
struct Resized
{
    bool barShown = false;
    int treeHeight = 0;
    std::optional<int> barWidth;
    int upperEnd = 0;
    bool operator==(const Resized&) const = default;
};

/// `now.treeWidth` is the one from after `Place`. Kept on purpose: where nothing is left to scroll, the offset stays.
inline Resized Resize(const Measures& now)
{
    const bool shown = !FitsWithoutBar(now);
    Resized resized = {shown, static_cast<int>(TreeSize(now, shown).cy), std::nullopt, UpperEnd(now)};
    if (shown)
        resized.barWidth = BarWidth(now, true);
    return resized;
}

// ---- Scrolling

/// The scroll codes, numbered as the platform numbers them.
enum class ScrollCode : unsigned
{
    lineLeft = 0,
    lineRight = 1,
    pageLeft = 2,
    pageRight = 3,
    thumbPosition = 4,
    thumbTrack = 5,
    left = 6,
    right = 7
};

constexpr int scrollLine = 6;

/// Where the thumb leaves the bar: on the next multiple of a line above it, except at 0.
constexpr int ThumbPosition(unsigned thumb, int limit)
{
    const int stretched = StretchWidth(Held(thumb), scrollLine);
    return thumb == 0 ? 0 : std::min(stretched, limit);
}

/// The new position of the bar. `current`: the present one; `limit`: the highest; `page`: the tree's client width. Any
/// other code leaves the position.
constexpr int ScrollPosition(ScrollCode code, unsigned thumb, int current, int limit, int page)
{
    switch (code)
    {
    case ScrollCode::lineLeft:
        return std::max(Difference(current, scrollLine), 0);
    case ScrollCode::lineRight:
        return std::min(Sum(current, scrollLine), limit);
    case ScrollCode::pageLeft:
        return std::max(Difference(current, page), 0);
    case ScrollCode::pageRight:
        return std::min(Sum(current, page), limit);
    case ScrollCode::thumbPosition:
    case ScrollCode::thumbTrack:
        return ThumbPosition(thumb, limit);
    case ScrollCode::left:
        return 0;
    case ScrollCode::right:
        return limit;
    }
    return current;
}

/// The offset after a column got narrower: when the bar stands at its end, the last column ends at the tree's right edge.
inline std::optional<int> OffsetAfterChange(int oldTotal, const Measures& now, int position, int limit)
{
    if (now.total >= oldTotal || position != limit || now.treeWidth >= now.total)
        return std::nullopt;
    return Difference(now.treeWidth, now.total);
}

} // namespace treelist
