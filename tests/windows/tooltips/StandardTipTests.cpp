// The layer on the standard tool tip control: what it is told, and a tip that a real cursor brings up.
#include "oxa/tooltips/KxToolTip.h"

#include <gtest/gtest.h>

#include <string>

#include "TipHost.h"
#include "support/LeakCounters.h"
#include "support/MessageRecorder.h"

namespace
{
struct StandardTip : testing::Test
{
    TipHost host;
    CWnd button;
    CKxToolTip tip;

    void SetUp() override
    {
        ASSERT_TRUE(makeButton(button, host, 7));
        ASSERT_TRUE(tip.Create(&host, TTS_ALWAYSTIP));
    }

    // The records of the tools that `act` adds, as the control receives them.
    std::vector<TOOLINFOW> sentBy(const std::function<void()>& act)
    {
        std::vector<TOOLINFOW> sent;
        texts.clear();
        MessageRecorder recorder(tip.m_hWnd, [](UINT message) { return message == TTM_ADDTOOLW; });
        recorder.onRecord = [this, &sent](const RecordedMessage& message)
        {
            sent.push_back(*reinterpret_cast<const TOOLINFOW*>(message.lParam));
            texts.emplace_back(sent.back().lpszText);
        };
        act();
        return sent;
    }

    std::wstring textOf(HWND window, UINT_PTR id)
    {
        wchar_t buffer[200] = {};
        TOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = window;
        tool.uId = id;
        tool.lpszText = buffer;
        tip.SendMessage(TTM_GETTEXTW, 200, reinterpret_cast<LPARAM>(&tool));
        return buffer;
    }

    int toolCount() { return static_cast<int>(tip.SendMessage(TTM_GETTOOLCOUNT)); }

    std::vector<std::wstring> texts;
};
} // namespace

TEST_F(StandardTip, a_null_window_gets_no_tool)
{
    const RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(0, tip.AddWindowTool(nullptr, L"text"));
    EXPECT_EQ(0, tip.AddRectTool(nullptr, L"text", &rect, 1));
    EXPECT_EQ(0, toolCount());
}

TEST_F(StandardTip, a_window_tool_is_the_whole_window_by_its_handle)
{
    BOOL result = FALSE;
    const auto sent = sentBy([&] { result = tip.AddWindowTool(&button, L"A length"); });
    EXPECT_EQ(TRUE, result);
    ASSERT_EQ(1u, sent.size());
    EXPECT_EQ(72u, sent[0].cbSize);
    EXPECT_EQ(17u, sent[0].uFlags);
    EXPECT_EQ(button.m_hWnd, sent[0].hwnd);
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(button.m_hWnd), sent[0].uId);
    EXPECT_EQ(AfxGetInstanceHandle(), sent[0].hinst);
    EXPECT_EQ(L"A length", texts[0]);
    EXPECT_EQ(1, toolCount());
    EXPECT_EQ(L"A length", textOf(button.m_hWnd, reinterpret_cast<UINT_PTR>(button.m_hWnd)));
}

TEST_F(StandardTip, a_rectangle_tool_has_its_own_id)
{
    const RECT rect = {10, 100, 90, 130};
    BOOL result = FALSE;
    const auto sent = sentBy([&] { result = tip.AddRectTool(&host, L"The picture", &rect, 4000000000u); });
    EXPECT_EQ(TRUE, result);
    ASSERT_EQ(1u, sent.size());
    EXPECT_EQ(72u, sent[0].cbSize);
    EXPECT_EQ(16u, sent[0].uFlags);
    EXPECT_EQ(host.m_hWnd, sent[0].hwnd);
    EXPECT_EQ(4000000000u, sent[0].uId);
    EXPECT_TRUE(CRect(sent[0].rect) == CRect(10, 100, 90, 130));
    EXPECT_EQ(L"The picture", textOf(host.m_hWnd, 4000000000u));
}

TEST_F(StandardTip, a_rectangle_tool_without_a_rectangle_is_refused)
{
    EXPECT_EQ(0, tip.AddRectTool(&host, L"text", nullptr, 1));
    EXPECT_EQ(0, toolCount());
}

TEST_F(StandardTip, the_control_keeps_a_copy_of_the_text)
{
    wchar_t text[] = L"A length";
    tip.AddWindowTool(&button, text);
    text[0] = L'?';
    EXPECT_EQ(L"A length", textOf(button.m_hWnd, reinterpret_cast<UINT_PTR>(button.m_hWnd)));
}

TEST_F(StandardTip, the_cursor_over_a_window_tool_brings_its_tip_up)
{
    tip.AddWindowTool(&button, L"A length");
    tip.SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    moveTo(CPoint(350, 400));
    pumpFor(20);
    moveTo(centreOf(button.m_hWnd));
    EXPECT_TRUE(waitFor([this] { return tip.IsWindowVisible() != FALSE; }));
    CString shown;
    tip.GetWindowText(shown);
    EXPECT_TRUE(shown == L"A length");
    moveTo(CPoint(550, 400));
    EXPECT_TRUE(waitFor([this] { return !tip.IsWindowVisible(); }));
}

TEST_F(StandardTip, the_cursor_over_a_rectangle_tool_brings_its_tip_up)
{
    const RECT rect = {10, 100, 90, 130};
    tip.AddRectTool(&host, L"The picture", &rect, 5);
    tip.SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    moveTo(CPoint(500, 400)); // in the host, outside the rectangle
    pumpFor(100);
    EXPECT_FALSE(tip.IsWindowVisible());
    moveTo(CPoint(250, 265));
    EXPECT_TRUE(waitFor([this] { return tip.IsWindowVisible() != FALSE; }));
}

TEST_F(StandardTip, a_tool_can_be_taken_away_again)
{
    tip.AddWindowTool(&button, L"A length");
    tip.DelTool(&button);
    EXPECT_EQ(0, toolCount());
}

TEST_F(StandardTip, odd_texts_are_harmless)
{
    EXPECT_EQ(TRUE, tip.AddWindowTool(&button, L""));
    EXPECT_EQ(TRUE, tip.AddWindowTool(&host, CString(L'H', 100000)));
    CWnd another;
    ASSERT_TRUE(makeButton(another, host, 8, CRect(200, 30, 300, 70)));
    tip.AddWindowTool(&another, nullptr);
    tip.SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    for (CWnd* window : {&another, &button, static_cast<CWnd*>(&host)})
    {
        moveTo(centreOf(window->m_hWnd));
        pumpFor(60);
    }
    EXPECT_EQ(3, toolCount());
}

TEST_F(StandardTip, a_text_beyond_any_length_is_cut_to_what_the_control_can_answer)
{
    EXPECT_EQ(TRUE, tip.AddWindowTool(&button, CString(L'H', 100000)));
    CToolInfo info;
    EXPECT_TRUE(tip.GetToolInfo(info, &button));
    CString text;
    tip.GetText(text, &button);
    EXPECT_LE(text.GetLength(), 32766);
    EXPECT_TRUE(text.Left(79) == CString(L'H', 79));
}

TEST_F(StandardTip, a_window_object_without_a_window_is_harmless)
{
    CWnd notCreated;
    const RECT rect = {0, 0, 10, 10};
    tip.AddWindowTool(&notCreated, L"text");
    tip.AddRectTool(&notCreated, L"text", &rect, 1);
    EXPECT_TRUE(::IsWindow(tip.m_hWnd));
}

TEST_F(StandardTip, a_destroyed_window_leaves_the_control_working)
{
    tip.AddWindowTool(&button, L"A length");
    button.DestroyWindow();
    moveTo(CPoint(280, 200));
    pumpFor(50);
    EXPECT_EQ(TRUE, tip.AddWindowTool(&host, L"The host"));
}

TEST(StandardTipLife, before_create_nothing_is_added)
{
    TipHost host;
    CKxToolTip tip;
    const RECT rect = {0, 0, 10, 10};
    EXPECT_EQ(0, tip.AddWindowTool(&host, L"text"));
    EXPECT_EQ(0, tip.AddRectTool(&host, L"text", &rect, 1));
}

TEST(StandardTipLife, two_hundred_controls_leave_no_object_behind)
{
    TipHost host;
    const auto cycle = [&host]
    {
        CKxToolTip tip;
        tip.Create(&host, TTS_ALWAYSTIP);
        tip.AddWindowTool(&host, L"A length");
    };
    cycle();
    const int objects = gdiObjectCount();
    const int windows = windowCount();
    for (int i = 0; i < 200; ++i)
        cycle();
    EXPECT_EQ(objects, gdiObjectCount());
    EXPECT_EQ(windows, windowCount());
}
