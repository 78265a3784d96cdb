// A growable stream in memory with a file-like interface.
#pragma once

#include <cstddef>
#include <cstdint>
#include "oxa/Export.h"
#include "oxa/images/SharedBytes.h"

/// A stream over a block of bytes: one of its own, or one of the caller's.
///
/// A stream without a buffer is closed; a stream that is constructed over a caller's buffer is open at once. The
/// position may lie beyond the size; a `Write` there extends the stream. Sizes and positions end at 2,147,483,647: what
/// would pass that is refused (`Write`) or held there (`Seek`).
///
/// Own buffers come from malloc, so that a caller who detaches one (`GetBuffer(true)`) frees it with `free` or
/// `CKxGifImage::FreeMemory`. The buffer that a caller passed in is never freed and never reallocated here, whatever
/// `GetBuffer` says; a stream that outgrows it goes on in a buffer of its own, with a copy of the bytes.
///
/// Copies share the buffer: what one writes the other reads, also after it has grown, and the last one frees it. Size and
/// position are each stream's own.
///
/// No operation throws or has a message. An object belongs to one thread at a time. There is no virtual destructor.
class OXA_API CKxMemFile
{
public:
    /// Over `size` bytes at `pBuffer`, which must live as long as the stream. A null `pBuffer` gives a closed stream.
    CKxMemFile(unsigned char* pBuffer = nullptr, unsigned long size = 0);
    CKxMemFile(const CKxMemFile& other);
    CKxMemFile& operator=(const CKxMemFile& other);
    ~CKxMemFile();

    /// An empty buffer of the stream's own. False, and nothing changed, if there is a buffer; false too without memory.
    bool Open();
    /// The buffer, or null. With `bDetach` the caller frees it from now on; without, the stream does (again).
    unsigned char* GetBuffer(bool bDetach);

    /// Lets go of an owned buffer and sets the size to 0; position and capacity stay. Always true.
    virtual bool Close();
    /// Copies `size * count` bytes (a product of 32 bits), or what is left, and moves the position on. The result is the
    /// copied bytes divided by `size`: a single record that is cut short is copied and still gives 0. 0 too for nulls, a
    /// product of 0, and at the end.
    virtual size_t Read(void* buffer, size_t size, size_t count);
    /// Copies `size * count` bytes (a product of 32 bits) to the position, growing the stream as needed. `count`; 0 for
    /// nulls, a product of 0, or when the stream cannot grow. The source may be part of the stream.
    virtual size_t Write(const void* buffer, size_t size, size_t count);
    /// Origin 0: from the start, 1: from the position, 2: from the size. A target below 0 becomes 0, one beyond the size
    /// is kept. False for another origin or a closed stream.
    virtual bool Seek(long offset, int origin);
    /// The position; -1 when closed.
    virtual long Tell();
    /// The size in bytes; -1 when closed.
    virtual long Size();
    /// True when open; there is nothing to flush.
    virtual bool Flush();
    /// True when closed or when the position is at or beyond the size.
    virtual bool Eof();
    /// -1 when closed, 1 when the position is beyond the size, else 0.
    virtual long Error();
    /// Writes one byte. False only when closed.
    virtual bool PutC(unsigned char c);
    /// The next byte, 0 to 255; -1 at the end.
    virtual long GetC();

protected:
    /// Raises the capacity to the next multiple of 4,096 above `n`, if `n` exceeds it, and takes ownership. False, and
    /// nothing changed, when that cannot be had.
    bool Alloc(unsigned long n);
    /// Calls `Close`.
    void Free();

    SharedBytes m_pData;          // null: closed
    std::uint32_t m_nLogicalSize; // bytes that count as content
    bool m_bOwnsData;             // `Close` lets go of the buffer
    std::int32_t m_nPosition;     // may lie beyond the size
    std::uint32_t m_nCapacity;

private:
    friend class CKxGifImage; // decodes from the bytes as they lie

    bool MakeRoom(std::uint64_t end, const unsigned char*& source);
};
