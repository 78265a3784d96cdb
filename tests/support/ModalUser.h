// Acts as the user of the modal dialogs that open while it lives, from inside their own loops.
#pragma once
#include "support/RealInput.h"

/// A key that stays in the queue, so that the loop of a modal dialog takes it: Enter, Escape and letters mean there what
/// they mean to a user.
inline void pressForModal(WORD code)
{
    INPUT inputs[2] = {};
    inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
    inputs[0].ki.wVk = inputs[1].ki.wVk = code;
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, inputs, sizeof *inputs);
}

/// Types a name into the dialog that is open, and Enter.
inline void typeForModal(const wchar_t* name)
{
    typeText(name);
    pressForModal(VK_RETURN);
}

/// One step for each dialog that becomes active, in their order; a dialog that opens over another one is the next.
class ModalUser
{
public:
    explicit ModalUser(std::vector<std::function<void()>> steps)
    {
        s_steps = std::move(steps);
        s_next = 0;
        s_seen = {GetActiveWindow()};
        s_timer = SetTimer(nullptr, 0, 100, look);
    }
    ~ModalUser() { KillTimer(nullptr, s_timer); }
    ModalUser(const ModalUser&) = delete;
    ModalUser& operator=(const ModalUser&) = delete;

private:
    static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND active = GetActiveWindow();
        if (!active || !IsWindowVisible(active) || s_next == s_steps.size())
            return;
        for (const HWND seen : s_seen)
            if (active == seen)
                return;
        s_seen.push_back(active);
        s_steps[s_next++]();
    }
    inline static std::vector<std::function<void()>> s_steps;
    inline static size_t s_next = 0;
    inline static std::vector<HWND> s_seen;
    inline static UINT_PTR s_timer = 0;
};
