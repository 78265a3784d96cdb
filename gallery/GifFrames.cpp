// Reads descriptors and skips rasters; extensions are read by the image class itself.
#include "GifFrames.h"
#include "oxa/images/KxGifImage.h"

namespace
{
class FrameWalk : private CKxGifImage
{
public:
    explicit FrameWalk(const std::vector<unsigned char>& stream)
        : m_file(const_cast<unsigned char*>(stream.data()), static_cast<unsigned long>(stream.size()))
    {
    }

    std::vector<GifFrame> frames()
    {
        std::vector<GifFrame> found;
        if (m_file.Read(&m_screen, sizeof m_screen, 1) != 1)
            return found;
        skipTable(m_screen.flags);
        for (long mark = m_file.GetC(); mark != -1 && mark != ';'; mark = m_file.GetC())
            if (mark == '!' ? !DecodeExtension(&m_file) : mark == ',' && !readFrame(found))
                break;
        return found;
    }

private:
    bool readFrame(std::vector<GifFrame>& found)
    {
        tag_image descriptor = {};
        if (m_file.Read(&descriptor, sizeof descriptor, 1) != 1)
            return false;
        skipTable(descriptor.flags);
        if (m_file.GetC() == -1) // the code size
            return false;
        if (descriptor.left + descriptor.width <= m_screen.screenWidth &&
            descriptor.top + descriptor.height <= m_screen.screenHeight)
            found.push_back({descriptor.left, descriptor.top, descriptor.width, descriptor.height, GetFrameDelay(),
                             GetDisposalMethod()});
        for (long count = m_file.GetC(); count > 0; count = m_file.GetC())
            m_file.Seek(count, 1);
        return true;
    }
    void skipTable(unsigned char flags)
    {
        if ((flags & 0x80) != 0)
            m_file.Seek(3L << ((flags & 7) + 1), 1);
    }

    CKxMemFile m_file; // borrows the stream, and only reads
    tag_dscgif m_screen = {};
};
} // namespace

std::vector<GifFrame> listGifFrames(const std::vector<unsigned char>& stream)
{
    return FrameWalk(stream).frames();
}
