// CFrameWnd: a simple main window with menu, accelerators and control bars at its sides.
#pragma once
#include "kx/Wnd.h"

class CCmdUI;
class CControlBar;

/// LoadFrame: the title string goes before the application name.
#ifndef FWS_ADDTOTITLE
#define FWS_ADDTOTITLE 0x00008000L
#endif

/// A frame owns itself: made by `new`, it is deleted when its window is gone.
///
/// Control bars are children with ids up to AFX_IDW_CONTROLBAR_LAST; they stand along the sides that their styles name, in
/// the order of the children. The child AFX_IDW_PANE_FIRST, where there is one, fills the rest. Bars stay where they are
/// docked: the user cannot drag them, and they do not float.
class KXAFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)
public:
    static const CRect rectDefault; ///< lets the system choose place and size

    CFrameWnd();
    ~CFrameWnd() override;

    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCTSTR menuName = nullptr,
                        DWORD exStyle = 0, void* context = nullptr);
    /// Creates the frame with the menu, accelerators, icon and title string of one resource id.
    virtual BOOL LoadFrame(UINT resourceId, DWORD style = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, CWnd* parent = nullptr,
                           void* context = nullptr);
    BOOL LoadAccelTable(LPCTSTR resourceName);
    virtual void ActivateFrame(int cmdShow = -1);
    virtual HACCEL GetDefaultAccelerator();
    void SetTitle(LPCTSTR title) { m_strTitle = title; }
    CString GetTitle() const { return m_strTitle; }
    virtual CFrameWnd* GetActiveFrame();

    HACCEL m_hAccelTable = nullptr;
    HMENU m_hMenuDefault = nullptr;
    BOOL m_bAutoMenuEnable = TRUE; ///< items without a handler are greyed

    // --- control bars
    /// Lays out bars and pane. Happens by itself when the frame's size changes; a host calls it after it changed a bar.
    virtual void RecalcLayout(BOOL notify = TRUE);
    /// Lays out at the next idle moment.
    void DelayRecalcLayout(BOOL notify = TRUE);
    /// The sides (CBRS_ALIGN_...) that DockControlBar may use.
    void EnableDocking(DWORD dockStyle);
    /// Moves a bar to a side (AFX_IDW_DOCKBAR_TOP, ...) that both frame and bar are enabled for. 0: the side where the bar
    /// stands, else the first of top, bottom, left and right that is possible. The place along the side is accepted and
    /// not needed. Nothing happens where no side is possible.
    void DockControlBar(CControlBar* bar, UINT dockBarId = 0, LPCRECT rect = nullptr);
    /// Shows or hides a bar and lays out, at once or at the next idle moment.
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    /// The bar with this id; null where there is none.
    CControlBar* GetControlBar(UINT id);
    /// Handler of a bar's own command: shows the bar with the command's id or hides it. FALSE where there is none.
    afx_msg BOOL OnBarCheck(UINT id);
    /// Handler of its state: checked while the bar is shown.
    afx_msg void OnUpdateControlBarMenu(CCmdUI* ui);

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL IsFrameWnd() const override { return TRUE; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sysMenu);

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);

    CString m_strTitle;
    UINT m_nIDHelp = 0;
    CRect m_rectBorder;             ///< kept free around the pane
    BOOL m_bInRecalcLayout = FALSE; ///< a layout in a layout is not begun
    BOOL m_bLayoutDelayed = FALSE;
    BOOL m_bDelayedNotify = FALSE;
    DWORD m_dwDockStyle = 0;

    DECLARE_MESSAGE_MAP()
};
