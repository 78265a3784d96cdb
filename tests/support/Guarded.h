// Catches a touch of a deleted object: such an object's memory is gone.
#pragma once
#include <windows.h>
#include <new>

/// A class whose objects have pages of their own. Deleting one takes its pages away for good, so that whoever still
/// uses it ends the program there and then.
template <class Base> class Guarded : public Base
{
public:
    using Base::Base;

    static void* operator new(std::size_t size)
    {
        void* const pages = ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
        if (pages == nullptr)
            throw std::bad_alloc();
        return pages;
    }
    static void operator delete(void* pages) { ::VirtualFree(pages, 0, MEM_DECOMMIT); }
};
