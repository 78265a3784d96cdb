// The combo box of bitmaps: its rows, their height, and what is drawn for each state, pixel by pixel.
#include <gtest/gtest.h>
#include <memory>
#include "DropHost.h"
#include "oxa/dropdowns/KxBitmapComboBox.h"
#include "resource.h"
#include "support/MessageRecorder.h"
#include "support/Pixels.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE;
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
const CSize canvas(60, 40);
const CRect itemPlace(10, 5, 50, 25); // 40 by 20

class OpenBitmapCombo : public CKxBitmapComboBox
{
public:
    CKxToolTip& tip() { return m_toolTip; }
    int itemHeight() const { return m_itemHeight; }
};

class BitmapCombo : public testing::Test
{
protected:
    BitmapCombo() : combo(std::make_unique<OpenBitmapCombo>())
    {
        combo->Create(style, CRect(20, 20, 220, 200), &host, 7);
    }
    DRAWITEMSTRUCT itemFor(HDC dc, UINT id, UINT action, UINT state)
    {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_COMBOBOX;
        item.CtlID = 7;
        item.itemID = id;
        item.itemAction = action;
        item.itemState = state;
        item.hwndItem = combo->m_hWnd;
        item.hDC = dc;
        item.rcItem = itemPlace;
        item.itemData = combo->GetItemData(static_cast<int>(id));
        return item;
    }
    /// What the item paints on white, with a blue brush in the context.
    Pixels drawn(UINT id, UINT action, UINT state)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          prepare(dc);
                          DRAWITEMSTRUCT item = itemFor(dc, id, action, state);
                          combo->DrawItem(&item);
                          finish(dc);
                      });
    }
    /// The same by hand: the rectangle in a colour, the red block of the bitmap, a focus mark.
    static Pixels byHand(COLORREF fill, bool block, bool mark)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          prepare(dc);
                          const HBRUSH brush = ::CreateSolidBrush(fill);
                          ::FillRect(dc, itemPlace, brush);
                          ::DeleteObject(brush);
                          // The bitmap at (40 - 12) / 2 and 5 + (20 - 8) / 2, its block at 4, 2 of it.
                          for (int y = 11 + 2; block && y < 11 + 6; ++y)
                          {
                              for (int x = 14 + 4; x < 14 + 8; ++x)
                                  ::SetPixel(dc, x, y, red);
                          }
                          if (mark)
                              ::DrawFocusRect(dc, itemPlace);
                          finish(dc);
                      });
    }
    static void prepare(HDC dc)
    {
        const RECT all = {0, 0, canvas.cx, canvas.cy};
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        ::SelectObject(dc, ::CreateSolidBrush(blue));
        ::SetBkColor(dc, RGB(1, 2, 3));
        ::SetTextColor(dc, RGB(4, 5, 6));
    }
    static void finish(HDC dc)
    {
        EXPECT_EQ(::GetBkColor(dc), RGB(1, 2, 3)) << "put back";
        EXPECT_EQ(::GetTextColor(dc), RGB(4, 5, 6)) << "put back";
        const HGDIOBJ brush = ::SelectObject(dc, ::GetStockObject(WHITE_BRUSH));
        LOGBRUSH record = {};
        ::GetObjectW(brush, sizeof record, &record);
        EXPECT_EQ(record.lbColor, blue) << "put back";
        ::DeleteObject(brush);
    }

    DropHost host;
    std::unique_ptr<OpenBitmapCombo> combo;
};

TEST_F(BitmapCombo, appends_and_inserts_bitmaps_by_id)
{
    EXPECT_EQ(combo->AddBitmap(10), 0);
    EXPECT_EQ(combo->AddBitmap(11), 1);
    EXPECT_EQ(combo->InsertBitmap(12, 1), 1);
    EXPECT_EQ(combo->InsertBitmap(65535, 0), 0);
    EXPECT_EQ(combo->GetCount(), 4);
    const DWORD_PTR ids[] = {65535, 10, 12, 11};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(combo->GetItemData(i), ids[i]) << i;
}

TEST_F(BitmapCombo, refuses_an_index_behind_the_end)
{
    combo->AddBitmap(10);
    EXPECT_LT(combo->InsertBitmap(11, 7), 0);
    EXPECT_EQ(combo->GetCount(), 1);
    EXPECT_EQ(combo->GetItemData(0), 10U);
}

TEST_F(BitmapCombo, gives_its_items_the_height_of_the_bitmaps_and_four_pixels_more)
{
    EXPECT_EQ(combo->itemHeight(), 20) << "until a height is given";
    ::CreateWindowExW(0, L"COMBOBOX", L"", style, 20, 60, 200, 200, host.m_hWnd, reinterpret_cast<HMENU>(8),
                      AfxGetInstanceHandle(), nullptr);
    OpenBitmapCombo other;
    ASSERT_TRUE(other.SubclassDlgItem(24, 8, &host));
    other.AddBitmap(IDB_BLOCK);
    EXPECT_EQ(other.itemHeight(), 28);
    EXPECT_EQ(other.GetItemHeight(0), 28);
    EXPECT_FALSE(other.SubclassDlgItem(30, 99, &host)) << "no such control";
}

TEST_F(BitmapCombo, draws_by_action_and_state)
{
    combo->AddBitmap(IDB_BLOCK);
    const COLORREF lit = ::GetSysColor(COLOR_HIGHLIGHT);
    constexpr UINT none = static_cast<UINT>(-1);
    const struct
    {
        const char* name;
        UINT id, action, state;
        COLORREF fill;
        bool block, mark;
    } rows[] = {
        {"plain", 0, ODA_DRAWENTIRE, 0, blue, true, false},
        {"selected", 0, ODA_SELECT, ODS_SELECTED, lit, true, false},
        {"selected and focused, drawn whole", 0, ODA_DRAWENTIRE, ODS_SELECTED | ODS_FOCUS, lit, true, false},
        {"given the focus", 0, ODA_FOCUS, ODS_FOCUS, blue, true, true},
        {"given the focus while selected", 0, ODA_FOCUS, ODS_SELECTED | ODS_FOCUS, lit, true, false}, // kept on purpose
        {"robbed of the focus", 0, ODA_FOCUS, 0, blue, true, false},
        {"an empty field", none, ODA_DRAWENTIRE, 0, blue, false, false}, // its mark is painted over: kept on purpose
        {"an empty field given the focus", none, ODA_FOCUS, ODS_FOCUS, blue, false, true},
        {"no such row", 1, ODA_DRAWENTIRE, 0, blue, false, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(drawn(row.id, row.action, row.state).difference(byHand(row.fill, row.block, row.mark)), "")
            << row.name;
}

TEST_F(BitmapCombo, draws_nothing_for_an_id_without_bitmap)
{
    combo->AddString(L"no data");
    combo->SetItemData(0, 0);
    combo->AddBitmap(60000);
    combo->AddString(L"");
    combo->SetItemData(2, reinterpret_cast<DWORD_PTR>(&host));
    for (const UINT id : {0U, 1U, 2U})
        EXPECT_EQ(drawn(id, ODA_DRAWENTIRE, 0).difference(byHand(blue, false, false)), "") << id;
}

TEST_F(BitmapCombo, draws_the_library_s_own_bitmaps_before_those_of_the_program)
{
    constexpr unsigned short ruler = 22027; // 32 by 16 or so: only the library has it
    combo->AddBitmap(ruler);
    EXPECT_NE(drawn(0, ODA_DRAWENTIRE, 0).difference(byHand(blue, false, false)), "");
}

TEST_F(BitmapCombo, draws_rows_with_long_texts_too)
{
    combo->DestroyWindow();
    combo->Create(style | CBS_HASSTRINGS, CRect(20, 20, 220, 200), &host, 7);
    combo->AddString(std::wstring(1 << 20, L'w').c_str());
    combo->SetItemData(0, IDB_BLOCK);
    EXPECT_EQ(drawn(0, ODA_DRAWENTIRE, 0).difference(byHand(blue, true, false)), "");
}

TEST_F(BitmapCombo, ignores_records_that_are_missing)
{
    combo->DrawItem(nullptr);
    combo->MeasureItem(nullptr);
    DRAWITEMSTRUCT item = itemFor(nullptr, 0, ODA_DRAWENTIRE, 0);
    combo->DrawItem(&item);
    EXPECT_EQ(combo->GetCount(), 0);
}

TEST_F(BitmapCombo, shows_its_selection_in_the_field_on_the_colours_of_its_parent)
{
    constexpr COLORREF paleBlue = 0x00F6DBC9;
    CBrush pale(paleBlue);
    host.colours = static_cast<HBRUSH>(pale.GetSafeHandle());
    combo->AddBitmap(IDB_BLOCK);
    combo->SetCurSel(0);
    combo->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(pixelsOf(combo->m_hWnd, red), 16);
    EXPECT_EQ(pixelsOf(combo->m_hWnd, RGB(0, 255, 0)), 0) << "green is left out";
    EXPECT_GT(pixelsOf(combo->m_hWnd, paleBlue), 1000);
}

TEST_F(BitmapCombo, lights_the_row_under_the_mouse_in_its_open_list)
{
    for (int i = 0; i < 3; ++i)
        combo->AddBitmap(IDB_BLOCK);
    combo->SetFocus();
    combo->ShowDropDown(TRUE);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ASSERT_TRUE(combo->GetComboBoxInfo(&info));
    pumpFor(20);
    CRect row;
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
    ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&row), 2);
    moveTo(row.CenterPoint());
    pumpFor(30);
    EXPECT_EQ(pixelsOf(info.hwndList, red), 3 * 16);
    EXPECT_GT(pixelsOf(info.hwndList, ::GetSysColor(COLOR_HIGHLIGHT)), 1000);
    click(row.CenterPoint());
    EXPECT_EQ(combo->GetCurSel(), 2);
    EXPECT_FALSE(combo->GetDroppedState());
}

TEST_F(BitmapCombo, shows_a_tip_and_passes_its_mouse_messages_to_it)
{
    combo->AddFormatToolTip(L"the tip");
    EXPECT_EQ(combo->tip().GetToolCount(), 1);
    MessageRecorder recorder(combo->tip().m_hWnd, [](UINT message) { return message == TTM_RELAYEVENT; });
    MSG move = {};
    move.hwnd = combo->m_hWnd;
    move.message = WM_MOUSEMOVE;
    EXPECT_FALSE(combo->PreTranslateMessage(&move));
    ASSERT_EQ(recorder.all().size(), 1U);
    EXPECT_EQ(recorder.all()[0].lParam, reinterpret_cast<LPARAM>(&move));
    moveTo({10, 10});
    pumpFor(10);
    host.SetForegroundWindow();
    moveTo(centreOf(combo->m_hWnd));
    EXPECT_TRUE(waitFor([this] { return ::IsWindowVisible(combo->tip().m_hWnd) != FALSE; }));
}

TEST_F(BitmapCombo, has_no_window_and_does_nothing)
{
    OpenBitmapCombo none;
    EXPECT_NE(none.tip().m_hWnd, nullptr) << "which is made with the object";
    none.AddFormatToolTip(L"tip");
    EXPECT_EQ(none.tip().GetToolCount(), 0);
    EXPECT_FALSE(none.PreTranslateMessage(nullptr));
    EXPECT_FALSE(none.SubclassDlgItem(INT_MAX, 1, nullptr));
    none.AddBitmap(1);
    EXPECT_EQ(none.GetCount(), 0);
}

TEST_F(BitmapCombo, loses_its_rows_in_any_order)
{
    for (unsigned short id = 0; id < 50; ++id)
        combo->InsertBitmap(id, static_cast<unsigned short>(id / 2));
    combo->SetFocus();
    combo->ShowDropDown(TRUE);
    for (int i = 0; combo->GetCount() > 0; ++i)
    {
        combo->SetCurSel(i % combo->GetCount());
        EXPECT_GE(combo->DeleteString(static_cast<UINT>((i * 7) % combo->GetCount())), 0);
        pumpFor();
    }
    combo->ShowDropDown(FALSE);
    combo->ResetContent();
    EXPECT_LT(combo->DeleteString(0), 0);
}

TEST_F(BitmapCombo, may_lose_its_parent_in_each_notification)
{
    for (const int code : {CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELENDOK, CBN_CLOSEUP, CBN_KILLFOCUS})
    {
        DropHost other;
        CKxBitmapComboBox mortal;
        mortal.Create(style, CRect(20, 20, 220, 200), &other, 7);
        mortal.AddBitmap(IDB_BLOCK);
        mortal.AddBitmap(IDB_BLOCK);
        expectEndedAt(code, other, mortal);
    }
}

TEST_F(BitmapCombo, takes_rows_of_any_height)
{
    for (const int height : {INT_MIN, INT_MIN + 3, -1000, -5, -4, -3, 0, 70000, INT_MAX - 4, INT_MAX})
    {
        SCOPED_TRACE(height);
        ::CreateWindowExW(0, L"COMBOBOX", L"", style, 20, 60, 200, 200, host.m_hWnd, reinterpret_cast<HMENU>(8),
                          AfxGetInstanceHandle(), nullptr);
        OpenBitmapCombo other;
        ASSERT_TRUE(other.SubclassDlgItem(height, 8, &host));
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(other.AddBitmap(IDB_BLOCK), i);
        other.SetFocus();
        other.ShowDropDown(TRUE);
        pumpFor(0);
        key(VK_DOWN);
        EXPECT_EQ(other.GetCurSel(), 0);
        other.DestroyWindow();
    }
}

// The platform's list measures all rows anew for each one that is added, so that more take long.
TEST_F(BitmapCombo, holds_ten_thousand_rows)
{
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(combo->AddBitmap(IDB_BLOCK), i);
    EXPECT_EQ(combo->InsertBitmap(11, 9999), 9999);
    EXPECT_EQ(combo->GetItemData(9999), 11U);
    combo->SetCurSel(10000);
    EXPECT_EQ(pixelsOf(combo->m_hWnd, red), 16) << "the last one, in the field";
}

void useOnce(CKxBitmapComboBox& combo, DropHost& host, int round)
{
    combo.Create(style, CRect(20, 20, 220, 200), &host, 7);
    combo.AddFormatToolTip(L"tip");
    combo.AddBitmap(IDB_BLOCK);
    combo.AddBitmap(60000);
    combo.SetCurSel(round % 2);
    combo.UpdateWindow();
}

TEST(BitmapComboLifetime, two_thousand_boxes_leave_no_handle)
{
    expectTwoThousandLivesLeaveNoHandle<CKxBitmapComboBox>(useOnce);
}
} // namespace
