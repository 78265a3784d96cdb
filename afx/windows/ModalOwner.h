// What modal windows have in common: their owner is disabled while they run.
#pragma once
#include <afxwin.h>

namespace kx
{

/// Keeps a window disabled, if it was enabled.
class Disabled
{
public:
    explicit Disabled(HWND wnd) : m_wnd(wnd != nullptr && ::IsWindowEnabled(wnd) ? wnd : nullptr)
    {
        if (m_wnd != nullptr)
            ::EnableWindow(m_wnd, FALSE);
    }
    ~Disabled() { end(); }
    void end()
    {
        if (m_wnd != nullptr)
            ::EnableWindow(m_wnd, TRUE);
        m_wnd = nullptr;
    }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;

private:
    HWND m_wnd;
};

/// Control notifications stay with a dialog; commands that it does not take go on to its owner and the thread.
inline BOOL routeToOwner(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    const bool command = code == CN_COMMAND || code == CN_UPDATE_COMMAND_UI;
    if (!command || (id & 0x8000U) == 0 || id >= 0xF000)
        return FALSE;
    CWnd* owner = dialog.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(id, code, extra, info);
}

} // namespace kx
