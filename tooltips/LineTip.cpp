// The arithmetic of the one-line tip.
#include "LineTip.h"

#include "HeldInt.h"

namespace
{
constexpr int marginRight = 7;
constexpr int marginBottom = 2;

} // namespace

LineTipText LineTipText::split(const CString& text)
{
    LineTipText parts;
    const int mark = text.Find(L'<');
    if (mark < 0)
    {
        parts.left = text;
        return parts;
    }
    parts.left = text.Left(mark);
    parts.right = text.Mid(mark);
    parts.right.Remove(L'<');
    parts.right.Remove(L'>');
    return parts;
}

CSize LineTipLayout::sum(CSize leftSize, CSize rightSize)
{
    return CSize(heldInt(static_cast<long long>(leftSize.cx) + rightSize.cx),
                 heldInt(static_cast<long long>(leftSize.cy) + rightSize.cy));
}

LineTipLayout LineTipLayout::of(CPoint point, CSize leftSize, CSize total)
{
    const long long half = total.cx / 2;
    LineTipLayout layout;
    layout.bounds.SetRect(heldInt(point.x - half), point.y, heldInt(point.x + half + marginRight),
                          heldInt(static_cast<long long>(point.y) + leftSize.cy + marginBottom));
    layout.frame = CSize(heldInt(static_cast<long long>(layout.bounds.right) - layout.bounds.left),
                         heldInt(static_cast<long long>(layout.bounds.bottom) - layout.bounds.top));
    layout.left = CPoint(textLeft, textTop);
    layout.right = CPoint(heldInt(static_cast<long long>(leftSize.cx) + textLeft), textTop);
    return layout;
}
