// How a tool is described to the standard tool tip control.
#include "oxa/tooltips/KxToolTip.h"

#include <cwchar>

namespace
{
// The control answers with whole texts, into buffers whose size it is not told; it shows far fewer characters.
constexpr size_t longestText = 0x8000 - 2;

bool isText(const wchar_t* text)
{
    return text != LPSTR_TEXTCALLBACKW && !IS_INTRESOURCE(text);
}

TOOLINFOW describe(CWnd& window, UINT flags)
{
    TOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    static_assert(sizeof tool == 72, "the size that the control is told");
    tool.uFlags = flags;
    tool.hwnd = window.GetSafeHwnd();
    tool.hinst = AfxGetInstanceHandle();
    return tool;
}

BOOL add(CWnd& control, TOOLINFOW& tool, const wchar_t* text)
{
    if (control.GetSafeHwnd() == nullptr)
        return FALSE;
    CString cut;
    if (isText(text) && ::wcsnlen(text, longestText + 1) > longestText)
    {
        cut = CString(text, static_cast<int>(longestText));
        text = cut;
    }
    tool.lpszText = const_cast<wchar_t*>(text); // only read by TTM_ADDTOOLW
    return static_cast<BOOL>(control.SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}
} // namespace

// Defined here, so that the module exports them.
CKxToolTip::CKxToolTip() = default;
CKxToolTip::~CKxToolTip() = default;

BOOL CKxToolTip::AddWindowTool(CWnd* window, const wchar_t* text)
{
    if (window == nullptr)
        return FALSE;
    TOOLINFOW tool = describe(*window, TTF_IDISHWND | TTF_SUBCLASS);
    tool.uId = reinterpret_cast<UINT_PTR>(tool.hwnd);
    return add(*this, tool, text);
}

BOOL CKxToolTip::AddRectTool(CWnd* window, const wchar_t* text, const RECT* rect, unsigned int id)
{
    if (window == nullptr || rect == nullptr)
        return FALSE;
    TOOLINFOW tool = describe(*window, TTF_SUBCLASS);
    tool.uId = id;
    tool.rect = *rect;
    return add(*this, tool, text);
}
