// Pictures from strangers: damaged, cut short, with headers that lie; and nothing left behind by a thousand loads.
#include "oxa/images/KxPictureEx.h"

#include <gtest/gtest.h>

#include "PictureHost.h"
#include "support/LeakCounters.h"

namespace
{
/// An icon file with one image of 2 by 2 true-colour pixels.
PictureBytes iconFile()
{
    PictureBytes bytes = {0, 0, 1, 0, 1, 0, 2, 2, 0, 0, 1, 0, 24, 0, 64, 0, 0, 0, 22, 0, 0, 0};
    const PictureBytes image = {40, 0, 0,   0, 2, 0, 0, 0,   4, 0, 0, 0,   1, 0,   24,  0,   0, 0, 0,
                                0,  0, 0,   0, 0, 0, 0, 0,   0, 0, 0, 0,   0, 0,   0,   0,   0, 0, 0,
                                0,  0, 255, 0, 0, 0, 0, 255, 0, 0, 0, 255, 0, 255, 255, 255, 0, 0, // two rows of pixels
                                0,  0, 0,   0, 0, 0, 0, 0};                                        // two rows of mask
    bytes.insert(bytes.end(), image.begin(), image.end());
    return bytes;
}

/// Loads a copy of the bytes that ends where they end; the result, which must agree with what is attached.
int load(const PictureBytes& bytes)
{
    const Canvas canvas;
    CBitmap bitmap;
    PictureBytes copy(bytes);
    copy.shrink_to_fit();
    const int result = CKxPictureEx::LoadPicture(copy.data(), copy.size(), canvas.GetSafeHdc(), 4, 4, bitmap, white);
    if (result != 0)
    {
        EXPECT_EQ(sizeOf(bitmap), CSize(4, 4));
    }
    return result;
}

struct Seed
{
    const char* name;
    PictureBytes bytes;
    size_t needed; // a shorter file is refused
};

std::vector<Seed> seeds()
{
    return {
        {"bitmap", resourceBytes(IDP_QUARTERS), 70}, {"gif", resourceBytes(IDP_HALF), 19}, {"icon", iconFile(), 86}};
}

/// The blocks in use of the process's heap, global blocks among them.
int heapBlocks()
{
    PROCESS_HEAP_ENTRY entry = {};
    int count = 0;
    ::HeapLock(::GetProcessHeap());
    while (::HeapWalk(::GetProcessHeap(), &entry))
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    ::HeapUnlock(::GetProcessHeap());
    return count;
}
} // namespace

TEST(HostilePicture, every_seed_loads_when_it_is_whole)
{
    for (const Seed& seed : seeds())
        EXPECT_EQ(load(seed.bytes), 1) << seed.name;
}

TEST(HostilePicture, every_prefix_is_refused_or_drawn)
{
    for (const Seed& seed : seeds())
        for (size_t size = 1; size < seed.bytes.size(); ++size)
        {
            const int result =
                load(PictureBytes(seed.bytes.begin(), seed.bytes.begin() + static_cast<ptrdiff_t>(size)));
            if (size < seed.needed)
            {
                EXPECT_EQ(result, 0) << seed.name << " of " << size << " bytes";
            }
        }
}

TEST(HostilePicture, every_single_bit_flip_is_refused_or_drawn)
{
    int drawn = 0;
    for (const Seed& seed : seeds())
        for (size_t bit = 0; bit < seed.bytes.size() * 8; ++bit)
        {
            PictureBytes bytes = seed.bytes;
            bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ (1U << (bit % 8)));
            drawn += load(bytes);
        }
    EXPECT_GT(drawn, 0);
}

TEST(HostilePicture, offsets_far_outside_are_refused)
{
    struct Lie
    {
        const char* what;
        size_t at;
        unsigned long value;
    };
    for (const Lie& lie :
         {Lie{"pixels behind the end", 10, 71}, Lie{"pixels far away", 10, 0x7FFFFFFF},
          Lie{"pixels before the start", 10, 0xFFFFFF00}, Lie{"width", 18, 0x7FFFFFFF},
          Lie{"negative width", 18, 0xFFFFFFFE}, Lie{"no width", 18, 0}, Lie{"height", 22, 0x7FFFFFFF},
          Lie{"least height", 22, 0x80000000}, Lie{"no height", 22, 0}, Lie{"header size", 14, 0xFFFFFFFF}})
    {
        PictureBytes bytes = resourceBytes(IDP_QUARTERS);
        for (size_t i = 0; i < 4; ++i)
            bytes[lie.at + i] = static_cast<unsigned char>(lie.value >> (8 * i));
        EXPECT_EQ(load(bytes), 0) << lie.what;
        const TemporaryFile file(L"lie.bmp", &bytes);
        const Canvas canvas;
        CBitmap bitmap;
        EXPECT_EQ(CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), 4, 4, bitmap), 0) << lie.what;
    }
    PictureBytes icon = iconFile();
    icon[18] = 200;
    EXPECT_EQ(load(icon), 0);
    icon = iconFile();
    icon[4] = 2;
    EXPECT_EQ(load(icon), 0);
}

// The platform's decoder has ended the program over such an image.
TEST(HostilePicture, a_gif_without_any_colour_table_begins_with_black_and_white)
{
    const Canvas canvas;
    PictureBytes bytes = resourceBytes(IDP_HALF);
    const int tableSize = 3 << ((bytes[10] & 7) + 1);
    bytes[10] = 0;
    bytes.erase(bytes.begin() + 13, bytes.begin() + 13 + tableSize);
    PictureBytes behindMark = {'l', 't', 0, 0, static_cast<unsigned char>(bytes.size()), 0, 0, 0};
    behindMark.insert(behindMark.end(), bytes.begin(), bytes.end());
    for (const PictureBytes& each : {bytes, behindMark})
    {
        EXPECT_EQ(load(each), 1);
        const TemporaryFile file(L"tableless.gif", &each);
        CBitmap bitmap;
        EXPECT_EQ(CKxPictureEx::LoadBitmapPath(file.path, canvas.GetSafeHdc(), 4, 4, bitmap, yellow), 1);
        EXPECT_EQ(pixelOf(bitmap, 0, 0), RGB(0, 0, 0));
        EXPECT_EQ(pixelOf(bitmap, 3, 0), yellow); // transparent
    }
}

TEST(HostilePicture, an_empty_file_is_refused)
{
    const PictureBytes nothing;
    const TemporaryFile file(L"empty.bmp", &nothing);
    const Canvas canvas;
    CBitmap bitmap;
    EXPECT_EQ(CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), 4, 4, bitmap), 0);
    EXPECT_EQ(CKxPictureEx::LoadBitmapPath(file.path, canvas.GetSafeHdc(), 4, 4, bitmap, white), 0);
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
}

TEST(HostilePicture, a_thousand_loads_leave_no_handle_no_picture_and_no_global_block)
{
    const std::vector<Seed> all = seeds();
    const PictureBytes broken = resourceBytes(IDP_BROKEN);
    const TemporaryFile file(L"quarters.bmp", &all[0].bytes);
    const TemporaryFile saved(L"saved.bmp");
    const Canvas canvas;
    const auto round = [&](int i)
    {
        load(all[static_cast<size_t>(i) % all.size()].bytes);
        load(broken);
        CBitmap bitmap;
        HBITMAP handle = nullptr;
        CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), 4, 4, bitmap);
        CKxPictureEx::LoadBitmap(IDP_QUARTERS, canvas.GetSafeHdc(), 4, 4, handle, L"BINARY");
        ::DeleteObject(handle);
        CKxPictureEx::LoadBitmap(IDP_QUARTERS, canvas.GetSafeHdc(), 0, 0, handle, L"BINARY");
        if (i % 10 == 0)
            CKxPictureEx::SaveBitmap(IDP_QUARTERS, saved.path);
    };
    for (int i = 0; i < 30; ++i)
        round(i);
    const int handles = gdiObjectCount();
    const int kernelHandles = kernelHandleCount();
    const int blocks = heapBlocks();
    for (int i = 0; i < 1000; ++i)
        round(i);
    EXPECT_EQ(gdiObjectCount(), handles);
    EXPECT_NEAR(kernelHandleCount(), kernelHandles, 5);
    EXPECT_NEAR(heapBlocks(), blocks, 90); // fewer than one for every eleventh round
}
