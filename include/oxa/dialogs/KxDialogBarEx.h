// A docking dialog bar that is initialised once its window lives, with a painted background where the application wants it.
#pragma once

#include <afxext.h>

#include "oxa/Export.h"

/// The base of a host's dialog bars.
///
/// After its window is created the bar posts itself a message; when that comes round, with all controls in place,
/// `InitDialogBar` and `InitToolTips` are called. A host overrides what it needs of the virtual operations.
///
/// Edit fields, lists and message boxes on any such bar stand on a pale blue while they are enabled. When the application
/// has called `SetOvewriteStyle`, every bar is painted with one bitmap stretched over all of it, and statics and buttons on
/// it (check boxes, radio buttons, group boxes) seem transparent.
///
/// A control that paints children of its own finds the bar with `IsKindOf(CKxDialogBarEx::GetThisClass())` and passes it
/// their WM_CTLCOLOR through `OnCtlColor`.
///
/// For the user-interface thread only: brushes, background and a scratch buffer are shared by all bars.
///
///     class CToolsBar : public CKxDialogBarEx
///     {
///         void OnInitDialogBar() override { m_length.SubclassDlgItem(IDC_LENGTH, this); }
///     };
///
///     CKxDialogBarEx::SetOvewriteStyle();
///     m_tools.Create(this, IDD_TOOLS, CBRS_TOP, IDD_TOOLS);
///     RecalcLayout();
class OXA_API CKxDialogBarEx : public CDialogBar
{
    DECLARE_DYNAMIC(CKxDialogBarEx)

public:
    CKxDialogBarEx();
    ~CKxDialogBarEx() override;

    /// The bar initialises itself. Here: calls `OnInitDialogBar`.
    virtual void InitDialogBar();
    /// Called behind `InitDialogBar`. Here: nothing.
    virtual void InitToolTips();
    /// Fills the bar. Here: `UpdateData(FALSE)`.
    virtual void OnInitDialogBar();
    /// Whether the bar is to be looked at only. Here: false.
    virtual bool IsDlgBarDisabled();
    /// Refreshes the bar at any time. Here: calls `OnInitDialogBar`.
    virtual void UpdateDialogBar();
    /// For the host to call when the bar is filled: disables the bar's children when `IsDlgBarDisabled` says true.
    virtual void InitDlgBarFinished();

    /// The id of a child that stays enabled with all its children when the bar's children are disabled. 0 until then.
    void SetPropertyId(unsigned int id);
    /// The id of another such child.
    void SetHelpId(unsigned int id);

    /// Switches the painted look on, for all bars made before and after; bars on the screen show it when they are painted
    /// next. Nothing changes when the bitmap cannot be loaded. The look cannot be switched off.
    static void SetOvewriteStyle();

    /// Stretches the background over the client area of `wnd`. Nothing without the painted look, or for null.
    static void PaintBackground(CWnd* wnd, CDC* dc);

    /// Sets the colours that a control is to be painted with, and answers its brush. `ctlColor`: CTLCOLOR_EDIT, .... The
    /// brush belongs to the bar; one that was made for a control lives until the next call.
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, unsigned int ctlColor);

    /// Straight to the control bar's.
    BOOL PreTranslateMessage(MSG* message) override;

    /// Shared by all bars.
    static bool m_bOverwriteStyle;   ///< the painted look is on
    static CBitmap m_bkBitmap;       ///< the background
    static CSize m_sizeBkBitmap;     ///< its size
    static CBrush m_bkBrush;         ///< the pale blue
    static CBrush m_bkBrushDisabled; ///< the face colour as it was when the first bar was made

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT InitDialogBarHandler(WPARAM wParam, LPARAM lParam);

    RECT m_rectClient{}; ///< scratch: the bar's client rectangle
    RECT m_rectCtrl{};   ///< scratch: the control's rectangle in it
    CDC m_dcBack;
    CDC m_dcCtrl;
    CBitmap m_bmpBack;  ///< the bar's painted picture
    CBitmap m_bmpCtrl;  ///< the piece of it behind the control
    CBrush m_brushCtrl; ///< the pattern brush last handed out
    unsigned int m_nPropertyId = 0;
    unsigned int m_nHelpId = 0;

private:
    void DisableChildren(CWnd* parent);
    HBRUSH patternBrush(CDC* dc, CWnd* wnd);

    DECLARE_MESSAGE_MAP()
};
