// The one-line tip: its window, place, picture and timer.
#include "oxa/tooltips/ToolTip2.h"

#include <gtest/gtest.h>

#include <climits>

#include "TipHost.h"
#include "support/LeakCounters.h"

namespace
{
constexpr UINT_PTR closeTimer = 1001;

HFONT makeFont(int height, int weight)
{
    return ::CreateFontW(height, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0, 2, 80, L"MS Sans Serif");
}

CSize measured(const wchar_t* text, int weight, int height = 25)
{
    HDC dc = ::GetDC(nullptr);
    HFONT font = makeFont(height, weight);
    HGDIOBJ old = ::SelectObject(dc, font);
    CSize size;
    ::GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    ::SelectObject(dc, old);
    ::DeleteObject(font);
    ::ReleaseDC(nullptr, dc);
    return size;
}

// Where a tip of these two parts stands for a point in the client area of a host at 200, 150.
CRect placeFor(CPoint point, CSize left, CSize right)
{
    const int half = (left.cx + right.cx) / 2;
    return CRect(200 + point.x - half + 1, 150 + point.y + 1, 200 + point.x + half + 7 + 1,
                 150 + point.y + left.cy + 2 + 1);
}

// The picture of a tip, drawn by the platform alone.
Pixels pictureOf(CSize size, const wchar_t* left, const wchar_t* right)
{
    return Pixels(size,
                  [size, left, right](HDC dc)
                  {
                      HBRUSH brush = ::CreateSolidBrush(::GetSysColor(COLOR_INFOBK));
                      HGDIOBJ oldBrush = ::SelectObject(dc, brush);
                      ::Rectangle(dc, 0, 0, size.cx, size.cy);
                      ::DeleteObject(::SelectObject(dc, oldBrush));
                      ::SetBkMode(dc, TRANSPARENT);
                      ::SetTextColor(dc, ::GetSysColor(COLOR_INFOTEXT));
                      HGDIOBJ oldFont = ::SelectObject(dc, makeFont(25, 400));
                      ::TextOutW(dc, 3, 1, left, lstrlenW(left));
                      ::DeleteObject(::SelectObject(dc, makeFont(25, 700)));
                      ::TextOutW(dc, measured(left, 400).cx + 3, 1, right, lstrlenW(right));
                      ::DeleteObject(::SelectObject(dc, oldFont));
                  });
}

struct LineTip : testing::Test
{
    TipHost host;
    CToolTip2 tip;

    void create(const wchar_t* text)
    {
        ASSERT_TRUE(tip.Create(&host));
        tip.SetText(text);
    }
    Pixels picture()
    {
        pumpFor(0);
        return Pixels(tip);
    }
    bool timerRan() { return ::KillTimer(tip.m_hWnd, closeTimer) != FALSE; }
};
} // namespace

TEST_F(LineTip, is_made_hidden_and_empty_with_its_style)
{
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(windowRect(tip).IsRectEmpty());
    EXPECT_EQ(0xC4000000u, static_cast<DWORD>(::GetWindowLongW(tip.m_hWnd, GWL_STYLE)));
    EXPECT_EQ(host.m_hWnd, ::GetWindow(tip.m_hWnd, GW_OWNER));
}

TEST_F(LineTip, is_made_only_once_and_not_without_a_parent)
{
    EXPECT_FALSE(tip.Create(nullptr));
    ASSERT_TRUE(tip.Create(&host));
    const HWND first = tip.m_hWnd;
    EXPECT_FALSE(tip.Create(&host));
    EXPECT_EQ(first, tip.m_hWnd);
}

TEST_F(LineTip, shows_once_and_answers_0_while_it_is_shown)
{
    create(L"Length");
    EXPECT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(0, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, with_an_empty_text_answers_0_and_starts_no_timer)
{
    create(L"");
    EXPECT_EQ(0, tip.Show(CPoint(150, 40)));
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(timerRan());
}

TEST_F(LineTip, loses_the_white_space_at_its_right_end_only)
{
    create(L" Length \t\r\n");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), measured(L" Length", 400), CSize(0, 0)));
    tip.Close();
    tip.SetText(L" \t\n");
    EXPECT_EQ(0, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, stands_centred_under_its_point_one_pixel_right_and_down)
{
    create(L"Length <1.5 m>");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), measured(L"Length ", 400), measured(L"1.5 m", 700)));
}

TEST_F(LineTip, of_bold_text_alone_is_as_high_as_the_empty_normal_one)
{
    create(L"<1.5 m>");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    const CSize left(0, measured(L"H", 400).cy);
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), left, measured(L"1.5 m", 700)));
    EXPECT_GT(windowRect(tip).Height(), 10);
}

TEST_F(LineTip, draws_the_part_in_brackets_in_the_bold_font)
{
    create(L"Length <1.5 m>");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(picture() == pictureOf(windowRect(tip).Size(), L"Length ", L"1.5 m"));
    EXPECT_FALSE(picture() == pictureOf(windowRect(tip).Size(), L"Length 1.5 m", L""));
}

TEST_F(LineTip, without_a_bracket_draws_the_normal_font_alone)
{
    create(L"Length 1.5 m");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(picture() == pictureOf(windowRect(tip).Size(), L"Length 1.5 m", L""));
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), measured(L"Length 1.5 m", 400), CSize(0, 0)));
}

TEST_F(LineTip, has_a_black_border_around_the_colour_of_tips)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    const Pixels pixels = picture();
    EXPECT_EQ(0u, pixels.at(0, 0));
    EXPECT_EQ(0u, pixels.at(pixels.width - 1, pixels.height - 1));
    EXPECT_EQ(::GetSysColor(COLOR_INFOBK), pixels.at(1, 1));
}

TEST_F(LineTip, takes_the_height_that_was_set_before)
{
    tip.SetHeight(60);
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), measured(L"Length", 400, 60), CSize(0, 0)));
    EXPECT_NE(measured(L"Length", 400, 60).cy, measured(L"Length", 400, 25).cy);
}

TEST_F(LineTip, repaints_at_the_kept_point_and_not_at_a_new_one)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    const CRect before = windowRect(tip);
    EXPECT_EQ(0, tip.Show(CPoint(10, 10)));
    tip.Invalidate();
    tip.UpdateWindow();
    EXPECT_TRUE(windowRect(tip) == before);
}

TEST_F(LineTip, follows_its_parent_at_the_next_paint)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    CRect moved = windowRect(tip);
    moved.OffsetRect(30, 20);
    host.SetWindowPos(nullptr, 230, 170, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    tip.Invalidate();
    tip.UpdateWindow();
    EXPECT_TRUE(windowRect(tip) == moved);
}

TEST_F(LineTip, shows_a_changed_text_at_the_next_paint)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    tip.SetText(L"Another length");
    tip.Invalidate();
    tip.UpdateWindow();
    EXPECT_TRUE(windowRect(tip) == placeFor(CPoint(150, 40), measured(L"Another length", 400), CSize(0, 0)));
    EXPECT_TRUE(picture() == pictureOf(windowRect(tip).Size(), L"Another length", L""));
}

TEST_F(LineTip, settles_after_one_paint)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(waitFor([this] { return ::GetUpdateRect(tip.m_hWnd, nullptr, FALSE) == FALSE; }));
}

TEST_F(LineTip, leaves_the_activation_where_it_is)
{
    create(L"Length");
    host.SetActiveWindow();
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_EQ(host.m_hWnd, ::GetActiveWindow());
}

TEST_F(LineTip, runs_its_timer_exactly_while_it_is_shown)
{
    create(L"Length");
    EXPECT_FALSE(timerRan());
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(timerRan());
    tip.OnStartTimer();
    tip.Close();
    EXPECT_FALSE(timerRan());
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(LineTip, starts_and_stops_its_timer_by_hand)
{
    create(L"Length");
    tip.OnStartTimer();
    tip.OnStopTimer();
    EXPECT_FALSE(timerRan());
    tip.OnStartTimer();
    EXPECT_TRUE(timerRan());
}

TEST_F(LineTip, closes_by_itself_after_its_time_and_can_be_shown_again)
{
    create(L"Length");
    tip.setDisplayTime(30);
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(waitFor([this] { return !tip.IsWindowVisible(); }));
    EXPECT_FALSE(timerRan());
    EXPECT_EQ(1, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, stays_for_the_three_seconds_that_it_begins_with)
{
    create(L"Length");
    const DWORD start = ::GetTickCount();
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    EXPECT_TRUE(waitFor([this] { return !tip.IsWindowVisible(); }, 30000));
    EXPECT_GE(::GetTickCount() - start, 2900u); // the tick of the system is coarse
}

TEST_F(LineTip, closes_on_whatever_timer_it_gets)
{
    create(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    tip.SendMessage(WM_TIMER, 77, 0);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(timerRan());
    EXPECT_EQ(1, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, before_create_answers_0_to_everything)
{
    tip.SetText(L"Length");
    tip.OnStartTimer();
    tip.OnStopTimer();
    tip.Close();
    EXPECT_EQ(0, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, shows_nothing_once_its_parent_has_gone)
{
    CWnd button;
    ASSERT_TRUE(makeButton(button, host, 7));
    ASSERT_TRUE(tip.Create(&button));
    tip.SetText(L"Length");
    ASSERT_EQ(1, tip.Show(CPoint(20, 40)));
    button.DestroyWindow();
    tip.Invalidate();
    tip.UpdateWindow(); // painted where it stands
    tip.Close();
    EXPECT_EQ(0, tip.Show(CPoint(20, 40)));
    EXPECT_FALSE(timerRan());
}

TEST_F(LineTip, outlives_the_object_of_its_parent)
{
    {
        CWnd button;
        ASSERT_TRUE(makeButton(button, host, 7));
        ASSERT_TRUE(tip.Create(&button));
        tip.SetText(L"Length");
        button.Detach(); // the window stays, the object goes
    }
    EXPECT_EQ(1, tip.Show(CPoint(20, 40)));
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST(LineTipLife, a_destroyed_owner_takes_the_shown_window_along_and_a_new_one_can_be_made)
{
    CToolTip2 tip;
    tip.SetText(L"Length");
    {
        TipHost host;
        ASSERT_TRUE(tip.Create(&host));
        ASSERT_EQ(1, tip.Show(CPoint(150, 40)));
    }
    EXPECT_EQ(nullptr, tip.m_hWnd);
    EXPECT_EQ(0, tip.Show(CPoint(150, 40)));
    TipHost next;
    ASSERT_TRUE(tip.Create(&next));
    EXPECT_EQ(1, tip.Show(CPoint(150, 40)));
}

TEST_F(LineTip, shows_a_hundred_thousand_characters)
{
    create(L"Length");
    tip.SetText(CString(L'H', 50000) + L"<" + CString(L'H', 50000) + L">");
    EXPECT_EQ(1, tip.Show(CPoint(150, 40)));
    tip.UpdateWindow();
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST_F(LineTip, takes_odd_times_heights_and_points)
{
    tip.SetHeight(INT_MIN);
    tip.SetHeight(-12);
    create(L"Length");
    for (const int time : {0, -1, INT_MAX, INT_MIN})
    {
        tip.setDisplayTime(time);
        EXPECT_EQ(1, tip.Show(CPoint(INT_MAX, INT_MIN)));
        tip.Close();
        EXPECT_EQ(1, tip.Show(CPoint(INT_MIN, INT_MAX)));
        tip.Close();
    }
}

TEST_F(LineTip, five_hundred_shows_and_paints_leave_no_object_behind)
{
    create(L"Length <1.5 m>");
    const auto cycle = [this]
    {
        tip.Show(CPoint(150, 40));
        tip.UpdateWindow();
        tip.Close();
    };
    cycle();
    const int objects = gdiObjectCount();
    for (int i = 0; i < 500; ++i)
        cycle();
    EXPECT_EQ(objects, gdiObjectCount());
}

TEST(LineTipLife, two_hundred_tips_leave_no_object_behind)
{
    TipHost host;
    const auto cycle = [&host]
    {
        CToolTip2 tip;
        tip.Create(&host);
        tip.SetText(L"Length <1.5 m>");
        tip.Show(CPoint(150, 40));
        tip.UpdateWindow();
    };
    cycle();
    const int objects = gdiObjectCount();
    const int windows = windowCount();
    for (int i = 0; i < 200; ++i)
        cycle();
    EXPECT_EQ(objects, gdiObjectCount());
    EXPECT_EQ(windows, windowCount());
}
