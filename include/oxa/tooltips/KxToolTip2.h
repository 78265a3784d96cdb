// KxToolTip2: a balloon tip with a pointed tail, shown on demand.
#pragma once

#include <afxcoll.h>
#include <afxwin.h>

#include "oxa/Export.h"

/// A balloon: a pop-up window cut to a rounded rectangle with a tail that points at a place on the screen.
///
/// Set size and orientation, `Create` it, add one tool for each window that has a tip, and call `ShowToolTip`
/// with such a window. The balloon hides on a click on it, on the keys and buttons of `RelayEvent`, after the
/// time of `setTimer`, and on `Hide`. It sends no messages.
///
///     balloon.SetWidth(240);
///     balloon.Create(this);
///     balloon.AddTool(&edit, L"A length is wanted here", CPoint(300, 200), RGB(0, 0, 128));
///     balloon.ShowToolTip(edit.m_hWnd);
///
/// Let the owner's `PreTranslateMessage` call `RelayEvent` for the messages that shall hide the balloon.
class OXA_API KxToolTip2 : public CWnd
{
public:
    KxToolTip2();
    KxToolTip2(const KxToolTip2&) = delete;
    KxToolTip2& operator=(const KxToolTip2&) = delete;
    ~KxToolTip2() override;

    /// Makes the hidden window with the size and the orientation set before.
    /// @param parent the window that the balloon belongs to, not owned; becomes its owner (`GetOwner`)
    /// @return FALSE when the balloon exists already, when `parent` is null, or when no window could be made
    BOOL Create(CWnd* parent);

    /// Files a tip for a window; an earlier one of the same window is replaced. A null pointer is ignored.
    /// @param point the screen point of the tail's tip, pixels
    /// @param color the colour of the text, 0x00BBGGRR
    void AddTool(CWnd* window, CString text, CPoint point, unsigned long color);

    /// Hides the balloon, and shows it again at the point of the tip filed for `window`, if there is one.
    void ShowToolTip(HWND window);

    /// Hides the balloon if it is visible.
    void Hide();

    /// The width in pixels, 180 at first. Set it before `Create`: the shape is fixed there.
    void SetWidth(int pixels);

    /// The height in pixels, 80 at first. Set it before `Create`: the shape is fixed there.
    void SetHeight(int pixels);

    /// The tail at the left bottom corner (true, the initial state) or at the right bottom one.
    /// Set it before `Create`: the shape is fixed there.
    void SetLeftOriented(bool left);

    /// Starts the timer, with id 10, after which a message pump that calls `PreTranslateMessage` hides the balloon.
    void setTimer(unsigned int milliseconds);

    /// Hides the balloon when `message` is a button or key that ends a tip: WM_NCLBUTTONDOWN, WM_NCRBUTTONDOWN,
    /// WM_KEYDOWN, WM_LBUTTONDOWN, WM_RBUTTONDOWN. Others, and null, are ignored.
    void RelayEvent(MSG* message);

    /// Relays the message; any WM_TIMER ends the timer and hides the balloon.
    BOOL PreTranslateMessage(MSG* message) override;

    /// The text shown last; empty before the first one.
    CString GetTextLabel() const;

protected:
    void OnPaint();
    int OnCreate(LPCREATESTRUCT create);
    void OnLButtonDown(UINT flags, CPoint point);
    void OnKillFocus(CWnd* newWindow);

    DECLARE_MESSAGE_MAP()

private:
    struct Tool
    {
        CString text;
        unsigned long color;
        CPoint point;
    };

    void Show(int x, int y);
    bool hideIfShown(); // false when this object is gone
    void freeTools();

    CString className;
    HWND ownerHandle;
    CFont font;
    CRgn bodyRgn;
    CRgn tailRgn;
    CRgn windowRgn;
    CRect textRect;
    CMapPtrToPtr tools; // window handle to Tool, owned
    int width;
    int height;
    COLORREF bkColor;
    COLORREF frameColor;
    COLORREF textColor;
    int fontHeight;
    CString fontName;
    CString text;
    bool leftOriented;
};
