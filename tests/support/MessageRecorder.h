// Writes down the messages that a window gets, for tests that compare sequences.
#pragma once
#include <windows.h>
#include <commctrl.h>
#include <functional>
#include <vector>

struct RecordedMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const RecordedMessage&) const = default;
};

/// Records what reaches `window` while it lives, of the messages that `wanted` accepts (all, without one).
class MessageRecorder
{
public:
    explicit MessageRecorder(HWND window, std::function<bool(UINT)> wanted = {})
        : m_window(window), m_wanted(std::move(wanted))
    {
        SetWindowSubclass(window, onMessage, id(), reinterpret_cast<DWORD_PTR>(this));
    }
    ~MessageRecorder() { RemoveWindowSubclass(m_window, onMessage, id()); }
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    const std::vector<RecordedMessage>& all() const { return m_messages; }
    void clear() { m_messages.clear(); }
    int count(UINT message) const
    {
        int n = 0;
        for (const RecordedMessage& m : m_messages)
            n += m.message == message;
        return n;
    }
    /// Called at each recorded message, before the window sees it.
    std::function<void(const RecordedMessage&)> onRecord;

private:
    UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }
    static LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self)
    {
        auto* recorder = reinterpret_cast<MessageRecorder*>(self);
        if (!recorder->m_wanted || recorder->m_wanted(message))
        {
            recorder->m_messages.push_back({message, wParam, lParam});
            if (recorder->onRecord)
                recorder->onRecord(recorder->m_messages.back());
        }
        return DefSubclassProc(window, message, wParam, lParam);
    }
    HWND m_window;
    std::function<bool(UINT)> m_wanted;
    std::vector<RecordedMessage> m_messages;
};
