// A picture that the platform decoded: where it came from, its size, drawing it, saving it.
#pragma once

#include <afxwin.h>

#include <memory>

#include <ocidl.h>
#include <olectl.h>

struct ReleaseInterface
{
    void operator()(IUnknown* object) const { object->Release(); }
};
/// A reference to a COM object, given back at the end.
template <class Interface> using ComOwner = std::unique_ptr<Interface, ReleaseInterface>;

/// A decoded picture, or nothing when it could not be decoded.
class DecodedPicture
{
public:
    explicit DecodedPicture(ComOwner<IPicture> picture = nullptr);

    static DecodedPicture fromResource(unsigned int id, const CString& type);
    /// `count` bytes that are copied.
    static DecodedPicture fromMemory(const void* data, size_t count);
    /// A path or URL.
    static DecodedPicture fromPath(const CString& path);

    bool exists() const { return m_picture != nullptr; }
    /// The size on a device, by its pixels per inch.
    SIZE pixels(HDC dc) const;
    /// Stretches the picture into a rectangle, upright; false when the platform does not.
    bool render(HDC target, int x, int y, int w, int h, LPCRECT bounds) const;
    /// Writes the picture in its own format; false when the file cannot be written.
    bool save(const CString& path) const;

private:
    ComOwner<IPicture> m_picture;
    OLE_XSIZE_HIMETRIC m_width = 0;
    OLE_YSIZE_HIMETRIC m_height = 0;
};
