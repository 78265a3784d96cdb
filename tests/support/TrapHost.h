// A parent that ends its control, or itself, in the middle of any message that the control's life brings it.
#pragma once
#include <afxwin.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

#include "support/Guarded.h"
#include "support/HostWindow.h"

/// A kind of message: of WM_COMMAND, WM_NOTIFY and WM_PARENTNOTIFY each code is one of its own.
struct Kind
{
    UINT message;
    UINT code = 0;
    auto operator<=>(const Kind&) const = default;

    static Kind of(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_COMMAND)
            return {message, HIWORD(wParam)};
        if (message == WM_PARENTNOTIFY)
            return {message, LOWORD(wParam)};
        if (message == WM_NOTIFY && lParam != 0)
            return {message, reinterpret_cast<const NMHDR*>(lParam)->code};
        return {message, 0};
    }
};

inline std::ostream& operator<<(std::ostream& out, const Kind& kind)
{
    return out << std::hex << "message 0x" << kind.message << ", code 0x" << kind.code << std::dec;
}

/// A foreground window of 400 by 320 that acts at the first message of a kind, and then takes no part in it if it is gone.
class TrapHost : public HostWindow
{
public:
    TrapHost() : HostWindow(CRect(100, 100, 500, 420), WS_POPUP | WS_CLIPCHILDREN) {}
    ~TrapHost() override { DestroyWindow(); } // while it is whole, so that it hears of the end

    std::vector<Kind> heard; ///< each kind once, in order
    std::optional<Kind> trap;
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const Kind kind = Kind::of(message, wParam, lParam);
        if (std::find(heard.begin(), heard.end(), kind) == heard.end())
            heard.push_back(kind);
        const HWND self = m_hWnd;
        if (trap == kind && message != WM_DELETEITEM) // which the platform's own list does not survive
            if (const auto once = std::exchange(act, nullptr))
                once();
        return CWnd::FromHandlePermanent(self) == this ? CWnd::WindowProc(message, wParam, lParam) : 0;
    }
};

/// The life of a control in a host: its creation and what its user does. Each step runs while there is a window.
template <class Control> struct ControlLife
{
    std::function<void(Control&, TrapHost&)> create;
    std::vector<std::function<void(Control&)>> steps;

    void run(TrapHost& host, std::unique_ptr<Guarded<Control>>& control) const
    {
        create(*control, host);
        for (const auto& step : steps)
            if (control != nullptr && control->m_hWnd != nullptr)
                step(*control);
        pumpFor(0);
    }

    /// What the host hears from first to last.
    std::vector<Kind> kinds() const
    {
        TrapHost host;
        auto control = std::make_unique<Guarded<Control>>();
        run(host, control);
        return host.heard;
    }

    /// Lives once for each kind of message and each way to end in it; a touch of what has ended ends the program.
    void expectToEndInAnyMessage(std::initializer_list<Kind> atLeast) const
    {
        const std::vector<Kind> all = kinds();
        for (const Kind& kind : atLeast)
            EXPECT_NE(std::find(all.begin(), all.end(), kind), all.end()) << kind << " was not heard";
        for (const Kind& kind : all)
            for (const bool withItsParent : {true, false})
                endIn(kind, withItsParent);
    }

private:
    void endIn(const Kind& kind, bool withItsParent) const
    {
        SCOPED_TRACE(testing::Message() << kind << (withItsParent ? ", with its parent" : ", deleted"));
        TrapHost host;
        auto control = std::make_unique<Guarded<Control>>();
        host.trap = kind;
        host.act = [&]
        {
            if (withItsParent)
                host.DestroyWindow();
            else
                control.reset();
        };
        run(host, control);
        EXPECT_EQ(host.m_hWnd == nullptr || control == nullptr, host.act == nullptr);
        EXPECT_TRUE(control == nullptr || host.m_hWnd != nullptr || control->m_hWnd == nullptr);
        host.act = nullptr;
        if (::GetCapture() != nullptr)
            ::ReleaseCapture();
    }
};
