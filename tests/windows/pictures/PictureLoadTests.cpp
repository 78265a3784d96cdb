// Loading pictures into bitmaps: from resources, paths and memory; size, background, failures; saving.
#include "oxa/images/KxPictureEx.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <functional>
#include <string>
#include <tuple>

#include "PictureHost.h"
#include "oxa/images/KxStaticPictureEx2.h"

namespace
{
struct Source
{
    const char* name;
    std::function<int(HDC, int, int, CBitmap&)> load;
    bool fills; // with the background
};

PictureBytes& quarters()
{
    static PictureBytes bytes = resourceBytes(IDP_QUARTERS);
    return bytes;
}

PictureBytes& half()
{
    static PictureBytes bytes = resourceBytes(IDP_HALF);
    return bytes;
}

int loadHandle(HBITMAP handle, int result, CBitmap& bitmap)
{
    if (handle != nullptr)
        bitmap.Attach(handle);
    return result;
}

// Every operation that loads, for the picture of one resource and one file.
std::vector<Source> sources(int id, PictureBytes& bytes, const CString& path)
{
    return {
        {"id, handle",
         [id](HDC dc, int w, int h, CBitmap& bitmap)
         {
             HBITMAP handle = nullptr;
             const int result = CKxPictureEx::LoadBitmap(static_cast<unsigned>(id), dc, w, h, handle, L"BINARY");
             return loadHandle(handle, result, bitmap);
         },
         false},
        {"id, object",
         [id](HDC dc, int w, int h, CBitmap& bitmap)
         { return CKxPictureEx::LoadBitmap(static_cast<unsigned>(id), dc, w, h, bitmap, L"BINARY"); },
         false},
        {"path, handle",
         [path](HDC dc, int w, int h, CBitmap& bitmap)
         {
             HBITMAP handle = nullptr;
             const int result = CKxPictureEx::LoadBitmap(path, dc, w, h, handle);
             return loadHandle(handle, result, bitmap);
         },
         false},
        {"path, object",
         [path](HDC dc, int w, int h, CBitmap& bitmap) { return CKxPictureEx::LoadBitmap(path, dc, w, h, bitmap); },
         false},
        {"path, filled",
         [path](HDC dc, int w, int h, CBitmap& bitmap)
         { return CKxPictureEx::LoadBitmapPath(path, dc, w, h, bitmap, blue); },
         true},
        {"memory, filled",
         [&bytes](HDC dc, int w, int h, CBitmap& bitmap)
         { return CKxPictureEx::LoadPicture(bytes.data(), bytes.size(), dc, w, h, bitmap, blue); },
         true},
    };
}

/// A bitmap file of 24 bits, black.
PictureBytes bitmapFile(int width, int height)
{
    const int stride = (width * 3 + 3) / 4 * 4;
    PictureBytes file(static_cast<size_t>(54 + stride * height), 0);
    file[0] = 'B';
    file[1] = 'M';
    file[10] = 54;
    file[14] = 40;
    file[18] = static_cast<unsigned char>(width);
    file[22] = static_cast<unsigned char>(height);
    file[26] = 1;
    file[28] = 24;
    return file;
}

void setFilePixel(PictureBytes& file, int width, int x, int y, COLORREF color)
{
    const int stride = (width * 3 + 3) / 4 * 4;
    unsigned char* pixel = &file[static_cast<size_t>(54 + y * stride + x * 3)];
    pixel[0] = GetBValue(color);
    pixel[1] = GetGValue(color);
    pixel[2] = GetRValue(color);
}
} // namespace

TEST(PictureLoad, stretches_every_source_upright_to_the_size_asked_for)
{
    const TemporaryFile file(L"quarters.bmp", &quarters());
    const Canvas canvas;
    for (const Source& source : sources(IDP_QUARTERS, quarters(), file.path))
    {
        CBitmap bitmap;
        ASSERT_EQ(source.load(canvas.GetSafeHdc(), 20, 10, bitmap), 1) << source.name;
        EXPECT_EQ(sizeOf(bitmap), CSize(20, 10)) << source.name;
        for (const auto& [x, y, color] :
             {std::tuple(0, 0, red), std::tuple(9, 4, red), std::tuple(10, 0, blue), std::tuple(19, 4, blue),
              std::tuple(0, 5, white), std::tuple(9, 9, white), std::tuple(10, 5, yellow), std::tuple(19, 9, yellow)})
            EXPECT_EQ(pixelOf(bitmap, x, y), color) << source.name << " at " << x << ", " << y;
    }
}

TEST(PictureLoad, a_smaller_picture_has_no_colour_that_the_file_has_not)
{
    PictureBytes stripes = bitmapFile(9, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 9; ++x)
            setFilePixel(stripes, 9, x, y, x % 2 == 0 ? red : blue);
    const TemporaryFile file(L"stripes.bmp", &stripes);
    const Canvas canvas;
    for (const int width : {1, 2, 4, 7})
    {
        CBitmap fromMemory, fromPath;
        ASSERT_EQ(1, CKxPictureEx::LoadPicture(stripes.data(), stripes.size(), canvas.GetSafeHdc(), width, 2,
                                               fromMemory, white));
        ASSERT_EQ(1, CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), width, 2, fromPath));
        for (int x = 0; x < width; ++x)
            for (const CBitmap* bitmap : {&fromMemory, &fromPath})
            {
                const COLORREF color = pixelOf(*bitmap, x, 1);
                EXPECT_TRUE(color == red || color == blue) << std::hex << color << " at " << x << " of " << width;
            }
    }
}

TEST(PictureLoad, fills_behind_transparent_pixels_or_leaves_the_new_bitmap_as_it_is)
{
    const TemporaryFile file(L"half.gif", &half());
    const Canvas canvas;
    CBitmap fresh;
    fresh.Attach(::CreateCompatibleBitmap(canvas.GetSafeHdc(), 4, 2));
    const COLORREF leftAlone = pixelOf(fresh, 3, 1);
    ASSERT_NE(leftAlone, blue);
    for (const Source& source : sources(IDP_HALF, half(), file.path))
    {
        CBitmap bitmap;
        ASSERT_EQ(source.load(canvas.GetSafeHdc(), 4, 2, bitmap), 1) << source.name;
        EXPECT_EQ(pixelOf(bitmap, 0, 0), red) << source.name;
        EXPECT_EQ(pixelOf(bitmap, 1, 1), red) << source.name;
        EXPECT_EQ(pixelOf(bitmap, 2, 0), source.fills ? blue : leftAlone) << source.name;
        EXPECT_EQ(pixelOf(bitmap, 3, 1), source.fills ? blue : leftAlone) << source.name;
    }
}

TEST(PictureLoad, replaces_the_bitmap_that_the_object_held)
{
    const TemporaryFile file(L"quarters.bmp", &quarters());
    const Canvas canvas;
    for (const Source& source : sources(IDP_QUARTERS, quarters(), file.path))
    {
        if (std::string(source.name).find("handle") != std::string::npos)
            continue;
        CBitmap bitmap;
        bitmap.CreateBitmap(1, 1, 1, 1, nullptr);
        ASSERT_EQ(source.load(canvas.GetSafeHdc(), 6, 4, bitmap), 1) << source.name;
        EXPECT_EQ(sizeOf(bitmap), CSize(6, 4)) << source.name;
    }
}

TEST(PictureLoad, what_is_no_picture_gives_0_and_attaches_nothing)
{
    PictureBytes broken = resourceBytes(IDP_BROKEN);
    const TemporaryFile file(L"broken.bmp", &broken);
    const Canvas canvas;
    for (const Source& source : sources(IDP_BROKEN, broken, file.path))
    {
        CBitmap bitmap;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), 4, 2, bitmap), 0) << source.name;
        EXPECT_EQ(bitmap.GetSafeHandle(), nullptr) << source.name;
    }
}

TEST(PictureLoad, a_missing_resource_or_file_gives_0)
{
    const TemporaryFile file(L"missing.bmp");
    const Canvas canvas;
    for (const CString& path : {file.path, CString(), CString(L"not a path"), CString(L"file:///nowhere/at/all.bmp")})
    {
        PictureBytes nothing;
        for (const Source& source : sources(IDP_MISSING, nothing, path))
        {
            CBitmap bitmap;
            EXPECT_EQ(source.load(canvas.GetSafeHdc(), 4, 2, bitmap), 0) << source.name;
            EXPECT_EQ(bitmap.GetSafeHandle(), nullptr) << source.name;
        }
    }
}

TEST(PictureLoad, the_resource_is_looked_for_under_the_given_type)
{
    const Canvas canvas;
    CBitmap bitmap;
    EXPECT_EQ(CKxPictureEx::LoadBitmap(IDP_QUARTERS, canvas.GetSafeHdc(), 4, 4, bitmap, L"PICTURE"), 1);
    EXPECT_EQ(CKxPictureEx::LoadBitmap(IDP_HALF, canvas.GetSafeHdc(), 4, 4, bitmap, L"PICTURE"), 0);
    EXPECT_EQ(CKxPictureEx::LoadBitmap(IDP_QUARTERS, canvas.GetSafeHdc(), 4, 4, bitmap, L""), 0);
}

TEST(PictureLoad, no_context_or_a_size_that_no_bitmap_has_gives_0)
{
    const TemporaryFile file(L"quarters.bmp", &quarters());
    const Canvas canvas;
    for (const Source& source : sources(IDP_QUARTERS, quarters(), file.path))
    {
        CBitmap bitmap;
        EXPECT_EQ(source.load(nullptr, 4, 4, bitmap), 0) << source.name;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), INT_MAX, INT_MAX, bitmap), 0) << source.name;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), -4, 4, bitmap), 0) << source.name;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), 4, INT_MIN, bitmap), 0) << source.name;
        EXPECT_EQ(bitmap.GetSafeHandle(), nullptr) << source.name;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), 0, 4, bitmap), 0) << source.name;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), 4, 0, bitmap), 0) << source.name;
    }
}

TEST(PictureLoad, a_picture_that_cannot_be_drawn_leaves_a_filled_bitmap_and_no_plain_one)
{
    const TemporaryFile file(L"quarters.bmp", &quarters());
    const Canvas canvas;
    for (const Source& source : sources(IDP_QUARTERS, quarters(), file.path))
    {
        CBitmap bitmap;
        EXPECT_EQ(source.load(canvas.GetSafeHdc(), 0, 0, bitmap), 0) << source.name;
        EXPECT_EQ(bitmap.GetSafeHandle() != nullptr, source.fills) << source.name;
        CBitmap older;
        older.CreateBitmap(3, 3, 1, 1, nullptr);
        const bool isObject = std::string(source.name).find("handle") == std::string::npos;
        if (isObject)
        {
            EXPECT_EQ(source.load(canvas.GetSafeHdc(), 0, 0, older), 0) << source.name;
            EXPECT_NE(sizeOf(older), CSize(3, 3)) << source.name; // it made room for the one that failed
        }
    }
    HBITMAP handle = reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(-1));
    EXPECT_EQ(CKxPictureEx::LoadBitmap(IDP_QUARTERS, canvas.GetSafeHdc(), 0, 0, handle, L"BINARY"), 0);
    EXPECT_EQ(handle, nullptr);
}

TEST(PictureLoad, memory_of_size_0_or_null_gives_0_and_attaches_nothing)
{
    const Canvas canvas;
    CBitmap bitmap;
    EXPECT_EQ(CKxPictureEx::LoadPicture(quarters().data(), 0, canvas.GetSafeHdc(), 4, 4, bitmap, blue), 0);
    EXPECT_EQ(CKxPictureEx::LoadPicture(nullptr, 70, canvas.GetSafeHdc(), 4, 4, bitmap, blue), 0);
    EXPECT_EQ(CKxPictureEx::LoadPicture(nullptr, 0, canvas.GetSafeHdc(), 4, 4, bitmap, blue), 0);
    EXPECT_EQ(CKxPictureEx::LoadPicture(quarters().data(), SIZE_MAX, canvas.GetSafeHdc(), 4, 4, bitmap, blue), 0);
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
}

TEST(PictureSave, writes_the_resource_as_a_picture_file_that_loads_again)
{
    const TemporaryFile file(L"saved.bmp");
    ASSERT_EQ(CKxPictureEx::SaveBitmap(IDP_QUARTERS, file.path), 1);
    const Canvas canvas;
    CBitmap bitmap;
    ASSERT_EQ(CKxPictureEx::LoadBitmap(file.path, canvas.GetSafeHdc(), 2, 2, bitmap), 1);
    EXPECT_EQ(pixelOf(bitmap, 0, 0), red);
    EXPECT_EQ(pixelOf(bitmap, 1, 0), blue);
    EXPECT_EQ(pixelOf(bitmap, 0, 1), white);
    EXPECT_EQ(pixelOf(bitmap, 1, 1), yellow);
}

TEST(PictureSave, keeps_the_format_of_the_resource)
{
    const TemporaryFile file(L"saved.gif");
    ASSERT_EQ(CKxPictureEx::SaveBitmap(IDP_HALF, file.path), 1);
    EXPECT_EQ(file.content(), half());
}

TEST(PictureSave, replaces_an_older_longer_file)
{
    const PictureBytes older(5000, 'x');
    const TemporaryFile file(L"older.bmp", &older);
    ASSERT_EQ(CKxPictureEx::SaveBitmap(IDP_QUARTERS, file.path), 1);
    EXPECT_EQ(file.content(), quarters());
}

TEST(PictureSave, is_0_without_path_resource_or_picture_and_for_a_file_that_cannot_be_written)
{
    const TemporaryFile file(L"unsaved.bmp");
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_QUARTERS, CString()), 0);
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_MISSING, CString()), 0);
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_MISSING, file.path), 0);
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDB_KEYED, file.path), 0);
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_BROKEN, file.path), 0);
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_SHORT, file.path), 0);
    EXPECT_FALSE(file.exists());
    EXPECT_EQ(CKxPictureEx::SaveBitmap(IDP_QUARTERS, file.path + L"\\no\\such\\folder.bmp"), 0);
}

TEST(FixedSizePicture, loads_the_resource_always_at_235_by_182)
{
    CBitmap bitmap;
    CKxStaticPictureEx2 loader(bitmap, IDP_QUARTERS, CString(), L"BINARY");
    EXPECT_EQ(sizeOf(bitmap), CSize(235, 182));
    EXPECT_EQ(pixelOf(bitmap, 0, 0), red);
    EXPECT_EQ(pixelOf(bitmap, 234, 181), yellow);
    EXPECT_EQ(loader.SetBitmapID(IDP_MISSING, bitmap, L"BINARY"), 0);
    EXPECT_EQ(loader.SetBitmapID(IDP_HALF, bitmap, L"BINARY"), 1);
    EXPECT_EQ(sizeOf(bitmap), CSize(235, 182));
    EXPECT_EQ(pixelOf(bitmap, 0, 181), red);
}

TEST(FixedSizePicture, takes_the_path_when_both_are_given)
{
    const TemporaryFile file(L"half.gif", &half());
    CBitmap bitmap;
    CKxStaticPictureEx2 loader(bitmap, IDP_QUARTERS, file.path, L"BINARY");
    EXPECT_EQ(sizeOf(bitmap), CSize(235, 182));
    EXPECT_EQ(pixelOf(bitmap, 0, 181), red); // white in the resource
    EXPECT_EQ(loader.SetBitmapPath(L"nothing here", bitmap), 0);
}

TEST(FixedSizePicture, loads_nothing_without_path_and_id_and_not_the_id_when_the_path_fails)
{
    CBitmap bitmap;
    const CKxStaticPictureEx2 nothing(bitmap, 0, CString(), L"BINARY");
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
    const CKxStaticPictureEx2 failing(bitmap, IDP_QUARTERS, L"nothing here", L"BINARY");
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
}
