// CFrameWnd: a simple main window with menu and accelerators.
#pragma once
#include "kx/Wnd.h"

/// LoadFrame: the title string goes before the application name.
#ifndef FWS_ADDTOTITLE
#define FWS_ADDTOTITLE 0x00008000L
#endif

/// A frame owns itself: made by `new`, it is deleted when its window is gone.
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

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL IsFrameWnd() const override { return TRUE; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL sysMenu);

    CString m_strTitle;
    UINT m_nIDHelp = 0;

    DECLARE_MESSAGE_MAP()
};
