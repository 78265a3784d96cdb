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
    static DecodedPicture fromResource(unsigned int id, const CString& type);
    /// `count` bytes that are copied.
    static DecodedPicture fromMemory(const void* data, size_t count);
    /// A path or URL.
    static DecodedPicture fromPath(const CString& path);

    bool exists() const { return m_picture != nullptr; }
    /// Stretches the picture into (0, 0, w, h), upright; false when the platform does not.
    bool render(HDC target, int w, int h, LPCRECT bounds) const;
    /// Writes the picture in its own format; false when the file cannot be written.
    bool save(const CString& path) const;

private:
    explicit DecodedPicture(ComOwner<IPicture> picture = nullptr);

    ComOwner<IPicture> m_picture;
    OLE_XSIZE_HIMETRIC m_width = 0;
    OLE_YSIZE_HIMETRIC m_height = 0;
};
