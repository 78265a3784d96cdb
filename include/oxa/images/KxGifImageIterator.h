// Walks the rows and bytes of a CKxGifImage.
#pragma once

#include <cstddef>
#include <cstdint>
#include "oxa/Export.h"

class CKxGifImage;

/// A position in an image: a byte column `x` in a row `y`, row 0 being the bottom of the picture.
///
/// The image is not owned and must outlive the iterator. `Create`, `Destroy`, `Copy` and `Transfer` on the image make the
/// row pointer stale. No operation reads or writes outside the pixels of the image: a byte that is not there reads as 0,
/// and a write to it is ignored.
class OXA_API CKxGifImageIterator
{
public:
    CKxGifImageIterator() = default;
    /// At row 0 of `image`, which may be null.
    explicit CKxGifImageIterator(CKxGifImage* image);

    operator CKxGifImage*() { return m_image; }
    /// Whether (x, y) is inside the image; x counts as a pixel here.
    int ItOK() const;

    /// To byte 0 of the bottom row.
    void Reset();
    /// To byte 0 of the top row.
    void Upset();
    /// One row up: 1, or 0 at the top, which leaves the row pointer.
    int NextRow();
    /// One row down: 1, or 0 at the bottom, which leaves the row pointer.
    int PrevRow();

    int GetY() const { return m_y; }
    /// Ignored unless 0 <= y <= height. The height itself puts the row pointer one row past the pixels.
    void SetY(int y);
    void SetSteps(int x, int y);
    void GetSteps(int* x, int* y) const;

    /// Copies `n` bytes of `src` into the row, at most its stride; the whole stride if `n` is below 0.
    void SetRow(unsigned char* src, int n);
    /// Copies `n` bytes from the start of the row on, beyond its stride too; what is behind the pixels is given as 0.
    void GetRow(unsigned char* dst, int n) const;
    /// The row pointer; null when it has left the image.
    unsigned char* GetRow() const;
    /// `SetY(y)`, then the row pointer.
    unsigned char* GetRow(int y);

    /// The byte at column x.
    unsigned char GetByte() const;
    void SetByte(unsigned char value);
    /// One byte on, into the next row at the end of this one: 1, or 0 behind the last row.
    int NextByte();
    /// One byte back: 1, or 0 before the first row. From byte 0 it goes to byte 0, not to the end, of the row below.
    int PrevByte();
    /// As `NextByte` with the steps of `SetSteps`; the row pointer moves by one row whatever the step of y is.
    int NextStep();
    /// As `PrevByte` with the steps of `SetSteps`; 0 too when y is at or above the height.
    int PrevStep();

    /// Copies column `x`, `bpp / 8` bytes a row from the bottom up, to `dst`, which holds height * bpp / 8 bytes. 0 if a
    /// pointer is null, below 8 bits per pixel, or if x is at or beyond the width; else 1.
    int GetCol(unsigned char* dst, unsigned long x) const;
    /// The same from `src` into the image.
    int SetCol(unsigned char* src, unsigned long x);

private:
    void MovePointer(int rows);
    std::size_t BytesFrom(std::int64_t column) const;
    unsigned char* Column(unsigned long x, std::size_t& pixelBytes) const;
    std::int64_t Stride() const;
    std::int64_t Height() const;

    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    std::int32_t m_stepX = 0;
    std::int32_t m_stepY = 0;
    unsigned char* m_row = nullptr;
    CKxGifImage* m_image = nullptr; // not owned
};
