// Each macro family of window messages: what reaches its handler.
#include "Fixture.h"

namespace
{
const UINT registeredMessage = ::RegisterWindowMessage(L"oxa framework test");

/// Handlers of every signature; each writes down its arguments and asks nobody else.
class CMapped : public CTop
{
public:
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        log.clear();
        return SendMessage(message, wParam, lParam);
    }
    std::wstring last() const { return log.empty() ? L"" : log.back(); }

protected:
    void note(const std::wstring& what) { log.push_back(what); }

    afx_msg void OnSize(UINT type, int cx, int cy) { note(text(L"size %u %d %d", type, cx, cy)); }
    afx_msg void OnMove(int x, int y) { note(text(L"move %d %d", x, y)); }
    afx_msg void OnEnable(BOOL on) { note(text(L"enable %d", on)); }
    afx_msg void OnShowWindow(BOOL show, UINT status) { note(text(L"show %d %u", show, status)); }
    afx_msg void OnClose() { note(L"close"); }
    afx_msg BOOL OnQueryEndSession()
    {
        note(L"query end");
        return FALSE;
    }
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized)
    {
        note(text(L"activate %u %d %d", state, other == this, minimized));
    }
    afx_msg void OnActivateApp(BOOL active, DWORD threadId) { note(text(L"app %d %u", active, threadId)); }
    afx_msg int OnMouseActivate(CWnd* desktopWnd, UINT hitTest, UINT message)
    {
        note(text(L"mouse activate %d %u %u", desktopWnd == this, hitTest, message));
        return MA_NOACTIVATE;
    }
    afx_msg void OnSetFocus(CWnd* old) { note(text(L"focus %d", old == this)); }
    afx_msg void OnKillFocus(CWnd* now) { note(text(L"kill %d", now == nullptr)); }
    afx_msg void OnChar(UINT c, UINT repeat, UINT flags) { note(text(L"char %u %u %u", c, repeat, flags)); }
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags) { note(text(L"down %u %u %u", key, repeat, flags)); }
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags) { note(text(L"up %u %u %u", key, repeat, flags)); }
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags) { note(text(L"sys %u %u %u", key, repeat, flags)); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg void OnLButtonDown(UINT flags, CPoint p) { note(text(L"left %u %d %d", flags, p.x, p.y)); }
    afx_msg void OnLButtonDblClk(UINT flags, CPoint p) { note(text(L"double %u %d %d", flags, p.x, p.y)); }
    afx_msg void OnRButtonUp(UINT flags, CPoint p) { note(text(L"right up %u %d %d", flags, p.x, p.y)); }
    afx_msg void OnMouseMove(UINT flags, CPoint p) { note(text(L"mouse %u %d %d", flags, p.x, p.y)); }
    afx_msg void OnMouseLeave() { note(L"leave"); }
    afx_msg void OnMouseHover(UINT flags, CPoint p) { note(text(L"hover %u %d %d", flags, p.x, p.y)); }
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint p)
    {
        note(text(L"wheel %u %d %d %d", flags, delta, p.x, p.y));
        return TRUE;
    }
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint p)
    {
        note(text(L"x %u %u %d %d", flags, button, p.x, p.y));
    }
    afx_msg void OnNcLButtonDown(UINT hit, CPoint p) { note(text(L"nc left %u %d %d", hit, p.x, p.y)); }
    afx_msg LRESULT OnNcHitTest(CPoint p)
    {
        note(text(L"hit %d %d", p.x, p.y));
        return HTCAPTION;
    }
    afx_msg BOOL OnNcActivate(BOOL active)
    {
        note(text(L"nc activate %d", active));
        return TRUE;
    }
    afx_msg void OnNcCalcSize(BOOL valid, NCCALCSIZE_PARAMS* params)
    {
        note(text(L"calc %d %d", valid, params->rgrc[0].right));
    }
    afx_msg BOOL OnEraseBkgnd(CDC* dc)
    {
        note(text(L"erase %d", dc->GetSafeHdc() != nullptr));
        return TRUE;
    }
    afx_msg void OnTimer(UINT_PTR id) { note(text(L"timer %d", static_cast<int>(id))); }
    afx_msg void OnSysCommand(UINT id, LPARAM lParam) { note(text(L"syscommand %u %d", id, static_cast<int>(lParam))); }
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message)
    {
        note(text(L"cursor %d %u %u", wnd == this, hit, message));
        return TRUE;
    }
    afx_msg void OnCaptureChanged(CWnd* wnd) { note(text(L"capture %d", wnd == this)); }
    afx_msg void OnContextMenu(CWnd* wnd, CPoint p) { note(text(L"context %d %d %d", wnd == this, p.x, p.y)); }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sys)
    {
        note(text(L"popup %d %u %d", menu->GetSafeHmenu() != nullptr, index, sys));
    }
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu)
    {
        note(text(L"select %u %u %d", id, flags, menu == nullptr));
    }
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        note(text(L"hscroll %u %u %d", code, pos, bar == nullptr));
    }
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar)
    {
        note(text(L"vscroll %u %u %d", code, pos, bar == nullptr));
    }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { note(text(L"draw %d %u", id, item->itemID)); }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) { note(text(L"measure %d %u", id, item->itemID)); }
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item) { note(text(L"delete %d %u", id, item->itemID)); }
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item)
    {
        note(text(L"compare %d %u %u", id, item->itemID1, item->itemID2));
        return -1;
    }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam)
    {
        note(text(L"parent %u %d", message, static_cast<int>(lParam)));
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info) { info->ptMinTrackSize.x = 77; }
    afx_msg void OnWindowPosChanging(WINDOWPOS* pos) { note(text(L"changing %d", pos->cx)); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* pos) { note(text(L"changed %d", pos->cx)); }
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style) { note(text(L"style %d %u", type, style->styleNew)); }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section) { note(text(L"setting %u %s", flags, section)); }
    afx_msg void OnSizing(UINT side, LPRECT rect) { note(text(L"sizing %u %d", side, rect->left)); }
    afx_msg BOOL OnHelpInfo(HELPINFO* info)
    {
        note(text(L"help %d", info->iCtrlId));
        return TRUE;
    }
    afx_msg HCURSOR OnQueryDragIcon() { return ::LoadCursor(nullptr, IDC_CROSS); }
    afx_msg BOOL OnCopyData(CWnd* wnd, COPYDATASTRUCT* data)
    {
        note(text(L"copy %d %d", wnd == this, static_cast<int>(data->dwData)));
        return TRUE;
    }
    afx_msg BOOL OnQueryNewPalette() { return 3; }
    afx_msg void OnPaletteChanged(CWnd* wnd) { note(text(L"palette %d", wnd == this)); }
    afx_msg LRESULT OnMenuChar(UINT c, UINT flags, CMenu*)
    {
        note(text(L"menuchar %u %u", c, flags));
        return MAKELRESULT(1, MNC_EXECUTE);
    }
    afx_msg LRESULT OnMine(WPARAM wParam, LPARAM lParam)
    {
        note(text(L"mine %d %d", static_cast<int>(wParam), static_cast<int>(lParam)));
        return 42;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM)
    {
        note(text(L"registered %d", static_cast<int>(wParam)));
        return 43;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMapped, CTop)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_MOUSEACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_SYSKEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSEWHEEL()
    ON_WM_XBUTTONDOWN()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCHITTEST()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
    ON_WM_SYSCOMMAND()
    ON_WM_SETCURSOR()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_PARENTNOTIFY()
    ON_WM_GETMINMAXINFO()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_STYLECHANGED()
    ON_WM_SETTINGCHANGE()
    ON_WM_SIZING()
    ON_WM_HELPINFO()
    ON_WM_QUERYDRAGICON()
    ON_WM_COPYDATA()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_PALETTECHANGED()
    ON_WM_MENUCHAR()
    // LRESULT OnMine(WPARAM, LPARAM)
    ON_MESSAGE(WM_APP + 1, &CMapped::OnMine)
    // LRESULT OnRegistered(WPARAM, LPARAM)
    ON_REGISTERED_MESSAGE(registeredMessage, &CMapped::OnRegistered)
END_MESSAGE_MAP()

class MessageMap : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(wnd.make());
        self = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    }
    static LPARAM at(int x, int y) { return MAKELPARAM(x, y); }
    CMapped wnd;
    WPARAM self = 0;
};
} // namespace

TEST_F(MessageMap, sizes_and_places)
{
    wnd.send(WM_SIZE, SIZE_MAXIMIZED, at(300, 40000));
    EXPECT_EQ(wnd.last(), L"size 2 300 40000");
    wnd.send(WM_MOVE, 0, at(-5, 7));
    EXPECT_EQ(wnd.last(), L"move -5 7");
    RECT rect = {9, 0, 0, 0};
    EXPECT_EQ(wnd.send(WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&rect)), TRUE);
    EXPECT_EQ(wnd.last(), L"sizing 1 9");
    MINMAXINFO info = {};
    wnd.send(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 77);
}

TEST_F(MessageMap, position_records)
{
    WINDOWPOS pos = {};
    pos.cx = 33;
    wnd.send(WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
    EXPECT_EQ(wnd.last(), L"changing 33");
    wnd.send(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&pos));
    EXPECT_EQ(wnd.last(), L"changed 33");
    STYLESTRUCT style = {1, 2};
    wnd.send(WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&style));
    EXPECT_EQ(wnd.last(), L"style -16 2");
    NCCALCSIZE_PARAMS params = {};
    params.rgrc[0].right = 12;
    wnd.send(WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
    EXPECT_EQ(wnd.last(), L"calc 1 12");
}

TEST_F(MessageMap, states)
{
    wnd.send(WM_ENABLE, TRUE);
    EXPECT_EQ(wnd.last(), L"enable 1");
    wnd.send(WM_SHOWWINDOW, TRUE, SW_PARENTOPENING);
    EXPECT_EQ(wnd.last(), L"show 1 3");
    wnd.send(WM_CLOSE);
    EXPECT_EQ(wnd.last(), L"close");
    EXPECT_TRUE(::IsWindow(wnd.m_hWnd)) << "the handler asked nobody else";
    EXPECT_EQ(wnd.send(WM_QUERYENDSESSION), FALSE);
    wnd.send(WM_TIMER, 12);
    EXPECT_EQ(wnd.last(), L"timer 12");
    wnd.send(WM_SYSCOMMAND, SC_KEYMENU, 5);
    EXPECT_EQ(wnd.last(), L"syscommand 61696 5");
}

TEST_F(MessageMap, activation_and_focus)
{
    wnd.send(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), static_cast<LPARAM>(self));
    EXPECT_EQ(wnd.last(), L"activate 2 1 1");
    wnd.send(WM_ACTIVATEAPP, TRUE, 17);
    EXPECT_EQ(wnd.last(), L"app 1 17");
    EXPECT_EQ(wnd.send(WM_MOUSEACTIVATE, self, MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)), MA_NOACTIVATE);
    EXPECT_EQ(wnd.last(), L"mouse activate 1 1 513");
    EXPECT_EQ(wnd.send(WM_NCACTIVATE, TRUE), TRUE);
    wnd.send(WM_SETFOCUS, self);
    EXPECT_EQ(wnd.last(), L"focus 1");
    wnd.send(WM_KILLFOCUS);
    EXPECT_EQ(wnd.last(), L"kill 1");
}

TEST_F(MessageMap, keys)
{
    wnd.send(WM_CHAR, L'x', MAKELPARAM(2, 3));
    EXPECT_EQ(wnd.last(), L"char 120 2 3");
    wnd.send(WM_KEYDOWN, VK_RETURN, MAKELPARAM(1, 28));
    EXPECT_EQ(wnd.last(), L"down 13 1 28");
    wnd.send(WM_KEYUP, VK_RETURN, MAKELPARAM(1, 0xC01C));
    EXPECT_EQ(wnd.last(), L"up 13 1 49180");
    wnd.send(WM_SYSKEYDOWN, 'A', MAKELPARAM(1, 0x2000));
    EXPECT_EQ(wnd.last(), L"sys 65 1 8192");
    EXPECT_EQ(wnd.send(WM_GETDLGCODE), DLGC_WANTARROWS);
}

TEST_F(MessageMap, mouse_points_are_signed)
{
    wnd.send(WM_LBUTTONDOWN, MK_LBUTTON, at(-3, 4));
    EXPECT_EQ(wnd.last(), L"left 1 -3 4");
    wnd.send(WM_LBUTTONDBLCLK, MK_LBUTTON, at(1, 2));
    EXPECT_EQ(wnd.last(), L"double 1 1 2");
    wnd.send(WM_RBUTTONUP, 0, at(5, 6));
    EXPECT_EQ(wnd.last(), L"right up 0 5 6");
    wnd.send(WM_MOUSEMOVE, MK_SHIFT, at(8, -9));
    EXPECT_EQ(wnd.last(), L"mouse 4 8 -9");
    wnd.send(WM_MOUSEHOVER, 0, at(1, 1));
    EXPECT_EQ(wnd.last(), L"hover 0 1 1");
    wnd.send(WM_MOUSELEAVE);
    EXPECT_EQ(wnd.last(), L"leave");
    wnd.send(WM_NCLBUTTONDOWN, HTCAPTION, at(10, 11));
    EXPECT_EQ(wnd.last(), L"nc left 2 10 11");
    EXPECT_EQ(wnd.send(WM_NCHITTEST, 0, at(-1, -2)), HTCAPTION);
    EXPECT_EQ(wnd.last(), L"hit -1 -2");
}

TEST_F(MessageMap, wheel_and_extra_buttons)
{
    EXPECT_EQ(wnd.send(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), at(3, 4)), TRUE);
    EXPECT_EQ(wnd.last(), L"wheel 8 -120 3 4");
    EXPECT_EQ(wnd.send(WM_XBUTTONDOWN, MAKEWPARAM(MK_XBUTTON1, XBUTTON1), at(3, 4)), TRUE);
    EXPECT_EQ(wnd.last(), L"x 32 1 3 4");
}

TEST_F(MessageMap, cursor_capture_and_context_menu)
{
    EXPECT_EQ(wnd.send(WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), TRUE);
    EXPECT_EQ(wnd.last(), L"cursor 1 1 512");
    wnd.send(WM_CAPTURECHANGED, 0, static_cast<LPARAM>(self));
    EXPECT_EQ(wnd.last(), L"capture 1");
    wnd.send(WM_CONTEXTMENU, self, -1);
    EXPECT_EQ(wnd.last(), L"context 1 -1 -1");
}

TEST_F(MessageMap, menus)
{
    const HMENU menu = ::CreatePopupMenu();
    wnd.send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(3, TRUE));
    EXPECT_EQ(wnd.last(), L"popup 1 3 1");
    wnd.send(WM_MENUSELECT, MAKEWPARAM(99, 0xFFFF), 0);
    EXPECT_EQ(wnd.last(), L"select 99 65535 1");
    EXPECT_EQ(wnd.send(WM_MENUCHAR, MAKEWPARAM(L'q', MF_POPUP), reinterpret_cast<LPARAM>(menu)),
              MAKELRESULT(1, MNC_EXECUTE));
    EXPECT_EQ(wnd.last(), L"menuchar 113 16");
    ::DestroyMenu(menu);
}

TEST_F(MessageMap, items_of_controls)
{
    DRAWITEMSTRUCT draw = {};
    draw.itemID = 4;
    EXPECT_EQ(wnd.send(WM_DRAWITEM, 8, reinterpret_cast<LPARAM>(&draw)), TRUE);
    EXPECT_EQ(wnd.last(), L"draw 8 4");
    MEASUREITEMSTRUCT measure = {};
    measure.itemID = 5;
    EXPECT_EQ(wnd.send(WM_MEASUREITEM, 8, reinterpret_cast<LPARAM>(&measure)), TRUE);
    EXPECT_EQ(wnd.last(), L"measure 8 5");
    DELETEITEMSTRUCT gone = {};
    gone.itemID = 6;
    EXPECT_EQ(wnd.send(WM_DELETEITEM, 8, reinterpret_cast<LPARAM>(&gone)), TRUE);
    EXPECT_EQ(wnd.last(), L"delete 8 6");
    COMPAREITEMSTRUCT compare = {};
    compare.itemID1 = 1;
    compare.itemID2 = 2;
    EXPECT_EQ(wnd.send(WM_COMPAREITEM, 8, reinterpret_cast<LPARAM>(&compare)), -1);
    EXPECT_EQ(wnd.last(), L"compare 8 1 2");
}

TEST_F(MessageMap, scrolling_and_children)
{
    wnd.send(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 55));
    EXPECT_EQ(wnd.last(), L"hscroll 5 55 1");
    wnd.send(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0));
    EXPECT_EQ(wnd.last(), L"vscroll 1 0 1");
    wnd.send(WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 3), 21);
    EXPECT_EQ(wnd.last(), L"parent 513 21");
}

TEST_F(MessageMap, desktop_messages)
{
    wnd.send(WM_SETTINGCHANGE, 9, reinterpret_cast<LPARAM>(L"intl"));
    EXPECT_EQ(wnd.last(), L"setting 9 intl");
    wnd.send(WM_PALETTECHANGED, self);
    EXPECT_EQ(wnd.last(), L"palette 1");
    EXPECT_EQ(wnd.send(WM_QUERYNEWPALETTE), 3);
    EXPECT_EQ(wnd.send(WM_QUERYDRAGICON), reinterpret_cast<LRESULT>(::LoadCursor(nullptr, IDC_CROSS)));
    HELPINFO help = {};
    help.cbSize = sizeof help;
    help.iCtrlId = 31;
    EXPECT_EQ(wnd.send(WM_HELP, 0, reinterpret_cast<LPARAM>(&help)), TRUE);
    EXPECT_EQ(wnd.last(), L"help 31");
    COPYDATASTRUCT data = {77, 0, nullptr};
    EXPECT_EQ(wnd.send(WM_COPYDATA, self, reinterpret_cast<LPARAM>(&data)), TRUE);
    EXPECT_EQ(wnd.last(), L"copy 1 77");
}

TEST_F(MessageMap, background)
{
    const HDC dc = ::GetDC(wnd.m_hWnd);
    EXPECT_EQ(wnd.send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)), TRUE);
    EXPECT_EQ(wnd.last(), L"erase 1");
    ::ReleaseDC(wnd.m_hWnd, dc);
}

TEST_F(MessageMap, messages_of_ones_own)
{
    EXPECT_EQ(wnd.send(WM_APP + 1, 1, 2), 42);
    EXPECT_EQ(wnd.last(), L"mine 1 2");
    EXPECT_EQ(wnd.send(registeredMessage, 6), 43);
    EXPECT_EQ(wnd.last(), L"registered 6");
    EXPECT_EQ(wnd.send(WM_APP + 2), 0) << "nobody handles it";
}

TEST_F(MessageMap, current_message_is_the_one_being_handled)
{
    wnd.send(WM_APP + 1, 5, 6);
    EXPECT_NE(CWnd::GetCurrentMessage()->message, static_cast<UINT>(WM_APP + 1)) << "it is over";
}
