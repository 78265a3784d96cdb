// Texts that are too long for an edit field: it shows their beginning, and they count whole.
#include "LongFieldText.h"

#include <commctrl.h>

#include <iterator>
#include <memory>
#include <new>
#include <string>

#include "LongText.h"

namespace
{
constexpr UINT_PTR watchId = 1;

LRESULT setText(HWND field, LongText& whole, const wchar_t* text)
{
    try
    {
        if (whole.Set(text == nullptr ? L"" : text))
        {
            const std::wstring beginning(whole.Beginning());
            return DefSubclassProc(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(beginning.c_str()));
        }
    }
    catch (const std::bad_alloc&)
    {
        whole.Clear();
        return FALSE;
    }
    return DefSubclassProc(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

/// Whether the field still shows the beginning of its whole text.
bool showsBeginning(HWND field, const LongText& whole)
{
    const std::wstring_view beginning = whole.Beginning();
    if (!whole.IsLong() || DefSubclassProc(field, WM_GETTEXTLENGTH, 0, 0) != static_cast<LRESULT>(beginning.size()))
        return false;
    wchar_t shown[LongText::mostShown + 1] = {};
    DefSubclassProc(field, WM_GETTEXT, std::size(shown), reinterpret_cast<LPARAM>(shown));
    return beginning == shown;
}

LRESULT getText(const LongText& whole, std::size_t room, wchar_t* text)
{
    if (room == 0 || text == nullptr)
        return 0;
    const std::size_t length = whole.Whole().copy(text, room - 1);
    text[length] = L'\0';
    return static_cast<LRESULT>(length);
}

LRESULT CALLBACK onMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data)
{
    auto* const whole = reinterpret_cast<LongText*>(data);
    switch (message)
    {
    case WM_SETTEXT:
        return setText(field, *whole, reinterpret_cast<const wchar_t*>(lParam));
    case WM_GETTEXTLENGTH:
        if (showsBeginning(field, *whole))
            return static_cast<LRESULT>(whole->Whole().size());
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
    auto whole = std::make_unique<LongText>();
    if (::SetWindowSubclass(field, onMessage, watchId, reinterpret_cast<DWORD_PTR>(whole.get())))
        whole.release(); // the field has it now
}
