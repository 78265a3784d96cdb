// Image lists.
#include "Support.h"
#include "resource.h"

TEST(ImageList, is_made_of_a_strip_with_a_mask_colour)
{
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    EXPECT_EQ(3, images.GetImageCount());
    Canvas canvas;
    EXPECT_TRUE(images.Draw(&canvas.dc, 0, CPoint(0, 0), ILD_TRANSPARENT));
    EXPECT_EQ(red, canvas.dc.GetPixel(3, 3));
    EXPECT_TRUE(images.Draw(&canvas.dc, 2, CPoint(10, 0), ILD_TRANSPARENT));
    EXPECT_EQ(white, canvas.dc.GetPixel(13, 3)) << "the mask colour is not drawn";
    EXPECT_FALSE(images.Draw(&canvas.dc, 99, CPoint(0, 0), ILD_NORMAL));
    EXPECT_FALSE(images.Draw(nullptr, 0, CPoint(0, 0), ILD_NORMAL));
    EXPECT_FALSE(CImageList().Create(9999U, 8, 1, 0));
}

TEST(ImageList, pictures_are_added_replaced_and_removed)
{
    CImageList images;
    ASSERT_TRUE(images.Create(8, 6, ILC_COLOR32 | ILC_MASK, 0, 4));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    EXPECT_EQ(0, images.Add(&bitmap, static_cast<CBitmap*>(nullptr)));
    EXPECT_EQ(1, images.Add(&bitmap, RGB(1, 2, 3)));
    EXPECT_EQ(2, images.Add(::LoadIconW(nullptr, IDI_ERROR)));
    EXPECT_EQ(3, images.GetImageCount());
    CBitmap blue_one;
    ASSERT_TRUE(blue_one.LoadBitmap(L"PUSHD"));
    EXPECT_TRUE(images.Replace(0, &blue_one, nullptr));
    EXPECT_EQ(2, images.Replace(2, ::LoadIconW(nullptr, IDI_WARNING)));
    Canvas canvas;
    images.Draw(&canvas.dc, 0, CPoint(0, 0), ILD_NORMAL);
    EXPECT_EQ(blue, canvas.dc.GetPixel(2, 2));
    EXPECT_TRUE(images.Remove(0));
    EXPECT_FALSE(images.Remove(99));
    EXPECT_EQ(2, images.GetImageCount());
    EXPECT_TRUE(images.RemoveAll());
    EXPECT_EQ(0, images.GetImageCount());
    EXPECT_EQ(-1, images.Add(nullptr, RGB(0, 0, 0)));
    EXPECT_TRUE(images.SetImageCount(3));
    EXPECT_EQ(3, images.GetImageCount());
}

TEST(ImageList, ownership)
{
    CImageList images;
    ASSERT_TRUE(images.Create(8, 6, ILC_COLOR32, 1, 1));
    HIMAGELIST const handle = images.m_hImageList;
    EXPECT_EQ(&images, CImageList::FromHandle(handle));
    EXPECT_EQ(&images, CImageList::FromHandlePermanent(handle));
    EXPECT_FALSE(images.Create(8, 6, ILC_COLOR32, 1, 1)) << "it holds a list already";
    EXPECT_EQ(handle, images.Detach());
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(handle));
    EXPECT_NE(&images, CImageList::FromHandle(handle));
    EXPECT_TRUE(images.Attach(handle));
    EXPECT_TRUE(images.DeleteImageList());
    EXPECT_FALSE(images.DeleteImageList());
    CImageList* const none = nobody<CImageList>();
    EXPECT_EQ(nullptr, none->GetSafeHandle());
}

TEST(ImageList, icons_overlays_colours_and_copies)
{
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    HICON const icon = images.ExtractIcon(0);
    EXPECT_NE(nullptr, icon);
    EXPECT_TRUE(::DestroyIcon(icon));
    EXPECT_EQ(nullptr, images.ExtractIcon(99));
    EXPECT_TRUE(images.SetOverlayImage(1, 1));
    EXPECT_EQ(CLR_NONE, images.GetBkColor());
    EXPECT_EQ(CLR_NONE, images.SetBkColor(blue));
    EXPECT_EQ(blue, images.GetBkColor());
    IMAGEINFO info = {};
    EXPECT_TRUE(images.GetImageInfo(1, &info));
    EXPECT_EQ(8, info.rcImage.right - info.rcImage.left);
    EXPECT_FALSE(images.GetImageInfo(99, &info));
    EXPECT_FALSE(images.GetImageInfo(1, nullptr));
    CImageList copy;
    EXPECT_TRUE(copy.Create(&images));
    EXPECT_EQ(3, copy.GetImageCount());
    EXPECT_TRUE(images.Copy(0, 1, ILCF_SWAP));
    Canvas canvas;
    images.Draw(&canvas.dc, 0, CPoint(0, 0), ILD_NORMAL);
    EXPECT_EQ(green, canvas.dc.GetPixel(2, 2));
    CImageList merged;
    EXPECT_TRUE(merged.Create(images, 0, images, 1, 2, 2));
    EXPECT_EQ(1, merged.GetImageCount());
}

TEST(ImageList, drawing_in_all_forms)
{
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    Canvas canvas;
    EXPECT_TRUE(images.DrawEx(&canvas.dc, 1, CPoint(0, 0), CSize(4, 4), CLR_NONE, CLR_NONE, ILD_NORMAL));
    EXPECT_EQ(16, canvas.painted());
    EXPECT_TRUE(images.DrawIndirect(&canvas.dc, 1, CPoint(10, 0), CSize(8, 8), CPoint(0, 0)));
    EXPECT_EQ(green, canvas.dc.GetPixel(12, 2));
    EXPECT_FALSE(images.DrawIndirect(nullptr));
}

TEST(ImageList, dragging_begins_and_ends)
{
    CParentWindow parent;
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255)));
    EXPECT_TRUE(images.BeginDrag(0, CPoint(1, 1)));
    EXPECT_TRUE(CImageList::DragEnter(&parent, CPoint(10, 10)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(20, 20)));
    POINT at = {};
    POINT hot = {};
    EXPECT_NE(nullptr, CImageList::GetDragImage(&at, &hot));
    EXPECT_EQ(CPoint(20, 20), CPoint(at));
    EXPECT_EQ(CPoint(1, 1), CPoint(hot));
    EXPECT_TRUE(CImageList::DragShowNolock(FALSE));
    EXPECT_TRUE(CImageList::DragLeave(&parent));
    CImageList::EndDrag();
}

TEST(ImageList, a_thousand_lists_leave_no_gdi_object)
{
    const auto cycle = []
    {
        CImageList images;
        images.Create(IDB_STRIP, 8, 1, RGB(255, 0, 255));
    };
    cycle();
    const int before = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        cycle();
    EXPECT_EQ(before, gdiObjectCount());
}
