// Windows that the framework's tests use: they write down what happens to them.
#pragma once
#include <afxwin.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

using Log = std::vector<std::wstring>;

inline std::wstring text(const wchar_t* format, ...)
{
    CString formatted;
    va_list args;
    va_start(args, format);
    formatted.FormatV(format, args);
    va_end(args);
    return formatted.GetString();
}

/// A hidden popup window with an object on the stack.
class CTop : public CWnd
{
public:
    Log log;

    bool make(DWORD style = WS_POPUP, const RECT& rect = CRect(0, 0, 200, 100))
    {
        return CreateEx(0, nullptr, L"top", style, rect, nullptr, 0) != FALSE;
    }
    using CWnd::Default;
    using CWnd::OnWndMsg;
};

/// A child window of a plain class.
class CChild : public CWnd
{
public:
    Log log;

    bool make(CWnd& parent, UINT id = 7, const wchar_t* className = L"STATIC", DWORD style = WS_CHILD)
    {
        return CreateEx(0, className, L"", style, CRect(0, 0, 50, 20), &parent, id) != FALSE;
    }
};

/// Sends the parent what a control would send.
inline LRESULT notifyCommand(CWnd& parent, CWnd& control, int code)
{
    return parent.SendMessage(WM_COMMAND, static_cast<WPARAM>(MAKELONG(control.GetDlgCtrlID(), code)),
                              reinterpret_cast<LPARAM>(control.m_hWnd));
}

inline LRESULT notifyHeader(CWnd& parent, CWnd& control, UINT code)
{
    NMHDR header = {control.m_hWnd, static_cast<UINT_PTR>(control.GetDlgCtrlID()), code};
    return parent.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

/// Puts a key stroke into the input queue and pumps nothing: the loop under test is to take it.
inline void press(WORD code, WORD modifier = 0)
{
    INPUT inputs[4] = {};
    const WORD codes[4] = {modifier, code, code, modifier};
    for (int i = 0; i < 4; ++i)
    {
        inputs[i].type = INPUT_KEYBOARD;
        inputs[i].ki.wVk = codes[i];
        inputs[i].ki.dwFlags = i < 2 ? 0 : KEYEVENTF_KEYUP;
    }
    if (modifier != 0)
        ::SendInput(4, inputs, sizeof(INPUT));
    else
        ::SendInput(2, inputs + 1, sizeof(INPUT));
}

/// Runs the framework's pump until `done` holds or the queue has been empty for a while.
template <class Condition> bool pumpUntil(Condition done)
{
    for (int quiet = 0; quiet < 200 && !done();)
    {
        MSG message;
        if (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        {
            AfxPumpMessage();
            continue;
        }
        ++quiet;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return done();
}
