// The bitmap button as numbers: where image, caption, tab and focus mark stand, and what one paint draws.
#include "oxa/buttons/BitmapButtonLayout.h"

#include <algorithm>

namespace
{
int halfOfRest(int extent, int size)
{
    return kx::sub(extent, size) >> 1; // a thing that is larger stands out on both sides
}

bool has(unsigned int state, unsigned int bit)
{
    return (state & bit) != 0;
}
} // namespace

CPoint BitmapButtonLayout::Centre(CPoint position, CSize thing, CSize client)
{
    return {position.x == centred ? halfOfRest(client.cx, thing.cx) : position.x,
            position.y == centred ? halfOfRest(client.cy, thing.cy) : position.y};
}

CPoint BitmapButtonLayout::ImageAt(const CRect& face, CSize client, bool hasCaption) const
{
    CPoint beside(centred, centred);
    if (hasCaption)
        beside.x = kx::add(face.left, imageOffset);
    return Centre(automatic ? beside : imagePosition, imageSize, client);
}

CPoint BitmapButtonLayout::CaptionAt(CSize client, CSize caption) const
{
    CPoint position = textPosition;
    if (automatic && hasImage)
    {
        const int used = kx::add(imageSize.cx, kx::add(textOffset, imageOffset));
        const int rest = std::max<int>(0, kx::sub(kx::sub(client.cx, used), caption.cx));
        position = CPoint(kx::add(used, rest / 2), centred);
    }
    else if (automatic)
    {
        position = CPoint(centred, centred);
    }
    const int up = position.y == centred ? 1 : 0;
    return Centre(position, caption, client) - CSize(0, up);
}

std::array<BitmapButtonPicture::Line, BitmapButtonPicture::tabLines> BitmapButtonLayout::Tab(CPoint corner)
{
    std::array<BitmapButtonPicture::Line, BitmapButtonPicture::tabLines> lines;
    for (int i = 0; i < BitmapButtonPicture::tabLines; ++i)
        lines[static_cast<std::size_t>(i)] = {corner + CSize(0, i), kx::add(corner.x, 7 - i)};
    return lines;
}

CRect BitmapButtonLayout::Focus(const CRect& item)
{
    const int margin = std::min(std::min(item.Width(), item.Height()) >> 2, 3);
    CRect focus = item;
    focus.DeflateRect(margin, margin);
    return focus;
}

// Drawing a focus rectangle toggles it, so it is drawn when the focus came or went, and on the fresh face of a focused
// button.
bool BitmapButtonLayout::TogglesFocus(unsigned int action, unsigned int state, unsigned int lastState)
{
    if (has(state, ODS_DISABLED))
        return false;
    const bool unchanged = has(state, ODS_FOCUS) == has(lastState, ODS_FOCUS);
    return !unchanged || (action != ODA_FOCUS && has(state, ODS_FOCUS));
}

BitmapButtonPicture BitmapButtonLayout::Picture(const Request& request) const
{
    BitmapButtonPicture picture;
    if (TogglesFocus(request.action, request.state, request.lastState))
        picture.focus = Focus(request.item);
    if (request.action == ODA_FOCUS)
        return picture;
    picture.drawn = true;
    picture.disabled = has(request.state, ODS_DISABLED);
    picture.pushed = has(request.state, ODS_SELECTED);
    picture.face = request.item;
    if (isDefault)
    {
        picture.blackFrame = request.item;
        picture.face.DeflateRect(1, 1);
    }
    const CSize shift(picture.pushed ? 1 : 0, picture.pushed ? 1 : 0);
    if (hasTab)
        picture.tab = Tab(CPoint(picture.face.left, picture.face.top) + shift + CSize(1, 1));
    if (hasImage)
        picture.image = ImageAt(picture.face, request.client, request.hasCaption) + shift;
    if (request.hasCaption)
        picture.caption = CaptionAt(request.client, request.captionSize) + shift;
    return picture;
}
