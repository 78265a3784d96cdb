// Calls in any order with any arguments: no result is looked at, the sanitizers watch.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>
#include "ExposedImage.h"

namespace
{
class Caller
{
public:
    explicit Caller(unsigned seed) : m_random(seed)
    {
        for (auto& image : m_images)
            image = std::make_unique<ExposedImage>();
    }

    void CallImage()
    {
        ExposedImage& image = *m_images[Index(m_images.size())];
        ExposedImage& other = *m_images[Index(m_images.size())];
        std::array<RGBQUAD, 256> palette{};
        palette[Index(256)] = Color();
        switch (Index(26))
        {
        case 0:
            image.Create(Size(), Size(), Depth());
            break;
        case 1:
            image.Destroy();
            break;
        case 2:
            image = other;
            break;
        case 3:
            image.Copy(other, Flag(), Flag(), Flag());
            break;
        case 4:
            image.Transfer(other);
            break;
        case 5:
            image.Ghost(&other);
            break;
        case 6:
            image.CopyInfo(other);
            break;
        case 7:
            m_images[Index(m_images.size())] = std::make_unique<ExposedImage>(image);
            m_iterators = {};
            break;
        case 8:
            image.Clear(Byte());
            break;
        case 9:
            image.SetPixelIndex(Number(), Number(), Byte());
            break;
        case 10:
            image.SetPixelColor(Number(), Number(), Color());
            break;
        case 11:
            image.GetPixelColor(Number(), Number());
            break;
        case 12:
            image.GetPixelIndex(Number(), Number());
            break;
        case 13:
            image.IsTransparent(Number(), Number());
            break;
        case 14:
            image.SetTransIndex(Number());
            break;
        case 15:
            image.SetPaletteColor(Byte(), Color());
            break;
        case 16:
            image.SetPalette(palette.data(), 256);
            break;
        case 17:
            image.BlendPalette(static_cast<unsigned long>(Number()), Number());
            break;
        case 18:
            image.SwapIndex(Byte(), Byte());
            break;
        case 19:
            image.IsSamePalette(other, Flag());
            break;
        case 20:
            image.SetClrImportant(Size());
            break;
        case 21:
            image.DecreaseBpp(Depth(), Flag(), Flag() ? palette.data() : nullptr, Size());
            break;
        case 22:
            image.GetPaletteColor(Byte(), palette[0].rgbBlue ? nullptr : &m_byte, &m_byte, &m_byte);
            break;
        case 23:
            image.SetStdPalette();
            break;
        case 24:
            image.SetEscape(Index(30) == 0 ? Number() : 0);
            break;
        default:
            image.GetNearestIndex(Color());
            break;
        }
    }

    void CallIterator()
    {
        CKxGifImageIterator& iterator = m_iterators[Index(m_iterators.size())];
        std::vector<unsigned char> row(70000);
        const int length = static_cast<int>(Index(600)) - 2;
        switch (Index(16))
        {
        case 0:
            iterator = CKxGifImageIterator(m_images[Index(m_images.size())].get());
            break;
        case 1:
            iterator.Reset();
            break;
        case 2:
            iterator.Upset();
            break;
        case 3:
            iterator.NextRow();
            break;
        case 4:
            iterator.PrevRow();
            break;
        case 5:
            iterator.SetY(static_cast<int>(Number()));
            break;
        case 6:
            iterator.SetSteps(static_cast<int>(Number()), static_cast<int>(Number()));
            break;
        case 7:
            iterator.SetRow(row.data(), length);
            break;
        case 8:
            iterator.GetRow(row.data(), length);
            break;
        case 9:
            iterator.SetByte(Byte());
            break;
        case 10:
            iterator.NextByte();
            break;
        case 11:
            iterator.PrevByte();
            break;
        case 12:
            iterator.NextStep();
            iterator.GetByte();
            break;
        case 13:
            iterator.PrevStep();
            iterator.GetByte();
            break;
        case 14:
            iterator.GetCol(row.data(), static_cast<unsigned long>(Number()));
            break;
        default:
            iterator.SetCol(row.data(), static_cast<unsigned long>(Number()));
            break;
        }
    }

    void CallStream()
    {
        CKxMemFile& stream = m_streams[Index(m_streams.size())];
        std::vector<unsigned char> buffer(10000, Byte());
        switch (Index(11))
        {
        case 0:
            stream.Open();
            break;
        case 1:
            stream.Close();
            break;
        case 2:
            stream = m_streams[Index(m_streams.size())];
            break;
        case 3:
            stream = CKxMemFile(m_lent.data(), static_cast<unsigned long>(Index(m_lent.size())));
            break;
        case 4:
            stream.GetBuffer(false);
            break;
        case 5:
            stream.Read(buffer.data(), Index(100), Index(100));
            break;
        case 6:
            stream.Write(buffer.data(), Index(100), Index(100));
            break;
        case 7:
            stream.Seek(Index(10) == 0 ? Number() : static_cast<long>(Index(20000)), static_cast<int>(Index(4)));
            break;
        case 8:
            stream.PutC(Byte());
            break;
        case 9:
            stream.GetC();
            break;
        default:
            if (stream.Size() > 1 && stream.Tell() < stream.Size())
                stream.Write(stream.GetBuffer(false), 1, static_cast<std::size_t>(stream.Size()));
            break;
        }
        if (stream.Size() > 100000) // keeps the run short
            stream = CKxMemFile();
    }

private:
    std::size_t Index(std::size_t count) { return m_random() % count; }
    bool Flag() { return Index(2) == 0; }
    unsigned char Byte() { return static_cast<unsigned char>(Index(256)); }
    unsigned long Depth() { return std::array{1UL, 4UL, 8UL, 24UL}[Index(4)]; }
    unsigned long Size()
    {
        return static_cast<unsigned long>(Index(40) == 0 ? Number() : static_cast<long>(Index(40)));
    }
    RGBQUAD Color() { return {Byte(), Byte(), Byte(), Byte()}; }
    long Number()
    {
        constexpr std::array ends{LONG_MIN, LONG_MAX, long{INT_MIN}, long{INT_MAX}, -1L, 65536L, 255L, -2L};
        return Index(4) == 0 ? ends[Index(ends.size())] : static_cast<long>(Index(44)) - 2;
    }

    std::mt19937 m_random;
    unsigned char m_byte = 0;
    std::vector<unsigned char> m_lent = std::vector<unsigned char>(500);
    std::array<std::unique_ptr<ExposedImage>, 4> m_images;
    std::array<CKxGifImageIterator, 4> m_iterators;
    std::array<CKxMemFile, 4> m_streams;
};
} // namespace

TEST(RandomCalls, touch_no_memory_that_is_not_theirs)
{
    for (unsigned seed = 1; seed <= 40; ++seed)
    {
        Caller caller(seed);
        for (int i = 0; i < 2000; ++i)
        {
            caller.CallImage();
            caller.CallIterator();
            caller.CallStream();
        }
    }
    SUCCEED(); // the run itself is the proof
}
