// The loop of the host's own program, PreTranslateMessage included, and real input that goes through it.
#pragma once
#include <afxwin.h>
#include <functional>
#include <initializer_list>
#include "RealInput.h"

/// For a test's host window: `class Host : public CDialog, public HostLoop`.
struct HostLoop
{
    /// What the loop does with the messages that wait, and for `milliseconds` with what comes.
    static void pump(DWORD milliseconds = 0)
    {
        const DWORD start = ::GetTickCount();
        do
        {
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
                AfxGetThread()->PumpMessage();
            if (milliseconds != 0)
                ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        } while (::GetTickCount() - start < milliseconds);
    }

    /// Runs the loop until `ok()` holds; false when it does not within the bound.
    static bool pumpUntil(const std::function<bool()>& ok, DWORD milliseconds = 5000)
    {
        const DWORD start = ::GetTickCount();
        while (!ok() && ::GetTickCount() - start < milliseconds)
            pump(5);
        return ok();
    }

    /// A real key, with modifiers held.
    static void press(WORD code, std::initializer_list<WORD> modifiers = {})
    {
        sendKey(code, modifiers);
        pump(10);
    }

    /// Real characters.
    static void type(const wchar_t* text)
    {
        for (; *text != 0; ++text)
        {
            sendCharacter(*text);
            pump(5);
        }
    }
};
