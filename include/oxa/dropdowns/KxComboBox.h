// CKxComboBox: a combo box that hands its characters and clicks on to its owner.
#pragma once

#include <afxwin.h>

#include "oxa/Export.h"
#include "oxa/dropdowns/KxEdit.h"

/// A combo box with an edit field that may be watched. The owner is the window set by `SetOwner`, else the parent.
///
/// Sent to the owner: `WM_CHAR`, which the combo box itself does not take (a drop-down list is not searched by typing);
/// and `WM_LBUTTONDOWN`, before the box's own part, for a click at exactly 0, 0, be it from `m_edit` or a real one. The
/// owner may destroy the box while it hears of one.
class OXA_API CKxComboBox : public CComboBox
{
    DECLARE_DYNAMIC(CKxComboBox)

public:
    CKxComboBox();
    ~CKxComboBox() override;

    /// The host's own flags: whether the box stands for several objects whose values differ, false at first...
    void SetVariant(bool variant);
    bool GetVariant();
    /// ... and any number, 1 at first.
    void SetVisibility(int visibility);
    int GetVisibility();

    /// Removes the selection, and with it the text of the edit field. The items stay.
    void ClearControl();

    /// For the edit field of the box. The host gives it the field, by `SubclassWindow`; it is released with the box.
    CKxEdit m_edit;

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

    BYTE m_variant = 0;
    int m_visibility = 1;
};
