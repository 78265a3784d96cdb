// Lifetime of the image: its block, its copies, its ghosts.
#include "oxa/images/KxGifImage.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace
{
constexpr std::size_t headerSize = sizeof(BITMAPINFOHEADER);

unsigned long roundedDepth(unsigned long bpp)
{
    if (bpp <= 1)
        return 1;
    if (bpp <= 4)
        return 4;
    return bpp <= 8 ? 8 : 24;
}

// Bytes per row, a multiple of 4.
std::uint32_t strideOf(std::uint64_t width, std::uint64_t bpp)
{
    return static_cast<std::uint32_t>((bpp * width + 31) / 32 * 4);
}

SharedBytes copyOfPlane(const SharedBytes& plane, std::size_t size)
{
    SharedBytes copy = SharedBytes::Allocate(size);
    if (copy)
        std::memcpy(copy.Get(), plane.Get(), std::min(size, plane.Size()));
    return copy;
}
} // namespace

CKxGifImage::CKxGifImage()
{
    Startup();
}

CKxGifImage::CKxGifImage(unsigned long width, unsigned long height, unsigned long bpp)
{
    Startup();
    Create(width, height, bpp);
}

CKxGifImage::CKxGifImage(const CKxGifImage& other) = default;

CKxGifImage& CKxGifImage::operator=(const CKxGifImage& other)
{
    Copy(other, true, true, true);
    return *this;
}

CKxGifImage::~CKxGifImage()
{
    Destroy();
}

void CKxGifImage::Startup()
{
    m_pDib.Reset();
    m_pSelection.Reset();
    m_pAlpha.Reset();
    m_Head = {};
    m_Info = {};
    m_Info.nTransIndex = -1;
    m_Info.bEnabled = true;
    SetXDPI(96);
    SetYDPI(96);
    m_nLoops = 0;
    m_nDisposal = 0;
    std::memset(m_comment, 0, sizeof m_comment);
}

void* CKxGifImage::Create(unsigned long w, unsigned long h, unsigned long bpp)
{
    return CreateIn(SharedBytes::Allocate, w, h, bpp);
}

// Header and palette are set, whatever the memory held.
void* CKxGifImage::CreateIn(SharedBytes (*allocate)(std::size_t), unsigned long w, unsigned long h, unsigned long bpp)
{
    if (!Destroy() || w == 0 || h == 0)
        return nullptr;
    bpp = roundedDepth(bpp);
    // A wrapped 32-bit product of width, height and depth, shifted right by 8, was never above the bound that it used to
    // be compared with; this limit is the one that holds.
    if (w > MaximumPixels || h > MaximumPixels / w)
        return nullptr;
    const std::uint32_t stride = strideOf(w, bpp);
    m_Head.biSize = headerSize;
    m_Head.biWidth = static_cast<LONG>(w);
    m_Head.biHeight = static_cast<LONG>(h);
    m_Head.biPlanes = 1;
    m_Head.biBitCount = static_cast<WORD>(bpp);
    m_Head.biCompression = 0;
    m_Head.biSizeImage = stride * static_cast<DWORD>(h);
    m_Head.biClrUsed = bpp == 24 ? 0 : 1U << bpp;
    m_Head.biClrImportant = 0;
    m_Info.nEffWidth = stride;
    m_pDib = allocate(static_cast<std::size_t>(GetSize()));
    PointAtPixels();
    if (!m_pDib)
        return nullptr;
    std::memcpy(m_pDib.Get(), &m_Head, headerSize);
    std::memset(m_pDib.Get() + headerSize, 0, GetPaletteSize());
    return m_pDib.Get();
}

bool CKxGifImage::Destroy()
{
    if (m_Info.pGhostOf)
        return false;
    m_pSelection.Reset();
    m_pAlpha.Reset();
    m_pDib.Reset();
    return true;
}

void CKxGifImage::Copy(const CKxGifImage& src, bool bImage, bool bSelection, bool bAlpha)
{
    if (this == &src)
        return;
    m_Info = src.m_Info; // also that src is a ghost, which then refuses what follows, as it does in src
    Create(src.GetWidth(), src.GetHeight(), src.GetBpp());
    PointAtPixels();
    if (bImage && m_pDib && src.m_pDib)
        std::memcpy(m_pDib.Get(), src.m_pDib.Get(), std::min(m_pDib.Size(), src.m_pDib.Size()));
    else
        SetPalette(src.GetPalette(), src.GetNumColors());
    const std::size_t plane = static_cast<std::size_t>(GetWidth()) * GetHeight();
    if (bSelection && src.m_pSelection)
        m_pSelection = copyOfPlane(src.m_pSelection, plane);
    if (bAlpha && src.m_pAlpha)
        m_pAlpha = copyOfPlane(src.m_pAlpha, plane);
}

void CKxGifImage::CopyInfo(const CKxGifImage& src)
{
    if (!m_pDib)
        m_Info = src.m_Info;
}

bool CKxGifImage::Transfer(CKxGifImage& from)
{
    if (!Destroy())
        return false;
    m_Head = from.m_Head;
    m_Info = from.m_Info;
    m_pDib = std::move(from.m_pDib);
    m_pSelection = std::move(from.m_pSelection);
    m_pAlpha = std::move(from.m_pAlpha);
    from.m_pDib.Reset();
    from.m_pSelection.Reset();
    from.m_pAlpha.Reset();
    from.m_Head = {};
    from.m_Info = {};
    return true;
}

void CKxGifImage::Ghost(CKxGifImage* from)
{
    if (!from)
        return;
    m_Head = from->m_Head;
    m_Info = from->m_Info;
    m_Info.pGhostOf = from;
    m_pDib = from->m_pDib;
    m_pSelection = from->m_pSelection;
    m_pAlpha = from->m_pAlpha;
}

void CKxGifImage::FreeMemory(void* memory)
{
    std::free(memory);
}

// Row length and first pixel follow from block and head alone, whatever record was copied here.
void CKxGifImage::PointAtPixels()
{
    m_Info.nEffWidth = strideOf(GetWidth(), m_Head.biBitCount);
    m_Info.pImage = m_pDib ? m_pDib + headerSize + GetPaletteSize() : nullptr;
}

unsigned char* CKxGifImage::GetBits(unsigned long row)
{
    if (!m_pDib || (row != 0 && row >= GetHeight()))
        return nullptr;
    return Row(static_cast<long>(row));
}

unsigned char* CKxGifImage::Row(long y) const
{
    return m_Info.pImage + static_cast<std::size_t>(y) * m_Info.nEffWidth;
}

long CKxGifImage::GetSize() const
{
    return static_cast<long>(m_Head.biSize + m_Head.biSizeImage + m_Head.biClrUsed * 4);
}

void CKxGifImage::Clear(unsigned char value)
{
    if (!m_pDib)
        return;
    if (m_Head.biBitCount == 1 && value != 0)
        value = 255;
    else if (m_Head.biBitCount == 4)
        value = static_cast<unsigned char>((value & 15) * 17);
    std::memset(m_Info.pImage, value, m_Head.biSizeImage);
}
