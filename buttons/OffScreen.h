// A picture in memory that is drawn first and copied then.
#pragma once

#include <afxwin.h>

/// A memory device context with a bitmap of its own, as deep as a device, or of one bit a pixel. False when there is no
/// room for it, or nothing to draw on.
class OffScreen
{
public:
    enum Depth
    {
        asDevice,
        oneBit
    };

    OffScreen(CDC& device, CSize size, Depth depth = asDevice) : m_size(size)
    {
        if (size.cx <= 0 || size.cy <= 0 || !dc.CreateCompatibleDC(&device))
            return;
        // What is compatible with a fresh memory context has one bit a pixel.
        if (m_bitmap.CreateCompatibleBitmap(depth == oneBit ? &dc : &device, size.cx, size.cy))
            m_before = ::SelectObject(dc.m_hDC, m_bitmap.m_hObject);
    }
    ~OffScreen()
    {
        if (m_before != nullptr)
            ::SelectObject(dc.m_hDC, m_before);
    }
    OffScreen(const OffScreen&) = delete;
    OffScreen& operator=(const OffScreen&) = delete;

    CDC dc;
    explicit operator bool() const { return m_before != nullptr; }
    void CopyTo(CDC& target) { target.BitBlt(0, 0, m_size.cx, m_size.cy, &dc, 0, 0, SRCCOPY); }

private:
    CBitmap m_bitmap;
    CSize m_size;
    HGDIOBJ m_before = nullptr;
};
