// What happens when memory cannot be had.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include "ExposedImage.h"

#ifndef __SANITIZE_ADDRESS__ // which ends the program on such requests
TEST(FailingMemory, a_block_that_cannot_be_had_is_empty)
{
    const SharedBytes block = SharedBytes::Allocate(SIZE_MAX / 4);
    EXPECT_EQ(block.Get(), nullptr);
    EXPECT_EQ(block.Size(), 0U);
}

TEST(FailingMemory, a_block_that_cannot_grow_stays_as_it_is)
{
    unsigned char lent[3] = {1, 2, 3};
    for (SharedBytes block : {SharedBytes::Allocate(3), SharedBytes::Borrow(lent, 3)})
    {
        block[2] = 9;
        unsigned char* const before = block;
        EXPECT_FALSE(block.Grow(SIZE_MAX / 4));
        EXPECT_EQ(block.Get(), before);
        EXPECT_EQ(block.Size(), 3U);
        EXPECT_EQ(block[2], 9);
    }
}
#endif

TEST(FailingMemory, a_block_that_is_large_enough_does_not_grow)
{
    SharedBytes block = SharedBytes::Allocate(100);
    unsigned char* const before = block;
    EXPECT_TRUE(block.Grow(50));
    EXPECT_EQ(block.Get(), before);
    EXPECT_EQ(block.Size(), 100U);
}

TEST(FailingMemory, an_empty_block_grows_from_nothing)
{
    SharedBytes block;
    block.GiveAway();
    block.TakeBack();
    EXPECT_TRUE(block.Grow(2));
    EXPECT_EQ(block[1], 0);
}

#ifndef _WIN32 // on Windows the library has an operator new of its own
namespace
{
long requestsLeft = -1; // then they fail; -1: never

void* request(std::size_t size)
{
    if (requestsLeft == 0)
        throw std::bad_alloc();
    if (requestsLeft > 0)
        --requestsLeft;
    void* const memory = std::malloc(size ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

CKxGifImage colors()
{
    CKxGifImage image(64, 32, 24);
    for (long y = 0; y < 32; ++y)
        for (long x = 0; x < 64; ++x)
            image.SetPixelColor(x, y,
                                quad(static_cast<int>(x * 4), static_cast<int>(y * 8), static_cast<int>(x * y % 256)));
    return image;
}

bool samePixels(CKxGifImage& a, CKxGifImage& b)
{
    return a.GetSize() == b.GetSize() &&
           std::memcmp(a.GetDIB(), b.GetDIB(), static_cast<std::size_t>(a.GetSize())) == 0;
}
} // namespace

void* operator new(std::size_t size)
{
    return request(size);
}
void* operator new[](std::size_t size)
{
    return request(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

TEST(FailingMemory, reduction_works_in_full_or_not_at_all)
{
    for (const bool diffuse : {false, true})
    {
        CKxGifImage expected = colors();
        ASSERT_TRUE(expected.DecreaseBpp(8, diffuse, nullptr, 0));
        int refused = 0;
        for (long granted = 0; granted < 40; ++granted)
        {
            CKxGifImage source = colors();
            CKxGifImage image;
            image = source;
            requestsLeft = granted;
            const bool done = image.DecreaseBpp(8, diffuse, nullptr, 0);
            requestsLeft = -1;
            EXPECT_TRUE(samePixels(image, done ? expected : source)) << granted;
            refused += !done;
        }
        EXPECT_GT(refused, 0);
        EXPECT_LT(refused, 40);
    }
}

TEST(FailingMemory, reduction_does_without_the_lists_that_it_cannot_remember)
{
    // One colour in each of 32 by 32 by 32 cells: more lists than there is room for at first.
    CKxGifImage source(1024, 32, 24);
    for (long y = 0; y < 32; ++y)
        for (long x = 0; x < 1024; ++x)
            source.SetPixelColor(
                x, y, quad(static_cast<int>(x % 32 * 8 + 3), static_cast<int>(x / 32 * 8), static_cast<int>(y * 8)));
    CKxGifImage expected;
    expected = source;
    ASSERT_TRUE(expected.DecreaseBpp(8, false, nullptr, 0));
    int done = 0;
    for (long granted = 0; granted < 12; ++granted)
    {
        CKxGifImage image;
        image = source;
        requestsLeft = granted;
        done += image.DecreaseBpp(8, false, nullptr, 0) ? 1 : 0;
        requestsLeft = -1;
        EXPECT_TRUE(samePixels(image, image.GetBpp() == 8 ? expected : source)) << granted;
    }
    EXPECT_GT(done, 1);
}

TEST(FailingMemory, a_mosaic_is_written_in_full_or_refused)
{
    CKxGifImage image = colors();
    CByteArray expected;
    ASSERT_TRUE(image.Encode(expected));
    int refused = 0;
    for (long granted = 0; granted < 10; ++granted)
    {
        CKxMemFile file;
        ASSERT_TRUE(file.Open());
        requestsLeft = granted;
        const bool done = image.Encode(&file);
        requestsLeft = -1;
        refused += !done;
        if (done)
        {
            ASSERT_EQ(file.Size(), expected.GetSize());
            EXPECT_EQ(std::memcmp(file.GetBuffer(false), expected.GetData(), static_cast<std::size_t>(file.Size())), 0);
        }
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 10);
}

TEST(FailingMemory, a_raster_is_compressed_in_the_memory_that_is_there)
{
    CKxGifImage image(300, 200, 8);
    for (long y = 0; y < 200; ++y)
        for (long x = 0; x < 300; ++x)
            image.SetPixelIndex(x, y, static_cast<unsigned char>(x * y % 251));
    CKxMemFile file;
    ASSERT_TRUE(file.Open());
    requestsLeft = 0; // a stream's own growth takes the block that it has
    const bool done = image.Encode(&file);
    requestsLeft = -1;
    EXPECT_TRUE(done);
    EXPECT_GT(file.Size(), 20000);
}

TEST(FailingMemory, nothing_is_written_to_a_target_that_does_not_open)
{
    CKxGifImage image(3, 3, 8);
    CByteArray data;
    data.SetSize(7);
    unsigned char* buffer = nullptr;
    long size = 5;
    requestsLeft = 0;
    const bool toArray = image.Encode(data);
    const bool toPointer = image.Encode(buffer, size);
    requestsLeft = -1;
    EXPECT_FALSE(toArray);
    EXPECT_EQ(data.GetSize(), 0);
    EXPECT_FALSE(toPointer);
    EXPECT_EQ(buffer, nullptr);
    EXPECT_EQ(size, 5);
}

TEST(FailingMemory, a_stream_that_cannot_grow_refuses_the_write)
{
    unsigned char lent[3] = {1, 2, 3};
    CKxMemFile file(lent, 3);
    requestsLeft = 0; // a caller's buffer is left for one of the stream's own
    const std::size_t written = file.Write("abcdef", 1, 6);
    requestsLeft = -1;
    EXPECT_EQ(written, 0U);
    EXPECT_EQ(file.Tell(), 0);
    EXPECT_EQ(file.Size(), 3);
    EXPECT_EQ(lent[0], 1);
    EXPECT_EQ(file.Write("xy", 1, 2), 2U); // what fits is taken as before
    EXPECT_EQ(lent[1], 'y');
}

TEST(FailingMemory, a_caller_s_block_that_cannot_be_lent_stays_the_caller_s)
{
    unsigned char lent[3] = {1, 2, 3};
    requestsLeft = 0;
    CKxMemFile file(lent, 3);
    requestsLeft = -1;
    EXPECT_EQ(file.GetBuffer(false), nullptr);
    EXPECT_EQ(lent[2], 3);
}

TEST(FailingMemory, a_copy_goes_without_the_planes_that_cannot_be_had)
{
    ExposedImage source;
    source.Create(4, 4, 8);
    source.m_pSelection = SharedBytes::Allocate(16);
    source.m_pAlpha = SharedBytes::Allocate(16);
    ExposedImage copy;
    requestsLeft = 1; // for the pixels
    copy.Copy(source, true, true, true);
    requestsLeft = -1;
    EXPECT_TRUE(samePixels(copy, source));
    EXPECT_EQ(copy.m_pSelection.Get(), nullptr);
    EXPECT_EQ(copy.m_pAlpha.Get(), nullptr);
}

TEST(FailingMemory, a_stream_does_not_open_without_memory)
{
    CKxMemFile file;
    requestsLeft = 0;
    const bool open = file.Open();
    requestsLeft = -1;
    EXPECT_FALSE(open);
    EXPECT_EQ(file.Size(), -1);
}

TEST(FailingMemory, an_image_is_empty_without_memory)
{
    CKxGifImage image;
    requestsLeft = 0;
    const void* const block = image.Create(3, 3, 8);
    requestsLeft = -1;
    EXPECT_EQ(block, nullptr);
    EXPECT_FALSE(image.IsValid());
    EXPECT_EQ(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetPixelIndex(1, 1), 0);
}
#endif
