// CDialogBar: a control bar made from a dialog template.
#pragma once
#include "kx/ControlBar.h"

/// A bar with the controls of a dialog template (style WS_CHILD, not WS_VISIBLE), created with the template's size at a
/// side of its parent. Push buttons whose commands nobody handles are greyed at idle moments.
///
///     m_bar.Create(this, IDD_TOOLS, CBRS_TOP, IDD_TOOLS);
///     RecalcLayout();
class KXAFX_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)
public:
    CDialogBar();
    ~CDialogBar() override;

    /// Creates the bar with CBRS_ styles, shown, with an empty rectangle until the parent lays out. FALSE without a
    /// template or a parent, and for a bar that has its window.
    BOOL Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id);
    BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id);

    /// The template's size; with `stretch` the length of the side is 32767.
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;

    CSize m_sizeDefault{0, 0}; ///< the size of the template, in pixels

protected:
    /// A derived class may handle WM_INITDIALOG and call this first. The bar does not take the focus.
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    LPCTSTR m_lpszTemplateName = nullptr;

    DECLARE_MESSAGE_MAP()
};
