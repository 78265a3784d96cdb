// Tells the two kinds of metafiles apart.
#include "MetafileCheck.h"

#include "FileBytes.h"

bool MetafileCheck::isSound(const unsigned char* data, std::size_t size)
{
    const FileBytes file(data, size);
    if (EnhancedMetafile::isOne(file))
    {
        return EnhancedMetafile::isSound(file);
    }
    return !WindowsMetafile::isOne(file) || WindowsMetafile::isSound(file);
}
