// Finds help texts by help id and shows them.
#include "kitrel/KxHelpTools.h"
#include "kitrel/KxPromptText.h"
#include "KitrelModule.h"
#include "KxHelpTip.h"

namespace
{
constexpr wchar_t c_helpType[] = L"HELPTEXTS";
constexpr unsigned int c_dialogHelp = 0x20000; // the framework's base of the help ids of dialogs

HWND controlOf(const HELPINFO& info)
{
    const HWND control = info.iContextType == HELPINFO_WINDOW ? static_cast<HWND>(info.hItemHandle) : nullptr;
    return control && IsWindow(control) ? control : nullptr;
}

/// The text that the windows from `control` out to `owner` have filed for the control; the first one counts.
CString textAround(HWND control, HWND owner, const wchar_t* project)
{
    const auto controlId = static_cast<unsigned int>(GetDlgCtrlID(control));
    for (HWND window = control; window; window = GetAncestor(window, GA_PARENT))
    {
        const DWORD id = GetWindowContextHelpId(window);
        CString text = id ? CKxHelpTools::GetHelpText(id, controlId, project) : CString();
        if (!text.IsEmpty() || window == owner)
            return text;
    }
    return {};
}

RECT rectangleAbout(HWND control, POINT mouse)
{
    RECT r = {mouse.x, mouse.y, mouse.x + 1, mouse.y + 1};
    if (control)
        GetWindowRect(control, &r);
    return r;
}
} // namespace

BOOL CKxHelpTools::DisplayWhatsThis(CWnd* owner, HELPINFO* info, unsigned int contextId, unsigned int /*flags*/,
                                    const wchar_t* project)
{
    const HWND window = owner ? owner->GetSafeHwnd() : nullptr;
    if (!window || !info || info->cbSize < sizeof *info)
        return FALSE;
    const HWND control = controlOf(*info);
    const CString text = contextId ? GetHelpText(contextId, static_cast<unsigned int>(info->iCtrlId), project)
                                   : textAround(control ? control : window, window, project);
    if (text.IsEmpty())
        return FALSE;
    return CKxHelpTip::show(window, text, rectangleAbout(control, info->MousePos)) ? TRUE : FALSE;
}

BOOL CKxHelpTools::Help(unsigned int command, DWORD_PTR topic)
{
    if (command == HELP_QUIT)
    {
        CKxHelpTip::hide();
        return TRUE;
    }
    const HWND owner = GetActiveWindow();
    if ((command != HELP_CONTEXT && command != HELP_CONTEXTPOPUP) || !owner || topic > 0xFFFFFFFFU)
        return FALSE;
    const CString text = GetHelpText(static_cast<unsigned int>(topic), 0, nullptr);
    if (text.IsEmpty())
        return FALSE;
    POINT mouse = {};
    GetCursorPos(&mouse);
    return CKxHelpTip::show(owner, text, rectangleAbout(GetFocus(), mouse)) ? TRUE : FALSE;
}

CString CKxHelpTools::GetHelpText(unsigned int contextId, unsigned int controlId, const wchar_t* project)
{
    const unsigned int id = contextId >> 16 == c_dialogHelp >> 16 ? contextId & 0xFFFFU : contextId;
    const FiledBytes bytes = findFiled(c_helpType, id, project);
    const KxPromptText texts(bytes.data, bytes.size);
    const CString* text = controlId ? texts.find(controlId) : nullptr;
    if (!text)
        text = texts.find(KxPromptText::c_caption);
    return text ? *text : CString();
}

HWND CKxHelpTools::GetTipWindow()
{
    return CKxHelpTip::window();
}
