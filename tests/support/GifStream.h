// A GIF stream taken apart into its blocks, and a raster into its codes, for tests to look at.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace plain
{
/// One block behind the header: '!' with its label, or ',' for a frame.
struct GifBlock
{
    int label = 0; // 0xF9, 0xFE, 0xFF, or ','
    std::vector<std::size_t> subBlocks{};
    std::vector<std::uint8_t> data{}; // all sub-blocks joined
    // Of frames:
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int flags = 0;
    int minimumCodeSize = 0;
    std::vector<std::uint8_t> table{};
};

/// Reads strictly: what is not a whole, well-formed stream throws.
class GifStream
{
public:
    explicit GifStream(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes))
    {
        for (int i = 0; i < 6; ++i)
            signature += static_cast<char>(byte());
        width = word();
        height = word();
        flags = byte();
        background = byte();
        aspectRatio = byte();
        if ((flags & 0x80) != 0)
            table = take(std::size_t{3} << ((flags & 7) + 1));
        for (int mark = byte(); mark != ';'; mark = byte())
            blocks.push_back(readBlock(mark));
        if (m_next != m_bytes.size())
            throw std::runtime_error("bytes behind the trailer");
    }

    std::vector<GifBlock> ofLabel(int label) const
    {
        std::vector<GifBlock> found;
        for (const GifBlock& block : blocks)
            if (block.label == label)
                found.push_back(block);
        return found;
    }
    std::vector<GifBlock> frames() const { return ofLabel(','); }

    std::string signature{};
    int width = 0;
    int height = 0;
    int flags = 0;
    int background = 0;
    int aspectRatio = 0;
    std::vector<std::uint8_t> table{};
    std::vector<GifBlock> blocks{};

private:
    int byte() { return m_bytes.at(m_next++); }
    int word()
    {
        const int low = byte();
        return low | byte() << 8;
    }
    std::vector<std::uint8_t> take(std::size_t count)
    {
        std::vector<std::uint8_t> taken;
        for (std::size_t i = 0; i < count; ++i)
            taken.push_back(static_cast<std::uint8_t>(byte()));
        return taken;
    }

    GifBlock readBlock(int mark)
    {
        GifBlock block;
        if (mark == '!')
            block.label = byte();
        else if (mark == ',')
            readDescriptor(block);
        else
            throw std::runtime_error("neither extension nor frame");
        for (int count = byte(); count != 0; count = byte())
        {
            block.subBlocks.push_back(static_cast<std::size_t>(count));
            const std::vector<std::uint8_t> part = take(static_cast<std::size_t>(count));
            block.data.insert(block.data.end(), part.begin(), part.end());
        }
        return block;
    }
    void readDescriptor(GifBlock& block)
    {
        block.label = ',';
        block.left = word();
        block.top = word();
        block.width = word();
        block.height = word();
        block.flags = byte();
        if ((block.flags & 0x80) != 0)
            block.table = take(std::size_t{3} << ((block.flags & 7) + 1));
        block.minimumCodeSize = byte();
    }

    std::vector<std::uint8_t> m_bytes;
    std::size_t m_next = 0;
};

/// The codes of a raster up to its end code, by the width rule of every reader: one table entry for each code but the
/// first behind a clear, and one bit more when the next entry does not fit. Throws when there is no end code.
inline std::vector<int> codesOf(const std::vector<std::uint8_t>& data, int minimumCodeSize)
{
    const int clear = 1 << minimumCodeSize;
    int width = minimumCodeSize + 1;
    int next = 0; // entry that the next code makes
    std::vector<int> codes;
    for (std::size_t bit = 0;;)
    {
        int code = 0;
        for (int i = 0; i < width; ++i, ++bit)
            code |= (data.at(bit / 8) >> (bit % 8) & 1) << i;
        codes.push_back(code);
        if (code == clear + 1)
            return codes;
        if (code == clear)
        {
            width = minimumCodeSize + 1;
            next = clear + 1;
        }
        else if (next < 4096 && ++next == 1 << width && width < 12)
            ++width;
    }
}
} // namespace plain
