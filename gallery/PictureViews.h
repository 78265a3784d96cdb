// Two small controls: a picture of the image class, and a palette as a grid of colours.
#pragma once
#include <afxwin.h>

class CKxGifImage;

/// The largest rectangle of the proportions of `size` in the middle of `room`; a picture that fits is not enlarged more
/// than to twice its size.
CRect fitInto(const CRect& room, CSize size);

/// A static control that shows an image, stretched to its client area. The image is not owned.
class CGifView : public CStatic
{
public:
    /// Null shows nothing. To be called whenever the image is another one or has changed.
    void show(CKxGifImage* image);

protected:
    DECLARE_MESSAGE_MAP()
    void OnPaint();

private:
    CKxGifImage* m_image = nullptr;
};

/// A static control that shows the palette of an image: sixteen colours a row. The transparent one has a dot.
class CPaletteGrid : public CStatic
{
public:
    void show(const CKxGifImage* image);

protected:
    DECLARE_MESSAGE_MAP()
    void OnPaint();

private:
    CRect cell(const CRect& client, unsigned long index) const;

    RGBQUAD m_colors[256] = {};
    unsigned long m_count = 0;
    long m_transparent = -1;
};
