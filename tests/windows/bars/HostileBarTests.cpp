// The dialog bar among hosts that end it, ask nonsense or have no room, and what two thousand of them leave behind.
#include <gtest/gtest.h>

#include "BarHost.h"
#include "support/LeakCounters.h"

namespace
{
/// Does something when it is disabled.
class Trap : public CButton
{
public:
    std::function<void()> onDisabled;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto act = onDisabled;
        if (message == WM_ENABLE && wParam == FALSE && act)
        {
            act();
            return 0;
        }
        return CButton::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST(HostileBar, a_child_that_ends_its_neighbours_or_the_bar_while_it_is_disabled)
{
    for (const int way : {0, 1, 2})
    {
        BarHost host;
        host.bar.disabled = true;
        Trap trap;
        ASSERT_TRUE(trap.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &host.bar, 50));
        trap.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        trap.onDisabled = [&]
        {
            if (way == 0)
                for (const int id : {IDC_EDIT, IDC_LIST, IDC_LABEL})
                    host.item(id).DestroyWindow();
            else if (way == 1)
                host.bar.DestroyWindow();
            else
                host.frame.DestroyWindow();
        };
        host.bar.InitDlgBarFinished();
        if (way == 0)
            EXPECT_FALSE(host.item(IDC_PUSH).IsWindowEnabled()) << "the others are disabled all the same";
        else
            EXPECT_EQ(host.bar.m_hWnd, nullptr) << way;
    }
}

TEST(HostileBar, a_child_that_deletes_the_bar_while_it_is_disabled)
{
    BarFrame frame;
    auto* bar = new OpenBar;
    bool deleted = false;
    bar->deleted = &deleted;
    ASSERT_TRUE(bar->Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
    Trap trap;
    ASSERT_TRUE(trap.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), bar, 50));
    trap.onDisabled = [&] { delete bar; };
    bar->disabled = true;
    bar->InitDlgBarFinished();
    EXPECT_TRUE(deleted);
}

TEST(HostileBar, nulls_and_strangers_are_answered_calmly)
{
    for (const bool painted : {false, true})
    {
        const Look look(painted);
        BarHost host;
        CClientDC dc(&host.bar);
        CWnd none;
        for (const unsigned int kind : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 0xFFFFFFFFU})
        {
            host.bar.OnCtlColor(nullptr, nullptr, kind);
            host.bar.OnCtlColor(&dc, nullptr, kind);
            host.bar.OnCtlColor(&dc, &none, kind);
            host.bar.OnCtlColor(nullptr, &host.item(IDC_LABEL), kind);
        }
        CKxDialogBarEx::PaintBackground(nullptr, &dc);
        CKxDialogBarEx::PaintBackground(&none, &dc);
        CKxDialogBarEx::PaintBackground(&host.bar, nullptr);
        OpenBar windowless;
        windowless.disabled = true;
        windowless.InitDlgBarFinished();
        windowless.UpdateDialogBar();
        windowless.OnCtlColor(&dc, &host.item(IDC_LABEL), CTLCOLOR_STATIC);
        EXPECT_EQ(colorOf(host.bar.OnCtlColor(&dc, &host.item(IDC_EDIT), CTLCOLOR_EDIT)), RGB(0xC9, 0xDB, 0xF6));
        EXPECT_EQ(::IsWindow(host.bar.m_hWnd), TRUE);
    }
}

TEST(HostileBar, a_call_from_within_another_message_does_not_run_that_message_again)
{
    BarHost host;
    class Closing : public CWnd
    {
    public:
        OpenBar* bar = nullptr;
        CWnd* child = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_CLOSE)
            {
                CClientDC dc(child);
                bar->OnCtlColor(&dc, child, CTLCOLOR_SCROLLBAR);
                return 0;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } closing;
    closing.bar = &host.bar;
    closing.child = &host.item(IDC_EDIT);
    ASSERT_TRUE(closing.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 1, 1), &host.frame, 60));
    closing.SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindow(host.bar.m_hWnd)) << "a WM_CLOSE that was passed on would have ended it";
}

TEST(HostileBar, bars_and_controls_without_a_size_are_painted)
{
    const Look look(true);
    BarHost host(IDD_EMPTY_BAR);
    ASSERT_TRUE(host.made);
    host.repaint();
    CStatic label;
    ASSERT_TRUE(label.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &host.bar, IDC_LABEL));
    const Answer empty = ask(host.bar, CTLCOLOR_STATIC, label.m_hWnd);
    EXPECT_EQ(::GetObjectType(empty.brush), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_EQ(empty.mode, TRANSPARENT);
    // A control that stands outside of the bar has nothing behind it.
    label.SetWindowPos(nullptr, -500, 9000, 30, 20, SWP_NOZORDER);
    const Answer outside = ask(host.bar, CTLCOLOR_STATIC, label.m_hWnd);
    EXPECT_EQ(::GetObjectType(outside.brush), static_cast<DWORD>(OBJ_BRUSH));
    CClientDC dc(&host.bar);
    CKxDialogBarEx::PaintBackground(&host.bar, &dc);
}

TEST(HostileBar, a_context_that_no_picture_can_be_made_for_gives_what_a_control_bar_gives)
{
    const Look look(true);
    BarHost host;
    CDC none;
    EXPECT_EQ(host.bar.OnCtlColor(&none, &host.item(IDC_LABEL), CTLCOLOR_STATIC), ::GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_FALSE(host.bar.holdsContexts());
}

TEST(HostileBar, two_thousand_bars_leave_no_handle)
{
    BarFrame frame;
    frame.ShowWindow(SW_SHOW);
    const auto use = [&](int times)
    {
        for (int i = 0; i < times; ++i)
        {
            const Look look(i % 2 == 0);
            OpenBar bar;
            ASSERT_TRUE(bar.Create(&frame, IDD_SMALL_BAR, CBRS_TOP, 1));
            frame.RecalcLayout();
            bar.disabled = i % 3 == 0;
            bar.SendMessage(0x401);
            bar.InitDlgBarFinished();
            ask(bar, CTLCOLOR_STATIC, bar.GetDlgItem(IDC_LABEL)->m_hWnd);
            ask(bar, CTLCOLOR_STATIC, bar.GetDlgItem(IDC_CHECK)->m_hWnd);
            if (i % 16 == 0)
                bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            if (i % 4 == 1)
                bar.DestroyWindow();
            if (i % 50 == 0)
                AfxGetThread()->OnIdle(1); // temporary objects
        }
        AfxGetThread()->OnIdle(1);
        pumpFor(0);
    };
    use(40);
    const int objects = gdiObjectCount(), windows = windowCount(), others = menuAndIconCount();
    use(2000);
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(menuAndIconCount(), others);
}
