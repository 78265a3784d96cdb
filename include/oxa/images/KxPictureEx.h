// CKxPictureEx: loads picture files into bitmaps of a given size.
#pragma once

#include <afxwin.h>

#include <cstddef>

#include "oxa/Export.h"

/// Loads whatever the platform's `IPicture` decodes (bitmaps, GIF, JPEG, icons, metafiles, ...), stretched to `w` by `h`
/// pixels; proportions are not kept. All functions return 1, or 0 on failure, without message or exception. The bitmap
/// fits `dc`, belongs to the caller, and replaces (and deletes) one that the `CBitmap` held.
///
/// Damaged bitmap and icon files, whose headers point beyond their end, are refused. So are metafiles with a record that is
/// damaged, of an unknown kind, or draws very much further or thicker than the picture is large: they can end or stop the
/// platform's player.
class OXA_API CKxPictureEx
{
public:
    /// A resource of the current resource module. Nothing is painted behind transparent pixels. On failure `bitmap` holds
    /// what it held, or nothing when drawing failed.
    /// @param type the type of the resource, for instance L"BINARY"
    static int LoadBitmap(unsigned int id, HDC dc, int w, int h, HBITMAP& bitmap, CString type);
    static int LoadBitmap(unsigned int id, HDC dc, int w, int h, CBitmap& bitmap, CString type);
    /// The same from a full path or a URL.
    static int LoadBitmap(CString path, HDC dc, int w, int h, HBITMAP& bitmap);
    static int LoadBitmap(CString path, HDC dc, int w, int h, CBitmap& bitmap);

    /// The same with a colour behind transparent pixels. When only drawing fails, the filled bitmap stays in `bitmap`.
    static int LoadBitmapPath(CString path, HDC dc, int w, int h, CBitmap& bitmap, COLORREF background);
    /// From the `size` bytes of a picture file, not owned; 0 for null or no bytes.
    static int LoadPicture(unsigned char* data, size_t size, HDC dc, int w, int h, CBitmap& bitmap,
                           COLORREF background);

    /// Writes the picture of resource `id` of type "BINARY" to a file, in its own format.
    static int SaveBitmap(unsigned int id, const CString& path);
};
