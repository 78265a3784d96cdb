// Judges whether a metafile can be given to a player that trusts every count and offset in it.
#pragma once

#include <cstddef>

#include "oxa/Export.h"

class FileBytes;

/// Metafiles are lists of drawing calls. Not every platform's player checks them.
struct OXA_API MetafileCheck
{
    /// False for a metafile that is damaged: a record beyond the end or of an unknown kind, a count or an offset that leaves
    /// its record, a handle that is not in the table, no end. False also when it draws so far beside the picture or so thickly
    /// that a player would not come to an end (see MetafileReach). True for every other format, and for nothing. It takes time
    /// in proportion to the size.
    static bool isSound(const unsigned char* data, std::size_t size);
};

/// An enhanced metafile, told by its header record.
struct EnhancedMetafile
{
    static bool isOne(const FileBytes& file);
    static bool isSound(const FileBytes& file);
};

/// A metafile of 16-bit records, with or without the header that tells its place and size.
struct WindowsMetafile
{
    static bool isOne(const FileBytes& file);
    static bool isSound(const FileBytes& file);
};
