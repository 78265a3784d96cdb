// Metafiles put together record by record, sound unless the recipe says otherwise.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace recipe
{
/// Little-endian bytes, number by number.
class MetafileBytes
{
public:
    MetafileBytes& word(std::uint32_t value) { return number(value, 2); }
    MetafileBytes& words(std::initializer_list<std::uint32_t> values)
    {
        for (const std::uint32_t value : values)
            word(value);
        return *this;
    }
    MetafileBytes& longs(std::initializer_list<std::uint32_t> values)
    {
        for (const std::uint32_t value : values)
            number(value, 4);
        return *this;
    }
    MetafileBytes& zeros(std::size_t count)
    {
        m_bytes.resize(m_bytes.size() + count);
        return *this;
    }
    MetafileBytes& add(const std::vector<unsigned char>& more)
    {
        m_bytes.insert(m_bytes.end(), more.begin(), more.end());
        return *this;
    }

    const std::vector<unsigned char>& bytes() const { return m_bytes; }

private:
    MetafileBytes& number(std::uint32_t value, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            m_bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
        return *this;
    }

    std::vector<unsigned char> m_bytes{};
};

inline void putNumber(std::vector<unsigned char>& bytes, std::size_t at, std::uint32_t value, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        bytes[at + i] = static_cast<unsigned char>(value >> (8 * i));
}

/// The header of a bitmap, 40 bytes.
inline std::vector<unsigned char> bitmapHeader(std::uint32_t width, std::uint32_t height, std::uint32_t bits,
                                               std::uint32_t colors = 0, std::uint32_t compression = 0,
                                               std::uint32_t packedSize = 0)
{
    MetafileBytes header;
    header.longs({40, width, height}).words({1, bits}).longs({compression, packedSize, 0, 0, colors, 0});
    return header.bytes();
}

/// An enhanced metafile of 100 by 100 pixels with 4 places for objects, the first of which is the file's own.
class EmfBuilder
{
public:
    enum : std::size_t
    {
        HeaderSize = 88,
    };

    EmfBuilder()
    {
        m_file.longs({1, HeaderSize, 0, 0, 99, 99, 0, 0, 2540, 2540, 0x464D4520, 0x10000, 0, 0, 4, 0, 0, 0});
        m_file.longs({1000, 1000, 254, 254});
    }

    /// `body` is what stands behind kind and size.
    EmfBuilder& record(std::uint32_t kind, const std::vector<unsigned char>& body = {})
    {
        m_file.longs({kind, static_cast<std::uint32_t>(body.size() + 8)}).add(body);
        ++m_records;
        return *this;
    }

    /// The file with its end.
    std::vector<unsigned char> bytes() const
    {
        MetafileBytes whole(m_file);
        whole.longs({14, 20, 0, 16, 20});
        std::vector<unsigned char> result = whole.bytes();
        putNumber(result, 48, static_cast<std::uint32_t>(result.size()), 4);
        putNumber(result, 52, m_records + 1, 4);
        return result;
    }

private:
    MetafileBytes m_file{};
    std::uint32_t m_records = 1;
};

/// A 16-bit metafile with 2 places for objects.
class WmfBuilder
{
public:
    enum : std::size_t
    {
        PlaceSize = 22,
        HeaderSize = 18,
    };

    /// `body` is what stands behind size and kind; an odd number of bytes is filled up.
    WmfBuilder& record(std::uint32_t kind, const std::vector<unsigned char>& body = {})
    {
        const std::size_t words = 3 + (body.size() + 1) / 2;
        m_longest = std::max(m_longest, static_cast<std::uint32_t>(words));
        m_records.longs({static_cast<std::uint32_t>(words)}).word(kind).add(body).zeros(body.size() % 2);
        return *this;
    }

    /// The file with its end, without a place.
    std::vector<unsigned char> bare() const
    {
        const std::size_t size = HeaderSize + m_records.bytes().size() + 6;
        MetafileBytes whole;
        whole.words({1, 9, 0x300}).longs({static_cast<std::uint32_t>(size / 2)});
        whole.word(2).longs({m_longest}).word(0).add(m_records.bytes()).longs({3}).word(0);
        return whole.bytes();
    }
    /// The file with its place: 100 by 100 pixels.
    std::vector<unsigned char> bytes() const
    {
        MetafileBytes whole;
        whole.longs({0x9AC6CDD7}).words({0, 0, 0, 100, 100, 96, 0, 0});
        std::uint32_t sum = 0;
        for (std::size_t i = 0; i < whole.bytes().size(); i += 2)
            sum ^= whole.bytes()[i] | static_cast<std::uint32_t>(whole.bytes()[i + 1]) << 8;
        return whole.word(sum).add(bare()).bytes();
    }

private:
    MetafileBytes m_records{};
    std::uint32_t m_longest = 3;
};
} // namespace recipe
