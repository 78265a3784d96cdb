// The GIF reader in its plain form: two passes, every value scanned, every pixel set by itself. What the library's decoder
// must equal on every input. It has a picture model of its own and shares no code with the library.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include "support/DecodedPicture.h"
#include "support/PlainRaster.h"

namespace plain
{
/// One image object: what a decode leaves in it, a further decode finds there.
class GifDecoder
{
public:
    std::int32_t transparentIndex = -1;
    std::uint8_t transparentColour[3] = {}; // blue, green, red
    std::int32_t frame = 0;
    std::int32_t frames = 0;
    std::uint32_t delay = 0;
    std::int32_t disposal = 0;
    std::int32_t loops = 0;
    std::int32_t escape = 0;
    std::string comment{};
    std::uint8_t control[4] = {};
    DecodedPicture picture{};

    /// As after construction, with the memory that is there.
    void reset()
    {
        transparentIndex = -1;
        std::memset(transparentColour, 0, sizeof transparentColour);
        std::memset(control, 0, sizeof control);
        frame = frames = disposal = loops = escape = 0;
        delay = 0;
        comment.clear();
        picture.drop();
        picture.width = picture.height = 0;
        m_raster.forget();
    }

    bool decode(ByteStream& stream)
    {
        Screen screen;
        std::uint8_t head[13] = {};
        stream.read(head, 13);
        if (std::memcmp(head, "GIF8", 4) != 0)
            return false;
        screen.width = head[6] + head[7] * 256;
        screen.height = head[8] + head[9] * 256;
        screen.flags = head[10];
        if (escape == -1)
        {
            picture.drop();
            picture.width = screen.width;
            picture.height = screen.height;
            return true;
        }
        Table table;
        table.count = 1 << ((screen.flags & 7) + 1);
        int score = 0;
        if ((screen.flags & 0x80) != 0)
            stream.read(table.bytes, table.count * 3);
        else
            ++score;
        frames = countFrames(stream, table, screen);
        if (frame < 0 || frame >= frames)
            return false;
        if (frames == 1)
            score = 0;
        return scan(stream, table, screen, score);
    }

    /// One extension block, behind its '!'. False on a failed read.
    bool readExtension(ByteStream& stream)
    {
        std::uint8_t label = 0;
        if (stream.read(&label, 1) == 0)
            return false;
        bool good = true;
        if (label == 0xF9)
            good = readControl(stream);
        else if (label == 0xFE)
            good = readComment(stream);
        else if (label == 0xFF)
            good = readApplication(stream);
        while (good)
        {
            std::uint8_t count = 0;
            if (stream.read(&count, 1) == 0)
                return false;
            if (count == 0)
                return true;
            stream.skip(count);
        }
        return false;
    }

private:
    struct Screen
    {
        int width = 0;
        int height = 0;
        int flags = 0;
    };
    struct Table
    {
        int count = 0;
        std::uint8_t bytes[768] = {};
    };
    struct Descriptor
    {
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        int flags = 0;
    };
    struct Interlace
    {
        bool on = false;
        int position = 0;
        int step = 8;
        int pass = 0;
        int y = 0; // where the next row goes, 0 being the bottom
    };

    // Extensions

    bool readControl(ByteStream& stream)
    {
        std::uint8_t count = 0;
        if (stream.read(&count, 1) == 0)
            return false;
        if (stream.read(control, 4) != count)
            return false;
        if ((control[0] & 1) != 0)
            transparentIndex = control[3];
        delay = control[1] + control[2] * 256U;
        disposal = control[0] >> 2 & 7;
        return true;
    }

    bool readComment(ByteStream& stream)
    {
        std::uint8_t count = 0;
        if (stream.read(&count, 1) == 0)
            return false;
        char text[256] = {};
        const int came = stream.read(reinterpret_cast<std::uint8_t*>(text), count);
        comment = text; // ends at a zero inside it
        return came == count && count != 0;
    }

    bool readApplication(ByteStream& stream)
    {
        std::uint8_t count = 0;
        std::uint8_t bytes[255] = {};
        if (stream.read(&count, 1) == 0 || count != 11 || stream.read(bytes, 11) != 11)
            return false;
        if (stream.read(&count, 1) == 0)
            return false;
        const int came = stream.read(bytes, count);
        if (came > 2)
            loops = bytes[1] + bytes[2] * 256;
        return came == count && count != 0;
    }

    // Frames

    static bool readDescriptor(ByteStream& stream, Descriptor& descriptor)
    {
        std::uint8_t bytes[9];
        if (stream.read(bytes, 9) != 9)
            return false;
        descriptor.left = bytes[0] + bytes[1] * 256;
        descriptor.top = bytes[2] + bytes[3] * 256;
        descriptor.width = bytes[4] + bytes[5] * 256;
        descriptor.height = bytes[6] + bytes[7] * 256;
        descriptor.flags = bytes[8];
        return true;
    }

    static bool inside(const Descriptor& descriptor, const Screen& screen)
    {
        return descriptor.left + descriptor.width <= screen.width &&
               descriptor.top + descriptor.height <= screen.height;
    }

    static void readLocalTable(ByteStream& stream, const Descriptor& descriptor, Table& table)
    {
        if ((descriptor.flags & 0x80) == 0)
            return;
        table.count = 1 << ((descriptor.flags & 7) + 1);
        stream.read(table.bytes, table.count * 3);
    }

    static int depthOf(const Table& table) { return table.count <= 2 ? 1 : table.count > 16 ? 8 : 4; }

    /// Reads the raster into this object's picture and leaves the stream behind it.
    void readRaster(ByteStream& stream, const Descriptor& descriptor)
    {
        const std::int64_t start = stream.position();
        m_interlace = {(descriptor.flags & 0x40) != 0, 0, 8, 0, descriptor.height - 1};
        int badCodes = 0;
        m_raster.readFrame(
            stream, descriptor.width,
            [&](const std::uint8_t* row, int length) { return storeRow(descriptor, row, length); }, badCodes);
        m_damaged = badCodes != 0;
        m_rasterStart = start;
    }

    void leaveRaster(ByteStream& stream)
    {
        if (m_damaged)
            seekNextImage(stream, m_rasterStart);
        else
            stream.skip(m_raster.unread() + 1);
    }

    static void seekNextImage(ByteStream& stream, std::int64_t position)
    {
        stream.seek(position);
        std::uint8_t last = 0;
        std::uint8_t value = 0;
        while (stream.read(&value, 1) == 1)
        {
            if (value == ',' && last == 0)
            {
                stream.skip(-1);
                return;
            }
            last = value;
        }
    }

    bool storeRow(const Descriptor& descriptor, const std::uint8_t* row, int length)
    {
        if (!m_interlace.on)
        {
            if (!picture.valid || m_interlace.y < 0)
                return false;
            storePixels(row, length);
            --m_interlace.y;
            return true;
        }
        const int y = descriptor.height - m_interlace.position - 1;
        if (y >= 0)
            m_interlace.y = y; // otherwise the row goes where the last one went
        storePixels(row, length);
        m_interlace.position += m_interlace.step;
        if (m_interlace.position >= descriptor.height)
        {
            do
            {
                if (m_interlace.pass++ > 0)
                    m_interlace.step /= 2;
                m_interlace.position = m_interlace.step / 2;
            } while (m_interlace.position > descriptor.height);
        }
        return true;
    }

    void storePixels(const std::uint8_t* row, int length)
    {
        if (!picture.valid)
            return;
        for (int x = 0; x < length; ++x)
            picture.setIndex(x, m_interlace.y, row[x]);
    }

    // The two passes

    int countFrames(ByteStream& stream, Table table, const Screen& screen)
    {
        const std::int64_t start = stream.position();
        int count = 0;
        bool afterNull = true;
        std::uint8_t value = 0;
        while (stream.read(&value, 1) == 1)
        {
            if (!afterNull && value != 0)
                continue;
            if (value == '!')
                readExtension(stream);
            else if (value == ',')
            {
                Descriptor descriptor;
                if (!readDescriptor(stream, descriptor) || !inside(descriptor, screen))
                    continue;
                ++count;
                readLocalTable(stream, descriptor, table);
                picture.create(descriptor.width, descriptor.height, depthOf(table));
                if (DecodedPicture::tooLarge(descriptor.width, descriptor.height))
                    break;
                readRaster(stream, descriptor);
                leaveRaster(stream);
            }
            else if (value == ';')
                break;
            else
                afterNull = value == 0;
        }
        stream.seek(start);
        return count;
    }

    bool scan(ByteStream& stream, Table& table, const Screen& screen, int score)
    {
        Composition all{screen, table, score};
        bool afterNull = true;
        std::uint8_t value = 0;
        while (stream.read(&value, 1) == 1)
        {
            if (escape > 0)
                return false;
            if (!afterNull && value != 0)
                continue;
            if (value == '!')
            {
                if (!readExtension(stream))
                    break;
            }
            else if (value == ',')
            {
                const Step step = readFrame(stream, all);
                if (step == Step::Fail)
                    return false;
                if (step == Step::Done)
                    break;
            }
            else if (value == ';')
                break;
            else
                afterNull = value == 0;
        }
        finishMosaic(all);
        return true;
    }

    struct Composition
    {
        const Screen& screen;
        Table& table;
        int score;
        int counter = 0;
        int lastDisposal = 0;
        std::int32_t background = 0;
        bool hasMosaic = false;
        DecodedPicture mosaic{};
    };
    enum class Step
    {
        Next,
        Done,
        Fail,
    };

    Step readFrame(ByteStream& stream, Composition& all)
    {
        Descriptor descriptor;
        if (!readDescriptor(stream, descriptor) || !inside(descriptor, all.screen))
            return Step::Next;
        if (all.counter == 0 && descriptor.width != all.screen.width && descriptor.height != all.screen.height)
            ++all.score;
        readLocalTable(stream, descriptor, all.table);
        const int depth = depthOf(all.table);
        DecodedPicture background;
        if (all.counter == 0)
        {
            background.create(all.screen.width, all.screen.height, depth);
            all.background = transparentIndex;
            background.clear(control[3]);
            if (DecodedPicture::tooLarge(all.screen.width, all.screen.height))
            {
                picture.drop();
                return Step::Fail;
            }
        }
        else
        {
            background = picture;
            if (all.lastDisposal == 2)
                background.clear(all.background);
        }
        picture.create(descriptor.width, descriptor.height, depth);
        if (((descriptor.flags | all.screen.flags) & 0x80) != 0)
            setPalette(all.table);
        readRaster(stream, descriptor);
        if (escape != 0)
            return Step::Fail;
        if (all.score >= 2)
            addToMosaic(all, descriptor);
        else
            compose(background, descriptor, all.background);
        all.lastDisposal = control[0] >> 2 & 7;
        leaveRaster(stream);
        return frame == all.counter++ ? Step::Done : Step::Next;
    }

    void setPalette(const Table& table)
    {
        for (int i = 0; i < 256; ++i)
        {
            const std::uint8_t* entry = &table.bytes[i * 3];
            if (i < table.count)
                picture.setEntry(i, entry[0], entry[1], entry[2]);
            else if (transparentIndex != -1)
                picture.setEntry(i, 255, 255, 255);
        }
    }

    void compose(DecodedPicture& background, const Descriptor& descriptor, std::int32_t backgroundIndex)
    {
        if (background.valid && picture.valid)
        {
            const int bottom = background.height - descriptor.top - picture.height;
            for (int y = 0; y < picture.height; ++y)
                for (int x = 0; x < picture.width; ++x)
                    if (picture.index(x, y) != transparentIndex)
                        background.setIndex(descriptor.left + x, bottom + y, picture.index(x, y));
        }
        const std::size_t shared = std::min(background.palette.size(), picture.palette.size());
        std::copy_n(picture.palette.begin(), shared, background.palette.begin());
        transparentIndex = backgroundIndex;
        picture = background;
    }

    void addToMosaic(Composition& all, const Descriptor& descriptor)
    {
        frame = frames - 1;
        if (!all.hasMosaic)
            all.mosaic.create(all.screen.width, all.screen.height, 24);
        all.hasMosaic = true;
        for (int y = 0; y < descriptor.height; ++y)
            for (int x = 0; x < descriptor.width; ++x)
                all.mosaic.setColour(x + descriptor.left, all.screen.height - 1 - descriptor.top - y,
                                     picture.entry(picture.index(x, descriptor.height - y - 1)));
    }

    void finishMosaic(Composition& all)
    {
        if (all.score < 2 || !all.hasMosaic)
            return;
        std::memset(transparentColour, 0, sizeof transparentColour);
        const bool transparent = (control[0] & 1) != 0;
        if (transparent)
            std::memcpy(transparentColour, picture.entry(transparentIndex & 255), 3);
        transparentIndex = transparent ? 0 : -1;
        picture = all.mosaic;
    }

    RasterReader m_raster{};
    Interlace m_interlace{};
    bool m_damaged = false;
    std::int64_t m_rasterStart = 0;
};
} // namespace plain
