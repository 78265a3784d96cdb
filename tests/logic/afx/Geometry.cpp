// CPoint, CSize, CRect.
#include <afx.h>

#include <climits>

#include "Raises.h"

TEST(Geometry, points_begin_at_the_origin)
{
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(CSize() == CSize(0, 0));
    EXPECT_TRUE(CRect() == CRect(0, 0, 0, 0));
}

TEST(Geometry, packed_coordinates_are_signed)
{
    EXPECT_TRUE(CPoint(static_cast<LPARAM>(0xFFFE0003)) == CPoint(3, -2));
    EXPECT_TRUE(CSize(static_cast<DWORD>(0x0004FFFF)) == CSize(-1, 4));
}

TEST(Geometry, point_arithmetic)
{
    CPoint p(10, 20);
    EXPECT_TRUE(p + CSize(1, 2) == CPoint(11, 22));
    EXPECT_TRUE(p - CSize(1, 2) == CPoint(9, 18));
    EXPECT_TRUE(p + CPoint(5, 5) == CPoint(15, 25));
    EXPECT_TRUE(p - CPoint(4, 5) == CSize(6, 15));
    EXPECT_TRUE(-p == CPoint(-10, -20));
    p.Offset(1, 1);
    p += CSize(1, 1);
    p -= CPoint(2, 0);
    EXPECT_TRUE(p == CPoint(10, 22));
    EXPECT_TRUE(p != CPoint(10, 20));
    p.SetPoint(7, 8);
    EXPECT_EQ(p.x, 7);
    EXPECT_EQ(p.y, 8);
}

TEST(Geometry, size_arithmetic)
{
    CSize s(3, 4);
    EXPECT_TRUE(s + CSize(1, 1) == CSize(4, 5));
    EXPECT_TRUE(s - CSize(1, 1) == CSize(2, 3));
    EXPECT_TRUE(-s == CSize(-3, -4));
    EXPECT_TRUE(s + CPoint(1, 1) == CPoint(4, 5));
    EXPECT_TRUE(s - CPoint(1, 1) == CPoint(2, 3));
    s += CSize(1, 0);
    s -= CSize(0, 1);
    EXPECT_TRUE(s == CSize(4, 3));
    s.SetSize(9, 8);
    EXPECT_EQ(s.cx, 9);
    EXPECT_EQ(s.cy, 8);
    const CRect r(0, 0, 1, 1);
    EXPECT_TRUE(CSize(2, 3) + static_cast<const RECT*>(&r) == CRect(2, 3, 3, 4));
    EXPECT_TRUE(CPoint(2, 3) - static_cast<const RECT*>(&r) == CRect(-2, -3, -1, -2));
}

TEST(Geometry, rectangle_constructors)
{
    EXPECT_TRUE(CRect(CPoint(1, 2), CSize(10, 20)) == CRect(1, 2, 11, 22));
    EXPECT_TRUE(CRect(CPoint(1, 2), CPoint(10, 20)) == CRect(1, 2, 10, 20));
    const RECT plain = {1, 2, 3, 4};
    EXPECT_TRUE(CRect(plain) == CRect(1, 2, 3, 4));
    EXPECT_TRUE(CRect(&plain) == CRect(1, 2, 3, 4));
    EXPECT_TRUE(CRect(static_cast<LPCRECT>(nullptr)) == CRect());
}

TEST(Geometry, rectangle_measures)
{
    const CRect r(1, 2, 11, 32);
    EXPECT_EQ(r.Width(), 10);
    EXPECT_EQ(r.Height(), 30);
    EXPECT_TRUE(r.Size() == CSize(10, 30));
    EXPECT_TRUE(r.CenterPoint() == CPoint(6, 17));
    EXPECT_TRUE(r.TopLeft() == CPoint(1, 2));
    EXPECT_TRUE(r.BottomRight() == CPoint(11, 32));
}

TEST(Geometry, the_corners_can_be_moved_through_references)
{
    CRect r(1, 2, 11, 32);
    r.TopLeft().x = 5;
    r.BottomRight() += CSize(1, 1);
    EXPECT_TRUE(r == CRect(5, 2, 12, 33));
    EXPECT_EQ(r.left, 5);
}

TEST(Geometry, empty_and_null_rectangles)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 10).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 10).IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 4, 10).IsRectEmpty());
    EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
    CRect r(1, 2, 3, 4);
    r.SetRectEmpty();
    EXPECT_TRUE(r.IsRectNull());
}

TEST(Geometry, left_and_top_belong_to_the_rectangle_right_and_bottom_do_not)
{
    const CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(r.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(r.PtInRect(CPoint(9, 10)));
    EXPECT_FALSE(r.PtInRect(CPoint(-1, 0)));
    EXPECT_FALSE(CRect(10, 10, 0, 0).PtInRect(CPoint(5, 5)));
}

TEST(Geometry, inflate_and_deflate)
{
    CRect r(10, 10, 20, 20);
    r.InflateRect(1, 2);
    EXPECT_TRUE(r == CRect(9, 8, 21, 22));
    r.DeflateRect(1, 2);
    EXPECT_TRUE(r == CRect(10, 10, 20, 20));
    r.InflateRect(1, 2, 3, 4);
    EXPECT_TRUE(r == CRect(9, 8, 23, 24));
    r.DeflateRect(1, 2, 3, 4);
    r.InflateRect(CSize(5, 5));
    r.DeflateRect(CSize(4, 4));
    EXPECT_TRUE(r == CRect(9, 9, 21, 21));
    const CRect by(1, 2, 3, 4);
    r.InflateRect(&by);
    EXPECT_TRUE(r == CRect(8, 7, 24, 25));
    r.DeflateRect(&by);
    EXPECT_TRUE(r == CRect(9, 9, 21, 21));
    r.InflateRect(static_cast<LPCRECT>(nullptr));
    EXPECT_TRUE(r == CRect(9, 9, 21, 21));
    r.InflateRect(&static_cast<const RECT&>(r)); // by its own values
    EXPECT_TRUE(r == CRect(0, 0, 42, 42));
}

TEST(Geometry, offset_and_move)
{
    CRect r(1, 2, 11, 22);
    r.OffsetRect(10, 20);
    EXPECT_TRUE(r == CRect(11, 22, 21, 42));
    r.OffsetRect(CPoint(-10, 0));
    r.OffsetRect(CSize(0, -20));
    EXPECT_TRUE(r == CRect(1, 2, 11, 22));
    r.MoveToX(0);
    r.MoveToY(100);
    EXPECT_TRUE(r == CRect(0, 100, 10, 120));
    r.MoveToXY(5, 6);
    EXPECT_TRUE(r == CRect(5, 6, 15, 26));
    r.MoveToXY(CPoint(0, 0));
    EXPECT_TRUE(r == CRect(0, 0, 10, 20));
}

TEST(Geometry, normalize_swaps_what_is_the_wrong_way_round)
{
    CRect r(10, 20, 1, 2);
    r.NormalizeRect();
    EXPECT_TRUE(r == CRect(1, 2, 10, 20));
    r.SwapLeftRight();
    EXPECT_TRUE(r == CRect(10, 2, 1, 20));
    CRect::SwapLeftRight(&r);
    EXPECT_TRUE(r == CRect(1, 2, 10, 20));
}

TEST(Geometry, intersections)
{
    CRect r;
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 6, 20, 20);
    EXPECT_TRUE(r.IntersectRect(a, b));
    EXPECT_TRUE(r == CRect(5, 6, 10, 10));
    EXPECT_FALSE(r.IntersectRect(a, CRect(10, 0, 20, 10))); // edges that touch share nothing
    EXPECT_TRUE(r.IsRectNull());
    EXPECT_FALSE(r.IntersectRect(a, CRect(5, 5, 5, 8)));
    EXPECT_FALSE(r.IntersectRect(nullptr, a));
    EXPECT_TRUE((a & b) == CRect(5, 6, 10, 10));
    r = a;
    r &= b;
    EXPECT_TRUE(r == CRect(5, 6, 10, 10));
}

TEST(Geometry, unions_ignore_empty_rectangles)
{
    CRect r;
    const CRect a(0, 0, 10, 10);
    EXPECT_TRUE(r.UnionRect(a, CRect(20, 20, 30, 30)));
    EXPECT_TRUE(r == CRect(0, 0, 30, 30));
    EXPECT_TRUE(r.UnionRect(a, CRect(20, 20, 20, 30)));
    EXPECT_TRUE(r == a);
    EXPECT_TRUE(r.UnionRect(CRect(), a));
    EXPECT_TRUE(r == a);
    EXPECT_FALSE(r.UnionRect(CRect(), CRect(5, 5, 5, 5)));
    EXPECT_TRUE(r.IsRectNull());
    EXPECT_TRUE((a | CRect(-1, -1, 2, 2)) == CRect(-1, -1, 10, 10));
    r = a;
    r |= CRect(0, 0, 5, 50);
    EXPECT_TRUE(r == CRect(0, 0, 10, 50));
}

TEST(Geometry, subtraction_cuts_only_a_whole_side)
{
    CRect r;
    const CRect a(10, 10, 100, 100);
    EXPECT_TRUE(r.SubtractRect(a, CRect(50, 50, 150, 150))); // a corner: nothing is cut
    EXPECT_TRUE(r == a);
    EXPECT_TRUE(r.SubtractRect(a, CRect(50, 10, 150, 150)));
    EXPECT_TRUE(r == CRect(10, 10, 50, 100));
    EXPECT_TRUE(r.SubtractRect(a, CRect(0, 0, 50, 100)));
    EXPECT_TRUE(r == CRect(50, 10, 100, 100));
    EXPECT_TRUE(r.SubtractRect(a, CRect(0, 0, 200, 50)));
    EXPECT_TRUE(r == CRect(10, 50, 100, 100));
    EXPECT_TRUE(r.SubtractRect(a, CRect(0, 50, 200, 200)));
    EXPECT_TRUE(r == CRect(10, 10, 100, 50));
    EXPECT_TRUE(r.SubtractRect(a, CRect(40, 0, 60, 200))); // a stripe through the middle
    EXPECT_TRUE(r == a);
    EXPECT_FALSE(r.SubtractRect(a, CRect(0, 0, 200, 200)));
    EXPECT_TRUE(r.IsRectNull());
    EXPECT_TRUE(r.SubtractRect(a, CRect()));
    EXPECT_TRUE(r == a);
}

TEST(Geometry, rectangle_operators)
{
    CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r + CPoint(1, 2) == CRect(1, 2, 11, 12));
    EXPECT_TRUE(r - CPoint(1, 2) == CRect(-1, -2, 9, 8));
    EXPECT_TRUE(r + CSize(1, 2) == CRect(1, 2, 11, 12));
    EXPECT_TRUE(r - CSize(1, 2) == CRect(-1, -2, 9, 8));
    const RECT by = {1, 1, 2, 2};
    EXPECT_TRUE(r + &by == CRect(-1, -1, 12, 12));
    EXPECT_TRUE(r - &by == CRect(1, 1, 8, 8));
    r += CPoint(5, 5);
    r -= CSize(1, 1);
    r += &by;
    r -= &by;
    EXPECT_TRUE(r == CRect(4, 4, 14, 14));
    EXPECT_TRUE(r != CRect(4, 4, 14, 15));
    EXPECT_TRUE(r.EqualRect(CRect(4, 4, 14, 14)));
    EXPECT_FALSE(r.EqualRect(nullptr));
    r.CopyRect(&by);
    EXPECT_TRUE(r == CRect(1, 1, 2, 2));
    r.SetRect(CPoint(0, 0), CPoint(3, 3));
    EXPECT_TRUE(r == CRect(0, 0, 3, 3));
}

TEST(Geometry, mul_div_rounds_to_nearest)
{
    EXPECT_TRUE(CRect(1, 2, 3, 5).MulDiv(3, 2) == CRect(2, 3, 5, 8));
    EXPECT_TRUE(CRect(-1, -2, 3, 5).MulDiv(3, 2) == CRect(-2, -3, 5, 8));
    EXPECT_TRUE(CRect(1, 1, 1, 1).MulDiv(1, 0) == CRect(-1, -1, -1, -1));
    EXPECT_TRUE(CRect(INT_MAX, 4, 4, 4).MulDiv(2, 1) == CRect(-1, 8, 8, 8));
}

TEST(Geometry, far_coordinates_wrap_and_do_not_overflow)
{
    CRect r(INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    EXPECT_EQ(r.Width(), -1);
    EXPECT_TRUE(r.CenterPoint() == CPoint(0, 0));
    r.OffsetRect(1, 1);
    EXPECT_TRUE(r == CRect(INT_MIN + 1, INT_MIN + 1, INT_MIN, INT_MIN));
    EXPECT_TRUE(-CPoint(INT_MIN, 0) == CPoint(INT_MIN, 0));
    EXPECT_TRUE(CPoint(INT_MAX, 0) + CSize(1, 0) == CPoint(INT_MIN, 0));
    EXPECT_TRUE(CPoint(INT_MIN, 0) - CPoint(1, 0) == CSize(INT_MAX, 0));
    EXPECT_TRUE(CRect(INT_MAX - 1, 0, INT_MAX, 2).CenterPoint() == CPoint(INT_MAX - 1, 1));
    r.DeflateRect(INT_MIN, INT_MIN);
    r.InflateRect(INT_MIN, INT_MAX);
}

TEST(Geometry, colours)
{
    const COLORREF colour = RGB(1, 2, 3);
    EXPECT_EQ(colour, 0x030201U);
    EXPECT_EQ(GetRValue(colour), 1);
    EXPECT_EQ(GetGValue(colour), 2);
    EXPECT_EQ(GetBValue(colour), 3);
}

TEST(Geometry, packing_macros)
{
    EXPECT_EQ(LOWORD(0x12345678), 0x5678);
    EXPECT_EQ(HIWORD(0x12345678), 0x1234);
    EXPECT_EQ(MAKELONG(1, 2), 0x20001);
    EXPECT_EQ(static_cast<short>(LOWORD(MAKELPARAM(-1, 5))), -1);
}
