// How long a frame stands, what becomes of it then, and which part of the canvas a window shows.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include <afx.h>

struct PlayRules
{
    /// A small stream can claim any size: beyond these the platform is not asked for the memory.
    enum Limit : std::int64_t
    {
        MostPixels = std::int64_t{16384} * 16384, // of the canvas, and of a frame
        MostFramePixels = std::int64_t{1} << 30,  // of all frames of an animation
    };

    static constexpr std::int64_t PixelsOf(int width, int height) { return std::int64_t{width} * height; }
    static constexpr bool IsCanvas(int width, int height)
    {
        return width >= 0 && height >= 0 && PixelsOf(width, height) <= MostPixels;
    }

    /// What is done with a frame when its time is over; everything else leaves it where it is.
    enum Disposal : std::uint32_t
    {
        ToBackground = 2,
        ToPrevious = 3,
    };

    /// Milliseconds for a delay in hundredths of a second, wrapping: the delay of a frame without a control block gives 49
    /// days.
    static constexpr std::uint32_t WaitOf(std::uint32_t delay)
    {
        constexpr std::uint32_t leastDelay = 5;
        return delay < leastDelay ? 100 : delay * 10;
    }

    /// A copy from the canvas to the window; nothing to copy when the width or the height is 0.
    struct Part
    {
        int toX = 0;
        int toY = 0;
        int width = 0;
        int height = 0;
        int fromX = 0;
        int fromY = 0;
    };

    /// The paint rectangle goes to the left top corner of the window, as far as it lies on the canvas. One that is less
    /// than a pixel wide means the whole canvas.
    static constexpr Part PartOf(const RECT& paint, const SIZE& canvas)
    {
        if (std::int64_t{paint.right} - paint.left < 1)
            return {0, 0, std::max<int>(canvas.cx, 0), std::max<int>(canvas.cy, 0), 0, 0};
        const Span across = SpanOf(paint.left, paint.right, canvas.cx);
        const Span down = SpanOf(paint.top, paint.bottom, canvas.cy);
        return {across.to, down.to, across.length, down.length, across.from, down.from};
    }

private:
    struct Span
    {
        int to;
        int length;
        int from;
    };

    static constexpr Span SpanOf(std::int64_t start, std::int64_t end, std::int64_t limit)
    {
        const std::int64_t from = std::max<std::int64_t>(start, 0);
        const std::int64_t length = std::min(end, limit) - from;
        const std::int64_t to = from - start;
        if (length < 1 || to > std::numeric_limits<int>::max())
            return {0, 0, 0};
        return {static_cast<int>(to), static_cast<int>(length), static_cast<int>(from)};
    }
};
