// CKxStaticPictureEx2: loads pictures of one fixed size for others to show.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// Loads a picture into the caller's `CBitmap`, always 235 by 182 pixels, in the desktop's colours. It is no window and
/// keeps nothing. The functions return 1, or 0 on failure.
class OXA_API CKxStaticPictureEx2
{
public:
    /// The path if there is one, else the resource; neither a path nor an id loads nothing.
    CKxStaticPictureEx2(CBitmap& bitmap, unsigned int id, CString path, CString type);

    /// A resource of the current resource module, as CKxPictureEx::LoadBitmap.
    int SetBitmapID(unsigned int id, CBitmap& bitmap, CString type);
    /// The same from a full path or a URL.
    int SetBitmapPath(CString path, CBitmap& bitmap);
};
