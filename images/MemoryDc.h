// A memory device context with a bitmap in it, and the owners of bitmap and brush handles.
#pragma once

#include <afxwin.h>

#include <memory>
#include <type_traits>

struct DeleteGdiObject
{
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using OwnedBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteGdiObject>;

/// Holds a bitmap for drawing for its lifetime, then puts the old one back and deletes the context. The bitmap must
/// outlive it, and be in no other context: one that cannot be selected leaves the object not ready.
class MemoryDc
{
public:
    MemoryDc(HDC like, HBITMAP bitmap)
        : dc(::CreateCompatibleDC(like)), previous(bitmap == nullptr ? nullptr : ::SelectObject(dc, bitmap))
    {
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc()
    {
        if (previous != nullptr)
        {
            ::SelectObject(dc, previous);
        }
        ::DeleteDC(dc);
    }

    HDC handle() const { return dc; }
    bool ready() const { return previous != nullptr; }

private:
    HDC dc;
    HGDIOBJ previous;
};
