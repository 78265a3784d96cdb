// Walks the records of an enhanced metafile from its header to its end.
#include <optional>

#include "EmfKinds.h"
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

EmfKind kindAt(const FileBytes& file, std::uint32_t offset)
{
    return static_cast<EmfKind>(file.longAt(offset));
}
} // namespace

bool EnhancedMetafile::isOne(const FileBytes& file)
{
    return (file.holds(0, 4) && kindAt(file, 0) == EmfKind::Header) || file.longAt(signatureAt) == signature;
}

bool EnhancedMetafile::isSound(const FileBytes& file)
{
    const std::uint32_t size = file.longAt(bytesAt);
    if (kindAt(file, 0) != EmfKind::Header || file.longAt(signatureAt) != signature || !file.holds(0, size) ||
        !EmfReach::isPictureSize(file))
    {
        return false;
    }
    EmfRecords records(file.wordAt(handlesAt));
    std::optional<EmfReach> reach;
    std::uint32_t offset = 0;
    std::uint32_t count = 0;
    auto kind = EmfKind::Header;
    while (kind != EmfKind::EndOfFile)
    {
        const std::uint32_t length = file.longAt(offset + std::size_t{4});
        if (size - offset < EmfRecords::RecordHead || length < EmfRecords::RecordHead || length % 4 != 0 ||
            length > size - offset)
        {
            return false;
        }
        const FileBytes record = file.part(offset, length);
        kind = kindAt(file, offset);
        if ((kind == EmfKind::Header) != (count == 0) || !records.isSound(record))
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
