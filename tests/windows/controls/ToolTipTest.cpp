// Tool tips.
#include "Support.h"
#include "resource.h"

namespace
{
class CTips : public CToolTipCtrl
{
public:
    explicit CTips(CWnd& parent) { Create(&parent, TTS_ALWAYSTIP); }
};

class CChild : public CStatic
{
public:
    explicit CChild(CWnd& parent)
    {
        Create(L"child", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(10, 10, 110, 60), &parent, 5);
    }
};

class CAskedWindow : public CParentWindow
{
public:
    int asked = 0;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        auto* const text = reinterpret_cast<NMTTDISPINFO*>(lParam);
        if (text->hdr.code != TTN_NEEDTEXT)
            return CParentWindow::OnNotify(wParam, lParam, result);
        ++asked;
        ::lstrcpynW(text->szText, L"asked for", 80);
        return TRUE;
    }
};

CString textOf(const CToolTipCtrl& tips, CWnd& window, UINT_PTR id = 0)
{
    CString text;
    tips.GetText(text, &window, id);
    return text;
}
} // namespace

TEST(ToolTip, windows_are_tools)
{
    CParentWindow parent;
    CChild child(parent);
    CTips tips(parent);
    ASSERT_NE(nullptr, tips.m_hWnd);
    EXPECT_TRUE(tips.AddTool(&child, L"a child"));
    EXPECT_EQ(1, tips.GetToolCount());
    EXPECT_EQ(L"a child", plain(textOf(tips, child)));
    tips.UpdateTipText(L"another text", &child);
    EXPECT_EQ(L"another text", plain(textOf(tips, child)));
    tips.DelTool(&child);
    EXPECT_EQ(0, tips.GetToolCount());
    EXPECT_TRUE(textOf(tips, child).IsEmpty());
}

TEST(ToolTip, rectangles_are_tools)
{
    CParentWindow parent;
    CTips tips(parent);
    const CRect first(0, 0, 20, 20);
    const CRect second(20, 0, 40, 20);
    EXPECT_TRUE(tips.AddTool(&parent, L"one", &first, 1));
    EXPECT_TRUE(tips.AddTool(&parent, L"two", &second, 2));
    EXPECT_EQ(2, tips.GetToolCount());
    EXPECT_EQ(L"two", plain(textOf(tips, parent, 2)));
    TOOLINFO found = {};
    EXPECT_TRUE(tips.HitTest(&parent, CPoint(25, 5), &found));
    EXPECT_EQ(2U, found.uId);
    EXPECT_FALSE(tips.HitTest(&parent, CPoint(25, 50), &found));
    const CRect moved(20, 40, 40, 60);
    tips.SetToolRect(&parent, 2, &moved);
    EXPECT_TRUE(tips.HitTest(&parent, CPoint(25, 50), &found));
    EXPECT_FALSE(tips.HitTest(&parent, CPoint(25, 50), nullptr));
}

TEST(ToolTip, a_text_comes_from_the_resources)
{
    CParentWindow parent;
    CChild child(parent);
    CTips tips(parent);
    EXPECT_TRUE(tips.AddTool(&child, IDS_TIP));
    EXPECT_EQ(L"a tip from the resources", plain(textOf(tips, child)));
}

TEST(ToolTip, records_of_tools)
{
    CParentWindow parent;
    CTips tips(parent);
    const CRect place(1, 2, 30, 40);
    tips.AddTool(&parent, L"one", &place, 1);
    CToolInfo info;
    EXPECT_TRUE(tips.GetToolInfo(info, &parent, 1));
    EXPECT_EQ(place, CRect(info.rect));
    EXPECT_STREQ(L"one", info.szText);
    info.lpszText = const_cast<wchar_t*>(L"changed");
    tips.SetToolInfo(&info);
    EXPECT_EQ(L"changed", plain(textOf(tips, parent, 1)));
    EXPECT_FALSE(tips.GetToolInfo(info, &parent, 77));
    tips.SetToolInfo(nullptr);
}

TEST(ToolTip, a_record_without_a_size_gets_one_that_is_accepted)
{
    CParentWindow parent;
    CTips tips(parent);
    TOOLINFO info = {};
    tips.FillInToolInfo(info, &parent, 3);
    EXPECT_EQ(64U, info.cbSize);
    EXPECT_EQ(parent.m_hWnd, info.hwnd);
    EXPECT_EQ(3U, info.uId);
    info.cbSize = 0;
    tips.SetToolInfo(&info);
    EXPECT_EQ(64U, info.cbSize);
}

TEST(ToolTip, very_long_texts_are_cut_and_read_without_harm)
{
    CParentWindow parent;
    CChild child(parent);
    CTips tips(parent);
    const std::wstring longer(100000, L't');
    EXPECT_TRUE(tips.AddTool(&child, longer.c_str()));
    CToolInfo info;
    EXPECT_TRUE(tips.GetToolInfo(info, &child));
    EXPECT_EQ(255U, ::wcslen(info.szText));
    EXPECT_LE(textOf(tips, child).GetLength(), 32766);
    tips.UpdateTipText(longer.c_str(), &child);
    EXPECT_TRUE(tips.GetToolInfo(info, &child));
}

TEST(ToolTip, times_widths_colours_and_margins)
{
    CParentWindow parent;
    CTips tips(parent);
    tips.SetDelayTime(TTDT_INITIAL, 123);
    EXPECT_EQ(123, tips.GetDelayTime(TTDT_INITIAL));
    tips.SetDelayTime(200U);
    EXPECT_EQ(200, tips.GetDelayTime(TTDT_INITIAL));
    EXPECT_EQ(2000, tips.GetDelayTime(TTDT_AUTOPOP));
    EXPECT_EQ(-1, tips.SetMaxTipWidth(300));
    EXPECT_EQ(300, tips.GetMaxTipWidth());
    tips.SetTipBkColor(green);
    EXPECT_EQ(green, tips.GetTipBkColor());
    tips.SetTipTextColor(blue);
    EXPECT_EQ(blue, tips.GetTipTextColor());
    CRect margin(1, 2, 3, 4);
    tips.SetMargin(&margin);
    CRect read;
    tips.GetMargin(&read);
    EXPECT_EQ(margin, read);
}

TEST(ToolTip, a_title_and_an_icon)
{
    CParentWindow parent;
    CTips tips(parent);
    EXPECT_TRUE(tips.SetTitle(TTI_INFO, L"title"));
    EXPECT_TRUE(tips.SetTitle(TTI_NONE, nullptr));
}

TEST(ToolTip, tracking_shows_and_hides)
{
    CParentWindow parent;
    CTips tips(parent);
    TOOLINFO info = {};
    tips.FillInToolInfo(info, &parent, 9);
    info.uFlags |= TTF_TRACK | TTF_ABSOLUTE;
    info.lpszText = const_cast<wchar_t*>(L"tracked");
    ASSERT_TRUE(tips.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info)));
    tips.TrackPosition(200, 150);
    tips.TrackActivate(&info, TRUE);
    EXPECT_TRUE(tips.IsWindowVisible());
    CRect box;
    tips.GetWindowRect(&box);
    EXPECT_NEAR(200, box.left, 2);
    EXPECT_NEAR(150, box.top, 2);
    const CSize bubble = tips.GetBubbleSize(&info);
    EXPECT_GT(bubble.cx, 10);
    tips.TrackActivate(&info, FALSE);
    EXPECT_FALSE(tips.IsWindowVisible());
    tips.TrackActivate(nullptr, TRUE);
}

TEST(ToolTip, relayed_moves_show_the_tip_and_ask_for_its_text)
{
    CAskedWindow parent;
    CChild child(parent);
    CTips tips(parent);
    tips.SetDelayTime(TTDT_INITIAL, 10);
    ASSERT_TRUE(tips.AddTool(&child));
    parent.SetForegroundWindow();
    moveTo(centreOf(child.m_hWnd));
    pumpFor(20);
    CPoint at(centreOf(child.m_hWnd));
    child.ScreenToClient(&at);
    MSG move = {child.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y), 0, {0, 0}};
    tips.RelayEvent(&move);
    EXPECT_TRUE(waitFor([&] { return tips.IsWindowVisible() != FALSE; }));
    EXPECT_GE(parent.asked, 1);
    TOOLINFO current = {};
    EXPECT_TRUE(tips.GetCurrentTool(&current));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(child.m_hWnd), current.uId);
    tips.Pop();
    EXPECT_FALSE(tips.IsWindowVisible());
}

TEST(ToolTip, an_inactive_control_shows_nothing)
{
    CParentWindow parent;
    CChild child(parent);
    CTips tips(parent);
    tips.SetDelayTime(TTDT_INITIAL, 1);
    tips.AddTool(&child, L"text");
    tips.Activate(FALSE);
    moveTo(centreOf(child.m_hWnd));
    pumpFor(20);
    MSG move = {child.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {0, 0}};
    tips.RelayEvent(&move);
    pumpFor(100);
    EXPECT_FALSE(tips.IsWindowVisible());
}

TEST(ToolTip, null_windows_are_refused)
{
    CParentWindow parent;
    CTips tips(parent);
    EXPECT_FALSE(tips.AddTool(nullptr, L"text"));
    EXPECT_EQ(0, tips.GetToolCount());
}
