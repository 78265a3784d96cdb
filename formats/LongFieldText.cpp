// Texts that are too long for an edit field: it shows their beginning, and they count whole.
#include "LongFieldText.h"

#include <commctrl.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <new>
#include <string>

namespace
{
/// The text of a field that was too long for it; empty: what the field shows is all.
struct WholeText
{
    std::wstring text;
    std::size_t shown = 0;
};

constexpr UINT_PTR watchId = 1;

std::size_t shownLength(const std::wstring& text)
{
    const std::size_t most = LongFieldText::mostShown;
    return IS_HIGH_SURROGATE(text[most - 1]) ? most - 1 : most;
}

LRESULT setText(HWND field, WholeText& whole, const wchar_t* text)
{
    try
    {
        whole.text.assign(text == nullptr ? L"" : text);
        if (whole.text.size() > LongFieldText::mostShown)
        {
            whole.shown = shownLength(whole.text);
            const std::wstring beginning = whole.text.substr(0, whole.shown);
            return DefSubclassProc(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(beginning.c_str()));
        }
    }
    catch (const std::bad_alloc&)
    {
        whole.text.clear();
        return FALSE;
    }
    whole.text.clear();
    whole.text.shrink_to_fit();
    return DefSubclassProc(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

/// Whether the field still shows the beginning of its whole text.
bool showsBeginning(HWND field, const WholeText& whole)
{
    if (whole.text.empty() || DefSubclassProc(field, WM_GETTEXTLENGTH, 0, 0) != static_cast<LRESULT>(whole.shown))
        return false;
    wchar_t shown[LongFieldText::mostShown + 1] = {};
    DefSubclassProc(field, WM_GETTEXT, std::size(shown), reinterpret_cast<LPARAM>(shown));
    return whole.text.compare(0, whole.shown, shown) == 0;
}

LRESULT getText(const WholeText& whole, std::size_t room, wchar_t* text)
{
    if (room == 0 || text == nullptr)
        return 0;
    const std::size_t length = whole.text.copy(text, room - 1);
    text[length] = L'\0';
    return static_cast<LRESULT>(length);
}

LRESULT CALLBACK onMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data)
{
    auto* const whole = reinterpret_cast<WholeText*>(data);
    switch (message)
    {
    case WM_SETTEXT:
        return setText(field, *whole, reinterpret_cast<const wchar_t*>(lParam));
    case WM_GETTEXTLENGTH:
        if (showsBeginning(field, *whole))
            return static_cast<LRESULT>(whole->text.size());
        break;
    case WM_GETTEXT:
        if (showsBeginning(field, *whole))
            return getText(*whole, wParam, reinterpret_cast<wchar_t*>(lParam));
        break;
    case WM_NCDESTROY:
        ::RemoveWindowSubclass(field, onMessage, id);
        delete whole;
        break;
    default:
        break;
    }
    return DefSubclassProc(field, message, wParam, lParam);
}
} // namespace

void LongFieldText::Watch(HWND field)
{
    auto whole = std::make_unique<WholeText>();
    if (::SetWindowSubclass(field, onMessage, watchId, reinterpret_cast<DWORD_PTR>(whole.get())))
        whole.release(); // the field has it now
}
