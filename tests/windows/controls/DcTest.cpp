// Device contexts: state, selection, mapping, clipping, figures, copying.
#include "Support.h"

TEST(Dc, attach_detach_and_temporary_objects)
{
    HDC const handle = ::CreateCompatibleDC(nullptr);
    CDC dc;
    ASSERT_TRUE(dc.Attach(handle));
    EXPECT_EQ(handle, dc.GetSafeHdc());
    EXPECT_EQ(handle, dc.m_hAttribDC);
    EXPECT_EQ(&dc, CDC::FromHandle(handle));
    EXPECT_FALSE(dc.Attach(handle)) << "it holds one already";
    EXPECT_EQ(handle, dc.Detach());
    CDC* const temporary = CDC::FromHandle(handle);
    EXPECT_NE(&dc, temporary);
    EXPECT_EQ(handle, temporary->m_hDC);
    CDC::DeleteTempMap();
    EXPECT_TRUE(::DeleteDC(handle));
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST(Dc, without_a_handle_everything_fails_plainly)
{
    CDC dc;
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_EQ(0, dc.SaveDC());
    EXPECT_EQ(CLR_INVALID, dc.SetTextColor(red));
    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr)));
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent(L"x", 1));
    EXPECT_FALSE(dc.LineTo(1, 1));
    EXPECT_EQ(nullptr, dc.GetCurrentPen());
}

TEST(Dc, selecting_gives_the_object_before)
{
    Canvas canvas;
    CPen pen(PS_SOLID, 1, red);
    CPen* const before = canvas.dc.SelectObject(&pen);
    ASSERT_NE(nullptr, before);
    EXPECT_EQ(&pen, canvas.dc.GetCurrentPen());
    EXPECT_EQ(&pen, canvas.dc.SelectObject(before));
    CBrush brush(green);
    CBrush* const brush_before = canvas.dc.SelectObject(&brush);
    EXPECT_EQ(&brush, canvas.dc.SelectObject(brush_before));
    CFont font;
    font.CreatePointFont(90, L"Tahoma");
    CFont* const font_before = canvas.dc.SelectObject(&font);
    EXPECT_EQ(&font, canvas.dc.GetCurrentFont());
    EXPECT_EQ(&font, canvas.dc.SelectObject(font_before));
    EXPECT_EQ(&canvas.bitmap, canvas.dc.GetCurrentBitmap());
}

TEST(Dc, any_object_is_selected_by_its_base_class)
{
    Canvas canvas;
    CPen pen(PS_SOLID, 1, red);
    CGdiObject* const before = canvas.dc.SelectObject(static_cast<CGdiObject*>(&pen));
    EXPECT_EQ(&pen, canvas.dc.GetCurrentPen());
    canvas.dc.SelectObject(before);
    EXPECT_NE(nullptr, canvas.dc.SelectStockObject(NULL_BRUSH));
    EXPECT_EQ(::GetStockObject(NULL_BRUSH), canvas.dc.GetCurrentBrush()->m_hObject);
    EXPECT_EQ(nullptr, canvas.dc.SelectStockObject(9999));
}

TEST(Dc, a_bitmap_goes_into_one_context_at_a_time)
{
    Canvas canvas;
    CDC other;
    ASSERT_TRUE(other.CreateCompatibleDC(&canvas.dc));
    EXPECT_EQ(nullptr, other.SelectObject(&canvas.bitmap));
}

TEST(Dc, restore_brings_back_what_was_saved)
{
    Canvas canvas;
    CPen pen(PS_SOLID, 1, red);
    canvas.dc.SetTextColor(blue);
    const int saved = canvas.dc.SaveDC();
    ASSERT_NE(0, saved);
    canvas.dc.SetTextColor(red);
    canvas.dc.SetBkMode(TRANSPARENT);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SelectObject(&pen);
    EXPECT_TRUE(canvas.dc.RestoreDC(saved));
    EXPECT_EQ(blue, canvas.dc.GetTextColor());
    EXPECT_EQ(OPAQUE, canvas.dc.GetBkMode());
    EXPECT_EQ(MM_TEXT, canvas.dc.GetMapMode());
    EXPECT_NE(&pen, canvas.dc.GetCurrentPen());
    EXPECT_FALSE(canvas.dc.RestoreDC(99));
}

TEST(Dc, setters_answer_with_the_value_before)
{
    Canvas canvas;
    canvas.dc.SetTextColor(red);
    EXPECT_EQ(red, canvas.dc.SetTextColor(blue));
    EXPECT_EQ(white, canvas.dc.SetBkColor(green));
    EXPECT_EQ(green, canvas.dc.GetBkColor());
    EXPECT_EQ(OPAQUE, canvas.dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(R2_COPYPEN, canvas.dc.SetROP2(R2_XORPEN));
    EXPECT_EQ(R2_XORPEN, canvas.dc.GetROP2());
    EXPECT_EQ(ALTERNATE, canvas.dc.SetPolyFillMode(WINDING));
    EXPECT_EQ(WINDING, canvas.dc.GetPolyFillMode());
    const int stretch = canvas.dc.GetStretchBltMode();
    EXPECT_EQ(stretch, canvas.dc.SetStretchBltMode(HALFTONE));
    EXPECT_EQ(HALFTONE, canvas.dc.GetStretchBltMode());
    EXPECT_EQ(GM_COMPATIBLE, canvas.dc.SetGraphicsMode(GM_ADVANCED));
}

TEST(Dc, setters_reach_both_contexts_when_they_differ)
{
    Canvas output;
    Canvas attributes;
    HDC const own = output.dc.m_hAttribDC;
    output.dc.SetAttribDC(attributes.dc.m_hDC);
    output.dc.SetTextColor(red);
    output.dc.SetMapMode(MM_LOENGLISH);
    EXPECT_EQ(red, ::GetTextColor(output.dc.m_hDC));
    EXPECT_EQ(red, ::GetTextColor(attributes.dc.m_hDC));
    EXPECT_EQ(MM_LOENGLISH, ::GetMapMode(attributes.dc.m_hDC));
    output.dc.SetAttribDC(own);
}

TEST(Dc, mapping_turns_logical_into_device_units)
{
    Canvas canvas;
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(10, 10);
    canvas.dc.SetViewportExt(20, 30);
    EXPECT_EQ(CPoint(0, 0), canvas.dc.SetViewportOrg(5, 7));
    CPoint point(1, 1);
    canvas.dc.LPtoDP(&point);
    EXPECT_EQ(CPoint(7, 10), point);
    canvas.dc.DPtoLP(&point);
    EXPECT_EQ(CPoint(1, 1), point);
    CSize size(2, 2);
    canvas.dc.LPtoDP(&size);
    EXPECT_EQ(CSize(4, 6), size);
    canvas.dc.DPtoLP(&size);
    EXPECT_EQ(CSize(2, 2), size);
    CRect rect(0, 0, 1, 1);
    canvas.dc.LPtoDP(&rect);
    EXPECT_EQ(CRect(5, 7, 7, 10), rect);
    EXPECT_EQ(CPoint(5, 7), canvas.dc.GetViewportOrg());
    EXPECT_EQ(CSize(20, 30), canvas.dc.GetViewportExt());
    EXPECT_EQ(CSize(10, 10), canvas.dc.GetWindowExt());
}

TEST(Dc, origins_move)
{
    Canvas canvas;
    EXPECT_EQ(CPoint(0, 0), canvas.dc.SetWindowOrg(3, 4));
    EXPECT_EQ(CPoint(3, 4), canvas.dc.OffsetWindowOrg(1, 1));
    EXPECT_EQ(CPoint(4, 5), canvas.dc.GetWindowOrg());
    canvas.dc.SetViewportOrg(2, 2);
    EXPECT_EQ(CPoint(2, 2), canvas.dc.OffsetViewportOrg(1, -1));
    EXPECT_EQ(CPoint(3, 1), canvas.dc.GetViewportOrg());
}

TEST(Dc, clipping_keeps_drawing_inside)
{
    Canvas canvas;
    CRgn region;
    region.CreateRectRgn(0, 0, 10, 10);
    EXPECT_EQ(SIMPLEREGION, canvas.dc.SelectClipRgn(&region));
    canvas.dc.FillSolidRect(0, 0, 40, 30, red);
    EXPECT_EQ(100, canvas.painted());
    CRect box;
    EXPECT_EQ(SIMPLEREGION, canvas.dc.GetClipBox(&box));
    EXPECT_EQ(CRect(0, 0, 10, 10), box);
    EXPECT_TRUE(canvas.dc.PtVisible(9, 9));
    EXPECT_FALSE(canvas.dc.PtVisible(CPoint(10, 10)));
    const CRect outside(20, 20, 25, 25);
    EXPECT_FALSE(canvas.dc.RectVisible(&outside));
    EXPECT_EQ(SIMPLEREGION, canvas.dc.SelectClipRgn(nullptr));
    EXPECT_TRUE(canvas.dc.PtVisible(10, 10));
}

TEST(Dc, clipping_rectangles_are_cut_out_and_met)
{
    Canvas canvas;
    EXPECT_EQ(SIMPLEREGION, canvas.dc.IntersectClipRect(0, 0, 20, 20));
    EXPECT_EQ(COMPLEXREGION, canvas.dc.ExcludeClipRect(5, 5, 10, 10));
    canvas.dc.FillSolidRect(0, 0, 40, 30, red);
    EXPECT_EQ(400 - 25, canvas.painted());
    EXPECT_EQ(ERROR, canvas.dc.ExcludeClipRect(nullptr));
    EXPECT_EQ(COMPLEXREGION, canvas.dc.OffsetClipRgn(1, 1));
}

TEST(Dc, lines_and_positions)
{
    Canvas canvas;
    CPen pen(PS_SOLID, 1, red);
    CPen* const before = canvas.dc.SelectObject(&pen);
    EXPECT_EQ(CPoint(0, 0), canvas.dc.MoveTo(2, 3));
    EXPECT_TRUE(canvas.dc.LineTo(12, 3));
    EXPECT_EQ(CPoint(12, 3), canvas.dc.GetCurrentPosition());
    EXPECT_EQ(10, canvas.painted());
    const POINT corner[3] = {{0, 10}, {5, 10}, {5, 15}};
    EXPECT_TRUE(canvas.dc.Polyline(corner, 3));
    EXPECT_EQ(20, canvas.painted());
    canvas.dc.SelectObject(before);
}

TEST(Dc, rectangles_of_all_kinds)
{
    Canvas canvas;
    CBrush brush(green);
    const CRect rect(0, 0, 10, 10);
    canvas.dc.FillRect(&rect, &brush);
    EXPECT_EQ(100, canvas.painted());
    canvas.dc.FillSolidRect(&rect, white);
    EXPECT_EQ(0, canvas.painted());
    EXPECT_EQ(white, canvas.dc.GetBkColor());
    canvas.dc.FrameRect(&rect, &brush);
    EXPECT_EQ(36, canvas.painted());
    canvas.dc.InvertRect(&rect);
    EXPECT_EQ(black, canvas.dc.GetPixel(5, 5));
    canvas.dc.FillRect(nullptr, &brush);
    canvas.dc.FillRect(&rect, nullptr);
}

TEST(Dc, fill_solid_rect_leaves_the_background_colour_behind)
{
    Canvas canvas;
    canvas.dc.FillSolidRect(0, 0, 1, 1, blue);
    EXPECT_EQ(blue, canvas.dc.GetBkColor());
}

TEST(Dc, a_3d_rectangle_is_one_pixel_wide_in_two_colours)
{
    Canvas canvas;
    canvas.dc.Draw3dRect(2, 3, 10, 8, red, blue);
    EXPECT_EQ(2 * 10 + 2 * 6, canvas.painted());
    EXPECT_EQ(red, canvas.dc.GetPixel(2, 3));
    EXPECT_EQ(red, canvas.dc.GetPixel(10, 3));
    EXPECT_EQ(blue, canvas.dc.GetPixel(11, 3));
    EXPECT_EQ(blue, canvas.dc.GetPixel(2, 10));
    EXPECT_EQ(blue, canvas.dc.GetPixel(11, 10));
    EXPECT_EQ(white, canvas.dc.GetPixel(5, 5));
}

TEST(Dc, filled_figures_use_pen_and_brush)
{
    Canvas canvas;
    CBrush brush(green);
    CBrush* const before = canvas.dc.SelectObject(&brush);
    EXPECT_TRUE(canvas.dc.Rectangle(0, 0, 10, 10));
    EXPECT_EQ(black, canvas.dc.GetPixel(0, 0));
    EXPECT_EQ(green, canvas.dc.GetPixel(5, 5));
    EXPECT_TRUE(canvas.dc.Ellipse(12, 0, 32, 20));
    EXPECT_EQ(green, canvas.dc.GetPixel(22, 10));
    EXPECT_EQ(white, canvas.dc.GetPixel(12, 0));
    const POINT triangle[3] = {{0, 12}, {10, 12}, {0, 22}};
    EXPECT_TRUE(canvas.dc.Polygon(triangle, 3));
    EXPECT_EQ(green, canvas.dc.GetPixel(2, 14));
    const CRect pie(20, 10, 38, 28);
    EXPECT_TRUE(canvas.dc.Pie(&pie, CPoint(38, 19), CPoint(29, 10)));
    EXPECT_TRUE(canvas.dc.RoundRect(0, 24, 10, 30, 4, 4));
    EXPECT_TRUE(canvas.dc.Arc(&pie, CPoint(38, 19), CPoint(29, 10)));
    EXPECT_FALSE(canvas.dc.Chord(nullptr, CPoint(0, 0), CPoint(0, 0)));
    canvas.dc.SelectObject(before);
}

TEST(Dc, regions_are_filled_framed_and_inverted)
{
    Canvas canvas;
    CBrush brush(red);
    CRgn region;
    region.CreateRectRgn(1, 1, 6, 6);
    EXPECT_TRUE(canvas.dc.FillRgn(&region, &brush));
    EXPECT_EQ(25, canvas.painted());
    EXPECT_TRUE(canvas.dc.InvertRgn(&region));
    EXPECT_EQ(RGB(0, 255, 255), canvas.dc.GetPixel(3, 3));
    EXPECT_TRUE(canvas.dc.FrameRgn(&region, &brush, 1, 1));
    EXPECT_EQ(red, canvas.dc.GetPixel(1, 1));
    EXPECT_FALSE(canvas.dc.FillRgn(nullptr, &brush));
}

TEST(Dc, a_gradient_runs_from_colour_to_colour)
{
    Canvas canvas;
    TRIVERTEX corners[2] = {{0, 0, 0, 0, 0, 0}, {40, 30, 0xFF00, 0, 0, 0}};
    GRADIENT_RECT mesh = {0, 1};
    EXPECT_TRUE(canvas.dc.GradientFill(corners, 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(canvas.dc.GetPixel(1, 5)), 20);
    EXPECT_GT(GetRValue(canvas.dc.GetPixel(38, 5)), 230);
}

TEST(Dc, pictures_are_copied_and_stretched)
{
    Canvas source(4, 4);
    source.dc.FillSolidRect(0, 0, 4, 4, red);
    Canvas canvas;
    EXPECT_TRUE(canvas.dc.BitBlt(1, 1, 4, 4, &source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(16, canvas.painted());
    EXPECT_TRUE(canvas.dc.StretchBlt(0, 10, 8, 8, &source.dc, 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(16 + 64, canvas.painted());
    EXPECT_TRUE(canvas.dc.PatBlt(0, 0, 40, 30, WHITENESS));
    EXPECT_EQ(0, canvas.painted());
    EXPECT_FALSE(canvas.dc.BitBlt(0, 0, 4, 4, nullptr, 0, 0, SRCCOPY));
}

TEST(Dc, transparent_and_blended_copies)
{
    Canvas source(4, 4);
    source.dc.FillSolidRect(0, 0, 4, 4, red);
    source.dc.SetPixel(1, 1, green);
    Canvas canvas;
    EXPECT_TRUE(canvas.dc.TransparentBlt(0, 0, 4, 4, &source.dc, 0, 0, 4, 4, red));
    EXPECT_EQ(1, canvas.painted());
    const BLENDFUNCTION half = {AC_SRC_OVER, 0, 128, 0};
    EXPECT_TRUE(canvas.dc.AlphaBlend(10, 10, 4, 4, &source.dc, 0, 0, 4, 4, half));
    const COLORREF mixed = canvas.dc.GetPixel(10, 10);
    EXPECT_EQ(255, GetRValue(mixed));
    EXPECT_NEAR(127, GetGValue(mixed), 1);
}

TEST(Dc, masked_copies_follow_the_mask)
{
    Canvas source(8, 8);
    source.dc.FillSolidRect(0, 0, 8, 8, red);
    const WORD rows[8] = {0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0, 0x00F0};
    CBitmap mask;
    ASSERT_TRUE(mask.CreateBitmap(8, 8, 1, 1, rows));
    Canvas canvas;
    EXPECT_TRUE(canvas.dc.MaskBlt(0, 0, 8, 8, &source.dc, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ(32, canvas.painted());
    EXPECT_EQ(red, canvas.dc.GetPixel(0, 0));
    EXPECT_EQ(white, canvas.dc.GetPixel(4, 0));
}

TEST(Dc, pixels_and_floods)
{
    Canvas canvas;
    EXPECT_EQ(red, canvas.dc.SetPixel(3, 4, red));
    EXPECT_EQ(red, canvas.dc.GetPixel(CPoint(3, 4)));
    EXPECT_TRUE(canvas.dc.SetPixelV(CPoint(0, 0), blue));
    EXPECT_EQ(CLR_INVALID, canvas.dc.GetPixel(1000, 1000));
    CBrush brush(green);
    CBrush* const before = canvas.dc.SelectObject(&brush);
    EXPECT_TRUE(canvas.dc.ExtFloodFill(20, 20, white, FLOODFILLSURFACE));
    EXPECT_EQ(green, canvas.dc.GetPixel(39, 29));
    EXPECT_EQ(red, canvas.dc.GetPixel(3, 4));
    canvas.dc.SelectObject(before);
}

TEST(Dc, scrolling_moves_pixels_and_tells_what_to_redraw)
{
    CParentWindow parent;
    CClientDC dc(&parent);
    dc.FillSolidRect(0, 0, 100, 100, white);
    dc.FillSolidRect(0, 0, 10, 10, red);
    const CRect area(0, 0, 100, 100);
    CRgn update;
    update.CreateRectRgn(0, 0, 0, 0);
    CRect left;
    EXPECT_TRUE(dc.ScrollDC(20, 0, &area, &area, &update, &left));
    EXPECT_EQ(red, dc.GetPixel(25, 5));
    EXPECT_EQ(CRect(0, 0, 20, 100), left);
}

TEST(Dc, paths_are_stroked_filled_and_read)
{
    Canvas canvas;
    EXPECT_TRUE(canvas.dc.BeginPath());
    canvas.dc.MoveTo(0, 0);
    canvas.dc.LineTo(10, 0);
    canvas.dc.LineTo(10, 10);
    EXPECT_TRUE(canvas.dc.CloseFigure());
    EXPECT_TRUE(canvas.dc.EndPath());
    EXPECT_EQ(3, canvas.dc.GetPath(nullptr, nullptr, 0));
    EXPECT_TRUE(canvas.dc.StrokePath());
    EXPECT_GT(canvas.painted(), 0);
    EXPECT_FALSE(canvas.dc.FillPath()) << "the path is gone";
    EXPECT_TRUE(canvas.dc.SetMiterLimit(7.0F));
    EXPECT_FLOAT_EQ(7.0F, canvas.dc.GetMiterLimit());
}

TEST(Dc, window_contexts_know_their_window)
{
    CParentWindow parent;
    {
        CClientDC dc(&parent);
        EXPECT_EQ(&parent, dc.GetWindow());
        CRect client;
        parent.GetClientRect(&client);
        dc.FillSolidRect(&client, red);
        EXPECT_EQ(red, dc.GetPixel(client.CenterPoint()));
    }
    {
        CWindowDC dc(&parent);
        EXPECT_EQ(&parent, dc.GetWindow());
    }
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    EXPECT_EQ(nullptr, memory.GetWindow());
}

namespace
{
class CPaintingWindow : public CWnd
{
public:
    CRect painted;
    bool erased = false;
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        painted = dc.m_ps.rcPaint;
        dc.FillSolidRect(&painted, green);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPaintingWindow, CWnd)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()
} // namespace

TEST(Dc, a_paint_context_has_the_invalid_part_and_validates_it)
{
    CParentWindow parent;
    CPaintingWindow window;
    ASSERT_TRUE(window.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 1));
    window.UpdateWindow();
    const CRect part(10, 10, 20, 20);
    window.InvalidateRect(&part);
    window.UpdateWindow();
    EXPECT_EQ(part, window.painted);
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    CClientDC dc(&window);
    EXPECT_EQ(green, dc.GetPixel(15, 15));
}

TEST(Dc, a_missing_window_gives_no_paint_context)
{
    CWnd none;
    bool thrown = false;
    try
    {
        CPaintDC dc(&none);
    }
    catch (CResourceException* e)
    {
        thrown = true;
        e->Delete();
    }
    EXPECT_TRUE(thrown);
}

TEST(Dc, ten_thousand_window_contexts_leave_nothing_behind)
{
    CParentWindow parent;
    const auto cycle = [&]
    {
        CClientDC client(&parent);
        CWindowDC window(&parent);
        client.SetPixel(1, 1, red);
    };
    cycle();
    const int before = gdiObjectCount();
    for (int i = 0; i < 10000; ++i)
        cycle();
    EXPECT_EQ(before, gdiObjectCount());
}
