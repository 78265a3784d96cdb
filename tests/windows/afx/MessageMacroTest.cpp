// The remaining macros of window messages, one row each: what is sent, what the handler is given, what is answered.
#include "Fixture.h"

namespace
{
const HBRUSH givenBrush = static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));

/// Writes down each call and asks nobody else.
class CHandlers : public CTop
{
protected:
    void note(const wchar_t* what) { log.push_back(what); }
    template <class... Args> void note(const wchar_t* format, Args... args) { log.push_back(text(format, args...)); }
    BOOL isSelf(const CWnd* wnd) const { return wnd == this; }

    // life and state
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT create)
    {
        note(L"NcCreate %d", create->cx);
        return TRUE;
    }
    afx_msg void OnDestroy() { note(L"Destroy"); }
    afx_msg void OnNcDestroy()
    {
        note(L"NcDestroy");
        CTop::OnNcDestroy();
    }
    afx_msg void OnEndSession(BOOL ending) { note(L"EndSession %d", ending); }
    afx_msg BOOL OnQueryOpen()
    {
        note(L"QueryOpen");
        return 5;
    }
    afx_msg void OnCancelMode() { note(L"CancelMode"); }
    afx_msg void OnChildActivate() { note(L"ChildActivate"); }
    afx_msg void OnDropFiles(HDROP drop) { note(L"DropFiles %d", static_cast<int>(reinterpret_cast<INT_PTR>(drop))); }
    afx_msg void OnEnterIdle(UINT why, CWnd* wnd) { note(L"EnterIdle %u %d", why, isSelf(wnd)); }
    afx_msg void OnMoving(UINT side, LPRECT rect) { note(L"Moving %u %d", side, rect->left); }
    afx_msg void OnEnterSizeMove() { note(L"EnterSizeMove"); }
    afx_msg void OnExitSizeMove() { note(L"ExitSizeMove"); }
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style) { note(L"StyleChanging %d %u", type, style->styleNew); }

    // painting and the desktop
    afx_msg void OnNcPaint() { note(L"NcPaint"); }
    afx_msg void OnIconEraseBkgnd(CDC* dc) { note(L"IconEraseBkgnd %d", dc->GetSafeHdc() != nullptr); }
    afx_msg void OnSysColorChange() { note(L"SysColorChange"); }
    afx_msg void OnDevModeChange(LPTSTR device) { note(L"DevModeChange %s", device); }
    afx_msg void OnFontChange() { note(L"FontChange"); }
    afx_msg void OnTimeChange() { note(L"TimeChange"); }
    afx_msg void OnPaletteIsChanging(CWnd* wnd) { note(L"PaletteIsChanging %d", isSelf(wnd)); }

    // keys and mouse
    afx_msg void OnDeadChar(UINT c, UINT repeat, UINT flags) { note(L"DeadChar %u %u %u", c, repeat, flags); }
    afx_msg void OnSysChar(UINT c, UINT repeat, UINT flags) { note(L"SysChar %u %u %u", c, repeat, flags); }
    afx_msg void OnSysDeadChar(UINT c, UINT repeat, UINT flags) { note(L"SysDeadChar %u %u %u", c, repeat, flags); }
    afx_msg void OnSysKeyUp(UINT key, UINT repeat, UINT flags) { note(L"SysKeyUp %u %u %u", key, repeat, flags); }
    afx_msg void OnMouseHWheel(UINT flags, short delta, CPoint p)
    {
        note(L"HWheel %u %d %d %d", flags, delta, p.x, p.y);
    }
    afx_msg void OnLButtonUp(UINT flags, CPoint p) { note(L"LButtonUp %u %d %d", flags, p.x, p.y); }
    afx_msg void OnRButtonDown(UINT flags, CPoint p) { note(L"RButtonDown %u %d %d", flags, p.x, p.y); }
    afx_msg void OnRButtonDblClk(UINT flags, CPoint p) { note(L"RButtonDblClk %u %d %d", flags, p.x, p.y); }
    afx_msg void OnMButtonDown(UINT flags, CPoint p) { note(L"MButtonDown %u %d %d", flags, p.x, p.y); }
    afx_msg void OnMButtonUp(UINT flags, CPoint p) { note(L"MButtonUp %u %d %d", flags, p.x, p.y); }
    afx_msg void OnMButtonDblClk(UINT flags, CPoint p) { note(L"MButtonDblClk %u %d %d", flags, p.x, p.y); }
    afx_msg void OnXButtonUp(UINT flags, UINT button, CPoint p)
    {
        note(L"XButtonUp %u %u %d %d", flags, button, p.x, p.y);
    }
    afx_msg void OnXButtonDblClk(UINT flags, UINT button, CPoint p)
    {
        note(L"XButtonDblClk %u %u %d %d", flags, button, p.x, p.y);
    }
    afx_msg void OnNcMouseMove(UINT hit, CPoint p) { note(L"NcMouseMove %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcMouseHover(UINT hit, CPoint p) { note(L"NcMouseHover %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcMouseLeave() { note(L"NcMouseLeave"); }
    afx_msg void OnNcLButtonUp(UINT hit, CPoint p) { note(L"NcLButtonUp %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint p) { note(L"NcLButtonDblClk %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcRButtonDown(UINT hit, CPoint p) { note(L"NcRButtonDown %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcRButtonUp(UINT hit, CPoint p) { note(L"NcRButtonUp %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcRButtonDblClk(UINT hit, CPoint p) { note(L"NcRButtonDblClk %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcMButtonDown(UINT hit, CPoint p) { note(L"NcMButtonDown %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcMButtonUp(UINT hit, CPoint p) { note(L"NcMButtonUp %u %d %d", hit, p.x, p.y); }
    afx_msg void OnNcMButtonDblClk(UINT hit, CPoint p) { note(L"NcMButtonDblClk %u %d %d", hit, p.x, p.y); }

    // menus and the clipboard
    afx_msg void OnInitMenu(CMenu* menu) { note(L"InitMenu %d", ::IsMenu(menu->GetSafeHmenu())); }
    afx_msg void OnUnInitMenuPopup(CMenu* menu, UINT flags)
    {
        note(L"UnInitMenuPopup %d %u", ::IsMenu(menu->GetSafeHmenu()), flags);
    }
    afx_msg void OnEnterMenuLoop(BOOL popup) { note(L"EnterMenuLoop %d", popup); }
    afx_msg void OnExitMenuLoop(BOOL popup) { note(L"ExitMenuLoop %d", popup); }
    afx_msg void OnDestroyClipboard() { note(L"DestroyClipboard"); }
    afx_msg void OnDrawClipboard() { note(L"DrawClipboard"); }
    afx_msg void OnChangeCbChain(HWND gone, HWND next)
    {
        note(L"ChangeCbChain %d %d", gone == m_hWnd, next == nullptr);
    }
    afx_msg void OnRenderFormat(UINT format) { note(L"RenderFormat %u", format); }
    afx_msg void OnRenderAllFormats() { note(L"RenderAllFormats"); }

    // controls
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT type)
    {
        note(L"CtlColor %d %d %u", dc->GetSafeHdc() != nullptr, isSelf(wnd), type);
        return givenBrush;
    }
    afx_msg int OnCharToItem(UINT c, CListBox* box, UINT index)
    {
        note(L"CharToItem %u %d %u", c, box->GetSafeHwnd() == m_hWnd, index);
        return -2;
    }
    afx_msg int OnVKeyToItem(UINT key, CListBox* box, UINT index)
    {
        note(L"VKeyToItem %u %d %u", key, box->GetSafeHwnd() == m_hWnd, index);
        return 3;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHandlers, CTop)
    ON_WM_NCCREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_WM_ENDSESSION()
    ON_WM_QUERYOPEN()
    ON_WM_CANCELMODE()
    ON_WM_CHILDACTIVATE()
    ON_WM_DROPFILES()
    ON_WM_ENTERIDLE()
    ON_WM_MOVING()
    ON_WM_ENTERSIZEMOVE()
    ON_WM_EXITSIZEMOVE()
    ON_WM_STYLECHANGING()
    ON_WM_NCPAINT()
    ON_WM_ICONERASEBKGND()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_FONTCHANGE()
    ON_WM_TIMECHANGE()
    ON_WM_PALETTEISCHANGING()
    ON_WM_DEADCHAR()
    ON_WM_SYSCHAR()
    ON_WM_SYSDEADCHAR()
    ON_WM_SYSKEYUP()
    ON_WM_MOUSEHWHEEL()
    ON_WM_LBUTTONUP()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_XBUTTONUP()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSEHOVER()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_INITMENU()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_ENTERMENULOOP()
    ON_WM_EXITMENULOOP()
    ON_WM_DESTROYCLIPBOARD()
    ON_WM_DRAWCLIPBOARD()
    ON_WM_CHANGECBCHAIN()
    ON_WM_RENDERFORMAT()
    ON_WM_RENDERALLFORMATS()
    ON_WM_CTLCOLOR()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
END_MESSAGE_MAP()

/// A control to which its parent's scrolling messages come back.
class CScrolled : public CChild
{
public:
    void VScroll(UINT code, UINT pos) { log.push_back(text(L"VScroll %u %u", code, pos)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CScrolled, CChild)
    ON_WM_VSCROLL_REFLECT()
END_MESSAGE_MAP()

struct Row
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    const wchar_t* call;
    LRESULT answer;
};

class MessageMacro : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(wnd.make()); }

    void check(const Row& row)
    {
        wnd.log.clear();
        EXPECT_EQ(wnd.SendMessage(row.message, row.wParam, row.lParam), row.answer) << row.call;
        EXPECT_EQ(wnd.log, Log{row.call});
    }
    template <class Record> static LPARAM at(Record& record) { return reinterpret_cast<LPARAM>(&record); }
    WPARAM self() const { return reinterpret_cast<WPARAM>(wnd.m_hWnd); }

    CHandlers wnd;
    const LPARAM place = MAKELPARAM(-3, 4);
};
} // namespace

TEST_F(MessageMacro, life_and_state)
{
    CREATESTRUCT create = {};
    create.cx = 44;
    RECT rect = {9, 0, 0, 0};
    STYLESTRUCT style = {1, 2};
    for (const Row& row : {
             Row{WM_NCCREATE, 0, at(create), L"NcCreate 44", TRUE},
             Row{WM_ENDSESSION, TRUE, 0, L"EndSession 1", 0},
             Row{WM_QUERYOPEN, 0, 0, L"QueryOpen", 5},
             Row{WM_CANCELMODE, 0, 0, L"CancelMode", 0},
             Row{WM_CHILDACTIVATE, 0, 0, L"ChildActivate", 0},
             Row{WM_DROPFILES, 77, 0, L"DropFiles 77", 0},
             Row{WM_ENTERIDLE, MSGF_MENU, static_cast<LPARAM>(self()), L"EnterIdle 2 1", 0},
             Row{WM_MOVING, WMSZ_TOP, at(rect), L"Moving 3 9", TRUE},
             Row{WM_ENTERSIZEMOVE, 0, 0, L"EnterSizeMove", 0},
             Row{WM_EXITSIZEMOVE, 0, 0, L"ExitSizeMove", 0},
             Row{WM_STYLECHANGING, static_cast<WPARAM>(GWL_EXSTYLE), at(style), L"StyleChanging -20 2", 0},
         })
        check(row);
}

TEST_F(MessageMacro, end_of_a_window)
{
    wnd.log.clear();
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.log, (Log{L"Destroy", L"NcDestroy"}));
}

TEST_F(MessageMacro, painting_and_the_desktop)
{
    const HDC dc = ::GetDC(wnd.m_hWnd);
    wchar_t device[] = L"printer";
    for (const Row& row : {
             Row{WM_NCPAINT, 1, 0, L"NcPaint", 0},
             Row{WM_ICONERASEBKGND, reinterpret_cast<WPARAM>(dc), 0, L"IconEraseBkgnd 1", 0},
             Row{WM_SYSCOLORCHANGE, 0, 0, L"SysColorChange", 0},
             Row{WM_DEVMODECHANGE, 0, at(device), L"DevModeChange printer", 0},
             Row{WM_FONTCHANGE, 0, 0, L"FontChange", 0},
             Row{WM_TIMECHANGE, 0, 0, L"TimeChange", 0},
             Row{WM_PALETTEISCHANGING, self(), 0, L"PaletteIsChanging 1", 0},
         })
        check(row);
    ::ReleaseDC(wnd.m_hWnd, dc);
}

TEST_F(MessageMacro, keys)
{
    const LPARAM stroke = MAKELPARAM(2, 0xC01C);
    for (const Row& row : {
             Row{WM_DEADCHAR, L'^', stroke, L"DeadChar 94 2 49180", 0},
             Row{WM_SYSCHAR, L'x', stroke, L"SysChar 120 2 49180", 0},
             Row{WM_SYSDEADCHAR, L'^', stroke, L"SysDeadChar 94 2 49180", 0},
             Row{WM_SYSKEYUP, VK_F4, stroke, L"SysKeyUp 115 2 49180", 0},
         })
        check(row);
}

TEST_F(MessageMacro, mouse)
{
    for (const Row& row : {
             Row{WM_MOUSEHWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-240)), place, L"HWheel 4 -240 -3 4", 0},
             Row{WM_LBUTTONUP, MK_CONTROL, place, L"LButtonUp 8 -3 4", 0},
             Row{WM_RBUTTONDOWN, MK_RBUTTON, place, L"RButtonDown 2 -3 4", 0},
             Row{WM_RBUTTONDBLCLK, MK_RBUTTON, place, L"RButtonDblClk 2 -3 4", 0},
             Row{WM_MBUTTONDOWN, MK_MBUTTON, place, L"MButtonDown 16 -3 4", 0},
             Row{WM_MBUTTONUP, 0, place, L"MButtonUp 0 -3 4", 0},
             Row{WM_MBUTTONDBLCLK, MK_MBUTTON, place, L"MButtonDblClk 16 -3 4", 0},
             Row{WM_XBUTTONUP, MAKEWPARAM(MK_SHIFT, XBUTTON2), place, L"XButtonUp 4 2 -3 4", TRUE},
             Row{WM_XBUTTONDBLCLK, MAKEWPARAM(MK_SHIFT, XBUTTON1), place, L"XButtonDblClk 4 1 -3 4", TRUE},
         })
        check(row);
}

TEST_F(MessageMacro, mouse_outside_the_client_area)
{
    for (const Row& row : {
             Row{WM_NCMOUSEMOVE, HTCAPTION, place, L"NcMouseMove 2 -3 4", 0},
             Row{WM_NCMOUSEHOVER, HTCAPTION, place, L"NcMouseHover 2 -3 4", 0},
             Row{WM_NCMOUSELEAVE, 0, 0, L"NcMouseLeave", 0},
             Row{WM_NCLBUTTONUP, HTCLOSE, place, L"NcLButtonUp 20 -3 4", 0},
             Row{WM_NCLBUTTONDBLCLK, HTCLOSE, place, L"NcLButtonDblClk 20 -3 4", 0},
             Row{WM_NCRBUTTONDOWN, HTCLOSE, place, L"NcRButtonDown 20 -3 4", 0},
             Row{WM_NCRBUTTONUP, HTCLOSE, place, L"NcRButtonUp 20 -3 4", 0},
             Row{WM_NCRBUTTONDBLCLK, HTCLOSE, place, L"NcRButtonDblClk 20 -3 4", 0},
             Row{WM_NCMBUTTONDOWN, HTCLOSE, place, L"NcMButtonDown 20 -3 4", 0},
             Row{WM_NCMBUTTONUP, HTCLOSE, place, L"NcMButtonUp 20 -3 4", 0},
             Row{WM_NCMBUTTONDBLCLK, HTCLOSE, place, L"NcMButtonDblClk 20 -3 4", 0},
         })
        check(row);
}

TEST_F(MessageMacro, menus_and_the_clipboard)
{
    const HMENU menu = ::CreatePopupMenu();
    const auto handle = reinterpret_cast<WPARAM>(menu);
    for (const Row& row : {
             Row{WM_INITMENU, handle, 0, L"InitMenu 1", 0},
             Row{WM_UNINITMENUPOPUP, handle, MAKELPARAM(1, MF_SYSMENU), L"UnInitMenuPopup 1 8192", 0},
             Row{WM_ENTERMENULOOP, TRUE, 0, L"EnterMenuLoop 1", 0},
             Row{WM_EXITMENULOOP, FALSE, 0, L"ExitMenuLoop 0", 0},
             Row{WM_DESTROYCLIPBOARD, 0, 0, L"DestroyClipboard", 0},
             Row{WM_DRAWCLIPBOARD, 0, 0, L"DrawClipboard", 0},
             Row{WM_CHANGECBCHAIN, self(), 0, L"ChangeCbChain 1 1", 0},
             Row{WM_RENDERFORMAT, CF_UNICODETEXT, 0, L"RenderFormat 13", 0},
             Row{WM_RENDERALLFORMATS, 0, 0, L"RenderAllFormats", 0},
         })
        check(row);
    ::DestroyMenu(menu);
}

TEST_F(MessageMacro, colours_and_keys_of_controls)
{
    const HDC dc = ::GetDC(wnd.m_hWnd);
    const auto drawing = reinterpret_cast<WPARAM>(dc);
    const auto brush = reinterpret_cast<LRESULT>(givenBrush);
    const auto control = static_cast<LPARAM>(self());
    for (const Row& row : {
             Row{WM_CTLCOLORMSGBOX, drawing, control, L"CtlColor 1 1 0", brush},
             Row{WM_CTLCOLOREDIT, drawing, control, L"CtlColor 1 1 1", brush},
             Row{WM_CTLCOLORLISTBOX, drawing, control, L"CtlColor 1 1 2", brush},
             Row{WM_CTLCOLORBTN, drawing, control, L"CtlColor 1 1 3", brush},
             Row{WM_CTLCOLORDLG, drawing, control, L"CtlColor 1 1 4", brush},
             Row{WM_CTLCOLORSCROLLBAR, drawing, control, L"CtlColor 1 1 5", brush},
             Row{WM_CTLCOLORSTATIC, drawing, control, L"CtlColor 1 1 6", brush},
             Row{WM_CHARTOITEM, MAKEWPARAM(L'x', 5), control, L"CharToItem 120 1 5", -2},
             Row{WM_VKEYTOITEM, MAKEWPARAM(VK_F5, 6), control, L"VKeyToItem 116 1 6", 3},
         })
        check(row);
    ::ReleaseDC(wnd.m_hWnd, dc);
}

TEST_F(MessageMacro, vertical_scrolling_comes_back_to_the_control)
{
    CTop parent;
    CScrolled control;
    ASSERT_TRUE(parent.make());
    ASSERT_TRUE(control.make(parent));
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(control.log, Log{L"VScroll 4 12"});
}
