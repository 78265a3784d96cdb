// The tips of the controls on a bar: the words come from the strings of their ids, unless somebody else has them.
#include "BarFixture.h"
#include "ids.h"
#include "support/HostLoop.h"

namespace
{
/// A bar that has words of its own for one control.
class CTipBar : public CDialogBar
{
public:
    HWND own = nullptr;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        auto* info = reinterpret_cast<NMTTDISPINFOW*>(lParam);
        if (own == nullptr || info->hdr.code != TTN_NEEDTEXTW || reinterpret_cast<HWND>(info->hdr.idFrom) != own)
            return CDialogBar::OnNotify(wParam, lParam, result);
        info->lpszText = const_cast<wchar_t*>(L"the bar's own");
        return TRUE;
    }
};

/// Asks as a tip does.
std::wstring ask(CWnd& bar, HWND control)
{
    NMTTDISPINFOW info = {};
    info.hdr.hwndFrom = bar.m_hWnd;
    info.hdr.code = TTN_NEEDTEXTW;
    info.hdr.idFrom = reinterpret_cast<UINT_PTR>(control);
    info.uFlags = TTF_IDISHWND;
    info.lpszText = info.szText;
    bar.SendMessage(WM_NOTIFY, info.hdr.idFrom, reinterpret_cast<LPARAM>(&info));
    return info.lpszText;
}

HWND shownTip()
{
    for (HWND tip = nullptr; (tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        if (::IsWindowVisible(tip))
            return tip;
    return nullptr;
}
} // namespace

TEST(BarTips, the_words_stand_behind_the_line_break_of_the_string)
{
    CBarFrame frame;
    CTipBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP | CBRS_TOOLTIPS, 1));
    const auto asked = [&](int id) { return ask(bar, bar.GetDlgItem(id)->m_hWnd); };
    EXPECT_EQ(asked(ID_TEST_DO), L"Do it");
    EXPECT_EQ(asked(ID_TEST_CHECK), L"") << "a prompt alone";
    EXPECT_EQ(asked(ID_TEST_NOBODY), L"") << "no string";
    EXPECT_EQ(ask(bar, nullptr), L"");
    EXPECT_EQ(ask(bar, reinterpret_cast<HWND>(UINT_PTR{0x7FFFFFF1})), L"") << "no window";
    bar.own = bar.GetDlgItem(ID_TEST_DO)->m_hWnd;
    EXPECT_EQ(asked(ID_TEST_DO), L"the bar's own");
}

TEST(BarTips, a_mouse_that_rests_on_a_control_shows_them)
{
    CBarFrame frame;
    CTipBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP | CBRS_TOOLTIPS, 1));
    frame.RecalcLayout();
    frame.ShowWindow(SW_SHOW);
    frame.SetForegroundWindow();
    const POINT middle = centreOf(bar.GetDlgItem(ID_TEST_DO)->m_hWnd);
    moveTo({middle.x - 2, middle.y});
    HostLoop::pump(20);
    moveTo(middle);
    ASSERT_TRUE(HostLoop::pumpUntil([] { return shownTip() != nullptr; }));
    CString text;
    CWnd::FromHandle(shownTip())->GetWindowText(text);
    EXPECT_EQ(text, L"Do it");
    moveTo({700, 700});
    HostLoop::pumpUntil([] { return shownTip() == nullptr; });
    CWnd::CancelToolTips(TRUE);
}
