// How a tool is described to the standard tool tip control.
#include "oxa/tooltips/KxToolTip.h"

namespace
{
TOOLINFOW describe(CWnd& window, const wchar_t* text, UINT flags)
{
    TOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    static_assert(sizeof tool == 72, "the size that the control is told");
    tool.uFlags = flags;
    tool.hwnd = window.GetSafeHwnd();
    tool.hinst = AfxGetInstanceHandle();
    tool.lpszText = const_cast<wchar_t*>(text); // only read by TTM_ADDTOOLW
    return tool;
}

BOOL add(CWnd& control, TOOLINFOW& tool)
{
    if (control.GetSafeHwnd() == nullptr)
    {
        return FALSE;
    }
    return static_cast<BOOL>(control.SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)));
}
} // namespace

BOOL CKxToolTip::AddWindowTool(CWnd* window, const wchar_t* text)
{
    if (window == nullptr)
    {
        return FALSE;
    }
    TOOLINFOW tool = describe(*window, text, TTF_IDISHWND | TTF_SUBCLASS);
    tool.uId = reinterpret_cast<UINT_PTR>(tool.hwnd);
    return add(*this, tool);
}

BOOL CKxToolTip::AddRectTool(CWnd* window, const wchar_t* text, const RECT* rect, unsigned int id)
{
    if (window == nullptr || rect == nullptr)
    {
        return FALSE;
    }
    TOOLINFOW tool = describe(*window, text, TTF_SUBCLASS);
    tool.uId = id;
    tool.rect = *rect;
    return add(*this, tool);
}
