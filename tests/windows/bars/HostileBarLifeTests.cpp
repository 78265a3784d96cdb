// The dialog bar that is ended by a message, used without a window, made of spoilt templates, of any size, in any order.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "BarHost.h"
#include "oxa/dialogs/KxPropertySheet.h"
#include "support/Guarded.h"

namespace
{
/// Does something once, at the first of the messages that it waits for, and touches itself no more.
class TrapBar : public OpenBar
{
public:
    UINT at = 0;
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != at || !act)
            return OpenBar::WindowProc(message, wParam, lParam);
        const std::function<void()> now = std::exchange(act, nullptr);
        const HWND self = m_hWnd;
        const bool first = before;
        const LRESULT result = first ? 0 : OpenBar::WindowProc(message, wParam, lParam);
        now();
        return first && FromHandlePermanent(self) == this ? OpenBar::WindowProc(message, wParam, lParam) : result;
    }

public:
    bool before = false; ///< it acts before the message is handled, else behind that
};

/// Does something when it is asked for its colours by reflection.
class AskedButton : public CButton
{
public:
    std::function<void()> act;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC || !act)
            return CButton::OnChildNotify(message, wParam, lParam, result);
        const std::function<void()> now = std::exchange(act, nullptr);
        now();
        return FALSE;
    }
};

/// Ends a bar by its window (0), by its frame (1), or by its object (2).
void endBar(int way, CDialogBar* bar, CFrameWnd& frame)
{
    if (way == 0)
        bar->DestroyWindow();
    else if (way == 1)
        frame.DestroyWindow();
    else
        delete bar;
}

void paintNow(HWND bar)
{
    ::RedrawWindow(bar, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

/// A page that deletes its sheet as it begins.
class Page : public CPropertyPage
{
public:
    std::function<void()> act;
    Page() : CPropertyPage(IDD_SHEET_PAGE) {}
    BOOL OnInitDialog() override
    {
        CPropertyPage::OnInitDialog();
        act();
        return TRUE;
    }
};

std::vector<HWND> childrenOf(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}
} // namespace

TEST(HostileBarLife, any_message_may_end_bar_frame_or_object)
{
    const UINT messages[] = {WM_CREATE,       WM_INITDIALOG,      WM_ERASEBKGND,  WM_CTLCOLORSTATIC,
                             WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX, WM_CTLCOLORBTN, WM_PAINT,
                             0x401,           WM_COMMAND,         WM_SIZEPARENT,  WM_IDLEUPDATECMDUI,
                             WM_SHOWWINDOW};
    for (const bool painted : {false, true})
        for (const UINT message : messages)
            for (const bool before : {false, true})
                for (const int way : {0, 1, 2})
                {
                    SCOPED_TRACE(testing::Message() << message << " before " << before << " way " << way);
                    const Look look(painted);
                    BarFrame frame;
                    frame.ShowWindow(SW_SHOW);
                    auto* bar = new Guarded<TrapBar>;
                    bool deleted = false;
                    bar->deleted = &deleted;
                    bar->at = message;
                    bar->before = before;
                    bar->act = [&] { endBar(way, bar, frame); };
                    bar->Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1);
                    if (frame.m_hWnd != nullptr)
                        frame.RecalcLayout();
                    const HWND wnd = deleted ? nullptr : bar->m_hWnd;
                    if (wnd != nullptr)
                    {
                        ::SendMessageW(wnd, WM_IDLEUPDATECMDUI, TRUE, 0);
                        ::SendMessageW(wnd, WM_COMMAND, IDC_PUSH, 0);
                        paintNow(wnd);
                        ::ShowWindow(wnd, SW_HIDE);
                        ::SendMessageW(wnd, WM_CTLCOLORBTN, 0, 0);
                        pumpFor(0);
                    }
                    EXPECT_EQ(deleted, way == 2);
                    if (!deleted)
                    {
                        EXPECT_EQ(bar->m_hWnd, nullptr);
                        delete bar;
                    }
                }
}

TEST(HostileBarLife, a_control_that_is_asked_may_end_bar_frame_or_object)
{
    for (const int way : {0, 1, 2})
    {
        BarFrame frame;
        auto* bar = new Guarded<TrapBar>;
        bool deleted = false;
        bar->deleted = &deleted;
        ASSERT_TRUE(bar->Create(&frame, IDD_PALE_BAR, CBRS_TOP, 1));
        AskedButton button;
        ASSERT_TRUE(button.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), bar, 50));
        button.act = [&] { endBar(way, bar, frame); };
        bar->SendMessage(WM_CTLCOLORBTN, 0, reinterpret_cast<LPARAM>(button.m_hWnd));
        EXPECT_EQ(deleted, way == 2);
        EXPECT_EQ(button.m_hWnd, nullptr);
        if (!deleted)
            delete bar;
    }
}

TEST(HostileBarLife, it_may_be_used_before_between_and_after_its_windows)
{
    BarFrame frame;
    OpenBar bar;
    const auto use = [&]
    {
        MSG message = {};
        message.message = WM_KEYDOWN;
        bar.InitDialogBar();
        bar.UpdateDialogBar();
        bar.disabled = true;
        bar.InitDlgBarFinished();
        bar.SetBarStyle(0xFFFFFFFF);
        bar.SetBorders(-30000, 30000, 2147483647, -2147483647);
        EXPECT_FALSE(bar.PreTranslateMessage(&message));
        EXPECT_FALSE(bar.IsVisible());
        frame.ShowControlBar(&bar, TRUE, FALSE);
        frame.DockControlBar(&bar);
        EXPECT_FALSE(bar.DestroyWindow());
    };
    use();
    ASSERT_TRUE(bar.Create(&frame, IDD_SMALL_BAR, CBRS_TOP, 7));
    EXPECT_FALSE(bar.Create(&frame, IDD_PALE_BAR, CBRS_LEFT, 8)) << "it has a window";
    EXPECT_EQ(bar.GetDlgCtrlID(), 7);
    EXPECT_EQ(bar.GetDlgItem(IDC_LIST), nullptr) << "nothing of the second template";
    bar.DestroyWindow();
    use();
    bar.disabled = false;
    ASSERT_TRUE(bar.Create(&frame, IDD_PALE_BAR, CBRS_LEFT, 8));
    EXPECT_NE(bar.GetDlgItem(IDC_LIST), nullptr);
    bar.calls.clear();
    pumpFor(0);
    EXPECT_EQ(bar.calls, "InitDialogBar OnInitDialogBar fill InitToolTips ") << "once for each window";
}

TEST(HostileBarLife, spoilt_templates_make_no_bar)
{
    BarFrame frame;
    for (const UINT id : {IDD_CUT_SHORT, IDD_TOO_MANY, IDD_NOT_A_TEMPLATE})
    {
        OpenBar bar;
        EXPECT_FALSE(bar.Create(&frame, id, CBRS_TOP, 1)) << id;
        EXPECT_EQ(bar.m_hWnd, nullptr) << id;
        pumpFor(0);
        EXPECT_EQ(bar.calls, "") << id;
        EXPECT_TRUE(bar.Create(&frame, IDD_EMPTY_BAR, CBRS_TOP, 1)) << "and the object serves again";
    }
}

TEST(HostileBarLife, bars_of_any_size_are_painted)
{
    const Look look(true);
    BarHost host(IDD_SMALL_BAR);
    HWND const label = host.item(IDC_LABEL).m_hWnd;
    for (const CSize size : {CSize(0, 0), CSize(1, 1), CSize(32767, 30), CSize(30, 32767), CSize(32767, 32767)})
    {
        host.bar.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOMOVE);
        SCOPED_TRACE(testing::Message() << size.cx << " by " << size.cy);
        host.repaint();
        ask(host.bar, CTLCOLOR_STATIC, label);
        EXPECT_FALSE(host.bar.holdsContexts());
    }
    host.bar.SetWindowPos(nullptr, 0, 0, 200, 30, SWP_NOZORDER | SWP_NOMOVE);
    const HBRUSH brush = ask(host.bar, CTLCOLOR_STATIC, label).brush;
    EXPECT_EQ(brush, host.bar.handedOut()) << "and serves again";
}

TEST(HostileBarLife, a_hundred_statics_each_stand_on_their_piece)
{
    const Look look(true);
    BarHost host(IDD_EMPTY_BAR);
    host.bar.SetWindowPos(nullptr, 0, 0, 600, 300, SWP_NOZORDER | SWP_NOMOVE);
    std::vector<std::unique_ptr<CStatic>> statics;
    for (int i = 0; i < 100; ++i)
    {
        statics.push_back(std::make_unique<CStatic>());
        const CPoint at(i % 10 * 60, i / 10 * 30);
        ASSERT_TRUE(statics.back()->Create(L"", WS_CHILD | WS_VISIBLE, CRect(at, CSize(50, 20)), &host.bar,
                                           static_cast<UINT>(2000 + i)));
    }
    host.bar.disabled = true;
    host.bar.InitDlgBarFinished();
    for (const HWND child : childrenOf(host.bar.m_hWnd))
        EXPECT_FALSE(::IsWindowEnabled(child));
    host.repaint();
    for (const auto& label : statics)
    {
        CRect place;
        label->GetWindowRect(&place);
        host.bar.ScreenToClient(&place);
        // Right of the label the bar itself is seen: the picture does not change within a few pixels of a row.
        EXPECT_EQ(shownAt(*label, 25, 9), shownAt(host.bar, place.left + 55, place.top + 9))
            << place.left << " " << place.top;
    }
}

TEST(HostileBarLife, a_sheet_that_its_first_page_deletes_is_not_touched_again)
{
    BarFrame frame;
    Page page;
    auto* sheet = new Guarded<CKxPropertySheet>(L"Sheet");
    sheet->DisablePropertySheet();
    sheet->AddPage(&page);
    page.act = [&] { delete std::exchange(sheet, nullptr); };
    EXPECT_FALSE(sheet->Create(&frame));
    EXPECT_EQ(sheet, nullptr);
    pumpFor(0);
}

// A walk that is the same each time.
TEST(HostileBarLife, survives_any_order_of_calls)
{
    std::uint32_t seed = 8022;
    const auto pick = [&](std::uint32_t count)
    {
        seed = seed * 1664525U + 1013904223U;
        return static_cast<int>((seed >> 8) % count);
    };
    const UINT templates[] = {IDD_PALE_BAR, IDD_SMALL_BAR, IDD_EMPTY_BAR, 9999, IDD_CUT_SHORT};
    const UINT sides[] = {CBRS_TOP, CBRS_BOTTOM, CBRS_LEFT, CBRS_RIGHT, 0, 0xFFFFFFFF};
    for (int round = 0; round < 20; ++round)
    {
        SCOPED_TRACE(round);
        const Look look(round % 2 == 0);
        BarFrame frame;
        frame.ShowWindow(SW_SHOW);
        frame.EnableDocking(CBRS_ALIGN_ANY);
        OpenBar bars[3];
        for (int step = 0; step < 60; ++step)
        {
            OpenBar& bar = bars[pick(3)];
            const auto children = childrenOf(bar.m_hWnd);
            CWnd* const child = children.empty()
                                    ? nullptr
                                    : CWnd::FromHandle(children[static_cast<size_t>(pick(64)) % children.size()]);
            CClientDC dc(nullptr);
            switch (pick(18))
            {
            case 0:
            case 1:
            case 2:
                bar.Create(&frame, templates[pick(5)], sides[pick(6)], static_cast<UINT>(pick(4)));
                break;
            case 3:
                if (pick(3) == 0)
                    bar.DestroyWindow();
                break;
            case 4:
                frame.DockControlBar(&bar, static_cast<UINT>(AFX_IDW_DOCKBAR_TOP - 1 + pick(6)));
                break;
            case 5:
                frame.ShowControlBar(&bar, pick(2), pick(2));
                break;
            case 6:
                bar.EnableDocking(static_cast<DWORD>(pick(0x10000)));
                break;
            case 7:
                bar.SetBarStyle(static_cast<DWORD>(pick(0x10000)));
                break;
            case 8:
                bar.OnCtlColor(pick(4) == 0 ? nullptr : &dc, child, static_cast<UINT>(pick(8)));
                break;
            case 9:
                CKxDialogBarEx::PaintBackground(pick(2) == 0 ? &bar : child, &dc);
                break;
            case 10:
                bar.disabled = pick(2) == 0;
                bar.SetPropertyId(static_cast<unsigned int>(1000 + pick(20)));
                bar.SetHelpId(static_cast<unsigned int>(pick(20)));
                bar.InitDlgBarFinished();
                break;
            case 11:
                bar.UpdateDialogBar();
                break;
            case 12:
                ::SendMessageW(bar.m_hWnd, 0x401, static_cast<WPARAM>(pick(9)), pick(9));
                break;
            case 13:
                ::MoveWindow(bar.m_hWnd, pick(200) - 100, pick(200) - 100, pick(3000), pick(3000), pick(2));
                break;
            case 14:
                if (child != nullptr)
                    child->DestroyWindow();
                break;
            case 15:
                paintNow(bar.m_hWnd);
                break;
            case 16:
                pumpFor(0);
                break;
            default:
                frame.RecalcLayout(pick(2));
                break;
            }
        }
        pumpFor(0);
        for (OpenBar& bar : bars)
        {
            EXPECT_EQ(bar.m_hWnd != nullptr, ::IsWindow(bar.m_hWnd) != FALSE);
            EXPECT_FALSE(bar.holdsContexts());
        }
        frame.DestroyWindow();
        for (OpenBar& bar : bars)
            EXPECT_EQ(bar.m_hWnd, nullptr);
    }
}
