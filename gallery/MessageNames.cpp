// Names of control messages, by number and by the class of the control that sent a command.
#include "MessageNames.h"
#include <afxcmn.h>
#include <array>
#include <cwchar>

namespace
{
struct Name
{
    UINT number;
    const wchar_t* text;
};

constexpr std::array ownMessages = {
    Name{0xA5B, L"WM_KX_UNIT_FOCUS"},           Name{0xA5C, L"WM_KX_UNIT_VALIDATED"},
    Name{0x405, L"WM_KX_BUTTONCOMBO_SELECT"},   Name{0x433, L"WM_KX_TREELIST_CLICK_BEFORE"},
    Name{0x434, L"WM_KX_TREELIST_CLICK_AFTER"}, Name{0x435, L"WM_KX_TREELIST_EDIT_BEFORE"},
    Name{0x40E, L"WM_KX_PICK_OTHER_COLOR"},     Name{0x436, L"WM_KX_TREELIST_EDIT_AFTER"},
    Name{0x406, L"WM_KX_SMART_ADDING"},         Name{0x407, L"WM_KX_SMART_SELCHANGE"},
    Name{0x408, L"WM_KX_SMART_SELENDOK"},       Name{0x409, L"WM_KX_SMART_EDITUPDATE"},
};

constexpr std::array comboCodes = {
    Name{CBN_SELCHANGE, L"CBN_SELCHANGE"},   Name{CBN_DBLCLK, L"CBN_DBLCLK"},
    Name{CBN_SETFOCUS, L"CBN_SETFOCUS"},     Name{CBN_KILLFOCUS, L"CBN_KILLFOCUS"},
    Name{CBN_EDITCHANGE, L"CBN_EDITCHANGE"}, Name{CBN_EDITUPDATE, L"CBN_EDITUPDATE"},
    Name{CBN_DROPDOWN, L"CBN_DROPDOWN"},     Name{CBN_CLOSEUP, L"CBN_CLOSEUP"},
    Name{CBN_SELENDOK, L"CBN_SELENDOK"},     Name{CBN_SELENDCANCEL, L"CBN_SELENDCANCEL"},
};
constexpr std::array editCodes = {
    Name{EN_SETFOCUS, L"EN_SETFOCUS"}, Name{EN_KILLFOCUS, L"EN_KILLFOCUS"}, Name{EN_CHANGE, L"EN_CHANGE"},
    Name{EN_UPDATE, L"EN_UPDATE"},     Name{EN_MAXTEXT, L"EN_MAXTEXT"},
};
constexpr std::array buttonCodes = {
    Name{BN_CLICKED, L"BN_CLICKED"},
    Name{BN_DOUBLECLICKED, L"BN_DOUBLECLICKED"},
    Name{BN_SETFOCUS, L"BN_SETFOCUS"},
    Name{BN_KILLFOCUS, L"BN_KILLFOCUS"},
};
constexpr std::array listCodes = {
    Name{LBN_SELCHANGE, L"LBN_SELCHANGE"},
    Name{LBN_DBLCLK, L"LBN_DBLCLK"},
    Name{LBN_SETFOCUS, L"LBN_SETFOCUS"},
    Name{LBN_KILLFOCUS, L"LBN_KILLFOCUS"},
};

constexpr std::array notifyCodes = {
    Name{static_cast<UINT>(NM_CLICK), L"NM_CLICK"},
    Name{static_cast<UINT>(NM_DBLCLK), L"NM_DBLCLK"},
    Name{static_cast<UINT>(NM_SETFOCUS), L"NM_SETFOCUS"},
    Name{static_cast<UINT>(NM_KILLFOCUS), L"NM_KILLFOCUS"},
    Name{static_cast<UINT>(TTN_SHOW), L"TTN_SHOW"},
    Name{static_cast<UINT>(TTN_POP), L"TTN_POP"},
    Name{static_cast<UINT>(TTN_NEEDTEXTW), L"TTN_NEEDTEXT"},
    Name{static_cast<UINT>(TVN_SELCHANGINGW), L"TVN_SELCHANGING"},
    Name{static_cast<UINT>(TVN_SELCHANGEDW), L"TVN_SELCHANGED"},
    Name{static_cast<UINT>(TVN_ITEMEXPANDINGW), L"TVN_ITEMEXPANDING"},
    Name{static_cast<UINT>(TVN_ITEMEXPANDEDW), L"TVN_ITEMEXPANDED"},
    Name{static_cast<UINT>(TVN_BEGINLABELEDITW), L"TVN_BEGINLABELEDIT"},
    Name{static_cast<UINT>(TVN_KEYDOWN), L"TVN_KEYDOWN"},
    Name{static_cast<UINT>(HDN_ITEMCHANGINGW), L"HDN_ITEMCHANGING"},
    Name{static_cast<UINT>(HDN_BEGINTRACKW), L"HDN_BEGINTRACK"},
    Name{static_cast<UINT>(HDN_TRACKW), L"HDN_TRACK"},
    Name{static_cast<UINT>(HDN_ENDTRACKW), L"HDN_ENDTRACK"},
    Name{static_cast<UINT>(NM_RELEASEDCAPTURE), L"NM_RELEASEDCAPTURE"},
    Name{static_cast<UINT>(CBEN_INSERTITEM), L"CBEN_INSERTITEM"},
    Name{static_cast<UINT>(CBEN_DELETEITEM), L"CBEN_DELETEITEM"},
    Name{static_cast<UINT>(CBEN_BEGINEDIT), L"CBEN_BEGINEDIT"},
    Name{static_cast<UINT>(CBEN_ENDEDITA), L"CBEN_ENDEDIT"},
    Name{static_cast<UINT>(CBEN_ENDEDITW), L"CBEN_ENDEDIT"},
    Name{static_cast<UINT>(CBEN_DRAGBEGINA), L"CBEN_DRAGBEGIN"},
    Name{static_cast<UINT>(CBEN_DRAGBEGINW), L"CBEN_DRAGBEGIN"},
    Name{static_cast<UINT>(LVN_ITEMCHANGING), L"LVN_ITEMCHANGING"},
    Name{static_cast<UINT>(LVN_ITEMCHANGED), L"LVN_ITEMCHANGED"},
    Name{static_cast<UINT>(LVN_DELETEALLITEMS), L"LVN_DELETEALLITEMS"},
    Name{static_cast<UINT>(LVN_KEYDOWN), L"LVN_KEYDOWN"},
};

template <class Table> CString find(const Table& table, UINT number, const wchar_t* kind)
{
    for (const Name& name : table)
        if (name.number == number)
            return name.text;
    CString text;
    text.Format(L"%s 0x%X", kind, number);
    return text;
}

CString nameOfCommand(UINT code, HWND control)
{
    wchar_t name[32] = L"";
    GetClassNameW(control, name, 32);
    if (_wcsicmp(name, L"ComboBox") == 0 || _wcsicmp(name, WC_COMBOBOXEX) == 0)
        return find(comboCodes, code, L"CBN");
    if (_wcsicmp(name, L"Edit") == 0)
        return find(editCodes, code, L"EN");
    if (_wcsicmp(name, L"Button") == 0)
        return find(buttonCodes, code, L"BN");
    if (_wcsicmp(name, L"ListBox") == 0)
        return find(listCodes, code, L"LBN");
    return find(std::array<Name, 0>{}, code, L"WM_COMMAND");
}

/// What controls ask whenever they paint is no news.
bool isPainting(UINT code)
{
    return code == static_cast<UINT>(NM_CUSTOMDRAW) || code == static_cast<UINT>(LVN_GETDISPINFOW) ||
           code == static_cast<UINT>(CBEN_GETDISPINFOW) || code == static_cast<UINT>(LVN_ODCACHEHINT) ||
           code == static_cast<UINT>(NM_SETCURSOR) || code == static_cast<UINT>(TVN_DELETEITEMW); // one a row
}
} // namespace

bool isControlMessage(UINT message, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return lParam != 0;
    if (message == WM_NOTIFY)
        return lParam != 0 && !isPainting(reinterpret_cast<const NMHDR*>(lParam)->code);
    return message == WM_HSCROLL || message == WM_VSCROLL ||
           (message >= WM_USER && message < 0xC000 && message != WM_USER &&
            message != WM_USER + 1); // not the dialog's own
}

CString nameOfControlMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return nameOfCommand(HIWORD(wParam), reinterpret_cast<HWND>(lParam));
    if (message == WM_NOTIFY)
        return find(notifyCodes, reinterpret_cast<const NMHDR*>(lParam)->code, L"WM_NOTIFY");
    return find(ownMessages, message, L"message");
}
