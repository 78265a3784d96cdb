// Walks the records of an enhanced metafile from its header to its end.
#include <optional>

#include "EmfReach.h"
#include "EmfRecords.h"
#include "FileBytes.h"
#include "MetafileCheck.h"

namespace
{
enum HeaderAt : std::uint32_t
{
    signatureAt = 40,
    bytesAt = 48,
    recordsAt = 52,
    handlesAt = 56,
};
constexpr std::uint32_t signature = 0x464D4520; // " EMF"
} // namespace

bool EnhancedMetafile::isOne(const FileBytes& file)
{
    return (file.holds(0, 4) && file.longAt(0) == EmfRecords::Header) || file.longAt(signatureAt) == signature;
}

bool EnhancedMetafile::isSound(const FileBytes& file)
{
    const std::uint32_t size = file.longAt(bytesAt);
    if (file.longAt(0) != EmfRecords::Header || file.longAt(signatureAt) != signature || !file.holds(0, size) ||
        !EmfReach::isPictureSize(file))
    {
        return false;
    }
    EmfRecords records(file.wordAt(handlesAt));
    std::optional<EmfReach> reach;
    std::uint32_t offset = 0;
    std::uint32_t count = 0;
    std::uint32_t kind = 0;
    while (kind != EmfRecords::EndOfFile)
    {
        const std::uint32_t length = file.longAt(offset + std::size_t{4});
        if (size - offset < EmfRecords::RecordHead || length < EmfRecords::RecordHead || length % 4 != 0 ||
            length > size - offset)
        {
            return false;
        }
        const FileBytes record = file.part(offset, length);
        kind = file.longAt(offset);
        if ((kind == EmfRecords::Header) != (count == 0) || !records.isSound(record))
        {
            return false;
        }
        if (!reach)
        {
            reach.emplace(record);
        }
        if (!reach->isWithin(record))
        {
            return false;
        }
        offset += length;
        ++count;
    }
    return offset == size && count == file.longAt(recordsAt);
}
