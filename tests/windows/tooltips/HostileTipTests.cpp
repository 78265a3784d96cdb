// Hosts that end a tip in the middle of its work, from another thread, or with ids of nothing.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <thread>
#include <utility>

#include "TipHost.h"
#include "oxa/tooltips/KxToolTip.h"
#include "oxa/tooltips/KxToolTip2.h"
#include "oxa/tooltips/ToolTip2.h"
#include "support/Guarded.h"

namespace
{
/// A host that does something, once, as soon as it becomes the active window.
class MeddlingHost : public TipHost
{
public:
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE)
            if (const auto once = std::exchange(act, nullptr))
                once();
        return TipHost::WindowProc(message, wParam, lParam);
    }
};

/// A shown, active tip that its host deletes when the activation comes back.
template <class Tip> struct DoomedTip
{
    MeddlingHost host;
    Guarded<Tip>* tip = new Guarded<Tip>;
    HWND window = nullptr;

    DoomedTip()
    {
        EXPECT_TRUE(tip->Create(&host));
        window = tip->m_hWnd;
    }
    ~DoomedTip() { delete tip; }
    DoomedTip(const DoomedTip&) = delete;
    DoomedTip& operator=(const DoomedTip&) = delete;

    void arm()
    {
        ::SetActiveWindow(window);
        ASSERT_EQ(::GetActiveWindow(), window);
        host.act = [this] { delete std::exchange(tip, nullptr); };
    }
    void expectGone() const
    {
        EXPECT_EQ(tip, nullptr) << "the host was activated and deleted it";
        EXPECT_FALSE(::IsWindow(window));
    }
};

struct DoomedBalloon : testing::Test, DoomedTip<KxToolTip2>
{
    void SetUp() override
    {
        tip->AddTool(&host, L"A length", CPoint(300, 400), 0);
        tip->ShowToolTip(host.m_hWnd);
        arm();
    }
    BOOL translate(UINT message)
    {
        MSG sent = {};
        sent.hwnd = host.m_hWnd;
        sent.message = message;
        return tip->PreTranslateMessage(&sent);
    }
};

struct DoomedLineTip : testing::Test, DoomedTip<CToolTip2>
{
    void SetUp() override
    {
        tip->SetText(L"Length <1.5 m>");
        ASSERT_EQ(1, tip->Show(CPoint(150, 40)));
        arm();
    }
};
} // namespace

TEST_F(DoomedBalloon, may_be_deleted_by_its_host_as_it_hides)
{
    tip->Hide();
    expectGone();
}

TEST_F(DoomedBalloon, may_be_deleted_by_its_host_as_a_key_hides_it)
{
    EXPECT_FALSE(translate(WM_KEYDOWN));
    expectGone();
}

TEST_F(DoomedBalloon, may_be_deleted_by_its_host_as_a_timer_hides_it)
{
    tip->setTimer(60000);
    EXPECT_FALSE(translate(WM_TIMER));
    expectGone();
}

TEST_F(DoomedBalloon, may_be_deleted_by_its_host_as_a_click_hides_it)
{
    ::SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(90, 30));
    expectGone();
}

TEST_F(DoomedBalloon, may_be_deleted_by_its_host_as_another_tip_comes)
{
    tip->ShowToolTip(host.m_hWnd);
    expectGone();
}

TEST_F(DoomedLineTip, may_be_deleted_by_its_host_as_it_closes)
{
    tip->Close();
    expectGone();
}

TEST_F(DoomedLineTip, may_be_deleted_by_its_host_as_its_timer_closes_it)
{
    ::SendMessageW(window, WM_TIMER, 1001, 0);
    expectGone();
}

TEST(HostileTip, calls_from_another_thread_do_no_harm)
{
    TipHost host;
    KxToolTip2 balloon;
    CToolTip2 line;
    ASSERT_TRUE(balloon.Create(&host));
    ASSERT_TRUE(line.Create(&host));
    balloon.AddTool(&host, L"A length", CPoint(300, 400), 0);
    balloon.ShowToolTip(host.m_hWnd);
    line.SetText(L"Length");
    ASSERT_EQ(1, line.Show(CPoint(150, 40)));
    bool done = false;
    std::thread other(
        [&]
        {
            balloon.setTimer(10);
            line.OnStartTimer();
            line.OnStopTimer();
            balloon.Hide();
            line.Close();
            done = true;
        });
    EXPECT_TRUE(waitFor([&] { return done; }));
    other.join();
    EXPECT_TRUE(::IsWindow(balloon.m_hWnd));
    EXPECT_TRUE(::IsWindow(line.m_hWnd));
    EXPECT_FALSE(balloon.IsWindowVisible());
    EXPECT_FALSE(line.IsWindowVisible());
}

TEST(HostileTip, a_text_id_without_a_text_makes_a_tool_that_shows_nothing)
{
    TipHost host;
    CKxToolTip tip;
    ASSERT_TRUE(tip.Create(&host, TTS_ALWAYSTIP));
    EXPECT_EQ(TRUE, tip.AddWindowTool(&host, MAKEINTRESOURCEW(64000)));
    tip.SendMessage(TTM_SETDELAYTIME, TTDT_INITIAL, 20);
    moveTo(CPoint(350, 250));
    pumpFor(80);
    moveTo(CPoint(360, 260));
    pumpFor(80);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(1, static_cast<int>(tip.SendMessage(TTM_GETTOOLCOUNT)));
}

TEST(HostileTip, tools_may_name_windows_that_have_gone)
{
    TipHost host;
    KxToolTip2 balloon;
    ASSERT_TRUE(balloon.Create(&host));
    HWND gone = nullptr;
    {
        CWnd button;
        ASSERT_TRUE(makeButton(button, host, 7));
        gone = button.m_hWnd;
        balloon.AddTool(&button, L"A button", CPoint(300, 400), 0);
    }
    balloon.ShowToolTip(gone); // kept on purpose: only the handle is asked for
    EXPECT_TRUE(balloon.IsWindowVisible());
    EXPECT_TRUE(balloon.GetTextLabel() == L"A button");
}
