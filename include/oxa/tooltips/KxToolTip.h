// CKxToolTip: the standard tool tip control with two short ways to add a tool.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "oxa/Export.h"

/// A thin layer on the standard tool tip control. Create it with `Create(parent, style)` as its base,
/// then add tools. The tools subclass their windows, so nothing has to be relayed.
class OXA_API CKxToolTip : public CToolTipCtrl
{
public:
    CKxToolTip();
    ~CKxToolTip() override;

    /// Makes `text` the tip of a whole window (flags TTF_IDISHWND and TTF_SUBCLASS).
    /// @param window the window, not owned; null gives 0
    /// @param text   copied by the control, up to 32,766 characters; LPSTR_TEXTCALLBACK asks the parent by TTN_NEEDTEXT
    /// @return 1, or 0 when the tool was not added or this control was not created
    BOOL AddWindowTool(CWnd* window, const wchar_t* text);

    /// Makes `text` the tip of a part of a window (flag TTF_SUBCLASS).
    /// @param window the window, not owned; null gives 0
    /// @param text   copied by the control, up to 32,766 characters; LPSTR_TEXTCALLBACK asks the parent by TTN_NEEDTEXT
    /// @param rect   the part, in pixels in client coordinates of `window`; null gives 0
    /// @param id     the id of the tool, unique within `window`
    /// @return 1, or 0 when the tool was not added or this control was not created
    BOOL AddRectTool(CWnd* window, const wchar_t* text, const RECT* rect, unsigned int id);
};
