// Turns bytes into pictures by the platform's decoder, and pictures into files.
#include "DecodedPicture.h"

#include <limits>
#include <utility>

#include "GlobalBlock.h"
#include "PictureData.h"

namespace
{
struct FreeText
{
    void operator()(BSTR text) const { ::SysFreeString(text); }
};
using SystemText = std::unique_ptr<OLECHAR, FreeText>;

SystemText systemText(const CString& text)
{
    return SystemText(::SysAllocString(text));
}

/// A stream that owns the block, or null.
ComOwner<IStream> streamOver(OwnedBlock block)
{
    IStream* stream = nullptr;
    if (block == nullptr || FAILED(::CreateStreamOnHGlobal(block.get(), TRUE, &stream)))
    {
        return nullptr;
    }
    static_cast<void>(block.release());
    return ComOwner<IStream>(stream);
}

ComOwner<IPicture> decode(OwnedBlock block, LONG claimed)
{
    const ComOwner<IStream> stream = streamOver(std::move(block));
    void* picture = nullptr;
    if (stream == nullptr || FAILED(::OleLoadPicture(stream.get(), claimed, FALSE, IID_IPicture, &picture)))
    {
        return nullptr;
    }
    return ComOwner<IPicture>(static_cast<IPicture*>(picture));
}

ComOwner<IPicture> decode(const void* data, size_t count, LONG claimed)
{
    return PictureData::isWhole(static_cast<const unsigned char*>(data), count)
               ? decode(movableCopy(data, count), claimed)
               : nullptr;
}

/// Whether a file may be given to the decoder. What is no local file is left to the platform.
bool fileIsWhole(const CString& path)
{
    const KernelHandle file = openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    LARGE_INTEGER size = {};
    if (file == nullptr || !::GetFileSizeEx(file.get(), &size))
    {
        return true;
    }
    const KernelHandle mapping(::CreateFileMappingW(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
    if (mapping == nullptr)
    {
        return false; // an empty file has none
    }
    const void* const view = ::MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0);
    if (view == nullptr)
    {
        return false;
    }
    const bool whole =
        PictureData::isWhole(static_cast<const unsigned char*>(view), static_cast<size_t>(size.QuadPart));
    ::UnmapViewOfFile(view);
    return whole;
}

bool writeFile(const CString& path, const void* data, DWORD count)
{
    const KernelHandle file = openFile(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
    DWORD written = 0;
    return file != nullptr && ::WriteFile(file.get(), data, count, &written, nullptr) && written == count;
}

/// Writes what the picture itself puts out, for platforms that cannot save pictures by name.
bool saveStream(IPicture& picture, const CString& path)
{
    IStream* made = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &made)))
    {
        return false;
    }
    const ComOwner<IStream> stream(made);
    LONG count = 0;
    HGLOBAL block = nullptr;
    STATSTG state = {};
    if (FAILED(picture.SaveAsFile(stream.get(), TRUE, &count)) || FAILED(stream->Stat(&state, STATFLAG_NONAME)) ||
        FAILED(::GetHGlobalFromStream(stream.get(), &block)))
    {
        return false;
    }
    const LockedBlock locked(block);
    return locked.bytes() != nullptr && state.cbSize.QuadPart > 0 && state.cbSize.HighPart == 0 &&
           writeFile(path, locked.bytes(), state.cbSize.LowPart);
}
} // namespace

DecodedPicture::DecodedPicture(ComOwner<IPicture> picture) : m_picture(std::move(picture))
{
    if (m_picture != nullptr && (FAILED(m_picture->get_Width(&m_width)) || FAILED(m_picture->get_Height(&m_height))))
    {
        m_picture = nullptr;
    }
}

DecodedPicture DecodedPicture::fromResource(unsigned int id, const CString& type)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC found = module == nullptr ? nullptr : ::FindResourceW(module, MAKEINTRESOURCE(id), type);
    if (found == nullptr)
    {
        return DecodedPicture();
    }
    const HGLOBAL loaded = ::LoadResource(module, found);
    const void* const data = loaded == nullptr ? nullptr : ::LockResource(loaded);
    return data == nullptr ? DecodedPicture() : DecodedPicture(decode(data, ::SizeofResource(module, found), 0));
}

DecodedPicture DecodedPicture::fromMemory(const void* data, size_t count)
{
    if (data == nullptr || count == 0 || count > static_cast<size_t>(std::numeric_limits<LONG>::max()))
    {
        return DecodedPicture();
    }
    return DecodedPicture(decode(data, count, static_cast<LONG>(count)));
}

DecodedPicture DecodedPicture::fromGif(HGLOBAL block, size_t count)
{
    OwnedBlock owned(block);
    if (count > static_cast<size_t>(std::numeric_limits<LONG>::max()))
    {
        return DecodedPicture();
    }
    return DecodedPicture(decode(std::move(owned), static_cast<LONG>(count)));
}

DecodedPicture DecodedPicture::fromPath(const CString& path)
{
    const SystemText text = systemText(path);
    void* picture = nullptr;
    if (text == nullptr || !fileIsWhole(path) ||
        FAILED(::OleLoadPicturePath(text.get(), nullptr, 0, 0, IID_IPicture, &picture)))
    {
        return DecodedPicture();
    }
    return DecodedPicture(ComOwner<IPicture>(static_cast<IPicture*>(picture)));
}

SIZE DecodedPicture::pixels(HDC dc) const
{
    constexpr int unitsPerInch = 2540; // hundredths of a millimetre
    return {::MulDiv(m_width, ::GetDeviceCaps(dc, LOGPIXELSX), unitsPerInch),
            ::MulDiv(m_height, ::GetDeviceCaps(dc, LOGPIXELSY), unitsPerInch)};
}

bool DecodedPicture::render(HDC target, int x, int y, int w, int h, LPCRECT bounds) const
{
    // The picture's own y axis points up.
    return m_picture != nullptr &&
           SUCCEEDED(m_picture->Render(target, x, y, w, h, 0, m_height, m_width, -m_height, bounds));
}

bool DecodedPicture::save(const CString& path) const
{
    void* asDispatch = nullptr;
    if (m_picture == nullptr || FAILED(m_picture->QueryInterface(IID_IDispatch, &asDispatch)))
    {
        return false;
    }
    const ComOwner<IDispatch> dispatch(static_cast<IDispatch*>(asDispatch));
    const SystemText text = systemText(path);
    return (text != nullptr && SUCCEEDED(::OleSavePictureFile(dispatch.get(), text.get()))) ||
           saveStream(*m_picture, path);
}
