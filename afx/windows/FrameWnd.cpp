// A simple main window: accelerators, menu updates, routing to the application.
#include <afxwin.h>

#include <iterator>

#include "kx/CmdUI.h"

namespace
{
constexpr int needsTipText = MAKELONG(TTN_NEEDTEXTW, WM_NOTIFY);

/// The tip of a control is what stands behind the line break of its id's string; in front of it stands its prompt.
bool giveTipText(NMTTDISPINFOW& info)
{
    const bool isWindow = (info.uFlags & TTF_IDISHWND) != 0;
    const UINT_PTR id = isWindow ? LOWORD(::GetDlgCtrlID(reinterpret_cast<HWND>(info.hdr.idFrom))) : info.hdr.idFrom;
    CString all;
    CString tip;
    if (id == 0 || id > 0xFFFF || !all.LoadString(static_cast<UINT>(id)) || !AfxExtractSubString(tip, all, 1))
        return false;
    ::lstrcpynW(info.szText, tip, static_cast<int>(std::size(info.szText)));
    info.lpszText = info.szText;
    return true;
}
} // namespace

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    // void OnInitMenuPopup(CMenu*, UINT, BOOL)
    ON_WM_INITMENUPOPUP()
    // void OnSize(UINT, int, int)
    ON_WM_SIZE()
    // LRESULT OnIdleUpdateCmdUI(WPARAM, LPARAM)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    // BOOL OnBarCheck(UINT), void OnUpdateControlBarMenu(CCmdUI*)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_REBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_REBAR, &CFrameWnd::OnUpdateControlBarMenu)
END_MESSAGE_MAP()

CFrameWnd::CFrameWnd() = default;

// The window is ended by CWnd's destructor, where PostNcDestroy does not delete any more.
CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                       LPCTSTR menuName, DWORD exStyle, void* context)
{
    HMENU menu = nullptr;
    if (menuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (menu == nullptr)
        {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = windowName;
    const bool byDefault = rect.left == CW_USEDEFAULT;
    const int width = byDefault ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = byDefault ? CW_USEDEFAULT : rect.bottom - rect.top;
    if (!CreateEx(exStyle, className, windowName, style, rect.left, rect.top, width, height, parent->GetSafeHwnd(),
                  menu, context))
    {
        if (menu != nullptr)
            ::DestroyMenu(menu);
        return FALSE;
    }
    return TRUE;
}

BOOL CFrameWnd::LoadFrame(UINT resourceId, DWORD style, CWnd* parent, void* context)
{
    m_nIDHelp = resourceId;
    CString title;
    CString all;
    if (all.LoadString(resourceId))
        AfxExtractSubString(title, all, 0);
    LPCTSTR name = MAKEINTRESOURCE(resourceId);
    HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    LPCTSTR className = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    if (!Create(className, title, style, rectDefault, parent, name, 0, context))
        return FALSE;
    m_hMenuDefault = ::GetMenu(m_hWnd);
    LoadAccelTable(name);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR resourceName)
{
    if (m_hAccelTable != nullptr || resourceName == nullptr)
        return FALSE;
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(resourceName, RT_ACCELERATOR), resourceName);
    return m_hAccelTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator()
{
    return m_hAccelTable;
}

void CFrameWnd::ActivateFrame(int cmdShow)
{
    if (cmdShow == -1)
        cmdShow = !IsWindowVisible() ? SW_SHOWNORMAL : IsIconic() ? SW_RESTORE : -1;
    BringWindowToTop();
    if (cmdShow != -1)
    {
        ShowWindow(cmdShow);
        BringWindowToTop();
    }
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    cs.style &= ~FWS_ADDTOTITLE;
    return CWnd::PreCreateWindow(cs);
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST)
        return FALSE;
    HACCEL table = GetDefaultAccelerator();
    return table != nullptr && ::TranslateAccelerator(m_hWnd, table, message) != 0;
}

// The frame first, then the application.
BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    if (CWnd::OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr && thread->OnCmdMsg(id, code, extra, info))
        return TRUE;
    if (code != needsTipText || extra == nullptr || info != nullptr)
        return FALSE;
    return giveTipText(*reinterpret_cast<NMTTDISPINFOW*>(static_cast<AFX_NOTIFY*>(extra)->pNMHDR));
}

// Each item is asked for when its menu opens.
void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT, BOOL sysMenu)
{
    AfxCancelModes(m_hWnd);
    if (sysMenu || menu == nullptr)
        return;
    CCmdUI state;
    state.m_pMenu = menu;
    const int count = ::GetMenuItemCount(menu->m_hMenu);
    state.m_nIndexMax = static_cast<UINT>(count < 0 ? 0 : count);
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        state.m_nID = ::GetMenuItemID(menu->m_hMenu, static_cast<int>(state.m_nIndex));
        if (state.m_nID == 0)
            continue; // a separator
        if (state.m_nID == static_cast<UINT>(-1))
        {
            // The item of a submenu stands for the submenu's first item; it is never greyed for want of a handler.
            HMENU sub = ::GetSubMenu(menu->m_hMenu, static_cast<int>(state.m_nIndex));
            state.m_pSubMenu = CMenu::FromHandle(sub);
            state.m_nID = sub != nullptr ? ::GetMenuItemID(sub, 0) : 0;
            if (sub == nullptr || state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1))
                continue;
            state.DoUpdate(this, FALSE);
        }
        else
        {
            state.m_pSubMenu = nullptr;
            state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        }
        const int now = ::GetMenuItemCount(menu->m_hMenu); // a handler may have added or taken items
        state.m_nIndexMax = static_cast<UINT>(now < 0 ? 0 : now);
    }
}
