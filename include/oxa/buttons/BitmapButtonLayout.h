// The bitmap button as numbers: where image, caption, tab and focus mark stand, and what one paint draws.
#pragma once

#include <afx.h>

#include <array>
#include <optional>
#include <atltypes.h>
#include "oxa/Export.h"

/// What one paint of a bitmap button draws, in the order of the members. Client coordinates.
struct BitmapButtonPicture
{
    /// A horizontal line of the corner tab, from `from` up to, and without, x `end`.
    struct Line
    {
        CPoint from;
        int end;
    };
    enum : int
    {
        tabLines = 8
    };

    bool drawn = false;                            ///< false: only the focus mark
    std::optional<CRect> blackFrame;               ///< the mark of a default button
    CRect face;                                    ///< the push button
    bool pushed = false;                           ///< the look of face
    std::optional<std::array<Line, tabLines>> tab; ///< in the tab colour
    bool disabled = false;                         ///< image and caption in the disabled look
    std::optional<CPoint> image;                   ///< the icon, or the bitmap, or its disabled form
    std::optional<CPoint> caption;                 ///< with an ampersand for the mnemonic
    std::optional<CRect> focus;                    ///< toggled
};

/// What a bitmap button is set to, and the rules by which it is painted.
struct OXA_API BitmapButtonLayout
{
    enum : int
    {
        centred = -1 ///< as a coordinate of a position
    };

    bool automatic = true; ///< image and caption are placed by the offsets, not by the positions
    CPoint imagePosition;
    CPoint textPosition;
    int imageOffset = 4; ///< left margin of the image
    int textOffset = 8;  ///< gap between image and caption
    CSize imageSize;
    bool hasImage = false;
    bool hasTab = false;
    bool isDefault = false;

    /// What the platform asks to be painted.
    struct Request
    {
        CRect item;
        CSize client;
        unsigned int action; ///< ODA_
        unsigned int state;  ///< ODS_
        unsigned int lastState;
        bool hasCaption;
        CSize captionSize;
    };
    BitmapButtonPicture Picture(const Request& request) const;

    /// The position with each centred coordinate computed for a thing of the given size.
    static CPoint Centre(CPoint position, CSize thing, CSize client);
    CPoint ImageAt(const CRect& face, CSize client, bool hasCaption) const;
    CPoint CaptionAt(CSize client, CSize caption) const;
    static std::array<BitmapButtonPicture::Line, BitmapButtonPicture::tabLines> Tab(CPoint corner);
    static CRect Focus(const CRect& item);
    static bool TogglesFocus(unsigned int action, unsigned int state, unsigned int lastState);
};
