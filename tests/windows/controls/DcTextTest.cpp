// Device contexts: texts, extents, fonts; the parts of controls and DrawState.
#include "Support.h"
#include "resource.h"

namespace
{
/// A canvas with a font whose characters are drawn in two colours only.
class TextCanvas : public Canvas
{
public:
    TextCanvas() : Canvas(200, 60)
    {
        font.CreatePointFont(80, L"Tahoma");
        m_before = dc.SelectObject(&font)->m_hObject;
    }
    ~TextCanvas() { ::SelectObject(dc.m_hDC, m_before); }
    CFont font;

private:
    HGDIOBJ m_before;
};

BOOL CALLBACK fillByProc(HDC dc, LPARAM data, WPARAM, int cx, int cy)
{
    const RECT all = {0, 0, cx, cy};
    ::FillRect(dc, &all, reinterpret_cast<HBRUSH>(data));
    return TRUE;
}
} // namespace

TEST(DcText, extent_is_that_of_the_system)
{
    TextCanvas canvas;
    SIZE expected = {};
    ::GetTextExtentPoint32W(canvas.dc.m_hDC, L"Hello", 5, &expected);
    EXPECT_EQ(CSize(expected), canvas.dc.GetTextExtent(L"Hello", 5));
    EXPECT_EQ(CSize(expected), canvas.dc.GetTextExtent(CString(L"Hello")));
    EXPECT_EQ(CSize(expected), canvas.dc.GetOutputTextExtent(CString(L"Hello")));
    EXPECT_EQ(0, canvas.dc.GetTextExtent(CString()).cx);
}

TEST(DcText, text_is_drawn_in_its_colour)
{
    TextCanvas canvas;
    canvas.dc.SetTextColor(red);
    canvas.dc.SetBkColor(green);
    EXPECT_TRUE(canvas.dc.TextOut(0, 0, CString(L"I")));
    const CSize size = canvas.dc.GetTextExtent(L"I", 1);
    bool seen = false;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            seen = seen || canvas.dc.GetPixel(x, y) == red;
    EXPECT_TRUE(seen);
    EXPECT_EQ(size.cx * size.cy, canvas.painted()) << "an opaque background covers the whole extent";
}

TEST(DcText, ext_text_out_clips_and_fills)
{
    TextCanvas canvas;
    canvas.dc.SetBkColor(green);
    const CRect box(10, 10, 20, 20);
    EXPECT_TRUE(canvas.dc.ExtTextOut(0, 0, ETO_OPAQUE | ETO_CLIPPED, &box, CString(L"a long text"), nullptr));
    EXPECT_EQ(100, canvas.painted());
}

TEST(DcText, draw_text_measures_and_draws)
{
    TextCanvas canvas;
    CRect box(0, 0, 0, 0);
    EXPECT_GT(canvas.dc.DrawText(CString(L"Hello"), &box, DT_CALCRECT | DT_SINGLELINE), 0);
    EXPECT_EQ(canvas.dc.GetTextExtent(L"Hello", 5), box.Size());
    EXPECT_EQ(0, canvas.painted());
    EXPECT_GT(canvas.dc.DrawText(L"Hello", -1, &box, DT_SINGLELINE), 0);
    EXPECT_GT(canvas.painted(), 0);
    EXPECT_EQ(0, canvas.dc.DrawText(L"Hello", 5, nullptr, 0));
}

TEST(DcText, draw_text_may_change_a_buffer)
{
    TextCanvas canvas;
    wchar_t text[64] = L"a text that is much too long for the place";
    CRect box(0, 0, 60, 20);
    canvas.dc.DrawText(text, -1, &box, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_NE(nullptr, ::wcsstr(text, L"..."));
}

TEST(DcText, draw_text_never_changes_a_string)
{
    TextCanvas canvas;
    const CString text(L"a text that is much too long for the place");
    const CString copy = text; // NOLINT(performance-unnecessary-copy-initialization): shares the buffer
    CRect box(0, 0, 60, 20);
    canvas.dc.DrawText(text, &box, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    DRAWTEXTPARAMS parameters = {sizeof parameters, 4, 0, 0, 0};
    canvas.dc.DrawTextEx(text, &box, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, &parameters);
    EXPECT_EQ(copy, text);
    EXPECT_EQ(L"a text that is much too long for the place", plain(text));
}

TEST(DcText, tabs_go_to_their_stops)
{
    TextCanvas canvas;
    int stop = 100;
    const CSize size = canvas.dc.TabbedTextOut(0, 0, CString(L"a\tb"), 1, &stop, 0);
    EXPECT_EQ(100 + canvas.dc.GetTextExtent(L"b", 1).cx, size.cx);
    EXPECT_EQ(size, canvas.dc.GetTabbedTextExtent(CString(L"a\tb"), 1, &stop));
}

TEST(DcText, gray_string_draws_something)
{
    TextCanvas canvas;
    CBrush brush(red);
    const wchar_t* const text = L"gray";
    EXPECT_TRUE(canvas.dc.GrayString(&brush, nullptr, reinterpret_cast<LPARAM>(text), 4, 0, 0, 0, 0));
    EXPECT_GT(canvas.painted(), 0);
}

TEST(DcText, font_facts)
{
    TextCanvas canvas;
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(canvas.dc.GetTextMetrics(&metrics));
    EXPECT_EQ(canvas.dc.GetTextExtent(L"x", 1).cy, metrics.tmHeight);
    CString face;
    EXPECT_GT(canvas.dc.GetTextFace(face), 0);
    EXPECT_EQ(L"Tahoma", plain(face));
    INT width = 0;
    EXPECT_TRUE(canvas.dc.GetCharWidth(L'W', L'W', &width));
    EXPECT_EQ(canvas.dc.GetTextExtent(L"W", 1).cx, width);
    ABC abc = {};
    canvas.dc.GetCharABCWidths(L'W', L'W', &abc);
    EXPECT_FALSE(canvas.dc.GetTextMetrics(nullptr));
}

TEST(DcText, alignment_and_extra_space)
{
    TextCanvas canvas;
    EXPECT_EQ(0U, canvas.dc.SetTextAlign(TA_RIGHT));
    EXPECT_EQ(static_cast<UINT>(TA_RIGHT), canvas.dc.GetTextAlign());
    const int usual = canvas.dc.GetTextExtent(L"ab", 2).cx;
    EXPECT_EQ(0, canvas.dc.SetTextCharacterExtra(3));
    EXPECT_EQ(usual + 6, canvas.dc.GetTextExtent(L"ab", 2).cx);
    EXPECT_EQ(3, canvas.dc.GetTextCharacterExtra());
}

TEST(DcState, bitmaps_icons_texts_and_procedures)
{
    Canvas canvas(60, 40);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    EXPECT_TRUE(canvas.dc.DrawState(CPoint(0, 0), CSize(8, 6), &bitmap, DSS_NORMAL));
    EXPECT_EQ(48, canvas.painted());
    EXPECT_EQ(red, canvas.dc.GetPixel(7, 5));
    EXPECT_TRUE(canvas.dc.DrawState(CPoint(10, 0), CSize(8, 6), static_cast<HBITMAP>(bitmap), DSS_NORMAL));
    EXPECT_EQ(96, canvas.painted());

    HICON const icon = ::LoadIconW(nullptr, IDI_ERROR);
    const int before_icon = canvas.painted();
    EXPECT_TRUE(canvas.dc.DrawState(CPoint(20, 0), CSize(32, 32), icon, DSS_NORMAL));
    EXPECT_GT(canvas.painted(), before_icon);

    Canvas texts(60, 40);
    EXPECT_TRUE(texts.dc.DrawState(CPoint(0, 0), CSize(0, 0), L"&text", DSS_NORMAL));
    EXPECT_GT(texts.painted(), 0);
    EXPECT_FALSE(texts.dc.DrawState(CPoint(0, 0), CSize(0, 0), static_cast<LPCTSTR>(nullptr), DSS_NORMAL));

    Canvas procedures(60, 40);
    CBrush brush(blue);
    EXPECT_TRUE(procedures.dc.DrawState(CPoint(1, 1), CSize(5, 5), fillByProc,
                                        reinterpret_cast<LPARAM>(static_cast<HBRUSH>(brush)), DSS_NORMAL));
    EXPECT_EQ(25, procedures.painted());
    EXPECT_EQ(blue, procedures.dc.GetPixel(3, 3));
}

TEST(DcState, mono_pictures_take_the_brush)
{
    Canvas canvas;
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    CBrush brush(green);
    EXPECT_TRUE(canvas.dc.DrawState(CPoint(0, 0), CSize(8, 6), &bitmap, DSS_MONO, &brush));
    EXPECT_EQ(green, canvas.dc.GetPixel(2, 2));
    Canvas texts(60, 40);
    EXPECT_TRUE(texts.dc.DrawState(CPoint(0, 0), CSize(0, 0), L"text", DSS_MONO, TRUE, 0, &brush));
    EXPECT_GT(texts.painted(), 0);
}

TEST(DcState, disabled_text_differs_from_plain_text)
{
    Canvas plain_text(60, 20);
    Canvas disabled(60, 20);
    plain_text.dc.DrawState(CPoint(0, 0), CSize(0, 0), L"text", DSS_NORMAL);
    disabled.dc.DrawState(CPoint(0, 0), CSize(0, 0), L"text", DSS_DISABLED);
    int differences = 0;
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 60; ++x)
            differences += plain_text.dc.GetPixel(x, y) != disabled.dc.GetPixel(x, y);
    EXPECT_GT(differences, 0);
}

TEST(DcState, edges_and_frame_controls)
{
    Canvas canvas;
    CRect box(0, 0, 20, 20);
    EXPECT_TRUE(canvas.dc.DrawEdge(&box, EDGE_RAISED, BF_RECT | BF_ADJUST));
    EXPECT_EQ(CRect(2, 2, 18, 18), box);
    EXPECT_TRUE(canvas.dc.DrawFrameControl(&box, DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_FALSE(canvas.dc.DrawEdge(nullptr, EDGE_RAISED, BF_RECT));
    EXPECT_GT(canvas.painted(), 0);
}

TEST(DcState, a_focus_rectangle_drawn_twice_is_gone)
{
    Canvas canvas;
    const CRect box(2, 2, 20, 20);
    canvas.dc.DrawFocusRect(&box);
    EXPECT_GT(canvas.painted(), 0);
    canvas.dc.DrawFocusRect(&box);
    EXPECT_EQ(0, canvas.painted());
    canvas.dc.DrawFocusRect(nullptr);
}

TEST(DcState, icons_are_drawn)
{
    Canvas canvas(40, 40);
    EXPECT_TRUE(canvas.dc.DrawIcon(CPoint(0, 0), ::LoadIconW(nullptr, IDI_ERROR)));
    EXPECT_GT(canvas.painted(), 100);
    EXPECT_FALSE(canvas.dc.DrawIcon(0, 0, nullptr));
}

TEST(DcState, a_dragged_frame_moves_and_goes)
{
    Canvas canvas;
    const CRect first(2, 2, 20, 20);
    const CRect second(5, 5, 25, 25);
    CBrush brush(white);
    canvas.dc.DrawDragRect(&first, CSize(1, 1), nullptr, CSize(1, 1), &brush);
    EXPECT_EQ(18 * 18 - 16 * 16, canvas.painted());
    canvas.dc.DrawDragRect(&second, CSize(1, 1), &first, CSize(1, 1), &brush, &brush);
    EXPECT_EQ(20 * 20 - 18 * 18, canvas.painted());
    const CRect nothing(0, 0, 0, 0);
    canvas.dc.DrawDragRect(&nothing, CSize(1, 1), &second, CSize(1, 1), &brush, &brush);
    EXPECT_EQ(0, canvas.painted());
}

TEST(DcState, the_halftone_brush_sets_every_other_pixel)
{
    Canvas canvas(8, 8);
    canvas.dc.SetTextColor(black);
    const CRect all(0, 0, 8, 8);
    canvas.dc.FillRect(&all, CDC::GetHalftoneBrush());
    EXPECT_EQ(32, canvas.painted());
    EXPECT_NE(canvas.dc.GetPixel(0, 0), canvas.dc.GetPixel(1, 0));
    EXPECT_NE(canvas.dc.GetPixel(0, 0), canvas.dc.GetPixel(0, 1));
    EXPECT_EQ(CDC::GetHalftoneBrush()->m_hObject, CDC::GetHalftoneBrush()->m_hObject);
}
