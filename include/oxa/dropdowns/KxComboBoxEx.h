// CKxComboBoxEx: a combo box with images and indents that draws its items itself.
#pragma once

#include <afxcmn.h>

#include "oxa/Export.h"
#include "oxa/dialogs/KxDialogBarEx.h"
#include "oxa/tooltips/KxToolTip.h"

/// A combo box with an image list (`SetImageList`) whose items have an image, a selected image and an overlay, and an indent
/// of 10 pixels a step. A row is drawn with its image, the focused one with its selected image blended; a disabled control
/// shows the overlay's number as an image, greyed. Without an image list no text is drawn either.
///
/// In a `CKxDialogBarEx`, or in a child of one, the inner controls take the bar's colours. The bar is looked for when the
/// window is created; a control of a dialog template is attached later, and is told by `SetDlgBarParent`.
///
/// It sends the notifications of CComboBoxEx and no others. The parent may destroy the control in each of them.
class OXA_API CKxComboBoxEx : public CComboBoxEx
{
    DECLARE_DYNAMIC(CKxComboBoxEx)

public:
    CKxComboBoxEx();
    ~CKxComboBoxEx() override;

    /// The host's own flag, false at first: whether the box stands for several objects whose values differ.
    void SetVariant(bool variant);
    bool GetVariant();

    /// Whether the selected item is drawn in the field, true at first. The rows of the list are drawn in any case.
    void SetVisibility(bool visibility);
    bool GetVisibility();

    /// The bar whose colours the control takes; null: none. It is asked only while it has the window that it has now.
    void SetDlgBarParent(CKxDialogBarEx* dialogBar);

    /// Shows `text` as the tip of the inner combo box. Nothing happens before the control has its window.
    void AddFormatToolTip(CString text);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    DECLARE_MESSAGE_MAP()

    CKxDialogBarEx* m_dialogBar = nullptr;
    bool m_variant = false;
    bool m_visibility = true;
    CKxToolTip m_toolTip;

private:
    HWND m_dialogBarWindow = nullptr; ///< by which a bar that is gone is noticed
};
