// CKxEdit: an edit field that hands its keys and clicks on to its owner, and refuses some characters.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"

/// An edit field whose owner hears what the user does in it. The owner is the window set by `SetOwner`, else the parent.
///
/// Sent to the owner, wParam and lParam as the field got them unless said otherwise:
///   - `WM_CHAR` behind the field's own part, also for a forbidden character, which the field does not take;
///   - `WM_KEYDOWN` and `WM_SYSCHAR` behind the field's own part;
///   - `WM_LBUTTONDOWN` before the field's own part, with the flags and a position of 0.
/// The owner may destroy the field while it hears of one. A message that the owner gives back meanwhile is dropped: a
/// combo box gives its keys to its edit field, which has had them.
///
///     m_combo.m_edit.SubclassWindow(::GetWindow(m_combo.m_hWnd, GW_CHILD));
///     m_combo.m_edit.SetNotAllowedChars(L"*?");
class OXA_API CKxEdit : public CEdit
{
    DECLARE_DYNAMIC(CKxEdit)

public:
    CKxEdit();
    ~CKxEdit() override;

    /// The characters that the user cannot type, each for itself; none at first. What is pasted is not looked at.
    void SetNotAllowedChars(CString characters);

    /// The host's own flags: whether the field stands for several objects whose values differ, false at first...
    void SetVariant(bool variant);
    bool GetVariant();
    /// ... and any number, 1 at first.
    void SetVisibility(int visibility);
    int GetVisibility();

    /// Deletes the text, scrolls to its beginning, and sets the field unmodified. Undo brings the text back.
    void ClearControl();

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    /// No brush of its own: the parent's colours hold.
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    DECLARE_MESSAGE_MAP()

    BYTE m_variant = 0;
    CString m_notAllowedChars;
    int m_visibility = 1;

private:
    bool IsAllowed(UINT character) const;
    void DoThenTellOwner(UINT message, WPARAM wParam, LPARAM lParam, bool isTaken);
};
