// Answers the dialogs and message boxes of this thread while it lives: AnswerModal answer(IDNO); MessageBoxW(...);
#pragma once
#include <windows.h>
#include <string>
#include <vector>

class AnswerModal
{
public:
    explicit AnswerModal(int id)
    {
        s_id = id;
        s_seen.clear();
        s_count = 0;
        s_created.clear();
        m_hook = SetWindowsHookExW(WH_CBT, onCbt, nullptr, GetCurrentThreadId());
    }
    ~AnswerModal() { UnhookWindowsHookEx(m_hook); }
    AnswerModal(const AnswerModal&) = delete;
    AnswerModal& operator=(const AnswerModal&) = delete;

    /// Caption and texts of the last one, as "caption|text".
    static const std::wstring& seen() { return s_seen; }
    /// How many were answered.
    static int count() { return s_count; }

private:
    static LRESULT CALLBACK onCbt(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_CREATEWND)
            s_created.push_back(window);
        // Only a new window is answered, and once: an older dialog is activated again when a box over it closes.
        else if (code == HCBT_ACTIVATE && std::erase(s_created, window) != 0)
            answer(window);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static void answer(HWND window)
    {
        wchar_t buffer[1024];
        if (!GetClassNameW(window, buffer, 64) || wcscmp(buffer, L"#32770") != 0)
            return;
        ++s_count;
        GetWindowTextW(window, buffer, 1024);
        s_seen = buffer;
        s_seen += L'|';
        for (HWND child = nullptr; (child = FindWindowExW(window, child, L"Static", nullptr)) != nullptr;)
            if (GetWindowTextW(child, buffer, 1024))
                s_seen += buffer;
        PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(s_id), 0);
    }
    HHOOK m_hook;
    inline static int s_id = 0;
    inline static int s_count = 0;
    inline static std::wstring s_seen;
    inline static std::vector<HWND> s_created;
};
