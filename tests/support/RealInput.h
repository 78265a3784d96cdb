// Drives the real input queue from inside the test process: keys, clicks, moves, and bounded waits that pump messages.
#pragma once
#include <windows.h>
#include <functional>
#include <initializer_list>
#include <vector>

/// Dispatches what is in the queue, and for `milliseconds` what comes. Without a limit of 0 it returns when the time is over.
inline void pumpFor(DWORD milliseconds = 0)
{
    const DWORD start = GetTickCount();
    for (;;)
    {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        const DWORD spent = GetTickCount() - start;
        if (spent >= milliseconds)
            return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - spent, QS_ALLINPUT);
    }
}

/// Pumps until `ok()` holds; false when it does not within the bound.
inline bool waitFor(const std::function<bool()>& ok, DWORD milliseconds = 5000)
{
    for (const DWORD start = GetTickCount(); !ok();)
    {
        if (GetTickCount() - start >= milliseconds)
            return ok();
        pumpFor(5);
    }
    return true;
}

/// Moves the cursor to a point in screen pixels; lands exactly.
inline void moveTo(POINT point)
{
    const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = (point.x * 65536 + width - 1) / width; // up: the system rounds down again
    input.mi.dy = (point.y * 65536 + height - 1) / height;
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &input, sizeof input);
}

/// Presses or releases a button of the mouse where the cursor is (MOUSEEVENTF_LEFTDOWN, ...), and lets the messages through.
inline void mouseButton(DWORD event)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = event;
    SendInput(1, &input, sizeof input);
    pumpFor(20);
}

/// Button down and up in one call, because some controls run a loop of their own in between.
inline void click(POINT point, bool right = false)
{
    static DWORD last;
    static POINT at;
    const DWORD apart = GetDoubleClickTime(), since = GetTickCount() - last;
    if (at.x == point.x && at.y == point.y && since <= apart)
        pumpFor(apart - since + 20); // else it would be a double click
    moveTo(point);
    pumpFor(20);
    INPUT input[2] = {};
    input[0].type = input[1].type = INPUT_MOUSE;
    input[0].mi.dwFlags = right ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
    input[1].mi.dwFlags = right ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
    SendInput(2, input, sizeof *input);
    last = GetTickCount();
    at = point;
    pumpFor(20);
}

/// The middle of a window, in screen pixels.
inline POINT centreOf(HWND window)
{
    RECT r = {};
    GetWindowRect(window, &r);
    return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
}

/// Puts a key that is pressed and released into the queue, with modifiers held, and leaves it to the caller's loop.
inline void sendKey(WORD code, std::initializer_list<WORD> modifiers = {})
{
    std::vector<INPUT> inputs;
    auto add = [&inputs](WORD k, DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = k;
        input.ki.dwFlags = flags;
        inputs.push_back(input);
    };
    for (WORD m : modifiers)
        add(m, 0);
    add(code, 0);
    add(code, KEYEVENTF_KEYUP);
    for (WORD m : modifiers)
        add(m, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

/// Presses and releases a key, with modifiers held: key('K', {VK_CONTROL}).
inline void key(WORD code, std::initializer_list<WORD> modifiers = {})
{
    sendKey(code, modifiers);
    pumpFor(10);
}

/// Puts a character into the queue, whatever the keyboard layout, and leaves it to the caller's loop.
inline void sendCharacter(wchar_t character)
{
    INPUT input[2] = {};
    input[0].type = input[1].type = INPUT_KEYBOARD;
    input[0].ki.wScan = input[1].ki.wScan = character;
    input[0].ki.dwFlags = KEYEVENTF_UNICODE;
    input[1].ki.dwFlags = KEYEVENTF_UNICODE | KEYEVENTF_KEYUP;
    SendInput(2, input, sizeof *input);
}

/// Types any characters, whatever the keyboard layout.
inline void typeText(const wchar_t* text)
{
    for (; *text; ++text)
    {
        sendCharacter(*text);
        pumpFor(5);
    }
}
