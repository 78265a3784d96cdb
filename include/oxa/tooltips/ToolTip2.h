// CToolTip2: a one-line tip of two fonts that closes itself after a time.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// A tip of one line. What follows the first "<" of the text is written bold, without the brackets:
/// "Length <1.5 m>" shows the value in bold. It sends no messages.
///
///     tip.Create(this);
///     tip.SetText(L"Length <1.5 m>");
///     tip.Show(CPoint(100, 40));
class OXA_API CToolTip2 : public CWnd
{
public:
    CToolTip2();
    CToolTip2(const CToolTip2&) = delete;
    CToolTip2& operator=(const CToolTip2&) = delete;
    ~CToolTip2() override;

    /// Makes the fonts and the hidden window.
    /// @param parentWindow the window whose client coordinates `Show` uses, not owned
    /// @return FALSE when the tip exists already, when `parentWindow` is null, or when no window could be made
    BOOL Create(CWnd* parentWindow);

    /// The text of the tip, without the white space at its right end. A shown tip changes at its next paint.
    void SetText(const CString& newText);

    /// The height of the fonts in pixels, 25 at first. Set it before `Create`.
    void SetHeight(int pixels);

    /// The time until the tip closes, in milliseconds, 3000 at first. It holds from the next `Show` on.
    void setDisplayTime(int milliseconds);

    /// Shows the tip, centred on a point.
    /// @param at the middle of its upper edge, pixels in client coordinates of the parent
    /// @return 1, or 0 when the text is empty, the tip is shown already, or it or its parent has no window
    int Show(const CPoint& at);

    /// Hides the tip and stops its timer.
    void Close();

    /// Starts the timer that closes the tip.
    void OnStartTimer();

    /// Stops the timer that closes the tip.
    void OnStopTimer();

protected:
    void OnPaint();
    void OnTimer(UINT_PTR id);

    DECLARE_MESSAGE_MAP()

private:
    bool closeAlive(); // false when this object is gone
    void DisplayToolTip(const CPoint& at);

    UINT_PTR timerId;
    int displayTime;
    CString text;
    CWnd* parent;
    int shown;
    CPoint point;
    CFont normalFont;
    CFont boldFont;
    int fontHeight;
    HWND parentHandle; // outlives the object behind `parent`
};
