// CWnd: a window with a message map; the base of every control, dialog and frame.
#pragma once
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include "kx/CmdTarget.h"
#include "kx/MessageSig.h"
#include "kx/MessageMap.h"
#include "kx/WndMaps.h"

#undef GetNextWindow // a macro of the system that takes a member of this name away

class CBitmap;
class CDataExchange;
class CDC;
class CFont;
class CFrameWnd;
class CListBox;
class CMenu;
class CRgn;
class CScrollBar;
class CWnd;
class CWinThread;

/// What a CTLCOLOR message carries once the seven of the system have become one.
struct AFX_CTLCOLOR
{
    HWND hWnd;
    HDC hDC;
    UINT nCtlType; ///< CTLCOLOR_EDIT, CTLCOLOR_STATIC, ...
};

// Flags of CWnd::m_nFlags.
constexpr UINT WF_TOOLTIPS = 0x0001;         ///< EnableToolTips is on
constexpr UINT WF_TRACKINGTOOLTIPS = 0x0400; ///< and the tip follows the mouse
constexpr UINT WF_CONTINUEMODAL = 0x0010;    ///< the modal loop is to go on
constexpr UINT WF_MODALLOOP = 0x0100;        ///< a modal loop is running

// Flags of CWnd::RunModalLoop.
constexpr DWORD MLF_NOIDLEMSG = 0x0001;  ///< send no WM_ENTERIDLE to the parent
constexpr DWORD MLF_NOKICKIDLE = 0x0002; ///< send no WM_KICKIDLE to the window
constexpr DWORD MLF_SHOWONIDLE = 0x0004; ///< show the window when the loop first idles

/// What WM_SIZEPARENT carries from bar to bar: each takes its strip off `rect`.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;      ///< null: nothing is moved, the sizes are asked for
    RECT rect;      ///< what is left of the parent, in client coordinates
    SIZE sizeTotal; ///< the size of all bars so far
    BOOL bStretch;  ///< bars fill the whole side
};

// Messages between the framework's own windows.
constexpr UINT WM_SIZEPARENT = 0x0361; ///< lParam: AFX_SIZEPARENTPARAMS*
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
constexpr UINT WM_INITIALUPDATE = 0x0364;
constexpr UINT WM_COMMANDHELP = 0x0365;
constexpr UINT WM_KICKIDLE = 0x036A;
constexpr UINT WM_QUERYAFXWNDPROC = 0x0360;

/// A window object. It knows its handle (m_hWnd, null while there is none) and is found from it by FromHandle.
/// Objects made by the program are permanent; those that FromHandle makes for foreign windows are temporary and
/// live until the thread is idle. Every operation on an object without a window fails plainly.
class KXAFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)
public:
    HWND m_hWnd = nullptr;

    CWnd();
    ~CWnd() override;
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& other) const { return other.GetSafeHwnd() == m_hWnd; }
    BOOL operator!=(const CWnd& other) const { return other.GetSafeHwnd() != m_hWnd; }

    /// The handle; null also for a null object.
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// Changes style bits; with swpFlags the frame is redrawn. TRUE when something changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT swpFlags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags = 0);
    static BOOL ModifyStyle(HWND wnd, DWORD remove, DWORD add, UINT swpFlags);
    static BOOL ModifyStyleEx(HWND wnd, DWORD remove, DWORD add, UINT swpFlags);

    /// The window that SetOwner named, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* owner);

    // --- handle and object
    /// The object of a handle; a temporary one where the program made none. Null for null.
    static CWnd* FromHandle(HWND wnd);
    /// The program's own object of a handle; null where it made none.
    static CWnd* FromHandlePermanent(HWND wnd);
    static void DeleteTempMap();
    /// Binds a handle to this object without subclassing it. FALSE for null.
    BOOL Attach(HWND wnd);
    /// Parts object and handle, and returns the handle. The window lives on.
    HWND Detach();
    /// Called once when the window gets its object, before its first message in Create and SubclassWindow.
    virtual void PreSubclassWindow();
    /// Attaches to a living window and takes its messages. FALSE when that fails.
    BOOL SubclassWindow(HWND wnd);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    /// Gives the window its own procedure back; returns the handle.
    HWND UnsubclassWindow();

    // --- creation and end
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                        void* context = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, LPVOID param = nullptr);
    /// Last chance to change the creation record; FALSE stops the creation.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();
    /// Called when the window is gone; an object that owns itself deletes itself here.
    virtual void PostNcDestroy();

    // --- text, state, place
    void SetWindowText(LPCTSTR text);
    int GetWindowText(LPTSTR buffer, int maxCount) const;
    void GetWindowText(CString& text) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* menu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL revert) const;
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    int SetWindowRgn(HRGN region, BOOL redraw);
    int GetWindowRgn(HRGN region) const;
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;
    BOOL SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags);
    UINT ArrangeIconicWindows();
    void BringWindowToTop();
    void GetWindowRect(LPRECT rect) const;
    void GetClientRect(LPRECT rect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* placement) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* placement);
    void ClientToScreen(LPPOINT point) const;
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const;
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;
    /// Centres over the given window, the owner or the parent, inside the work area or the parent.
    void CenterWindow(CWnd* alternate = nullptr);
    HICON SetIcon(HICON icon, BOOL bigIcon);
    HICON GetIcon(BOOL bigIcon) const;

    // --- painting
    CDC* BeginPaint(LPPAINTSTRUCT paint);
    void EndPaint(LPPAINTSTRUCT paint);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* clip, DWORD flags);
    int ReleaseDC(CDC* dc);
    void Print(CDC* dc, DWORD flags) const;
    void UpdateWindow();
    void SetRedraw(BOOL redraw = TRUE);
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE);
    int GetUpdateRgn(CRgn* region, BOOL erase = FALSE);
    void Invalidate(BOOL erase = TRUE);
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect);
    void ValidateRgn(CRgn* region);
    BOOL ShowWindow(int cmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL show = TRUE);
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    BOOL EnableScrollBar(int bar, UINT flags = ESB_ENABLE_BOTH);
    void DragAcceptFiles(BOOL accept = TRUE);

    // --- timers, state, focus
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse, TIMERPROC proc);
    BOOL KillTimer(UINT_PTR id);
    BOOL IsWindowEnabled() const;
    BOOL EnableWindow(BOOL enable = TRUE);
    static CWnd* GetActiveWindow();
    CWnd* SetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* GetForegroundWindow();
    static CWnd* GetCapture();
    CWnd* SetCapture();
    static CWnd* GetFocus();
    CWnd* SetFocus();
    static CWnd* GetDesktopWindow();

    // --- dialog items
    void CheckDlgButton(int id, UINT check);
    void CheckRadioButton(int first, int last, int check);
    int GetCheckedRadioButton(int first, int last) const;
    UINT IsDlgButtonChecked(int id) const;
    int DlgDirList(LPTSTR pathSpec, int listId, int staticId, UINT fileType);
    CWnd* GetNextDlgGroupItem(CWnd* control, BOOL previous = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* control, BOOL previous = FALSE) const;
    UINT GetDlgItemInt(int id, BOOL* translated = nullptr, BOOL isSigned = TRUE) const;
    int GetDlgItemText(int id, LPTSTR buffer, int maxCount) const;
    int GetDlgItemText(int id, CString& text) const;
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE);
    void SetDlgItemText(int id, LPCTSTR text);
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int id);
    CWnd* GetDlgItem(int id) const;
    void GetDlgItem(int id, HWND* wnd) const;
    BOOL IsDialogMessage(LPMSG message);

    // --- scrolling
    int GetScrollPos(int bar) const;
    void GetScrollRange(int bar, LPINT minPos, LPINT maxPos) const;
    int SetScrollPos(int bar, int pos, BOOL redraw = TRUE);
    void SetScrollRange(int bar, int minPos, int maxPos, BOOL redraw = TRUE);
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL);
    int GetScrollLimit(int bar);
    virtual CScrollBar* GetScrollBarCtrl(int bar) const;
    void ShowScrollBar(UINT bar, BOOL show = TRUE);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT rect = nullptr, LPCRECT clip = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect, UINT flags);

    // --- family
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT flags) const;
    static CWnd* FindWindow(LPCTSTR className, LPCTSTR windowName);
    static CWnd* FindWindowEx(HWND parent, HWND childAfter, LPCTSTR className, LPCTSTR windowName);
    CWnd* GetNextWindow(UINT flag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetWindow(UINT cmd) const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* wnd) const;
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* newParent);
    static CWnd* WindowFromPoint(POINT point);
    /// The nearest frame above this window; null where there is none.
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    /// The nearest parent or owner that is no child window.
    CWnd* GetParentOwner() const;
    CWnd* GetDescendantWindow(int id, BOOL onlyPermanent = FALSE) const;
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL deep = TRUE,
                                  BOOL onlyPermanent = FALSE);
    static CWnd* GetDescendantWindow(HWND wnd, int id, BOOL onlyPermanent);
    static void SendMessageToDescendants(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL deep,
                                         BOOL onlyPermanent);
    /// The window that a modal window of ours should be owned by; `top` gets the one to disable, or null.
    static HWND GetSafeOwner_(HWND parent, HWND* top);
    static CWnd* GetSafeOwner(CWnd* parent = nullptr, HWND* top = nullptr);
    virtual BOOL IsFrameWnd() const { return FALSE; }
    /// Whether a dialog is to be centred when it appears.
    virtual BOOL CheckAutoCenter() { return TRUE; }

    // --- bars at the sides
    enum RepositionFlags
    {
        reposDefault = 0,
        reposQuery = 1, ///< moves nothing: `param` gets the rectangle that would be left
        reposExtra = 2  ///< keeps the widths in `param` free around the pane
    };
    /// Lays out the children with ids from `first` to `last` that handle WM_SIZEPARENT along the sides of `client` (the
    /// client area, without one); the child `leftOver` gets the rest.
    void RepositionBars(UINT first, UINT last, UINT leftOver, UINT flag = reposDefault, LPRECT param = nullptr,
                        LPCRECT client = nullptr, BOOL stretch = TRUE);

    // --- messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// The message that this thread is handling, with time and place.
    static const MSG* GetCurrentMessage();
    int MessageBox(LPCTSTR text, LPCTSTR caption = nullptr, UINT type = MB_OK);
    BOOL FlashWindow(BOOL invert);
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT);

    // --- clipboard, caret
    BOOL OpenClipboard();
    BOOL ChangeClipboardChain(HWND next);
    HWND SetClipboardViewer();
    static CWnd* GetClipboardOwner();
    static CWnd* GetClipboardViewer();
    static CWnd* GetOpenClipboardWindow();
    void CreateSolidCaret(int width, int height);
    void CreateGrayCaret(int width, int height);
    void CreateCaret(CBitmap* bitmap);
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();

    // --- dialog data
    /// Exchanges data with the items: TRUE reads and validates them, FALSE fills them. FALSE when one was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    /// Asks the routes for the state of every child with a command id.
    virtual void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // --- tool tips of the window's children
    BOOL EnableToolTips(BOOL enable = TRUE);
    BOOL EnableTrackingToolTips(BOOL enable = TRUE);
    static void CancelToolTips(BOOL keys = FALSE);
    /// The tool under a point in client coordinates: its number, -1 where there is none. `info` is filled when given.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const;
    virtual void FilterToolTipMessage(MSG* message);

    // --- modal loops
    int RunModalLoop(DWORD flags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int result);

    // --- before dispatch
    virtual BOOL PreTranslateMessage(MSG* message);
    /// Offers a message to the window it is for and to its parents, up to `stop`.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    BOOL PreTranslateInput(LPMSG message);

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    /// Gives the message that is being handled to this control as its own notification.
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr);
    /// Gives the message that is being handled back to the child window it came from. TRUE when the child took it.
    static BOOL ReflectLastMsg(HWND child, LRESULT* result = nullptr);
    LRESULT OfferLastMsg(CWnd* control);

    /// The procedure that the window had before; a class with one for all its windows answers its address.
    virtual WNDPROC* GetSuperWndProcAddr();

protected:
    explicit CWnd(HWND wnd);

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// A notification comes back to its control, before the parent's map is asked. TRUE ends the matter.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    /// Does what the system does with the message that is being handled.
    LRESULT Default();
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual void BeginModalState();
    virtual void EndModalState();
    virtual void PreInitDialog();
    BOOL ExecuteDlgInit(LPCTSTR resourceName);
    BOOL ExecuteDlgInit(const void* resource, DWORD size);

    // --- handlers; all do what the system does
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg BOOL OnQueryOpen();
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnActivateApp(BOOL active, DWORD threadId);
    afx_msg int OnMouseActivate(CWnd* desktopWnd, UINT hitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* oldWnd);
    afx_msg void OnKillFocus(CWnd* newWnd);
    afx_msg void OnCancelMode();
    afx_msg void OnChildActivate();
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg void OnDropFiles(HDROP drop);
    afx_msg BOOL OnCopyData(CWnd* wnd, COPYDATASTRUCT* data);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    afx_msg void OnSysCommand(UINT id, LPARAM lParam);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSizing(UINT side, LPRECT rect);
    afx_msg void OnMoving(UINT side, LPRECT rect);
    afx_msg void OnEnterSizeMove();
    afx_msg void OnExitSizeMove();
    afx_msg void OnWindowPosChanging(WINDOWPOS* pos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* pos);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style);
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg BOOL OnNcActivate(BOOL active);
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnIconEraseBkgnd(CDC* dc);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnDevModeChange(LPTSTR device);
    afx_msg void OnFontChange();
    afx_msg void OnTimeChange();
    afx_msg void OnPaletteChanged(CWnd* focusWnd);
    afx_msg void OnPaletteIsChanging(CWnd* realizeWnd);
    afx_msg BOOL OnQueryNewPalette();
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnDeadChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnSysDeadChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyUp(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseHover(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnMouseHWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonUp(UINT flags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnXButtonDown(UINT flags, UINT button, CPoint point);
    afx_msg void OnXButtonUp(UINT flags, UINT button, CPoint point);
    afx_msg void OnXButtonDblClk(UINT flags, UINT button, CPoint point);
    afx_msg void OnNcMouseMove(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT hitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcLButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcRButtonDblClk(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonDown(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonUp(UINT hitTest, CPoint point);
    afx_msg void OnNcMButtonDblClk(UINT hitTest, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hitTest, UINT message);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint point);
    afx_msg void OnInitMenu(CMenu* menu);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sysMenu);
    afx_msg void OnUnInitMenuPopup(CMenu* menu, UINT flags);
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
    afx_msg LRESULT OnMenuChar(UINT character, UINT flags, CMenu* menu);
    afx_msg void OnEnterMenuLoop(BOOL trackPopup);
    afx_msg void OnExitMenuLoop(BOOL trackPopup);
    afx_msg void OnDestroyClipboard();
    afx_msg void OnDrawClipboard();
    afx_msg void OnChangeCbChain(HWND removed, HWND after);
    afx_msg void OnRenderFormat(UINT format);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT ctlColor);
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item);
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item);
    afx_msg int OnCharToItem(UINT character, CListBox* box, UINT index);
    afx_msg int OnVKeyToItem(UINT key, CListBox* box, UINT index);
    afx_msg LRESULT OnSystemCtlColor(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDisplayChange(WPARAM wParam, LPARAM lParam);

    UINT m_nFlags = 0;
    WNDPROC m_pfnSuper = nullptr;
    int m_nModalResult = 0;
    HWND m_hWndOwner = nullptr;

private:
    BOOL DispatchWndMsg(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    friend KXAFX_API LRESULT AfxCallWndProc(CWnd* wnd, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    friend struct KxWndAccess;

    DECLARE_MESSAGE_MAP()
};

/// Calls the object's WindowProc as the system would, and lets no framework exception out.
KXAFX_API LRESULT AfxCallWndProc(CWnd* wnd, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
/// The window procedure of every window that has a permanent object.
KXAFX_API LRESULT CALLBACK AfxWndProc(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam);
KXAFX_API WNDPROC AfxGetAfxWndProc();

/// Registers a window class with these properties once; the name lives as long as the process.
KXAFX_API LPCTSTR AfxRegisterWndClass(UINT classStyle, HCURSOR cursor = nullptr, HBRUSH background = nullptr,
                                      HICON icon = nullptr);
/// Registers a window class unless it is there already.
KXAFX_API BOOL AfxRegisterClass(WNDCLASS* wndClass);
/// The next window that this thread creates gets `wnd` as its object before its first message.
KXAFX_API void AfxHookWindowCreate(CWnd* wnd);
/// FALSE when the object is still waiting, that is, when no window was created.
KXAFX_API BOOL AfxUnhookWindowCreate();
/// Sets a window's text unless it has it already, so that nothing flickers.
KXAFX_API void AfxSetWindowText(HWND wnd, LPCTSTR text);
/// Closes an open drop-down list and ends a capture, except where the receiver is the list's own window.
KXAFX_API void AfxCancelModes(HWND receiver);
/// While locked, temporary objects outlive an idle moment; the calls nest.
KXAFX_API void AfxLockTempMaps();
KXAFX_API BOOL AfxUnlockTempMaps(BOOL deleteTemps = TRUE);
KXAFX_API BOOL AfxIsDescendant(HWND parent, HWND child);
/// Moves a child to a place in its parent's client coordinates, together with the others of a layout; nothing happens to
/// one that stands there already. A handler of WM_SIZEPARENT calls it when the layout's hDWP is not null.
KXAFX_API void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* layout, HWND wnd, LPCRECT rect);
