// The combo box with images and indents: what is drawn for each state, pixel by pixel, its bar, and its tip.
#include <gtest/gtest.h>
#include <afxext.h>
#include <memory>
#include "DropHost.h"
#include "oxa/dropdowns/KxComboBoxEx.h"
#include "resource.h"
#include "support/MessageRecorder.h"
#include "support/Pixels.h"

namespace
{
constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST;
constexpr COLORREF red = RGB(255, 0, 0), paleBlue = 0x00F6DBC9;
const CSize canvas(180, 40);
const CRect itemPlace(5, 10, 165, 28);

class OpenImageCombo : public CKxComboBoxEx
{
public:
    CKxToolTip& tip() { return m_toolTip; }
    const CKxDialogBarEx* bar() const { return m_dialogBar; }
    bool showsToolTips() const { return (m_nFlags & WF_TOOLTIPS) != 0; }
};

/// Three pictures of 16 by 16, each of one colour: red, green, blue.
void fillPictures(CImageList& pictures)
{
    pictures.Create(16, 16, ILC_COLOR32, 3, 1);
    CClientDC screen(nullptr);
    for (const COLORREF color : {red, RGB(0, 255, 0), RGB(0, 0, 255)})
    {
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateBitmap(16, 16, 1, 32, nullptr);
        CBitmap* const before = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, 16, 16, color);
        dc.SelectObject(before);
        pictures.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    }
}

int addItem(CKxComboBoxEx& combo, const wchar_t* text, int indent = 0)
{
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_OVERLAY | CBEIF_INDENT;
    item.iItem = -1;
    item.pszText = const_cast<wchar_t*>(text);
    item.iImage = 0;
    item.iSelectedImage = 1;
    item.iOverlay = 2;
    item.iIndent = indent;
    return combo.InsertItem(&item);
}

class ImageCombo : public testing::Test
{
protected:
    ImageCombo() : combo(std::make_unique<OpenImageCombo>())
    {
        fillPictures(pictures);
        combo->Create(style, CRect(20, 20, 220, 200), &host, 7);
        combo->SetImageList(&pictures);
        addItem(*combo, L"first");
        addItem(*combo, L"second", 1);
        addItem(*combo, L"third", 2);
    }
    Pixels drawn(UINT id, UINT state)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          prepare(dc);
                          DRAWITEMSTRUCT item = {};
                          item.CtlType = ODT_COMBOBOX;
                          item.itemID = id;
                          item.itemAction = ODA_DRAWENTIRE;
                          item.itemState = state;
                          item.hwndItem = combo->GetComboBoxCtrl()->GetSafeHwnd();
                          item.hDC = dc;
                          item.rcItem = itemPlace;
                          combo->SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item));
                          EXPECT_EQ(::GetBkColor(dc), RGB(250, 250, 200)) << "put back";
                          EXPECT_EQ(::GetTextColor(dc), RGB(4, 5, 6)) << "put back";
                      });
    }
    static Pixels byHand(const std::function<void(HDC)>& draw)
    {
        return Pixels(canvas,
                      [&](HDC dc)
                      {
                          prepare(dc);
                          draw(dc);
                      });
    }
    static void prepare(HDC dc)
    {
        const RECT all = {0, 0, canvas.cx, canvas.cy};
        ::FillRect(dc, &all, static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH)));
        ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
        ::SetBkColor(dc, RGB(250, 250, 200));
        ::SetTextColor(dc, RGB(4, 5, 6));
    }
    /// The filled text rectangle with its text, 20 pixels behind the place of the image.
    static void textAt(HDC dc, int imageLeft, const wchar_t* text)
    {
        SIZE size = {};
        ::GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
        RECT place = {imageLeft + 20, 11, imageLeft + 20 + size.cx, 27};
        const HBRUSH brush = ::CreateSolidBrush(::GetBkColor(dc));
        ::FillRect(dc, &place, brush);
        ::DeleteObject(brush);
        ::DrawTextW(dc, text, -1, &place, DT_VCENTER);
    }
    void colors(HDC dc, int text, int background)
    {
        ::SetTextColor(dc, ::GetSysColor(text));
        ::SetBkColor(dc, ::GetSysColor(background));
    }
    void imageAt(HDC dc, int index, int x, UINT how)
    {
        ::ImageList_Draw(pictures.GetSafeHandle(), index, dc, x, 11, how);
    }
    HWND list() const
    {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        combo->GetComboBoxCtrl()->GetComboBoxInfo(&info);
        return info.hwndList;
    }
    HWND field() const { return combo->GetComboBoxCtrl()->GetSafeHwnd(); }

    DropHost host;
    CImageList pictures;
    std::unique_ptr<OpenImageCombo> combo;
};

constexpr UINT none = static_cast<UINT>(-1);

TEST_F(ImageCombo, draws_a_row_with_its_image_and_indent)
{
    EXPECT_EQ(drawn(0, 0).difference(byHand(
                  [this](HDC dc)
                  {
                      imageAt(dc, 0, 6, ILD_TRANSPARENT);
                      textAt(dc, 6, L"first");
                  })),
              "");
    EXPECT_EQ(drawn(2, 0).difference(byHand(
                  [this](HDC dc)
                  {
                      imageAt(dc, 0, 26, ILD_TRANSPARENT);
                      textAt(dc, 26, L"third");
                  })),
              "");
}

TEST_F(ImageCombo, lights_the_selected_row_and_blends_the_selected_image_of_the_focused_one)
{
    const struct
    {
        UINT state;
        int image;
        UINT how;
    } rows[] = {{ODS_SELECTED, 0, ILD_TRANSPARENT}, {ODS_SELECTED | ODS_FOCUS, 1, ILD_SELECTED}};
    for (const auto& row : rows)
    {
        const auto lit = byHand(
            [&](HDC dc)
            {
                imageAt(dc, row.image, 16, row.how);
                colors(dc, COLOR_HIGHLIGHTTEXT, COLOR_HIGHLIGHT);
                textAt(dc, 16, L"second");
            });
        EXPECT_EQ(drawn(1, row.state).difference(lit), "") << row.state;
    }
}

TEST_F(ImageCombo, greys_the_overlay_as_an_image_when_disabled)
{
    combo->EnableWindow(FALSE);
    for (const UINT state : {0U, UINT{ODS_SELECTED}, UINT{ODS_FOCUS | ODS_SELECTED}})
    {
        EXPECT_EQ(drawn(1, state).difference(byHand(
                      [this](HDC dc)
                      {
                          colors(dc, COLOR_GRAYTEXT, COLOR_BTNFACE);
                          const HICON icon = ::ImageList_GetIcon(pictures.GetSafeHandle(), 2, ILD_NORMAL);
                          ::DrawStateW(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(icon), 0, 16, 11, 0, 0,
                                       DST_ICON | DSS_DISABLED);
                          ::DestroyIcon(icon);
                          textAt(dc, 16, L"second");
                      })),
                  "")
            << state;
    }
}

TEST_F(ImageCombo, marks_an_empty_field_and_draws_no_text)
{
    const auto mark = byHand([](HDC dc) { ::DrawFocusRect(dc, itemPlace); });
    const auto untouched = byHand([](HDC) {});
    EXPECT_EQ(drawn(none, ODS_COMBOBOXEDIT).difference(mark), "");
    EXPECT_EQ(drawn(none, ODS_FOCUS).difference(mark), "");
    EXPECT_EQ(drawn(none, ODS_COMBOBOXEDIT | ODS_FOCUS).difference(untouched), "")
        << "the second mark takes the first off";
    EXPECT_EQ(drawn(none, 0).difference(untouched), "");
}

TEST_F(ImageCombo, draws_nothing_in_the_field_when_it_is_not_visible)
{
    combo->SetVisibility(false);
    const auto untouched = byHand([](HDC) {});
    EXPECT_EQ(drawn(0, ODS_COMBOBOXEDIT).difference(untouched), "");
    EXPECT_EQ(drawn(none, ODS_COMBOBOXEDIT | ODS_FOCUS).difference(untouched), "");
    EXPECT_NE(drawn(0, 0).difference(untouched), "") << "rows are drawn as ever";
    combo->SetVisibility(true);
    EXPECT_NE(drawn(0, ODS_COMBOBOXEDIT).difference(untouched), "");
}

TEST_F(ImageCombo, draws_marks_only_without_an_image_list)
{
    combo->SetImageList(nullptr);
    EXPECT_EQ(drawn(0, ODS_SELECTED).difference(byHand([](HDC) {})), "");
    EXPECT_EQ(
        drawn(none, ODS_COMBOBOXEDIT | ODS_FOCUS).difference(byHand([](HDC dc) { ::DrawFocusRect(dc, itemPlace); })),
        "");
}

TEST_F(ImageCombo, leaves_no_room_for_an_image_that_is_not_there)
{
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_IMAGE;
    item.iItem = 0;
    item.iImage = 77;
    combo->SetItem(&item);
    EXPECT_EQ(drawn(0, 0).difference(byHand([](HDC dc) { textAt(dc, 6 - 16, L"first"); })), "");
}

TEST_F(ImageCombo, draws_no_row_behind_the_end)
{
    const Pixels picture = drawn(77, 0);
    EXPECT_EQ(picture.count(CRect(30, 11, 160, 27), [](COLORREF color) { return color == RGB(4, 5, 6); }), 0);
}

TEST_F(ImageCombo, ignores_a_record_that_is_missing)
{
    combo->SendMessage(WM_DRAWITEM, 7, 0);
    DRAWITEMSTRUCT item = {};
    combo->SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(combo->GetCount(), 3);
}

// ---- On the screen

TEST_F(ImageCombo, shows_its_selection_in_the_field)
{
    combo->SetCurSel(1);
    host.SetFocus();
    pumpFor(20);
    EXPECT_GE(pixelsOf(field(), red), 16 * 15) << "the field of the platform cuts the last row off";
    combo->SetVisibility(false);
    combo->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_EQ(pixelsOf(field(), red), 0);
}

TEST_F(ImageCombo, shows_all_rows_in_its_list_and_picks_one_by_a_click)
{
    combo->SetVisibility(false);
    combo->GetComboBoxCtrl()->SetFocus();
    combo->ShowDropDown(TRUE);
    pumpFor(20);
    moveTo({5, 5});
    pumpFor(20);
    EXPECT_EQ(pixelsOf(list(), red), 3 * 256);
    CRect row;
    ::SendMessageW(list(), LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&row));
    ::MapWindowPoints(list(), nullptr, reinterpret_cast<POINT*>(&row), 2);
    click(row.CenterPoint());
    EXPECT_EQ(combo->GetCurSel(), 2);
}

TEST_F(ImageCombo, shows_no_normal_image_when_disabled)
{
    combo->SetCurSel(0);
    combo->EnableWindow(FALSE);
    pumpFor(20);
    EXPECT_EQ(pixelsOf(field(), red), 0);
    EXPECT_GT(pixelsOf(field(), ::GetSysColor(COLOR_GRAYTEXT)), 5) << "the text";
}

// ---- Its bar

/// A bar on a frame of its own.
class BarHost
{
public:
    BarHost()
    {
        frame.Create(nullptr, L"bar host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 600, 400));
        bar->Create(&frame, MAKEINTRESOURCE(IDD_BAR), CBRS_TOP, IDD_BAR);
        frame.RecalcLayout();
        frame.SetForegroundWindow();
        pumpFor(20);
    }
    ~BarHost() { frame.DestroyWindow(); }

    class Frame : public CFrameWnd
    {
    protected:
        void PostNcDestroy() override {}
    };
    Frame frame;
    std::unique_ptr<CKxDialogBarEx> bar = std::make_unique<CKxDialogBarEx>();
};

TEST(ImageComboOnABar, finds_its_bar_as_parent_or_grandparent)
{
    BarHost host;
    OpenImageCombo child, grandchild, stranger;
    child.Create(style, CRect(0, 0, 100, 100), host.bar.get(), 7);
    CWnd panel;
    panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 40), host.bar.get(), 8);
    grandchild.Create(style, CRect(0, 0, 100, 100), &panel, 9);
    stranger.Create(style, CRect(0, 0, 100, 100), &host.frame, 10);
    EXPECT_EQ(child.bar(), host.bar.get());
    EXPECT_EQ(grandchild.bar(), host.bar.get());
    EXPECT_EQ(stranger.bar(), nullptr);
    stranger.SetDlgBarParent(host.bar.get());
    EXPECT_EQ(stranger.bar(), host.bar.get());
    panel.DestroyWindow();
}

TEST(ImageComboOnABar, takes_the_pale_blue_of_its_bar)
{
    BarHost host;
    CImageList pictures;
    fillPictures(pictures);
    OpenImageCombo combo;
    combo.Create(style, CRect(4, 4, 160, 140), host.bar.get(), 7);
    combo.SetImageList(&pictures);
    addItem(combo, L"first");
    addItem(combo, L"second");
    combo.SetCurSel(0);
    combo.ShowDropDown(TRUE);
    pumpFor(20);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    combo.GetComboBoxCtrl()->GetComboBoxInfo(&info);
    EXPECT_GT(pixelsOf(info.hwndList, paleBlue), 200);
    combo.SetDlgBarParent(nullptr);
    ::RedrawWindow(info.hwndList, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(pixelsOf(info.hwndList, paleBlue), 0);
    combo.ShowDropDown(FALSE);
}

TEST(ImageComboOnABar, notices_that_its_bar_is_gone)
{
    BarHost host;
    OpenImageCombo combo;
    combo.Create(style, CRect(4, 4, 160, 140), &host.frame, 7);
    combo.SetDlgBarParent(host.bar.get());
    host.bar->DestroyWindow();
    host.bar.reset();
    CClientDC dc(&combo);
    const LRESULT brush = combo.SendMessage(WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.m_hDC),
                                            reinterpret_cast<LPARAM>(combo.GetComboBoxCtrl()->GetSafeHwnd()));
    LOGBRUSH record = {};
    ::GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof record, &record);
    EXPECT_NE(record.lbColor, paleBlue);
}

// ---- Its flags and its tip

TEST_F(ImageCombo, keeps_the_flags_of_its_host)
{
    EXPECT_FALSE(combo->GetVariant());
    EXPECT_TRUE(combo->GetVisibility());
    combo->SetVariant(true);
    combo->SetVisibility(false);
    EXPECT_TRUE(combo->GetVariant());
    EXPECT_FALSE(combo->GetVisibility());
}

TEST_F(ImageCombo, has_a_tip_for_its_inner_combo_box)
{
    OpenImageCombo early;
    early.AddFormatToolTip(L"no window, no tool");
    EXPECT_EQ(early.tip().GetToolCount(), 0);
    combo->AddFormatToolTip(L"the tip");
    EXPECT_EQ(combo->tip().GetToolCount(), 1);
    moveTo({10, 10});
    pumpFor(10);
    host.SetForegroundWindow();
    moveTo(centreOf(field()));
    EXPECT_TRUE(waitFor([this] { return ::IsWindowVisible(combo->tip().m_hWnd) != FALSE; }));
}

TEST_F(ImageCombo, takes_a_second_tip_and_ends)
{
    combo->AddFormatToolTip(L"the tip");
    combo->AddFormatToolTip(L"another");
    const HWND tip = combo->tip().m_hWnd;
    combo.reset();
    EXPECT_FALSE(::IsWindow(tip));
}

TEST_F(ImageCombo, takes_its_tool_out_when_it_ends)
{
    combo->AddFormatToolTip(L"the tip");
    MessageRecorder recorder(combo->tip().m_hWnd, [](UINT message) { return message == TTM_DELTOOLW; });
    combo.reset();
    EXPECT_EQ(recorder.count(TTM_DELTOOLW), 1);
}

// ---- Hosts with surprises

TEST_F(ImageCombo, holds_texts_of_a_million_characters)
{
    const std::wstring million(1 << 20, L'w');
    ASSERT_EQ(addItem(*combo, million.c_str()), 3);
    EXPECT_NE(drawn(3, 0).difference(byHand([](HDC) {})), "");
}

TEST_F(ImageCombo, refuses_indexes_out_of_range)
{
    for (const int index : {-2, 3, 1000, INT_MAX, INT_MIN})
    {
        EXPECT_EQ(combo->SetCurSel(index), CB_ERR) << index;
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_IMAGE;
        item.iItem = index;
        EXPECT_FALSE(combo->GetItem(&item)) << index;
    }
    EXPECT_EQ(combo->GetCount(), 3);
}

TEST_F(ImageCombo, loses_its_rows_in_any_order)
{
    for (int i = 0; i < 30; ++i)
        addItem(*combo, L"row", i % 3);
    combo->ShowDropDown(TRUE);
    for (int i = 0; combo->GetCount() > 0; ++i)
    {
        combo->SetCurSel(i % combo->GetCount());
        EXPECT_GE(static_cast<CComboBoxEx&>(*combo).DeleteItem((i * 7) % combo->GetCount()), 0);
        pumpFor();
    }
    combo->ShowDropDown(FALSE);
}

TEST_F(ImageCombo, may_lose_its_parent_in_each_notification)
{
    for (const int code : {CBN_SETFOCUS, CBN_DROPDOWN, CBN_SELCHANGE, CBN_SELENDOK, CBN_CLOSEUP, CBN_KILLFOCUS})
    {
        DropHost other;
        CKxComboBoxEx mortal;
        mortal.Create(style, CRect(20, 20, 220, 200), &other, 7);
        mortal.SetImageList(&pictures);
        addItem(mortal, L"first");
        addItem(mortal, L"second");
        expectEndedAt(code, other, mortal);
    }
}

TEST_F(ImageCombo, takes_items_of_extreme_numbers)
{
    const auto untouched = byHand([](HDC) {});
    for (const int number : {INT_MIN, -3, INT_MAX})
    {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_OVERLAY | CBEIF_INDENT;
        item.iItem = 0;
        item.iImage = item.iSelectedImage = item.iOverlay = item.iIndent = number;
        combo->SetItem(&item);
        drawn(0, ODS_FOCUS);
        combo->EnableWindow(FALSE);
        drawn(0, 0);
        combo->EnableWindow(TRUE);
    }
    EXPECT_EQ(drawn(static_cast<UINT>(INT_MIN), 0).difference(untouched), drawn(77, 0).difference(untouched))
        << "as no row behind the end";
    EXPECT_EQ(drawn(2, 0).difference(byHand(
                  [this](HDC dc)
                  {
                      imageAt(dc, 0, 26, ILD_TRANSPARENT);
                      textAt(dc, 26, L"third");
                  })),
              "")
        << "the other rows are drawn as ever";
}

TEST_F(ImageCombo, tells_its_parent_once_that_its_list_closes)
{
    const WPARAM closing = MAKEWPARAM(7, CBN_CLOSEUP);
    MessageRecorder parent(host.m_hWnd, [](UINT message) { return message == WM_COMMAND; });
    combo->SetCurSel(0);
    combo->GetComboBoxCtrl()->SetFocus();
    for (const WORD one : std::initializer_list<WORD>{VK_F4, VK_DOWN, VK_RETURN})
        key(one);
    EXPECT_EQ(combo->GetCurSel(), 1);
    std::vector<RecordedMessage> closed;
    for (const RecordedMessage& one : parent.all())
        if (HIWORD(one.wParam) == CBN_CLOSEUP)
            closed.push_back(one);
    EXPECT_EQ(closed, (std::vector<RecordedMessage>{{WM_COMMAND, closing, reinterpret_cast<LPARAM>(combo->m_hWnd)}}));
}

TEST_F(ImageCombo, has_its_tip_before_its_window)
{
    OpenImageCombo early;
    EXPECT_NE(early.tip().m_hWnd, nullptr);
    EXPECT_TRUE(early.showsToolTips());
}

void useOnce(CKxComboBoxEx& combo, DropHost& host, CImageList& pictures, int round)
{
    combo.Create(style, CRect(20, 20, 220, 200), &host, 7);
    combo.SetImageList(&pictures);
    addItem(combo, L"first");
    addItem(combo, L"second", 1);
    combo.AddFormatToolTip(L"tip");
    combo.SetCurSel(round % 2);
    combo.UpdateWindow();
    combo.EnableWindow(FALSE);
    combo.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

TEST(ImageComboLifetime, two_thousand_boxes_leave_no_handle)
{
    CImageList pictures;
    fillPictures(pictures);
    expectTwoThousandLivesLeaveNoHandle<CKxComboBoxEx>([&](CKxComboBoxEx& combo, DropHost& host, int round)
                                                       { useOnce(combo, host, pictures, round); });
}
} // namespace
