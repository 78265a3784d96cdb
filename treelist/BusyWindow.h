// A platform control's window that must not end while one of its messages is at work.
#pragma once

#include <afxwin.h>

#include <cstdint>

namespace treelist
{

/// A control tells of what it does in the middle of doing it, and goes on behind that with the data of its window. When a host
/// ends the window or the frame meanwhile, the window is given up instead of destroyed, and ends behind its last message.
struct BusyWindow
{
    /// What is done for a window by its owner.
    struct Owner
    {
        void (*leave)(HWND window); ///< parts the object from the window, and gives that up
        void (*rest)(HWND window);  ///< does what was put off
    };

    /// Counts the messages of the window from now on. Nobody destroys one with an owner while one of them is at work.
    static void Watch(HWND window, const Owner& owner = Owner{});
    /// How many messages came to the watched windows of this thread, those left out that only ask, or put in a node. While the
    /// number stays, no watched window got another size, place, style, range or position by a message.
    static std::uint64_t ChangingMessages();
    /// Whether one of them is at work.
    static bool IsBusy(HWND window);
    /// Lets the owner of a busy window do what was put off, once all messages are over. False for any other window.
    static bool CallAtRest(HWND window);
    /// Takes a busy window off the screen and away from its parent; it ends when the message is over. No object may be attached
    /// to it any more.
    static void GiveUp(HWND window);
};

} // namespace treelist
