// What an item of the combo box with images draws: colours, focus mark, image and text, and where.
#include "ImageComboItem.h"

CRect ImageComboItem::Inner() const
{
    CRect inner = rect;
    inner.DeflateRect(1, 1);
    inner.left = kx::wrap(static_cast<long long>(indent) * indentWidth + inner.left);
    return inner;
}

ComboItemPicture ImageComboItem::Colored() const
{
    ComboItemPicture picture;
    if (!enabled)
    {
        picture.textColor = COLOR_GRAYTEXT;
        picture.background = COLOR_BTNFACE;
    }
    else if (Has(ODS_SELECTED))
    {
        picture.textColor = COLOR_HIGHLIGHTTEXT;
        picture.background = COLOR_HIGHLIGHT;
    }
    return picture;
}

int ImageComboItem::ImageIndex() const
{
    if (!enabled)
        return images.overlay;
    return Has(ODS_FOCUS) ? images.selected : images.normal;
}

std::optional<ComboItemPicture::Image> ImageComboItem::ImageAt(CPoint place) const
{
    if (enabled && id == noItem)
        return std::nullopt;
    const ComboImageLook lit = Has(ODS_FOCUS) ? ComboImageLook::Selected : ComboImageLook::Transparent;
    return ComboItemPicture::Image{ImageIndex(), enabled ? lit : ComboImageLook::Grey, place};
}

std::optional<ComboItemPicture> ImageComboItem::Picture() const
{
    const bool inField = Has(ODS_COMBOBOXEDIT);
    if (!visibility && inField)
        return std::nullopt;
    ComboItemPicture picture = Colored();
    if (id == noItem && inField)
        ++picture.focusMarks;
    if (!hasImageList)
        return picture;
    // The second mark takes the first one off in a focused field without item: kept on purpose.
    if (enabled && id == noItem && Has(ODS_FOCUS))
        ++picture.focusMarks;
    CRect room = Inner();
    picture.image = ImageAt(CPoint(room.left, room.top));
    room.left = kx::add(room.left, kx::add(imageWidth, imageGap));
    room.right = kx::add(room.left, textWidth);
    picture.text = room;
    picture.hasText = id != noItem;
    return picture;
}
