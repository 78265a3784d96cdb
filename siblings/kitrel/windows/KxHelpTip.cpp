// Shows a help text until a click or a key.
#include "KxHelpTip.h"
#include <algorithm>

namespace
{
constexpr int c_margin = 6;   // around the text, in pixels
constexpr int c_widest = 300; // of the text, in pixels
constexpr int c_gap = 4;      // between the control and its tip
constexpr UINT c_format = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS;

CKxHelpTip* s_tip = nullptr; // not owned: the window owns its object
HHOOK s_keys = nullptr;      // installed while a tip is shown

LRESULT CALLBACK onKey(int code, WPARAM key, LPARAM details)
{
    const LRESULT result = CallNextHookEx(nullptr, code, key, details);
    const bool down = (details & 0x80000000) == 0;
    if (code == HC_ACTION && down)
        CKxHelpTip::hide();
    return result;
}

/// A device context of the screen with the tip's font, both given back at the end.
class TextMeasure
{
public:
    TextMeasure() : m_dc(GetDC(nullptr)), m_old(SelectObject(m_dc, GetStockObject(DEFAULT_GUI_FONT))) {}
    ~TextMeasure()
    {
        SelectObject(m_dc, m_old);
        ReleaseDC(nullptr, m_dc);
    }
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    SIZE extent(const CString& text) const
    {
        RECT r = {0, 0, c_widest, 0};
        DrawTextW(m_dc, text, text.GetLength(), &r, c_format | DT_CALCRECT);
        return {r.right - r.left, r.bottom - r.top};
    }

private:
    HDC m_dc;
    HGDIOBJ m_old;
};

/// Under the rectangle, above it where there is no room, and on the screen in any case.
POINT placeOf(SIZE size, const RECT& about)
{
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&about, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    POINT at = {about.left, about.bottom + c_gap};
    if (at.y + size.cy > work.bottom)
        at.y = about.top - c_gap - size.cy;
    at.x = std::max(work.left, std::min(at.x, work.right - size.cx));
    at.y = std::max(work.top, std::min(at.y, work.bottom - size.cy));
    return at;
}
} // namespace

BEGIN_MESSAGE_MAP(CKxHelpTip, CWnd)
    // void OnPaint()
    ON_WM_PAINT()
    // void OnLButtonDown(UINT flags, CPoint point)
    ON_WM_LBUTTONDOWN()
    // void OnRButtonDown(UINT flags, CPoint point)
    ON_WM_RBUTTONDOWN()
    // void OnMButtonDown(UINT flags, CPoint point)
    ON_WM_MBUTTONDOWN()
    // void OnCaptureChanged(CWnd* other)
    ON_WM_CAPTURECHANGED()
    // void OnDestroy()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

bool CKxHelpTip::show(HWND owner, const CString& text, const RECT& about)
{
    hide();
    auto* const tip = new CKxHelpTip(text);
    if (!tip->create(owner, about))
        return false; // PostNcDestroy has deleted it
    return true;
}

bool CKxHelpTip::create(HWND owner, const RECT& about)
{
    const SIZE text = TextMeasure().extent(m_text);
    const SIZE size = {text.cx + 2 * c_margin, text.cy + 2 * c_margin};
    const POINT at = placeOf(size, about);
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_SAVEBITS, LoadCursorW(nullptr, IDC_ARROW));
    if (!CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, windowClass, L"", WS_POPUP, at.x, at.y, size.cx,
                  size.cy, owner, nullptr))
        return false;
    s_tip = this;
    s_keys = SetWindowsHookExW(WH_KEYBOARD, onKey, nullptr, GetCurrentThreadId());
    ::ShowWindow(m_hWnd, SW_SHOWNOACTIVATE);
    ::SetCapture(m_hWnd);
    return true;
}

void CKxHelpTip::hide()
{
    if (s_tip)
        s_tip->DestroyWindow();
}

HWND CKxHelpTip::window()
{
    return s_tip ? s_tip->GetSafeHwnd() : nullptr;
}

void CKxHelpTip::PostNcDestroy()
{
    delete this;
}

void CKxHelpTip::OnPaint()
{
    CPaintDC dc(this);
    RECT r = {};
    ::GetClientRect(m_hWnd, &r);
    const HDC target = dc.GetSafeHdc();
    FillRect(target, &r, GetSysColorBrush(COLOR_INFOBK));
    FrameRect(target, &r, GetSysColorBrush(COLOR_INFOTEXT));
    InflateRect(&r, -c_margin, -c_margin);
    const HGDIOBJ old = SelectObject(target, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, GetSysColor(COLOR_INFOTEXT));
    DrawTextW(target, m_text, m_text.GetLength(), &r, c_format);
    SelectObject(target, old);
}

void CKxHelpTip::OnLButtonDown(UINT /*flags*/, CPoint /*point*/)
{
    DestroyWindow();
}

void CKxHelpTip::OnRButtonDown(UINT /*flags*/, CPoint /*point*/)
{
    DestroyWindow();
}

void CKxHelpTip::OnMButtonDown(UINT /*flags*/, CPoint /*point*/)
{
    DestroyWindow();
}

void CKxHelpTip::OnCaptureChanged(CWnd* /*other*/)
{
    if (s_tip == this)
        DestroyWindow();
}

void CKxHelpTip::OnDestroy()
{
    if (s_tip == this) // before the capture goes, so that its loss does not come here again
    {
        s_tip = nullptr;
        UnhookWindowsHookEx(s_keys);
        s_keys = nullptr;
    }
    if (::GetCapture() == m_hWnd)
        ReleaseCapture();
    CWnd::OnDestroy();
}
