// Drawing one bitmap: opaque, by colour key, by mask; the mask that is kept and shared.
#include "oxa/images/KxImage.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>

#include "PictureHost.h"
#include "support/LeakCounters.h"

namespace
{
const Colors opaqueTop = {red, green, nearlyGreen};
const Colors opaqueBottom = {green, blue, white};
const Colors keyedTop = {red, grey, nearlyGreen};
const Colors keyedBottom = {grey, blue, white};

// The two rows of the picture where it was drawn, at 2, 1.
Colors top(const Canvas& canvas)
{
    return canvas.row(1, 2, 3);
}
Colors bottom(const Canvas& canvas)
{
    return canvas.row(2, 2, 3);
}

struct Keyed : CBitmap
{
    Keyed() { LoadBitmap(IDB_KEYED); }
};

// A legal way to the private operation that no other operation calls.
using TransparentBltMember = void (CKxImage::*)(CDC*, long, long, CBitmap*, COLORREF);
TransparentBltMember transparentBlt();
template <TransparentBltMember member> struct Reach
{
    friend TransparentBltMember transparentBlt() { return member; }
};
template struct Reach<&CKxImage::TransparentBlt>;
} // namespace

TEST(Image, opaque_paints_green_pixels_green)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage(&canvas, &bitmap, 2, 1).DrawBitmap(false);
    EXPECT_EQ(top(canvas), opaqueTop);
    EXPECT_EQ(bottom(canvas), opaqueBottom);
    EXPECT_EQ(canvas.countOther(grey), 6);
}

TEST(Image, opaque_by_id_paints_the_same)
{
    Canvas canvas;
    CKxImage(&canvas, IDB_KEYED, 2, 1).DrawBitmap(false);
    EXPECT_EQ(top(canvas), opaqueTop);
    EXPECT_EQ(bottom(canvas), opaqueBottom);
    EXPECT_EQ(canvas.countOther(grey), 6);
}

TEST(Image, transparent_shows_the_target_where_the_bitmap_is_pure_green_and_nowhere_else)
{
    for (const bool byId : {false, true})
    {
        Canvas canvas;
        Keyed bitmap;
        CKxImage image = byId ? CKxImage(&canvas, IDB_KEYED, 2, 1) : CKxImage(&canvas, &bitmap, 2, 1);
        image.SetTransparent(1);
        image.DrawBitmap(false);
        EXPECT_EQ(top(canvas), keyedTop) << byId;
        EXPECT_EQ(bottom(canvas), keyedBottom) << byId;
        EXPECT_EQ(canvas.countOther(grey), 4) << byId;
    }
}

TEST(Image, transparent_is_any_number_but_0_and_can_be_taken_back)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 2, 1);
    image.SetTransparent(-5);
    image.DrawBitmap(false);
    EXPECT_EQ(top(canvas), keyedTop);
    image.SetTransparent(0);
    image.DrawBitmap(false);
    EXPECT_EQ(top(canvas), opaqueTop);
}

TEST(Image, with_the_mask_green_pixels_keep_the_target_transparent_or_not)
{
    for (const int transparent : {0, 1})
    {
        Canvas canvas;
        Keyed bitmap;
        CKxImage image(&canvas, &bitmap, 2, 1);
        image.SetTransparent(transparent);
        image.DrawBitmap(true);
        EXPECT_EQ(top(canvas), keyedTop);
        EXPECT_EQ(bottom(canvas), keyedBottom);
        EXPECT_EQ(canvas.countOther(grey), 4);
    }
}

TEST(Image, with_the_mask_an_id_draws_nothing) // kept on purpose
{
    Canvas canvas;
    CKxImage(&canvas, IDB_KEYED, 2, 1).DrawBitmap(true);
    EXPECT_EQ(canvas.countOther(grey), 0);
}

TEST(Image, keeps_the_mask_of_a_bitmap_between_two_draws)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 2, 1);
    image.SetTransparent(1);
    image.DrawBitmap(false);
    setPixelOf(bitmap, 1, 0, white);
    setPixelOf(bitmap, 0, 0, green);
    canvas.fill(grey);
    image.DrawBitmap(false);
    EXPECT_EQ(top(canvas), (Colors{green, grey, nearlyGreen}));
}

TEST(Image, a_masked_draw_makes_the_mask_anew_and_forgets_it)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 2, 1);
    image.SetTransparent(1);
    image.DrawBitmap(false);
    setPixelOf(bitmap, 1, 0, white);
    image.DrawBitmap(true);
    EXPECT_EQ(top(canvas), (Colors{red, white, nearlyGreen}));
    setPixelOf(bitmap, 1, 0, blue);
    image.DrawBitmap(false);
    EXPECT_EQ(top(canvas), (Colors{red, blue, nearlyGreen}));
}

TEST(Image, copies_share_the_mask_and_it_is_deleted_once)
{
    Canvas canvas;
    Keyed bitmap;
    const int before = gdiObjectCount();
    {
        std::optional<CKxImage> first(std::in_place, &canvas, &bitmap, 2, 1);
        first->SetTransparent(1);
        first->DrawBitmap(false);
        EXPECT_EQ(gdiObjectCount(), before + 1);
        CKxImage second(*first);
        CKxImage third(&canvas, IDB_KEYED, 0, 0);
        third = second;
        EXPECT_EQ(gdiObjectCount(), before + 1);
        first.reset();
        setPixelOf(bitmap, 1, 0, white);
        canvas.fill(grey);
        third.DrawBitmap(false);
        EXPECT_EQ(top(canvas), keyedTop);
        second.DrawBitmap(true);
        EXPECT_EQ(top(canvas), (Colors{red, white, nearlyGreen}));
        canvas.fill(grey);
        third.DrawBitmap(false);
        EXPECT_EQ(top(canvas), keyedTop);
    }
    EXPECT_EQ(gdiObjectCount(), before);
}

TEST(Image, a_copy_has_place_bitmap_and_transparency)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 2, 1);
    image.SetTransparent(1);
    const CKxImage& source = image;
    CKxImage copy(source);
    copy.DrawBitmap(false);
    EXPECT_EQ(top(canvas), keyedTop);
    CKxImage& same = copy;
    copy = same;
    canvas.fill(grey);
    copy.DrawBitmap(false);
    EXPECT_EQ(top(canvas), keyedTop);
}

TEST(Image, what_cannot_be_drawn_has_no_effect)
{
    Canvas canvas;
    CDC noContext;
    CBitmap noHandle;
    Keyed bitmap;
    for (const bool masked : {false, true})
    {
        for (const int transparent : {0, 1})
        {
            CKxImage images[] = {
                CKxImage(&canvas, IDP_MISSING, 2, 1),
                CKxImage(&canvas, 0, 2, 1),
                CKxImage(&canvas, -1, 2, 1),
                CKxImage(&canvas, &noHandle, 2, 1),
                CKxImage(nullptr, &bitmap, 2, 1),
                CKxImage(&noContext, &bitmap, 2, 1),
                CKxImage(&canvas, static_cast<CBitmap*>(nullptr), 2, 1),
                CKxImage(&canvas, &bitmap, INT_MAX, 1),
                CKxImage(&canvas, &bitmap, 2, INT_MIN),
            };
            for (CKxImage& image : images)
            {
                image.SetTransparent(transparent);
                image.DrawBitmap(masked);
                image.DrawBitmap(masked);
            }
        }
    }
    EXPECT_EQ(canvas.countOther(grey), 0);
}

TEST(Image, a_bitmap_that_shrank_or_went_away_after_the_mask_was_made_is_safe)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 2, 1);
    image.SetTransparent(1);
    image.DrawBitmap(false);
    bitmap.DeleteObject();
    canvas.fill(grey);
    image.DrawBitmap(false);
    EXPECT_EQ(canvas.countOther(grey), 0);
    bitmap.Attach(::CreateCompatibleBitmap(canvas.GetSafeHdc(), 1, 1));
    image.DrawBitmap(false);
    EXPECT_EQ(canvas.row(0, 0, 8), Colors(8, grey));
}

TEST(Image, drawing_at_the_edge_is_clipped)
{
    Canvas canvas;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 7, 5);
    image.SetTransparent(1);
    image.DrawBitmap(false);
    EXPECT_EQ(canvas.at(7, 5), red);
    EXPECT_EQ(canvas.countOther(grey), 1);
}

TEST(Image, the_brush_method_gives_key_pixels_the_background_of_the_target)
{
    Canvas canvas;
    canvas.SetBkColor(yellow);
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 0, 0);
    (image.*transparentBlt())(&canvas, 2, 1, &bitmap, nearlyGreen);
    EXPECT_EQ(top(canvas), (Colors{red, green, yellow}));
    EXPECT_EQ(bottom(canvas), opaqueBottom);
    EXPECT_EQ(canvas.GetBkColor(), yellow);
}

TEST(Image, the_brush_method_mixes_the_brush_by_the_bits_of_the_background_colour)
{
    Canvas canvas;
    canvas.SetBkColor(yellow);
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 0, 0);
    image.SetBackGroundColor(RGB(0, 255, 0)); // only the green part comes from the brush
    (image.*transparentBlt())(&canvas, 2, 1, &bitmap, blue);
    EXPECT_EQ(bottom(canvas), (Colors{green, RGB(0, 255, 255), white}));
}

TEST(Image, the_brush_method_does_nothing_without_a_bitmap_or_a_context)
{
    Canvas canvas;
    CBitmap noHandle;
    Keyed bitmap;
    CKxImage image(&canvas, &bitmap, 0, 0);
    (image.*transparentBlt())(&canvas, 2, 1, &noHandle, blue);
    (image.*transparentBlt())(&canvas, 2, 1, nullptr, blue);
    (image.*transparentBlt())(nullptr, 2, 1, &bitmap, blue);
    EXPECT_EQ(canvas.countOther(grey), 0);
}

TEST(Image, a_thousand_draws_of_every_kind_leave_nothing_behind)
{
    Canvas canvas;
    Keyed bitmap;
    const int before = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
    {
        CKxImage image(&canvas, &bitmap, 2, 1);
        image.DrawBitmap(false);
        image.DrawBitmap(true);
        image.SetTransparent(1);
        image.DrawBitmap(false);
        CKxImage byId(&canvas, i % 2 == 0 ? IDB_KEYED : IDP_MISSING, 2, 1);
        byId.DrawBitmap(false);
        byId.SetTransparent(1);
        byId.DrawBitmap(false);
        (image.*transparentBlt())(&canvas, 2, 1, &bitmap, blue);
    }
    EXPECT_EQ(gdiObjectCount(), before);
}

TEST(ImageFromBuffer, draws_the_picture_stretched_into_the_rectangle_upright)
{
    Canvas canvas;
    PictureBytes bytes = resourceBytes(IDP_QUARTERS);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), bytes.size(), &canvas, CRect(2, 1, 6, 3), white), 1);
    EXPECT_EQ(canvas.row(1, 1, 6), (Colors{grey, red, red, blue, blue, grey}));
    EXPECT_EQ(canvas.row(2, 1, 6), (Colors{grey, white, white, yellow, yellow, grey}));
    EXPECT_EQ(canvas.countOther(grey), 8);
}

TEST(ImageFromBuffer, fills_behind_transparent_pixels)
{
    Canvas canvas;
    PictureBytes bytes = resourceBytes(IDP_HALF);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), bytes.size(), &canvas, CRect(0, 0, 2, 1), blue), 1);
    EXPECT_EQ(canvas.row(0, 0, 3), (Colors{red, blue, grey}));
}

TEST(ImageFromBuffer, is_0_for_what_it_cannot_draw)
{
    Canvas canvas;
    PictureBytes bytes = resourceBytes(IDP_QUARTERS);
    PictureBytes broken = resourceBytes(IDP_BROKEN);
    const CRect room(0, 0, 4, 4);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), bytes.size(), nullptr, room, white), 0);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(nullptr, bytes.size(), &canvas, room, white), 0);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), 0, &canvas, room, white), 0);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(broken.data(), broken.size(), &canvas, room, white), 0);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), bytes.size(), &canvas, CRect(3, 3, 3, 3), white), 0);
    EXPECT_EQ(CKxImage::DrawImageFromBuffer(bytes.data(), bytes.size(), &canvas, CRect(4, 4, 0, 0), white), 0);
    EXPECT_EQ(canvas.countOther(grey), 0);
}
