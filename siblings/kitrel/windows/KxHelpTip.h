// The small window that shows a help text until a click or a key.
#pragma once
#include <afxwin.h>

/// At most one is shown at a time. The object belongs to its window and goes with it.
class CKxHelpTip : public CWnd
{
public:
    /// Shows `text` under `about`, a rectangle in screen pixels, or above it where there is no room; an earlier tip goes.
    /// The tip is owned by `owner` and keeps the focus where it is. False when no window could be made.
    static bool show(HWND owner, const CString& text, const RECT& about);

    /// Takes the tip away, if one is shown.
    static void hide();

    /// The window of the tip that is shown, or null.
    static HWND window();

protected:
    void PostNcDestroy() override;
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    explicit CKxHelpTip(const CString& text) : m_text(text) {}
    bool create(HWND owner, const RECT& about);

    CString m_text;
};
