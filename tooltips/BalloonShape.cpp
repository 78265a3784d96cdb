// The arithmetic of the balloon's shape and place.
#include "BalloonShape.h"

#include <algorithm>

#include "HeldInt.h"

namespace
{
// Margins of the body and of the text, in pixels.
constexpr int bodyMargin = 10;
constexpr int textLeft = 20;
constexpr int textTop = 5;
constexpr int textRight = 10;
constexpr int textBottom = 5;

// The two points where the tail enters the body, counted from its tip.
constexpr int tailFlat = 20;
constexpr int tailSteep = 12;

constexpr unsigned int drawCentred = 0x01;    // DT_CENTER
constexpr unsigned int drawMiddle = 0x04;     // DT_VCENTER
constexpr unsigned int drawWrapped = 0x10;    // DT_WORDBREAK
constexpr unsigned int drawSingleLine = 0x20; // DT_SINGLELINE

int shifted(int value, int by)
{
    return heldInt(static_cast<long long>(value) + by);
}
} // namespace

BalloonShape BalloonShape::of(const CRect& client, bool leftOriented)
{
    BalloonShape shape;
    shape.text.SetRect(shifted(client.left, textLeft), shifted(client.top, textTop), shifted(client.right, -textRight),
                       shifted(client.bottom, -textBottom));
    shape.body.SetRect(shifted(client.left, bodyMargin), client.top, client.right, shifted(client.bottom, -bodyMargin));
    shape.start.SetRect(shifted(client.left, bodyMargin), client.top, client.right, client.bottom);

    const int tip = leftOriented ? client.left : client.right;
    const int inward = leftOriented ? 1 : -1;
    shape.tail[0] = CPoint(tip, client.bottom);
    shape.tail[1] = CPoint(shifted(tip, inward * tailFlat), shifted(client.bottom, -tailSteep));
    shape.tail[2] = CPoint(shifted(tip, inward * tailSteep), shifted(client.bottom, -tailFlat));
    return shape;
}

CPoint BalloonShape::place(CPoint tip, CSize window, CSize screen, bool leftOriented)
{
    const long long x = std::max<long long>(tip.x, 0);
    const long long y = std::max<long long>(tip.y, 0);
    const long long width = window.cx;
    const long long height = window.cy;

    // Kept on purpose: a tip beyond the left or the upper edge is not pushed back.
    long long left = leftOriented ? x : x - width;
    long long top = y - height;
    if (y > screen.cy)
        top = screen.cy - height;
    if (left + width > screen.cx)
        left = screen.cx - width;
    return CPoint(heldInt(left), heldInt(top));
}

unsigned int BalloonShape::textFlags(int textWidth, int roomWidth)
{
    if (textWidth >= roomWidth)
        return drawCentred | drawWrapped;
    return drawCentred | drawMiddle | drawSingleLine;
}
