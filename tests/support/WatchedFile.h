// A stream that notes how it is read, and that may stop the image that reads it.
#pragma once

#include <cstddef>
#include <vector>
#include "oxa/images/KxGifImage.h"
#include "oxa/images/KxMemFile.h"

class WatchedFile : public CKxMemFile
{
public:
    using CKxMemFile::CKxMemFile;

    size_t Read(void* buffer, size_t size, size_t count) override
    {
        ++reads;
        if (keepsSizes)
            sizes.push_back(size * count);
        if (stopped && reads == stopAt)
            stopped->SetEscape(escape);
        return CKxMemFile::Read(buffer, size, count);
    }

    int reads = 0;
    bool keepsSizes = false;
    std::vector<size_t> sizes{}; // that were asked for

    CKxGifImage* stopped = nullptr; // gets `escape` before read number `stopAt`, from 1
    int stopAt = 0;
    long escape = 1;
};
