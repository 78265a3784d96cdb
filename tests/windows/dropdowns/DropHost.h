// A real window with the controls of a test on it: what it hears, and what it does while it hears.
#pragma once
#include <afxwin.h>
#include <functional>
#include <initializer_list>
#include <memory>
#include <ostream>
#include <string>
#include <vector>
#include "oxa/dropdowns/KxComboColorPicker.h"
#include "support/HandleBalance.h"
#include "support/HostWindow.h"
#include "support/RealInput.h"

/// A message that a control handed on. The message's name helps to read a failed comparison.
struct Heard
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Heard& one)
{
    return out << std::hex << "(" << one.message << ", " << one.wParam << ", " << one.lParam << ")" << std::dec;
}

/// The host: a foreground window that writes down the keys, clicks and private messages that reach it.
class DropHost : public HostWindow
{
public:
    DropHost() : HostWindow(CRect(100, 100, 500, 420), WS_POPUP | WS_CAPTION) {}
    ~DropHost() override { DestroyWindow(); } // while it is whole, so that it hears of the end

    std::vector<Heard> heard;
    std::function<void(const Heard&)> onHear; ///< runs inside the handler
    LRESULT answer = 0;                       ///< to all of them
    /// The notification code of every WM_COMMAND of a control, in order.
    std::vector<int> commands;
    std::function<void(int)> onCommand;
    HBRUSH colours = nullptr; ///< handed out for every control that asks for a brush

    std::vector<Heard> heardOf(UINT message) const
    {
        std::vector<Heard> some;
        for (const Heard& one : heard)
            if (one.message == message)
                some.push_back(one);
        return some;
    }
    /// The characters that were handed on.
    std::wstring characters() const
    {
        std::wstring all;
        for (const Heard& one : heardOf(WM_CHAR))
            all += static_cast<wchar_t>(one.wParam);
        return all;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CHAR || message == WM_KEYDOWN || message == WM_SYSCHAR || message == WM_LBUTTONDOWN ||
            message == WM_KX_PICK_OTHER_COLOR)
            return hear({message, wParam, lParam});
        if (colours != nullptr && message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)
            return reflectedOr(message, wParam, lParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        const int code = HIWORD(wParam);
        commands.push_back(code);
        const HWND self = m_hWnd;
        if (onCommand)
            onCommand(code);
        return CWnd::FromHandlePermanent(self) != this || CWnd::OnCommand(wParam, lParam);
    }

private:
    LRESULT hear(const Heard& one)
    {
        heard.push_back(one);
        const LRESULT answered = answer;
        const HWND self = m_hWnd;
        if (onHear)
            onHear(one);
        return CWnd::FromHandlePermanent(self) == this ? answer : answered;
    }
    /// What a host does that gives its own brush to what has none.
    LRESULT reflectedOr(UINT message, WPARAM wParam, LPARAM lParam)
    {
        CWnd* const control = CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam));
        LRESULT brush = 0;
        OnWndMsg(message, wParam, lParam, &brush);
        return control != nullptr ? reinterpret_cast<LRESULT>(colours) : brush;
    }
};

/// The ways of a control to end in a handler of its host: destroyed (0), deleted (1), with the host (2).
template <class Control> void endControl(int way, std::unique_ptr<Control>& control, DropHost& host)
{
    if (way == 0)
        control->DestroyWindow();
    else if (way == 1)
        control.reset();
    else
        host.DestroyWindow();
}

/// Two thousand lives of a control in a host: used, and then destroyed or just deleted by turns.
template <class Control, class Use> void expectTwoThousandLivesLeaveNoHandle(const Use& use)
{
    DropHost host;
    expectNoHandleLeft(2000,
                       [&](int round)
                       {
                           Control control;
                           use(control, host, round);
                           if (round % 2 == 0)
                               control.DestroyWindow();
                       });
}

inline std::wstring textOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return std::wstring(text);
}

/// The pixels of a window's client area of one colour.
inline int pixelsOf(HWND window, COLORREF colour)
{
    RECT area = {};
    ::GetClientRect(window, &area);
    const HDC source = ::GetDC(window);
    int count = 0;
    for (int y = 0; y < area.bottom; ++y)
    {
        for (int x = 0; x < area.right; ++x)
            count += ::GetPixel(source, x, y) == colour ? 1 : 0;
    }
    ::ReleaseDC(window, source);
    return count;
}

/// A user opens the list, picks a row and leaves the field; its host ends itself at the notification `code`.
inline void expectEndedAt(int code, DropHost& host, CWnd& field)
{
    host.onCommand = [&](int heard)
    {
        if (heard == code)
            host.DestroyWindow();
    };
    field.SetFocus();
    for (const WORD one : std::initializer_list<WORD>{VK_F4, VK_DOWN, VK_RETURN})
    {
        if (field.m_hWnd != nullptr)
            key(one);
    }
    if (host.m_hWnd != nullptr)
        host.SetFocus();
    EXPECT_EQ(field.m_hWnd, nullptr) << code;
}
