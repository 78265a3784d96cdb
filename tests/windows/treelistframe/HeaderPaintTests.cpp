// The painting of header items, by pixels.
#include <gtest/gtest.h>
#include "FrameHost.h"

namespace
{
constexpr COLORREF white = 0x00FFFFFF;
constexpr COLORREF red = 0x000000FF;
constexpr COLORREF blue = 0x00FF0000;
constexpr int imageWidth = 16;

/// Two sort images of one colour each: red ascends, blue descends.
void makeImages(CImageList& images)
{
    images.Create(imageWidth, 6, ILC_COLOR32, 2, 1);
    CClientDC screen(nullptr);
    for (const COLORREF color : {red, blue})
    {
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateBitmap(imageWidth, 6, 1, 32, nullptr);
        CBitmap* const before = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, imageWidth, 6, color);
        dc.SelectObject(before);
        images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
}

/// A white picture that items are drawn on in the header's font.
class Canvas
{
public:
    Canvas(CWnd& header, int width, int height) : m_width(width), m_height(height)
    {
        m_bitmap.CreateBitmap(width, height, 1, 32, nullptr);
        dc.CreateCompatibleDC(nullptr);
        m_bitmapBefore = ::SelectObject(dc, m_bitmap.m_hObject);
        m_fontBefore = ::SelectObject(dc, header.GetFont()->m_hObject);
        dc.FillSolidRect(0, 0, width, height, white);
        dc.SetBkMode(TRANSPARENT);
    }
    ~Canvas()
    {
        ::SelectObject(dc, m_fontBefore);
        ::SelectObject(dc, m_bitmapBefore);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// The smallest rectangle around all pixels that are `color`; with white, around all that are not.
    CRect bounds(COLORREF color) const
    {
        CRect all(INT_MAX, INT_MAX, INT_MIN, INT_MIN);
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                if ((dc.GetPixel(x, y) == color) != (color == white))
                    all.SetRect(std::min<int>(all.left, x), std::min<int>(all.top, y), std::max<int>(all.right, x + 1),
                                std::max<int>(all.bottom, y + 1));
        return all.left > all.right ? CRect() : all;
    }
    int width(const wchar_t* text) const { return dc.GetTextExtent(text).cx; }

    CDC dc;

private:
    int m_width;
    int m_height;
    CBitmap m_bitmap;
    HGDIOBJ m_bitmapBefore = nullptr;
    HGDIOBJ m_fontBefore = nullptr;
};

struct Drawn
{
    CRect text, ascending, descending;
};

const CRect itemPlace(10, 2, 210, 22);

/// Draws one item of the header into a white picture of its own.
Drawn draw(OpenFrame& frame, int column, UINT state = 0)
{
    Canvas canvas(frame.header(), 220, 30);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_HEADER;
    item.itemID = static_cast<UINT>(column);
    item.itemState = state;
    item.hwndItem = frame.header();
    item.hDC = canvas.dc;
    item.rcItem = itemPlace;
    frame.header().DrawItem(&item);
    return {canvas.bounds(0), canvas.bounds(red), canvas.bounds(blue)};
}

OpenFrame& threeAlignments(FrameHost& host)
{
    OpenFrame& frame = host.usual();
    for (int format = 0; format < 3; ++format)
        frame.m_tree.InsertColumn(format, L"Hill", format, 90, 0);
    frame.header().SetSortImage(0, -1);
    return frame;
}

/// Twice the width of a blank.
int margin(OpenFrame& frame)
{
    return 2 * Canvas(frame.header(), 1, 1).width(L" ");
}

constexpr int left = 0;
constexpr int right = 1;
constexpr int centre = 2;
} // namespace

TEST(HeaderItemPaint, texts_keep_the_margins_of_their_side)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    const int side = margin(frame);
    const int textWidth = Canvas(frame.header(), 1, 1).width(L"Hill");
    EXPECT_NEAR(itemPlace.left + side, draw(frame, left).text.left, 1);
    EXPECT_NEAR(itemPlace.right - side, draw(frame, right).text.right, 1);
    EXPECT_NEAR(itemPlace.CenterPoint().x - textWidth / 2, draw(frame, centre).text.left, 1);
}

TEST(HeaderItemPaint, a_pressed_item_moves_its_text)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    for (const int column : {left, right})
    {
        const CRect before = draw(frame, column).text;
        const CRect pressed = draw(frame, column, ODS_SELECTED).text;
        EXPECT_TRUE(pressed == before + CPoint(1, 1)) << "one to the right; two at the top centre one lower";
        EXPECT_TRUE(draw(frame, column, ODS_SELECTED | ODS_FOCUS).text == before);
    }
}

TEST(HeaderItemPaint, the_image_stands_behind_a_left_aligned_text)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    CImageList images;
    makeImages(images);
    frame.header().SetSortImageList(&images);
    frame.header().SetSortImage(left, 0);
    const int side = margin(frame);
    const int first = Canvas(frame.header(), 1, 1).width(L"H");
    const Drawn drawn = draw(frame, left);
    EXPECT_TRUE(drawn.ascending == CRect(CPoint(itemPlace.right - side - 2 * first, side / 3), CSize(imageWidth, 6)));
    EXPECT_TRUE(drawn.descending.IsRectNull());
    frame.header().SetSortImage(left, 1);
    EXPECT_TRUE(draw(frame, left).descending == drawn.ascending);
}

TEST(HeaderItemPaint, the_image_stands_in_front_of_a_right_aligned_text)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    CImageList images;
    makeImages(images);
    frame.header().SetSortImageList(&images);
    frame.header().SetSortImage(right, 1);
    const int side = margin(frame);
    EXPECT_TRUE(draw(frame, right).descending == CRect(CPoint(itemPlace.left + side, side / 3), CSize(imageWidth, 6)));
}

TEST(HeaderItemPaint, no_image_is_drawn_without_list_or_with_an_index_that_it_does_not_have)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    const CRect plain = draw(frame, left).text;
    frame.header().SetSortImage(left, 0);
    EXPECT_TRUE(draw(frame, left).text == plain) << "the frame's own list has no images";
    frame.header().SetSortImageList(nullptr);
    EXPECT_TRUE(draw(frame, left).text == plain);
    CImageList images;
    makeImages(images);
    frame.header().SetSortImageList(&images);
    for (const int image : {2, 99, -7, INT_MAX, INT_MIN})
    {
        frame.header().SetSortImage(left, image);
        EXPECT_TRUE(draw(frame, left).ascending.IsRectNull()) << image;
    }
}

TEST(HeaderItemPaint, stays_inside_the_item)
{
    FrameHost host;
    OpenFrame& frame = host.usual();
    frame.m_tree.InsertColumn(0, CString(L'W', 200), 0, 90, 0);
    const CRect text = draw(frame, 0).text;
    EXPECT_GE(text.left, itemPlace.left);
    EXPECT_LE(text.right, itemPlace.right - margin(frame)) << "it ends in an ellipsis";
}

TEST(HeaderItemPaint, leaves_the_device_context_as_it_was)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    Canvas canvas(frame.header(), 220, 30);
    CRect before;
    canvas.dc.GetClipBox(&before);
    DRAWITEMSTRUCT item = {};
    item.hDC = canvas.dc;
    item.rcItem = CRect(5, 5, 6, 6);
    frame.header().DrawItem(&item);
    CRect after;
    canvas.dc.GetClipBox(&after);
    EXPECT_TRUE(before == after);
}

TEST(HeaderItemPaint, of_anything_draws_nothing)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    frame.header().DrawItem(nullptr);
    DRAWITEMSTRUCT item = {};
    frame.header().DrawItem(&item);
    for (const int column : {3, -1, INT_MAX, INT_MIN})
        EXPECT_TRUE(draw(frame, column).text.IsRectNull()) << column;
}

TEST(HeaderPaint, shows_texts_and_images_on_the_screen)
{
    FrameHost host;
    OpenFrame& frame = threeAlignments(host);
    CImageList images;
    makeImages(images);
    frame.header().SetSortImageList(&images);
    frame.header().SetSortImage(right, 1);
    frame.header().UpdateWindow();
    EXPECT_FALSE(frame.header().GetUpdateRect(nullptr)) << "the paint handler validates";
    CRect item;
    frame.header().GetItemRect(right, &item);
    const int side = margin(frame);
    CClientDC dc(&frame.header());
    EXPECT_EQ(blue, dc.GetPixel(item.left + side + imageWidth / 2, side / 3 + 3));
    int dark = 0;
    frame.header().GetItemRect(left, &item);
    for (int y = item.top; y < item.bottom; ++y)
        for (int x = item.left + side; x < item.left + 40; ++x)
            dark += dc.GetPixel(x, y) == 0 ? 1 : 0;
    EXPECT_GT(dark, 10) << "the text";
}
