// Messages that a control hands on to another window, which may send them back or end the control.
#pragma once

#include <afxwin.h>

/// A message on its way from a control to another window, for as long as this object lives. The receiver may send it
/// back, by a circle of owners or from its handler; the control does not hand it on again meanwhile.
class HandedOn
{
public:
    HandedOn(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
    ~HandedOn();
    HandedOn(const HandedOn&) = delete;
    HandedOn& operator=(const HandedOn&) = delete;

    /// Whether the control is handing on this very message already.
    bool IsRepeated() const;

private:
    bool IsSameAs(const HandedOn& other) const;

    HWND m_control;
    UINT m_message;
    WPARAM m_wParam;
    LPARAM m_lParam;
    const HandedOn* m_outer;
};

/// Whether a control is handing on this very message just now: then its receiver has given it back.
bool IsHandingOn(HWND control, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends a message to another window, unless the control is handing it on already; a null receiver gets nothing.
/// False when the control did not survive that, and must not be touched any more.
bool SendAndSurvive(const CWnd& control, CWnd* receiver, UINT message, WPARAM wParam, LPARAM lParam);

/// The same to the owner of a control: the window set by SetOwner, else the parent. A control without a window sends nothing.
bool SendToOwner(const CWnd& control, UINT message, WPARAM wParam, LPARAM lParam);
