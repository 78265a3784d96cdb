// The list of colours: its rows, how they are drawn, and the last row, which asks the parent.
#include <gtest/gtest.h>
#include <memory>
#include "DropHost.h"
#include "support/Pixels.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED;
const CSize canvas(90, 40);
const CRect itemPlace(10, 5, 80, 25);
const COLORREF startColors[] = {0xFF0000, 0xFF00, 0xFFFF00, 0xFF, 0xFF00FF, 0xFFFF, 0xFFFFFF, 0x808080, 0xC0C0C0};

class ColorPicker : public testing::Test
{
protected:
    ColorPicker() : picker(std::make_unique<CKxComboColorPicker>())
    {
        picker->Create(style, CRect(20, 20, 160, 260), &host, 7);
    }
    WPARAM self() const { return reinterpret_cast<WPARAM>(picker.get()); }
    /// All rows, as text.
    static std::string rowsOf(const CKxComboColorPicker& one)
    {
        std::string all;
        for (int i = 0; i < one.GetCount(); ++i)
        {
            char text[16] = {};
            snprintf(text, sizeof text, "%s%lX", i == 0 ? "" : " ", static_cast<unsigned long>(one.GetColorRef(i)));
            all += text;
        }
        return all;
    }
    Pixels drawn(UINT id, UINT state, DWORD_PTR data)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          clean(dc);
                          DRAWITEMSTRUCT item = {ODT_COMBOBOX, 7,         id,  ODA_DRAWENTIRE, state, picker->m_hWnd,
                                                 dc,           itemPlace, data};
                          picker->DrawItem(&item);
                          EXPECT_EQ(::GetBkColor(dc), RGB(1, 2, 3)) << "put back";
                          EXPECT_EQ(::GetTextColor(dc), RGB(4, 5, 6)) << "put back";
                      });
    }
    static Pixels byHand(const std::function<void(HDC)>& draw)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          clean(dc);
                          draw(dc);
                      });
    }
    static void clean(HDC dc)
    {
        const RECT all = {0, 0, canvas.cx, canvas.cy};
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH)));
        ::SetBkColor(dc, RGB(1, 2, 3));
        ::SetTextColor(dc, RGB(4, 5, 6));
    }
    static void fill(HDC dc, COLORREF color)
    {
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(dc, itemPlace, brush);
        ::DeleteObject(brush);
    }
    /// Picks a row of the open list by a real click.
    void pick(int row)
    {
        picker->SetFocus();
        picker->ShowDropDown(TRUE);
        pumpFor(10);
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        picker->GetComboBoxInfo(&info);
        CRect place;
        ::SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
        ::MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&place), 2);
        moveTo({5, 5}); // so that the mouse moves onto the row
        waitFor([&] { return ::IsWindowVisible(info.hwndList) != FALSE; });
        click(place.CenterPoint());
    }

    DropHost host;
    std::unique_ptr<CKxComboColorPicker> picker;
};

constexpr const char* freshRows = "FF0000 FF00 FFFF00 FF FF00FF FFFF FFFFFF 808080 C0C0C0 0";

TEST_F(ColorPicker, fills_itself_when_it_is_created)
{
    EXPECT_EQ(rowsOf(*picker), freshRows);
    EXPECT_EQ(picker->GetLastIndex(), 9);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(CKxComboColorPicker::VGAColorsArray[i], startColors[i]) << i;
}

TEST_F(ColorPicker, fills_itself_when_it_takes_over_a_window)
{
    ::CreateWindowExW(0, L"COMBOBOX", L"", style | CBS_HASSTRINGS, 20, 60, 200, 200, host.m_hWnd,
                      reinterpret_cast<HMENU>(8), AfxGetInstanceHandle(), nullptr);
    CKxComboColorPicker other;
    ASSERT_TRUE(other.SubclassDlgItem(8, &host));
    EXPECT_EQ(rowsOf(other), freshRows);
    CString last;
    other.GetLBText(9, last);
    EXPECT_STREQ(last, L"Autres...");
}

TEST_F(ColorPicker, fills_itself_only_once)
{
    const HWND window = picker->Detach();
    picker->SubclassWindow(window);
    EXPECT_EQ(rowsOf(*picker), freshRows);
    picker->DestroyWindow();
    picker->Create(style, CRect(20, 20, 160, 260), &host, 7);
    EXPECT_EQ(picker->GetCount(), 0) << "the next window stays empty";
    EXPECT_EQ(picker->GetLastIndex(), 9);
}

TEST_F(ColorPicker, is_not_filled_without_a_window)
{
    CKxComboColorPicker none;
    EXPECT_EQ(none.GetCount(), 0);
    EXPECT_EQ(none.GetLastIndex(), 0);
}

class CreatedPicker : public CKxComboColorPicker
{
public:
    LONG styleSeen = 0;
    bool refuses = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CKxComboColorPicker::WindowProc(message, wParam, lParam);
        if (message == WM_CREATE)
            styleSeen = reinterpret_cast<CREATESTRUCT*>(lParam)->style;
        return result;
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_CREATE && refuses ? -1 : CKxComboColorPicker::DefWindowProc(message, wParam, lParam);
    }
};

TEST_F(ColorPicker, writes_its_style_into_the_record_of_its_creation)
{
    CreatedPicker created;
    created.Create(style, CRect(20, 60, 160, 260), &host, 8);
    EXPECT_EQ(created.styleSeen, 0x200013);
    EXPECT_EQ(created.GetCount(), 10);
}

TEST_F(ColorPicker, is_not_created_when_the_platform_refuses)
{
    CreatedPicker refused;
    refused.refuses = true;
    EXPECT_FALSE(refused.Create(style, CRect(20, 60, 160, 260), &host, 8));
    EXPECT_EQ(refused.m_hWnd, nullptr);
    EXPECT_EQ(refused.GetLastIndex(), 0);
}

TEST_F(ColorPicker, finds_a_colour_or_makes_a_row_in_front_of_the_last)
{
    const struct
    {
        unsigned long color;
        int index, last;
    } steps[] = {
        {0xFF0000, 0, 9},   {0xC0C0C0, 8, 9}, {0x123456, 9, 10}, // a new one
        {0x123456, 9, 10},  {0, 10, 10},                         // black is the row that asks: kept on purpose
        {0x654321, 10, 11}, {0, 11, 11},      {0xFFFFFF, 6, 11},
    };
    for (const auto& step : steps)
    {
        EXPECT_EQ(picker->GetColorIndex(step.color), step.index) << step.color;
        EXPECT_EQ(picker->GetLastIndex(), step.last) << step.color;
    }
    EXPECT_EQ(rowsOf(*picker), "FF0000 FF00 FFFF00 FF FF00FF FFFF FFFFFF 808080 C0C0C0 123456 654321 0");
}

TEST_F(ColorPicker, changes_adds_and_inserts_rows)
{
    EXPECT_NE(picker->ChangeColor(0x111111, 0), CB_ERR);
    EXPECT_EQ(picker->InsertColor(0x222222, 1), 1);
    EXPECT_EQ(picker->AddColor(0x333333), 11);
    EXPECT_EQ(rowsOf(*picker), "111111 222222 FF00 FFFF00 FF FF00FF FFFF FFFFFF 808080 C0C0C0 0 333333");
    EXPECT_EQ(picker->GetLastIndex(), 9) << "only a colour that was asked for moves it";
}

TEST_F(ColorPicker, gives_the_colour_of_its_selection)
{
    EXPECT_EQ(picker->GetColor(), CLR_INVALID);
    picker->SetCurSel(3);
    EXPECT_EQ(picker->GetColor(), 0xFFU);
    picker->SetCurSel(9);
    EXPECT_EQ(picker->GetColor(), 0U);
}

TEST_F(ColorPicker, answers_for_indexes_out_of_range)
{
    for (const int index : {-1, 10, 1000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(picker->GetColorRef(index), CLR_INVALID) << index;
        if (index != -1 && index != 10) // at the end: a new row
        {
            EXPECT_LT(picker->InsertColor(1, index), 0) << index;
        }
        EXPECT_EQ(picker->ChangeColor(1, index), CB_ERR) << index;
    }
    EXPECT_EQ(rowsOf(*picker), freshRows);
}

TEST_F(ColorPicker, stays_empty_when_it_was_emptied)
{
    picker->ResetContent();
    EXPECT_EQ(picker->GetCount(), 0);
    EXPECT_EQ(picker->GetLastIndex(), 9);
    const HWND window = picker->Detach();
    picker->SubclassWindow(window);
    EXPECT_EQ(picker->GetCount(), 0) << "the colours do not come back";
}

TEST_F(ColorPicker, draws_rows_by_number_and_state)
{
    const auto colored = byHand([](HDC dc) { fill(dc, 0x123456); });
    const auto framed = byHand(
        [](HDC dc)
        {
            fill(dc, 0x123456);
            ::FrameRect(dc, itemPlace, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
        });
    const auto other = byHand(
        [](HDC dc)
        {
            fill(dc, ::GetSysColor(COLOR_WINDOW));
            ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
            ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
            CRect place = itemPlace;
            ::DrawTextW(dc, L"Autres...", -1, place, DT_CENTER);
        });
    const auto untouched = byHand([](HDC) {});
    const struct
    {
        UINT id, state;
        const Pixels& expected;
    } rows[] = {
        {0, 0, colored},
        {0, ODS_SELECTED, framed},
        {8, ODS_SELECTED | ODS_FOCUS | ODS_COMBOBOXEDIT, framed},
        {8, ODS_FOCUS | ODS_DISABLED, colored},
        {9, 0, other},
        {9, ODS_SELECTED | ODS_FOCUS, other},
        {10, ODS_SELECTED, untouched},
        {static_cast<UINT>(-1), ODS_FOCUS, untouched},
    };
    for (const auto& row : rows)
        EXPECT_EQ(drawn(row.id, row.state, 0x123456).difference(row.expected), "") << row.id << " " << row.state;
    EXPECT_NE(other.difference(byHand([](HDC dc) { fill(dc, ::GetSysColor(COLOR_WINDOW)); })), "") << "there is a text";
}

TEST_F(ColorPicker, draws_every_row_as_a_colour_when_it_was_emptied)
{
    picker->ResetContent();
    picker->AddColor(0x123456);
    const auto colored = byHand([](HDC dc) { fill(dc, 0x123456); });
    EXPECT_EQ(drawn(0, 0, picker->GetColorRef(0)).difference(colored), "");
    EXPECT_EQ(drawn(8, 0, 0x123456).difference(colored), "");
}

TEST_F(ColorPicker, shows_the_selected_colour_in_its_field)
{
    picker->SetCurSel(0);
    host.SetFocus();
    picker->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_GT(pixelsOf(picker->m_hWnd, 0xFF0000), 1000);
}

TEST_F(ColorPicker, ignores_a_record_that_is_missing)
{
    picker->DrawItem(nullptr);
    DRAWITEMSTRUCT item = {};
    picker->DrawItem(&item);
    EXPECT_EQ(picker->GetCount(), 10);
}

// ---- Asking for another colour

TEST_F(ColorPicker, asks_its_parent_when_the_last_row_is_clicked)
{
    host.onHear = [this](const Heard&) { host.answer = picker->GetColorIndex(0x123456); };
    pick(9);
    EXPECT_EQ(host.heardOf(1038), (std::vector<Heard>{{1038, self(), 0}}));
    EXPECT_EQ(picker->GetCurSel(), 9);
    EXPECT_EQ(picker->GetColor(), 0x123456U);
    EXPECT_EQ(picker->GetLastIndex(), 10);
}

TEST_F(ColorPicker, closes_its_list_and_gives_the_mouse_back_when_the_parent_has_answered)
{
    host.answer = 2;
    pick(9);
    pumpFor(20);
    EXPECT_FALSE(picker->GetDroppedState());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(picker->GetCurSel(), 2);
}

TEST_F(ColorPicker, selects_a_colour_without_asking)
{
    pick(4);
    EXPECT_TRUE(host.heardOf(1038).empty());
    EXPECT_EQ(picker->GetColor(), 0xFF00FFU);
    EXPECT_FALSE(picker->GetDroppedState());
}

TEST_F(ColorPicker, asks_when_a_key_comes_to_the_last_row)
{
    picker->SetFocus();
    picker->SetCurSel(8);
    host.answer = 1;
    key(VK_DOWN);
    EXPECT_EQ(host.heardOf(1038).size(), 1U);
    EXPECT_EQ(picker->GetCurSel(), 1);
}

TEST_F(ColorPicker, asks_by_two_notifications_and_for_the_last_row_only)
{
    for (int code = 0; code <= 10; ++code)
    {
        for (const int row : {0, 8, 9})
        {
            picker->SetCurSel(row);
            host.heard.clear();
            host.answer = 3;
            picker->SendMessage(WM_COMMAND, MAKEWPARAM(1000, code), 0);
            const bool asks = row == 9 && (code == 1 || code == 5);
            EXPECT_EQ(host.heardOf(1038).size(), asks ? 1U : 0U) << code << " " << row;
            EXPECT_EQ(picker->GetCurSel(), asks ? 3 : row) << code << " " << row;
            picker->ShowDropDown(FALSE);
        }
    }
}

TEST_F(ColorPicker, takes_any_answer)
{
    for (const LRESULT answer : {LRESULT{-1}, LRESULT{77}, LRESULT{INT_MIN}, LRESULT{0x7FFFFFFFFFFFFFFF}})
    {
        picker->SetCurSel(9);
        host.answer = answer;
        picker->SendMessage(WM_COMMAND, MAKEWPARAM(1000, CBN_SELCHANGE), 0);
        const int platforms = picker->SetCurSel(9), selected = picker->SetCurSel(static_cast<int>(answer));
        EXPECT_EQ(platforms, 9);
        EXPECT_EQ(selected, CB_ERR) << "the answer is given to the platform as it is, " << answer;
    }
    picker->SetCurSel(9);
    host.answer = 9;
    picker->SendMessage(WM_COMMAND, MAKEWPARAM(1000, CBN_SELCHANGE), 0);
    EXPECT_EQ(picker->GetCurSel(), 9);
}

TEST_F(ColorPicker, does_not_ask_while_it_is_asking)
{
    int heard = 0;
    host.onHear = [&](const Heard&)
    {
        if (++heard < 5)
            picker->SendMessage(WM_COMMAND, MAKEWPARAM(1000, CBN_SELCHANGE), 0);
    };
    picker->SetCurSel(9);
    picker->SendMessage(WM_COMMAND, MAKEWPARAM(1000, CBN_SELCHANGE), 0);
    EXPECT_EQ(heard, 1);
}

TEST_F(ColorPicker, may_end_while_it_asks)
{
    for (int how = 0; how < 3; ++how)
    {
        DropHost other;
        auto mortal = std::make_unique<CKxComboColorPicker>();
        mortal->Create(style, CRect(20, 20, 160, 260), &other, 7);
        mortal->SetFocus();
        mortal->SetCurSel(8);
        const HWND window = mortal->m_hWnd;
        other.onHear = [&](const Heard&) { endControl(how, mortal, other); };
        mortal->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
        EXPECT_FALSE(::IsWindow(window)) << how;
    }
}

TEST_F(ColorPicker, may_lose_its_parent_in_each_notification)
{
    for (const int code : {CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELENDOK, CBN_CLOSEUP, CBN_KILLFOCUS})
    {
        DropHost other;
        CKxComboColorPicker mortal;
        mortal.Create(style, CRect(20, 20, 160, 260), &other, 7);
        expectEndedAt(code, other, mortal);
    }
}

TEST_F(ColorPicker, loses_its_rows_in_any_order)
{
    picker->ShowDropDown(TRUE);
    for (int i = 0; picker->GetCount() > 0; ++i)
    {
        picker->DeleteString(static_cast<UINT>((i * 7) % picker->GetCount()));
        pumpFor();
    }
    EXPECT_EQ(picker->GetColorIndex(0x123456), 9) << "where it would stand";
    EXPECT_EQ(picker->GetCount(), 0) << "but no row is made behind the end";
}

TEST_F(ColorPicker, holds_a_thousand_colours_of_its_user)
{
    for (unsigned long color = 1; color <= 1000; ++color)
        EXPECT_EQ(picker->GetColorIndex(color << 8 | 1), 8 + static_cast<int>(color));
    EXPECT_EQ(picker->GetCount(), 1010);
    EXPECT_EQ(picker->GetLastIndex(), 1009);
}

TEST_F(ColorPicker, finds_its_way_through_a_hundred_thousand_colours)
{
    for (unsigned long i = 0; i < 100000; ++i)
        ASSERT_GE(picker->AddColor(i << 8 | 0x11), 0);
    EXPECT_EQ(picker->GetColorIndex(99999UL << 8 | 0x11), 100009);
    EXPECT_EQ(picker->GetColorIndex(0x22), 9) << "a new one, in front of the row that asks";
    EXPECT_EQ(picker->GetLastIndex(), 10);
    EXPECT_EQ(picker->GetCount(), 100011);
}

void useOnce(CKxComboColorPicker& picker, DropHost& host, int)
{
    picker.Create(style, CRect(20, 20, 160, 260), &host, 7);
    picker.SetCurSel(picker.GetColorIndex(0x123456));
    picker.UpdateWindow();
    picker.SetCurSel(picker.GetLastIndex());
    picker.SendMessage(WM_COMMAND, MAKEWPARAM(1000, CBN_SELCHANGE), 0);
}

TEST(ColorPickerLifetime, two_thousand_pickers_leave_no_handle)
{
    expectTwoThousandLivesLeaveNoHandle<CKxComboColorPicker>(useOnce);
}
} // namespace
