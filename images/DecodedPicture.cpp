// Turns bytes into pictures by the platform's decoder, and pictures into files.
#include "DecodedPicture.h"

#include <limits>
#include <utility>
#include <vector>

#include "GlobalBlock.h"
#include "MetafileCheck.h"
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

/// `claimed` is the length that the platform is told; 0 means all of the stream.
ComOwner<IPicture> decode(const void* data, size_t count, LONG claimed)
{
    const auto* const bytes = static_cast<const unsigned char*>(data);
    if (!PictureData::isWhole(bytes, count))
    {
        return nullptr;
    }
    if (PictureData::lacksColorTable(bytes, count))
    {
        const std::vector<unsigned char> filled = PictureData::withColorTable(bytes, count);
        return decode(movableCopy(filled.data(), filled.size()), 0);
    }
    return decode(movableCopy(data, count), claimed);
}

/// A file's bytes, readable until the end of the object.
class MappedFile
{
public:
    explicit MappedFile(const CString& path)
        : m_file(openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING))
    {
        LARGE_INTEGER size = {};
        if (m_file == nullptr || !::GetFileSizeEx(m_file.get(), &size))
        {
            return;
        }
        m_exists = true;
        const KernelHandle mapping(::CreateFileMappingW(m_file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
        if (mapping != nullptr) // an empty file has none
        {
            m_bytes = ::MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, 0);
            m_size = static_cast<size_t>(size.QuadPart);
        }
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile()
    {
        if (m_bytes != nullptr)
        {
            ::UnmapViewOfFile(m_bytes);
        }
    }

    /// False for what is no local file.
    bool exists() const { return m_exists; }
    /// Null when there is nothing to read.
    const unsigned char* bytes() const { return static_cast<const unsigned char*>(m_bytes); }
    size_t size() const { return m_size; }

private:
    KernelHandle m_file;
    bool m_exists = false;
    void* m_bytes = nullptr;
    size_t m_size = 0;
};

/// The records that a metafile's picture would play; empty when they cannot be had.
std::vector<unsigned char> recordsOf(IPicture& picture, SHORT kind)
{
    OLE_HANDLE number = 0;
    if (FAILED(picture.get_Handle(&number)))
    {
        return {};
    }
    const auto handle = static_cast<LONG_PTR>(static_cast<LONG>(number));
    const auto read = [kind, handle](UINT size, unsigned char* bytes)
    {
        return kind == PICTYPE_ENHMETAFILE ? ::GetEnhMetaFileBits(reinterpret_cast<HENHMETAFILE>(handle), size, bytes)
                                           : ::GetMetaFileBitsEx(reinterpret_cast<HMETAFILE>(handle), size, bytes);
    };
    std::vector<unsigned char> records(read(0, nullptr));
    read(static_cast<UINT>(records.size()), records.data());
    return records;
}

/// Whether a picture that the platform fetched by itself may be drawn.
bool isSoundToPlay(IPicture& picture)
{
    SHORT kind = PICTYPE_NONE;
    if (FAILED(picture.get_Type(&kind)))
    {
        return false;
    }
    if (kind != PICTYPE_ENHMETAFILE && kind != PICTYPE_METAFILE)
    {
        return true;
    }
    const std::vector<unsigned char> records = recordsOf(picture, kind);
    return !records.empty() && MetafileCheck::isSound(records.data(), records.size());
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

DecodedPicture DecodedPicture::fromPath(const CString& path)
{
    {
        const MappedFile file(path);
        if (file.exists() && (file.bytes() == nullptr || !PictureData::isWhole(file.bytes(), file.size())))
        {
            return DecodedPicture();
        }
        if (PictureData::lacksColorTable(file.bytes(), file.size()))
        {
            return DecodedPicture(decode(file.bytes(), file.size(), 0));
        }
    }
    const SystemText text = systemText(path);
    void* picture = nullptr;
    if (text == nullptr || FAILED(::OleLoadPicturePath(text.get(), nullptr, 0, 0, IID_IPicture, &picture)))
    {
        return DecodedPicture();
    }
    ComOwner<IPicture> loaded(static_cast<IPicture*>(picture));
    return loaded != nullptr && isSoundToPlay(*loaded) ? DecodedPicture(std::move(loaded)) : DecodedPicture();
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
