// Finds prompts by id and project, and puts filed texts into dialogs and menus.
#include "kitrel/KxPrompts.h"
#include "kitrel/KxPromptText.h"
#include "KitrelModule.h"
#include <vector>

namespace
{
constexpr wchar_t c_promptsType[] = L"PROMPTS";

KxPromptText textsOf(unsigned int templateId, const wchar_t* project)
{
    const FiledBytes bytes = findFiled(c_promptsType, templateId, project);
    return {bytes.data, bytes.size};
}

/// A text of the module's string table; false when it has none, or an empty one.
bool loadText(HMODULE module, unsigned int id, CString& out)
{
    const wchar_t* text = nullptr;
    // A buffer length of 0 asks for the address of the text in the resource, which has no terminator.
    const int length = LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0 || !text)
        return false;
    out = CString(text, length);
    return true;
}

std::vector<HWND> childrenOf(HWND window)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

void setItemText(HMENU menu, UINT position, const CString& text)
{
    CString copy = text;
    MENUITEMINFOW item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = copy.GetBuffer();
    SetMenuItemInfoW(menu, position, TRUE, &item);
    copy.ReleaseBuffer();
}

/// What is put into a menu.
struct MenuTexts
{
    KxPromptText filed;
    unsigned int ownId;   // the command that takes `ownText`
    CString ownText;      // empty: none
    const CString* popUp; // for the first pop-up; null once it is used
};

void applyTo(HMENU menu, MenuTexts& texts)
{
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i)
    {
        const UINT position = static_cast<UINT>(i);
        if (const HMENU below = GetSubMenu(menu, i))
        {
            if (texts.popUp)
                setItemText(menu, position, *texts.popUp);
            texts.popUp = nullptr;
            applyTo(below, texts);
            continue;
        }
        const UINT id = GetMenuItemID(menu, i);
        if (id == 0 || id == static_cast<UINT>(-1))
            continue; // a separator
        if (const CString* text = texts.filed.find(id))
            setItemText(menu, position, *text);
        else if (id == texts.ownId && !texts.ownText.IsEmpty())
            setItemText(menu, position, texts.ownText);
    }
}
} // namespace

CString KxPrompts::getPrompt(unsigned int id, const wchar_t* project, unsigned int flags)
{
    CString text;
    getPrompt(text, id, project, flags);
    return text;
}

int KxPrompts::getPrompt(CString& out, unsigned int id, const wchar_t* project, unsigned int /*flags*/)
{
    CString text; // not `out`, which may hold the name of the project
    const bool found =
        id <= 0xFFFF && visitPromptModules(project, [&](HMODULE module) { return loadText(module, id, text); });
    out = text;
    return found ? 1 : 0;
}

void KxPrompts::setDialogAndControlText(CWnd* dialog, unsigned int dialogId, const wchar_t* project)
{
    const HWND window = dialog ? dialog->GetSafeHwnd() : nullptr;
    if (!window)
        return;
    const KxPromptText texts = textsOf(dialogId, project);
    if (texts.count() == 0)
        return;
    if (const CString* caption = texts.find(KxPromptText::c_caption))
        SetWindowTextW(window, *caption);
    // The list is made first: a control tells its parent of a new text, and the parent may change the order.
    for (const HWND child : childrenOf(window))
        if (const CString* text = texts.find(static_cast<unsigned int>(GetDlgCtrlID(child))))
            SetWindowTextW(child, *text);
}

void KxPrompts::setMenuText(CMenu* menu, unsigned int menuId, const wchar_t* project)
{
    if (menu)
        setMenuText(menu->GetSafeHmenu(), menuId, project);
}

void KxPrompts::setMenuText(HMENU menu, unsigned int menuId, const wchar_t* project)
{
    if (!menu || !IsMenu(menu))
        return;
    MenuTexts texts = {textsOf(menuId, project), menuId, getPrompt(menuId, project, 0), nullptr};
    texts.popUp = texts.filed.find(KxPromptText::c_caption);
    applyTo(menu, texts);
}

void KxPrompts::AfxFormatString2(CString& out, unsigned int id, const wchar_t* project, const wchar_t* s1,
                                 const wchar_t* s2)
{
    const CString first(s1 ? s1 : L""), second(s2 ? s2 : L""); // copies: either may be the text of `out`
    const CString prompt = getPrompt(id, project, 0);
    out.Empty();
    for (int i = 0; i < prompt.GetLength(); ++i)
    {
        const wchar_t next = i + 1 < prompt.GetLength() ? prompt[i + 1] : L'\0';
        const bool place = prompt[i] == L'%' && (next == L'1' || next == L'2');
        if (!place)
        {
            out += prompt[i];
            continue;
        }
        out += next == L'1' ? first : second;
        ++i;
    }
}
