// Control bars and dialog bars: creation, messages, updates, colours, lines, keys and clicks.
#include "BarFixture.h"
#include "ids.h"
#include "support/LeakCounters.h"
#include "support/RealInput.h"

namespace
{
/// The main window of the thread while it lives.
class MainWindow
{
public:
    explicit MainWindow(CWnd& wnd) { AfxGetThread()->m_pMainWnd = &wnd; }
    ~MainWindow() { AfxGetThread()->m_pMainWnd = nullptr; }
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
};

class CTestBar : public CDialogBar
{
public:
    bool* deleted = nullptr;
    bool refuse = false;
    int initialised = 0;

    ~CTestBar() override
    {
        if (deleted != nullptr)
            *deleted = true;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        initialised += message == WM_INITDIALOG ? 1 : 0;
        return refuse && message == WM_CREATE ? -1 : CDialogBar::WindowProc(message, wParam, lParam);
    }
};

COLORREF shownAt(CWnd& window, int x, int y)
{
    const CClientDC dc(&window);
    return ::GetPixel(dc.GetSafeHdc(), x, y);
}

const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
} // namespace

// ---- Control bars

TEST(ControlBar, styles_borders_and_sides_are_kept)
{
    CStrip bar;
    EXPECT_EQ(bar.GetBorders(), CRect(6, 1, 6, 1));
    bar.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(bar.GetBorders(), CRect(1, 2, 3, 4));
    const CRect other(5, 6, 7, 8);
    bar.SetBorders(&other);
    bar.SetBorders(nullptr);
    EXPECT_EQ(bar.GetBorders(), other);
    bar.SetBorders();
    EXPECT_EQ(bar.GetBorders(), CRect(0, 0, 0, 0));
    bar.SetBarStyle(CBRS_TOP | CBRS_TOOLTIPS);
    EXPECT_EQ(bar.GetBarStyle(), static_cast<DWORD>(CBRS_TOP | CBRS_TOOLTIPS));
    EXPECT_EQ(bar.GetCount(), 0);
    bar.count(3);
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_EQ(bar.GetDockingFrame(), nullptr);
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CControlBar)));
}

TEST(ControlBar, its_tips_follow_its_style)
{
    CBarFrame frame;
    CStrip bar, plain;
    ASSERT_TRUE(bar.make(frame, CBRS_TOP | CBRS_TOOLTIPS, 20, 1));
    ASSERT_TRUE(plain.make(frame, CBRS_TOP, 20, 2));
    EXPECT_TRUE(bar.hasTips());
    EXPECT_FALSE(plain.hasTips());
    bar.SetBarStyle(CBRS_TOP);
    plain.SetBarStyle(CBRS_TOP | CBRS_TOOLTIPS);
    EXPECT_FALSE(bar.hasTips());
    EXPECT_TRUE(plain.hasTips());
}

TEST(ControlBar, the_inside_is_what_lines_and_borders_leave)
{
    const struct
    {
        DWORD style;
        BOOL horizontal;
        CRect inside; ///< of 100 by 50, with borders of 6, 1, 6, 1 and lines of 2
    } rows[] = {
        {0, TRUE, CRect(6, 1, 94, 49)},
        {0, FALSE, CRect(1, 6, 99, 44)},
        {CBRS_BORDER_LEFT, TRUE, CRect(8, 1, 94, 49)},
        {CBRS_BORDER_TOP, TRUE, CRect(6, 3, 94, 49)},
        {CBRS_BORDER_RIGHT, FALSE, CRect(1, 6, 97, 44)},
        {CBRS_BORDER_ANY, FALSE, CRect(3, 8, 97, 42)},
    };
    for (const auto& row : rows)
    {
        CStrip bar;
        bar.SetBarStyle(row.style);
        CRect rect(0, 0, 100, 50);
        bar.CalcInsideRect(rect, row.horizontal);
        EXPECT_EQ(rect, row.inside) << row.style;
    }
}

TEST(ControlBar, the_base_is_a_line_as_long_as_the_side)
{
    CStrip bar;
    EXPECT_EQ(bar.CControlBar::CalcFixedLayout(TRUE, TRUE), CSize(32767, 0));
    EXPECT_EQ(bar.CControlBar::CalcFixedLayout(TRUE, FALSE), CSize(0, 32767));
    EXPECT_EQ(bar.CControlBar::CalcFixedLayout(FALSE, TRUE), CSize(0, 0));
    bar.thickness = 7;
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_STRETCH | LM_HORZ), CSize(32767, 7));
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK), CSize(100, 7));
    EXPECT_EQ(bar.CalcDynamicLayout(-1, LM_STRETCH | LM_VERTDOCK), CSize(7, 32767));
}

TEST(ControlBar, lines_are_drawn_where_the_style_has_them)
{
    CBarFrame frame;
    CStrip bar;
    ASSERT_TRUE(bar.make(frame, CBRS_TOP | CBRS_BORDER_TOP, 20, 1));
    frame.ShowWindow(SW_SHOW);
    frame.RecalcLayout();
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    bar.RedrawWindow();
    EXPECT_EQ(shownAt(bar, 100, 0), dark);
    EXPECT_EQ(shownAt(bar, 100, 19), dark);
    EXPECT_NE(shownAt(bar, 100, 1), dark);
    bar.SetBarStyle(CBRS_ALIGN_TOP | CBRS_BORDER_TOP | CBRS_BORDER_LEFT | CBRS_BORDER_3D);
    bar.RedrawWindow();
    EXPECT_EQ(shownAt(bar, 100, 0), dark);
    EXPECT_EQ(shownAt(bar, 100, 1), light);
    EXPECT_EQ(shownAt(bar, 0, 10), dark);
    EXPECT_EQ(shownAt(bar, 1, 10), light);
    CClientDC dc(&bar);
    CRect rect(0, 0, 300, 20);
    bar.DrawBorders(&dc, rect);
    EXPECT_EQ(rect, CRect(2, 2, 300, 20));
    bar.DrawBorders(nullptr, rect);
    EXPECT_EQ(rect, CRect(2, 2, 300, 20));
}

TEST(ControlBar, idle_updates_reach_the_frame_when_the_bar_is_shown)
{
    CBarFrame frame;
    CStrip bar;
    ASSERT_TRUE(bar.make(frame, CBRS_TOP, 20, 1));
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bar.updates, 1);
    EXPECT_EQ(bar.updatedFor, &frame);
    EXPECT_TRUE(bar.disabling);
    bar.SendMessage(WM_IDLEUPDATECMDUI, FALSE);
    EXPECT_FALSE(bar.disabling);
    bar.SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ(bar.updates, 3);
    EXPECT_TRUE(bar.disabling);
    bar.ShowWindow(SW_HIDE);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bar.updates, 3);
}

TEST(ControlBar, what_it_does_not_know_goes_to_its_owner)
{
    CBarFrame frame, other;
    CStrip bar;
    ASSERT_TRUE(bar.make(frame, CBRS_TOP, 20, 1));
    EXPECT_EQ(bar.SendMessage(WM_COMMAND, ID_TEST_DO), 1);
    EXPECT_EQ(frame.wasDone, 1);
    bar.SetOwner(&other);
    bar.SendMessage(WM_COMMAND, ID_TEST_DO);
    EXPECT_EQ(other.wasDone, 1);
    EXPECT_EQ(frame.wasDone, 1);
    bar.SetOwner(&bar); // no circle
    EXPECT_EQ(bar.SendMessage(WM_COMMAND, ID_TEST_DO), 0);
}

TEST(ControlBar, a_frame_finds_its_bars_and_its_commands_show_and_hide_them)
{
    CBarFrame frame;
    CStrip bar;
    CChild child;
    ASSERT_TRUE(bar.make(frame, CBRS_TOP, 20, ID_VIEW_TOOLBAR) && child.make(frame, 55));
    EXPECT_EQ(frame.GetControlBar(ID_VIEW_TOOLBAR), &bar);
    EXPECT_EQ(frame.GetControlBar(55), nullptr) << "no bar";
    EXPECT_EQ(frame.GetControlBar(ID_VIEW_REBAR), nullptr);
    frame.SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_FALSE(bar.IsVisible());
    frame.SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_FALSE(frame.OnBarCheck(ID_VIEW_REBAR)) << "routed on";
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_VIEW_TOOLBAR, L"Tools");
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_NE(menu.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED, 0U);
    bar.ShowWindow(SW_HIDE);
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_EQ(menu.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED, 0U);
}

TEST(ControlBar, deletes_itself_only_when_it_is_told_to)
{
    bool deleted = false;
    CBarFrame frame;
    auto* bar = new CStrip;
    bar->deleted = &deleted;
    ASSERT_TRUE(bar->make(frame, CBRS_TOP, 20, 1));
    bar->DestroyWindow();
    EXPECT_FALSE(deleted);
    bar->m_bAutoDelete = TRUE;
    ASSERT_TRUE(bar->make(frame, CBRS_TOP, 20, 1));
    frame.DestroyWindow();
    EXPECT_TRUE(deleted);
}

// ---- Dialog bars

TEST(DialogBar, has_the_size_and_the_controls_of_its_template)
{
    CBarFrame frame;
    CTestBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP | CBRS_TOOLTIPS, 4711));
    CRect whole(0, 0, 100, 16);
    ::MapDialogRect(bar.m_hWnd, &whole);
    EXPECT_EQ(bar.m_sizeDefault, whole.Size());
    EXPECT_EQ(bar.initialised, 1);
    EXPECT_EQ(bar.GetDlgCtrlID(), 4711);
    EXPECT_NE(bar.GetDlgItem(IDC_TEXT), nullptr);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(placeOf(bar).IsRectEmpty()) << "until the frame lays out";
    EXPECT_NE(bar.GetStyle() & WS_CLIPSIBLINGS, 0U);
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), whole.Size());
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, TRUE), CSize(32767, whole.Height()));
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, FALSE), CSize(whole.Width(), 32767));
    frame.RecalcLayout();
    EXPECT_EQ(placeOf(bar), CRect(0, 0, 300, whole.Height()));
    EXPECT_EQ(frame.GetControlBar(4711), &bar);
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CDialogBar)));
}

TEST(DialogBar, its_lists_get_their_first_contents)
{
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, MAKEINTRESOURCE(IDD_LISTBAR), CBRS_LEFT, 1));
    EXPECT_EQ(bar.SendDlgItemMessage(IDC_LIST, LB_GETCOUNT), 1);
}

TEST(DialogBar, creation_fails_plainly)
{
    CBarFrame frame;
    CTestBar bar;
    EXPECT_FALSE(bar.Create(&frame, 9999, CBRS_TOP, 1)) << "no such template";
    EXPECT_FALSE(bar.Create(&frame, L"NOBODY", CBRS_TOP, 1));
    EXPECT_FALSE(bar.Create(&frame, static_cast<LPCTSTR>(nullptr), CBRS_TOP, 1));
    EXPECT_FALSE(bar.Create(nullptr, IDD_BAR, CBRS_TOP, 1)) << "no parent";
    CWnd none;
    EXPECT_FALSE(bar.Create(&none, IDD_BAR, CBRS_TOP, 1)) << "a parent without a window";
    bar.refuse = true;
    EXPECT_FALSE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1)) << "its own WM_CREATE says no";
    EXPECT_EQ(bar.m_hWnd, nullptr);
    bar.refuse = false;
    EXPECT_FALSE(bar.Create(&frame, IDD_SPOILT_BAR, CBRS_TOP, 1)) << "contents that are cut short";
    bar.DestroyWindow();
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    EXPECT_FALSE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 2)) << "it has a window";
    EXPECT_EQ(bar.GetDlgCtrlID(), 1);
}

TEST(DialogBar, does_not_take_the_focus)
{
    CBarFrame frame;
    frame.ShowWindow(SW_SHOW);
    frame.SetForegroundWindow();
    frame.SetFocus();
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_LISTBAR, CBRS_LEFT, 1));
    EXPECT_EQ(::GetFocus(), frame.m_hWnd);
}

TEST(DialogBar, at_idle_its_buttons_follow_the_handlers_of_the_frame)
{
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    frame.ShowWindow(SW_SHOW);
    const MainWindow main(frame);
    AfxGetThread()->OnIdle(0);
    EXPECT_TRUE(bar.GetDlgItem(ID_TEST_DO)->IsWindowEnabled());
    EXPECT_FALSE(bar.GetDlgItem(ID_TEST_NOBODY)->IsWindowEnabled()) << "nobody handles it";
    EXPECT_TRUE(bar.GetDlgItem(IDC_TEXT)->IsWindowEnabled()) << "no push button";
    EXPECT_EQ(bar.IsDlgButtonChecked(ID_TEST_CHECK), static_cast<UINT>(BST_CHECKED));
    frame.enableDo = false;
    AfxGetThread()->OnIdle(0);
    EXPECT_FALSE(bar.GetDlgItem(ID_TEST_DO)->IsWindowEnabled());
}

TEST(DialogBar, a_frame_beside_the_main_window_is_updated_too)
{
    CBarFrame main;
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    main.ShowWindow(SW_SHOW);
    frame.ShowWindow(SW_SHOW);
    const MainWindow mainWindow(main);
    AfxGetThread()->OnIdle(0);
    EXPECT_FALSE(bar.GetDlgItem(ID_TEST_NOBODY)->IsWindowEnabled());
}

TEST(DialogBar, a_click_on_its_button_is_the_frames_command)
{
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    frame.RecalcLayout();
    frame.ShowWindow(SW_SHOW);
    frame.SetForegroundWindow();
    click(centreOf(bar.GetDlgItem(ID_TEST_DO)->m_hWnd));
    EXPECT_TRUE(waitFor([&] { return frame.wasDone == 1; }));
}

TEST(DialogBar, tab_moves_in_the_bar_and_accelerators_are_the_frames)
{
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    ASSERT_TRUE(frame.LoadAccelTable(MAKEINTRESOURCE(IDR_FRAME)));
    frame.RecalcLayout();
    frame.ShowWindow(SW_SHOW);
    frame.SetForegroundWindow();
    bar.GetDlgItem(IDC_TEXT)->SetFocus();
    press(VK_TAB);
    EXPECT_TRUE(pumpUntil([&] { return ::GetFocus() == bar.GetDlgItem(ID_TEST_DO)->m_hWnd; }));
    press('K', VK_CONTROL);
    EXPECT_TRUE(pumpUntil([&] { return frame.wasDone == 1; }));
    press(VK_TAB, VK_SHIFT);
    EXPECT_TRUE(pumpUntil([&] { return ::GetFocus() == bar.GetDlgItem(IDC_TEXT)->m_hWnd; }));
    EXPECT_EQ(frame.wasDone, 1);
}

TEST(DialogBar, its_controls_stand_on_the_face_colour)
{
    CBarFrame frame;
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP, 1));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto ask = [&](UINT message)
    {
        dc.SetBkColor(RGB(1, 2, 3));
        dc.SetTextColor(RGB(4, 5, 6));
        return reinterpret_cast<HBRUSH>(bar.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                        reinterpret_cast<LPARAM>(bar.GetDlgItem(IDC_TEXT)->m_hWnd)));
    };
    for (const UINT message : {WM_CTLCOLORSTATIC, WM_CTLCOLORBTN, WM_CTLCOLORDLG})
    {
        EXPECT_EQ(ask(message), ::GetSysColorBrush(COLOR_BTNFACE)) << message;
        EXPECT_EQ(dc.GetBkColor(), face) << message;
        EXPECT_EQ(dc.GetTextColor(), ::GetSysColor(COLOR_BTNTEXT)) << message;
    }
    EXPECT_EQ(ask(WM_CTLCOLOREDIT), ::GetSysColorBrush(COLOR_WINDOW));
    EXPECT_EQ(dc.GetBkColor(), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(ask(WM_CTLCOLORLISTBOX), ::GetSysColorBrush(COLOR_WINDOW));
}

TEST(DialogBar, a_thousand_of_them_leave_nothing_behind)
{
    CBarFrame frame;
    const auto use = [&](int times)
    {
        for (int i = 0; i < times; ++i)
        {
            CDialogBar bar;
            ASSERT_TRUE(bar.Create(&frame, IDD_BAR, CBRS_TOP | CBRS_TOOLTIPS, 1));
            frame.RecalcLayout();
            bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        }
    };
    use(20);
    const int objects = gdiObjectCount(), windows = windowCount(), icons = menuAndIconCount();
    use(1000);
    EXPECT_EQ(gdiObjectCount(), objects);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_EQ(menuAndIconCount(), icons);
}
