// The balloon: its window, region, tools, place and hiding.
#include "oxa/tooltips/KxToolTip2.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "TipHost.h"

namespace
{
constexpr UINT_PTR hideTimer = 10;

struct Balloon : testing::Test
{
    TipHost host;
    KxToolTip2 tip;

    void create()
    {
        ASSERT_TRUE(tip.Create(&host));
        tip.AddTool(&host, L"A length", CPoint(300, 400), RGB(0, 0, 128));
    }
    void show(int x, int y)
    {
        tip.AddTool(&host, L"A length", CPoint(x, y), 0);
        tip.ShowToolTip(host.m_hWnd);
    }
    void relay(UINT message)
    {
        MSG sent = {};
        sent.hwnd = host.m_hWnd;
        sent.message = message;
        tip.RelayEvent(&sent);
    }
};

class Region
{
public:
    explicit Region(HRGN owned) : handle(owned) {}
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;
    ~Region() { ::DeleteObject(handle); }
    bool has(int x, int y) const { return ::PtInRegion(handle, x, y) != FALSE; }
    CRect box() const
    {
        CRect rect;
        ::GetRgnBox(handle, &rect);
        return rect;
    }
    bool operator==(const Region& other) const { return ::EqualRgn(handle, other.handle) != FALSE; }

    HRGN handle;
};

Region regionOf(const CWnd& window)
{
    HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_NE(ERROR, ::GetWindowRgn(window.m_hWnd, region));
    return Region(region);
}

// The union that a balloon of 180 by 80 has, made straight from the platform's calls.
Region balloonOf180By80(const POINT (&tail)[3])
{
    HRGN region = ::CreateRoundRectRgn(10, 0, 180, 70, 10, 10);
    const Region triangle(::CreatePolygonRgn(tail, 3, ALTERNATE));
    ::CombineRgn(region, region, triangle.handle, RGN_OR);
    return Region(region);
}
} // namespace

TEST_F(Balloon, is_made_hidden_as_a_plain_popup_of_its_size_owned_by_its_parent)
{
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_TRUE(windowRect(tip) == CRect(0, 0, 180, 80));
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(static_cast<LONG>(WS_POPUP | WS_CLIPSIBLINGS), ::GetWindowLongW(tip.m_hWnd, GWL_STYLE));
    EXPECT_EQ(0, ::GetWindowLongW(tip.m_hWnd, GWL_EXSTYLE));
    EXPECT_EQ(0, ::GetWindowTextLengthW(tip.m_hWnd));
    EXPECT_EQ(host.m_hWnd, ::GetWindow(tip.m_hWnd, GW_OWNER));
    EXPECT_EQ(&host, tip.GetOwner());
}

TEST_F(Balloon, has_the_class_registered_without_styles_cursor_and_brush)
{
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_EQ(0u, ::GetClassLongPtrW(tip.m_hWnd, GCL_STYLE));
    EXPECT_EQ(0u, ::GetClassLongPtrW(tip.m_hWnd, GCLP_HCURSOR));
    EXPECT_EQ(0u, ::GetClassLongPtrW(tip.m_hWnd, GCLP_HBRBACKGROUND));
}

TEST_F(Balloon, takes_the_size_that_was_set_before)
{
    tip.SetWidth(240);
    tip.SetHeight(100);
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_TRUE(windowRect(tip) == CRect(0, 0, 240, 100));
    EXPECT_TRUE(regionOf(tip).has(230, 50));
    EXPECT_TRUE(regionOf(tip).has(8, 91)); // in the tail 0, 100 - 20, 88 - 12, 80
}

TEST_F(Balloon, is_made_only_once)
{
    ASSERT_TRUE(tip.Create(&host));
    const HWND first = tip.m_hWnd;
    EXPECT_FALSE(tip.Create(&host));
    EXPECT_EQ(first, tip.m_hWnd);
}

TEST_F(Balloon, is_not_made_without_a_parent)
{
    EXPECT_FALSE(tip.Create(nullptr));
    EXPECT_EQ(nullptr, tip.m_hWnd);
}

TEST_F(Balloon, is_cut_to_the_union_of_body_and_left_tail)
{
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_TRUE(regionOf(tip) == balloonOf180By80({{0, 80}, {20, 68}, {12, 60}}));
}

TEST_F(Balloon, has_points_in_and_out_of_its_region)
{
    ASSERT_TRUE(tip.Create(&host));
    const Region region = regionOf(tip);
    EXPECT_TRUE(region.has(95, 35));   // the middle of the body
    EXPECT_TRUE(region.has(100, 0));   // its upper edge
    EXPECT_TRUE(region.has(10, 35));   // its left edge
    EXPECT_FALSE(region.has(9, 35));   // left of it
    EXPECT_FALSE(region.has(10, 0));   // the corner that is rounded away
    EXPECT_FALSE(region.has(179, 75)); // below the body
    EXPECT_TRUE(region.has(8, 71));    // in the tail
    EXPECT_FALSE(region.has(2, 70));   // left of the tail
    EXPECT_FALSE(region.has(20, 75));  // right of the tail
}

TEST_F(Balloon, is_cut_to_the_union_of_body_and_right_tail)
{
    tip.SetLeftOriented(false);
    ASSERT_TRUE(tip.Create(&host));
    EXPECT_TRUE(regionOf(tip) == balloonOf180By80({{180, 80}, {160, 68}, {168, 60}}));
    EXPECT_TRUE(regionOf(tip).has(172, 71));
    EXPECT_FALSE(regionOf(tip).has(8, 71));
}

TEST_F(Balloon, keeps_its_region_when_size_and_orientation_change_later)
{
    ASSERT_TRUE(tip.Create(&host));
    tip.SetWidth(300);
    tip.SetHeight(120);
    tip.SetLeftOriented(false);
    show(500, 400);
    EXPECT_TRUE(windowRect(tip) == CRect(200, 280, 500, 400)); // only the place follows
    EXPECT_TRUE(regionOf(tip) == balloonOf180By80({{0, 80}, {20, 68}, {12, 60}}));
}

TEST_F(Balloon, shows_at_the_point_of_its_tool)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_TRUE(windowRect(tip) == CRect(300, 320, 480, 400));
    EXPECT_TRUE(tip.GetTextLabel() == L"A length");
}

TEST_F(Balloon, stands_left_of_its_point_when_right_oriented)
{
    tip.SetLeftOriented(false);
    create();
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(windowRect(tip) == CRect(120, 320, 300, 400));
}

TEST_F(Balloon, shows_nothing_for_a_window_without_a_tool)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    tip.ShowToolTip(tip.m_hWnd);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(tip.GetTextLabel() == L"A length"); // the text of the last one
    tip.ShowToolTip(nullptr);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(Balloon, has_no_text_before_the_first_tip)
{
    create();
    EXPECT_TRUE(tip.GetTextLabel().IsEmpty());
}

TEST_F(Balloon, keeps_only_the_second_of_two_tools_of_one_window)
{
    create();
    tip.AddTool(&host, L"Another", CPoint(320, 420), 0);
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(tip.GetTextLabel() == L"Another");
    EXPECT_TRUE(windowRect(tip) == CRect(320, 340, 500, 420));
}

TEST_F(Balloon, keeps_the_tools_of_different_windows_apart)
{
    create();
    CWnd button;
    ASSERT_TRUE(makeButton(button, host, 7));
    tip.AddTool(&button, L"A button", CPoint(350, 300), 0);
    tip.ShowToolTip(button.m_hWnd);
    EXPECT_TRUE(tip.GetTextLabel() == L"A button");
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_TRUE(tip.GetTextLabel() == L"A length");
}

TEST_F(Balloon, comes_to_the_top_of_the_order_each_time)
{
    create();
    KxToolTip2 other;
    ASSERT_TRUE(other.Create(&host));
    other.AddTool(&host, L"Another", CPoint(300, 400), 0);
    const POINT body = {395, 355};
    tip.ShowToolTip(host.m_hWnd);
    other.ShowToolTip(host.m_hWnd);
    EXPECT_EQ(other.m_hWnd, ::WindowFromPoint(body));
    tip.ShowToolTip(host.m_hWnd);
    EXPECT_EQ(tip.m_hWnd, ::WindowFromPoint(body));
}

TEST_F(Balloon, takes_negative_coordinates_as_0)
{
    create();
    show(-40, 400);
    EXPECT_TRUE(windowRect(tip) == CRect(0, 320, 180, 400));
    show(300, -40);
    EXPECT_TRUE(windowRect(tip) == CRect(300, -80, 480, 0));
}

TEST_F(Balloon, is_pushed_left_at_the_right_edge_of_the_screen)
{
    create();
    const int screenWidth = ::GetSystemMetrics(SM_CXSCREEN);
    show(screenWidth - 20, 400);
    EXPECT_TRUE(windowRect(tip) == CRect(screenWidth - 180, 320, screenWidth, 400));
}

TEST_F(Balloon, stands_on_the_lower_edge_for_a_point_below_the_screen)
{
    create();
    const int screenHeight = ::GetSystemMetrics(SM_CYSCREEN);
    show(300, screenHeight + 50);
    EXPECT_TRUE(windowRect(tip) == CRect(300, screenHeight - 80, 480, screenHeight));
}

TEST_F(Balloon, hides_on_a_click_on_it)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    pumpFor(20);
    click(CPoint(390, 350));
    EXPECT_TRUE(waitFor([this] { return !tip.IsWindowVisible(); }));
}

TEST_F(Balloon, lets_a_click_beside_its_tail_through)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    pumpFor(20);
    EXPECT_EQ(tip.m_hWnd, ::WindowFromPoint(POINT{308, 391}));
    EXPECT_EQ(host.m_hWnd, ::WindowFromPoint(POINT{400, 395}));
}

TEST_F(Balloon, stays_when_it_loses_the_focus)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    tip.SendMessage(WM_KILLFOCUS, 0, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST_F(Balloon, hides_on_each_relayed_button_and_key)
{
    create();
    for (const UINT message : {WM_NCLBUTTONDOWN, WM_NCRBUTTONDOWN, WM_KEYDOWN, WM_LBUTTONDOWN, WM_RBUTTONDOWN})
    {
        tip.ShowToolTip(host.m_hWnd);
        ASSERT_TRUE(tip.IsWindowVisible());
        relay(message);
        EXPECT_FALSE(tip.IsWindowVisible()) << message;
    }
}

TEST_F(Balloon, ignores_all_other_relayed_messages)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP, WM_MBUTTONDOWN, WM_NCMBUTTONDOWN, WM_SYSKEYDOWN, WM_CHAR,
                               WM_TIMER, WM_LBUTTONDBLCLK})
    {
        relay(message);
        EXPECT_TRUE(tip.IsWindowVisible()) << message;
    }
    tip.RelayEvent(nullptr);
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST_F(Balloon, relays_what_it_translates)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    MSG message = {};
    message.hwnd = tip.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_F24;
    EXPECT_FALSE(tip.PreTranslateMessage(&message));
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(tip.PreTranslateMessage(nullptr));
}

TEST_F(Balloon, ends_its_timer_and_hides_on_whatever_timer_it_translates)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    tip.setTimer(60000);
    MSG message = {};
    message.hwnd = tip.m_hWnd;
    message.message = WM_TIMER;
    message.wParam = 77;
    EXPECT_FALSE(tip.PreTranslateMessage(&message));
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_FALSE(::KillTimer(tip.m_hWnd, hideTimer));
}

TEST_F(Balloon, hides_after_its_time_when_the_framework_pumps)
{
    create();
    tip.ShowToolTip(host.m_hWnd);
    tip.setTimer(30);
    EXPECT_TRUE(HostLoop::pumpUntil([this] { return !tip.IsWindowVisible(); }));
    EXPECT_FALSE(::KillTimer(tip.m_hWnd, hideTimer));
}

TEST_F(Balloon, starts_timer_10)
{
    create();
    tip.setTimer(60000);
    EXPECT_TRUE(::KillTimer(tip.m_hWnd, hideTimer));
}

TEST_F(Balloon, hides_only_when_it_is_shown)
{
    create();
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    tip.ShowToolTip(host.m_hWnd);
    tip.Hide();
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
}
