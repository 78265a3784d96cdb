// CKxStaticPictureEx: a static control that owns and shows a picture.
#pragma once

#include <afxwin.h>

#include <cstddef>

#include "oxa/Export.h"

/// Loads pictures by CKxPictureEx at the size of its client area, and paints them there. A new picture shows with the next
/// paint: call Invalidate. Without a picture nothing is painted. It sends no messages.
///
/// The setters delete the old picture first, also when the new one cannot be loaded, and return 1, or 0 on failure.
/// Before there is a window the client area is empty, and nothing can be loaded: the constructors with arguments are for
/// objects that are given a picture of the client size later on.
class OXA_API CKxStaticPictureEx : public CStatic
{
public:
    CKxStaticPictureEx();
    /// Calls SetBitmapID.
    CKxStaticPictureEx(unsigned int id, CString type);
    /// Calls SetBitmapPath.
    explicit CKxStaticPictureEx(CString path);
    ~CKxStaticPictureEx() override;

    /// A resource of the current resource module; nothing is painted behind transparent pixels.
    int SetBitmapID(unsigned int id, CString type);
    /// A full path or a URL; nothing is painted behind transparent pixels.
    int SetBitmapPath(CString path);
    /// The same on the window colour.
    int SetBitmapPathEx(CString path);
    /// The bytes of a picture file, not owned, on the window colour.
    int SetPicture(unsigned char* data, size_t size);

protected:
    void OnPaint();

    DECLARE_MESSAGE_MAP()

    CBitmap m_Bitmap;
};
