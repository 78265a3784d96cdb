// CPoint, CSize, CRect: the documented coordinate classes. Arithmetic wraps around instead of overflowing.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

#include "kx/WinTypes.h"

namespace kx
{

// 32-bit sums as the processor makes them: wrapping, never undefined.
constexpr LONG wrap(std::int64_t value) noexcept
{
    return static_cast<LONG>(static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value))));
}
constexpr LONG add(LONG a, LONG b) noexcept
{
    return wrap(static_cast<std::int64_t>(a) + b);
}
constexpr LONG sub(LONG a, LONG b) noexcept
{
    return wrap(static_cast<std::int64_t>(a) - b);
}
constexpr LONG neg(LONG a) noexcept
{
    return sub(0, a);
}
constexpr LONG signedLow(DWORD_PTR packed) noexcept
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(packed & 0xFFFFU));
}
constexpr LONG signedHigh(DWORD_PTR packed) noexcept
{
    return signedLow(packed >> 16U);
}
/// number * numerator / denominator, rounded to nearest; -1 for a zero denominator or a result outside 32 bits.
constexpr LONG mulDiv(LONG number, LONG numerator, LONG denominator) noexcept
{
    if (denominator == 0)
    {
        return -1;
    }
    std::int64_t product = static_cast<std::int64_t>(number) * numerator;
    std::int64_t divisor = denominator;
    if (divisor < 0)
    {
        divisor = -divisor;
        product = -product;
    }
    product = product >= 0 ? product + divisor / 2 : product - divisor / 2;
    const std::int64_t result = product / divisor;
    return result > INT32_MAX || result < INT32_MIN ? -1 : static_cast<LONG>(result);
}

} // namespace kx

class CPoint;
class CRect;

/// A width and a height.
class CSize : public SIZE
{
public:
    constexpr CSize() noexcept : SIZE{0, 0} {}
    constexpr CSize(int initCX, int initCY) noexcept : SIZE{initCX, initCY} {}
    constexpr CSize(SIZE initSize) noexcept : SIZE(initSize) {}          // NOLINT(google-explicit-constructor)
    constexpr CSize(POINT initPt) noexcept : SIZE{initPt.x, initPt.y} {} // NOLINT(google-explicit-constructor)
    /// Low word: cx; high word: cy; both signed.
    explicit constexpr CSize(DWORD dwSize) noexcept : SIZE{kx::signedLow(dwSize), kx::signedHigh(dwSize)} {}

    constexpr void SetSize(int width, int height) noexcept { *this = CSize(width, height); }
    friend constexpr bool operator==(const CSize& a, const CSize& b) noexcept { return a.cx == b.cx && a.cy == b.cy; }
    friend constexpr bool operator!=(const CSize& a, const CSize& b) noexcept { return !(a == b); }
    constexpr void operator+=(SIZE size) noexcept { *this = *this + size; }
    constexpr void operator-=(SIZE size) noexcept { *this = *this - size; }
    constexpr CSize operator+(SIZE size) const noexcept { return make(kx::add(cx, size.cx), kx::add(cy, size.cy)); }
    constexpr CSize operator-(SIZE size) const noexcept { return make(kx::sub(cx, size.cx), kx::sub(cy, size.cy)); }
    constexpr CSize operator-() const noexcept { return make(kx::neg(cx), kx::neg(cy)); }
    constexpr CPoint operator+(POINT point) const noexcept;
    constexpr CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;

private:
    static constexpr CSize make(LONG x, LONG y) noexcept { return CSize(SIZE{x, y}); }
};

/// A position.
class CPoint : public POINT
{
public:
    constexpr CPoint() noexcept : POINT{0, 0} {}
    constexpr CPoint(int initX, int initY) noexcept : POINT{initX, initY} {}
    constexpr CPoint(POINT initPt) noexcept : POINT(initPt) {}                    // NOLINT(google-explicit-constructor)
    constexpr CPoint(SIZE initSize) noexcept : POINT{initSize.cx, initSize.cy} {} // NOLINT(google-explicit-constructor)
    /// Low word: x; high word: y; both signed, as mouse messages carry them.
    explicit constexpr CPoint(LPARAM dwPoint) noexcept
        : POINT{kx::signedLow(static_cast<DWORD_PTR>(dwPoint)), kx::signedHigh(static_cast<DWORD_PTR>(dwPoint))}
    {
    }

    constexpr void SetPoint(int newX, int newY) noexcept { *this = CPoint(newX, newY); }
    constexpr void Offset(int xOffset, int yOffset) noexcept { *this += SIZE{xOffset, yOffset}; }
    constexpr void Offset(POINT point) noexcept { *this += point; }
    constexpr void Offset(SIZE size) noexcept { *this += size; }
    friend constexpr bool operator==(const CPoint& a, const CPoint& b) noexcept { return a.x == b.x && a.y == b.y; }
    friend constexpr bool operator!=(const CPoint& a, const CPoint& b) noexcept { return !(a == b); }
    constexpr void operator+=(SIZE size) noexcept { *this = *this + size; }
    constexpr void operator-=(SIZE size) noexcept { *this = *this - size; }
    constexpr void operator+=(POINT point) noexcept { *this = *this + point; }
    constexpr void operator-=(POINT point) noexcept { *this += SIZE{kx::neg(point.x), kx::neg(point.y)}; }
    constexpr CPoint operator+(SIZE size) const noexcept { return make(kx::add(x, size.cx), kx::add(y, size.cy)); }
    constexpr CPoint operator-(SIZE size) const noexcept { return make(kx::sub(x, size.cx), kx::sub(y, size.cy)); }
    constexpr CPoint operator+(POINT point) const noexcept { return make(kx::add(x, point.x), kx::add(y, point.y)); }
    constexpr CSize operator-(POINT point) const noexcept
    {
        return CSize(SIZE{kx::sub(x, point.x), kx::sub(y, point.y)});
    }
    constexpr CPoint operator-() const noexcept { return make(kx::neg(x), kx::neg(y)); }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;

private:
    static constexpr CPoint make(LONG px, LONG py) noexcept { return CPoint(POINT{px, py}); }
};

/// A rectangle: right and bottom lie just outside. Empty when it has no width or no height (or negative ones).
class CRect : public RECT
{
public:
    constexpr CRect() noexcept : RECT{0, 0, 0, 0} {}
    constexpr CRect(int l, int t, int r, int b) noexcept : RECT{l, t, r, b} {}
    constexpr CRect(const RECT& srcRect) noexcept : RECT(srcRect) {} // NOLINT(google-explicit-constructor)
    /// A null pointer gives the null rectangle.
    CRect(LPCRECT lpSrcRect) noexcept : CRect() { CopyRect(lpSrcRect); } // NOLINT(google-explicit-constructor)
    constexpr CRect(POINT point, SIZE size) noexcept
        : RECT{point.x, point.y, kx::add(point.x, size.cx), kx::add(point.y, size.cy)}
    {
    }
    constexpr CRect(POINT topLeft, POINT bottomRight) noexcept
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {
    }

    constexpr int Width() const noexcept { return kx::sub(right, left); }
    constexpr int Height() const noexcept { return kx::sub(bottom, top); }
    constexpr CSize Size() const noexcept { return {Width(), Height()}; }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() noexcept { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const noexcept { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    /// Halves are cut towards the left and the top as integer division does; no overflow.
    constexpr CPoint CenterPoint() const noexcept
    {
        return POINT{kx::wrap((static_cast<std::int64_t>(left) + right) / 2),
                     kx::wrap((static_cast<std::int64_t>(top) + bottom) / 2)};
    }
    constexpr void SwapLeftRight() noexcept { std::swap(left, right); }
    static void SwapLeftRight(LPRECT lpRect) noexcept
    {
        if (lpRect != nullptr)
        {
            std::swap(lpRect->left, lpRect->right);
        }
    }
    operator LPRECT() noexcept { return this; }        // NOLINT(google-explicit-constructor): as documented
    operator LPCRECT() const noexcept { return this; } // NOLINT(google-explicit-constructor): as documented

    constexpr BOOL IsRectEmpty() const noexcept { return right <= left || bottom <= top ? TRUE : FALSE; }
    constexpr BOOL IsRectNull() const noexcept
    {
        return left == 0 && right == 0 && top == 0 && bottom == 0 ? TRUE : FALSE;
    }
    /// Left and top edges belong to the rectangle, right and bottom ones do not.
    constexpr BOOL PtInRect(POINT point) const noexcept
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom ? TRUE : FALSE;
    }
    constexpr void SetRect(int x1, int y1, int x2, int y2) noexcept { *this = CRect(x1, y1, x2, y2); }
    constexpr void SetRect(POINT topLeft, POINT bottomRight) noexcept { *this = CRect(topLeft, bottomRight); }
    constexpr void SetRectEmpty() noexcept { *this = CRect(); }
    void CopyRect(LPCRECT lpSrcRect) noexcept
    {
        const RECT copy = lpSrcRect != nullptr ? *lpSrcRect : RECT{0, 0, 0, 0};
        static_cast<RECT&>(*this) = copy;
    }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return lpRect != nullptr && *this == *lpRect ? TRUE : FALSE; }

    constexpr void InflateRect(int x, int y) noexcept { InflateRect(x, y, x, y); }
    constexpr void InflateRect(SIZE size) noexcept { inflate(size.cx, size.cy, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept { inflateBy(lpRect, false); }
    constexpr void InflateRect(int l, int t, int r, int b) noexcept { inflate(l, t, r, b); }
    constexpr void DeflateRect(int x, int y) noexcept { DeflateRect(x, y, x, y); }
    constexpr void DeflateRect(SIZE size) noexcept { deflate(size.cx, size.cy, size.cx, size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept { inflateBy(lpRect, true); }
    constexpr void DeflateRect(int l, int t, int r, int b) noexcept { deflate(l, t, r, b); }
    constexpr void OffsetRect(int x, int y) noexcept { offset(x, y); }
    constexpr void OffsetRect(POINT point) noexcept { offset(point.x, point.y); }
    constexpr void OffsetRect(SIZE size) noexcept { offset(size.cx, size.cy); }
    /// Makes left <= right and top <= bottom.
    constexpr void NormalizeRect() noexcept
    {
        if (left > right)
        {
            std::swap(left, right);
        }
        if (top > bottom)
        {
            std::swap(top, bottom);
        }
    }
    constexpr void MoveToX(int x) noexcept { offset(kx::sub(x, left), 0); }
    constexpr void MoveToY(int y) noexcept { offset(0, kx::sub(y, top)); }
    constexpr void MoveToXY(int x, int y) noexcept { offset(kx::sub(x, left), kx::sub(y, top)); }
    constexpr void MoveToXY(POINT point) noexcept { offset(kx::sub(point.x, left), kx::sub(point.y, top)); }

    /// FALSE and the null rectangle when the two have no common area.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// The smallest rectangle around both; empty ones do not count; FALSE when both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept;
    /// lpRectSrc1 without lpRectSrc2 where that is a rectangle again, else lpRectSrc1; FALSE when nothing is left.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept;

    friend constexpr bool operator==(const CRect& a, const CRect& b) noexcept
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
    friend constexpr bool operator!=(const CRect& a, const CRect& b) noexcept { return !(a == b); }
    constexpr void operator+=(POINT point) noexcept { offset(point.x, point.y); }
    constexpr void operator+=(SIZE size) noexcept { offset(size.cx, size.cy); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    constexpr void operator-=(POINT point) noexcept { offset(kx::neg(point.x), kx::neg(point.y)); }
    constexpr void operator-=(SIZE size) noexcept { offset(kx::neg(size.cx), kx::neg(size.cy)); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }
    constexpr CRect operator+(POINT point) const noexcept { return moved(point.x, point.y); }
    constexpr CRect operator-(POINT point) const noexcept { return moved(kx::neg(point.x), kx::neg(point.y)); }
    constexpr CRect operator+(SIZE size) const noexcept { return moved(size.cx, size.cy); }
    constexpr CRect operator-(SIZE size) const noexcept { return moved(kx::neg(size.cx), kx::neg(size.cy)); }
    CRect operator+(LPCRECT lpRect) const noexcept
    {
        CRect result(*this);
        result.InflateRect(lpRect);
        return result;
    }
    CRect operator-(LPCRECT lpRect) const noexcept
    {
        CRect result(*this);
        result.DeflateRect(lpRect);
        return result;
    }
    CRect operator&(const RECT& rect2) const noexcept
    {
        CRect result;
        result.IntersectRect(this, &rect2);
        return result;
    }
    CRect operator|(const RECT& rect2) const noexcept
    {
        CRect result;
        result.UnionRect(this, &rect2);
        return result;
    }
    /// Each coordinate times nMultiplier over nDivisor, rounded to nearest.
    constexpr CRect MulDiv(int nMultiplier, int nDivisor) const noexcept
    {
        return RECT{kx::mulDiv(left, nMultiplier, nDivisor), kx::mulDiv(top, nMultiplier, nDivisor),
                    kx::mulDiv(right, nMultiplier, nDivisor), kx::mulDiv(bottom, nMultiplier, nDivisor)};
    }

private:
    static constexpr bool isEmpty(const RECT& r) noexcept { return r.right <= r.left || r.bottom <= r.top; }
    static CRect valueOf(LPCRECT rect) noexcept { return CRect(rect); }
    constexpr void inflate(LONG l, LONG t, LONG r, LONG b) noexcept
    {
        left = kx::sub(left, l);
        top = kx::sub(top, t);
        right = kx::add(right, r);
        bottom = kx::add(bottom, b);
    }
    constexpr void deflate(LONG l, LONG t, LONG r, LONG b) noexcept
    {
        inflate(kx::neg(l), kx::neg(t), kx::neg(r), kx::neg(b));
    }
    void inflateBy(LPCRECT rect, bool inwards) noexcept
    {
        const CRect by = valueOf(rect);
        if (inwards)
        {
            deflate(by.left, by.top, by.right, by.bottom);
        }
        else
        {
            inflate(by.left, by.top, by.right, by.bottom);
        }
    }
    constexpr void offset(LONG x, LONG y) noexcept
    {
        left = kx::add(left, x);
        right = kx::add(right, x);
        top = kx::add(top, y);
        bottom = kx::add(bottom, y);
    }
    constexpr CRect moved(LONG x, LONG y) const noexcept
    {
        CRect result(*this);
        result.offset(x, y);
        return result;
    }
};

constexpr CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(point) + static_cast<SIZE>(*this);
}
constexpr CPoint CSize::operator-(POINT point) const noexcept
{
    return POINT{kx::sub(cx, point.x), kx::sub(cy, point.y)};
}
inline CRect CSize::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + static_cast<SIZE>(*this);
}
inline CRect CSize::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - static_cast<SIZE>(*this);
}
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + static_cast<POINT>(*this);
}
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - static_cast<POINT>(*this);
}

inline BOOL CRect::IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
{
    const CRect a = valueOf(lpRect1);
    const CRect b = valueOf(lpRect2);
    *this = CRect();
    if (isEmpty(a) || isEmpty(b))
    {
        return FALSE;
    }
    const CRect common(RECT{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                            std::min(a.bottom, b.bottom)});
    if (isEmpty(common))
    {
        return FALSE;
    }
    *this = common;
    return TRUE;
}

inline BOOL CRect::UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
{
    const CRect a = valueOf(lpRect1);
    const CRect b = valueOf(lpRect2);
    if (isEmpty(a))
    {
        *this = isEmpty(b) ? CRect() : b;
    }
    else if (isEmpty(b))
    {
        *this = a;
    }
    else
    {
        *this = CRect(RECT{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
                           std::max(a.bottom, b.bottom)});
    }
    return IsRectEmpty() == FALSE ? TRUE : FALSE;
}

inline BOOL CRect::SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
{
    const CRect from = valueOf(lpRectSrc1);
    const CRect cut = from & valueOf(lpRectSrc2);
    *this = isEmpty(from) ? CRect() : from;
    if (isEmpty(from) || isEmpty(cut))
    {
        return isEmpty(from) ? FALSE : TRUE;
    }
    const bool fullHeight = cut.top == from.top && cut.bottom == from.bottom;
    const bool fullWidth = cut.left == from.left && cut.right == from.right;
    if (fullHeight && fullWidth)
    {
        *this = CRect();
    }
    else if (fullHeight && cut.left == from.left)
    {
        left = cut.right;
    }
    else if (fullHeight && cut.right == from.right)
    {
        right = cut.left;
    }
    else if (fullWidth && cut.top == from.top)
    {
        top = cut.bottom;
    }
    else if (fullWidth && cut.bottom == from.bottom)
    {
        bottom = cut.top;
    }
    return IsRectEmpty() == FALSE ? TRUE : FALSE;
}
