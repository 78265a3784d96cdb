// What the balloon paints, read back from its window.
#include "oxa/tooltips/KxToolTip2.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "TipHost.h"
#include "support/AnswerModal.h"

namespace
{
constexpr COLORREF paper = 0xE6FFFF;
const CRect inside(15, 1, 174, 68); // the body within its frame, without its rounded corners

struct BalloonPaint : testing::Test
{
    TipHost host;
    KxToolTip2 tip;

    Pixels shown(const CString& text, COLORREF color = 0)
    {
        if (tip.m_hWnd == nullptr)
        {
            EXPECT_TRUE(tip.Create(&host)); // braces: the macro holds an else
        }
        tip.AddTool(&host, text, CPoint(300, 400), color);
        tip.ShowToolTip(host.m_hWnd);
        pumpFor(0);
        return Pixels(tip);
    }
};

// Takes every free GDI handle of the process while it lives.
class NoHandlesLeft
{
public:
    explicit NoHandlesLeft(size_t left)
    {
        while (HRGN region = ::CreateRectRgn(0, 0, 1, 1))
            taken.push_back(region);
        for (; left > 0 && !taken.empty(); --left)
        {
            ::DeleteObject(taken.back());
            taken.pop_back();
        }
        hook = ::SetWindowsHookExW(WH_CBT, onWindow, nullptr, ::GetCurrentThreadId());
        current = this;
    }
    NoHandlesLeft(const NoHandlesLeft&) = delete;
    NoHandlesLeft& operator=(const NoHandlesLeft&) = delete;
    ~NoHandlesLeft()
    {
        giveBack();
        ::UnhookWindowsHookEx(hook);
        current = nullptr;
    }

private:
    void giveBack()
    {
        for (HRGN region : taken)
            ::DeleteObject(region);
        taken.clear();
    }
    // A window that comes up now is the message box, which wants handles for itself.
    static LRESULT CALLBACK onWindow(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && current != nullptr)
            current->giveBack();
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    std::vector<HRGN> taken;
    HHOOK hook = nullptr;
    inline static NoHandlesLeft* current = nullptr;
};

// A balloon that finds no free handle in one chosen message.
class StarvedBalloon : public KxToolTip2
{
public:
    UINT starvedIn = 0;
    size_t left = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != starvedIn)
            return KxToolTip2::WindowProc(message, wParam, lParam);
        const NoHandlesLeft hunger(left);
        return KxToolTip2::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(BalloonPaint, fills_its_body_with_pale_yellow)
{
    const Pixels pixels = shown(L"");
    EXPECT_EQ(paper, pixels.at(95, 35));
    EXPECT_EQ(inside.Width() * inside.Height(), pixels.count(inside, [](COLORREF c) { return c == paper; }));
}

TEST_F(BalloonPaint, has_a_black_frame_of_one_pixel)
{
    const Pixels pixels = shown(L"");
    EXPECT_EQ(0u, pixels.at(95, 0));
    EXPECT_EQ(paper, pixels.at(95, 1));
    EXPECT_EQ(0u, pixels.at(10, 35));
    EXPECT_EQ(paper, pixels.at(11, 35));
    EXPECT_EQ(0u, pixels.at(178, 35)); // a rounded region is one pixel short
    EXPECT_EQ(paper, pixels.at(177, 35));
    EXPECT_EQ(0u, pixels.at(95, 68));
    EXPECT_EQ(paper, pixels.at(95, 67));
}

TEST_F(BalloonPaint, opens_the_body_into_the_tail)
{
    const Pixels pixels = shown(L"");
    EXPECT_EQ(paper, pixels.at(14, 67)); // no frame between them
    EXPECT_EQ(paper, pixels.at(10, 70));
}

TEST_F(BalloonPaint, writes_a_short_text_in_the_middle_of_its_room)
{
    const CRect ink = shown(L"HHHH").ink(inside, paper);
    EXPECT_LE(std::abs(ink.CenterPoint().x - 95), 2); // the room is 20 to 170 by 5 to 75
    EXPECT_LE(std::abs(ink.CenterPoint().y - 40), 3);
    EXPECT_LE(ink.Height(), 14);
}

TEST_F(BalloonPaint, wraps_a_long_text_from_the_top_of_its_room)
{
    const CRect ink = shown(L"This length is measured from the axis of the beam").ink(inside, paper);
    EXPECT_GE(ink.left, 20);
    EXPECT_LE(ink.right, 170);
    EXPECT_GE(ink.top, 5);
    EXPECT_LE(ink.top, 5 + 14);
    EXPECT_GT(ink.Height(), 14); // more than one line
}

TEST_F(BalloonPaint, does_not_write_outside_the_room_however_long_the_text)
{
    const Pixels pixels = shown(CString(L"HHHH ") + CString(L'H', 100000));
    EXPECT_EQ(0u, pixels.at(95, 0)); // the frame is whole
    EXPECT_EQ(paper, pixels.at(15, 35));
    EXPECT_EQ(paper, pixels.at(174, 35));
}

TEST_F(BalloonPaint, writes_in_the_colour_of_the_tool)
{
    const auto reddish = [](COLORREF c) { return GetRValue(c) > 180 && GetGValue(c) < 90 && GetBValue(c) < 90; };
    EXPECT_GT(shown(L"HHHH", RGB(255, 0, 0)).count(inside, reddish), 0);
    EXPECT_EQ(0, shown(L"HHHH", RGB(0, 0, 255)).count(inside, reddish));
}

TEST_F(BalloonPaint, takes_the_height_14_of_arial)
{
    const Pixels pixels = shown(L"Length");
    const Pixels expected(CSize(180, 80),
                          [](HDC dc)
                          {
                              HBRUSH brush = ::CreateSolidBrush(paper);
                              RECT all = {0, 0, 180, 80};
                              ::FillRect(dc, &all, brush);
                              ::DeleteObject(brush);
                              HFONT font = ::CreateFontW(14, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial");
                              HGDIOBJ old = ::SelectObject(dc, font);
                              ::SetBkMode(dc, TRANSPARENT);
                              RECT room = {20, 5, 170, 75};
                              ::DrawTextW(dc, L"Length", -1, &room, 37);
                              ::SelectObject(dc, old);
                              ::DeleteObject(font);
                          });
    int different = 0;
    for (int y = inside.top; y < inside.bottom; ++y)
        for (int x = inside.left; x < inside.right; ++x)
            different += pixels.at(x, y) != expected.at(x, y);
    EXPECT_EQ(0, different);
}

TEST_F(BalloonPaint, shows_the_new_text_when_the_tip_changes)
{
    const Pixels first = shown(L"HHHH");
    const Pixels second = shown(L"II");
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(shown(L"HHHH") == first);
}

TEST_F(BalloonPaint, tells_when_its_region_cannot_be_made_and_is_not_created)
{
    StarvedBalloon starved;
    starved.starvedIn = WM_CREATE;
    const AnswerModal answer(IDOK);
    EXPECT_FALSE(starved.Create(&host));
    EXPECT_NE(std::wstring::npos, AnswerModal::seen().find(L"|ERROR in Combining Region"));
    EXPECT_EQ(nullptr, starved.m_hWnd);
    starved.starvedIn = 0;
    EXPECT_TRUE(starved.Create(&host));
}

TEST_F(BalloonPaint, tells_when_its_region_cannot_be_made_and_draws_nothing)
{
    StarvedBalloon starved;
    ASSERT_TRUE(starved.Create(&host));
    starved.AddTool(&host, L"HHHH", CPoint(300, 400), 0);
    starved.ShowToolTip(host.m_hWnd);
    pumpFor(0);
    bool told = false;
    // How many handles the paint context itself needs is the platform's affair.
    for (starved.left = 0; starved.left < 12 && !told; ++starved.left)
    {
        HDC dc = ::GetDC(starved.m_hWnd);
        ::SetPixelV(dc, 95, 10, RGB(1, 2, 3));
        ::ReleaseDC(starved.m_hWnd, dc);
        const AnswerModal answer(IDOK);
        starved.starvedIn = WM_PAINT;
        starved.Invalidate(FALSE);
        starved.UpdateWindow();
        starved.starvedIn = 0;
        told = AnswerModal::seen().find(L"|ERROR in Combining Region") != std::wstring::npos;
        if (told)
        {
            EXPECT_EQ(RGB(1, 2, 3), Pixels(starved).at(95, 10));
        }
    }
    EXPECT_TRUE(told);
}
