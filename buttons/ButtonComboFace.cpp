// The face of the button combo as numbers: its two parts, what the mouse makes of them, what one paint draws.
#include "oxa/buttons/ButtonComboFace.h"

namespace
{
ButtonComboFrame raised(const CRect& rect)
{
    return {rect, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW};
}

ButtonComboFrame sunken(CRect rect)
{
    rect.InflateRect(0, 0, 1, 1);
    return {rect, COLOR_BTNSHADOW, COLOR_BTNFACE};
}
} // namespace

CRect ButtonComboFace::Strip(const CRect& client)
{
    return {client.left, client.top, kx::add(client.left, stripWidth), kx::sub(client.bottom, 1)};
}

CRect ButtonComboFace::Body(const CRect& client)
{
    return {kx::add(client.left, stripWidth), client.top, client.right, kx::sub(client.bottom, 1)};
}

CRect ButtonComboFace::MoveTest(const CRect& client)
{
    return {client.left, client.top, kx::sub(client.right, stripWidth), client.bottom};
}

void ButtonComboFace::Press(const CRect& client, CPoint point)
{
    const bool onBody = Body(client).PtInRect(point) != FALSE;
    arrowPressed = !onBody && Strip(client).PtInRect(point) != FALSE;
    if (!arrowPressed) // on the strip the body stays as it is
        bodyPressed = onBody;
}

bool ButtonComboFace::Move(const CRect& client, CPoint point)
{
    const bool outside = MoveTest(client).PtInRect(point) == FALSE;
    const bool changed = outside != offBody;
    offBody = outside;
    return changed;
}

void ButtonComboFace::Select()
{
    bodyPressed = false;
    arrowPressed = false;
}

ButtonComboPicture ButtonComboFace::Picture(const CRect& client, bool enabled) const
{
    ButtonComboPicture picture{raised(client), {}, Body(client), {}, {}, !enabled};
    picture.item.DeflateRect(1, 1);
    if (isStatic)
        return picture;
    if (bodyPressed && !offBody)
    {
        picture.bodyFrame = sunken(Body(client));
        picture.item.OffsetRect(1, 1);
    }
    else
    {
        picture.bodyFrame = raised(Body(client));
    }
    picture.arrow = Strip(client);
    picture.stripFrame = arrowPressed ? sunken(Strip(client)) : raised(Strip(client));
    if (arrowPressed)
        picture.arrow->OffsetRect(1, 1);
    return picture;
}

std::array<CPoint, 3> ButtonComboFace::Arrow(const CRect& rect)
{
    const CPoint middle = CPoint(rect.left, rect.top) + CSize(rect.Width() / 2, rect.Height() / 2);
    return {middle + CSize(-2, -1), middle + CSize(2, -1), middle + CSize(0, 1)};
}

bool ButtonComboFace::Tells(long item, int elementNumber)
{
    return item <= elementNumber;
}
