// Follows an enhanced metafile's shapes to see how far they go.
#pragma once

#include <array>

#include "FileBytes.h"
#include "MetafileMapping.h"

class EmfReach
{
public:
    /// Begins with a sound header record.
    explicit EmfReach(const FileBytes& header);

    /// Whether the picture is not larger than any paper, so that a surface can be made for it.
    static bool isPictureSize(const FileBytes& header);
    /// Whether the shapes of a sound record stay near the picture.
    bool isWithin(const FileBytes& record);

private:
    enum class Extents
    {
        Ignored, // set while the mode has none of its own: they are forgotten
        Kept     // or come to count with the next mode, as some players have it
    };

    bool isWithin(MetafileReach& reach, Extents extents, const FileBytes& record) const;
    bool drawsWithin(const MetafileReach& reach, const FileBytes& record) const;
    void setMode(MetafileMapping& mapping, Extents extents, std::uint32_t mode) const;
    void follow(MetafileReach& reach, Extents extents, const FileBytes& record) const;

    double m_pixelsPerUnitAcross; // pixels for a hundredth of a millimetre
    double m_pixelsPerUnitDown;
    std::array<MetafileReach, 2> m_reaches;
};
