// What several control classes share: creation, the text of an item.
#pragma once
#include <afxwin.h>

#include "Ask.h"

namespace kx
{

/// Creates a child window of a system class.
inline BOOL createControl(CWnd& control, LPCTSTR className, LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent,
                          UINT id)
{
    return control.Create(className, text, style, rect, parent, id);
}

/// The text of an item of a list; empty when there is no such item.
inline void itemText(HWND list, UINT askLength, UINT askText, int index, CString& text)
{
    text.Empty();
    const int length = ask<int>(list, askLength, index);
    if (length <= 0)
        return;
    // A list without texts copies a whole item value, whatever it said of the length.
    constexpr int itemValue = sizeof(DWORD_PTR) / sizeof(wchar_t);
    wchar_t* const buffer = text.GetBuffer(length + itemValue);
    buffer[0] = 0;
    const int copied = ask<int>(list, askText, index, buffer);
    buffer[length] = 0;
    text.ReleaseBuffer(copied < 0 ? 0 : copied < length ? copied : length);
}

/// The result of a message that the parent sent back.
inline void answer(LRESULT* result, LRESULT value)
{
    if (result != nullptr)
        *result = value;
}

/// Gives an owner-drawn control its own drawing. FALSE for any other notification.
template <class Control> BOOL drawReflected(Control& control, UINT message, LPARAM lParam)
{
    if (message != WM_DRAWITEM)
        return FALSE;
    control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

/// Gives an owner-drawn list or combo box what its parent was asked for. FALSE for any other notification.
template <class Control> BOOL ownerDrawn(Control& control, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message)
    {
    case WM_DRAWITEM:
        control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        control.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        answer(result, control.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam)));
        return TRUE;
    case WM_DELETEITEM:
        control.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace kx
