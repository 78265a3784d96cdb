// Owners of blocks of global memory and of files.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstring>
#include <memory>

struct FreeBlock
{
    void operator()(HGLOBAL block) const { ::GlobalFree(block); }
};
using OwnedBlock = std::unique_ptr<void, FreeBlock>;

/// Bytes of a global block, readable until the end of the object.
class LockedBlock
{
public:
    explicit LockedBlock(HGLOBAL block) : m_block(block), m_bytes(::GlobalLock(block)) {}
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;
    ~LockedBlock()
    {
        if (m_bytes != nullptr)
        {
            ::GlobalUnlock(m_block);
        }
    }
    /// Null when the block cannot be locked.
    void* bytes() const { return m_bytes; }

private:
    HGLOBAL m_block;
    void* m_bytes;
};

/// A movable block with a copy of the bytes, or null.
inline OwnedBlock movableCopy(const void* data, size_t count)
{
    OwnedBlock block(::GlobalAlloc(GMEM_MOVEABLE, count));
    const LockedBlock locked(block.get());
    if (locked.bytes() == nullptr)
    {
        return nullptr;
    }
    std::memcpy(locked.bytes(), data, count);
    return block;
}

struct CloseKernelHandle
{
    void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
using KernelHandle = std::unique_ptr<void, CloseKernelHandle>;

/// Null when the file cannot be opened.
inline KernelHandle openFile(LPCWSTR path, DWORD access, DWORD sharing, DWORD disposition)
{
    const HANDLE file = ::CreateFileW(path, access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return KernelHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}
