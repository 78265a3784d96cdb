// CControlBar: a child window that takes a strip along a side of its frame.
#pragma once
#include "kx/FrameWnd.h"
#include "kx/Wnd.h"

// What CalcDynamicLayout is asked for.
constexpr DWORD LM_STRETCH = 0x01;  ///< the bar fills the whole side
constexpr DWORD LM_HORZ = 0x02;     ///< it lies horizontally
constexpr DWORD LM_MRUWIDTH = 0x04; ///< its last width
constexpr DWORD LM_HORZDOCK = 0x08; ///< docked at top or bottom
constexpr DWORD LM_VERTDOCK = 0x10; ///< docked at left or right
constexpr DWORD LM_LENGTHY = 0x20;  ///< the length is a height
constexpr DWORD LM_COMMIT = 0x40;   ///< the length is to be kept

/// The base of all bars. A derived class says how big it is (CalcFixedLayout) and how its items are updated
/// (OnUpdateCmdUI).
///
/// Commands and notifications of the bar's controls that the bar's own map does not take go on to its owner, the frame.
/// Key strokes for its controls are offered to the accelerators of the frames above first, and then move the focus as in a
/// dialog.
class KXAFX_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)
public:
    ~CControlBar() override;

    /// The number of items that are no windows; 0 unless the derived class sets it.
    int GetCount() const { return m_nCount; }
    /// The CBRS_ styles. Setting them changes no window; the frame lays out again when it is told to.
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD style);
    /// Widths that a derived class keeps free inside of the border lines, in pixels; left, top, right, bottom.
    CRect GetBorders() const { return {m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder}; }
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0);
    void SetBorders(LPCRECT borders);
    /// The sides (CBRS_ALIGN_...) where DockControlBar may put the bar.
    void EnableDocking(DWORD dockStyle) { m_dwDockStyle = dockStyle & CBRS_ALIGN_ANY; }
    DWORD GetDockStyle() const { return m_dwDockStyle; }
    /// The frame at whose side the bar stands; null where there is none.
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const { return (m_dwStyle & CBRS_FLOATING) != 0; }

    /// The size that the bar wants. `stretch`: it fills the side, so that the length may be any large number.
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    /// The same for a bar that can change its form; `mode` is made of LM_ flags. Here: the fixed size.
    virtual CSize CalcDynamicLayout(int length, DWORD mode);
    /// Takes border lines and borders off a client rectangle.
    virtual void CalcInsideRect(CRect& rect, BOOL horizontal) const;
    /// Asks the frame for the state of the bar's items.
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;

    /// Draws what is not a child window: the border lines.
    virtual void DoPaint(CDC* dc);
    /// Draws the lines that the style names and takes them off `rect`.
    void DrawBorders(CDC* dc, CRect& rect);

    /// To be shown or hidden at the next layout or idle moment.
    virtual void DelayShow(BOOL show);
    /// Whether the bar is shown, or will be.
    virtual BOOL IsVisible() const;

    BOOL PreTranslateMessage(MSG* message) override;

    BOOL m_bAutoDelete = FALSE; ///< the object is deleted with its window

protected:
    CControlBar();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnPaint();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor);
    afx_msg void OnWindowPosChanged(WINDOWPOS* pos);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnInitialUpdate(WPARAM wParam, LPARAM lParam);

    int m_cxLeftBorder = 6;
    int m_cxRightBorder = 6;
    int m_cyTopBorder = 1;
    int m_cyBottomBorder = 1;
    int m_cxDefaultGap = 2;
    int m_nCount = 0;
    DWORD m_dwStyle = 0;
    DWORD m_dwDockStyle = 0;

private:
    enum class Pending
    {
        None,
        Show,
        Hide
    };
    void showPending();

    Pending m_pending = Pending::None;

    DECLARE_MESSAGE_MAP()
};
