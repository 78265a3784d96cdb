// The kinds of handler signatures that a message map entry can name.
#pragma once

/// Says which type a handler has and how the message's words become its arguments.
/// Letters: v void, b BOOL, i int, u UINT, p point, W window, D device context; a named one serves one message.
enum AfxSig : unsigned
{
    AfxSig_end = 0,

    AfxSig_l_w_l, ///< LRESULT (WPARAM, LPARAM)
    AfxSig_v_w_l, ///< void (WPARAM, LPARAM), thread messages

    // plain
    AfxSig_v_v,     ///< void ()
    AfxSig_b_v,     ///< BOOL ()
    AfxSig_u_v,     ///< UINT ()
    AfxSig_hcur_v,  ///< HCURSOR ()
    AfxSig_v_b,     ///< void (BOOL)
    AfxSig_b_b,     ///< BOOL (BOOL)
    AfxSig_v_u,     ///< void (UINT)
    AfxSig_v_up,    ///< void (UINT_PTR)
    AfxSig_v_W,     ///< void (CWnd*) from wParam
    AfxSig_v_W_l,   ///< void (CWnd*) from lParam
    AfxSig_v_b_u,   ///< void (BOOL, UINT)
    AfxSig_v_b_dw,  ///< void (BOOL, DWORD)
    AfxSig_v_u_l,   ///< void (UINT, LPARAM)
    AfxSig_v_u_i_i, ///< void (UINT, int, int)
    AfxSig_v_i_i,   ///< void (int, int)
    AfxSig_b_D,     ///< BOOL (CDC*)
    AfxSig_v_D,     ///< void (CDC*)

    // windows
    AfxSig_i_cs,          ///< int (LPCREATESTRUCT)
    AfxSig_b_cs,          ///< BOOL (LPCREATESTRUCT)
    AfxSig_activate,      ///< void (UINT, CWnd*, BOOL)
    AfxSig_mouseactivate, ///< int (CWnd*, UINT, UINT)
    AfxSig_setcursor,     ///< BOOL (CWnd*, UINT, UINT)
    AfxSig_calcsize,      ///< void (BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_hittest,       ///< LRESULT (CPoint)
    AfxSig_pos,           ///< void (WINDOWPOS*)
    AfxSig_minmax,        ///< void (MINMAXINFO*)
    AfxSig_style,         ///< void (int, LPSTYLESTRUCT)
    AfxSig_rect,          ///< void (UINT, LPRECT)
    AfxSig_setting,       ///< void (UINT, LPCTSTR)
    AfxSig_v_s,           ///< void (LPTSTR)
    AfxSig_copydata,      ///< BOOL (CWnd*, COPYDATASTRUCT*)
    AfxSig_help,          ///< BOOL (HELPINFO*)
    AfxSig_drop,          ///< void (HDROP)
    AfxSig_parentnotify,  ///< void (UINT, LPARAM), message from the low word
    AfxSig_enteridle,     ///< void (UINT, CWnd*)
    AfxSig_v_hwnd_hwnd,   ///< void (HWND, HWND)

    // keys and mouse
    AfxSig_key,     ///< void (UINT, UINT, UINT)
    AfxSig_v_u_p,   ///< void (UINT, CPoint)
    AfxSig_wheel,   ///< BOOL (UINT, short, CPoint)
    AfxSig_hwheel,  ///< void (UINT, short, CPoint)
    AfxSig_xbutton, ///< void (UINT, UINT, CPoint)
    AfxSig_v_W_p,   ///< void (CWnd*, CPoint)

    // menus
    AfxSig_menu,       ///< void (CMenu*)
    AfxSig_menupopup,  ///< void (CMenu*, UINT, BOOL)
    AfxSig_unmenu,     ///< void (CMenu*, UINT)
    AfxSig_menuselect, ///< void (UINT, UINT, HMENU)
    AfxSig_menuchar,   ///< LRESULT (UINT, UINT, CMenu*)

    // controls
    AfxSig_scroll,              ///< void (UINT, UINT, CScrollBar*)
    AfxSig_scroll_reflect,      ///< void (UINT, UINT)
    AfxSig_ctlcolor,            ///< HBRUSH (CDC*, CWnd*, UINT)
    AfxSig_ctlcolor_reflect,    ///< HBRUSH (CDC*, UINT)
    AfxSig_drawitem,            ///< void (int, LPDRAWITEMSTRUCT)
    AfxSig_drawitem_reflect,    ///< void (LPDRAWITEMSTRUCT)
    AfxSig_measureitem,         ///< void (int, LPMEASUREITEMSTRUCT)
    AfxSig_measureitem_reflect, ///< void (LPMEASUREITEMSTRUCT)
    AfxSig_deleteitem,          ///< void (int, LPDELETEITEMSTRUCT)
    AfxSig_deleteitem_reflect,  ///< void (LPDELETEITEMSTRUCT)
    AfxSig_compareitem,         ///< int (int, LPCOMPAREITEMSTRUCT)
    AfxSig_compareitem_reflect, ///< int (LPCOMPAREITEMSTRUCT)
    AfxSig_toitem,              ///< int (UINT, CListBox*, UINT)
    AfxSig_toitem_reflect,      ///< int (UINT, UINT)

    // commands and notifications, routed by OnCmdMsg
    AfxSigCmd_v,        ///< void ()
    AfxSigCmd_b,        ///< BOOL ()
    AfxSigCmd_range,    ///< void (UINT)
    AfxSigCmd_ex,       ///< BOOL (UINT)
    AfxSigNotify_v,     ///< void (NMHDR*, LRESULT*)
    AfxSigNotify_b,     ///< BOOL (NMHDR*, LRESULT*)
    AfxSigNotify_range, ///< void (UINT, NMHDR*, LRESULT*)
    AfxSigNotify_ex,    ///< BOOL (UINT, NMHDR*, LRESULT*)
    AfxSigCmdUI,        ///< void (CCmdUI*)
};
