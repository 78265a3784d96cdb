// Follows a 16-bit metafile's shapes to see how far they go.
#pragma once

#include "FileBytes.h"
#include "MetafileMapping.h"

class WmfReach
{
public:
    /// The picture's size in the units that count until the file sets others.
    WmfReach(double width, double height);

    /// Whether the shapes of a sound record stay near the picture. `object` is the place of the object that it made, if it
    /// made one.
    bool isWithin(const FileBytes& record, std::uint32_t object);

private:
    void follow(const FileBytes& record, std::uint32_t object);

    MetafileReach m_reach;
};
