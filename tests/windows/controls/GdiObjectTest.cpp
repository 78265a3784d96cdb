// GDI objects: who owns a handle, and what the create operations make.
#include "Support.h"
#include "resource.h"

TEST(GdiObject, is_deleted_with_its_owner)
{
    HGDIOBJ handle = nullptr;
    {
        CPen pen(PS_SOLID, 1, red);
        handle = pen.GetSafeHandle();
        EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(handle));
    }
    EXPECT_EQ(0U, ::GetObjectType(handle));
}

TEST(GdiObject, attach_and_detach_move_a_handle)
{
    HPEN const handle = ::CreatePen(PS_SOLID, 1, red);
    CPen pen;
    ASSERT_TRUE(pen.Attach(handle));
    EXPECT_EQ(handle, static_cast<HPEN>(pen));
    EXPECT_EQ(&pen, CPen::FromHandle(handle));
    EXPECT_EQ(handle, pen.Detach());
    EXPECT_EQ(nullptr, pen.m_hObject);
    EXPECT_NE(&pen, CPen::FromHandle(handle));
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST(GdiObject, attach_refuses_null_and_a_second_handle)
{
    CPen pen;
    EXPECT_FALSE(pen.Attach(nullptr));
    ASSERT_TRUE(pen.CreatePen(PS_SOLID, 1, red));
    HGDIOBJ const first = pen.m_hObject;
    const int before = gdiObjectCount();
    EXPECT_FALSE(pen.CreatePen(PS_SOLID, 1, blue));
    EXPECT_EQ(first, pen.m_hObject);
    EXPECT_EQ(before, gdiObjectCount());
}

TEST(GdiObject, null_pointers_give_null_handles)
{
    CBrush* const none = nobody<CBrush>();
    EXPECT_EQ(nullptr, none->GetSafeHandle());
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CBrush::FromHandle(nullptr));
    const CBrush empty;
    EXPECT_EQ(nullptr, static_cast<HBRUSH>(empty));
}

TEST(GdiObject, from_handle_makes_one_temporary_object_until_idle)
{
    HBRUSH const handle = ::CreateSolidBrush(green);
    CBrush* const temporary = CBrush::FromHandle(handle);
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(handle, static_cast<HBRUSH>(*temporary));
    EXPECT_EQ(temporary, CBrush::FromHandle(handle));
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(handle)) << "temporary objects own nothing";
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST(GdiObject, temporary_objects_have_the_class_that_was_asked_for)
{
    HFONT const handle = static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_TRUE(CFont::FromHandle(handle)->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(CGdiObject::FromHandle(handle)->IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_FALSE(CGdiObject::FromHandle(handle)->IsKindOf(RUNTIME_CLASS(CFont)));
}

TEST(GdiObject, owners_of_another_thread_are_not_found)
{
    CPen pen(PS_SOLID, 1, red);
    struct Question
    {
        HPEN handle;
        CPen* found;
    } question = {pen, nullptr};
    HANDLE const thread = ::CreateThread(
        nullptr, 0,
        [](LPVOID p) -> DWORD
        {
            auto* asked = static_cast<Question*>(p);
            asked->found = CPen::FromHandle(asked->handle);
            return 0;
        },
        &question, 0, nullptr);
    ::WaitForSingleObject(thread, 5000);
    ::CloseHandle(thread);
    EXPECT_NE(&pen, question.found);
}

TEST(GdiObject, stock_objects_survive_their_owner)
{
    HGDIOBJ const stock = ::GetStockObject(WHITE_BRUSH);
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateStockObject(WHITE_BRUSH));
        EXPECT_EQ(stock, brush.m_hObject);
    }
    EXPECT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(stock));
}

TEST(GdiObject, comparison_is_by_handle)
{
    CPen one(PS_SOLID, 1, red);
    CPen other(PS_SOLID, 1, red);
    EXPECT_TRUE(one == one);
    EXPECT_TRUE(one != other);
}

TEST(GdiObject, delete_twice_says_so)
{
    CPen pen(PS_SOLID, 1, red);
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.DeleteObject());
}

TEST(Pen, records_are_what_was_asked_for)
{
    CPen pen(PS_DOT, 1, blue);
    LOGPEN record = {};
    EXPECT_EQ(static_cast<int>(sizeof record), pen.GetLogPen(&record));
    EXPECT_EQ(static_cast<UINT>(PS_DOT), record.lopnStyle);
    EXPECT_EQ(blue, record.lopnColor);
    CPen copy;
    EXPECT_TRUE(copy.CreatePenIndirect(&record));
    EXPECT_FALSE(CPen().CreatePenIndirect(nullptr));
}

TEST(Pen, a_geometric_pen_is_made_of_a_brush_record)
{
    const LOGBRUSH brush = {BS_SOLID, red, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID, 5, &brush);
    EXPECT_EQ(static_cast<UINT>(OBJ_EXTPEN), pen.GetObjectType());
    EXPECT_FALSE(CPen().CreatePen(PS_GEOMETRIC, 5, static_cast<const LOGBRUSH*>(nullptr)));
    EXPECT_FALSE(CPen().CreatePen(PS_GEOMETRIC, -5, &brush));
}

TEST(Brush, solid_hatched_and_system_brushes)
{
    LOGBRUSH record = {};
    CBrush solid(green);
    solid.GetLogBrush(&record);
    EXPECT_EQ(static_cast<UINT>(BS_SOLID), record.lbStyle);
    EXPECT_EQ(green, record.lbColor);
    CBrush hatched(HS_CROSS, red);
    hatched.GetLogBrush(&record);
    EXPECT_EQ(static_cast<UINT>(BS_HATCHED), record.lbStyle);
    CBrush system;
    EXPECT_TRUE(system.CreateSysColorBrush(COLOR_HIGHLIGHT));
    system.GetLogBrush(&record);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), record.lbColor);
}

TEST(Brush, a_pattern_repeats_its_bitmap)
{
    CBitmap pattern;
    ASSERT_TRUE(pattern.LoadBitmap(IDB_RED));
    CBrush brush(&pattern);
    Canvas canvas;
    const CRect all(0, 0, 40, 30);
    canvas.dc.FillRect(&all, &brush);
    EXPECT_EQ(red, canvas.dc.GetPixel(39, 29));
    EXPECT_FALSE(CBrush().CreatePatternBrush(nullptr));
}

TEST(Font, point_sizes_are_tenths_of_a_point)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    LOGFONT record = {};
    font.GetLogFont(&record);
    EXPECT_EQ(-12, record.lfHeight) << "9 pt at 96 dpi";
    EXPECT_STREQ(L"Tahoma", record.lfFaceName);
}

TEST(Font, point_size_with_a_device_context_counts_its_resolution)
{
    Canvas canvas;
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma", &canvas.dc));
    LOGFONT record = {};
    font.GetLogFont(&record);
    EXPECT_EQ(-::MulDiv(canvas.dc.GetDeviceCaps(LOGPIXELSY), 120, 720), record.lfHeight);
}

TEST(Font, create_font_passes_every_property)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 0, 900, 900, FW_BOLD, TRUE, TRUE, TRUE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Tahoma"));
    LOGFONT record = {};
    font.GetLogFont(&record);
    EXPECT_EQ(-20, record.lfHeight);
    EXPECT_EQ(900, record.lfEscapement);
    EXPECT_EQ(FW_BOLD, record.lfWeight);
    EXPECT_TRUE(record.lfItalic && record.lfUnderline && record.lfStrikeOut);
    CFont copy;
    EXPECT_TRUE(copy.CreateFontIndirect(&record));
    EXPECT_FALSE(CFont().CreateFontIndirect(nullptr));
}

TEST(Font, a_face_name_that_is_too_long_is_cut)
{
    const std::wstring name(1000, L'x');
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, name.c_str()));
    LOGFONT record = {};
    font.GetLogFont(&record);
    EXPECT_EQ(static_cast<std::size_t>(LF_FACESIZE - 1), ::wcslen(record.lfFaceName));
}

TEST(Bitmap, is_loaded_from_the_chain_of_modules)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_RED));
    BITMAP record = {};
    EXPECT_NE(0, bitmap.GetBitmap(&record));
    EXPECT_EQ(8, record.bmWidth);
    EXPECT_EQ(6, record.bmHeight);
    EXPECT_FALSE(CBitmap().LoadBitmap(9999));
    EXPECT_TRUE(CBitmap().LoadBitmap(L"PUSHU"));
}

TEST(Bitmap, bits_are_set_and_read_back)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, nullptr));
    const DWORD bits[4] = {0x00112233, 0x00445566, 0x00778899, 0x00AABBCC};
    EXPECT_EQ(16U, bitmap.SetBitmapBits(sizeof bits, bits));
    DWORD read[4] = {};
    EXPECT_EQ(16U, bitmap.GetBitmapBits(sizeof read, read));
    EXPECT_EQ(0, ::memcmp(bits, read, sizeof bits));
}

TEST(Bitmap, compatible_and_indirect_bitmaps)
{
    Canvas canvas;
    CBitmap compatible;
    ASSERT_TRUE(compatible.CreateCompatibleBitmap(&canvas.dc, 12, 7));
    BITMAP record = {};
    compatible.GetBitmap(&record);
    EXPECT_EQ(12, record.bmWidth);
    EXPECT_EQ(32, record.bmBitsPixel);
    record.bmBits = nullptr;
    CBitmap indirect;
    EXPECT_TRUE(indirect.CreateBitmapIndirect(&record));
    EXPECT_FALSE(CBitmap().CreateCompatibleBitmap(nullptr, 1, 1));
}

TEST(Bitmap, dimension_remembers_what_was_set)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 1, nullptr));
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(30, 40));
    EXPECT_EQ(CSize(30, 40), bitmap.GetBitmapDimension());
}

TEST(Palette, entries_are_counted_set_and_found)
{
    struct
    {
        LOGPALETTE head;
        PALETTEENTRY second;
    } record = {{0x300, 2, {{255, 0, 0, 0}}}, {0, 0, 255, 0}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&record.head));
    EXPECT_EQ(2, palette.GetEntryCount());
    EXPECT_EQ(1U, palette.GetNearestPaletteIndex(RGB(10, 10, 200)));
    PALETTEENTRY entry = {0, 255, 0, 0};
    EXPECT_EQ(1U, palette.SetPaletteEntries(1, 1, &entry));
    PALETTEENTRY read = {};
    EXPECT_EQ(1U, palette.GetPaletteEntries(1, 1, &read));
    EXPECT_EQ(255, read.peGreen);
    EXPECT_TRUE(palette.ResizePalette(5));
    EXPECT_EQ(5, palette.GetEntryCount());
}

TEST(Region, rectangles_combine)
{
    CRgn one;
    CRgn other;
    ASSERT_TRUE(one.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(other.CreateRectRgn(5, 5, 20, 20));
    CRgn both;
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&one, &other, RGN_OR));
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_EQ(CRect(0, 0, 20, 20), box);
    EXPECT_EQ(SIMPLEREGION, both.CombineRgn(&one, &other, RGN_AND));
    both.GetRgnBox(&box);
    EXPECT_EQ(CRect(5, 5, 10, 10), box);
    EXPECT_EQ(NULLREGION, both.CombineRgn(&one, &one, RGN_XOR));
    EXPECT_EQ(ERROR, both.CombineRgn(&one, nullptr, RGN_AND));
}

TEST(Region, points_and_rectangles_are_tested)
{
    CRgn region;
    ASSERT_TRUE(region.CreateEllipticRgn(0, 0, 100, 100));
    EXPECT_TRUE(region.PtInRegion(50, 50));
    EXPECT_FALSE(region.PtInRegion(CPoint(2, 2)));
    const CRect far_away(200, 200, 210, 210);
    EXPECT_FALSE(region.RectInRegion(&far_away));
    EXPECT_FALSE(region.RectInRegion(nullptr));
}

TEST(Region, moving_copying_and_comparing)
{
    CRgn region;
    CRgn copy;
    ASSERT_TRUE(region.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(copy.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(SIMPLEREGION, copy.CopyRgn(&region));
    EXPECT_TRUE(copy.EqualRgn(&region));
    EXPECT_EQ(SIMPLEREGION, copy.OffsetRgn(3, 4));
    EXPECT_FALSE(copy.EqualRgn(&region));
    copy.SetRectRgn(0, 0, 10, 10);
    EXPECT_TRUE(copy.EqualRgn(&region));
}

TEST(Region, shapes_of_points_and_round_corners)
{
    const POINT triangle[3] = {{0, 0}, {20, 0}, {0, 20}};
    CRgn polygon;
    ASSERT_TRUE(polygon.CreatePolygonRgn(triangle, 3, WINDING));
    EXPECT_TRUE(polygon.PtInRegion(3, 3));
    EXPECT_FALSE(polygon.PtInRegion(18, 18));
    CRgn round;
    ASSERT_TRUE(round.CreateRoundRectRgn(0, 0, 40, 40, 20, 20));
    EXPECT_FALSE(round.PtInRegion(0, 0));
    EXPECT_TRUE(round.PtInRegion(20, 20));
    const INT counts[1] = {3};
    EXPECT_TRUE(CRgn().CreatePolyPolygonRgn(triangle, counts, 1, ALTERNATE));
    EXPECT_FALSE(CRgn().CreatePolygonRgn(nullptr, 3, WINDING));
}

TEST(Region, data_makes_the_same_region_again)
{
    CRgn region;
    CRgn corner;
    ASSERT_TRUE(region.CreateRectRgn(0, 0, 30, 30));
    ASSERT_TRUE(corner.CreateRectRgn(20, 20, 50, 50));
    region.CombineRgn(&region, &corner, RGN_OR);
    const int size = region.GetRegionData(nullptr, 0);
    ASSERT_GT(size, 0);
    std::string data(static_cast<std::size_t>(size), '\0');
    auto* const record = reinterpret_cast<RGNDATA*>(data.data());
    EXPECT_EQ(size, region.GetRegionData(record, size));
    CRgn again;
    ASSERT_TRUE(again.CreateFromData(nullptr, size, record));
    EXPECT_TRUE(again.EqualRgn(&region));
    EXPECT_EQ(0, region.GetRegionData(record, -1));
}

TEST(Region, a_path_becomes_a_region)
{
    Canvas canvas;
    canvas.dc.BeginPath();
    canvas.dc.Rectangle(5, 5, 15, 15);
    canvas.dc.EndPath();
    CRgn region;
    ASSERT_TRUE(region.CreateFromPath(&canvas.dc));
    EXPECT_TRUE(region.PtInRegion(10, 10));
}

TEST(GdiObjects, a_thousand_of_each_leave_nothing_behind)
{
    const auto cycle = []
    {
        CPen pen(PS_SOLID, 1, red);
        CBrush brush(green);
        CFont font;
        font.CreatePointFont(90, L"Tahoma");
        CBitmap bitmap;
        bitmap.CreateBitmap(4, 4, 1, 32, nullptr);
        CRgn region;
        region.CreateRectRgn(0, 0, 1, 1);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CBitmap* const before = dc.SelectObject(&bitmap);
        dc.SelectObject(before);
    };
    cycle();
    const int before = gdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        cycle();
    EXPECT_EQ(before, gdiObjectCount());
}
