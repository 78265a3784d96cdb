// The button combo under a real mouse and a real keyboard: what opens, what closes, what the parent hears.
#include <gtest/gtest.h>

#include <memory>
#include <thread>

#include "ComboHost.h"

namespace
{
struct ComboMouse : testing::Test, TileCombo
{
    std::unique_ptr<MessageRecorder> parent;

    void SetUp() override
    {
        ASSERT_TRUE(create());
        parent = std::make_unique<MessageRecorder>(host, [](UINT message) { return message == 0x405; });
        host.SetActiveWindow();
        host.SetFocus();
    }
    void TearDown() override
    {
        mouseButton(MOUSEEVENTF_LEFTUP);
        moveTo(CPoint(5, 5));
        pumpFor(10);
    }
    std::vector<LPARAM> told() const
    {
        std::vector<LPARAM> items;
        for (const RecordedMessage& message : parent->all())
        {
            EXPECT_EQ(message.wParam, comboId);
            items.push_back(message.lParam);
        }
        return items;
    }
    void expectClosed()
    {
        EXPECT_FALSE(open());
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(::GetFocus(), host.m_hWnd);
    }
};
using Items = std::vector<LPARAM>;
} // namespace

TEST_F(ComboMouse, a_press_on_the_strip_opens_the_palette_below_and_gives_it_mouse_and_keys)
{
    press(combo, onStrip);
    ASSERT_TRUE(open());
    CRect face;
    CRect place;
    combo.GetWindowRect(&face);
    palette().GetWindowRect(&place);
    EXPECT_TRUE(place == CRect(CPoint(face.left, face.bottom), CSize(45, 41)));
    EXPECT_EQ(::GetCapture(), palette().m_hWnd);
    EXPECT_EQ(::GetFocus(), palette().m_hWnd);
    EXPECT_EQ(palette().GetCurrent(), 0);
    EXPECT_EQ(told(), Items{});
}

TEST_F(ComboMouse, a_release_on_a_cell_chooses_it)
{
    const struct
    {
        CPoint point;
        LPARAM item;
    } rows[] = {{{10, 10}, 0}, {{30, 10}, 1}, {{10, 30}, 2}, {{30, 30}, 3}};
    for (const auto& row : rows)
    {
        parent->clear();
        press(combo, onStrip);
        hover(palette(), row.point);
        EXPECT_EQ(palette().GetCurrent(), row.item);
        release();
        EXPECT_EQ(told(), Items{row.item});
        EXPECT_EQ(combo.GetSelectedItem(), row.item);
        EXPECT_EQ(palette().GetCurrent(), -1);
        EXPECT_EQ(Pixels(combo).at(36, 11), tileColor(static_cast<int>(row.item)));
        expectClosed();
    }
}

// The tested cells stand further apart than the painted ones, and a gap belongs to the cell behind it: kept on purpose.
TEST_F(ComboMouse, the_cells_under_the_mouse_are_not_quite_those_that_are_painted)
{
    const struct
    {
        CPoint point;
        int cell; ///< after a move from cell 0
    } rows[] = {
        {{21, 10}, 0}, {{22, 10}, 1}, {{43, 10}, 1}, {{44, 10}, 0}, // behind the last column: nothing new
        {{10, 19}, 0}, {{10, 20}, 2}, {{10, 39}, 2}, {{10, 40}, 0}, // below the last row
        {{0, 0}, 0},   {{43, 39}, 3}, {{-3, 10}, 0}, {{45, 10}, 0}, {{10, 41}, 0},
    };
    for (const auto& row : rows)
    {
        press(combo, onStrip);
        hover(palette(), CPoint(10, 10));
        hover(palette(), row.point);
        EXPECT_EQ(palette().GetCurrent(), row.cell) << row.point.x << ", " << row.point.y;
        key(VK_ESCAPE);
        release();
    }
}

TEST_F(ComboMouse, a_release_on_the_strip_chooses_the_last_cell_again)
{
    press(combo, onStrip);
    hover(palette(), CPoint(10, 30));
    release();
    press(combo, onStrip);
    EXPECT_EQ(palette().GetCurrent(), 2);
    release();
    EXPECT_EQ(told(), (Items{2, 2}));
    expectClosed();
}

TEST_F(ComboMouse, a_release_outside_chooses_the_cell_that_was_current)
{
    press(combo, onStrip);
    hover(palette(), CPoint(30, 10));
    hover(palette(), CPoint(200, 100));
    EXPECT_EQ(palette().GetCurrent(), 1);
    release();
    EXPECT_EQ(told(), Items{1});
    expectClosed();
}

TEST_F(ComboMouse, an_empty_cell_chooses_nothing_new)
{
    combo.DestroyWindow();
    ASSERT_TRUE(create(CSize(3, 2)));
    press(combo, onStrip);
    hover(palette(), CPoint(10, 30)); // cell 3
    hover(palette(), CPoint(32, 30)); // cell 4 of 4 tiles
    EXPECT_EQ(palette().GetCurrent(), 3);
    release();
    EXPECT_EQ(told(), Items{3});
}

TEST_F(ComboMouse, a_click_on_the_body_reports_the_choice_again)
{
    press(combo, onBody);
    EXPECT_EQ(told(), Items{}) << "not before the release";
    release();
    EXPECT_EQ(told(), Items{0});
    combo.SetSelectedItem(2);
    hover(combo, CPoint(25, 12));
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    release();
    EXPECT_EQ(told(), (Items{0, 2}));
    expectClosed();
}

TEST_F(ComboMouse, a_press_on_the_last_row_touches_neither_part)
{
    press(combo, CPoint(30, 23));
    release();
    press(combo, CPoint(7, 23));
    EXPECT_FALSE(open());
    release();
    EXPECT_EQ(told(), Items{});
}

TEST_F(ComboMouse, any_key_closes_without_a_choice)
{
    for (const WORD code : {WORD{VK_ESCAPE}, WORD{VK_RETURN}, WORD{'A'}, WORD{VK_DOWN}})
    {
        press(combo, onStrip);
        hover(palette(), CPoint(30, 30));
        EXPECT_EQ(palette().GetCurrent(), 3);
        key(code);
        EXPECT_EQ(palette().GetCurrent(), -1) << code;
        expectClosed();
        release();
        EXPECT_EQ(told(), Items{}) << code;
        EXPECT_EQ(combo.GetSelectedItem(), 0);
    }
}

TEST_F(ComboMouse, a_second_click_on_either_part_is_no_second_choice)
{
    for (const CPoint part : {onBody, onStrip})
    {
        parent->clear();
        press(combo, part);
        release();
        mouseButton(MOUSEEVENTF_LEFTDOWN); // the double click
        EXPECT_FALSE(open());
        release();
        EXPECT_EQ(told(), Items{0});
        expectClosed();
    }
}

TEST_F(ComboMouse, a_double_click_closes_an_open_palette)
{
    press(combo, onStrip);
    ASSERT_TRUE(open());
    combo.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(7, 10)); // the mouse itself goes to the palette
    EXPECT_FALSE(open());
    EXPECT_EQ(told(), Items{});
}

TEST_F(ComboMouse, a_right_click_on_the_face_closes_and_gives_the_focus_to_the_parent)
{
    press(combo, onStrip);
    ASSERT_TRUE(open());
    ::ReleaseCapture();
    mouseButton(MOUSEEVENTF_RIGHTDOWN);
    EXPECT_FALSE(open());
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
    mouseButton(MOUSEEVENTF_RIGHTUP);
    EXPECT_EQ(told(), Items{});
}

TEST_F(ComboMouse, a_right_click_while_the_palette_has_the_mouse_does_nothing)
{
    press(combo, onStrip);
    hover(palette(), CPoint(30, 10));
    mouseButton(MOUSEEVENTF_RIGHTDOWN);
    mouseButton(MOUSEEVENTF_RIGHTUP);
    EXPECT_TRUE(open());
    EXPECT_EQ(palette().GetCurrent(), 1);
    release();
    EXPECT_EQ(told(), Items{1});
}

TEST_F(ComboMouse, the_loss_of_the_focus_closes_when_the_cursor_is_outside_the_face)
{
    press(combo, onStrip);
    ASSERT_TRUE(open());
    host.SetFocus();
    EXPECT_TRUE(open()) << "the cursor is on the face";
    palette().SetFocus();
    hover(palette(), CPoint(30, 10));
    host.SetFocus();
    EXPECT_FALSE(open());
    EXPECT_EQ(told(), Items{});
}

TEST_F(ComboMouse, another_application_in_front_closes)
{
    press(combo, onStrip);
    hover(palette(), CPoint(30, 30));
    ASSERT_TRUE(open());
    // A window of another thread stands for the other application.
    HWND other = nullptr;
    DWORD threadId = 0;
    std::thread thread(
        [&]
        {
            threadId = ::GetCurrentThreadId();
            other = ::CreateWindowW(L"STATIC", L"other", WS_POPUP | WS_VISIBLE, 700, 50, 100, 100, nullptr, nullptr,
                                    nullptr, nullptr);
            ::SetForegroundWindow(other);
            MSG message;
            while (::GetMessageW(&message, nullptr, 0, 0) > 0)
                ::DispatchMessageW(&message);
            ::DestroyWindow(other);
        });
    EXPECT_TRUE(waitFor([&] { return !open(); }));
    EXPECT_EQ(palette().GetCurrent(), -1);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(told(), Items{});
    ::PostThreadMessageW(threadId, WM_QUIT, 0, 0);
    thread.join();
}

// Kept on purpose: the message goes to the palette of every combo, open or not.
TEST_F(ComboMouse, a_closed_palette_gives_the_focus_to_the_parent_too_when_another_application_comes)
{
    CWnd field;
    ASSERT_TRUE(field.CreateEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(100, 100, 200, 120), &host, 5));
    field.SetFocus();
    ::SendMessage(palette(), WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_EQ(::GetFocus(), host.m_hWnd);
    field.SetFocus();
    ::SendMessage(palette(), WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_EQ(::GetFocus(), field.m_hWnd);
}

TEST_F(ComboMouse, a_release_without_a_current_cell_leaves_the_palette_open)
{
    combo.OnItemSelected(1, -1);
    parent->clear();
    press(combo, onStrip);
    EXPECT_EQ(palette().GetCurrent(), -1);
    release();
    EXPECT_TRUE(open());
    EXPECT_EQ(::GetCapture(), palette().m_hWnd);
    EXPECT_EQ(told(), Items{});
    click(screenPoint(palette(), CPoint(10, 30)));
    EXPECT_EQ(told(), Items{2}) << "so now a click chooses";
    expectClosed();
}

// What happens to the face does not concern an open palette, which has the mouse.
TEST_F(ComboMouse, an_open_palette_outlasts_what_its_host_does_to_the_face)
{
    const std::function<void()> deeds[] = {
        [&] { combo.EnableWindow(FALSE); },
        [&] { combo.EnableWindow(TRUE); },
        [&] { combo.ShowWindow(SW_HIDE); },
        [&] { combo.ShowWindow(SW_SHOW); },
        [&] { combo.MoveWindow(CRect(20, 30, 60, 50)); },
        [&] { combo.MoveWindow(comboPlace); },
        [&] { ::ReleaseCapture(); },
        [&] { combo.SetFocus(); },
    };
    for (const auto& deed : deeds)
    {
        combo.EnableWindow(TRUE);
        combo.ShowWindow(SW_SHOW);
        parent->clear();
        press(combo, onStrip);
        hover(palette(), CPoint(10, 10));
        const CPoint cell = screenPoint(palette(), CPoint(30, 30));
        moveTo(screenPoint(combo, onBody)); // where the loss of the focus closes nothing
        pumpFor(10);
        deed();
        ASSERT_TRUE(open());
        moveTo(cell);
        pumpFor(10);
        release();
        EXPECT_EQ(told(), Items{3});
        EXPECT_FALSE(open());
        EXPECT_EQ(::GetCapture(), nullptr);
    }
}

// Kept on purpose: it keeps the mouse, so that the release still chooses.
TEST_F(ComboMouse, a_palette_that_lost_the_focus_keeps_the_mouse)
{
    press(combo, onStrip);
    hover(palette(), CPoint(30, 10));
    host.SetFocus();
    EXPECT_FALSE(open());
    EXPECT_EQ(::GetCapture(), palette().m_hWnd);
    release();
    EXPECT_EQ(told(), Items{1});
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboMouse, the_host_may_choose_and_hears_of_it_up_to_the_element_number)
{
    const struct
    {
        long item;
        Items heard;
    } rows[] = {{3, {3}}, {4, {}}, {LONG_MAX, {}}, {0, {0}}, {-1, {-1}}, {-7, {-7}}};
    for (const auto& row : rows)
    {
        parent->clear();
        combo.OnItemSelected(row.item, 1);
        EXPECT_EQ(told(), row.heard) << row.item;
        EXPECT_EQ(combo.GetSelectedItem(), row.item);
        EXPECT_EQ(palette().GetCurrent(), 1);
    }
    combo.UnpressRightButton();
    combo.UnpressRightButton();
    EXPECT_EQ(told(), Items{-7});
    EXPECT_EQ(palette().GetCurrent(), 1);
}

TEST_F(ComboMouse, the_static_form_opens_nothing)
{
    combo.DestroyWindow();
    ASSERT_TRUE(combo.CreateStatic(comboPlace, IDB_TILES, &host, comboId));
    pumpFor(0);
    const Pixels before(combo);
    press(combo, onStrip);
    EXPECT_FALSE(open());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(Pixels(combo).difference(before), "");
    release();
    EXPECT_EQ(told(), Items{});
    press(combo, onBody);
    EXPECT_EQ(Pixels(combo).difference(before), "") << "it has no body that sinks";
    release();
    EXPECT_EQ(told(), Items{0}) << "but it is reported like any other";
}

TEST_F(ComboMouse, a_disabled_combo_does_nothing)
{
    combo.EnableWindow(FALSE);
    press(combo, onStrip);
    release();
    press(combo, onBody);
    release();
    EXPECT_FALSE(open());
    EXPECT_EQ(told(), Items{});
}
