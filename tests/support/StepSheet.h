// A property sheet that works through steps while its modal loop runs, so that real keys and clicks meet the loop.
#pragma once
#include <afxdlgs.h>

#include <functional>
#include <vector>

/// Sheet is CPropertySheet or derived from it. One step at each tick of a timer; behind the last one a sheet that still
/// stands is ended with `leftOver`.
template <class Sheet> class StepSheet : public Sheet
{
public:
    enum
    {
        leftOver = 99
    };
    using Sheet::Sheet;
    std::vector<std::function<void()>> steps;
    int initialised = 0;

    BOOL OnInitDialog() override
    {
        ++initialised;
        const BOOL answer = Sheet::OnInitDialog();
        this->SetTimer(1, 60, nullptr);
        return answer;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_TIMER || wParam != 1)
            return Sheet::WindowProc(message, wParam, lParam);
        if (m_next > steps.size() + 3) // some ticks for the last step to work
            this->EndDialog(leftOver);
        else if (m_next++ < steps.size())
            steps[m_next - 1]();
        return 0;
    }

private:
    size_t m_next = 0;
};

/// Puts a click into the input queue and pumps nothing: the loop under test is to take it.
inline void clickUnpumped(HWND wnd)
{
    RECT place = {};
    GetWindowRect(wnd, &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    INPUT inputs[2] = {};
    inputs[0].type = inputs[1].type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, inputs, sizeof *inputs);
}

/// The same for a key, with a modifier held where one is given.
inline void pressUnpumped(WORD code, WORD modifier = 0)
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
        SendInput(4, inputs, sizeof *inputs);
    else
        SendInput(2, inputs + 1, sizeof *inputs);
}
