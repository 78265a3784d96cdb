// Macros of message maps for the window messages that have a handler of a fixed name.
#pragma once
#include "kx/MessageMap.h"

#ifndef WM_CTLCOLOR
/// The seven WM_CTLCOLOR messages of the system arrive as this one.
#define WM_CTLCOLOR 0x0019
#endif

// Life of a window
// int OnCreate(LPCREATESTRUCT)
#define ON_WM_CREATE() KX_WND_ENTRY(WM_CREATE, AfxSig_i_cs, int (CWnd::*)(LPCREATESTRUCT), &ThisClass::OnCreate)
// BOOL OnNcCreate(LPCREATESTRUCT)
#define ON_WM_NCCREATE() KX_WND_ENTRY(WM_NCCREATE, AfxSig_b_cs, BOOL (CWnd::*)(LPCREATESTRUCT), &ThisClass::OnNcCreate)
// void OnDestroy()
#define ON_WM_DESTROY() KX_WND_ENTRY(WM_DESTROY, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnDestroy)
// void OnNcDestroy()
#define ON_WM_NCDESTROY() KX_WND_ENTRY(WM_NCDESTROY, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnNcDestroy)
// void OnClose()
#define ON_WM_CLOSE() KX_WND_ENTRY(WM_CLOSE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnClose)
// BOOL OnQueryEndSession()
#define ON_WM_QUERYENDSESSION()                                                                                        \
    KX_WND_ENTRY(WM_QUERYENDSESSION, AfxSig_b_v, BOOL (CWnd::*)(), &ThisClass::OnQueryEndSession)
// void OnEndSession(BOOL)
#define ON_WM_ENDSESSION() KX_WND_ENTRY(WM_ENDSESSION, AfxSig_v_b, void (CWnd::*)(BOOL), &ThisClass::OnEndSession)
// BOOL OnQueryOpen()
#define ON_WM_QUERYOPEN() KX_WND_ENTRY(WM_QUERYOPEN, AfxSig_b_v, BOOL (CWnd::*)(), &ThisClass::OnQueryOpen)
// void OnEnable(BOOL)
#define ON_WM_ENABLE() KX_WND_ENTRY(WM_ENABLE, AfxSig_v_b, void (CWnd::*)(BOOL), &ThisClass::OnEnable)
// void OnShowWindow(BOOL, UINT)
#define ON_WM_SHOWWINDOW()                                                                                             \
    KX_WND_ENTRY(WM_SHOWWINDOW, AfxSig_v_b_u, void (CWnd::*)(BOOL, UINT), &ThisClass::OnShowWindow)
// void OnActivate(UINT, CWnd*, BOOL)
#define ON_WM_ACTIVATE()                                                                                               \
    KX_WND_ENTRY(WM_ACTIVATE, AfxSig_activate, void (CWnd::*)(UINT, CWnd*, BOOL), &ThisClass::OnActivate)
// void OnActivateApp(BOOL, DWORD)
#define ON_WM_ACTIVATEAPP()                                                                                            \
    KX_WND_ENTRY(WM_ACTIVATEAPP, AfxSig_v_b_dw, void (CWnd::*)(BOOL, DWORD), &ThisClass::OnActivateApp)
// int OnMouseActivate(CWnd*, UINT, UINT)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    KX_WND_ENTRY(WM_MOUSEACTIVATE, AfxSig_mouseactivate, int (CWnd::*)(CWnd*, UINT, UINT), &ThisClass::OnMouseActivate)
// void OnSetFocus(CWnd*)
#define ON_WM_SETFOCUS() KX_WND_ENTRY(WM_SETFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), &ThisClass::OnSetFocus)
// void OnKillFocus(CWnd*)
#define ON_WM_KILLFOCUS() KX_WND_ENTRY(WM_KILLFOCUS, AfxSig_v_W, void (CWnd::*)(CWnd*), &ThisClass::OnKillFocus)
// void OnCancelMode()
#define ON_WM_CANCELMODE() KX_WND_ENTRY(WM_CANCELMODE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnCancelMode)
// void OnChildActivate()
#define ON_WM_CHILDACTIVATE() KX_WND_ENTRY(WM_CHILDACTIVATE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnChildActivate)
// void OnParentNotify(UINT, LPARAM)
#define ON_WM_PARENTNOTIFY()                                                                                           \
    KX_WND_ENTRY(WM_PARENTNOTIFY, AfxSig_parentnotify, void (CWnd::*)(UINT, LPARAM), &ThisClass::OnParentNotify)
// void ParentNotify(UINT, LPARAM)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_parentnotify, void(CWnd::*)(UINT, LPARAM),                  \
                 &ThisClass::ParentNotify)
// BOOL OnHelpInfo(HELPINFO*)
#define ON_WM_HELPINFO() KX_WND_ENTRY(WM_HELP, AfxSig_help, BOOL (CWnd::*)(HELPINFO*), &ThisClass::OnHelpInfo)
// HCURSOR OnQueryDragIcon()
#define ON_WM_QUERYDRAGICON()                                                                                          \
    KX_WND_ENTRY(WM_QUERYDRAGICON, AfxSig_hcur_v, HCURSOR (CWnd::*)(), &ThisClass::OnQueryDragIcon)
// void OnDropFiles(HDROP)
#define ON_WM_DROPFILES() KX_WND_ENTRY(WM_DROPFILES, AfxSig_drop, void (CWnd::*)(HDROP), &ThisClass::OnDropFiles)
// BOOL OnCopyData(CWnd*, COPYDATASTRUCT*)
#define ON_WM_COPYDATA()                                                                                               \
    KX_WND_ENTRY(WM_COPYDATA, AfxSig_copydata, BOOL (CWnd::*)(CWnd*, COPYDATASTRUCT*), &ThisClass::OnCopyData)
// void OnTimer(UINT_PTR)
#define ON_WM_TIMER() KX_WND_ENTRY(WM_TIMER, AfxSig_v_up, void (CWnd::*)(UINT_PTR), &ThisClass::OnTimer)
// void OnEnterIdle(UINT, CWnd*)
#define ON_WM_ENTERIDLE()                                                                                              \
    KX_WND_ENTRY(WM_ENTERIDLE, AfxSig_enteridle, void (CWnd::*)(UINT, CWnd*), &ThisClass::OnEnterIdle)
// void OnSysCommand(UINT, LPARAM)
#define ON_WM_SYSCOMMAND()                                                                                             \
    KX_WND_ENTRY(WM_SYSCOMMAND, AfxSig_v_u_l, void (CWnd::*)(UINT, LPARAM), &ThisClass::OnSysCommand)

// Place, size, style
// void OnSize(UINT, int, int)
#define ON_WM_SIZE() KX_WND_ENTRY(WM_SIZE, AfxSig_v_u_i_i, void (CWnd::*)(UINT, int, int), &ThisClass::OnSize)
// void OnMove(int, int)
#define ON_WM_MOVE() KX_WND_ENTRY(WM_MOVE, AfxSig_v_i_i, void (CWnd::*)(int, int), &ThisClass::OnMove)
// void OnSizing(UINT, LPRECT)
#define ON_WM_SIZING() KX_WND_ENTRY(WM_SIZING, AfxSig_rect, void (CWnd::*)(UINT, LPRECT), &ThisClass::OnSizing)
// void OnMoving(UINT, LPRECT)
#define ON_WM_MOVING() KX_WND_ENTRY(WM_MOVING, AfxSig_rect, void (CWnd::*)(UINT, LPRECT), &ThisClass::OnMoving)
// void OnEnterSizeMove()
#define ON_WM_ENTERSIZEMOVE() KX_WND_ENTRY(WM_ENTERSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnEnterSizeMove)
// void OnExitSizeMove()
#define ON_WM_EXITSIZEMOVE() KX_WND_ENTRY(WM_EXITSIZEMOVE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnExitSizeMove)
// void OnWindowPosChanging(WINDOWPOS*)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    KX_WND_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_pos, void (CWnd::*)(WINDOWPOS*), &ThisClass::OnWindowPosChanging)
// void OnWindowPosChanged(WINDOWPOS*)
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    KX_WND_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_pos, void (CWnd::*)(WINDOWPOS*), &ThisClass::OnWindowPosChanged)
// void OnGetMinMaxInfo(MINMAXINFO*)
#define ON_WM_GETMINMAXINFO()                                                                                          \
    KX_WND_ENTRY(WM_GETMINMAXINFO, AfxSig_minmax, void (CWnd::*)(MINMAXINFO*), &ThisClass::OnGetMinMaxInfo)
// void OnStyleChanging(int, LPSTYLESTRUCT)
#define ON_WM_STYLECHANGING()                                                                                          \
    KX_WND_ENTRY(WM_STYLECHANGING, AfxSig_style, void (CWnd::*)(int, LPSTYLESTRUCT), &ThisClass::OnStyleChanging)
// void OnStyleChanged(int, LPSTYLESTRUCT)
#define ON_WM_STYLECHANGED()                                                                                           \
    KX_WND_ENTRY(WM_STYLECHANGED, AfxSig_style, void (CWnd::*)(int, LPSTYLESTRUCT), &ThisClass::OnStyleChanged)
// void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
#define ON_WM_NCCALCSIZE()                                                                                             \
    KX_WND_ENTRY(WM_NCCALCSIZE, AfxSig_calcsize, void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*), &ThisClass::OnNcCalcSize)
// LRESULT OnNcHitTest(CPoint)
#define ON_WM_NCHITTEST() KX_WND_ENTRY(WM_NCHITTEST, AfxSig_hittest, LRESULT (CWnd::*)(CPoint), &ThisClass::OnNcHitTest)
// BOOL OnNcActivate(BOOL)
#define ON_WM_NCACTIVATE() KX_WND_ENTRY(WM_NCACTIVATE, AfxSig_b_b, BOOL (CWnd::*)(BOOL), &ThisClass::OnNcActivate)

// Painting and the desktop
// void OnPaint()
#define ON_WM_PAINT() KX_WND_ENTRY(WM_PAINT, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnPaint)
// void OnNcPaint()
#define ON_WM_NCPAINT() KX_WND_ENTRY(WM_NCPAINT, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnNcPaint)
// BOOL OnEraseBkgnd(CDC*)
#define ON_WM_ERASEBKGND() KX_WND_ENTRY(WM_ERASEBKGND, AfxSig_b_D, BOOL (CWnd::*)(CDC*), &ThisClass::OnEraseBkgnd)
// void OnIconEraseBkgnd(CDC*)
#define ON_WM_ICONERASEBKGND()                                                                                         \
    KX_WND_ENTRY(WM_ICONERASEBKGND, AfxSig_v_D, void (CWnd::*)(CDC*), &ThisClass::OnIconEraseBkgnd)
// void OnSysColorChange()
#define ON_WM_SYSCOLORCHANGE()                                                                                         \
    KX_WND_ENTRY(WM_SYSCOLORCHANGE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnSysColorChange)
// void OnSettingChange(UINT, LPCTSTR)
#define ON_WM_SETTINGCHANGE()                                                                                          \
    KX_WND_ENTRY(WM_SETTINGCHANGE, AfxSig_setting, void (CWnd::*)(UINT, LPCTSTR), &ThisClass::OnSettingChange)
// void OnDevModeChange(LPTSTR)
#define ON_WM_DEVMODECHANGE()                                                                                          \
    KX_WND_ENTRY(WM_DEVMODECHANGE, AfxSig_v_s, void (CWnd::*)(LPTSTR), &ThisClass::OnDevModeChange)
// void OnFontChange()
#define ON_WM_FONTCHANGE() KX_WND_ENTRY(WM_FONTCHANGE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnFontChange)
// void OnTimeChange()
#define ON_WM_TIMECHANGE() KX_WND_ENTRY(WM_TIMECHANGE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnTimeChange)
// void OnPaletteChanged(CWnd*)
#define ON_WM_PALETTECHANGED()                                                                                         \
    KX_WND_ENTRY(WM_PALETTECHANGED, AfxSig_v_W, void (CWnd::*)(CWnd*), &ThisClass::OnPaletteChanged)
// void OnPaletteIsChanging(CWnd*)
#define ON_WM_PALETTEISCHANGING()                                                                                      \
    KX_WND_ENTRY(WM_PALETTEISCHANGING, AfxSig_v_W, void (CWnd::*)(CWnd*), &ThisClass::OnPaletteIsChanging)
// BOOL OnQueryNewPalette()
#define ON_WM_QUERYNEWPALETTE()                                                                                        \
    KX_WND_ENTRY(WM_QUERYNEWPALETTE, AfxSig_b_v, BOOL (CWnd::*)(), &ThisClass::OnQueryNewPalette)

// Keys
// void OnChar(UINT, UINT, UINT)
#define ON_WM_CHAR() KX_WND_ENTRY(WM_CHAR, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnChar)
// void OnDeadChar(UINT, UINT, UINT)
#define ON_WM_DEADCHAR() KX_WND_ENTRY(WM_DEADCHAR, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnDeadChar)
// void OnKeyDown(UINT, UINT, UINT)
#define ON_WM_KEYDOWN() KX_WND_ENTRY(WM_KEYDOWN, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyDown)
// void OnKeyUp(UINT, UINT, UINT)
#define ON_WM_KEYUP() KX_WND_ENTRY(WM_KEYUP, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyUp)
// void OnSysChar(UINT, UINT, UINT)
#define ON_WM_SYSCHAR() KX_WND_ENTRY(WM_SYSCHAR, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnSysChar)
// void OnSysDeadChar(UINT, UINT, UINT)
#define ON_WM_SYSDEADCHAR()                                                                                            \
    KX_WND_ENTRY(WM_SYSDEADCHAR, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnSysDeadChar)
// void OnSysKeyDown(UINT, UINT, UINT)
#define ON_WM_SYSKEYDOWN()                                                                                             \
    KX_WND_ENTRY(WM_SYSKEYDOWN, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnSysKeyDown)
// void OnSysKeyUp(UINT, UINT, UINT)
#define ON_WM_SYSKEYUP() KX_WND_ENTRY(WM_SYSKEYUP, AfxSig_key, void (CWnd::*)(UINT, UINT, UINT), &ThisClass::OnSysKeyUp)
// UINT OnGetDlgCode()
#define ON_WM_GETDLGCODE() KX_WND_ENTRY(WM_GETDLGCODE, AfxSig_u_v, UINT (CWnd::*)(), &ThisClass::OnGetDlgCode)

// Mouse
// void OnMouseMove(UINT, CPoint)
#define ON_WM_MOUSEMOVE()                                                                                              \
    KX_WND_ENTRY(WM_MOUSEMOVE, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMouseMove)
// void OnMouseHover(UINT, CPoint)
#define ON_WM_MOUSEHOVER()                                                                                             \
    KX_WND_ENTRY(WM_MOUSEHOVER, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMouseHover)
// void OnMouseLeave()
#define ON_WM_MOUSELEAVE() KX_WND_ENTRY(WM_MOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnMouseLeave)
// BOOL OnMouseWheel(UINT, short, CPoint)
#define ON_WM_MOUSEWHEEL()                                                                                             \
    KX_WND_ENTRY(WM_MOUSEWHEEL, AfxSig_wheel, BOOL (CWnd::*)(UINT, short, CPoint), &ThisClass::OnMouseWheel)
// void OnMouseHWheel(UINT, short, CPoint)
#define ON_WM_MOUSEHWHEEL()                                                                                            \
    KX_WND_ENTRY(WM_MOUSEHWHEEL, AfxSig_hwheel, void (CWnd::*)(UINT, short, CPoint), &ThisClass::OnMouseHWheel)
// void OnLButtonDown(UINT, CPoint)
#define ON_WM_LBUTTONDOWN()                                                                                            \
    KX_WND_ENTRY(WM_LBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDown)
// void OnLButtonUp(UINT, CPoint)
#define ON_WM_LBUTTONUP()                                                                                              \
    KX_WND_ENTRY(WM_LBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonUp)
// void OnLButtonDblClk(UINT, CPoint)
#define ON_WM_LBUTTONDBLCLK()                                                                                          \
    KX_WND_ENTRY(WM_LBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnLButtonDblClk)
// void OnRButtonDown(UINT, CPoint)
#define ON_WM_RBUTTONDOWN()                                                                                            \
    KX_WND_ENTRY(WM_RBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonDown)
// void OnRButtonUp(UINT, CPoint)
#define ON_WM_RBUTTONUP()                                                                                              \
    KX_WND_ENTRY(WM_RBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonUp)
// void OnRButtonDblClk(UINT, CPoint)
#define ON_WM_RBUTTONDBLCLK()                                                                                          \
    KX_WND_ENTRY(WM_RBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnRButtonDblClk)
// void OnMButtonDown(UINT, CPoint)
#define ON_WM_MBUTTONDOWN()                                                                                            \
    KX_WND_ENTRY(WM_MBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonDown)
// void OnMButtonUp(UINT, CPoint)
#define ON_WM_MBUTTONUP()                                                                                              \
    KX_WND_ENTRY(WM_MBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonUp)
// void OnMButtonDblClk(UINT, CPoint)
#define ON_WM_MBUTTONDBLCLK()                                                                                          \
    KX_WND_ENTRY(WM_MBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnMButtonDblClk)
// void OnXButtonDown(UINT, UINT, CPoint)
#define ON_WM_XBUTTONDOWN()                                                                                            \
    KX_WND_ENTRY(WM_XBUTTONDOWN, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), &ThisClass::OnXButtonDown)
// void OnXButtonUp(UINT, UINT, CPoint)
#define ON_WM_XBUTTONUP()                                                                                              \
    KX_WND_ENTRY(WM_XBUTTONUP, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), &ThisClass::OnXButtonUp)
// void OnXButtonDblClk(UINT, UINT, CPoint)
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    KX_WND_ENTRY(WM_XBUTTONDBLCLK, AfxSig_xbutton, void (CWnd::*)(UINT, UINT, CPoint), &ThisClass::OnXButtonDblClk)
// void OnNcMouseMove(UINT, CPoint)
#define ON_WM_NCMOUSEMOVE()                                                                                            \
    KX_WND_ENTRY(WM_NCMOUSEMOVE, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcMouseMove)
// void OnNcMouseHover(UINT, CPoint)
#define ON_WM_NCMOUSEHOVER()                                                                                           \
    KX_WND_ENTRY(WM_NCMOUSEHOVER, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcMouseHover)
// void OnNcMouseLeave()
#define ON_WM_NCMOUSELEAVE() KX_WND_ENTRY(WM_NCMOUSELEAVE, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnNcMouseLeave)
// void OnNcLButtonDown(UINT, CPoint)
#define ON_WM_NCLBUTTONDOWN()                                                                                          \
    KX_WND_ENTRY(WM_NCLBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcLButtonDown)
// void OnNcLButtonUp(UINT, CPoint)
#define ON_WM_NCLBUTTONUP()                                                                                            \
    KX_WND_ENTRY(WM_NCLBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcLButtonUp)
// void OnNcLButtonDblClk(UINT, CPoint)
#define ON_WM_NCLBUTTONDBLCLK()                                                                                        \
    KX_WND_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcLButtonDblClk)
// void OnNcRButtonDown(UINT, CPoint)
#define ON_WM_NCRBUTTONDOWN()                                                                                          \
    KX_WND_ENTRY(WM_NCRBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcRButtonDown)
// void OnNcRButtonUp(UINT, CPoint)
#define ON_WM_NCRBUTTONUP()                                                                                            \
    KX_WND_ENTRY(WM_NCRBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcRButtonUp)
// void OnNcRButtonDblClk(UINT, CPoint)
#define ON_WM_NCRBUTTONDBLCLK()                                                                                        \
    KX_WND_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcRButtonDblClk)
// void OnNcMButtonDown(UINT, CPoint)
#define ON_WM_NCMBUTTONDOWN()                                                                                          \
    KX_WND_ENTRY(WM_NCMBUTTONDOWN, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcMButtonDown)
// void OnNcMButtonUp(UINT, CPoint)
#define ON_WM_NCMBUTTONUP()                                                                                            \
    KX_WND_ENTRY(WM_NCMBUTTONUP, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcMButtonUp)
// void OnNcMButtonDblClk(UINT, CPoint)
#define ON_WM_NCMBUTTONDBLCLK()                                                                                        \
    KX_WND_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_v_u_p, void (CWnd::*)(UINT, CPoint), &ThisClass::OnNcMButtonDblClk)
// BOOL OnSetCursor(CWnd*, UINT, UINT)
#define ON_WM_SETCURSOR()                                                                                              \
    KX_WND_ENTRY(WM_SETCURSOR, AfxSig_setcursor, BOOL (CWnd::*)(CWnd*, UINT, UINT), &ThisClass::OnSetCursor)
// void OnCaptureChanged(CWnd*)
#define ON_WM_CAPTURECHANGED()                                                                                         \
    KX_WND_ENTRY(WM_CAPTURECHANGED, AfxSig_v_W_l, void (CWnd::*)(CWnd*), &ThisClass::OnCaptureChanged)
// void OnContextMenu(CWnd*, CPoint)
#define ON_WM_CONTEXTMENU()                                                                                            \
    KX_WND_ENTRY(WM_CONTEXTMENU, AfxSig_v_W_p, void (CWnd::*)(CWnd*, CPoint), &ThisClass::OnContextMenu)

// Menus
// void OnInitMenu(CMenu*)
#define ON_WM_INITMENU() KX_WND_ENTRY(WM_INITMENU, AfxSig_menu, void (CWnd::*)(CMenu*), &ThisClass::OnInitMenu)
// void OnInitMenuPopup(CMenu*, UINT, BOOL)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    KX_WND_ENTRY(WM_INITMENUPOPUP, AfxSig_menupopup, void (CWnd::*)(CMenu*, UINT, BOOL), &ThisClass::OnInitMenuPopup)
// void OnUnInitMenuPopup(CMenu*, UINT)
#define ON_WM_UNINITMENUPOPUP()                                                                                        \
    KX_WND_ENTRY(WM_UNINITMENUPOPUP, AfxSig_unmenu, void (CWnd::*)(CMenu*, UINT), &ThisClass::OnUnInitMenuPopup)
// void OnMenuSelect(UINT, UINT, HMENU)
#define ON_WM_MENUSELECT()                                                                                             \
    KX_WND_ENTRY(WM_MENUSELECT, AfxSig_menuselect, void (CWnd::*)(UINT, UINT, HMENU), &ThisClass::OnMenuSelect)
// LRESULT OnMenuChar(UINT, UINT, CMenu*)
#define ON_WM_MENUCHAR()                                                                                               \
    KX_WND_ENTRY(WM_MENUCHAR, AfxSig_menuchar, LRESULT (CWnd::*)(UINT, UINT, CMenu*), &ThisClass::OnMenuChar)
// void OnEnterMenuLoop(BOOL)
#define ON_WM_ENTERMENULOOP()                                                                                          \
    KX_WND_ENTRY(WM_ENTERMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), &ThisClass::OnEnterMenuLoop)
// void OnExitMenuLoop(BOOL)
#define ON_WM_EXITMENULOOP() KX_WND_ENTRY(WM_EXITMENULOOP, AfxSig_v_b, void (CWnd::*)(BOOL), &ThisClass::OnExitMenuLoop)

// Clipboard
// void OnDestroyClipboard()
#define ON_WM_DESTROYCLIPBOARD()                                                                                       \
    KX_WND_ENTRY(WM_DESTROYCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnDestroyClipboard)
// void OnDrawClipboard()
#define ON_WM_DRAWCLIPBOARD() KX_WND_ENTRY(WM_DRAWCLIPBOARD, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnDrawClipboard)
// void OnChangeCbChain(HWND, HWND)
#define ON_WM_CHANGECBCHAIN()                                                                                          \
    KX_WND_ENTRY(WM_CHANGECBCHAIN, AfxSig_v_hwnd_hwnd, void (CWnd::*)(HWND, HWND), &ThisClass::OnChangeCbChain)
// void OnRenderFormat(UINT)
#define ON_WM_RENDERFORMAT() KX_WND_ENTRY(WM_RENDERFORMAT, AfxSig_v_u, void (CWnd::*)(UINT), &ThisClass::OnRenderFormat)
// void OnRenderAllFormats()
#define ON_WM_RENDERALLFORMATS()                                                                                       \
    KX_WND_ENTRY(WM_RENDERALLFORMATS, AfxSig_v_v, void (CWnd::*)(), &ThisClass::OnRenderAllFormats)

// Controls, as the parent and as the control itself see them
// void OnHScroll(UINT, UINT, CScrollBar*)
#define ON_WM_HSCROLL()                                                                                                \
    KX_WND_ENTRY(WM_HSCROLL, AfxSig_scroll, void (CWnd::*)(UINT, UINT, CScrollBar*), &ThisClass::OnHScroll)
// void OnVScroll(UINT, UINT, CScrollBar*)
#define ON_WM_VSCROLL()                                                                                                \
    KX_WND_ENTRY(WM_VSCROLL, AfxSig_scroll, void (CWnd::*)(UINT, UINT, CScrollBar*), &ThisClass::OnVScroll)
// void HScroll(UINT, UINT)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_scroll_reflect, void(CWnd::*)(UINT, UINT), &ThisClass::HScroll)
// void VScroll(UINT, UINT)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_scroll_reflect, void(CWnd::*)(UINT, UINT), &ThisClass::VScroll)
// HBRUSH OnCtlColor(CDC*, CWnd*, UINT)
#define ON_WM_CTLCOLOR()                                                                                               \
    KX_WND_ENTRY(WM_CTLCOLOR, AfxSig_ctlcolor, HBRUSH (CWnd::*)(CDC*, CWnd*, UINT), &ThisClass::OnCtlColor)
// HBRUSH CtlColor(CDC*, UINT)
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_ctlcolor_reflect, HBRUSH(CWnd::*)(CDC*, UINT),                  \
                 &ThisClass::CtlColor)
// void OnDrawItem(int, LPDRAWITEMSTRUCT)
#define ON_WM_DRAWITEM()                                                                                               \
    KX_WND_ENTRY(WM_DRAWITEM, AfxSig_drawitem, void (CWnd::*)(int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)
// void DrawItem(LPDRAWITEMSTRUCT)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_drawitem_reflect, void(CWnd::*)(LPDRAWITEMSTRUCT),              \
                 &ThisClass::DrawItem)
// void OnMeasureItem(int, LPMEASUREITEMSTRUCT)
#define ON_WM_MEASUREITEM()                                                                                            \
    KX_WND_ENTRY(WM_MEASUREITEM, AfxSig_measureitem, void (CWnd::*)(int, LPMEASUREITEMSTRUCT),                         \
                 &ThisClass::OnMeasureItem)
// void MeasureItem(LPMEASUREITEMSTRUCT)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_measureitem_reflect, void(CWnd::*)(LPMEASUREITEMSTRUCT),     \
                 &ThisClass::MeasureItem)
// void OnDeleteItem(int, LPDELETEITEMSTRUCT)
#define ON_WM_DELETEITEM()                                                                                             \
    KX_WND_ENTRY(WM_DELETEITEM, AfxSig_deleteitem, void (CWnd::*)(int, LPDELETEITEMSTRUCT), &ThisClass::OnDeleteItem)
// void DeleteItem(LPDELETEITEMSTRUCT)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_deleteitem_reflect, void(CWnd::*)(LPDELETEITEMSTRUCT),        \
                 &ThisClass::DeleteItem)
// int OnCompareItem(int, LPCOMPAREITEMSTRUCT)
#define ON_WM_COMPAREITEM()                                                                                            \
    KX_WND_ENTRY(WM_COMPAREITEM, AfxSig_compareitem, int (CWnd::*)(int, LPCOMPAREITEMSTRUCT), &ThisClass::OnCompareItem)
// int CompareItem(LPCOMPAREITEMSTRUCT)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_compareitem_reflect, int(CWnd::*)(LPCOMPAREITEMSTRUCT),      \
                 &ThisClass::CompareItem)
// int OnCharToItem(UINT, CListBox*, UINT)
#define ON_WM_CHARTOITEM()                                                                                             \
    KX_WND_ENTRY(WM_CHARTOITEM, AfxSig_toitem, int (CWnd::*)(UINT, CListBox*, UINT), &ThisClass::OnCharToItem)
// int CharToItem(UINT, UINT)
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_CHARTOITEM, AfxSig_toitem_reflect, int(CWnd::*)(UINT, UINT),                     \
                 &ThisClass::CharToItem)
// int OnVKeyToItem(UINT, CListBox*, UINT)
#define ON_WM_VKEYTOITEM()                                                                                             \
    KX_WND_ENTRY(WM_VKEYTOITEM, AfxSig_toitem, int (CWnd::*)(UINT, CListBox*, UINT), &ThisClass::OnVKeyToItem)
// int VKeyToItem(UINT, UINT)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    KX_WND_ENTRY(WM_REFLECT_BASE + WM_VKEYTOITEM, AfxSig_toitem_reflect, int(CWnd::*)(UINT, UINT),                     \
                 &ThisClass::VKeyToItem)
