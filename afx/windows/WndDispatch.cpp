// A window message on its way to its handler: the search in the maps, and the words of the message as arguments.
#include <afxwin.h>

#include <windowsx.h>

#include "StillThere.h"
#include "TempWnd.h"

namespace
{
/// One message and the handler that was found for it.
class Dispatch
{
public:
    Dispatch(CWnd& wnd, AFX_PMSG handler, WPARAM wParam, LPARAM lParam)
        : m_wnd(wnd), m_handler(handler), m_wParam(wParam), m_lParam(lParam)
    {
    }

    bool plain(UINT_PTR sig);
    bool window(UINT_PTR sig);
    bool input(UINT_PTR sig);
    bool menu(UINT_PTR sig);
    bool control(UINT_PTR sig);
    bool reflected(UINT_PTR sig);

    LRESULT result = 0;

private:
    template <class Result, class... Args> Result call(Args... args)
    {
        using Typed = Result (CWnd::*)(Args...);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
        return (m_wnd.*reinterpret_cast<Typed>(m_handler))(args...);
#pragma GCC diagnostic pop
    }
    template <class... Args> bool run(Args... args)
    {
        call<void>(args...);
        return true;
    }
    template <class Result, class... Args> bool answer(Args... args)
    {
        if constexpr (std::is_pointer_v<Result>)
            result = reinterpret_cast<LRESULT>(call<Result>(args...));
        else
            result = static_cast<LRESULT>(call<Result>(args...));
        return true;
    }

    UINT low() const
    {
        return LOWORD(m_lParam);
    }
    UINT high() const
    {
        return HIWORD(m_lParam);
    }
    UINT word() const
    {
        return static_cast<UINT>(m_wParam);
    }
    CPoint point() const
    {
        return {GET_X_LPARAM(m_lParam), GET_Y_LPARAM(m_lParam)};
    }
    template <class T> T* as() const
    {
        return reinterpret_cast<T*>(m_lParam);
    }
    CWnd* wndOf(LPARAM handle) const
    {
        return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
    }
    CWnd* wndOf(WPARAM handle) const
    {
        return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
    }
    CMenu* menuOf(WPARAM handle) const
    {
        return CMenu::FromHandle(reinterpret_cast<HMENU>(handle));
    }
    CDC* dcOf(WPARAM handle) const
    {
        return CDC::FromHandle(reinterpret_cast<HDC>(handle));
    }

    CWnd& m_wnd;
    AFX_PMSG m_handler;
    WPARAM m_wParam;
    LPARAM m_lParam;
};

bool Dispatch::plain(UINT_PTR sig)
{
    switch (sig)
    {
    case AfxSig_l_w_l:
        return answer<LRESULT>(m_wParam, m_lParam);
    case AfxSig_v_v:
        return run();
    case AfxSig_b_v:
        return answer<BOOL>();
    case AfxSig_u_v:
        return answer<UINT>();
    case AfxSig_hcur_v:
        return answer<HCURSOR>();
    case AfxSig_v_b:
        return run(static_cast<BOOL>(m_wParam));
    case AfxSig_b_b:
        return answer<BOOL>(static_cast<BOOL>(m_wParam));
    case AfxSig_v_u:
        return run(word());
    case AfxSig_v_up:
        return run(static_cast<UINT_PTR>(m_wParam));
    case AfxSig_v_W:
        return run(wndOf(m_wParam));
    case AfxSig_v_W_l:
        return run(wndOf(m_lParam));
    case AfxSig_v_b_u:
        return run(static_cast<BOOL>(m_wParam), static_cast<UINT>(m_lParam));
    case AfxSig_v_b_dw:
        return run(static_cast<BOOL>(m_wParam), static_cast<DWORD>(m_lParam));
    case AfxSig_v_u_l:
        return run(word(), m_lParam);
    case AfxSig_v_u_i_i:
        return run(word(), static_cast<int>(low()), static_cast<int>(high()));
    case AfxSig_v_i_i:
        return run(GET_X_LPARAM(m_lParam), GET_Y_LPARAM(m_lParam));
    case AfxSig_b_D:
        return answer<BOOL>(dcOf(m_wParam));
    case AfxSig_v_D:
        return run(dcOf(m_wParam));
    default:
        return false;
    }
}

bool Dispatch::window(UINT_PTR sig)
{
    switch (sig)
    {
    case AfxSig_i_cs:
        return answer<int>(as<CREATESTRUCT>());
    case AfxSig_b_cs:
        return answer<BOOL>(as<CREATESTRUCT>());
    case AfxSig_activate:
        return run(static_cast<UINT>(LOWORD(m_wParam)), wndOf(m_lParam), static_cast<BOOL>(HIWORD(m_wParam)));
    case AfxSig_mouseactivate:
        return answer<int>(wndOf(m_wParam), low(), high());
    case AfxSig_setcursor:
        return answer<BOOL>(wndOf(m_wParam), low(), high());
    case AfxSig_calcsize:
        return run(static_cast<BOOL>(m_wParam), as<NCCALCSIZE_PARAMS>());
    case AfxSig_hittest:
        return answer<LRESULT>(point());
    case AfxSig_pos:
        return run(as<WINDOWPOS>());
    case AfxSig_minmax:
        return run(as<MINMAXINFO>());
    case AfxSig_style:
        return run(static_cast<int>(m_wParam), as<STYLESTRUCT>());
    case AfxSig_rect:
        result = TRUE;
        return run(word(), as<RECT>());
    case AfxSig_setting:
        return run(word(), static_cast<LPCTSTR>(as<TCHAR>()));
    case AfxSig_v_s:
        return run(as<TCHAR>());
    case AfxSig_copydata:
        return answer<BOOL>(wndOf(m_wParam), as<COPYDATASTRUCT>());
    case AfxSig_help:
        return answer<BOOL>(as<HELPINFO>());
    case AfxSig_drop:
        return run(reinterpret_cast<HDROP>(m_wParam));
    case AfxSig_parentnotify:
        return run(static_cast<UINT>(LOWORD(m_wParam)), m_lParam);
    case AfxSig_enteridle:
        return run(word(), wndOf(m_lParam));
    case AfxSig_v_hwnd_hwnd:
        return run(reinterpret_cast<HWND>(m_wParam), reinterpret_cast<HWND>(m_lParam));
    default:
        return false;
    }
}

bool Dispatch::input(UINT_PTR sig)
{
    switch (sig)
    {
    case AfxSig_key:
        return run(word(), low(), high());
    case AfxSig_v_u_p:
        return run(word(), point());
    case AfxSig_wheel:
        return answer<BOOL>(static_cast<UINT>(LOWORD(m_wParam)), static_cast<short>(HIWORD(m_wParam)), point());
    case AfxSig_hwheel:
        return run(static_cast<UINT>(LOWORD(m_wParam)), static_cast<short>(HIWORD(m_wParam)), point());
    case AfxSig_xbutton:
        result = TRUE;
        return run(static_cast<UINT>(LOWORD(m_wParam)), static_cast<UINT>(HIWORD(m_wParam)), point());
    case AfxSig_v_W_p:
        return run(wndOf(m_wParam), point());
    default:
        return false;
    }
}

bool Dispatch::menu(UINT_PTR sig)
{
    switch (sig)
    {
    case AfxSig_menu:
        return run(menuOf(m_wParam));
    case AfxSig_menupopup:
        return run(menuOf(m_wParam), low(), static_cast<BOOL>(high()));
    case AfxSig_unmenu:
        return run(menuOf(m_wParam), high());
    case AfxSig_menuselect:
        return run(static_cast<UINT>(LOWORD(m_wParam)), static_cast<UINT>(HIWORD(m_wParam)),
                   reinterpret_cast<HMENU>(m_lParam));
    case AfxSig_menuchar:
        return answer<LRESULT>(static_cast<UINT>(LOWORD(m_wParam)), static_cast<UINT>(HIWORD(m_wParam)),
                               menuOf(static_cast<WPARAM>(m_lParam)));
    default:
        return false;
    }
}

bool Dispatch::control(UINT_PTR sig)
{
    const UINT code = LOWORD(m_wParam);
    const UINT pos = HIWORD(m_wParam);
    switch (sig)
    {
    case AfxSig_scroll:
        return run(code, pos, kxWndFromHandle<CScrollBar>(reinterpret_cast<HWND>(m_lParam)));
    case AfxSig_ctlcolor:
    {
        const auto* color = as<AFX_CTLCOLOR>();
        return color != nullptr &&
               answer<HBRUSH>(CDC::FromHandle(color->hDC), CWnd::FromHandle(color->hWnd), color->nCtlType);
    }
    case AfxSig_drawitem:
        result = TRUE;
        return run(static_cast<int>(m_wParam), as<DRAWITEMSTRUCT>());
    case AfxSig_measureitem:
        result = TRUE;
        return run(static_cast<int>(m_wParam), as<MEASUREITEMSTRUCT>());
    case AfxSig_deleteitem:
        result = TRUE;
        return run(static_cast<int>(m_wParam), as<DELETEITEMSTRUCT>());
    case AfxSig_compareitem:
        return answer<int>(static_cast<int>(m_wParam), as<COMPAREITEMSTRUCT>());
    case AfxSig_toitem:
        return answer<int>(code, kxWndFromHandle<CListBox>(reinterpret_cast<HWND>(m_lParam)), pos);
    default:
        return false;
    }
}

bool Dispatch::reflected(UINT_PTR sig)
{
    const UINT code = LOWORD(m_wParam);
    const UINT pos = HIWORD(m_wParam);
    switch (sig)
    {
    case AfxSig_scroll_reflect:
        return run(code, pos);
    case AfxSig_ctlcolor_reflect:
    {
        const auto* color = as<AFX_CTLCOLOR>();
        return color != nullptr && answer<HBRUSH>(CDC::FromHandle(color->hDC), color->nCtlType);
    }
    case AfxSig_drawitem_reflect:
        result = TRUE;
        return run(as<DRAWITEMSTRUCT>());
    case AfxSig_measureitem_reflect:
        result = TRUE;
        return run(as<MEASUREITEMSTRUCT>());
    case AfxSig_deleteitem_reflect:
        result = TRUE;
        return run(as<DELETEITEMSTRUCT>());
    case AfxSig_compareitem_reflect:
        return answer<int>(as<COMPAREITEMSTRUCT>());
    case AfxSig_toitem_reflect:
        return answer<int>(code, pos);
    default:
        return false;
    }
}

// A registered message has its number in a variable that the entry names.
const AFX_MSGMAP_ENTRY* findRegistered(const AFX_MSGMAP_ENTRY* entries, UINT message)
{
    for (; entries->nSig != AfxSig_end; ++entries)
        if (entries->nMessage == 0xC000 && entries->nCode == 0 &&
            *reinterpret_cast<const UINT*>(entries->nSig) == message)
            return entries;
    return nullptr;
}

const AFX_MSGMAP_ENTRY* findEntry(const AFX_MSGMAP* map, UINT message)
{
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
    {
        const AFX_MSGMAP_ENTRY* entry = message >= 0xC000 ? findRegistered(map->lpEntries, message)
                                                          : AfxFindMessageEntry(map->lpEntries, message, 0, 0);
        if (entry != nullptr)
            return entry;
    }
    return nullptr;
}
} // namespace

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    LRESULT answer = 0;
    if (message == WM_COMMAND || message == WM_NOTIFY)
    {
        const kx::StillThere here(*this);
        BOOL taken = FALSE;
        if (message == WM_COMMAND)
        {
            taken = OnCommand(wParam, lParam);
            answer = taken ? 1 : 0;
        }
        else if (const auto* header = reinterpret_cast<const NMHDR*>(lParam); header != nullptr && header->hwndFrom)
        {
            taken = OnNotify(wParam, lParam, &answer);
        }
        if (!taken && here) // a window that has gone asks for nothing more
            return FALSE;
    }
    else
    {
        const AFX_MSGMAP_ENTRY* entry = findEntry(GetMessageMap(), message);
        if (entry == nullptr || !DispatchWndMsg(*entry, message, wParam, lParam, &answer))
            return FALSE;
    }
    if (result != nullptr)
        *result = answer;
    return TRUE;
}

BOOL CWnd::DispatchWndMsg(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const UINT_PTR sig = message >= 0xC000 ? static_cast<UINT_PTR>(AfxSig_l_w_l) : entry.nSig;
    Dispatch dispatch(*this, entry.pfn, wParam, lParam);
    const bool done = dispatch.plain(sig) || dispatch.window(sig) || dispatch.input(sig) || dispatch.menu(sig) ||
                      dispatch.control(sig) || dispatch.reflected(sig);
    *result = dispatch.result;
    return done;
}
