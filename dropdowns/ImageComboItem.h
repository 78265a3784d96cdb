// What an item of the combo box with images draws: colours, focus mark, image and text, and where.
#pragma once

#include <afx.h>

#include <optional>
#include <atltypes.h>
#include "oxa/Export.h"

enum class ComboImageLook
{
    Selected,    ///< blended, as ILD_SELECTED
    Transparent, ///< plain, as ILD_TRANSPARENT
    Grey         ///< as an icon in the disabled look
};

/// What one item draws, in the order of the members. Colours are system colours.
struct ComboItemPicture
{
    struct Image
    {
        int index;
        ComboImageLook look;
        CPoint place;
    };

    std::optional<int> textColor; ///< none: those of the context stay
    std::optional<int> background;
    int focusMarks = 0; ///< how often the item's rectangle gets its focus mark, which toggles
    std::optional<Image> image;
    std::optional<CRect> text; ///< filled with the background, then the text in it, centred upright
    bool hasText = false;      ///< false: the text is empty
};

/// An item of the combo box with images, as the platform asks for it.
struct OXA_API ImageComboItem
{
    enum : int
    {
        noItem = -1,
        indentWidth = 10, ///< pixels of one step
        imageGap = 4      ///< between image and text
    };
    /// The numbers of an item's images in the image list.
    struct Images
    {
        int normal;
        int selected;
        int overlay;
    };

    CRect rect;
    int id;
    unsigned int state; ///< ODS_
    bool enabled;       ///< of the window
    bool visibility;    ///< false: nothing is drawn in the field of the combo box
    Images images;
    int indent;
    bool hasImageList;
    int imageWidth; ///< of the image with ImageIndex
    int textWidth;

    /// Which image is shown, of an empty field too.
    int ImageIndex() const;

    /// None: nothing is drawn.
    std::optional<ComboItemPicture> Picture() const;

private:
    CRect Inner() const;
    ComboItemPicture Colored() const;
    std::optional<ComboItemPicture::Image> ImageAt(CPoint place) const;
    bool Has(unsigned int bit) const { return (state & bit) != 0; }
};
